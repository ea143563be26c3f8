// Collects units in a small buffer and appends them to a text in few steps.
#pragma once

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace vela::engine {

// Nothing reaches the text before `flush`, so a failure half way leaves it as it was up to the buffer's size.
class TextWriter {
public:
    explicit TextWriter(std::u16string& into) noexcept : into_(into) {}
    TextWriter(const TextWriter&) = delete;
    TextWriter& operator=(const TextWriter&) = delete;

    void put(char16_t unit)
    {
        if (used_ == buffer_.size())
            flush();
        buffer_[used_++] = unit;
    }
    void put(std::u16string_view text)
    {
        if (text.size() > buffer_.size() - used_) {
            flush();
            if (text.size() > buffer_.size()) {
                into_.append(text);
                return;
            }
        }
        for (const char16_t unit : text)
            buffer_[used_++] = unit;
    }
    void repeat(char16_t unit, std::size_t count)
    {
        for (; count > 0; --count)
            put(unit);
    }
    // A whole number of at least `width` digits: 7, 2 -> "07".
    void number(int value, int width)
    {
        std::array<char16_t, 12> digits{};
        std::size_t first = digits.size();
        for (int place = 0; first > 0 && (value > 0 || place < width); ++place, value /= 10)
            digits[--first] = static_cast<char16_t>(u'0' + value % 10);
        put(std::u16string_view(digits.data() + first, digits.size() - first));
    }
    void flush()
    {
        into_.append(buffer_.data(), used_);
        used_ = 0;
    }

private:
    std::u16string& into_;
    std::array<char16_t, 128> buffer_;
    std::size_t used_ = 0;
};

} // namespace vela::engine
