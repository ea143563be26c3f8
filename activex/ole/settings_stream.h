// A property bag in memory, and its form as bytes: what streams and storages keep of a control.
//
// The bytes, all numbers little-endian: magic "VelaSet" and 0x1A; version (32 bit, 1); length of the body in bytes
// (32 bit); check value of the body (32 bit, CRC-32). The body: count of the entries (32 bit), then each entry: length
// of the key in UTF-16 units (16 bit), the key, kind of the value (8 bit), length of the value in bytes (32 bit), the
// value. Kinds: 0 nothing, 1 truth value (8 bit), 2 whole number (32 bit), 3 fraction (64 bit), 4 text (UTF-16 units),
// 5 date (64 bit). Entries of other kinds are passed over, and keys that the control does not know are never asked for.
#pragma once

#include "platform/control_host.h"

#include <span>
#include <string>
#include <utility>
#include <vector>

namespace vela::activex {

class MemoryBag final : public platform::PropertyBag {
public:
    [[nodiscard]] engine::Value read(std::u16string_view key, const engine::Value& defaultValue) override;
    void write(std::u16string_view key, const engine::Value& value,
               const std::optional<engine::Value>& defaultValue) override;

    [[nodiscard]] std::span<const std::pair<std::u16string, engine::Value>> entries() const noexcept
    {
        return entries_;
    }

private:
    std::vector<std::pair<std::u16string, engine::Value>> entries_; // in the order of writing
};

inline constexpr std::size_t streamHeaderSize = 20;
inline constexpr std::size_t streamBodyLimit = 0x4000000; // 64 MB
inline constexpr std::size_t streamCountSize = 4;         // the count of the entries, first in the body
inline constexpr std::size_t streamEntryLimit = 4096;     // some eighty are written

[[nodiscard]] std::string encode(const MemoryBag& bag); // header and body; raises 7 beyond the limit
// The length of the body that follows these 20 bytes. Raises 321 for what is no header, names the reason.
[[nodiscard]] std::size_t bodyLength(std::string_view header);
// The first bytes of a body, so that a count that lies costs no reading. Raises 321.
void expectFewEntries(std::string_view body);
// Raises 321 with nothing taken over.
[[nodiscard]] MemoryBag decode(std::string_view header, std::string_view body);

} // namespace vela::activex
