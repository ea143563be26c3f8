// One widget of a form in memory, and the items of those that have a list.
#pragma once

#include "platform/headless/widget_form.h"

#include <string>
#include <vector>

namespace vela::headless {

[[nodiscard]] bool isTyped(platform::WidgetKind kind) noexcept; // a text box or an editable combo

class WidgetList final : public platform::ItemList {
public:
    WidgetList(WidgetForm& form, platform::WidgetId widget);

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
    void forgetChoice() noexcept { chosen_ = -1; }

private:
    struct Item {
        std::u16string text;
        bool selected = false;
    };
    void check(int index) const;

    WidgetForm& form_;
    platform::WidgetId widget_;
    std::vector<Item> items_;
    int chosen_ = -1;
};

struct WidgetForm::Widget {
    const platform::WidgetRow* row = nullptr;
    std::u16string text; // of a drop-down list: unused, its chosen item is its text
    bool checked = false;
    bool enabled = true;
    bool visible = true;
    platform::WidgetLook look;
    std::optional<platform::FontDescription> font;
    std::unique_ptr<WidgetList> list;
};

} // namespace vela::headless
