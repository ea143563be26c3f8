// Edits the six parts of the font; the preview is drawn only when asked for.
#include "pages/pp_fonte.h"

#include "engine/text/conversions.h"
#include "pages/key_filters.h"
#include "pages/layouts.h"

#include <algorithm>

namespace vela::pages {

namespace {

constexpr double largestSize = 255; // points; what FontSize can hold

} // namespace

ppFonte::ppFonte(const PageServices& services, PageSite& site) : page_(fonteLayout(), services, site)
{
    for (const std::u16string& name : services.environment.system.fontNames())
        page_.items(u"CboFontName").add(name);
    page_.onGotFocus(u"CboFontName", [this] { page_.services().environment.desktop.sendKeys(u"{F4}"); });
    page_.onClick(u"CboFontName", [this] { fontNameActed(); });
    page_.onChange(u"CboFontName", [this] { fontNameActed(); });
    page_.filterKeys(u"txtSize", digitOrBackspace);
    for (const PageForm::Bound& field : page_.fields())
        if (field.field.control != u"CboFontName")
            page_.marksChanged(field.control);
    page_.onClick(u"cmdTeste", [this] { showPreview(); });
}

void ppFonte::open(std::span<PropertyObject* const> selection)
{
    page_.open(selection, [this] {
        for (PageForm::Bound& field : page_.fields()) {
            page_.load(field);
            fontName_ = page_.text(u"CboFontName");
        }
    });
}

bool ppFonte::apply()
{
    page_.requireLoaded();
    page_.write();
    page_.putChanged(false);
    return true;
}

// Only a change of the text marks the page changed: choosing the font that is already there does not.
void ppFonte::fontNameActed()
{
    std::u16string name = page_.text(u"CboFontName");
    if (name == fontName_)
        return;
    fontName_ = std::move(name);
    page_.putChanged(true);
}

// Without a size the sample is shown in the size of the page's own text.
void ppFonte::showPreview()
{
    const double size = engine::leadingNumber(page_.text(u"txtSize"));
    const platform::FontDescription font{.name = page_.text(u"CboFontName"),
                                         .size = size > 0 ? std::min(size, largestSize) : page_.layout().fontSize,
                                         .bold = page_.checked(u"Negrito"),
                                         .italic = page_.checked(u"Italico"),
                                         .underline = page_.checked(u"Sublinhado"),
                                         .strikethrough = page_.checked(u"Cortado")};
    page_.form().putFont(page_.id(u"picTeste"), font);
    page_.putText(u"picTeste", u"Texto de Teste");
}

} // namespace vela::pages
