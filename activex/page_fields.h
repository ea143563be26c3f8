// The fields of the property pages, as the property table tells them: for what makes pages.
#pragma once

#include "pages/page.h"

#include <span>

namespace vela::activex {

// In the order in which the page reads them.
[[nodiscard]] std::span<const pages::Field> pageFields(pages::PageKind page);

} // namespace vela::activex
