// The field's operations on a box in memory, and a person's keys in it.
#include "platform/headless/edit_box.h"

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

void EditBox::part(Selection part, std::u16string& into) const
{
    faults_.pass();
    const int start = std::clamp(part.start, 0, length());
    const int count = std::clamp(part.length, 0, length() - start);
    into.assign(text_, static_cast<std::size_t>(start), static_cast<std::size_t>(count));
}

void EditBox::putText(std::u16string_view text)
{
    check(BoxOperation::putText);
    const bool different = text != text_;
    text_.assign(text);
    selection_ = {};
    if (different)
        reportChange();
}

void EditBox::insert(std::u16string_view text)
{
    check(BoxOperation::putText);
    paste(text);
}

void EditBox::paste(std::u16string_view text)
{
    if (traits_.locked)
        return;
    const int space = room();
    if (space >= 0 && static_cast<int>(text.size()) > space)
        text = text.substr(0, static_cast<std::size_t>(space));
    replaceSelection(text);
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

void EditBox::replaceSelection(std::u16string_view text)
{
    const auto start = static_cast<std::size_t>(selection_.start);
    const auto length = static_cast<std::size_t>(selection_.length);
    const bool different = std::u16string_view(text_).substr(start, length) != text;
    text_.replace(start, length, text);
    selection_ = {selection_.start + static_cast<int>(text.size()), 0};
    if (different)
        reportChange();
}

void EditBox::erase(int start, int length)
{
    if (traits_.locked)
        return;
    placeCaret(start, length);
    replaceSelection({});
}

void EditBox::reportChange()
{
    if (platform::EditBoxEvents* events = surface_.boxEvents(*this))
        events->changed();
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
        replaceSelection(text);
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
