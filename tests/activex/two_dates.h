// A form with two date fields that hold a wrong entry each, between two plain controls; and the balloons on the screen.
#pragma once

#include "person.h"

#include <gtest/gtest.h>

#include <vector>

namespace vela::test {

inline constexpr COLORREF wrongColour = 0x000000C8;

// In the order of the Tab key: a push button, two date fields with a wrong entry each, and a plain edit window.
enum Place { buttonBefore, firstField, secondField, boxAfter };

class TwoDates {
public:
    explicit TwoDates(bool errorFocus, bool errorAlert = false)
        : before(plain(L"BUTTON", 200)), first(form.addActive()), second(form.addActive()), after(plain(L"EDIT", 240))
    {
        for (Site* const site : {&first, &second}) {
            makeDate(*site, u"1_/__/____");
            site->automation().set({{u"Error_ForeColor", static_cast<std::int32_t>(wrongColour)},
                                    {u"ForeColor_GotFocus", 0x00008000},
                                    {u"ErrorFocus", errorFocus},
                                    {u"Appearance", 0},
                                    {u"ErrorAlert", errorAlert},
                                    {u"ErrorMsgCustom", errorAlert && errorFocus},
                                    {u"ErrorTextMessage", u"Corrija a data"}});
        }
    }

    void enter(Site& site)
    {
        form.focus(site);
        settle(form);
        ASSERT_EQ(GetFocus(), site.edit());
        clearLogs();
    }
    void clearLogs()
    {
        first.log.clear();
        second.log.clear();
    }
    [[nodiscard]] HWND at(Place place) const
    {
        const HWND windows[] = {before, first.edit(), second.edit(), after};
        return windows[place];
    }
    [[nodiscard]] Site* fieldAt(Place place) const
    {
        Site* const fields[] = {nullptr, &first, &second, nullptr};
        return fields[place];
    }

    Form form;
    const HWND before;
    Site& first;
    Site& second;
    const HWND after;

private:
    HWND plain(const wchar_t* kind, int top)
    {
        return CreateWindowExW(0, kind, L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 10, top, 200, 24, form.window(),
                               nullptr, nullptr, nullptr);
    }
};

inline BOOL CALLBACK takeBalloon(HWND window, LPARAM into)
{
    wchar_t name[32]{};
    GetClassNameW(window, name, 32);
    if (IsWindowVisible(window) && lstrcmpiW(name, L"tooltips_class32") == 0)
        reinterpret_cast<std::vector<HWND>*>(into)->push_back(window);
    return TRUE;
}

inline std::vector<HWND> balloonWindows()
{
    std::vector<HWND> shown;
    EnumThreadWindows(GetCurrentThreadId(), takeBalloon, reinterpret_cast<LPARAM>(&shown));
    return shown;
}

inline int balloons()
{
    return static_cast<int>(balloonWindows().size());
}

inline HWND balloonShown()
{
    const auto shown = balloonWindows();
    return shown.empty() ? nullptr : shown.front();
}

} // namespace vela::test
