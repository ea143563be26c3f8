// The calculator's state machine over a text display: handlers take the display and return the new one and what to do.
// Results are shown in the locale: in pt-BR 2.5 is shown as "2,5" and read again as 2.
// Oddity: the calculator reads operands with "." as the point whatever the locale; sums that people are used to would
// change.
#pragma once

#include "engine/text/locale.h"

#include <array>
#include <string>
#include <string_view>

namespace vela::popups {

enum class LastInput { none, number, operation, clearEntry }; // "NONE", "NUMS", "OPS", "CE"
enum class CalculatorFocus { stays, equals, zero };           // where the handler sends the focus

struct CalculatorAnswer {
    std::u16string display;
    CalculatorFocus focus = CalculatorFocus::stays;
    bool dividedByZero = false; // the box is to be shown; the display already holds the unchanged result
};

class CalculatorModel {
public:
    static constexpr int digitLimit = 16; // characters of the display that digits may fill
    static constexpr std::array<std::u16string_view, 5> operators = {u"/", u"+", u"X", u"-", u"="};

    void continueNumber() noexcept; // the display counts as a number being typed
    // Treats the display's number as one that is being typed.
    void handOver(bool decimalFlag) noexcept;
    void resetForLoad() noexcept; // operands stay

    [[nodiscard]] CalculatorAnswer digit(std::u16string_view display, int digit); // 0..9
    [[nodiscard]] CalculatorAnswer decimal(std::u16string_view display);
    // Index into `operators`. Raises 6 when the result does not fit; the state is then as before.
    [[nodiscard]] CalculatorAnswer operation(std::u16string_view display, int index, const engine::Locale& locale);
    // Raises 6 likewise.
    [[nodiscard]] CalculatorAnswer percent(std::u16string_view display, const engine::Locale& locale) const;
    // Takes back the last character of the number being typed: "12.|" -> "12|", "1|" -> "0.|".
    [[nodiscard]] CalculatorAnswer eraseLast(std::u16string_view display);
    [[nodiscard]] CalculatorAnswer clearEntry();
    [[nodiscard]] CalculatorAnswer clearAll();

    [[nodiscard]] double firstOperand() const noexcept { return state_.first; }
    [[nodiscard]] double secondOperand() const noexcept { return state_.second; }
    [[nodiscard]] int operandCount() const noexcept { return state_.count; }
    [[nodiscard]] bool decimalFlag() const noexcept { return state_.decimalFlag; }
    [[nodiscard]] LastInput lastInput() const noexcept { return state_.last; }
    [[nodiscard]] std::u16string_view pendingOperator() const noexcept { return state_.pending; }

private:
    struct State {
        double first = 0;
        double second = 0;
        short count = 0; // operands of the current expression, 0 to 2
        bool decimalFlag = false;
        LastInput last = LastInput::none;
        std::u16string_view pending; // one of `operators`, or empty
    };
    static bool applyPending(State& state);

    State state_;
};

// Whether the digits after the first "," hold more than zeros: "12,00" false, "12,50" true, "12" false. Raises 6 beyond
// a double: "0,1e999".
[[nodiscard]] bool hasDecimals(std::u16string_view text);

} // namespace vela::popups
