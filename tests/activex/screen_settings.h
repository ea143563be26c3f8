// Settings of the person's screen, changed for a scope: dots per inch, high contrast; and tests in other processes.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace vela::test {

// The value that processes started from now on read.
class ScreenResolution {
public:
    ScreenResolution();
    ScreenResolution(const ScreenResolution&) = delete;
    ScreenResolution& operator=(const ScreenResolution&) = delete;
    ~ScreenResolution();
    void put(int dpi) const;

private:
    DWORD before_ = 0;
};

// Some tests of a program of the tests in a process of its own, with a variable set; its exit code.
[[nodiscard]] int runTests(const std::string& program, const std::string& filter, const char* variable, int value);
[[nodiscard]] std::string thisProgram(); // its path

class PerMonitorThread {
public:
    PerMonitorThread();
    PerMonitorThread(const PerMonitorThread&) = delete;
    PerMonitorThread& operator=(const PerMonitorThread&) = delete;
    ~PerMonitorThread();

private:
    DPI_AWARENESS_CONTEXT before_;
};
[[nodiscard]] int screenDpi();

// White on black, and the library told that it is high contrast: Wine knows the colours, not the setting.
class HighContrast {
public:
    HighContrast();
    HighContrast(const HighContrast&) = delete;
    HighContrast& operator=(const HighContrast&) = delete;
    ~HighContrast();

    static constexpr COLORREF window = 0x00000000, text = 0x00FFFFFF, frame = 0x0000FFFF, grey = 0x0000FF00,
                              highlight = 0x00FFFF00;

private:
    std::vector<COLORREF> before_;
};

} // namespace vela::test
