// The surface's life, parts and messages.
#include "platform/win32/control_surface.h"

#include "engine/error.h"
#include "platform/win32/activation_context.h"
#include "platform/win32/colours.h"
#include "platform/win32/device_context.h"
#include "platform/win32/dpi.h"
#include "platform/win32/guard.h"
#include "platform/win32/keyboard.h"
#include "platform/win32/module.h"
#include "platform/win32/paint.h"
#include "platform/win32/tooltip_window.h"

#include <commctrl.h>

namespace vela::win32 {
namespace {

constexpr UINT_PTR hoverTimer = 1;
constexpr UINT hoverMilliseconds = 50;
constexpr UINT dpiChangedAfterParent = 0x02E3; // WM_DPICHANGED_AFTERPARENT
constexpr UINT_PTR buttonId = 1;

RECT rectOf(const engine::RectPixels& place) noexcept
{
    return {place.left, place.top, place.right(), place.bottom()};
}

bool sameSize(const RECT& one, const RECT& other) noexcept
{
    return one.right - one.left == other.right - other.left && one.bottom - one.top == other.bottom - other.top;
}

const wchar_t* captionOf(platform::ButtonGlyph glyph) noexcept
{
    switch (glyph) {
    case platform::ButtonGlyph::calendar: return L"Calendário";
    case platform::ButtonGlyph::calculator: return L"Calculadora";
    }
    return L"";
}

} // namespace

ControlSurface::ControlSurface() : dpi_(dpiOf(nullptr))
{
    boxes_[0] = std::make_unique<EditBox>(*this, platform::EditBoxKind::singleLine);
}

ControlSurface::~ControlSurface()
{
    setEvents(nullptr, nullptr);
    listener_ = nullptr;
    destroy();
}

void ControlSurface::setEvents(platform::SurfaceEvents* surface, platform::EditBoxEvents* edit) noexcept
{
    events_ = surface;
    editEvents_ = edit;
}

void ControlSurface::create(HWND parent, const RECT& place)
{
    if (window_)
        return reparent(parent, place);
    const DWORD style = WS_CHILD | WS_CLIPCHILDREN | (enabled_ ? 0U : WS_DISABLED);
    const HWND made = createBound(surfaceClass(), *this, WS_EX_CONTROLPARENT, style, place, parent);
    if (!made)
        engine::raise(engine::error_number::outOfMemory);
    window_ = made;
    const int dpi = dpiOf(made);
    const bool resized = !sameSize(place, place_) || dpi != dpi_;
    place_ = place;
    dpi_ = dpi;
    const engine::Alive alive(life_);
    if (resized && events_)
        events_->resized(); // the layout first, so that the parts are made in their places
    if (!alive || window_ != made)
        return;
    for (std::size_t i = 0; i < boxes_.size(); ++i)
        if (boxes_[i] && i == active_)
            boxes_[i]->createWindow(rectOf(layout_.edit), true);
    showButton();
    applyRegion();
    if (visible_)
        appear();
    if (timer_)
        SetTimer(window_, hoverTimer, hoverMilliseconds, nullptr);
}

// Made hidden and shown with its parts in it: half the cost of showing one after the other. WM_SETREDRAW makes a
// hidden window visible.
void ControlSurface::appear() const
{
    DefWindowProcW(window_, WM_SETREDRAW, TRUE, 0);
    RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

void ControlSurface::destroy()
{
    if (!window_ || destroying_)
        return;
    destroying_ = true;
    const engine::Alive alive(life_);
    edit().letGo();
    if (!alive)
        return;
    for (auto& box : boxes_)
        if (box)
            box->destroyWindow();
    const HWND window = std::exchange(window_, nullptr);
    button_ = nullptr;
    unbind(window);
    DestroyWindow(window);
    destroying_ = false;
}

void ControlSurface::reparent(HWND parent, const RECT& place)
{
    if (!window_)
        return;
    SetParent(window_, parent);
    this->place(place);
}

void ControlSurface::place(const RECT& place)
{
    if (window_) { // WM_SIZE compares with the former size, and reports
        const engine::Alive alive(life_);
        SetWindowPos(window_, nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                     SWP_NOZORDER | SWP_NOACTIVATE);
        if (alive)
            place_ = place;
        return;
    }
    const bool resized = !sameSize(place, place_);
    place_ = place;
    if (resized && events_)
        events_->resized();
}

void ControlSurface::show(bool visible)
{
    visible_ = visible;
    const bool shown = window_ && (GetWindowLongPtrW(window_, GWL_STYLE) & WS_VISIBLE) != 0;
    if (window_ && shown != visible)
        ShowWindow(window_, visible ? SW_SHOWNA : SW_HIDE);
}

void ControlSurface::putDpi(int dpi)
{
    if (window_ || dpi <= 0 || dpi == dpi_)
        return;
    dpi_ = dpi;
    if (events_)
        events_->resized();
}

void ControlSurface::refreshDpi()
{
    const int dpi = window_ ? dpiOf(window_) : dpi_;
    if (dpi == dpi_)
        return;
    dpi_ = dpi;
    for (auto& box : boxes_)
        if (box)
            box->fontScaleChanged();
    if (events_)
        events_->resized();
}

void ControlSurface::nameChanged()
{
    if (label_ && label_->refresh())
        NotifyWinEvent(EVENT_OBJECT_NAMECHANGE, edit().handle(), OBJID_CLIENT, CHILDID_SELF);
}

// The name is there before the system describes the box to a reader program.
void ControlSurface::readerAsks()
{
    if (!label_)
        label_ = std::make_unique<NameLabel>([this] {
            const std::u16string name = listener_ ? listener_->fieldName() : std::u16string();
            return name.empty() ? labelBefore(window_) : asLabel(name);
        });
    label_->standBefore(edit().handle());
    label_->refresh();
}

void ControlSurface::draw(HDC dc, const RECT& place) const
{
    std::u16string text;
    edit().text(text);
    const engine::RectPixels client = clientRect();
    paintField(dc, place,
               {text, look_, layout_, edit().traits(), edit().colours(), SIZE{client.width, client.height}, dpi_,
                edit().kind() == platform::EditBoxKind::multiLine, edit().hasFocus(), ground_});
}

EditBox& ControlSurface::box(platform::EditBoxKind kind)
{
    auto& box = boxes_[static_cast<std::size_t>(kind)];
    if (!box)
        box = std::make_unique<EditBox>(*this, kind);
    return *box;
}

platform::EditBox& ControlSurface::activate(platform::EditBoxKind kind)
{
    EditBox& wanted = box(kind);
    EditBox& before = edit();
    if (&wanted == &before)
        return wanted;
    active_ = static_cast<std::size_t>(kind);
    if (!window_)
        return wanted;
    if (!wanted.handle())
        wanted.createWindow(rectOf(layout_.edit), true);
    else
        ShowWindow(wanted.handle(), SW_SHOWNA);
    placeParts();
    if (GetFocus() == before.handle())
        SetFocus(wanted.handle());
    ShowWindow(before.handle(), SW_HIDE);
    return wanted;
}

void ControlSurface::putEnabled(bool enabled)
{
    enabled_ = enabled;
    if (window_)
        EnableWindow(window_, enabled);
    if (button_)
        EnableWindow(button_, enabled);
}

void ControlSurface::putLook(const platform::SurfaceLook& look)
{
    const bool glyphChanged = look.glyph != look_.glyph;
    if (look.border != look_.border)
        frame_.reset(); // the new border is drawn over what was drawn before
    look_ = look;
    if (!window_)
        return;
    if (glyphChanged && button_)
        SetWindowTextW(button_, captionOf(look_.glyph));
    showButton();
    repaint();
}

void ControlSurface::arrange(const platform::SurfaceLayout& layout)
{
    if (layout == layout_)
        return;
    layout_ = layout;
    if (!window_)
        return;
    placeParts();
    showButton();
    applyRegion();
    repaint();
}

void ControlSurface::clear()
{
    frame_.reset();
    repaint();
}

void ControlSurface::drawRectangle(engine::Colour colour, int width)
{
    frame_ = Frame{colour, width};
    repaint();
}

void ControlSurface::enableHoverTimer(bool enabled)
{
    timer_ = enabled;
    if (!window_)
        return;
    if (enabled)
        SetTimer(window_, hoverTimer, hoverMilliseconds, nullptr);
    else
        KillTimer(window_, hoverTimer);
}

engine::RectPixels ControlSurface::clientRect() const
{
    return {0, 0, static_cast<int>(place_.right - place_.left), static_cast<int>(place_.bottom - place_.top)};
}

engine::RectPixels ControlSurface::screenRect() const
{
    RECT place = place_;
    if (window_)
        GetWindowRect(window_, &place);
    return {static_cast<int>(place.left), static_cast<int>(place.top), static_cast<int>(place.right - place.left),
            static_cast<int>(place.bottom - place.top)};
}

platform::WindowId ControlSurface::window() const
{
    return idOf(window_);
}

std::unique_ptr<platform::TooltipWindow> ControlSurface::makeTooltip()
{
    return std::make_unique<TooltipWindow>();
}

void ControlSurface::repaint() const
{
    if (window_)
        InvalidateRect(window_, nullptr, FALSE);
}

void ControlSurface::placeParts()
{
    const engine::RectPixels& place = layout_.edit;
    if (const HWND window = edit().handle())
        SetWindowPos(window, nullptr, place.left, place.top, place.width, place.height,
                     SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
}

// A BUTTON window, made when it is first needed. A click on it does not leave the focus there, and Tab skips it.
void ControlSurface::showButton()
{
    const bool wanted = look_.button && layout_.button.width > 0;
    if (!wanted) {
        if (button_)
            ShowWindow(button_, SW_HIDE);
        return;
    }
    const engine::RectPixels& place = layout_.button;
    if (!button_) {
        const ActivationContext controls;
        button_ = CreateWindowExW(0, WC_BUTTONW, captionOf(look_.glyph),
                                  WS_CHILD | BS_OWNERDRAW | BS_NOTIFY | (enabled_ ? 0U : WS_DISABLED), place.left,
                                  place.top, place.width, place.height, window_, reinterpret_cast<HMENU>(buttonId),
                                  thisModule(), nullptr);
    }
    SetWindowPos(button_, HWND_TOP, place.left, place.top, place.width, place.height, SWP_NOACTIVATE | SWP_SHOWWINDOW);
}

LRESULT ControlSurface::handle(HWND window, UINT message, WPARAM first, LPARAM second)
{
    if (!window_) // still being made
        return DefWindowProcW(window, message, first, second);
    if (dead_ && (isInput(message) || message == WM_MOUSEACTIVATE))
        return message == WM_MOUSEACTIVATE ? MA_NOACTIVATEANDEAT : 0; // its children ask it before they take a click
    switch (message) {
    case WM_COMMAND: return command(first, second);
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORSTATIC: return colourOf(reinterpret_cast<HDC>(first), reinterpret_cast<HWND>(second));
    case WM_PAINT: paint(); return 0;
    case WM_ERASEBKGND: return TRUE;
    case WM_DRAWITEM: drawButton(*reinterpret_cast<const DRAWITEMSTRUCT*>(second)); return TRUE;
    case WM_SIZE: sizeChanged(); return 0;
    case WM_TIMER: tick(first); return 0;
    case WM_SETFOCUS: focusArrived(); return 0;
    case WM_LBUTTONDOWN: edit().takeFocus(); return 0;
    case WM_GETDLGCODE: return dialogCode(first, second);
    case WM_CLOSE: return 0; // a multi-line EDIT in a dialog posts it for Esc; only the host takes the field away
    case dpiChangedAfterParent: refreshDpi(); return 0;
    case WM_SYSCOLORCHANGE:
    case WM_THEMECHANGED: repaint(); return DefWindowProcW(window, message, first, second);
    default: return DefWindowProcW(window, message, first, second);
    }
}

void ControlSurface::unbound()
{
    window_ = nullptr;
    button_ = nullptr;
    shaped_ = false;
    if (listener_ && !destroying_)
        listener_->windowDestroyed();
}

LRESULT ControlSurface::command(WPARAM first, LPARAM second)
{
    const HWND from = reinterpret_cast<HWND>(second);
    const UINT code = HIWORD(first);
    if (from && from == button_) {
        if (dead_)
            return 0;
        if (code == BN_CLICKED || code == BN_DBLCLK) // an owner-drawn one makes the second quick click a double click
            buttonPressed();
        else if (code == BN_KILLFOCUS)
            edit().settleLoan();
    } else if (code == EN_CHANGE && from == edit().handle()) {
        edit().editChanged();
    }
    return 0;
}

// The field has the focus before its pop-up opens, and the button gives it back.
void ControlSurface::buttonPressed()
{
    const engine::Alive alive(life_);
    edit().takeFocus();
    if (alive && edit().hasFocus() && events_)
        events_->buttonClicked();
}

// Form libraries know the surface's window only, so it answers for its edit box.
LRESULT ControlSurface::dialogCode(WPARAM key, LPARAM message) const
{
    const HWND box = edit().handle();
    const LRESULT code = box ? SendMessageW(box, WM_GETDLGCODE, key, message) : 0;
    const WPARAM asked = message ? reinterpret_cast<const MSG*>(message)->wParam : key;
    return listener_ && listener_->eatsEnter(asked) ? code | DLGC_WANTALLKEYS : code;
}

LRESULT ControlSurface::colourOf(HDC dc, HWND child) const
{
    for (const auto& box : boxes_) {
        if (!box || box->handle() != child)
            continue;
        const COLORREF fore =
            box->traits().enabled ? resolve(box->colours().fore, ColourRole::fore) : GetSysColor(COLOR_GRAYTEXT);
        return controlColours(dc, fore, resolve(box->colours().back, ColourRole::back));
    }
    return reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_WINDOW));
}

void ControlSurface::paint()
{
    const PaintDc dc(window_);
    RECT client{};
    GetClientRect(window_, &client);
    fill(dc.get(), client, resolve(look_.back, ColourRole::back));
    const int line = scaled(1, dpi_);
    if (look_.ownBorder)
        paintBorder(dc.get(), client, {look_.line, look_.border, line, layout_.cornerRadius});
    if (frame_)
        paintBorder(dc.get(), client, {look_.line, frame_->colour, line * frame_->width, layout_.cornerRadius});
    if (layout_.cornerRadius > 0)
        paintCorners();
}

void ControlSurface::drawButton(const DRAWITEMSTRUCT& item) const
{
    paintButton(item.hDC, item.rcItem, look_.glyph, item.itemState, window_);
}

void ControlSurface::sizeChanged()
{
    RECT client{};
    GetClientRect(window_, &client);
    const bool resized = !sameSize(client, place_) || dpiOf(window_) != dpi_;
    GetWindowRect(window_, &place_);
    MapWindowPoints(nullptr, GetParent(window_), reinterpret_cast<POINT*>(&place_), 2);
    if (!resized)
        return;
    if (dpiOf(window_) != dpi_) {
        refreshDpi();
        return;
    }
    const engine::Alive alive(life_);
    if (events_)
        events_->resized();
    if (alive && window_)
        applyRegion();
}

void ControlSurface::tick(WPARAM timer)
{
    if (timer != hoverTimer || !events_ || ticking_)
        return;
    const engine::ScopedFlag ticking(life_, ticking_, true); // a handler may run a message loop
    contained([this] { events_->hoverTick(); });
}

// Gives the focus to the edit box; surfaceLostFocus() is reported when the focus leaves that box.
void ControlSurface::focusArrived()
{
    if (events_ && !destroying_)
        events_->surfaceGotFocus();
}

} // namespace vela::win32
