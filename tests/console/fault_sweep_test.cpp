// Makes every operation of the platform fail once in turn, and its allocations: afterwards the control answers, and
// its settings are old or new, never mixed.
#include "apps/console/session.h"
#include "tests/support/allocations.h"

#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <string>

namespace vela::console {
namespace {

constexpr int mostFaults = 5000;

struct Scenario {
    const char* name;
    const char* setup;
    const char* act;
};

constexpr const char* price =
    "load f TextType=Numerico QtdCasasDec=2 SimbolDecExib=Virgula SimbolAgrupMilhar=Ponto SimboloMonetario=\"R$ \" "
    "AutoSelect=True\nset f Text \"1234,5\"";
constexpr const char* date =
    "load f TextType=Data DateFormat=\"dd/mm/yyyy\" ErrorAlert=True ShowButtonCalendario=True AutoSelect=True";

const Scenario scenarios[] = {
    {"new", "", "new f"},
    {"load", "", "load f TextType=Data DateFormat=\"dd/mm/yy\" ValorPadrao=\"%date\" Delimitador=\"|\""},
    {"save", "new f", "save f"},
    {"reload", "new f\nset f Mask \"__-__\"\nset f TextType Mascara", "reload f"},
    {"switch types", "new f",
     "set f Mask \"___\"\nset f TextType Mascara\nset f TextType Data\nset f TextType Numerico\nset f TextType "
     "TextoNormal"},
    {"enter", price, "focus f"},
    {"enter with a tip", "new f\nset f ToolTipGotFocus \"tip\"\nset f Text \"abc\"", "focus f"},
    {"type a number", price, "focus f\nkeys \"{END}12{BACKSPACE},{LEFT}3\""},
    {"type an amount", "load f TextType=Numerico SimbolDecExib=Virgula QtdCasasDec=2 MaskToNumeric=True",
     "focus f\nkeys \"1234\"\npaste \"567\""},
    {"type a date", date, "focus f\nkeys \"{HOME}29022024{BACKSPACE}{LEFT}{DELETE}{RIGHT}\""},
    {"leave a number", price, "focus f\nfocus none"},
    {"leave a wrong date", date, "focus f\nkeys \"31022024\"\nfocus none\nfocus none"},
    {"tab", "plain p", "focus f\nkeys \"a{DOWN}\"\nfocus f\nkeys \"{UP}{TAB}+{TAB}\""},
    {"hover and click", "", "mouse f\nclick f\ndblclick f\nmouse none\ntick\ntick"},
    {"calendar", date, "focus f\nbutton f\ncalendar month 3\ntick\ncalendar click 20\nbutton f\nother-window"},
    {"calculator", price,
     "set f ShowButtonCalculadora True\nfocus f\nkeys \"{F2}\"\ncalculator keys \"{+}1={F2}\"\nbutton f\nfocus none"},
    {"value", price, "get f Value\nset f Value 12.5\nset f Text \"7\"\ncall f About"},
    {"general page", "", "page open ppGeral f\npage set txtDelimitador \"|\"\npage apply\npage close"},
    {"main page", "", "page open ppPrincipal f\npage set cboTextType \"Numérico\"\npage apply\npage close"},
    {"errors page", "", "page open ppErros f\npage set chkExibirAlertaPadrao True\npage apply\npage close"},
    {"font page", "", "page open ppFonte f\npage click Negrito\npage apply\npage close"},
    {"calendar page", "",
     "page open ppCalendario f\nanswer &H00123456\npage dblclick PicCorCalendario(0)\npage apply\npage close"},
    {"palette", "", "palette open\npalette focus 1\npalette ok"},
    {"tooltip", "", "tip new\ntip set Title \"t\"\ntip create\ntip show 1 2\ntip destroy"},
};

// After any fault these lines print the same.
constexpr const char* check = R"(
trace none
page close
palette close
other-window
set f ErrorFocus False
focus none
focus none
set f Enabled True
set f TextType TextoNormal
set f TextType TextoNormal
set f Locked False
set f TextoLivre True
set f MaxLength 0
set f Text "abc"
get f Text
focus f
keys "{END}d"
get f Text
focus none
reload f
get f Text
destroy f
new f
get f AutoSelect
)";
constexpr const char* checked = "f.Text = \"abc\"\nf.Text = \"abcd\"\nf.Text = \"abcd\"\nf.AutoSelect = True\n";

std::string setupOf(const Scenario& scenario)
{
    const std::string setup = scenario.setup;
    const std::string act = scenario.act;
    const bool makesOne =
        act.starts_with("new ") || act.starts_with("load ") || setup.starts_with("new ") || setup.starts_with("load ");
    return "trace none\nclock #2024-02-29 14:05:33#\n" + std::string(makesOne ? "" : "new f\n") + setup + "\n";
}

// False when the fault never came: the scenario has fewer operations.
bool survives(const Scenario& scenario, const std::function<void(Session&)>& arm,
              const std::function<bool(Session&)>& disarm)
{
    std::string output;
    output.reserve(1U << 16);
    Session session([&](std::string_view bytes) { output += bytes; }, [](std::string_view) {});
    session.runScript(setupOf(scenario));
    arm(session);
    session.runScript(scenario.act);
    const bool fired = disarm(session);
    if (session.findField(u"f") == nullptr)
        session.runScript("new f\n");
    session.runScript("page close\npalette close\n");
    output.clear();
    if (const std::string act = scenario.act; act.starts_with("page ")) {
        session.runScript(act.substr(0, act.find('\n')) + "\npage apply\npage close\n");
        EXPECT_EQ(output, "") << "the page opens and applies again";
        output.clear();
    }
    session.runScript(check);
    std::string answers = output;
    // from using a palette or a control that the fault has closed
    for (const char* closed : {"palette colour", "error 91"})
        for (std::size_t at; (at = answers.find(closed)) == 0;)
            answers.erase(0, answers.find('\n') + 1);
    EXPECT_EQ(answers, checked);
    return fired;
}

class Sweep : public testing::TestWithParam<Scenario> {};

TEST_P(Sweep, everyOperationFailsOnce)
{
    int n = 1;
    while (n < mostFaults && !HasFailure() &&
           survives(
               GetParam(),
               [&](Session& s) {
                   s.machine().faults.failAt(n, engine::Error{7, u"Out of memory"});
               },
               [](Session& s) {
                   s.machine().faults.disarm();
                   return s.machine().faults.fired();
               }))
        ++n;
    EXPECT_GT(n, 1) << "nothing failed";
    EXPECT_LT(n, mostFaults);
    RecordProperty("faults", n - 1);
}

TEST_P(Sweep, allocationsFail)
{
    int n = 1;
    while (n < mostFaults && !HasFailure() &&
           survives(
               GetParam(), [&](Session&) { test::failAllocation(n); },
               [](Session&) { return test::endAllocationFault(); }))
        n += 1 + n / 100; // the many of a long scenario are sampled
    EXPECT_LT(n, mostFaults);
    RecordProperty("faults", n - 1);
}

std::string nameOf(const testing::TestParamInfo<Scenario>& info)
{
    std::string name = info.param.name;
    for (char& c : name)
        if (c == ' ')
            c = '_';
    return name;
}

INSTANTIATE_TEST_SUITE_P(Faults, Sweep, testing::ValuesIn(scenarios), nameOf);

std::set<std::string> linesOf(const std::string& text)
{
    std::set<std::string> lines;
    for (std::size_t at = 0; at < text.size(); at = text.find('\n', at) + 1)
        lines.insert(text.substr(at, text.find('\n', at) - at));
    return lines;
}

// A bag that fails in the middle gives each key its stored value or its default.
TEST(FaultyLoad, settingsAreOldOrNew)
{
    const std::string keys =
        " DateFormat=\"dd/mm/yy\" QtdCasasDec=2 SimbolDecExib=Virgula Delimitador=\"|\" UpTAB=False"
        " BackColor=&H00112233 FontBold=True NomeCampo=\"n\"\n";
    const auto saved = [](const std::string& load, long faultAt, bool& fired) {
        std::string output;
        Session session([&](std::string_view bytes) { output += bytes; }, [](std::string_view) {});
        if (faultAt > 0)
            session.machine().faults.failAt(faultAt, engine::Error{7, u"Out of memory"});
        session.runScript("trace none\n" + load);
        session.machine().faults.disarm();
        fired = session.machine().faults.fired();
        output.clear();
        session.runScript("save f\n");
        return linesOf(output);
    };
    bool fired = true;
    const std::set<std::string> whole = saved("load f" + keys, 0, fired);
    const std::set<std::string> empty = saved("load f\n", 0, fired);
    fired = true;
    for (long n = 1; fired && n < mostFaults; ++n)
        for (const std::string& line : saved("load f" + keys, n, fired))
            EXPECT_TRUE(whole.contains(line) || empty.contains(line)) << "fault " << n << ": " << line;
}

} // namespace
} // namespace vela::console
