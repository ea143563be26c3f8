// The contract of the focus: the order of leaving and entering, asking for it back, and hosts that destroy.
#include "tests/contract/form_case.h"

namespace vela::contract {
namespace {

class FocusContract : public FieldCase {
protected:
    [[nodiscard]] Log focusLog() const { return only({"got", "lost"}); }
};

TEST_F(FocusContract, OneIsLeftBeforeTheOtherIsEntered)
{
    stage->focus(0);
    EXPECT_TRUE(box(0).hasFocus());
    stage->focus(1);
    EXPECT_FALSE(box(0).hasFocus());
    EXPECT_TRUE(box(1).hasFocus());
    stage->focusPlain();
    EXPECT_EQ(focusLog(), (Log{"A got", "A lost", "B got", "B lost"}));
}

TEST_F(FocusContract, TabGoesToTheNextAndBack)
{
    stage->focus(0);
    log.clear();
    stage->pressTab(false);
    stage->pressTab(true);
    EXPECT_EQ(log, (Log{"A lost", "B got", "B lost", "A got"}));
}

TEST_F(FocusContract, AFieldThatAsksWhileItIsLeftKeepsTheFocusAndTheNextSeesNothing)
{
    stage->focus(0);
    log.clear();
    first.during("lost", [this] { box(0).takeFocus(); });
    stage->focus(1);
    EXPECT_TRUE(box(0).hasFocus());
    EXPECT_EQ(focusLog(), (Log{"A lost", "A got"}));
    stage->type(u"x");
    EXPECT_EQ(text(0), u"x");
    EXPECT_EQ(text(1), u"");
    stage->pressTab(false);
    EXPECT_EQ(focusLog(), (Log{"A lost", "A got", "A lost", "A got"}));
    first.during("lost", [] {});
    stage->focus(1);
    EXPECT_EQ(focusLog(), (Log{"A lost", "A got", "A lost", "A got", "A lost", "B got"}));
}

TEST_F(FocusContract, TwoFieldsThatBothAskDoNotLoop)
{
    first.during("lost", [this] { box(0).takeFocus(); });
    second.during("lost", [this] { box(1).takeFocus(); });
    stage->focus(0);
    log.clear();
    stage->focus(1);
    EXPECT_EQ(focusLog(), (Log{"A lost", "A got"}));
    EXPECT_TRUE(box(0).hasFocus());
}

TEST_F(FocusContract, AFieldThatIsDisabledIsLeftForNowhereAndNotGivenTheFocusBack)
{
    first.during("lost", [this] { box(0).takeFocus(); });
    stage->focus(0);
    platform::EditTraits traits = box(0).traits();
    traits.enabled = false;
    box(0).putTraits(traits);
    stage->field(0).putEnabled(false);
    stage->settle();
    EXPECT_EQ(focusLog(), (Log{"A got", "A lost"}));
    EXPECT_EQ(first.lastLeaving, platform::Leaving::away);
    EXPECT_FALSE(box(0).hasFocus());
    stage->type(u"x");
    EXPECT_EQ(text(0), u"");
    stage->focus(1);
    EXPECT_EQ(focusLog(), (Log{"A got", "A lost", "B got"}));
    EXPECT_EQ(first.lastLeaving, platform::Leaving::away);
}

TEST_F(FocusContract, AClickThatIsNotGrantedIsNoClick)
{
    stage->focus(0);
    first.during("lost", [this] { box(0).takeFocus(); });
    log.clear();
    stage->click(1);
    EXPECT_EQ(only({"got", "lost", "clicked"}), (Log{"A lost", "A got"}));
}

TEST_F(FocusContract, ATabAskedForIsCarriedOutAfterTheKey)
{
    stage->focus(0);
    log.clear();
    first.filter = [this](int&) { stage->environment().desktop.sendKeys(u"{TAB}"); };
    stage->type(u"a");
    stage->settle();
    EXPECT_EQ(only({"press", "changed", "lost", "got"}), (Log{"A press", "A changed", "A lost", "B got"}));
    log.clear();
    second.filter = [this](int& key) {
        stage->environment().desktop.sendKeys(u"+{TAB}");
        key = 0;
    };
    stage->type(u"b");
    stage->settle();
    EXPECT_EQ(only({"press", "changed", "lost", "got"}), (Log{"B press", "B lost", "A got"}));
}

TEST_F(FocusContract, AHostMayDestroyTheFieldInsideAnyReport)
{
    for (const char* report : {"down", "press", "changed", "up", "lost", "got", "clicked"}) {
        stage = std::make_unique<Stage>();
        Recorder doomed{log, "A"};
        doomed.box = &stage->field(0).activate(platform::EditBoxKind::singleLine);
        stage->listen(0, doomed, doomed);
        stage->field(0).arrange({.edit = {0, 0, 121, 21}});
        doomed.during(report, [this] { stage->destroyField(0); });
        stage->focus(0);
        if (std::string_view(report) != "got") {
            stage->type(u"a");
            if (std::string_view(report) == "clicked")
                stage->click(0);
            stage->focusPlain();
        }
        EXPECT_EQ(log.back(), std::string("A ") + report);
        log.clear();
    }
    stage = std::make_unique<Stage>();
}

} // namespace
} // namespace vela::contract
