// The manual's page of members, from the property table.
#pragma once

#include <string>

namespace vela::manual {

// Markdown, UTF-8. Throws std::runtime_error naming a member that has no description.
[[nodiscard]] std::string membersPage();

} // namespace vela::manual
