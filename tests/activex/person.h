// A person at a form: pointer and keys through the system's own queues, and what is seen on the screen.
#pragma once

#include "container.h"

#include "tests/support/windows.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace vela::test {

// Runs the form's loop until the condition holds; false after a generous time.
[[nodiscard]] bool until(Form& form, const std::function<bool()>& condition);
void settle(Form& form); // until nothing waits any more, what was posted meanwhile included

// The pointer, moved and pressed for the whole desktop: the system finds the window under it.
void pointAt(HWND window, POINT at); // in its client
void pointAway();                    // at the desktop
void clickAt(Form& form, HWND window, POINT at);
void clickQuickly(Form& form, HWND window, POINT at, int times); // in one place, as fast as a person can and faster
[[nodiscard]] POINT middleOf(HWND window);
void strike(Form& form, int key, int with = 0);  // down and up for the focused window, another key held meanwhile
void hardKey(Form& form, int key, int with = 0); // the same through the system's own queue of input
void holdKey(int key, bool down);                // as this thread's windows see it

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

// A date field whose entry is no date.
void makeDate(const Site& site, std::u16string_view shown);

// Every window that got the focus on this thread while it lives, in order.
class FocusPath {
public:
    FocusPath();
    FocusPath(const FocusPath&) = delete;
    FocusPath& operator=(const FocusPath&) = delete;
    ~FocusPath();
    [[nodiscard]] static const std::vector<HWND>& windows();

private:
    HHOOK hook_;
};

// A top-level window beside the form.
class OtherWindow {
public:
    OtherWindow();
    OtherWindow(const OtherWindow&) = delete;
    OtherWindow& operator=(const OtherWindow&) = delete;
    ~OtherWindow() { DestroyWindow(window_); }
    [[nodiscard]] HWND window() const noexcept { return window_; }

private:
    HWND window_;
};

} // namespace vela::test
