// The date check and the time check of a date field: is what was typed acceptable, and if not, why.
#pragma once

#include "engine/error.h"
#include "engine/text/locale.h"

#include <optional>
#include <string>
#include <string_view>

namespace vela::engine {

struct DateCheckSettings {
    std::u16string_view mask;       // "__/__/____"
    std::u16string_view dateFormat; // "dd/mm/yyyy": position i describes position i of the text
    std::u16string_view promptChar; // "_"
    const Locale& locale;           // digits are converted as the user's locale reads numbers
};

struct DateVerdict {
    bool accepted = true;
    std::u16string_view message;  // why not; the time check has none
    bool corrected = false;       // the text with prompts put back is in the caller's buffer: write it to the box
    std::optional<Error> failure; // to be logged with the label "Procedimento: ValidaData"
};

// The untouched template is accepted. "29/02/2023" -> refused, corrected "__/02/2023". Allocates only to correct.
[[nodiscard]] DateVerdict checkDate(std::u16string_view text, const DateCheckSettings& settings,
                                    std::u16string& corrected);
// The untouched template is refused. Never corrects.
[[nodiscard]] DateVerdict checkTime(std::u16string_view text, const DateCheckSettings& settings);
// Whether a field of this format is checked as a time when it is left: it holds "hh" ("HH" does not count).
[[nodiscard]] constexpr bool isTimeFormat(std::u16string_view dateFormat) noexcept
{
    return dateFormat.find(u"hh") != std::u16string_view::npos;
}

// Title and texts of the alert for a wrong date or time.
inline constexpr std::u16string_view wrongDateTitle = u"Erro: ";
inline constexpr std::u16string_view wrongDateText = u"    ->  Data informada inválida ! ";
inline constexpr std::u16string_view wrongTimeText = u"    ->  Hora informada inválida ! ";

} // namespace vela::engine
