// Takes spoken names from the captions that stand before a control.
#include "pages/spoken_names.h"

namespace vela::pages {

using platform::WidgetId;
using platform::WidgetKind;
using platform::WidgetRow;

namespace {

// Without the dots that lead the eye to the control.
std::u16string plain(std::u16string_view caption)
{
    return std::u16string(caption.substr(0, caption.find_last_not_of(u" .") + 1));
}

// Of the kinds that show what they hold and not what they are for.
bool needsName(WidgetKind kind)
{
    switch (kind) {
    case WidgetKind::swatch:
    case WidgetKind::textBox:
    case WidgetKind::comboBox:
    case WidgetKind::dropDownList:
    case WidgetKind::listBox: return true;
    case WidgetKind::label:
    case WidgetKind::button:
    case WidgetKind::checkBox:
    case WidgetKind::optionButton:
    case WidgetKind::frame:
    case WidgetKind::preview:
    case WidgetKind::tabStrip: return false;
    }
    return false;
}

bool isHelpButton(const WidgetRow& row)
{
    return row.kind == WidgetKind::button && row.caption == u"?";
}

// The words nearest before the control in its own group: a label's, a check box's or the group's own caption.
std::u16string wordsBefore(const platform::FormLayout& layout, std::size_t control)
{
    const std::u16string_view parent = layout.rows[control].parent;
    for (std::size_t i = control; i-- > 0;) {
        const WidgetRow& row = layout.rows[i];
        const bool near = row.parent == parent || row.name == parent;
        if (near && !row.caption.empty() && !isHelpButton(row))
            return plain(row.caption);
    }
    return {};
}

} // namespace

std::u16string spokenName(const platform::FormLayout& layout, WidgetId control)
{
    const auto place = static_cast<std::size_t>(control.value);
    const WidgetRow& row = layout.rows[place];
    if (needsName(row.kind))
        return wordsBefore(layout, place);
    return isHelpButton(row) ? u"Ajuda: " + wordsBefore(layout, place) : std::u16string();
}

void putSpokenNames(const platform::FormLayout& layout, platform::Form& form)
{
    for (std::size_t i = 0; i < layout.rows.size(); ++i) {
        const WidgetId control{static_cast<int>(i)};
        std::u16string name = spokenName(layout, control);
        if (name.empty())
            continue;
        platform::WidgetLook look = form.look(control);
        look.spokenName = std::move(name);
        form.putLook(control, look);
    }
}

} // namespace vela::pages
