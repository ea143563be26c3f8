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

class TwoControls {
public:
    TwoControls()
    {
        Automation(first.Get()).put(u"IF_IsEmpty", text(u"vazio um"));
        Automation(second.Get()).put(u"IF_IsEmpty", text(u"vazio dois"));
        IUnknown* selected[] = {first.Get(), second.Get()};
        opened = frame.open(selected, L"dois campos");
        frame.select(geralPage);
    }
    void type(std::u16string_view over, wchar_t letter)
    {
        typeOver(childShowing(frame.window(), over, L"Edit"), letter);
    }
    void press(WPARAM button)
    {
        SendMessageW(frame.window(), WM_COMMAND, button, 0);
        pump();
    }
    [[nodiscard]] std::u16string ofFirst() const { return Automation(first.Get()).textOf(u"IF_IsEmpty"); }
    [[nodiscard]] std::u16string ofSecond() const { return Automation(second.Get()).textOf(u"IF_IsEmpty"); }

    ComPtr<IUnknown> first = create();
    ComPtr<IUnknown> second = create();
    demo::PropertyFrame frame{GetModuleHandleW(nullptr), nullptr};
    bool opened = false;
};

TEST(PropertyFrame, ApplyAndOkWriteTheFirstControlOnly)
{
    const LeakCheck leaks;
    TwoControls on;
    ASSERT_TRUE(on.opened);
    EXPECT_EQ(on.frame.pageCount(), 5U);
    EXPECT_FALSE(on.frame.canApply());
    on.type(u"vazio um", L'n');
    EXPECT_TRUE(on.frame.canApply());
    EXPECT_EQ(on.ofFirst(), u"vazio um");
    on.press(applyButton);
    EXPECT_EQ(on.ofFirst(), u"n");
    EXPECT_FALSE(on.frame.canApply());
    EXPECT_NE(on.frame.window(), nullptr);
    on.type(u"n", L'o');
    on.press(IDOK);
    EXPECT_EQ(on.ofFirst(), u"o");
    EXPECT_EQ(on.ofSecond(), u"vazio dois");
    EXPECT_EQ(on.frame.window(), nullptr);
}

TEST(PropertyFrame, CancelWritesNothing)
{
    const LeakCheck leaks;
    TwoControls on;
    ASSERT_TRUE(on.opened);
    on.type(u"vazio um", L'n');
    on.press(IDCANCEL);
    EXPECT_EQ(on.ofFirst(), u"vazio um");
    EXPECT_EQ(on.frame.window(), nullptr);
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
            EnumChildWindows(frame, countPages, reinterpret_cast<LPARAM>(&pages));
            shown += pages == 1;
        } else {
            KillTimer(nullptr, timer);
            PostMessageW(frame, WM_COMMAND, IDCANCEL, 0);
        }
    }
    static BOOL CALLBACK countPages(HWND window, LPARAM pages)
    {
        wchar_t name[32]{};
        GetClassNameW(window, name, 32);
        *reinterpret_cast<int*>(pages) += std::wcsncmp(name, L"Vela", 4) == 0 && IsWindowVisible(window);
        return TRUE;
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
