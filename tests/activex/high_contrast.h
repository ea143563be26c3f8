// The person's setting of high contrast, for a scope.
#pragma once

#include "tests/support/windows.h"

#include <vector>

namespace vela::test {

// White on black, and the library told that it is high contrast: Wine knows the colours, not the setting.
class HighContrast : Fixed {
public:
    HighContrast();
    ~HighContrast();

    static constexpr COLORREF window = 0x00000000, text = 0x00FFFFFF, frame = 0x0000FFFF, grey = 0x0000FF00,
                              highlight = 0x00FFFF00;

private:
    std::vector<COLORREF> before_;
};

} // namespace vela::test
