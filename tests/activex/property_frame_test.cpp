// Property frames on live controls: the demonstration's with Apply, OK and Cancel, and the system's.
#include "shown_page.h"

#include "apps/demo/property_frame.h"
#include "tests/windows/usage.h"

#include <gtest/gtest.h>

#include <commctrl.h>

#include <cwchar>

namespace vela::test {

namespace {

constexpr WPARAM applyButton = 101;
constexpr std::size_t geralPage = 1;

TEST(PropertyFrame, ApplyAndOkWriteTheFirstControlOnlyAndCancelNothing)
{
    const LeakCheck leaks;
    const ComPtr<IUnknown> controls[] = {create(), create()};
    const Automation first(controls[0].Get());
    const Automation second(controls[1].Get());
    demo::PropertyFrame frame{GetModuleHandleW(nullptr), nullptr};
    const auto open = [&] {
        IUnknown* selected[] = {controls[0].Get(), controls[1].Get()};
        ASSERT_TRUE(frame.open(selected, L"dois campos"));
        frame.select(geralPage);
    };
    const auto type = [&](std::u16string_view over, wchar_t letter) {
        typeOver(childShowing(frame.window(), over, L"Edit"), letter);
    };
    const auto press = [&](WPARAM button) {
        SendMessageW(frame.window(), WM_COMMAND, button, 0);
        pump();
    };
    first.put(u"IF_IsEmpty", text(u"vazio um"));
    second.put(u"IF_IsEmpty", text(u"vazio dois"));
    open();
    EXPECT_EQ(frame.pageCount(), 5U);
    EXPECT_FALSE(frame.canApply());
    type(u"vazio um", L'n');
    EXPECT_TRUE(frame.canApply());
    EXPECT_EQ(first.textOf(u"IF_IsEmpty"), u"vazio um");
    press(applyButton);
    EXPECT_EQ(first.textOf(u"IF_IsEmpty"), u"n");
    EXPECT_FALSE(frame.canApply());
    EXPECT_NE(frame.window(), nullptr);
    type(u"n", L'o');
    press(IDOK);
    EXPECT_EQ(first.textOf(u"IF_IsEmpty"), u"o");
    EXPECT_EQ(second.textOf(u"IF_IsEmpty"), u"vazio dois");
    EXPECT_EQ(frame.window(), nullptr);
    open();
    type(u"o", L'c');
    press(IDCANCEL);
    EXPECT_EQ(first.textOf(u"IF_IsEmpty"), u"o");
    EXPECT_EQ(frame.window(), nullptr);
}

// VELA_TEST_COUNT=1000 takes minutes.
TEST(PropertyFrame, OpenedAndClosedManyTimes)
{
    const LeakCheck leaks;
    const ComPtr<IUnknown> control = create();
    const int rounds = asked("VELA_TEST_COUNT", 6);
    const auto once = [&] {
        demo::PropertyFrame frame(GetModuleHandleW(nullptr), nullptr);
        IUnknown* selected[] = {control.Get()};
        ASSERT_TRUE(frame.open(selected, L"campo"));
        for (std::size_t page = 0; page < frame.pageCount(); ++page)
            frame.select(page);
        frame.close();
        pump();
    };
    for (int round = 0; round < 3; ++round)
        once();
    const Usage before;
    for (int round = 0; round < rounds; ++round)
        once();
    expectFlat(before, Usage(), 512 * 1024);
}

// The system's own frame has every page; it is looked through and cancelled from a timer.
struct FrameVisit {
    static inline int tabs = 0;
    static inline int shown = 0; // pages that had a window
    static inline int next = 0;

    static void CALLBACK step(HWND, UINT, UINT_PTR timer, DWORD)
    {
        const HWND frame = GetActiveWindow();
        const HWND strip = frame ? FindWindowExW(frame, nullptr, WC_TABCONTROLW, nullptr) : nullptr;
        if (!strip)
            return;
        tabs = static_cast<int>(SendMessageW(strip, TCM_GETITEMCOUNT, 0, 0));
        if (next < tabs) {
            SendMessageW(strip, TCM_SETCURFOCUS, static_cast<WPARAM>(next++), 0);
            int pages = 0;
            eachInside(frame, [&](HWND window) {
                wchar_t name[32]{};
                GetClassNameW(window, name, 32);
                pages += std::wcsncmp(name, L"Vela", 4) == 0 && IsWindowVisible(window);
            });
            shown += pages == 1;
        } else {
            KillTimer(nullptr, timer);
            PostMessageW(frame, WM_COMMAND, IDCANCEL, 0);
        }
    }
};

TEST(PropertyFrame, TheSystemsShowsAllPages)
{
    const LeakCheck leaks;
    const ComPtr<IUnknown> control = create();
    SetTimer(nullptr, 0, 50, FrameVisit::step);
    EXPECT_EQ(query<IOleObject>(control.Get())->DoVerb(OLEIVERB_PROPERTIES, nullptr, nullptr, 0, nullptr, nullptr),
              S_OK);
    EXPECT_EQ(FrameVisit::tabs, 5);
    EXPECT_EQ(FrameVisit::shown, 5);
}

} // namespace

} // namespace vela::test
