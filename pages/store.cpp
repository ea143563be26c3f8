// Stores masks under generated keys and profiles under their names.
#include "pages/store.h"

#include "engine/text/decimal_text.h"
#include "engine/text/pattern.h"

namespace vela::pages {

namespace {

constexpr std::u16string_view maskSection = u"Mascaras";
constexpr std::u16string_view profileSection = u"Profiles";

} // namespace

std::u16string maskKey(int listed, engine::Date now, const engine::Locale& locale)
{
    std::u16string key = u"Key_" + engine::decimalText(listed + 1);
    engine::Pattern(locale.longTime).format(now, locale, key);
    return key;
}

std::vector<std::u16string> PresetStore::masks() const
{
    std::vector<std::u16string> masks;
    for (auto& [key, mask] : settings_.all(storeApplication, maskSection))
        masks.push_back(std::move(mask));
    return masks;
}

void PresetStore::saveMask(std::u16string_view mask, int listed)
{
    settings_.save(storeApplication, maskSection, maskKey(listed, clock_.now(), locales_.locale()), mask);
}

std::vector<std::u16string> PresetStore::profileNames() const
{
    std::vector<std::u16string> names;
    for (auto& [name, letters] : settings_.all(storeApplication, profileSection))
        names.push_back(std::move(name));
    return names;
}

std::u16string PresetStore::profile(std::u16string_view name) const
{
    return settings_.get(storeApplication, profileSection, name, {});
}

void PresetStore::saveProfile(std::u16string_view name, std::u16string_view letters)
{
    settings_.save(storeApplication, profileSection, name, letters);
}

void PresetStore::removeProfile(std::u16string_view name)
{
    settings_.remove(storeApplication, profileSection, name);
}

} // namespace vela::pages
