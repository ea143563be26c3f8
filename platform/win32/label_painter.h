// Paints a form's labels: into its window and into pictures of it, metafiles included.
#pragma once

#include "platform/widgets.h"
#include "platform/win32/fitted_text.h"

#include <windows.h>

namespace vela::win32 {

// Where a form's twips lie in a device context.
struct FormScale {
    const platform::Widgets& widgets;
    double across = 0; // units a twip
    double down = 0;
    POINT origin{0, 0};

    [[nodiscard]] int units(int twips) const noexcept; // across
    [[nodiscard]] int heightOf(const platform::FontDescription& font) const noexcept;
    [[nodiscard]] RECT placeOf(const platform::Widget& widget) const;
};

[[nodiscard]] int lineHeight(HDC dc) noexcept; // of the selected font

// For one drawing.
class LabelPainter {
public:
    // Labels of the form's own colour let the ground show, when `onGround`.
    LabelPainter(HDC dc, const FormScale& scale, bool onGround = false) : dc_(dc), scale_(scale), onGround_(onGround) {}

    // A label or a preview. `font` is for one whose text is not made to fit.
    void paint(const platform::Widget& label, HFONT font = nullptr);

private:
    [[nodiscard]] int fittingHeight(const platform::Widget& label, int border);

    HDC dc_;
    FormScale scale_;
    bool onGround_;
    FittedHeights fitted_;
};

} // namespace vela::win32
