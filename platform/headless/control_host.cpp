// The host's part of each event: the trace first, then the application's handler.
#include "platform/headless/control_host.h"

namespace vela::headless {

HostHandlers& ControlHost::handlers()
{
    if (!handlers_)
        handlers_ = std::make_unique<HostHandlers>();
    return *handlers_;
}

platform::ParentForm ControlHost::parentForm() const
{
    return {false, false, element_->form().topLevelWindow()};
}

// A handler may destroy this host: it is called from a copy, and nothing of the host is used afterwards.
template <class Handler, class... Arguments>
void ControlHost::call(Handler HostHandlers::*handler, Arguments&... arguments)
{
    if (!handlers_)
        return;
    const Handler copy = (*handlers_).*handler;
    if (copy)
        copy(arguments...);
}

void ControlHost::propertyChanged(std::u16string_view name, int)
{
    element_->form().faults().pass();
    element_->form().sink().trace(trace::Changed{element_->name(), name});
    call(&HostHandlers::propertyChanged, name);
}

void ControlHost::report(std::u16string_view name, int count, int first, int second) const
{
    element_->form().faults().pass();
    element_->form().sink().trace(trace::Event{element_->name(), name, count, first, second});
}

void ControlHost::raiseChange()
{
    report(u"Change");
    call(&HostHandlers::change);
}

void ControlHost::raiseClick()
{
    report(u"Click");
    call(&HostHandlers::click);
}

void ControlHost::raiseKeyPress(std::int16_t& key)
{
    report(u"KeyPress", 1, key);
    call(&HostHandlers::keyPress, key);
}

void ControlHost::raiseKeyDown(std::int16_t& code, std::int16_t& shift)
{
    report(u"KeyDown", 2, code, shift);
    call(&HostHandlers::keyDown, code, shift);
}

void ControlHost::raiseKeyUp(std::int16_t& code, std::int16_t& shift)
{
    report(u"KeyUp", 2, code, shift);
    call(&HostHandlers::keyUp, code, shift);
}

void ControlHost::raiseMouseOut()
{
    report(u"MouseOut");
    call(&HostHandlers::mouseOut);
}

} // namespace vela::headless
