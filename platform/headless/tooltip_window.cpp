// The tooltip window's messages, one trace entry each.
#include "platform/headless/tooltip_window.h"

namespace vela::headless {

using trace::TipMessage;

void TooltipWindow::send(trace::Tip message) const
{
    message.element = owner_ != nullptr ? std::u16string_view(owner_->name()) : std::u16string_view(u"*");
    form_.sink().trace(message);
}

bool TooltipWindow::create(platform::WindowId)
{
    form_.faults().pass();
    exists_ = true;
    send({.message = TipMessage::create});
    return true;
}

void TooltipWindow::destroy()
{
    if (!exists_)
        return;
    exists_ = false;
    send({.message = TipMessage::destroy});
}

void TooltipWindow::addTool(std::u16string_view text)
{
    if (exists_)
        send({.message = TipMessage::addTool, .text = text});
}

void TooltipWindow::setTitle(int icon, std::u16string_view title)
{
    if (exists_)
        send({.message = TipMessage::setTitle, .text = title, .first = icon});
}

void TooltipWindow::setTextColour(engine::Colour colour)
{
    if (exists_)
        send({.message = TipMessage::setTextColour, .colour = colour});
}

void TooltipWindow::setBackColour(engine::Colour colour)
{
    if (exists_)
        send({.message = TipMessage::setBackColour, .colour = colour});
}

void TooltipWindow::setDelay(int kind, int milliseconds)
{
    if (exists_)
        send({.message = TipMessage::setDelay, .first = kind, .second = milliseconds});
}

void TooltipWindow::updateText(std::u16string_view text)
{
    if (exists_)
        send({.message = TipMessage::updateText, .text = text});
}

// The packed value does not tell whether x was beyond 16 bits. When the point last answered by clientToScreen() packs
// to the same value, that point is traced.
void TooltipWindow::trackPosition(std::int32_t packed)
{
    if (!exists_)
        return;
    std::int64_t x = lastPoint_.first;
    std::int64_t y = lastPoint_.second;
    if (x + y * 65536 != packed) {
        x = static_cast<std::int16_t>(packed & 0xFFFF);
        y = (packed - x) / 65536;
    }
    send({.message = TipMessage::trackPosition, .first = static_cast<int>(x), .second = static_cast<int>(y)});
}

void TooltipWindow::trackActivate(bool active)
{
    if (exists_)
        send({.message = TipMessage::trackActivate, .first = active ? 1 : 0});
}

std::pair<int, int> TooltipWindow::clientToScreen(platform::WindowId window, int x, int y) const
{
    const engine::PointPixels origin = form_.originOf(window);
    // Window coordinates wrap as the system's do.
    const auto add = [](int a, int b) { return static_cast<int>(static_cast<unsigned>(a) + static_cast<unsigned>(b)); };
    lastPoint_ = {add(origin.x, x), add(origin.y, y)};
    return lastPoint_;
}

} // namespace vela::headless
