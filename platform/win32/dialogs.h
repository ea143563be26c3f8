// The two dialogs of the back end's own: a line of text asked for, and the About box.
#pragma once

#include <string>
#include <string_view>

namespace vela::win32 {

[[nodiscard]] std::u16string askText(std::u16string_view prompt, std::u16string_view title); // "": cancelled
void showAbout(std::u16string_view version);

} // namespace vela::win32
