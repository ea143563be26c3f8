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
    [[nodiscard]] bool border(int swatch) { return palette.form().look(id(u"Picture1", swatch)).border; }

    PageBench bench{PageKind::ppErros};
    frmPaleta palette{bench.forms()};
};

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

TEST_F(Paleta, ArrowsMoveBetweenTheSwatches)
{
    using namespace headless::virtual_key;
    struct Row {
        int from, arrow, to; // indexes of swatches
    };
    for (const Row& row : {Row{5, right, 8}, Row{5, down, 4}, Row{33, left, 27}, Row{33, up, 32}, Row{5, left, 5},
                           Row{5, up, 5}, Row{47, right, 47}, Row{47, down, 47}}) {
        focus(row.from);
        static_cast<headless::WidgetForm&>(palette.form())
            .type(id(u"Picture1", row.from), headless::namedKey(row.arrow));
        EXPECT_EQ(palette.form().focused(), id(u"Picture1", row.to)) << row.from << " " << row.arrow;
        EXPECT_TRUE(border(row.to));
    }
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
