// IViewObjectEx of the shell.
#include "activex/ole/view_object.h"

#include "activex/com/guard.h"
#include "activex/ole/shell.h"

namespace vela::activex {

namespace {

// The field is one opaque picture: whoever asks for its opaque or transparent part gets all of it.
bool drawable(DWORD aspect) noexcept
{
    return aspect == DVASPECT_CONTENT || aspect == DVASPECT_OPAQUE || aspect == DVASPECT_TRANSPARENT;
}

} // namespace

ViewObject::ViewObject(Shell& shell) noexcept : Part(shell), shell_(shell) {}

void ViewObject::changed() noexcept
{
    const auto sink = sink_.shared();
    if (!sink)
        return;
    if (flags_ & ADVF_ONLYONCE)
        sink_.reset();
    sink->OnViewChange(aspects_, -1);
}

void ViewObject::putSink(DWORD aspects, DWORD flags, IAdviseSink* sink) noexcept
{
    aspects_ = aspects;
    flags_ = flags;
    sink_ = ComPtr<IAdviseSink>::share(sink);
}

HRESULT ViewObject::Draw(DWORD aspect, LONG index, void*, DVTARGETDEVICE*, HDC, HDC dc, LPCRECTL bounds, LPCRECTL,
                         BOOL(STDMETHODCALLTYPE*)(ULONG_PTR), ULONG_PTR) noexcept
{
    if (!drawable(aspect))
        return DV_E_DVASPECT;
    if (index != -1)
        return DV_E_LINDEX;
    if (!bounds || !dc)
        return E_INVALIDARG;
    return guarded([&] {
        const RECT place{bounds->left, bounds->top, bounds->right, bounds->bottom};
        shell_.content().draw(dc, place);
    });
}

HRESULT ViewObject::GetColorSet(DWORD, LONG, void*, DVTARGETDEVICE*, HDC, LOGPALETTE** colours) noexcept
{
    if (colours)
        *colours = nullptr;
    return S_FALSE;
}

HRESULT ViewObject::Freeze(DWORD, LONG, void*, DWORD*) noexcept
{
    return E_NOTIMPL;
}

HRESULT ViewObject::Unfreeze(DWORD) noexcept
{
    return E_NOTIMPL;
}

HRESULT ViewObject::SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) noexcept
{
    putSink(aspects, flags, sink);
    if (sink && (flags & ADVF_PRIMEFIRST))
        changed();
    return S_OK;
}

HRESULT ViewObject::GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) noexcept
{
    if (aspects)
        *aspects = aspects_;
    if (flags)
        *flags = flags_;
    if (sink)
        *sink = sink_.shared().release();
    return S_OK;
}

HRESULT ViewObject::GetExtent(DWORD aspect, LONG, DVTARGETDEVICE*, LPSIZEL extent) noexcept
{
    if (!extent)
        return E_POINTER;
    if (!drawable(aspect))
        return DV_E_DVASPECT;
    *extent = shell_.extent();
    return S_OK;
}

HRESULT ViewObject::GetRect(DWORD aspect, LPRECTL rect) noexcept
{
    if (!rect)
        return E_POINTER;
    if (!drawable(aspect))
        return DV_E_DVASPECT;
    const SIZEL extent = shell_.extent();
    *rect = {0, 0, extent.cx, extent.cy};
    return S_OK;
}

HRESULT ViewObject::GetViewStatus(DWORD* status) noexcept
{
    if (!status)
        return E_POINTER;
    *status = VIEWSTATUS_OPAQUE | VIEWSTATUS_SOLIDBKGND;
    return S_OK;
}

HRESULT ViewObject::QueryHitPoint(DWORD aspect, LPCRECT bounds, POINT point, LONG, DWORD* result) noexcept
{
    if (!bounds || !result)
        return E_POINTER;
    if (!drawable(aspect))
        return DV_E_DVASPECT;
    *result = PtInRect(bounds, point) ? HITRESULT_HIT : HITRESULT_OUTSIDE;
    return S_OK;
}

HRESULT ViewObject::QueryHitRect(DWORD aspect, LPCRECT bounds, LPCRECT rect, LONG, DWORD* result) noexcept
{
    if (!bounds || !rect || !result)
        return E_POINTER;
    if (!drawable(aspect))
        return DV_E_DVASPECT;
    RECT common{};
    *result = IntersectRect(&common, bounds, rect) ? HITRESULT_HIT : HITRESULT_OUTSIDE;
    return S_OK;
}

// The size wished for stands: a field has no natural size of its own beside the one it was given.
HRESULT ViewObject::GetNaturalExtent(DWORD aspect, LONG, DVTARGETDEVICE*, HDC, DVEXTENTINFO*, LPSIZEL extent) noexcept
{
    if (!extent)
        return E_POINTER;
    if (!drawable(aspect))
        return DV_E_DVASPECT;
    *extent = shell_.extent();
    return S_OK;
}

} // namespace vela::activex
