// How a number field shows, edits and re-formats its text: grouping, decimals, symbol, sign and entry form.
#pragma once

#include "engine/text/locale.h"
#include "engine/text/pattern.h"

#include <optional>
#include <string>
#include <string_view>

namespace vela::engine {

struct NumberSettings {
    std::u16string_view displayDecimal; // "", "." or ","
    std::u16string_view grouping;       // "", "." or ","
    int qtdCasasDec = 0;                // 0..255
    bool inserirZeros = false;
    const Locale& locale;
};

// The display format: "1234,5" -> "1.234,50". A text that is no number gives the empty text. Replaces `into`, which
// `text` must not view.
void displayNumber(std::u16string_view text, const NumberSettings& settings, std::u16string& into);

// True for a text that is only the decimal symbol: leaving the field with it is an error.
[[nodiscard]] constexpr bool isSymbolAlone(std::u16string_view text, std::u16string_view decimal) noexcept
{
    return !decimal.empty() && text == decimal;
}

enum class NumberSign { negative, zero, positive };
// The sign of the text as currency, for the text colour. Raises 13 or 6 for a text that is no such value.
[[nodiscard]] NumberSign currencySign(std::u16string_view text, const Locale& locale);

// `SimboloMonetario` around the text: "R$ " -> before, ";%" -> after, "R$ ;%" -> both. Replaces `into`; false when
// there is nothing to apply (an empty text and no ";"), `into` untouched then.
[[nodiscard]] bool applySymbol(std::u16string_view text, std::u16string_view symbol, std::u16string& into);

// What the person edits: the display without symbol and grouping. "R$ 1.234,50" -> "1234,50". Replaces `into`.
void entryForm(std::u16string_view text, std::u16string_view symbol, std::u16string_view grouping,
               std::u16string& into);

// The text that `MaskToNumeric` starts with: "0,00".
[[nodiscard]] std::u16string numericTemplate(std::u16string_view decimal, int decimals);

// The pattern of the live re-format, compiled once and kept while the symbols stay the same.
class LivePattern {
public:
    // Nothing for a decimal symbol or grouping that has no pattern.
    [[nodiscard]] const Pattern* of(std::u16string_view decimal, std::u16string_view grouping, int decimals);

private:
    char16_t decimal_ = 0; // 0: none
    char16_t grouping_ = 0;
    int decimals_ = -1; // -1: nothing compiled yet
    Pattern pattern_;
};

// The live re-format of a fixed-point field ("123" -> "1,23"): the new text goes into `into`. The answer is the
// caret to put after writing it, as far from the end as it was; nothing when the text stays as it is.
[[nodiscard]] std::optional<int> liveFormat(std::u16string_view text, int caret, const NumberSettings& settings,
                                            LivePattern& patterns, std::u16string& into);

// Title and text of the alert for a text that is only a decimal symbol.
inline constexpr std::u16string_view wrongNumberTitle = u"Erro: Valor númerico incorreto !";
inline constexpr std::u16string_view wrongNumberText = u"Verifique o valor preenchido.";

} // namespace vela::engine
