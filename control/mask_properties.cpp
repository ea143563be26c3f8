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

void Vela::Mask(View value)
{
    if (value.empty() && settings_.textType == TipoText::Mascara)
        engine::raise(engine::error_number::emptyMask);
    const std::int16_t length = lengthAsInteger(value);
    settings_.mask = value;
    MaxLength(length);
    Text(u"");
    markChanged(u"Mask");
}

void Vela::MaskRules(View value)
{
    store(settings_.maskRules, settings_.textType == TipoText::Mascara ? value : View(), u"MaskRules");
}

// Oddity: MaskSomenteNumeros is kept and saved, and read by nothing; saved forms hold the key.
void Vela::MaskSomenteNumeros(bool value)
{
    store(settings_.maskSomenteNumeros, value && masked(), u"MaskSomenteNumeros");
}

void Vela::MaskToNumeric(bool value)
{
    settings_.maskToNumeric = value && settings_.textType == TipoText::Numerico;
    if (settings_.maskToNumeric) {
        Text(engine::numericTemplate(numberSettings().decimal, settings_.qtdCasasDec));
        writeText(Text(), Writer::host);
    } else {
        Text(u"");
    }
    markChanged(u"MaskToNumeric");
}

// The old default is cleared before the type changes, because the setter depends on the type.
// Oddity: switching TextType first clears ValorPadrao and may show boxes of the setters it runs; forms put the default
// after the type.
void Vela::TextType(TipoText value)
{
    if (settings_.multLine) {
        settings_.textType = TipoText::TextoNormal;
        showBox(platform::BoxIcon::exclamation, u"", u"Impossível modicar formato de dados, Textbox está multline");
        markChanged(u"TextType");
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
    markChanged(u"TextType");
}

void Vela::switchToText()
{
    putTrait(&platform::EditTraits::locked, false);
    Locked(false);
    ShowButtonCalendario(false);
    ShowButtonCalculadora(false);
    Text(u"");
    writeText(u"", Writer::host);
    Mask(u"");
    Alignment(Alinhamento::vbLeft);
    MaxLength(0);
}

void Vela::switchToNumber()
{
    putTrait(&platform::EditTraits::locked, settings_.locked); // a date or a mask had locked the box
    ShowButtonCalendario(false);
    Text(u"");
    Mask(u"");
    Alignment(Alinhamento::vbRight);
    ValorPadrao(u"");
    CaractLiberados(u"");
}

void Vela::switchToDate()
{
    MaskRules(u"");
    Locked(false);
    TextoLivre(true);
    putTrait(&platform::EditTraits::locked, true);
    Mask(settings_.formatoExibData);
    Alignment(Alinhamento::vbCenter);
    writeText(settings_.formatoExibData, Writer::host);
    Text(settings_.formatoExibData);
    CaractLiberados(u"");
}

void Vela::switchToMask()
{
    TextoLivre(true);
    ShowButtonCalendario(false);
    ShowButtonCalculadora(false);
    CaractLiberados(u"");
    if (settings_.mask.empty())
        showBox(platform::BoxIcon::information, u"Vela", u"A máscara não foi definida");
    Locked(false);
    putTrait(&platform::EditTraits::locked, true);
    Alignment(Alinhamento::vbCenter);
    writeText(settings_.mask, Writer::host);
}

} // namespace vela::control
