// Mask, rules and the switch of the text type.
#include "control/internal.h"

#include "engine/error.h"

namespace vela::control {

bool Vela::masked() const noexcept
{
    return settings_.textType == TipoText::Data || settings_.textType == TipoText::Mascara;
}

bool Vela::liveNumber() const noexcept
{
    return settings_.textType == TipoText::Numerico && settings_.maskToNumeric;
}

engine::MaskSettings Vela::maskSettings() const
{
    return {settings_.mask, settings_.maskRules, settings_.promptChar, settings_.locked};
}

void Vela::putMask(View value)
{
    if (value.empty() && settings_.textType == TipoText::Mascara)
        engine::raise(engine::error_number::emptyMask);
    const std::int16_t length = lengthAsInteger(value);
    settings_.mask = value;
    putTrait(&platform::EditTraits::maxLength, int{length});
    Text(u"");
}

void Vela::putMaskRules(View value)
{
    settings_.maskRules = settings_.textType == TipoText::Mascara ? value : View();
}

// Oddity: MaskSomenteNumeros is kept and saved, and read by nothing; saved forms hold the key.
void Vela::putMaskSomenteNumeros(bool value)
{
    settings_.maskSomenteNumeros = value && masked();
}

void Vela::putMaskToNumeric(bool value)
{
    settings_.maskToNumeric = value && settings_.textType == TipoText::Numerico;
    if (settings_.maskToNumeric) {
        Text(engine::numericTemplate(numberSettings().decimal, settings_.qtdCasasDec));
        writeText(Text(), Writer::host);
    } else {
        Text(u"");
    }
}

// The old default is cleared before the type changes, because the setter depends on the type.
// Oddity: switching TextType first clears ValorPadrao and may show boxes of the setters it runs; forms put the default
// after the type.
void Vela::putTextType(TipoText value)
{
    if (settings_.multLine) {
        settings_.textType = TipoText::TextoNormal;
        showBox(platform::BoxIcon::exclamation, u"", u"Impossível modicar formato de dados, Textbox está multline");
        return;
    }
    ValorPadrao(u"");
    settings_.textType = value;
    switch (value) {
    case TipoText::TextoNormal: switchToText(); break;
    case TipoText::Numerico: switchToNumber(); break;
    case TipoText::Data: switchToDate(); break;
    case TipoText::Mascara: switchToMask(); break;
    }
}

void Vela::switchToText()
{
    putTrait(&platform::EditTraits::locked, false);
    putLocked(false);
    putCalendarButton(false);
    putCalculatorButton(false);
    Text(u"");
    writeText(u"", Writer::host);
    Mask(u"");
    putTrait(&platform::EditTraits::alignment, platform::TextAlignment::left);
    putTrait(&platform::EditTraits::maxLength, 0);
}

void Vela::switchToNumber()
{
    putTrait(&platform::EditTraits::locked, settings_.locked); // a date or a mask had locked the box
    putCalendarButton(false);
    Text(u"");
    Mask(u"");
    putTrait(&platform::EditTraits::alignment, platform::TextAlignment::right);
    ValorPadrao(u"");
    CaractLiberados(u"");
}

void Vela::switchToDate()
{
    MaskRules(u"");
    putLocked(false);
    settings_.textoLivre = true;
    putTrait(&platform::EditTraits::locked, true);
    Mask(settings_.formatoExibData);
    putTrait(&platform::EditTraits::alignment, platform::TextAlignment::center);
    writeText(settings_.formatoExibData, Writer::host);
    Text(settings_.formatoExibData);
    CaractLiberados(u"");
}

void Vela::switchToMask()
{
    settings_.textoLivre = true;
    putCalendarButton(false);
    putCalculatorButton(false);
    CaractLiberados(u"");
    if (settings_.mask.empty())
        showBox(platform::BoxIcon::information, u"Vela", u"A máscara não foi definida");
    putLocked(false);
    putTrait(&platform::EditTraits::locked, true);
    putTrait(&platform::EditTraits::alignment, platform::TextAlignment::center);
    writeText(settings_.mask, Writer::host);
}

} // namespace vela::control
