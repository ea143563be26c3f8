// The recorder of boxes, log records and windows.
#include "tests/popups/scripted_owner.h"

namespace vela::popups {

namespace {

struct Line {
    std::u16string operator()(const headless::trace::MessageBox& box) const
    {
        const char16_t* icons[] = {u"none", u"information", u"exclamation", u"question"};
        return std::u16string(icons[static_cast<int>(box.icon)]) + u"|" + std::u16string(box.title) + u"|" +
               std::u16string(box.text);
    }
    std::u16string operator()(const headless::trace::Logged& log) const
    {
        return std::u16string(log.path) + u"|" + decimal(log.record->number) + u"|" + log.record->label;
    }
    std::u16string operator()(const headless::trace::Opened& opened) const
    {
        return u"open " + std::u16string(opened.form) + u" " + decimal(opened.place.left) + u" " +
               decimal(opened.place.top) + u" " + decimal(opened.place.width) + u" " + decimal(opened.place.height);
    }
    std::u16string operator()(const headless::trace::Closed& closed) const
    {
        return u"close " + std::u16string(closed.form);
    }
    template <class Other>
    std::u16string operator()(const Other&) const
    {
        return {};
    }
};

} // namespace

std::u16string decimal(int number)
{
    const std::string digits = std::to_string(number);
    return {digits.begin(), digits.end()};
}

void Recorder::trace(const headless::TraceEntry& entry)
{
    if (std::u16string line = std::visit(Line{}, entry); !line.empty())
        lines.push_back(std::move(line));
    if (duringBox && std::holds_alternative<headless::trace::MessageBox>(entry))
        duringBox();
}

} // namespace vela::popups
