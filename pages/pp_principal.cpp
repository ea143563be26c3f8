// Loads, checks and writes the main page.
#include "pages/pp_principal.h"

#include "engine/error.h"
#include "engine/text/conversions.h"
#include "pages/key_filters.h"
#include "pages/layouts.h"
#include "pages/letters.h"
#include "pages/principal_rules.h"

#include <array>

namespace vela::pages {

namespace {

constexpr std::array<Field, 24> fields{{
    {u"TextType", u"cboTextType", Mapping::listIndex},
    {u"SimboloMonetario", u"txtSimboloMonetario"},
    {u"SimbolDecExib", u"cboDecimalExibicao", Mapping::listIndex},
    {u"SimbolDecRet", u"cboDecimalRetorno", Mapping::listIndex},
    {u"SimbolAgrupMilhar", u"cboSeparadorMilhar", Mapping::listIndex},
    {u"QtdCasasDec", u"txtQtdCasasDec", Mapping::number},
    {u"CorValorNeg", u"PicCorNegativa", Mapping::colour},
    {u"CorValorPos", u"PicCorPositiva", Mapping::colour},
    {u"AceitaNegativos", u"chkAceitaNegativos", Mapping::check},
    {u"InserirZeros", u"chkInserirZeros", Mapping::check},
    {u"DateFormat", u"cboFormatoData"},
    {u"FormatoExibData", u"txtFormatoExibData"},
    {u"FormatoRetornoData", u"cboDataRetorno"},
    {u"FormatoRetornoData02", u"cboDataRetorno02"},
    {u"FormatoRetornoData03", u"cboDataRetorno03"},
    {u"FormatoRetornoData04", u"cboDataRetorno04"},
    {u"MaskSomenteNumeros", u"chkMaskSomenteNumeros", Mapping::check},
    {u"Mask", u"txtMascara"},
    {u"MaskRules", u"txtMaskRules"},
    {u"PromptChar", u"txtPromptChar"},
    {u"tipoLetra", u"cboTipoLetra", Mapping::listIndex},
    {u"TextoLivre", u"chkTextoLivre", Mapping::check},
    {u"ShowButtonCalendario", u"chkShowButtonCalendario", Mapping::check},
    {u"ShowButtonCalculadora", u"chkShowButtonCalculadora", Mapping::check},
}};

// Oddity: TextType is written after MaskRules: a first apply that switches to Mascara loses the rules; existing forms
// were saved in this order.
constexpr std::array<std::u16string_view, 10> orderToMask{
    u"SimboloMonetario", u"SimbolDecExib", u"SimbolDecRet", u"SimbolAgrupMilhar", u"QtdCasasDec",
    u"InserirZeros",     u"CorValorNeg",   u"CorValorPos",  u"AceitaNegativos",   u"MaskSomenteNumeros"};
constexpr std::array<std::u16string_view, 13> orderAfterMask{u"MaskRules",
                                                             u"FormatoExibData",
                                                             u"FormatoRetornoData",
                                                             u"FormatoRetornoData02",
                                                             u"FormatoRetornoData03",
                                                             u"FormatoRetornoData04",
                                                             u"DateFormat",
                                                             u"PromptChar",
                                                             u"tipoLetra",
                                                             u"TextoLivre",
                                                             u"ShowButtonCalendario",
                                                             u"ShowButtonCalculadora",
                                                             u"TextType"};

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
    for (const Field& field : fields)
        if (field.mapping != Mapping::colour) // a swatch is changed by its palette alone
            page_.marksChanged(field.control);
    page_.marksChanged(u"lstLetrasPermitidas");
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

// The line that a failure names is the property's position in the order of reading, 1 to 25.
void ppPrincipal::load()
{
    int line = 0;
    failedLoad_.reset();
    try {
        for (const Field& field : fields) {
            ++line;
            page_.load(field);
        }
        ++line;
        const std::u16string letters = engine::toText(page_.object().get(u"CaractLiberados"), page_.locale());
        const bool freeTyping = page_.checked(u"chkTextoLivre");
        selectLetters(page_.items(u"lstLetrasPermitidas"), freeTyping ? std::u16string() : letters);
        followFreeTyping();
        fillMasks();
    } catch (const engine::Error& error) {
        failedLoad_ = error;
        failedLoad_->step = line;
        showFailedLoad();
    }
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
    write();
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

void ppPrincipal::write()
{
    page_.write(fields, orderToMask);
    const std::u16string mask = page_.text(u"txtMascara");
    page_.object().put(u"Mask", textType() == mascara ? prepareMask(mask, page_.text(u"txtPromptChar")) : mask);
    page_.write(fields, orderAfterMask);
    writeLetters();
}

void ppPrincipal::writeLetters()
{
    const bool freeTyping = page_.checked(u"chkTextoLivre");
    page_.object().put(u"CaractLiberados",
                       freeTyping ? std::u16string() : selectedLetters(page_.items(u"lstLetrasPermitidas")));
}

} // namespace vela::pages
