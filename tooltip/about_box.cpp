// The text of the About box's version label.
#include "tooltip/about_box.h"

#include "engine/text/decimal_text.h"

namespace vela::tooltip {

std::u16string aboutText(BuildVersion version)
{
    using engine::decimalText;
    return u"Vela - Compilação " + decimalText(version.major) + u"." + decimalText(version.minor) + u"." +
           decimalText(version.revision, 4);
}

} // namespace vela::tooltip
