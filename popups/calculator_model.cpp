// The handlers of the calculator's buttons on its state.
#include "popups/calculator_model.h"

#include "engine/error.h"
#include "engine/text/conversions.h"

#include <cmath>

namespace vela::popups {

namespace {

double fitting(double number)
{
    if (!std::isfinite(number))
        engine::raise(engine::error_number::overflow);
    return number;
}

} // namespace

void CalculatorModel::continueNumber() noexcept
{
    state_.last = LastInput::number;
}

void CalculatorModel::handOver(bool decimalFlag) noexcept
{
    continueNumber();
    state_.decimalFlag = decimalFlag;
}

void CalculatorModel::resetForLoad() noexcept
{
    state_.decimalFlag = false;
    state_.count = 0;
    state_.last = LastInput::none;
    state_.pending = {};
}

CalculatorAnswer CalculatorModel::digit(std::u16string_view display, int digit)
{
    CalculatorAnswer answer{std::u16string(display), CalculatorFocus::equals};
    if (state_.last != LastInput::number) {
        answer.display.clear();
        state_.decimalFlag = false;
    }
    if (answer.display.size() < digitLimit)
        answer.display += static_cast<char16_t>(u'0' + digit);
    state_.last = LastInput::number;
    return answer;
}

CalculatorAnswer CalculatorModel::decimal(std::u16string_view display)
{
    CalculatorAnswer answer{std::u16string(display)};
    if (state_.last != LastInput::number)
        answer.display = u"0.";
    else if (!state_.decimalFlag)
        answer.display += u'.';
    state_.decimalFlag = true;
    state_.last = LastInput::number;
    return answer;
}

CalculatorAnswer CalculatorModel::operation(std::u16string_view display, int index, const engine::Locale& locale)
{
    State next = state_;
    CalculatorAnswer answer{std::u16string(display), CalculatorFocus::equals};
    if (next.last == LastInput::number)
        ++next.count;
    if (next.count == 1)
        next.first = engine::leadingNumber(display);
    if (next.count == 2) {
        next.second = engine::leadingNumber(display);
        answer.dividedByZero = !applyPending(next);
        answer.display = engine::numberToText(next.first, locale);
        next.count = 1;
    }
    next.last = LastInput::operation;
    next.pending = operators[static_cast<std::size_t>(index)];
    state_ = next;
    return answer;
}

// False for a division by zero, which leaves the first operand.
bool CalculatorModel::applyPending(State& state)
{
    if (state.pending == u"/" && state.second == 0)
        return false;
    if (state.pending == u"+")
        state.first = fitting(state.first + state.second);
    else if (state.pending == u"-")
        state.first = fitting(state.first - state.second);
    else if (state.pending == u"X")
        state.first = fitting(state.first * state.second);
    else if (state.pending == u"/")
        state.first = fitting(state.first / state.second);
    else if (state.pending == u"=")
        state.first = state.second;
    return true;
}

CalculatorAnswer CalculatorModel::percent(std::u16string_view display, const engine::Locale& locale) const
{
    return {engine::numberToText(fitting(engine::leadingNumber(display) * state_.first) / 100, locale)};
}

CalculatorAnswer CalculatorModel::eraseLast(std::u16string_view display)
{
    CalculatorAnswer answer{std::u16string(display)};
    if (state_.last != LastInput::number || display.empty())
        return answer;
    if (display.back() == u'.' || display.back() == u',')
        state_.decimalFlag = false;
    answer.display.pop_back();
    if (!answer.display.empty())
        return answer;
    answer = clearEntry();
    answer.focus = CalculatorFocus::stays;
    return answer;
}

CalculatorAnswer CalculatorModel::clearEntry()
{
    state_.decimalFlag = false;
    state_.last = LastInput::clearEntry;
    return {u"0.", CalculatorFocus::zero};
}

CalculatorAnswer CalculatorModel::clearAll()
{
    resetForLoad();
    return {u"0.", CalculatorFocus::zero};
}

bool hasDecimals(std::u16string_view text)
{
    const std::size_t comma = text.find(u',');
    return comma != std::u16string_view::npos && engine::leadingNumber(text.substr(comma + 1)) != 0;
}

} // namespace vela::popups
