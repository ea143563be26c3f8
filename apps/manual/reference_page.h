// The manual's reference: every member of the control, from its tables.
#pragma once

#include "apps/manual/descriptions.h"

#include <string>

namespace vela::manual {

// Markdown, UTF-8. Throws std::runtime_error naming a member that has no description.
[[nodiscard]] std::string referencePage(Language language);

// What stands behind the tables of members: keys, errors, the calendar.
[[nodiscard]] std::string_view referenceProse(Language language) noexcept;

} // namespace vela::manual
