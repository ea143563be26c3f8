// An accessible object over the system's own: the painted labels are its first children, the windows follow.
#include "platform/win32/form_accessible.h"

#include "platform/win32/accessible_over.h"
#include "platform/win32/guard.h"

namespace vela::win32 {
namespace {

VARIANT number(LONG value) noexcept
{
    VARIANT variant{};
    variant.vt = VT_I4;
    variant.lVal = value;
    return variant;
}

} // namespace

class FormAccessible final : public AccessibleOver {
public:
    FormAccessible(IAccessible& standard, SpokenForm& form) noexcept : AccessibleOver(standard), form_(&form) {}
    void disconnect() noexcept { form_ = nullptr; }

    STDMETHODIMP get_accChildCount(long* count) noexcept override
    {
        const HRESULT result = AccessibleOver::get_accChildCount(count);
        if (SUCCEEDED(result))
            *count += static_cast<long>(labels().size());
        return result;
    }
    STDMETHODIMP get_accChild(VARIANT child, IDispatch** object) noexcept override
    {
        if (!object)
            return E_POINTER;
        *object = nullptr;
        return label(child) ? S_FALSE : AccessibleOver::get_accChild(behind(child), object);
    }
    STDMETHODIMP get_accName(VARIANT child, BSTR* name) noexcept override
    {
        const SpokenLabel* spoken = label(child);
        return spoken ? giveText(spoken->name, name) : AccessibleOver::get_accName(behind(child), name);
    }
    STDMETHODIMP get_accValue(VARIANT child, BSTR* value) noexcept override
    {
        return label(child) ? S_FALSE : AccessibleOver::get_accValue(behind(child), value);
    }
    STDMETHODIMP get_accDescription(VARIANT child, BSTR* text) noexcept override
    {
        return label(child) ? S_FALSE : AccessibleOver::get_accDescription(behind(child), text);
    }
    STDMETHODIMP get_accRole(VARIANT child, VARIANT* role) noexcept override
    {
        const SpokenLabel* spoken = label(child);
        if (!spoken)
            return AccessibleOver::get_accRole(behind(child), role);
        *role = number(spoken->cell ? ROLE_SYSTEM_CELL : ROLE_SYSTEM_STATICTEXT);
        return S_OK;
    }
    STDMETHODIMP get_accState(VARIANT child, VARIANT* state) noexcept override
    {
        const SpokenLabel* spoken = label(child);
        if (!spoken)
            return AccessibleOver::get_accState(behind(child), state);
        *state = number(spoken->enabled ? STATE_SYSTEM_READONLY : STATE_SYSTEM_UNAVAILABLE);
        return S_OK;
    }
    STDMETHODIMP get_accHelp(VARIANT child, BSTR* text) noexcept override
    {
        return label(child) ? S_FALSE : AccessibleOver::get_accHelp(behind(child), text);
    }
    STDMETHODIMP get_accHelpTopic(BSTR* file, VARIANT child, long* topic) noexcept override
    {
        return label(child) ? S_FALSE : AccessibleOver::get_accHelpTopic(file, behind(child), topic);
    }
    STDMETHODIMP get_accKeyboardShortcut(VARIANT child, BSTR* text) noexcept override
    {
        return label(child) ? S_FALSE : AccessibleOver::get_accKeyboardShortcut(behind(child), text);
    }
    STDMETHODIMP get_accDefaultAction(VARIANT child, BSTR* action) noexcept override
    {
        const SpokenLabel* spoken = label(child);
        if (!spoken)
            return AccessibleOver::get_accDefaultAction(behind(child), action);
        return giveText(spoken->cell ? u"Escolher" : u"", action);
    }
    STDMETHODIMP accSelect(long flags, VARIANT child) noexcept override
    {
        return label(child) ? E_INVALIDARG : AccessibleOver::accSelect(flags, behind(child));
    }
    STDMETHODIMP accLocation(long* left, long* top, long* width, long* height, VARIANT child) noexcept override
    {
        const SpokenLabel* spoken = label(child);
        if (!spoken)
            return AccessibleOver::accLocation(left, top, width, height, behind(child));
        *left = spoken->screen.left;
        *top = spoken->screen.top;
        *width = spoken->screen.right - spoken->screen.left;
        *height = spoken->screen.bottom - spoken->screen.top;
        return S_OK;
    }
    STDMETHODIMP accNavigate(long direction, VARIANT start, VARIANT* end) noexcept override
    {
        return label(start) ? S_FALSE : AccessibleOver::accNavigate(direction, behind(start), end);
    }
    STDMETHODIMP accHitTest(long x, long y, VARIANT* child) noexcept override
    {
        const std::vector<SpokenLabel>& all = labels();
        for (std::size_t i = all.size(); i-- > 0;)
            if (PtInRect(&all[i].screen, POINT{x, y})) {
                *child = number(static_cast<LONG>(i) + 1);
                return S_OK;
            }
        return AccessibleOver::accHitTest(x, y, child);
    }
    STDMETHODIMP accDoDefaultAction(VARIANT child) noexcept override
    {
        const SpokenLabel* spoken = label(child);
        if (!spoken)
            return AccessibleOver::accDoDefaultAction(behind(child));
        const int widget = spoken->widget;
        contained([this, widget] { form_->clickLabel(widget); }); // may be the end of the form
        return S_OK;
    }

private:
    const std::vector<SpokenLabel>& labels() noexcept
    {
        contained([this] { labels_ = form_ ? form_->spokenLabels() : std::vector<SpokenLabel>{}; });
        return labels_;
    }
    // Child 1 is the first label. Null for the form itself and for its windows.
    const SpokenLabel* label(const VARIANT& child) noexcept
    {
        if (child.vt != VT_I4 || child.lVal < 1)
            return nullptr;
        const std::vector<SpokenLabel>& all = labels();
        const auto index = static_cast<std::size_t>(child.lVal) - 1;
        return index < all.size() ? &all[index] : nullptr;
    }
    // The number of a child that is a window, as the system's own object counts it.
    [[nodiscard]] VARIANT behind(VARIANT child) const noexcept
    {
        if (child.vt == VT_I4 && child.lVal > 0)
            child.lVal -= static_cast<LONG>(labels_.size());
        return child;
    }

    SpokenForm* form_;
    std::vector<SpokenLabel> labels_; // as of the last question
};

LRESULT FormSpeech::answer(HWND window, WPARAM first, SpokenForm& form)
{
    const AccessibleService service;
    if (!object_) {
        IAccessible* const standard = service.standardOf(window);
        if (!standard)
            return 0;
        object_ = new FormAccessible(*standard, form);
    }
    return service.answer(first, *object_);
}

void FormSpeech::forget() noexcept
{
    if (!object_)
        return;
    object_->disconnect();
    object_->Release();
    object_ = nullptr;
}

} // namespace vela::win32
