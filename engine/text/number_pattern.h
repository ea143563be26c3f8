// Numbers through the digit marks of a pattern.
#pragma once

#include "engine/text/compiled_pattern.h"
#include "engine/text/decimal.h"
#include "engine/text/locale.h"
#include "engine/text/text_writer.h"

namespace vela::engine {

// Which sign of number a section was chosen for: "no value" has the fourth.
enum class NumberCase { positive, negative, zero, none };

void putNumberPattern(const Pattern::Compiled& pattern, Decimal number, NumberCase chosen, const Locale& locale,
                      TextWriter& writer);

} // namespace vela::engine
