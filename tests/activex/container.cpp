// The tests' own OLE container.
#include "container.h"

#include <gtest/gtest.h>
#include <olectl.h>

#include <algorithm>

namespace vela::test {

namespace {

constexpr wchar_t formClass[] = L"VelaTestForm";

// Takes the control's events; separate from the site's own IDispatch, which answers the ambient properties.
class EventSink final : public Dispatch {
public:
    explicit EventSink(Site& site) : site_(site) {}
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO* info,
                                     UINT*) override
    {
        if (const HRESULT refused = called("event"); FAILED(refused))
            return refused;
        const HRESULT result = site_.eventResult;
        site_.log.push_back("event " + std::to_string(id));
        if (site_.onEvent)
            site_.onEvent(id, *parameters);
        if (result == DISP_E_EXCEPTION && info) {
            info->scode = static_cast<SCODE>(0x800A0000u + 1234);
            info->bstrDescription = SysAllocString(L"handler");
            info->bstrSource = SysAllocString(L"test");
        }
        return result;
    }

private:
    Site& site_;
};

// The form's frame, with calls that can be heard.
class Frame final : public demo::FormFrame, private LiveObject {
public:
    using FormFrame::FormFrame;

    STDMETHODIMP SetBorderSpace(LPCBORDERWIDTHS) override { return called("SetBorderSpace"); }
    STDMETHODIMP SetActiveObject(IOleInPlaceActiveObject* object, LPCOLESTR name) override
    {
        FormFrame::SetActiveObject(object, name);
        return called("SetActiveObject");
    }
    STDMETHODIMP EnableModeless(BOOL enable) override
    {
        FormFrame::EnableModeless(enable);
        return called("EnableModeless");
    }

protected:
    [[nodiscard]] void* find(REFIID iid) noexcept override
    {
        return FAILED(called("QueryInterface")) ? nullptr : FormFrame::find(iid);
    }
};

} // namespace

Site::Site(Form& form, SiteOptions options)
    : ControlSite(*form.frame().Get(), form.window(), {}), form_(form), options_(options)
{
}

HRESULT Site::note(std::string word)
{
    const ComPtr<Site> alive = ComPtr<Site>(this);
    log.push_back(word);
    if (onCall)
        onCall(word.c_str());
    return called(word.c_str());
}

void* Site::find(REFIID iid) noexcept
{
    const bool hidden = ((iid == IID_IOleInPlaceSite || iid == IID_IOleWindow) && !options_.inPlace) ||
                        (iid == IID_IOleControlSite && !options_.controlSite) ||
                        (iid == IID_IDispatch && !options_.ambients);
    return hidden || FAILED(called("QueryInterface")) ? nullptr : ControlSite::find(iid);
}

void Site::hold(ComPtr<IUnknown> control)
{
    control_ = query<IOleObject>(control.Get());
    ASSERT_TRUE(control_) << "the control could not be created";
    control_->SetClientSite(this);
    if (options_.initialise) {
        ASSERT_EQ(as<IPersistStreamInit>()->InitNew(), S_OK);
    }
    if (!options_.connectEvents)
        return;
    IID source{};
    if (const auto info = as<IProvideClassInfo2>())
        info->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &source);
    events_.open(control_.Get(), source, make<EventSink>(*this).Get());
    properties_.open(control_.Get(), IID_IPropertyNotifySink, static_cast<IPropertyNotifySink*>(this));
}

HRESULT Site::activate(RECT place)
{
    place_ = place;
    return activateBy(OLEIVERB_INPLACEACTIVATE);
}

void Site::close()
{
    const ComPtr<Site> alive(this);
    events_.close();
    properties_.close();
    ControlSite::close();
}

void Site::abandon()
{
    events_.forget();
    properties_.forget();
    form_.frame()->SetActiveObject(nullptr, nullptr);
    control_.Reset();
}

HWND Site::edit() const
{
    return automation().window(u"hwnd");
}

int Site::count(std::string_view word) const
{
    return static_cast<int>(std::count(log.begin(), log.end(), word));
}

HRESULT Site::GetWindow(HWND* window)
{
    *window = form_.window();
    return called("GetWindow");
}

