// The windows of a form's widgets: made from the table, placed at the form's scale, showing what the widgets hold.
#pragma once

#include "platform/widgets.h"
#include "platform/win32/fonts.h"
#include "platform/win32/label_painter.h"

#include <windows.h>

#include <vector>

namespace vela::win32 {

struct WidgetWindow;

// Is handed each message of the windows.
class WidgetMessages {
public:
    virtual LRESULT widgetMessage(WidgetWindow& widget, HWND window, UINT message, WPARAM first, LPARAM second) = 0;

protected:
    ~WidgetMessages() = default;
};

// What shows one widget: its window and, of an editable combo, the EDIT in it. Labels and frames have none: they are
// painted.
struct WidgetWindow {
    WidgetWindow(WidgetMessages& whose, const platform::Widget& widget) noexcept : form(whose), values(widget) {}

    WidgetMessages& form;
    const platform::Widget& values;
    HWND window = nullptr;
    HWND inner = nullptr;
    SharedFont font;          // at the form's scale
    bool saysItsName = false; // its windows are asked, because the system keeps no names

    [[nodiscard]] platform::WidgetId id() const noexcept { return values.id; }
    [[nodiscard]] platform::WidgetKind kind() const noexcept { return values.kind(); }
};

class WidgetWindows final : private platform::WidgetDisplay {
public:
    WidgetWindows(const platform::FormLayout& layout, const platform::FormEvents& events, WidgetMessages& form);
    WidgetWindows(const WidgetWindows&) = delete;
    WidgetWindows& operator=(const WidgetWindows&) = delete;

    [[nodiscard]] platform::Widgets& widgets() noexcept { return widgets_; }
    [[nodiscard]] const platform::Widgets& widgets() const noexcept { return widgets_; }
    [[nodiscard]] std::vector<WidgetWindow>& all() noexcept { return windows_; } // one for each row of the table
    [[nodiscard]] WidgetWindow& of(const platform::Widget& widget);
    [[nodiscard]] WidgetWindow* ofWindow(HWND window) noexcept;
    [[nodiscard]] bool quiet() const noexcept { return quiet_; } // they are being written

    void make(HWND form);
    void letGo();                                            // no message comes from them any more
    void destroyed() noexcept;                               // with the form's window
    void putScale(double scale) noexcept { scale_ = scale; } // pixels a twip
    void layOut();
    void applyFont(WidgetWindow& widget);
    void adoptList(const WidgetWindow& widget); // as its window has it, after an act of the person

    [[nodiscard]] FormScale scale() const noexcept { return {widgets_, scale_, scale_}; }
    [[nodiscard]] RECT rectOf(const platform::Widget& widget) const { return scale().placeOf(widget); }
    [[nodiscard]] int pixels(int twips) const noexcept { return scale().units(twips); }

private:
    // widget_display.cpp
    void showText(const platform::Widget& widget) override;
    void showCheck(const platform::Widget& widget) override;
    void showEnabled(const platform::Widget& widget) override;
    void showVisibility() override;
    void showLook(const platform::Widget& widget, const platform::WidgetLook& before) override;
    void showFont(const platform::Widget& widget) override;
    void showBackColour() override;
    void itemAdded(const platform::Widget& widget) override;
    void itemRemoved(const platform::Widget& widget, int index) override;
    void itemsCleared(const platform::Widget& widget) override;
    void showChoice(const platform::Widget& widget) override;
    void showSelected(const platform::Widget& widget, int index) override;
    void showItem(const WidgetWindow& widget, int index);
    void rememberSpokenName(WidgetWindow& widget);
    void repaint(const platform::Widget& widget);

    void makeWidget(WidgetWindow& widget);
    void placeWidget(const WidgetWindow& widget);
    [[nodiscard]] int columnWidth(const WidgetWindow& widget) const;
    [[nodiscard]] SharedFont fittingFont(const platform::Widget& widget) const;
    [[nodiscard]] int dpi() const noexcept;

    platform::Widgets widgets_;
    std::vector<WidgetWindow> windows_;
    HWND form_ = nullptr; // while the windows are there
    double scale_ = 0;
    bool quiet_ = false;
};

} // namespace vela::win32
