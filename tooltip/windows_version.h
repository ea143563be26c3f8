// The family of Windows that the system belongs to.
#pragma once

#include "platform/environment.h"

#include <string_view>

namespace vela::tooltip {

// "NT", "95", "98", "" (another minor version of the 95 family) or "DESCONHECIDO"; "NT" where there is no Windows.
[[nodiscard]] std::u16string_view VersaoWindows(const platform::SystemInfo& system);

} // namespace vela::tooltip
