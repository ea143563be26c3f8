// Reading texts of keys.
#include "apps/console/key_text.h"

#include "apps/console/script_line.h"

#include <algorithm>
#include <array>

namespace vela::console {

namespace {

namespace vk = headless::virtual_key;

constexpr std::array<KeyName, 18> names{{
    {u"{TAB}", {vk::tab, 0, false}},
    {u"+{TAB}", {backwardsTab, 0, false}},
    {u"{ENTER}", headless::namedKey(vk::enter)},
    {u"{BACKSPACE}", headless::namedKey(vk::backspace)},
    {u"{DELETE}", headless::namedKey(vk::del)},
    {u"{LEFT}", headless::namedKey(vk::left)},
    {u"{RIGHT}", headless::namedKey(vk::right)},
    {u"{UP}", headless::namedKey(vk::up)},
    {u"{DOWN}", headless::namedKey(vk::down)},
    {u"{HOME}", headless::namedKey(vk::home)},
    {u"{END}", headless::namedKey(vk::end)},
    {u"{ESC}", headless::namedKey(vk::escape)},
    {u"{F2}", headless::namedKey(vk::f2)},
    {u"{^Z}", headless::controlKey('Z')},
    {u"{^Y}", headless::controlKey('Y')},
    {u"{^X}", headless::controlKey('X')},
    {u"{^C}", headless::controlKey('C')},
    {u"{^V}", headless::controlKey('V')},
}};

} // namespace

std::span<const KeyName> allKeyNames() noexcept
{
    return names;
}

std::vector<headless::Key> keysOf(std::u16string_view text, std::span<const KeyName> keyNames)
{
    std::vector<headless::Key> keys;
    while (!text.empty()) {
        const auto named =
            std::ranges::find_if(keyNames, [&](const KeyName& name) { return text.starts_with(name.name); });
        if (named != keyNames.end()) {
            keys.push_back(named->key);
            text.remove_prefix(named->name.size());
        } else if (text.starts_with(u"{+}") || text.starts_with(u"{{}") || text.starts_with(u"{}}")) {
            keys.push_back(headless::keyOf(text[1]));
            text.remove_prefix(3);
        } else if (text.front() == u'{') {
            const std::size_t end = std::min({text.find(u'}'), text.size() - 1, std::size_t{11}});
            notACommand("a brace names no key: \"" + toUtf8(text.substr(0, end + 1)) + "\"");
        } else {
            keys.push_back(headless::keyOf(text.front()));
            text.remove_prefix(1);
        }
    }
    return keys;
}

} // namespace vela::console
