// What the manual says of enumerators; the property table says the rest.
#pragma once

#include <string_view>

namespace vela::manual {

enum class Language { english, portuguese };

struct EnumeratorText {
    std::u16string_view name;
    std::string_view english;
    std::string_view portuguese;
};

// Null for a name that the manual does not know; the generator refuses that.
[[nodiscard]] const EnumeratorText* findEnumeratorText(std::u16string_view name) noexcept;

} // namespace vela::manual
