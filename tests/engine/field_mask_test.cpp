// Typing, erasing and moving in a mask, and values in and out of it.
#include "engine/field/mask.h"
#include "field_text.h"
#include "tests/support/error_of.h"

#include <gtest/gtest.h>

namespace vela::engine {
namespace {

using test::box;
using test::marked;

constexpr MaskSettings plate{u"___-____", u"@@@-####", u"_"};
constexpr MaskSettings date{u"__/__/____", u"", u"_"};
constexpr MaskSettings gap{u"__)(__", u"", u"_"};

std::u16string afterStep(const MaskStep& step, const test::Box& before, const std::u16string& text)
{
    int caret = step.textWritten ? step.caret : before.caret;
    return marked(text, step.promptCaret.value_or(caret));
}

struct TypingRow {
    const char* rule;
    MaskSettings settings;
    std::u16string_view before;
    int key;
    int keyAfter;
    std::u16string_view after;
};

TEST(Mask, Typing)
{
    const TypingRow rows[] = {
        {"small letters become capitals", plate, u"|___-____", u'a', u'A', u"A|__-____"},
        {"past a literal to the next prompt", plate, u"AB|_-____", u'c', u'C', u"ABC-|____"},
        {"one literal in front is skipped", plate, u"ABC|-____", u'1', u'1', u"ABC-1|___"},
        {"a run of two literals is not crossed", gap, u"12|)(__", u'3', u'3', u"12|)(__"},
        {"the second of two literals is skipped", gap, u"12)|(__", u'3', u'3', u"12)(3|_"},
        {"a digit at a letter", plate, u"|___-____", u'1', 0, u"|___-____"},
        {"a letter at a digit", plate, u"ABC-|____", u'x', 0, u"ABC-|____"},
        {"an accented letter is no letter", plate, u"|___-____", 0xC7, 0xC7, u"|___-____"},
        {"the question mark takes both", {u"__", u"??", u"_"}, u"|__", u'z', u'Z', u"Z|_"},
        {"a literal among the rules blocks", {u"__", u"-#", u"_"}, u"|__", u'1', 0, u"|__"},
        {"rules shorter than the mask refuse", {u"__", u"#", u"_"}, u"1|_", u'2', 0, u"1|_"},
        {"the last prompt leaves the caret behind it", date, u"31/12/202|_", u'4', u'4', u"31/12/2024|"},
        {"a literal at the end, no prompt left", {u"_)", u"", u"_"}, u"|_)", u'7', u'7', u"7|)"},
        {"over a filled position", date, u"3|1/12/2024", u'0', u'0', u"30|/12/2024"},
        {"the jump goes to the next free prompt", date, u"3|_/12/__24", u'1', u'1', u"31/12/|__24"},
        {"at the end of the mask", date, u"31/12/2024|", u'4', u'4', u"31/12/2024|"},
        {"a text shorter than its mask grows", date, u"|", u'4', u'4', u"4|"},
        {"punctuation is never written", date, u"|__/__/____", u'/', u'/', u"|__/__/____"},
        {"another key on a literal goes to the prompt before it", date, u"__|/__/____", 8, 8, u"_|_/__/____"},
        {"another key on a literal goes on to the next prompt", date, u"12|/__/____", 8, 8, u"12/|__/____"},
        {"another key with no prompt left", date, u"12|/12/2024", 8, 8, u"12|/12/2024"},
        {"a literal in front of everything", {u"(__)", u"", u"_"}, u"|(__)", 8, 8, u"(|__)"},
        {"locked", {u"__", u"", u"_", true}, u"|__", u'a', u'a', u"|__"},
        {"an empty prompt marks nothing", {u"__", u"", u""}, u"|__", u'a', u'a', u"|__"},
        {"a prompt of two characters marks nothing", {u"__", u"", u"__"}, u"|__", u'a', u'a', u"|__"},
        {"a digit as prompt: the caret goes back to what was typed", {u"0-0", u"", u"0"}, u"|0-0", u'0', u'0', u"|0-0"},
    };
    for (const auto& row : rows) {
        const auto before = box(row.before);
        std::u16string text = before.text;
        const auto step = validateMask(row.key, before.caret, row.settings, text);
        EXPECT_EQ(step.key, row.keyAfter) << row.rule;
        EXPECT_EQ(afterStep(step, before, text), row.after) << row.rule;
        EXPECT_TRUE(step.textWritten || text == before.text) << row.rule;
    }
}

TEST(Mask, ErasingPutsPromptsBack)
{
    struct Row {
        const char* rule;
        std::u16string_view before;
        int key;
        std::u16string_view after; // without a caret: nothing happens
    };
    constexpr int del = 46;
    constexpr int back = 8;
    const Row rows[] = {
        {"Backspace before the caret", u"12/3|_/____", back, u"12/|__/____"},
        {"Backspace over a literal", u"12/|3_/____", back, u"1|_/3_/____"},
        {"Backspace at the start", u"|12/__/____", back, u"12/__/____"},
        {"Delete at the caret", u"1|2/34/____", del, u"1|_/34/____"},
        {"Delete over a literal", u"12|/34/____", del, u"12/|_4/____"},
        {"Delete behind the last position", u"12/34/5678|", del, u"12/34/5678"},
        {"a selection, literals stay", u"1[2/3]4/____", del, u"1|_/_4/____"},
        {"Backspace with a selection", u"1[2/3]4/____", back, u"1|_/_4/____"},
        {"a selection of a literal only", u"12[/]34/____", del, u"12|/34/____"},
        {"a text shorter than its mask", u"12/|", del, u"12/"},
        {"another key", u"1|2/34/____", 37, u"12/34/____"},
    };
    for (const auto& row : rows) {
        auto before = box(row.before);
        const auto erasure = eraseInMask(row.key, before.caret, before.selected, date, before.text);
        EXPECT_EQ(erasure ? marked(before.text, erasure->caret) : before.text, row.after) << row.rule;
        EXPECT_EQ(erasure && erasure->written, before.text != box(row.before).text) << row.rule;
    }
    MaskSettings locked = date;
    locked.locked = true;
    std::u16string text = u"12/34/5678";
    EXPECT_FALSE(eraseInMask(del, 0, 3, locked, text));
    EXPECT_EQ(text, u"12/34/5678");
}

TEST(Mask, ValuesInAndOut)
{
    const MaskSettings phone{u"(__) ____", u"", u"_"};
    EXPECT_EQ(maskedValue(u"(11) 23__", phone), u"1123  ");
    EXPECT_EQ(maskedValue(u"(11) 2345 678", phone), u"112345"); // beyond the mask all is literal
    struct Row {
        std::u16string_view value;
        MaskSettings settings;
        std::u16string_view text;
    };
    const Row rows[] = {
        {u"12", date, u"12//"},   {u"01022024", date, u"01/02/2024"}, {u"0102202499", date, u"01/02/2024"},
        {u"1 2", date, u"1_/2/"}, {u"", date, u"__/__/____"},         {u"ab", {u"--", u"", u""}, u"--"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(layIntoMask(row.value, row.settings), row.text);
}

TEST(Mask, TheCounterOfPositionsHasEightBits)
{
    const std::u16string longest(254, u'_');
    const std::u16string tooLong(255, u'_');
    EXPECT_EQ(layIntoMask(u"1", {longest, u"", u"_"}), u"1");
    EXPECT_EQ(layIntoMask(u"", {tooLong, u"", u"_"}), tooLong);
    EXPECT_EQ(errorOf([&] { return layIntoMask(u"1", {tooLong, u"", u"_"}); }), error_number::overflow);
}

} // namespace
} // namespace vela::engine
