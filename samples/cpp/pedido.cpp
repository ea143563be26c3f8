// A field in a plain OLE container: one window, one site, no framework.
// MSYS2 or mingw-w64: g++ -std=c++17 -municode pedido.cpp -o pedido.exe -static -lole32 -loleaut32 -luuid
// MSVC:               cl /std:c++17 /EHsc pedido.cpp ole32.lib oleaut32.lib user32.lib
// `pedido` shows the form; `pedido --values` sets a value, prints what the field makes of it, and ends.
#include <windows.h>

#include <cstdio>
#include <cwchar>
#include <ocidl.h>
#include <oleauto.h>
#include <olectl.h>

// The site: what a control must find in its host, and nothing more.
class Site : public IOleClientSite, public IOleInPlaceSite, public IOleInPlaceFrame {
public:
    explicit Site(HWND window) : window_(window) {}
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override
    {
        *object = id == IID_IUnknown || id == IID_IOleClientSite      ? static_cast<IOleClientSite*>(this)
                  : id == IID_IOleWindow || id == IID_IOleInPlaceSite ? static_cast<IOleInPlaceSite*>(this)
                                                                      : static_cast<void*>(nullptr);
        return *object ? S_OK : E_NOINTERFACE;
    }
    // The site lives as long as the window, longer than the control.
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    // IOleClientSite
    HRESULT STDMETHODCALLTYPE SaveObject() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetContainer(IOleContainer** container) override
    {
        *container = nullptr;
        return E_NOINTERFACE;
    }
    HRESULT STDMETHODCALLTYPE ShowObject() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnShowWindow(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE RequestNewObjectLayout() override { return E_NOTIMPL; }
    // IOleWindow, for the site and the frame
    HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override
    {
        *window = window_;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override { return S_OK; }
    // IOleInPlaceSite
    HRESULT STDMETHODCALLTYPE CanInPlaceActivate() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnInPlaceActivate() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnUIActivate() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, RECT* place,
                                               RECT* clip, OLEINPLACEFRAMEINFO* info) override
    {
        *frame = this;
        *document = nullptr;
        *place = *clip = RECT{16, 16, 176, 39};
        info->fMDIApp = FALSE;
        info->hwndFrame = window_;
        info->haccel = nullptr;
        info->cAccelEntries = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Scroll(SIZE) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE OnUIDeactivate(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnInPlaceDeactivate() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE DiscardUndoState() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE DeactivateAndUndo() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE OnPosRectChange(const RECT*) override { return S_OK; }
    // IOleInPlaceFrame
    HRESULT STDMETHODCALLTYPE GetBorder(RECT*) override { return INPLACE_E_NOTOOLSPACE; }
    HRESULT STDMETHODCALLTYPE RequestBorderSpace(LPCBORDERWIDTHS) override { return INPLACE_E_NOTOOLSPACE; }
    HRESULT STDMETHODCALLTYPE SetBorderSpace(LPCBORDERWIDTHS) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE SetActiveObject(IOleInPlaceActiveObject* object, LPCOLESTR) override
    {
        if (object)
            object->AddRef();
        if (active_)
            active_->Release();
        active_ = object;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE InsertMenus(HMENU, LPOLEMENUGROUPWIDTHS) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetMenu(HMENU, HOLEMENU, HWND) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE RemoveMenus(HMENU) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetStatusText(LPCOLESTR) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE EnableModeless(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(LPMSG, WORD) override { return S_FALSE; }

    // Keys go to the control that has the focus, then to the form's dialog keys.
    bool translates(MSG& message)
    {
        return (active_ && active_->TranslateAccelerator(&message) == S_OK) || IsDialogMessageW(window_, &message);
    }

private:
    HWND window_;
    IOleInPlaceActiveObject* active_ = nullptr; // the control lets go of it when it is closed
};

static HRESULT put(IDispatch* object, const wchar_t* name, VARIANT value)
{
    DISPID id, named = DISPID_PROPERTYPUT;
    wchar_t* text = const_cast<wchar_t*>(name);
    HRESULT result = object->GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &id);
    DISPPARAMS arguments{&value, &named, 1, 1};
    return SUCCEEDED(result) ? object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYPUT, &arguments,
                                              nullptr, nullptr, nullptr)
                             : result;
}

static HRESULT get(IDispatch* object, const wchar_t* name, VARIANT* value)
{
    DISPID id;
    wchar_t* text = const_cast<wchar_t*>(name);
    HRESULT result = object->GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &id);
    DISPPARAMS none{};
    return SUCCEEDED(result)
               ? object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none, value, nullptr, nullptr)
               : result;
}

static VARIANT number(long value)
{
    VARIANT v;
    VariantInit(&v);
    v.vt = VT_I4;
    v.lVal = value;
    return v;
}
static VARIANT truth(bool on)
{
    VARIANT v;
    VariantInit(&v);
    v.vt = VT_BOOL;
    v.boolVal = on ? VARIANT_TRUE : VARIANT_FALSE;
    return v;
}
static VARIANT real(double value)
{
    VARIANT v;
    VariantInit(&v);
    v.vt = VT_R8;
    v.dblVal = value;
    return v;
}

static LRESULT CALLBACK windowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_DESTROY)
        PostQuitMessage(0);
    return DefWindowProcW(window, message, wParam, lParam);
}

