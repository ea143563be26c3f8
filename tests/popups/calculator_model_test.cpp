// The calculator's state machine played key by key.
#include "popups/calculator_model.h"

#include "engine/error.h"

#include <gtest/gtest.h>

#include <string>

namespace vela::popups {
namespace {

// Digits, ".", the operators "/+X-=", "%", "E" clear entry, "C" clear all, "<" erase.
class Player {
public:
    explicit Player(const engine::Locale& locale) : locale_(locale) {}

    void play(std::string_view keys)
    {
        for (const char key : keys)
            press(key);
    }
    void press(char key)
    {
        const CalculatorAnswer answer = answerTo(key);
        display = answer.display;
        focus = answer.focus;
        divisions += answer.dividedByZero ? 1 : 0;
    }

    CalculatorModel model;
    std::u16string display = u"0.";
    CalculatorFocus focus = CalculatorFocus::stays;
    int divisions = 0;

private:
    CalculatorAnswer answerTo(char key)
    {
        if (key >= '0' && key <= '9')
            return model.digit(display, key - '0');
        switch (key) {
        case '.': return model.decimal(display);
        case '%': return model.percent(display, locale_);
        case 'E': return model.clearEntry();
        case 'C': return model.clearAll();
        case '<': return model.eraseLast(display);
        default: return model.operation(display, static_cast<int>(std::string_view("/+X-=").find(key)), locale_);
        }
    }
    const engine::Locale& locale_;
};

struct Sequence {
    const char* name;
    const char* keys;
    const char16_t* display;
};

class CalculatorSequence : public testing::TestWithParam<Sequence> {};

TEST_P(CalculatorSequence, ShowsInPortuguese)
{
    Player player(engine::ptBr());
    player.play(GetParam().keys);
    EXPECT_EQ(player.display, GetParam().display) << GetParam().keys;
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CalculatorSequence,
    testing::Values(
        Sequence{"DigitReplacesTheFreshDisplay", "5", u"5"}, Sequence{"PointFirst", ".5", u"0.5"},
        Sequence{"SecondPointIgnored", "1.2.3", u"1.23"},
        Sequence{"SeventeenthDigitIgnored", "12345678901234567", u"1234567890123456"},
        Sequence{"PointBeyondSixteenCharacters", "1234567890123456.", u"1234567890123456."},
        Sequence{"EqualsTwiceStays", "2+3==", u"5"}, Sequence{"Chain", "2+3X4=", u"20"},
        Sequence{"SecondOperatorReplaces", "2+X3=", u"6"}, Sequence{"OperatorBeforeAnyDigit", "+5=", u"5"},
        Sequence{"NegativeResult", "2-5=", u"-3"}, Sequence{"FractionIsReadAsItsWholePart", "5/2=X3=", u"6"},
        Sequence{"FractionShownWithComma", "5/2=", u"2,5"}, Sequence{"DivisionByZero", "9/0=", u"9"},
        Sequence{"DivisionByZeroThenOn", "9/0=+1=", u"10"}, Sequence{"Percent", "50+10%", u"5"},
        Sequence{"PercentThenSum", "50+10%=", u"55"}, Sequence{"PercentFresh", "%", u"0"},
        Sequence{"ClearEntryKeepsTheOperation", "7+8E2=", u"9"}, Sequence{"ClearEntryThenOperator", "7+8E=", u"0."},
        Sequence{"ClearAllKeepsOperandsForPercent", "50+C10%", u"5"},
        Sequence{"ClearAllForgetsTheOperator", "7+C2=", u"2"}, Sequence{"DigitAfterResult", "2+3=4", u"4"},
        Sequence{"PointAfterResult", "2+3=.", u"0."}, Sequence{"FifteenDigits", "1/3=", u"0,333333333333333"},
        Sequence{"EraseTyped", "12.<<3", u"13"}, Sequence{"EraseLastDigit", "1<", u"0."},
        Sequence{"EraseThenType", "1<7", u"7"}, Sequence{"EraseLeavesAResult", "2+3=<", u"5"}),
    [](const auto& row) { return row.param.name; });

TEST(CalculatorModel, FocusAfterEachButton)
{
    struct Row {
        char key;
        CalculatorFocus focus;
    };
    Player player(engine::ptBr());
    for (const Row row :
         {Row{'7', CalculatorFocus::equals}, Row{'.', CalculatorFocus::stays}, Row{'+', CalculatorFocus::equals},
          Row{'%', CalculatorFocus::stays}, Row{'E', CalculatorFocus::zero}, Row{'C', CalculatorFocus::zero}}) {
        player.press(row.key);
        EXPECT_EQ(player.focus, row.focus) << row.key;
    }
}

TEST(CalculatorModel, DecimalFlagOfAHandedOverText)
{
    struct Row {
        const char16_t* text;
        bool flag;
    };
    for (const Row row : {Row{u"12", false}, Row{u"12,00", false}, Row{u"12,50", true}, Row{u"12,05", true},
                          Row{u"1,0,5", false}, Row{u"1,x5", false}, Row{u"12.50", false}, Row{u"", false}})
        EXPECT_EQ(hasDecimals(row.text), row.flag) << std::string(row.text, row.text + std::u16string(row.text).size());
}

} // namespace
} // namespace vela::popups
