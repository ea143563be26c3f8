// The form file's bag, in memory.
#include "apps/demo/settings_bag.h"

namespace vela::demo {

SettingsBag::SettingsBag(Settings settings)
{
    for (const Setting& setting : settings)
        values_.emplace(setting.key, setting.value);
}

HRESULT SettingsBag::Read(LPCOLESTR key, VARIANT* value, IErrorLog*)
{
    if (!key || !value)
        return E_POINTER;
    const auto found = values_.find(std::wstring_view(key));
    if (found == values_.end())
        return E_INVALIDARG;
    if (value->vt == VT_EMPTY || value->vt == found->second.get().vt)
        return found->second.copyTo(value);
    const VARTYPE wanted = value->vt;
    return found->second.convertTo(value, wanted);
}

HRESULT SettingsBag::Write(LPCOLESTR key, VARIANT* value)
{
    if (!key || !value)
        return E_POINTER;
    OleValue kept;
    const HRESULT copied = VariantCopy(kept.put(), value);
    if (SUCCEEDED(copied))
        values_.insert_or_assign(key, std::move(kept));
    return copied;
}

} // namespace vela::demo
