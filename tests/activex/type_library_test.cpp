// The compiled type library beside the table of members: every name, DISPID, type, flag and help text.
#include "kept_lines.h"
#include "library.h"

#include "activex/guids.h"
#include "control/property_table.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace vela::test {

namespace {

using control::Access;
using control::Browsable;
using control::Property;
using control::PropertyType;

ComPtr<ITypeLib> loadLibrary()
{
    ComPtr<ITypeLib> library;
    EXPECT_EQ(LoadTypeLibEx(libraryPath().c_str(), REGKIND_NONE, &library), S_OK);
    return library;
}

ComPtr<ITypeInfo> infoOf(ITypeLib& library, const GUID& id)
{
    ComPtr<ITypeInfo> info;
    EXPECT_EQ(library.GetTypeInfoOfGuid(id, &info), S_OK);
    return info;
}

struct Attributes {
    explicit Attributes(ITypeInfo& of) : info(of) { info.GetTypeAttr(&attributes); }
    Attributes(const Attributes&) = delete;
    Attributes& operator=(const Attributes&) = delete;
    ~Attributes() { info.ReleaseTypeAttr(attributes); }
    TYPEATTR* operator->() const { return attributes; }
    ITypeInfo& info;
    TYPEATTR* attributes = nullptr;
};

std::u16string nameOf(ITypeInfo& info, MEMBERID id)
{
    Bstr name;
    info.GetDocumentation(id, name.put(), nullptr, nullptr, nullptr);
    return std::u16string(name.text());
}

// "BSTR", "bool", "short", or the name of the type referred to.
std::u16string typeText(ITypeInfo& info, const TYPEDESC& type)
{
    switch (type.vt) {
    case VT_BSTR: return u"BSTR";
    case VT_BOOL: return u"Boolean";
    case VT_UI1: return u"Byte";
    case VT_I2: return u"Integer";
    case VT_I4: return u"Long";
    case VT_VARIANT: return u"Variant";
    case VT_VOID: return u"void";
    case VT_DATE: return u"Date";
    case VT_PTR: return typeText(info, *type.lptdesc) + u"*";
    case VT_USERDEFINED: {
        ComPtr<ITypeInfo> other;
        if (FAILED(info.GetRefTypeInfo(type.hreftype, &other)))
            return u"unresolved";
        return nameOf(*other.Get(), MEMBERID_NIL);
    }
    default: return u"?";
    }
}

std::u16string expectedType(const Property& property)
{
    switch (property.type()) {
    case PropertyType::boolean: return u"Boolean";
    case PropertyType::byte: return u"Byte";
    case PropertyType::integer: return u"Integer";
    case PropertyType::longInteger: return u"Long";
    case PropertyType::colour: return u"OLE_COLOR";
    case PropertyType::enumeration: return std::u16string(control::enumerationOf(property)->name);
    case PropertyType::text: return u"BSTR";
    case PropertyType::font: return u"IFontDisp*";
    case PropertyType::variant: return u"Variant";
    }
    return {};
}

WORD expectedFlags(const Property& property)
{
    WORD flags = 0;
    if (property.bindable)
        flags |= FUNCFLAG_FBINDABLE | FUNCFLAG_FREQUESTEDIT;
    if (property.name == u"Text")
        flags |= FUNCFLAG_FDISPLAYBIND | FUNCFLAG_FDEFAULTBIND;
    if (property.browsable != Browsable::yes)
        flags |= FUNCFLAG_FNONBROWSABLE;
    if (property.browsable == Browsable::hidden)
        flags |= FUNCFLAG_FHIDDEN;
    return flags;
}

struct Function {
    std::u16string name;
    std::u16string help;
    std::u16string type; // of the result or, of a put, of the value
    INVOKEKIND kind;
    WORD flags;
    std::vector<std::u16string> parameters;
};

std::multimap<MEMBERID, Function> functionsOf(ITypeInfo& info)
{
    std::multimap<MEMBERID, Function> functions;
    const Attributes attributes(info);
    for (UINT i = 0; i < attributes->cFuncs; ++i) {
        FUNCDESC* function = nullptr;
        if (FAILED(info.GetFuncDesc(i, &function)))
            continue;
        Bstr help;
        info.GetDocumentation(function->memid, nullptr, help.put(), nullptr, nullptr);
        Function one{nameOf(info, function->memid),
                     std::u16string(help.text()),
                     typeText(info, function->elemdescFunc.tdesc),
                     function->invkind,
                     function->wFuncFlags,
                     {}};
        for (SHORT parameter = 0; parameter < function->cParams; ++parameter)
            one.parameters.push_back(typeText(info, function->lprgelemdescParam[parameter].tdesc));
        if (one.kind != INVOKE_PROPERTYGET && one.kind != INVOKE_FUNC)
            one.type = one.parameters.back();
        functions.emplace(function->memid, std::move(one));
        info.ReleaseFuncDesc(function);
    }
    return functions;
}

INVOKEKIND putKind(const Property& property)
{
    return property.access() == Access::readWriteReference ? INVOKE_PROPERTYPUTREF : INVOKE_PROPERTYPUT;
}

TEST(TypeLibrary, HoldsEveryPropertyOfTheTableAndNoOther)
{
    const auto library = loadLibrary();
    const auto info = infoOf(*library.Get(), activex::velaInterface);
    const auto functions = functionsOf(*info.Get());
    std::size_t expected = control::methods().size();
    for (const Property& property : control::properties()) {
        SCOPED_TRACE(property.dispid);
        const auto [first, last] = functions.equal_range(property.dispid);
        const bool writable = property.access() != Access::read;
        expected += writable ? 2u : 1u;
        ASSERT_EQ(std::distance(first, last), writable ? 2 : 1);
        for (auto found = first; found != last; ++found) {
            const Function& function = found->second;
            EXPECT_EQ(function.name, property.name);
            EXPECT_EQ(function.help, property.help);
            EXPECT_FALSE(function.help.empty());
            EXPECT_EQ(function.type, expectedType(property));
            EXPECT_EQ(function.flags, expectedFlags(property));
            EXPECT_TRUE(function.kind == INVOKE_PROPERTYGET || function.kind == putKind(property));
        }
    }
    EXPECT_EQ(functions.size(), expected);
}

TEST(TypeLibrary, HoldsMethodsAndEvents)
{
    const auto library = loadLibrary();
    const auto members = functionsOf(*infoOf(*library.Get(), activex::velaInterface).Get());
    for (const control::Method& method : control::methods()) {
        const auto found = members.find(method.dispid);
        ASSERT_NE(found, members.end());
        EXPECT_EQ(found->second.help, method.help);
        EXPECT_FALSE(method.help.empty());
        EXPECT_EQ(found->second.name, method.name);
        EXPECT_TRUE(found->second.parameters.empty());
    }
    const auto events = functionsOf(*infoOf(*library.Get(), activex::velaEvents).Get());
    EXPECT_EQ(events.size(), control::events().size());
    for (const control::Event& event : control::events()) {
        const auto found = events.find(event.dispid);
        ASSERT_NE(found, events.end());
        EXPECT_EQ(found->second.name, event.name);
        EXPECT_EQ(found->second.help, event.help);
        EXPECT_FALSE(event.help.empty());
        ASSERT_EQ(found->second.parameters.size(), event.parameters.size());
        for (const std::u16string& type : found->second.parameters)
            EXPECT_EQ(type, u"Integer*");
    }
}

TEST(TypeLibrary, HoldsEnumerationsByNameAndValue)
{
    const auto library = loadLibrary();
    for (std::size_t i = 0; i < engine::enumerations().size(); ++i) {
        const engine::Enumeration& enumeration = engine::enumerations()[i];
        const auto info = infoOf(*library.Get(), activex::guidOf(activex::identity::enumerations[i]));
        EXPECT_EQ(nameOf(*info.Get(), MEMBERID_NIL), enumeration.name);
        const Attributes attributes(*info.Get());
        ASSERT_EQ(attributes->cVars, enumeration.members.size());
        for (UINT member = 0; member < attributes->cVars; ++member) {
            VARDESC* variable = nullptr;
            ASSERT_EQ(info->GetVarDesc(member, &variable), S_OK);
            EXPECT_EQ(nameOf(*info.Get(), variable->memid), enumeration.members[member].name);
            EXPECT_EQ(variable->lpvarValue->lVal, enumeration.members[member].value);
            info->ReleaseVarDesc(variable);
        }
    }
}

TEST(TypeLibrary, KeepsItsIdentities)
{
    const auto library = loadLibrary();
    TLIBATTR* attributes = nullptr;
    ASSERT_EQ(library->GetLibAttr(&attributes), S_OK);
    EXPECT_EQ(attributes->guid, activex::libraryId);
    EXPECT_EQ(attributes->wMajorVerNum, 1);
    EXPECT_EQ(attributes->wMinorVerNum, 0);
    EXPECT_TRUE(attributes->wLibFlags & LIBFLAG_FCONTROL);
    library->ReleaseTLibAttr(attributes);
}

TEST(TypeLibrary, ClassesNameTheirInterfaces)
{
    const auto library = loadLibrary();
    for (const GUID& id : {activex::velaClass, activex::calendarClass}) {
        const auto info = infoOf(*library.Get(), id);
        const Attributes attributes(*info.Get());
        EXPECT_EQ(attributes->typekind, TKIND_COCLASS);
        EXPECT_TRUE(attributes->wTypeFlags & TYPEFLAG_FCONTROL);
        ASSERT_EQ(attributes->cImplTypes, 2);
        INT flags[2]{};
        info->GetImplTypeFlags(0, &flags[0]);
        info->GetImplTypeFlags(1, &flags[1]);
        EXPECT_EQ(flags[0], IMPLTYPEFLAG_FDEFAULT);
        EXPECT_EQ(flags[1], IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE);
    }
}

TEST(TypeLibrary, TheControlAnswersWithItsOwn)
{
    const ComPtr<IUnknown> control = create();
    ComPtr<ITypeInfo> info;
    ASSERT_EQ(query<IDispatch>(control.Get())->GetTypeInfo(0, 0, &info), S_OK);
    EXPECT_EQ(Attributes(*info.Get())->guid, activex::velaInterface);
    const auto provider = query<IProvideClassInfo2>(control.Get());
    ASSERT_EQ(provider->GetClassInfo(&info), S_OK);
    EXPECT_EQ(Attributes(*info.Get())->guid, activex::velaClass);
    GUID events{};
    ASSERT_EQ(provider->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events), S_OK);
    EXPECT_EQ(events, activex::velaEvents);
}

