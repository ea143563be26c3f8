// Dates to texts in the locale's own forms.
#include "engine/error.h"
#include "engine/text/conversions.h"
#include "engine/text/number_text.h"

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
                letters(letter, runOf(letter));
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

    void day(int length)
    {
        const auto name = static_cast<std::size_t>(weekday(moment_.date) - 1);
        if (length <= 2)
            writer_.number(moment_.date.day, length);
        else
            writer_.put(length == 3 ? locale_.shortDays[name] : locale_.days[name]);
    }

    void month(int length)
    {
        const auto name = static_cast<std::size_t>(moment_.date.month - 1);
        if (length <= 2)
            writer_.number(moment_.date.month, length);
        else
            writer_.put(length == 3 ? locale_.shortMonths[name] : locale_.months[name]);
    }

    void letters(char16_t letter, int length)
    {
        const int width = length < 2 ? 1 : 2;
        const int hour = moment_.time.hour;
        switch (letter) {
        case u'd': return day(length);
        case u'm':
        case u'M': return month(length);
        case u'y':
            return length <= 2 ? writer_.number(moment_.date.year % 100, width) : writer_.number(moment_.date.year, 1);
        case u'H': return writer_.number(hour, width);
        case u'h': return writer_.number(twelveHours_ ? (hour + 11) % 12 + 1 : hour, width);
        case u'n': return writer_.number(moment_.time.minute, width);
        case u's': return writer_.number(moment_.time.second, width);
        case u't': return half();
        default: writer_.repeat(letter, static_cast<std::size_t>(length));
        }
    }

    const Moment& moment_;
    std::u16string_view picture_;
    const Locale& locale_;
    TextWriter& writer_;
    std::size_t at_ = 0;
    bool twelveHours_;
};

} // namespace

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
