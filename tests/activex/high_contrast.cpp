// The library's own question about high contrast answered.
#include "high_contrast.h"

#include <gtest/gtest.h>

#include <cstring>
#include <iterator>

namespace vela::test {

namespace {

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
