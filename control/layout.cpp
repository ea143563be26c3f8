// The arithmetic of a field's layout.
#include "control/layout.h"

#include <algorithm>

namespace vela::control {

namespace {

constexpr int standardDpi = 96;
constexpr int borderWidth = 1;  // pixels at 96 dpi, as are those below
constexpr int innerMargin = 1;  // between a drawn border and the text box, as in a native edit window
constexpr int cornerRadius = 4; // of the rounded style
constexpr int buttonWidth = 17; // as wide as the arrow of a combo box

constexpr int scaled(int pixels, int dpi) noexcept
{
    return std::max(1, (pixels * dpi + standardDpi / 2) / standardDpi);
}

constexpr engine::RectPixels shrunk(engine::RectPixels area, int by) noexcept
{
    return {area.left + by, area.top + by, std::max(0, area.width - 2 * by), std::max(0, area.height - 2 * by)};
}

} // namespace

platform::SurfaceLayout arrangeField(const LayoutRequest& request) noexcept
{
    const engine::RectPixels client{0, 0, request.client.width, request.client.height};
    const int border = scaled(borderWidth, request.dpi);
    const int inset = request.ownBorder ? border + scaled(innerMargin, request.dpi) : 0;

    platform::SurfaceLayout layout;
    layout.edit = shrunk(client, inset);
    layout.cornerRadius = request.rounded ? scaled(cornerRadius, request.dpi) : 0;
    if (request.button) {
        const engine::RectPixels within = shrunk(client, request.ownBorder ? border : 0);
        const int width = std::min(scaled(buttonWidth, request.dpi), within.width);
        layout.button = {within.right() - width, within.top, width, within.height};
        layout.edit.width = std::max(0, std::min(layout.edit.right(), layout.button.left) - layout.edit.left);
    }
    return layout;
}

} // namespace vela::control
