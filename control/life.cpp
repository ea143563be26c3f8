// The life of a control: made, given its settings, told about, ended.
#include "control/internal.h"

#include "control/persistence.h"
#include "control/property_table.h"
#include "engine/error.h"
#include "engine/scoped_value.h"
#include "tooltip/about_box.h"

namespace vela::control {

Vela::Vela(platform::ControlHost& host, platform::ControlSurface& surface, platform::Environment& environment,
           popups::Popups& popups)
    : host_(host), surface_(surface), environment_(environment), popups_(popups)
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
        if (!property->fresh.designOnly || !host_.runMode())
            put(*property, valueOf(property->type(), property->fresh.value));
    settings_.inserirZeros = false; // overrides the put above
    putTrait(&platform::EditTraits::enabled, true);
    layOut();
}

// When the bag fails half way, the values read so far stay, the others get their defaults and the field works. The
// first error is the one that is raised.
void Vela::load(platform::PropertyBag& bag)
{
    StoredState state;
    state.colours = popups_.colours().read();
    std::optional<engine::Error> failure;
    const auto keep = [&](const engine::Error& error) {
        if (!failure)
            failure = error;
    };
    const engine::Alive alive(life_);
    const auto step = [&](auto body) {
        if (!alive)
            return;
        try {
            body();
        } catch (const engine::Error& error) {
            keep(error);
        }
    };
    step([&] { readState(bag, locale(), state); });
    const bool whole = !failure;
    step([&] { adopt(std::move(state)); });
    step([&] { prepareText(); });
    step([&] {
        if (whole)
            applyLoadedDefault(); // when it fails, no return scheme is adopted
        adoptScheme();
    });
    step([&] { layOut(); });
    if (failure)
        throw *failure;
}

void Vela::adopt(StoredState&& state)
{
    history_.reset();
    released_ = false;
    settings_ = std::move(state.settings);
    popups_.colours().put(state.colours);
    sunken_ = settings_.appearance != Aparencia::cFlat;
    border_ = settings_.borderColorLostfocus;
    surfaceBack_ = state.back;
    buttonVisible_ = (settings_.showButtonCalendario || settings_.showButtonCalculadora) &&
                     settings_.borderStyle != eEstiloBorda::XP;
    box_ =
        &surface_.activate(settings_.multLine ? platform::EditBoxKind::multiLine : platform::EditBoxKind::singleLine);
    platform::EditTraits traits = std::move(state.traits);
    traits.locked = masked(); // by its type, whatever "Locked" says
    traits.sunken = sunken_;
    box_->putColours({settings_.foreColorLostFocus, state.back});
    writeText(state.text, Writer::life);
    box().putTraits(traits);
    surface_.putEnabled(traits.enabled);
}

// The empty display of the type. A date without a mask takes its display format for one.
void Vela::prepareText()
{
    switch (settings_.textType) {
    case TipoText::TextoNormal: return;
    case TipoText::Numerico:
        settings_.displayDecimal = symbolOf(settings_.simbolDecExib);
        settings_.returnDecimal = symbolOf(settings_.simbolDecRet);
        settings_.grouping = symbolOf(settings_.simbolAgrupMilhar);
        if (settings_.displayDecimal != 0)
            writeText(engine::numericTemplate(numberSettings().decimal, settings_.qtdCasasDec), Writer::life);
        return;
    case TipoText::Data:
        if (settings_.mask.empty())
            settings_.mask = settings_.formatoExibData;
        writeText(Text16(settings_.formatoExibData), Writer::life);
        putTrait(&platform::EditTraits::maxLength, int{lengthAsInteger(settings_.formatoExibData)});
        return;
    case TipoText::Mascara:
        writeText(Text16(settings_.mask), Writer::life);
        putTrait(&platform::EditTraits::maxLength, int{lengthAsInteger(settings_.mask)});
        return;
    }
}

// Oddity: a loaded ValorPadrao is not tested for its length, and a formula on a field that is no date shows a box;
// forms with such defaults would load with other texts.
void Vela::applyLoadedDefault()
{
    if (settings_.valorPadrao.empty())
        return;
    if (!settings_.valorPadrao.starts_with(u'%'))
        Text(Text16(settings_.valorPadrao));
    else if (settings_.textType == TipoText::Data)
        applyFormula();
    else
        showBox(platform::BoxIcon::information, u"", u"Formula não reconhecida!");
}

void Vela::save(platform::PropertyBag& bag)
{
    const platform::EditBox& current = box();
    StoredState state{settings_, current.traits(), current.colours().back, Text(), popups_.colours().read()};
    writeState(bag, state);
}

void Vela::terminate()
{
    if (life_.ended())
        return;
    hideTip();
    hideAlert();
    popups_.forget(*this);
    surface_.enableHoverTimer(false);
    tip_.reset();
    alert_.reset();
    history_.reset();
    life_.end();
}

void Vela::About()
{
    environment_.desktop.aboutBox(tooltip::aboutText());
}

void Vela::DestruirToolTip()
{
    hideTip();
    hideAlert();
}

void Vela::LimparMemoria()
{
    released_ = true;
    surface_.enableHoverTimer(false); // a tick would read the released box
}

void Vela::put(const Property& property, const engine::Value& value)
{
    property.value.put(*this, value);
    notify(property);
}

void Vela::notify(const Property& property)
{
    if (!property.notification.sent)
        return;
    const View otherName = property.notification.name;
    const engine::Alive alive(life_);
    if (otherName.empty())
        host_.propertyChanged(property.name, property.dispid);
    else
        host_.propertyChanged(otherName, platform::unknownProperty);
    if (!alive)
        engine::raise(engine::error_number::objectNotSet);
}

void Vela::showBox(platform::BoxIcon icon, View title, View text)
{
    const engine::Alive alive(life_);
    environment_.desktop.messageBox(icon, platform::BoxButtons::ok, title, text);
    if (!alive)
        engine::raise(engine::error_number::objectNotSet);
}

void Vela::log(const engine::Error& error, View label)
{
    appendToLog(environment_, error, label);
}

void Vela::writeText(View text, Writer writer)
{
    if (history_ && (writer == Writer::host || writer == Writer::life))
        history_->clear();
    const engine::Alive alive(life_);
    const engine::ScopedValue scope(life_, writer_, writer);
    box().putText(text);
    if (!alive)
        engine::raise(engine::error_number::objectNotSet);
}

} // namespace vela::control
