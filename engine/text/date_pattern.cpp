// Dates through the letters of a pattern.
#include "engine/text/compiled_pattern.h"
#include "engine/text/number_text.h"

namespace vela::engine {
namespace {

// The week that holds 1 January is the first; weeks begin on Sunday.
int weekOfYear(CivilDate date) noexcept
{
    return (dayOfYear(date) + weekday({date.year, 1, 1}) - 2) / 7 + 1;
}

class DatePatternWriter {
public:
    DatePatternWriter(const Pattern::Compiled& pattern, const Moment& moment, const Locale& locale,
                      TextWriter& writer) noexcept
        : pattern_(pattern), section_(pattern.sections[0]), moment_(moment), locale_(locale), writer_(writer)
    {
    }

    void write()
    {
        for (const Token& token : pattern_.tokensOf(section_))
            if (token.mark == Mark::literal)
                writer_.put(pattern_.literal(token));
            else if (token.mark >= Mark::hour)
                putTime(token.mark);
            else if (token.mark >= Mark::day)
                putDay(token.mark);
            else
                putWhole(token.mark);
    }

private:
    void putWhole(Mark mark)
    {
        switch (mark) {
        case Mark::dateSeparator: return writer_.put(locale_.dateSeparator);
        case Mark::timeSeparator: return writer_.put(locale_.timeSeparator);
        case Mark::generalDate: return putDate(moment_, locale_, writer_);
        case Mark::shortDate: return putPicture(moment_, locale_.shortDate, locale_, writer_);
        case Mark::longDate: return putPicture(moment_, locale_.longDate, locale_, writer_);
        case Mark::longTime: return putPicture(moment_, locale_.longTime, locale_, writer_);
        default: return writer_.number((moment_.date.month + 2) / 3, 1); // quarter
        }
    }

    void putDay(Mark mark)
    {
        const CivilDate date = moment_.date;
        const auto dayName = [&] { return static_cast<std::size_t>(engine::weekday(date) - 1); };
        const auto monthName = static_cast<std::size_t>(date.month - 1);
        switch (mark) {
        case Mark::day: return writer_.number(date.day, 1);
        case Mark::dayZero: return writer_.number(date.day, 2);
        case Mark::dayShort: return writer_.put(locale_.shortDays[dayName()]);
        case Mark::dayLong: return writer_.put(locale_.days[dayName()]);
        case Mark::weekday: return writer_.number(engine::weekday(date), 1);
        case Mark::weekOfYear: return writer_.number(weekOfYear(date), 1);
        case Mark::month: return writer_.number(date.month, 1);
        case Mark::monthZero: return writer_.number(date.month, 2);
        case Mark::monthShort: return writer_.put(locale_.shortMonths[monthName]);
        case Mark::monthLong: return writer_.put(locale_.months[monthName]);
        case Mark::dayOfYear: return writer_.number(engine::dayOfYear(date), 1);
        case Mark::yearShort: return writer_.number(date.year % 100, 2);
        default: return writer_.number(date.year, 1); // the long year
        }
    }

    void putTime(Mark mark)
    {
        const TimeOfDay time = moment_.time;
        const bool morning = time.hour < 12;
        const int hour = section_.twelveHours ? (time.hour + 11) % 12 + 1 : time.hour;
        switch (mark) {
        case Mark::hour: return writer_.number(hour, 1);
        case Mark::hourZero: return writer_.number(hour, 2);
        case Mark::minute: return writer_.number(time.minute, 1);
        case Mark::minuteZero: return writer_.number(time.minute, 2);
        case Mark::second: return writer_.number(time.second, 1);
        case Mark::secondZero: return writer_.number(time.second, 2);
        case Mark::halfOfLocale: return writer_.put(morning ? locale_.am : locale_.pm);
        case Mark::halfUpper: return writer_.put(std::u16string_view(morning ? u"AM" : u"PM"));
        case Mark::halfLower: return writer_.put(std::u16string_view(morning ? u"am" : u"pm"));
        case Mark::letterUpper: return writer_.put(morning ? u'A' : u'P');
        default: return writer_.put(morning ? u'a' : u'p');
        }
    }

    const Pattern::Compiled& pattern_;
    const Section& section_;
    const Moment& moment_;
    const Locale& locale_;
    TextWriter& writer_;
};

} // namespace

void putDatePattern(const Pattern::Compiled& pattern, const Moment& moment, const Locale& locale, TextWriter& writer)
{
    DatePatternWriter(pattern, moment, locale, writer).write();
}

} // namespace vela::engine
