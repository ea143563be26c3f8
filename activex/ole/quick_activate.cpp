// IQuickActivate of the shell.
#include "activex/ole/quick_activate.h"

#include "activex/ole/shell.h"

namespace vela::activex {

namespace {

DWORD connect(Sinks& sinks, IUnknown* sink) noexcept
{
    DWORD cookie = 0;
    if (sink && FAILED(sinks.Advise(sink, &cookie)))
        cookie = 0;
    return cookie;
}

} // namespace

HRESULT FastActivation::QuickActivate(QACONTAINER* container, QACONTROL* control) noexcept
{
    if (!container || !control)
        return E_POINTER;
    if (container->cbSize < sizeof *container || control->cbSize < sizeof *control)
        return E_INVALIDARG;
    return shell_.guarded([&] {
        const ULONG size = control->cbSize;
        *control = {};
        control->cbSize = size;
        if (container->pClientSite)
            shell_.putSite(container->pClientSite);
        if (container->pAdviseSink)
            shell_.view().putSink(DVASPECT_CONTENT, 0, container->pAdviseSink);
        control->dwEventCookie = connect(shell_.connections().events(), container->pUnkEventSink);
        control->dwPropNotifyCookie = connect(shell_.connections().properties(), container->pPropertyNotifySink);
        control->dwMiscStatus = miscStatus;
        shell_.view().GetViewStatus(&control->dwViewStatus);
    });
}

HRESULT FastActivation::SetContentExtent(LPSIZEL extent) noexcept
{
    return shell_.object().SetExtent(DVASPECT_CONTENT, extent);
}

HRESULT FastActivation::GetContentExtent(LPSIZEL extent) noexcept
{
    return shell_.object().GetExtent(DVASPECT_CONTENT, extent);
}

} // namespace vela::activex
