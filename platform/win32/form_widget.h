// One widget of a form: its values, and the window that shows them while there is one.
#pragma once

#include "platform/form.h"
#include "platform/win32/fonts.h"

#include <windows.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace vela::win32 {

class FormWindow;
struct Widget;

// Items and choices. Kept here; the window of a combo, list or tab strip is told.
class WidgetList final : public platform::ItemList {
public:
    WidgetList(FormWindow& form, Widget& widget);

    void add(std::u16string_view item) override;
    void remove(int index) override;
    void clear() override;
    [[nodiscard]] int count() const override { return static_cast<int>(items_.size()); }
    [[nodiscard]] std::u16string at(int index) const override;
    [[nodiscard]] int chosen() const override { return chosen_; }
    void choose(int index) override;
    [[nodiscard]] bool selected(int index) const override;
    void select(int index, bool on) override;

    [[nodiscard]] int indexOf(std::u16string_view item) const; // 380 for none
    void forgetChoice();
    void fill() const;     // a window just made
    void readFromWindow(); // after an act of the person

private:
    struct Item {
        std::u16string text;
        bool selected = false;
    };
    void check(int index) const;
    void showItem(const Item& item) const;
    void showChoice() const;
    void showSelected(int index, bool on) const;

    FormWindow& form_;
    Widget& widget_;
    std::vector<Item> items_;
    int chosen_ = -1;
};

struct Widget {
    const platform::WidgetRow* row = nullptr;
    platform::WidgetId id;
    FormWindow* form = nullptr;
    HWND window = nullptr; // none for those that are painted
    HWND inner = nullptr;  // the EDIT of an editable combo
    WNDPROC original = nullptr;
    WNDPROC innerOriginal = nullptr;
    std::u16string text; // caption, or what is typed; of a drop-down list unused
    platform::WidgetLook look;
    std::optional<platform::FontDescription> font;
    SharedFont shared;
    std::unique_ptr<WidgetList> list;
    bool checked = false;
    bool enabled = true;
    bool visible = true;
    bool saysItsName = false; // its windows are asked, because the system keeps no names

    [[nodiscard]] platform::WidgetKind kind() const noexcept { return row->kind; }
};

[[nodiscard]] bool isTyped(platform::WidgetKind kind) noexcept;  // a text box or an editable combo
[[nodiscard]] bool isWindow(platform::WidgetKind kind) noexcept; // not painted by the form
[[nodiscard]] bool takesFocus(platform::WidgetKind kind) noexcept;
// Of a widget that shows its caption: named by its row, or marked as in "C&E". 0 without one. "&&" is an ampersand.
[[nodiscard]] char16_t accessKeyOf(const Widget& widget) noexcept;
// "Te&ste": as the system takes a caption whose access key it is to underline, where a word begins if one does.
[[nodiscard]] std::u16string markedCaption(const Widget& widget);
[[nodiscard]] std::u16string withoutAccessKey(std::u16string_view caption);

} // namespace vela::win32
