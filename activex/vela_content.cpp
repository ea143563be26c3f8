// The Vela control between its shell, its surface and its host.
#include "activex/vela_content.h"

#include "activex/com/guard.h"
#include "activex/guids.h"
#include "activex/vela_members.h"
#include "platform/win32/dpi.h"
#include "platform/win32/tab_order.h"

#include <olectl.h>

#include <utility>

namespace vela::activex {

namespace {

constexpr CLSID pages[] = {principalPage, geralPage, errosPage, fontePage, calendarioPage};

IUnknown* objectIn(const VARIANT& value)
{
    switch (value.vt) {
    case VT_DISPATCH:
    case VT_UNKNOWN: return value.punkVal;
    case VT_DISPATCH | VT_BYREF:
    case VT_UNKNOWN | VT_BYREF: return *value.ppunkVal;
    case VT_VARIANT | VT_BYREF: return objectIn(*value.pvarVal);
    default: engine::raise(engine::error_number::typeMismatch);
    }
}

// Not the container's: the caret's keys, what erases, and the clipboard's and undo's combinations.
bool isEditKey(WPARAM key, bool control) noexcept
{
    if (control && (key == 'A' || key == 'C' || key == 'V' || key == 'X' || key == 'Y' || key == 'Z'))
        return true;
    return movesCaret(key) || key == VK_INSERT || key == VK_DELETE || key == VK_BACK;
}

} // namespace

const ClassFacts& velaFacts() noexcept
{
    static const ClassFacts facts{velaClass,          velaInterface, &velaEvents,      identity::velaProgId,
                                  identity::velaName, pages,         velaCategories(), {120, 21}};
    return facts;
}

VelaContent::VelaContent(Shell& shell)
    : shell_(shell), session_(Session::current()), vela_(*this, surface_, session_->environment, session_->popups),
      font_([this](DISPID part, const platform::FontDescription& font) {
          if (auto next = withPart(vela_.Font(), part, font); next != vela_.Font())
              vela_.Font(next);
      })
{
    surface_.putDpi(win32::dpiOf(nullptr));
    surface_.setEvents(&vela_, &vela_);
    surface_.setListener(this);
}

VelaContent::~VelaContent()
{
    terminate();
}

std::span<const Member> VelaContent::members() const noexcept
{
    return velaMembers();
}

Variant VelaContent::get(const Member& member)
{
    const control::Property& property = control::properties()[member.row];
    if (property.type() == control::PropertyType::font) {
        Variant result;
        result.ref().pdispVal = font_.object(vela_.Font()).Detach();
        result.ref().vt = VT_DISPATCH;
        return result;
    }
    if (property.type() == control::PropertyType::longInteger && property.access() == control::Access::read)
        needWindow(); // hwnd and HwndCtl
    return propertyVariant(property, control::getProperty(vela_, property));
}

void VelaContent::put(const Member& member, const VARIANT& value)
{
    const Told told(*this);
    const control::Property& property = control::properties()[member.row];
    switch (property.type()) {
    case control::PropertyType::font:
        if (IUnknown* const font = objectIn(value))
            vela_.Font(font_.adopt(font));
        else
            engine::raise(engine::error_number::objectNotSet);
        break;
    case control::PropertyType::colour: control::putProperty(vela_, property, colourFromVariant(value)); break;
    default: control::putProperty(vela_, property, valueFromVariant(value)); break;
    }
    fontChanged(); // MultLine brings a box with a font of its own
}

Variant VelaContent::call(const Member& member, const Arguments&)
{
    control::methods()[member.row].call(vela_);
    return {};
}

void VelaContent::initNew()
{
    const Told told(*this);
    vela_.initNew();
    takeAmbientFont();
    fontChanged();
}

// A new field takes the font of its form; a loaded one has the font that it was saved with.
void VelaContent::takeAmbientFont()
{
    const auto ambient = shell_.site().ambient(DISPID_AMBIENT_FONT);
    if (!ambient || (ambient->get().vt != VT_DISPATCH && ambient->get().vt != VT_UNKNOWN))
        return;
    if (auto font = describeFont(ambient->get().punkVal)) {
        platform::EditTraits traits = surface_.edit().traits();
        traits.font = std::move(*font);
        surface_.edit().putTraits(traits);
    }
}

void VelaContent::fontChanged() noexcept
{
    contained([&] { font_.follow(vela_.Font()); });
}

// The colour of the form, which shows around round corners.
void VelaContent::takeAmbientGround()
{
    const auto ambient = shell_.site().ambient(DISPID_AMBIENT_BACKCOLOR);
    if (ambient && (ambient->get().vt == VT_I4 || ambient->get().vt == VT_UI4))
        surface_.putGround(engine::Colour{static_cast<std::uint32_t>(ambient->get().lVal)});
}

void VelaContent::load(platform::PropertyBag& bag)
{
    const Told told(*this);
    vela_.load(bag);
    fontChanged();
}

void VelaContent::terminate() noexcept
{
    contained([&] { vela_.terminate(); });
    surface_.setListener(nullptr);
    surface_.setEvents(nullptr, nullptr);
    contained([&] { surface_.destroy(); });
}

void VelaContent::attach(HWND parent, const RECT& place)
{
    takeAmbientGround();
    session_->locales.listen();
    if (surface_.handle())
        surface_.reparent(parent, place);
    else
        surface_.create(parent, place);
    surface_.putDead(shell_.site().dead());
    surface_.show(true);
    parking_ = {};
}

// Closes the pop-up and the alert first, because their owner window is about to be destroyed. A field with the focus
// reports lostFocus() on the way.
void VelaContent::detach() noexcept
{
    contained([&] {
        if (session_->popups.isOpenFor(vela_))
            session_->popups.closeAll();
    });
    contained([&] { surface_.destroy(); }); // a field with the focus is left
    contained([&] { vela_.DestruirToolTip(); });
}

// Scripts that have no window for the control still find one when they ask for its handle.
void VelaContent::needWindow()
{
    if (surface_.handle())
        return;
    if (!parking_)
        parking_ = win32::UniqueWindow(CreateWindowExW(WS_EX_TOOLWINDOW, L"STATIC", nullptr, WS_POPUP, 0, 0, 0, 0,
                                                       nullptr, nullptr, nullptr, nullptr));
    if (!parking_)
        engine::raise(engine::error_number::outOfMemory);
    session_->locales.listen();
    const FieldSize now = size();
    surface_.create(parking_.get(), {0, 0, now.width, now.height});
}

void VelaContent::place(const RECT& place)
{
    surface_.refreshDpi(); // some hosts move a window to another screen without a word
    surface_.place(place);
}

void VelaContent::clip(const RECT* shown)
{
    surface_.clip(shown ? std::optional(*shown) : std::nullopt);
}

FieldSize VelaContent::size()
{
    const engine::RectPixels client = surface_.clientRect();
    return {client.width, client.height};
}

bool VelaContent::wantsKey(const MSG& message) const
{
    if (message.message != WM_KEYDOWN || surface_.dead())
        return false;
    if (message.wParam == VK_RETURN)
        return eatsReturn();
    return isEditKey(message.wParam, GetKeyState(VK_CONTROL) < 0);
}

// A host's library asks without naming the key; then it is the one that the host's message loop has just handed over.
bool VelaContent::eatsEnter(WPARAM key) const
{
    const WPARAM asked = key ? key : shell_.activeObject().translated();
    return eatsReturn() && (asked == 0 || asked == VK_RETURN);
}

bool VelaContent::tabUnused(MSG& message)
{
    const Shell::Hold hold(shell_);
    return shell_.site().translate(&message);
}

// A put may fail with its value stored.
VelaContent::Told::~Told()
{
    content_.surface_.nameChanged();
    if (std::exchange(content_.eatsTold_, content_.eatsReturn()) != content_.eatsTold_)
        content_.shell_.site().controlInfoChanged();
}

void VelaContent::ambientChanged(DISPID id)
{
    if (id == DISPID_AMBIENT_LOCALEID || id == DISPID_UNKNOWN)
        session_->locales.refresh();
    if (id == DISPID_AMBIENT_UIDEAD || id == DISPID_UNKNOWN)
        surface_.putDead(shell_.site().dead());
    if (id == DISPID_AMBIENT_BACKCOLOR || id == DISPID_UNKNOWN)
        takeAmbientGround();
}

void VelaContent::draw(HDC dc, const RECT& bounds)
{
    takeAmbientGround();
    surface_.draw(dc, bounds);
}

// A password leaves the field only through its own properties.
std::u16string VelaContent::plainText()
{
    const std::u16string text = vela_.Text();
    const char16_t shown = surface_.edit().traits().passwordChar;
    return shown == 0 ? text : std::u16string(text.size(), shown);
}

void VelaContent::propertyChanged(std::u16string_view name, int dispid)
{
    static_assert(platform::unknownProperty == DISPID_UNKNOWN);
    if (name.starts_with(u"Font"))
        fontChanged(); // before anybody hears of the part and looks at the object
    shell_.propertyChanged(dispid);
}

bool VelaContent::runMode() const
{
    const Shell::Hold hold(shell_);
    return shell_.site().runMode();
}

std::u16string VelaContent::containerName() const
{
    const Shell::Hold hold(shell_);
    return shell_.site().containerName();
}

// The form counts as modal when its owner window is disabled.
platform::ParentForm VelaContent::parentForm() const
{
    const HWND form = win32::formOf(surface_.handle());
    const HWND top = GetAncestor(surface_.handle(), GA_ROOT);
    const HWND owner = top ? GetWindow(top, GW_OWNER) : nullptr;
    return {form != top, owner && !IsWindowEnabled(owner), {reinterpret_cast<std::uintptr_t>(form)}};
}

void VelaContent::raiseChange()
{
    const Shell::Hold hold(shell_);
    for (const Member& member : members())
        if (member.bindable)
            shell_.boundChanged(member.id);
    shell_.fire(eventId(u"Change"));
}

void VelaContent::raiseClick()
{
    shell_.fire(eventId(u"Click"));
}

void VelaContent::raiseKeyPress(std::int16_t& key)
{
    shell_.fire(eventId(u"KeyPress"), {&key});
}

void VelaContent::raiseKeyDown(std::int16_t& code, std::int16_t& shift)
{
    shell_.fire(eventId(u"KeyDown"), {&code, &shift});
}

void VelaContent::raiseKeyUp(std::int16_t& code, std::int16_t& shift)
{
    shell_.fire(eventId(u"KeyUp"), {&code, &shift});
}

void VelaContent::raiseMouseOut()
{
    shell_.fire(eventId(u"MouseOut"));
}

} // namespace vela::activex
