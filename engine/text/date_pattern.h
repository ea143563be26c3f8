// Dates through the letters of a pattern.
#pragma once

#include "engine/text/calendar_date.h"
#include "engine/text/compiled_pattern.h"
#include "engine/text/locale.h"
#include "engine/text/text_writer.h"

namespace vela::engine {

void putDatePattern(const Pattern::Compiled& pattern, const Moment& moment, const Locale& locale, TextWriter& writer);

} // namespace vela::engine
