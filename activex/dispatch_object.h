// Any automation object as the pages see it: its properties by name.
#pragma once

#include "activex/com/owners.h"
#include "pages/property_object.h"

namespace vela::activex {

class DispatchObject final : public pages::PropertyObject {
public:
    explicit DispatchObject(ComPtr<IDispatch> object) noexcept : object_(std::move(object)) {}
    virtual ~DispatchObject() = default;

    [[nodiscard]] engine::Value get(std::u16string_view name) override;
    void put(std::u16string_view name, const engine::Value& value) override;

private:
    [[nodiscard]] DISPID find(std::u16string_view name) const; // raises 438

    ComPtr<IDispatch> object_;
};

} // namespace vela::activex
