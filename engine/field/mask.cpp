// The mask engine: typing, erasing and moving in a template, and values laid into it and read out of it.
#include "engine/field/mask.h"

#include "engine/error.h"
#include "engine/text/characters.h"
#include "engine/text/key_codes.h"

#include <algorithm>

namespace vela::engine {
namespace {

constexpr std::size_t lastCountableLength = 254; // the position counter has eight bits

bool isPromptAt(int position, const MaskSettings& settings) noexcept
{
    return settings.promptChar.size() == 1 && position >= 0 &&
           static_cast<std::size_t>(position) < settings.mask.size() &&
           settings.mask[static_cast<std::size_t>(position)] == settings.promptChar.front();
}

// `key` is a digit or a capital.
bool ruleAccepts(int key, int position, const MaskSettings& settings) noexcept
{
    if (settings.maskRules.empty())
        return true;
    if (static_cast<std::size_t>(position) >= settings.maskRules.size())
        return false;
    switch (settings.maskRules[static_cast<std::size_t>(position)]) {
    case u'?': return true;
    case u'#': return isDigit(key);
    case u'@': return isCapital(key);
    default: return false; // Oddity: a rule character that is no rule blocks its position; old rules protect places so
    }
}

// Where the caret jumps from a literal: the next prompt in the text. The search begins one character before the caret,
// so that "_|/_" goes back to "|_/_".
// Oddity: at a literal right behind an empty position the caret moves back; people correct the position that way.
std::optional<int> pastLiterals(int caret, const MaskSettings& settings, std::u16string_view text) noexcept
{
    if (caret >= static_cast<int>(text.size()) || isPromptAt(caret, settings) || settings.promptChar.size() != 1)
        return {};
    const auto found = text.find(settings.promptChar.front(), static_cast<std::size_t>(std::max(caret, 1) - 1));
    if (found == std::u16string_view::npos)
        return {};
    return static_cast<int>(found);
}

void replaceOrAppend(std::u16string& text, int position, int key)
{
    const auto index = static_cast<std::size_t>(position);
    const auto unit = static_cast<char16_t>(key);
    if (index < text.size())
        text[index] = unit;
    else
        text.push_back(unit);
}

bool isErasable(int position, const MaskSettings& settings, const std::u16string& text) noexcept
{
    return isPromptAt(position, settings) && static_cast<std::size_t>(position) < text.size();
}

Erasure eraseSelection(int start, int length, const MaskSettings& settings, std::u16string& text)
{
    Erasure erasure{start, false};
    const int end = static_cast<int>(std::min<std::size_t>(text.size(), static_cast<std::size_t>(start + length)));
    for (int position = start; position < end; ++position)
        if (isErasable(position, settings, text)) {
            text[static_cast<std::size_t>(position)] = settings.promptChar.front();
            erasure.written = true;
        }
    return erasure;
}

std::optional<Erasure> eraseOne(int from, int step, const MaskSettings& settings, std::u16string& text)
{
    for (int position = from; position >= 0 && position < static_cast<int>(text.size()); position += step)
        if (isErasable(position, settings, text)) {
            text[static_cast<std::size_t>(position)] = settings.promptChar.front();
            return Erasure{position, true};
        }
    return {};
}

} // namespace

MaskStep validateMask(int key, int caret, const MaskSettings& settings, std::u16string& text)
{
    MaskStep step;
    step.key = key;
    step.caret = caret;
    if (settings.locked)
        return step;
    if (!isDigit(key) && !isCapital(key) && !isSmallLetter(key)) {
        step.promptCaret = pastLiterals(caret, settings, text);
        return step;
    }
    // Oddity: exactly one literal is skipped before a key; typing into masks with two would change
    const int position = isPromptAt(caret, settings) ? caret : caret + 1;
    if (!isPromptAt(position, settings))
        return step;
    step.key = isSmallLetter(key) ? key - u'a' + u'A' : key;
    if (!ruleAccepts(step.key, position, settings)) {
        step.key = 0;
        return step;
    }
    replaceOrAppend(text, position, step.key);
    step.textWritten = true;
    step.caret = position + 1;
    step.promptCaret = pastLiterals(step.caret, settings, text);
    return step;
}

std::optional<Erasure> eraseInMask(int keyCode, int selectionStart, int selectionLength, const MaskSettings& settings,
                                   std::u16string& text)
{
    if (settings.locked || (keyCode != key_code::del && keyCode != key_code::backspace))
        return {};
    if (selectionLength > 0)
        return eraseSelection(selectionStart, selectionLength, settings, text);
    if (keyCode == key_code::del)
        return eraseOne(selectionStart, 1, settings, text);
    return eraseOne(std::min(selectionStart, static_cast<int>(text.size())) - 1, -1, settings, text);
}

std::optional<int> nextInputPosition(int caret, const MaskSettings& settings) noexcept
{
    for (int position = std::max(caret, 0); position < static_cast<int>(settings.mask.size()); ++position)
        if (isPromptAt(position, settings))
            return position;
    return {};
}

std::optional<int> firstPrompt(std::u16string_view text, std::u16string_view promptChar) noexcept
{
    if (promptChar.size() != 1)
        return {};
    const auto found = text.find(promptChar.front());
    if (found == std::u16string_view::npos)
        return {};
    return static_cast<int>(found);
}

std::u16string maskedValue(std::u16string_view text, const MaskSettings& settings)
{
    std::u16string value;
    for (std::size_t i = 0; i < text.size(); ++i)
        if (isPromptAt(static_cast<int>(i), settings))
            value.push_back(text[i] == settings.promptChar.front() ? u' ' : text[i]);
    return value;
}

// Oddity: a text that holds the literals of a mask, such as Text itself, is laid out wrongly; values without literals
// depend on each character filling one position.
std::u16string layIntoMask(std::u16string_view value, const MaskSettings& settings)
{
    if (value.empty())
        return std::u16string(settings.mask);
    if (settings.mask.size() > lastCountableLength)
        raise(error_number::overflow);
    std::u16string text;
    for (std::size_t i = 0; i < settings.mask.size(); ++i) {
        if (!isPromptAt(static_cast<int>(i), settings)) {
            text.push_back(settings.mask[i]);
        } else if (!value.empty()) { // a value that ran short leaves its places out
            text.push_back(value.front() == u' ' ? settings.promptChar.front() : value.front());
            value.remove_prefix(1);
        }
    }
    return text;
}

} // namespace vela::engine
