// The demonstration's fields: their labels, places and settings, as a form file would keep them.
#pragma once

#include "apps/demo/settings_bag.h"

#include <vector>

namespace vela::demo {

struct FieldRow {
    const wchar_t* name;  // in the transcript
    const wchar_t* label; // on the form; "&" marks the access key
    int column;           // 0-based
    int lines;            // height in lines of text
    bool schemes;         // the transcript shows Value in each of the four return schemes
    std::vector<Setting> settings;
};

inline constexpr int columnCount = 3;
extern const wchar_t* const columnTitles[columnCount];

[[nodiscard]] const std::vector<FieldRow>& fieldRows();

} // namespace vela::demo
