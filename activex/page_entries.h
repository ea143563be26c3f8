// Which page, and which of its widgets, edits a property: for hosts that open a page on one property, and the manual.
#pragma once

#include "pages/page.h"

#include <string_view>

namespace vela::activex {

struct PageEntry {
    std::u16string_view property;
    pages::PageKind page;
    std::u16string_view widget;
    int index = -1; // of a control array
};

[[nodiscard]] const PageEntry* findPageEntry(std::u16string_view property) noexcept; // null: on no page

} // namespace vela::activex
