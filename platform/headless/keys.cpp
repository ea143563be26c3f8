// The key-down code of a typed character.
#include "platform/headless/keys.h"

#include "engine/text/letter_case.h"

namespace vela::headless {

Key keyOf(char16_t character) noexcept
{
    const char16_t capital = engine::upperCase(character);
    const bool letter = capital != engine::lowerCase(character);
    const bool digit = character >= u'0' && character <= u'9';
    return {letter || digit ? capital : 0, character, true};
}

} // namespace vela::headless
