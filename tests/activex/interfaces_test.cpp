// What hosts ask of a control besides automation: identity, enumerators, browsing, life in any order.
#include "container.h"
#include "kept_lines.h"

#include "activex/guids.h"
#include "activex/ole/browsing.h"
#include "control/property_table.h"

#include <gtest/gtest.h>
#include <olectl.h>

#include <set>

namespace vela::test {

namespace {

constexpr IID objectSafety{0xcb5bdc81, 0x93c1, 0x11cf, {0x8f, 0x20, 0x00, 0x80, 0x5f, 0x2c, 0xd0, 0x64}};

const IID offered[] = {IID_IDispatch,
                       IID_IOleObject,
                       IID_IOleControl,
                       IID_IOleWindow,
                       IID_IOleInPlaceObject,
                       IID_IOleInPlaceActiveObject,
                       IID_IViewObject,
                       IID_IViewObject2,
                       IID_IViewObjectEx,
                       IID_IPersist,
                       IID_IPersistStream,
                       IID_IPersistStreamInit,
                       IID_IPersistStorage,
                       IID_IPersistPropertyBag,
                       IID_IDataObject,
                       IID_IQuickActivate,
                       IID_IProvideClassInfo,
                       IID_IProvideClassInfo2,
                       IID_IConnectionPointContainer,
                       IID_ISupportErrorInfo,
                       IID_ISpecifyPropertyPages,
                       IID_IPerPropertyBrowsing,
                       activex::categorizePropertiesId};

// QueryInterface from each interface to each other, and back to one identity.
TEST(Interfaces, AreOneObject)
{
    const LeakCheck leaks;
    for (const wchar_t* const progId : {L"Vela.Vela", L"Vela.cCalendar.1"}) {
        const ComPtr<IUnknown> control = create(progId);
        ASSERT_TRUE(control);
        const bool field = std::wstring_view(progId) == L"Vela.Vela";
        EXPECT_EQ(static_cast<bool>(query<IUnknown>(control.Get(), activex::velaInterface)), field);
        for (const IID& from : offered) {
            const auto first = query<IUnknown>(control.Get(), from);
            ASSERT_TRUE(first) << textOf(from);
            const auto identity = query<IUnknown>(first.Get(), IID_IUnknown);
            EXPECT_EQ(identity.Get(), control.Get()) << textOf(from);
            for (const IID& to : offered)
                EXPECT_TRUE(query<IUnknown>(first.Get(), to)) << textOf(from) << " to " << textOf(to);
        }
        EXPECT_FALSE(query<IUnknown>(control.Get(), objectSafety)) << "no promise to untrusted pages";
        EXPECT_EQ(control->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
        ComPtr<IUnknown> aggregated;
        EXPECT_EQ(CoCreateInstance(activex::velaClass, control.Get(), CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&aggregated)),
                  CLASS_E_NOAGGREGATION);
    }
}

TEST(Interfaces, VerbsAreEnumerated)
{
    const ComPtr<IUnknown> control = create();
    ComPtr<IEnumOLEVERB> verbs;
    ASSERT_EQ(query<IOleObject>(control.Get())->EnumVerbs(&verbs), S_OK);
    std::set<LONG> seen;
    OLEVERB verb{};
    while (verbs->Next(1, &verb, nullptr) == S_OK) {
        seen.insert(verb.lVerb);
        CoTaskMemFree(verb.lpszVerbName);
    }
    EXPECT_TRUE(seen.contains(OLEIVERB_PRIMARY) && seen.contains(OLEIVERB_PROPERTIES));
    EXPECT_EQ(verbs->Reset(), S_OK);
    EXPECT_EQ(verbs->Skip(static_cast<ULONG>(seen.size())), S_OK);
    EXPECT_EQ(verbs->Skip(1), S_FALSE);
    ComPtr<IEnumOLEVERB> copy;
    EXPECT_EQ(verbs->Clone(&copy), S_OK);
    EXPECT_EQ(copy->Next(1, &verb, nullptr), S_FALSE);
}

TEST(Interfaces, ConnectionsAreEnumerated)
{
    const LeakCheck leaks;
    const ComPtr<IUnknown> control = create();
    const auto container = query<IConnectionPointContainer>(control.Get());
    ComPtr<IEnumConnectionPoints> points;
    ASSERT_EQ(container->EnumConnectionPoints(&points), S_OK);
    IConnectionPoint* list[3]{};
    ULONG fetched = 0;
    EXPECT_EQ(points->Next(3, list, &fetched), S_FALSE);
    ASSERT_EQ(fetched, 2u);
    IID events{};
    EXPECT_EQ(list[0]->GetConnectionInterface(&events), S_OK);
    EXPECT_EQ(events, activex::velaEvents);
    DWORD cookie = 0;
    EXPECT_EQ(list[0]->Advise(nullptr, &cookie), E_POINTER);
    EXPECT_EQ(list[1]->Advise(control.Get(), &cookie), CONNECT_E_CANNOTCONNECT) << "no sink of that kind";
    for (IConnectionPoint* point : {list[0], list[1]})
        point->Release();
    ComPtr<IConnectionPoint> none;
    EXPECT_EQ(container->FindConnectionPoint(IID_IDataObject, &none), CONNECT_E_NOCONNECTION);
}

TEST(Interfaces, EnumeratedValuesAreBrowsedByName)
{
    const ComPtr<IUnknown> control = create();
    const Automation field(control.Get());
    const auto browsing = query<IPerPropertyBrowsing>(control.Get());
    for (const control::Property& property : control::properties()) {
        CALPOLESTR names{};
        CADWORD cookies{};
        const engine::Enumeration* const enumeration = control::enumerationOf(property);
        const HRESULT result = browsing->GetPredefinedStrings(property.dispid, &names, &cookies);
        ASSERT_EQ(result, enumeration ? S_OK : S_FALSE);
        ASSERT_EQ(names.cElems, enumeration ? enumeration->members.size() : 0);
        for (ULONG i = 0; i < names.cElems; ++i) {
            const engine::Enumerator& member = enumeration->members[i];
            EXPECT_EQ(asText(names.pElems[i]), member.name);
            Variant value;
            EXPECT_EQ(browsing->GetPredefinedValue(property.dispid, cookies.pElems[i], value.put()), S_OK);
            EXPECT_EQ(value.get().lVal, member.value);
            CoTaskMemFree(names.pElems[i]);
        }
        CoTaskMemFree(names.pElems);
        CoTaskMemFree(cookies.pElems);
    }
    Bstr shown;
    EXPECT_EQ(browsing->GetDisplayString(*field.id(u"TextType"), shown.put()), S_OK);
    EXPECT_EQ(shown.text(), u"TextoNormal");
    EXPECT_EQ(browsing->GetDisplayString(*field.id(u"Mask"), shown.put()), S_FALSE);
    Variant none;
    EXPECT_EQ(browsing->GetPredefinedValue(*field.id(u"TextType"), 99, none.put()), E_INVALIDARG);
}

TEST(Interfaces, PropertiesLeadToPagesAndCategories)
{
    const ComPtr<IUnknown> control = create();
    const Automation field(control.Get());
    const auto browsing = query<IPerPropertyBrowsing>(control.Get());
    const struct {
        DISPID id;
        HRESULT result;
        CLSID page;
    } rows[] = {{*field.id(u"BackColor"), S_OK, CLSID_CColorPropPage},
                {*field.id(u"Font"), S_OK, CLSID_CFontPropPage},
                {*field.id(u"Mask"), S_OK, activex::principalPage},
                {*field.id(u"NomeCampo"), PERPROP_E_NOPAGEAVAILABLE, CLSID_NULL},
                {4711, DISP_E_MEMBERNOTFOUND, CLSID_NULL}};
    for (const auto& row : rows) {
        CLSID page{};
        EXPECT_EQ(browsing->MapPropertyToPage(row.id, &page), row.result) << row.id;
        EXPECT_EQ(page, row.page) << row.id;
    }
    const auto categorizer = query<activex::ICategorizeProperties>(control.Get(), activex::categorizePropertiesId);
    int category = 0;
    EXPECT_EQ(categorizer->MapPropertyToCategory(*field.id(u"FontBold"), &category), S_OK);
    EXPECT_EQ(category, -3);
    EXPECT_EQ(categorizer->MapPropertyToCategory(*field.id(u"MaskRules"), &category), S_OK);
    Bstr name;
    EXPECT_EQ(categorizer->GetCategoryName(category, 0, name.put()), S_OK);
    EXPECT_EQ(name.text(), u"M\u00E1scara");
    EXPECT_EQ(categorizer->GetCategoryName(-3, 0, name.put()), S_FALSE);

    CAUUID pages{};
    ASSERT_EQ(query<ISpecifyPropertyPages>(control.Get())->GetPages(&pages), S_OK);
    EXPECT_EQ(pages.cElems, 5u);
    CoTaskMemFree(pages.pElems);
}

TEST(Interfaces, QuickActivationGivesBothSidesWhatTheyWant)
{
    const LeakCheck leaks;
    Form form;
    Site& site = form.add({.connectEvents = false, .initialise = false});
    QACONTAINER container{};
    container.cbSize = sizeof container;
    container.pClientSite = &site;
    container.pPropertyNotifySink = &site;
    QACONTROL control{};
    control.cbSize = sizeof control;
    const auto quick = site.as<IQuickActivate>();
    ASSERT_EQ(quick->QuickActivate(&container, &control), S_OK);
    EXPECT_EQ(control.dwMiscStatus, 0x20191u);
    EXPECT_NE(control.dwPropNotifyCookie, 0u);
    site.automation().put(u"UpTAB", truth(false));
    EXPECT_EQ(site.count("changed " + std::to_string(*site.automation().id(u"UpTAB"))), 1);
    ComPtr<IConnectionPoint> point;
    site.as<IConnectionPointContainer>()->FindConnectionPoint(IID_IPropertyNotifySink, &point);
    EXPECT_EQ(point->Unadvise(control.dwPropNotifyCookie), S_OK);
    EXPECT_EQ(point->Unadvise(control.dwPropNotifyCookie), CONNECT_E_NOCONNECTION);
    container.cbSize = 4;
    EXPECT_EQ(quick->QuickActivate(&container, &control), E_INVALIDARG);
}

TEST(Interfaces, ExtentsThatCannotBeAreRefused)
{
    const auto object = query<IOleObject>(create().Get());
    SIZEL extent{-1, 500};
    EXPECT_TRUE(FAILED(object->SetExtent(DVASPECT_CONTENT, &extent)));
    EXPECT_EQ(object->SetExtent(DVASPECT_ICON, &extent), DV_E_DVASPECT);
    EXPECT_EQ(object->SetExtent(DVASPECT_CONTENT, nullptr), E_POINTER);
}

// Closing, taking the site and releasing, in every order.
TEST(Interfaces, LifeEndsInAnyOrder)
{
    for (int order = 0; order < 6; ++order) {
        SCOPED_TRACE(order);
        const LeakCheck leaks;
        Form form;
        Site& site = form.addActive();
        form.focus(site);
        site.automation().put(u"UpTAB", truth(false));
        const auto object = site.as<IOleObject>();
        const auto inPlace = site.as<IOleInPlaceObject>();
        const int steps[][3] = {{0, 1, 2}, {0, 2, 1}, {1, 0, 2}, {1, 2, 0}, {2, 0, 1}, {2, 1, 0}};
        for (const int step : steps[order]) {
            const HRESULT done = step == 0   ? object->Close(OLECLOSE_SAVEIFDIRTY)
                                 : step == 1 ? object->SetClientSite(nullptr)
                                             : inPlace->InPlaceDeactivate();
            EXPECT_EQ(done, S_OK) << step;
        }
        EXPECT_EQ(site.count("OnInPlaceDeactivate"), 1);
        EXPECT_EQ(site.count("SaveObject"), order == 2 || order == 3 || order == 5 ? 0 : 1) << "while it has a site";
        EXPECT_EQ(site.automation().put(u"Text", text(u"ainda")).result, S_OK);
    }
}

} // namespace

} // namespace vela::test
