// Paste, cut, undo and redo: the same rules as typing, and the field's own history.
#include "control/typing.h"

#include "control/draft.h"
#include "engine/field/keystroke.h"
#include "engine/text/characters.h"

#include <algorithm>

namespace vela::control {

namespace {

constexpr char16_t carriageReturn = u'\r';
constexpr char16_t lineFeed = u'\n';
constexpr std::u16string_view lineBreak = u"\r\n";

constexpr bool isLetterOrDigit(char16_t unit) noexcept
{
    return engine::isLetter(unit) || engine::isDigit(unit);
}

// Does the text, literals included, lie on the mask from `start` on? Only then may a literal letter or digit of the
// mask ("+55 (__)") be passed over instead of typed. Surplus at the end does not matter.
bool liesOnMask(std::u16string_view text, std::size_t start, const engine::MaskSettings& settings)
{
    const std::u16string_view mask = settings.mask.substr(std::min(start, settings.mask.size()));
    bool namedLiteral = false;
    for (std::size_t i = 0; i < std::min(text.size(), mask.size()); ++i) {
        const bool input = settings.promptChar == mask.substr(i, 1);
        if (input ? !isLetterOrDigit(text[i]) : text[i] != mask[i])
            return false;
        namedLiteral = namedLiteral || (!input && isLetterOrDigit(mask[i]));
    }
    return namedLiteral;
}

// Where the run of literals just before the caret begins, because a pasted text may begin with those literals.
std::size_t literalRunBefore(std::size_t caret, const engine::MaskSettings& settings)
{
    std::size_t start = std::min(caret, settings.mask.size());
    while (start > 0 && settings.promptChar != settings.mask.substr(start - 1, 1))
        --start;
    return start;
}

} // namespace

Draft::Draft(Context& context)
{
    context.readText(before);
    text = before;
    const int length = static_cast<int>(text.size());
    selectionBefore = context.box().selection();
    selection.start = std::clamp(selectionBefore.start, 0, length);
    selection.length = std::clamp(selectionBefore.length, 0, length - selection.start);
    maxLength = context.box().traits().maxLength;
    locked = context.box().traits().locked;
}

engine::KeyBox Draft::seen() noexcept
{
    return {.text = &text,
            .length = static_cast<int>(text.size()),
            .caret = selection.start,
            .selected = selection.length,
            .maxLength = maxLength};
}

bool Draft::insert(std::u16string_view typed)
{
    const auto start = static_cast<std::size_t>(selection.start);
    const auto length = static_cast<std::size_t>(selection.length);
    if (locked || start + length > text.size())
        return false;
    if (maxLength > 0 && text.size() - length + typed.size() > static_cast<std::size_t>(maxLength))
        return false;
    text.replace(start, length, typed);
    placeCaret(static_cast<int>(start + typed.size()));
    return true;
}

// When a key replaces a selection in a full mask, no prompt draws the caret on, so a run of literals is skipped here.
engine::KeyPlan Typing::planKey(int key, engine::KeyTurn turn, Draft& draft)
{
    const engine::KeystrokeSettings settings = keystrokeSettings();
    const bool inMask = context_.masked() && engine::needsOf(key, settings, turn).text;
    if (inMask && draft.selectionBefore.length > 0 && key <= u'z' && isLetterOrDigit(static_cast<char16_t>(key))) {
        const auto next = engine::nextInputPosition(draft.selection.start, settings.mask);
        if (next && *next > draft.selection.start + 1) // a single literal is skipped by the mask engine
            draft.placeCaret(*next);
    }
    const engine::KeyPlan plan = engine::planKey(key, settings, draft.seen(), turn);
    if (const auto caret = plan.promptCaret ? plan.promptCaret : plan.writtenCaret)
        draft.placeCaret(*caret);
    return plan;
}

// One character of a paste; false when the control did not survive it.
bool Typing::typeInto(Draft& draft, char16_t unit)
{
    const engine::Alive alive(context_.life);
    const int key = filterKey(plainKey(unit), &draft);
    if (!alive)
        return false;
    const auto typed = static_cast<char16_t>(key);
    if (key == 0 || !draft.insert(key == carriageReturn ? lineBreak : std::u16string_view(&typed, 1)) ||
        !context_.liveNumber())
        return true;
    if (!livePattern_)
        livePattern_ = std::make_unique<engine::LivePattern>();
    std::u16string shown;
    if (const auto caret =
            engine::liveFormat(draft.text, draft.selection.start, context_.numberSettings(), *livePattern_, shown)) {
        draft.text = shown;
        draft.placeCaret(*caret);
    }
    return true;
}

// Character by character through the filter; what is refused is left out. A line break is one Enter key.
void Typing::paste(std::u16string_view text)
{
    if (context_.deaf())
        return;
    whileAlive(context_.life, [&] {
        Draft draft(context_);
        const engine::MaskSettings mask = context_.maskSettings();
        const std::size_t start = literalRunBefore(static_cast<std::size_t>(draft.selection.start), mask);
        const bool aligned = context_.masked() && liesOnMask(text, start, mask);
        for (std::size_t i = 0; i < text.size(); ++i) {
            char16_t unit = text[i];
            if (unit == 0 || unit == engine::key_code::backspace)
                continue;
            if (unit == lineFeed && i > 0 && text[i - 1] == carriageReturn)
                continue;
            if (unit == lineFeed)
                unit = carriageReturn;
            if (aligned && start + i < context_.settings.mask.size()) {
                const bool input =
                    context_.settings.promptChar == std::u16string_view(context_.settings.mask).substr(start + i, 1);
                if (!input && isLetterOrDigit(unit))
                    continue;
                if (input)
                    draft.placeCaret(static_cast<int>(start + i));
            }
            if (!typeInto(draft, unit))
                return;
        }
        if (draft.text != draft.before)
            content_.writeText(draft.text, Writer::keys);
        if (draft.text != draft.before || draft.selection != draft.selectionBefore)
            context_.box().select(draft.selection);
    });
}

void Typing::cut()
{
    if (context_.deaf())
        return;
    whileAlive(context_.life, [&] {
        if (context_.box().selection().length == 0)
            return;
        if (context_.masked()) {
            sKeyDown(engine::key_code::del);
        } else {
            context_.box().insert(u"");
        }
    });
}

void Typing::restore(bool backwards)
{
    if (context_.deaf() || content_.keptHistory() == nullptr || context_.settings.locked ||
        (!context_.masked() && context_.box().traits().locked))
        return;
    whileAlive(context_.life, [&] {
        Context::Scratch text(context_);
        context_.readText(*text);
        const auto selection = backwards ? content_.keptHistory()->undo(*text) : content_.keptHistory()->redo(*text);
        if (!selection)
            return;
        content_.writeText(*text, Writer::history);
        context_.box().select(*selection);
    });
}

// Keeps what a person did, by hand or through the field's rules. An edit that came by other means ends the history.
void Typing::keep(const platform::Edit& edit)
{
    const bool person = content_.writer() == Writer::person;
    if (person && !edit.typed) {
        if (content_.keptHistory() != nullptr)
            content_.keptHistory()->clear();
    } else if (person || content_.writer() == Writer::keys) {
        content_.history().add(edit, false);
    } else if (content_.writer() == Writer::reformat && content_.keptHistory() != nullptr) {
        content_.keptHistory()->add(edit, true);
    }
}

} // namespace vela::control
