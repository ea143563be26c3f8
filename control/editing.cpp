// Paste, cut, undo and redo: the same rules as typing, and the field's own history.
#include "control/internal.h"

#include "control/draft.h"
#include "engine/field/keystroke.h"

#include <algorithm>

namespace vela::control {

namespace {

constexpr char16_t carriageReturn = u'\r';
constexpr char16_t lineFeed = u'\n';
constexpr std::u16string_view lineBreak = u"\r\n";
constexpr int keyDelete = 46;

constexpr bool isLetterOrDigit(char16_t unit) noexcept
{
    return (unit >= u'0' && unit <= u'9') || (unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z');
}

constexpr bool isPair(char16_t first, char16_t second) noexcept
{
    const bool surrogates = (first & 0xFC00) == 0xD800 && (second & 0xFC00) == 0xDC00;
    return surrogates || (first == carriageReturn && second == lineFeed);
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

// Backspace behind a line break removes one code unit or two, depending on the platform's edit box. Reads the text that
// is left to find out which.
void measureErased(History::Expected& edit, const platform::EditBox& box)
{
    std::size_t units = std::min<std::size_t>(1, edit.removed.size());
    if (edit.removed.size() == 2 && isPair(edit.removed[0], edit.removed[1])) {
        std::u16string next;
        box.part({edit.at, 1}, next);
        const bool both = edit.backwards ? edit.at - box.selection().start == 2 : next != edit.removed.substr(1);
        units = both ? 2 : 1;
    }
    if (edit.backwards) {
        edit.removed.erase(0, edit.removed.size() - units);
        edit.at -= static_cast<int>(units);
    } else {
        edit.removed.resize(units);
    }
}

} // namespace

Vela::Draft::Draft(Vela& field)
{
    field.readText(before);
    text = before;
    const int length = static_cast<int>(text.size());
    selectionBefore = field.box().selection();
    selection.start = std::clamp(selectionBefore.start, 0, length);
    selection.length = std::clamp(selectionBefore.length, 0, length - selection.start);
    maxLength = field.box().traits().maxLength;
    locked = field.box().traits().locked;
}

engine::KeyBox Vela::Draft::seen() noexcept
{
    return {.text = &text,
            .length = static_cast<int>(text.size()),
            .caret = selection.start,
            .selected = selection.length,
            .maxLength = maxLength};
}

bool Vela::Draft::insert(std::u16string_view typed)
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
engine::KeyPlan Vela::planKey(int key, engine::KeyTurn turn, Draft& draft)
{
    const engine::KeystrokeSettings settings = keystrokeSettings();
    const bool inMask = masked() && engine::needsOf(key, settings, turn).text;
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
bool Vela::typeInto(Draft& draft, char16_t unit)
{
    const engine::Alive alive(life_);
    const int key = filterKey(plainKey(unit), &draft);
    if (!alive)
        return false;
    const auto typed = static_cast<char16_t>(key);
    if (key == 0 || !draft.insert(key == carriageReturn ? lineBreak : View(&typed, 1)) || !liveNumber())
        return true;
    if (!livePattern_)
        livePattern_ = std::make_unique<engine::LivePattern>();
    Text16 shown;
    if (const auto caret =
            engine::liveFormat(draft.text, draft.selection.start, numberSettings(), *livePattern_, shown)) {
        draft.text = shown;
        draft.placeCaret(*caret);
    }
    return true;
}

// Character by character through the filter; what is refused is left out. A line break is one Enter key.
void Vela::pasted(std::u16string_view text)
{
    if (deaf())
        return;
    whileAlive(life_, [&] {
        Draft draft(*this);
        const engine::MaskSettings mask = maskSettings();
        const std::size_t start = literalRunBefore(static_cast<std::size_t>(draft.selection.start), mask);
        const bool aligned = masked() && liesOnMask(text, start, mask);
        for (std::size_t i = 0; i < text.size(); ++i) {
            char16_t unit = text[i];
            if (unit == 0 || unit == engine::key_code::backspace)
                continue;
            if (unit == lineFeed && i > 0 && text[i - 1] == carriageReturn)
                continue;
            if (unit == lineFeed)
                unit = carriageReturn;
            if (aligned && start + i < settings_.mask.size()) {
                const bool input = settings_.promptChar == View(settings_.mask).substr(start + i, 1);
                if (!input && isLetterOrDigit(unit))
                    continue;
                if (input)
                    draft.placeCaret(static_cast<int>(start + i));
            }
            if (!typeInto(draft, unit))
                return;
        }
        if (draft.text != draft.before) {
            keepWritten(draft.before, draft.text, draft.selectionBefore, false);
            writeText(draft.text, Writer::keys);
        }
        if (draft.text != draft.before || draft.selection != draft.selectionBefore)
            box().select(draft.selection);
    });
}

void Vela::cut()
{
    if (deaf())
        return;
    whileAlive(life_, [&] {
        if (box().selection().length == 0)
            return;
        if (masked()) {
            sKeyDown(keyDelete);
        } else if (!box().traits().locked) {
            expectErasing(false);
            box().insert(u"");
        }
    });
}

void Vela::undo()
{
    restore(true);
}

void Vela::redo()
{
    restore(false);
}

void Vela::restore(bool backwards)
{
    if (deaf() || !history_ || settings_.locked || (!masked() && box().traits().locked))
        return;
    whileAlive(life_, [&] {
        Scratch text(*this);
        readText(*text);
        const auto selection = backwards ? history_->undo(*text) : history_->redo(*text);
        if (!selection)
            return;
        writeText(*text, Writer::history);
        box().select(*selection);
    });
}

History& Vela::history()
{
    if (!history_)
        history_ = std::make_unique<History>();
    return *history_;
}

// When the box cannot be read, the edit cannot be undone: the history is cleared, and no error is raised.
template <class Describe>
void Vela::expectEdit(Describe describe)
{
    History::Expected& edit = history().expected;
    edit.removed.clear();
    edit.inserted.clear();
    try {
        edit.before = box().selection();
        edit.at = edit.before.start;
        describe(edit);
        history_->expecting = true;
    } catch (const engine::Error&) {
        history_->clear();
    }
}

// Remembers what the edit box will insert, so that the change it reports can be undone.
void Vela::expectTyping(int key)
{
    const bool typed = key >= u' ' || key == u'\t' || key == engine::key_code::enter;
    if (key == engine::key_code::backspace)
        expectErasing(true);
    else if (typed && !masked() && !box().traits().locked)
        expectEdit([&](History::Expected& edit) {
            edit.erasing = false;
            if (edit.before.length > 0)
                box().part(edit.before, edit.removed);
            if (key == engine::key_code::enter)
                edit.inserted = lineBreak;
            else
                edit.inserted.assign(1, static_cast<char16_t>(key));
        });
}

// Remembers what Backspace or Delete will remove: the selection, or the character on one side of the caret. That is at
// most two code units, because a surrogate pair and a line break are removed as one.
void Vela::expectErasing(bool backwards)
{
    if (masked() || box().traits().locked)
        return;
    expectEdit([&](History::Expected& edit) {
        edit.erasing = edit.before.length == 0;
        edit.backwards = backwards;
        platform::Selection gone = edit.before;
        if (edit.erasing) {
            gone.length = backwards ? std::min(2, gone.start) : 2;
            gone.start -= backwards ? gone.length : 0;
        }
        box().part(gone, edit.removed);
    });
}

// Records the expected edit when the edit box reports its change. A change that was not expected clears the history.
void Vela::keepTyped()
{
    if (!history_)
        return;
    if (!history_->expecting) {
        history_->clear();
        return;
    }
    history_->expecting = false;
    History::Expected& edit = history_->expected;
    try {
        if (edit.erasing)
            measureErased(edit, box());
        history_->add(edit.at, edit.removed, edit.inserted, edit.before, false);
    } catch (const engine::Error&) {
        history_->clear();
    }
}

// Records a text that the control writes because of a key or a paste. A live re-format is undone together with the key
// before it; when the host wrote the text there is nothing to undo.
void Vela::keepWritten(View before, View after, platform::Selection selection, bool joined)
{
    if (joined && (!history_ || writer_ == Writer::host))
        return;
    history().addDifference(before, after, selection, joined);
}

} // namespace vela::control
