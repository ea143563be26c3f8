// What each member of the control is for, and what the tables of the control do not tell of it.
#pragma once

#include <string_view>

namespace vela::manual {

enum class Language { english, portuguese };

struct Description {
    std::u16string_view name;
    std::string_view types;   // T, N, D, M: the text types for which it means something
    std::string_view example; // what may be put, as VBA writes it; empty: nothing at run time
    std::string_view errors;  // the number that a put may raise, beyond 6 and 13 for what is not of the type
    std::string_view english;
    std::string_view portuguese; // empty: the help text says it
};

struct EnumeratorText {
    std::u16string_view name;
    std::string_view english;
    std::string_view portuguese;
};

// Null for a name that the manual does not know; the generator refuses that.
[[nodiscard]] const Description* findDescription(std::u16string_view member) noexcept;
[[nodiscard]] const EnumeratorText* findEnumeratorText(std::u16string_view name) noexcept;

} // namespace vela::manual
