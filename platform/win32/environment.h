// The machine's services: local clock, the user's locale, the appended log file, version, folder and fonts.
#pragma once

#include "platform/environment.h"

namespace vela::win32 {

class Clock final : public platform::Clock {
public:
    [[nodiscard]] engine::Date now() const override;
};

// Reads the user's settings once, and again after refresh() (a changed setting, WM_SETTINGCHANGE).
class LocaleSource final : public platform::LocaleSource {
public:
    [[nodiscard]] const engine::Locale& locale() const override;
    void refresh() noexcept { read_ = false; }

private:
    mutable engine::Locale locale_;
    mutable bool read_ = false;
};

class LogFile final : public platform::LogFile {
public:
    void append(std::u16string_view path, const engine::LogRecord& record) override;
};

class SystemInfo final : public platform::SystemInfo {
public:
    [[nodiscard]] std::optional<platform::WindowsVersion> windowsVersion() const override;
    [[nodiscard]] std::u16string libraryFolder() const override;
    [[nodiscard]] std::vector<std::u16string> fontNames() const override;
};

} // namespace vela::win32
