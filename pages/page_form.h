// What every page is made of: its form, the selected object, the changed flag, and the acts bound to its controls.
#pragma once

#include "engine/error.h"
#include "pages/field.h"
#include "pages/page.h"

#include <functional>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace vela::pages {

// While a page loads, the acts that its own writing would start are left out. A double click on a swatch, or
// Space or Enter there, opens the palette on every page.
class PageForm final : private platform::ClickEvents,
                       private platform::DoubleClickEvents,
                       private platform::EntryEvents,
                       private platform::KeyDownEvents,
                       private platform::KeyPressEvents {
public:
    using Action = std::function<void()>;
    using KeyFilter = bool (*)(int key); // true lets the key through

    PageForm(const platform::FormLayout& layout, const PageServices& services, PageSite& site);
    PageForm(const PageForm&) = delete;
    PageForm& operator=(const PageForm&) = delete;

    // Bindings, made while a page is constructed. Names that the layout does not have are a programming error.
    void marksChanged(platform::WidgetId control); // every click on it and change of its text sets the flag
    void fieldsMarkChanged();                      // so do all fields but the swatches: a palette changes those
    void onClick(std::u16string_view control, Action action);
    void onChange(std::u16string_view control, Action action);
    void onGotFocus(std::u16string_view control, Action action);
    void onLostFocus(std::u16string_view control, Action action);
    void filterKeys(std::u16string_view control, KeyFilter accepts);
    void help(std::u16string_view button, std::u16string_view text); // an information box on its click

    // The selection. `load` runs with the acts left out; the flag is down afterwards, whatever happened.
    void open(std::span<PropertyObject* const> selection, const Action& load);
    // Raises again what the load raised: what was never read is not to be overwritten.
    void requireLoaded() const;
    void release() noexcept { object_ = nullptr; }
    [[nodiscard]] PropertyObject& object() const; // the first selected one; raises 91 without one
    // A field of the page on its form.
    struct Bound {
        Field field;
        platform::WidgetId control;
        int property = 0; // the selected object's number for it, once it is found
    };
    [[nodiscard]] std::span<Bound> fields() noexcept { return fields_; } // in the order of reading
    void load(Bound& bound);
    [[nodiscard]] engine::Value read(Bound& bound);              // finds the property and gets it
    [[nodiscard]] engine::Value value(const Bound& bound) const; // what stands in the control
    // Puts what `valueOf` gives for each field, in the order of writing; stops at the first that fails.
    void write(const std::function<engine::Value(const Bound&)>& valueOf);
    void write();

    [[nodiscard]] bool changed() const noexcept { return changed_; }
    void putChanged(bool on);

    [[nodiscard]] platform::Form& form() noexcept { return *form_; }
    [[nodiscard]] const platform::FormLayout& layout() const noexcept { return layout_; }
    [[nodiscard]] platform::WidgetId id(std::u16string_view control, int index = -1) const;
    [[nodiscard]] std::u16string text(std::u16string_view control) const;
    [[nodiscard]] bool checked(std::u16string_view control) const;
    void putText(std::u16string_view control, std::u16string_view text);
    void check(std::u16string_view control, bool on);
    void enable(std::u16string_view control, bool on);
    void show(std::u16string_view control, bool on);
    void focus(std::u16string_view control); // with its tab brought to the front
    void putBackColour(platform::WidgetId control, engine::Colour colour);
    [[nodiscard]] platform::ItemList& items(std::u16string_view control);

    [[nodiscard]] const PageServices& services() const noexcept { return services_; }
    [[nodiscard]] const engine::Locale& locale() const { return services_.environment.locales.locale(); }
    void inform(std::u16string_view text, std::u16string_view title = {}) const; // a box with the information icon

private:
    enum class Act { click, change, gotFocus, lostFocus };
    struct Binding {
        platform::WidgetId control;
        Act act;
        Action action;
    };
    struct Filter {
        platform::WidgetId control;
        KeyFilter accepts;
    };

    void bind(std::u16string_view control, Act act, Action action);
    void run(platform::WidgetId control, Act act);
    [[nodiscard]] bool isSwatch(platform::WidgetId widget) const;
    void chooseColour(platform::WidgetId swatch);

    void clicked(platform::WidgetId widget) override;
    void doubleClicked(platform::WidgetId widget) override;
    void changed(platform::WidgetId widget) override;
    void gotFocus(platform::WidgetId widget) override;
    void lostFocus(platform::WidgetId widget) override;
    void keyDown(platform::WidgetId widget, int& code, int& shift) override;
    void keyPress(platform::WidgetId widget, int& key) override;

    const platform::FormLayout& layout_;
    PageServices services_;
    PageSite& site_;
    PropertyObject* object_ = nullptr;
    std::optional<engine::Error> failedLoad_;
    std::vector<Bound> fields_;
    std::vector<const Bound*> writingOrder_;
    bool changed_ = false;
    bool loading_ = false;
    std::vector<Binding> bindings_;
    std::vector<Filter> filters_;
    std::unique_ptr<platform::Form> form_; // last member, so destroyed first: its events may still use the others
};

} // namespace vela::pages
