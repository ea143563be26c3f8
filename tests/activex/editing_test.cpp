// The clipboard, undo and unusual characters at the windows of the control.
#include "person.h"

#include <gtest/gtest.h>

namespace vela::test {

namespace {

class Field : public Desk {
public:
    using Desk::Desk;

    void select(int start, int end) { SendMessageW(site.edit(), EM_SETSEL, static_cast<WPARAM>(start), end); }
    [[nodiscard]] std::u16string shown() const { return shownBy(site.edit()); }
    void send(UINT message) { SendMessageW(site.edit(), message, 0, 0); }
    // A command of the context menu, by the access key of its caption.
    void choose(char key)
    {
        PostMessageW(site.edit(), WM_KEYDOWN, static_cast<WPARAM>(key), 1);
        SendMessageW(site.edit(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(site.edit()), -1);
        settle(form);
    }
};

struct Edit {
    const char* rule;
    Kind kind;
    const char16_t* typed;
    int start;
    int end;                // of the selection; -1 to the end
    const char16_t* second; // what is pasted
    const char16_t* shows;
};

const Edit pastes[] = {
    {"free text over a selection", asPlainText, u"abcd", 1, 3, u"XYZ", u"aXYZd"},
    {"over a part of a full mask", asTelephone, u"5199987766", 5, 9, u"1234", u"(51) 1234-7766"},
    {"an amount", asAmount, u"", 0, -1, u"1234", u"12,34"},
};

TEST(Editing, PasteGoesThroughTheRules)
{
    const LeakCheck leaks;
    for (const Edit& row : pastes) {
        SCOPED_TRACE(row.rule);
        for (const bool key : {false, true}) {
            Field field(row.kind);
            field.form.type(row.typed);
            field.select(row.start, row.end);
            putClipboard(row.second);
            field.site.log.clear();
            if (key)
                field.form.type(u"\x16"); // Control and V
            else
                field.send(WM_PASTE);
            EXPECT_EQ(field.shown(), row.shows);
            EXPECT_EQ(field.site.count("event 1"), 1) << "one change";
        }
    }
}

// Here `second` is what was cut.
const Edit cuts[] = {
    {"free text", asPlainText, u"abcd", 1, 3, u"bc", u"ad"},
    {"prompts come back into a mask", asPlate, u"abc1234", 1, 6, u"BC-12", u"A__-__34"},
    {"an amount is laid out again", asAmount, u"1234", 0, 1, u"1", u"2,34"},
};

TEST(Editing, CutUndoAndRedo)
{
    const LeakCheck leaks;
    for (const Edit& row : cuts) {
        SCOPED_TRACE(row.rule);
        Field field(row.kind);
        field.form.type(row.typed);
        const std::u16string before = field.shown();
        for (const auto& step : {+[](Field& at) { at.send(WM_CUT); }, +[](Field& at) { at.form.type(u"\x18"); },
                                 +[](Field& at) { at.choose('T'); }}) {
            putClipboard(u"-");
            field.select(row.start, row.end);
            step(field);
            EXPECT_EQ(clipboard(), row.second);
            EXPECT_EQ(field.shown(), row.shows);
            field.form.type(u"\x1A"); // Control and Z
            EXPECT_EQ(field.shown(), before);
            field.form.type(u"\x19"); // Control and Y
            EXPECT_EQ(field.shown(), row.shows);
            field.send(EM_UNDO);
            EXPECT_EQ(field.shown(), before);
        }
        for (std::u16string_view shown = before; !shown.empty(); shown.remove_suffix(1))
            field.send(WM_UNDO);
        field.send(WM_UNDO);
        Field untouched(row.kind);
        EXPECT_EQ(field.shown(), untouched.shown()) << "each step back";
    }
}

// Control and Delete: the EDIT takes the rest of the line.
TEST(Editing, WhatTheEditDoesOfItsOwnIsUndoneWhole)
{
    Field field(asPlainText);
    field.form.type(u"um dois");
    field.select(3, 3);
    strike(field.form, VK_DELETE, VK_CONTROL);
    EXPECT_EQ(field.shown(), u"um ");
    field.form.type(u"\x1A");
    EXPECT_EQ(field.shown(), u"um dois");
}

TEST(Editing, TheMenusCommands)
{
    Field field(asPlate);
    putClipboard(u"abc1234");
    field.choose('O'); // Colar
    EXPECT_EQ(field.shown(), u"ABC-1234");
    field.choose('S'); // Selecionar tudo
    DWORD start = 9;
    DWORD end = 9;
    SendMessageW(field.site.edit(), EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    EXPECT_EQ(end - start, 8u);
    putClipboard(u"-");
    field.choose('C'); // Copiar
    EXPECT_EQ(clipboard(), u"ABC-1234");
    field.choose('X'); // Excluir
    EXPECT_EQ(field.shown(), u"___-____");
    field.choose('D'); // Desfazer
    EXPECT_EQ(field.shown(), u"ABC-1234");
    field.choose('R'); // Refazer
    EXPECT_EQ(field.shown(), u"___-____");
}

TEST(Editing, APasswordStays)
{
    Field field(asPlainText);
    field.site.automation().put(u"PasswordChar", text(u"*"));
    field.form.focus(field.site);
    field.form.type(u"segredo");
    putClipboard(u"-");
    field.select(0, -1);
    field.send(WM_COPY);
    field.send(WM_CUT);
    EXPECT_EQ(clipboard(), u"-");
    EXPECT_EQ(field.site.automation().textOf(u"Text"), u"segredo");
}

TEST(Editing, UnusualDigitsAndTheKeypadsDecimalKey)
{
    Field plate(asPlate);
    plate.form.type(u"abc\uFF11\uFF12");
    EXPECT_EQ(plate.shown(), u"ABC-12__");
    Field amount(asAmount);
    amount.form.type(u"\uFF11\uFF12\uFF13");
    EXPECT_EQ(amount.shown(), u"1,23");
    for (const auto& [symbol, shows] : {std::pair{2, u"5,7"}, std::pair{1, u"5.7"}}) {
        Field number_(asNumber);
        number_.site.automation().put(u"SimbolDecExib", number(symbol));
        number_.form.focus(number_.site);
        number_.form.type(u"\uFF15");
        number_.form.press(VK_DECIMAL);
        number_.form.type(u"7");
        EXPECT_EQ(number_.shown(), shows);
    }
}

} // namespace

} // namespace vela::test
