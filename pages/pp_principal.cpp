// Loads, checks and writes the main page.
#include "pages/pp_principal.h"

#include "engine/error.h"
#include "engine/text/conversions.h"
#include "pages/key_filters.h"
#include "pages/layouts.h"
#include "pages/letters.h"
#include "pages/principal_rules.h"

namespace vela::pages {

namespace {

constexpr std::u16string_view letterList = u"lstLetrasPermitidas";
constexpr int numerico = 1;
constexpr int data = 2;
constexpr int mascara = 3;

} // namespace

ppPrincipal::ppPrincipal(const PageServices& services, PageSite& site)
    : page_(principalLayout(), services, site),
      store_(services.settings, services.environment.clock, services.environment.locales)
{
    fillLetters(page_.items(u"lstLetrasPermitidas"));
    fillProfiles();
    page_.fieldsMarkChanged();
    page_.filterKeys(u"txtSimboloMonetario", symbolKey);
    page_.onClick(u"chkTextoLivre", [this] { followFreeTyping(); });
    page_.onClick(u"cmdfRetorno", [this] { testReturnFormat(); });
    bindHelp();
    bindPresets();
}

// --- loading

void ppPrincipal::open(std::span<PropertyObject* const> selection)
{
    page_.open(selection, [this] { load(); });
}

// The line that a failure names is the property's position in the order of reading, from 1 on.
void ppPrincipal::load()
{
    int line = 0;
    failedLoad_.reset();
    try {
        for (PageForm::Bound& field : page_.fields()) {
            ++line;
            if (field.field.control == letterList)
                loadLetters(field);
            else
                page_.load(field);
        }
        followFreeTyping();
        fillMasks();
    } catch (const engine::Error& error) {
        failedLoad_ = error;
        failedLoad_->step = line;
        showFailedLoad();
    }
}

void ppPrincipal::loadLetters(PageForm::Bound& field)
{
    const std::u16string letters = engine::toText(page_.read(field), page_.locale());
    selectLetters(page_.items(letterList), page_.checked(u"chkTextoLivre") ? std::u16string() : letters);
}

void ppPrincipal::followFreeTyping()
{
    page_.enable(u"lstLetrasPermitidas", !page_.checked(u"chkTextoLivre"));
}

// --- applying

bool ppPrincipal::apply()
{
    page_.requireLoaded();
    if (failedLoad_) {
        showFailedLoad();
        return false;
    }
    const int type = textType();
    if (type == numerico)
        checkSymbol();
    if (type == data && !acceptDateFormat())
        return false;
    page_.write([this](const PageForm::Bound& field) { return valueToWrite(field); });
    page_.putChanged(false);
    return true;
}

int ppPrincipal::textType()
{
    return page_.items(u"cboTextType").chosen();
}

void ppPrincipal::checkSymbol()
{
    if (page_.text(u"txtSimboloMonetario") != u";")
        return;
    page_.inform(u"Simbolo Agregado não pode ser ;");
    page_.putText(u"txtSimboloMonetario", {});
}

bool ppPrincipal::isDateFormatAccepted() const
{
    const DateFormatFault fault = checkDateFormat(page_.text(u"cboFormatoData"));
    if (fault == DateFormatFault::character)
        page_.inform(u"Caractere do formato de data inválido", u"Vela");
    return fault == DateFormatFault::none;
}

bool ppPrincipal::acceptDateFormat()
{
    if (isDateFormatAccepted())
        return true;
    page_.inform(u"Formato da Data inválido");
    page_.putText(u"cboFormatoData", u"dd/MM/yy");
    static_cast<void>(isDateFormatAccepted());
    page_.focus(u"cboFormatoData");
    return false;
}

engine::Value ppPrincipal::valueToWrite(const PageForm::Bound& field)
{
    if (field.field.control == u"txtMascara" && textType() == mascara)
        return prepareMask(page_.text(u"txtMascara"), page_.text(u"txtPromptChar"));
    if (field.field.control == letterList)
        return page_.checked(u"chkTextoLivre") ? std::u16string() : selectedLetters(page_.items(letterList));
    return page_.value(field);
}

} // namespace vela::pages
