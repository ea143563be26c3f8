// Where the engine answers otherwise than this version of the library, and why.
#pragma once

#include "tests/differential/cases.h"

#include <span>
#include <string_view>
#include <vector>

namespace vela::differential {

// A difference is explained by asking the engine again with the request altered as the library's fault alters it: only
// when the answer is then the library's own is the difference a known one. A few faults leave no predictable answer:
// their `alter` is null and the narrow `applies` alone decides.
struct KnownDifference {
    std::string_view name;
    std::string_view reason;
    bool (*applies)(const Request& request, const Outcome& theirs);
    void (*alter)(Request& request);
};

[[nodiscard]] std::span<const KnownDifference> dateDifferences();
[[nodiscard]] std::span<const KnownDifference> numberDifferences();

// The fewest known differences, at most five, that together explain the library's answer; none when it is unlisted.
[[nodiscard]] std::vector<const KnownDifference*> explain(const Case& asked, const Outcome& theirs);

} // namespace vela::differential
