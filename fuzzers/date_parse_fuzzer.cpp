// Any text as a date: a date read lies in the calendar, and is read back from what is written of it.
#include "engine/error.h"
#include "engine/text/calendar_date.h"
#include "engine/text/conversions.h"
#include "engine/text/pattern.h"
#include "fuzzers/input.h"

namespace {

using namespace vela::engine;
using vela::fuzz::require;

void checkWritten(Date date, const Locale& locale, Date today)
{
    const auto moment = momentOf(date);
    require(moment.has_value() && isValid(moment->date));
    require(makeDate(moment->date, moment->time).serial == date.serial);
    const auto again = tryParseDate(dateToText(date, locale), locale, today);
    require(again && *again == date);
    const auto picture = format(date, u"yyyy-mm-dd hh:nn:ss", locale, today);
    require(tryParseDate(picture, locale, today) == date);
}

} // namespace

// Byte 0: the locale, byte 1: the two-digit years; then a text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    vela::fuzz::Input input(data, size);
    Locale locale = (input.byte() & 1) != 0 ? enUs() : ptBr();
    locale.twoDigitYearMax = 1999 + input.byte() % 100;
    const Date today = makeDate({2024, 2, 29});
    const std::u16string text = input.rest();
    const auto date = tryParseDate(text, locale, today);
    require(isDate(text, locale, today) == date.has_value());
    try {
        const Date read = toDate(text, locale, today);
        require(date == read);
    } catch (const Error& error) {
        require(!date && (error.number == error_number::typeMismatch || error.number == error_number::overflow));
    }
    if (date)
        checkWritten(*date, locale, today);
    return 0;
}
