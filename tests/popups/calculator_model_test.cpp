// The calculator's state machine played key by key.
#include "popups/calculator_model.h"

#include <gtest/gtest.h>

#include <string>

namespace vela::popups {
namespace {

// Digits, ".", the operators "/+X-=", "%", "E" clear entry, "C" clear all, "<" erase.
CalculatorAnswer press(CalculatorModel& model, std::u16string_view display, char key)
{
    const engine::Locale& locale = engine::ptBr();
    if (key >= '0' && key <= '9')
        return model.digit(display, key - '0');
    switch (key) {
    case '.': return model.decimal(display);
    case '%': return model.percent(display, locale);
    case 'E': return model.clearEntry();
    case 'C': return model.clearAll();
    case '<': return model.eraseLast(display);
    default: return model.operation(display, static_cast<int>(std::string_view("/+X-=").find(key)), locale);
    }
}

TEST(CalculatorModel, ShowsInPortuguese)
{
    const std::pair<const char*, const char16_t*> rows[] = {
        {"5", u"5"},
        {".5", u"0.5"},
        {"1.2.3", u"1.23"},
        {"12345678901234567", u"1234567890123456"},
        {"1234567890123456.", u"1234567890123456."},
        {"2+3==", u"5"},
        {"2+3X4=", u"20"},
        {"2+X3=", u"6"},
        {"+5=", u"5"},
        {"2-5=", u"-3"},
        {"5/2=X3=", u"6"},
        {"5/2=", u"2,5"},
        {"9/0=", u"9"},
        {"9/0=+1=", u"10"},
        {"50+10%", u"5"},
        {"50+10%=", u"55"},
        {"%", u"0"},
        {"7+8E2=", u"9"},
        {"7+8E=", u"0."},
        {"50+C10%", u"5"},
        {"7+C2=", u"2"},
        {"2+3=4", u"4"},
        {"2+3=.", u"0."},
        {"1/3=", u"0,333333333333333"},
        {"12.<<3", u"13"},
        {"1<", u"0."},
        {"1<7", u"7"},
        {"2+3=<", u"5"},
    };
    for (const auto& [keys, shown] : rows) {
        CalculatorModel model;
        std::u16string display = u"0.";
        for (const char key : std::string_view(keys))
            display = press(model, display, key).display;
        EXPECT_EQ(display, shown) << keys;
    }
}

TEST(CalculatorModel, FocusAfterEachButton)
{
    CalculatorModel model;
    std::u16string display = u"0.";
    for (const auto& [key, focus] : {std::pair{'7', CalculatorFocus::equals}, std::pair{'.', CalculatorFocus::stays},
                                     std::pair{'+', CalculatorFocus::equals}, std::pair{'%', CalculatorFocus::stays},
                                     std::pair{'E', CalculatorFocus::zero}, std::pair{'C', CalculatorFocus::zero}}) {
        const CalculatorAnswer answer = press(model, display, key);
        display = answer.display;
        EXPECT_EQ(answer.focus, focus) << key;
    }
}

TEST(CalculatorModel, DecimalFlagOfAHandedOverText)
{
    for (const auto& [text, flag] :
         {std::pair{u"12", false}, std::pair{u"12,00", false}, std::pair{u"12,50", true}, std::pair{u"12,05", true},
          std::pair{u"1,0,5", false}, std::pair{u"1,x5", false}, std::pair{u"12.50", false}, std::pair{u"", false}})
        EXPECT_EQ(hasDecimals(text), flag);
}

} // namespace
} // namespace vela::popups
