// A control's host in memory: events and change notifications are traced, and handlers can be put on them.
#pragma once

#include "platform/control_host.h"
#include "platform/headless/form_window.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>

namespace vela::headless {

// What an application does in a control's events, after the event has been traced. Empty ones do nothing. A handler
// may change its arguments, use the control, destroy it, or throw.
struct HostHandlers {
    std::function<void(std::u16string_view)> propertyChanged;
    std::function<void()> change;
    std::function<void()> click;
    std::function<void(std::int16_t&)> keyPress;
    std::function<void(std::int16_t&, std::int16_t&)> keyDown;
    std::function<void(std::int16_t&, std::int16_t&)> keyUp;
    std::function<void()> mouseOut;
};

class ControlHost final : public platform::ControlHost {
public:
    explicit ControlHost(const Element& element, bool runMode = true) noexcept : element_(&element), runMode_(runMode)
    {
    }

    [[nodiscard]] HostHandlers& handlers(); // made at the first call

    void propertyChanged(std::u16string_view name, int dispid) override;
    [[nodiscard]] bool runMode() const override { return runMode_; }
    [[nodiscard]] std::u16string containerName() const override { return u"Form1"; }
    [[nodiscard]] platform::ParentForm parentForm() const override;

    void raiseChange() override;
    void raiseClick() override;
    void raiseKeyPress(std::int16_t& key) override;
    void raiseKeyDown(std::int16_t& code, std::int16_t& shift) override;
    void raiseKeyUp(std::int16_t& code, std::int16_t& shift) override;
    void raiseMouseOut() override;

private:
    template <class Handler, class... Arguments>
    void call(Handler HostHandlers::*handler, Arguments&... arguments);
    void report(std::u16string_view name, int count = 0, int first = 0, int second = 0) const;

    const Element* element_;
    std::unique_ptr<HostHandlers> handlers_;
    bool runMode_;
};

} // namespace vela::headless
