// Reading and printing of values.
#include "apps/console/value_text.h"

#include "control/property_table.h"
#include "engine/text/calendar_date.h"
#include "engine/text/characters.h"
#include "engine/text/decimal_text.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace vela::console {

namespace {

using engine::isDigit;
using engine::Value;

constexpr double largestPlain = 1e15; // from here on numbers print with an exponent

std::size_t skipDigits(std::string_view text, std::size_t at)
{
    while (at < text.size() && isDigit(text[at]))
        ++at;
    return at;
}

// -?D+(.D+)?([eE][+-]?D+)?
bool looksLikeNumber(std::string_view text)
{
    const std::size_t start = text.substr(0, 1) == "-" ? 1 : 0;
    std::size_t at = skipDigits(text, start);
    if (at == start)
        return false;
    if (at < text.size() && text[at] == '.') {
        const std::size_t end = skipDigits(text, at + 1);
        if (end == at + 1)
            return false;
        at = end;
    }
    if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
        ++at;
        if (at < text.size() && (text[at] == '+' || text[at] == '-'))
            ++at;
        const std::size_t end = skipDigits(text, at);
        if (end == at)
            return false;
        at = end;
    }
    return at == text.size();
}

std::optional<Value> tryNumber(std::string_view text)
{
    if (!looksLikeNumber(text))
        return std::nullopt;
    const char* const end = text.data() + text.size();
    std::int32_t whole = 0;
    if (const auto read = std::from_chars(text.data(), end, whole); read.ec == std::errc() && read.ptr == end)
        return whole;
    double number = 0;
    const auto read = std::from_chars(text.data(), end, number);
    if (read.ec != std::errc() || read.ptr != end)
        return std::nullopt;
    return number;
}

std::optional<engine::Colour> tryColour(std::string_view text)
{
    if (text.size() != 10 || text.substr(0, 2) != "&H")
        return std::nullopt;
    for (const char c : text.substr(2))
        if (!isDigit(c) && (c < 'A' || c > 'F'))
            return std::nullopt;
    std::uint32_t value = 0;
    std::from_chars(text.data() + 2, text.data() + text.size(), value, 16);
    return engine::Colour{value};
}

int twoDigits(std::string_view text, std::size_t at)
{
    return (text[at] - '0') * 10 + (text[at + 1] - '0');
}

// "#2024-02-29#" or with " 14:05:33"; the splitter has seen to the form.
std::optional<Value> tryDate(std::string_view text)
{
    if (text.empty() || text.front() != '#')
        return std::nullopt;
    if (text.size() != 12 && text.size() != 21)
        return std::nullopt;
    const engine::CivilDate date{twoDigits(text, 1) * 100 + twoDigits(text, 3), twoDigits(text, 6), twoDigits(text, 9)};
    engine::TimeOfDay time;
    if (text.size() == 21)
        time = {twoDigits(text, 12), twoDigits(text, 15), twoDigits(text, 18)};
    if (!engine::isValid(date) || time.hour > 23 || time.minute > 59 || time.second > 59)
        return std::nullopt;
    return engine::makeDate(date, time);
}

std::optional<Value> tryMember(std::u16string_view name, const engine::Enumeration* enumeration)
{
    if (enumeration != nullptr)
        for (const engine::Enumerator& member : enumeration->members)
            if (member.name == name)
                return member.value;
    return std::nullopt;
}

std::string padded(int number, std::size_t digits)
{
    return toUtf8(engine::decimalText(number, digits));
}

std::string printedNumber(double number)
{
    if (number == 0)
        return "0"; // a negative zero is zero
    char buffer[400];
    const bool plain = std::fabs(number) < largestPlain;
    const auto written = std::to_chars(buffer, buffer + sizeof buffer, number,
                                       plain ? std::chars_format::fixed : std::chars_format::scientific);
    return {buffer, written.ptr};
}

std::string printedDate(engine::Date date)
{
    const engine::TimeOfDay time = engine::timeOfDay(date);
    const std::optional<engine::CivilDate> day = engine::civilDate(date);
    if (!day)
        return printedNumber(date.serial); // no calendar has such a day
    std::string text = "#" + padded(day->year, 4) + "-" + padded(day->month, 2) + "-" + padded(day->day, 2);
    if (time != engine::TimeOfDay{})
        text += " " + padded(time.hour, 2) + ":" + padded(time.minute, 2) + ":" + padded(time.second, 2);
    return text + "#";
}

bool isHighSurrogate(char16_t unit) noexcept
{
    return (unit & 0xFC00) == 0xD800;
}

