// The control's window: its boxes, and what reaches them from the form.
#include "platform/headless/control_surface.h"

#include "engine/scoped_value.h"

#include "platform/headless/tooltip_window.h"

#include <utility>

namespace vela::headless {

namespace {

constexpr engine::RectPixels placeOf(int index) noexcept
{
    return {8, 8 + 32 * index, 121, 21};
}

} // namespace

ControlSurface::ControlSurface(FormWindow& form, std::u16string name, int index)
    : Element(form, std::move(name)), place_(placeOf(index)), window_(form.makeWindow())
{
}

ControlSurface::~ControlSurface() = default;

void ControlSurface::connect(platform::EditBoxEvents& box, platform::SurfaceEvents& surface) noexcept
{
    boxEvents_ = &box;
    surfaceEvents_ = &surface;
}

void ControlSurface::disconnect() noexcept
{
    boxEvents_ = nullptr;
    surfaceEvents_ = nullptr;
}

EditBox& ControlSurface::activate(platform::EditBoxKind kind)
{
    form().faults().pass();
    return showBox(kind);
}

EditBox& ControlSurface::showBox(platform::EditBoxKind kind)
{
    if (!firstBox_)
        active_ = &firstBox_.emplace(*this, kind);
    else if (firstBox_->kind() == kind)
        active_ = &*firstBox_;
    else
        active_ = (secondBox_ ? secondBox_ : secondBox_ = std::make_unique<EditBox>(*this, kind)).get();
    return *active_;
}

EditBox& ControlSurface::activeBox()
{
    return active_ != nullptr ? *active_ : showBox(platform::EditBoxKind::singleLine);
}

platform::EditBoxEvents* ControlSurface::boxEvents(const EditBox& box) const noexcept
{
    return &box == active_ ? boxEvents_ : nullptr;
}

void ControlSurface::putEnabled(bool enabled)
{
    form().faults().pass();
    enabled_ = enabled;
    if (!enabled)
        form().release(*this);
}

void ControlSurface::putLook(const platform::SurfaceLook& look)
{
    form().faults().pass();
    look_ = look;
}

void ControlSurface::arrange(const platform::SurfaceLayout& layout)
{
    form().faults().pass();
    layout_ = layout;
}

void ControlSurface::clear()
{
    form().faults().pass();
}

void ControlSurface::drawRectangle(engine::Colour, int)
{
    form().faults().pass();
}

void ControlSurface::enableHoverTimer(bool enabled)
{
    hoverTimer_ = enabled;
}

std::unique_ptr<platform::TooltipWindow> ControlSurface::makeTooltip()
{
    return std::make_unique<TooltipWindow>(form(), this);
}

platform::WindowId ControlSurface::pointerWindow() const
{
    return active_ != nullptr ? active_->window() : window_;
}

std::optional<engine::PointPixels> ControlSurface::originOf(platform::WindowId window) const
{
    if (window == window_)
        return engine::PointPixels{place_.left, place_.top};
    if ((firstBox_ && window == firstBox_->window()) || (secondBox_ && window == secondBox_->window()))
        return engine::PointPixels{place_.left + layout_.edit.left, place_.top + layout_.edit.top};
    return std::nullopt;
}

void ControlSurface::clickButton()
{
    if (!look_.button)
        return;
    const engine::Alive alive(life_);
    form().focus(*this);
    if (alive && form().focused() == this && surfaceEvents_ != nullptr)
        surfaceEvents_->buttonClicked();
}

void ControlSurface::resize(int width, int height)
{
    place_.width = width;
    place_.height = height;
    if (surfaceEvents_ != nullptr)
        surfaceEvents_->resized();
}

// The surface receives the focus and gives it to its box, which then reports it.
void ControlSurface::enter()
{
    if (surfaceEvents_ == nullptr)
        return;
    const engine::ScopedFlag entering(life_, entering_, true); // also when the box was not given the focus
    surfaceEvents_->surfaceGotFocus();
}

void ControlSurface::askBoxFocus()
{
    if (!entering_) {
        form().askFocus(*this);
        return;
    }
    entering_ = false;
    boxFocused_ = true;
    if (boxEvents_ != nullptr)
        boxEvents_->gotFocus();
}

void ControlSurface::leave(platform::Leaving leaving)
{
    const engine::Alive alive(life_);
    if (std::exchange(boxFocused_, false) && boxEvents_ != nullptr)
        boxEvents_->lostFocus(leaving);
    if (alive && surfaceEvents_ != nullptr)
        surfaceEvents_->surfaceLostFocus();
}

// Pasting, cutting and taking back are the field's: its box only reports them.
void ControlSurface::take(const Act& act)
{
    switch (act.kind) {
    case Act::strike: return activeBox().key(act.key);
    case Act::pasteIntoBox: return activeBox().paste(act.text);
    case Act::placeCaret: return activeBox().placeCaret(act.start, act.length);
    case Act::click: return activeBox().clickAtEnd();
    case Act::doubleClick: return activeBox().doubleClick();
    case Act::paste: return boxEvents_ ? boxEvents_->pasted(act.text) : void();
    case Act::cut: return boxEvents_ ? boxEvents_->cut() : void();
    case Act::undo: return boxEvents_ ? boxEvents_->undo() : void();
    case Act::redo: return boxEvents_ ? boxEvents_->redo() : void();
    }
}

void ControlSurface::pointerMoved()
{
    if (boxEvents_ != nullptr)
        boxEvents_->pointerMoved();
}

void ControlSurface::tick()
{
    if (hoverTimer_ && surfaceEvents_ != nullptr)
        surfaceEvents_->hoverTick();
}

} // namespace vela::headless
