// Any automation object as the pages see it: its properties by their DISPIDs.
#pragma once

#include "activex/com/owners.h"
#include "pages/property_object.h"

namespace vela::activex {

class DispatchObject final : public pages::PropertyObject {
public:
    explicit DispatchObject(ComPtr<IDispatch> object) noexcept : object_(std::move(object)) {}
    virtual ~DispatchObject() = default;

    [[nodiscard]] int find(std::u16string_view name) override;
    [[nodiscard]] engine::Value get(int property) override;
    void put(int property, const engine::Value& value) override;

private:
    ComPtr<IDispatch> object_;
};

} // namespace vela::activex
