// An alert where the edit box shows no balloon.
#include "tests/support/bench.h"
#include "tooltip/balloon_tip.h"
#include "tooltip/balloon_tooltip.h"

#include <gtest/gtest.h>

namespace vela::test {
namespace {

// A field's box, but for its balloon.
class BoxWithoutBalloon final : public platform::EditBox {
public:
    explicit BoxWithoutBalloon(platform::EditBox& box) : box_(box) {}

    void text(std::u16string& into) const override { box_.text(into); }
    int textLength() const override { return box_.textLength(); }
    void putText(std::u16string_view text) override { box_.putText(text); }
    void insert(std::u16string_view text) override { box_.insert(text); }
    platform::Selection selection() const override { return box_.selection(); }
    void select(platform::Selection selection) override { box_.select(selection); }
    platform::EditColours colours() const override { return box_.colours(); }
    void putColours(platform::EditColours colours) override { box_.putColours(colours); }
    const platform::EditTraits& traits() const override { return box_.traits(); }
    void putTraits(const platform::EditTraits& traits) override { box_.putTraits(traits); }
    void takeFocus() override { box_.takeFocus(); }
    bool hasFocus() const override { return box_.hasFocus(); }
    bool showBalloon(int, std::u16string_view, std::u16string_view) override { return false; }
    void hideBalloon() override { box_.hideBalloon(); }
    platform::WindowId window() const override { return box_.window(); }

private:
    platform::EditBox& box_;
};

TEST(BalloonTip, ThroughTheTooltipWhereTheBoxCannot)
{
    Bench bench("new f\ntrace tooltip\n");
    BoxWithoutBalloon box(bench.field().surface.activeBox());
    tooltip::CBalloonToolTip tip(bench.field().surface.makeTooltip());
    const auto server = tooltip::ShowBalloonTip(u"text", u"title", 3, box, 21, tip);
    EXPECT_EQ(bench.run(""), "tip f create\ntip f TTM_ADDTOOLA \"text\"\ntip f TTM_SETTITLEA 3 \"title\"\n"
                             "tip f TTM_SETDELAYTIME 2 5000\ntip f TTM_SETDELAYTIME 3 500\n"
                             "tip f TTM_TRACKPOSITION 8 29\ntip f TTM_TRACKACTIVATE True\n");
    tooltip::HideBalloonTip(box, server, tip);
    EXPECT_EQ(bench.run(""), "tip f destroy\n");
}

} // namespace
} // namespace vela::test
