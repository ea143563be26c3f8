// Hosting VBScript. The engine here binds no events itself: a sink of ours calls the script's procedures, each argument
// wrapped as a variant by reference and copied back, since a number by reference does not come back from the engine.
#include "script_host.h"

#include "automation.h"

#include "apps/demo/event_sink.h"

#include <activscp.h>

#include <string>

namespace vela::test {

namespace {

// {B54F3741-5B07-11CF-A4B0-00AA004A55E8}
constexpr CLSID vbScript{0xb54f3741, 0x5b07, 0x11cf, {0xa4, 0xb0, 0x00, 0xaa, 0x00, 0x4a, 0x55, 0xe8}};

class ScriptSite final : public ComObject<IActiveScriptSite> {
public:
    ComPtr<IUnknown> object;
    std::u16string failure;

    HRESULT STDMETHODCALLTYPE GetLCID(LCID*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetItemInfo(LPCOLESTR, DWORD mask, IUnknown** item, ITypeInfo** info) override
    {
        if (mask & SCRIPTINFO_IUNKNOWN)
            *item = object.shared().release();
        if (mask & SCRIPTINFO_ITYPEINFO)
            *info = nullptr;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetDocVersionString(BSTR*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE OnScriptTerminate(const VARIANT*, const EXCEPINFO*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnStateChange(SCRIPTSTATE) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnScriptError(IActiveScriptError* error) override
    {
        EXCEPINFO info{};
        error->GetExceptionInfo(&info);
        Bstr source;
        Bstr description;
        *source.put() = info.bstrSource;
        *description.put() = info.bstrDescription;
        const std::string number = std::to_string(info.scode & 0xFFFF);
        failure = std::u16string(number.begin(), number.end()) + u" " + std::u16string(source.text()) + u": " +
                  std::u16string(description.text());
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE OnEnterScript() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnLeaveScript() override { return S_OK; }
};

class ScriptSink final : public Dispatch {
public:
    ScriptSink(IDispatch* script, ITypeInfo* events, std::wstring prefix)
        : script_(ComPtr<IDispatch>::share(script)), events_(ComPtr<ITypeInfo>::share(events)),
          prefix_(std::move(prefix))
    {
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* given, VARIANT*, EXCEPINFO* info,
                                     UINT*) override
    {
        Bstr event;
        UINT count = 0;
        if (FAILED(events_->GetNames(id, event.put(), 1, &count)) || count != 1)
            return DISP_E_MEMBERNOTFOUND;
        std::wstring name = prefix_ + L"_" + std::wstring(event.get());
        auto* wanted = name.data();
        DISPID procedure = DISPID_UNKNOWN;
        if (FAILED(script_->GetIDsOfNames(IID_NULL, &wanted, 1, 0, &procedure)))
            return DISP_E_MEMBERNOTFOUND; // the script has no handler for it
        VARIANT values[2]{};
        VARIANT wrapped[2]{};
        for (UINT i = 0; i < given->cArgs; ++i) {
            VariantCopyInd(&values[i], &given->rgvarg[i]);
            wrapped[i].vt = VT_BYREF | VT_VARIANT;
            wrapped[i].pvarVal = &values[i];
        }
        DISPPARAMS parameters{wrapped, nullptr, given->cArgs, 0};
        const HRESULT result =
            script_->Invoke(procedure, IID_NULL, 0, DISPATCH_METHOD, &parameters, nullptr, info, nullptr);
        for (UINT i = 0; i < given->cArgs; ++i)
            if (given->rgvarg[i].vt == (VT_BYREF | VT_I2) &&
                SUCCEEDED(VariantChangeType(&values[i], &values[i], 0, VT_I2)))
                *given->rgvarg[i].piVal = values[i].iVal;
        return result;
    }

private:
    ComPtr<IDispatch> script_;
    ComPtr<ITypeInfo> events_;
    std::wstring prefix_;
};

} // namespace

struct ScriptHost::State {
    ComPtr<ScriptSite> site = make<ScriptSite>();
    ComPtr<IActiveScript> engine;
    ComPtr<IDispatch> script;
    Connection events;
    bool running = false;

    void connect(IUnknown* object, const wchar_t* name)
    {
        IID source{};
        if (const auto description = demo::sourceTypeInfo(object, source))
            running = events.open(object, source, make<ScriptSink>(script.get(), description.Get(), name).get());
    }
};

ScriptHost::ScriptHost(std::wstring_view code, const wchar_t* name, IUnknown* object)
    : state_(std::make_unique<State>())
{
    State& state = *state_;
    state.site->object = ComPtr<IUnknown>::share(object);
    if (FAILED(CoCreateInstance(vbScript, nullptr, CLSCTX_INPROC_SERVER, IID_IActiveScript, state.engine.putVoid())))
        return;
    state.engine->SetScriptSite(state.site.get());
    const auto parser = ComPtr<IActiveScriptParse>::from(state.engine.get());
    parser->InitNew();
    state.engine->AddNamedItem(name, SCRIPTITEM_ISVISIBLE);
    const std::wstring text(code);
    if (FAILED(parser->ParseScriptText(text.c_str(), nullptr, nullptr, nullptr, 0, 0, SCRIPTTEXT_ISVISIBLE, nullptr,
                                       nullptr)) ||
        FAILED(state.engine->SetScriptState(SCRIPTSTATE_CONNECTED)) ||
        FAILED(state.engine->GetScriptDispatch(nullptr, state.script.put())))
        return;
    state.connect(object, name);
}

ScriptHost::~ScriptHost()
{
    state_->events.close();
    state_->script.reset();
    if (state_->engine)
        state_->engine->Close();
}

bool ScriptHost::running() const noexcept
{
    return state_->running;
}

const std::u16string& ScriptHost::failure() const noexcept
{
    return state_->site->failure;
}

Variant ScriptHost::variable(const wchar_t* name) const
{
    const std::wstring kept(name);
    return std::move(Automation(state_->script.get()).get(asText(kept.data(), kept.size())).value);
}

} // namespace vela::test
