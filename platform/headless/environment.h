// A machine in memory: clock, locale, error log, system and per-user settings, with a desktop and forms on it.
#pragma once

#include "platform/environment.h"
#include "platform/headless/desktop.h"
#include "platform/headless/fault.h"
#include "platform/headless/trace.h"
#include "platform/headless/widget_form.h"

#include <optional>
#include <string>
#include <vector>

namespace vela::headless {

// Stands still once it is set; until then it is the machine's local time.
class Clock final : public platform::Clock {
public:
    void freeze(engine::Date now) noexcept { frozen_ = now; }
    [[nodiscard]] engine::Date now() const override;

private:
    std::optional<engine::Date> frozen_;
};

class Locales final : public platform::LocaleSource {
public:
    void use(const engine::Locale& locale) noexcept { locale_ = &locale; } // which outlives this; at first ptBr()
    [[nodiscard]] const engine::Locale& locale() const override { return *locale_; }

private:
    const engine::Locale* locale_ = &engine::ptBr();
};

class LogFile final : public platform::LogFile {
public:
    struct Entry {
        std::u16string path;
        engine::LogRecord record;
    };
    LogFile(TraceSink& sink, FaultPlan& faults) : sink_(sink), faults_(faults) {}

    void append(std::u16string_view path, const engine::LogRecord& record) override;
    [[nodiscard]] const std::vector<Entry>& entries() const noexcept { return entries_; }

private:
    TraceSink& sink_;
    FaultPlan& faults_;
    std::vector<Entry> entries_;
};

class SystemInfo final : public platform::SystemInfo {
public:
    void reportVersion(std::optional<platform::WindowsVersion> version) noexcept { version_ = version; }
    void loadFrom(std::u16string folder) { folder_ = std::move(folder); }

    [[nodiscard]] std::optional<platform::WindowsVersion> windowsVersion() const override { return version_; }
    [[nodiscard]] std::u16string libraryFolder() const override { return folder_; }
    [[nodiscard]] std::vector<std::u16string> fontNames() const override;

private:
    std::optional<platform::WindowsVersion> version_ = platform::WindowsVersion{};
    std::u16string folder_ = u"C:\\Vela";
};

// Empty at first; sections and keys stand in the order of their first saving and compare with case.
class SettingsStore final : public platform::SettingsStore {
public:
    struct Row {
        std::u16string application;
        std::u16string section;
        std::u16string key;
        std::u16string value;
    };
    explicit SettingsStore(FaultPlan& faults) : faults_(faults) {}

    void save(std::u16string_view application, std::u16string_view section, std::u16string_view key,
              std::u16string_view value) override;
    [[nodiscard]] std::u16string get(std::u16string_view application, std::u16string_view section,
                                     std::u16string_view key, std::u16string_view defaultValue) const override;
    [[nodiscard]] std::vector<Entry> all(std::u16string_view application, std::u16string_view section) const override;
    void remove(std::u16string_view application, std::u16string_view section, std::u16string_view key) override;
    [[nodiscard]] std::vector<Row> rows() const; // grouped by section

private:
    struct Section {
        std::u16string application;
        std::u16string name;
        std::vector<Entry> entries;
    };
    [[nodiscard]] const Section* find(std::u16string_view application, std::u16string_view section) const noexcept;

    FaultPlan& faults_;
    std::vector<Section> sections_;
};

// All of it together. Controls, pop-ups and pages take `environment`, `forms` and `settings`.
struct Machine {
    explicit Machine(TraceSink& sink = noTrace())
        : trace(sink), log(sink, faults), settings(faults), desktop(sink, faults), forms(sink, faults, desktop)
    {
    }
    Machine(const Machine&) = delete;
    Machine& operator=(const Machine&) = delete;

    TraceSink& trace;
    FaultPlan faults;
    Clock clock;
    Locales locales;
    LogFile log;
    SystemInfo system;
    SettingsStore settings;
    Desktop desktop;
    WidgetForms forms;
    platform::Environment environment{clock, locales, log, desktop, system};
};

} // namespace vela::headless
