// Entering, typing, leaving: what transcripts cannot show.
#include "field_bench.h"

#include "control/layout.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

namespace {

long allocations = 0; // of the whole program

void* allocate(std::size_t size)
{
    ++allocations;
    if (void* memory = std::malloc(size))
        return memory;
    throw std::bad_alloc();
}

} // namespace

void* operator new(std::size_t size)
{
    return allocate(size);
}
void operator delete(void* memory) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

namespace vela::control {
namespace {

using Field = FieldBench::Field;

TEST(Amount, IsFormattedForPersonsAndPutsNotForLoadingAndLeaving)
{
    FieldBench bench;
    Field& f = bench.add();
    amount(f);
    f.put(u"SimboloMonetario", u";%");
    f.put(u"Text", u"1234");
    EXPECT_EQ(f.shows(), "1|2,34"); // as far from the end as the caret was: at the start of four characters
    bench.typeInto(f, u"5");
    EXPECT_EQ(f.shows(), "123,45|");
    static_cast<void>(bench.seen());
    bench.leave();
    EXPECT_EQ(bench.seen(), "Change; focus none"); // the symbol: one change, no new format
    EXPECT_EQ(f.shows(), "|123,45%");

    headless::PropertyBag bag;
    bag.put(u"TextType", 1);
    bag.put(u"MaskToNumeric", true);
    bag.put(u"QtdCasasDec", 2);
    bag.put(u"Text", std::u16string(u"1234"));
    Field& loaded = bench.make(u"loaded");
    loaded->load(bag);
    EXPECT_EQ(loaded.shows(), "|1234");
}

// A handler that puts a text while the control is writing one of its own.
TEST(Amount, PutByAHandlerIsFormattedInsideAWriteOfTheControl)
{
    FieldBench bench;
    Field& f = bench.add();
    amount(f);
    f.put(u"SimboloMonetario", u";%");
    bench.typeInto(f, u"1");
    bool once = true;
    f.on().change = [&] {
        if (std::exchange(once, false))
            f.put(u"Text", u"999");
    };
    bench.leave(); // writes the symbol
    EXPECT_EQ(narrow(f.box().shownText()), "9,99");
}

// When a key's text cannot be written, and the log record of that cannot either, nothing more of the key happens.
TEST(Log, ThatCannotBeWrittenReachesTheCaller)
{
    FieldBench bench;
    Field& f = bench.add();
    f.put(u"Mask", u"____");
    f.put(u"TextType", 3);
    bench.focus(f);
    int reached = 0;
    for (long nth = 1; nth <= 20; ++nth) {
        f.box().failNext(headless::BoxOperation::putText, {5, u"first"});
        bench.machine.faults.failAt(nth, {70, u"Permission denied"});
        static_cast<void>(bench.seen());
        const int error = errorOf([&] { bench.type(u"1"); });
        bench.machine.faults.disarm();
        reached += error == 70 && bench.seen() == "KeyDown 49 0" ? 1 : 0;
    }
    EXPECT_EQ(reached, 1);
    EXPECT_EQ(f.shows(), "|____");
}

TEST(Disabled, InsideAnEventIsLeftAtOnceAndTypesNoMore)
{
    const auto shownAfter = [](auto arrange) {
        FieldBench bench;
        Field& f = bench.add();
        bench.focus(f);
        arrange(f, [&f] { f.put(u"Enabled", engine::Value(false)); });
        bench.type(u"ab");
        EXPECT_EQ(bench.form.focused(), nullptr);
        bench.focus(f);
        EXPECT_EQ(bench.form.focused(), nullptr);
        return f.shows();
    };
    EXPECT_EQ(shownAfter([](Field& f, auto off) { f.on().keyDown = [off](auto&, auto&) { off(); }; }), "|");
    EXPECT_EQ(shownAfter([](Field& f, auto off) { f.on().keyPress = [off](auto&) { off(); }; }), "|");
    EXPECT_EQ(shownAfter([](Field& f, auto off) { f.on().change = [off] { off(); }; }), "a|");
    EXPECT_EQ(shownAfter([](Field& f, auto off) { f.on().keyUp = [off](auto&, auto&) { off(); }; }), "a|");
}

TEST(Click, AfterTheFirstOneSelectsNothing)
{
    FieldBench bench;
    Field& f = bench.add();
    f.put(u"Text", u"abc");
    f.put(u"AutoSelect", 0);
    bench.form.click(*f.surface);
    f.put(u"AutoSelect", 1);
    bench.form.click(*f.surface);
    EXPECT_EQ(f.shows(), "abc|"); // the first click after entering is over
}

TEST(Keys, AllocateNothingOnceWarm)
{
    const struct {
        const char* field;
        void (*prepare)(Field&);
        const char16_t* keys;
    } rows[] = {
        {"a mask",
         [](Field& f) {
             f.put(u"Mask", u"___.___.___-__");
             f.put(u"TextType", 3);
         },
         u"12345678901"},
        {"a date", date, u"29022024"},
        {"a number", number, u"12345678,90"},
        {"an amount",
         [](Field& f) {
             amount(f);
             f.put(u"SimbolAgrupMilhar", 1);
         },
         u"123456789"},
    };
    for (const auto& row : rows) {
        FieldBench bench;
        Field& f = bench.add();
        row.prepare(f);
        const std::u16string start = f.box().shownText();
        bench.focus(f);
        const auto session = [&] {
            f->Text(u"");
            f.surface->placeCaret(static_cast<int>(f.box().shownText().size()) * (f->MaskToNumeric() ? 1 : 0), 0);
            const long before = allocations;
            bench.type(row.keys);
            bench.type(u"x");
            bench.key(headless::virtual_key::backspace);
            return allocations - before;
        };
        static_cast<void>(bench.seen());
        static_cast<void>(session());
        const long recorded = session();
        bench.listening = false; // the bench's own notes allocate
        static_cast<void>(session());
        EXPECT_EQ(session(), 0) << row.field << ", with notes " << recorded;
    }
}

TEST(Layout, KeepsItsPartsInside)
{
    using engine::RectPixels;
    const struct {
        const char* rule;
        LayoutRequest request;
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
        const platform::SurfaceLayout layout = arrangeField(row.request);
        EXPECT_EQ(layout.edit, row.edit) << row.rule;
        EXPECT_EQ(layout.button, row.button) << row.rule;
        EXPECT_EQ(layout.cornerRadius, row.radius) << row.rule;
    }
}

TEST(Look, FollowsAppearanceStyleAndHover)
{
    FieldBench bench;
    Field& f = bench.add();
    EXPECT_TRUE(f.box().traits().sunken);
    EXPECT_FALSE(f.surface->look().ownBorder);
    f.put(u"Appearance", 0);
    EXPECT_FALSE(f.box().traits().sunken);
    EXPECT_TRUE(f.surface->look().ownBorder);
    f.put(u"Appearance", 5);
    EXPECT_TRUE(f.surface->look().ownBorder); // shown as it was
    f.put(u"Appearance", 1);
    f.put(u"BorderStyle", 5);
    EXPECT_TRUE(f.surface->look().ownBorder);
    EXPECT_GT(f.surface->layout().cornerRadius, 0);
    bench.form.pointTo(*f.surface);
    EXPECT_EQ(f.surface->look().border, f->BorderColor_MouseMove());
    EXPECT_EQ(f.box().colours().back, f->BackColor_MouseMove());
    bench.form.pointAway();
    bench.form.tick();
    EXPECT_EQ(f.surface->look().border, f->BorderColorLostfocus());
    EXPECT_FALSE(f.surface->hoverTimerEnabled());
}

} // namespace
} // namespace vela::control
