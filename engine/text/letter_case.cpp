// The case mapping of UTF-16 units, and the capitals of Portuguese names.
#include "engine/text/letter_case.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace vela::engine {
namespace {

constexpr char16_t smallYDiaeresis = 0x00FF;
constexpr char16_t capitalYDiaeresis = 0x0178;

using Latin1Table = std::array<char16_t, 256>;

constexpr bool isLatin1Small(char16_t unit) noexcept
{
    return (unit >= u'a' && unit <= u'z') || (unit >= 0xE0 && unit <= 0xFE && unit != 0xF7);
}

constexpr Latin1Table makeLatin1(bool toUpper) noexcept
{
    Latin1Table table{};
    for (std::size_t i = 0; i < table.size(); ++i) {
        const auto unit = static_cast<char16_t>(i);
        table[unit] = unit;
        if (toUpper && isLatin1Small(unit))
            table[unit] = static_cast<char16_t>(unit - 0x20);
        else if (!toUpper && isLatin1Small(static_cast<char16_t>(unit + 0x20)))
            table[unit] = static_cast<char16_t>(unit + 0x20);
    }
    if (toUpper)
        table[smallYDiaeresis] = capitalYDiaeresis;
    return table;
}

constexpr Latin1Table latin1Upper = makeLatin1(true);
constexpr Latin1Table latin1Lower = makeLatin1(false);

// A run of small letters whose capitals lie at a fixed distance below; `step` 2: every second unit from `first` on.
struct SmallRun {
    char16_t first;
    char16_t last;
    char16_t distance;
    char16_t step;
};
constexpr std::array smallRuns = {
    SmallRun{0x0101, 0x012F, 1, 2},  SmallRun{0x0133, 0x0137, 1, 2},  SmallRun{0x013A, 0x0148, 1, 2},
    SmallRun{0x014B, 0x0177, 1, 2},  SmallRun{0x017A, 0x017E, 1, 2},  SmallRun{0x03AC, 0x03AC, 38, 1},
    SmallRun{0x03AD, 0x03AF, 37, 1}, SmallRun{0x03B1, 0x03C1, 32, 1}, SmallRun{0x03C3, 0x03CB, 32, 1},
    SmallRun{0x03CC, 0x03CC, 64, 1}, SmallRun{0x03CD, 0x03CE, 63, 1}, SmallRun{0x0430, 0x044F, 32, 1},
    SmallRun{0x0450, 0x045F, 80, 1},
};

char16_t upperBeyondLatin1(char16_t unit) noexcept
{
    for (const auto& run : smallRuns)
        if (unit >= run.first && unit <= run.last && (unit - run.first) % run.step == 0)
            return static_cast<char16_t>(unit - run.distance);
    return unit;
}

char16_t lowerBeyondLatin1(char16_t unit) noexcept
{
    if (unit == capitalYDiaeresis)
        return smallYDiaeresis;
    for (const auto& run : smallRuns) {
        const int small = unit + run.distance;
        if (small >= run.first && small <= run.last && (small - run.first) % run.step == 0)
            return static_cast<char16_t>(small);
    }
    return unit;
}

inline char16_t lowered(char16_t unit) noexcept
{
    return unit < latin1Lower.size() ? latin1Lower[unit] : lowerBeyondLatin1(unit);
}

// A letter of a text in small letters, by plain comparison of code units.
// Oddity: for proper case the division sign counts as a letter and "ý", "þ" and "ÿ" do not; stored names would be
// written anew.
constexpr bool isWordLetter(char16_t unit) noexcept
{
    return (unit >= u'a' && unit <= u'z') || (unit >= 0xE0 && unit <= 0xFC);
}

// Up to three small letters as one number, for comparison at once.
constexpr std::uint64_t packed(std::u16string_view letters) noexcept
{
    std::uint64_t number = 0;
    for (const char16_t unit : letters)
        number = number << 16 | unit;
    return number;
}

constexpr bool isParticle(std::uint64_t word) noexcept
{
    switch (word) {
    case packed(u"di"):
    case packed(u"de"):
    case packed(u"da"):
    case packed(u"do"):
    case packed(u"du"):
    case packed(u"ou"):
    case packed(u"com"):
    case packed(u"das"):
    case packed(u"dos"):
    case packed(u"a"):
    case packed(u"e"):
    case packed(u"o"):
    case packed(u"i"):
    case packed(u"u"):
    case packed(u"um"):
    case packed(u"em"): return true;
    default: return false;
    }
}

// Whether the word that begins at `at` (its letters still in any case) stays small: one of the particles, with a
// blank on both sides.
bool startsParticle(std::u16string_view text, std::size_t at) noexcept
{
    if (at == 0 || text[at - 1] != u' ')
        return false;
    std::uint64_t word = 0;
    const std::size_t end = std::min(text.size(), at + 4); // three letters and the blank
    for (std::size_t i = at; i < end; ++i) {
        if (text[i] == u' ')
            return isParticle(word);
        word = word << 16 | lowered(text[i]);
    }
    return false;
}

std::u16string mapped(std::u16string_view text, char16_t (*map)(char16_t) noexcept)
{
    std::u16string result(text);
    std::ranges::transform(result, result.begin(), map);
    return result;
}

} // namespace

char16_t upperCase(char16_t unit) noexcept
{
    return unit < latin1Upper.size() ? latin1Upper[unit] : upperBeyondLatin1(unit);
}

char16_t lowerCase(char16_t unit) noexcept
{
    return lowered(unit);
}

std::u16string upperCase(std::u16string_view text)
{
    return mapped(text, upperCase);
}

std::u16string lowerCase(std::u16string_view text)
{
    return mapped(text, lowerCase);
}

bool startsWithIgnoringCase(std::u16string_view text, std::u16string_view start) noexcept
{
    return std::ranges::equal(text.substr(0, start.size()), start, {}, lowered, lowered);
}

bool containsIgnoringCase(std::u16string_view text, std::u16string_view part) noexcept
{
    if (part.size() == 1) {
        const char16_t sought = lowered(part.front());
        return std::ranges::any_of(text, [sought](char16_t unit) { return lowered(unit) == sought; });
    }
    const auto same = [](char16_t a, char16_t b) { return lowered(a) == lowered(b); };
    return part.empty() || std::search(text.begin(), text.end(), part.begin(), part.end(), same) != text.end();
}

void properCase(std::u16string_view text, std::u16string& into)
{
    into.resize(text.size());
    char16_t* out = into.data();
    bool wordStart = true;
    for (std::size_t i = 0; i < text.size(); ++i) {
        char16_t unit = lowered(text[i]);
        const bool letter = isWordLetter(unit);
        if (letter && wordStart && !startsParticle(text, i))
            unit = latin1Upper[unit];
        out[i] = unit;
        wordStart = !letter;
    }
}

std::u16string properCase(std::u16string_view text)
{
    std::u16string result;
    properCase(text, result);
    return result;
}

} // namespace vela::engine
