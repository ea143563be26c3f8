// Pattern texts to marks.
#pragma once

#include "engine/text/compiled_pattern.h"

namespace vela::engine {

[[nodiscard]] Pattern::Compiled compilePattern(std::u16string_view text);

} // namespace vela::engine
