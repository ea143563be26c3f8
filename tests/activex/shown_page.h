// A property page in a window of the tests, driven as a frame drives it.
#pragma once

#include "container.h"

#include "activex/guids.h"

#include <gtest/gtest.h>
#include <olectl.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace vela::test {

class PageFrame final : public ComObject<IPropertyPageSite> {
public:
    DWORD status = 0;
    int keys = 0;
    std::function<void()> onStatus; // inside the next change of the status
    HRESULT STDMETHODCALLTYPE OnStatusChange(DWORD flags) override
    {
        status = flags;
        if (const auto act = std::exchange(onStatus, nullptr))
            act();
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
        leave();
        DestroyWindow(window_);
    }
    // As a frame ends: afterwards nobody but the page itself keeps it.
    void leave()
    {
        if (!page)
            return;
        page->Show(SW_HIDE);
        page->Deactivate();
        page->SetObjects(0, nullptr);
        page->SetPageSite(nullptr);
        page.reset();
    }
    [[nodiscard]] HRESULT select(IUnknown* object) const { return page->SetObjects(1, &object); }
    // Types over what stands in a box, as a person does.
    static void type(HWND box, wchar_t letter)
    {
        SendMessageW(box, EM_SETSEL, 0, -1);
        SendMessageW(box, WM_CHAR, letter, 1);
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

} // namespace vela::test
