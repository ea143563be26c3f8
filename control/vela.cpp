// The life of a control, and what the edit box and the surface report: each event is given to the part that answers it.
#include "control/vela.h"

#include "control/persistence.h"
#include "control/property_table.h"
#include "engine/error.h"
#include "engine/text/conversions.h"
#include "tooltip/about_box.h"

#include <optional>
#include <utility>

namespace vela::control {

Vela::Vela(platform::ControlHost& host, platform::ControlSurface& surface, platform::Environment& environment,
           popups::Popups& popups)
    : context_(host, surface, environment, popups)
{
}

Vela::~Vela()
{
    terminate();
}

// Puts the defaults one after the other, because the host is notified in this order. A new control has the single-line
// box already.
void Vela::initNew()
{
    for (const Property* const property : freshOrder())
        if (!property->fresh.designOnly || !context_.host.runMode())
            put(*property, valueOf(property->type(), property->fresh.value));
    context_.settings.inserirZeros = false; // overrides the put above
    context_.putTrait(&platform::EditTraits::enabled, true);
    look_.layOut();
}

// When the bag fails half way, the values read so far stay, the others get their defaults and the field works. The
// first error is the one that is raised.
void Vela::load(platform::PropertyBag& bag)
{
    StoredState state;
    state.colours = context_.popups.colours().read();
    std::optional<engine::Error> failure;
    const auto keep = [&](const engine::Error& error) {
        if (!failure)
            failure = error;
    };
    const engine::Alive alive(context_.life);
    const auto step = [&](auto body) {
        if (!alive)
            return;
        try {
            body();
        } catch (const engine::Error& error) {
            keep(error);
        }
    };
    step([&] { readState(bag, context_.locale(), state); });
    const bool whole = !failure;
    step([&] { adopt(std::move(state)); });
    step([&] { content_.prepareText(); });
    step([&] {
        if (whole)
            content_.applyLoadedDefault(); // when it fails, no return scheme is adopted
        content_.adoptScheme();
    });
    step([&] { look_.layOut(); });
    if (failure)
        throw *failure;
}

void Vela::adopt(StoredState&& state)
{
    content_.forgetHistory();
    context_.release(false);
    context_.settings = std::move(state.settings);
    context_.popups.colours().put(state.colours);
    look_.adopt(state.back);
    platform::EditBox& loaded = context_.activate(context_.settings.multLine);
    platform::EditTraits traits = std::move(state.traits);
    traits.locked = context_.masked(); // by its type, whatever "Locked" says
    traits.sunken = look_.sunken();
    loaded.putColours({context_.settings.foreColorLostFocus, state.back});
    content_.writeText(state.text, Writer::life);
    box().putTraits(traits);
    context_.surface.putEnabled(traits.enabled);
}

void Vela::save(platform::PropertyBag& bag)
{
    const platform::EditBox& current = context_.box();
    StoredState state{context_.settings, current.traits(), current.colours().back, Text(),
                      context_.popups.colours().read()};
    writeState(bag, state);
}

void Vela::terminate()
{
    if (context_.life.ended())
        return;
    visit_.hideTips();
    context_.popups.forget(*this);
    context_.surface.enableHoverTimer(false);
    visit_.end();
    content_.forgetHistory();
    context_.life.end();
}

void Vela::About()
{
    context_.environment.desktop.aboutBox(tooltip::aboutText());
}

void Vela::DestruirToolTip()
{
    visit_.hideTips();
}

void Vela::LimparMemoria()
{
    context_.release(true);
    context_.surface.enableHoverTimer(false); // a tick would read the released box
}

void Vela::put(const Property& property, const engine::Value& value)
{
    property.value.put(*this, value);
    context_.notify(property);
}

void Vela::gotFocus()
{
    context_.hear([&] { visit_.enter(); });
}

void Vela::lostFocus(platform::Leaving leaving)
{
    context_.hear([&] { visit_.leave(leaving); });
}

void Vela::clicked()
{
    context_.hear([&] { visit_.click(); });
}

// The back end reports both clicks of a double click; the second runs the click handler again.
void Vela::doubleClicked()
{
    clicked();
}

void Vela::pointerMoved()
{
    context_.hear([&] { look_.pointerMoved(); });
}

void Vela::hoverTick()
{
    if (!context_.life.ended())
        whileAlive(context_.life, [&] { look_.hoverTick(); });
}

void Vela::surfaceGotFocus()
{
    if (!deaf() && box().traits().enabled)
        box().takeFocus();
}

void Vela::resized()
{
    if (!context_.life.ended())
        whileAlive(context_.life, [&] { look_.layOut(); });
}

void Vela::buttonClicked()
{
    if (!context_.life.ended())
        whileAlive(context_.life, [&] { typing_.openPopup(); });
}

std::u16string Vela::popupText()
{
    return Text();
}

void Vela::putPopupText(const engine::Value& value)
{
    Text(engine::toText(value, context_.locale()));
    if (!box().hasFocus())
        return;
    visit_.enterText();
    visit_.enterSelection();
}

void Vela::hideEntryTip()
{
    visit_.hideTip();
}

void Vela::takePopupFocus()
{
    box().takeFocus();
}

engine::RectPixels Vela::popupAnchor()
{
    return context_.surface.screenRect();
}

platform::ParentForm Vela::popupParent()
{
    return context_.host.parentForm();
}

} // namespace vela::control