// One control has the user interface at a time.
HRESULT Site::OnUIActivate()
{
    if (IOleInPlaceActiveObject* const other = form_.active())
        if (const auto object = query<IOleInPlaceObject>(other))
            object->UIDeactivate();
    return note("OnUIActivate");
}

HRESULT Site::GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, LPRECT place, LPRECT clip,
                               LPOLEINPLACEFRAMEINFO info)
{
    ControlSite::GetWindowContext(frame, document, place, clip, info);
    return note("GetWindowContext");
}

HRESULT Site::GetExtendedControl(IDispatch** object)
{
    *object = nullptr;
    if (const HRESULT refused = called("GetExtendedControl"); FAILED(refused))
        return refused;
    *object = ComPtr(extender).Detach();
    return *object ? S_OK : E_NOTIMPL;
}

HRESULT Site::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*, UINT*)
{
    if (const HRESULT refused = called("ambient"); FAILED(refused))
        return refused;
    const auto found = ambients.find(id);
    if (found == ambients.end())
        return DISP_E_MEMBERNOTFOUND;
    return VariantCopy(result, const_cast<VARIANT*>(&found->second.get()));
}

HRESULT Site::OnRequestEdit(DISPID id)
{
    const HRESULT result = note("request " + std::to_string(id));
    return refuseEdits ? S_FALSE : result;
}

Form::Form()
{
    WNDCLASSW description{};
    description.lpfnWndProc = DefWindowProcW;
    description.hInstance = GetModuleHandleW(nullptr);
    description.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    description.lpszClassName = formClass;
    RegisterClassW(&description); // a second time it stands already
    // Shown without being activated, and without a caption: no window manager is asked, and none is waited for.
    window_ = CreateWindowExW(WS_EX_CONTROLPARENT, formClass, L"Vela", WS_POPUP, 0, 0, 400, 300, nullptr, nullptr,
                              description.hInstance, nullptr);
    ShowWindow(window_, SW_SHOWNOACTIVATE);
    frame_ = make<Frame>(window_);
}

Form::~Form()
{
    for (const auto& site : sites_)
        site->close();
    frame_->SetActiveObject(nullptr, nullptr);
    destroyWindow();
    pump();
}

void Form::destroyWindow()
{
    if (window_)
        DestroyWindow(std::exchange(window_, nullptr));
}

Site& Form::add(SiteOptions options, const wchar_t* progId)
{
    sites_.push_back(make<Site>(*this, options));
    Site& site = *sites_.back().Get();
    site.hold(create(progId));
    return site;
}

Site& Form::addActive(const wchar_t* progId)
{
    Site& site = add({}, progId);
    const LONG top = 10 + static_cast<LONG>(sites_.size() - 1) * 40;
    EXPECT_EQ(site.activate({10, top, 210, top + 24}), S_OK);
    return site;
}

void Form::remove(Site& site)
{
    site.close();
    std::erase_if(sites_, [&](const ComPtr<Site>& one) { return one.Get() == &site; });
    run();
}

IOleInPlaceActiveObject* Form::active() const noexcept
{
    return frame_->activeObject();
}

void Form::run()
{
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        const bool key = message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST;
        const auto active = ComPtr<IOleInPlaceActiveObject>(this->active());
        if (key && active && active->TranslateAccelerator(&message) == S_OK)
            continue;
        if (window_ && IsDialogMessageW(window_, &message))
            continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

void Form::press(WPARAM key)
{
    const UINT scan = MapVirtualKeyW(static_cast<UINT>(key), MAPVK_VK_TO_VSC);
    PostMessageW(GetFocus(), WM_KEYDOWN, key, static_cast<LPARAM>(1 | (scan << 16)));
    run();
    PostMessageW(GetFocus(), WM_KEYUP, key, static_cast<LPARAM>(0xC0000001u | (scan << 16)));
    run();
}

void Form::type(std::u16string_view text)
{
    for (const char16_t unit : text) {
        PostMessageW(GetFocus(), WM_CHAR, unit, 1);
        run();
    }
}

void Form::focus(Site& site)
{
    SetForegroundWindow(window_);
    SetFocus(site.edit());
    run();
}

} // namespace vela::test
