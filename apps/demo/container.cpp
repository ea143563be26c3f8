// The container's frame and sites.
#include "apps/demo/container.h"

#include "apps/demo/event_sink.h"

namespace vela::demo {

namespace {

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

void* FormFrame::find(REFIID wanted) noexcept
{
    const bool base = wanted == IID_IOleWindow || wanted == IID_IOleInPlaceUIWindow;
    return CountedObject::find(base ? IID_IOleInPlaceFrame : wanted);
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
    object_ = as<IDispatch>();
    if (handler)
        connectEvents(std::move(handler));
    SIZEL extent = toHimetric(place_);
    control_->SetExtent(DVASPECT_CONTENT, &extent);
    return activateBy(OLEIVERB_INPLACEACTIVATE);
}

HRESULT ControlSite::loadSettings(Settings settings)
{
    if (const auto persisted = as<IPersistPropertyBag>(); persisted && !settings.empty())
        return persisted->Load(make<SettingsBag>(settings).Get(), nullptr);
    const auto fresh = as<IPersistStreamInit>();
    return fresh ? fresh->InitNew() : S_OK;
}

void ControlSite::connectEvents(EventHandler handler)
{
    IID id{};
    if (const ComPtr<ITypeInfo> events = sourceTypeInfo(control_.Get(), id))
        events_.open(control_.Get(), id, make<EventSink>(events.Get(), id, std::move(handler)).Get());
}

void ControlSite::close()
{
    const ComPtr<ControlSite> alive(this);
    events_.close();
    if (const auto control = control_) {
        control->Close(OLECLOSE_NOSAVE);
        control->SetClientSite(nullptr);
    }
    object_.Reset();
    control_.Reset();
}

HWND ControlSite::window() const
{
    HWND window = nullptr;
    if (const auto inPlace = as<IOleInPlaceObject>())
        inPlace->GetWindow(&window);
    return window;
}

void ControlSite::takeFocus()
{
    if (control_)
        activateBy(OLEIVERB_UIACTIVATE);
}

void* ControlSite::find(REFIID wanted) noexcept
{
    return NumberedObject::find(wanted == IID_IOleWindow ? IID_IOleInPlaceSite : wanted);
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
    const auto inPlace = as<IOleInPlaceObject>();
    return inPlace ? inPlace->SetObjectRects(&place_, &place_) : E_UNEXPECTED;
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

HRESULT ControlSite::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*, UINT*)
{
    if (!result)
        return E_POINTER;
    VariantInit(result);
    switch (id) {
    case DISPID_AMBIENT_DISPLAYNAME:
        result->vt = VT_BSTR;
        result->bstrVal = SysAllocString(name_.c_str());
        return S_OK;
    case DISPID_AMBIENT_FONT: result->vt = VT_DISPATCH; return frame_->font(&result->pdispVal);
    case DISPID_AMBIENT_LOCALEID:
        result->vt = VT_I4;
        result->lVal = static_cast<LONG>(GetUserDefaultLCID());
        return S_OK;
    case DISPID_AMBIENT_USERMODE:
        result->vt = VT_BOOL;
        result->boolVal = VARIANT_TRUE;
        return S_OK;
    default: return DISP_E_MEMBERNOTFOUND;
    }
}

} // namespace vela::demo
