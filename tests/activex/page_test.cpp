// The property pages through a frame of the tests: shown, changed, applied, refused, with bad selections.
#include "container.h"

#include "activex/guids.h"

#include <commctrl.h>
#include <gtest/gtest.h>
#include <olectl.h>

#include <cwchar>

namespace vela::test {

namespace {

struct PageName {
    const CLSID& id;
    const wchar_t* title;
};

class PageFrame final : public ComObject<IPropertyPageSite> {
public:
    DWORD status = 0;
    int keys = 0;
    HRESULT STDMETHODCALLTYPE OnStatusChange(DWORD flags) override
    {
        status = flags;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetLocaleID(LCID* locale) override
    {
        *locale = GetUserDefaultLCID();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetPageContainer(IUnknown**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG*) override
    {
        ++keys;
        return S_FALSE;
    }
};

// One page in a window, as a frame drives it.
class ShownPage {
public:
    explicit ShownPage(const CLSID& id, std::vector<IUnknown*> objects)
    {
        window_ = CreateWindowExW(WS_EX_CONTROLPARENT, L"STATIC", nullptr, WS_POPUP, 0, 0, 500, 500, nullptr, nullptr,
                                  nullptr, nullptr);
        ShowWindow(window_, SW_SHOWNOACTIVATE);
        EXPECT_EQ(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IPropertyPage2, page.putVoid()), S_OK);
        EXPECT_EQ(page->SetPageSite(frame.get()), S_OK);
        PROPPAGEINFO info{};
        info.cb = sizeof info;
        EXPECT_EQ(page->GetPageInfo(&info), S_OK);
        size = info.size;
        title = info.pszTitle;
        CoTaskMemFree(info.pszTitle);
        EXPECT_EQ(page->SetObjects(static_cast<ULONG>(objects.size()), objects.data()), S_OK);
        const RECT place{0, 0, size.cx, size.cy};
        EXPECT_EQ(page->Activate(window_, &place, FALSE), S_OK);
        EXPECT_EQ(page->Show(SW_SHOW), S_OK);
    }
    ShownPage(const ShownPage&) = delete;
    ShownPage& operator=(const ShownPage&) = delete;
    ~ShownPage()
    {
        page->Show(SW_HIDE);
        page->Deactivate();
        page->SetObjects(0, nullptr);
        page->SetPageSite(nullptr);
        page.reset();
        DestroyWindow(window_);
    }
    // The child window that shows this text, anywhere in the page.
    [[nodiscard]] HWND find(const wchar_t* windowClass, const wchar_t* text) const
    {
        Search search{windowClass, text, nullptr};
        EnumChildWindows(window_, look, reinterpret_cast<LPARAM>(&search));
        return search.found;
    }
    [[nodiscard]] HWND window() const { return window_; }

    ComPtr<IPropertyPage2> page;
    ComPtr<PageFrame> frame = make<PageFrame>();
    SIZE size{};
    std::wstring title;

private:
    struct Search {
        const wchar_t* windowClass;
        const wchar_t* text;
        HWND found;
    };
    static BOOL CALLBACK look(HWND window, LPARAM given)
    {
        auto& search = *reinterpret_cast<Search*>(given);
        wchar_t name[64]{};
        wchar_t text[128]{};
        GetClassNameW(window, name, 64);
        GetWindowTextW(window, text, 128);
        if (lstrcmpiW(name, search.windowClass) != 0 || lstrcmpW(text, search.text) != 0)
            return TRUE;
        search.found = window;
        return FALSE;
    }
    HWND window_;
};

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
    SendMessageW(box, EM_SETSEL, 0, -1);
    SendMessageW(box, WM_CHAR, L'n', 1);
    EXPECT_EQ(shown.page->IsPageDirty(), S_OK);
    EXPECT_EQ(shown.frame->status, static_cast<DWORD>(PROPPAGESTATUS_DIRTY));
    EXPECT_EQ(Automation(first.get()).textOf(u"IF_IsEmpty"), u"vazio um") << "not before it is applied";
    EXPECT_EQ(shown.page->Apply(), S_OK);
    EXPECT_EQ(shown.page->IsPageDirty(), S_FALSE);
    EXPECT_EQ(Automation(first.get()).textOf(u"IF_IsEmpty"), u"n");
    EXPECT_EQ(Automation(second.get()).textOf(u"IF_IsEmpty"), u"vazio dois");
}

TEST(Pages, BadSelectionsAreRefusedAndThePageStaysUsable)
{
    const LeakCheck leaks;
    const ComPtr<IUnknown> control = create();
    const ComPtr<IUnknown> calendar = create(L"Vela.cCalendar");
    {
        const ShownPage shown(activex::fontePage, {control.get()});
        IUnknown* other[] = {calendar.get()};
        EXPECT_EQ(shown.page->SetObjects(1, other), static_cast<HRESULT>(0x800A01B6)) << "438: it lacks the properties";
        IUnknown* again[] = {control.get()};
        EXPECT_EQ(shown.page->SetObjects(1, again), S_OK);
        EXPECT_EQ(shown.page->Apply(), S_OK);
        EXPECT_EQ(shown.page->SetObjects(0, nullptr), S_OK);
        EXPECT_EQ(shown.page->Apply(), E_UNEXPECTED);
        EXPECT_EQ(shown.page->SetObjects(1, nullptr), E_POINTER);
    }
    ComPtr<IPropertyPage2> idle;
    ASSERT_EQ(CoCreateInstance(activex::fontePage, nullptr, CLSCTX_INPROC_SERVER, IID_IPropertyPage2, idle.putVoid()),
              S_OK);
    EXPECT_EQ(idle->Show(SW_SHOW), E_UNEXPECTED);
    EXPECT_EQ(idle->Apply(), E_UNEXPECTED);
    EXPECT_EQ(idle->IsPageDirty(), S_FALSE);
    EXPECT_EQ(idle->Deactivate(), S_OK);
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

TEST(Pages, AControlDestroyedWhileItsPageIsOpen)
{
    const AnsweredBoxes boxes;
    const LeakCheck leaks;
    Form form;
    Site& site = form.addActive();
    const ShownPage shown(activex::fontePage, {site.control()});
    site.close();
    const HRESULT applied = shown.page->Apply();
    EXPECT_TRUE(applied == S_OK || FAILED(applied));
}

TEST(Pages, AreOpenedOnOneProperty)
{
    const ComPtr<IUnknown> control = create();
    const Automation field(control.get());
    const ShownPage shown(activex::fontePage, {control.get()});
    EXPECT_EQ(shown.page->EditProperty(*field.id(u"FontSize")), S_OK);
    EXPECT_EQ(shown.page->EditProperty(*field.id(u"Mask")), E_INVALIDARG) << "another page's";
    EXPECT_EQ(shown.page->EditProperty(4711), E_INVALIDARG);
}

TEST(Pages, OpenedAndClosedManyTimes)
{
    const LeakCheck leaks;
    const ComPtr<IUnknown> control = create();
    const auto once = [&](int round) { const ShownPage shown(allPages[round % 5], {control.get()}); };
    for (int round = 0; round < 10; ++round)
        once(round);
    const DWORD windows = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
    const DWORD drawing = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
    for (int round = 0; round < 50; ++round)
        once(round);
    EXPECT_LE(GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS), windows + 2);
    EXPECT_LE(GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS), drawing + 2);
}

} // namespace

} // namespace vela::test
