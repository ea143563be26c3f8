// Painting of a field's parts, into its own window and into any device context.
#pragma once

#include "platform/control_surface.h"

#include <windows.h>

#include <optional>
#include <string_view>

namespace vela::win32 {

void fill(HDC dc, const RECT& place, COLORREF colour) noexcept;
// The answer to WM_CTLCOLOREDIT and its like.
[[nodiscard]] LRESULT controlColours(HDC dc, COLORREF fore, COLORREF back) noexcept;

// A border as the field's style gives it: solid, dashes, dots, dash-dot, 3D or XP (rounded).
struct BorderPen {
    int line = 0; // eEstiloBorda
    engine::Colour colour;
    int width = 1;        // units of the device context
    int cornerRadius = 0; // of XP
};
void paintBorder(HDC dc, const RECT& place, const BorderPen& pen);

void paintGlyph(HDC dc, const RECT& place, platform::ButtonGlyph glyph, COLORREF colour);
// The whole button: the theme's, or the classic one. Without a window it stands in a picture.
void paintButton(HDC dc, const RECT& place, platform::ButtonGlyph glyph, UINT itemState, HWND window);

// A closed drop-down list as the system draws it, without its text; the arrow is so many units wide.
void paintCombo(HDC dc, RECT place, COLORREF back, int arrow);

// The circle behind a chosen day, with smooth edges where the device context can be read; in high contrast a ring of
// `line` units, so that the day is read on the window's own colour.
void paintMark(HDC dc, const RECT& place, COLORREF colour, int line);

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
    bool focused = false;
    engine::Colour ground{0x8000000F}; // around round corners
};
// Into any device context, metafiles included; the picture fills the rectangle.
void paintField(HDC dc, const RECT& place, const FieldPicture& field);

} // namespace vela::win32
