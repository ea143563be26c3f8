// The registry's resolution, a child process, and the library's own question about high contrast answered.
#include "screen_settings.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>
#include <iterator>

namespace vela::test {

namespace {

constexpr wchar_t desktopKey[] = L"Control Panel\\Desktop";
constexpr wchar_t resolutionValue[] = L"LogPixels";

constexpr int elements[] = {COLOR_WINDOW,  COLOR_WINDOWTEXT, COLOR_WINDOWFRAME, COLOR_GRAYTEXT,
                            COLOR_BTNFACE, COLOR_BTNTEXT,    COLOR_HIGHLIGHT};
constexpr COLORREF contrasts[] = {HighContrast::window, HighContrast::text, HighContrast::frame,    HighContrast::grey,
                                  HighContrast::window, HighContrast::text, HighContrast::highlight};
static_assert(std::size(elements) == std::size(contrasts));

using Ask = BOOL(WINAPI*)(UINT, UINT, void*, UINT);
Ask* asked = nullptr; // where the library keeps the function's address
Ask original = nullptr;

BOOL WINAPI answerContrast(UINT action, UINT size, void* result, UINT flags)
{
    if (action != SPI_GETHIGHCONTRAST)
        return original(action, size, result, flags);
    static_cast<HIGHCONTRASTW*>(result)->dwFlags = HCF_HIGHCONTRASTON;
    return TRUE;
}

template <class Part>
Part* partOf(HMODULE module, DWORD offset)
{
    return reinterpret_cast<Part*>(reinterpret_cast<BYTE*>(module) + offset);
}

// The slot that holds an imported function's address.
Ask* importOf(HMODULE module, const char* name)
{
    const auto* const header =
        partOf<IMAGE_NT_HEADERS>(module, static_cast<DWORD>(partOf<IMAGE_DOS_HEADER>(module, 0)->e_lfanew));
    const DWORD table = header->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    for (auto* library = partOf<IMAGE_IMPORT_DESCRIPTOR>(module, table); library->Name; ++library) {
        auto* names = partOf<IMAGE_THUNK_DATA>(module, library->OriginalFirstThunk);
        auto* slots = partOf<Ask>(module, library->FirstThunk);
        for (; names->u1.AddressOfData; ++names, ++slots)
            if (!IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal) &&
                std::strcmp(partOf<IMAGE_IMPORT_BY_NAME>(module, static_cast<DWORD>(names->u1.AddressOfData))->Name,
                            name) == 0)
                return slots;
    }
    return nullptr;
}

void putImport(Ask* slot, Ask function)
{
    DWORD before = 0;
    VirtualProtect(slot, sizeof *slot, PAGE_READWRITE, &before);
    *slot = function;
    VirtualProtect(slot, sizeof *slot, before, &before);
}

} // namespace

ScreenResolution::ScreenResolution()
{
    DWORD size = sizeof before_;
    RegGetValueW(HKEY_CURRENT_USER, desktopKey, resolutionValue, RRF_RT_REG_DWORD, nullptr, &before_, &size);
}

ScreenResolution::~ScreenResolution()
{
    if (before_)
        put(static_cast<int>(before_));
    else
        RegDeleteKeyValueW(HKEY_CURRENT_USER, desktopKey, resolutionValue);
}

void ScreenResolution::put(int dpi) const
{
    const auto value = static_cast<DWORD>(dpi);
    ASSERT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, desktopKey, resolutionValue, REG_DWORD, &value, sizeof value),
              ERROR_SUCCESS);
}

// What the child prints is shown only when it fails: the program's own totals stay the only ones.
int runTests(const std::string& program, const std::string& filter, const char* variable, int value)
{
    SetEnvironmentVariableA(variable, std::to_string(value).c_str());
    std::FILE* const child = _popen(("\"" + program + "\" --gtest_filter=" + filter).c_str(), "r");
    SetEnvironmentVariableA(variable, nullptr);
    if (!child)
        return -1;
    std::string printed;
    char piece[256];
    while (std::fgets(piece, sizeof piece, child))
        printed += piece;
    const int code = _pclose(child);
    const bool ran = printed.find("[  PASSED  ]") != std::string::npos && printed.find("SKIPPED") == std::string::npos;
    if (code != 0 || !ran)
        ADD_FAILURE() << printed;
    return code;
}

std::string thisProgram()
{
    char program[MAX_PATH]{};
    GetModuleFileNameA(nullptr, program, MAX_PATH);
    return program;
}

PerMonitorThread::PerMonitorThread() : before_(SetThreadDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE)) {}

PerMonitorThread::~PerMonitorThread()
{
    SetThreadDpiAwarenessContext(before_);
}

int screenDpi()
{
    return static_cast<int>(GetDpiForSystem());
}

HighContrast::HighContrast()
{
    for (const int element : elements)
        before_.push_back(GetSysColor(element));
    SetSysColors(static_cast<int>(std::size(elements)), elements, contrasts);
    asked = importOf(GetModuleHandleW(L"Vela.ocx"), "SystemParametersInfoW");
    if (!asked) {
        ADD_FAILURE() << "the library does not ask";
        return;
    }
    original = *asked;
    putImport(asked, &answerContrast);
}

HighContrast::~HighContrast()
{
    if (asked)
        putImport(asked, original);
    SetSysColors(static_cast<int>(std::size(elements)), elements, before_.data());
}

} // namespace vela::test
