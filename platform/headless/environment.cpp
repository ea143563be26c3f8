// The machine's services in memory.
#include "platform/headless/environment.h"

#include "engine/error.h"
#include "engine/text/calendar_date.h"

#include <algorithm>
#include <ctime>

namespace vela::headless {

engine::Date Clock::now() const
{
    if (frozen_)
        return *frozen_;
    const std::time_t seconds = std::time(nullptr);
    const std::tm* local = std::localtime(&seconds);
    if (local == nullptr)
        return {};
    const int second = std::min(local->tm_sec, 59); // a leap second
    return engine::makeDate({local->tm_year + 1900, local->tm_mon + 1, local->tm_mday},
                            {local->tm_hour, local->tm_min, second});
}

void LogFile::append(std::u16string_view path, const engine::LogRecord& record)
{
    faults_.pass();
    sink_.trace(trace::Logged{path, &record});
    entries_.push_back({std::u16string(path), record});
}

std::vector<std::u16string> SystemInfo::fontNames() const
{
    return {u"Arial", u"Courier New", u"MS Sans Serif", u"Tahoma", u"Times New Roman"};
}

const SettingsStore::Section* SettingsStore::find(std::u16string_view application,
                                                  std::u16string_view section) const noexcept
{
    for (const Section& candidate : sections_)
        if (candidate.application == application && candidate.name == section)
            return &candidate;
    return nullptr;
}

void SettingsStore::save(std::u16string_view application, std::u16string_view section, std::u16string_view key,
                         std::u16string_view value)
{
    faults_.pass();
    auto* found = const_cast<Section*>(find(application, section));
    if (found == nullptr)
        found = &sections_.emplace_back(
            Section{std::u16string(application), std::u16string(section), std::vector<Entry>()});
    for (Entry& entry : found->entries) {
        if (entry.first == key) {
            entry.second = value;
            return;
        }
    }
    found->entries.emplace_back(key, value);
}

std::u16string SettingsStore::get(std::u16string_view application, std::u16string_view section, std::u16string_view key,
                                  std::u16string_view defaultValue) const
{
    faults_.pass();
    if (const Section* found = find(application, section))
        for (const Entry& entry : found->entries)
            if (entry.first == key)
                return entry.second;
    return std::u16string(defaultValue);
}

std::vector<SettingsStore::Entry> SettingsStore::all(std::u16string_view application, std::u16string_view section) const
{
    faults_.pass();
    const Section* found = find(application, section);
    return found != nullptr ? found->entries : std::vector<Entry>();
}

void SettingsStore::remove(std::u16string_view application, std::u16string_view section, std::u16string_view key)
{
    faults_.pass();
    auto* found = const_cast<Section*>(find(application, section));
    if (found == nullptr || std::erase_if(found->entries, [&](const Entry& entry) { return entry.first == key; }) == 0)
        engine::raise(engine::error_number::invalidCall);
}

std::vector<SettingsStore::Row> SettingsStore::rows() const
{
    std::vector<Row> rows;
    for (const Section& section : sections_)
        for (const Entry& entry : section.entries)
            rows.push_back({section.application, section.name, entry.first, entry.second});
    return rows;
}

} // namespace vela::headless
