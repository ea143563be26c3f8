// One tooltips_class32 window, driven by the narrow messages and their record.
#pragma once

#include "platform/tooltip_window.h"

#include <windows.h>

#include <commctrl.h>

#include <string>

namespace vela::win32 {

class TooltipWindow final : public platform::TooltipWindow {
public:
    TooltipWindow();
    ~TooltipWindow() override;
    TooltipWindow(const TooltipWindow&) = delete;
    TooltipWindow& operator=(const TooltipWindow&) = delete;

    bool create(platform::WindowId parent) override;
    void destroy() override;
    [[nodiscard]] bool exists() const override;
    void addTool(std::u16string_view text) override;
    void setTitle(int icon, std::u16string_view title) override;
    void setTextColour(engine::Colour colour) override;
    void setBackColour(engine::Colour colour) override;
    void setDelay(int kind, int milliseconds) override;
    void updateText(std::u16string_view text) override;
    void trackPosition(std::int32_t packed) override;
    void trackActivate(bool active) override;
    [[nodiscard]] std::pair<int, int> clientToScreen(platform::WindowId window, int x, int y) const override;
    [[nodiscard]] HWND handle() const noexcept { return window_; }

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM first, LPARAM second) noexcept;
    LRESULT send(UINT message, WPARAM first, LPARAM second) const noexcept;
    void keepText(std::u16string_view text);
    static void CALLBACK timeIsUp(HWND window, UINT message, UINT_PTR timer, DWORD time) noexcept;

    int visibleFor_ = 0;    // milliseconds; the control's own time is for tips that are not tracked
    HWND window_ = nullptr; // forgotten when it goes, which may be with its parent: its number is used again
    std::string text_;
    TTTOOLINFOA tool_{};
};

} // namespace vela::win32
