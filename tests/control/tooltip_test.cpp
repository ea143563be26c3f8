// An alert where the edit box shows no balloon, and the version in the About box.
#include "tests/support/bench.h"
#include "tooltip/about_box.h"
#include "tooltip/balloon_tip.h"
#include "tooltip/balloon_tooltip.h"

#include <gtest/gtest.h>

namespace vela::test {
namespace {

// A box that shows no balloon; everything else is out of the question here.
class BalloonBox final : public platform::EditBox {
public:
    explicit BalloonBox(platform::WindowId window) : window_(window) {}

    void text(std::u16string&) const override { refuse(); }
    int textLength() const override { return refuse(); }
    void putText(std::u16string_view) override { refuse(); }
    void insert(std::u16string_view) override { refuse(); }
    platform::Selection selection() const override { return {refuse(), 0}; }
    void select(platform::Selection) override { refuse(); }
    platform::EditColours colours() const override { return refuse(), platform::EditColours{}; }
    void putColours(platform::EditColours) override { refuse(); }
    const platform::EditTraits& traits() const override
    {
        refuse();
        return traits_;
    }
    void putTraits(const platform::EditTraits&) override { refuse(); }
    void takeFocus() override { refuse(); }
    bool hasFocus() const override { return refuse() != 0; }
    bool showBalloon(int, std::u16string_view, std::u16string_view) override { return false; }
    void hideBalloon() override { refuse(); }
    platform::WindowId window() const override { return window_; }

private:
    static int refuse() { throw engine::Error{engine::error_number::unsupportedMember, u"", u"", 0}; }

    platform::WindowId window_;
    platform::EditTraits traits_;
};

TEST(BalloonTip, ThroughTheTooltipWhereTheBoxCannot)
{
    Bench bench("new f\ntrace tooltip\n");
    BalloonBox box(bench.field().surface.window());
    tooltip::CBalloonToolTip tip(bench.field().surface.makeTooltip());
    const auto server = tooltip::ShowBalloonTip(u"text", u"title", 3, box, 21, tip);
    EXPECT_EQ(bench.run(""), "tip f create\ntip f TTM_ADDTOOLA \"text\"\ntip f TTM_SETTITLEA 3 \"title\"\n"
                             "tip f TTM_SETDELAYTIME 2 5000\ntip f TTM_SETDELAYTIME 3 500\n"
                             "tip f TTM_TRACKPOSITION 8 29\ntip f TTM_TRACKACTIVATE True\n");
    tooltip::HideBalloonTip(box, server, tip);
    EXPECT_EQ(bench.run(""), "tip f destroy\n");
}

TEST(AboutBox, TheRevisionHasFourDigitsAtLeast)
{
    EXPECT_EQ(tooltip::aboutText({2, 1, 37}), u"Vela - Compilação 2.1.0037");
    EXPECT_EQ(tooltip::aboutText({10, 12, 12345}), u"Vela - Compilação 10.12.12345");
}

} // namespace
} // namespace vela::test
