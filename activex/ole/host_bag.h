// The host's property bag as the control reads and writes it.
#pragma once

#include "activex/com/owners.h"
#include "platform/control_host.h"

#include <ocidl.h>

namespace vela::activex {

class HostBag final : public platform::PropertyBag {
public:
    // `all`: values equal to their defaults are written too.
    explicit HostBag(IPropertyBag& bag, IErrorLog* log = nullptr, bool all = false) noexcept
        : bag_(bag), log_(log), all_(all)
    {
    }

    // A key that the host does not have (E_INVALIDARG) takes its default. Raises the host's other failures.
    [[nodiscard]] engine::Value read(std::u16string_view key, const engine::Value& defaultValue) override;
    void write(std::u16string_view key, const engine::Value& value,
               const std::optional<engine::Value>& defaultValue) override;

    [[nodiscard]] HRESULT failure() const noexcept { return failure_; } // the host's own, S_OK without one

private:
    [[noreturn]] void fail(HRESULT failure);

    IPropertyBag& bag_;
    IErrorLog* log_;
    bool all_;
    HRESULT failure_ = S_OK;
};

} // namespace vela::activex
