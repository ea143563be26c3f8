// The masks and the profiles of allowed characters that a developer keeps across projects, in the per-user store.
// Every operation raises what the store raises.
#pragma once

#include "platform/environment.h"

#include <string>
#include <string_view>
#include <vector>

namespace vela::pages {

inline constexpr std::u16string_view storeApplication = u"Vela - By Aldren";

class PresetStore {
public:
    PresetStore(platform::SettingsStore& settings, const platform::Clock& clock,
                const platform::LocaleSource& locales) noexcept
        : settings_(settings), clock_(clock), locales_(locales)
    {
    }

    [[nodiscard]] std::vector<std::u16string> masks() const; // in the order of the store
    // `listed` is the number of masks on show. The key is made of it and of the local time, so that a mask saved in
    // the same second with as many on show replaces the former one.
    void saveMask(std::u16string_view mask, int listed);

    [[nodiscard]] std::vector<std::u16string> profileNames() const;
    [[nodiscard]] std::u16string profile(std::u16string_view name) const; // its characters; "" when there is none
    void saveProfile(std::u16string_view name, std::u16string_view letters);
    void removeProfile(std::u16string_view name);

private:
    platform::SettingsStore& settings_;
    const platform::Clock& clock_;
    const platform::LocaleSource& locales_;
};

// The third mask at 14:05:33 -> "Key_314:05:33" (pt-BR), "Key_32:05:33 PM" (en-US).
[[nodiscard]] std::u16string maskKey(int listed, engine::Date now, const engine::Locale& locale);

} // namespace vela::pages
