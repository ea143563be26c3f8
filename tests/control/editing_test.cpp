// Paste, cut, undo and redo: what typing would have done, in one change.
#include "control/history.h"
#include "tests/support/bench.h"

#include <gtest/gtest.h>

#include <random>

namespace vela::test {
namespace {

constexpr std::string_view none = "";
constexpr std::string_view telephone = "set f Mask \"+55 (__) ____\"\nset f TextType Mascara\n";
constexpr std::string_view capitals = "set f tipoLetra Maisculo\nset f MaxLength 4\n";
constexpr std::string_view abc = "set f Text \"abc\"\n";
constexpr std::string_view lines = "set f MultLine True\nset f Text \"abc\"\n";

void type(Bench& bench, std::u16string_view characters)
{
    for (const char16_t character : characters)
        bench.form().key(headless::keyOf(character));
}

struct Paste {
    const char* rule;
    std::string_view prepare;
    int caret;
    int selected;
    const char16_t* text;
    const char* shows;
};

TEST(Paste, GoesThroughTheFilterCharacterByCharacter)
{
    const Paste rows[] = {
        {"cut to fit, in capitals", capitals, 0, 0, u"abcdef", "ABCD|"},
        {"replaces the selection", abc, 1, 1, u"xy", "axy|c"},
        {"a line break is refused in one line", abc, 3, 0, u"x\r\ny", "abcxy|"},
        {"a mask takes the text with its literals", plate, 0, 0, u"abc-1234", "ABC-1234|"},
        {"and without", plate, 0, 0, u"ABC1234", "ABC-1234|"},
        {"what a rule refuses is left out", plate, 0, 0, u"a1b2c3", "ABC-3|___"},
        {"digits of the template are not data", telephone, 5, 0, u"+55 (11) 2345", "+55 (11) 2345|"},
        {"a text of digits alone is", telephone, 5, 0, u"112345", "+55 (11) 2345|"},
        {"a date with its separators", date, 0, 0, u"29/02/2024", "29/02/2024|"},
        {"full-width digits", date, 0, 0, u"\uFF12\uFF19\uFF10\uFF12", "29/02/|____"},
        {"a number by its rules", number, 0, 0, u"-1.234,56x7", "-1234,56|"},
        {"an amount, digit by digit", amount, 4, 0, u"R$ 12,34", "12,34|"},
        {"lines", lines, 3, 0, u"d\ne\r\nf", "abcd\r\ne\r\nf|"},
    };
    for (const Paste& row : rows) {
        SCOPED_TRACE(row.rule);
        Bench bench(row.prepare == lines ? "new f design\nfocus f\n" : "new f\nfocus f\n");
        bench.run(row.prepare);
        bench.form().placeCaret(row.caret, row.selected);
        int changes = 0;
        bench.on().change = [&] { ++changes; };
        bench.form().paste(row.text);
        EXPECT_EQ(bench.shows(), row.shows);
        EXPECT_EQ(changes, 1);
    }
}

TEST(Paste, ObeysTheHandlerOfEachKeyPress)
{
    Bench bench("new f\nfocus f\ntrace events\n");
    bench.on().keyPress = [](std::int16_t& key) { key = key == u'b' ? std::int16_t{0} : key; };
    EXPECT_EQ(bench.run("paste-rules \"abc\"\n"),
              "event f KeyPress 97\nevent f KeyPress 98\nevent f KeyPress 99\nevent f Change\n");
    EXPECT_EQ(bench.shows(), "ac|");
}

// Pasted whole, digits give what they give typed one by one, wherever the caret stands.
TEST(Paste, EqualsTyping)
{
    std::mt19937 random(20240301); // the same texts every time
    constexpr std::string_view kinds[] = {none, plate, telephone, date, number, amount};
    for (int round = 0; round < 300; ++round) {
        std::u16string digits;
        for (unsigned i = random() % 8; i > 0; --i)
            digits += static_cast<char16_t>(u'0' + random() % 10);
        const auto places = random() % 5;
        const int caret = static_cast<int>(random() % 6);
        const std::string_view kind = kinds[random() % std::size(kinds)];
        const auto shown = [&](bool pasted) {
            Bench bench("new f\nfocus f\n");
            bench.run(kind);
            bench.run("set f MaskRules \"\"\n");
            if (kind == number || kind == amount)
                bench.run("set f QtdCasasDec " + std::to_string(places) + "\n");
            bench.form().placeCaret(caret, 0);
            if (pasted)
                bench.form().paste(digits);
            else
                type(bench, digits);
            return bench.shows();
        };
        EXPECT_EQ(shown(false), shown(true)) << toUtf8(digits) << " at " << caret << ", places " << places;
    }
}

TEST(Undo, TakesBackKeysWhateverTheyWrote)
{
    const struct {
        std::string_view prepare;
        const char* keys;
        const char* typed;
    } rows[] = {
        {none, "ab{BACKSPACE}c", "ac|"}, {none, "ab{DELETE}", "ab|"}, {plate, "ab1c{BACKSPACE}4", "AB|_-____"},
        {number, "12,345", "12,34|"},    {amount, "1234", "12,34|"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.keys);
        Bench bench;
        bench.run(row.prepare);
        bench.run("focus f\n");
        headless::EditBox& box = bench.field().surface.activeBox();
        const std::u16string start = box.shownText();
        bench.run("keys \"" + std::string(row.keys) + "\"\n");
        EXPECT_EQ(bench.shows(), row.typed);
        const std::u16string end = box.shownText();
        bench.run("keys \"{^Z}{^Z}{^Z}{^Z}{^Z}{^Z}{^Z}{^Z}{^Z}{^Z}\"\n");
        EXPECT_EQ(toUtf8(box.shownText()), toUtf8(start));
        bench.run("keys \"{^Y}{^Y}{^Y}{^Y}{^Y}{^Y}{^Y}{^Y}{^Y}{^Y}\"\n");
        EXPECT_EQ(toUtf8(box.shownText()), toUtf8(end));
    }
}

// Many random edits, more than the history keeps: undone and redone they meet the same texts again.
TEST(Undo, SurvivesALongSession)
{
    std::mt19937 random(20240229); // the same session every time
    Bench bench("new f\nfocus f\ntrace none\n");
    headless::EditBox& box = bench.field().surface.activeBox();
    for (int i = 0; i < 3000; ++i) {
        const auto length = static_cast<int>(box.shownText().size());
        const auto caret = static_cast<int>(random() % static_cast<unsigned>(length + 1));
        bench.form().placeCaret(caret, static_cast<int>(random() % 3));
        switch (random() % 6) {
        case 0: bench.form().key(headless::namedKey(headless::virtual_key::backspace)); break;
        case 1: bench.form().key(headless::namedKey(headless::virtual_key::del)); break;
        case 2: bench.form().paste(u"pasted"); break;
        default: type(bench, {&u"abcdefgh"[random() % 8], 1}); break;
        }
        if (random() % 50 == 0) {
            const std::u16string before = box.shownText();
            const auto steps = random() % 40;
            for (unsigned step = 0; step < steps; ++step)
                bench.form().undo();
            for (unsigned step = 0; step < steps; ++step)
                bench.form().redo();
            ASSERT_EQ(toUtf8(box.shownText()), toUtf8(before));
        }
    }
}

// A key and the re-format that belongs to it go together, also where a full history lets go of its older half.
TEST(Undo, NeverPartsJoinedSteps)
{
    for (const int single : {0, 1}) { // the middle of a full history falls on either side of a pair
        control::History history;
        std::u16string text;
        const auto put = [&](int at, std::u16string_view removed, std::u16string_view inserted, bool joined) {
            text.replace(static_cast<std::size_t>(at), removed.size(), inserted);
            history.add({at, removed, inserted, {at, 0}}, joined);
        };
        for (int i = 0; i < single; ++i)
            put(0, u"", u"s", false);
        for (int i = 0; i < 600; ++i) {
            const int end = static_cast<int>(text.size());
            put(end, u"", u"typed", false);
            put(end, u"typed", u"w", true);
        }
        const std::u16string full = text;
        while (history.undo(text))
            EXPECT_EQ(text.find(u'd'), std::u16string::npos);
        EXPECT_LT(text.size(), full.size());
        while (history.redo(text))
            EXPECT_EQ(text.find(u'd'), std::u16string::npos);
        EXPECT_EQ(text, full);
    }
}

TEST(KeypadDecimal, GivesTheFieldsSymbol)
{
    Bench bench("new f\nfocus f\n");
    bench.run(number);
    bench.run("set f Text \"\"\nkeys \"12\"\n");
    bench.form().key({110, u'.', true});
    bench.run("keys \"5.\"\n"); // the main keyboard's point stays one
    EXPECT_EQ(bench.shows(), "12,5|");
}

} // namespace
} // namespace vela::test
