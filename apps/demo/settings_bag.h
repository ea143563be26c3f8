// The settings a form file keeps for one control, given to it as a property bag.
#pragma once

#include "apps/demo/ole.h"

#include <map>
#include <span>
#include <string>

namespace vela::demo {

struct Setting {
    const wchar_t* key;
    OleValue value;
};

using Settings = std::span<const Setting>;

// Reads answer E_INVALIDARG for a key the bag does not hold, as a form file does; writes are kept.
class SettingsBag final : public CountedObject<IPropertyBag> {
public:
    explicit SettingsBag(Settings settings);

    STDMETHODIMP Read(LPCOLESTR key, VARIANT* value, IErrorLog* log) override;
    STDMETHODIMP Write(LPCOLESTR key, VARIANT* value) override;

private:
    std::map<std::wstring, OleValue, std::less<>> values_;
};

} // namespace vela::demo
