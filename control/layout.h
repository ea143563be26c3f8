// Where the parts of a field stand: pure arithmetic in pixels of the surface's client area.
#pragma once

#include "engine/geometry.h"
#include "platform/control_surface.h"

namespace vela::control {

struct LayoutRequest {
    engine::RectPixels client;
    int dpi = 96;
    bool ownBorder = false; // the surface draws the border around the edit box
    bool rounded = false;   // with round corners
    bool button = false;    // cmdCalendario is visible
};

// A box with a border of its own takes the whole client area; the button stands at its right edge, full height.
// 121 x 21 at 96 dpi with a button: edit 0,0 104 x 21, button 104,0 17 x 21.
[[nodiscard]] platform::SurfaceLayout arrangeField(const LayoutRequest& request) noexcept;

} // namespace vela::control
