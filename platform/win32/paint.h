// Painting of a field's parts, into its own window and into any device context.
#pragma once

#include "platform/control_surface.h"

#include <windows.h>

#include <optional>
#include <string_view>

namespace vela::win32 {

// A border as the field's style gives it: solid, dashes, dots, dash-dot, 3D or XP (rounded).
struct BorderPen {
    int line = 0; // eEstiloBorda
    engine::Colour colour;
    int width = 1;        // units of the device context
    int cornerRadius = 0; // of XP
};
void paintBorder(HDC dc, const RECT& place, const BorderPen& pen);

void paintGlyph(HDC dc, const RECT& place, platform::ButtonGlyph glyph, COLORREF colour);
// The whole button: the theme's, or the classic one.
void paintButton(HDC dc, const RECT& place, platform::ButtonGlyph glyph, UINT itemState, HWND themed);

// A filled ellipse with smooth edges.
void paintEllipse(HDC dc, const RECT& place, COLORREF colour);

// A field as it looks without its windows. `client` is the size that `layout` was made for.
struct FieldPicture {
    std::u16string_view text;
    platform::SurfaceLook look;
    platform::SurfaceLayout layout;
    platform::EditTraits traits;
    platform::EditColours colours;
    SIZE client{0, 0};
    int dpi = 96;
    bool multiLine = false;
};
// Into any device context, metafiles included; the picture fills the rectangle.
void paintField(HDC dc, const RECT& place, const FieldPicture& field);

} // namespace vela::win32
