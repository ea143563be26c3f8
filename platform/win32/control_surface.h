// The control's own window: a child of the host's that carries the EDITs, the button, the border and the timer.
#pragma once

#include "engine/alive.h"
#include "engine/scoped_value.h"
#include "platform/control_surface.h"
#include "platform/win32/edit_box.h"
#include "platform/win32/name_label.h"
#include "platform/win32/window.h"

#include <array>
#include <memory>
#include <optional>
#include <string>

namespace vela::win32 {

// What the owner of a surface wants to know beyond what the control does. May destroy the surface.
class SurfaceListener {
public:
    virtual void focusEntered() {}    // the focus came into the surface or one of its windows, before gotFocus()
    virtual void focusLeft() {}       // after lostFocus()
    virtual void windowDestroyed() {} // by another than destroy()
    virtual bool tabUnused(MSG&) { return false; } // a Tab that came to the box; true: the container has used it
    // Whether the field takes Enter for itself. `key`: the one that a window asks about, 0 for one it does not tell.
    [[nodiscard]] virtual bool eatsEnter(WPARAM) const { return false; }
    [[nodiscard]] virtual std::u16string fieldName() const { return {}; } // for reader programs; empty: its label's

protected:
    ~SurfaceListener() = default;
};

// Works without a window too: then it keeps text, selection, traits, colours and size itself. create() gives them to
// the windows, and a window that is destroyed leaves its state here.
class ControlSurface final : public platform::ControlSurface, private WindowHandler {
public:
    ControlSurface();
    ~ControlSurface() override;

    // Both may be null; neither is owned. To be put back to null before they go.
    void setEvents(platform::SurfaceEvents* surface, platform::EditBoxEvents* edit) noexcept;
    void setListener(SurfaceListener* listener) noexcept { listener_ = listener; }

    // A visible child of `parent` at this place of its client area, in pixels. Raises 7 when the system refuses.
    void create(HWND parent, const RECT& place);
    void destroy();
    void reparent(HWND parent, const RECT& place);
    void place(const RECT& place); // moves and resizes, with a window or without; resized() when the size changed
    void clip(std::optional<RECT> shown);  // no more of it is shown, in its own pixels; none: all of it
    void putGround(engine::Colour colour); // of the host around it, where its corners are round
    void show(bool visible);
    void putDpi(int dpi);                              // while there is no window
    void putDead(bool dead) noexcept { dead_ = dead; } // keys and clicks are not answered
    [[nodiscard]] bool dead() const noexcept { return dead_; }
    void nameChanged(); // what fieldName() answers
    void refreshDpi();  // reads the window's dpi again; resized() when it changed
    // Draws the field as it looks into any device context (design mode, print, metafile).
    void draw(HDC dc, const RECT& place) const;

    [[nodiscard]] HWND handle() const noexcept { return window_; }
    [[nodiscard]] EditBox& edit() noexcept { return *boxes_[active_]; } // the active one
    [[nodiscard]] const EditBox& edit() const noexcept { return *boxes_[active_]; }

    platform::EditBox& activate(platform::EditBoxKind kind) override;
    void putEnabled(bool enabled) override;
    [[nodiscard]] const platform::SurfaceLook& look() const override { return look_; }
    void putLook(const platform::SurfaceLook& look) override;
    void arrange(const platform::SurfaceLayout& layout) override;
    void clear() override;
    void drawRectangle(engine::Colour colour, int width) override;
    void enableHoverTimer(bool enabled) override;
    [[nodiscard]] engine::RectPixels clientRect() const override;
    [[nodiscard]] engine::RectPixels screenRect() const override;
    [[nodiscard]] int dpi() const override { return dpi_; }
    [[nodiscard]] platform::WindowId window() const override;
    [[nodiscard]] std::unique_ptr<platform::TooltipWindow> makeTooltip() override;

private:
    friend class EditBox;
    struct Frame { // drawn by drawRectangle() until clear()
        engine::Colour colour;
        int width = 1;
    };

    LRESULT handle(HWND window, UINT message, WPARAM first, LPARAM second) override;
    void unbound() override;
    LRESULT command(WPARAM first, LPARAM second);
    LRESULT colourOf(HDC dc, HWND child) const;
    LRESULT dialogCode(WPARAM key, LPARAM message) const;
    void paint();
    void drawButton(const DRAWITEMSTRUCT& item) const;
    void sizeChanged();
    void tick(WPARAM timer);
    void focusArrived();
    void readerAsks();
    void placeParts();
    void showButton();
    void appear() const;
    void applyRegion();
    void paintCorners() const;
    void buttonPressed();
    void repaint() const;
    EditBox& box(platform::EditBoxKind kind);

    engine::Life life_;
    platform::SurfaceEvents* events_ = nullptr;
    platform::EditBoxEvents* editEvents_ = nullptr;
    SurfaceListener* listener_ = nullptr;
    HWND window_ = nullptr;
    HWND button_ = nullptr;
    std::array<std::unique_ptr<EditBox>, 2> boxes_; // by EditBoxKind; made at first use
    std::size_t active_ = 0;
    platform::SurfaceLook look_;
    platform::SurfaceLayout layout_;
    std::optional<Frame> frame_;
    RECT place_{0, 0, 0, 0};
    int dpi_ = 96;
    bool enabled_ = true;
    bool dead_ = false;
    bool visible_ = true;
    bool destroying_ = false;
    bool timer_ = false;
    std::optional<RECT> clip_;
    engine::Colour ground_{0x8000000F};
    bool shaped_ = false;              // the window has a region
    bool ticking_ = false;             // the hover tick's listener has not returned
    std::unique_ptr<NameLabel> label_; // once a reader program has asked for the box's name
};

} // namespace vela::win32
