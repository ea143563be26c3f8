// Edits the navigation and focus settings and the four delimiters; nothing is validated.
#include "pages/pp_geral.h"

#include "engine/text/conversions.h"
#include "pages/layouts.h"

#include <cmath>

namespace vela::pages {

namespace {

std::u16string delimiterHelp(std::u16string_view today)
{
    std::u16string text = u"Neste campo vc informa qual texto ficará antes e depois da String quando for solicitado "
                          u"pela propriedade Vela1.Value\r\n\r\nExemplo:\r\nSe o texto na Vela1 estiver ( ";
    text += today;
    text += u" ) e o delimitador estiver como #, então o Vela1.Value retornará #";
    text += today;
    text += u"#";
    return text;
}

} // namespace

ppGeral::ppGeral(const PageServices& services, PageSite& site) : page_(geralLayout(), services, site)
{
    page_.check(u"optGotfocus", true);
    showGroup(true);
    page_.onClick(u"optGotfocus", [this] { showGroup(true); });
    page_.onClick(u"optLost", [this] { showGroup(false); });
    page_.onClick(u"cmdHelpDelimitador", [this] { showDelimiterHelp(); });
    page_.fieldsMarkChanged();
}

void ppGeral::open(std::span<PropertyObject* const> selection)
{
    page_.open(selection, [this] {
        for (PageForm::Bound& field : page_.fields())
            page_.load(field);
    });
}

bool ppGeral::apply()
{
    page_.requireLoaded();
    page_.write();
    page_.putChanged(false);
    return true;
}

// What stands in the hidden group comes to the front as if its option had been clicked.
void ppGeral::focus(platform::WidgetId control)
{
    if (!page_.form().visible(control))
        page_.check(page_.checked(u"optGotfocus") ? u"optLost" : u"optGotfocus", true);
    Page::focus(control);
}

void ppGeral::showGroup(bool gotFocus)
{
    page_.show(u"fraGotFocus", gotFocus);
    page_.show(u"fraLostFocus", !gotFocus);
}

void ppGeral::showDelimiterHelp() const
{
    const engine::Date today{std::floor(page_.services().environment.clock.now().serial)};
    page_.inform(delimiterHelp(engine::dateToText(today, page_.locale())));
}

} // namespace vela::pages
