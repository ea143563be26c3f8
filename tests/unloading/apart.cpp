// A child process with a time to end in, and the library as it is registered.
#include "apart.h"

#include "tests/activex/library.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>

namespace vela::test {

namespace {

constexpr char mark[] = "VELA_TEST_APART";
constexpr DWORD threadMilliseconds = 300000;

bool isApart()
{
    return std::getenv(mark) != nullptr;
}

HRESULT call(HMODULE module, const char* name)
{
    const auto function =
        reinterpret_cast<HRESULT(STDAPICALLTYPE*)()>(reinterpret_cast<void*>(GetProcAddress(module, name)));
    return function ? function() : E_NOTIMPL;
}

// Registered for the run by the process that starts the others; no process keeps the library itself.
class WholeRun : public testing::Environment {
public:
    void SetUp() override
    {
        if (isApart())
            return;
        const HMODULE module = LoadLibraryW(libraryPath().c_str());
        ASSERT_NE(module, nullptr) << "error " << GetLastError();
        ASSERT_EQ(call(module, "DllRegisterServer"), S_OK);
        FreeLibrary(module);
    }
};

const auto* const environment = testing::AddGlobalTestEnvironment(new WholeRun);

// What a child prints goes to a file, and is shown when it fails: the program's own totals stay the only ones.
class Printed {
public:
    Printed()
    {
        char folder[MAX_PATH]{};
        GetTempPathA(MAX_PATH, folder);
        GetTempFileNameA(folder, "vel", 0, path_);
        SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
        file_ = CreateFileA(path_, GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited, CREATE_ALWAYS, 0,
                            nullptr);
    }
    Printed(const Printed&) = delete;
    Printed& operator=(const Printed&) = delete;
    ~Printed()
    {
        CloseHandle(file_);
        DeleteFileA(path_);
    }
    [[nodiscard]] HANDLE file() const noexcept { return file_; }
    [[nodiscard]] std::string text() const
    {
        std::ifstream in(path_);
        return {std::istreambuf_iterator<char>(in), {}};
    }

private:
    char path_[MAX_PATH]{};
    HANDLE file_ = INVALID_HANDLE_VALUE;
};

} // namespace

bool apart(DWORD seconds)
{
    if (isApart())
        return true;
    const auto* const test = testing::UnitTest::GetInstance()->current_test_info();
    char program[MAX_PATH]{};
    GetModuleFileNameA(nullptr, program, MAX_PATH);
    std::string line =
        std::string("\"") + program + "\" --gtest_filter=" + test->test_suite_name() + "." + test->name();
    const Printed printed;
    STARTUPINFOA start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = start.hStdError = printed.file();
    PROCESS_INFORMATION child{};
    SetEnvironmentVariableA(mark, "1");
    const BOOL started =
        CreateProcessA(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start, &child);
    SetEnvironmentVariableA(mark, nullptr);
    EXPECT_TRUE(started);
    if (!started)
        return false;
    const bool ended = WaitForSingleObject(child.hProcess, seconds * 1000) == WAIT_OBJECT_0;
    DWORD code = 0;
    if (!ended)
        TerminateProcess(child.hProcess, 1);
    GetExitCodeProcess(child.hProcess, &code);
    CloseHandle(child.hThread);
    CloseHandle(child.hProcess);
    if (!ended)
        ADD_FAILURE() << "does not end\n" << printed.text();
    else if (code != 0 || printed.text().find("[  PASSED  ] 1 test") == std::string::npos)
        ADD_FAILURE() << "ended with " << code << "\n" << printed.text();
    return false;
}

namespace {

DWORD WINAPI runWork(void* work)
{
    (*static_cast<const std::function<void()>*>(work))();
    return 0;
}

} // namespace

bool runOnThreads(const std::vector<std::function<void()>>& works)
{
    std::vector<HANDLE> threads;
    for (const std::function<void()>& work : works)
        threads.push_back(CreateThread(nullptr, 0, runWork, const_cast<std::function<void()>*>(&work), 0, nullptr));
    const bool ended = WaitForMultipleObjects(static_cast<DWORD>(threads.size()), threads.data(), TRUE,
                                              threadMilliseconds) != WAIT_TIMEOUT;
    for (const HANDLE thread : threads)
        CloseHandle(thread);
    return ended;
}

HMODULE library()
{
    return GetModuleHandleW(L"Vela.ocx");
}

HRESULT canUnload()
{
    return call(library(), "DllCanUnloadNow");
}

std::wstring libraryPath()
{
    std::string path = std::string(VELA_BINARY_DIR) + "/Vela.ocx";
    if (path.front() == '/')
        path = "Z:" + path;
    std::replace(path.begin(), path.end(), '/', '\\');
    return {path.begin(), path.end()};
}

ComPtr<IUnknown> create(const wchar_t* progId)
{
    CLSID clsid{};
    ComPtr<IUnknown> object;
    if (FAILED(CLSIDFromProgID(progId, &clsid)) ||
        FAILED(CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&object))))
        return {};
    return object;
}

void pump()
{
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

} // namespace vela::test
