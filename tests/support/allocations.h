// Counts the program's allocations, and makes the n-th of them fail.
#pragma once

namespace vela::test {

[[nodiscard]] long allocationCount();
void failAllocation(long n);             // 1: the next one; those after it succeed again
[[nodiscard]] bool endAllocationFault(); // whether it failed

} // namespace vela::test
