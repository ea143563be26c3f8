// The mask engine: what a key does in a field whose template ("___-____") shows literals and marks input positions.
// Carets are 0-based. Everything here is a value: the text in the box is the only state of a mask field.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vela::engine {

// An input position is one where `mask` holds `promptChar`; a prompt that is empty or longer than one character
// makes none. Beyond the end of `mask` everything is literal, beyond the end of `maskRules` every key is refused.
struct MaskSettings {
    std::u16string_view mask;       // "___-____"
    std::u16string_view maskRules;  // "@@@-####"; empty: any digit or letter
    std::u16string_view promptChar; // "_"
    bool locked = false;
};

// What one key asks of the box, in this order:
//   1. `textWritten`: write the edited text (the box puts its caret to 0), then put the caret at `caret`;
//   2. `promptCaret`: put the caret there, past the literals. Nothing when no prompt remains: the caret stays.
// A box operation that fails ends the step; error 380 is ignored, any other goes to the log.
struct MaskStep {
    int key = 0; // 0: refused. Letters come back as capitals
    bool textWritten = false;
    int caret = 0;
    std::optional<int> promptCaret;
    friend bool operator==(const MaskStep&, const MaskStep&) = default;
};

// `ValidaMascara` for `key` typed at `caret`; edits `text` (the box's text) in place when `textWritten`.
// "AB|_-____" + 'c' with "@@@-####" -> "ABC|-____", promptCaret 4.
[[nodiscard]] MaskStep validateMask(int key, int caret, const MaskSettings& settings, std::u16string& text);

// Delete (46) and Backspace (8) pressed with `selectionLength` units selected from `selectionStart` on.
// `sKeyDown`: input positions become the prompt again. Nothing, and `text` untouched, when there is nothing to
// erase, the field is locked, or the key is another; else the caret to put, after writing `text` where it is to be
// written: a selection of literals alone only gives way to the caret at its start.
// "12/3|_/____" + Backspace -> "12/|__/____"
struct Erasure {
    int caret = 0;
    bool written = false;
};
[[nodiscard]] std::optional<Erasure> eraseInMask(int keyCode, int selectionStart, int selectionLength,
                                                 const MaskSettings& settings, std::u16string& text);

// The first input position at or after the caret (right arrow); nothing when none is left.
[[nodiscard]] std::optional<int> nextInputPosition(int caret, const MaskSettings& settings) noexcept;
// The caret before the first prompt character of a text; nothing when it holds none (the field is complete).
[[nodiscard]] std::optional<int> firstPrompt(std::u16string_view text, std::u16string_view promptChar) noexcept;

// The characters of `text` at the input positions, prompts as blanks: "(11) 23__" in "(__) ____" -> "1123  ".
[[nodiscard]] std::u16string maskedValue(std::u16string_view text, const MaskSettings& settings);
// A value laid into the mask: "12" in "__/__/____" -> "12//"; the empty value gives the mask.
// Raises 6 for a mask of 255 or more characters (and a value that is not empty).
[[nodiscard]] std::u16string layIntoMask(std::u16string_view value, const MaskSettings& settings);

} // namespace vela::engine
