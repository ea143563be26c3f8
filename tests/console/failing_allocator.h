// Makes the n-th allocation of the program fail.
#pragma once

namespace failing_allocator {

void failAt(long n); // 1: the next one; those after it succeed again
bool disarm();       // whether it failed

} // namespace failing_allocator
