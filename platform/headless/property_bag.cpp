// Reading and writing of the bag in memory.
#include "platform/headless/property_bag.h"

#include <algorithm>

namespace vela::headless {

namespace {

// As copying it does, also where memory runs out in the middle: GCC 12's variant takes one with a text for never
// without a value, and destroys what it has not yet made.
engine::Value copyOf(const engine::Value& value)
{
    return std::visit([](const auto& held) { return engine::Value(held); }, value);
}

// Tells keys apart at a glance, by length, middle and last character; what looks equal is compared.
std::uint32_t glanceAt(std::u16string_view key) noexcept
{
    if (key.empty())
        return 0;
    const auto size = static_cast<std::uint32_t>(key.size());
    return size << 16 ^ static_cast<std::uint32_t>(key[key.size() / 2]) << 8 ^ key.back();
}

} // namespace

std::size_t PropertyBag::find(std::u16string_view key) const noexcept
{
    const std::uint32_t glance = glanceAt(key);
    const auto in = [&](std::size_t from, std::size_t end) {
        const auto stop = glances_.begin() + static_cast<std::ptrdiff_t>(end);
        for (auto at = glances_.begin() + static_cast<std::ptrdiff_t>(from);; ++at) {
            at = std::find(at, stop, glance);
            if (at == stop)
                return entries_.size();
            const auto index = static_cast<std::size_t>(at - glances_.begin());
            if (entries_[index].first == key)
                return index;
        }
    };
    const std::size_t start = std::min(hint_, glances_.size()); // keys are mostly asked for in order
    const std::size_t found = in(start, glances_.size());
    return found < entries_.size() ? found : in(0, start);
}

engine::Value PropertyBag::read(std::u16string_view key, const engine::Value& defaultValue)
{
    if (faults_ != nullptr)
        faults_->pass();
    const std::size_t at = find(key);
    if (at == entries_.size())
        return copyOf(defaultValue);
    hint_ = at + 1;
    return copyOf(entries_[at].second);
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
    if (const std::size_t at = find(key); at < entries_.size()) {
        entries_[at].second = std::move(value);
        return;
    }
    if (glances_.size() == glances_.capacity())
        glances_.reserve(2 * glances_.size() + 16); // so that nothing fails between the two
    entries_.emplace_back(std::u16string(key), std::move(value));
    glances_.push_back(glanceAt(key));
}

} // namespace vela::headless
