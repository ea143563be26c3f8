// Hosts that destroy or end the control inside an event.
#include "platform/headless/property_bag.h"
#include "tests/support/bench.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>

namespace vela::test {
namespace {

constexpr std::array eventNames{"changed notice", "Change", "Click", "KeyPress", "KeyDown", "KeyUp", "MouseOut"};

void put(Bench& bench, std::size_t event, const std::function<void()>& act)
{
    headless::HostHandlers& on = bench.on();
    switch (event) {
    case 0: on.propertyChanged = [act](std::u16string_view) { act(); }; break;
    case 1: on.change = act; break;
    case 2: on.click = act; break;
    case 3: on.keyPress = [act](std::int16_t&) { act(); }; break;
    case 4: on.keyDown = [act](std::int16_t&, std::int16_t&) { act(); }; break;
    case 5: on.keyUp = [act](std::int16_t&, std::int16_t&) { act(); }; break;
    default: on.mouseOut = act; break;
    }
}

// What a person and a host may be doing when it happens.
struct Act {
    const char* name;
    std::string_view prepare;
    std::string_view script;
    void (*code)(control::Vela&) = nullptr; // after the script
};

constexpr std::string_view money =
    "set f TextType Numerico\nset f SimbolDecExib Virgula\nset f QtdCasasDec 2\nset f AceitaNegativos True\n"
    "set f SimbolAgrupMilhar Ponto\nset f SimboloMonetario \"R$ \"\nset f ShowButtonCalculadora True\n";
constexpr std::string_view typing = "focus f\nkeys \"a1,5{BACKSPACE}{DELETE}{DOWN}{F2}\"\n";

constexpr std::array acts{
    Act{"typing in free text", "", typing},
    Act{"typing in a number", money, typing},
    Act{"typing an amount", amount, typing},
    Act{"typing in a mask", plate, typing},
    Act{"leaving a wrong date", date, "focus f\nkeys \"31022024\"\nfocus none\n"},
    Act{"leaving a number", money, "focus f\nkeys \"1234,5\"\nfocus none\n"},
    Act{"a click", "", "dblclick f\n"},
    Act{"a tick", "mouse f\nmouse none\n", "tick\n"},
    Act{"a paste", plate, "focus f\npaste-rules \"ABC1234\"\nkeys \"{^Z}\"\n"},
    Act{"a cut", "", "focus f\nkeys \"abc\"\ncaret 0 2\nkeys \"{^X}{^Z}\"\n"},
    Act{"a cut in a mask", plate, "focus f\nkeys \"abc\"\ncaret 0 2\nkeys \"{^X}\"\n"},
    Act{"a put of the type", money, "set f TextType Data\n"},
    Act{"a put of the text", money, "set f Text \"1234,5\"\n"},
    Act{"decimals back to none", money, "set f QtdCasasDec 0\n"},
    Act{"a reading of the value", date, "focus f\nkeys \"15132024\"\n", // which puts prompts back
        [](control::Vela& f) { static_cast<void>(control::getProperty(f, u"Value")); }},
    Act{"loading", "", "",
        [](control::Vela& f) {
            headless::PropertyBag bag;
            bag.put(u"TextType", 2);
            bag.put(u"ValorPadrao", std::u16string(u"%date"));
            f.load(bag);
        }},
    Act{"the pop-up's text", date, "button f\n",
        [](control::Vela& f) { f.putPopupText(std::u16string(u"01/02/2024")); }},
};

void expectNoErrorBut91(Bench& bench, const Act& act)
{
    const std::string said = bench.run(act.script);
    for (std::size_t at = said.find("error "); at != std::string::npos; at = said.find("error ", at + 1))
        EXPECT_EQ(said.substr(at, 9), "error 91 ") << said;
    Field* const field = bench.session.findField(u"f");
    if (!field || !act.code)
        return;
    const int error = errorOf([&] {
        act.code(field->control);
        return 0;
    });
    EXPECT_TRUE(error == 0 || error == 91) << error;
}

// The n-th occurrence of each event destroys the control, until the act is too short for it.
TEST(HostileHost, MayDestroyTheControlInAnyEvent)
{
    int destroyed = 0;
    for (const Act& act : acts)
        for (std::size_t event = 0; event < eventNames.size(); ++event)
            for (int nth = 1; nth <= 12; ++nth) {
                SCOPED_TRACE(std::string(act.name) + ", " + eventNames[event] + " " + std::to_string(nth));
                Bench bench("new other\nnew f\n");
                bench.run(act.prepare);
                int left = nth;
                put(bench, event, [&] {
                    if (--left == 0)
                        bench.session.destroyField(bench.field());
                });
                expectNoErrorBut91(bench, act);
                if (left > 0)
                    break;
                ++destroyed;
                bench.run("focus other\nkeys \"x\"\n");
                EXPECT_EQ(bench.shows(u"other"), "x|");
            }
    EXPECT_GT(destroyed, 150);
}

// The object stays, its end comes inside the event.
TEST(HostileHost, MayEndTheControlInAnyEvent)
{
    for (const Act& act : acts)
        for (std::size_t event = 0; event < eventNames.size(); ++event) {
            SCOPED_TRACE(std::string(act.name) + ", " + eventNames[event]);
            Bench bench;
            bench.run(act.prepare);
            put(bench, event, [&] { bench.field().control.terminate(); });
            expectNoErrorBut91(bench, act);
            EXPECT_EQ(control::getProperty(bench.field().control, u"UpTAB"), engine::Value(true)); // still an object
        }
}

} // namespace
} // namespace vela::test
