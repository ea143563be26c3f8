// The inner text box of a field: text, selection, colours and traits, and what it reports.
// Every operation may raise engine::Error; what it was to change is then unchanged.
#pragma once

#include "engine/value.h"
#include "platform/window_id.h"

#include <string>
#include <string_view>

namespace vela::platform {

enum class EditBoxKind { singleLine, multiLine }; // txtNormal, txtMultLine

// Both in UTF-16 units; start is the 0-based caret position before the first selected unit.
struct Selection {
    int start = 0;
    int length = 0;
    friend bool operator==(Selection, Selection) = default;
};

struct EditColours {
    engine::Colour fore{0x00000000};
    engine::Colour back{0x00FFFFFF};
    friend bool operator==(EditColours, EditColours) = default;
};

struct FontDescription {
    std::u16string name = u"MS Sans Serif";
    double size = 8; // points
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikethrough = false;
    friend bool operator==(const FontDescription&, const FontDescription&) = default;
};

enum class TextAlignment { left = 0, right = 1, center = 2 };

struct EditTraits {
    FontDescription font;
    TextAlignment alignment = TextAlignment::left;
    int maxLength = 0;         // units; 0: no limit. Binds typing and insert(), never putText()
    char16_t passwordChar = 0; // 0: the text is shown
    bool locked = false;       // refuses typing, keeps its own colours
    bool enabled = true;
    bool sunken = true; // draws a 3D border of its own
    friend bool operator==(const EditTraits&, const EditTraits&) = default;
};

// What became another in a text: `removed` at `at` gave way to `inserted`. The views are good until the box or the host
// is called.
struct Edit {
    int at = 0;
    std::u16string_view removed;
    std::u16string_view inserted;
    Selection before;   // which it replaced
    bool typed = false; // by a person's key or by insert(); what came by other means is not to be undone
};

// Where the focus goes when it leaves a box. `away`: to another top-level window or another form of the host, or
// nowhere because the box is disabled. The focus is then not asked back.
enum class Leaving { within, away };

// What the person does in the box, in the order of happening. A code put to 0 swallows the key.
class EditBoxEvents {
public:
    virtual void gotFocus() = 0;
    virtual void lostFocus(Leaving leaving) = 0;
    virtual void keyDown(int& code, int& shift) = 0; // virtual-key code; shift 1, control 2, alt 4
    virtual void keyPress(int& key) = 0;             // UTF-16 unit; a composed character only
    // Called instead of keyPress() for control characters other than Backspace and Enter: Esc, Control with a letter. A
    // handler that sets the key to 0 stops what the box does with it; another code has no effect.
    virtual void controlPress(int& key) = 0;
    virtual void keyUp(int code, int shift) = 0;
    virtual void changed(const Edit& edit) = 0; // the text became another text
    virtual void clicked() = 0;
    virtual void doubleClicked() = 0;
    virtual void pointerMoved() = 0;
    virtual void pasted(std::u16string_view text) = 0; // instead of the box's own pasting, cutting, undoing
    virtual void cut() = 0;                            // after the selection has been copied
    virtual void undo() = 0;
    virtual void redo() = 0;

protected:
    ~EditBoxEvents() = default;
};

class EditBox {
public:
    virtual ~EditBox() = default;

    virtual void text(std::u16string& into) const = 0;
    [[nodiscard]] virtual int textLength() const = 0;
    // Caret to 0, nothing selected; changed() when it is another text. Works on a locked box too.
    virtual void putText(std::u16string_view text) = 0;
    // Replaces the selection as typing does: cut to fit maxLength, caret behind it, changed() once. Locked: nothing.
    virtual void insert(std::u16string_view text) = 0;
    [[nodiscard]] virtual Selection selection() const = 0;
    virtual void select(Selection selection) = 0; // cut to the text
    [[nodiscard]] virtual EditColours colours() const = 0;
    virtual void putColours(EditColours colours) = 0;
    [[nodiscard]] virtual const EditTraits& traits() const = 0;
    virtual void putTraits(const EditTraits& traits) = 0;
    // Asks for the focus. Inside lostFocus(Leaving::within) it is granted once the change of focus has settled.
    virtual void takeFocus() = 0;
    [[nodiscard]] virtual bool hasFocus() const = 0;
    // The box's own alert balloon; false when the box cannot show one. Icon as in eIconeToolTipText.
    virtual bool showBalloon(int icon, std::u16string_view title, std::u16string_view text) = 0;
    virtual void hideBalloon() = 0;
    [[nodiscard]] virtual WindowId window() const = 0;
};

} // namespace vela::platform
