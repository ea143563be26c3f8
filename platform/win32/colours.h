// Converts the colours of hosts into the system's; in high contrast the system's own colours win.
#pragma once

#include "engine/value.h"

#include <windows.h>

namespace vela::win32 {

enum class ColourRole { fore, back, border, face };

// &H80000005 -> what the person chose for windows; &H0000FF00 -> itself.
[[nodiscard]] COLORREF resolve(engine::Colour colour) noexcept;
// In high contrast the system's own colour of the role, whatever was asked for.
[[nodiscard]] COLORREF resolve(engine::Colour colour, ColourRole role) noexcept;
[[nodiscard]] bool highContrast() noexcept;

} // namespace vela::win32
