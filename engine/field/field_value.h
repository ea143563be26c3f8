// The value of a field by its type: what `Value` answers, and the text that a put of `Value` or `Text` writes.
#pragma once

#include "engine/error.h"
#include "engine/field/property_types.h"
#include "engine/text/locale.h"
#include "engine/value.h"

#include <optional>
#include <string>
#include <string_view>

namespace vela::engine {

struct FieldSettings {
    TipoText textType = TipoText::TextoNormal;
    std::u16string_view formatoRetornoData; // of the scheme in force
    std::u16string_view delimitador;        // of the scheme in force
    std::u16string_view displayDecimal;     // "", "." or ","
    std::u16string_view returnDecimal;      // "", "." or ","
    std::u16string_view grouping;           // "", "." or ","
    std::u16string_view simboloMonetario;   // as it stands
    int qtdCasasDec = 0;
    std::u16string_view dateFormat;
    std::u16string_view formatoExibData;
    std::u16string_view mask;
    std::u16string_view promptChar;
    std::u16string_view valorPadrao;
    const Locale& locale;
    Date today; // completes date texts without a year
};

struct FieldReading {
    Value value;                       // what was reached when `error` struck
    std::optional<Error> error;        // to be shown: title "Vela.Value"
    bool corrected = false;            // the date check put prompts back: write the caller's buffer to the box
    std::optional<Error> checkFailure; // to be logged with the label "Procedimento: ValidaData"
};

// `Value` get. "1.234,5" with two places and return decimal "," -> 1234.5; an untouched date -> "null".
[[nodiscard]] FieldReading readValue(std::u16string_view text, const FieldSettings& settings,
                                     std::u16string& corrected);

// The text that a put of `Value` writes; nothing for a type that takes none. Raises 13 for what cannot be read.
[[nodiscard]] std::optional<std::u16string> textForValue(const Value& value, const FieldSettings& settings);
// The text that a put of `Text` writes. A number is not formatted here: the control shows it through displayNumber.
[[nodiscard]] std::optional<std::u16string> textForText(std::u16string_view text, const FieldSettings& settings);

} // namespace vela::engine
