// Commands that ask the engines directly: formatting, reading, conversions.
#include "apps/console/session.h"
#include "apps/console/value_text.h"

#include "engine/text/conversions.h"
#include "engine/text/letter_case.h"
#include "engine/text/pattern.h"
#include "tooltip/windows_version.h"

namespace vela::console {

namespace {

using engine::Value;

constexpr int mostDecimals = 255;

const engine::Locale& localeOf(Session& session)
{
    return session.machine().locales.locale();
}

engine::Date todayOf(Session& session)
{
    return session.machine().clock.now();
}

void answer(Session& session, const std::string& printedValue)
{
    session.printLine("= " + printedValue);
}

std::u16string onlyText(Session& session, Words words)
{
    return engine::toText(valueOf(words[1]), localeOf(session));
}

void runFormat(Session& session, Words words)
{
    const Value value = valueOf(words[1]);
    const std::u16string& pattern = textOf(words[2]);
    answer(session, quoted(engine::format(value, pattern, localeOf(session), todayOf(session))));
}

void runIsNumeric(Session& session, Words words)
{
    answer(session, printed(engine::isNumeric(valueOf(words[1]), localeOf(session))));
}

void runIsDate(Session& session, Words words)
{
    const Value value = valueOf(words[1]);
    const auto* const text = std::get_if<std::u16string>(&value);
    const bool date = text != nullptr ? engine::isDate(*text, localeOf(session), todayOf(session))
                                      : std::holds_alternative<engine::Date>(value);
    answer(session, printed(date));
}

void runToDouble(Session& session, Words words)
{
    answer(session, printed(Value(engine::toDouble(valueOf(words[1]), localeOf(session)))));
}

void runToDate(Session& session, Words words)
{
    answer(session, printed(Value(engine::toDate(valueOf(words[1]), localeOf(session), todayOf(session)))));
}

// Exactly, without the zeros at the end: {-125000} -> "-12.5".
std::string printedCurrency(engine::Currency amount)
{
    const bool negative = amount.tenThousandths < 0;
    const auto raw = static_cast<std::uint64_t>(amount.tenThousandths);
    const std::uint64_t size = negative ? 0 - raw : raw;
    std::string decimals = std::to_string(10000 + size % 10000).substr(1);
    decimals.resize(decimals.find_last_not_of('0') + 1);
    return (negative ? "-" : "") + std::to_string(size / 10000) + (decimals.empty() ? "" : ".") + decimals;
}

// Texts are read as amounts; any other value is its number's: True -> -1.
void runToCurrency(Session& session, Words words)
{
    const Value value = valueOf(words[1]);
    const engine::Locale& locale = localeOf(session);
    const auto* const text = std::get_if<std::u16string>(&value);
    const auto amount = text != nullptr ? *text : engine::numberToText(engine::toDouble(value, locale), locale);
    answer(session, printedCurrency(engine::toCurrency(amount, locale)));
}

void runVal(Session& session, Words words)
{
    answer(session, printed(Value(engine::leadingNumber(onlyText(session, words)))));
}

void runToText(Session& session, Words words)
{
    answer(session, quoted(onlyText(session, words)));
}

void runFormatNumber(Session& session, Words words)
{
    const Value value = valueOf(words[1]);
    const int decimals = integerOf(words[2]);
    const double number = engine::toDouble(value, localeOf(session));
    if (decimals < 0 || decimals > mostDecimals)
        engine::raise(engine::error_number::invalidCall);
    answer(session, quoted(engine::formatNumber(number, decimals, localeOf(session))));
}

void runProperCase(Session& session, Words words)
{
    answer(session, quoted(engine::properCase(onlyText(session, words))));
}

void runWindowsVersion(Session& session, Words)
{
    answer(session, quoted(tooltip::VersaoWindows(session.machine().system)));
}

} // namespace

CommandTable engineCommands() noexcept
{
    static constexpr Command commands[] = {
        {u"format", 3, 3, runFormat,
         "format VALUE \"PATTERN\"\n"
         "  Prints the value formatted with the pattern."},
        {u"isnumeric", 2, 2, runIsNumeric,
         "isnumeric \"TEXT\"\n"
         "  Prints whether the text is a number in the locale."},
        {u"isdate", 2, 2, runIsDate,
         "isdate \"TEXT\"\n"
         "  Prints whether the text is a date or time in the locale."},
        {u"todouble", 2, 2, runToDouble,
         "todouble \"TEXT\"\n"
         "  Prints the number that the text is."},
        {u"todate", 2, 2, runToDate,
         "todate \"TEXT\"\n"
         "  Prints the date that the text is."},
        {u"tocurrency", 2, 2, runToCurrency,
         "tocurrency \"TEXT\"\n"
         "  Prints the amount that the text is, with at most four decimals."},
        {u"val", 2, 2, runVal,
         "val \"TEXT\"\n"
         "  Prints the number that the text begins with; a dot is its decimal symbol in every locale."},
        {u"totext", 2, 2, runToText,
         "totext VALUE\n"
         "  Prints the value as a text in the locale."},
        {u"formatnumber", 3, 3, runFormatNumber,
         "formatnumber VALUE DECIMALS\n"
         "  Prints the number with so many decimals and no grouping."},
        {u"propercase", 2, 2, runProperCase,
         "propercase \"TEXT\"\n"
         "  Prints the text as a proper name is written."},
        {u"windowsversion", 1, 1, runWindowsVersion,
         "windowsversion\n"
         "  Prints the name of the reported version of the system."},
    };
    return commands;
}

} // namespace vela::console
