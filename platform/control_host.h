// What the host of a control provides: change notifications, the mode, names, and the control's events.
#pragma once

#include "engine/value.h"
#include "platform/window_id.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vela::platform {

// The form that holds a control, as the pop-ups' foreground check wants it.
struct ParentForm {
    bool mdiChild = false;
    bool modal = false;
    WindowId window;
};

inline constexpr int unknownProperty = -1;

// A handler of the application may change what is passed by reference, may change properties, may destroy the
// control, and may fail; an error then reaches the caller.
class ControlHost {
public:
    virtual ~ControlHost() = default;

    // The name and the DISPID of what was put; unknownProperty where the name is no property's.
    virtual void propertyChanged(std::u16string_view name, int dispid) = 0;
    [[nodiscard]] virtual bool runMode() const = 0; // true without a host that says otherwise
    [[nodiscard]] virtual std::u16string containerName() const = 0;
    [[nodiscard]] virtual ParentForm parentForm() const = 0;

    virtual void raiseChange() = 0;
    virtual void raiseClick() = 0;
    virtual void raiseKeyPress(std::int16_t& key) = 0;
    virtual void raiseKeyDown(std::int16_t& code, std::int16_t& shift) = 0;
    virtual void raiseKeyUp(std::int16_t& code, std::int16_t& shift) = 0;
    virtual void raiseMouseOut() = 0;
};

// A keyed store of typed values kept with the form.
class PropertyBag {
public:
    virtual ~PropertyBag() = default;

    // The value stored under the key, or the default when there is none.
    [[nodiscard]] virtual engine::Value read(std::u16string_view key, const engine::Value& defaultValue) = 0;
    // A value equal to its default is not stored; without a default it always is.
    virtual void write(std::u16string_view key, const engine::Value& value,
                       const std::optional<engine::Value>& defaultValue) = 0;
};

} // namespace vela::platform
