// Numbers, dates and texts through patterns.
#include "engine/error.h"
#include "engine/text/calendar_date.h"
#include "engine/text/pattern.h"
#include "tests/support/error_of.h"

#include <gtest/gtest.h>

#include <span>
#include <string>

namespace vela::engine {
namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;

const Date today = makeDate({2026, 11, 21});
const Date moment = makeDate({2024, 2, 1}, {14, 5, 33});

struct NumberRow {
    double number;
    std::u16string_view pattern;
    std::u16string_view text; // in pt-BR
};

void expectFormatted(const Value& value, std::u16string_view pattern, std::u16string_view text)
{
    SCOPED_TRACE(std::string(pattern.begin(), pattern.end()));
    EXPECT_EQ(format(value, pattern, ptBr(), today), text);
}

void expectFormatted(std::span<const NumberRow> rows)
{
    for (const NumberRow& row : rows)
        expectFormatted(row.number, row.pattern, row.text);
}

TEST(NumberPatterns, DigitMarks)
{
    const NumberRow rows[] = {
        {1234567.5, u"#,##0.00", u"1.234.567,50"},
        {-2.5, u"0", u"-3"},
        {0.4999999999999999, u"0", u"1"},
        {0, u"#", u""},
        {0, u"#.##", u","},
        {0.256, u"0.0%", u"25,6%"},
        {0.256, u"0.0\\%", u"0,3%"},
        {5, u"000###", u"000005"},
        {1.2, u"0#.0#0#0#0#0", u"01,200000000"},
        {123456789, u"###, ###, ###", u"123. 456. 789"},
        {-51999887766, u"(00) 00000-0000", u"-(51) 99988-7766"},
        {1e20, u"#,##0", u"100.000.000.000.000.000.000"},
        {1e20, u"(00) 0000", u"(10000000000000000) 0000"},
        {-0.001, u"#", u"-"},
        {12.345, u"0.0.0", u"12,3.5"},
        {5, u"0 d/m", u"5 d/m"},
        {1.5,
         u"\xD800"
         u"0\xDC00",
         u"\xD800"
         u"2\xDC00"},
        {5, u"0\0garbage"sv, u"5"},
        {5, u"0\"open", u"5open"},
    };
    expectFormatted(rows);
}

TEST(NumberPatterns, TrailingCommasDivide)
{
    const NumberRow rows[] = {
        {1234567, u"0,,", u"1"},
        {1234567, u"0,.0", u"1234,6"},
        {-1500, u"0,\"k\"", u"-2k"},
        {1234567, u"0,0", u"1.234.567"},
        {1234567, u"#,##0,.00%", u"123.456,70%"},
    };
    expectFormatted(rows);
}

TEST(NumberPatterns, OfTheLiveAmount)
{
    const NumberRow rows[] = {
        {1234567.89, u"###,###,###,###,###,##0.00", u"1.234.567,89"},
        {1234567.89, u"###################0.00", u"1234567,89"},
        {1234567.89, u"###################000", u"1234568"},
        // The first point is the decimal symbol, the others are themselves; zeros appear at the first "0".
        {1234567.89, u"###.###.###.###.###.##0.00", u"1234567,89....0000000000000.00"},
        {1234567.89, u"###.###.###.###.###.##0,00", u"1.234.567,89....000000000000000"},
        {1.5e-10, u"###.###.###.###.###.##0,00", u",000.000.000.15.000000"},
        {1234567.89, u"###,###,###,###,###,###,###,###,###,###,###,###,###,###,##0", u"1.234.568"},
    };
    expectFormatted(rows);
}

TEST(NumberPatterns, Exponents)
{
    const NumberRow rows[] = {
        {1.7, u"0.0000E-000", u"1,7000E000"},
        {0.0001e-11, u"##00.0000e-0", u"1000,0000e-18"},
        {47.11, u".0000E+0", u",4711E+2"},
        {3.0401e-13, u"#####.####e-0%", u"30401,e-15%"},
        {0, u"00.00E+00", u"00,00E+00"},
        {5, u"0e", u"5e"},
        {29.565331, u"0.#####E-#", u"2,95653E1"},
        {1e-7, u"0E-#00", u"1E-07"},
        {1e100, u"0e+##", u"1e+100"},
    };
    expectFormatted(rows);
}

TEST(NumberPatterns, SectionsBySign)
{
    const NumberRow rows[] = {
        {-5, u"#,##0.00;(#,##0.00)", u"(5,00)"},
        {0, u"0;-0;zero", u"zero"},
        {0.001, u"0;-0;zero", u"0"},
        {-5, u"0;;zero", u"-5"},
        {-5, u"0;dd", u"dd"},
        {-5, u"\"a;b\";\\;0", u";5"},
        {-5, u";(0.00)", u"(5,00)"},
    };
    expectFormatted(rows);
    expectFormatted(Empty{}, u"0.00;n;z;\"nada\"", u"nada");
    expectFormatted(Empty{}, u"0.00", u"0,00");
    for (const std::u16string_view pattern : {u"0;1;2;3;4"sv, u"0;;;;"sv}) {
        EXPECT_THROW(static_cast<void>(format(1.0, pattern, ptBr(), today)), Error);
    }
}

TEST(NamedFormats, OfNumbers)
{
    const NumberRow rows[] = {
        {1234.5, u"General Number", u"1234,5"},  {0.256, u"PERCENT", u"25,60%"},
        {12345, u"Scientific", u"1,23E+04"},     {1234.5, u"Currency", u"R$ 1.234,50"},
        {-1234.5, u"Currency", u"-R$ 1.234,50"}, {1, u"Yes/No", u"Sim"},
        {-1, u"True/False", u"Verdadeiro"},      {0, u"On/Off", u"Desligado"},
        {45323.5, u"Short Date", u"01/02/2024"},
    };
    expectFormatted(rows);
    for (const double serial : {-657435.0, 2958466.0, 1e300}) {
        EXPECT_EQ(errorOf([&] { return format(serial, u"dd/mm/yyyy", ptBr(), today); }), error_number::overflow);
        EXPECT_EQ(errorOf([&] { return format(serial, u"Short Date", ptBr(), today); }), error_number::overflow);
    }
    EXPECT_EQ(errorOf([] { return format(u"1e10"s, u"dd/mm/yyyy", ptBr(), today); }), error_number::overflow);
    EXPECT_EQ(format(-1234.5, u"Currency", enUs(), today), u"($1,234.50)");
    EXPECT_EQ(format(true, u"Yes/No", enUs(), today), u"Yes");
}

struct DateRow {
    std::u16string_view pattern;
    std::u16string_view text; // of 1 February 2024 14:05:33 in pt-BR
};

TEST(DatePatterns, Letters)
{
    const DateRow rows[] = {
        {u"", u"01/02/2024 14:05:33"},
        {u"c", u"01/02/2024 14:05:33"},
        {u"ddd d mmm", u"qui 1 fev"},
        {u"ddddd ttttt", u"01/02/2024 14:05:33"},
        {u"dddd, d mmmm yyyy", u"quinta-feira, 1 fevereiro 2024"},
        {u"dddddd", u"quinta-feira, 1 de fevereiro de 2024"},
        {u"ddddddd", u"quinta-feira, 1 de fevereiro de 20241"},
        {u"w ww q y", u"5 5 1 32"},
        {u"yyy", u"2432"},
        {u"mmmmm", u"fevereiro2"},
        {u"hh:mm:ss", u"14:05:33"},
        {u"h:m m", u"14:5 2"},
        {u"hh\\h mm hh:mm", u"14h 05 14:05"},
        {u"hh:dd :mm:nn", u"14:01 :02:05"},
        {u"mm :ss:mm", u"02 :33:02"},
        {u"h:nn AM/PM", u"2:05 PM"},
        {u"h:nn am/pm", u"2:05 pm"},
        {u"hh:nn a/p", u"02:05 p"},
        {u"AMPM h", u"PM 2"},
        {u"dd \\d\\e mmmm", u"01 de fevereiro"},
        {u"d0#", u"10#"},
        {u"Long Date", u"quinta-feira, 1 de fevereiro de 2024"},
        {u"Medium Date", u"01-fev-24"},
        {u"Medium Time", u"02:05 PM"},
        {u"0.00", u"45323,59"},
        {u"General Number", u"45323,5871875"},
        {u"@", u"01/02/2024 14:05:33"},
    };
    for (const DateRow& row : rows) {
        expectFormatted(moment, row.pattern, row.text);
    }
    EXPECT_EQ(format(moment, u"h:nn AMPM", enUs(), today), u"2:05 PM");
    EXPECT_EQ(format(Date{0.0}, u"w ww h AM/PM", ptBr(), today), u"7 52 12 AM");
    EXPECT_EQ(format(makeDate({100, 1, 1}), u"yy yyyy", ptBr(), today), u"00 100");
    EXPECT_THROW(static_cast<void>(format(Date{1e10}, u"dd", ptBr(), today)), Error);
}

TEST(Patterns, OfTexts)
{
    struct Row {
        std::u16string_view text, pattern, formatted;
    };
    const Row rows[] = {
        {u"abc", u"0.00", u"abc"},
        {u"", u"dd/mm/yyyy", u""},
        {u"1234,5", u"0.00", u"1234,50"},
        {u"-0,00", u"0.00", u"0,00"},
        {u"1.234,50", u"General Number", u"1234,5"},
        {u"45323", u"dd/mm/yyyy", u"01/02/2024"},
        {u"31.12.2024", u"dd.MM.yyyy", u"31.12.2024"},
        {u"01/02/2024", u"0", u"45323"},
        {u"51999887766", u"(@@) @@@@@-@@@@", u"(51) 99988-7766"},
        {u"abc", u"@@@@@", u"  abc"},
        {u"abc", u"!@@@@@", u"abc  "},
        {u"testing", u"\\x@\\x@", u"xtxesting"},
        {u"AÇÃO", u"<", u"ação"},
        {u"ação", u">", u"AÇÃO"},
        {u"", u"@;\"vazio\"", u"vazio"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(std::string(row.text.begin(), row.text.end()));
        expectFormatted(std::u16string(row.text), row.pattern, row.formatted);
    }
    expectFormatted(true, u"0.00", u"-1,00");
    expectFormatted(true, u"", u"True");
    expectFormatted(std::int32_t{7}, u"@@@", u"  7");
}

TEST(Patterns, CompiledOnceFormatAlike)
{
    const Pattern amount(u"#,##0.00");
    std::u16string text = u"R$ ";
    amount.format(1234.5, ptBr(), text);
    EXPECT_EQ(text, u"R$ 1.234,50");
    const Pattern copy = amount;
    text.clear();
    copy.format(-0.005, enUs(), text);
    EXPECT_EQ(text, u"-0.01");
    EXPECT_EQ(copy.text(), u"#,##0.00");
    text.clear();
    Pattern(u"dd/mm/yyyy").format(moment, ptBr(), text);
    EXPECT_EQ(text, u"01/02/2024");
}

TEST(Patterns, OfAnyLength)
{
    const std::u16string zeros(70000, u'0');
    EXPECT_EQ(format(7.0, zeros, ptBr(), today), std::u16string(69999, u'0') + u"7");
    EXPECT_EQ(format(7.0, std::u16string(70000, u'#'), ptBr(), today), u"7");
    EXPECT_EQ(format(7.0, u"0." + zeros, ptBr(), today), u"7," + zeros);
    EXPECT_EQ(format(7e9, u"0" + std::u16string(70000, u','), ptBr(), today), u"0");
    EXPECT_EQ(format(7.0, u"0e+" + zeros, ptBr(), today), u"7e+" + zeros);
    EXPECT_EQ(format(u"x"s, std::u16string(70000, u'@'), ptBr(), today).size(), 70000U);
}

} // namespace
} // namespace vela::engine
