// Tests in a process of their own.
#pragma once

#include <windows.h>

#include <string>

namespace vela::test {

[[nodiscard]] std::string thisProgram(); // its path

// Tests of a program, with a variable of the environment set; they must run, and pass in time.
void runApart(const std::string& program, const std::string& filter, const char* variable, int value = 1,
              DWORD seconds = 420);

} // namespace vela::test
