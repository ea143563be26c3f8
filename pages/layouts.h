// The layout tables of the pages and of the palette. Rows stand in tab order.
#pragma once

#include "platform/form.h"

namespace vela::pages {

// A page is 250 by 220 dialog units of Tahoma 8.
inline constexpr int pageWidth = 5600;  // twips
inline constexpr int pageHeight = 5360; // twips

[[nodiscard]] const platform::FormLayout& principalLayout() noexcept;
[[nodiscard]] const platform::FormLayout& geralLayout() noexcept;
[[nodiscard]] const platform::FormLayout& errosLayout() noexcept;
[[nodiscard]] const platform::FormLayout& fonteLayout() noexcept;
[[nodiscard]] const platform::FormLayout& calendarioLayout() noexcept;
[[nodiscard]] const platform::FormLayout& paletaLayout() noexcept;

} // namespace vela::pages
