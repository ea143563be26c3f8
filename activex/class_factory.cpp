// Class factories: controls and property pages. None can be part of an aggregate.
#include "activex/class_factory.h"

#include "activex/calendar_content.h"
#include "activex/com/guard.h"
#include "activex/guids.h"
#include "activex/property_page.h"
#include "activex/vela_content.h"
#include "platform/win32/module.h"

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
    return ComPtr<IUnknown>::adopt(new Shell(Facts(), &Content::make));
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

class ClassFactory final : public IClassFactory {
public:
    explicit ClassFactory(Create create) noexcept : create_(create) {}
    ClassFactory(const ClassFactory&) = delete;
    ClassFactory& operator=(const ClassFactory&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) noexcept override
    {
        if (!object)
            return E_POINTER;
        *object = nullptr;
        if (iid != IID_IUnknown && iid != IID_IClassFactory)
            return E_NOINTERFACE;
        *object = static_cast<IClassFactory*>(this);
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() noexcept override
    {
        return static_cast<ULONG>(InterlockedIncrement(&references_));
    }
    ULONG STDMETHODCALLTYPE Release() noexcept override
    {
        const LONG left = InterlockedDecrement(&references_);
        if (left == 0)
            delete this;
        return static_cast<ULONG>(left);
    }
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** object) noexcept override
    {
        if (!object)
            return E_POINTER;
        *object = nullptr;
        if (outer)
            return CLASS_E_NOAGGREGATION;
        return guarded([&] { return create_()->QueryInterface(iid, object); });
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) noexcept override
    {
        if (lock)
            win32::useModule();
        else
            win32::leaveModule();
        return S_OK;
    }

private:
    ~ClassFactory() = default;
    win32::ModuleUse use_;
    Create create_;
    LONG references_ = 1;
};

} // namespace

HRESULT getClassObject(REFCLSID clsid, REFIID iid, void** object) noexcept
{
    if (!object)
        return E_POINTER;
    *object = nullptr;
    for (const Creator& creator : creators)
        if (creator.clsid == clsid)
            return guarded([&] {
                return ComPtr<IClassFactory>::adopt(new ClassFactory(creator.create))->QueryInterface(iid, object);
            });
    return CLASS_E_CLASSNOTAVAILABLE;
}

} // namespace vela::activex
