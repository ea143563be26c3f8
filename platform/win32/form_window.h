// A form: the values of its widgets, the windows that show them, and what a person does there.
#pragma once

#include "engine/alive.h"
#include "engine/scoped_value.h"
#include "platform/win32/fitted_text.h"
#include "platform/win32/fonts.h"
#include "platform/win32/form.h"
#include "platform/win32/form_accessible.h"
#include "platform/win32/form_widget.h"
#include "platform/win32/window.h"

#include <memory>
#include <string>
#include <vector>

namespace vela::win32 {

class FocusArbiter;

class FormWindow final : public Form, private WindowHandler, private SpokenForm {
public:
    FormWindow(const platform::FormLayout& layout, platform::FormEvents& events);
    FormWindow(const FormWindow&) = delete;
    FormWindow& operator=(const FormWindow&) = delete;
    ~FormWindow() override;

    [[nodiscard]] std::u16string text(platform::WidgetId widget) const override;
    void putText(platform::WidgetId widget, std::u16string_view text) override;
    [[nodiscard]] bool checked(platform::WidgetId widget) const override;
    void check(platform::WidgetId widget, bool on) override;
    [[nodiscard]] platform::ItemList& items(platform::WidgetId widget) override;
    [[nodiscard]] bool enabled(platform::WidgetId widget) const override;
    void enable(platform::WidgetId widget, bool on) override;
    [[nodiscard]] bool visible(platform::WidgetId widget) const override;
    void show(platform::WidgetId widget, bool on) override;
    [[nodiscard]] const platform::WidgetLook& look(platform::WidgetId widget) const override;
    void putLook(platform::WidgetId widget, const platform::WidgetLook& look) override;
    void putFont(platform::WidgetId widget, const platform::FontDescription& font) override;
    void focus(platform::WidgetId widget) override;
    [[nodiscard]] platform::WidgetId focused() const override { return focused_; }
    void putBackColour(engine::Colour colour) override;
    void startTimer(int milliseconds) override;
    void showPopup(engine::RectPixels place, platform::WindowId owner) override;
    void showModal() override;
    void close() override;
    [[nodiscard]] bool isShown() const override { return shown_; }
    [[nodiscard]] platform::WindowId window() const override;

    void showChild(HWND parent, const RECT& place) override;
    void setListener(FormListener* listener) noexcept override { listener_ = listener; }
    void showChildWindow(bool visible) override;
    void moveChild(const RECT& place) override;
    void putDead(bool dead) override { dead_ = dead; }
    void leaveParent() override;
    [[nodiscard]] bool translate(MSG& message) override;
    [[nodiscard]] SIZE naturalSize(int dpi) const override;
    [[nodiscard]] HWND handle() const noexcept override { return window_; }

    // For its widgets' windows and lists.
    LRESULT widgetMessage(Widget& widget, HWND window, UINT message, WPARAM first, LPARAM second);
    void itemChosen(Widget& widget);
    void listCleared(Widget& widget);
    void tabChosen();
    void rememberSpokenName(Widget& widget);

private:
    enum class Role { none, popup, modal, child };

    [[nodiscard]] Widget& at(platform::WidgetId widget) const; // 9 for no row of the table
    [[nodiscard]] Widget* ofWindow(HWND window) const noexcept;
    [[nodiscard]] bool showing(const Widget& widget) const; // visible, and on the tab in front
    void putTypedText(Widget& widget, std::u16string text);
    void chooseOption(Widget& widget);
    void setCheck(Widget& widget, bool on);

    // Windows (form_windows.cpp).
    void makeWindows();
    void makeWidget(Widget& widget);
    void dropWindows();
    void layOut();
    void placeWidget(Widget& widget);
    [[nodiscard]] int columnWidth(const Widget& widget) const;
    void applyFont(Widget& widget);
    [[nodiscard]] SharedFont fittingFont(const Widget& widget, int dpi) const;
    void applyVisibility();
    [[nodiscard]] RECT rectOf(const Widget& widget) const;
    [[nodiscard]] POINT offsetOf(std::u16string_view frame) const; // twips
    [[nodiscard]] int pixels(int twips) const noexcept;
    [[nodiscard]] platform::FontDescription fontOf(const Widget& widget) const;

