// Formatting with patterns, as the system's automation library formats: "#,##0.00;(#,##0.00)", "dd/mm/yyyy", "Fixed".
// A field that formats again and again keeps a compiled Pattern.
#pragma once

#include "engine/text/locale.h"
#include "engine/value.h"

#include <memory>
#include <string>
#include <string_view>

namespace vela::engine {

class Pattern {
public:
    Pattern();
    explicit Pattern(std::u16string_view text);
    ~Pattern();
    Pattern(const Pattern&);
    Pattern(Pattern&&) noexcept;
    Pattern& operator=(const Pattern&);
    Pattern& operator=(Pattern&&) noexcept;

    [[nodiscard]] std::u16string_view text() const noexcept;
    // Appends to `into`; nothing is allocated once `into` has room. A pattern of more than four sections raises 5, a
    // date outside the years 100 to 9999, by number too where the pattern is of dates, and a number that is not finite
    // raise 6.
    void format(double number, const Locale& locale, std::u16string& into) const;
    void format(Date date, const Locale& locale, std::u16string& into) const;

    struct Compiled; // the marks, known to the formatter alone

private:
    std::unique_ptr<Compiled> compiled_;
};

// A text that is neither number nor date comes back unchanged; a date with a number pattern formats its serial,
// a number with a date pattern formats the date of that serial (6 outside the years 100 to 9999). `today` completes
// date texts without a year.
[[nodiscard]] std::u16string format(const Value& value, std::u16string_view pattern, const Locale& locale, Date today);

} // namespace vela::engine
