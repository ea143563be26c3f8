// Numbers to texts: the general form and the form with fixed decimals.
#pragma once

#include "engine/text/locale.h"
#include "engine/text/text_writer.h"

#include <string>

namespace vela::engine {

// At most 15 significant digits, no grouping: 1234.5 -> "1234,5" in pt-BR. With an exponent when the whole part would
// have more than 15 digits, or more than 15 decimals would be needed: 0.000056789 -> "0,000056789", 1/12 ->
// "8,33333333333333E-02". Raises 6 for a number that is not finite.
[[nodiscard]] std::u16string numberToText(double number, const Locale& locale);
void putNumber(double number, const Locale& locale, TextWriter& writer);
// Fixed decimals, 0 to 255 places, no grouping, the locale's leading zero and negative form: 1234.5, 2 -> "1234,50".
[[nodiscard]] std::u16string formatNumber(double number, int decimals, const Locale& locale);

} // namespace vela::engine
