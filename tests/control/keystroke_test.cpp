// The keystroke filter: which key-presses it raises, which Tabs it sends, and what the box shows then.
#include "tests/support/bench.h"

#include <gtest/gtest.h>

#include <functional>
#include <sstream>
#include <vector>

namespace vela::test {
namespace {

struct Row {
    const char* rule;
    std::string box; // "12,3|4": the caret; "1[2]3": the selection
    const char* keys;
    const char* said; // "press 65", "tab", "tab-down", in their order
    const char* shows;
};

void place(Bench& bench, const std::string& marked)
{
    std::u16string text = console::fromUtf8(marked);
    const std::size_t start = text.find_first_of(u"|["), end = text.find(u']');
    const std::size_t selected = end == std::u16string::npos ? 0 : end - start - 1;
    std::erase_if(text, [](char16_t unit) { return unit == u'|' || unit == u'[' || unit == u']'; });
    headless::EditBox& box = bench.field().surface.activeBox();
    box.putText(text);
    box.select({static_cast<int>(start), static_cast<int>(selected)});
}

std::string said(const std::string& trace)
{
    std::string result;
    std::istringstream lines(trace);
    for (std::string line; std::getline(lines, line);) {
        const std::string what = line.starts_with("event f KeyPress ") ? "press " + line.substr(17)
                                 : line.starts_with("sendkeys ")       ? "tab"
                                 : line.starts_with("keybd 9 ")        ? "tab-down"
                                                                       : "";
        result += (result.empty() || what.empty() ? "" : ", ") + what;
    }
    return result;
}

void check(
    const std::string& prepare, const std::vector<Row>& rows,
    const std::function<void(Bench&)>& arrange = [](Bench&) {})
{
    for (const Row& row : rows) {
        SCOPED_TRACE(row.rule);
        Bench bench(prepare.starts_with("load ") ? "" : "new f\n");
        bench.run(prepare);
        bench.run("focus f\n");
        place(bench, row.box);
        arrange(bench);
        bench.run("trace events keys\n");
        EXPECT_EQ(said(bench.run("keys \"" + std::string(row.keys) + "\"\n")), row.said);
        EXPECT_EQ(bench.shows(), row.shows);
    }
}

const std::string text = "set f MaxLength 5\n", tabs = text + "set f AutoTAB True\n";
const std::string closed = "set f TextoLivre False\n", abc = closed + "set f CaractLiberados \"ABC\"\n";
const std::string upper = "set f tipoLetra Maisculo\n",
                  positive = std::string(number) + "set f AceitaNegativos False\n";
const std::string day = "set f TextType Data\nset f DateFormat \"dd/mm\"\nset f Mask \"__/__\"\n";
const std::string mask = "set f Mask \"__/__\"\nset f TextType Mascara\n", tabbed = mask + "set f AutoTAB True\n";

TEST(Keystroke, Enter)
{
    check("", {{"a single line only tells", "ab|", "{ENTER}", "press 13", "ab|"}});
    check("set f EnterAsTab True\n",
          {{"as Tab: a key-down, no Tab sent", "ab|", "{ENTER}", "press 13, tab-down", "ab|"}});
    check(tabbed + "set f EnterAsTab True\n",
          {{"as Tab in a mask", "12/34|", "{ENTER}", "press 13, tab-down", "12/34|"}});
    check("load f MultLine=True\n", {{"several lines tell twice", "ab|", "{ENTER}", "press 13, press 13", "ab\r\n|"}});
    check("load f MultLine=True TextoLivre=False\n", {{"several lines, only allowed characters: Enter is one", "ab|",
                                                       "{ENTER}", "press 13, press 13", "ab\r\n|"}});
}

TEST(Keystroke, FreeText)
{
    check(upper, {{"capitals, Latin-1 too", "|", "ç", "press 199", "Ç|"}});
    check("set f tipoLetra Minusculo\n", {{"small", "|", "A", "press 97", "a|"}});
    check(text, {{"full", "12345|", "x", "press 0", "12345|"},
                 {"full, but something is selected", "1234[5]", "x", "press 120", "1234x|"},
                 {"full: Backspace still erases", "12345|", "{BACKSPACE}", "press 8", "1234|"},
                 {"longer than its limit is not full", "123456|", "x", "press 120", "123456|"}});
    check(abc, {{"the case counts", "|", "a", "press 0", "|"}});
    check(abc + upper, {{"capitals come first", "|", "a", "press 65", "A|"}});
    check(closed, {{"nothing allowed", "|", "1", "press 0", "|"}, {"Backspace", "1|", "{BACKSPACE}", "press 8", "|"}});
    check(tabs, {{"the last place is being filled", "1234|", "5", "press 53, tab", "12345|"},
                 {"not the last place", "123|", "5", "press 53", "1235|"}});
    check(tabs + closed, {{"a refused key at the last place tabs too", "1234|", "5", "press 0, tab", "1234|"}});
}

TEST(Keystroke, Numbers)
{
    check(positive, {{"a digit", "12|", "3", "press 51", "123|"},
                     {"a letter", "12|", "x", "press 0", "12|"},
                     {"Backspace raises nothing", "12|", "{BACKSPACE}", "", "1|"},
                     {"the symbol", "12|", ",", "press 44", "12,|"},
                     {"a second symbol", "12,3|", ",", "press 0", "12,3|"},
                     {"the other symbol", "12|", ".", "press 0", "12|"},
                     {"the whole text selected: written at once", "[12,5]", ",", "press 0", ",|"},
                     {"an empty text is wholly selected", "|", ",", "press 0", ",|"},
                     {"a minus where none is taken", "|12", "-", "press 0", "|12"},
                     {"decimals full, caret at the end", "12,34|", "5", "press 0", "12,34|"},
                     {"decimals full, caret in the whole part", "1|2,34", "5", "press 53", "15|2,34"},
                     {"decimals full, caret right behind the symbol", "12,|34", "5", "press 53", "12,5|34"},
                     {"decimals full, one further", "12,3|4", "5", "press 0", "12,3|4"},
                     {"decimals more than full", "12,345|", "5", "press 0", "12,345|"},
                     {"decimals free", "12,3|", "5", "press 53", "12,35|"}});
    check(std::string(number), {{"a minus in front", "|12", "-", "press 45", "-|12"},
                                {"a minus inside", "1|2", "-", "press 0", "1|2"},
                                {"a second minus", "|-12", "-", "press 0", "|-12"}});
    check("set f TextType Numerico\nset f SimbolDecExib Ponto\nset f QtdCasasDec 2\n",
          {{"the point where it is the symbol", "12|", ".", "press 46", "12.|"}});
    check("set f TextType Numerico\n", {{"no symbol: neither", "12|", ",", "press 0", "12|"}});
    check(positive + "set f MaxLength 3\nset f AutoTAB True\n",
          {{"full", "123|", "4", "press 0", "123|"},
           {"the last place is being filled", "12|", "3", "press 51, tab", "123|"}});
    check(std::string(amount) + "set f AutoTAB True\n", {{"an amount takes digits", "0,0|0", "3", "press 51", "0,3|0"},
                                                         {"no symbol", "0,0|0", ",", "", "0,0|0"},
                                                         {"no Backspace", "0,00|", "{BACKSPACE}", "", "0,00|"}});
}

TEST(Keystroke, Templates)
{
    check(day, {{"a date takes digits", "|__/__", "1", "press 49", "1|_/__"},
                {"a date lets other keys fall", "|__/__", "a", "", "|__/__"}});
    check(mask, {{"a mask hears every key", "|__/__", "/", "press 47", "|__/__"}});
    check(mask + "set f MaskRules \"##/##\"\n",
          {{"one that a rule refuses as zero", "|__/__", "a", "press 0", "|__/__"}});
    check(tabbed, {{"Backspace", "12/34|", "{BACKSPACE}", "press 8", "12/3|_"},
                   {"complete, caret at the end", "12/34|", "4", "press 52, tab", "12/34|"},
                   {"complete, caret inside", "12/|34", "4", "press 52", "12/4|4"},
                   {"the key fills the last place", "12/3|_", "4", "press 52, tab", "12/34|"},
                   {"incomplete", "_2/34|", "5", "press 53", "_2/34|"}});
    check(tabbed + "set f PromptChar \"x\"\n",
          {{"prompts are sought in either case", "12/3X|", "2", "press 50", "12/3X|"}});
    check(tabbed + "set f PromptChar \"\"\n",
          {{"every text holds the empty prompt", "12/34|", "2", "press 50", "12/34|"}});
    check("set f TextType 9\nset f MaxLength 2\nset f AutoTAB True\n",
          {{"a type beyond the enumeration", "1|", "x", "", "1x|"}});
}

TEST(Keystroke, WhatTheHandlerChangesCounts)
{
    check(text, {{"a Tab asked for inside", "1234|", "x", "press 120, tab", "1234！|"}}, [](Bench& bench) {
        bench.on().keyPress = [&bench](std::int16_t& key) {
            key = static_cast<std::int16_t>(0xFF01);
            control::putProperty(bench.field().control, u"AutoTAB", engine::Value(true));
        };
    });
    check("load f MultLine=True tipoLetra=Maisculo\n",
          {{"Enter turned into another character is filtered on as that", "|", "{ENTER}", "press 13, press 66", "B|"}},
          [](Bench& bench) {
              bench.on().keyPress = [](std::int16_t& key) { key = key == 13 ? std::int16_t{u'b'} : key; };
          });
    check("set f MaxLength 2\nset f AutoTAB True\n",
          {{"a key turned into Backspace sends no Tab", "1|", "x", "press 120", "|"}},
          [](Bench& bench) { bench.on().keyPress = [](std::int16_t& key) { key = 8; }; });
}

TEST(Keystroke, ATextThatCannotBeReadRefusesANumbersKeyOnly)
{
    const auto unreadable = [](Bench& bench) {
        bench.on().keyDown = [&bench](std::int16_t&, std::int16_t&) {
            bench.field().surface.activeBox().failNext(headless::BoxOperation::text, {13, u"Type mismatch"});
        };
    };
    check(positive, {{"a number", "|", "3", "press 0", "|"}}, unreadable);
    check(mask, {{"a mask", "|__/__", "3", "press 51", "|__/__"}}, unreadable);
}

} // namespace
} // namespace vela::test
