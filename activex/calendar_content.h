// The free-standing calendar in its shell.
#pragma once

#include "activex/ole/shell.h"
#include "activex/session.h"
#include "platform/win32/form_window.h"
#include "popups/c_calendar.h"

namespace vela::activex {

[[nodiscard]] const ClassFacts& calendarFacts() noexcept;

class CalendarContent final : public Content, private win32::FormListener {
public:
    explicit CalendarContent(Shell& shell);
    ~CalendarContent() override;

    [[nodiscard]] std::span<const Member> members() const noexcept override;
    [[nodiscard]] Variant get(const Member& member) override;
    void put(const Member& member, const VARIANT& value) override;
    [[nodiscard]] Variant call(const Member& member, const Arguments& arguments) override;

    void initNew() override { calendar_.initNew(); }
    void load(platform::PropertyBag& bag) override { calendar_.load(bag); }
    void save(platform::PropertyBag& bag) override { calendar_.save(bag); }
    void terminate() noexcept override;

    [[nodiscard]] HWND window() const noexcept override { return form().handle(); }
    void attach(HWND parent, const RECT& place) override;
    void detach() noexcept override;
    void place(const RECT& place) override;
    void clip(const RECT* shown) override;
    void show(bool visible) override { form().showChildWindow(visible); }
    [[nodiscard]] FieldSize size() override { return size_; }
    void resize(FieldSize size) override { size_ = size; }
    void takeFocus() override;
    [[nodiscard]] bool wantsKey(const MSG& message) const override;
    [[nodiscard]] bool eatsReturn() const override { return true; } // Enter picks a day
    [[nodiscard]] int dpi() override;
    void ambientChanged(DISPID id) override;

    void draw(HDC dc, const RECT& bounds) override;
    [[nodiscard]] std::u16string plainText() override { return calendar_.grid().selectedText(); }

private:
    // win32::FormListener
    void focusEntered() override { shell_.focusMoved(true); }
    void focusLeft() override { shell_.focusMoved(false); }
    void windowDestroyed() override { shell_.windowLost(); }

    [[nodiscard]] win32::FormWindow& form() const;
    void picked();

    Shell& shell_;
    std::shared_ptr<Session> session_;
    mutable popups::cCalendar calendar_; // its form is reached through it
    FieldSize size_;
    bool dead_ = false;
};

} // namespace vela::activex
