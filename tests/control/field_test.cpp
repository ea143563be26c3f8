// What transcripts cannot show of a field's life: handlers that act, log records that fail, allocations, the layout.
#include "tests/support/allocations.h"
#include "tests/support/bench.h"

#include "control/layout.h"
#include "tooltip/about_box.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace vela::test {
namespace {

using engine::Value;

// A handler that puts a text while the control is writing one of its own.
TEST(Amount, PutByAHandlerIsFormattedInsideAWriteOfTheControl)
{
    Bench bench;
    bench.run(amount);
    bench.run("set f SimboloMonetario \";%\"\nfocus f\nkeys \"1\"\n");
    bool once = true;
    bench.on().change = [&] {
        if (std::exchange(once, false))
            control::putProperty(bench.field().control, u"Text", Value(std::u16string(u"999")));
    };
    bench.run("focus none\n"); // writes the symbol
    EXPECT_EQ(toUtf8(bench.field().surface.activeBox().shownText()), "9,99");
}

// When a key's text cannot be written, and the log record of that cannot either, nothing more of the key happens.
TEST(Log, ThatCannotBeWrittenReachesTheCaller)
{
    Bench bench;
    bench.run("set f Mask \"____\"\nset f TextType Mascara\ntrace events log\nfocus f\n");
    int reached = 0;
    for (long nth = 1; nth <= 20; ++nth) {
        bench.field().surface.activeBox().failNext(headless::BoxOperation::putText, {5, u"first"});
        bench.session.machine().faults.failAt(nth, {70, u"Permission denied"});
        const std::string said = bench.run("keys \"1\"\n");
        bench.session.machine().faults.disarm();
        reached += said.starts_with("event f KeyDown 49 0\nerror 70 ") ? 1 : 0;
    }
    EXPECT_EQ(reached, 1);
    EXPECT_EQ(bench.shows(), "|____");
}

TEST(Disabled, InsideAnEventIsLeftAtOnceAndTypesNoMore)
{
    const auto shownAfter = [](auto arrange) {
        Bench bench("new f\nfocus f\n");
        arrange(bench.on(), [&bench] { control::putProperty(bench.field().control, u"Enabled", Value(false)); });
        bench.run("keys \"ab\"\n");
        EXPECT_EQ(bench.form().focused(), nullptr);
        bench.run("focus f\n");
        EXPECT_EQ(bench.form().focused(), nullptr);
        return bench.shows();
    };
    EXPECT_EQ(shownAfter([](auto& on, auto off) { on.keyDown = [off](auto&, auto&) { off(); }; }), "|");
    EXPECT_EQ(shownAfter([](auto& on, auto off) { on.keyPress = [off](auto&) { off(); }; }), "|");
    EXPECT_EQ(shownAfter([](auto& on, auto off) { on.change = [off] { off(); }; }), "a|");
    EXPECT_EQ(shownAfter([](auto& on, auto off) { on.keyUp = [off](auto&, auto&) { off(); }; }), "a|");
}

TEST(Keys, AllocateNothingOnceWarm)
{
    const struct {
        std::string_view prepare;
        const char16_t* keys;
        int caret;
    } rows[] = {
        {"set f Mask \"___.___.___-__\"\nset f TextType Mascara\n", u"12345678901", 0},
        {date, u"29022024", 0},
        {number, u"12345678,90", 0},
        {amount, u"123456789", 4},
    };
    for (const auto& row : rows) {
        Bench bench("new f\ntrace none\nfocus f\n");
        bench.run(row.prepare);
        const auto typed = [&] {
            control::putProperty(bench.field().control, u"Text", Value(std::u16string()));
            bench.form().placeCaret(row.caret, 0);
            const long before = allocationCount();
            for (const char16_t* key = row.keys; *key != 0; ++key)
                bench.form().key(headless::keyOf(*key));
            bench.form().key(headless::keyOf(u'x'));
            bench.form().key(headless::namedKey(headless::virtual_key::backspace));
            return allocationCount() - before;
        };
        static_cast<void>(typed());
        EXPECT_EQ(typed(), 0) << row.prepare;
    }
}

TEST(Layout, KeepsItsPartsInside)
{
    using engine::RectPixels;
    const struct {
        const char* rule;
        control::LayoutRequest request;
        RectPixels edit;
        RectPixels button;
        int radius;
    } rows[] = {
        {"a box with its own border", {{0, 0, 121, 21}, 96}, {0, 0, 121, 21}, {}, 0},
        {"a button at the right edge",
         {.client = {0, 0, 121, 21}, .dpi = 96, .button = true},
         {0, 0, 104, 21},
         {104, 0, 17, 21},
         0},
        {"a drawn border", {.client = {0, 0, 121, 21}, .dpi = 96, .ownBorder = true}, {2, 2, 117, 17}, {}, 0},
        {"round corners at twice the size",
         {.client = {0, 0, 242, 42}, .dpi = 192, .ownBorder = true, .rounded = true},
         {4, 4, 234, 34},
         {},
         8},
        {"border and button",
         {.client = {0, 0, 121, 21}, .dpi = 96, .ownBorder = true, .button = true},
         {2, 2, 101, 17},
         {103, 1, 17, 19},
         0},
        {"too narrow for its button",
         {.client = {0, 0, 10, 1}, .dpi = 96, .ownBorder = true, .button = true},
         {2, 2, 0, 0},
         {1, 1, 8, 0},
         0},
        {"nothing at all", {.client = {0, 0, 0, 0}, .dpi = 96, .button = true}, {0, 0, 0, 0}, {0, 0, 0, 0}, 0},
    };
    for (const auto& row : rows) {
        const platform::SurfaceLayout layout = control::arrangeField(row.request);
        EXPECT_EQ(layout.edit, row.edit) << row.rule;
        EXPECT_EQ(layout.button, row.button) << row.rule;
        EXPECT_EQ(layout.cornerRadius, row.radius) << row.rule;
    }
}

TEST(Look, FollowsAppearanceStyleAndHover)
{
    Bench bench;
    const Field& f = bench.field();
    const auto ownBorder = [&](const char* put) {
        bench.run(put);
        return f.surface.look().ownBorder;
    };
    EXPECT_FALSE(ownBorder(""));
    EXPECT_TRUE(ownBorder("set f Appearance 0\n"));
    EXPECT_TRUE(ownBorder("set f Appearance 5\n")); // shown as it was
    EXPECT_TRUE(ownBorder("set f Appearance 1\nset f BorderStyle XP\n"));
    EXPECT_GT(f.surface.layout().cornerRadius, 0);
    bench.run("set f BorderColor_MouseMove &H00000001\nset f BorderColorLostfocus &H00000002\nmouse f\n");
    EXPECT_EQ(f.surface.look().border.value, 1U);
    bench.run("mouse none\ntick\n");
    EXPECT_EQ(f.surface.look().border.value, 2U);
    EXPECT_FALSE(f.surface.hoverTimerEnabled());
}

// At run time the colour is first seen when the field is left.
TEST(Look, TheBorderOfAFieldThatIsNotEntered)
{
    for (const bool run : {false, true}) {
        Bench bench(run ? "new f\n" : "new f design\n");
        bench.run("set f Appearance 0\nset f BorderColorLostfocus &H000000FF\n");
        EXPECT_EQ(bench.field().surface.look().border.value, run ? 0x00FFFFFFU : 0xFFU);
        bench.run("focus f\nfocus none\n");
        EXPECT_EQ(bench.field().surface.look().border.value, 0xFFU);
    }
}

TEST(Property, TableIsComplete)
{
    for (const control::Property& row : control::properties()) {
        EXPECT_EQ(control::findProperty(row.name), &row);
        EXPECT_EQ(std::ranges::count(control::properties(), row.dispid, &control::Property::dispid), 1)
            << toUtf8(row.name);
        EXPECT_EQ(row.value.put == nullptr, row.access() == control::Access::read) << toUtf8(row.name);
        EXPECT_EQ(row.value.save != nullptr, row.saved.read > 0 && row.saved.written > 0) << toUtf8(row.name);
    }
}

TEST(AboutBox, TheRevisionHasFourDigitsAtLeast)
{
    EXPECT_EQ(tooltip::aboutText({2, 1, 37}), u"Vela - Compilação 2.1.0037");
    EXPECT_EQ(tooltip::aboutText({10, 12, 12345}), u"Vela - Compilação 10.12.12345");
}

} // namespace
} // namespace vela::test
