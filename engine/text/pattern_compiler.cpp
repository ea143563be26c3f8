// Pattern texts to marks.
#include "engine/text/pattern_compiler.h"

#include "engine/text/characters.h"

#include <algorithm>
#include <optional>

namespace vela::engine {
namespace {

struct NamedFormat {
    std::u16string_view name; // in small letters
    std::u16string_view pattern;
    NamedNumber number = NamedNumber::none;
};

constexpr std::array<NamedFormat, 16> namedFormats{{
    {u"currency", u"#,##0.00", NamedNumber::currency},
    {u"fixed", u"0.00"},
    {u"general date", u"c"},
    {u"general number", u"", NamedNumber::general},
    {u"long date", u"dddddd"},
    {u"long time", u"ttttt"},
    {u"medium date", u"dd-mmm-yy"},
    {u"medium time", u"hh:nn AMPM"},
    {u"on/off", u"0", NamedNumber::onOff},
    {u"percent", u"0.00%"},
    {u"scientific", u"0.00E+00"},
    {u"short date", u"ddddd"},
    {u"short time", u"hh:nn"},
    {u"standard", u"#,##0.00"},
    {u"true/false", u"0", NamedNumber::trueFalse},
    {u"yes/no", u"0", NamedNumber::yesNo},
}};

const NamedFormat* findNamed(std::u16string_view text) noexcept
{
    const auto found = std::ranges::find_if(
        namedFormats, [&](const NamedFormat& format) { return equalIgnoringCase(text, format.name); });
    return found == namedFormats.end() ? nullptr : &*found;
}

class PatternCompiler {
public:
    explicit PatternCompiler(Pattern::Compiled& pattern) noexcept : pattern_(pattern), text_(pattern.text) {}

    void compile()
    {
        pattern_.kind = PatternKind::unknown;
        beginSection();
        while (at_ < text_.size() && !pattern_.tooManySections)
            takeOne();
        endSection();
    }

private:
    void takeOne()
    {
        switch (text_[at_]) {
        case u';': return takeSections();
        case u'\\': return takeEscape();
        case u'"': return takeQuoted();
        default: break;
        }
        if (!takeNumberMark() && !takeDateMark() && !takeTextMark())
            takeLiteral();
    }

    // The first mark of the first section settles what the pattern formats; marks of another kind are literals. Behind
    // a first section without marks there can only be those of numbers: ";(0.00)".
    [[nodiscard]] bool couldBe(PatternKind kind) const noexcept
    {
        return pattern_.kind == kind ||
               (pattern_.kind == PatternKind::unknown && (sectionIndex_ == 0 || kind == PatternKind::number));
    }
    void settle(PatternKind kind) noexcept { pattern_.kind = kind; }

    [[nodiscard]] char16_t peek(std::size_t ahead = 0) const noexcept
    {
        return at_ + ahead < text_.size() ? text_[at_ + ahead] : u'\0';
    }
    [[nodiscard]] std::uint32_t takeRun(char16_t smallLetter, std::uint32_t most) noexcept
    {
        std::uint32_t length = 0;
        for (; length < most && lowerLetter(peek()) == smallLetter && at_ < text_.size(); ++at_)
            ++length;
        return length;
    }
    void add(Mark mark, std::uint32_t length = 0)
    {
        pattern_.tokens.push_back({.mark = mark, .length = length});
        if (mark != Mark::dateSeparator && mark != Mark::timeSeparator)
            hoursBefore_ = mark == Mark::hour || mark == Mark::hourZero;
    }

    void beginSection()
    {
        section_ = &pattern_.sections[sectionIndex_];
        section_->first = static_cast<std::uint32_t>(pattern_.tokens.size());
        section_->written = true;
        commas_ = 0;
        zeroSeen_ = hoursBefore_ = false;
    }

    void endSection() noexcept
    {
        section_->last = static_cast<std::uint32_t>(pattern_.tokens.size());
        section_->thousands += commas_;
    }

    // A section without anything in it, or with nothing more behind it, is as good as not there.
    void takeSections()
    {
        endSection();
        for (; peek() == u';'; ++at_) {
            if (++sectionIndex_ == pattern_.sections.size()) {
                pattern_.tooManySections = true;
                return;
            }
        }
        if (at_ < text_.size())
            beginSection();
    }

