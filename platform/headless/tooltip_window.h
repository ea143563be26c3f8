// A tooltip window in memory: every message is traced; without a window a message has no effect and no trace.
#pragma once

#include "platform/headless/form_window.h"
#include "platform/tooltip_window.h"

#include <string>

namespace vela::headless {

class TooltipWindow final : public platform::TooltipWindow {
public:
    // `owner` is who the trace names; null: "*", a free-standing tip.
    TooltipWindow(FormWindow& form, const Element* owner) noexcept : form_(form), owner_(owner) {}
    ~TooltipWindow() override = default;

    bool create(platform::WindowId parent) override;
    void destroy() override;
    [[nodiscard]] bool exists() const override { return exists_; }
    void addTool(std::u16string_view text) override;
    void setTitle(int icon, std::u16string_view title) override;
    void setTextColour(engine::Colour colour) override;
    void setBackColour(engine::Colour colour) override;
    void setDelay(int kind, int milliseconds) override;
    void updateText(std::u16string_view text) override;
    void trackPosition(std::int32_t packed) override;
    void trackActivate(bool active) override;
    [[nodiscard]] std::pair<int, int> clientToScreen(platform::WindowId window, int x, int y) const override;

private:
    void send(trace::Tip message) const;

    FormWindow& form_;
    const Element* owner_;
    // The screen point last answered by clientToScreen(); the trace prints it when trackPosition() packs the same
    // point.
    mutable std::pair<int, int> lastPoint_{0, 0};
    bool exists_ = false;
};

} // namespace vela::headless
