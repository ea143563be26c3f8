// The field's operations on a box in memory, and a person's keys in it.
#include "platform/headless/edit_box.h"

#include "engine/text/text_edit.h"
#include "platform/headless/control_surface.h"

#include <algorithm>
#include <array>
#include <utility>

namespace vela::headless {

using platform::EditTraits;
using platform::Selection;

struct EditBox::Failures {
    std::array<std::optional<engine::Error>, 4> next; // by operation
};

EditBox::EditBox(ControlSurface& surface, platform::EditBoxKind kind)
    : surface_(surface), faults_(surface.form().faults()), kind_(kind), window_(surface.form().makeWindow())
{
}

EditBox::~EditBox() = default;

void EditBox::failNext(BoxOperation operation, engine::Error error)
{
    if (!failures_)
        failures_ = std::make_unique<Failures>();
    failures_->next[static_cast<std::size_t>(operation)] = std::move(error);
}

void EditBox::failIfAsked(BoxOperation operation) const
{
    if (auto failure = std::exchange(failures_->next[static_cast<std::size_t>(operation)], std::nullopt))
        throw *std::move(failure);
}

void EditBox::text(std::u16string& into) const
{
    check(BoxOperation::text);
    into = text_;
}

int EditBox::textLength() const
{
    check(BoxOperation::text);
    return length();
}

void EditBox::putText(std::u16string_view text)
{
    check(BoxOperation::putText);
    const Selection before = std::exchange(selection_, {});
    if (text == text_)
        return;
    former_ = text_;
    text_ = text;
    const auto [at, removed, inserted] = engine::editBetween(former_, text_);
    report({at, removed, inserted, before});
}

void EditBox::insert(std::u16string_view text)
{
    if (traits_.locked)
        return;
    check(BoxOperation::putText);
    fill(text, true);
}

void EditBox::fill(std::u16string_view text, bool typed)
{
    if (traits_.locked)
        return;
    const int space = room();
    if (space >= 0 && static_cast<int>(text.size()) > space)
        text = text.substr(0, static_cast<std::size_t>(space));
    replace(selection_, text, typed);
}

void EditBox::select(Selection selection)
{
    check(BoxOperation::putCaret);
    placeCaret(selection.start, selection.length);
}

void EditBox::putColours(platform::EditColours colours)
{
    check(BoxOperation::putColour);
    colours_ = colours;
}

void EditBox::putTraits(const EditTraits& traits)
{
    faults_.pass();
    if (traits == traits_)
        return;
    traits_ = EditTraits(traits); // all or nothing, should the copy fail
}

void EditBox::takeFocus()
{
    faults_.pass();
    surface_.askBoxFocus();
}

bool EditBox::hasFocus() const
{
    return surface_.boxHasFocus(*this);
}

bool EditBox::showBalloon(int icon, std::u16string_view title, std::u16string_view text)
{
    faults_.pass();
    surface_.form().sink().trace(trace::Balloon{true, icon, title, text});
    return true;
}

void EditBox::hideBalloon()
{
    surface_.form().sink().trace(trace::Balloon{});
}

int EditBox::room() const noexcept
{
    return traits_.maxLength > 0 ? std::max(0, traits_.maxLength - (length() - selection_.length)) : -1;
}

void EditBox::placeCaret(int start, int length)
{
    selection_.start = std::clamp(start, 0, this->length());
    selection_.length = std::clamp(length, 0, this->length() - selection_.start);
}

void EditBox::replace(Selection part, std::u16string_view by, bool typed)
{
    const auto start = static_cast<std::size_t>(part.start);
    const auto length = static_cast<std::size_t>(part.length);
    const Selection before = selection_;
    former_ = text_;
    text_.replace(start, length, by);
    selection_ = {part.start + static_cast<int>(by.size()), 0};
    if (text_ != former_)
        report({part.start, std::u16string_view(former_).substr(start, length),
                std::u16string_view(text_).substr(start, by.size()), before, typed});
}

void EditBox::erase(int start, int length)
{
    if (!traits_.locked)
        replace({start, length}, {}, true);
}

void EditBox::report(const platform::Edit& edit)
{
    if (platform::EditBoxEvents* events = surface_.boxEvents(*this))
        events->changed(edit);
}

// A handler may destroy the box: after that no member is used. A handler that disables the box ends the key.
void EditBox::key(Key key)
{
    const engine::Alive alive(life_);
    platform::EditBoxEvents* const events = surface_.boxEvents(*this);
    int code = key.code;
    int shift = 0;
    if (events != nullptr)
        events->keyDown(code, shift);
    if (!alive || !traits_.enabled)
        return;
    const bool swallowed = key.code != 0 && code == 0;
    if (!swallowed) {
        int character = key.pressed ? key.character : 0;
        if (key.pressed && events != nullptr)
            events->keyPress(character);
        if (!alive || !traits_.enabled)
            return;
        if (key.pressed)
            applyCharacter(character);
        else if (key.control)
            applyControlKey(code);
        else
            applyNamedKey(code);
        if (!alive)
            return;
    }
    if (events != nullptr)
        events->keyUp(key.code, 0);
}

void EditBox::applyCharacter(int key)
{
    if (key == 0 || traits_.locked)
        return;
    const auto unit = static_cast<char16_t>(key);
    if (key == virtual_key::backspace) {
        if (selection_.length > 0)
            erase(selection_.start, selection_.length);
        else if (selection_.start > 0)
            erase(selection_.start - 1, 1);
    } else if (key == virtual_key::enter) {
        if (kind_ == platform::EditBoxKind::multiLine)
            typeText(u"\r\n");
    } else {
        typeText({&unit, 1});
    }
}

void EditBox::typeText(std::u16string_view text)
{
    const int space = room();
    if (space < 0 || static_cast<int>(text.size()) <= space)
        replace(selection_, text, true);
}

void EditBox::applyNamedKey(int code)
{
    const auto [start, selected] = selection_;
    switch (code) {
    case virtual_key::left: moveCaret(selected > 0 ? start : start - 1); break;
    case virtual_key::right: moveCaret(selected > 0 ? start + selected : start + 1); break;
    case virtual_key::home: moveCaret(0); break;
    case virtual_key::end: moveCaret(length()); break;
    case virtual_key::del:
        if (selected > 0 || start < length())
            erase(start, std::max(selected, 1));
        break;
    default: break;
    }
}

// Copies for Control+C and Control+X and reports the others to the field, which carries them out.
void EditBox::applyControlKey(int letter)
{
    platform::EditBoxEvents* const events = surface_.boxEvents(*this);
    if (letter == 'C' || letter == 'X')
        copySelection();
    if (events == nullptr)
        return;
    switch (letter) {
    case 'X':
        if (traits_.passwordChar == 0)
            events->cut();
        break;
    case 'V': events->pasted(surface_.form().desktop().clipboard); break;
    case 'Z': events->undo(); break;
    case 'Y': events->redo(); break;
    default: break;
    }
}

// A password is not copied.
void EditBox::copySelection()
{
    if (selection_.length > 0 && traits_.passwordChar == 0)
        surface_.form().desktop().clipboard =
            text_.substr(static_cast<std::size_t>(selection_.start), static_cast<std::size_t>(selection_.length));
}

void EditBox::moveCaret(int start)
{
    placeCaret(start, 0);
}

void EditBox::clickAtEnd()
{
    moveCaret(length());
    if (platform::EditBoxEvents* events = surface_.boxEvents(*this))
        events->clicked();
}

void EditBox::doubleClick()
{
    const engine::Alive alive(life_);
    clickAtEnd();
    if (!alive)
        return;
    if (platform::EditBoxEvents* events = surface_.boxEvents(*this))
        events->doubleClicked();
}

} // namespace vela::headless
