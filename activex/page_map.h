// The pages by their entries and by their classes.
#pragma once

#include "activex/page_entries.h"

#include <guiddef.h>

namespace vela::activex {

[[nodiscard]] const CLSID& pageClass(pages::PageKind page) noexcept;

} // namespace vela::activex
