// One window of the platform's tooltip control, message by message. A null window takes every message without effect.
#pragma once

#include "engine/value.h"
#include "platform/window_id.h"

#include <cstdint>
#include <string_view>
#include <utility>

namespace vela::platform {

class TooltipWindow {
public:
    virtual ~TooltipWindow() = default;

    virtual bool create(WindowId parent) = 0; // false: no window could be made
    virtual void destroy() = 0;
    [[nodiscard]] virtual bool exists() const = 0;
    // The tool is the parent itself: flags 0x31, no rectangle, this text.
    virtual void addTool(std::u16string_view text) = 0;
    virtual void setTitle(int icon, std::u16string_view title) = 0;
    virtual void setTextColour(engine::Colour colour) = 0;
    virtual void setBackColour(engine::Colour colour) = 0;
    virtual void setDelay(int kind, int milliseconds) = 0; // kind 2 auto-pop, 3 initial
    virtual void updateText(std::u16string_view text) = 0;
    virtual void trackPosition(std::int32_t packed) = 0; // x + y * 65536, screen pixels
    virtual void trackActivate(bool active) = 0;
    // The screen position of a point of a window's client area, in pixels.
    [[nodiscard]] virtual std::pair<int, int> clientToScreen(WindowId window, int x, int y) const = 0;
};

} // namespace vela::platform
