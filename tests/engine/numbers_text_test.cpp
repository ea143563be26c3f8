// Numbers as texts: the general form and fixed decimals.
#include "engine/error.h"
#include "engine/text/conversions.h"
#include "engine/text/pattern.h"

#include <gtest/gtest.h>

#include <limits>

namespace vela::engine {
namespace {

struct General {
    double number;
    std::u16string_view text;
};

TEST(NumberToText, FifteenDigits)
{
    const General rows[] = {
        {-0.0, u"0"},
        {-1234.5, u"-1234,5"},
        {0.1 + 0.2, u"0,3"},
        {1.0 / 3, u"0,333333333333333"},
        {123456789012345, u"123456789012345"},
        {999999999999999.9, u"1E+15"},
        {1234567890123456, u"1,23456789012346E+15"},
        {99999999999999.95, u"100000000000000"},
        {0.0001, u"0,0001"},
        {5.6789e-05, u"0,000056789"},
        {1e-15, u"0,000000000000001"},
        {1e-16, u"1E-16"},
        {1.0 / 12, u"8,33333333333333E-02"},
        {-1.0 / 7, u"-0,142857142857143"},
        {0.0123456789012345, u"1,23456789012345E-02"},
        {0.012345678901234, u"0,012345678901234"},
        {922337203685477.58, u"922337203685478"},
    };
    for (const General& row : rows) {
        EXPECT_EQ(numberToText(row.number, ptBr()), row.text);
    }
    EXPECT_EQ(numberToText(15048581.80078125, ptBr()), u"15048581,8007813"); // exactly half way
    EXPECT_EQ(numberToText(std::numeric_limits<double>::max(), ptBr()), u"1,79769313486232E+308");
    EXPECT_EQ(numberToText(std::numeric_limits<double>::denorm_min(), ptBr()), u"4,94065645841247E-324");
    EXPECT_EQ(numberToText(-1234.5, enUs()), u"-1234.5");
    EXPECT_THROW(static_cast<void>(numberToText(std::numeric_limits<double>::infinity(), ptBr())), Error);
}

TEST(FormatNumber, FixedDecimals)
{
    struct Row {
        double number;
        int decimals;
        std::u16string_view text;
    };
    const Row rows[] = {
        {1.005, 2, u"1,01"},
        {0.125, 2, u"0,13"},
        {0.5, 0, u"1"},
        {-0.5, 0, u"-1"},
        {9.995, 2, u"10,00"},
        {-0.001, 2, u"-0,00"},
        {1e20, 1, u"100000000000000000000,0"},
        {1e-10, 10, u"0,0000000001"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(formatNumber(row.number, row.decimals, ptBr()), row.text);
    }
    EXPECT_EQ(formatNumber(1.5, 255, ptBr()), u"1,5" + std::u16string(254, u'0'));
    EXPECT_EQ(formatNumber(1.5, 1, enUs()), u"1.5");
    EXPECT_THROW(static_cast<void>(formatNumber(1, 256, ptBr())), Error);
    EXPECT_THROW(static_cast<void>(formatNumber(1, -1, ptBr())), Error);
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

} // namespace
} // namespace vela::engine
