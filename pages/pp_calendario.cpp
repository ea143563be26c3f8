// Loads the seven calendar colours into their swatches and writes them back in the same order.
#include "pages/pp_calendario.h"

#include "pages/layouts.h"

namespace vela::pages {

ppCalendario::ppCalendario(const PageServices& services, PageSite& site) : page_(calendarioLayout(), services, site) {}

void ppCalendario::open(std::span<PropertyObject* const> selection)
{
    page_.open(selection, [this] {
        for (PageForm::Bound& field : page_.fields())
            page_.load(field);
    });
}

bool ppCalendario::apply()
{
    page_.requireLoaded();
    page_.write();
    page_.putChanged(false);
    return true;
}

} // namespace vela::pages
