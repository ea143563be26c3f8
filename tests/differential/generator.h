// Seeded random cases, and a table of chosen ones.
#pragma once

#include "tests/differential/cases.h"

#include <random>
#include <vector>

namespace vela::differential {

class Generator {
public:
    explicit Generator(unsigned seed) : random_(seed) {}
    [[nodiscard]] Case next();

private:
    [[nodiscard]] int below(int limit);
    [[nodiscard]] const std::u16string& oneOf(const std::vector<std::u16string>& texts);
    [[nodiscard]] double number();
    [[nodiscard]] double serial();
    [[nodiscard]] std::u16string textFrom(std::u16string_view alphabet, int most);
    [[nodiscard]] std::u16string numberText();
    [[nodiscard]] std::u16string dateText();
    [[nodiscard]] std::u16string numberPattern();
    [[nodiscard]] std::u16string datePattern();
    [[nodiscard]] std::u16string textPattern();

    std::mt19937 random_;
};

[[nodiscard]] std::vector<Case> chosenCases();

} // namespace vela::differential
