// The control: a text box that knows what kind of data it holds. Platform-neutral; a back end brings the windows.
#pragma once

#include "platform/control_host.h"
#include "platform/control_surface.h"
#include "platform/environment.h"
#include "popups/owner.h"
#include "popups/popups.h"

namespace vela::control {

class Vela final : public platform::EditBoxEvents, public platform::SurfaceEvents, public popups::Owner {
public:
    // Initialise. All references outlive the control.
    Vela(platform::ControlHost& host, platform::ControlSurface& surface, platform::Environment& environment,
         popups::Popups& popups);
    ~Vela(); // terminates when terminate() has not run

    // Life, called by the host.
    void initNew();                          // new-instance settings
    void load(platform::PropertyBag& bag);   // may raise; the control stays usable
    void save(platform::PropertyBag& bag);
    void terminate();                        // once; later calls do nothing
};

} // namespace vela::control
