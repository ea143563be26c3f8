// The machine's services: local clock, the user's locale, the appended log file, version, folder and fonts.
#pragma once

#include "platform/environment.h"

#include <memory>

namespace vela::win32 {

class Clock final : public platform::Clock {
public:
    [[nodiscard]] engine::Date now() const override;
};

// A locale of the system by its name, "de-DE"; null: the user's, with what the user has changed in it.
[[nodiscard]] engine::Locale systemLocale(const wchar_t* name);

// Reads the user's settings once, and again after refresh() or, once it listens, when the system tells of a change.
class LocaleSource final : public platform::LocaleSource {
public:
    LocaleSource();
    ~LocaleSource() override;
    [[nodiscard]] const engine::Locale& locale() const override;
    void listen(); // with a window of this thread: when there are others
    void refresh() noexcept { read_ = false; }

private:
    class Listener;

    mutable engine::Locale locale_;
    mutable bool read_ = false;
    std::unique_ptr<Listener> listener_;
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
