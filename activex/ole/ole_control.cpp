// IOleControl of the shell.
#include "activex/ole/ole_control.h"

#include "activex/ole/shell.h"

namespace vela::activex {

// A field has no access key of its own: its label's leads to it.
HRESULT OleControl::GetControlInfo(CONTROLINFO* info) noexcept
{
    if (!info)
        return E_POINTER;
    return shell_.guarded([&] {
        const ULONG size = info->cb;
        *info = {};
        info->cb = size;
        info->dwFlags = shell_.content().eatsReturn() ? CTRLINFO_EATS_RETURN : 0;
    });
}

HRESULT OleControl::OnMnemonic(MSG*) noexcept
{
    return shell_.guarded([&] { return shell_.activation().activateInterface(true); });
}

HRESULT OleControl::OnAmbientPropertyChange(DISPID id) noexcept
{
    return shell_.guarded([&] {
        if (Content* content = shell_.made())
            content->ambientChanged(id);
    });
}

HRESULT OleControl::FreezeEvents(BOOL freeze) noexcept
{
    shell_.freeze(freeze != FALSE);
    return S_OK;
}

} // namespace vela::activex
