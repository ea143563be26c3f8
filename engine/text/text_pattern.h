// Texts through the "@" and "&" marks of a pattern.
#pragma once

#include "engine/text/compiled_pattern.h"
#include "engine/text/text_writer.h"

namespace vela::engine {

void putTextPattern(const Pattern::Compiled& pattern, std::u16string_view text, TextWriter& writer);

} // namespace vela::engine
