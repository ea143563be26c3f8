// The contract of an edit box: text, caret, selection, limits, traits, and what each act reports.
#include "tests/contract/form_case.h"

namespace vela::contract {
namespace {

using platform::EditTraits;
using platform::Selection;

class EditBoxContract : public FieldCase {};

TEST_F(EditBoxContract, PutTextPutsTheCaretAtTheStartAndReportsOnlyAnotherText)
{
    struct Row {
        const char* rule;
        std::u16string_view put;
        int reports;
    };
    for (const Row& row : {Row{"another text", u"abc", 1}, Row{"the same text", u"abc", 0}, Row{"empty", u"", 1},
                           Row{"empty again", u"", 0}, Row{"accents and a pair", u"ção \xD83D\xDE00", 1}}) {
        log.clear();
        box().select({1, 1});
        box().putText(row.put);
        EXPECT_EQ(text(), row.put) << row.rule;
        EXPECT_EQ(box().textLength(), static_cast<int>(row.put.size())) << row.rule;
        EXPECT_EQ(box().selection(), Selection{}) << row.rule;
        EXPECT_EQ(count("A changed"), row.reports) << row.rule;
    }
}

TEST_F(EditBoxContract, ATextOfALockedBoxIsPutAllTheSame)
{
    EditTraits traits = box().traits();
    traits.locked = true;
    traits.maxLength = 2;
    box().putTraits(traits);
    box().putText(u"12345");
    EXPECT_EQ(text(), u"12345");
    EXPECT_EQ(count("A changed"), 1);
}

TEST_F(EditBoxContract, SelectionsAreCutToTheText)
{
    struct Row {
        const char* rule;
        Selection asked, got;
    };
    box().putText(u"abcdef");
    for (const Row& row :
         {Row{"within", {2, 3}, {2, 3}}, Row{"beyond the end", {4, 9}, {4, 2}}, Row{"start beyond", {9, 2}, {6, 0}},
          Row{"below 0", {-3, 2}, {0, 2}}, Row{"negative length", {3, -1}, {3, 0}}, Row{"nothing", {0, 0}, {0, 0}}}) {
        box().select(row.asked);
        EXPECT_EQ(box().selection(), row.got) << row.rule;
    }
}

TEST_F(EditBoxContract, InsertReplacesTheSelectionAndFitsTheLimit)
{
    struct Row {
        const char* rule;
        std::u16string_view before;
        Selection selection;
        int maxLength;
        bool locked;
        std::u16string_view inserted, after;
        int caret, reports;
    };
    const Row rows[] = {
        {"at the caret", u"ad", {1, 0}, 0, false, u"bc", u"abcd", 3, 1},
        {"over a selection", u"axxd", {1, 2}, 0, false, u"bc", u"abcd", 3, 1},
        {"cut to the limit", u"ad", {1, 0}, 3, false, u"bc", u"abd", 2, 1},
        {"the selection makes room", u"axxd", {1, 2}, 4, false, u"bcz", u"abcd", 3, 1},
        {"full: nothing", u"abcd", {2, 0}, 4, false, u"x", u"abcd", 2, 0},
        {"the same text: not reported", u"abcd", {1, 2}, 0, false, u"bc", u"abcd", 3, 0},
        {"locked: nothing", u"abcd", {1, 2}, 0, true, u"x", u"abcd", 1, 0},
    };
    for (const Row& row : rows) {
        EditTraits traits = box().traits();
        traits.maxLength = row.maxLength;
        traits.locked = row.locked;
        box().putTraits(traits);
        box().putText(row.before);
        box().select(row.selection);
        log.clear();
        box().insert(row.inserted);
        EXPECT_EQ(text(), row.after) << row.rule;
        EXPECT_EQ(box().selection().start, row.caret) << row.rule;
        EXPECT_EQ(count("A changed"), row.reports) << row.rule;
    }
}

TEST_F(EditBoxContract, TraitsAreKeptAndTextAndSelectionOutliveThem)
{
    box().putText(u"12345");
    box().select({1, 3});
    log.clear();
    EditTraits traits;
    traits.font = {u"Arial", 10, true, true, false, true};
    traits.alignment = platform::TextAlignment::right;
    traits.maxLength = 9;
    traits.passwordChar = u'*';
    traits.sunken = false;
    box().putTraits(traits);
    EXPECT_EQ(box().traits(), traits);
    EXPECT_EQ(text(), u"12345");
    EXPECT_EQ(box().selection(), (Selection{1, 3}));
    box().putTraits(EditTraits{});
    EXPECT_EQ(box().traits(), EditTraits{});
    EXPECT_EQ(text(), u"12345");
    EXPECT_TRUE(log.empty());
}

TEST_F(EditBoxContract, AKeyIsDownPressChangeUp)
{
    stage->focus(0);
    log.clear();
    stage->type(u"a");
    EXPECT_EQ(log, (Log{"A down", "A press", "A changed", "A up"}));
    EXPECT_EQ(text(), u"a");
    EXPECT_EQ(box().selection(), (Selection{1, 0}));
    first.keyFilter = [](int& code) { code = 0; }; // a swallowed key types nothing
    log.clear();
    stage->type(u"b");
    EXPECT_EQ(text(), u"a");
    EXPECT_EQ(log, (Log{"A down", "A up"}));
}

TEST_F(EditBoxContract, TypingFollowsTheFilterTheLimitAndTheLock)
{
    stage->focus(0);
    log.clear();
    first.filter = [](int& key) { key = key == 'x' ? 0 : key == 'a' ? 'A' : key; };
    EditTraits traits = box().traits();
    traits.maxLength = 3;
    box().putTraits(traits);
    stage->type(u"axbac");
    EXPECT_EQ(text(), u"AbA");
    EXPECT_EQ(count("A changed"), 3);
    traits.locked = true;
    box().putTraits(traits);
    log.clear();
    stage->type(u"z");
    EXPECT_EQ(text(), u"AbA");
    EXPECT_EQ(only({"press", "changed"}), Log{"A press"});
}

TEST_F(EditBoxContract, TypingOverASelectionWithTheSameTextReportsNothing)
{
    stage->focus(0);
    log.clear();
    box().putText(u"abc");
    box().select({1, 1});
    log.clear();
    stage->type(u"b");
    EXPECT_EQ(text(), u"abc");
    EXPECT_EQ(count("A changed"), 0);
    stage->type(u"x");
    EXPECT_EQ(text(), u"abxc");
    EXPECT_EQ(count("A changed"), 1);
}

TEST_F(EditBoxContract, NamedKeysEditTheText)
{
    constexpr int left = 37, home = 36, end = 35, del = 46, backspace = 8;
    stage->focus(0);
    box().putText(u"abc");
    stage->press(end);
    EXPECT_EQ(box().selection(), (Selection{3, 0}));
    stage->press(left);
    stage->press(del);
    EXPECT_EQ(text(), u"ab");
    log.clear();
    stage->press(del); // nothing behind the caret
    stage->press(home);
    stage->press(left);
    stage->type(std::u16string(1, backspace)); // nothing before it
    EXPECT_EQ(only({"changed"}), Log{});
    stage->press(del);
    EXPECT_EQ(text(), u"b");
    stage->press(end);
    stage->type(std::u16string(1, backspace));
    EXPECT_EQ(text(), u"");
    EXPECT_EQ(only({"changed"}), (Log{"A changed", "A changed"}));
}

TEST_F(EditBoxContract, AHandlerOfChangeMayPutTheTextAndTheCaret)
{
    stage->focus(0);
    log.clear();
    first.during("changed", [this] {
        if (text() == u"1") {
            EXPECT_EQ(box().selection(), (Selection{1, 0}));
            box().putText(u"0,01");
            box().select({4, 0});
        }
    });
    stage->type(u"12");
    EXPECT_EQ(text(), u"0,012");
    EXPECT_EQ(box().selection(), (Selection{5, 0}));
    first.during("changed", [this] { box().select({0, 2}); });
    stage->type(u"3");
    EXPECT_EQ(text(), u"0,0123");
    EXPECT_EQ(box().selection(), (Selection{0, 2}));
    first.during("changed", [this] { stage->destroyField(0); });
    stage->type(u"4");
}

TEST_F(EditBoxContract, ClipboardAndHistoryAreTheFieldsOwn)
{
    stage->focus(0);
    box().putText(u"abc");
    box().select({0, 2});
    log.clear();
    stage->paste(u"é1");
    EXPECT_EQ(first.lastPasted, u"é1");
    stage->cut();
    stage->undo();
    stage->redo();
    EXPECT_EQ(only({"pasted", "cut", "undo", "redo", "changed", "press"}),
              (Log{"A pasted", "A cut", "A undo", "A redo"}));
    EXPECT_EQ(text(), u"abc");
}

TEST_F(EditBoxContract, EachKindKeepsItsOwnText)
{
    box().putText(u"one");
    platform::EditBox& lines = stage->field(0).activate(platform::EditBoxKind::multiLine);
    lines.putText(u"a\r\nb");
    EXPECT_EQ(count("A changed"), 2);
    EXPECT_EQ(text(), u"one");
    stage->field(0).activate(platform::EditBoxKind::singleLine);
    std::u16string kept;
    lines.text(kept);
    EXPECT_EQ(kept, u"a\r\nb");
}

TEST_F(EditBoxContract, EnterBreaksTheLineOfAMultiLineBoxOnly)
{
    stage->focus(0);
    stage->type(u"a\r");
    EXPECT_EQ(text(), u"a");
    platform::EditBox& lines = stage->field(1).activate(platform::EditBoxKind::multiLine);
    second.box = &lines;
    stage->focus(1);
    stage->type(u"a\rb");
    EXPECT_EQ(text(1), u"a\r\nb");
}

TEST_F(EditBoxContract, MouseReports)
{
    box().putText(u"abc");
    stage->focus(1);
    log.clear();
    stage->click(0);
    EXPECT_EQ(only({"got", "lost", "clicked"}), (Log{"B lost", "A got", "A clicked"}));
    log.clear();
    stage->doubleClick(0);
    EXPECT_EQ(only({"clicked", "double"}), (Log{"A clicked", "A double"}));
    stage->pointTo(1);
    EXPECT_GE(count("B pointer"), 1);
}

// "a[b]c" and the keys: what is reported, whatever common letters stand beside it.
TEST_F(EditBoxContract, AChangeSaysWhatGaveWayToWhat)
{
    constexpr int none = 0, del = 46;
    struct Row {
        const char* rule;
        std::u16string_view before;
        Selection selection;
        std::u16string_view typed;
        int pressed;
        int at;
        std::u16string_view removed, inserted;
    };
    const Row rows[] = {
        {"a character", u"aa", {1, 0}, u"a", none, 1, u"", u"a"},
        {"over a selection that begins alike", u"aXab", {1, 2}, u"X", none, 1, u"Xa", u"X"},
        {"over a selection that ends alike", u"aXa", {1, 2}, u"a", none, 1, u"Xa", u"a"},
        {"Backspace among the same letters", u"aaa", {2, 0}, u"\b", none, 1, u"a", u""},
        {"Backspace on a selection", u"abbb", {1, 2}, u"\b", none, 1, u"bb", u""},
        {"Delete among the same letters", u"aaa", {1, 0}, u"", del, 1, u"a", u""},
        {"Delete on a selection", u"abab", {0, 2}, u"", del, 0, u"ab", u""},
    };
    stage->focus(0);
    for (const Row& row : rows) {
        SCOPED_TRACE(row.rule);
        box().putText(row.before);
        box().select(row.selection);
        if (row.pressed != none)
            stage->press(row.pressed);
        else
            stage->type(row.typed);
        EXPECT_EQ(first.lastEdit.at, row.at);
        EXPECT_EQ(first.removed, row.removed);
        EXPECT_EQ(first.inserted, row.inserted);
        EXPECT_EQ(first.lastEdit.before, row.selection);
        EXPECT_TRUE(first.lastEdit.typed);
    }
    box().putText(u"12,34");
    box().select({5, 0});
    box().putText(u"1.234");
    EXPECT_EQ(first.lastEdit.at, 1);
    EXPECT_EQ(first.removed, u"2,");
    EXPECT_EQ(first.inserted, u".2");
    EXPECT_EQ(first.lastEdit.before, (Selection{5, 0}));
    EXPECT_FALSE(first.lastEdit.typed);
    box().select({1, 2});
    box().insert(u"2");
    EXPECT_EQ(first.removed, u".2");
    EXPECT_EQ(first.inserted, u"2");
    EXPECT_TRUE(first.lastEdit.typed);
}

} // namespace
} // namespace vela::contract
