// The property pages through a frame of the tests and through the system's: shown, changed, applied.
#include "shown_page.h"

#include "tests/windows/usage.h"

#include <commctrl.h>

#include <cwchar>

namespace vela::test {

namespace {

const CLSID allPages[] = {activex::principalPage, activex::geralPage, activex::errosPage, activex::fontePage,
                          activex::calendarioPage};

TEST(Pages, EachIsShownWithItsTitleAndFitsItsSize)
{
    const LeakCheck leaks;
    const ComPtr<IUnknown> control = create();
    for (const CLSID& id : allPages) {
        const ShownPage shown(id, {control.get()});
        EXPECT_FALSE(shown.title.empty());
        EXPECT_GT(shown.size.cx, 100);
        EXPECT_LT(shown.size.cx, 500);
        EXPECT_EQ(shown.page->IsPageDirty(), S_FALSE);
        EXPECT_NE(GetWindow(shown.window(), GW_CHILD), nullptr);
    }
}

TEST(Pages, AChangeIsReportedAndAppliedToTheFirstControlOnly)
{
    const LeakCheck leaks;
    const ComPtr<IUnknown> first = create();
    const ComPtr<IUnknown> second = create();
    Automation(first.get()).put(u"IF_IsEmpty", text(u"vazio um"));
    Automation(second.get()).put(u"IF_IsEmpty", text(u"vazio dois"));
    const ShownPage shown(activex::geralPage, {first.get(), second.get()});
    const HWND box = shown.find(L"EDIT", L"vazio um");
    ASSERT_NE(box, nullptr) << "loaded from the first control";
    EXPECT_EQ(shown.page->IsPageDirty(), S_FALSE);
    ShownPage::type(box, L'n');
    EXPECT_EQ(shown.page->IsPageDirty(), S_OK);
    EXPECT_EQ(shown.frame->status, static_cast<DWORD>(PROPPAGESTATUS_DIRTY));
    EXPECT_EQ(Automation(first.get()).textOf(u"IF_IsEmpty"), u"vazio um") << "not before it is applied";
    EXPECT_EQ(shown.page->Apply(), S_OK);
    EXPECT_EQ(shown.page->IsPageDirty(), S_FALSE);
    EXPECT_EQ(Automation(first.get()).textOf(u"IF_IsEmpty"), u"n");
    EXPECT_EQ(Automation(second.get()).textOf(u"IF_IsEmpty"), u"vazio dois");
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

TEST(Pages, TheSystemsFrameShowsThemAll)
{
    const LeakCheck leaks;
    const ComPtr<IUnknown> control = create();
    SetTimer(nullptr, 0, 50, FrameVisit::step);
    EXPECT_EQ(
        ComPtr<IOleObject>::from(control.get())->DoVerb(OLEIVERB_PROPERTIES, nullptr, nullptr, 0, nullptr, nullptr),
        S_OK);
    EXPECT_EQ(FrameVisit::tabs, 5);
    EXPECT_EQ(FrameVisit::shown, 5);
}

TEST(Pages, OpenedAndClosedManyTimes)
{
    const LeakCheck leaks;
    const ComPtr<IUnknown> control = create();
    const auto once = [&](int round) { const ShownPage shown(allPages[round % 5], {control.get()}); };
    for (int round = 0; round < 10; ++round)
        once(round);
    const Usage before;
    for (int round = 0; round < 50; ++round)
        once(round);
    expectFlat(before, Usage(), 512 * 1024);
}

} // namespace

} // namespace vela::test
