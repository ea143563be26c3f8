// The names of the Windows families.
#include "tooltip/windows_version.h"

namespace vela::tooltip {

std::u16string_view VersaoWindows(const platform::SystemInfo& system)
{
    const auto version = system.windowsVersion();
    if (!version || version->platform == 2)
        return u"NT";
    if (version->platform != 1)
        return u"DESCONHECIDO";
    return version->minor == 0 ? u"95" : version->minor == 10 ? u"98" : u"";
}

} // namespace vela::tooltip
