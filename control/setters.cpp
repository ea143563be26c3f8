// The setters that do more than store: look, lock, lines, decimals, buttons, schemes.
#include "control/internal.h"

#include "engine/error.h"

namespace vela::control {

// A value beyond the two is stored, and shown as it was.
void Vela::Appearance(Aparencia value)
{
    settings_.appearance = value;
    static_cast<void>(box()); // it is the edit box's look: 91 without one
    if (value == Aparencia::c3D || value == Aparencia::cFlat) {
        sunken_ = value == Aparencia::c3D;
        layOut();
    }
}

void Vela::BorderStyle(eEstiloBorda value)
{
    settings_.borderStyle = value;
    platform::SurfaceLook look = surface_.look();
    look.line = static_cast<int>(value);
    surface_.putLook(look);
    if (value != eEstiloBorda::XP)
        surface_.clear();
    layOut();
    markChanged(u"BorderStyle");
}

// Seen at once at design time, where no field is ever left; at run time when it is next left.
void Vela::BorderColorLostfocus(Colour value)
{
    settings_.borderColorLostfocus = value;
    if (!host_.runMode()) {
        border_ = value;
        layOut();
    }
    markChanged(u"BorderColorLostfocus");
}

void Vela::EsquemaRetornoAtual(eEsquemasRetorno value)
{
    settings_.esquemaRetornoAtual = value;
    adoptScheme();
    markChanged(u"EsquemaRetornoAtual");
}

// Copies: a later change of the scheme's texts counts when the scheme is chosen again. Beyond 1 to 4: as it was.
void Vela::adoptScheme()
{
    const auto scheme = static_cast<std::int32_t>(settings_.esquemaRetornoAtual);
    if (scheme < 1 || scheme > 4)
        return;
    const auto index = static_cast<std::size_t>(scheme - 1);
    formatoRetornoAtual_ = settings_.returnFormats[index];
    delimitadorAtual_ = settings_.delimiters[index];
}

// A date's box is locked by its type and left alone here; a mask's stays locked whatever the value.
void Vela::Locked(bool value)
{
    settings_.locked = value;
    switch (settings_.textType) {
    case TipoText::TextoNormal:
    case TipoText::Numerico: putTrait(&platform::EditTraits::locked, value); return;
    case TipoText::Data: return;
    case TipoText::Mascara: break;
    }
    putTrait(&platform::EditTraits::locked, true);
}

// At run time the flag is stored, then refused; kept so.
void Vela::MultLine(bool value)
{
    settings_.multLine = value;
    if (host_.runMode())
        engine::raise(engine::error_number::readOnlyProperty);
    box_ = &surface_.activate(value ? platform::EditBoxKind::multiLine : platform::EditBoxKind::singleLine);
    released_ = false;
    history_.reset();
    layOut();
}

void Vela::QtdCasasDec(std::uint8_t value)
{
    settings_.qtdCasasDec = value;
    if (value == 0) {
        SimbolDecExib(Simbolos::Vazio);
        SimbolAgrupMilhar(Simbolos::Vazio);
        SimbolDecRet(Simbolos::Vazio);
        InserirZeros(false);
    }
    markChanged(u"QtdCasasDec");
}

void Vela::ShowButtonCalendario(bool value)
{
    showButton(settings_.showButtonCalendario, value);
}

void Vela::ShowButtonCalculadora(bool value)
{
    showButton(settings_.showButtonCalculadora, value);
}

// The last put of either flag decides the button. The XP style has no button and says so at each put.
void Vela::showButton(bool& flag, bool value)
{
    const bool refused = settings_.borderStyle == eEstiloBorda::XP;
    flag = value && !refused;
    if (buttonVisible_ != flag) {
        buttonVisible_ = flag;
        layOut();
    }
    if (refused)
        showBox(platform::BoxIcon::information, u":(", u"TextBox Estilo XP não suporta botões !");
}

void Vela::SimbolAgrupMilhar(Simbolos value)
{
    putSymbol(settings_.simbolAgrupMilhar, settings_.grouping, value, u"SimbolAgrupMilhar");
}

void Vela::SimbolDecExib(Simbolos value)
{
    putSymbol(settings_.simbolDecExib, settings_.displayDecimal, value, u"SimbolDecExib");
}

void Vela::SimbolDecRet(Simbolos value)
{
    putSymbol(settings_.simbolDecRet, settings_.returnDecimal, value, u"SimbolDecRet");
}

void Vela::putSymbol(Simbolos& stored, char16_t& derived, Simbolos value, View name)
{
    stored = value;
    derived = symbolOf(value);
    markChanged(name);
}

} // namespace vela::control
