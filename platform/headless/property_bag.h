// The host's property bag in memory: keys in the order of their first writing.
#pragma once

#include "platform/control_host.h"
#include "platform/headless/fault.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace vela::headless {

class PropertyBag final : public platform::PropertyBag {
public:
    using Entry = std::pair<std::u16string, engine::Value>;

    explicit PropertyBag(FaultPlan* faults = nullptr) noexcept : faults_(faults) {}

    [[nodiscard]] engine::Value read(std::u16string_view key, const engine::Value& defaultValue) override;
    void write(std::u16string_view key, const engine::Value& value,
               const std::optional<engine::Value>& defaultValue) override;

    void put(std::u16string_view key, engine::Value value); // whatever the default
    [[nodiscard]] const std::vector<Entry>& entries() const noexcept { return entries_; }

private:
    [[nodiscard]] std::size_t find(std::u16string_view key) const noexcept;
    void makeRoom();

    FaultPlan* faults_;
    std::vector<Entry> entries_;
    std::vector<std::uint32_t> slots_; // a hash table of the entries' numbers from 1; 0: free
};

} // namespace vela::headless
