// Reading and writing of the bag in memory.
#include "platform/headless/property_bag.h"

namespace vela::headless {

engine::Value PropertyBag::read(std::u16string_view key, const engine::Value& defaultValue)
{
    if (faults_ != nullptr)
        faults_->pass();
    for (std::size_t tried = 0; tried < entries_.size(); ++tried) {
        const std::size_t at = (hint_ + tried) % entries_.size();
        if (entries_[at].first == key) {
            hint_ = at + 1;
            return entries_[at].second;
        }
    }
    return defaultValue;
}

void PropertyBag::write(std::u16string_view key, const engine::Value& value,
                        const std::optional<engine::Value>& defaultValue)
{
    if (faults_ != nullptr)
        faults_->pass();
    if (!defaultValue || value != *defaultValue)
        put(key, value);
}

void PropertyBag::put(std::u16string_view key, engine::Value value)
{
    for (Entry& entry : entries_) {
        if (entry.first == key) {
            entry.second = std::move(value);
            return;
        }
    }
    entries_.emplace_back(key, std::move(value));
}

} // namespace vela::headless
