// The per-user settings store, in the registry: HKCU\Software\VB and VBA Program Settings\APPLICATION\SECTION.
#pragma once

#include "platform/environment.h"

namespace vela::win32 {

// Entries come sorted as the registry keeps them, not in the order of saving.
class SettingsStore final : public platform::SettingsStore {
public:
    void save(std::u16string_view application, std::u16string_view section, std::u16string_view key,
              std::u16string_view value) override;
    [[nodiscard]] std::u16string get(std::u16string_view application, std::u16string_view section,
                                     std::u16string_view key, std::u16string_view defaultValue) const override;
    [[nodiscard]] std::vector<Entry> all(std::u16string_view application, std::u16string_view section) const override;
    void remove(std::u16string_view application, std::u16string_view section, std::u16string_view key) override;
};

} // namespace vela::win32
