// Reading and writing of the bag in memory.
#include "platform/headless/property_bag.h"

#include <algorithm>
#include <cstring>

namespace vela::headless {

namespace {

// Assigns a copy of the value, safely when an allocation fails: with GCC 12 the variant's own assignment would then
// destroy a text that was never made.
engine::Value copyOf(const engine::Value& value)
{
    return std::visit([](const auto& held) { return engine::Value(held); }, value);
}

// By length, middle and last character: good enough to tell a control's keys apart, and quick. With
// std::unordered_map, or a search in order, the row "loading a control from all its keys" of ./bench misses its goal.
std::size_t slotOf(std::u16string_view key, std::size_t slots) noexcept
{
    constexpr std::uint32_t spread = 2654435769; // 2 to the 32 by the golden section
    if (key.empty())
        return 0;
    const auto size = static_cast<std::uint32_t>(key.size());
    const std::uint32_t seen = size << 16 ^ static_cast<std::uint32_t>(key[key.size() / 2]) << 8 ^ key.back();
    return (seen * spread >> 16) & (slots - 1);
}

bool same(std::u16string_view one, std::u16string_view other) noexcept
{
    return one.size() == other.size() && std::memcmp(one.data(), other.data(), one.size() * sizeof(char16_t)) == 0;
}

constexpr std::size_t fewestSlots = 64;

} // namespace

// The slot that holds the key's entry, or the free one where it belongs.
std::size_t PropertyBag::find(std::u16string_view key) const noexcept
{
    std::size_t at = slotOf(key, slots_.size());
    while (slots_[at] != 0 && !same(entries_[slots_[at] - 1].first, key))
        at = (at + 1) & (slots_.size() - 1);
    return at;
}

// At most half of the slots are taken.
void PropertyBag::makeRoom()
{
    if (2 * (entries_.size() + 1) <= slots_.size())
        return;
    slots_ = std::vector<std::uint32_t>(std::max(fewestSlots, 2 * slots_.size()));
    for (std::size_t i = 0; i < entries_.size(); ++i)
        slots_[find(entries_[i].first)] = static_cast<std::uint32_t>(i + 1);
}

engine::Value PropertyBag::read(std::u16string_view key, const engine::Value& defaultValue)
{
    if (faults_ != nullptr)
        faults_->pass();
    const std::uint32_t entry = slots_.empty() ? 0 : slots_[find(key)];
    return copyOf(entry == 0 ? defaultValue : entries_[entry - 1].second);
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
    makeRoom();
    const std::size_t slot = find(key);
    if (slots_[slot] != 0) {
        entries_[slots_[slot] - 1].second = std::move(value);
        return;
    }
    entries_.emplace_back(std::u16string(key), std::move(value));
    slots_[slot] = static_cast<std::uint32_t>(entries_.size());
}

} // namespace vela::headless
