// Starts a test program, gives it time to end, and shows what it printed only when it failed.
#include "tests/windows/child.h"

#include "tests/support/windows.h"

#include <gtest/gtest.h>

namespace vela::test {

namespace {

// The program's own totals stay the only ones: a child prints into a file.
class Printed : Fixed {
public:
    Printed()
    {
        char folder[MAX_PATH]{};
        char path[MAX_PATH]{};
        GetTempPathA(MAX_PATH, folder);
        GetTempFileNameA(folder, "vel", 0, path);
        SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
        file = CreateFileA(path, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                           &inherited, CREATE_ALWAYS, FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    }
    ~Printed() { CloseHandle(file); }
    [[nodiscard]] std::string text() const
    {
        std::string all(GetFileSize(file, nullptr), '\0');
        DWORD read = 0;
        SetFilePointer(file, 0, nullptr, FILE_BEGIN);
        ReadFile(file, all.data(), static_cast<DWORD>(all.size()), &read, nullptr);
        return all;
    }
    HANDLE file;
};

bool start(std::string line, const Printed& printed, PROCESS_INFORMATION& child)
{
    STARTUPINFOA start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = start.hStdError = printed.file;
    return CreateProcessA(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start, &child) != FALSE;
}

} // namespace

std::string thisProgram()
{
    char program[MAX_PATH]{};
    GetModuleFileNameA(nullptr, program, MAX_PATH);
    return program;
}

void runApart(const std::string& program, const std::string& filter, const char* variable, int value, DWORD seconds)
{
    const Printed printed;
    PROCESS_INFORMATION child{};
    SetEnvironmentVariableA(variable, std::to_string(value).c_str());
    const bool started = start("\"" + program + "\" --gtest_filter=" + filter, printed, child);
    SetEnvironmentVariableA(variable, nullptr);
    ASSERT_TRUE(started) << program;
    const bool ended = WaitForSingleObject(child.hProcess, seconds * 1000) == WAIT_OBJECT_0;
    DWORD code = 1;
    if (ended)
        GetExitCodeProcess(child.hProcess, &code);
    else
        TerminateProcess(child.hProcess, 1);
    CloseHandle(child.hThread);
    CloseHandle(child.hProcess);
    const std::string text = printed.text();
    const auto says = [&](const char* part) { return text.find(part) != std::string::npos; };
    EXPECT_TRUE(ended && code == 0 && says("[  PASSED  ]") && !says("[  PASSED  ] 0 ") && !says("SKIPPED"))
        << (ended ? "ended with " + std::to_string(code) : "does not end") << "\n"
        << text;
}

} // namespace vela::test
