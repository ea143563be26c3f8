// Writing and reading the bytes of a property bag, every length checked before it is believed.
#include "activex/ole/settings_stream.h"

#include "engine/error.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>

namespace vela::activex {

namespace {

constexpr std::string_view magic("VelaSet\x1A", 8);
constexpr std::uint32_t version = 1;
constexpr int invalidFileFormat = 321;

enum class Kind : std::uint8_t { nothing, truth, whole, fraction, text, date };

[[noreturn]] void invalid(std::u16string_view reason)
{
    throw engine::Error{invalidFileFormat, u"Invalid file format: " + std::u16string(reason)};
}

std::uint32_t checkValue(std::string_view bytes) noexcept
{
    static const auto table = [] {
        std::array<std::uint32_t, 256> made{};
        for (std::uint32_t i = 0; i < made.size(); ++i) {
            std::uint32_t remainder = i;
            for (int bit = 0; bit < 8; ++bit)
                remainder = (remainder >> 1) ^ ((remainder & 1) ? 0xEDB88320u : 0u);
            made[i] = remainder;
        }
        return made;
    }();
    std::uint32_t check = 0xFFFFFFFFu;
    for (const char byte : bytes)
        check = table[(check ^ static_cast<std::uint8_t>(byte)) & 0xFFu] ^ (check >> 8);
    return ~check;
}

class Writer {
public:
    explicit Writer(std::string& into) noexcept : into_(into) {}

    template <class Number>
    void number(Number value)
    {
        for (std::size_t i = 0; i < sizeof value; ++i)
            into_ += static_cast<char>((value >> (8 * i)) & 0xFF);
    }
    void text(std::u16string_view value)
    {
        for (const char16_t unit : value)
            number(static_cast<std::uint16_t>(unit));
    }
    void value(const engine::Value& value)
    {
        std::visit([&](const auto& held) { put(held); }, value);
    }

private:
    void head(Kind kind, std::size_t size)
    {
        number(static_cast<std::uint8_t>(kind));
        number(static_cast<std::uint32_t>(size));
    }
    void put(engine::Empty) { head(Kind::nothing, 0); }
    void put(bool value)
    {
        head(Kind::truth, 1);
        number(static_cast<std::uint8_t>(value));
    }
    void put(std::int32_t value)
    {
        head(Kind::whole, sizeof value);
        number(static_cast<std::uint32_t>(value));
    }
    void put(double value)
    {
        head(Kind::fraction, sizeof value);
        number(std::bit_cast<std::uint64_t>(value));
    }
    void put(const std::u16string& value)
    {
        head(Kind::text, value.size() * sizeof(char16_t));
        text(value);
    }
    void put(engine::Date value)
    {
        head(Kind::date, sizeof value.serial);
        number(std::bit_cast<std::uint64_t>(value.serial));
    }

    std::string& into_;
};

class Reader {
public:
    explicit Reader(std::string_view bytes) noexcept : bytes_(bytes) {}

    [[nodiscard]] std::string_view take(std::size_t size)
    {
        if (size > bytes_.size())
            invalid(u"the settings end too early");
        const std::string_view taken = bytes_.substr(0, size);
        bytes_.remove_prefix(size);
        return taken;
    }
    template <class Number>
    [[nodiscard]] Number number()
    {
        const std::string_view from = take(sizeof(Number));
        Number value = 0;
        for (std::size_t i = 0; i < sizeof(Number); ++i)
            value = static_cast<Number>(
                value | static_cast<Number>(static_cast<Number>(static_cast<std::uint8_t>(from[i])) << (8 * i)));
        return value;
    }
    [[nodiscard]] std::u16string text(std::size_t units)
    {
        Reader from(take(units * sizeof(char16_t)));
        std::u16string value(units, u'\0');
        for (char16_t& unit : value)
            unit = from.number<std::uint16_t>();
        return value;
    }
    [[nodiscard]] bool atEnd() const noexcept { return bytes_.empty(); }

private:
    std::string_view bytes_;
};

void need(bool right)
{
    if (!right)
        invalid(u"a value has the wrong length");
}

// Nothing for a kind of a later version.
std::optional<engine::Value> readValue(std::uint8_t kind, std::string_view bytes)
{
    Reader from(bytes);
    switch (static_cast<Kind>(kind)) {
    case Kind::nothing: need(bytes.empty()); return engine::Empty{};
    case Kind::truth: need(bytes.size() == 1); return from.number<std::uint8_t>() != 0;
    case Kind::whole: need(bytes.size() == 4); return static_cast<std::int32_t>(from.number<std::uint32_t>());
    case Kind::fraction: need(bytes.size() == 8); return std::bit_cast<double>(from.number<std::uint64_t>());
    case Kind::text: need(bytes.size() % 2 == 0); return from.text(bytes.size() / 2);
    case Kind::date: need(bytes.size() == 8); return engine::Date{std::bit_cast<double>(from.number<std::uint64_t>())};
    }
    return std::nullopt;
}

} // namespace

engine::Value MemoryBag::read(std::u16string_view key, const engine::Value& defaultValue)
{
    const auto found =
        std::find_if(entries_.begin(), entries_.end(), [&](const auto& entry) { return entry.first == key; });
    return found == entries_.end() ? defaultValue : found->second;
}

void MemoryBag::write(std::u16string_view key, const engine::Value& value,
                      const std::optional<engine::Value>& defaultValue)
{
    if (!defaultValue || value != *defaultValue)
        entries_.emplace_back(key, value);
}

std::string encode(const MemoryBag& bag)
{
    std::string body;
    Writer entries(body);
    entries.number(static_cast<std::uint32_t>(bag.entries().size()));
    for (const auto& [key, value] : bag.entries()) {
        entries.number(static_cast<std::uint16_t>(key.size()));
        entries.text(key);
        entries.value(value);
    }
    if (body.size() > streamBodyLimit)
        engine::raise(engine::error_number::outOfMemory);
    std::string bytes(magic);
    Writer header(bytes);
    header.number(version);
    header.number(static_cast<std::uint32_t>(body.size()));
    header.number(checkValue(body));
    return bytes + body;
}

std::size_t bodyLength(std::string_view header)
{
    Reader from(header);
    if (header.size() < streamHeaderSize || from.take(magic.size()) != magic)
        invalid(u"these are no settings of this control");
    if (from.number<std::uint32_t>() != version)
        invalid(u"the settings are of a later version");
    const std::size_t length = from.number<std::uint32_t>();
    if (length > streamBodyLimit)
        invalid(u"the settings are too long");
    return length;
}

void expectFewEntries(std::string_view body)
{
    if (Reader(body).number<std::uint32_t>() > streamEntryLimit)
        invalid(u"the settings have too many entries");
}

MemoryBag decode(std::string_view header, std::string_view body)
{
    if (body.size() != bodyLength(header))
        invalid(u"the settings end too early");
    if (Reader(header.substr(16)).number<std::uint32_t>() != checkValue(body))
        invalid(u"the settings are damaged");
    expectFewEntries(body);
    Reader from(body);
    MemoryBag bag;
    for (auto left = from.number<std::uint32_t>(); left != 0; --left) {
        const std::u16string key = from.text(from.number<std::uint16_t>());
        const auto kind = from.number<std::uint8_t>();
        const auto value = readValue(kind, from.take(from.number<std::uint32_t>()));
        if (value)
            bag.write(key, *value, std::nullopt);
    }
    if (!from.atEnd())
        invalid(u"something follows the settings");
    return bag;
}

} // namespace vela::activex
