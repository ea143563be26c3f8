// The keystroke filter: what becomes of a character key before the edit box inserts it.
// A key goes needsOf(), planKey(), the host's KeyPress, then what the plan says comes after it. The control does all
// that is done; here is decided what. The order of the rules stands here and nowhere else.
#pragma once

#include "engine/field/mask.h"
#include "engine/field/property_types.h"
#include "engine/text/key_codes.h"

#include <optional>
#include <string>
#include <string_view>

namespace vela::engine {

struct KeystrokeSettings {
    TipoText textType = TipoText::TextoNormal; // values beyond the enumeration are kept as such
    tipoTamanhoLetra tipoLetra = tipoTamanhoLetra::Normal;
    Simbolos simbolDecExib = Simbolos::Vazio;
    std::u16string_view displayDecimal; // the text derived from simbolDecExib: "", "." or ","
    int qtdCasasDec = 0;
    bool enterAsTab = false;
    bool multLine = false;
    bool maskToNumeric = false;
    bool textoLivre = true;
    bool autoTab = false;
    bool aceitaNegativos = false;
    std::u16string_view caractLiberados;
    MaskSettings mask{.mask = {}, .maskRules = {}, .promptChar = u"_"};
};

// `second`: Enter in a box of several lines, after its first KeyPress.
enum class KeyTurn { first, second };

// What a rule has to know of the box. The control reads no more than that, so that a field whose text cannot be read
// still takes the keys that need no text.
struct KeyNeeds {
    bool room = false; // the length of the text, where a limit binds and nothing is selected
    bool text = false;
};
[[nodiscard]] KeyNeeds needsOf(int key, const KeystrokeSettings& settings, KeyTurn turn) noexcept;

// The box as it stands, as far as it was asked for.
struct KeyBox {
    std::u16string* text = nullptr; // null: could not be read. A plan edits it in place
    int length = 0;
    int caret = 0;
    int selected = 0;
    int maxLength = 0;
};

enum class AfterPress { nothing, enter, tab };

// In this order: write the edited text and put the caret, put the caret past the literals, raise KeyPress, go on as
// `after` says.
struct KeyPlan {
    int key = 0; // for KeyPress and then for the box, a UTF-16 unit; 0: refused, nothing is inserted
    bool press = false;
    AfterPress after = AfterPress::nothing;
    std::optional<int> writtenCaret; // the text was edited: the caret behind what was written
    std::optional<int> promptCaret;
};

// Mask and date fields get their key back: their box is locked and inserts nothing anyway. With the whole text selected
// a number's decimal symbol is written and its key refused.
[[nodiscard]] KeyPlan planKey(int key, const KeystrokeSettings& settings, const KeyBox& box, KeyTurn turn);

// What Enter is once KeyPress has been heard: a synthetic key-down of Tab (no key-up), nothing, or a key to plan again.
enum class EnterMeans { tab, nothing, line };
[[nodiscard]] EnterMeans enterMeans(const KeystrokeSettings& settings) noexcept;

// Whether "{TAB}" goes to the focused window behind `key`. A mask's text is looked at.
[[nodiscard]] bool tabFollows(int key, const KeystrokeSettings& settings, const KeyBox& box);

} // namespace vela::engine
