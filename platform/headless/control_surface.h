// A control's window in memory: an element of the form with one or two edit boxes, a button and a hover timer.
#pragma once

#include "platform/control_surface.h"
#include "platform/headless/edit_box.h"
#include "platform/headless/form_window.h"

#include <memory>
#include <optional>

namespace vela::headless {

class ControlSurface final : public platform::ControlSurface, public Element {
public:
    // Controls stand one under another: left 8, top 8 + 32 x index, 121 x 21 pixels, on a form at (0, 0).
    ControlSurface(FormWindow& form, std::u16string name, int index);
    ~ControlSurface() override;

    // Who hears of the surface and of its active box; both outlive it or are cut off first.
    void connect(platform::EditBoxEvents& box, platform::SurfaceEvents& surface) noexcept;
    void disconnect() noexcept;

    [[nodiscard]] EditBox& activeBox(); // the single-line one when none has been activated yet
    void clickButton(); // gives the focus first; nothing when that is not granted, or the button is hidden
    void resize(int width, int height); // reports resized()
    [[nodiscard]] bool enabled() const noexcept { return enabled_; }
    [[nodiscard]] bool hoverTimerEnabled() const noexcept { return hoverTimer_; }
    [[nodiscard]] const platform::SurfaceLayout& layout() const noexcept { return layout_; }

    // For its boxes.
    [[nodiscard]] platform::EditBoxEvents* boxEvents(const EditBox& box) const noexcept; // null for the hidden box
    void askBoxFocus();
    [[nodiscard]] bool boxHasFocus(const EditBox& box) const noexcept { return boxFocused_ && active_ == &box; }

    EditBox& activate(platform::EditBoxKind kind) override;
    void putEnabled(bool enabled) override;
    [[nodiscard]] const platform::SurfaceLook& look() const override { return look_; }
    void putLook(const platform::SurfaceLook& look) override;
    void arrange(const platform::SurfaceLayout& layout) override;
    void clear() override;
    void drawRectangle(engine::Colour colour, int width) override;
    void enableHoverTimer(bool enabled) override;
    [[nodiscard]] engine::RectPixels clientRect() const override { return {0, 0, place_.width, place_.height}; }
    [[nodiscard]] engine::RectPixels screenRect() const override { return place_; }
    [[nodiscard]] int dpi() const override { return 96; }
    [[nodiscard]] bool drawsBorder() const override { return false; }
    [[nodiscard]] platform::WindowId window() const override { return window_; }
    [[nodiscard]] std::unique_ptr<platform::TooltipWindow> makeTooltip() override;

    [[nodiscard]] bool acceptsFocus() const override { return enabled_; }
    [[nodiscard]] platform::WindowId pointerWindow() const override;
    [[nodiscard]] std::optional<engine::PointPixels> originOf(platform::WindowId window) const override;
    void enter() override;
    void leave(platform::Leaving leaving) override;
    void take(const Act& act) override;
    void pointerMoved() override;
    void tick() override;

private:
    EditBox& showBox(platform::EditBoxKind kind);

    engine::RectPixels place_;
    platform::WindowId window_;
    platform::SurfaceLook look_;
    platform::SurfaceLayout layout_;
    platform::EditBoxEvents* boxEvents_ = nullptr;
    platform::SurfaceEvents* surfaceEvents_ = nullptr;
    std::optional<EditBox> firstBox_; // of whichever kind was asked for first
    std::unique_ptr<EditBox> secondBox_;
    EditBox* active_ = nullptr;
    bool enabled_ = true;
    bool hoverTimer_ = false;
    bool boxFocused_ = false;
    bool entering_ = false;
    engine::Life life_;
};

} // namespace vela::headless