    void takeEscape()
    {
        if (++at_ < text_.size())
            addLiteral(at_++, 1);
    }

    void takeQuoted()
    {
        const std::size_t start = at_ + 1;
        const std::size_t end = std::min(text_.find(u'"', start), text_.size());
        if (end > start)
            addLiteral(start, end - start);
        at_ = std::min(end + 1, text_.size());
    }

    void takeLiteral()
    {
        section_->percent = section_->percent || text_[at_] == u'%';
        addLiteral(at_++, 1);
    }

    void addLiteral(std::size_t start, std::size_t length)
    {
        if (pattern_.tokens.size() > section_->first) {
            Token& last = pattern_.tokens.back();
            if (last.mark == Mark::literal && last.start + last.length == start) {
                last.length += static_cast<std::uint32_t>(length);
                return;
            }
        }
        pattern_.tokens.push_back({.mark = Mark::literal,
                                   .start = static_cast<std::uint32_t>(start),
                                   .length = static_cast<std::uint32_t>(length)});
    }

    [[nodiscard]] bool takeNumberMark()
    {
        if (!couldBe(PatternKind::number))
            return false;
        const char16_t unit = peek();
        if (unit == u'0' || unit == u'#') {
            takeDigits(unit);
        } else if (unit == u'.' && !section_->decimal) {
            ++at_;
            settle(PatternKind::number);
            section_->decimal = true;
            section_->thousands += commas_;
            commas_ = 0;
            add(Mark::decimal);
        } else if (pattern_.kind == PatternKind::number && unit == u',') {
            ++at_;
            ++commas_;
        } else {
            return pattern_.kind == PatternKind::number && takeExponent();
        }
        return true;
    }

    void takeDigits(char16_t unit)
    {
        settle(PatternKind::number);
        const std::uint32_t length = takeRun(unit, UINT32_MAX);
        section_->grouping = section_->grouping || commas_ > 0;
        commas_ = 0;
        if (section_->decimal) {
            section_->fraction += length;
        } else {
            zeroSeen_ = zeroSeen_ || unit == u'0';
            section_->skipped += zeroSeen_ ? 0 : length;
            section_->whole += length;
        }
        add(unit == u'0' ? Mark::zero : Mark::hash, length);
    }

    [[nodiscard]] bool takeExponent()
    {
        const char16_t letter = peek(), sign = peek(1);
        if (lowerLetter(letter) != u'e' || (sign != u'+' && sign != u'-'))
            return false;
        at_ += 2;
        section_->exponent = true;
        pattern_.tokens.push_back({.mark = Mark::exponent,
                                   .smallLetter = letter == u'e',
                                   .plusSign = sign == u'+',
                                   .length = takeExponentPlaces()});
        return true;
    }

    // How many "0" there are: "E+0##" has one place that is always written.
    [[nodiscard]] std::uint32_t takeExponentPlaces() noexcept
    {
        std::uint32_t zeros = 0;
        for (; peek() == u'0' || peek() == u'#'; ++at_)
            zeros += peek() == u'0' ? 1 : 0;
        return zeros;
    }

    [[nodiscard]] bool takeDateMark()
    {
        if (!couldBe(PatternKind::date) || !(takeHalf() || takeDateLetters()))
            return false;
        settle(PatternKind::date);
        return true;
    }

    // "AM/PM" and its kin turn the hours of their section to twelve.
    [[nodiscard]] bool takeHalf()
    {
        const auto mark = halfMark();
        if (mark) {
            add(*mark);
            section_->twelveHours = true;
        }
        return mark.has_value();
    }

    [[nodiscard]] std::optional<Mark> halfMark() noexcept
    {
        const auto rest = text_.substr(at_);
        if (rest.size() >= 4 && equalIgnoringCase(rest.substr(0, 4), u"ampm")) {
            at_ += 4;
            return Mark::halfOfLocale;
        }
        if (rest.starts_with(u"AM/PM") || rest.starts_with(u"am/pm")) {
            at_ += 5;
            return rest.front() == u'A' ? Mark::halfUpper : Mark::halfLower;
        }
        if (rest.size() >= 3 && equalIgnoringCase(rest.substr(0, 3), u"a/p")) {
            at_ += 3;
            return rest.front() == u'A' ? Mark::letterUpper : Mark::letterLower;
        }
        return std::nullopt;
    }

