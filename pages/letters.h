// The list of allowed characters: 133 items of one character each, chosen from by multiple selection.
#pragma once

#include "platform/form.h"

#include <string>
#include <string_view>

namespace vela::pages {

// Blank and printable ASCII, then the accented capitals with ×, then the small ones with ÷.
// Oddity: the allowed-characters list has 133 characters, with gaps (no Ö, Ú, Û, Ü, ö, ü, ý and others); saved profiles
// and fields were made with this list.
void fillLetters(platform::ItemList& list);
// The selected items joined, in the order of the list: 'A', '1' selected -> "1A".
[[nodiscard]] std::u16string selectedLetters(const platform::ItemList& list);
// Selects exactly the items whose character occurs in `letters`, case-sensitive; others in it are ignored.
void selectLetters(platform::ItemList& list, std::u16string_view letters);

} // namespace vela::pages
