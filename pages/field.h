// Which property stands in which control of a page, and how its value looks there.
#pragma once

#include <string_view>

namespace vela::pages {

enum class Mapping {
    text,      // a text box or combo: the value as text
    number,    // a text box: the leading number of its text; " 2 casas" -> 2, "" -> 0
    check,     // a check box: True checks it
    listIndex, // a drop-down list: the index of the chosen item
    colour,    // a swatch: its background
};

struct Field {
    std::u16string_view property;
    std::u16string_view control;
    Mapping mapping = Mapping::text;
    int read = 0;    // its place in the order in which the page reads its properties
    int written = 0; // and in the order in which it writes them
    int index = -1;  // of the control, in a control array
};

} // namespace vela::pages