bool isLowSurrogate(char16_t unit) noexcept
{
    return (unit & 0xFC00) == 0xDC00;
}

char16_t escapeLetter(char16_t unit) noexcept // 0: none of its own
{
    switch (unit) {
    case u'"':
    case u'\\': return unit;
    case u'\n': return u'n';
    case u'\r': return u'r';
    case u'\t': return u't';
    default: return 0;
    }
}

void appendNumbered(std::u16string& into, char16_t unit) // 0x1F -> \u001F
{
    constexpr std::u16string_view hex = u"0123456789ABCDEF";
    into += u"\\u";
    for (const int shift : {12, 8, 4, 0})
        into += hex[(unit >> shift) & 15U];
}

struct Printer {
    std::string operator()(engine::Empty) const { return "Empty"; }
    std::string operator()(bool value) const { return printed(value); }
    std::string operator()(std::int32_t value) const { return std::to_string(value); }
    std::string operator()(double value) const { return printedNumber(value); }
    std::string operator()(const std::u16string& value) const { return quoted(value); }
    std::string operator()(engine::Date value) const { return printedDate(value); }
};

} // namespace

std::optional<Value> tryValueOf(const Word& word, const engine::Enumeration* enumeration)
{
    if (word.isText())
        return word.text;
    if (word.quoted)
        return std::nullopt;
    if (word.bare == u"True" || word.bare == u"False")
        return word.bare == u"True";
    if (word.bare == u"Empty")
        return engine::Empty{};
    const std::string text = toUtf8(word.bare);
    if (const auto colour = tryColour(text))
        return static_cast<std::int32_t>(colour->value);
    if (auto date = tryDate(text))
        return date;
    if (auto member = tryMember(word.bare, enumeration))
        return member;
    return tryNumber(text);
}

Value valueOf(const Word& word, const engine::Enumeration* enumeration)
{
    if (auto value = tryValueOf(word, enumeration))
        return *std::move(value);
    if (enumeration != nullptr)
        notACommand("no value", word, namesOf(enumeration->members));
    notACommand("no value", word, {u"True", u"False", u"Empty"});
}

engine::Colour colourOf(const Word& word)
{
    if (const auto colour = word.quoted ? std::nullopt : tryColour(toUtf8(word.bare)))
        return *colour;
    notACommand("a colour such as &H00FF00FF is wanted", word);
}

std::string printed(const Value& value)
{
    return std::visit(Printer{}, value);
}

std::string printed(engine::Colour colour)
{
    char buffer[8];
    const auto written = std::to_chars(buffer, buffer + sizeof buffer, colour.value, 16);
    std::string digits(buffer, written.ptr);
    for (char& digit : digits)
        if (digit >= 'a')
            digit = static_cast<char>(digit - 'a' + 'A');
    return "&H" + std::string(8 - digits.size(), '0') + digits;
}

std::string printed(bool value)
{
    return value ? "True" : "False";
}

std::string printed(const engine::Error& error)
{
    return "error " + std::to_string(error.number) + " " + quoted(error.source) + " " + quoted(error.description);
}

// A lone surrogate has no UTF-8: it is escaped, so that the text reads back as it was.
std::string quoted(std::u16string_view text)
{
    std::u16string escaped = u"\"";
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char16_t unit = text[at];
        const bool pair = isHighSurrogate(unit) && at + 1 < text.size() && isLowSurrogate(text[at + 1]);
        if (pair)
            escaped.append(text.substr(at++, 2));
        else if (const char16_t letter = escapeLetter(unit))
            escaped.append({u'\\', letter});
        else if (unit < 0x20 || isHighSurrogate(unit) || isLowSurrogate(unit))
            appendNumbered(escaped, unit);
        else
            escaped += unit;
    }
    return toUtf8(escaped + u"\"");
}

namespace {

bool isColour(std::u16string_view property) noexcept
{
    const control::Property* const row = control::findProperty(property);
    return row != nullptr && row->type() == control::PropertyType::colour;
}

} // namespace

std::string printedOf(std::u16string_view property, const engine::Value& value)
{
    const auto* const number = std::get_if<std::int32_t>(&value);
    if (number != nullptr && isColour(property))
        return printed(engine::Colour{static_cast<std::uint32_t>(*number)});
    return printed(value);
}

engine::Value valueFor(std::u16string_view property, const Word& word)
{
    const control::Property* const row = control::findProperty(property);
    return valueOf(word, row != nullptr ? control::enumerationOf(*row) : nullptr);
}

} // namespace vela::console
