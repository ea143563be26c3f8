// A message box that a pop-up shows itself: while it is up, the pop-up is not the active window and yet stays.
#pragma once

#include "engine/scoped_value.h"
#include "platform/desktop.h"

#include <string_view>

namespace vela::popups {

// Counts the boxes that are up; the count is right again whatever the desktop raises.
class OwnBoxes {
public:
    [[nodiscard]] bool anyUp() const noexcept { return up_ > 0; }

    void show(platform::Desktop& desktop, platform::BoxIcon icon, std::u16string_view title, std::u16string_view text)
    {
        const engine::ScopedValue up(up_, up_ + 1);
        desktop.messageBox(icon, platform::BoxButtons::ok, title, text);
    }

private:
    int up_ = 0;
};

} // namespace vela::popups
