// The control as scripts see it: names, values, errors and the font object.
#include "automation.h"
#include "library.h"

#include "control/property_table.h"

#include <gtest/gtest.h>
#include <olectl.h>

#include <cmath>

namespace vela::test {

namespace {

TEST(Automation, NamesAreFoundInAnyCase)
{
    const Automation control(create().get());
    EXPECT_EQ(control.id(u"text"), 0);
    EXPECT_EQ(control.id(u"HWND"), -515);
    EXPECT_EQ(control.id(u"hwndctl"), control.id(u"HwndCtl"));
    EXPECT_EQ(control.id(u"Texto"), std::nullopt);
    EXPECT_EQ(control.id(u""), std::nullopt);
}

// Without a site, initialised by nobody: a new instance in run mode.
TEST(Automation, AScriptsControlHasTheDefaultsOfANewInstance)
{
    const Automation control(create().get());
    const std::pair<const char16_t*, const char16_t*> expected[] = {
        {u"AutoSelect", u"True"}, {u"InserirZeros", u"False"},
        {u"PromptChar", u"_"},    {u"FormatoExibData", u"__/__/____"},
        {u"DateFormat", u""},     {u"BackColor_MouseMove", u"16709609"},
        {u"Appearance", u"1"},    {u"EsquemaRetornoAtual", u"1"},
        {u"Text", u""},           {u"Enabled", u"True"},
        {u"UpTAB", u"True"},      {u"Error_ForeColor", u"255"},
        {u"nomeContainer", u""},
    };
    for (const auto& [name, value] : expected)
        EXPECT_EQ(control.textOf(name), value) << Bstr(name).get();
}

TEST(Automation, EveryPropertyIsReadWithItsOwnVariantType)
{
    const Automation control(create().get());
    using control::PropertyType;
    for (const control::Property& property : control::properties()) {
        const Outcome outcome = control.get(property.name);
        ASSERT_EQ(outcome.result, S_OK) << property.dispid;
        const VARTYPE type = outcome.value.get().vt;
        switch (property.type) {
        case PropertyType::boolean: EXPECT_EQ(type, VT_BOOL) << property.dispid; break;
        case PropertyType::byte: EXPECT_EQ(type, VT_UI1) << property.dispid; break;
        case PropertyType::integer: EXPECT_EQ(type, VT_I2) << property.dispid; break;
        case PropertyType::longInteger:
        case PropertyType::colour:
        case PropertyType::enumeration: EXPECT_EQ(type, VT_I4) << property.dispid; break;
        case PropertyType::text: EXPECT_EQ(type, VT_BSTR) << property.dispid; break;
        case PropertyType::font: EXPECT_EQ(type, VT_DISPATCH) << property.dispid; break;
        case PropertyType::variant: break;
        }
    }
}

// What was read can be put back, by any property that can be put.
TEST(Automation, WhatWasReadCanBePut)
{
    const Automation control(create().get());
    for (const control::Property& property : control::properties()) {
        if (property.access == control::Access::read || property.name == u"MultLine")
            continue;
        Outcome read = control.get(property.name);
        const Outcome put = control.put(property.name, std::move(read.value));
        EXPECT_EQ(put.result, S_OK) << Bstr(property.name).get() << " error " << put.error;
    }
}

struct PutCase {
    const char* what;
    const char16_t* property;
    Variant (*value)();
    const char16_t* shown; // read back
    int error = 0;
};

template <VARTYPE Type, auto Field, auto Value>
Variant typed()
{
    Variant variant;
    variant.ref().vt = Type;
    variant.ref().*Field = Value;
    return variant;
}

Variant null()
{
    Variant variant;
    variant.ref().vt = VT_NULL;
    return variant;
}

Variant empty()
{
    return {};
}

Variant missing()
{
    Variant variant;
    variant.ref().vt = VT_ERROR;
    variant.ref().scode = DISP_E_PARAMNOTFOUND;
    return variant;
}

Variant nothing()
{
    Variant variant;
    variant.ref().vt = VT_DISPATCH;
    variant.ref().pdispVal = nullptr;
    return variant;
}

Variant systemColour()
{
    Variant variant;
    variant.ref().vt = VT_UI4;
    variant.ref().ulVal = 0x80000005u;
    return variant;
}

Variant currency()
{
    Variant variant;
    variant.ref().vt = VT_CY;
    variant.ref().cyVal.int64 = 75000;
    return variant;
}

Variant decimal()
{
    Variant variant;
    DECIMAL value{};
    VarDecFromI4(12, &value);
    variant.ref().decVal = value;
    variant.ref().vt = VT_DECIMAL;
    return variant;
}

Variant single()
{
    Variant variant;
    variant.ref().vt = VT_R4;
    variant.ref().fltVal = 0.1f;
    return variant;
}

Variant huge()
{
    Variant variant;
    variant.ref().vt = VT_I8;
    variant.ref().llVal = 4294967296;
    return variant;
}

TEST(Automation, PutsTakeEveryKindOfVariant)
{
    const PutCase cases[] = {
        {"a text", u"Mask", [] { return text(u"__-__"); }, u"__-__"},
        {"a number as text", u"NomeCampo", [] { return number(12); }, u"12"},
        {"a single by its seven digits", u"NomeCampo", single, u"0,1"},
        {"a truth value as text", u"NomeCampo", [] { return truth(true); }, u"True"},
        {"nothing at all as text", u"NomeCampo", empty, u""},
        {"currency, half to even", u"QtdCasasDec", currency, u"8"},
        {"a decimal", u"QtdCasasDec", decimal, u"12"},
        {"a number as text of digits", u"QtdCasasDec", [] { return text(u"7"); }, u"7"},
        {"a fraction, half to even", u"SelLength", [] { return fraction(0.5); }, u"0"},
        {"a Boolean text", u"AceitaNegativos", [] { return text(u"TRUE"); }, u"True"},
        {"a number as Boolean", u"AceitaNegativos", [] { return number(2); }, u"True"},
        {"an unsigned system colour", u"BorderColorGotfocus", systemColour, u"-2147483643"},
        {"beyond a Byte", u"QtdCasasDec", [] { return number(256); }, nullptr, 6},
        {"below a Byte", u"QtdCasasDec", [] { return number(-1); }, nullptr, 6},
        {"beyond an Integer", u"MaxLength", [] { return number(32768); }, nullptr, 6},
        {"beyond a Long", u"EsquemaRetornoAtual", huge, nullptr, 6},
        {"a text that is no number", u"QtdCasasDec", [] { return text(u"x"); }, nullptr, 13},
        {"Null", u"NomeCampo", null, nullptr, 13},
        {"a missing value", u"NomeCampo", missing, nullptr, 13},
        {"Nothing", u"NomeCampo", nothing, nullptr, 91},
        {"Nothing as font", u"Font", nothing, nullptr, 91},
        {"a text as font", u"Font", [] { return text(u"Arial"); }, nullptr, 13},
        {"a password character too many", u"PasswordChar", [] { return text(u"ab"); }, nullptr, 380},
        {"a negative length", u"MaxLength", [] { return number(-1); }, nullptr, 380},
    };
    for (const PutCase& one : cases) {
        SCOPED_TRACE(one.what);
        const Automation control(create().get());
        const std::u16string before = control.textOf(one.property);
        const Outcome put = control.put(one.property, one.value());
        EXPECT_EQ(put.error, one.error);
        EXPECT_EQ(put.result, one.error ? DISP_E_EXCEPTION : S_OK);
        EXPECT_EQ(put.source, one.error ? u"Vela" : u"");
        EXPECT_EQ(put.description.empty(), one.error == 0);
        EXPECT_EQ(control.textOf(one.property), one.shown ? one.shown : before);
    }
}

TEST(Automation, ByReferenceAndDefaultProperties)
{
    const Automation control(create().get());
    const Automation other(create().get());
    ASSERT_EQ(other.put(u"Text", text(u"do outro")).result, S_OK);

    Variant object;
    object.ref().vt = VT_DISPATCH;
    object.ref().pdispVal = ComPtr<IDispatch>::share(other.dispatch()).release();
    EXPECT_EQ(control.put(u"NomeCampo", std::move(object)).result, S_OK);
    EXPECT_EQ(control.textOf(u"NomeCampo"), u"do outro");

    Variant inner = number(3);
    Variant reference;
    reference.ref().vt = VT_BYREF | VT_VARIANT;
    reference.ref().pvarVal = &inner.ref();
    EXPECT_EQ(control.put(u"QtdCasasDec", std::move(reference)).result, S_OK);
    EXPECT_EQ(control.textOf(u"QtdCasasDec"), u"3");
}

TEST(Automation, ErrorsOfTheControlCarryNumberSourceAndDescription)
{
    const Automation control(create().get());
    ASSERT_EQ(control.put(u"Mask", text(u"__-__")).result, S_OK);
    ASSERT_EQ(control.put(u"TextType", number(3)).result, S_OK);
    const Outcome mask = control.put(u"Mask", text(u""));
    EXPECT_EQ(mask.error, 1001);
    EXPECT_EQ(mask.source, u"Vela");
    EXPECT_EQ(mask.description, u"Mascara n\u00E3o pode ser vazia");
    EXPECT_EQ(control.textOf(u"Mask"), u"__-__");

    const Outcome lines = control.put(u"MultLine", truth(true));
    EXPECT_EQ(lines.error, 1002);
    EXPECT_EQ(lines.description, u"Propriedade \u00E9 Read-Only");
    EXPECT_EQ(control.textOf(u"MultLine"), u"True") << "stored before it was refused";
}

TEST(Automation, CallsThatNoMemberTakes)
{
    const Automation control(create().get());
    EXPECT_EQ(control.put(u"hwnd", number(1)).result, DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(control.invoke(9999, DISPATCH_PROPERTYGET).result, DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(control.invoke(0, DISPATCH_PROPERTYPUT).result, DISP_E_BADPARAMCOUNT);
    std::vector<Variant> one;
    one.push_back(number(1));
    EXPECT_EQ(control.invoke(0, DISPATCH_PROPERTYGET, std::move(one)).result, DISP_E_BADPARAMCOUNT);

    VARIANT value = number(1).release();
    DISPID named[] = {3};
    DISPPARAMS parameters{&value, named, 1, 1};
    EXPECT_EQ(control.dispatch()->Invoke(0, IID_NULL, 0, DISPATCH_PROPERTYPUT, &parameters, nullptr, nullptr, nullptr),
              DISP_E_NONAMEDARGS);
    EXPECT_EQ(
        control.dispatch()->Invoke(0, IID_IUnknown, 0, DISPATCH_PROPERTYGET, &parameters, nullptr, nullptr, nullptr),
        DISP_E_UNKNOWNINTERFACE);
}

TEST(Automation, MethodsRun)
{
    const Automation control(create().get());
    EXPECT_EQ(control.call(u"DestruirToolTip").result, S_OK);
    EXPECT_EQ(control.call(u"LimparMemoria").result, S_OK);
    EXPECT_EQ(control.get(u"Text").error, 91);
    EXPECT_EQ(control.textOf(u"PromptChar"), u"_") << "the control's own fields still answer";
}

TEST(Automation, WindowsExistWhenAskedFor)
{
    const ComPtr<IUnknown> object = create();
    const Automation control(object.get());
    ASSERT_EQ(control.put(u"Text", text(u"antes")).result, S_OK);
    const auto edit = reinterpret_cast<HWND>(static_cast<LONG_PTR>(control.get(u"hwnd").value.get().lVal));
    const auto surface = reinterpret_cast<HWND>(static_cast<LONG_PTR>(control.get(u"HwndCtl").value.get().lVal));
    EXPECT_TRUE(IsWindow(edit));
    EXPECT_TRUE(IsChild(surface, edit));
    EXPECT_FALSE(IsWindowVisible(edit));
    wchar_t shown[16]{};
    GetWindowTextW(edit, shown, 16);
    EXPECT_STREQ(shown, L"antes");
}

TEST(Automation, TheFontObjectAndTheFontPropertiesAreOne)
{
    const Automation control(create().get());
    const Outcome font = control.get(u"Font");
    ASSERT_EQ(font.value.get().vt, VT_DISPATCH);
    const Automation object(font.value.get().pdispVal);

    ASSERT_EQ(object.put(u"Bold", truth(true)).result, S_OK);
    ASSERT_EQ(object.put(u"Size", number(14)).result, S_OK);
    EXPECT_EQ(control.textOf(u"FontBold"), u"True");
    EXPECT_NEAR(std::stoi(std::string(1, '0') +
                          std::string(control.textOf(u"FontSize").begin(), control.textOf(u"FontSize").end())),
                14, 1);
    EXPECT_EQ(control.textOf(u"FontName"), u"MS Sans Serif") << "only what was changed changes";

    ASSERT_EQ(control.put(u"FontItalic", truth(true)).result, S_OK);
    const Outcome again = control.get(u"Font");
    EXPECT_EQ(again.value.get().pdispVal, font.value.get().pdispVal) << "one object for the control's life";
    EXPECT_EQ(object.textOf(u"Italic"), u"True");

    // A font set by reference is the control's from then on.
    const Automation second(create().get());
    Variant given;
    VariantCopy(given.put(), const_cast<VARIANT*>(&font.value.get()));
    std::vector<Variant> arguments;
    arguments.push_back(std::move(given));
    EXPECT_EQ(second.invoke(DISPID_FONT, DISPATCH_PROPERTYPUTREF, std::move(arguments)).result, S_OK);
    EXPECT_EQ(second.textOf(u"FontBold"), u"True");
    ASSERT_EQ(object.put(u"Underline", truth(true)).result, S_OK);
    EXPECT_EQ(second.textOf(u"FontUnderline"), u"True");
    EXPECT_EQ(control.textOf(u"FontUnderline"), u"True");
}

TEST(Automation, TheCalendarIsAControlOfItsOwn)
{
    const LeakCheck leaks;
    const Automation calendar(create(L"Vela.cCalendar").get());
    Variant date;
    date.ref().vt = VT_DATE;
    date.ref().date = 45366; // 15 March 2024
    std::vector<Variant> arguments;
    arguments.push_back(std::move(date));
    EXPECT_EQ(calendar.call(u"IniciaCalendario", std::move(arguments)).result, S_OK);
    const Outcome selected = calendar.get(u"DateInitial");
    EXPECT_EQ(selected.value.get().vt, VT_DATE);
    EXPECT_EQ(selected.value.get().date, 45366);
    std::vector<Variant> highlight;
    highlight.push_back(number(45366));
    EXPECT_EQ(calendar.call(u"IncluiDataRealcada", std::move(highlight)).value.get().vt, VT_EMPTY);
}

} // namespace

} // namespace vela::test