// "TipoText.TextoNormal = 0", "IVela.Text = 0: get BSTR", "IVelaEvents.KeyPress = -603: call void(Integer* KeyAscii)".
void addMembers(std::vector<std::string>& lines, ITypeInfo& info, const std::u16string& type)
{
    const Attributes attributes(info);
    for (UINT i = 0; i < attributes->cVars; ++i) {
        VARDESC* variable = nullptr;
        ASSERT_EQ(info.GetVarDesc(i, &variable), S_OK);
        lines.push_back(narrow(type + u"." + nameOf(info, variable->memid)) + " = " +
                        std::to_string(variable->lpvarValue->lVal));
        info.ReleaseVarDesc(variable);
    }
    for (UINT i = 0; i < attributes->cFuncs; ++i) {
        FUNCDESC* function = nullptr;
        ASSERT_EQ(info.GetFuncDesc(i, &function), S_OK);
        BSTR names[8]{};
        UINT count = 0;
        info.GetNames(function->memid, names, 8, &count);
        const char* const kind = function->invkind == INVOKE_PROPERTYGET      ? "get "
                                 : function->invkind == INVOKE_PROPERTYPUT    ? "put "
                                 : function->invkind == INVOKE_PROPERTYPUTREF ? "putref "
                                                                              : "call ";
        std::u16string parameters;
        for (SHORT n = 0; n < function->cParams; ++n)
            parameters +=
                (n ? u", " : u"") + typeText(info, function->lprgelemdescParam[n].tdesc) +
                (UINT(n) + 1 < count ? u" " + std::u16string(names[n + 1], names[n + 1] + SysStringLen(names[n + 1]))
                                     : u"");
        lines.push_back(narrow(type + u"." + nameOf(info, function->memid)) + " = " + std::to_string(function->memid) +
                        ": " + kind + narrow(typeText(info, function->elemdescFunc.tdesc) + u"(" + parameters + u")"));
        for (UINT n = 0; n < count; ++n)
            SysFreeString(names[n]);
        info.ReleaseFuncDesc(function);
    }
    for (UINT i = 0; attributes->typekind == TKIND_COCLASS && i < attributes->cImplTypes; ++i) {
        HREFTYPE reference = 0;
        ComPtr<ITypeInfo> implemented;
        ASSERT_EQ(info.GetRefTypeOfImplType(i, &reference), S_OK);
        ASSERT_EQ(info.GetRefTypeInfo(reference, &implemented), S_OK);
        lines.push_back(narrow(type + u": " + nameOf(*implemented.Get(), MEMBERID_NIL)));
    }
}

