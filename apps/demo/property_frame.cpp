// The property frame: page sites, tabs and the three buttons.
#include "apps/demo/property_frame.h"

#include <commctrl.h>

#include <algorithm>
#include <exception>
#include <utility>

namespace vela::demo {

namespace {

constexpr wchar_t windowClassName[] = L"VelaPropertyFrame";
constexpr int edge = 8, tabHeight = 24, buttonWidth = 84, buttonHeight = 26;
enum ButtonId { applyId = 101, tabsId = 102 };

class PageSite final : public CountedObject<IPropertyPageSite> {
public:
    explicit PageSite(PropertyFrame* frame) : frame_(frame) {}
    void forget() noexcept { frame_ = nullptr; }

    STDMETHODIMP OnStatusChange(DWORD flags) override
    {
        if (frame_)
            frame_->pageStatusChanged(flags);
        return S_OK;
    }
    STDMETHODIMP GetLocaleID(LCID* locale) override
    {
        if (!locale)
            return E_POINTER;
        *locale = GetUserDefaultLCID();
        return S_OK;
    }
    STDMETHODIMP GetPageContainer(IUnknown** container) override
    {
        if (container)
            *container = nullptr;
        return E_NOTIMPL;
    }
    STDMETHODIMP TranslateAccelerator(MSG*) override { return S_FALSE; }

private:
    PropertyFrame* frame_;
};

} // namespace

// One page of the frame, with its site; shown at most once at a time.
class PageSlot {
public:
    PageSlot(ComPtr<IPropertyPage> page, PropertyFrame& frame) : page_(std::move(page)), site_(make<PageSite>(&frame))
    {
        page_->SetPageSite(site_.Get());
        PROPPAGEINFO info{};
        info.cb = sizeof info;
        if (SUCCEEDED(page_->GetPageInfo(&info))) {
            size_ = info.size;
            if (info.pszTitle)
                title_ = info.pszTitle;
            CoTaskMemFree(info.pszTitle);
            CoTaskMemFree(info.pszDocString);
            CoTaskMemFree(info.pszHelpFile);
        }
    }
    PageSlot(const PageSlot&) = delete;
    PageSlot& operator=(const PageSlot&) = delete;
    ~PageSlot()
    {
        site_->forget();
        if (active_)
            page_->Deactivate();
        page_->SetObjects(0, nullptr);
        page_->SetPageSite(nullptr);
    }

    void show(HWND parent, const RECT& place)
    {
        if (!active_)
            active_ = SUCCEEDED(page_->Activate(parent, &place, TRUE));
        if (active_)
            page_->Show(SW_SHOW);
    }
    void hide()
    {
        if (active_)
            page_->Show(SW_HIDE);
    }
    [[nodiscard]] IPropertyPage* page() const noexcept { return page_.Get(); }
    [[nodiscard]] const std::wstring& title() const noexcept { return title_; }
    [[nodiscard]] SIZE size() const noexcept { return size_; }

private:
    ComPtr<IPropertyPage> page_;
    ComPtr<PageSite> site_;
    std::wstring title_;
    SIZE size_{};
    bool active_ = false;
};

PropertyFrame::PropertyFrame(HINSTANCE instance, HWND owner) : instance_(instance), owner_(owner)
{
    HDC screen = GetDC(nullptr);
    dpi_ = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    font_ = CreateFontW(-MulDiv(8, dpi_, 72), 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, L"Tahoma");
}

PropertyFrame::~PropertyFrame()
{
    close();
    if (font_)
        DeleteObject(font_);
}

bool PropertyFrame::open(std::span<IUnknown* const> objects, const std::wstring& title)
{
    if (objects.empty() || !loadPages(objects))
        return false;
    createWindow(title);
    if (!window_)
        return false;
    select(0);
    ShowWindow(window_, SW_SHOW);
    SetFocus(GetNextDlgTabItem(window_, nullptr, FALSE));
    return true;
}

bool PropertyFrame::loadPages(std::span<IUnknown* const> objects)
{
    ComPtr<ISpecifyPropertyPages> specified;
    CAUUID ids{};
    if (FAILED(objects.front()->QueryInterface(IID_PPV_ARGS(&specified))) || FAILED(specified->GetPages(&ids)))
        return false;
    for (ULONG i = 0; i < ids.cElems; ++i) {
        ComPtr<IPropertyPage> page;
        if (FAILED(CoCreateInstance(ids.pElems[i], nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&page))))
            continue;
        auto slot = std::make_unique<PageSlot>(page, *this);
        if (SUCCEEDED(page->SetObjects(static_cast<ULONG>(objects.size()), const_cast<IUnknown**>(objects.data()))))
            pages_.push_back(std::move(slot));
    }
    CoTaskMemFree(ids.pElems);
    return !pages_.empty();
}

