// Bytes as choices and texts.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

namespace vela::fuzz {

inline void require(bool holds)
{
    if (!holds)
        std::abort();
}

class Input {
public:
    Input(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}

    [[nodiscard]] std::uint8_t byte() { return at_ < size_ ? data_[at_++] : std::uint8_t{0}; }
    [[nodiscard]] double number()
    {
        double value = 0;
        std::uint64_t bits = 0;
        for (int i = 0; i < 8; ++i)
            bits = bits << 8 | byte();
        std::memcpy(&value, &bits, sizeof value);
        return value;
    }
    // A unit a byte up to the end; 0xFF is followed by the two bytes of any unit.
    [[nodiscard]] std::u16string rest()
    {
        std::u16string text;
        while (at_ < size_) {
            const std::uint8_t first = byte();
            text.push_back(first == 0xFF ? static_cast<char16_t>(byte() << 8 | byte()) : first);
        }
        return text;
    }
    // As `rest`, up to a byte 0xFE.
    [[nodiscard]] std::u16string text()
    {
        std::u16string text;
        while (at_ < size_) {
            const std::uint8_t first = byte();
            if (first == 0xFE)
                break;
            text.push_back(first == 0xFF ? static_cast<char16_t>(byte() << 8 | byte()) : first);
        }
        return text;
    }

private:
    const std::uint8_t* data_;
    std::size_t size_;
    std::size_t at_ = 0;
};

} // namespace vela::fuzz
