// The version line of the About box.
#pragma once

#include <string>

namespace vela::tooltip {

struct BuildVersion {
    int major = 1;
    int minor = 0;
    int revision = 0;
};

// {2, 1, 37} -> "Vela - Compilação 2.1.0037". Without an argument: of this build.
[[nodiscard]] std::u16string aboutText(BuildVersion version = {});

} // namespace vela::tooltip
