// The order in which setters work: what they tell the host, write and show.
#include "field_bench.h"

#include <gtest/gtest.h>

namespace vela::control {
namespace {

TEST(NewInstance, TellsEachPutInOrder)
{
    FieldBench bench;
    auto& f = bench.make(u"f");
    f->initNew();
    EXPECT_EQ(bench.told(),
              "EsquemaRetornoAtual; ToolTipGotFocusTipo; ValorPadrao; Mask; TextType; BackColorGotFocus; "
              "BackColorLostFocus; BackColor_MouseMove; BorderColor_MouseMove; BorderColorGotfocus; "
              "BorderColorLostfocus; ErrorForeColor; ForeColor_GotFocus; ForeColor_LostFocus; FormatoExibData; "
              "AutoSelect; InserirZeros; Calendar_FormBackcolor; Calendar_ComboBackColor; Calendar_BackColor; "
              "Calendar_ColorWeekDay; Calendar_DayActive; Calendar_DayInactive; Calendar_Selected");
    EXPECT_EQ(bench.seen(), "");
    EXPECT_FALSE(f->InserirZeros()); // put True on the way
    EXPECT_TRUE(f->AutoSelect());
}

TEST(TextType, TellsAndShowsTheStepsOfItsSwitch)
{
    FieldBench bench;
    auto& f = bench.add();
    f.put(u"TextType", 3);
    EXPECT_EQ(bench.told(), "ValorPadrao; CaractLiberados; TextType");
    EXPECT_EQ(bench.seen(), "box <Vela> A m?scara n?o foi definida");
    f.put(u"TextType", 2);
    EXPECT_EQ(bench.told(), "ValorPadrao; MaskRules; Mask; CaractLiberados; TextType");
    EXPECT_EQ(bench.seen(), "Change");
    EXPECT_EQ(f.shows(), "|__/__/____");
    f.put(u"TextType", 1);
    EXPECT_EQ(bench.told(), "ValorPadrao; Mask; ValorPadrao; CaractLiberados; TextType");
    EXPECT_FALSE(f.box().traits().locked);
    f.put(u"TextType", 9);
    EXPECT_EQ(bench.told(), "ValorPadrao; TextType");
    EXPECT_EQ(std::get<std::int32_t>(f.get(u"TextType")), 9);
}

TEST(XpStyle, ShowsOneBoxAtEachPutOfAButton)
{
    FieldBench bench;
    auto& f = bench.add();
    f.put(u"ShowButtonCalculadora", 1);
    EXPECT_TRUE(f.surface->look().button);
    f.put(u"BorderStyle", 5);
    f.put(u"ShowButtonCalculadora", 0);
    EXPECT_EQ(bench.seen(), "box <:(> TextBox Estilo XP n?o suporta bot?es !");
    EXPECT_FALSE(f.surface->look().button);
    f.put(u"TextType", 0);
    EXPECT_EQ(bench.seen(), "box <:(> TextBox Estilo XP n?o suporta bot?es !; "
                            "box <:(> TextBox Estilo XP n?o suporta bot?es !");
}

TEST(MultLine, IsStoredAndRefusedAtRunTimeAndSwapsTheBoxInDesign)
{
    FieldBench bench;
    auto& f = bench.add();
    EXPECT_EQ(errorOf([&] { f.put(u"MultLine", 1); }), 1002);
    EXPECT_TRUE(f->MultLine());
    EXPECT_EQ(f.box().kind(), platform::EditBoxKind::singleLine);
    f.put(u"TextType", 1);
    EXPECT_EQ(f->TextType(), engine::TipoText::TextoNormal);
    EXPECT_EQ(bench.told(), "TextType"); // refused, and told all the same

    auto& d = bench.make(u"d", false);
    d->initNew();
    d.put(u"Text", u"one");
    d.put(u"MultLine", 1);
    EXPECT_EQ(d.box().kind(), platform::EditBoxKind::multiLine);
    d.put(u"MultLine", 0);
    EXPECT_EQ(d.shows(), "|one"); // each box keeps its own
}

TEST(Mask, IsRefusedEmptyOnAMaskAndLaysTheFieldOut)
{
    FieldBench bench;
    auto& f = bench.add();
    f.put(u"Mask", u"___-____");
    f.put(u"TextType", 3);
    EXPECT_EQ(f.shows(), "|___-____");
    EXPECT_EQ(errorOf([&] { f.put(u"Mask", u""); }), 1001);
    EXPECT_EQ(f->Mask(), u"___-____");
    f.put(u"Mask", u"(__)");
    EXPECT_EQ(f.shows(), "|(__)");
    EXPECT_EQ(f->MaxLength(), 4);
    EXPECT_EQ(errorOf([&] { f.put(u"Mask", std::u16string(32768, u'_')); }), 6);
    EXPECT_EQ(f->Mask(), u"(__)");
}

TEST(LimparMemoria, CutsTheFieldOffItsBox)
{
    FieldBench bench;
    auto& f = bench.add();
    bench.focus(f);
    static_cast<void>(bench.seen());
    f->LimparMemoria();
    EXPECT_EQ(errorOf([&] { static_cast<void>(f.get(u"Text")); }), 91);
    EXPECT_EQ(errorOf([&] { f.put(u"MaxLength", 3); }), 91);
    EXPECT_EQ(errorOf([&] { f.put(u"AutoTAB", 1); }), 0);
    bench.type(u"a");
    EXPECT_EQ(bench.seen(), "");
}

TEST(PutValues, ConvertToThePropertysType)
{
    const struct {
        const char* rule;
        const char16_t* property;
        engine::Value value;
        int error;
    } rows[] = {
        {"a Byte ends at 255", u"QtdCasasDec", 256, 6},
        {"a Byte has no sign", u"FontSize", -1, 6},
        {"True fills a Byte", u"QtdCasasDec", true, 0},
        {"an Integer ends at 32767", u"MaxLength", 32768, 6},
        {"no negative limit", u"MaxLength", -1, 380},
        {"no negative caret", u"SelStart", -1, 380},
        {"a word is no number", u"BackColor", std::u16string(u"red"), 13},
        {"a word is no truth value", u"AutoTAB", std::u16string(u"yes"), 13},
        {"truth values in any case", u"AutoTAB", std::u16string(u"tRUE"), 0},
        {"one password character", u"PasswordChar", std::u16string(u"**"), 380},
        {"no put by value of a font", u"Font", std::u16string(u"Arial"), 13},
        {"read only", u"hwnd", 1, 438},
        {"names compare with case", u"autotab", 1, 438},
    };
    FieldBench bench;
    auto& f = bench.add();
    for (const auto& row : rows)
        EXPECT_EQ(errorOf([&] { f.put(row.property, row.value); }), row.error) << row.rule;
    EXPECT_EQ(f->QtdCasasDec(), 255);
    f.put(u"Alignment", engine::Value(2.5));
    EXPECT_EQ(f->Alignment(), engine::Alinhamento::vbCenter); // halves to even
}

TEST(Property, TableIsComplete)
{
    EXPECT_EQ(properties().size(), 86U);
    for (const Property& row : properties()) {
        EXPECT_EQ(findProperty(row.name), &row);
        EXPECT_EQ(findProperty(row.dispid), &row);
        EXPECT_EQ(row.put == nullptr, row.access == Access::read) << narrow(row.name);
        EXPECT_EQ(row.enumeration != nullptr, row.type == PropertyType::enumeration) << narrow(row.name);
    }
    EXPECT_EQ(findProperty(u"Text")->dispid, 0);
    EXPECT_EQ(findProperty(4711), nullptr);
}

} // namespace
} // namespace vela::control