    // Messages (form_messages.cpp).
    LRESULT handle(HWND window, UINT message, WPARAM first, LPARAM second) override;
    void unbound() override;
    LRESULT command(WPARAM first, LPARAM second);
    LRESULT notify(const NMHDR& header);
    LRESULT colourOf(UINT message, HDC dc, HWND child);
    LRESULT pointer(UINT message, LPARAM where);
    void activation(bool active);
    void timer();
    bool keyDown(Widget* widget, WPARAM code);
    bool keyPress(Widget* widget, WPARAM unit);
    bool navigate(WPARAM code);
    bool accessKey(wchar_t letter);
    [[nodiscard]] bool leavesPage(bool back) const;
    void press(Widget& widget);
    void pressButton(std::u16string_view caption);
    void nextWidget(bool back);
    void focusArrived(Widget& widget);
    [[nodiscard]] bool isOwn(HWND window) const noexcept;
    [[nodiscard]] LRESULT keysWanted(const MSG* key) const noexcept;
    void focusCrossed(UINT message, HWND other);
    void clickedWindow(Widget& widget);
    void typedInto(Widget& widget);
    void tellShown(Widget& widget);
    [[nodiscard]] LRESULT keysWanted(const Widget& widget, LRESULT usual, const MSG* message) const;
    [[nodiscard]] bool wantsKey(const Widget& widget, WPARAM code) const; // Enter or Esc that a frame would take
    [[nodiscard]] bool isFrameOf(HWND window) const;                      // of this page in front
    [[nodiscard]] Widget* labelAt(POINT point);

    // Showing (form_show.cpp).
    void makeTopLevel(Role role, HWND owner, RECT place, DWORD style, DWORD extendedStyle);
    void appear();
    void focusFirst();
    void endShowing();
    void runModalLoop();

    // Painting (form_paint.cpp).
    void paint();
    void paintAll(HDC dc, const RECT& client);
    void paintGround(HDC dc, const RECT& client);
    void learnGround();
    [[nodiscard]] bool hasGround() const noexcept { return role_ == Role::child && !ownBack_; } // its parent's
    [[nodiscard]] COLORREF groundOf(const Widget& widget) const noexcept;
    void paintWidget(HDC dc, Widget& widget);
    void paintLabel(HDC dc, Widget& widget, RECT place);
    [[nodiscard]] int labelHeight(HDC dc, const Widget& widget, int border);
    void paintFrame(HDC dc, Widget& widget, RECT place);
    void paintPane(HDC dc, const Widget& widget, RECT place);
    // For screen readers (form_messages.cpp).
    [[nodiscard]] std::vector<SpokenLabel> spokenLabels() const override;
    void clickLabel(int widget) override;

    void drawItem(const DRAWITEMSTRUCT& item);
    void repaint(const Widget& widget);

    platform::FormLayout layout_;
    platform::FormEvents& events_;
    FormListener* listener_ = nullptr;
    FocusArbiter& arbiter_;
    std::vector<std::unique_ptr<Widget>> widgets_;
    HWND window_ = nullptr;
    HWND owner_ = nullptr;
    HWND returnTo_ = nullptr;   // had the focus before the pop-up
    Widget* pressed_ = nullptr; // a label under the held button
    platform::WidgetId focused_;
    engine::Colour back_{0x8000000F};
    bool ownBack_ = false; // else a child form stands on its parent's ground
    COLORREF ground_ = 0;  // of such a form
    COLORREF pane_ = 0;    // of its tabs
    double scale_ = 0;     // pixels a twip
    int timer_ = 0;
    Role role_ = Role::none;
    bool shown_ = false;
    bool dead_ = false;
    bool closed_ = false;
    bool quiet_ = false; // windows are being written
    bool swallowChar_ = false;
    int running_ = 0;      // procedures of its windows that are under way
    FittedHeights fitted_; // of the drawing that is under way
    FormSpeech speech_;
    engine::Life life_;
};

} // namespace vela::win32
