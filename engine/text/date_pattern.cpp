// Dates through the letters of a pattern.
#include "engine/text/date_pattern.h"

#include "engine/text/date_text.h"

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
        switch (mark) {
        case Mark::weekday: return writer_.number(engine::weekday(date), 1);
        case Mark::weekOfYear: return writer_.number(weekOfYear(date), 1);
        case Mark::dayOfYear: return writer_.number(engine::dayOfYear(date), 1);
        case Mark::yearShort: return putLetters(u'y', 2);
        case Mark::yearLong: return putLetters(u'y', 4);
        default: return mark < Mark::weekday ? putRun(u'd', mark, Mark::day) : putRun(u'm', mark, Mark::month);
        }
    }

    void putTime(Mark mark)
    {
        const bool morning = moment_.time.hour < 12;
        switch (mark) {
        case Mark::hour:
        case Mark::hourZero: return putRun(u'h', mark, Mark::hour);
        case Mark::minute:
        case Mark::minuteZero: return putRun(u'n', mark, Mark::minute);
        case Mark::second:
        case Mark::secondZero: return putRun(u's', mark, Mark::second);
        case Mark::halfOfLocale: return writer_.put(morning ? locale_.am : locale_.pm);
        case Mark::halfUpper: return writer_.put(std::u16string_view(morning ? u"AM" : u"PM"));
        case Mark::halfLower: return writer_.put(std::u16string_view(morning ? u"am" : u"pm"));
        case Mark::letterUpper: return writer_.put(morning ? u'A' : u'P');
        default: return writer_.put(morning ? u'a' : u'p');
        }
    }

    // The marks of one letter follow each other by the number of letters.
    void putRun(char16_t letter, Mark mark, Mark one)
    {
        putLetters(letter, static_cast<int>(mark) - static_cast<int>(one) + 1);
    }
    void putLetters(char16_t letter, int length)
    {
        putDateLetters(letter, length, moment_, section_.twelveHours, locale_, writer_);
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
