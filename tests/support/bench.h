// A console session for tests in C++: scripts set the stage and act, C++ does what a script cannot, such as a host's
// handlers that do harm.
#pragma once

#include "apps/console/script_line.h"
#include "apps/console/session.h"
#include "tests/support/error_of.h"

#include <string>
#include <string_view>
#include <utility>

namespace vela::test {

using console::Field;
using console::toUtf8;
using engine::errorOf;

// What makes the field `f` one of a kind.
inline constexpr std::string_view plate =
    "set f Mask \"___-____\"\nset f TextType Mascara\nset f MaskRules \"@@@-####\"\n";
inline constexpr std::string_view date = "set f TextType Data\nset f DateFormat \"dd/mm/yyyy\"\n";
inline constexpr std::string_view number =
    "set f TextType Numerico\nset f SimbolDecExib Virgula\nset f QtdCasasDec 2\nset f AceitaNegativos True\n";
inline constexpr std::string_view amount =
    "set f TextType Numerico\nset f SimbolDecExib Virgula\nset f QtdCasasDec 2\nset f MaskToNumeric True\n";

class Bench {
    std::string said_;

public:
    explicit Bench(std::string_view script = "new f\n") { run(script); }

    // What was printed and complained of since the last run, a line each.
    std::string run(std::string_view script)
    {
        session.runScript(script);
        return std::exchange(said_, {});
    }
    [[nodiscard]] Field& field(std::u16string_view name = u"f") const { return *session.findField(name); }
    [[nodiscard]] headless::HostHandlers& on() const { return field().host.handlers(); }
    [[nodiscard]] headless::FormWindow& form() { return session.form(); }
    // Its text with the caret or the selection: "ab|c", "a[bc]".
    [[nodiscard]] std::string shows(std::u16string_view name = u"f") const
    {
        headless::EditBox& box = field(name).surface.activeBox();
        std::u16string text(box.shownText());
        const platform::Selection at = box.selection();
        const auto start = static_cast<std::size_t>(at.start);
        if (at.length > 0)
            text.insert(start + static_cast<std::size_t>(at.length), u"]");
        return toUtf8(text.insert(start, at.length > 0 ? u"[" : u"|"));
    }

    console::Session session{[this](std::string_view bytes) { said_ += bytes; },
                             [this](std::string_view bytes) { said_ += bytes; }};
};

} // namespace vela::test
