// Mask, rules, lock, lines and the switch of the text type.
#include "control/text_kind.h"

#include "control/internal.h"
#include "control/vela.h"
#include "engine/error.h"

namespace vela::control {

void TextKind::putMask(std::u16string_view value)
{
    if (value.empty() && context_.settings.textType == TipoText::Mascara)
        engine::raise(engine::error_number::emptyMask);
    const std::int16_t length = lengthAsInteger(value);
    context_.settings.mask = value;
    context_.putTrait(&platform::EditTraits::maxLength, int{length});
    content_.putText(u"", Writer::host);
}

void TextKind::putMaskRules(std::u16string_view value)
{
    context_.settings.maskRules = context_.settings.textType == TipoText::Mascara ? value : std::u16string_view();
}

// Oddity: MaskSomenteNumeros is kept and saved, and read by nothing; saved forms hold the key.
void TextKind::putMaskSomenteNumeros(bool value)
{
    context_.settings.maskSomenteNumeros = value && context_.masked();
}

void TextKind::putMaskToNumeric(bool value)
{
    context_.settings.maskToNumeric = value && context_.settings.textType == TipoText::Numerico;
    if (context_.settings.maskToNumeric) {
        content_.putText(
            engine::numericTemplate(context_.numberSettings().displayDecimal, context_.settings.qtdCasasDec),
            Writer::host);
        content_.writeText(content_.text(), Writer::host);
    } else {
        content_.putText(u"", Writer::host);
    }
}

// The old default is cleared before the type changes, because the setter depends on the type.
// Oddity: switching TextType first clears ValorPadrao and may show boxes of the setters it runs; forms put the default
// after the type.
void TextKind::putTextType(TipoText value)
{
    if (context_.settings.multLine) {
        context_.settings.textType = TipoText::TextoNormal;
        context_.showBox(platform::BoxIcon::exclamation, u"",
                         u"Impossível modicar formato de dados, Textbox está multline");
        return;
    }
    control_.ValorPadrao(u"");
    context_.settings.textType = value;
    switch (value) {
    case TipoText::TextoNormal: switchToText(); break;
    case TipoText::Numerico: switchToNumber(); break;
    case TipoText::Data: switchToDate(); break;
    case TipoText::Mascara: switchToMask(); break;
    }
}

void TextKind::switchToText()
{
    lockBox(false);
    putLocked(false);
    look_.putShowButtonCalendario(false);
    look_.putShowButtonCalculadora(false);
    content_.putText(u"", Writer::host);
    content_.writeText(u"", Writer::host);
    control_.Mask(u"");
    align(platform::TextAlignment::left);
    context_.putTrait(&platform::EditTraits::maxLength, 0);
}

void TextKind::switchToNumber()
{
    lockBox(context_.settings.locked); // a date or a mask had locked the box
    look_.putShowButtonCalendario(false);
    content_.putText(u"", Writer::host);
    control_.Mask(u"");
    align(platform::TextAlignment::right);
    control_.ValorPadrao(u"");
    control_.CaractLiberados(u"");
}

void TextKind::switchToDate()
{
    control_.MaskRules(u"");
    putLocked(false);
    context_.settings.textoLivre = true;
    lockBox(true);
    control_.Mask(context_.settings.formatoExibData);
    align(platform::TextAlignment::center);
    content_.writeText(context_.settings.formatoExibData, Writer::host);
    content_.putText(context_.settings.formatoExibData, Writer::host);
    control_.CaractLiberados(u"");
}

void TextKind::switchToMask()
{
    context_.settings.textoLivre = true;
    look_.putShowButtonCalendario(false);
    look_.putShowButtonCalculadora(false);
    control_.CaractLiberados(u"");
    if (context_.settings.mask.empty())
        context_.showBox(platform::BoxIcon::information, u"Vela", u"A máscara não foi definida");
    putLocked(false);
    lockBox(true);
    align(platform::TextAlignment::center);
    content_.writeText(context_.settings.mask, Writer::host);
}

// Oddity: Locked = False leaves a Mascara box locked, and the lock of a Data box alone; the control edits these boxes
// itself and would do so twice.
void TextKind::putLocked(bool value)
{
    context_.settings.locked = value;
    switch (context_.settings.textType) {
    case TipoText::TextoNormal:
    case TipoText::Numerico: lockBox(value); return;
    case TipoText::Data: return;
    case TipoText::Mascara: break;
    }
    lockBox(true);
}

// Oddity: MultLine put at run time raises 1002 and yet reads back the new value; the key filter works by that value.
void TextKind::putMultLine(bool value)
{
    context_.settings.multLine = value;
    if (context_.host.runMode())
        engine::raise(engine::error_number::readOnlyProperty);
    static_cast<void>(context_.activate(value));
    content_.forgetHistory();
    look_.layOut();
}

// Oddity: QtdCasasDec = 0 resets the three symbols and InserirZeros; forms switch to whole numbers with this one put.
void TextKind::putQtdCasasDec(std::uint8_t value)
{
    context_.settings.qtdCasasDec = value;
    if (value == 0) {
        control_.SimbolDecExib(Simbolos::Vazio);
        control_.SimbolAgrupMilhar(Simbolos::Vazio);
        control_.SimbolDecRet(Simbolos::Vazio);
        control_.InserirZeros(false);
    }
}

void TextKind::align(platform::TextAlignment alignment)
{
    context_.putTrait(&platform::EditTraits::alignment, alignment);
}

void TextKind::lockBox(bool locked)
{
    context_.putTrait(&platform::EditTraits::locked, locked);
}

} // namespace vela::control
