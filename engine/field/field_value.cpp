// `Value` and `Text` of a field, type by type.
#include "engine/field/field_value.h"

#include "engine/field/date_check.h"
#include "engine/field/mask.h"
#include "engine/text/calendar_date.h"
#include "engine/text/conversions.h"
#include "engine/text/pattern.h"

#include <limits>

namespace vela::engine {
namespace {

// Oddity: null is a text; hosts compare Value with this word.
constexpr std::u16string_view nothingText = u"null";
constexpr std::size_t npos = std::u16string_view::npos;

std::u16string without(std::u16string_view part, std::u16string_view text)
{
    std::u16string result(text);
    if (!part.empty())
        for (auto found = result.find(part); found != npos; found = result.find(part, found))
            result.erase(found, part.size());
    return result;
}

std::u16string delimited(std::u16string_view text, const FieldSettings& settings)
{
    std::u16string result(settings.delimitador);
    result.append(text);
    result.append(settings.delimitador);
    return result;
}

MaskSettings maskOf(const FieldSettings& settings) noexcept
{
    return {settings.mask, {}, settings.promptChar, false};
}

// "1.234,5" with return decimal "." and two places -> "1234.50"
std::u16string returnedNumber(std::u16string_view text, const FieldSettings& settings)
{
    const auto symbol = settings.displayDecimal.empty() ? npos : text.find(settings.displayDecimal);
    if (symbol == npos)
        return std::u16string(text); // grouping stays
    if (symbol + 1 > std::numeric_limits<std::uint8_t>::max())
        raise(error_number::overflow); // the position has eight bits
    const auto fraction = text.substr(symbol + 1);
    if (static_cast<std::size_t>(settings.qtdCasasDec) < fraction.size())
        raise(error_number::invalidCall);
    std::u16string number = without(settings.grouping, text.substr(0, symbol));
    number.append(settings.returnDecimal);
    number.append(fraction);
    number.append(static_cast<std::size_t>(settings.qtdCasasDec) - fraction.size(), u'0');
    return number;
}

// Oddity: Value removes only the whole SimboloMonetario, ";" included; returned values of fields with such a symbol
// would change.
void readNumber(std::u16string_view text, const FieldSettings& settings, FieldReading& reading)
{
    if (!isNumeric(std::u16string_view(without(settings.simboloMonetario, text)), settings.locale)) {
        reading.value = 0.0;
        return;
    }
    auto built = without(settings.simboloMonetario, delimited(returnedNumber(text, settings), settings));
    reading.value = built;
    if (!settings.delimitador.empty() && built.find(settings.delimitador) != npos)
        // Oddity: a delimiter makes a number's Value fail; hosts rely on the text that comes back
        raise(error_number::typeMismatch);
    reading.value = toDouble(std::u16string_view(built), settings.locale);
}

void readDate(std::u16string_view text, const FieldSettings& settings, FieldReading& reading, std::u16string& corrected)
{
    const auto verdict =
        checkDate(text, {settings.mask, settings.dateFormat, settings.promptChar, settings.locale}, corrected);
    reading.corrected = verdict.corrected;
    reading.checkFailure = verdict.failure;
    if (!verdict.accepted || text == settings.mask) {
        reading.value = std::u16string(nothingText);
        return;
    }
    const Date date = toDate(text, settings.locale, settings.today);
    reading.value =
        delimited(format(Value(date), settings.formatoRetornoData, settings.locale, settings.today), settings);
}

void readTime(std::u16string_view text, const FieldSettings& settings, FieldReading& reading)
{
    const auto verdict = checkTime(text, {settings.mask, settings.dateFormat, settings.promptChar, settings.locale});
    reading.checkFailure = verdict.failure;
    reading.value = verdict.accepted ? delimited(text, settings) : std::u16string(nothingText);
}

void readByType(std::u16string_view text, const FieldSettings& settings, FieldReading& reading,
                std::u16string& corrected)
{
    switch (settings.textType) {
    case TipoText::TextoNormal: reading.value = delimited(text, settings); return;
    case TipoText::Numerico: readNumber(text, settings, reading); return;
    case TipoText::Data:
        if (settings.dateFormat.find(u':') == npos)
            readDate(text, settings, reading, corrected);
        else if (isTimeFormat(settings.dateFormat))
            readTime(text, settings, reading);
        return;
    case TipoText::Mascara:
        reading.value = text == settings.mask ? std::u16string(nothingText)
                                              : delimited(maskedValue(text, maskOf(settings)), settings);
        return;
    }
}

bool isEmptyText(const Value& value) noexcept
{
    const auto* text = std::get_if<std::u16string>(&value);
    return std::holds_alternative<Empty>(value) || (text != nullptr && text->empty());
}

std::u16string numberTextFor(const Value& value, const FieldSettings& settings)
{
    const bool usable = !isEmptyText(value) && isNumeric(value, settings.locale);
    const double number = usable ? toDouble(value, settings.locale) : toDouble(settings.valorPadrao, settings.locale);
    return formatNumber(number, settings.qtdCasasDec, settings.locale);
}

// Reads a text as a date, and a text that is a number as the serial of a date.
// Oddity: text is read as a date in the order of the user's region, whatever DateFormat says; stored texts would become
// other dates.
Date dateOf(const std::u16string& text, const FieldSettings& settings)
{
    if (const auto date = tryParseDate(text, settings.locale, settings.today))
        return *date;
    const auto number = tryParseDouble(text, settings.locale);
    if (!number)
        raise(error_number::typeMismatch);
    if (!civilDate(Date{*number}))
        raise(error_number::overflow);
    return Date{*number};
}

std::u16string dateTextFor(const Value& value, const FieldSettings& settings)
{
    if (isEmptyText(value))
        return std::u16string(settings.formatoExibData);
    const auto* text = std::get_if<std::u16string>(&value);
    if (text == nullptr)
        return format(value, settings.dateFormat, settings.locale, settings.today);
    if (*text == settings.formatoExibData)
        return *text;
    const Date date = dateOf(*text, settings);
    if (settings.dateFormat.empty())
        return *text;
    return format(Value(date), settings.dateFormat, settings.locale, settings.today);
}

std::u16string maskTextFor(const Value& value, const FieldSettings& settings)
{
    return layIntoMask(toText(value, settings.locale), maskOf(settings));
}

} // namespace

FieldReading readValue(std::u16string_view text, const FieldSettings& settings, std::u16string& corrected)
{
    FieldReading reading;
    try {
        readByType(text, settings, reading, corrected);
    } catch (const Error& error) {
        reading.error = error;
    }
    return reading;
}

std::optional<std::u16string> textForValue(const Value& value, const FieldSettings& settings)
{
    switch (settings.textType) {
    case TipoText::TextoNormal: return toText(value, settings.locale);
    case TipoText::Numerico: return numberTextFor(value, settings);
    case TipoText::Data: return dateTextFor(value, settings);
    case TipoText::Mascara: return maskTextFor(value, settings);
    }
    return {};
}

std::optional<std::u16string> textForText(std::u16string_view text, const FieldSettings& settings)
{
    if (settings.textType == TipoText::Numerico)
        return std::u16string(isNumeric(text, settings.locale) ? text : settings.valorPadrao);
    return textForValue(Value(std::u16string(text)), settings);
}

} // namespace vela::engine
