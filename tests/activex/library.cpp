// Loading and registering Vela.ocx for all tests of the program.
#include "library.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cwchar>
#include <utility>

namespace vela::test {

namespace {

HMODULE module = nullptr;

std::wstring windowsPath(const char* name)
{
    std::string path = std::string(VELA_BINARY_DIR) + "/" + name;
    if (path.front() == '/')
        path = "Z:" + path;
    std::replace(path.begin(), path.end(), '/', '\\');
    return {path.begin(), path.end()};
}

template <class Function>
Function entry(const char* name)
{
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

class WholeRun : public testing::Environment {
public:
    void SetUp() override
    {
        ASSERT_TRUE(SUCCEEDED(OleInitialize(nullptr)));
        module = LoadLibraryW(libraryPath().c_str());
        ASSERT_NE(module, nullptr) << "error " << GetLastError();
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

std::wstring libraryPath()
{
    return windowsPath("Vela.ocx");
}

HRESULT callServer(const char* name)
{
    const auto function = entry<HRESULT(STDAPICALLTYPE*)()>(name);
    return function ? function() : E_NOTIMPL;
}

HRESULT callInstall(bool install, const wchar_t* commandLine)
{
    const auto function = entry<HRESULT(STDAPICALLTYPE*)(BOOL, const wchar_t*)>("DllInstall");
    return function ? function(install, commandLine) : E_NOTIMPL;
}

HRESULT canUnload()
{
    return callServer("DllCanUnloadNow");
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
    pumpFor(30); // the shortest timer is 10 ms
}

void pumpFor(DWORD milliseconds)
{
    const DWORD start = GetTickCount();
    MSG message;
    do {
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 5, QS_ALLINPUT);
    } while (GetTickCount() - start < milliseconds);
}

namespace {

std::vector<std::u16string> boxTexts;
std::function<void()> boxAct;

// The last static of a box is its text, the first may be its icon.
BOOL CALLBACK takeText(HWND child, LPARAM)
{
    wchar_t name[16]{};
    wchar_t text[256]{};
    GetClassNameW(child, name, 16);
    GetWindowTextW(child, text, 256);
    if (lstrcmpiW(name, L"Static") == 0 && *text)
        boxTexts.emplace_back(asText(text));
    return TRUE;
}

LRESULT CALLBACK answerBox(int code, WPARAM window, LPARAM detail)
{
    wchar_t name[16]{};
    if (code == HCBT_ACTIVATE && GetClassNameW(reinterpret_cast<HWND>(window), name, 16) &&
        lstrcmpW(name, L"#32770") == 0) {
        const HWND box = reinterpret_cast<HWND>(window);
        EnumChildWindows(box, takeText, 0);
        PostMessageW(box, WM_COMMAND, IDOK, 0);
        if (const auto act = std::exchange(boxAct, nullptr))
            act();
    }
    return CallNextHookEx(nullptr, code, window, detail);
}

} // namespace

AnsweredBoxes::AnsweredBoxes(std::function<void()> whenUp)
    : hook_(SetWindowsHookExW(WH_CBT, answerBox, nullptr, GetCurrentThreadId()))
{
    boxTexts.clear();
    boxAct = std::move(whenUp);
}

AnsweredBoxes::~AnsweredBoxes()
{
    UnhookWindowsHookEx(hook_);
    boxAct = nullptr;
}

const std::vector<std::u16string>& AnsweredBoxes::texts()
{
    return boxTexts;
}

LeakCheck::LeakCheck() : objects_(liveObjects), unloadable_(canUnload() == S_OK) {}

LeakCheck::~LeakCheck()
{
    pump();
    EXPECT_EQ(liveObjects, objects_);
    EXPECT_EQ(canUnload() == S_OK, unloadable_);
}

} // namespace vela::test
