// Reads a date text by a date picture: for each letter of the picture, what it could have written.
#include "engine/text/date_form.h"

#include "engine/text/characters.h"
#include "engine/text/date_text.h"
#include "engine/text/letter_case.h"

#include <span>

namespace vela::engine {
namespace {

class PictureReader {
public:
    PictureReader(std::u16string_view text, const Locale& locale) noexcept : text_(text), locale_(locale) {}

    // Continues at the position where the previous picture ended.
    [[nodiscard]] bool read(std::u16string_view picture) noexcept
    {
        for (std::size_t at = 0; at < picture.size();) {
            const auto rest = picture.substr(at);
            if (rest.front() == u'\'') {
                const std::size_t length = quotedLength(rest);
                if (!takeQuoted(rest.substr(0, length)))
                    return false;
                at += length;
                continue;
            }
            const bool half = rest.starts_with(halfMark);
            const std::size_t length = half ? halfMark.size() : std::min(rest.find_first_not_of(rest[0]), rest.size());
            if (!(half || rest[0] == u't' ? takeHalf() : takeLetters(rest.substr(0, length))))
                return false;
            at += length;
        }
        return true;
    }

    [[nodiscard]] bool take(std::u16string_view part) noexcept
    {
        const bool found = startsWithIgnoringCase(text_.substr(at_), part);
        at_ += found ? part.size() : 0;
        return found;
    }

    [[nodiscard]] bool atEnd() const noexcept { return at_ == text_.size(); }

    [[nodiscard]] Moment moment() const noexcept
    {
        Moment moment = moment_;
        if (half_ != Half::none)
            moment.time.hour = moment.time.hour % 12 + (half_ == Half::afternoon ? 12 : 0);
        return moment;
    }

private:
    enum class Half { none, morning, afternoon };

    static std::size_t quotedLength(std::u16string_view picture) noexcept
    {
        std::size_t at = 1;
        for (; at < picture.size(); ++at) {
            if (picture[at] == u'\'' && picture.substr(at + 1, 1) != u"'")
                return at + 1;
            at += picture[at] == u'\'' ? 1 : 0;
        }
        return at;
    }

    [[nodiscard]] bool takeQuoted(std::u16string_view quoted) noexcept
    {
        for (std::size_t at = 1; at < quoted.size(); ++at) {
            if (quoted[at] == u'\'' && ++at == quoted.size())
                return true;
            if (!take(quoted.substr(at, 1)))
                return false;
        }
        return true;
    }

    [[nodiscard]] bool takeHalf() noexcept
    {
        const bool longerFirst = locale_.am.size() > locale_.pm.size();
        const bool morning = longerFirst ? take(locale_.am) : !takesAfternoon() && take(locale_.am);
        if (!morning && !take(locale_.pm))
            return false;
        half_ = locale_.am == locale_.pm ? Half::none : morning ? Half::morning : Half::afternoon;
        return true;
    }
    [[nodiscard]] bool takesAfternoon() const noexcept
    {
        return !locale_.pm.empty() && startsWithIgnoringCase(text_.substr(at_), locale_.pm);
    }

    [[nodiscard]] bool takeLetters(std::u16string_view run) noexcept
    {
        const std::size_t length = run.size();
        int ignored = 0;
        switch (run.front()) {
        case u'd':
            return length <= 2
                       ? takeNumber(1, 2, moment_.date.day)
                       : takeName(length == 3 ? std::span(locale_.shortDays) : std::span(locale_.days), ignored);
        case u'm':
        case u'M':
            return length <= 2 ? takeNumber(1, 2, moment_.date.month)
                               : takeName(length == 3 ? std::span(locale_.shortMonths) : std::span(locale_.months),
                                          moment_.date.month);
        case u'y': return length <= 2 ? takeNumber(1, 2, moment_.date.year) : takeNumber(3, 4, moment_.date.year);
        case u'H':
        case u'h': return takeNumber(1, 2, moment_.time.hour);
        case u'n': return takeNumber(1, 2, moment_.time.minute);
        case u's': return takeNumber(1, 2, moment_.time.second);
        default: return take(run);
        }
    }

    [[nodiscard]] bool takeNumber(int least, int most, int& value) noexcept
    {
        int digits = 0;
        for (value = 0; digits < most && at_ < text_.size() && isDigit(text_[at_]); ++digits, ++at_)
            value = value * 10 + (text_[at_] - u'0');
        return digits >= least;
    }

    // The longest name that fits: "10月" is not "1", then "0月".
    template <std::size_t count>
    [[nodiscard]] bool takeName(std::span<const std::u16string, count> names, int& value) noexcept
    {
        std::size_t longest = 0;
        for (std::size_t i = 0; i < count; ++i) {
            if (names[i].size() > longest && startsWithIgnoringCase(text_.substr(at_), names[i])) {
                longest = names[i].size();
                value = static_cast<int>(i + 1);
            }
        }
        at_ += longest;
        return longest > 0;
    }

    std::u16string_view text_;
    const Locale& locale_;
    std::size_t at_ = 0;
    Moment moment_{};
    Half half_ = Half::none;
};

} // namespace

std::optional<Moment> readOwnForm(std::u16string_view text, const Locale& locale) noexcept
{
    PictureReader date(text, locale);
    if (date.read(locale.shortDate) &&
        (date.atEnd() || (date.take(u" ") && date.read(locale.longTime) && date.atEnd())))
        return date.moment();
    PictureReader time(text, locale);
    if (time.read(locale.longTime) && time.atEnd())
        return time.moment();
    return std::nullopt;
}

} // namespace vela::engine
