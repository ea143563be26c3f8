// The keystroke filter: what becomes of a character key before the edit box inserts it.
// The order of reading, deciding, raising KeyPress and tabbing stands here and nowhere else.
#pragma once

#include "engine/error.h"
#include "engine/field/property_types.h"

#include <cstdint>
#include <string_view>

namespace vela::engine {

namespace key_code {
inline constexpr int backspace = 8;
inline constexpr int enter = 13;
inline constexpr int comma = 44;
inline constexpr int minus = 45;
inline constexpr int point = 46;
} // namespace key_code

struct KeystrokeSettings {
    TipoText textType = TipoText::TextoNormal; // values beyond the enumeration are kept as such
    tipoTamanhoLetra letterCase = tipoTamanhoLetra::Normal;
    Simbolos displayDecimal = Simbolos::Vazio;
    std::u16string_view decimal; // the text derived from displayDecimal: "", "." or ","
    int decimals = 0;            // QtdCasasDec
    bool enterAsTab = false;
    bool multiLine = false;
    bool maskToNumeric = false;
    bool freeText = true; // TextoLivre
    bool autoTab = false;
    bool negatives = false;      // AceitaNegativos
    std::u16string_view allowed; // CaractLiberados
    std::u16string_view promptChar = u"_";
};

// What the filter needs of the control. Each reader is asked only where a rule needs it, so that a field whose
// text cannot be read still takes the keys that need no text. Any call may raise; the error reaches the caller.
class KeystrokeSink {
public:
    // As they are now: asked again after an event, whose handler may have changed them. The views stay good until
    // the next call that raises an event or writes.
    [[nodiscard]] virtual KeystrokeSettings settings() const = 0;
    [[nodiscard]] virtual std::u16string_view text() = 0; // good until the next call
    [[nodiscard]] virtual int textLength() const = 0;
    [[nodiscard]] virtual int caret() const = 0;
    [[nodiscard]] virtual int selectionLength() const = 0;
    [[nodiscard]] virtual int maxLength() const = 0;

    virtual void writeText(std::u16string_view text, int caret) = 0;
    // The mask engine's whole step on the box, its own failures logged; the key is 0 when refused.
    virtual void validateMask(int& key) = 0;
    // The host's event; false when the control did not survive it: nothing of it is touched any more.
    [[nodiscard]] virtual bool raiseKeyPress(std::int16_t& key) = 0;
    virtual void sendTab() = 0;    // "{TAB}" to the focused window
    virtual void tabKeyDown() = 0; // one synthetic key-down of Tab, no key-up
    // A failure of the numeric rule: label "Procedimento: ValidaNumero".
    virtual void logNumericFailure(const Error& error) = 0;

protected:
    ~KeystrokeSink() = default;
};

// The key the box is to handle, a UTF-16 unit; 0: nothing is inserted. Mask and date fields get their key back:
// their box is locked and inserts nothing anyway.
[[nodiscard]] int filterKeystroke(int key, KeystrokeSink& sink);

// A number field's key: the key itself or 0. Raises what the sink's readers raise. With the whole text selected
// the decimal symbol is written here and its key refused.
[[nodiscard]] int numericKey(int key, const KeystrokeSettings& settings, KeystrokeSink& sink);
// The allowed-characters rule: the key itself or 0.
[[nodiscard]] int allowedKey(int key, const KeystrokeSettings& settings) noexcept;

} // namespace vela::engine
