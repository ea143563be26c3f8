// Questions to the host through its client site.
#include "activex/ole/site.h"

#include "platform/win32/keyboard.h"

#include <olectl.h>

#include <utility>

namespace vela::activex {

namespace {

std::optional<Variant> propertyOf(IDispatch* object, DISPID id) noexcept
{
    if (!object)
        return std::nullopt;
    DISPPARAMS none{};
    Variant value;
    if (FAILED(object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none, value.put(), nullptr,
                              nullptr)))
        return std::nullopt;
    return value;
}

std::optional<Variant> propertyOf(IDispatch* object, const wchar_t* name) noexcept
{
    DISPID id = DISPID_UNKNOWN;
    auto* const text = const_cast<wchar_t*>(name);
    if (!object || FAILED(object->GetIDsOfNames(IID_NULL, const_cast<wchar_t**>(&text), 1, LOCALE_USER_DEFAULT, &id)))
        return std::nullopt;
    return propertyOf(object, id);
}

ComPtr<IDispatch> objectIn(const std::optional<Variant>& value) noexcept
{
    if (!value || (value->get().vt != VT_DISPATCH && value->get().vt != VT_UNKNOWN))
        return {};
    return query<IDispatch>(value->get().punkVal);
}

} // namespace

void Site::put(IOleClientSite* client) noexcept
{
    // All interfaces are queried before an old one is released, because either may call back.
    auto next = ComPtr<IOleClientSite>(client);
    auto ambients = query<IDispatch>(client);
    auto control = query<IOleControlSite>(client);
    std::swap(client_, next);
    std::swap(ambients_, ambients);
    std::swap(control_, control);
}

std::optional<Variant> Site::ambient(DISPID id) const noexcept
{
    const auto ambients = ambients_;
    return propertyOf(ambients.Get(), id);
}

bool Site::dead() const noexcept
{
    auto value = ambient(DISPID_AMBIENT_UIDEAD);
    return value && SUCCEEDED(VariantChangeType(&value->ref(), &value->ref(), 0, VT_BOOL)) &&
           value->get().boolVal != VARIANT_FALSE;
}

bool Site::runMode() const noexcept
{
    auto value = ambient(DISPID_AMBIENT_USERMODE);
    if (!value || FAILED(VariantChangeType(&value->ref(), &value->ref(), 0, VT_BOOL)))
        return true;
    return value->get().boolVal != VARIANT_FALSE;
}

std::u16string Site::containerName() const
{
    ComPtr<IDispatch> extender;
    const auto control = control_;
    if (!control || FAILED(control->GetExtendedControl(&extender)))
        return {};
    const auto container = objectIn(propertyOf(extender.Get(), L"Container"));
    auto name = propertyOf(container.Get(), L"Name");
    if (!name || name->get().vt != VT_BSTR)
        return {};
    return std::u16string(asText({name->get().bstrVal, SysStringLen(name->get().bstrVal)}));
}

bool Site::translate(MSG* message) const noexcept
{
    const auto control = control_;
    return control && control->TranslateAccelerator(message, static_cast<DWORD>(win32::shiftState())) == S_OK;
}

void Site::controlInfoChanged() const noexcept
{
    if (const auto control = control_)
        control->OnControlInfoChanged();
}

void Site::focusChanged(bool has) const noexcept
{
    if (const auto control = control_)
        control->OnFocus(has);
}

} // namespace vela::activex
