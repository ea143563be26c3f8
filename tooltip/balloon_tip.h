// The alert balloon of an edit box, and the tooltip that serves where the box cannot show one.
#pragma once

#include "platform/edit_box.h"
#include "tooltip/balloon_tooltip.h"

#include <string_view>

namespace vela::tooltip {

enum class BalloonServer { editBox, tooltip };

// An empty title shows the tip without a title line. Where the box answers that it cannot, `fallback` shows the same
// below the box, at its client point (0, boxHeight).
BalloonServer ShowBalloonTip(std::u16string_view tipText, std::u16string_view title, int icon, platform::EditBox& box,
                             int boxHeight, CBalloonToolTip& fallback);
void HideBalloonTip(platform::EditBox& box, BalloonServer server, CBalloonToolTip& fallback);

} // namespace vela::tooltip
