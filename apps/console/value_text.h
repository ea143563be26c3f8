// Values as scripts write them: True, 12, &H00FF00FF, 12.5, "text", #2024-02-29#, Empty.
#pragma once

#include "apps/console/script_line.h"
#include "engine/error.h"
#include "engine/field/property_types.h"
#include "engine/value.h"

#include <optional>
#include <string>

namespace vela::console {

// Raises NotACommand for a word that is no value; with an enumeration its members' names are values too.
[[nodiscard]] engine::Value valueOf(const Word& word, const engine::Enumeration* enumeration = nullptr);
// The same, nothing for a word that is no value.
[[nodiscard]] std::optional<engine::Value> tryValueOf(const Word& word,
                                                      const engine::Enumeration* enumeration = nullptr);
[[nodiscard]] engine::Colour colourOf(const Word& word); // "&H00BBGGRR" alone

// All in UTF-8, ready to print.
[[nodiscard]] std::string printed(const engine::Value& value);
[[nodiscard]] std::string printed(engine::Colour colour);
[[nodiscard]] std::string printed(bool value);
[[nodiscard]] std::string printed(const engine::Error& error); // error 13 "Vela" "Type mismatch"
[[nodiscard]] std::string quoted(std::u16string_view text);    // in quotes, with escapes

// As commands write and print what belongs to a property: by its enumerators and colours, where it has them.
[[nodiscard]] engine::Value valueFor(std::u16string_view property, const Word& word);
[[nodiscard]] std::string printedOf(std::u16string_view property, const engine::Value& value);

} // namespace vela::console
