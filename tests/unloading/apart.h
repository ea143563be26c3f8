// Scenarios that have a process to themselves, where COM alone loads the library and lets it go.
#pragma once

#include <functional>
#include <vector>

namespace vela::test {

// True in the scenario's own process. Elsewhere that process is started, and its end is this test's result.
//     TEST(Unloading, Name) { if (!apart()) return; ... }
[[nodiscard]] bool apart();

// Each on a thread of its own, which ends as the function returns. False when one does not end in time.
[[nodiscard]] bool runOnThreads(const std::vector<std::function<void()>>& works);

} // namespace vela::test
