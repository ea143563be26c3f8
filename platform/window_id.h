// A window of the platform, as an opaque number; 0 is no window.
#pragma once

#include <cstdint>

namespace vela::platform {

struct WindowId {
    std::uintptr_t value = 0;
    explicit constexpr operator bool() const noexcept { return value != 0; }
    friend bool operator==(WindowId, WindowId) = default;
};

} // namespace vela::platform
