// Seeded random cases of one question each, in the shapes that fields meet.
#pragma once

#include "tests/differential/cases.h"

#include <random>

namespace vela::differential {

using Random = std::mt19937;

[[nodiscard]] Case randomCase(Question question, Random& random);

} // namespace vela::differential
