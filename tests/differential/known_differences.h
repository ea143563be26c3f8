// Where the engine answers otherwise than this version of the library, and why.
#pragma once

#include "tests/differential/cases.h"

#include <string_view>
#include <vector>

namespace vela::differential {

// A difference tells what the library's fault makes of a request: asked with that, the engine must give the library's
// own answer. It never sees that answer, and where it does not predict it the difference is not a known one.
struct KnownDifference {
    std::string_view name;
    std::string_view reason;
    bool (*applies)(const Request& request);
    void (*alter)(Request& request);
};

// The fewest known differences, at most four, that together predict the library's answer; none when it is unlisted.
[[nodiscard]] std::vector<const KnownDifference*> explain(const Request& request, const Outcome& theirs);

} // namespace vela::differential
