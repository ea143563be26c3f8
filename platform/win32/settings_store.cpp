// Reads and writes the registry values of the settings store.
#include "platform/win32/settings_store.h"

#include "engine/error.h"
#include "platform/win32/owners.h"
#include "platform/win32/text.h"

#include <optional>

namespace vela::win32 {
namespace {

std::wstring pathOf(std::u16string_view application, std::u16string_view section)
{
    return L"Software\\VB and VBA Program Settings\\" + wide(application) + L'\\' + wide(section);
}

UniqueKey openSection(std::u16string_view application, std::u16string_view section, REGSAM access)
{
    UniqueKey key;
    RegOpenKeyExW(HKEY_CURRENT_USER, pathOf(application, section).c_str(), 0, access, key.put());
    return key;
}

std::u16string textOf(std::wstring value, DWORD bytes)
{
    value.resize(bytes / sizeof(wchar_t));
    while (!value.empty() && value.back() == L'\0')
        value.pop_back();
    return utf16(value);
}

// Nothing when there is no such value, or when it is no text.
std::optional<std::u16string> readText(HKEY key, const std::wstring& name)
{
    DWORD type = 0;
    DWORD bytes = 0;
    if (RegQueryValueExW(key, name.c_str(), nullptr, &type, nullptr, &bytes) != ERROR_SUCCESS || type != REG_SZ)
        return std::nullopt;
    std::wstring value(bytes / sizeof(wchar_t) + 1, L'\0');
    if (RegQueryValueExW(key, name.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(value.data()), &bytes) !=
        ERROR_SUCCESS)
        return std::nullopt;
    return textOf(std::move(value), bytes);
}

std::vector<std::wstring> valueNames(HKEY key)
{
    constexpr DWORD longestName = 16384;
    std::vector<std::wstring> names;
    std::wstring buffer(longestName, L'\0');
    for (DWORD index = 0;; ++index) {
        DWORD length = longestName;
        if (RegEnumValueW(key, index, buffer.data(), &length, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS)
            return names;
        names.push_back(buffer.substr(0, length));
    }
}

} // namespace

void SettingsStore::save(std::u16string_view application, std::u16string_view section, std::u16string_view key,
                         std::u16string_view value)
{
    UniqueKey opened;
    const std::wstring text = wide(value);
    const auto bytes = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    if (RegCreateKeyExW(HKEY_CURRENT_USER, pathOf(application, section).c_str(), 0, nullptr, 0, KEY_SET_VALUE, nullptr,
                        opened.put(), nullptr) != ERROR_SUCCESS ||
        RegSetValueExW(opened.get(), wide(key).c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                       bytes) != ERROR_SUCCESS)
        engine::raise(engine::error_number::invalidCall);
}

std::u16string SettingsStore::get(std::u16string_view application, std::u16string_view section, std::u16string_view key,
                                  std::u16string_view defaultValue) const
{
    const UniqueKey opened = openSection(application, section, KEY_QUERY_VALUE);
    std::optional<std::u16string> found;
    if (opened)
        found = readText(opened.get(), wide(key));
    return found ? *std::move(found) : std::u16string(defaultValue);
}

std::vector<SettingsStore::Entry> SettingsStore::all(std::u16string_view application, std::u16string_view section) const
{
    std::vector<Entry> entries;
    if (const UniqueKey opened = openSection(application, section, KEY_QUERY_VALUE))
        for (const std::wstring& name : valueNames(opened.get()))
            if (std::optional<std::u16string> value = readText(opened.get(), name))
                entries.emplace_back(utf16(name), *std::move(value));
    return entries;
}

void SettingsStore::remove(std::u16string_view application, std::u16string_view section, std::u16string_view key)
{
    const UniqueKey opened = openSection(application, section, KEY_SET_VALUE);
    if (!opened || RegDeleteValueW(opened.get(), wide(key).c_str()) != ERROR_SUCCESS)
        engine::raise(engine::error_number::invalidCall);
}

} // namespace vela::win32
