// The compiled type library: its flags and identities, and what version 1.0 promised.
#include "kept_lines.h"
#include "library.h"

#include "activex/guids.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vela::test {

namespace {

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

struct Attributes : Fixed {
    explicit Attributes(ITypeInfo& of) : info(of) { info.GetTypeAttr(&attributes); }
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

// Names, numbers, types and values are promised below; the definition they are made of is compared with the tables
// natively.
TEST(TypeLibrary, HelpTextsAndFlagsComeThroughTheCompiler)
{
    const auto library = loadLibrary();
    const auto info = infoOf(*library.Get(), activex::velaInterface);
    const Attributes attributes(*info.Get());
    for (UINT i = 0; i < attributes->cFuncs; ++i) {
        FUNCDESC* function = nullptr;
        ASSERT_EQ(info->GetFuncDesc(i, &function), S_OK);
        Bstr help;
        info->GetDocumentation(function->memid, nullptr, help.put(), nullptr, nullptr);
        EXPECT_FALSE(help.text().empty()) << function->memid;
        if (function->memid == DISPID_VALUE) {
            EXPECT_EQ(function->wFuncFlags,
                      FUNCFLAG_FBINDABLE | FUNCFLAG_FREQUESTEDIT | FUNCFLAG_FDISPLAYBIND | FUNCFLAG_FDEFAULTBIND);
        }
        if (function->memid == 45) { // FormatoRetornoData03
            EXPECT_TRUE(function->wFuncFlags & FUNCFLAG_FNONBROWSABLE);
        }
        info->ReleaseFuncDesc(function);
    }
}

TEST(TypeLibrary, ClassesNameTheirInterfacesAsTheControlDoes)
{
    const auto library = loadLibrary();
    TLIBATTR* whole = nullptr;
    ASSERT_EQ(library->GetLibAttr(&whole), S_OK);
    EXPECT_TRUE(whole->wLibFlags & LIBFLAG_FCONTROL);
    library->ReleaseTLibAttr(whole);
    for (const GUID& id : {activex::velaClass, activex::calendarClass}) {
        const auto info = infoOf(*library.Get(), id);
        const Attributes attributes(*info.Get());
        EXPECT_TRUE(attributes->wTypeFlags & TYPEFLAG_FCONTROL);
        ASSERT_EQ(attributes->cImplTypes, 2);
        INT flags[2]{};
        info->GetImplTypeFlags(0, &flags[0]);
        info->GetImplTypeFlags(1, &flags[1]);
        EXPECT_EQ(flags[0], IMPLTYPEFLAG_FDEFAULT);
        EXPECT_EQ(flags[1], IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE);
    }
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
        for (SHORT n = 0; n < function->cParams; ++n) {
            parameters += (n ? u", " : u"") + typeText(info, function->lprgelemdescParam[n].tdesc);
            if (UINT(n) + 1 < count)
                parameters += u" " + std::u16string(asText(names[n + 1]));
        }
        lines.push_back(narrow(type + u"." + nameOf(info, function->memid)) + " = " + std::to_string(function->memid) +
                        ": " + kind + narrow(typeText(info, function->elemdescFunc.tdesc) + u"(" + parameters + u")"));
        std::for_each(names, names + count, SysFreeString);
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

} // namespace

} // namespace vela::test
