// Fonts shared by the windows that use them.
#pragma once

#include "platform/edit_box.h"

#include <windows.h>

#include <memory>

namespace vela::win32 {

// Deleted with its last user.
class Font {
public:
    explicit Font(HFONT font) noexcept : font_(font) {}
    Font(const Font&) = delete;
    Font& operator=(const Font&) = delete;
    ~Font() { DeleteObject(font_); }
    [[nodiscard]] HFONT get() const noexcept { return font_; }

private:
    HFONT font_;
};
using SharedFont = std::shared_ptr<const Font>;

// The same object for equal descriptions while somebody holds it.
[[nodiscard]] SharedFont sharedFont(const platform::FontDescription& description, int dpi);
// A font of the caller's own, `height` units high (characters, without internal leading).
[[nodiscard]] HFONT makeFont(const platform::FontDescription& description, int height) noexcept;

} // namespace vela::win32
