// The control as scripts see it: names, values, errors and the font object.
#include "automation.h"
#include "fields.h"
#include "library.h"

#include "control/property_table.h"

#include <gtest/gtest.h>
#include <olectl.h>

#include <bit>
#include <utility>

namespace vela::test {

namespace {

VARTYPE variantTypeOf(control::PropertyType type)
{
    using control::PropertyType;
    switch (type) {
    case PropertyType::boolean: return VT_BOOL;
    case PropertyType::byte: return VT_UI1;
    case PropertyType::integer: return VT_I2;
    case PropertyType::text: return VT_BSTR;
    case PropertyType::font: return VT_DISPATCH;
    default: return VT_I4;
    }
}

TEST(Automation, EveryPropertyIsReadWithItsOwnVariantTypeAndCanBePutBack)
{
    const Automation control(create().Get());
    for (const control::Property& property : control::properties()) {
        SCOPED_TRACE(std::string(property.name.begin(), property.name.end()));
        Outcome read = control.get(property.name);
        ASSERT_EQ(read.result, S_OK);
        if (property.type() != control::PropertyType::variant) {
            EXPECT_EQ(read.value.get().vt, variantTypeOf(property.type()));
        }
        if (property.access() != control::Access::read && property.name != u"MultLine") {
            EXPECT_EQ(control.put(property.name, std::move(read.value)).result, S_OK);
        }
    }
}

struct PutCase {
    const char* what;
    const char16_t* property;
    Variant value;
    const char16_t* shown; // read back
    int error = 0;
};

TEST(Automation, PutsTakeEveryKindOfVariant)
{
    PutCase cases[] = {
        {"a text", u"Mask", text(u"__-__"), u"__-__"},
        {"a number as text", u"NomeCampo", number(12), u"12"},
        {"a single by its seven digits", u"NomeCampo", given(VT_R4, std::bit_cast<std::int32_t>(0.1f)), u"0,1"},
        {"a truth value as text", u"NomeCampo", truth(true), u"True"},
        {"nothing at all as text", u"NomeCampo", Variant(), u""},
        {"currency, half to even", u"QtdCasasDec", given(VT_CY, 75000), u"8"},
        {"a decimal", u"QtdCasasDec", given(VT_DECIMAL, 12), u"12"},
        {"a number as text of digits", u"QtdCasasDec", text(u"7"), u"7"},
        {"a fraction, half to even", u"SelLength", given(VT_R8, std::bit_cast<long long>(0.5)), u"0"},
        {"a Boolean text", u"AceitaNegativos", text(u"TRUE"), u"True"},
        {"a number as Boolean", u"AceitaNegativos", number(2), u"True"},
        {"an unsigned system colour", u"BorderColorGotfocus", given(VT_UI4, 0x80000005), u"-2147483643"},
        {"beyond a Byte", u"QtdCasasDec", number(256), nullptr, 6},
        {"below a Byte", u"QtdCasasDec", number(-1), nullptr, 6},
        {"beyond an Integer", u"MaxLength", number(32768), nullptr, 6},
        {"beyond a Long", u"EsquemaRetornoAtual", given(VT_I8, 4294967296), nullptr, 6},
        {"a text that is no number", u"QtdCasasDec", text(u"x"), nullptr, 13},
        {"Null", u"NomeCampo", given(VT_NULL), nullptr, 13},
        {"a missing value", u"NomeCampo", given(VT_ERROR, DISP_E_PARAMNOTFOUND), nullptr, 13},
        {"Nothing", u"NomeCampo", given(VT_DISPATCH), nullptr, 91},
        {"Nothing as font", u"Font", given(VT_DISPATCH), nullptr, 91},
        {"a text as font", u"Font", text(u"Arial"), nullptr, 13},
        {"a password character too many", u"PasswordChar", text(u"ab"), nullptr, 380},
        {"a negative length", u"MaxLength", number(-1), nullptr, 380},
    };
    for (PutCase& one : cases) {
        SCOPED_TRACE(one.what);
        const Automation control(create().Get());
        const std::u16string before = control.textOf(one.property);
        const Outcome put = control.put(one.property, std::move(one.value));
        EXPECT_EQ(put.error, one.error);
        EXPECT_EQ(put.result, one.error ? DISP_E_EXCEPTION : S_OK);
        EXPECT_EQ(put.source, one.error ? u"Vela" : u"");
        EXPECT_EQ(put.description.empty(), one.error == 0);
        EXPECT_EQ(control.textOf(one.property), one.shown ? one.shown : before);
    }
}

TEST(Automation, ByReferenceAndDefaultProperties)
{
    const Automation control(create().Get());
    const Automation other(create().Get());
    ASSERT_EQ(other.put(u"Text", text(u"do outro")).result, S_OK);

    EXPECT_EQ(control.put(u"NomeCampo", object(other.dispatch())).result, S_OK);
    EXPECT_EQ(control.textOf(u"NomeCampo"), u"do outro");

    Variant inner = number(3);
    const auto address = reinterpret_cast<std::intptr_t>(&inner.ref());
    EXPECT_EQ(control.put(u"QtdCasasDec", given(VT_BYREF | VT_VARIANT, address)).result, S_OK);
    EXPECT_EQ(control.textOf(u"QtdCasasDec"), u"3");
}

TEST(Automation, NamesAndCallsThatNoMemberTakes)
{
    const Automation control(create().Get());
    EXPECT_EQ(control.put(u"hwnd", number(1)).result, DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(control.invoke(9999, DISPATCH_PROPERTYGET).result, DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(control.invoke(0, DISPATCH_PROPERTYPUT).result, DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(control.invoke(0, DISPATCH_PROPERTYGET, one(number(1))).result, DISP_E_BADPARAMCOUNT);

    VARIANT value = number(1).release();
    DISPID named[] = {3};
    DISPPARAMS parameters{&value, named, 1, 1};
    EXPECT_EQ(control.dispatch()->Invoke(0, IID_NULL, 0, DISPATCH_PROPERTYPUT, &parameters, nullptr, nullptr, nullptr),
              DISP_E_NONAMEDARGS);

    // The interface named in a call says nothing: some callers name the one that they hold.
    const IID& held = __uuidof(IDispatch);
    auto* name = const_cast<wchar_t*>(L"TEXT");
    DISPID id = DISPID_UNKNOWN;
    EXPECT_EQ(control.dispatch()->GetIDsOfNames(held, &name, 1, 0, &id), S_OK);
    EXPECT_EQ(id, 0);
    EXPECT_EQ(control.id(u"Texto"), std::nullopt);
    EXPECT_EQ(control.id(u""), std::nullopt);
    DISPPARAMS none{};
    Variant read;
    EXPECT_EQ(control.dispatch()->Invoke(0, held, 0, DISPATCH_PROPERTYGET, &none, read.put(), nullptr, nullptr), S_OK);
    EXPECT_EQ(read.get().vt, VT_BSTR);
}

TEST(Automation, WindowsExistWhenAskedFor)
{
    const ComPtr<IUnknown> object = create();
    const Automation control(object.Get());
    ASSERT_EQ(control.put(u"Text", text(u"antes")).result, S_OK);
    const HWND edit = control.window(u"hwnd");
    const HWND surface = control.window(u"HwndCtl");
    EXPECT_TRUE(IsWindow(edit));
    EXPECT_TRUE(IsChild(surface, edit));
    EXPECT_FALSE(IsWindowVisible(edit));
    wchar_t shown[16]{};
    GetWindowTextW(edit, shown, 16);
    EXPECT_STREQ(shown, L"antes");
}

TEST(Automation, TheFontObjectAndTheFontPropertiesAreOne)
{
    const Automation control(create().Get());
    const Outcome font = control.get(u"Font");
    ASSERT_EQ(font.value.get().vt, VT_DISPATCH);
    const Automation parts(font.value.get().pdispVal);

    parts.set({{u"Bold", true}, {u"Size", 14}});
    EXPECT_EQ(control.textOf(u"FontBold"), u"True");
    EXPECT_EQ(control.textOf(u"FontSize"), u"14");
    EXPECT_EQ(control.textOf(u"FontName"), u"MS Sans Serif") << "only what was changed changes";
    const Outcome again = control.get(u"Font");
    EXPECT_EQ(again.value.get().pdispVal, font.value.get().pdispVal) << "one object for the control's life";

    control.set({{u"FontBold", false}, {u"FontItalic", true}, {u"FontSize", 9}});
    EXPECT_EQ(parts.textOf(u"Bold"), u"False") << "the object lives with the parts";
    EXPECT_EQ(parts.textOf(u"Italic"), u"True");
    EXPECT_EQ(parts.textOf(u"Size"), u"9");
    ASSERT_EQ(parts.put(u"Bold", truth(true)).result, S_OK);
    EXPECT_EQ(control.textOf(u"FontItalic"), u"True");

    // A font set by reference is the control's from then on.
    const Automation second(create().Get());
    EXPECT_EQ(second.invoke(DISPID_FONT, DISPATCH_PROPERTYPUTREF, one(object(parts.dispatch()))).result, S_OK);
    EXPECT_EQ(second.textOf(u"FontBold"), u"True");
    ASSERT_EQ(parts.put(u"Underline", truth(true)).result, S_OK);
    EXPECT_EQ(second.textOf(u"FontUnderline"), u"True");
    EXPECT_EQ(control.textOf(u"FontUnderline"), u"True");
}

// The control follows a font that it was given, and never changes it.
TEST(Automation, AGivenFontStaysItsOwners)
{
    const LeakCheck leaks;
    const Automation control(create().Get());
    const Outcome before = control.get(u"Font");
    const Automation held(before.value.get().pdispVal);
    const ComPtr<IFontDisp> tahoma = font(L"Tahoma", 12, false);
    ASSERT_EQ(control.invoke(DISPID_FONT, DISPATCH_PROPERTYPUTREF, one(object(tahoma.Get()))).result, S_OK);
    EXPECT_EQ(held.textOf(u"Size"), u"12") << "what was handed out before shows the new font";

    ASSERT_EQ(control.put(u"FontBold", truth(true)).result, S_OK);
    EXPECT_EQ(held.textOf(u"Bold"), u"True");
    const Automation given(tahoma.Get());
    EXPECT_EQ(given.textOf(u"Bold"), u"False");
    ASSERT_EQ(given.put(u"Italic", truth(true)).result, S_OK);
    EXPECT_EQ(control.textOf(u"FontItalic"), u"True");
    EXPECT_EQ(control.textOf(u"FontBold"), u"True") << "only what was changed changes";
    EXPECT_EQ(held.textOf(u"Italic"), u"True");
}

// A setting of the user's locale as long as the test runs, told to the windows of this thread as the system tells it.
class UserSetting : Fixed {
public:
    UserSetting(LCTYPE type, const wchar_t* value) : type_(type)
    {
        GetLocaleInfoW(LOCALE_USER_DEFAULT, type, before_, 16);
        put(value);
    }
    ~UserSetting() { put(before_); }

private:
    void put(const wchar_t* value)
    {
        SetLocaleInfoW(LOCALE_USER_DEFAULT, type_, value);
        eachWindow([](HWND window) { SendMessageW(window, WM_SETTINGCHANGE, 0, reinterpret_cast<LPARAM>(L"intl")); });
    }

    LCTYPE type_;
    wchar_t before_[16] = {};
};

TEST(Automation, SettingsOfTheLocaleAreSeenWhenTheyChange)
{
    const Automation control(create().Get());
    control.get(u"hwnd"); // with a window, as on a form
    asNumber(control);
    const auto shown = [&](std::u16string_view value) {
        control.put(u"Value", text(value));
        return control.textOf(u"Text");
    };
    EXPECT_EQ(shown(u"1234,5"), u"1234,50");
    const UserSetting decimal(LOCALE_SDECIMAL, L";");
    EXPECT_EQ(shown(u"1234;5"), u"1234;50");
    const UserSetting negative(LOCALE_INEGNUMBER, L"0");
    const UserSetting zero(LOCALE_ILZERO, L"0");
    EXPECT_EQ(shown(u"-0;5"), u"(;50)");
}

} // namespace

} // namespace vela::test
