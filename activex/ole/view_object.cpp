// IViewObjectEx of the shell.
#include "activex/ole/view_object.h"

#include "activex/ole/shell.h"
#include "platform/win32/device_context.h"

#include <utility>

namespace vela::activex {

namespace {

// The field is one opaque picture: whoever asks for its opaque or transparent part gets all of it.
bool drawable(DWORD aspect) noexcept
{
    return aspect == DVASPECT_CONTENT || aspect == DVASPECT_OPAQUE || aspect == DVASPECT_TRANSPARENT;
}

// While it lives, the device context is in pixels and `place` is the rectangle in them. A metafile keeps its units,
// because its player sets them; so does a rotated world, in which no side follows the pixels.
class PixelDc {
public:
    PixelDc(HDC dc, const RECTL& bounds) noexcept
        : saved_(dc), place_{bounds.left, bounds.top, bounds.right, bounds.bottom}
    {
        const DWORD kind = GetObjectType(dc);
        if (kind == OBJ_METADC || kind == OBJ_ENHMETADC || turned(dc))
            return;
        LPtoDP(dc, reinterpret_cast<POINT*>(&place_), 2);
        if (place_.left > place_.right)
            std::swap(place_.left, place_.right);
        if (place_.top > place_.bottom)
            std::swap(place_.top, place_.bottom);
        if (GetGraphicsMode(dc) == GM_ADVANCED)
            ModifyWorldTransform(dc, nullptr, MWT_IDENTITY);
        SetMapMode(dc, MM_TEXT);
        SetWindowOrgEx(dc, 0, 0, nullptr);
        SetViewportOrgEx(dc, 0, 0, nullptr);
    }

    [[nodiscard]] const RECT& place() const noexcept { return place_; }

private:
    static bool turned(HDC dc) noexcept
    {
        XFORM world{};
        return GetGraphicsMode(dc) == GM_ADVANCED && GetWorldTransform(dc, &world) &&
               (world.eM12 != 0 || world.eM21 != 0);
    }

    win32::SavedDc saved_;
    RECT place_;
};

} // namespace

void ViewObject::changed() noexcept
{
    const auto sink = sink_;
    if (!sink)
        return;
    if (flags_ & ADVF_ONLYONCE)
        sink_.Reset();
    sink->OnViewChange(aspects_, -1);
}

void ViewObject::putSink(DWORD aspects, DWORD flags, IAdviseSink* sink) noexcept
{
    aspects_ = aspects;
    flags_ = flags;
    sink_ = ComPtr<IAdviseSink>(sink);
}

// The picture is whole: hosts number its parts from -1, from 0 or from 1.
HRESULT ViewObject::Draw(DWORD aspect, LONG, void*, DVTARGETDEVICE*, HDC, HDC dc, LPCRECTL bounds, LPCRECTL,
                         BOOL(STDMETHODCALLTYPE*)(ULONG_PTR), ULONG_PTR) noexcept
{
    if (!drawable(aspect))
        return DV_E_DVASPECT;
    if (!bounds || !dc)
        return E_INVALIDARG;
    return shell_.guarded([&] {
        const PixelDc pixels(dc, *bounds);
        shell_.content().draw(dc, pixels.place());
    });
}

HRESULT ViewObject::GetColorSet(DWORD, LONG, void*, DVTARGETDEVICE*, HDC, LOGPALETTE** colours) noexcept
{
    if (colours)
        *colours = nullptr;
    return S_FALSE;
}

HRESULT ViewObject::SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) noexcept
{
    const Shell::Hold hold(shell_);
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
        *sink = ComPtr(sink_).Detach();
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

// A field has no natural size: it takes the one that is proposed, in either direction.
HRESULT ViewObject::GetNaturalExtent(DWORD aspect, LONG, DVTARGETDEVICE*, HDC, DVEXTENTINFO* info,
                                     LPSIZEL extent) noexcept
{
    if (!info || !extent)
        return E_POINTER;
    *extent = {-1, -1}; // not adjusted
    return drawable(aspect) ? E_NOTIMPL : DV_E_DVASPECT;
}

} // namespace vela::activex
