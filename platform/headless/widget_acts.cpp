// What a person does to the widgets of a form in memory.
#include "platform/headless/widget_form.h"
#include "platform/headless/widget_list.h"

#include "engine/error.h"

#include <utility>

namespace vela::headless {

using platform::WidgetId;
using platform::WidgetKind;

// A choice made in an editable combo is its text.
void WidgetForm::itemChosen(WidgetId widget, std::u16string item)
{
    Widget& found = at(widget);
    if (found.row->kind == WidgetKind::comboBox)
        found.text = std::move(item);
    events_.clicked(widget);
}

void WidgetForm::listCleared(WidgetId widget)
{
    at(widget).text.clear();
}

bool WidgetForm::moveFocus(WidgetId widget)
{
    if (!acts(widget))
        return false;
    focus(widget);
    return true;
}

bool WidgetForm::click(WidgetId widget)
{
    if (!acts(widget))
        return false;
    Widget& found = at(widget);
    if (found.row->kind == WidgetKind::checkBox) {
        check(widget, !found.checked);
    } else if (found.row->kind == WidgetKind::optionButton) {
        chooseOption(widget);
        found.checked = true;
        events_.clicked(widget);
    } else {
        events_.clicked(widget);
    }
    return true;
}

bool WidgetForm::doubleClick(WidgetId widget)
{
    if (!acts(widget))
        return false;
    events_.doubleClicked(widget);
    return true;
}

bool WidgetForm::type(WidgetId widget, Key key)
{
    if (!acts(widget))
        return false;
    const engine::Alive alive(life_);
    int code = key.code;
    int shift = 0;
    events_.keyDown(widget, code, shift);
    const bool swallowed = key.code != 0 && code == 0;
    if (!alive || swallowed || !key.pressed)
        return true;
    const char16_t character = filter(widget, key.character);
    if (alive && character != 0 && isTyped(kindOf(widget)))
        typeCharacter(widget, character);
    return true;
}

void WidgetForm::typeCharacter(WidgetId widget, char16_t character)
{
    std::u16string text = at(widget).text;
    if (character == virtual_key::backspace) {
        if (!text.empty())
            text.pop_back();
    } else if (character != virtual_key::enter) {
        text += character;
    }
    putTypedText(widget, std::move(text));
}

char16_t WidgetForm::filter(WidgetId widget, char16_t key)
{
    int code = key;
    events_.keyPress(widget, code);
    return static_cast<char16_t>(code);
}

bool WidgetForm::enterText(WidgetId widget, std::u16string_view text)
{
    if (!acts(widget))
        return false;
    const engine::Alive alive(life_);
    std::u16string accepted;
    for (const char16_t unit : text) {
        const char16_t key = filter(widget, unit);
        if (!alive)
            return true;
        if (key != 0)
            accepted += key;
    }
    putTypedText(widget, std::move(accepted));
    return true;
}

bool WidgetForm::choose(WidgetId widget, int index)
{
    if (!acts(widget))
        return false;
    items(widget).choose(index);
    return true;
}

bool WidgetForm::turnItem(WidgetId widget, int index, bool on)
{
    if (!acts(widget))
        return false;
    platform::ItemList& list = items(widget);
    if (list.selected(index) == on)
        return true;
    list.select(index, on);
    events_.clicked(widget);
    return true;
}

} // namespace vela::headless
