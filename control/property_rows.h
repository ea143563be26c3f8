// The rows behind property_table.h.
#pragma once

#include "control/property_table.h"

#include <array>

namespace vela::control {

using PropertyRows = std::array<Property, 86>;
[[nodiscard]] const PropertyRows& propertyRows();

} // namespace vela::control
