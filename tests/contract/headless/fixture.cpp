// The stage in memory.
#include "tests/contract/stage.h"

#include "platform/headless/control_surface.h"
#include "platform/headless/environment.h"
#include "platform/headless/form_window.h"
#include "platform/headless/tooltip_window.h"

#include <array>

namespace vela::contract {
namespace {

class HeadlessStage final : public Stage {
public:
    HeadlessStage()
    {
        for (int index : {0, 1})
            fields_[static_cast<std::size_t>(index)] =
                std::make_unique<headless::ControlSurface>(form_, index == 0 ? u"A" : u"B", index);
        plain_ = &form_.addPlain(u"plain");
    }

    platform::ControlSurface& field(int index) override { return at(index); }
    void listen(int index, platform::EditBoxEvents& box, platform::SurfaceEvents& surface) override
    {
        at(index).connect(box, surface);
    }
    void destroyField(int index) override { fields_[static_cast<std::size_t>(index)].reset(); }
    void focus(int index) override { form_.focus(at(index)); }
    void focusPlain() override { form_.focus(*plain_); }
    void type(std::u16string_view text) override
    {
        for (const char16_t unit : text)
            form_.key(unit == u'\r' || unit == u'\b' ? headless::namedKey(unit) : headless::keyOf(unit));
    }
    void press(int virtualKey) override { form_.key(headless::namedKey(virtualKey)); }
    void pressTab(bool back) override { form_.tab(back); }
    void click(int index) override { form_.click(at(index)); }
    void doubleClick(int index) override { form_.doubleClick(at(index)); }
    void paste(std::u16string_view text) override { form_.paste(text); }
    void cut() override { form_.cut(); }
    void undo() override { form_.undo(); }
    void redo() override { form_.redo(); }
    void pointTo(int index) override { form_.pointTo(at(index)); }
    void clickButton(int index) override { at(index).clickButton(); }
    void settle() override {}
    void clickWidget(platform::Form& form, platform::WidgetId widget) override
    {
        static_cast<headless::WidgetForm&>(form).click(widget);
    }
    void typeInto(platform::Form& form, platform::WidgetId widget, char16_t unit) override
    {
        static_cast<headless::WidgetForm&>(form).type(widget, headless::keyOf(unit));
    }
    platform::Environment& environment() override { return machine_.environment; }
    platform::SettingsStore& settings() override { return machine_.settings; }
    platform::FormFactory& forms() override { return machine_.forms; }
    std::unique_ptr<platform::TooltipWindow> makeTooltip() override { return at(0).makeTooltip(); }
    std::u16string writableFile() override { return u"C:\\Log.txt"; }
    std::string logBytes(std::u16string_view path) override
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

} // namespace

std::unique_ptr<Stage> Stage::make()
{
    return std::make_unique<HeadlessStage>();
}

} // namespace vela::contract
