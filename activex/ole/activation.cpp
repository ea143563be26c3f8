// In-place activation and its undoing. A host may close the control inside any call made here.
#include "activex/ole/activation.h"

#include "activex/com/guard.h"
#include "activex/ole/modal_frames.h"
#include "activex/ole/shell.h"
#include "engine/scoped_value.h"

namespace vela::activex {

namespace {

bool contains(const RECT& outer, const RECT& inner) noexcept
{
    return outer.left <= inner.left && outer.top <= inner.top && outer.right >= inner.right &&
           outer.bottom >= inner.bottom;
}

} // namespace

HRESULT Activation::activate()
{
    if (leaving_)
        return E_FAIL;
    if (inPlace_) {
        shell_.content().show(true);
        return S_OK;
    }
    if (entering_)
        return E_FAIL;
    const HRESULT entered = enter();
    if (SUCCEEDED(entered) && inPlace_)
        if (const auto client = ComPtr<IOleClientSite>(shell_.site().client()))
            client->ShowObject();
    return entered;
}

HRESULT Activation::enter()
{
    const engine::ScopedFlag entering(entering_, true);
    closed_ = false;
    auto site = shell_.site().offers<IOleInPlaceSite>();
    if (!site)
        return shell_.site() ? E_FAIL : OLE_E_NOT_INPLACEACTIVE;
    if (const HRESULT may = site->CanInPlaceActivate(); may != S_OK)
        return FAILED(may) ? may : E_FAIL;
    if (closed_)
        return E_FAIL;
    if (const HRESULT begun = begin(*site.Get()); FAILED(begun)) {
        deactivate();
        return begun;
    }
    return S_OK;
}

HRESULT Activation::begin(IOleInPlaceSite& site)
{
    if (const HRESULT told = site.OnInPlaceActivate(); FAILED(told))
        return told;
    site_ = ComPtr<IOleInPlaceSite>(&site);
    inPlace_ = true;
    if (closed_)
        return E_FAIL;
    HWND parent = nullptr;
    if (const HRESULT known = site.GetWindow(&parent); FAILED(known))
        return known;
    if (!inPlace_)
        return E_FAIL; // closed inside the call
    RECT place{};
    RECT bounds{};
    OLEINPLACEFRAMEINFO info{};
    info.cb = sizeof info;
    ComPtr<IOleInPlaceFrame> frame;
    ComPtr<IOleInPlaceUIWindow> document;
    if (const HRESULT context = site.GetWindowContext(&frame, &document, &place, &bounds, &info); FAILED(context))
        return context;
    if (!inPlace_)
        return E_FAIL;
    frame_ = std::move(frame);
    addModalFrame(frame_.Get());
    document_ = std::move(document);
    try {
        Content& content = shell_.content();
        if (!inPlace_)
            return E_FAIL;
        content.attach(parent, place);
        if (!inPlace_) {
            content.detach();
            return E_FAIL;
        }
    } catch (...) {
        return reportCurrentException();
    }
    clip(place, bounds);
    shell_.followWindow();
    return S_OK;
}

HRESULT Activation::activateInterface(bool takeFocus)
{
    if (const HRESULT active = activate(); FAILED(active))
        return active;
    if (!interface_ && inPlace_) {
        interface_ = true;
        const auto site = site_;
        if (const HRESULT told = site->OnUIActivate(); FAILED(told)) {
            interface_ = false;
            return told;
        }
        if (interface_)
            if (const auto active = query<IOleInPlaceActiveObject>(&shell_))
                offer(active.Get());
    }
    if (takeFocus && inPlace_ && !shell_.content().hasFocus())
        shell_.content().takeFocus();
    return inPlace_ ? S_OK : E_FAIL;
}

void Activation::offer(IOleInPlaceActiveObject* active) noexcept
{
    const wchar_t* const name = active ? wide(shell_.facts().name.data()) : nullptr;
    if (const auto frame = frame_) {
        frame->SetActiveObject(active, name);
        if (active && interface_)
            frame->SetBorderSpace(nullptr);
    }
    if (active && !interface_)
        return; // closed inside the call
    if (const auto document = document_) {
        document->SetActiveObject(active, name);
        if (active && interface_)
            document->SetBorderSpace(nullptr);
    }
}

void Activation::deactivateInterface() noexcept
{
    if (!interface_)
        return;
    interface_ = false;
    offer(nullptr);
    if (const auto site = site_)
        site->OnUIDeactivate(FALSE);
}

void Activation::deactivate() noexcept
{
    closed_ = true;
    if (!inPlace_ || leaving_)
        return;
    const engine::ScopedFlag leaving(leaving_, true);
    deactivateInterface();
    inPlace_ = false;
    if (Content* content = shell_.made())
        content->detach();
    removeModalFrame(frame_.Get());
    frame_.Reset();
    document_.Reset();
    if (const auto site = std::move(site_))
        site->OnInPlaceDeactivate();
}

void Activation::putRects(const RECT& place, const RECT& bounds)
{
    if (!inPlace_)
        return;
    shell_.content().place(place);
    clip(place, bounds);
    shell_.followWindow();
}

// The host's own window cuts its children already; a clip is needed only where the host wants less shown.
void Activation::clip(const RECT& place, const RECT& bounds) noexcept
{
    Content* const content = shell_.made();
    if (!content || IsRectEmpty(&bounds))
        return;
    RECT shown{};
    IntersectRect(&shown, &place, &bounds);
    OffsetRect(&shown, -place.left, -place.top);
    contained([&] { content->clip(contains(bounds, place) ? nullptr : &shown); });
}

} // namespace vela::activex
