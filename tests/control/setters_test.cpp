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

TEST(BorderColorLostfocus, IsSeenAtOnceInDesignAndWhenTheFieldIsLeftAtRunTime)
{
    for (const bool run : {false, true}) {
        FieldBench bench;
        auto& f = bench.make(u"f", run);
        f->initNew();
        f.put(u"Appearance", 0);
        f.put(u"BorderColorLostfocus", 0xFF);
        EXPECT_EQ(f.surface->look().border.value, run ? 0x00FFFFFFU : 0xFFU);
        bench.focus(f);
        bench.leave();
        EXPECT_EQ(f.surface->look().border.value, 0xFFU);
    }
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

TEST(LimparMemoria, CutsTheFieldOffItsBox)
{
    FieldBench bench;
    auto& f = bench.add();
    bench.focus(f);
    static_cast<void>(bench.seen());
    f->LimparMemoria();
    bench.type(u"a");
    EXPECT_EQ(bench.seen(), "");
}

TEST(PutValues, ConvertToThePropertysType)
{
    FieldBench bench;
    auto& f = bench.add();
    EXPECT_EQ(errorOf([&] { f.put(u"Font", u"Arial"); }), 13);
    EXPECT_EQ(errorOf([&] { f.put(u"FontSize", -1); }), 6);
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
