// The host's side of a control: its client site, what that offers, and its ambient properties. All of it optional.
#pragma once

#include "activex/com/variants.h"

#include <ocidl.h>

#include <optional>
#include <string>

namespace vela::activex {

class Site {
public:
    void put(IOleClientSite* client) noexcept; // null: forgets the host
    [[nodiscard]] IOleClientSite* client() const noexcept { return client_.Get(); }
    [[nodiscard]] explicit operator bool() const noexcept { return static_cast<bool>(client_); }

    template <class Interface>
    [[nodiscard]] ComPtr<Interface> offers() const noexcept
    {
        return query<Interface>(client_.Get());
    }

    // Nothing when the host has no such ambient.
    [[nodiscard]] std::optional<Variant> ambient(DISPID id) const noexcept;
    [[nodiscard]] bool dead() const noexcept;                  // the control shall not answer a person
    [[nodiscard]] bool runMode() const noexcept;               // true without a host that says otherwise
    [[nodiscard]] std::u16string containerName() const;        // of the extender's Container; "" without one
    [[nodiscard]] bool translate(MSG* message) const noexcept; // the host took the key
    void controlInfoChanged() const noexcept;
    void focusChanged(bool has) const noexcept;

private:
    ComPtr<IOleClientSite> client_;
    ComPtr<IDispatch> ambients_;
    ComPtr<IOleControlSite> control_;
};

} // namespace vela::activex
