// Dates to texts in the locale's own forms.
#include "engine/text/date_text.h"

#include "engine/error.h"

namespace vela::engine {
namespace {

bool hasHalf(std::u16string_view picture) noexcept
{
    return picture.find(halfMark) != std::u16string_view::npos || picture.find(u't') != std::u16string_view::npos;
}

class PictureWriter {
public:
    PictureWriter(const Moment& moment, std::u16string_view picture, const Locale& locale, TextWriter& writer) noexcept
        : moment_(moment), picture_(picture), locale_(locale), writer_(writer), twelveHours_(hasHalf(picture))
    {
    }

    void write()
    {
        while (at_ < picture_.size()) {
            if (picture_[at_] == u'\'') {
                quoted();
            } else if (picture_.substr(at_).starts_with(halfMark)) {
                half();
                at_ += halfMark.size();
            } else {
                const char16_t letter = picture_[at_];
                const int length = runOf(letter);
                letter == u't' ? half() : putDateLetters(letter, length, moment_, twelveHours_, locale_, writer_);
            }
        }
    }

private:
    [[nodiscard]] int runOf(char16_t letter) noexcept
    {
        int length = 0;
        for (; at_ < picture_.size() && picture_[at_] == letter; ++at_)
            ++length;
        return length;
    }

    // Two apostrophes inside are one: "'o''clock'" -> o'clock.
    void quoted()
    {
        for (++at_; at_ < picture_.size(); ++at_) {
            if (picture_[at_] == u'\'' && (++at_ == picture_.size() || picture_[at_] != u'\''))
                return;
            writer_.put(picture_[at_]);
        }
    }

    void half() { writer_.put(moment_.time.hour < 12 ? locale_.am : locale_.pm); }

    const Moment& moment_;
    std::u16string_view picture_;
    const Locale& locale_;
    TextWriter& writer_;
    std::size_t at_ = 0;
    bool twelveHours_;
};

void putDay(CivilDate date, int length, const Locale& locale, TextWriter& writer)
{
    if (length <= 2)
        return writer.number(date.day, length);
    const auto name = static_cast<std::size_t>(weekday(date) - 1);
    writer.put(length == 3 ? locale.shortDays[name] : locale.days[name]);
}

void putMonth(CivilDate date, int length, const Locale& locale, TextWriter& writer)
{
    if (length <= 2)
        return writer.number(date.month, length);
    const auto name = static_cast<std::size_t>(date.month - 1);
    writer.put(length == 3 ? locale.shortMonths[name] : locale.months[name]);
}

} // namespace

void putDateLetters(char16_t letter, int length, const Moment& moment, bool twelveHours, const Locale& locale,
                    TextWriter& writer)
{
    const int width = length < 2 ? 1 : 2;
    const auto [hour, minute, second] = moment.time;
    switch (letter) {
    case u'd': return putDay(moment.date, length, locale, writer);
    case u'm':
    case u'M': return putMonth(moment.date, length, locale, writer);
    case u'y': return length <= 2 ? writer.number(moment.date.year % 100, width) : writer.number(moment.date.year, 1);
    case u'H': return writer.number(hour, width);
    case u'h': return writer.number(twelveHours ? (hour + 11) % 12 + 1 : hour, width);
    case u'n': return writer.number(minute, width);
    case u's': return writer.number(second, width);
    default: writer.repeat(letter, static_cast<std::size_t>(length));
    }
}

void putPicture(const Moment& moment, std::u16string_view picture, const Locale& locale, TextWriter& writer)
{
    PictureWriter(moment, picture, locale, writer).write();
}

void putDate(const Moment& moment, const Locale& locale, TextWriter& writer)
{
    const bool timeOnly = moment.date == CivilDate{};
    if (!timeOnly)
        putPicture(moment, locale.shortDate, locale, writer);
    if (timeOnly || moment.time != TimeOfDay{}) {
        if (!timeOnly)
            writer.put(u' ');
        putPicture(moment, locale.longTime, locale, writer);
    }
}

std::u16string dateToText(Date date, const Locale& locale)
{
    const auto moment = momentOf(date);
    if (!moment)
        raise(error_number::overflow);
    std::u16string text;
    TextWriter writer(text);
    putDate(*moment, locale, writer);
    writer.flush();
    return text;
}

} // namespace vela::engine
