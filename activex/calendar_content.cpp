// The free-standing calendar between its shell and its form.
#include "activex/calendar_content.h"

#include "activex/com/guard.h"
#include "activex/form_picture.h"
#include "activex/guids.h"
#include "activex/ole/browsing.h"
#include "platform/win32/dpi.h"

#include <olectl.h>

namespace vela::activex {

namespace {

enum Operation : std::size_t { selected, start, highlight };

constexpr Member calendarMembers[] = {
    {.name = u"DateInitial",
     .id = DISPID_VALUE,
     .access = DISPATCH_PROPERTYGET,
     .bindable = true,
     .category = category::data,
     .row = selected},
    {.name = u"IniciaCalendario",
     .id = 1,
     .access = DISPATCH_METHOD,
     .parameters = 1,
     .parameter = u"data",
     .row = start},
    {.name = u"IncluiDataRealcada",
     .id = 2,
     .access = DISPATCH_METHOD,
     .parameters = 1,
     .parameter = u"data",
     .row = highlight},
};

} // namespace

const ClassFacts& calendarFacts() noexcept
{
    static const ClassFacts facts{
        calendarClass, calendarInterface, &calendarEvents, identity::calendarProgId, identity::calendarName, {}, {},
        {184, 167}};
    return facts;
}

CalendarContent::CalendarContent(Shell& shell)
    : shell_(shell), session_(Session::current()),
      calendar_(session_->environment, session_->forms, session_->popups.colours()), size_(calendarFacts().size)
{
    calendar_.picked = [this] { picked(); };
    form().setListener(this);
}

CalendarContent::~CalendarContent()
{
    terminate();
}

win32::FormWindow& CalendarContent::form() const
{
    return static_cast<win32::FormWindow&>(calendar_.form());
}

void CalendarContent::picked()
{
    const Shell::Hold hold(shell_);
    shell_.propertyChanged(DISPID_VALUE);
    shell_.fire(DISPID_CLICK);
}

std::span<const Member> CalendarContent::members() const noexcept
{
    return calendarMembers;
}

Variant CalendarContent::get(const Member&)
{
    return variantFromValue(calendar_.selectedDate());
}

void CalendarContent::put(const Member&, const VARIANT&)
{
    engine::raise(engine::error_number::unsupportedMember);
}

Variant CalendarContent::call(const Member& member, const Arguments& arguments)
{
    const engine::Value date = valueFromVariant(arguments[0]);
    if (member.row == highlight)
        return variantFromValue(calendar_.IncluiDataRealcada(date));
    Variant result = variantFromValue(calendar_.IniciaCalendario(date));
    shell_.propertyChanged(DISPID_VALUE);
    return result;
}

void CalendarContent::terminate() noexcept
{
    calendar_.picked = nullptr;
    form().setListener(nullptr);
    detach();
}

void CalendarContent::attach(HWND parent, const RECT& place)
{
    ambientChanged(DISPID_AMBIENT_UIDEAD);
    form().showChild(parent, place);
    size_ = {place.right - place.left, place.bottom - place.top};
}

void CalendarContent::ambientChanged(DISPID id)
{
    if (id != DISPID_AMBIENT_UIDEAD && id != DISPID_UNKNOWN)
        return;
    dead_ = shell_.site().dead();
    form().putDead(dead_);
}

void CalendarContent::detach() noexcept
{
    const bool focused = hasFocus();
    contained([&] { form().leaveParent(); });
    if (focused)
        shell_.focusMoved(false);
}

void CalendarContent::place(const RECT& place)
{
    form().moveChild(place);
    size_ = {place.right - place.left, place.bottom - place.top};
}

void CalendarContent::clip(const RECT* shown)
{
    if (const HWND calendar = window()) // which owns the region then
        SetWindowRgn(calendar, shown ? CreateRectRgnIndirect(shown) : nullptr, TRUE);
}

void CalendarContent::takeFocus()
{
    if (const HWND calendar = window())
        SetFocus(calendar); // which hands it to the widget that had it last
}

bool CalendarContent::wantsKey(const MSG& message) const
{
    return message.message == WM_KEYDOWN && !dead_ && (movesCaret(message.wParam) || message.wParam == VK_RETURN);
}

int CalendarContent::dpi()
{
    return win32::dpiOf(window());
}

void CalendarContent::draw(HDC dc, const RECT& bounds)
{
    calendar_.refresh();
    drawForm(dc, bounds, form().widgets());
}

} // namespace vela::activex
