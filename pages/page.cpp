// The five pages by kind and by name.
#include "pages/page.h"

#include "pages/layouts.h"
#include "pages/pp_calendario.h"
#include "pages/pp_erros.h"
#include "pages/pp_fonte.h"
#include "pages/pp_geral.h"
#include "pages/pp_principal.h"

#include <algorithm>
#include <array>

namespace vela::pages {

std::span<const PageKind> pageKinds() noexcept
{
    static constexpr std::array kinds{PageKind::ppPrincipal, PageKind::ppGeral, PageKind::ppErros, PageKind::ppFonte,
                                      PageKind::ppCalendario};
    return kinds;
}

const platform::FormLayout& pageLayout(PageKind kind) noexcept
{
    switch (kind) {
    case PageKind::ppPrincipal: return principalLayout();
    case PageKind::ppGeral: return geralLayout();
    case PageKind::ppErros: return errosLayout();
    case PageKind::ppFonte: return fonteLayout();
    case PageKind::ppCalendario: return calendarioLayout();
    }
    return principalLayout();
}

std::optional<PageKind> findPageKind(std::u16string_view name) noexcept
{
    for (const PageKind kind : pageKinds())
        if (pageLayout(kind).name == name)
            return kind;
    return std::nullopt;
}

std::unique_ptr<Page> makePage(PageKind kind, const PageServices& services, PageSite& site)
{
    switch (kind) {
    case PageKind::ppPrincipal: return std::make_unique<ppPrincipal>(services, site);
    case PageKind::ppGeral: return std::make_unique<ppGeral>(services, site);
    case PageKind::ppErros: return std::make_unique<ppErros>(services, site);
    case PageKind::ppFonte: return std::make_unique<ppFonte>(services, site);
    case PageKind::ppCalendario: return std::make_unique<ppCalendario>(services, site);
    }
    return nullptr;
}

void Page::focus(platform::WidgetId control)
{
    focusControl(form(), layout(), control);
}

void focusControl(platform::Form& form, const platform::FormLayout& layout, platform::WidgetId control)
{
    const int tab = layout.rows[static_cast<std::size_t>(control.value)].tab;
    const auto strip = std::ranges::find(layout.rows, platform::WidgetKind::tabStrip, &platform::WidgetRow::kind);
    if (tab >= 0 && strip != layout.rows.end())
        form.items(platform::findWidget(layout, strip->name)).choose(tab);
    form.focus(control);
}

} // namespace vela::pages
