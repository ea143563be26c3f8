// The keystroke filter, rule by rule: Backspace in templates, Enter, the rules of each type, automatic tabbing.
#include "engine/field/keystroke.h"

#include "engine/text/characters.h"
#include "engine/text/letter_case.h"

namespace vela::engine {
namespace {

int unlessFull(int key, const KeyBox& box) noexcept
{
    return box.maxLength >= 1 && box.selected == 0 && box.length == box.maxLength ? 0 : key;
}

int allowedKey(int key, const KeystrokeSettings& settings) noexcept
{
    if (key == key_code::enter && !settings.enterAsTab && settings.multLine)
        return key;
    return settings.caractLiberados.find(static_cast<char16_t>(key)) != std::u16string_view::npos ? key : 0;
}

KeyPlan inFreeText(int key, const KeystrokeSettings& settings, const KeyBox& box)
{
    if (key == key_code::backspace)
        return {.key = key, .press = true};
    key = unlessFull(key, box);
    if (settings.tipoLetra == tipoTamanhoLetra::Maisculo)
        key = upperCase(static_cast<char16_t>(key));
    else if (settings.tipoLetra == tipoTamanhoLetra::Minusculo)
        key = lowerCase(static_cast<char16_t>(key));
    if (!settings.textoLivre)
        key = allowedKey(key, settings);
    return {.key = key, .press = true, .after = AfterPress::tab};
}

// Oddity: without AutoSelect a field that shows "0,00" refuses the comma that is typed; a second symbol would make the
// text no number.
KeyPlan decimalKey(int key, const KeyBox& box)
{
    const auto symbol = static_cast<char16_t>(key);
    KeyPlan plan{.key = 0, .press = true, .after = AfterPress::tab};
    if (box.selected == static_cast<int>(box.text->size())) {
        box.text->assign(1, symbol);
        plan.writtenCaret = 1;
    } else if (box.text->find(symbol) == std::u16string::npos) {
        plan.key = key;
    }
    return plan;
}

// The caret has to stand behind the first decimal before a digit is refused.
// Oddity: a third decimal can be typed right behind the decimal symbol; people correct the first decimal that way.
bool takesDigit(const KeystrokeSettings& settings, const KeyBox& box)
{
    const auto symbol =
        settings.displayDecimal.empty() ? std::u16string::npos : box.text->find(settings.displayDecimal);
    if (symbol == std::u16string::npos)
        return true;
    const bool full = static_cast<int>(box.text->size() - symbol - 1) >= settings.qtdCasasDec;
    return !full || box.caret <= static_cast<int>(symbol) + 1;
}

bool takesMinus(const KeystrokeSettings& settings, const KeyBox& box)
{
    return settings.aceitaNegativos && box.caret == 0 && box.text->find(u'-') == std::u16string::npos;
}

// The text is read for every key, so that a box whose text cannot be read refuses every key.
KeyPlan inNumber(int key, const KeystrokeSettings& settings, const KeyBox& box)
{
    if (key == key_code::backspace)
        return {.key = key};
    KeyPlan plan{.key = 0, .press = true, .after = AfterPress::tab};
    key = unlessFull(key, box);
    if (box.text == nullptr)
        return plan;
    const bool comma = key == u',' && settings.simbolDecExib == Simbolos::Virgula;
    const bool point = key == u'.' && settings.simbolDecExib == Simbolos::Ponto;
    if (comma || point)
        return decimalKey(key, box);
    if (isDigit(key) ? takesDigit(settings, box) : key == u'-' && takesMinus(settings, box))
        plan.key = key;
    return plan;
}

// Oddity: Backspace takes nothing away from a live amount; handlers expect no KeyPress for it.
KeyPlan inLiveAmount(int key)
{
    if (!isDigit(key))
        return {};
    return {.key = key, .press = true, .after = AfterPress::tab};
}

// No automatic tab behind a Backspace.
KeyPlan inMask(int key, const KeystrokeSettings& settings, const KeyBox& box, KeyTurn turn)
{
    const bool erases = key == key_code::backspace && turn == KeyTurn::first;
    KeyPlan plan{.key = key, .press = true, .after = erases ? AfterPress::nothing : AfterPress::tab};
    if (box.text == nullptr)
        return plan;
    const MaskStep step = validateMask(key, box.caret, settings.mask, *box.text);
    plan.key = step.key;
    if (step.textWritten)
        plan.writtenCaret = step.caret;
    plan.promptCaret = step.promptCaret;
    return plan;
}

// The box of a date is locked: keys without a rule have no effect.
bool dateHears(int key, KeyTurn turn) noexcept
{
    return isDigit(key) || (key == key_code::backspace && turn == KeyTurn::first);
}

} // namespace

KeyNeeds needsOf(int key, const KeystrokeSettings& settings, KeyTurn turn) noexcept
{
    if (key == key_code::enter && turn == KeyTurn::first)
        return {};
    switch (settings.textType) {
    case TipoText::TextoNormal: return {.room = key != key_code::backspace, .text = false};
    case TipoText::Numerico: {
        const bool judged = key != key_code::backspace && !settings.maskToNumeric;
        return {.room = judged, .text = judged};
    }
    case TipoText::Data: return {.room = false, .text = dateHears(key, turn)};
    case TipoText::Mascara: return {.room = false, .text = true};
    }
    return {};
}

// Oddity: Enter in a multi-line box raises KeyPress twice; handlers in use count on the second event.
KeyPlan planKey(int key, const KeystrokeSettings& settings, const KeyBox& box, KeyTurn turn)
{
    if (key == key_code::enter && turn == KeyTurn::first)
        return {.key = key, .press = true, .after = AfterPress::enter};
    switch (settings.textType) {
    case TipoText::TextoNormal: return inFreeText(key, settings, box);
    case TipoText::Numerico: return settings.maskToNumeric ? inLiveAmount(key) : inNumber(key, settings, box);
    case TipoText::Data: return dateHears(key, turn) ? inMask(key, settings, box, turn) : KeyPlan{.key = key};
    case TipoText::Mascara: return inMask(key, settings, box, turn);
    }
    return {.key = key}; // a type beyond the enumeration: no rule, no event
}

EnterMeans enterMeans(const KeystrokeSettings& settings) noexcept
{
    if (settings.enterAsTab)
        return EnterMeans::tab;
    return settings.multLine ? EnterMeans::line : EnterMeans::nothing;
}

// Oddity: a refused key in the last place still moves on with AutoTAB; forms are filled in without the Tab key.
bool tabFollows(int key, const KeystrokeSettings& settings, const KeyBox& box)
{
    if (!settings.autoTab || key == key_code::backspace)
        return false;
    switch (settings.textType) {
    case TipoText::TextoNormal:
    case TipoText::Numerico: return box.caret == box.maxLength - 1; // the key being typed fills the last place
    case TipoText::Data:
    case TipoText::Mascara:
        return box.caret == box.maxLength && !containsIgnoringCase(*box.text, settings.mask.promptChar);
    }
    return false;
}

} // namespace vela::engine
