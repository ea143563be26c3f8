// The classes of the pages.
#pragma once

#include "pages/page.h"

#include <guiddef.h>

namespace vela::activex {

[[nodiscard]] const CLSID& pageClass(pages::PageKind page) noexcept;

} // namespace vela::activex
