// Answers seen on Windows, as data: the second judge.
#pragma once

#include "tests/differential/cases.h"

#include <filesystem>
#include <vector>

namespace vela::differential {

struct SeenValue {
    Request request; // in the engine's fixed locale where there is one
    Outcome answer;
};

// Raises std::runtime_error with the line that it cannot read.
[[nodiscard]] std::vector<SeenValue> seenValues(const std::filesystem::path& file);
// Dates are given to the second, numbers to their last digits.
[[nodiscard]] bool agreeWithSeen(const SeenValue& seen, const Outcome& outcome);

} // namespace vela::differential
