// What the field takes from the application and hands back: Value, Text and the default value.
#include "control/content.h"

#include "control/error_log.h"
#include "control/internal.h"
#include "engine/scoped_value.h"
#include "engine/text/conversions.h"
#include "engine/text/letter_case.h"
#include "engine/text/pattern.h"

#include <cmath>

namespace vela::control {

namespace {

constexpr char16_t formulaMarker = u'%';
constexpr std::u16string_view unknownFormula =
    u"Formula não reconhecida!\r\nEnvie a sugestão para o email < contato@vela.example >";

engine::Date dayOf(engine::Date moment) noexcept
{
    return {std::trunc(moment.serial)};
}

} // namespace

engine::FieldSettings Content::fieldSettings() const
{
    const bool date = context_.settings.textType == TipoText::Data; // only dates ask the clock
    return {.textType = context_.settings.textType,
            .formatoRetornoData = formatoRetornoData_,
            .delimitador = delimitador_,
            .displayDecimal = viewOf(context_.settings.displayDecimal),
            .returnDecimal = viewOf(context_.settings.returnDecimal),
            .grouping = viewOf(context_.settings.grouping),
            .simboloMonetario = context_.settings.simboloMonetario,
            .qtdCasasDec = context_.settings.qtdCasasDec,
            .dateFormat = context_.settings.dateFormat,
            .formatoExibData = context_.settings.formatoExibData,
            .mask = context_.settings.mask,
            .promptChar = context_.settings.promptChar,
            .valorPadrao = context_.settings.valorPadrao,
            .locale = context_.locale(),
            .today = date ? dayOf(context_.environment.clock.now()) : engine::Date{}};
}

engine::DateCheckSettings Content::checkSettings() const
{
    return {context_.settings.mask, context_.settings.dateFormat, context_.settings.promptChar, context_.locale()};
}

// Oddity: reading Value of a wrong date corrects the text as leaving does; handlers read Value to correct a field.
engine::Value Content::value()
{
    engine::Value result;
    trap(
        context_.life,
        [&](int&) {
            Context::Scratch text(context_);
            std::u16string corrected;
            context_.readText(*text);
            engine::FieldReading reading = engine::readValue(*text, fieldSettings(), corrected);
            result = std::move(reading.value);
            if (reading.checkFailure)
                context_.log(*reading.checkFailure, label::date);
            if (reading.corrected)
                correctText(corrected);
            if (reading.error)
                throw *reading.error;
        },
        [&](const engine::Error& failure) {
            context_.showBox(platform::BoxIcon::exclamation, u"Vela.Value", numberAndDescription(failure));
        });
    return result;
}

// An error while the corrected date is written is logged like an error of the check.
void Content::correctText(std::u16string_view text)
{
    context_.trapToLog(label::date, [&] { writeText(text, Writer::life); });
}

void Content::putValue(const engine::Value& value)
{
    if (const auto text = engine::textForValue(value, fieldSettings()))
        writeText(*text, Writer::host);
}

// A number is written as it was given, then once more as it is displayed; each may raise Change.
// Oddity: the rules for typing (MaskRules, CaractLiberados, MaxLength and others) are not applied to what code writes;
// forms fill fields with texts that nobody could type.
// Oddity: a text that is no number, written to the Text of a number field, empties the field without an error; forms
// clear fields that way.
void Content::putText(std::u16string_view value, Writer writer)
{
    if (context_.settings.textType == TipoText::TextoNormal) {
        writeText(value, writer);
        return;
    }
    const auto text = engine::textForText(value, fieldSettings());
    if (!text)
        return;
    writeText(*text, writer);
    if (context_.settings.textType == TipoText::Numerico && !context_.settings.maskToNumeric) {
        Context::Scratch shown(context_);
        engine::displayNumber(*text, context_.numberSettings(), *shown);
        writeText(*shown, writer);
    }
}

// A formula ("%date") on a field that is no date is stored without a message. A plain default of a date field is
// cleared when its length is not the mask's.
void Content::putValorPadrao(std::u16string_view value)
{
    context_.settings.valorPadrao = value;
    const bool date = context_.settings.textType == TipoText::Data;
    const bool formula = context_.settings.valorPadrao.starts_with(formulaMarker);
    if (formula && date)
        applyFormula();
    else if (!formula && date && context_.settings.valorPadrao.size() != context_.settings.mask.size())
        context_.settings.valorPadrao.clear();
    else if (!formula)
        putText(std::u16string(context_.settings.valorPadrao), Writer::host);
}

// Writes the text of the formula "%date" or "%hour", in any case.
void Content::applyFormula()
{
    const std::u16string name = engine::lowerCase(std::u16string_view(context_.settings.valorPadrao).substr(1));
    const engine::Date now = context_.environment.clock.now();
    if (name == u"date") {
        putText(engine::format(dayOf(now), context_.settings.dateFormat, context_.locale(), dayOf(now)), Writer::host);
    } else if (name == u"hour") {
        putText(engine::format(now, u"hh:nn", context_.locale(), dayOf(now)), Writer::host);
    } else {
        context_.showBox(platform::BoxIcon::information, u"", unknownFormula);
        putText(u"", Writer::host);
        context_.settings.valorPadrao.clear();
    }
}

void Content::putEsquemaRetornoAtual(eEsquemasRetorno value)
{
    context_.settings.esquemaRetornoAtual = value;
    adoptScheme();
}

// Copies the scheme's texts: a later change of them counts when the scheme is chosen again.
// Oddity: EsquemaRetornoAtual outside 1 to 4 is stored and changes nothing; an error would stop forms that put it.
void Content::adoptScheme()
{
    const auto scheme = static_cast<std::int32_t>(context_.settings.esquemaRetornoAtual);
    if (scheme < 1 || scheme > 4)
        return;
    const auto index = static_cast<std::size_t>(scheme - 1);
    formatoRetornoData_ = context_.settings.formatoRetornoData[index];
    delimitador_ = context_.settings.delimitador[index];
}

// The empty display of the type. A date without a mask takes its display format for one.
void Content::prepareText()
{
    switch (context_.settings.textType) {
    case TipoText::TextoNormal: return;
    case TipoText::Numerico:
        context_.settings.displayDecimal = symbolOf(context_.settings.simbolDecExib);
        context_.settings.returnDecimal = symbolOf(context_.settings.simbolDecRet);
        context_.settings.grouping = symbolOf(context_.settings.simbolAgrupMilhar);
        if (context_.settings.displayDecimal != 0)
            writeText(engine::numericTemplate(context_.numberSettings().displayDecimal, context_.settings.qtdCasasDec),
                      Writer::life);
        return;
    case TipoText::Data:
        if (context_.settings.mask.empty())
            context_.settings.mask = context_.settings.formatoExibData;
        writeText(std::u16string(context_.settings.formatoExibData), Writer::life);
        context_.putTrait(&platform::EditTraits::maxLength, int{lengthAsInteger(context_.settings.formatoExibData)});
        return;
    case TipoText::Mascara:
        writeText(std::u16string(context_.settings.mask), Writer::life);
        context_.putTrait(&platform::EditTraits::maxLength, int{lengthAsInteger(context_.settings.mask)});
        return;
    }
}

// Oddity: a loaded ValorPadrao is not tested for its length, and a formula on a field that is no date shows a box;
// forms with such defaults would load with other texts.
void Content::applyLoadedDefault()
{
    if (context_.settings.valorPadrao.empty())
        return;
    if (!context_.settings.valorPadrao.starts_with(u'%'))
        putText(std::u16string(context_.settings.valorPadrao), Writer::host);
    else if (context_.settings.textType == TipoText::Data)
        applyFormula();
    else
        context_.showBox(platform::BoxIcon::information, u"", u"Formula não reconhecida!");
}

std::u16string Content::text() const
{
    std::u16string text;
    context_.readText(text);
    return text;
}

void Content::writeText(std::u16string_view text, Writer writer)
{
    if (history_ && (writer == Writer::host || writer == Writer::life))
        history_->clear();
    const engine::Alive alive(context_.life);
    const engine::ScopedValue scope(context_.life, writer_, writer);
    context_.box().putText(text);
    if (!alive)
        engine::raise(engine::error_number::objectNotSet);
}

History& Content::history()
{
    if (!history_)
        history_ = std::make_unique<History>();
    return *history_;
}

} // namespace vela::control
