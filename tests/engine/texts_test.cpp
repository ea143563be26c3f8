// Numbers, patterns and their limits where transcripts do not reach: units that are no characters, any length, locales.
#include "engine/error.h"
#include "engine/text/calendar_date.h"
#include "engine/text/conversions.h"
#include "engine/text/pattern.h"
#include "engine/text/utf8.h"
#include "tests/support/error_of.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace vela::engine {
namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;

const Date today = makeDate({2026, 11, 21});

TEST(Texts, OfUnitsThatAreNoCharacters)
{
    EXPECT_EQ(toDouble(u"12\0x"sv, ptBr()), 12);
    EXPECT_EQ(format(5.0, u"0\0garbage"sv, ptBr(), today), u"5");
    EXPECT_EQ(format(1.5, u"\xD800"s + u"0" + u"\xDC00", ptBr(), today), u"\xD800"s + u"2" + u"\xDC00");
    for (const std::u16string_view text : {u"\0"sv, u"\xD800"sv, u"1\xDC00"sv}) {
        EXPECT_FALSE(isNumeric(text, ptBr()));
        EXPECT_EQ(errorOf([&] { return toCurrency(text, ptBr()); }), error_number::typeMismatch);
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

TEST(Numbers, RefusedTexts)
{
    for (const std::u16string_view text :
         {u"",      u" ",     u"abc",  u"-",     u",",     u".",   u".5",  u"1 2",  u"12,3,4", u"10%",  u"$5",
          u"R 5",   u"1e",    u"e5",   u"1e5e5", u"1e5,",  u"+5+", u"-5-", u"(5",   u"5)",     u"()",   u"&H",
          u"&HG",   u"&O8",   u"+-5",  u"--5",   u"5--",   u"5+-", u"-5+", u"(-5",  u"(5-",    u"((5)", u"(5))",
          u"((5))", u"1e1.5", u"1e.5", u"1e--3", u"1e+-3", u"٣",   u"５",  u"12/5", u"R$",     u"True"})
        EXPECT_EQ(errorOf([&] { return toDouble(text, ptBr()); }), error_number::typeMismatch)
            << testing::PrintToString(text);
    for (const std::u16string_view text : {u"1e309", u"-1e99999999999999999999", u"&H100000000", u"1e400"}) {
        EXPECT_EQ(errorOf([&] { return toDouble(text, ptBr()); }), error_number::overflow);
        EXPECT_EQ(errorOf([&] { return toCurrency(text, ptBr()); }), error_number::overflow);
        EXPECT_FALSE(isNumeric(text, ptBr()));
    }
}

TEST(Patterns, OfSerialsBeyondTheCalendar)
{
    for (const Value& serial : {Value(-657435.0), Value(2958466.0), Value(1e300), Value(u"1e10"s)})
        for (const std::u16string_view pattern : {u"dd/mm/yyyy", u"Short Date"})
            EXPECT_EQ(errorOf([&] { return format(serial, pattern, ptBr(), today); }), error_number::overflow);
}

TEST(NumberToText, AtTheLimits)
{
    EXPECT_EQ(numberToText(std::numeric_limits<double>::max(), ptBr()), u"1,79769313486232E+308");
    EXPECT_EQ(numberToText(std::numeric_limits<double>::denorm_min(), ptBr()), u"4,94065645841247E-324");
    EXPECT_THROW(static_cast<void>(numberToText(std::numeric_limits<double>::infinity(), ptBr())), Error);
    EXPECT_THROW(static_cast<void>(format(Date{1e10}, u"dd", ptBr(), today)), Error);
}

TEST(FormatNumber, NegativesInTheLocalesForm)
{
    Locale locale = ptBr();
    const std::u16string_view forms[] = {u"(0,5)", u"-0,5", u"- 0,5", u"0,5-", u"0,5 -"};
    for (int form = 0; form < 5; ++form) {
        locale.numberNegative = form;
        EXPECT_EQ(formatNumber(-0.5, 1, locale), forms[form]);
        EXPECT_EQ(formatNumber(0.5, 1, locale), u"0,5");
    }
    locale.leadingZero = false;
    EXPECT_EQ(formatNumber(0.5, 1, locale), u",5");
    EXPECT_EQ(formatNumber(0.25, 0, locale), u"0");
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

// Forms that no writer of UTF-8 makes hide characters from whoever looks for them byte by byte.
TEST(Utf8, NeitherLongerFormsNorSurrogatesNorHalves)
{
    for (const char* const bytes :
         {"\xC1\xAF", "\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xC3", "\xA9"})
        EXPECT_EQ(fromUtf8(bytes), std::nullopt) << testing::PrintToString(std::string(bytes));
    EXPECT_EQ(fromUtf8("\xC2\x80\xE0\xA0\x80\xF0\x90\x80\x80"), u"\u0080\u0800\U00010000");
}

} // namespace
} // namespace vela::engine
