// How a family of commands joins the language: a table of names and functions.
#pragma once

#include "apps/console/script_line.h"

#include <span>
#include <string_view>

namespace vela::console {

class Session;

struct Command {
    std::u16string_view name;                   // the line's first word
    std::size_t least, most;                    // words of a line, its name counted
    void (*run)(Session& session, Words words); // words[0] is the name
    std::string_view help;                      // how it is written, a line each, then what it does; UTF-8
};
using CommandTable = std::span<const Command>;
inline constexpr std::size_t anyNumber = ~std::size_t{0}; // of words

// A command raises NotACommand before it has done anything, or engine::Error, which is printed; the script goes on.
[[nodiscard]] CommandTable runCommands() noexcept;     // settings of a run
[[nodiscard]] CommandTable formCommands() noexcept;    // new load save ...
[[nodiscard]] CommandTable userCommands() noexcept;    // focus keys click ...
[[nodiscard]] CommandTable tooltipCommands() noexcept; // tip
[[nodiscard]] CommandTable engineCommands() noexcept;  // format isnumeric ...
[[nodiscard]] CommandTable popupCommands() noexcept;   // calendar grid calculator (popup_commands.cpp)
[[nodiscard]] CommandTable pageCommands() noexcept;    // page palette store (page_commands.cpp)
[[nodiscard]] CommandTable checkCommands() noexcept;   // expect expect-error
[[nodiscard]] CommandTable helpCommands() noexcept;    // help

[[nodiscard]] CommandTable allCommands();
[[nodiscard]] const Command* findCommand(std::u16string_view name); // null: there is none

} // namespace vela::console
