// The stage of the contract tests in memory: a form with two fields and a plain element, and the acts of a person.
// That of the windows has the same functions.
#pragma once

#include "platform/headless/control_surface.h"
#include "platform/headless/environment.h"
#include "platform/headless/form_window.h"
#include "platform/headless/tooltip_window.h"

#include <array>
#include <memory>
#include <string>

namespace vela::contract {

class Stage {
public:
    Stage()
    {
        for (int index : {0, 1})
            fields_[static_cast<std::size_t>(index)] =
                std::make_unique<headless::ControlSurface>(form_, index == 0 ? u"A" : u"B", index);
        plain_ = &form_.addPlain(u"plain");
    }

    platform::ControlSurface& field(int index) { return at(index); }
    void listen(int index, platform::EditBoxEvents& box, platform::SurfaceEvents& surface)
    {
        at(index).connect(box, surface);
    }
    void destroyField(int index) { fields_[static_cast<std::size_t>(index)].reset(); }
    void focus(int index) { form_.focus(at(index)); }
    void focusPlain() { form_.focus(*plain_); }
    void type(std::u16string_view text)
    {
        for (const char16_t unit : text)
            form_.key(unit == u'\r' || unit == u'\b' ? headless::namedKey(unit) : headless::keyOf(unit));
    }
    void press(int virtualKey) { form_.key(headless::namedKey(virtualKey)); }
    void pressTab(bool back) { form_.tab(back); }
    void click(int index) { form_.click(at(index)); }
    void doubleClick(int index) { form_.doubleClick(at(index)); }
    void paste(std::u16string_view text) { form_.paste(text); }
    void cut() { form_.cut(); }
    void undo() { form_.undo(); }
    void redo() { form_.redo(); }
    void pointTo(int index) { form_.pointTo(at(index)); }
    void settle() {}
    void clickWidget(platform::Form& form, platform::WidgetId widget)
    {
        static_cast<headless::WidgetForm&>(form).click(widget);
    }
    void typeInto(platform::Form& form, platform::WidgetId widget, char16_t unit)
    {
        static_cast<headless::WidgetForm&>(form).type(widget, headless::keyOf(unit));
    }
    platform::Environment& environment() { return machine_.environment; }
    platform::SettingsStore& settings() { return machine_.settings; }
    platform::FormFactory& forms() { return machine_.forms; }
    std::unique_ptr<platform::TooltipWindow> makeTooltip() { return at(0).makeTooltip(); }
    std::u16string writableFile() { return u"C:\\Log.txt"; }
    std::string logBytes(std::u16string_view path)
    {
        std::string bytes;
        for (const headless::LogFile::Entry& entry : machine_.log.entries())
            if (entry.path == path)
                bytes += engine::encode(entry.record);
        return bytes;
    }

private:
    headless::ControlSurface& at(int index) { return *fields_[static_cast<std::size_t>(index)]; }

    headless::Machine machine_;
    headless::FormWindow form_{machine_.desktop, machine_.trace, machine_.faults};
    std::array<std::unique_ptr<headless::ControlSurface>, 2> fields_;
    headless::Element* plain_ = nullptr;
};

} // namespace vela::contract
