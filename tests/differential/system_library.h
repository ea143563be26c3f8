// The system's automation library as the judge: each question answered in its locale.
#pragma once

#include "tests/differential/cases.h"

namespace vela::differential {

[[nodiscard]] Outcome systemOutcome(const Case& asked);
[[nodiscard]] LocaleIndex userLocale(); // fixed decimals are written in the user's own locale: the library takes none
[[nodiscard]] double systemToday();

} // namespace vela::differential
