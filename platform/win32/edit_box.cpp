// Text, selection, colours and traits of the inner box, with a window and without.
#include "platform/win32/edit_box.h"

#include "engine/error.h"
#include "engine/scoped_value.h"
#include "engine/text/text_edit.h"
#include "platform/win32/activation_context.h"
#include "platform/win32/control_surface.h"
#include "platform/win32/focus_arbiter.h"
#include "platform/win32/guard.h"
#include "platform/win32/module.h"
#include "platform/win32/text.h"
#include "platform/win32/window_map.h"

#include <commctrl.h>

#include <algorithm>
#include <utility>

namespace vela::win32 {
namespace {

std::u16string_view upToNull(std::u16string_view text) noexcept
{
    return text.substr(0, text.find(u'\0'));
}

platform::Selection clamped(platform::Selection wanted, int length) noexcept
{
    const int start = std::clamp(wanted.start, 0, length);
    return {start, std::clamp(wanted.length, 0, length - start)};
}

} // namespace

EditBox::EditBox(ControlSurface& surface, platform::EditBoxKind kind)
    : surface_(surface), kind_(kind), arbiter_(FocusArbiter::retain())
{
}

EditBox::~EditBox()
{
    destroyWindow();
    arbiter_.forget(*this);
    FocusArbiter::release();
}

void EditBox::text(std::u16string& into) const
{
    if (changed_ && edit_)
        readWindow(into);
    else
        into.assign(text_);
}

int EditBox::textLength() const
{
    return static_cast<int>(changed_ && edit_ ? native(WM_GETTEXTLENGTH, 0, 0) : static_cast<LRESULT>(text_.size()));
}

void EditBox::putText(std::u16string_view text)
{
    const std::u16string_view wanted = upToNull(text);
    const platform::Selection before = selection();
    if (wanted == text_) {
        select({});
        return;
    }
    former_.assign(wanted);
    if (edit_) {
        const engine::ScopedFlag quiet(life_, quiet_, true);
        if (!native(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(former_.c_str())))
            engine::raise(engine::error_number::outOfMemory);
    }
    text_.swap(former_);
    kept_ = {};
    const auto [at, removed, inserted] = engine::editBetween(former_, text_);
    report({at, removed, inserted, before});
}

void EditBox::insert(std::u16string_view text)
{
    if (traits_.locked)
        return;
    const platform::Selection replaced = clamped(selection(), static_cast<int>(text_.size()));
    const auto start = static_cast<std::size_t>(replaced.start);
    const auto length = static_cast<std::size_t>(replaced.length);
    std::u16string_view fitting = upToNull(text);
    if (traits_.maxLength > 0) {
        const int room = traits_.maxLength - (static_cast<int>(text_.size()) - replaced.length);
        fitting = fitting.substr(0, static_cast<std::size_t>(std::max(room, 0)));
    }
    const std::u16string inserted(fitting);
    former_ = text_;
    text_.replace(start, length, inserted);
    kept_ = {replaced.start + static_cast<int>(inserted.size()), 0};
    if (edit_) {
        const engine::ScopedFlag quiet(life_, quiet_, true);
        native(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(inserted.c_str()));
    }
    if (text_ != former_)
        report({replaced.start, std::u16string_view(former_).substr(start, length), inserted, replaced, true});
}

platform::Selection EditBox::selection() const
{
    if (!edit_)
        return kept_;
    DWORD start = 0;
    DWORD end = 0;
    native(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    return {static_cast<int>(start), static_cast<int>(end - start)};
}

void EditBox::select(platform::Selection selection)
{
    kept_ = clamped(selection, textLength());
    if (!edit_ || this->selection() == kept_)
        return;
    native(EM_SETSEL, static_cast<WPARAM>(kept_.start), kept_.start + kept_.length);
    native(EM_SCROLLCARET, 0, 0);
}

void EditBox::putColours(platform::EditColours colours)
{
    if (colours == colours_)
        return;
    colours_ = colours;
    if (edit_)
        InvalidateRect(edit_, nullptr, TRUE);
}

void EditBox::putTraits(const platform::EditTraits& traits)
{
    if (traits == traits_)
        return;
    const platform::EditTraits before = std::exchange(traits_, traits);
    if (!edit_)
        return;
    // An EDIT takes its alignment and its password style once, when it is made.
    if (before.alignment != traits.alignment || (before.passwordChar != 0) != (traits.passwordChar != 0)) {
        rebuild();
        return;
    }
    if (before.font != traits.font)
        applyFont();
    if (before.maxLength != traits.maxLength)
        applyLimit();
    if (before.passwordChar != traits.passwordChar)
        applyPassword();
    if (before.locked != traits.locked)
        native(EM_SETREADONLY, traits.locked, 0);
    if (before.enabled != traits.enabled)
        EnableWindow(edit_, traits.enabled);
    if (before.sunken != traits.sunken) {
        SetWindowLongPtrW(edit_, GWL_EXSTYLE, traits.sunken ? WS_EX_CLIENTEDGE : 0);
        SetWindowPos(edit_, nullptr, 0, 0, 0, 0,
                     SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

bool EditBox::showBalloon(int icon, std::u16string_view title, std::u16string_view text)
{
    if (!edit_)
        return false;
    const std::wstring heading = wide(title);
    const std::wstring body = wide(text);
    EDITBALLOONTIP tip{};
    tip.cbStruct = sizeof tip;
    tip.pszTitle = heading.c_str();
    tip.pszText = body.c_str();
    tip.ttiIcon = icon;
    return SendMessageW(edit_, EM_SHOWBALLOONTIP, 0, reinterpret_cast<LPARAM>(&tip)) != 0;
}

void EditBox::hideBalloon()
{
    if (edit_)
        SendMessageW(edit_, EM_HIDEBALLOONTIP, 0, 0);
}

platform::WindowId EditBox::window() const
{
    return {reinterpret_cast<std::uintptr_t>(edit_)};
}

platform::EditBoxEvents* EditBox::events() const noexcept
{
    return &surface_.edit() == this ? surface_.editEvents_ : nullptr;
}

DWORD EditBox::style(bool visible) const noexcept
{
    DWORD style = WS_CHILD | WS_TABSTOP;
    style |= isSingle() ? ES_AUTOHSCROLL : ES_MULTILINE | ES_WANTRETURN | ES_AUTOVSCROLL | WS_VSCROLL;
    if (visible)
        style |= WS_VISIBLE;
    if (traits_.locked)
        style |= ES_READONLY;
    if (!traits_.enabled)
        style |= WS_DISABLED;
    if (traits_.passwordChar && isSingle())
        style |= ES_PASSWORD;
    switch (traits_.alignment) {
    case platform::TextAlignment::left: break;
    case platform::TextAlignment::right: style |= ES_RIGHT; break;
    case platform::TextAlignment::center: style |= ES_CENTER; break;
    }
    return style;
}

void EditBox::createWindow(const RECT& place, bool visible)
{
    const ActivationContext controls;
    const DWORD edge = traits_.sunken ? WS_EX_CLIENTEDGE : 0;
    const HWND made = CreateWindowExW(edge, WC_EDITW, wide(text_.c_str()), style(visible), place.left, place.top,
                                      place.right - place.left, place.bottom - place.top, surface_.handle(), nullptr,
                                      thisModule(), nullptr);
    if (!made)
        engine::raise(engine::error_number::outOfMemory);
    original_ = subclass(made, this, &EditBox::procedure);
    edit_ = made;
    changed_ = false;
    applyFont();
    applyLimit();
    if (traits_.passwordChar)
        applyPassword();
    if (kept_ != platform::Selection{})
        native(EM_SETSEL, static_cast<WPARAM>(kept_.start), kept_.start + kept_.length);
}

// Not reported as leaving: a field that is destroyed does not run its exit.
void EditBox::destroyWindow()
{
    entered_ = false;
    const HWND window = edit_;
    if (!window)
        return;
    DestroyWindow(window);
    if (edit_ == window) { // another subclass procedure did not pass on WM_NCDESTROY
        edit_ = nullptr;
        forgetWindow(window);
    }
}

void EditBox::keepState()
{
    if (changed_)
        readWindow(text_);
    kept_ = selection();
}

// Makes the window anew. Text, selection and focus stay, and no event is reported.
void EditBox::rebuild()
{
    keepState();
    const engine::ScopedFlag rebuilding(life_, rebuilding_, true);
    const bool focused = GetFocus() == edit_;
    const bool entered = entered_;
    const bool visible = (GetWindowLongPtrW(edit_, GWL_STYLE) & WS_VISIBLE) != 0;
    RECT place{};
    GetWindowRect(edit_, &place);
    MapWindowPoints(nullptr, surface_.handle(), reinterpret_cast<POINT*>(&place), 2);
    const platform::Selection kept = kept_;
    destroyWindow();
    kept_ = kept;
    createWindow(place, visible);
    if (focused)
        SetFocus(edit_);
    entered_ = entered;
}

void EditBox::fontScaleChanged()
{
    if (edit_)
        applyFont();
}

void EditBox::applyFont()
{
    SharedFont font = sharedFont(traits_.font, surface_.dpi());
    native(WM_SETFONT, reinterpret_cast<WPARAM>(font->get()), MAKELPARAM(IsWindowVisible(edit_), 0));
    font_ = std::move(font); // the former one goes after the window has let go of it
}

void EditBox::applyPassword() const
{
    native(EM_SETPASSWORDCHAR, traits_.passwordChar, 0);
}

// Without a limit of the field's own the box has the system's largest, not its default of 32,767.
void EditBox::applyLimit() const
{
    native(EM_LIMITTEXT, static_cast<WPARAM>(std::max(traits_.maxLength, 0)), 0);
}

void EditBox::readWindow(std::u16string& into) const
{
    into.resize(static_cast<std::size_t>(native(WM_GETTEXTLENGTH, 0, 0)) + 1);
    const LRESULT read = native(WM_GETTEXT, into.size(), reinterpret_cast<LPARAM>(into.data()));
    into.resize(static_cast<std::size_t>(read));
}

// EN_CHANGE comes also when the EDIT was full or got the same text.
void EditBox::adopt(platform::Selection before, bool typed)
{
    readWindow(former_);
    if (former_ == text_)
        return;
    text_.swap(former_);
    const auto [at, removed, inserted] =
        engine::editAtCaret(former_, text_, before.start, before.start + before.length, selection().start);
    report({at, removed, inserted, before, typed});
}

void EditBox::editChanged() noexcept
{
    if (!quiet_)
        changed_ = true;
}

void EditBox::report(const platform::Edit& edit)
{
    if (platform::EditBoxEvents* listener = events())
        listener->changed(edit);
}

LRESULT EditBox::native(UINT message, WPARAM first, LPARAM second) const noexcept
{
    return CallWindowProcW(original_, edit_, message, first, second);
}

// The change is reported when the EDIT has returned, because a handler may destroy the window under it.
LRESULT EditBox::pass(UINT message, WPARAM first, LPARAM second)
{
    const engine::Alive alive(life_);
    const bool key = message == WM_CHAR || message == WM_KEYDOWN;
    const platform::Selection before = key ? selection() : platform::Selection{};
    ++passing_;
    const LRESULT result = native(message, first, second);
    if (!alive)
        return result;
    --passing_;
    if (passing_ == 0 && std::exchange(changed_, false) && edit_)
        contained([&] { adopt(before, key); });
    return result;
}

} // namespace vela::win32
