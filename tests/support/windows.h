// What tests on Windows need everywhere: scopes, windows looked for, the clipboard, and what a reader program hears.
#pragma once

#include <windows.h>

#include <oleacc.h>

#include <string>
#include <string_view>
#include <utility>

namespace vela::test {

// Neither copied nor moved.
class Fixed {
public:
    Fixed(const Fixed&) = delete;
    Fixed& operator=(const Fixed&) = delete;

protected:
    Fixed() = default;
    ~Fixed() = default;
};

// Undoes something when its scope ends.
template <class Act>
class AtEnd : Fixed {
public:
    explicit AtEnd(Act act) : act_(std::move(act)) {}
    ~AtEnd() { act_(); }

private:
    Act act_;
};

// Of this thread, as long as it lives.
class Hook : Fixed {
public:
    Hook(int kind, HOOKPROC procedure) : hook_(SetWindowsHookExW(kind, procedure, nullptr, GetCurrentThreadId())) {}
    ~Hook() { UnhookWindowsHookEx(hook_); }

private:
    HHOOK hook_;
};

[[nodiscard]] inline bool isOf(const wchar_t* windowClass, HWND window)
{
    wchar_t name[64]{};
    return GetClassNameW(window, name, 64) && lstrcmpiW(name, windowClass) == 0;
}

template <class Act>
BOOL CALLBACK actOn(HWND window, LPARAM act)
{
    (*reinterpret_cast<Act*>(act))(window);
    return TRUE;
}

template <class Act>
void eachWindow(Act act) // of this thread
{
    EnumThreadWindows(GetCurrentThreadId(), actOn<Act>, reinterpret_cast<LPARAM>(&act));
}

template <class Act>
void eachInside(HWND window, Act act) // at any depth
{
    EnumChildWindows(window, actOn<Act>, reinterpret_cast<LPARAM>(&act));
}

inline void putClipboard(std::u16string_view text)
{
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, (text.size() + 1) * sizeof(char16_t));
    CopyMemory(GlobalLock(memory), text.data(), text.size() * sizeof(char16_t));
    GlobalUnlock(memory);
    if (!OpenClipboard(nullptr))
        return;
    EmptyClipboard();
    SetClipboardData(CF_UNICODETEXT, memory);
    CloseClipboard();
}

[[nodiscard]] inline std::u16string clipboard()
{
    if (!OpenClipboard(nullptr))
        return u"?";
    std::u16string text;
    if (const HANDLE memory = GetClipboardData(CF_UNICODETEXT)) {
        text = static_cast<const char16_t*>(GlobalLock(memory));
        GlobalUnlock(memory);
    }
    CloseClipboard();
    return text;
}

// Null when nobody answers; released by the caller.
[[nodiscard]] inline IAccessible* readerOf(HWND window)
{
    using FromWindow = HRESULT(WINAPI*)(HWND, DWORD, REFIID, void**);
    const auto fromWindow = reinterpret_cast<FromWindow>(
        reinterpret_cast<void*>(GetProcAddress(LoadLibraryW(L"oleacc.dll"), "AccessibleObjectFromWindow")));
    void* found = nullptr;
    return fromWindow(window, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible), &found) == S_OK
               ? static_cast<IAccessible*>(found)
               : nullptr;
}

[[nodiscard]] inline std::wstring heardOf(IAccessible& reader, LONG child = CHILDID_SELF)
{
    VARIANT number{};
    number.vt = VT_I4;
    number.lVal = child;
    BSTR name = nullptr;
    reader.get_accName(number, &name);
    std::wstring heard = name ? name : L"";
    SysFreeString(name);
    return heard;
}

} // namespace vela::test
