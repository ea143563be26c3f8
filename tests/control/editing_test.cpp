// Paste, cut, undo and redo: what typing would have done, in one change.
#include "field_bench.h"

#include <gtest/gtest.h>

#include <random>

namespace vela::control {
namespace {

using Field = FieldBench::Field;

void none(Field&) {}
void telephone(Field& f)
{
    f.put(u"Mask", u"+55 (__) ____");
    f.put(u"TextType", 3);
}
void capitals(Field& f)
{
    f.put(u"tipoLetra", 1);
    f.put(u"MaxLength", 4);
}
void lines(Field& f)
{
    f.put(u"MultLine", 1);
}

struct Paste {
    const char* rule;
    void (*prepare)(Field&);
    int caret;
    int selected;
    const char16_t* text;
    const char* shows;
};

TEST(Paste, GoesThroughTheFilterCharacterByCharacter)
{
    const Paste rows[] = {
        {"cut to fit, in capitals", capitals, 0, 0, u"abcdef", "ABCD|"},
        {"replaces the selection", none, 1, 1, u"xy", "axy|c"},
        {"a line break is refused in one line", none, 3, 0, u"x\r\ny", "abcxy|"},
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
        FieldBench bench;
        Field& f = bench.make(u"f", row.prepare != lines);
        f->initNew();
        row.prepare(f);
        if (f.box().shownText().empty() && row.prepare != capitals && row.prepare != number)
            f.put(u"Text", u"abc");
        bench.focus(f);
        bench.form.placeCaret(row.caret, row.selected);
        int changes = 0;
        f.on().change = [&] { ++changes; };
        bench.form.paste(row.text);
        EXPECT_EQ(f.shows(), row.shows);
        EXPECT_EQ(changes, 1);
    }
}

TEST(Paste, RaisesKeyPressForEachAndObeysItsHandler)
{
    FieldBench bench;
    Field& f = bench.add();
    bench.focus(f);
    static_cast<void>(bench.seen());
    f.on().keyPress = [](std::int16_t& key) { key = key == u'b' ? std::int16_t{0} : key; };
    bench.form.paste(u"abc");
    EXPECT_EQ(bench.seen(), "KeyPress 97; KeyPress 98; KeyPress 99; Change");
    EXPECT_EQ(f.shows(), "ac|");
    f.put(u"Locked", 1);
    bench.form.paste(u"x");
    EXPECT_EQ(f.shows(), "ac|");
}

// Pasted whole, digits give what they give typed one by one, wherever the caret stands.
TEST(Paste, EqualsTyping)
{
    std::mt19937 random(20240301); // the same texts every time
    constexpr void (*kinds[])(Field&) = {none, plate, telephone, date, number, amount};
    for (int round = 0; round < 300; ++round) {
        std::u16string digits;
        for (unsigned i = random() % 8; i > 0; --i)
            digits += static_cast<char16_t>(u'0' + random() % 10);
        const int places = static_cast<int>(random() % 5);
        const int caret = static_cast<int>(random() % 6);
        const auto kind = kinds[random() % std::size(kinds)];
        const auto shown = [&](bool pasted) {
            FieldBench bench;
            Field& f = bench.add();
            kind(f);
            f.put(u"MaskRules", u"");
            if (kind == number || kind == amount)
                f.put(u"QtdCasasDec", places);
            bench.focus(f);
            bench.form.placeCaret(caret, 0);
            if (pasted)
                bench.form.paste(digits);
            else
                bench.type(digits);
            return f.shows();
        };
        EXPECT_EQ(shown(false), shown(true)) << narrow(digits) << " at " << caret << ", places " << places;
    }
}

TEST(Cut, TakesTheSelectionOutAsTypingWould)
{
    FieldBench bench;
    Field& f = bench.add();
    f.put(u"Text", u"abcd");
    bench.focus(f);
    bench.form.placeCaret(1, 2);
    bench.form.cut();
    EXPECT_EQ(f.shows(), "a|d");
    bench.form.undo();
    EXPECT_EQ(f.shows(), "a[bc]d");

    Field& p = bench.add(u"p");
    plate(p);
    bench.typeInto(p, u"abc12");
    bench.form.placeCaret(2, 3);
    bench.form.cut();
    EXPECT_EQ(p.shows(), "AB|_-_2__");
    p.put(u"Locked", 1);
    bench.form.placeCaret(0, 2);
    bench.form.cut();
    EXPECT_EQ(p.shows(), "[AB]_-_2__");
}

TEST(Undo, TakesBackKeysWhateverTheyWrote)
{
    const struct {
        const char* rule;
        void (*prepare)(Field&);
        const char16_t* keys; // \b Backspace, \x7F Delete
        const char* typed;
    } rows[] = {
        {"free text", none, u"ab\bc", "ac|"},         {"deleted forwards", none, u"ab\x7F", "ab|"},
        {"a mask", plate, u"ab1c\b4", "AB|_-____"},   {"a number's symbol", number, u"12,345", "12,34|"},
        {"a live amount", amount, u"1234", "12,34|"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.rule);
        FieldBench bench;
        Field& f = bench.add();
        row.prepare(f);
        bench.focus(f);
        const std::u16string start = f.box().shownText();
        for (const char16_t* key = row.keys; *key != 0; ++key) {
            if (*key == u'\b')
                bench.key(headless::virtual_key::backspace);
            else if (*key == u'\x7F')
                bench.key(headless::virtual_key::del);
            else
                bench.type({key, 1});
        }
        EXPECT_EQ(f.shows(), row.typed);
        const std::u16string end = f.box().shownText();
        for (int i = 0; i < 10; ++i)
            bench.form.undo();
        EXPECT_EQ(narrow(f.box().shownText()), narrow(start));
        for (int i = 0; i < 10; ++i)
            bench.form.redo();
        EXPECT_EQ(narrow(f.box().shownText()), narrow(end));
    }
}

TEST(Undo, EndsWhereTheHostWrites)
{
    FieldBench bench;
    Field& f = bench.add();
    bench.typeInto(f, u"ab");
    f.put(u"Text", u"host");
    bench.form.undo();
    EXPECT_EQ(f.shows(), "|host");
    bench.type(u"x");
    bench.form.undo();
    EXPECT_EQ(f.shows(), "|host");
    bench.type(u"y");
    bench.form.redo(); // a new key ends what could be redone
    EXPECT_EQ(f.shows(), "y|host");
}

TEST(Undo, OneChangeEachAndNoNewFormat)
{
    FieldBench bench;
    Field& f = bench.add();
    amount(f);
    bench.typeInto(f, u"123");
    static_cast<void>(bench.seen());
    bench.form.undo();
    EXPECT_EQ(f.shows(), "0,12|");
    EXPECT_EQ(bench.seen(), "Change");
}

// Many random edits, more than the history keeps: undone and redone they meet the same texts again.
TEST(Undo, SurvivesALongSession)
{
    std::mt19937 random(20240229); // the same session every time
    FieldBench bench;
    Field& f = bench.add();
    bench.focus(f);
    for (int i = 0; i < 3000; ++i) {
        const auto length = static_cast<int>(f.box().shownText().size());
        const auto caret = static_cast<int>(random() % static_cast<unsigned>(length + 1));
        bench.form.placeCaret(caret, static_cast<int>(random() % 3));
        switch (random() % 6) {
        case 0: bench.key(headless::virtual_key::backspace); break;
        case 1: bench.key(headless::virtual_key::del); break;
        case 2: bench.form.paste(u"pasted"); break;
        default: bench.type({&u"abcdefgh"[random() % 8], 1}); break;
        }
        if (random() % 50 == 0) {
            const std::u16string before = f.box().shownText();
            const auto steps = random() % 40;
            for (unsigned step = 0; step < steps; ++step)
                bench.form.undo();
            for (unsigned step = 0; step < steps; ++step)
                bench.form.redo();
            ASSERT_EQ(narrow(f.box().shownText()), narrow(before));
        }
    }
}

// A key and the re-format that belongs to it go together, also where a full history lets go of its older half.
TEST(Undo, NeverPartsJoinedSteps)
{
    for (const int single : {0, 1}) { // the middle of a full history falls on either side of a pair
        History history;
        std::u16string text;
        const auto put = [&](int at, std::u16string_view removed, std::u16string_view inserted, bool joined) {
            text.replace(static_cast<std::size_t>(at), removed.size(), inserted);
            history.add(at, removed, inserted, {at, 0}, joined);
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
    FieldBench bench;
    Field& f = bench.add();
    number(f);
    bench.typeInto(f, u"12");
    bench.form.key({110, u'.', true});
    bench.type(u"5");
    EXPECT_EQ(f.shows(), "12,5|");
    bench.type(u".");
    EXPECT_EQ(f.shows(), "12,5|"); // the main keyboard's point stays one
}

} // namespace
} // namespace vela::control
