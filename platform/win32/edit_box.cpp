// Text, selection, colours and traits of the inner box, with a window and without.
#include "platform/win32/edit_box.h"

#include "engine/error.h"
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

std::u16string spliced(std::u16string_view text, platform::Selection selection, std::u16string_view by)
{
    const auto start = static_cast<std::size_t>(selection.start);
    std::u16string result(text.substr(0, start));
    result += by;
    result += text.substr(start + static_cast<std::size_t>(selection.length));
    return result;
}

// A flag that is on for a scope.
class Raised {
public:
    explicit Raised(bool& flag) noexcept : flag_(flag), before_(flag) { flag = true; }
    Raised(const Raised&) = delete;
    Raised& operator=(const Raised&) = delete;
    ~Raised() { flag_ = before_; }

private:
    bool& flag_;
    bool before_;
};

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
    refresh();
    into.assign(text_);
}

void EditBox::part(platform::Selection part, std::u16string& into) const
{
    refresh();
    const platform::Selection within = clamped(part, static_cast<int>(text_.size()));
    into.assign(text_, static_cast<std::size_t>(within.start), static_cast<std::size_t>(within.length));
}

int EditBox::textLength() const
{
    return static_cast<int>(edit_ && stale_ ? native(WM_GETTEXTLENGTH, 0, 0) : static_cast<LRESULT>(text_.size()));
}

void EditBox::putText(std::u16string_view text)
{
    const std::u16string_view wanted = upToNull(text);
    refresh();
    if (wanted == text_) {
        select({});
        return;
    }
    text_.assign(wanted);
    kept_ = {};
    behind_ = false;
    if (edit_) {
        const Raised quiet(quiet_);
        if (!native(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text_.c_str()))) {
            stale_ = true;
            engine::raise(engine::error_number::outOfMemory);
        }
    }
    reportChange();
}

void EditBox::insert(std::u16string_view text)
{
    if (traits_.locked)
        return;
    refresh();
    showText();
    const platform::Selection replaced = selection();
    std::u16string_view fitting = upToNull(text);
    if (traits_.maxLength > 0) {
        const int room = traits_.maxLength - (static_cast<int>(text_.size()) - replaced.length);
        fitting = fitting.substr(0, static_cast<std::size_t>(std::max(room, 0)));
    }
    const std::u16string inserted(fitting);
    std::u16string result = spliced(text_, replaced, inserted);
    const bool another = result != text_;
    text_ = std::move(result);
    kept_ = {replaced.start + static_cast<int>(inserted.size()), 0};
    if (edit_) {
        const Raised quiet(quiet_);
        native(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(inserted.c_str()));
    }
    if (another)
        reportChange();
}