void PropertyFrame::createWindow(const std::wstring& title)
{
    WNDCLASSEXW windowClass{};
    windowClass.cbSize = sizeof windowClass;
    windowClass.lpfnWndProc = &PropertyFrame::windowProcedure;
    windowClass.hInstance = instance_;
    windowClass.hCursor = LoadCursor(nullptr, IDC_ARROW);
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    windowClass.lpszClassName = windowClassName;
    RegisterClassExW(&windowClass);
    INITCOMMONCONTROLSEX controls{sizeof controls, ICC_TAB_CLASSES};
    InitCommonControlsEx(&controls);

    SIZE largest{};
    for (const auto& slot : pages_) {
        largest.cx = std::max(largest.cx, slot->size().cx);
        largest.cy = std::max(largest.cy, slot->size().cy);
    }
    const int width = largest.cx + scaled(4 * edge);
    const int height = largest.cy + scaled(tabHeight + buttonHeight + 5 * edge);
    RECT size{0, 0, width, height};
    constexpr DWORD style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN;
    constexpr DWORD exStyle = WS_EX_CONTROLPARENT | WS_EX_DLGMODALFRAME;
    AdjustWindowRectEx(&size, style, FALSE, exStyle);
    window_ = CreateWindowExW(exStyle, windowClassName, (L"Propriedades de " + title).c_str(), style, 60, 40,
                              size.right - size.left, size.bottom - size.top, owner_, nullptr, instance_, this);
    if (!window_)
        return;
    tabs_ = CreateWindowExW(0, WC_TABCONTROLW, L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_CLIPSIBLINGS, scaled(edge),
                            scaled(edge), width - scaled(2 * edge), height - scaled(buttonHeight + 3 * edge), window_,
                            reinterpret_cast<HMENU>(static_cast<INT_PTR>(tabsId)), instance_, nullptr);
    SendMessageW(tabs_, WM_SETFONT, reinterpret_cast<WPARAM>(font_), TRUE);
    for (std::size_t i = 0; i < pages_.size(); ++i) {
        TCITEMW item{};
        item.mask = TCIF_TEXT;
        item.pszText = const_cast<wchar_t*>(pages_[i]->title().c_str());
        SendMessageW(tabs_, TCM_INSERTITEMW, i, reinterpret_cast<LPARAM>(&item));
    }
    makeButton(L"OK", IDOK, 3, true);
    makeButton(L"Cancelar", IDCANCEL, 2, false);
    applyButton_ = makeButton(L"&Aplicar", applyId, 1, false);
    EnableWindow(applyButton_, FALSE);
}

HWND PropertyFrame::makeButton(const wchar_t* text, int id, int fromRight, bool isDefault)
{
    RECT client{};
    GetClientRect(window_, &client);
    const int left = client.right - fromRight * scaled(buttonWidth + edge);
    const int top = client.bottom - scaled(buttonHeight + edge);
    HWND button = CreateWindowExW(0, L"BUTTON", text,
                                  WS_CHILD | WS_VISIBLE | WS_TABSTOP |
                                      static_cast<DWORD>(isDefault ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON),
                                  left, top, scaled(buttonWidth), scaled(buttonHeight), window_,
                                  reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), instance_, nullptr);
    SendMessageW(button, WM_SETFONT, reinterpret_cast<WPARAM>(font_), TRUE);
    return button;
}

RECT PropertyFrame::pagePlace() const
{
    const int left = scaled(2 * edge), top = scaled(edge + tabHeight + edge / 2);
    const SIZE size = pages_[current_]->size();
    return {left, top, left + size.cx, top + size.cy};
}

void PropertyFrame::select(std::size_t page)
{
    if (page >= pages_.size())
        return;
    pages_[current_]->hide();
    current_ = page;
    SendMessageW(tabs_, TCM_SETCURSEL, page, 0);
    pages_[current_]->show(window_, pagePlace());
    SetWindowPos(tabs_, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE); // behind the page
}

