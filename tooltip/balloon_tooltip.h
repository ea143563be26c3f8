// The balloon tooltip of a control: its settings, and the messages that make a tooltip window of them.
#pragma once

#include "engine/field/property_types.h"
#include "engine/value.h"
#include "platform/tooltip_window.h"
#include "platform/window_id.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace vela::tooltip {

// Settings changed while no window exists are kept and applied by the next CreateToolTip.
class CBalloonToolTip {
public:
    explicit CBalloonToolTip(std::unique_ptr<platform::TooltipWindow> window);
    ~CBalloonToolTip(); // as Destroy
    CBalloonToolTip(const CBalloonToolTip&) = delete;
    CBalloonToolTip& operator=(const CBalloonToolTip&) = delete;

    // Makes the window anew; the tool is the parent itself.
    void CreateToolTip(platform::WindowId parent);
    // Shows the tip at a point of the window's client area, in pixels. Raises 6 when the screen point does not
    // pack into 32 bits, window or not.
    void ShowAt(int x, int y, platform::WindowId window);
    void Destroy();
    [[nodiscard]] bool exists() const;

    [[nodiscard]] std::int32_t VisibleTime() const noexcept { return visibleTime_; } // milliseconds
    void VisibleTime(std::int32_t milliseconds) noexcept { visibleTime_ = milliseconds; }
    [[nodiscard]] std::int32_t DelayTime() const noexcept { return delayTime_; } // milliseconds
    void DelayTime(std::int32_t milliseconds) noexcept { delayTime_ = milliseconds; }
    [[nodiscard]] engine::eIconeToolTipText Icon() const noexcept { return icon_; }
    void Icon(engine::eIconeToolTipText icon);
    [[nodiscard]] engine::Colour ForeColor() const noexcept { return foreColour_; } // 0: the platform's own
    void ForeColor(engine::Colour colour);
    [[nodiscard]] const std::u16string& Title() const noexcept { return title_; }
    void Title(std::u16string_view title);
    [[nodiscard]] bool PopupOnDemand() const noexcept { return popupOnDemand_; } // kept for the host
    void PopupOnDemand(bool on) noexcept { popupOnDemand_ = on; }
    [[nodiscard]] const std::u16string& TipText() const noexcept { return tipText_; }
    void TipText(std::u16string_view text);
    [[nodiscard]] std::int32_t Style() const noexcept { return style_; } // kept for the host
    void Style(std::int32_t style) noexcept { style_ = style; }
    [[nodiscard]] bool Centered() const noexcept { return centered_; } // kept for the host
    void Centered(bool on) noexcept { centered_ = on; }
    [[nodiscard]] engine::Colour BackColor() const noexcept { return backColour_; } // 0: the platform's own
    void BackColor(engine::Colour colour);

private:
    void showTitle();

    std::unique_ptr<platform::TooltipWindow> window_;
    std::u16string title_;
    std::u16string tipText_;
    std::int32_t visibleTime_ = 5000;
    std::int32_t delayTime_ = 500;
    engine::eIconeToolTipText icon_ = engine::eIconeToolTipText::TTNoIcon;
    engine::Colour foreColour_{0};
    engine::Colour backColour_{0};
    std::int32_t style_ = 0;
    bool popupOnDemand_ = false;
    bool centered_ = false;
};

} // namespace vela::tooltip
