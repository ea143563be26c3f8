// IPropertyPage2 around a page of the library.
#include "activex/property_page.h"

#include "activex/com/guard.h"
#include "activex/dispatch_object.h"
#include "activex/ole/dispatch.h"
#include "activex/page_fields.h"
#include "activex/session.h"
#include "activex/vela_members.h"
#include "pages/frm_paleta.h"
#include "platform/win32/dpi.h"
#include "platform/win32/form_window.h"

#include <olectl.h>
#include <optional>

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace vela::activex {

namespace {

class PropertyPage final : public win32::ComObject<IPropertyPage2>, private pages::PageSite {
public:
    explicit PropertyPage(pages::PageKind kind)
        : kind_(kind), session_(Session::current()),
          palette_(session_->forms, session_->environment.desktop), services_{session_->environment, session_->settings,
                                                                              session_->forms, palette_,
                                                                              pageFields(kind)}
    {
    }

    STDMETHODIMP SetPageSite(IPropertyPageSite* site) noexcept override;
    STDMETHODIMP Activate(HWND parent, LPCRECT place, BOOL modal) noexcept override;
    STDMETHODIMP Deactivate() noexcept override;
    STDMETHODIMP GetPageInfo(PROPPAGEINFO* info) noexcept override;
    STDMETHODIMP SetObjects(ULONG count, IUnknown** objects) noexcept override;
    STDMETHODIMP Show(UINT command) noexcept override;
    STDMETHODIMP Move(LPCRECT place) noexcept override;
    STDMETHODIMP IsPageDirty() noexcept override;
    STDMETHODIMP Apply() noexcept override;
    STDMETHODIMP Help(LPCOLESTR folder) noexcept override;
    STDMETHODIMP TranslateAccelerator(LPMSG message) noexcept override;
    STDMETHODIMP EditProperty(DISPID id) noexcept override;

private:
    ~PropertyPage() override { Deactivate(); }
    [[nodiscard]] void* find(REFIID iid) noexcept override
    {
        return ComObject::find(iid == IID_IPropertyPage ? IID_IPropertyPage2 : iid);
    }

    // On the stack while the page runs code that may call the host or show a box: keeps this object and the page alive.
    // What the host asks for meanwhile is done when the last of these scopes ends.
    class Act {
    public:
        explicit Act(PropertyPage& page) noexcept : page_(ComPtr<PropertyPage>(&page)) { ++page.acts_; }
        Act(const Act&) = delete;
        Act& operator=(const Act&) = delete;
        ~Act()
        {
            if (--page_->acts_ == 0)
                page_->settle();
        }

    private:
        ComPtr<PropertyPage> page_;
    };

    void changed(bool dirty) override;
    void runAct(const std::function<void()>& act) override;
    void settle() noexcept;
    [[nodiscard]] win32::FormWindow& form() const { return static_cast<win32::FormWindow&>(page_->form()); }
    void openSelection();
    void openSelectionOrSayWhyNot();
    void showFailure(const engine::Error& error);
    [[nodiscard]] bool leaves(const MSG& message) const; // Tab beyond the page's ends

    pages::PageKind kind_;
    std::shared_ptr<Session> session_;
    pages::PaletteChooser palette_;
    pages::PageServices services_;
    ComPtr<IPropertyPageSite> site_;
    using Objects = std::vector<std::unique_ptr<DispatchObject>>;
    Objects objects_;
    Objects objectsInUse_; // the former selection, which an act still works on
    bool selectionWaits_ = false;
    std::optional<engine::Error> failedLoad_; // nothing is applied before a load has succeeded
    int acts_ = 0;
    std::unique_ptr<pages::Page> page_; // between Activate and Deactivate
    std::unique_ptr<pages::Page> left_; // deactivated inside one of its acts
};

HRESULT PropertyPage::SetPageSite(IPropertyPageSite* site) noexcept
{
    if (site && site_)
        return E_UNEXPECTED;
    site_ = ComPtr<IPropertyPageSite>(site);
    return S_OK;
}

HRESULT PropertyPage::Activate(HWND parent, LPCRECT place, BOOL) noexcept
{
    if (!place)
        return E_POINTER;
    if (page_ || left_)
        return E_UNEXPECTED;
    const Act act(*this);
    return guarded([&] {
        auto page = pages::makePage(kind_, services_, *this);
        auto& shown = static_cast<win32::FormWindow&>(page->form());
        shown.showChild(parent, *place);
        shown.showChildWindow(false); // the frame calls Show
        page_ = std::move(page);
        openSelectionOrSayWhyNot();
    });
}

void PropertyPage::openSelection()
{
    if (objects_.empty())
        return;
    std::vector<pages::PropertyObject*> selection;
    for (const auto& object : objects_)
        selection.push_back(object.get());
    failedLoad_.reset();
    try {
        page_->open(selection);
    } catch (const engine::Error& error) {
        failedLoad_ = error;
        throw;
    }
}

void PropertyPage::openSelectionOrSayWhyNot()
{
    const Act act(*this);
    try {
        openSelection();
    } catch (const engine::Error& error) {
        showFailure(error);
    }
}

void PropertyPage::showFailure(const engine::Error& error)
{
    session_->environment.desktop.messageBox(platform::BoxIcon::exclamation, platform::BoxButtons::ok,
                                             pages::pageLayout(kind_).caption, error.description);
}

HRESULT PropertyPage::Deactivate() noexcept
{
    if (!page_)
        return S_OK;
    left_ = std::move(page_);
    contained([&] { static_cast<win32::FormWindow&>(left_->form()).leaveParent(); });
    if (acts_ == 0)
        settle();
    return S_OK;
}

void PropertyPage::settle() noexcept
{
    left_.reset();
    if (!std::exchange(selectionWaits_, false))
        return;
    objectsInUse_.clear();
    if (page_)
        contained([&] {
            page_->release();
            openSelectionOrSayWhyNot();
        });
}

// An error inside another act or a call of the host is reported there; otherwise it is shown to the person.
void PropertyPage::runAct(const std::function<void()>& act)
{
    if (acts_ > 0)
        return act();
    const Act running(*this);
    try {
        act();
    } catch (const engine::Error& error) {
        showFailure(error);
    }
}

HRESULT PropertyPage::GetPageInfo(PROPPAGEINFO* info) noexcept
{
    if (!info)
        return E_POINTER;
    return guarded([&] {
        const platform::FormLayout& layout = pages::pageLayout(kind_);
        const int dpi = win32::dpiOf(nullptr);
        const ULONG size = info->cb;
        *info = {};
        info->cb = size;
        info->pszTitle = newTaskText(layout.caption);
        info->size = {engine::twipsToPixels(layout.width, dpi), engine::twipsToPixels(layout.height, dpi)};
    });
}

HRESULT PropertyPage::SetObjects(ULONG count, IUnknown** objects) noexcept
{
    if (count != 0 && !objects)
        return E_POINTER;
    return guarded([&]() -> HRESULT {
        Objects selection;
        for (ULONG i = 0; i < count; ++i) {
            auto object = query<IDispatch>(objects[i]);
            if (!object)
                return E_NOINTERFACE;
            selection.push_back(std::make_unique<DispatchObject>(std::move(object)));
        }
        if (acts_ > 0) {
            if (!std::exchange(selectionWaits_, true))
                objectsInUse_ = std::move(objects_);
            objects_ = std::move(selection);
            return S_OK;
        }
        if (page_)
            page_->release();
        objects_ = std::move(selection);
        const Act act(*this);
        if (page_)
            openSelection();
        return S_OK;
    });
}

HRESULT PropertyPage::Show(UINT command) noexcept
{
    if (!page_)
        return E_UNEXPECTED;
    return guarded([&] { form().showChildWindow(command != SW_HIDE); });
}

HRESULT PropertyPage::Move(LPCRECT place) noexcept
{
    if (!place)
        return E_POINTER;
    if (!page_)
        return E_UNEXPECTED;
    return guarded([&] { form().moveChild(*place); });
}

HRESULT PropertyPage::IsPageDirty() noexcept
{
    return page_ && page_->changed() ? S_OK : S_FALSE;
}

HRESULT PropertyPage::Apply() noexcept
{
    if (!page_)
        return E_UNEXPECTED;
    if (objects_.empty()) {
        guarded([] { engine::raise(engine::error_number::objectNotSet); }); // the description for those who ask
        return E_UNEXPECTED;
    }
    const Act act(*this);
    return guarded([&]() -> HRESULT {
        if (failedLoad_) {
            showFailure(*failedLoad_);
            throw engine::Error(*failedLoad_); // the host hears of it too
        }
        return page_->apply() ? S_OK : E_FAIL;
    });
}

HRESULT PropertyPage::Help(LPCOLESTR) noexcept
{
    return E_NOTIMPL; // the pages carry help buttons of their own
}

HRESULT PropertyPage::TranslateAccelerator(LPMSG message) noexcept
{
    if (!message)
        return E_POINTER;
    if (!page_)
        return S_FALSE;
    const Act act(*this);
    return guarded([&]() -> HRESULT {
        if (leaves(*message))
            return site_ ? ComPtr(site_)->TranslateAccelerator(message) : S_FALSE;
        return form().translate(*message) ? S_OK : S_FALSE;
    });
}

bool PropertyPage::leaves(const MSG& message) const
{
    if (message.message != WM_KEYDOWN || message.wParam != VK_TAB)
        return false;
    const HWND page = form().handle();
    const bool backwards = GetKeyState(VK_SHIFT) < 0;
    const HWND first = GetNextDlgTabItem(page, nullptr, FALSE);
    const HWND last = first ? GetNextDlgTabItem(page, first, TRUE) : nullptr;
    return first && GetFocus() == (backwards ? first : last);
}

HRESULT PropertyPage::EditProperty(DISPID id) noexcept
{
    return guarded([&]() -> HRESULT {
        const Member* const member = findMember(velaMembers(), id);
        const auto field = member ? std::ranges::find(services_.fields, member->name, &pages::Field::property)
                                  : services_.fields.end();
        if (field == services_.fields.end())
            return E_INVALIDARG;
        if (!page_)
            return E_UNEXPECTED;
        const Act act(*this);
        page_->focus(platform::findWidget(page_->layout(), field->control, field->index));
        return S_OK;
    });
}

void PropertyPage::changed(bool dirty)
{
    if (!page_)
        return;
    if (const auto site = site_)
        site->OnStatusChange(dirty ? PROPPAGESTATUS_DIRTY : PROPPAGESTATUS_CLEAN);
}

} // namespace

ComPtr<IUnknown> makePropertyPage(pages::PageKind kind)
{
    return win32::make<PropertyPage>(kind);
}

} // namespace vela::activex
