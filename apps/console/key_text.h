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

[[nodiscard]] std::span<const KeyName> allKeyNames() noexcept; // {TAB} and +{TAB} as virtual_key::tab and -tab

// {+} {{} {}} stand for themselves. Raises NotACommand for a brace that names none of `names`, and for a bare "+".
// A character beyond U+FFFF is two keys.
[[nodiscard]] std::vector<headless::Key> keysOf(std::u16string_view text, std::span<const KeyName> names);

} // namespace vela::console
