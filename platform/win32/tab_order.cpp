// Finds the next tab stop. A dialog searches a container only when that has WS_EX_CONTROLPARENT; a field in another
// container is found its way out here.
#include "platform/win32/tab_order.h"

namespace vela::win32 {
namespace {

bool hasStyle(HWND window, LONG_PTR extended) noexcept
{
    return (GetWindowLongPtrW(window, GWL_EXSTYLE) & extended) != 0;
}

// The container that a dialog would search for `from`: the nearest one that is not itself part of another's order.
HWND containerOf(HWND from, HWND form) noexcept
{
    HWND container = GetAncestor(from, GA_PARENT);
    while (container && container != form && hasStyle(container, WS_EX_CONTROLPARENT))
        container = GetAncestor(container, GA_PARENT);
    return container;
}

} // namespace

HWND formOf(HWND window) noexcept
{
    const HWND top = window ? GetAncestor(window, GA_ROOT) : nullptr;
    for (HWND at = window; at && at != top; at = GetAncestor(at, GA_PARENT))
        if (hasStyle(at, WS_EX_MDICHILD))
            return at;
    return top;
}

HWND nextTabStop(HWND from, bool back) noexcept
{
    const HWND form = formOf(from);
    HWND roundAgain = nullptr;
    for (HWND at = from; at && at != form;) {
        const HWND container = containerOf(at, form);
        if (!container)
            break;
        const HWND next = GetNextDlgTabItem(container, at, back);
        const bool other = next && next != at;
        const bool round = other && next == GetNextDlgTabItem(container, nullptr, back);
        if (other && (container == form || !round))
            return next;
        if (other && !roundAgain)
            roundAgain = next;
        at = container;
    }
    return roundAgain;
}

} // namespace vela::win32
