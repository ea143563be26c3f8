// The search for the known differences behind one disagreement.
#include "tests/differential/known_differences.h"

namespace vela::differential {
namespace {

constexpr std::size_t mostTogether = 5;

using Found = std::vector<const KnownDifference*>;

// Of dates and texts, then of numbers.
const std::vector<KnownDifference>& knownDifferences()
{
    static const std::vector<KnownDifference> all = [] {
        std::vector<KnownDifference> list(dateDifferences().begin(), dateDifferences().end());
        list.insert(list.end(), numberDifferences().begin(), numberDifferences().end());
        return list;
    }();
    return all;
}

class Search {
public:
    explicit Search(const Outcome& theirs) : theirs_(theirs) {}

    [[nodiscard]] bool from(const Request& request, std::size_t first, std::size_t depth)
    {
        const auto& all = knownDifferences();
        for (std::size_t i = first; i < all.size(); ++i) {
            if (!all[i].applies(request, theirs_))
                continue;
            found_.push_back(&all[i]);
            if (all[i].alter == nullptr)
                return true;
            Request altered = request;
            all[i].alter(altered);
            if (depth == 1 ? agree(engineOutcome(altered), theirs_) : from(altered, i + 1, depth - 1))
                return true;
            found_.pop_back();
        }
        return false;
    }

    [[nodiscard]] Found found() const { return found_; }

private:
    const Outcome& theirs_;
    Found found_;
};

} // namespace

Found explain(const Case& asked, const Outcome& theirs)
{
    for (std::size_t depth = 1; depth <= mostTogether; ++depth) {
        Search search(theirs);
        if (search.from(requestFor(asked), 0, depth))
            return search.found();
    }
    return {};
}

} // namespace vela::differential
