// Scanning of date texts.
#include "engine/text/date_scanner.h"

#include "engine/text/characters.h"
#include "engine/text/letter_case.h"

#include <span>

namespace vela::engine {
namespace {

constexpr std::uint32_t mostValue = 100'000'000;

class DateScanner {
public:
    DateScanner(std::u16string_view text, const Locale& locale, DateFields& fields) noexcept
        : text_(text), locale_(locale), fields_(fields)
    {
    }

    [[nodiscard]] bool scan() noexcept
    {
        while (at_ < text_.size()) {
            const char16_t unit = text_[at_];
            if (!(isDigit(unit) ? takeNumber() : canBeginName(unit) ? takeName() : takeSeparator(unit)))
                return false;
        }
        return true;
    }

private:
    // "říjen", "август": any letter of the language.
    [[nodiscard]] static bool canBeginName(char16_t unit) noexcept
    {
        constexpr char16_t firstAccented = 0xC0;
        return isLetter(unit) || (unit >= firstAccented && !isBlank(unit));
    }

    [[nodiscard]] DateField* add() noexcept
    {
        return fields_.count < DateFields::most ? &fields_.field[fields_.count++] : nullptr;
    }
    [[nodiscard]] DateField* last() noexcept { return fields_.count > 0 ? &fields_.field[fields_.count - 1] : nullptr; }

    [[nodiscard]] bool takeNumber() noexcept
    {
        DateField* const field = add();
        if (field == nullptr)
            return false;
        for (; at_ < text_.size() && isDigit(text_[at_]); ++at_)
            if (field->value < mostValue)
                field->value = field->value * 10 + static_cast<std::uint32_t>(text_[at_] - u'0');
        return true;
    }

    [[nodiscard]] bool takeName() noexcept
    {
        if (takeMonth(locale_.months) || takeMonth(locale_.shortMonths))
            return !tooMany_;
        if (takeDay(locale_.days) || takeDay(locale_.shortDays))
            return true;
        if (take(locale_.am) || take(u"am"))
            return markHalf(true);
        if (take(locale_.pm) || take(u"pm"))
            return markHalf(false);
        const char16_t letter = lowerLetter(text_[at_++]);
        return (letter == u'a' || letter == u'p') && markHalf(letter == u'a');
    }

    [[nodiscard]] bool take(std::u16string_view name) noexcept
    {
        if (name.empty() || !startsWithIgnoringCase(text_.substr(at_), name))
            return false;
        at_ += name.size();
        return true;
    }

    [[nodiscard]] bool takeMonth(std::span<const std::u16string, 12> names) noexcept
    {
        for (std::size_t i = 0; i < names.size(); ++i) {
            if (take(names[i])) {
                DateField* const field = add();
                tooMany_ = field == nullptr;
                if (field != nullptr) {
                    field->value = static_cast<std::uint32_t>(i + 1);
                    field->month = true;
                    field->dateSeparator = true;
                }
                return true;
            }
        }
        return false;
    }

    // Skips the name of a day of the week: it is not compared with the date.
    [[nodiscard]] bool takeDay(std::span<const std::u16string, 7> names) noexcept
    {
        for (const auto& name : names)
            if (take(name))
                return true;
        return false;
    }

    // AM or PM is accepted once in a text, and only behind a number.
    [[nodiscard]] bool markHalf(bool morning) noexcept
    {
        DateField* const field = last();
        if (field == nullptr || fields_.hasHalf())
            return false;
        (morning ? field->morning : field->afternoon) = true;
        (morning ? fields_.morning : fields_.afternoon) = true;
        return true;
    }

    [[nodiscard]] bool takeSeparator(char16_t unit) noexcept
    {
        const bool atEnd = ++at_ == text_.size();
        if (DateField* const field = last())
            field->point = unit == u'.' && ++field->separators == 1;
        switch (unit) {
        case u'.': return locale_.dateSeparator.starts_with(u'.') ? markDate(atEnd) : markTime(atEnd);
        case u':': return markTime(atEnd);
        case u'-':
        case u'/': return markDate(atEnd);
        case u',': return !atEnd;
        default: return isBlank(unit);
        }
    }

    [[nodiscard]] bool markTime(bool atEnd) noexcept
    {
        DateField* const field = last();
        if (field == nullptr || atEnd)
            return false;
        field->timeSeparator = true;
        return true;
    }

    [[nodiscard]] bool markDate(bool atEnd) noexcept
    {
        DateField* const field = last();
        if (field == nullptr || atEnd || ++dateSeparators_ > 2)
            return false;
        field->dateSeparator = true;
        return true;
    }

    std::u16string_view text_;
    const Locale& locale_;
    DateFields& fields_;
    std::size_t at_ = 0;
    int dateSeparators_ = 0;
    bool tooMany_ = false;
};

} // namespace

bool scanDateFields(std::u16string_view text, const Locale& locale, DateFields& fields) noexcept
{
    return DateScanner(untilNul(text), locale, fields).scan();
}

} // namespace vela::engine
