// The setters that do more than store: look, lock, lines, decimals, buttons, schemes.
#include "control/internal.h"

#include "engine/error.h"

namespace vela::control {

// A value beyond the enumeration is stored, and the look stays as it was.
void Vela::putAppearance(Aparencia value)
{
    settings_.appearance = value;
    static_cast<void>(box()); // raises 91 when there is no box
    if (value == Aparencia::c3D || value == Aparencia::cFlat) {
        sunken_ = value == Aparencia::c3D;
        layOut();
    }
}

void Vela::putBorderStyle(eEstiloBorda value)
{
    settings_.borderStyle = value;
    platform::SurfaceLook look = surface_.look();
    look.line = static_cast<int>(value);
    surface_.putLook(look);
    if (value != eEstiloBorda::XP)
        surface_.clear();
    layOut();
}

// Shown at once at design time, when the focus never leaves a field; at run time shown when the field is next left.
void Vela::putBorderColorLostfocus(Colour value)
{
    settings_.borderColorLostfocus = value;
    if (!host_.runMode()) {
        border_ = value;
        layOut();
    }
}

void Vela::putScheme(eEsquemasRetorno value)
{
    settings_.esquemaRetornoAtual = value;
    adoptScheme();
}

// Copies the scheme's texts: a later change of them counts when the scheme is chosen again.
// Oddity: EsquemaRetornoAtual outside 1 to 4 is stored and changes nothing; an error would stop forms that put it.
void Vela::adoptScheme()
{
    const auto scheme = static_cast<std::int32_t>(settings_.esquemaRetornoAtual);
    if (scheme < 1 || scheme > 4)
        return;
    const auto index = static_cast<std::size_t>(scheme - 1);
    formatoRetornoAtual_ = settings_.returnFormats[index];
    delimitadorAtual_ = settings_.delimiters[index];
}

// Oddity: Locked = False leaves a Mascara box locked, and the lock of a Data box alone; the control edits these boxes
// itself and would do so twice.
void Vela::putLocked(bool value)
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

// Oddity: MultLine put at run time raises 1002 and yet reads back the new value; the key filter works by that value.
void Vela::putMultLine(bool value)
{
    settings_.multLine = value;
    if (host_.runMode())
        engine::raise(engine::error_number::readOnlyProperty);
    box_ = &surface_.activate(value ? platform::EditBoxKind::multiLine : platform::EditBoxKind::singleLine);
    released_ = false;
    history_.reset();
    layOut();
}

// Oddity: QtdCasasDec = 0 resets the three symbols and InserirZeros; forms switch to whole numbers with this one put.
void Vela::putDecimals(std::uint8_t value)
{
    settings_.qtdCasasDec = value;
    if (value == 0) {
        SimbolDecExib(Simbolos::Vazio);
        SimbolAgrupMilhar(Simbolos::Vazio);
        SimbolDecRet(Simbolos::Vazio);
        InserirZeros(false);
    }
}

void Vela::putCalendarButton(bool value)
{
    showButton(settings_.showButtonCalendario, value);
}

void Vela::putCalculatorButton(bool value)
{
    showButton(settings_.showButtonCalculadora, value);
}

// The flag that was put last decides whether the button shows. The XP style has no button: there each put shows a box.
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

} // namespace vela::control
