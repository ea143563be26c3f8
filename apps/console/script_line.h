// One line of a script: its words with their quotes and escapes read, and what makes a line not a command.
#pragma once

#include "engine/text/utf8.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vela::console {

// Thrown for a line that is not a command of the language; nothing of it has been carried out.
struct NotACommand {
    std::string why; // UTF-8
};

// `KEY="some text"` is bare "KEY=" with the text behind it; `"text"` has an empty bare part; `#2024-02-29 14:05:33#`
// is one bare word, also behind "KEY=".
struct Word {
    std::u16string bare;
    std::u16string text; // of the quoted part
    bool quoted = false;

    [[nodiscard]] bool is(std::u16string_view word) const { return !quoted && bare == word; }
    // A text in quotes alone.
    [[nodiscard]] bool isText() const { return quoted && bare.empty(); }
    friend bool operator==(const Word&, const Word&) = default;
};
using Words = std::span<const Word>;

// The names of a table's rows, to offer the nearest of them.
template <class Rows>
[[nodiscard]] std::vector<std::u16string_view> namesOf(const Rows& rows)
{
    std::vector<std::u16string_view> names;
    for (const auto& row : rows)
        names.push_back(row.name);
    return names;
}

// Splits a line (UTF-8, without its line end) at blanks and drops its comment. Raises NotACommand for a quote that is
// not closed, an unknown escape, or bytes that are no UTF-8.
[[nodiscard]] std::vector<Word> splitWords(std::string_view line);

[[noreturn]] void notACommand(std::string why);
// Names the word that is wrong: `no such control: "pric"`.
[[noreturn]] void notACommand(std::string_view why, const Word& word);
// And offers the one it is nearest to: `no such control: "pric"; did you mean "price"?`.
[[noreturn]] void notACommand(std::string_view why, const Word& word, const std::vector<std::u16string_view>& known);

// The readings that commands share; each raises NotACommand when the word is something else.
[[nodiscard]] const std::u16string& textOf(const Word& word);        // of a word in quotes
[[nodiscard]] int integerOf(const Word& word);                       // "-12"; within 32 bits
void requireWords(Words words, std::size_t least, std::size_t most); // the command's own name counts

[[nodiscard]] std::u16string fromUtf8(std::string_view bytes); // raises NotACommand
using engine::toUtf8;

} // namespace vela::console
