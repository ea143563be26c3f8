// The number field's display, symbol, sign, entry form and live re-format.
#include "engine/field/number_display.h"
#include "engine/text/conversions.h"
#include "field_text.h"
#include "tests/support/error_of.h"

#include <gtest/gtest.h>

namespace vela::engine {
namespace {

NumberSettings settings(std::u16string_view decimal, std::u16string_view grouping, int decimals, bool zeros,
                        const Locale& locale = ptBr())
{
    return {decimal, grouping, decimals, zeros, locale};
}

TEST(NumberDisplay, OnExit)
{
    struct Row {
        const char* rule;
        std::u16string_view text;
        NumberSettings settings;
        std::u16string_view shown;
    };
    const auto money = settings(u",", u".", 2, true);
    const auto bare = settings(u",", u"", 2, true);
    const Row rows[] = {
        {"grouped and padded", u"1234,5", money, u"1.234,50"},
        {"a whole number gains its decimals", u"12", money, u"12,00"},
        {"without zeros it stays whole", u"12", settings(u",", u".", 2, false), u"12"},
        {"without zeros the decimals stay short", u"1234,5", settings(u",", u".", 2, false), u"1.234,5"},
        {"more decimals than places stay", u"1,234", money, u"1,234"},
        {"no places, no symbol added", u"1234", settings(u",", u".", 0, true), u"1.234"},
        {"a symbol without decimals", u"12,", money, u"12,00"},
        {"no whole part", u",5", money, u"0,50"},
        {"no number at all", u"12x", money, u""},
        {"no display symbol: as it is", u"1234,5", settings(u"", u".", 2, true), u"1234,5"},
        {"no grouping: as typed, padded", u"0012,5", bare, u"0012,50"},
        {"leading zeros go with grouping", u"0001234", money, u"1.234,00"},
        {"negative", u"-1234567,5", money, u"-1.234.567,50"},
        {"the sign of a fraction survives", u"-0,5", money, u"-0,50"},
        {"a negative nothing loses its sign", u"-0,00", money, u"0,00"},
        {"a blank behind is no digit", u"-0,00 ", money, u"0,00 "},
        {"a negative nothing ungrouped stays as typed", u"-0,0", bare, u"-0,00"},
        {"no whole part, negative", u"-,5", money, u"-0,50"},
        {"grouped by commas, the point too", u"1234.5", settings(u".", u",", 2, true), u"1,234,50"},
        {"what is grouped in threes is read back", u"1.234,56", money, u"1.234,56"},
        {"grouped millions, signed", u"-12.345.678,9", money, u"-12.345.678,90"},
        {"a plus sign goes", u"+123.456", money, u"123.456,00"},
        {"the sign of a grouped fraction", u"-0.000,5", money, u"-0,50"},
        {"grouped beyond what counts", u"1.234.567.890.123.456", money, u"1.234.567.890.123.460,00"},
        {"grouped by commas", u"1,234.5", settings(u".", u",", 2, true, enUs()), u"1,234,50"},
        {"four digits before the symbol are no group", u"1234.567,5", money, u"1.235,50"},
        {"groups of two are none", u"1.23,5", money, u"1,50"},
        {"a point and too few digits: a fraction", u"1234.5", money, u"1.235,00"},
        {"without grouping nothing is read anew", u"1.234,5", bare, u"1.234,50"},
        {"fifteen digits count", u"1234567890123456", settings(u",", u".", 0, false), u"1.234.567.890.123.460"},
        {"another locale's own grouping", u"1234.5", settings(u".", u".", 2, true, enUs()), u"1,234.50"},
    };
    for (const auto& row : rows) {
        std::u16string shown = u"before";
        displayNumber(row.text, row.settings, shown);
        EXPECT_EQ(shown, row.shown) << row.rule;
    }
}

// The fast path of grouping and the pattern agree wherever the fast path is taken.
TEST(NumberDisplay, TheShortWayGroupsAsThePatternDoes)
{
    const Pattern pattern(u"###,###,###,###,###,###,###,###,###,###,###,###,###,###,##0");
    for (const Locale* locale : {&ptBr(), &enUs()})
        for (std::int64_t number = 1; number < 1'000'000'000'000'000; number = number * 7 + 3)
            for (const std::int64_t value : {number, -number}) {
                const std::string digits = std::to_string(value);
                std::u16string shown;
                displayNumber({std::u16string(digits.begin(), digits.end())}, settings(u",", u".", 0, false, *locale),
                              shown);
                std::u16string expected;
                pattern.format(static_cast<double>(value), *locale, expected);
                ASSERT_EQ(shown, expected) << value;
            }
}

TEST(NumberDisplay, Sign)
{
    EXPECT_EQ(currencySign(u"-0,0001", ptBr()), NumberSign::negative);
    EXPECT_EQ(currencySign(u"-0,00001", ptBr()), NumberSign::zero); // beyond the four decimals
    EXPECT_EQ(currencySign(u"1.234,50", ptBr()), NumberSign::positive);
    EXPECT_EQ(errorOf([] { return currencySign(u"1,234,50", ptBr()); }), error_number::typeMismatch);
    EXPECT_EQ(errorOf([] { return currencySign(u"1000000000000000", ptBr()); }), error_number::overflow);
}

TEST(NumberDisplay, Symbol)
{
    struct Row {
        std::u16string_view text;
        std::u16string_view symbol;
        std::u16string_view shown; // "-": nothing applied
    };
    const Row rows[] = {
        {u"12,50", u"R$ ", u"R$ 12,50"},
        {u"12,50", u";%", u"12,50%"},
        {u"12,50", u"R$ ;%", u"R$ 12,50%"},
        {u"", u"R$ ", u"-"},
        {u"", u";%", u"%"},
        {u"", u"R$;%", u"R$%"},
        {u"12", u"", u"12"},
        {u"12", u";", u"12"},
        {u"12", u"a;b;c", u"a12b;c"},
    };
    for (const auto& row : rows) {
        std::u16string shown = u"-";
        EXPECT_EQ(applySymbol(row.text, row.symbol, shown), row.shown != u"-");
        EXPECT_EQ(shown, row.shown);
    }
}

TEST(NumberDisplay, EntryForm)
{
    struct Row {
        std::u16string_view text;
        std::u16string_view symbol;
        std::u16string_view grouping;
        std::u16string_view entered;
    };
    const Row rows[] = {
        {u"R$ 1.234,50", u"R$ ", u".", u"1234,50"},
        {u"R$ -1.234,50%", u"R$ ;%", u".", u"-1234,50"},
        {u"12,50%", u";%", u"", u"12,50"},
        {u"12,50", u"R$ ;%", u".", u"12,50"},
        {u"R$ 1R$ ", u"R$ ", u"", u"1R$ "}, // a symbol without ";" stands before only
        {u"1,234,50", u"", u",", u"123450"},
        {u"", u"R$ ;%", u".", u""},
        {u"%", u"%;%", u".", u""},
    };
    for (const auto& row : rows) {
        std::u16string entered = u"before";
        entryForm(row.text, row.symbol, row.grouping, entered);
        EXPECT_EQ(entered, row.entered);
    }
}

TEST(NumberDisplay, Template)
{
    EXPECT_EQ(numericTemplate(u",", 2), u"0,00");
    EXPECT_EQ(numericTemplate(u"", 3), u"0000");
    EXPECT_EQ(numericTemplate(u".", 0), u"0.");
}

TEST(LiveFormat, Keystrokes)
{
    struct Row {
        const char* rule;
        std::u16string_view before;
        NumberSettings settings;
        std::u16string_view after;
    };
    const auto money = settings(u",", u".", 2, false);
    const Row rows[] = {
        {"a digit shifts the point", u"0,001|", money, u"0,01|"},
        {"grouping grows", u"123,456|", money, u"1.234,56|"},
        {"the caret keeps its distance from the end", u"12|3,45", money, u"12|3,45"},
        {"inside the whole part", u"1.9|23,456", money, u"19.|234,56"},
        {"no grouping", u"1234,567|", settings(u",", u"", 2, false), u"12345,67|"},
        {"one digit", u"5|", money, u"0,05|"},
        {"a caret in front of what shrinks stays in front", u"|000,12", money, u"|0,12"},
        {"three places: still two digits behind the point", u"12345|", settings(u",", u".", 3, false), u"12,450|"},
        {"no number", u"12x|", money, u"12x|"},
        {"empty", u"|", money, u"|"},
        {"negative", u"-1234|", money, u"-12,34|"},
    };
    LivePattern patterns;
    for (const auto& row : rows) {
        const auto before = test::box(row.before);
        std::u16string after = u"before";
        const auto caret = liveFormat(before.text, before.caret, row.settings, patterns, after);
        EXPECT_EQ(caret ? test::marked(after, *caret) : test::marked(before.text, before.caret), row.after) << row.rule;
    }
}

// What the pattern makes of a keyed amount: the fast path must not differ.
std::u16string byPattern(std::u16string digits, std::u16string_view grouping)
{
    digits.erase(std::remove(digits.begin(), digits.end(), u','), digits.end());
    digits.insert(digits.size() - 2, 1, u',');
    LivePattern patterns;
    std::u16string shown;
    patterns.of(u",", grouping, 2)->format(toDouble(std::u16string_view(digits), ptBr()), ptBr(), shown);
    return shown;
}

TEST(LiveFormat, TheShortWayFormatsAsThePatternDoes)
{
    const std::u16string_view texts[] = {
        u"000",         u"0,001",           u"1.234,567",
        u"-1.234,567",  u"1.2345,6",        u"1..2345",
        u"1.234.567,8", u"123456789012345", u"-9.999.999.999.999,99",
        u"12,.345",
    };
    for (const auto text : texts)
        for (const std::u16string_view grouping : {u"", u"."}) {
            LivePattern patterns;
            std::u16string shown(text);
            static_cast<void>(liveFormat(text, 0, settings(u",", grouping, 2, false), patterns, shown));
            EXPECT_EQ(shown, byPattern(std::u16string(text), grouping)) << testing::PrintToString(text);
        }
}

TEST(LiveFormat, ThePatternFollowsItsSymbols)
{
    LivePattern patterns;
    EXPECT_EQ(patterns.of(u",", u".", 2)->text(), u"###,###,###,###,###,##0.00");
    EXPECT_EQ(patterns.of(u",", u",", 2)->text(), u"###.###.###.###.###.##0.00");
    EXPECT_EQ(patterns.of(u".", u"", 3)->text(), u"###################0,000");
    EXPECT_EQ(patterns.of(u"", u"", 1)->text(), u"###################00");
    EXPECT_EQ(patterns.of(u";", u"", 1), nullptr);
}

} // namespace
} // namespace vela::engine
