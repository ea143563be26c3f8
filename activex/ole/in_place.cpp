// IOleInPlaceObject and IOleInPlaceActiveObject of the shell.
#include "activex/ole/in_place.h"

#include "activex/ole/shell.h"

#include <utility>

namespace vela::activex {

HRESULT windowOf(Shell& shell, HWND* window) noexcept
{
    if (!window)
        return E_POINTER;
    *window = shell.made() ? shell.made()->window() : nullptr;
    return *window ? S_OK : E_FAIL;
}

HRESULT InPlaceObject::InPlaceDeactivate() noexcept
{
    const Shell::Hold hold(shell_);
    shell_.activation().deactivate();
    return S_OK;
}

HRESULT InPlaceObject::UIDeactivate() noexcept
{
    const Shell::Hold hold(shell_);
    shell_.activation().deactivateInterface();
    return S_OK;
}

HRESULT InPlaceObject::SetObjectRects(LPCRECT place, LPCRECT clip) noexcept
{
    if (!place)
        return E_POINTER;
    return shell_.guarded([&] { shell_.activation().putRects(*place, clip ? *clip : *place); });
}

HRESULT ActiveObject::TranslateAccelerator(LPMSG message) noexcept
{
    if (!message)
        return E_POINTER;
    const Shell::Hold hold(shell_);
    const bool key = message->message == WM_KEYDOWN || message->message == WM_SYSKEYDOWN;
    const WPARAM outer = std::exchange(translated_, key ? message->wParam : 0);
    const HRESULT result = shell_.guarded([&]() -> HRESULT {
        if (shell_.site().translate(message))
            return S_OK;
        if (!shell_.made() || !shell_.made()->hasFocus() || !shell_.made()->wantsKey(*message))
            return S_FALSE;
        TranslateMessage(message);
        DispatchMessageW(message);
        return S_OK;
    });
    translated_ = outer;
    return result;
}

} // namespace vela::activex
