// The search for the known differences behind one disagreement.
#include "tests/differential/known_differences.h"

namespace vela::differential {
namespace {

constexpr std::size_t mostTogether = 4;

using Found = std::vector<const KnownDifference*>;

bool search(const Request& request, const Outcome& theirs, std::size_t first, std::size_t depth, Found& found)
{
    const auto all = knownDifferences();
    for (std::size_t i = first; i < all.size() && !request.answer; ++i) {
        if (!all[i].applies(request))
            continue;
        found.push_back(&all[i]);
        Request altered = request;
        all[i].alter(altered);
        if (depth == 1 ? agree(engineOutcome(altered), theirs) : search(altered, theirs, i + 1, depth - 1, found))
            return true;
        found.pop_back();
    }
    return false;
}

} // namespace

Found explain(const Request& request, const Outcome& theirs)
{
    Found found;
    for (std::size_t depth = 1; depth <= mostTogether && found.empty(); ++depth)
        search(request, theirs, 0, depth, found);
    return found;
}

} // namespace vela::differential