static int run(bool valuesOnly)
{
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = windowProcedure;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.lpszClassName = L"Pedido";
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    RegisterClassW(&windowClass);
    HWND window =
        CreateWindowExW(WS_EX_CONTROLPARENT, L"Pedido", L"Pedido", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, CW_USEDEFAULT,
                        CW_USEDEFAULT, 260, 140, nullptr, nullptr, windowClass.hInstance, nullptr);
    Site site(window);
    CLSID id;
    IOleObject* control = nullptr;
    IDispatch* field = nullptr;
    if (FAILED(CLSIDFromProgID(L"Vela.Vela", &id)) ||
        FAILED(
            CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IOleObject, reinterpret_cast<void**>(&control))) ||
        FAILED(control->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(&field)))) {
        std::puts("Vela.ocx is not registered for this bitness.");
        return 1;
    }
    RECT place{16, 16, 176, 39};
    control->SetClientSite(&site);
    IPersistStreamInit* settings = nullptr;
    if (SUCCEEDED(control->QueryInterface(IID_IPersistStreamInit, reinterpret_cast<void**>(&settings)))) {
        settings->InitNew();
        settings->Release();
    }
    control->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, &site, 0, window, &place);
    put(field, L"TextType", number(1));      // Numerico
    put(field, L"SimbolDecExib", number(2)); // Virgula
    put(field, L"SimbolDecRet", number(2));
    put(field, L"SimbolAgrupMilhar", number(1)); // Ponto
    put(field, L"QtdCasasDec", number(2));
    put(field, L"InserirZeros", truth(true));
    put(field, L"Value", real(1234.5));

    VARIANT value;
    VariantInit(&value);
    get(field, L"Text", &value);
    std::printf("Text: %ls\n", value.vt == VT_BSTR ? value.bstrVal : L"?");
    VariantClear(&value);
    get(field, L"Value", &value);
    std::printf("Value: %g\n", value.vt == VT_R8 ? value.dblVal : -1.0);
    VariantClear(&value);

    if (!valuesOnly) {
        ShowWindow(window, SW_SHOW);
        MSG message;
        while (GetMessageW(&message, nullptr, 0, 0) > 0)
            if (!site.translates(message)) {
                TranslateMessage(&message);
                DispatchMessageW(&message);
            }
    }
    field->Release();
    control->Close(OLECLOSE_NOSAVE);
    control->SetClientSite(nullptr);
    control->Release();
    return 0;
}

int wmain(int argc, wchar_t** argv)
{
    OleInitialize(nullptr);
    const int status = run(argc > 1 && std::wcscmp(argv[1], L"--values") == 0);
    OleUninitialize();
    return status;
}
