// A form: the windows that show its widgets, and what a person does there.
#pragma once

#include "engine/alive.h"
#include "platform/win32/form.h"
#include "platform/win32/form_accessible.h"
#include "platform/win32/widget_windows.h"
#include "platform/win32/window.h"

#include <memory>
#include <string>
#include <vector>

namespace vela::win32 {

class FocusArbiter;

// Its windows are made when it is shown and go when it is closed or leaves its parent; the values stay.
class FormWindow final : public platform::Form, private WindowHandler, private WidgetMessages, private SpokenForm {
public:
    FormWindow(const platform::FormLayout& layout, const platform::FormEvents& events);
    FormWindow(const FormWindow&) = delete;
    FormWindow& operator=(const FormWindow&) = delete;
    ~FormWindow() override;

    [[nodiscard]] platform::Widgets& widgets() override { return widgets_; }
    [[nodiscard]] const platform::Widgets& widgets() const override { return widgets_; }
    void focus(platform::WidgetId widget) override;
    void startTimer(int milliseconds) override;
    void showPopup(engine::RectPixels place, platform::WindowId owner) override;
    void showModal() override;
    void close() override;
    [[nodiscard]] bool isShown() const override { return shown_; }
    [[nodiscard]] platform::WindowId window() const override;

    // As a child of `parent` (a property page of a frame), at this place, in pixels, at the natural size's scale.
    void showChild(HWND parent, const RECT& place);
    // Null: none, which is how a form begins. With one, a click anywhere in a child form takes the focus.
    void setListener(FormListener* listener) noexcept { listener_ = listener; }
    void showChildWindow(bool visible);
    void moveChild(const RECT& place);
    void putDead(bool dead) noexcept { dead_ = dead; } // keys and clicks are not answered
    void leaveParent();                                // the windows go
    // Tab, arrows and access keys among its widgets; true when the message was one of them. Enter and Esc are left to
    // the frame.
    [[nodiscard]] bool translate(MSG& message);
    // Of its client area as the table gives it, at this many dots per inch.
    [[nodiscard]] SIZE naturalSize(int dpi) const;
    [[nodiscard]] HWND handle() const noexcept { return window_; }

private:
    enum class Role { none, popup, modal, child };

    // Messages (form_events.cpp).
    LRESULT handle(HWND window, UINT message, WPARAM first, LPARAM second) override;
    LRESULT widgetMessage(WidgetWindow& widget, HWND window, UINT message, WPARAM first, LPARAM second) override;
    void unbound() override;
    LRESULT command(WPARAM first, LPARAM second);
    LRESULT notify(const NMHDR& header);
    LRESULT pointer(UINT message, LPARAM where);
    void activation(bool active);
    void timer();
    bool keyDown(const WidgetWindow* widget, WPARAM code);
    bool keyPress(const WidgetWindow* widget, WPARAM unit);
    bool accessKey(wchar_t letter);
    [[nodiscard]] bool leavesPage(bool back);
    void press(const platform::Widget& widget);
    void pressButton(std::u16string_view caption);
    void nextWidget(bool back);
    [[nodiscard]] bool isOwn(HWND window) const noexcept;
    [[nodiscard]] LRESULT keysWanted(const MSG* key) const noexcept;
    void focusCrossed(UINT message, HWND other);
    void clickedWindow(const WidgetWindow& widget);
    void typedInto(const WidgetWindow& widget);
    void tellShown(const WidgetWindow& widget);
    [[nodiscard]] LRESULT keysWanted(const WidgetWindow& widget, LRESULT usual, const MSG* message) const;
    [[nodiscard]] bool wantsKey(const WidgetWindow& widget, WPARAM code) const; // Enter or Esc that a frame would take
    [[nodiscard]] bool isFrameOf(HWND window) const;                            // of this page in front
    [[nodiscard]] const platform::Widget* labelAt(POINT point) const;

    // Showing (form_show.cpp).
    void makeTopLevel(Role role, HWND owner, RECT place, DWORD style, DWORD extendedStyle);
    void appear();
    void focusFirst();
    void endShowing();
    void dropWindows();
    void runModalLoop();

    // Painting (form_paint.cpp).
    void paint();
    void paintAll(HDC dc, const RECT& client);
    void paintGround(HDC dc, const RECT& client);
    void learnGround();
    [[nodiscard]] bool hasGround() const noexcept; // its parent's
    [[nodiscard]] COLORREF groundOf(const platform::Widget& widget) const noexcept;
    void paintFrame(HDC dc, const WidgetWindow& frame);
    void paintPane(HDC dc, const WidgetWindow& widget);
    void drawItem(const DRAWITEMSTRUCT& item);
    LRESULT colourOf(UINT message, HDC dc, HWND child);

    // For screen readers (form_events.cpp).
    [[nodiscard]] std::vector<SpokenLabel> spokenLabels() const override;
    void clickLabel(int widget) override;

    WidgetWindows windows_;
    platform::Widgets& widgets_{windows_.widgets()};
    const platform::FormEvents& events_{widgets_.events()};
    FormListener* listener_ = nullptr;
    FocusArbiter& arbiter_;
    HWND window_ = nullptr;
    HWND owner_ = nullptr;
    HWND returnTo_ = nullptr;                   // had the focus before the pop-up
    const platform::Widget* pressed_ = nullptr; // a label under the held button
    COLORREF ground_ = 0;                       // of a child form without a colour of its own
    COLORREF pane_ = 0;                         // of its tabs
    int timer_ = 0;
    Role role_ = Role::none;
    bool shown_ = false;
    bool dead_ = false;
    bool closed_ = false;
    bool swallowChar_ = false;
    int running_ = 0; // procedures of its windows that are under way
    FormSpeech speech_;
    engine::Life life_;
};

} // namespace vela::win32
