// IOleInPlaceObject and IOleInPlaceActiveObject of the shell.
#include "activex/ole/in_place.h"

#include "activex/ole/shell.h"

#include <utility>

namespace vela::activex {

namespace {

HRESULT windowOf(Shell& shell, HWND* window) noexcept
{
    if (!window)
        return E_POINTER;
    *window = shell.made() ? shell.made()->window() : nullptr;
    return *window ? S_OK : E_FAIL;
}

} // namespace

InPlaceObject::InPlaceObject(Shell& shell) noexcept : Part(shell), shell_(shell) {}

HRESULT InPlaceObject::GetWindow(HWND* window) noexcept
{
    return windowOf(shell_, window);
}

HRESULT InPlaceObject::ContextSensitiveHelp(BOOL) noexcept
{
    return E_NOTIMPL;
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

HRESULT InPlaceObject::ReactivateAndUndo() noexcept
{
    return INPLACE_E_NOTUNDOABLE;
}

ActiveObject::ActiveObject(Shell& shell) noexcept : Part(shell), shell_(shell) {}

HRESULT ActiveObject::GetWindow(HWND* window) noexcept
{
    return windowOf(shell_, window);
}

HRESULT ActiveObject::ContextSensitiveHelp(BOOL) noexcept
{
    return E_NOTIMPL;
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

HRESULT ActiveObject::OnFrameWindowActivate(BOOL) noexcept
{
    return S_OK;
}

HRESULT ActiveObject::OnDocWindowActivate(BOOL) noexcept
{
    return S_OK;
}

HRESULT ActiveObject::ResizeBorder(LPCRECT, IOleInPlaceUIWindow*, BOOL) noexcept
{
    return S_OK;
}

HRESULT ActiveObject::EnableModeless(BOOL) noexcept
{
    return S_OK;
}

} // namespace vela::activex
