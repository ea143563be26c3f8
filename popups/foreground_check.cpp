// The foreground check of the calendar and the calculator.
#include "popups/foreground_check.h"

#include "engine/trapped.h"

namespace vela::popups {

namespace {

// Oddity: the check of an MDI child's owner is never true, because it asks for a window that is its own child; pop-ups
// over MDI children would stay open longer.
bool isInFront(platform::WindowId popup, Owner& owner, const platform::Desktop& desktop)
{
    const platform::ParentForm parent = owner.popupParent();
    if (desktop.activeWindow() == popup)
        return true;
    if (!parent.mdiChild)
        return false;
    const platform::WindowId active = desktop.activeWindow();
    return desktop.isChild(parent.window, active) && parent.window == active;
}

} // namespace

bool mayStayOpen(platform::WindowId popup, Owner& owner, const platform::Environment& environment,
                 std::u16string_view label)
{
    bool inFront = false;
    const auto error = engine::trapped([&] { inFront = isInFront(popup, owner, environment.desktop); });
    if (error && error->number != 0 && error->number != clientSiteNotAvailable)
        environment.log.append(popupLogPath, {error->number, error->description, std::u16string(label)});
    return !error && inFront;
}

} // namespace vela::popups
