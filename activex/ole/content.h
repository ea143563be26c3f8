// What stands in a control's shell: its members, its settings, its window and its picture. The shell knows the hosts'
// interfaces and nothing of what a control does; a content the reverse.
#pragma once

#include "activex/com/variants.h"
#include "engine/field/property_types.h"
#include "platform/control_host.h"

#include <ocidl.h>

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace vela::activex {

// One member of the automation interface.
struct Member {
    std::u16string_view name;
    DISPID id = DISPID_UNKNOWN;
    WORD access = 0;                    // DISPATCH_METHOD, DISPATCH_PROPERTYGET, ..PUT, ..PUTREF
    int parameters = 0;                 // of a method
    std::u16string_view parameter = {}; // the name of its only one
    bool bindable = false;
    const engine::Enumeration* enumeration = nullptr; // of its values
    const CLSID* page = nullptr;                      // the standard page that edits it
    int category = -2;                                // PROPCAT_...; own categories count from 1
    std::size_t row = 0;                              // for the content's own use
};

struct FieldSize { // pixels
    int width = 0;
    int height = 0;
    friend bool operator==(FieldSize, FieldSize) = default;
};

// What a class tells of itself.
struct ClassFacts {
    const CLSID& clsid;
    const IID& members;
    const IID* events;          // null: raises none
    std::u16string_view progId; // with its version: "Vela.Vela.1"
    std::u16string_view name;   // as people see it
    std::span<const CLSID> pages;
    std::span<const std::u16string_view> categories; // names of the own categories, the first is number 1
    FieldSize size;                                  // of a new one, at 96 dots per inch
};

// The arrows, Home, End, Page Up and Page Down.
[[nodiscard]] constexpr bool movesCaret(WPARAM key) noexcept
{
    return key >= VK_PRIOR && key <= VK_DOWN;
}

class Content {
public:
    virtual ~Content() = default;

    [[nodiscard]] virtual std::span<const Member> members() const noexcept = 0; // by DISPID, rising
    // `member` is one of members(). They raise what the member raises.
    [[nodiscard]] virtual Variant get(const Member& member) = 0;
    virtual void put(const Member& member, const VARIANT& value) = 0;
    [[nodiscard]] virtual Variant call(const Member& member, const Arguments& arguments) = 0;

    virtual void initNew() = 0;
    virtual void load(platform::PropertyBag& bag) = 0;
    virtual void save(platform::PropertyBag& bag) = 0;
    // The host lets go: closes what is open, at most once.
    virtual void terminate() noexcept = 0;

    // Null until attached, and again when detached or when the system destroyed it; the content keeps its state.
    [[nodiscard]] virtual HWND window() const noexcept = 0;
    virtual void attach(HWND parent, const RECT& place) = 0; // shows it there, in pixels of the parent's client area
    virtual void detach() noexcept = 0;
    virtual void place(const RECT& place) = 0;
    virtual void clip(const RECT* shown) = 0; // no more of the window is shown, in its own pixels; null: all of it
    virtual void show(bool visible) = 0;
    [[nodiscard]] virtual FieldSize size() = 0;
    virtual void resize(FieldSize size) = 0; // without a window
    virtual void takeFocus() = 0;
    [[nodiscard]] bool hasFocus() const noexcept // a window in it counts
    {
        const HWND own = window();
        const HWND focus = GetFocus();
        return own && focus && (focus == own || IsChild(own, focus));
    }
    [[nodiscard]] virtual bool wantsKey(const MSG& message) const = 0; // its own rather than the container's
    [[nodiscard]] virtual bool eatsReturn() const = 0;
    [[nodiscard]] virtual int dpi() = 0;
    virtual void ambientChanged(DISPID id) = 0;

    virtual void draw(HDC dc, const RECT& bounds) = 0; // as it looks, in units of the device context
    [[nodiscard]] virtual std::u16string plainText() = 0;
};

} // namespace vela::activex
