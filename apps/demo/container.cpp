// The container's frame and sites.
#include "apps/demo/container.h"

#include "apps/demo/event_sink.h"

namespace vela::demo {

namespace {

constexpr DISPID ambientDisplayName = -702;
constexpr DISPID ambientFont = -703;
constexpr DISPID ambientLocale = -705;
constexpr DISPID ambientUserMode = -709;

int screenDpi()
{
    HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return dpi;
}

SIZEL toHimetric(const RECT& pixels)
{
    constexpr int himetricPerInch = 2540;
    static const int dpi = screenDpi(); // one for the whole process: it is aware of the system's only
    return {MulDiv(pixels.right - pixels.left, himetricPerInch, dpi),
            MulDiv(pixels.bottom - pixels.top, himetricPerInch, dpi)};
}

// The form's own font: what a control without a font of its own takes.
HRESULT ambientFontObject(IDispatch** font)
{
    FONTDESC description{};
    description.cbSizeofstruct = sizeof description;
    description.lpstrName = const_cast<LPOLESTR>(L"Tahoma");
    description.cySize.int64 = 8 * 10000;
    description.sWeight = FW_NORMAL;
    description.sCharset = DEFAULT_CHARSET;
    return OleCreateFontIndirect(&description, IID_IDispatch, reinterpret_cast<void**>(font));
}

} // namespace

HRESULT FormFrame::QueryInterface(REFIID id, void** object)
{
    if (!object)
        return E_POINTER;
    const bool known =
        id == IID_IUnknown || id == IID_IOleWindow || id == IID_IOleInPlaceUIWindow || id == IID_IOleInPlaceFrame;
    *object = known ? static_cast<IOleInPlaceFrame*>(this) : nullptr;
    if (!known)
        return E_NOINTERFACE;
    AddRef();
    return S_OK;
}

ULONG FormFrame::Release()
{
    const ULONG left = --references_;
    if (left == 0)
        delete this;
    return left;
}

HRESULT FormFrame::GetWindow(HWND* window)
{
    if (!window)
        return E_POINTER;
    *window = window_;
    return S_OK;
}

HRESULT FormFrame::SetActiveObject(IOleInPlaceActiveObject* object, LPCOLESTR)
{
    ComPtr<IOleInPlaceActiveObject>(object).Swap(active_); // letting the last one go may end in this very call
    return S_OK;
}

ControlSite::ControlSite(FormFrame& frame, HWND form, std::wstring name)
    : frame_(&frame), form_(form), name_(std::move(name))
{
}

HRESULT FormFrame::font(IDispatch** font)
{
    if (!font_)
        if (const HRESULT made = ambientFontObject(&font_); FAILED(made))
            return made;
    return font_->QueryInterface(IID_PPV_ARGS(font));
}

HRESULT FormFrame::create(const wchar_t* progId, ComPtr<IOleObject>& control)
{
    if (!factory_ || progId_ != progId) {
        CLSID id{};
        factory_.Reset();
        if (const HRESULT known = CLSIDFromProgID(progId, &id); FAILED(known))
            return known;
        if (const HRESULT found = CoGetClassObject(id, CLSCTX_INPROC_SERVER, nullptr, IID_PPV_ARGS(&factory_));
            FAILED(found))
            return found;
        progId_ = progId;
    }
    return factory_->CreateInstance(nullptr, IID_PPV_ARGS(&control));
}

HRESULT ControlSite::open(const wchar_t* progId, RECT place, Settings settings, EventHandler handler)
{
    place_ = place;
    if (const HRESULT made = frame_->create(progId, control_); FAILED(made))
        return made;
    if (const HRESULT sited = control_->SetClientSite(this); FAILED(sited))
        return sited;
    if (const HRESULT loaded = loadSettings(settings); FAILED(loaded))
        return loaded;
    control_.As(&object_);
    if (handler)
        connectEvents(std::move(handler));
    SIZEL extent = toHimetric(place_);
    control_->SetExtent(DVASPECT_CONTENT, &extent);
    return control_->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, this, 0, form_, &place_);
}

HRESULT ControlSite::loadSettings(Settings settings)
{
    ComPtr<IPersistPropertyBag> persisted;
    if (settings.size() != 0 && SUCCEEDED(control_.As(&persisted))) {
        ComPtr<SettingsBag> bag;
        bag.Attach(new SettingsBag(settings));
        return persisted->Load(bag.Get(), nullptr);
    }
    ComPtr<IPersistStreamInit> fresh;
    return SUCCEEDED(control_.As(&fresh)) ? fresh->InitNew() : S_OK;
}

