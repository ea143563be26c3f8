// The free-standing calendar in its shell.
#pragma once

#include "activex/ole/shell.h"
#include "activex/session.h"
#include "popups/c_calendar.h"

namespace vela::activex {

[[nodiscard]] const ClassFacts& calendarFacts() noexcept;

class CalendarContent final : public Content, private win32::FormListener {
public:
    explicit CalendarContent(Shell& shell);
    ~CalendarContent() override;
    [[nodiscard]] static std::unique_ptr<Content> make(Shell& shell)
    {
        return std::make_unique<CalendarContent>(shell);
    }

    [[nodiscard]] std::span<const Member> members() const noexcept override;
    [[nodiscard]] Variant get(const Member& member) override;
    void put(const Member& member, const VARIANT& value) override;
    [[nodiscard]] Variant call(const Member& member, const Arguments& arguments) override;

    void initNew() override;
    void load(platform::PropertyBag& bag) override;
    void save(platform::PropertyBag& bag) override;
    void terminate() noexcept override;

    [[nodiscard]] HWND window() const noexcept override;
    void attach(HWND parent, const RECT& place) override;
    void detach() noexcept override;
    void place(const RECT& place) override;
    void clip(const RECT* shown) override;
    void show(bool visible) override;
    [[nodiscard]] FieldSize size() override;
    void resize(FieldSize size) override;
    void takeFocus() override;
    [[nodiscard]] bool hasFocus() const override;
    [[nodiscard]] bool wantsKey(const MSG& message) const override;
    [[nodiscard]] bool eatsReturn() const override { return true; } // Enter picks a day
    [[nodiscard]] int dpi() override;
    void ambientChanged(DISPID id) override;

    void draw(HDC dc, const RECT& bounds) override;
    [[nodiscard]] std::u16string plainText() override;

private:
    // win32::FormListener
    void focusEntered() override;
    void focusLeft() override;
    void windowDestroyed() override;

    [[nodiscard]] win32::Form& form() const;
    void picked();

    Shell& shell_;
    std::shared_ptr<Session> session_;
    mutable popups::cCalendar calendar_; // its form is reached through it
    FieldSize size_;
    bool dead_ = false;
};

} // namespace vela::activex
