// Opens and closes the page and the palette of a run.
#include "activex/page_fields.h"
#include "apps/console/page_commands.h"

namespace vela::console {

control::Vela& SelectedField::alive() const
{
    return needed(field_).control;
}

int SelectedField::find(std::u16string_view name)
{
    static_cast<void>(alive());
    const control::Property* const property = control::findProperty(name);
    if (property == nullptr)
        engine::raise(engine::error_number::unsupportedMember);
    return static_cast<int>(property - control::properties().data());
}

// The session may outlive the desk: the hook holds the selection weakly.
PageDesk::PageDesk(Session& session) : session_(session)
{
    session.beforeDestroy.push_back([selection = std::weak_ptr(selection_)](const Field& field) {
        if (const auto held = selection.lock())
            for (const auto& selected : *held)
                selected->forget(field);
    });
}

void PageDesk::openPage(pages::PageKind kind, std::span<Field* const> fields)
{
    closePage();
    headless::Machine& machine = session_.machine();
    page_ = pages::makePage(
        kind, {machine.environment, machine.settings, machine.forms, *this, activex::pageFields(kind)}, *this);
    std::vector<pages::PropertyObject*> objects;
    for (Field* const field : fields)
        objects.push_back(selection_->emplace_back(std::make_unique<SelectedField>(*field)).get());
    page_->open(objects);
}

void PageDesk::closePage()
{
    page_.reset();
    selection_->clear();
}

pages::Page& PageDesk::page() const
{
    return needed(page_);
}

headless::WidgetForm& PageDesk::pageForm() const
{
    return static_cast<headless::WidgetForm&>(page().form()); // made by the machine's forms
}

void PageDesk::openPalette()
{
    palette_.reset();
    palette_ = std::make_unique<pages::frmPaleta>(session_.machine().forms);
}

pages::frmPaleta& PageDesk::palette() const
{
    return needed(palette_);
}

headless::WidgetForm& PageDesk::paletteForm() const
{
    return static_cast<headless::WidgetForm&>(palette().form());
}

std::optional<engine::Colour> PageDesk::choose()
{
    return session_.machine().desktop.choosePalette();
}

} // namespace vela::console
