// A property page: loaded from the first of the selected controls, written back to it when the host applies.
#pragma once

#include "pages/field.h"
#include "pages/property_object.h"
#include "platform/environment.h"
#include "platform/form.h"

#include <memory>
#include <optional>
#include <span>
#include <string_view>

namespace vela::pages {

enum class PageKind { ppPrincipal, ppGeral, ppErros, ppFonte, ppCalendario };

// What a page is given. All outlive it.
struct PageServices {
    platform::Environment& environment;
    platform::SettingsStore& settings;
    platform::FormFactory& forms;
    ColourChooser& colours;
    std::span<const Field> fields; // the page's, in the order in which it reads them
};

class Page {
public:
    virtual ~Page() = default;

    // The selection changed: loads from its first object; the others are never read or written. Raises what the
    // object raises (91 without an object), except on ppPrincipal, which shows it in a box. The page stays usable,
    // with what had been loaded by then. The objects outlive the selection; an object whose control has gone raises
    // an error of its own. Leaves the changed flag down.
    virtual void open(std::span<PropertyObject* const> selection) = 0;
    // Drops the selection and notifies nobody, because the host lets go of its controls.
    virtual void release() noexcept = 0;
    // Checks, then writes to the first object. False: the page refused and has said why; nothing was written, the
    // flag stands. Raises what a write raises: what had been written stays written, the flag stands. After a load that
    // failed it writes nothing and tells of that failure again, as the load did, until a load has succeeded.
    virtual bool apply() = 0;
    [[nodiscard]] virtual bool changed() const noexcept = 0;
    // Gives a control the focus, brought to the front first: its tab, its group.
    virtual void focus(platform::WidgetId control);
    [[nodiscard]] virtual platform::Form& form() noexcept = 0;
    [[nodiscard]] virtual const platform::FormLayout& layout() const noexcept = 0;
};

// Every page in the order in which a frame shows them.
[[nodiscard]] std::span<const PageKind> pageKinds() noexcept;
// The page's table: name "ppGeral", caption "Geral" (the tab of the frame), size and rows.
[[nodiscard]] const platform::FormLayout& pageLayout(PageKind kind) noexcept;
[[nodiscard]] std::optional<PageKind> findPageKind(std::u16string_view name) noexcept; // "ppGeral", as written
// Makes the page's form in `services.forms`; the site hears of every change of the changed flag.
// The host keeps the page, its services and its site alive while PageSite::runAct(), open() or apply() runs.
[[nodiscard]] std::unique_ptr<Page> makePage(PageKind kind, const PageServices& services, PageSite& site);
// Gives a control of the form the focus, with its tab brought to the front.
void focusControl(platform::Form& form, const platform::FormLayout& layout, platform::WidgetId control);

} // namespace vela::pages
