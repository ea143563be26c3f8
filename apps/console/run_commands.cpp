// Settings of a run: locale, clock, versions, what is traced, answers to boxes.
#include "apps/console/session.h"
#include "apps/console/value_text.h"

#include <array>
#include <utility>

namespace vela::console {

namespace {

using headless::TraceCategory;

void runLocale(Session& session, Words words)
{
    if (words[1].is(u"pt-BR"))
        session.machine().locales.use(engine::ptBr());
    else if (words[1].is(u"en-US"))
        session.machine().locales.use(engine::enUs());
    else
        notACommand("no such locale", words[1], {u"pt-BR", u"en-US"});
}

void runClock(Session& session, Words words)
{
    const engine::Value value = valueOf(words[1]);
    const auto* const date = std::get_if<engine::Date>(&value);
    if (date == nullptr)
        notACommand("a date is wanted", words[1]);
    session.machine().clock.freeze(*date);
}

void runWindows(Session& session, Words words)
{
    session.machine().system.reportVersion(platform::WindowsVersion{integerOf(words[1]), integerOf(words[2])});
}

void runLibrary(Session& session, Words words)
{
    session.machine().system.loadFrom(textOf(words[1]));
}

std::uint32_t categoryOf(const Word& word)
{
    static constexpr std::pair<std::u16string_view, TraceCategory> names[] = {
        {u"events", TraceCategory::events}, {u"changed", TraceCategory::changed}, {u"dialogs", TraceCategory::dialogs},
        {u"keys", TraceCategory::keys},     {u"log", TraceCategory::log},         {u"tooltip", TraceCategory::tooltip},
        {u"focus", TraceCategory::focus},   {u"window", TraceCategory::window},
    };
    std::vector<std::u16string_view> known{u"all", u"none"};
    for (const auto& [name, category] : names) {
        if (word.is(name))
            return categoryBit(category);
        known.push_back(name);
    }
    notACommand("no such category", word, known);
}

void runTrace(Session& session, Words words)
{
    std::uint32_t categories = 0;
    if (words.size() == 2 && words[1].is(u"all"))
        categories = ~0U;
    else if (words.size() > 2 || !words[1].is(u"none"))
        for (const Word& word : words.subspan(1))
            categories |= categoryOf(word);
    session.tracePrinter().show(categories);
}

void runAnswer(Session& session, Words words)
{
    static constexpr std::pair<std::u16string_view, platform::BoxAnswer> names[] = {
        {u"ok", platform::BoxAnswer::ok},
        {u"yes", platform::BoxAnswer::yes},
        {u"no", platform::BoxAnswer::no},
        {u"cancel", platform::BoxAnswer::cancel},
    };
    headless::Desktop& desktop = session.machine().desktop;
    for (const auto& [name, answer] : names) {
        if (words[1].is(name)) {
            desktop.queueAnswer(answer);
            return;
        }
    }
    if (words[1].isText())
        desktop.queueAnswer(words[1].text);
    else
        desktop.queueAnswer(colourOf(words[1]));
}

void runPrint(Session& session, Words words)
{
    session.printLine(toUtf8(textOf(words[1])));
}

} // namespace

CommandTable runCommands() noexcept
{
    static constexpr Command commands[] = {
        {u"locale", 2, 2, runLocale,
         "locale pt-BR|en-US\n"
         "  The user's locale (at the start: pt-BR)."},
        {u"clock", 2, 2, runClock,
         "clock DATE\n"
         "  Stops the local clock at a date such as #2024-02-29# or #2024-02-29 14:05:33#."},
        {u"windows", 3, 3, runWindows,
         "windows PLATFORM MINOR\n"
         "  The version that the system reports (at the start: 2 0)."},
        {u"library", 2, 2, runLibrary,
         "library \"FOLDER\"\n"
         "  The folder that the library was loaded from: its error log stands there."},
        {u"trace", 2, 9, runTrace,
         "trace CATEGORY...|all|none\n"
         "  What is printed as it happens, in place of the former categories: events changed dialogs keys log tooltip\n"
         "  focus window (at the start: dialogs keys log)."},
        {u"answer", 2, 2, runAnswer,
         "answer ok|yes|no|cancel|\"TEXT\"|COLOUR\n"
         "  Queues the answer to the next message box, input box or palette."},
        {u"print", 2, 2, runPrint,
         "print \"TEXT\"\n"
         "  Prints the text."},
    };
    return commands;
}

} // namespace vela::console
