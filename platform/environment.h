// The services of the machine that every control is given: one bundle of references, each narrow.
#pragma once

#include "engine/log_record.h"
#include "engine/text/locale.h"
#include "engine/value.h"
#include "platform/desktop.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vela::platform {

class Clock {
public:
    virtual ~Clock() = default;
    [[nodiscard]] virtual engine::Date now() const = 0; // local time
};

class LocaleSource {
public:
    virtual ~LocaleSource() = default;
    [[nodiscard]] virtual const engine::Locale& locale() const = 0; // the user's, as it is now
};

class LogFile {
public:
    virtual ~LogFile() = default;
    // Opens, appends and closes. Raises 70, 75 or 76 when the file cannot be written.
    virtual void append(std::u16string_view path, const engine::LogRecord& record) = 0;
};

struct WindowsVersion {
    int platform = 2; // 1 the Windows 95 family, 2 the NT family
    int minor = 0;
};

class SystemInfo {
public:
    virtual ~SystemInfo() = default;
    [[nodiscard]] virtual std::optional<WindowsVersion> windowsVersion() const = 0; // nothing: no Windows to ask
    [[nodiscard]] virtual std::u16string libraryFolder() const = 0; // "C:\Vela"; of a drive's root: "C:\"
    [[nodiscard]] virtual std::vector<std::u16string> fontNames() const = 0;
};

// A store of texts by application, section and key, that outlives the program.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;
    using Entry = std::pair<std::u16string, std::u16string>; // key, value

    virtual void save(std::u16string_view application, std::u16string_view section, std::u16string_view key,
                      std::u16string_view value) = 0;
    [[nodiscard]] virtual std::u16string get(std::u16string_view application, std::u16string_view section,
                                             std::u16string_view key, std::u16string_view defaultValue) const = 0;
    [[nodiscard]] virtual std::vector<Entry> all(std::u16string_view application,
                                                 std::u16string_view section) const = 0;
    // Raises 5 when there is no such key.
    virtual void remove(std::u16string_view application, std::u16string_view section, std::u16string_view key) = 0;
};

struct Environment {
    Clock& clock;
    LocaleSource& locales;
    LogFile& log;
    Desktop& desktop;
    SystemInfo& system;
};

} // namespace vela::platform
