// Showing and hiding an edit box's alert, through the box or through the tooltip.
#include "tooltip/balloon_tip.h"

namespace vela::tooltip {

BalloonServer ShowBalloonTip(std::u16string_view tipText, std::u16string_view title, int icon, platform::EditBox& box,
                             int boxHeight, CBalloonToolTip& fallback)
{
    if (box.showBalloon(icon, title, tipText))
        return BalloonServer::editBox;
    fallback.Destroy(); // so that the settings below send nothing to an old window
    fallback.Title(title);
    fallback.Icon(static_cast<engine::eIconeToolTipText>(icon));
    fallback.TipText(tipText);
    fallback.CreateToolTip(box.window());
    fallback.ShowAt(0, boxHeight, box.window());
    return BalloonServer::tooltip;
}

void HideBalloonTip(platform::EditBox& box, BalloonServer server, CBalloonToolTip& fallback)
{
    if (server == BalloonServer::tooltip)
        fallback.Destroy();
    else
        box.hideBalloon();
}

} // namespace vela::tooltip