platform::Selection EditBox::selection() const
{
    if (!edit_ || behind_)
        return kept_;
    DWORD start = 0;
    DWORD end = 0;
    native(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    return {static_cast<int>(start), static_cast<int>(end - start)};
}

void EditBox::select(platform::Selection selection)
{
    kept_ = clamped(selection, textLength());
    if (!edit_ || behind_ || this->selection() == kept_)
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
    stale_ = false;
    behind_ = false;
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
    refresh();
    kept_ = selection();
}

// Makes the window anew. Text, selection and focus stay, and no event is reported.
void EditBox::rebuild()
{
    keepState();
    const Raised rebuilding(rebuilding_);
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

void EditBox::refresh() const
{
    if (!stale_ || !edit_)
        return;
    const auto length = static_cast<std::size_t>(native(WM_GETTEXTLENGTH, 0, 0));
    text_.resize(length + 1);
    const LRESULT read = native(WM_GETTEXT, length + 1, reinterpret_cast<LPARAM>(text_.data()));
    text_.resize(static_cast<std::size_t>(read));
    stale_ = false;
}

bool EditBox::sameText() const
{
    if (stale_ || native(WM_GETTEXTLENGTH, 0, 0) != static_cast<LRESULT>(text_.size()))
        return false;
    scratch_.resize(text_.size() + 1);
    native(WM_GETTEXT, scratch_.size(), reinterpret_cast<LPARAM>(scratch_.data()));
    scratch_.pop_back();
    return scratch_ == text_;
}

// A code unit that the field re-formats as soon as it is typed: the window gets one text instead of two. A message from
// elsewhere in between first writes the typed text to the window, so that nobody reads an old one.
bool EditBox::typeUnseen(int unit)
{
    platform::EditBoxEvents* const listener = events();
    if (!listener || !listener->laysOutTyping() || !isSingle() || traits_.locked || unit < ' ')
        return false;
    refresh();
    const platform::Selection replaced = selection();
    const auto at = static_cast<std::size_t>(replaced.start);
    const auto typed = static_cast<char16_t>(unit);
    const bool full = traits_.maxLength > 0 && static_cast<int>(text_.size()) - replaced.length >= traits_.maxLength;
    if (full || (replaced.length == 1 && text_[at] == typed))
        return false;
    text_.replace(at, static_cast<std::size_t>(replaced.length), 1, typed);
    kept_ = {replaced.start + 1, 0};
    behind_ = true;
    const engine::Alive alive(life_);
    contained([this] { reportChange(); });
    if (alive)
        showText();
    return true;
}

void EditBox::showText()
{
    if (!std::exchange(behind_, false) || !edit_)
        return;
    const platform::Selection caret = kept_;
    const Raised quiet(quiet_);
    native(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text_.c_str()));
    select(caret);
}

// Remembers a code unit that is about to be typed or erased without a selection, so that the window need not be read
// again.
void EditBox::expectTyped(int unit, LRESULT selected) noexcept
{
    const int caret = LOWORD(selected);
    const bool back = unit == VK_BACK;
    const bool known = !stale_ && selected != -1 && LOWORD(selected) == HIWORD(selected) && (back || unit >= ' ');
    typedAt_ = known ? caret - (back ? 1 : 0) : -1;
    typedUnit_ = back ? u'\0' : static_cast<char16_t>(unit);
}

// Puts the remembered code unit into text_ when the window's length agrees: "ab|c" + 'X' -> "abXc".
bool EditBox::adoptTyped()
{
    const int at = std::exchange(typedAt_, -1);
    const auto size = static_cast<LRESULT>(text_.size());
    if (at < 0 || at > size || native(WM_GETTEXTLENGTH, 0, 0) != size + (typedUnit_ ? 1 : -1))
        return false;
    if (typedUnit_)
        text_.insert(static_cast<std::size_t>(at), 1, typedUnit_);
    else
        text_.erase(static_cast<std::size_t>(at), 1);
    return true;
}

// Whether the text differs: EN_CHANGE comes also when the EDIT was full or got the same text.
bool EditBox::becameAnother()
{
    if (adoptTyped())
        return true;
    if (sameText())
        return false;
    stale_ = true;
    return true;
}

void EditBox::editChanged() noexcept
{
    if (!quiet_)
        changed_ = true;
}

void EditBox::reportChange()
{
    if (platform::EditBoxEvents* listener = events())
        listener->changed();
}

LRESULT EditBox::native(UINT message, WPARAM first, LPARAM second) const noexcept
{
    return CallWindowProcW(original_, edit_, message, first, second);
}

// The change is reported when the EDIT has returned, because a handler may destroy the window under it.
LRESULT EditBox::pass(UINT message, WPARAM first, LPARAM second)
{
    const engine::Alive alive(life_);
    ++passing_;
    const LRESULT result = native(message, first, second);
    if (!alive)
        return result;
    --passing_;
    if (changed_ && passing_ == 0) {
        changed_ = false;
        if (becameAnother())
            contained([this] { reportChange(); });
    }
    return result;
}

} // namespace vela::win32
