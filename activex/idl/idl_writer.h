// The interface definition of the library, written from the table of members and the fixed identities.
#pragma once

#include <string>

namespace vela::activex {

[[nodiscard]] std::string interfaceDefinition(); // UTF-8, lines ended by LF

} // namespace vela::activex
