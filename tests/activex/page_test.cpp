// The property pages one by one, and all of them in the system's own frame.
#include "shown_page.h"

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

} // namespace

} // namespace vela::test
