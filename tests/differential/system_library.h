// The system's automation library as the judge: each conversion with the locale given, failures as no value.
#pragma once

#include <optional>
#include <string>

namespace vela::differential {

enum class Language { portuguese, english };

// What the library answers: a value, or the class of its refusal.
enum class Refusal { none, typeMismatch, overflow, invalidArgument, other };

template <typename T>
struct Answer {
    std::optional<T> value;
    Refusal refusal = Refusal::none;
};

[[nodiscard]] Answer<double> systemDouble(const std::u16string& text, Language language);
[[nodiscard]] Answer<long long> systemCurrency(const std::u16string& text, Language language);
[[nodiscard]] Answer<double> systemDate(const std::u16string& text, Language language);
[[nodiscard]] Answer<std::u16string> systemNumberText(double number, Language language);
[[nodiscard]] Answer<std::u16string> systemDateText(double serial, Language language);
[[nodiscard]] Answer<std::u16string> systemFormatNumber(double number, const std::u16string& pattern,
                                                        Language language);
[[nodiscard]] Answer<std::u16string> systemFormatDate(double serial, const std::u16string& pattern, Language language);
[[nodiscard]] Answer<std::u16string> systemFormatText(const std::u16string& text, const std::u16string& pattern,
                                                      Language language);
// In the user's own locale: the library takes none here.
[[nodiscard]] Answer<std::u16string> systemFixed(double number, int decimals);
[[nodiscard]] bool userIsPortuguese();
[[nodiscard]] double systemToday();

} // namespace vela::differential
