// The date format check and the mask preparation.
#include "pages/principal_rules.h"

namespace vela::pages {

namespace {

constexpr std::u16string_view separators = u",./-;=*:";
constexpr std::u16string_view placeholders = u"dmyhnsDMYHNS";
constexpr std::u16string_view ruleMarks = u"#@?";

bool occurs(char16_t unit, std::u16string_view in) noexcept
{
    return in.find(unit) != std::u16string_view::npos;
}

} // namespace

DateFormatFault checkDateFormat(std::u16string_view format) noexcept
{
    bool placeholder = false;
    for (const char16_t unit : format)
        if (occurs(unit, placeholders))
            placeholder = true;
        else if (!occurs(unit, separators))
            return DateFormatFault::character;
    return placeholder ? DateFormatFault::none : DateFormatFault::noPlaceholder;
}

std::u16string prepareMask(std::u16string_view mask, std::u16string_view prompt)
{
    std::u16string prepared;
    for (const char16_t unit : mask)
        if (!prompt.empty() && occurs(unit, ruleMarks))
            prepared += prompt;
        else
            prepared += unit;
    return prepared;
}

} // namespace vela::pages
