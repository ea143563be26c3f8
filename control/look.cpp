// How the field looks: layout, border, colours on hover.
#include "control/internal.h"

#include "control/layout.h"

namespace vela::control {

namespace {

constexpr int ignoredTimerFailure = 398;

// The styles that the surface draws whatever the appearance: the coloured 3D border and the round one.
constexpr bool drawnBySurface(engine::eEstiloBorda style) noexcept
{
    return style == engine::eEstiloBorda::c3DColor || style == engine::eEstiloBorda::XP;
}

} // namespace

platform::SurfaceLayout Vela::arrangement() const
{
    return arrangeField({.client = surface_.clientRect(),
                         .dpi = surface_.dpi(),
                         .ownBorder = surface_.drawsBorder() && (!sunken_ || drawnBySurface(settings_.borderStyle)),
                         .rounded = settings_.borderStyle == eEstiloBorda::XP,
                         .button = buttonVisible_});
}

void Vela::layOut()
{
    if (box_ == nullptr)
        return;
    trap(
        life_,
        [&](int&) {
            const bool sunken = sunken_ && !drawnBySurface(settings_.borderStyle);
            if (!released_)
                putTrait(&platform::EditTraits::sunken, sunken);
            const platform::SurfaceLook look{.line = static_cast<int>(settings_.borderStyle),
                                             .ownBorder = !sunken,
                                             .border = border_,
                                             .back = surfaceBack_,
                                             .button = buttonVisible_,
                                             .glyph = settings_.textType == TipoText::Numerico
                                                          ? platform::ButtonGlyph::calculator
                                                          : platform::ButtonGlyph::calendar};
            if (look != surface_.look())
                surface_.putLook(look);
            surface_.arrange(arrangement());
        },
        [&](const engine::Error& failure) {
            showBox(platform::BoxIcon::information, u"Vela.Resize", numberAndDescription(failure));
        });
}

void Vela::putForeColour(Colour colour)
{
    box().putColours({colour, box().colours().back});
}

void Vela::putBackColours(Colour colour)
{
    box().putColours({box().colours().fore, colour});
    surfaceBack_ = colour;
}

void Vela::pointerMoved()
{
    if (deaf())
        return;
    whileAlive(life_, [&] {
        trapToLog(label::mouseMove, [&] {
            putBackColours(settings_.backColorMouseMove);
            border_ = settings_.borderColorMouseMove;
            layOut();
            surface_.enableHoverTimer(true);
        });
    });
}

// The text colour stays as it is: a number keeps the colour of its sign.
void Vela::hoverTick()
{
    if (life_.ended())
        return;
    whileAlive(life_, [&] {
        trap(
            life_,
            [&](int&) {
                if (environment_.desktop.windowUnderPointer() == box().window())
                    return;
                raise(&platform::ControlHost::raiseMouseOut);
                const bool focused = box().hasFocus();
                putBackColours(focused ? settings_.backColorGotFocus : settings_.backColorLostFocus);
                border_ = focused ? settings_.borderColorGotfocus : settings_.borderColorLostfocus;
                layOut();
                surface_.enableHoverTimer(false);
            },
            [&](const engine::Error& failure) {
                if (failure.number != ignoredTimerFailure)
                    log(failure, label::timer);
            });
    });
}

void Vela::surfaceGotFocus()
{
    if (!deaf() && box().traits().enabled)
        box().takeFocus();
}

void Vela::surfaceLostFocus()
{
    border_ = settings_.borderColorLostfocus;
}

void Vela::resized()
{
    if (life_.ended())
        return;
    whileAlive(life_, [&] { layOut(); });
}

} // namespace vela::control
