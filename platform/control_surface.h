// The control's own window: it carries the inner boxes, the pop-up button, the border and the hover timer.
#pragma once

#include "engine/geometry.h"
#include "platform/edit_box.h"
#include "platform/tooltip_window.h"

#include <memory>

namespace vela::platform {

enum class ButtonGlyph { calendar, calculator };

// How the surface paints its border. `line` is eEstiloBorda: 0 solid, 1 dashes, 2 dots, 3 dash-dot, 4 3D, 5 XP.
struct SurfaceLook {
    int line = 0;
    bool ownBorder = false; // draws the border itself (flat appearance)
    engine::Colour border{0x00FFFFFF};
    engine::Colour back{0x00FFFFFF};
    bool button = false;                       // cmdCalendario is visible
    ButtonGlyph glyph = ButtonGlyph::calendar; // what its picture shows
    friend bool operator==(const SurfaceLook&, const SurfaceLook&) = default;
};

// Where the parts stand, in pixels of the surface's client area.
struct SurfaceLayout {
    engine::RectPixels edit;
    engine::RectPixels button; // empty when hidden
    int cornerRadius = 0;      // 0: square
    friend bool operator==(const SurfaceLayout&, const SurfaceLayout&) = default;
};

class SurfaceEvents {
public:
    virtual void surfaceGotFocus() = 0;
    virtual void surfaceLostFocus() = 0;
    virtual void resized() = 0; // size or dpi changed
    virtual void buttonClicked() = 0;
    virtual void hoverTick() = 0; // the enabled timer ticked

protected:
    ~SurfaceEvents() = default;
};

class ControlSurface {
public:
    virtual ~ControlSurface() = default;

    // Shows this box and hides the other; the box is made at its first use and keeps its own text and traits.
    virtual EditBox& activate(EditBoxKind kind) = 0;
    virtual void putEnabled(bool enabled) = 0; // false: a box with the focus is left with Leaving::away
    [[nodiscard]] virtual const SurfaceLook& look() const = 0;
    virtual void putLook(const SurfaceLook& look) = 0; // repaints
    virtual void arrange(const SurfaceLayout& layout) = 0;
    virtual void clear() = 0; // wipes what was drawn and repaints
    // A rectangle drawn until the next clear or another border: left 0, top 0, size of the client area less 10 units
    // each way.
    virtual void drawRectangle(engine::Colour colour, int width) = 0;
    virtual void enableHoverTimer(bool enabled) = 0;
    [[nodiscard]] virtual engine::RectPixels clientRect() const = 0;
    [[nodiscard]] virtual engine::RectPixels screenRect() const = 0;
    [[nodiscard]] virtual int dpi() const = 0;
    // Whether a border of its own takes room from the box; where nothing is drawn, the box fills the surface.
    [[nodiscard]] virtual bool drawsBorder() const { return true; }
    [[nodiscard]] virtual WindowId window() const = 0;
    [[nodiscard]] virtual std::unique_ptr<TooltipWindow> makeTooltip() = 0;
};

} // namespace vela::platform
