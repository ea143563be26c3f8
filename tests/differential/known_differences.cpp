// The whole list: of dates and texts, then of numbers.
#include "tests/differential/known_differences.h"

namespace vela::differential {

std::span<const KnownDifference> knownDifferences()
{
    static const std::vector<KnownDifference> all = [] {
        std::vector<KnownDifference> list(dateDifferences().begin(), dateDifferences().end());
        list.insert(list.end(), numberDifferences().begin(), numberDifferences().end());
        return list;
    }();
    return all;
}

} // namespace vela::differential
