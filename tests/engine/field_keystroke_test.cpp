// The keystroke filter: what its plans make of a key.
#include "engine/field/keystroke.h"
#include "field_text.h"

#include <functional>
#include <gtest/gtest.h>
#include <span>

namespace vela::engine {
namespace {

// A control reduced to its box. It writes down what it does for a key: "press 65", "tab", "tab-down", "write ,".
class Control {
public:
    KeystrokeSettings set;
    test::Box content;
    int limit = 0;
    bool readable = true;
    std::function<void(int&)> handler; // of KeyPress
    std::string log;

    int type(int key)
    {
        for (KeyTurn turn = KeyTurn::first;; turn = KeyTurn::second) {
            const KeyPlan plan = planned(key, turn);
            key = plan.key;
            if (plan.press)
                press(key);
            if (plan.after == AfterPress::tab && tabFollows(key, set, seen(content.text)))
                note("tab");
            if (plan.after != AfterPress::enter)
                return key;
            const EnterMeans enter = enterMeans(set);
            if (enter == EnterMeans::tab)
                note("tab-down");
            if (enter != EnterMeans::line)
                return 0;
        }
    }

private:
    KeyPlan planned(int key, KeyTurn turn)
    {
        const KeyNeeds needs = needsOf(key, set, turn);
        KeyBox box = seen(content.text);
        if (!needs.room)
            box.length = -1;
        if (!needs.text || !readable)
            box.text = nullptr;
        const KeyPlan plan = planKey(key, set, box, turn);
        if (plan.writtenCaret) {
            log += log.empty() ? "write " : ", write ";
            for (const char16_t unit : content.text)
                log += static_cast<char>(unit);
        }
        content.caret = plan.promptCaret.value_or(plan.writtenCaret.value_or(content.caret));
        return plan;
    }
    KeyBox seen(std::u16string& text)
    {
        return {.text = &text,
                .length = static_cast<int>(text.size()),
                .caret = content.caret,
                .selected = content.selected,
                .maxLength = limit};
    }
    void press(int& key)
    {
        note("press " + std::to_string(key));
        if (handler)
            handler(key);
    }
    void note(const std::string& what) { log += (log.empty() ? "" : ", ") + what; }
};

KeystrokeSettings of(TipoText type)
{
    KeystrokeSettings settings;
    settings.textType = type;
    settings.mask.mask = u"__/__";
    return settings;
}

KeystrokeSettings number(Simbolos symbol = Simbolos::Virgula)
{
    KeystrokeSettings settings = of(TipoText::Numerico);
    settings.displayDecimal = symbol;
    settings.decimal = symbol == Simbolos::Vazio ? u"" : symbol == Simbolos::Ponto ? u"." : u",";
    settings.decimals = 2;
    return settings;
}

KeystrokeSettings with(KeystrokeSettings settings, const std::function<void(KeystrokeSettings&)>& change)
{
    change(settings);
    return settings;
}

struct Row {
    const char* rule;
    KeystrokeSettings settings;
    std::u16string_view box;
    int limit;
    int key;
    int keyAfter;
    const char* log;
};

void check(std::span<const Row> rows)
{
    for (const Row& row : rows) {
        Control control;
        control.set = row.settings;
        control.content = test::box(row.box);
        control.limit = row.limit;
        EXPECT_EQ(control.type(row.key), row.keyAfter) << row.rule;
        EXPECT_EQ(control.log, row.log) << row.rule;
    }
}

TEST(Keystroke, Enter)
{
    const auto asTab = [](KeystrokeSettings& s) { s.enterAsTab = true; };
    const auto multi = [](KeystrokeSettings& s) { s.multiLine = true; };
    const auto closed = [](KeystrokeSettings& s) { s.multiLine = true, s.freeText = false; };
    const Row rows[] = {
        {"a single line only tells", of(TipoText::TextoNormal), u"ab|", 0, 13, 0, "press 13"},
        {"as Tab: a key-down, no Tab sent", with(of(TipoText::TextoNormal), asTab), u"ab|", 0, 13, 0,
         "press 13, tab-down"},
        {"as Tab in a mask", with(of(TipoText::Mascara), asTab), u"__|", 2, 13, 0, "press 13, tab-down"},
        {"several lines tell twice", with(of(TipoText::TextoNormal), multi), u"ab|", 0, 13, 13, "press 13, press 13"},
        {"several lines, only allowed characters: Enter is one", with(of(TipoText::TextoNormal), closed), u"ab|", 0, 13,
         13, "press 13, press 13"},
    };
    check(rows);
}

TEST(Keystroke, FreeText)
{
    const auto upper = [](KeystrokeSettings& s) { s.letterCase = tipoTamanhoLetra::Maisculo; };
    const auto lower = [](KeystrokeSettings& s) { s.letterCase = tipoTamanhoLetra::Minusculo; };
    const auto abc = [](KeystrokeSettings& s) { s.freeText = false, s.allowed = u"ABC"; };
    const auto abcUpper = [&](KeystrokeSettings& s) { abc(s), upper(s); };
    const auto none = [](KeystrokeSettings& s) { s.freeText = false; };
    const auto tabs = [](KeystrokeSettings& s) { s.autoTab = true; };
    const auto text = of(TipoText::TextoNormal);
    const Row rows[] = {
        {"capitals, Latin-1 too", with(text, upper), u"|", 0, 0xE7, 0xC7, "press 199"},
        {"small", with(text, lower), u"|", 0, u'A', u'a', "press 97"},
        {"full", text, u"12345|", 5, u'x', 0, "press 0"},
        {"full, but something is selected", text, u"1234[5]", 5, u'x', u'x', "press 120"},
        {"full: Backspace still erases", text, u"12345|", 5, 8, 8, "press 8"},
        {"longer than its limit is not full", text, u"123456|", 5, u'x', u'x', "press 120"},
        {"the case counts", with(text, abc), u"|", 0, u'a', 0, "press 0"},
        {"capitals come first", with(text, abcUpper), u"|", 0, u'a', u'A', "press 65"},
        {"nothing allowed", with(text, none), u"|", 0, u'1', 0, "press 0"},
        {"nothing allowed: Backspace", with(text, none), u"|", 0, 8, 8, "press 8"},
        {"the last place is being filled", with(text, tabs), u"1234|", 5, u'5', u'5', "press 53, tab"},
        {"a refused key at the last place tabs too", with(with(text, tabs), none), u"1234|", 5, u'5', 0,
         "press 0, tab"},
        {"not the last place", with(text, tabs), u"123|", 5, u'5', u'5', "press 53"},
    };
    check(rows);
}

TEST(Keystroke, Numbers)
{
    const auto signs = [](KeystrokeSettings& s) { s.negatives = true; };
    const auto tabs = [](KeystrokeSettings& s) { s.autoTab = true; };
    const Row rows[] = {
        {"a digit", number(), u"12|", 0, u'3', u'3', "press 51"},
        {"a letter", number(), u"12|", 0, u'x', 0, "press 0"},
        {"Backspace raises nothing", number(), u"12|", 0, 8, 8, ""},
        {"the symbol", number(), u"12|", 0, u',', u',', "press 44"},
        {"a second symbol", number(), u"12,3|", 0, u',', 0, "press 0"},
        {"the other symbol", number(), u"12|", 0, u'.', 0, "press 0"},
        {"the point where it is the symbol", number(Simbolos::Ponto), u"12|", 0, u'.', u'.', "press 46"},
        {"no symbol: neither", number(Simbolos::Vazio), u"12|", 0, u',', 0, "press 0"},
        {"the whole text selected: written at once", number(), u"[12,5]", 0, u',', 0, "write ,, press 0"},
        {"an empty text is wholly selected", number(), u"|", 0, u',', 0, "write ,, press 0"},
        {"a minus where none is taken", number(), u"|12", 0, u'-', 0, "press 0"},
        {"a minus in front", with(number(), signs), u"|12", 0, u'-', u'-', "press 45"},
        {"a minus inside", with(number(), signs), u"1|2", 0, u'-', 0, "press 0"},
        {"a second minus", with(number(), signs), u"|-12", 0, u'-', 0, "press 0"},
        {"decimals full, caret at the end", number(), u"12,34|", 0, u'5', 0, "press 0"},
        {"decimals full, caret in the whole part", number(), u"1|2,34", 0, u'5', u'5', "press 53"},
        {"decimals full, caret right behind the symbol", number(), u"12,|34", 0, u'5', u'5', "press 53"},
        {"decimals full, one further", number(), u"12,3|4", 0, u'5', 0, "press 0"},
        {"decimals more than full", number(), u"12,345|", 0, u'5', 0, "press 0"},
        {"decimals free", number(), u"12,3|", 0, u'5', u'5', "press 53"},
        {"full", number(), u"123|", 3, u'4', 0, "press 0"},
        {"the last place is being filled", with(number(), tabs), u"12|", 3, u'3', u'3', "press 51, tab"},
    };
    check(rows);
}

TEST(Keystroke, FixedPointTakesDigitsOnly)
{
    const auto fixed = with(number(), [](KeystrokeSettings& s) { s.maskToNumeric = true, s.autoTab = true; });
    const Row rows[] = {
        {"a digit", fixed, u"0,0|0", 0, u'3', u'3', "press 51"},
        {"the symbol", fixed, u"0,0|0", 0, u',', 0, ""},
        {"Backspace", fixed, u"0,00|", 0, 8, 0, ""},
    };
    check(rows);
}

TEST(Keystroke, Templates)
{
    const auto tabs = [](KeystrokeSettings& s) { s.autoTab = true; };
    const auto letterPrompt = [](KeystrokeSettings& s) { s.autoTab = true, s.mask.promptChar = u"x"; };
    const auto noPrompt = [](KeystrokeSettings& s) { s.autoTab = true, s.mask.promptChar = u""; };
    const Row rows[] = {
        {"a date takes digits", of(TipoText::Data), u"|__/__", 5, u'1', u'1', "write 1_/__, press 49"},
        {"a date lets other keys fall", of(TipoText::Data), u"|__/__", 5, u'a', u'a', ""},
        {"a mask hears every key", of(TipoText::Mascara), u"|__/__", 5, u'/', u'/', "press 47"},
        {"Backspace", with(of(TipoText::Data), tabs), u"12/34|", 5, 8, 8, "press 8"},
        {"complete, caret at the end", with(of(TipoText::Data), tabs), u"12/34|", 5, u'4', u'4', "press 52, tab"},
        {"complete, caret inside", with(of(TipoText::Data), tabs), u"12/|34", 5, u'4', u'4', "write 12/44, press 52"},
        {"the key fills the last place", with(of(TipoText::Mascara), tabs), u"12/3|_", 5, u'4', u'4',
         "write 12/34, press 52, tab"},
        {"incomplete", with(of(TipoText::Mascara), tabs), u"_2/34|", 5, u'4', u'4', "press 52"},
        {"prompts are sought in either case", with(of(TipoText::Mascara), letterPrompt), u"X2|", 2, u'2', u'2',
         "press 50"},
        {"a type beyond the enumeration", with(of(static_cast<TipoText>(9)), tabs), u"1|", 2, u'x', u'x', ""},
        {"every text holds the empty prompt", with(of(TipoText::Mascara), noPrompt), u"12|", 2, u'2', u'2', "press 50"},
    };
    check(rows);
}

TEST(Keystroke, ARefusedMaskKeyIsToldAsZero)
{
    Control control;
    control.set = with(of(TipoText::Mascara), [](KeystrokeSettings& s) { s.mask.rules = u"##/##"; });
    control.content = test::box(u"|__/__");
    EXPECT_EQ(control.type(u'a'), 0);
    EXPECT_EQ(control.log, "press 0");
}

TEST(Keystroke, WhatTheHandlerChangesCounts)
{
    Control control;
    control.set = of(TipoText::TextoNormal);
    control.content = test::box(u"1234|");
    control.limit = 5;
    control.handler = [&](int& key) {
        key = 0xFF01;
        control.set.autoTab = true;
    };
    EXPECT_EQ(control.type(u'x'), 0xFF01);
    EXPECT_EQ(control.log, "press 120, tab");

    Control lines; // Enter turned into another character is filtered on as that character
    lines.set = with(of(TipoText::TextoNormal),
                     [](KeystrokeSettings& s) { s.multiLine = true, s.letterCase = tipoTamanhoLetra::Maisculo; });
    lines.handler = [](int& key) { key = key == 13 ? u'b' : key; };
    EXPECT_EQ(lines.type(13), u'B');
    EXPECT_EQ(lines.log, "press 13, press 66");

    Control erased; // a key turned into Backspace sends no Tab
    erased.set = with(of(TipoText::TextoNormal), [](KeystrokeSettings& s) { s.autoTab = true; });
    erased.content = test::box(u"1|");
    erased.limit = 2;
    erased.handler = [](int& key) { key = 8; };
    EXPECT_EQ(erased.type(u'x'), 8);
    EXPECT_EQ(erased.log, "press 120");
}

TEST(Keystroke, ATextThatCannotBeReadRefusesANumbersKeyOnly)
{
    for (const auto& [settings, after] : {std::pair{number(), 0}, std::pair{of(TipoText::Mascara), int{u'3'}}}) {
        Control control;
        control.set = settings;
        control.content = test::box(u"|__/__");
        control.readable = false;
        EXPECT_EQ(control.type(u'3'), after);
        EXPECT_EQ(control.log, "press " + std::to_string(after));
    }
}

} // namespace
} // namespace vela::engine
