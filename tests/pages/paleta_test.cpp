// The palette dialog: whichever was set last is chosen.
#include "page_bench.h"

#include "pages/frm_paleta.h"

#include <gtest/gtest.h>

namespace vela::pages {
namespace {

class Paleta : public testing::Test {
protected:
    [[nodiscard]] platform::WidgetId id(std::u16string_view name, int index = -1)
    {
        return platform::findWidget(palette.layout(), name, index);
    }
    void focus(int swatch) { palette.form().focus(id(u"Picture1", swatch)); }
    void type(std::u16string_view box, std::u16string_view keys) { bench.typeAt(palette.form(), id(box), keys); }
    void click(std::u16string_view button) { bench.clickAt(palette.form(), id(button)); }
    [[nodiscard]] std::u16string text(std::u16string_view box) { return palette.form().text(id(box)); }
    [[nodiscard]] bool border(int swatch) { return palette.form().look(id(u"Picture1", swatch)).border; }

    PageBench bench{PageKind::ppErros};
    frmPaleta palette{bench.forms()};
};

TEST_F(Paleta, StartsBlackAndEmpty)
{
    EXPECT_EQ(palette.chosenColour().value, 0U);
    EXPECT_EQ(palette.preview().value, 0U);
    EXPECT_EQ(text(u"txtR") + text(u"txtG") + text(u"txtB"), u"");
    click(u"cmdOK");
    EXPECT_TRUE(palette.isClosed());
    EXPECT_FALSE(palette.cancelled());
    EXPECT_EQ(palette.chosenColour().value, 0U);
}

TEST_F(Paleta, TheLastOfSwatchAndBoxesIsChosen)
{
    focus(2);
    EXPECT_EQ(palette.chosenColour().value, 0x00FFFFFFU);
    EXPECT_EQ(palette.preview().value, 0U);
    type(u"txtG", u"7");
    EXPECT_EQ(palette.chosenColour().value, 0x00000700U);
    EXPECT_EQ(palette.preview().value, 0x00000700U);
    type(u"txtR", u"300");
    EXPECT_EQ(palette.chosenColour().value, 0x000007FFU);
    focus(40);
    EXPECT_EQ(palette.chosenColour().value, 0x00FF0000U);
    EXPECT_EQ(palette.preview().value, 0x000007FFU);
}

TEST_F(Paleta, OnlyTheFocusedSwatchHasABorder)
{
    focus(9);
    EXPECT_TRUE(border(9));
    focus(10);
    EXPECT_FALSE(border(9));
    EXPECT_TRUE(border(10));
    palette.form().focus(id(u"txtR"));
    EXPECT_FALSE(border(10));
}

TEST_F(Paleta, TheBoxesTakeDigitsOnly)
{
    type(u"txtB", u"1a2\b,3");
    EXPECT_EQ(text(u"txtB"), u"123");
}

TEST_F(Paleta, AnOverflowLeavesColourAndPreview)
{
    type(u"txtR", u"3276");
    EXPECT_EQ(errorOf([&] { type(u"txtR", u"8"); }), 6);
    EXPECT_EQ(palette.chosenColour().value, 0x000000FFU);
    EXPECT_EQ(palette.preview().value, 0x000000FFU);
    EXPECT_EQ(errorOf([&] { type(u"txtG", u"5"); }), 6);
    EXPECT_EQ(palette.chosenColour().value, 0x000000FFU);
}

TEST_F(Paleta, OnlyItsButtonCancels)
{
    focus(9);
    click(u"cmdCancel");
    EXPECT_TRUE(palette.isClosed());
    EXPECT_TRUE(palette.cancelled());
    frmPaleta other(bench.forms());
    other.form().close();
    EXPECT_TRUE(other.isClosed());
    EXPECT_FALSE(other.cancelled());
}

TEST_F(Paleta, TheChooserShowsAFreshOneEachTime)
{
    PaletteChooser chooser(bench.forms(), bench.desktop());
    const auto answer = [&](int swatch, std::u16string_view button) {
        bench.forms().modalScript = [this, swatch, button](headless::WidgetForm& form) {
            if (swatch >= 0)
                form.focus(id(u"Picture1", swatch));
            if (!button.empty())
                form.click(id(button));
        };
        return chooser.choose();
    };
    EXPECT_EQ(answer(9, u"cmdOK"), engine::Colour{0x000000FF});
    EXPECT_EQ(answer(9, u"cmdCancel"), std::nullopt);
    EXPECT_EQ(answer(-1, u""), engine::Colour{0}); // the close command applies
}

} // namespace
} // namespace vela::pages
