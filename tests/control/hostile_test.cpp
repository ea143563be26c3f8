// Hosts that destroy or end the control inside an event, and platforms whose operations fail.
#include "field_bench.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>

namespace vela::control {
namespace {

using Field = FieldBench::Field;

constexpr std::array eventNames{"changed notice", "Change", "Click", "KeyPress", "KeyDown", "KeyUp", "MouseOut"};

void put(Field& field, std::size_t event, const std::function<void()>& act)
{
    headless::HostHandlers& on = field.on();
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
    void (*prepare)(FieldBench&, Field&);
    void (*run)(FieldBench&, Field&);
};

void nothing(FieldBench&, Field&) {}
void asDate(FieldBench&, Field& f)
{
    date(f);
}
void asPlate(FieldBench&, Field& f)
{
    plate(f);
}
void asNumber(FieldBench&, Field& f)
{
    number(f);
    f.put(u"SimbolAgrupMilhar", 1);
    f.put(u"SimboloMonetario", u"R$ ");
    f.put(u"ShowButtonCalculadora", 1);
}
void asAmount(FieldBench& bench, Field& f)
{
    asNumber(bench, f);
    f.put(u"MaskToNumeric", 1);
}
void hovering(FieldBench& bench, Field& f)
{
    bench.form.pointTo(*f.surface);
    bench.form.pointAway();
}
void typed(FieldBench& bench, Field& f)
{
    bench.typeInto(f, u"a1,5");
    bench.key(headless::virtual_key::backspace);
    bench.key(headless::virtual_key::del);
    bench.key(headless::virtual_key::down);
    bench.key(headless::virtual_key::f2);
}
void leftWrong(FieldBench& bench, Field& f)
{
    bench.typeInto(f, u"31022024");
    bench.leave();
}
void left(FieldBench& bench, Field& f)
{
    bench.typeInto(f, u"1234,5");
    bench.leave();
}

constexpr std::array acts{
    Act{"typing in free text", nothing, typed},
    Act{"typing in a number", asNumber, typed},
    Act{"typing an amount", asAmount, typed},
    Act{"typing in a mask", asPlate, typed},
    Act{"leaving a wrong date", asDate, leftWrong},
    Act{"leaving a number", asNumber, left},
    Act{"a click", nothing, [](FieldBench& bench, Field& f) { bench.form.doubleClick(*f.surface); }},
    Act{"a tick", hovering, [](FieldBench& bench, Field&) { bench.form.tick(); }},
    Act{"a paste", asPlate,
        [](FieldBench& bench, Field& f) {
            bench.focus(f);
            bench.form.paste(u"ABC1234");
            bench.form.undo();
        }},
    Act{"a cut", nothing,
        [](FieldBench& bench, Field& f) {
            bench.typeInto(f, u"abc");
            bench.form.placeCaret(0, 2);
            bench.form.cut();
            bench.form.undo();
        }},
    Act{"a cut in a mask", asPlate,
        [](FieldBench& bench, Field& f) {
            bench.typeInto(f, u"abc");
            bench.form.placeCaret(0, 2);
            bench.form.cut();
        }},
    Act{"a put of the type", asNumber, [](FieldBench&, Field& f) { f.put(u"TextType", 2); }},
    Act{"a put of the text", asNumber, [](FieldBench&, Field& f) { f.put(u"Text", u"1234,5"); }},
    Act{"a reading of the value", asDate,
        [](FieldBench& bench, Field& f) {
            bench.typeInto(f, u"15132024");
            if (f.vela)
                static_cast<void>(f.get(u"Value")); // puts prompts back
        }},
    Act{"decimals back to none", asNumber, [](FieldBench&, Field& f) { f.put(u"QtdCasasDec", 0); }},
    Act{"loading", nothing,
        [](FieldBench& bench, Field& f) {
            headless::PropertyBag bag(&bench.machine.faults);
            bag.put(u"TextType", 2);
            bag.put(u"ValorPadrao", std::u16string(u"%date"));
            f->load(bag);
        }},
    Act{"the pop-up's text", asDate,
        [](FieldBench&, Field& f) {
            f.surface->clickButton();
            if (f.vela)
                f->putPopupText(std::u16string(u"01/02/2024"));
        }},
};

// The n-th occurrence of each event destroys the control, until the act is too short for it.
TEST(HostileHost, MayDestroyTheControlInAnyEvent)
{
    int destroyed = 0;
    for (const Act& act : acts) {
        for (std::size_t event = 0; event < eventNames.size(); ++event) {
            for (int nth = 1; nth <= 12; ++nth) {
                SCOPED_TRACE(std::string(act.name) + ", " + eventNames[event] + " " + std::to_string(nth));
                FieldBench bench;
                Field& other = bench.add(u"other");
                Field& f = bench.add(u"f");
                act.prepare(bench, f);
                int left = nth;
                put(f, event, [&] {
                    if (--left == 0)
                        bench.destroy(f);
                });
                const int error = errorOf([&] {
                    if (f.vela)
                        act.run(bench, f);
                });
                if (left > 0)
                    break;
                ++destroyed;
                EXPECT_TRUE(error == 0 || error == 91);
                bench.typeInto(other, u"x");
                EXPECT_EQ(other.shows(), "x|");
            }
        }
    }
    EXPECT_GT(destroyed, 150);
}

// The object stays, its end comes inside the event.
TEST(HostileHost, MayEndTheControlInAnyEvent)
{
    for (const Act& act : acts) {
        for (std::size_t event = 0; event < eventNames.size(); ++event) {
            SCOPED_TRACE(std::string(act.name) + ", " + eventNames[event]);
            FieldBench bench;
            Field& f = bench.add(u"f");
            act.prepare(bench, f);
            put(f, event, [&] { f->terminate(); });
            const int error = errorOf([&] { act.run(bench, f); });
            EXPECT_TRUE(error == 0 || error == 91) << error;
            if (f.on().propertyChanged || f.on().change) {
                EXPECT_TRUE(f->UpTAB()); // still an object
            }
        }
    }
}

// A failing platform: the n-th operation of each act fails, for every n. The control answers afterwards, and its
// settings are those it had or those it was given.
TEST(FailingPlatform, LeavesAControlThatAnswers)
{
    long swept = 0;
    for (const Act& act : acts) {
        for (long nth = 1; nth < 400; ++nth) {
            SCOPED_TRACE(std::string(act.name) + ", operation " + std::to_string(nth));
            FieldBench bench;
            Field& f = bench.add(u"f");
            act.prepare(bench, f);
            bench.machine.faults.failAt(nth, {75, u"Path/File access error"});
            const int error = errorOf([&] { act.run(bench, f); });
            const bool fired = bench.machine.faults.fired();
            bench.machine.faults.disarm();
            EXPECT_TRUE(error == 0 || error == 75) << error;
            if (!fired)
                break;
            ++swept;
            f.put(u"TextType", 0);
            bench.leave();
            bench.typeInto(f, u"xyz");
            EXPECT_EQ(f.shows(), "xyz|");
        }
    }
    EXPECT_GT(swept, 300);
}

} // namespace
} // namespace vela::control
