// Loads the seven calendar colours into their swatches and writes them back in the same order.
#include "pages/pp_calendario.h"

#include "pages/layouts.h"

#include <array>

namespace vela::pages {

namespace {

constexpr std::u16string_view swatch = u"PicCorCalendario";
constexpr std::array<Field, 7> fields{{
    {u"Calendar_BackColor", swatch, Mapping::colour, 0},
    {u"Calendar_ComboBackColor", swatch, Mapping::colour, 1},
    {u"Calendar_DayActive", swatch, Mapping::colour, 2},
    {u"Calendar_DayInactive", swatch, Mapping::colour, 3},
    {u"Calendar_ColorWeekDay", swatch, Mapping::colour, 4},
    {u"Calendar_FormBackcolor", swatch, Mapping::colour, 5},
    {u"Calendar_Selected", swatch, Mapping::colour, 6},
}};

} // namespace

ppCalendario::ppCalendario(const PageServices& services, PageSite& site) : page_(calendarioLayout(), services, site) {}

void ppCalendario::open(std::span<PropertyObject* const> selection)
{
    page_.open(selection, [this] {
        for (const Field& field : fields)
            page_.load(field);
    });
}

bool ppCalendario::apply()
{
    page_.requireLoaded();
    for (const Field& field : fields)
        page_.object().put(field.property, page_.value(field));
    page_.putChanged(false);
    return true;
}

} // namespace vela::pages