IPropertyPage* PropertyFrame::page(std::size_t index) const
{
    return index < pages_.size() ? pages_[index]->page() : nullptr;
}

void PropertyFrame::pageStatusChanged(DWORD flags)
{
    if ((flags & PROPPAGESTATUS_DIRTY) == 0)
        return;
    canApply_ =
        std::any_of(pages_.begin(), pages_.end(), [](const auto& slot) { return slot->page()->IsPageDirty() == S_OK; });
    if (applyButton_)
        EnableWindow(applyButton_, canApply_);
}

bool PropertyFrame::apply()
{
    bool everything = true;
    for (const auto& slot : pages_)
        if (slot->page()->IsPageDirty() == S_OK)
            everything = slot->page()->Apply() == S_OK && everything;
    pageStatusChanged(PROPPAGESTATUS_DIRTY);
    return everything;
}

void PropertyFrame::close()
{
    pages_.clear();
    if (HWND window = std::exchange(window_, nullptr))
        DestroyWindow(window);
}

LRESULT CALLBACK PropertyFrame::windowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept
{
    if (message == WM_NCCREATE) {
        auto* created = static_cast<PropertyFrame*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
        created->window_ = window;
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(created));
    }
    auto* self = reinterpret_cast<PropertyFrame*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (!self || !self->window_)
        return DefWindowProcW(window, message, wParam, lParam);
    try {
        return self->handle(message, wParam, lParam);
    } catch (const std::exception&) {
        return 0; // nothing crosses the system's frame
    }
}

LRESULT PropertyFrame::handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_COMMAND) {
        switch (LOWORD(wParam)) {
        case IDOK:
            if (apply())
                PostMessageW(window_, WM_CLOSE, 0, 0);
            return 0;
        case IDCANCEL: PostMessageW(window_, WM_CLOSE, 0, 0); return 0;
        case applyId: apply(); return 0;
        default: break;
        }
    }
    if (message == WM_NOTIFY && reinterpret_cast<NMHDR*>(lParam)->code == static_cast<UINT>(TCN_SELCHANGE)) {
        select(static_cast<std::size_t>(SendMessageW(tabs_, TCM_GETCURSEL, 0, 0)));
        return 0;
    }
    if (message == WM_PRINTCLIENT) {
        printTabs(reinterpret_cast<HDC>(wParam), lParam);
        return 0;
    }
    if (message == WM_CLOSE) {
        if (owner_)
            EnableWindow(owner_, TRUE);
        close();
        return 0;
    }
    return DefWindowProcW(window_, message, wParam, lParam);
}

// What lies under a page, for those that ask: the body of the tabs. The tabs themselves ask too, while they are
// printed.
void PropertyFrame::printTabs(HDC dc, LPARAM parts)
{
    if (std::exchange(printing_, true))
        return;
    RECT place{};
    GetWindowRect(tabs_, &place);
    MapWindowPoints(nullptr, window_, reinterpret_cast<POINT*>(&place), 2);
    POINT origin{};
    OffsetViewportOrgEx(dc, place.left, place.top, &origin);
    SendMessageW(tabs_, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc), parts);
    SetViewportOrgEx(dc, origin.x, origin.y, nullptr);
    printing_ = false;
}

bool PropertyFrame::translated(MSG& message)
{
    if (message.hwnd != window_ && !IsChild(window_, message.hwnd))
        return false;
    if (message.message == WM_KEYDOWN && message.wParam == VK_TAB && GetKeyState(VK_CONTROL) < 0) {
        const std::size_t step = GetKeyState(VK_SHIFT) < 0 ? pages_.size() - 1 : 1;
        select((current_ + step) % pages_.size());
        return true;
    }
    if (message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST &&
        pages_[current_]->page()->TranslateAccelerator(&message) == S_OK)
        return true;
    return IsDialogMessageW(window_, &message) != FALSE;
}

void PropertyFrame::runModal()
{
    if (owner_)
        EnableWindow(owner_, FALSE);
    MSG message{};
    while (window_) {
        const BOOL got = GetMessageW(&message, nullptr, 0, 0);
        if (got <= 0) {
            PostQuitMessage(static_cast<int>(message.wParam));
            break;
        }
        if (!translated(message)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
    if (owner_)
        EnableWindow(owner_, TRUE);
    close();
}

} // namespace vela::demo
