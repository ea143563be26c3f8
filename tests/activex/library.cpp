// Calling Vela.ocx, and answering what it asks a person.
#include "library.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

namespace vela::test {

namespace {

template <class Function>
Function entry(const char* name)
{
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library(), name)));
}

std::vector<std::u16string> boxTexts;
std::function<void()> boxAct;

LRESULT CALLBACK answerBox(int code, WPARAM window, LPARAM detail)
{
    const HWND box = reinterpret_cast<HWND>(window);
    if (code == HCBT_ACTIVATE && isOf(L"#32770", box)) {
        eachInside(box, [](HWND child) { // the last static is its text, the first may be its icon
            wchar_t text[256]{};
            if (isOf(L"Static", child) && GetWindowTextW(child, text, 256))
                boxTexts.emplace_back(asText(text));
        });
        PostMessageW(box, WM_COMMAND, IDOK, 0);
        if (const auto act = std::exchange(boxAct, nullptr))
            act();
    }
    return CallNextHookEx(nullptr, code, window, detail);
}

} // namespace

std::wstring libraryPath()
{
    std::string path = std::string(VELA_BINARY_DIR) + "/Vela.ocx";
    if (path.front() == '/')
        path = "Z:" + path;
    std::replace(path.begin(), path.end(), '/', '\\');
    return {path.begin(), path.end()};
}

HMODULE library()
{
    return GetModuleHandleW(L"Vela.ocx");
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

AnsweredBoxes::AnsweredBoxes(std::function<void()> whenUp) : hook_(WH_CBT, answerBox)
{
    boxTexts.clear();
    boxAct = std::move(whenUp);
}

AnsweredBoxes::~AnsweredBoxes()
{
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
