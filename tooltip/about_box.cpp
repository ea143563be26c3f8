// The text of the About box's version label.
#include "tooltip/about_box.h"

#include <algorithm>

namespace vela::tooltip {
namespace {

void appendNumber(std::u16string& text, int number, std::size_t leastDigits)
{
    std::string digits = std::to_string(number);
    digits.insert(0, leastDigits - std::min(leastDigits, digits.size()), '0');
    text.append(digits.begin(), digits.end());
}

} // namespace

std::u16string aboutText(BuildVersion version)
{
    std::u16string text(u"Vela - Compilação ");
    appendNumber(text, version.major, 1);
    text.push_back(u'.');
    appendNumber(text, version.minor, 1);
    text.push_back(u'.');
    appendNumber(text, version.revision, 4);
    return text;
}

} // namespace vela::tooltip
