// The library under test as any host has it, and what is watched while it works.
#pragma once

#include "com_object.h"

#include <functional>
#include <string>
#include <vector>

namespace vela::test {

[[nodiscard]] std::wstring libraryPath(); // "Z:\...\build\win64\Vela.ocx"
[[nodiscard]] HMODULE library();          // in memory, without being kept there; else null

// An entry point of the library, called.
HRESULT callServer(const char* name); // DllRegisterServer ...
HRESULT callInstall(bool install, const wchar_t* commandLine);
[[nodiscard]] HRESULT canUnload();

[[nodiscard]] ComPtr<IUnknown> create(const wchar_t* progId = L"Vela.Vela");

// What looks for the messages of a window: a form, or the frame of a property page.
class Loop {
public:
    virtual void run() = 0; // what waits

protected:
    ~Loop() = default;
};

void pump();                      // until there is no message
void pumpFor(DWORD milliseconds); // timers too

// Closes each message box of this thread as it comes up, with its first button, and keeps what it said.
class AnsweredBoxes : Fixed {
public:
    explicit AnsweredBoxes(std::function<void()> whenUp = {}); // called while the first box stands
    ~AnsweredBoxes();
    [[nodiscard]] static const std::vector<std::u16string>& texts(); // of the boxes since the last was constructed

private:
    Hook hook_;
};

// Fails the test when what the body made is still alive at its end.
class LeakCheck : Fixed {
public:
    LeakCheck();
    ~LeakCheck();

private:
    int objects_;
    bool unloadable_;
};

} // namespace vela::test
