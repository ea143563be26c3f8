// IOleObject of the shell.
#include "activex/ole/ole_object.h"

#include "activex/com/enumerator.h"
#include "activex/ole/shell.h"
#include "platform/win32/modal.h"

#include <olectl.h>

namespace vela::activex {

namespace {

struct Verb {
    LONG id;
    std::u16string_view name;
    DWORD attributes;
};
constexpr DWORD onMenu = OLEVERBATTRIB_ONCONTAINERMENU;
constexpr Verb verbs[] = {
    {OLEIVERB_PROPERTIES, u"&Propriedades...", onMenu},
    {OLEIVERB_PRIMARY, u"&Editar", 0},
    {OLEIVERB_SHOW, u"&Mostrar", 0},
    {OLEIVERB_HIDE, u"&Ocultar", 0},
    {OLEIVERB_UIACTIVATE, u"&Ativar", 0},
    {OLEIVERB_INPLACEACTIVATE, u"A&brir", 0},
};

void give(const Verb& from, OLEVERB& into)
{
    into = {from.id, newTaskText(from.name), 0, from.attributes};
}
using VerbEnumerator = Enumerator<IEnumOLEVERB, OLEVERB, Verb, give>;

} // namespace

void OleObject::saved() noexcept
{
    if (const auto advised = advised_)
        advised->SendOnSave();
}

void OleObject::closed() noexcept
{
    if (const auto advised = advised_)
        advised->SendOnClose();
}

HRESULT OleObject::SetClientSite(IOleClientSite* site) noexcept
{
    return shell_.guarded([&] { shell_.putSite(site); });
}

HRESULT OleObject::GetClientSite(IOleClientSite** site) noexcept
{
    if (!site)
        return E_POINTER;
    *site = ComPtr<IOleClientSite>(shell_.site().client()).Detach();
    return S_OK;
}

HRESULT OleObject::Close(DWORD option) noexcept
{
    const Shell::Hold hold(shell_);
    if (shell_.dirty() && option != OLECLOSE_NOSAVE)
        if (const auto client = ComPtr<IOleClientSite>(shell_.site().client()))
            client->SaveObject();
    shell_.activation().deactivate();
    closed();
    return S_OK;
}

HRESULT OleObject::GetMoniker(DWORD assign, DWORD which, IMoniker** moniker) noexcept
{
    if (!moniker)
        return E_POINTER;
    *moniker = nullptr;
    const Shell::Hold hold(shell_);
    const auto client = ComPtr<IOleClientSite>(shell_.site().client());
    return client ? client->GetMoniker(assign, which, moniker) : E_UNEXPECTED;
}

HRESULT OleObject::GetClipboardData(DWORD, IDataObject** data) noexcept
{
    if (!data)
        return E_POINTER;
    *data = nullptr;
    return E_NOTIMPL;
}

HRESULT OleObject::DoVerb(LONG verb, LPMSG, IOleClientSite*, LONG, HWND parent, LPCRECT) noexcept
{
    return shell_.guarded([&]() -> HRESULT {
        Activation& activation = shell_.activation();
        switch (verb) {
        case OLEIVERB_SHOW:
        case OLEIVERB_INPLACEACTIVATE: return activation.activate();
        case OLEIVERB_PRIMARY:
        case OLEIVERB_UIACTIVATE: return activation.activateInterface(true);
        case OLEIVERB_HIDE:
            activation.deactivateInterface();
            if (shell_.made())
                shell_.content().show(false);
            return S_OK;
        case OLEIVERB_DISCARDUNDOSTATE: return S_OK;
        case OLEIVERB_PROPERTIES: return showProperties(parent);
        default: break;
        }
        if (verb < 0)
            return E_NOTIMPL; // a verb of the system that the control does not know
        const HRESULT done = activation.activateInterface(true);
        return SUCCEEDED(done) ? OLEOBJ_S_INVALIDVERB : done;
    });
}

// The host's own frame when it has one.
HRESULT OleObject::showProperties(HWND parent)
{
    if (const auto host = shell_.site().offers<IOleControlSite>(); host && host->ShowPropertyFrame() == S_OK)
        return S_OK;
    const auto pages = shell_.facts().pages;
    if (pages.empty())
        return S_OK;
    const win32::Modal dialog;
    IUnknown* object = &shell_;
    return OleCreatePropertyFrame(parent, 0, 0, wide(shell_.facts().name.data()), 1, &object,
                                  static_cast<ULONG>(pages.size()), const_cast<CLSID*>(pages.data()),
                                  GetUserDefaultLCID(), 0, nullptr);
}

HRESULT OleObject::EnumVerbs(IEnumOLEVERB** list) noexcept
{
    if (!list)
        return E_POINTER;
    *list = nullptr;
    return shell_.guarded([&] {
        const bool pages = !shell_.facts().pages.empty();
        auto kept = std::make_shared<std::vector<Verb>>();
        for (const Verb& verb : verbs)
            if (pages || verb.id != OLEIVERB_PROPERTIES)
                kept->push_back(verb);
        *list = VerbEnumerator::make(std::move(kept)).Detach();
    });
}

HRESULT OleObject::GetUserClassID(CLSID* id) noexcept
{
    if (!id)
        return E_POINTER;
    *id = shell_.facts().clsid;
    return S_OK;
}

HRESULT OleObject::GetUserType(DWORD, LPOLESTR* type) noexcept
{
    if (!type)
        return E_POINTER;
    *type = nullptr;
    return shell_.guarded([&] { *type = newTaskText(shell_.facts().name); });
}

HRESULT OleObject::SetExtent(DWORD aspect, SIZEL* extent) noexcept
{
    if (aspect != DVASPECT_CONTENT)
        return DV_E_DVASPECT;
    if (!extent)
        return E_POINTER;
    return shell_.guarded([&] { shell_.putExtent(*extent); });
}

HRESULT OleObject::GetExtent(DWORD aspect, SIZEL* extent) noexcept
{
    if (aspect != DVASPECT_CONTENT)
        return DV_E_DVASPECT;
    if (!extent)
        return E_POINTER;
    *extent = shell_.extent();
    return S_OK;
}

HRESULT OleObject::Advise(IAdviseSink* sink, DWORD* connection) noexcept
{
    const Shell::Hold hold(shell_);
    if (!advised_)
        if (const HRESULT made = CreateOleAdviseHolder(&advised_); FAILED(made))
            return made;
    return advised_->Advise(sink, connection);
}

HRESULT OleObject::Unadvise(DWORD connection) noexcept
{
    const Shell::Hold hold(shell_);
    return advised_ ? advised_->Unadvise(connection) : OLE_E_NOCONNECTION;
}

HRESULT OleObject::EnumAdvise(IEnumSTATDATA** connections) noexcept
{
    if (!connections)
        return E_POINTER;
    *connections = nullptr;
    return advised_ ? advised_->EnumAdvise(connections) : S_OK;
}

HRESULT OleObject::GetMiscStatus(DWORD aspect, DWORD* status) noexcept
{
    if (!status)
        return E_POINTER;
    *status = aspect == DVASPECT_CONTENT ? miscStatus : 0;
    return aspect == DVASPECT_CONTENT ? S_OK : DV_E_DVASPECT;
}

} // namespace vela::activex
