// What is read as a number, and as which one.
#include "engine/text/conversions.h"
#include "tests/support/error_of.h"

#include <gtest/gtest.h>

#include <string>

namespace vela::engine {
namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;

struct Read {
    std::u16string_view text;
    double value = 0;
    bool english = false;
};

TEST(Numbers, AreRead)
{
    const Read rows[] = {
        {u"00012", 12},
        {u"1234,5", 1234.5},
        {u"1.234,5", 1234.5},
        {u"1,234.5", 1.2345},
        {u"1,234.5", 1234.5, true},
        {u"1.", 1},
        {u"  -12,5  ", -12.5},
        {u"- 5", -5},
        {u"-(5)", -5},
        {u"(5)-", -5},
        {u"5+", 5},
        {u"( R$ 5 )", -5},
        {u"R$ 1.234,50", 1234.5},
        {u"R$ 5 R$ -", -5},
        {u",.5", 0.5},
        {u"\u00a05\u2003", 5},
        {u"1e-3", 0.001},
        {u"1d3", 1000},
        {u"1,e5", 100000},
        {u"1,5e3-", -1500},
        {u"&HFF", 255},
        {u"&HFFFF", 65535},
        {u"&HFFFFFFFF", -1},
        {u"&h0080000000", -2147483648.0},
        {u"&O37777777777", -1},
        {u"12\0x"sv, 12},
    };
    for (const Read& row : rows) {
        SCOPED_TRACE(std::string(row.text.begin(), row.text.end()));
        const Locale& locale = row.english ? enUs() : ptBr();
        EXPECT_EQ(toDouble(row.text, locale), row.value);
        EXPECT_TRUE(isNumeric(row.text, locale));
    }
}

TEST(Numbers, AreRefused)
{
    for (const std::u16string_view text :
         {u""sv,       u" "sv,     u"abc"sv,   u"-"sv,    u","sv,      u"."sv,      u".5"sv,    u"1 2"sv,
          u"12,3,4"sv, u"10%"sv,   u"$5"sv,    u"R 5"sv,  u"1e"sv,     u"e5"sv,     u"1e5e5"sv, u"1e5,"sv,
          u"+5+"sv,    u"-5-"sv,   u"(5"sv,    u"5)"sv,   u"()"sv,     u"&H"sv,     u"&HG"sv,   u"&O8"sv,
          u"+-5"sv,    u"--5"sv,   u"5--"sv,   u"5+-"sv,  u"-5+"sv,    u"(-5"sv,    u"(5-"sv,   u"((5)"sv,
          u"(5))"sv,   u"((5))"sv, u"1e1.5"sv, u"1e.5"sv, u"1e--3"sv,  u"1e+-3"sv,  u"٣"sv,     u"５"sv,
          u"12/5"sv,   u"R$"sv,    u"True"sv,  u"\0"sv,   u"\xD800"sv, u"1\xDC00"sv}) {
        SCOPED_TRACE(std::string(text.begin(), text.end()));
        EXPECT_FALSE(isNumeric(text, ptBr()));
        EXPECT_EQ(errorOf([&] { return toDouble(text, ptBr()); }), error_number::typeMismatch);
        EXPECT_EQ(errorOf([&] { return toCurrency(text, ptBr()); }), error_number::typeMismatch);
    }
    for (const std::u16string_view text : {u"1e309"sv, u"-1e99999999999999999999"sv, u"&H100000000"sv}) {
        EXPECT_FALSE(isNumeric(text, ptBr()));
        EXPECT_EQ(errorOf([&] { return toDouble(text, ptBr()); }), error_number::overflow);
    }
}

TEST(Numbers, OfAnyLengthAreReadWhole)
{
    std::u16string text(70000, u'9');
    EXPECT_EQ(errorOf([&] { return toDouble(text, ptBr()); }), error_number::overflow);
    text.insert(1, u",");
    EXPECT_EQ(toDouble(text, ptBr()), 10.0);
    EXPECT_EQ(toDouble(u"1e-99999999999999999999", ptBr()), 0.0);
    EXPECT_EQ(toDouble(u"123456789012345678901234567890", ptBr()), 123456789012345678901234567890.0);
    // Exactly half way between two doubles up to the last digit, which decides.
    std::u16string half = u"9007199254740993," + std::u16string(69000, u'0');
    EXPECT_EQ(toDouble(half, ptBr()), 9007199254740992.0);
    half += u'1';
    EXPECT_EQ(toDouble(half, ptBr()), 9007199254740994.0);
    EXPECT_EQ(toDouble(std::u16string(70000, u'0') + u"7", ptBr()), 7.0);
}

TEST(Numbers, OtherLocales)
{
    Locale locale = ptBr();
    locale.decimal = u"·";
    locale.grouping = u"' ";
    locale.currencySymbol = u"Fr.";
    locale.negativeSign = u"\u2212";
    EXPECT_EQ(toDouble(u"\u2212Fr. 1' 234·5", locale), -1234.5);
    EXPECT_FALSE(isNumeric(u"-5", locale));
    locale.grouping.clear();
    locale.decimal.clear();
    locale.currencySymbol.clear();
    EXPECT_EQ(toDouble(u"15", locale), 15);
    EXPECT_FALSE(isNumeric(u"1,5", locale));
}

TEST(Currency, RoundsHalfToEvenOnTheText)
{
    struct Row {
        std::u16string_view text;
        std::int64_t tenThousandths;
    };
    const Row rows[] = {
        {u"1.234,56789", 12345679},
        {u"1,000050000000000000000001", 10001},
        {u"-1,00015", -10002},
        {u"0,000009", 0},
        {u"&H10", 160000},
        {u"&HFFFFFFFE", -20000},
        {u"922337203685477,5807", 9223372036854775807},
        {u"-922337203685477,5808", -9223372036854775807 - 1},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(std::string(row.text.begin(), row.text.end()));
        EXPECT_EQ(toCurrency(row.text, ptBr()).tenThousandths, row.tenThousandths);
    }
    for (const std::u16string_view text :
         {u"922337203685477,5808"sv, u"-922337203685477,5809"sv, u"1e15"sv, u"1e400"sv}) {
        EXPECT_EQ(errorOf([&] { return toCurrency(text, ptBr()); }), error_number::overflow);
    }
}

TEST(LeadingNumber, StopsWhereTheNumberDoes)
{
    const Read rows[] = {
        {u"", 0},
        {u" 12.5abc", 12.5},
        {u"1 234", 1234},
        {u"12,5", 12},
        {u"1.5.2", 1.5},
        {u"-0012", -12},
        {u"- 5", -5},
        {u"--5", 0},
        {u"+5", 5},
        {u".5", 0.5},
        {u"abc1", 0},
        {u"1e3x", 1000},
        {u"1d2", 100},
        {u"1e", 1},
        {u"1e+", 1},
        {u"\t1\n2", 12},
        {u"\r1", 0},
        {u"R$ 5", 0},
        {u"1 e 2", 100},
        {u"5-", 5},
        {u"&HFF", 255},
        {u"&HFFFF", -1},
        {u"&HFFFF&", 65535},
        {u"&h 1 0000", 65536},
        {u"&O17", 15},
        {u"& H F F", 255},
        {u"&O177777", -1},
        {u"&O177777&", 65535},
        {u"&HFFFFFFFF", -1},
        {u"&H8000x", -32768},
        {u"&H", 0},
        {u"&17", 0},
        {u"&O8", 0},
        {u"-&HFF", 0},
        {u"&H00000FFFF", -1},
    };
    for (const Read& row : rows) {
        SCOPED_TRACE(std::string(row.text.begin(), row.text.end()));
        EXPECT_EQ(leadingNumber(row.text), row.value);
    }
    EXPECT_EQ(errorOf([] { return leadingNumber(u"1e400"); }), error_number::overflow);
    EXPECT_EQ(errorOf([] { return leadingNumber(u"&H100000000"); }), error_number::overflow);
}

TEST(Values, BecomeWhatAPropertyWants)
{
    EXPECT_EQ(toLong(u"2,5"s, ptBr()), 2);
    EXPECT_EQ(toLong(3.5, ptBr()), 4);
    EXPECT_EQ(toLong(-2.5, ptBr()), -2);
    EXPECT_EQ(toLong(-2.6, ptBr()), -3);
    EXPECT_EQ(toLong(true, ptBr()), -1);
    EXPECT_EQ(toLong(Empty{}, ptBr()), 0);
    EXPECT_EQ(toLong(2147483647.4, ptBr()), 2147483647);
    EXPECT_EQ(errorOf([] { return toLong(2147483647.5, ptBr()); }), error_number::overflow);
    EXPECT_EQ(errorOf([] { return toLong(u"x"s, ptBr()); }), error_number::typeMismatch);
    EXPECT_TRUE(toBoolean(u"TRUE"s, ptBr()));
    EXPECT_FALSE(toBoolean(u"fAlse"s, ptBr()));
    EXPECT_TRUE(toBoolean(u"-0,5"s, ptBr()));
    EXPECT_FALSE(toBoolean(Empty{}, ptBr()));
    EXPECT_EQ(errorOf([] { return toBoolean(u"Verdadeiro"s, ptBr()); }), error_number::typeMismatch);
    EXPECT_TRUE(isNumeric(Value{true}, ptBr()));
    EXPECT_TRUE(isNumeric(Value{Empty{}}, ptBr()));
}

} // namespace
} // namespace vela::engine
