// Plays random keys at the calculator: the state stays within its bounds and only an overflow is ever raised.
#include "popups/calculator_model.h"

#include "engine/error.h"
#include "engine/text/locale.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <utility>

namespace {

using vela::popups::CalculatorAnswer;
using vela::popups::CalculatorModel;
using vela::popups::LastInput;

void require(bool holds)
{
    if (!holds)
        std::abort();
}

bool sameState(const CalculatorModel& a, const CalculatorModel& b)
{
    return a.firstOperand() == b.firstOperand() && a.secondOperand() == b.secondOperand() &&
           a.operandCount() == b.operandCount() && a.decimalFlag() == b.decimalFlag() &&
           a.lastInput() == b.lastInput() && a.pendingOperator() == b.pendingOperator();
}

CalculatorAnswer press(CalculatorModel& model, const std::u16string& display, int key,
                       const vela::engine::Locale& locale)
{
    if (key < 10)
        return model.digit(display, key);
    if (key < 15)
        return model.operation(display, key - 10, locale);
    switch (key) {
    case 15: return model.decimal(display);
    case 16: return model.percent(display, locale);
    case 17: return model.clearEntry();
    case 18: return model.clearAll();
    default: return model.eraseLast(display);
    }
}

// A text whose decimals do not fit is not handed over.
void handOver(CalculatorModel& model, std::u16string& display, std::u16string text)
{
    try {
        model.handOver(vela::popups::hasDecimals(text));
        display = std::move(text);
    } catch (const vela::engine::Error& error) {
        require(error.number == vela::engine::error_number::overflow);
    }
}

void checkBounds(const CalculatorModel& model)
{
    require(model.operandCount() >= 0 && model.operandCount() <= 1);
    require(std::isfinite(model.firstOperand()) && std::isfinite(model.secondOperand()));
}

} // namespace

// Byte 0: the locale; then a key each, or 255 and a length and that many bytes: a display handed over from a field.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const vela::engine::Locale& locale = (data[0] & 1) != 0 ? vela::engine::enUs() : vela::engine::ptBr();
    CalculatorModel model;
    std::u16string display = u"0.";
    for (std::size_t at = 1; at < size; ++at) {
        if (data[at] == 255 && at + 1 < size) {
            const std::size_t length = std::min<std::size_t>(data[at + 1], size - at - 2);
            handOver(model, display, std::u16string(data + at + 2, data + at + 2 + length));
            at += 1 + length;
            continue;
        }
        const CalculatorModel before = model;
        const int key = data[at] % 20;
        try {
            const CalculatorAnswer answer = press(model, display, key, locale);
            require(key >= 10 || answer.display.size() <= std::max<std::size_t>(display.size(), 16));
            display = answer.display;
        } catch (const vela::engine::Error& error) {
            require(error.number == vela::engine::error_number::overflow && key >= 10 && key <= 16);
            require(sameState(before, model));
        }
        checkBounds(model);
    }
    return 0;
}
