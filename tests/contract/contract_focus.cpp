// The contract of the focus: the order of leaving and entering, and asking for it back.
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

} // namespace
} // namespace vela::contract
