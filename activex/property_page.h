// A page of the library as hosts' frames show it.
#pragma once

#include "activex/com/owners.h"
#include "pages/page.h"

namespace vela::activex {

[[nodiscard]] ComPtr<IUnknown> makePropertyPage(pages::PageKind kind);

} // namespace vela::activex
