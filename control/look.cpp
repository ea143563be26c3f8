// How the field looks: layout, border, colours on hover.
#include "control/look.h"

#include "control/error_log.h"
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

void Look::adopt(engine::Colour back)
{
    const Settings& settings = context_.settings;
    sunken_ = settings.appearance != Aparencia::cFlat;
    border_ = settings.borderColorLostfocus;
    surfaceBack_ = back;
    buttonVisible_ =
        (settings.showButtonCalendario || settings.showButtonCalculadora) && settings.borderStyle != eEstiloBorda::XP;
}

platform::SurfaceLayout Look::arrangement() const
{
    return arrangeField(
        {.client = context_.surface.clientRect(),
         .dpi = context_.surface.dpi(),
         .ownBorder = context_.surface.drawsBorder() && (!sunken_ || drawnBySurface(context_.settings.borderStyle)),
         .rounded = context_.settings.borderStyle == eEstiloBorda::XP,
         .button = buttonVisible_});
}

void Look::layOut()
{
    if (!context_.hasBox())
        return;
    trap(
        context_.life,
        [&](int&) {
            const bool sunken = sunken_ && !drawnBySurface(context_.settings.borderStyle);
            if (!context_.released())
                context_.putTrait(&platform::EditTraits::sunken, sunken);
            const platform::SurfaceLook look{.line = static_cast<int>(context_.settings.borderStyle),
                                             .ownBorder = !sunken,
                                             .border = border_,
                                             .back = surfaceBack_,
                                             .button = buttonVisible_,
                                             .glyph = context_.settings.textType == TipoText::Numerico
                                                          ? platform::ButtonGlyph::calculator
                                                          : platform::ButtonGlyph::calendar};
            if (look != context_.surface.look())
                context_.surface.putLook(look);
            context_.surface.arrange(arrangement());
        },
        [&](const engine::Error& failure) {
            context_.showBox(platform::BoxIcon::information, u"Vela.Resize", numberAndDescription(failure));
        });
}

void Look::putForeColour(engine::Colour colour)
{
    context_.box().putColours({colour, context_.box().colours().back});
}

void Look::putBackColours(engine::Colour colour)
{
    context_.box().putColours({context_.box().colours().fore, colour});
    surfaceBack_ = colour;
}

void Look::enter(bool wrong)
{
    const Settings& settings = context_.settings;
    context_.box().putColours(
        {wrong ? settings.errorForeColor : settings.foreColorGotFocus, settings.backColorGotFocus});
    surfaceBack_ = settings.backColorGotFocus;
    border_ = settings.borderColorGotfocus;
    layOut();
}

void Look::leave()
{
    putBackColours(context_.settings.backColorLostFocus);
    border_ = context_.settings.borderColorLostfocus;
    putForeColour(context_.settings.foreColorLostFocus);
    layOut();
    if (context_.settings.appearance == Aparencia::cFlat && context_.settings.borderStyle != eEstiloBorda::XP) {
        context_.surface.clear();
        context_.surface.drawRectangle(context_.settings.borderColorLostfocus, 1);
    }
}

void Look::pointerMoved()
{
    context_.trapToLog(label::mouseMove, [&] {
        putBackColours(context_.settings.backColorMouseMove);
        border_ = context_.settings.borderColorMouseMove;
        layOut();
        context_.surface.enableHoverTimer(true);
    });
}

// The text colour stays as it is: a number keeps the colour of its sign.
void Look::hoverTick()
{
    trap(
        context_.life,
        [&](int&) {
            if (context_.environment.desktop.windowUnderPointer() == context_.box().window())
                return;
            context_.raise(&platform::ControlHost::raiseMouseOut);
            const bool focused = context_.box().hasFocus();
            putBackColours(focused ? context_.settings.backColorGotFocus : context_.settings.backColorLostFocus);
            border_ = focused ? context_.settings.borderColorGotfocus : context_.settings.borderColorLostfocus;
            layOut();
            context_.surface.enableHoverTimer(false);
        },
        [&](const engine::Error& failure) {
            if (failure.number != ignoredTimerFailure)
                context_.log(failure, label::timer);
        });
}

// A value beyond the enumeration is stored, and the look stays as it was.
void Look::putAppearance(Aparencia value)
{
    context_.settings.appearance = value;
    static_cast<void>(context_.box()); // raises 91 when there is no box
    if (value == Aparencia::c3D || value == Aparencia::cFlat) {
        sunken_ = value == Aparencia::c3D;
        layOut();
    }
}

void Look::putBorderStyle(eEstiloBorda value)
{
    context_.settings.borderStyle = value;
    platform::SurfaceLook look = context_.surface.look();
    look.line = static_cast<int>(value);
    context_.surface.putLook(look);
    if (value != eEstiloBorda::XP)
        context_.surface.clear();
    layOut();
}

// Shown at once at design time, when the focus never leaves a field; at run time shown when the field is next left.
void Look::putBorderColorLostfocus(engine::Colour value)
{
    context_.settings.borderColorLostfocus = value;
    if (!context_.host.runMode()) {
        border_ = value;
        layOut();
    }
}

void Look::putShowButtonCalendario(bool value)
{
    showButton(context_.settings.showButtonCalendario, value);
}

void Look::putShowButtonCalculadora(bool value)
{
    showButton(context_.settings.showButtonCalculadora, value);
}

// The flag that was put last decides whether the button shows. The XP style has no button: there each put shows a box.
void Look::showButton(bool& flag, bool value)
{
    const bool refused = context_.settings.borderStyle == eEstiloBorda::XP;
    flag = value && !refused;
    if (buttonVisible_ != flag) {
        buttonVisible_ = flag;
        layOut();
    }
    if (refused)
        context_.showBox(platform::BoxIcon::information, u":(", u"TextBox Estilo XP não suporta botões !");
}

} // namespace vela::control
