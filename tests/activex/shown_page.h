// A property page in a window of the tests, driven as a frame drives it.
#pragma once

#include "person.h"

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
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG*) override { return S_FALSE; }
};

// The window inside another, at any depth, that shows this text.
[[nodiscard]] inline HWND childShowing(HWND parent, std::u16string_view text, const wchar_t* windowClass)
{
    HWND found = nullptr;
    eachInside(parent, [&](HWND child) {
        if (!found && isOf(windowClass, child) && shownBy(child) == text)
            found = child;
    });
    return found;
}

// Types over what stands in a box, as a person does.
inline void typeOver(HWND box, wchar_t letter)
{
    ASSERT_NE(box, nullptr);
    SendMessageW(box, EM_SETSEL, 0, -1);
    SendMessageW(box, WM_CHAR, letter, 1);
}

class ShownPage final : Fixed, public Loop {
public:
    explicit ShownPage(const CLSID& id, std::vector<IUnknown*> objects)
        : window_(CreateWindowExW(WS_EX_CONTROLPARENT, L"STATIC", nullptr, WS_POPUP, 0, 0, 500, 500, nullptr, nullptr,
                                  nullptr, nullptr)),
          button_(plainWindow(L"BUTTON", {400, 460, 480, 484}, window_, L"Fechar"))
    {
        ShowWindow(window_, SW_SHOWNOACTIVATE);
        EXPECT_EQ(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&page)), S_OK);
        EXPECT_EQ(page->SetPageSite(frame.Get()), S_OK);
        PROPPAGEINFO info{};
        info.cb = sizeof info;
        EXPECT_EQ(page->GetPageInfo(&info), S_OK);
        CoTaskMemFree(info.pszTitle);
        EXPECT_EQ(page->SetObjects(static_cast<ULONG>(objects.size()), objects.data()), S_OK);
        const RECT place{0, 0, info.size.cx, info.size.cy};
        EXPECT_EQ(page->Activate(window_, &place, FALSE), S_OK);
        EXPECT_EQ(page->Show(SW_SHOW), S_OK);
    }
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
        page.Reset();
    }
    [[nodiscard]] HRESULT select(IUnknown* object) const { return page->SetObjects(1, &object); }
    [[nodiscard]] HWND find(const wchar_t* windowClass, std::u16string_view text) const
    {
        return childShowing(window_, text, windowClass);
    }
    [[nodiscard]] HWND window() const { return window_; }
    [[nodiscard]] HWND button() const { return button_; } // of the frame, beside the page
    // What waits goes to the page first, then to the dialog's keys.
    void run() override
    {
        MSG message{};
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            const bool key = message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST;
            if ((key && page && page->TranslateAccelerator(&message) == S_OK) || IsDialogMessageW(window_, &message))
                continue;
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }

    ComPtr<IPropertyPage2> page;
    ComPtr<PageFrame> frame = make<PageFrame>();

private:
    HWND window_;
    HWND button_;
};

} // namespace vela::test