// Everything that a compiled program, a saved form or a script may depend on.
std::vector<std::string> interfaceNow(ITypeLib& library)
{
    std::vector<std::string> lines;
    TLIBATTR* attributes = nullptr;
    library.GetLibAttr(&attributes);
    lines.push_back("library " + textOf(attributes->guid) + " " + std::to_string(attributes->wMajorVerNum) + "." +
                    std::to_string(attributes->wMinorVerNum));
    library.ReleaseTLibAttr(attributes);
    for (UINT i = 0; i < library.GetTypeInfoCount(); ++i) {
        ComPtr<ITypeInfo> info;
        library.GetTypeInfo(i, &info);
        const std::u16string name = nameOf(*info.Get(), MEMBERID_NIL);
        lines.push_back(narrow(name) + " " + textOf(Attributes(*info.Get())->guid));
        addMembers(lines, *info.Get(), name);
    }
    for (const wchar_t* const progId : {L"Vela.Vela", L"Vela.Vela.1", L"Vela.cCalendar", L"Vela.cCalendar.1"}) {
        CLSID id{};
        CLSIDFromProgID(progId, &id);
        lines.push_back(std::string(progId, progId + std::wcslen(progId)) + " " + textOf(id));
    }
    return lines;
}

TEST(TypeLibrary, HasWhatVersion1Promised)
{
    const std::vector<std::string> now = interfaceNow(*loadLibrary().Get());
    writeLines(VELA_BINARY_DIR "/interface.txt", now);
    EXPECT_EQ(lost(linesOf(VELA_TEST_DIR "/../../activex/idl/vela-1.0.txt"), now), std::vector<std::string>{});
}

TEST(TypeLibrary, WhatIsLostIsNoticed)
{
    using Lines = std::vector<std::string>;
    const struct {
        const char* what;
        Lines now;
        Lines lost;
    } rows[] = {
        {"nothing changed", {"a = 1", "b = 2"}, {}},
        {"something more, wherever it stands", {"x", "a = 1", "y", "b = 2", "z"}, {}},
        {"gone", {"b = 2"}, {"a = 1"}},
        {"another number", {"a = 1", "b = 3"}, {"b = 2"}},
        {"moved", {"b = 2", "a = 1"}, {"b = 2"}},
        {"everything", {}, {"a = 1", "b = 2"}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(lost({"a = 1", "b = 2"}, row.now), row.lost) << row.what;
}

} // namespace

} // namespace vela::test
