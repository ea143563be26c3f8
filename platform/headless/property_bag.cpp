// Reading and writing of the bag in memory.
#include "platform/headless/property_bag.h"

namespace vela::headless {

namespace {

// As copying it does, also where memory runs out in the middle: GCC 12's variant takes one with a text for never
// without a value, and destroys what it has not yet made.
engine::Value copyOf(const engine::Value& value)
{
    return std::visit([](const auto& held) { return engine::Value(held); }, value);
}

} // namespace

engine::Value PropertyBag::read(std::u16string_view key, const engine::Value& defaultValue)
{
    if (faults_ != nullptr)
        faults_->pass();
    for (std::size_t tried = 0; tried < entries_.size(); ++tried) {
        const std::size_t at = (hint_ + tried) % entries_.size();
        if (entries_[at].first == key) {
            hint_ = at + 1;
            return copyOf(entries_[at].second);
        }
    }
    return copyOf(defaultValue);
}

void PropertyBag::write(std::u16string_view key, const engine::Value& value,
                        const std::optional<engine::Value>& defaultValue)
{
    if (faults_ != nullptr)
        faults_->pass();
    if (!defaultValue || value != *defaultValue)
        put(key, copyOf(value));
}

void PropertyBag::put(std::u16string_view key, engine::Value value)
{
    for (Entry& entry : entries_) {
        if (entry.first == key) {
            entry.second = std::move(value);
            return;
        }
    }
    entries_.emplace_back(std::u16string(key), std::move(value));
}

} // namespace vela::headless
