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
    LeakCheck leaks_;

public:
    explicit TwoDates(bool errorFocus, bool errorAlert = false)
        : before(plainWindow(L"BUTTON", {10, 200, 210, 224}, form.window())), first(form.addActive()),
          second(form.addActive()), after(plainWindow(L"EDIT", {10, 240, 210, 264}, form.window()))
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
};

inline std::vector<HWND> balloons()
{
    std::vector<HWND> shown;
    eachWindow([&](HWND window) {
        if (IsWindowVisible(window) && isOf(L"tooltips_class32", window))
            shown.push_back(window);
    });
    return shown;
}

} // namespace vela::test
