// Class factories: controls and property pages. None can be part of an aggregate.
#include "activex/class_factory.h"

#include "activex/calendar_content.h"
#include "activex/com/guard.h"
#include "activex/guids.h"
#include "activex/property_page.h"
#include "activex/vela_content.h"

namespace vela::activex {

namespace {

using Create = ComPtr<IUnknown> (*)();

struct Creator {
    const CLSID& clsid;
    Create create;
};

template <auto Facts, class Content>
ComPtr<IUnknown> createControl()
{
    return adopt<IUnknown>(new Shell(
        Facts(), [](Shell& shell) -> std::unique_ptr<activex::Content> { return std::make_unique<Content>(shell); }));
}

template <pages::PageKind Kind>
ComPtr<IUnknown> createPage()
{
    return makePropertyPage(Kind);
}

constexpr Creator creators[] = {
    {velaClass, createControl<velaFacts, VelaContent>},
    {calendarClass, createControl<calendarFacts, CalendarContent>},
    {principalPage, createPage<pages::PageKind::ppPrincipal>},
    {geralPage, createPage<pages::PageKind::ppGeral>},
    {errosPage, createPage<pages::PageKind::ppErros>},
    {fontePage, createPage<pages::PageKind::ppFonte>},
    {calendarioPage, createPage<pages::PageKind::ppCalendario>},
};

class ClassFactory final : public win32::ComObject<IClassFactory> {
public:
    explicit ClassFactory(Create create) noexcept : create_(create) {}

    STDMETHODIMP CreateInstance(IUnknown* outer, REFIID iid, void** object) noexcept override
    {
        if (!object)
            return E_POINTER;
        *object = nullptr;
        if (outer)
            return CLASS_E_NOAGGREGATION;
        return guarded([&] { return create_()->QueryInterface(iid, object); });
    }
    STDMETHODIMP LockServer(BOOL lock) noexcept override
    {
        if (lock)
            win32::useModule();
        else
            win32::leaveModule();
        return S_OK;
    }

private:
    Create create_;
};

} // namespace

HRESULT getClassObject(REFCLSID clsid, REFIID iid, void** object) noexcept
{
    if (!object)
        return E_POINTER;
    *object = nullptr;
    for (const Creator& creator : creators)
        if (creator.clsid == clsid)
            return guarded([&] { return win32::make<ClassFactory>(creator.create)->QueryInterface(iid, object); });
    return CLASS_E_CLASSNOTAVAILABLE;
}

} // namespace vela::activex
