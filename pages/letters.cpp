// Fills and selects the allowed characters.
#include "pages/letters.h"

#include <array>

namespace vela::pages {

namespace {

struct CodeRange {
    char16_t first;
    char16_t last; // inclusive
};

constexpr std::array<CodeRange, 13> ranges{{
    {32, 126},  // blank to ~
    {192, 197}, // À to Å
    {199, 202}, // Ç to Ê
    {204, 205}, // Ì Í
    {209, 213}, // Ñ to Õ
    {215, 215}, // ×
    {217, 217}, // Ù
    {224, 227}, // à to ã
    {231, 234}, // ç to ê
    {236, 237}, // ì í
    {241, 245}, // ñ to õ
    {247, 247}, // ÷
    {249, 251}, // ù to û
}};

constexpr int count()
{
    int sum = 0;
    for (const CodeRange range : ranges)
        sum += range.last - range.first + 1;
    return sum;
}
static_assert(count() == 133);

} // namespace

void fillLetters(platform::ItemList& list)
{
    for (const CodeRange range : ranges)
        for (int code = range.first; code <= range.last; ++code) {
            const char16_t letter = static_cast<char16_t>(code);
            list.add({&letter, 1});
        }
}

std::u16string selectedLetters(const platform::ItemList& list)
{
    std::u16string letters;
    for (int i = 0; i < list.count(); ++i)
        if (list.selected(i))
            letters += list.at(i);
    return letters;
}

void selectLetters(platform::ItemList& list, std::u16string_view letters)
{
    for (int i = 0; i < list.count(); ++i)
        list.select(i, letters.find(list.at(i)) != std::u16string_view::npos);
}

} // namespace vela::pages
