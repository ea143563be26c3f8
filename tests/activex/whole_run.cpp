// The library is loaded and registered for all tests of the program.
#include "library.h"

#include <gtest/gtest.h>

namespace vela::test {

namespace {

class WholeRun : public testing::Environment {
public:
    void SetUp() override
    {
        ASSERT_TRUE(SUCCEEDED(OleInitialize(nullptr)));
        ASSERT_NE(LoadLibraryW(libraryPath().c_str()), nullptr) << "error " << GetLastError();
        ASSERT_EQ(callServer("DllRegisterServer"), S_OK);
    }
    void TearDown() override
    {
        pump();
        EXPECT_EQ(canUnload(), S_OK) << "objects of the library are still alive";
        EXPECT_EQ(liveObjects, 0) << "objects of the tests are still held by the library";
        OleUninitialize();
    }
};

const auto* const environment = testing::AddGlobalTestEnvironment(new WholeRun);

} // namespace

} // namespace vela::test
