// A person at a form: pointer and keys through the system's own queues, and what is seen on the screen.
#pragma once

#include "container.h"
#include "fields.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace vela::test {

// Runs the loop until the condition holds; false after a generous time.
[[nodiscard]] bool until(Loop& loop, const std::function<bool()>& condition);
void settle(Loop& loop); // until nothing waits any more, what was posted meanwhile included

// The pointer, moved and pressed for the whole desktop: the system finds the window under it.
void pointAt(HWND window, POINT at); // in its client
void pointAway();                    // at the desktop
void clickAt(Loop& loop, HWND window, POINT at);
void clickQuickly(Loop& loop, HWND window, POINT at, int times); // in one place, as fast as a person can and faster
[[nodiscard]] POINT middleOf(HWND window);
void sendMouse(DWORD flags);
void sendKey(int key, bool down);                // into the system's own queue of input; none for 0
void hardKey(Loop& loop, int key, int with = 0); // so too, down and up, another key held meanwhile
void strike(Form& form, int key, int with = 0);  // the same, posted to the focused window

struct SeenColours {
    COLORREF fore = CLR_INVALID;
    COLORREF back = CLR_INVALID;
    bool operator==(const SeenColours&) const = default;
};
[[nodiscard]] SeenColours coloursOf(const Site& site); // that the edit box paints with
[[nodiscard]] COLORREF pixelOf(HWND window, POINT at); // on the screen, at a point of its client
[[nodiscard]] int pixelsOf(HWND window, COLORREF colour, RECT in);
[[nodiscard]] RECT clientOf(HWND window);
[[nodiscard]] RECT placeIn(HWND window, HWND parent);
[[nodiscard]] HWND buttonOf(const Site& site); // the field's own; null without one
HWND openPopup(Form& form, const Site& site);  // by its button
HWND popupOf(Form& form);                      // once it is up and active
[[nodiscard]] std::u16string shownBy(HWND window);

// A plain window of the system's on the form.
HWND plainWindow(const wchar_t* kind, RECT place, HWND parent, const wchar_t* text = L"");

// A date field whose entry is no date.
void makeDate(const Site& site, std::u16string_view shown = u"__/__/____");

// A form with a field that has the focus, and a neighbour; with its end nothing of it may be alive.
class Desk {
    LeakCheck leaks_;

public:
    explicit Desk(Kind kind = asPlainText) : site(form.addActive()), neighbour(form.addActive())
    {
        kind(site.automation());
        enter();
        site.log.clear();
    }
    void enter() { go(site); }
    void leave() { go(neighbour); }

    Form form;
    Site& site;
    Site& neighbour;

private:
    void go(Site& to)
    {
        form.focus(to);
        settle(form);
    }
};

// Every window that got the focus on this thread while it lives, in order.
class FocusPath : Fixed {
public:
    FocusPath();
    [[nodiscard]] static const std::vector<HWND>& windows();

private:
    Hook hook_;
};

// A top-level window beside the form.
class OtherWindow : Fixed {
public:
    OtherWindow();
    ~OtherWindow() { DestroyWindow(window_); }
    [[nodiscard]] HWND window() const noexcept { return window_; }

private:
    HWND window_;
};

} // namespace vela::test