    [[nodiscard]] bool takeDateLetters()
    {
        switch (lowerLetter(peek())) {
        case u'/': return takeSingle(Mark::dateSeparator);
        case u':': return takeSingle(Mark::timeSeparator);
        case u'c': return takeSingle(Mark::generalDate);
        case u'q': return takeSingle(Mark::quarter);
        case u'd': return takeDay();
        case u'm': return takeMonth();
        case u'y': return takeYear();
        case u'h': return takePair(u'h', Mark::hour, Mark::hourZero);
        case u'n': return takePair(u'n', Mark::minute, Mark::minuteZero);
        case u's': return takePair(u's', Mark::second, Mark::secondZero);
        case u'w': return takePair(u'w', Mark::weekday, Mark::weekOfYear);
        case u't': return takeLongTime();
        default: return false;
        }
    }

    [[nodiscard]] bool takeSingle(Mark mark)
    {
        ++at_;
        add(mark);
        return true;
    }

    [[nodiscard]] bool takePair(char16_t letter, Mark one, Mark two)
    {
        add(takeRun(letter, 2) == 1 ? one : two);
        return true;
    }

    [[nodiscard]] bool takeDay()
    {
        static constexpr std::array marks{Mark::day,     Mark::dayZero,   Mark::dayShort,
                                          Mark::dayLong, Mark::shortDate, Mark::longDate};
        add(marks[takeRun(u'd', marks.size()) - 1]);
        return true;
    }

    // One or two letters right behind an hour are minutes: "hh:mm mm/dd".
    [[nodiscard]] bool takeMonth()
    {
        static constexpr std::array marks{Mark::month, Mark::monthZero, Mark::monthShort, Mark::monthLong};
        const std::uint32_t length = takeRun(u'm', marks.size());
        if (length <= 2 && hoursBefore_)
            add(length == 1 ? Mark::minute : Mark::minuteZero);
        else
            add(marks[length - 1]);
        return true;
    }

    // Three letters are a year of two digits and a day of the year: "yyy" -> "yy" "y".
    [[nodiscard]] bool takeYear()
    {
        const std::uint32_t length = takeRun(u'y', 4);
        at_ -= length == 3 ? 1 : 0;
        add(length == 1 ? Mark::dayOfYear : length == 4 ? Mark::yearLong : Mark::yearShort);
        return true;
    }

    [[nodiscard]] bool takeLongTime()
    {
        if (!equalIgnoringCase(text_.substr(at_, 5), u"ttttt"))
            return false;
        at_ += 5;
        add(Mark::longTime);
        return true;
    }

    [[nodiscard]] bool takeTextMark()
    {
        if (!couldBe(PatternKind::text))
            return false;
        const char16_t unit = peek();
        switch (unit) {
        case u'@':
        case u'&': {
            const std::uint32_t length = takeRun(unit, UINT32_MAX);
            section_->characters += length;
            add(unit == u'@' ? Mark::at : Mark::ampersand, length);
            break;
        }
        case u'<':
            section_->lower = true;
            ++at_;
            break;
        case u'>':
            section_->upper = true;
            ++at_;
            break;
        case u'!':
            section_->fromLeft = true;
            ++at_;
            break;
        default: return false;
        }
        settle(PatternKind::text);
        return true;
    }

    Pattern::Compiled& pattern_;
    std::u16string_view text_;
    std::size_t at_ = 0;
    std::size_t sectionIndex_ = 0;
    Section* section_ = nullptr;
    int commas_ = 0; // since the last digit mark
    bool zeroSeen_ = false;
    bool hoursBefore_ = false; // the last mark, separators aside
};

} // namespace

Pattern::Compiled compilePattern(std::u16string_view text)
{
    Pattern::Compiled pattern;
    pattern.source = text;
    pattern.text = untilNul(text);
    if (const NamedFormat* named = findNamed(pattern.text)) {
        pattern.text = named->pattern;
        pattern.named = named->number;
    }
    if (!pattern.text.empty())
        PatternCompiler(pattern).compile();
    return pattern;
}

} // namespace vela::engine
