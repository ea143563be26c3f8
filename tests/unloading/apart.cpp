// A child process for a scenario, and the library registered by the process that starts the others.
#include "apart.h"

#include "tests/activex/library.h"
#include "tests/windows/child.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace vela::test {

namespace {

constexpr char mark[] = "VELA_TEST_APART";
constexpr DWORD threadMilliseconds = 300000;

// No process keeps the library itself.
class WholeRun : public testing::Environment {
public:
    void SetUp() override
    {
        if (std::getenv(mark))
            return;
        const HMODULE module = LoadLibraryW(libraryPath().c_str());
        ASSERT_NE(module, nullptr) << "error " << GetLastError();
        ASSERT_EQ(callServer("DllRegisterServer"), S_OK);
        FreeLibrary(module);
    }
};

const auto* const environment = testing::AddGlobalTestEnvironment(new WholeRun);

DWORD WINAPI runWork(void* work)
{
    (*static_cast<const std::function<void()>*>(work))();
    return 0;
}

} // namespace

bool apart()
{
    if (std::getenv(mark))
        return true;
    const auto* const test = testing::UnitTest::GetInstance()->current_test_info();
    runApart(thisProgram(), std::string(test->test_suite_name()) + "." + test->name(), mark);
    return false;
}

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

} // namespace vela::test
