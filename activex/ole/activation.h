// The states of a control in its host: loaded, in place, with the user interface. Every step asks the site first.
#pragma once

#include "activex/com/owners.h"

#include <ocidl.h>

namespace vela::activex {

class Shell;

class Activation {
public:
    explicit Activation(Shell& shell) noexcept : shell_(shell) {}

    [[nodiscard]] bool inPlace() const noexcept { return inPlace_; }

    // Raises what making the window raises; answers what the site refused with.
    HRESULT activate();
    HRESULT activateInterface(bool takeFocus);
    void deactivateInterface() noexcept;
    void deactivate() noexcept;
    void putRects(const RECT& place, const RECT& clip);

private:
    HRESULT enter();
    HRESULT begin(IOleInPlaceSite& site);
    void offer(IOleInPlaceActiveObject* active) noexcept;
    void clip(const RECT& place, const RECT& clip) noexcept;

    Shell& shell_;
    ComPtr<IOleInPlaceSite> site_;
    ComPtr<IOleInPlaceFrame> frame_;
    ComPtr<IOleInPlaceUIWindow> document_;
    bool entering_ = false; // being activated: not to be activated again inside
    bool closed_ = false;   // the host closed the control inside the activation
    bool inPlace_ = false;
    bool interface_ = false;
    bool leaving_ = false; // being deactivated: what the host asks for inside is refused
};

} // namespace vela::activex
