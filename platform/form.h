// Forms of the platform, instantiated from a neutral table: pop-ups, property pages and dialogs.
#pragma once

#include "platform/widgets.h"
#include "platform/window_id.h"

#include <memory>

namespace vela::platform {

class Form {
public:
    virtual ~Form() = default;

    // The values of its widgets. To change one may fail where the system refuses it: nothing is changed then.
    [[nodiscard]] virtual Widgets& widgets() = 0;
    [[nodiscard]] virtual const Widgets& widgets() const = 0;

    [[nodiscard]] std::u16string text(WidgetId widget) const { return widgets().text(widget); }
    void putText(WidgetId widget, std::u16string_view text) { widgets().putText(widget, text); }
    [[nodiscard]] bool checked(WidgetId widget) const { return widgets().at(widget).checked; }
    void check(WidgetId widget, bool on) { widgets().check(widget, on); }
    [[nodiscard]] ItemList& items(WidgetId widget) { return widgets().items(widget); }
    [[nodiscard]] bool enabled(WidgetId widget) const { return widgets().at(widget).enabled; }
    void enable(WidgetId widget, bool on) { widgets().enable(widget, on); }
    [[nodiscard]] bool visible(WidgetId widget) const { return widgets().visible(widget); }
    void show(WidgetId widget, bool on) { widgets().show(widget, on); }
    [[nodiscard]] const WidgetLook& look(WidgetId widget) const { return widgets().at(widget).look; }
    void putLook(WidgetId widget, const WidgetLook& look) { widgets().putLook(widget, look); }
    void putFont(WidgetId widget, const FontDescription& font) { widgets().putFont(widget, font); }
    void putBackColour(engine::Colour colour) { widgets().putBackColour(colour); }
    [[nodiscard]] WidgetId focused() const { return widgets().focused(); }

    virtual void focus(WidgetId widget) = 0;       // nothing for one that is disabled, hidden or takes no focus
    virtual void startTimer(int milliseconds) = 0; // 0 stops it
    // Shows as a pop-up at this place of the screen, at its own scale, then reports activated().
    virtual void showPopup(engine::RectPixels place, WindowId owner) = 0;
    virtual void showModal() = 0; // returns when closed
    virtual void close() = 0;     // closed() once; safe inside any event, the form object stays until released
    [[nodiscard]] virtual bool isShown() const = 0;
    [[nodiscard]] virtual WindowId window() const = 0;
};

class FormFactory {
public:
    virtual ~FormFactory() = default;
    [[nodiscard]] virtual std::unique_ptr<Form> make(const FormLayout& layout, const FormEvents& events) = 0;
};

} // namespace vela::platform
