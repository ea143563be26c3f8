// Texts of keys: characters, and names in braces such as {TAB} and {F2}.
#pragma once

#include "platform/headless/keys.h"

#include <span>
#include <string_view>
#include <vector>

namespace vela::console {

struct KeyName {
    std::u16string_view name; // "{F2}"
    headless::Key key;
};

inline constexpr int backwardsTab = -headless::virtual_key::tab; // the code of "+{TAB}", which is no key of its own

[[nodiscard]] std::span<const KeyName> allKeyNames() noexcept;

// {+} {{} {}} stand for themselves. Raises NotACommand for a brace that names none of `names` or is not closed.
// A character beyond U+FFFF is two keys.
[[nodiscard]] std::vector<headless::Key> keysOf(std::u16string_view text, std::span<const KeyName> names);

} // namespace vela::console
