// The library under test, loaded as any host loads it, and registered for the run.
#pragma once

#include "com_object.h"

#include <functional>
#include <string>
#include <vector>

namespace vela::test {

// "Z:\...\build\win64\Vela.ocx"
[[nodiscard]] std::wstring libraryPath();

// An entry point of the library, called.
HRESULT callServer(const char* name); // DllRegisterServer ...
HRESULT callInstall(bool install, const wchar_t* commandLine);
[[nodiscard]] HRESULT canUnload();

[[nodiscard]] ComPtr<IUnknown> create(const wchar_t* progId = L"Vela.Vela");

void pump();                      // until there is no message
void pumpFor(DWORD milliseconds); // timers too

// Closes each message box of this thread as it comes up, with its first button, and keeps what it said.
class AnsweredBoxes {
public:
    explicit AnsweredBoxes(std::function<void()> whenUp = {}); // called while the first box stands
    AnsweredBoxes(const AnsweredBoxes&) = delete;
    AnsweredBoxes& operator=(const AnsweredBoxes&) = delete;
    ~AnsweredBoxes();
    [[nodiscard]] static const std::vector<std::u16string>& texts(); // of the boxes since the last was constructed

private:
    HHOOK hook_;
};

// Fails the test when what the body made is still alive at its end.
class LeakCheck {
public:
    LeakCheck();
    LeakCheck(const LeakCheck&) = delete;
    LeakCheck& operator=(const LeakCheck&) = delete;
    ~LeakCheck();

private:
    int objects_;
    bool unloadable_;
};

} // namespace vela::test
