// What the field takes from the application and hands back: Value, Text and the default value.
#include "control/internal.h"

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

engine::FieldSettings Vela::fieldSettings() const
{
    const bool date = settings_.textType == TipoText::Data; // only dates ask the clock
    return {.textType = settings_.textType,
            .returnDateFormat = formatoRetornoAtual_,
            .delimiter = delimitadorAtual_,
            .displayDecimal = viewOf(settings_.displayDecimal),
            .returnDecimal = viewOf(settings_.returnDecimal),
            .grouping = viewOf(settings_.grouping),
            .currencySymbol = settings_.simboloMonetario,
            .decimals = settings_.qtdCasasDec,
            .dateFormat = settings_.dateFormat,
            .emptyDate = settings_.formatoExibData,
            .mask = settings_.mask,
            .promptChar = settings_.promptChar,
            .defaultValue = settings_.valorPadrao,
            .locale = locale(),
            .today = date ? dayOf(environment_.clock.now()) : engine::Date{}};
}

engine::NumberSettings Vela::numberSettings() const
{
    return {.decimal = viewOf(settings_.displayDecimal),
            .grouping = viewOf(settings_.grouping),
            .decimals = settings_.qtdCasasDec,
            .insertZeros = settings_.inserirZeros,
            .locale = locale()};
}

engine::DateCheckSettings Vela::checkSettings() const
{
    return {settings_.mask, settings_.dateFormat, settings_.promptChar, locale()};
}

// Oddity: reading Value of a wrong date corrects the text as leaving does; handlers read Value to correct a field.
engine::Value Vela::Value()
{
    engine::Value result;
    trap(
        life_,
        [&](int&) {
            Scratch text(*this);
            Text16 corrected;
            readText(*text);
            engine::FieldReading reading = engine::readValue(*text, fieldSettings(), corrected);
            result = std::move(reading.value);
            if (reading.checkFailure)
                log(*reading.checkFailure, label::date);
            if (reading.corrected)
                correctText(corrected);
            if (reading.error)
                throw *reading.error;
        },
        [&](const engine::Error& failure) {
            showBox(platform::BoxIcon::exclamation, u"Vela.Value", numberAndDescription(failure));
        });
    return result;
}

// An error while the corrected date is written is logged like an error of the check.
void Vela::correctText(View text)
{
    trapToLog(label::date, [&] { writeText(text, Writer::life); });
}

void Vela::Value(const engine::Value& value)
{
    if (const auto text = engine::textForValue(value, fieldSettings()))
        writeText(*text, Writer::host);
}

// A number is written as it was given, then once more as it is displayed; each may raise Change.
// Oddity: the rules for typing (MaskRules, CaractLiberados, MaxLength and others) are not applied to what code writes;
// forms fill fields with texts that nobody could type.
// Oddity: a text that is no number, written to the Text of a number field, empties the field without an error; forms
// clear fields that way.
void Vela::putText(View value, Writer writer)
{
    if (settings_.textType == TipoText::TextoNormal) {
        writeText(value, writer);
        return;
    }
    const auto text = engine::textForText(value, fieldSettings());
    if (!text)
        return;
    writeText(*text, writer);
    if (settings_.textType == TipoText::Numerico && !settings_.maskToNumeric) {
        Scratch shown(*this);
        engine::displayNumber(*text, numberSettings(), *shown);
        writeText(*shown, writer);
    }
}

// A formula ("%date") on a field that is no date is stored without a message. A plain default of a date field is
// cleared when its length is not the mask's.
void Vela::putDefault(View value)
{
    settings_.valorPadrao = value;
    const bool date = settings_.textType == TipoText::Data;
    const bool formula = settings_.valorPadrao.starts_with(formulaMarker);
    if (formula && date)
        applyFormula();
    else if (!formula && date && settings_.valorPadrao.size() != settings_.mask.size())
        settings_.valorPadrao.clear();
    else if (!formula)
        Text(Text16(settings_.valorPadrao));
}

// Writes the text of the formula "%date" or "%hour", in any case.
void Vela::applyFormula()
{
    const Text16 name = engine::lowerCase(View(settings_.valorPadrao).substr(1));
    const engine::Date now = environment_.clock.now();
    if (name == u"date") {
        Text(engine::format(dayOf(now), settings_.dateFormat, locale(), dayOf(now)));
    } else if (name == u"hour") {
        Text(engine::format(now, u"hh:nn", locale(), dayOf(now)));
    } else {
        showBox(platform::BoxIcon::information, u"", unknownFormula);
        Text(u"");
        settings_.valorPadrao.clear();
    }
}

} // namespace vela::control
