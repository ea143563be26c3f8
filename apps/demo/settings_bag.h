// The settings a form file keeps for one control, given to it as a property bag.
#pragma once

#include "apps/demo/ole.h"

#include <ocidl.h>

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
class SettingsBag final : public IPropertyBag {
public:
    explicit SettingsBag(Settings settings);

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override;
    HRESULT STDMETHODCALLTYPE Read(LPCOLESTR key, VARIANT* value, IErrorLog* log) override;
    HRESULT STDMETHODCALLTYPE Write(LPCOLESTR key, VARIANT* value) override;

private:
    ~SettingsBag() = default;
    ULONG references_ = 1;
    std::map<std::wstring, OleValue, std::less<>> values_;
};

} // namespace vela::demo