void ControlSite::connectEvents(EventHandler handler)
{
    IID id{};
    ComPtr<IConnectionPointContainer> points;
    const ComPtr<ITypeInfo> events = sourceTypeInfo(control_.Get(), id);
    if (!events || FAILED(control_.As(&points)) || FAILED(points->FindConnectionPoint(id, &eventSource_)))
        return;
    ComPtr<EventSink> sink;
    sink.Attach(new EventSink(events.Get(), id, std::move(handler)));
    eventSource_->Advise(sink.Get(), &eventCookie_);
}

void ControlSite::close()
{
    if (eventSource_ && eventCookie_ != 0)
        eventSource_->Unadvise(eventCookie_);
    eventSource_.Reset();
    if (control_) {
        control_->Close(OLECLOSE_NOSAVE);
        control_->SetClientSite(nullptr);
    }
    object_.Reset();
    control_.Reset();
}

HWND ControlSite::window() const
{
    ComPtr<IOleInPlaceObject> inPlace;
    HWND window = nullptr;
    if (control_ && SUCCEEDED(control_.As(&inPlace)))
        inPlace->GetWindow(&window);
    return window;
}

void ControlSite::takeFocus()
{
    if (control_)
        control_->DoVerb(OLEIVERB_UIACTIVATE, nullptr, this, 0, form_, &place_);
}

HRESULT ControlSite::QueryInterface(REFIID id, void** object)
{
    if (!object)
        return E_POINTER;
    *object = nullptr;
    if (id == IID_IUnknown || id == IID_IOleClientSite)
        *object = static_cast<IOleClientSite*>(this);
    else if (id == IID_IOleWindow || id == IID_IOleInPlaceSite)
        *object = static_cast<IOleInPlaceSite*>(this);
    else if (id == IID_IOleControlSite)
        *object = static_cast<IOleControlSite*>(this);
    else if (id == IID_IDispatch)
        *object = static_cast<IDispatch*>(this);
    else if (id == IID_IPropertyNotifySink)
        *object = static_cast<IPropertyNotifySink*>(this);
    if (!*object)
        return E_NOINTERFACE;
    AddRef();
    return S_OK;
}

ULONG ControlSite::Release()
{
    const ULONG left = --references_;
    if (left == 0)
        delete this;
    return left;
}

HRESULT ControlSite::GetContainer(IOleContainer** container)
{
    if (!container)
        return E_POINTER;
    *container = nullptr;
    return E_NOINTERFACE;
}

HRESULT ControlSite::GetWindow(HWND* window)
{
    if (!window)
        return E_POINTER;
    *window = form_;
    return S_OK;
}

HRESULT ControlSite::GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, LPRECT place,
                                      LPRECT clip, LPOLEINPLACEFRAMEINFO info)
{
    if (!frame || !document || !place || !clip || !info)
        return E_POINTER;
    *frame = frame_.Get();
    (*frame)->AddRef();
    *document = nullptr;
    *place = place_;
    GetClientRect(form_, clip);
    info->fMDIApp = FALSE;
    info->hwndFrame = form_;
    info->haccel = nullptr;
    info->cAccelEntries = 0;
    return S_OK;
}

HRESULT ControlSite::OnPosRectChange(LPCRECT place)
{
    if (!place)
        return E_POINTER;
    place_ = *place;
    ComPtr<IOleInPlaceObject> inPlace;
    if (control_ && SUCCEEDED(control_.As(&inPlace)))
        return inPlace->SetObjectRects(&place_, &place_);
    return E_UNEXPECTED;
}

// Tab and Shift+Tab go to the form's own order; everything else is the control's.
HRESULT ControlSite::TranslateAccelerator(LPMSG message, DWORD)
{
    if (!message || message->message != WM_KEYDOWN || message->wParam != VK_TAB)
        return S_FALSE;
    const BOOL backwards = GetKeyState(VK_SHIFT) < 0;
    if (HWND next = GetNextDlgTabItem(form_, GetFocus(), backwards))
        SetFocus(next);
    return S_OK;
}

HRESULT ControlSite::GetTypeInfoCount(UINT* count)
{
    if (!count)
        return E_POINTER;
    *count = 0;
    return S_OK;
}

HRESULT ControlSite::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*, UINT*)
{
    if (!result)
        return E_POINTER;
    VariantInit(result);
    switch (id) {
    case ambientDisplayName:
        result->vt = VT_BSTR;
        result->bstrVal = SysAllocString(name_.c_str());
        return S_OK;
    case ambientFont: result->vt = VT_DISPATCH; return frame_->font(&result->pdispVal);
    case ambientLocale:
        result->vt = VT_I4;
        result->lVal = static_cast<LONG>(GetUserDefaultLCID());
        return S_OK;
    case ambientUserMode:
        result->vt = VT_BOOL;
        result->boolVal = VARIANT_TRUE;
        return S_OK;
    default: return DISP_E_MEMBERNOTFOUND;
    }
}

} // namespace vela::demo
