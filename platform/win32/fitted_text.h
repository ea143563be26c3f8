// Smaller fonts where the system's font is wider than the one that a form's table was made for.
#pragma once

#include "platform/edit_box.h"

#include <windows.h>

#include <functional>
#include <string_view>
#include <utility>
#include <vector>

namespace vela::win32 {

struct FittingText {
    std::u16string_view text;
    int width = 0; // there is room for, in units of the device context
};

// The heights found during one drawing: the labels of a control array share one.
class FittedHeights {
public:
    // At most `height`; less where a text would be wider than its place, but never too small to be read.
    [[nodiscard]] int of(std::u16string_view array, HDC dc, const platform::FontDescription& font, int height,
                         const std::function<std::vector<FittingText>()>& texts);

private:
    std::vector<std::pair<std::u16string_view, int>> known_;
};

} // namespace vela::win32
