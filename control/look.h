// How the field looks: border, colours, button and layout, and what changes when the pointer is over it.
#pragma once

#include "control/context.h"

namespace vela::control {

class Look {
public:
    explicit Look(Context& context) : context_(context) {}

    void adopt(engine::Colour back); // the look of the loaded settings
    [[nodiscard]] bool sunken() const noexcept { return sunken_; }
    void layOut();
    [[nodiscard]] platform::SurfaceLayout arrangement() const;
    void putForeColour(engine::Colour colour);
    void enter(bool wrong); // the colours of a field with the focus; a wrong entry keeps its text colour
    void leave();
    void leaveSurface() { border_ = context_.settings.borderColorLostfocus; }
    void pointerMoved();
    void hoverTick();

    // Puts of properties.
    void putAppearance(Aparencia value);
    void putBorderColorLostfocus(engine::Colour value);
    void putBorderStyle(eEstiloBorda value);
    void putShowButtonCalculadora(bool value);
    void putShowButtonCalendario(bool value);

private:
    void putBackColours(engine::Colour colour); // of the edit box and of the surface
    void showButton(bool& flag, bool value);

    Context& context_;
    engine::Colour border_{0x00FFFFFF}; // now
    engine::Colour surfaceBack_{0x00FFFFFF};
    bool sunken_ = true;         // the edit box draws a 3D border of its own
    bool buttonVisible_ = false; // cmdCalendario
};

} // namespace vela::control
