// Letter case of single characters and texts, and proper case of Portuguese names.
#pragma once

#include <string>
#include <string_view>

namespace vela::engine {

// The system's one-to-one mapping of UTF-16 units: Latin-1 exactly (units E0 to FE without the division sign
// against C0 to DE, FF against U+0178; sharp s and micro sign stay), and the regular pairs of Latin Extended-A,
// Greek and Cyrillic.
[[nodiscard]] char16_t upperCase(char16_t unit) noexcept;
[[nodiscard]] char16_t lowerCase(char16_t unit) noexcept;
[[nodiscard]] std::u16string upperCase(std::u16string_view text);
[[nodiscard]] std::u16string lowerCase(std::u16string_view text);
// As the system compares texts when it ignores case.
[[nodiscard]] bool startsWithIgnoringCase(std::u16string_view text, std::u16string_view start) noexcept;
[[nodiscard]] bool containsIgnoringCase(std::u16string_view text, std::u16string_view part) noexcept;

// "JOÃO DA SILVA" -> "João da Silva", "pedro de o" -> "Pedro de O". Replaces `into`; nothing is allocated once it
// has room. `text` must not view `into`.
void properCase(std::u16string_view text, std::u16string& into);
[[nodiscard]] std::u16string properCase(std::u16string_view text);

} // namespace vela::engine
