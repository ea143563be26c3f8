// The stage of the contract tests: a form with two fields and a plain element, on whichever back end is under test.
#pragma once

#include "platform/control_surface.h"
#include "platform/environment.h"
#include "platform/form.h"

#include <memory>
#include <string>
#include <string_view>

namespace vela::contract {

class Stage {
public:
    [[nodiscard]] static std::unique_ptr<Stage> make(); // each back end brings its own
    virtual ~Stage() = default;

    // Field 0 stands before field 1 in tab order, the plain element last.
    [[nodiscard]] virtual platform::ControlSurface& field(int index) = 0;
    virtual void listen(int index, platform::EditBoxEvents& box, platform::SurfaceEvents& surface) = 0;
    virtual void destroyField(int index) = 0;

    // Acts of a person; each returns when all that follows has settled.
    virtual void focus(int index) = 0;
    virtual void focusPlain() = 0;
    virtual void type(std::u16string_view text) = 0;
    virtual void press(int virtualKey) = 0; // a key that types nothing: Left, Delete...
    virtual void pressTab(bool back) = 0;
    virtual void click(int index) = 0;
    virtual void doubleClick(int index) = 0;
    virtual void paste(std::u16string_view text) = 0;
    virtual void cut() = 0;
    virtual void undo() = 0;
    virtual void redo() = 0;
    virtual void pointTo(int index) = 0;
    virtual void clickButton(int index) = 0;
    virtual void settle() = 0;

    // A person at a form: a click on a button, a box or an option.
    virtual void clickWidget(platform::Form& form, platform::WidgetId widget) = 0;
    virtual void typeInto(platform::Form& form, platform::WidgetId widget, char16_t unit) = 0;

    [[nodiscard]] virtual platform::Environment& environment() = 0;
    [[nodiscard]] virtual platform::SettingsStore& settings() = 0;
    [[nodiscard]] virtual platform::FormFactory& forms() = 0;
    [[nodiscard]] virtual std::unique_ptr<platform::TooltipWindow> makeTooltip() = 0;
    [[nodiscard]] virtual std::u16string writableFile() = 0; // a path that log records may be appended to
    [[nodiscard]] virtual std::string logBytes(std::u16string_view path) = 0;
};

} // namespace vela::contract
