// The layout of ppPrincipal: the text type above four tabs, numbers, dates, mask and typing.
#include "pages/layouts.h"

#include <array>

namespace vela::pages {

namespace {

using K = platform::WidgetKind;
using Items = std::u16string_view;

constexpr Items tabs[] = {u"Números", u"Datas", u"Máscara", u"Digitação"};
constexpr int numbers = 0;
constexpr int dates = 1;
constexpr int mask = 2;
constexpr int typing = 3;

constexpr Items textTypes[] = {u"0 - Texto", u"1 - Numerico", u"2 - Data / Hora", u"3 - Mascara"};
constexpr Items symbols[] = {u"Vazio", u"Ponto", u"Virgula"};
constexpr Items letterCases[] = {u"Livre", u"Somente Maisculas", u"Somente Minusculas", u"ProperCase (LostFocus)"};
constexpr Items displayFormats[] = {u"dd/MM/yy",   u"dd/MM/yyyy", u"dd-MM-yy",   u"dd-MM-yyyy", u"dd.MM.yy",
                                    u"dd.MM.yyyy", u"mm/dd/yyyy", u"yyyy/mm/dd", u"d/M/yy",     u"d/M/yyyy",
                                    u"d-M-yy",     u"d-M-yyyy",   u"d.M.yy",     u"d.M.yyyy",   u"yyyy-MM-dd",
                                    u"yyyy.MM.dd", u"hh:nn",      u"hh:nn:ss"};
constexpr Items returnFormats[] = {u"mm/dd/yyyy",        u"yyyy/mm/dd",     u"d/M/yy",     u"d/M/yyyy",
                                   u"dd/MM/yy",          u"dd/MM/yyyy",     u"d-M-yy",     u"d-M-yyyy",
                                   u"dd-MM-yy",          u"dd-MM-yyyy",     u"d.M.yy",     u"d.M.yyyy",
                                   u"dd.MM.yy",          u"dd.MM.yyyy",     u"yyyy-MM-dd", u"yyyy.MM.dd",
                                   u"dddd, d MMMM yyyy", u"d MMMM de yyyy", u"hh:nn",      u"hh:nn:ss"};

constexpr auto rows = std::to_array<platform::WidgetRow>({
    {K::label, u"lblTextType", -1, u"&Tipo do Texto", {180, 165, 1500, 225}},
    {K::dropDownList, u"cboTextType", -1, {}, {1740, 120, 2340, 315}, {}, textTypes},
    {K::tabStrip, u"tabPrincipal", -1, {}, {120, 540, 5360, 4740}, {}, tabs},

    {K::frame, u"fraSimbolos", -1, u"Símbolos", {240, 960, 5120, 2220}, {}, {}, numbers},
    {K::label, u"lblSimboloMonetario", -1, u"&Símbolo Monetário", {150, 345, 1800, 225}, u"fraSimbolos", {}, numbers},
    {K::textBox, u"txtSimboloMonetario", -1, {}, {2040, 300, 2340, 300}, u"fraSimbolos", {}, numbers},
    {K::button, u"cmdHelpSimboloDecimal", -1, u"?", {4560, 300, 330, 300}, u"fraSimbolos", {}, numbers},
    {K::label, u"lblDecimalExibicao", -1, u"Decimal de &Exibição", {150, 720, 1800, 225}, u"fraSimbolos", {}, numbers},
    {K::dropDownList, u"cboDecimalExibicao", -1, {}, {2040, 675, 2340, 315}, u"fraSimbolos", symbols, numbers},
    {K::button, u"cmdHelpDecimalExibicao", -1, u"?", {4560, 675, 330, 300}, u"fraSimbolos", {}, numbers},
    {K::label, u"lblDecimalRetorno", -1, u"Decimal de &Retorno", {150, 1095, 1800, 225}, u"fraSimbolos", {}, numbers},
    {K::dropDownList, u"cboDecimalRetorno", -1, {}, {2040, 1050, 2340, 315}, u"fraSimbolos", symbols, numbers},
    {K::button, u"cmdHelpDecimalRetorno", -1, u"?", {4560, 1050, 330, 300}, u"fraSimbolos", {}, numbers},
    {K::label, u"lblSeparadorMilhar", -1, u"Separador de Mi&lhar", {150, 1470, 1800, 225}, u"fraSimbolos", {}, numbers},
    {K::dropDownList, u"cboSeparadorMilhar", -1, {}, {2040, 1425, 2340, 315}, u"fraSimbolos", symbols, numbers},
    {K::button, u"cmdHelpSeparadorMilhar", -1, u"?", {4560, 1425, 330, 300}, u"fraSimbolos", {}, numbers},
    {K::label, u"lblQtdCasasDec", -1, u"&Casas Decimais", {150, 1845, 1800, 225}, u"fraSimbolos", {}, numbers},
    {K::textBox, u"txtQtdCasasDec", -1, {}, {2040, 1800, 600, 300}, u"fraSimbolos", {}, numbers},

    {K::frame, u"fraValores", -1, u"Valores", {240, 3240, 5120, 1890}, {}, {}, numbers},
    {K::label, u"lblCorNegativa", -1, u"Cor do Valor &Negativo", {150, 345, 1800, 225}, u"fraValores", {}, numbers},
    {K::swatch, u"PicCorNegativa", -1, {}, {2040, 300, 600, 285}, u"fraValores", {}, numbers},
    {K::label, u"lblCorPositiva", -1, u"Cor do Valor &Positivo", {150, 705, 1800, 225}, u"fraValores", {}, numbers},
    {K::swatch, u"PicCorPositiva", -1, {}, {2040, 660, 600, 285}, u"fraValores", {}, numbers},
    {K::checkBox, u"chkAceitaNegativos", -1, u"&Aceita Negativos", {150, 1065, 3600, 255}, u"fraValores", {}, numbers},
    {K::checkBox,
     u"chkInserirZeros",
     -1,
     u"&Inserir Zeros à Direita",
     {150, 1440, 3600, 255},
     u"fraValores",
     {},
     numbers},
    {K::button, u"CmdHelpColocarZeros", -1, u"?", {4560, 1410, 330, 300}, u"fraValores", {}, numbers},

    {K::frame, u"fraExibicao", -1, u"Exibição", {240, 960, 5120, 1140}, {}, {}, dates},
    {K::label, u"lblFormatoData", -1, u"&Formato da Data", {150, 345, 1800, 225}, u"fraExibicao", {}, dates},
    {K::comboBox, u"cboFormatoData", -1, {}, {2040, 300, 2340, 315}, u"fraExibicao", displayFormats, dates},
    {K::label, u"lblFormatoExibData", -1, u"Te&xto Inicial", {150, 735, 1800, 225}, u"fraExibicao", {}, dates},
    {K::textBox, u"txtFormatoExibData", -1, {}, {2040, 690, 2340, 300}, u"fraExibicao", {}, dates},
    {K::button, u"CmdHelpFormatoMascara", -1, u"?", {4560, 690, 330, 300}, u"fraExibicao", {}, dates},

    {K::frame, u"fraFormatosRetorno", -1, u"Formatos de Retorno", {240, 2190, 5120, 1890}, {}, {}, dates},
    {K::label, u"lblDataRetorno", -1, u"P&rimeiro  Tipo", {150, 345, 1800, 225}, u"fraFormatosRetorno", {}, dates},
    {K::comboBox, u"cboDataRetorno", -1, {}, {2040, 300, 2340, 315}, u"fraFormatosRetorno", returnFormats, dates},
    {K::button, u"cmdfRetorno", -1, u"?", {4560, 300, 330, 300}, u"fraFormatosRetorno", {}, dates},
    {K::label, u"lblDataRetorno02", -1, u"&Segundo Tipo", {150, 720, 1800, 225}, u"fraFormatosRetorno", {}, dates},
    {K::comboBox, u"cboDataRetorno02", -1, {}, {2040, 675, 2340, 315}, u"fraFormatosRetorno", returnFormats, dates},
    {K::label, u"lblDataRetorno03", -1, u"Ter&ceiro  Tipo", {150, 1095, 1800, 225}, u"fraFormatosRetorno", {}, dates},
    {K::comboBox, u"cboDataRetorno03", -1, {}, {2040, 1050, 2340, 315}, u"fraFormatosRetorno", returnFormats, dates},
    {K::label, u"lblDataRetorno04", -1, u"&Quarto Tipo", {150, 1470, 1800, 225}, u"fraFormatosRetorno", {}, dates},
    {K::comboBox, u"cboDataRetorno04", -1, {}, {2040, 1425, 2340, 315}, u"fraFormatosRetorno", returnFormats, dates},

    {K::frame, u"fraMascara", -1, u"Máscara de Entrada", {240, 960, 5120, 2760}, {}, {}, mask},
    {K::checkBox,
     u"chkMaskSomenteNumeros",
     -1,
     u"Retornar &Somente os Números",
     {150, 300, 4740, 255},
     u"fraMascara",
     {},
     mask},
    {K::label, u"lblMascarasProntas", -1, u"Máscaras &Prontas", {150, 705, 1800, 225}, u"fraMascara", {}, mask},
    {K::comboBox, u"cboMascarasProntas", -1, {}, {2040, 660, 2850, 315}, u"fraMascara", {}, mask},
    {K::button,
     u"CmdADDNovoTipoMascara",
     -1,
     u"Salvar mascara na &lista",
     {2040, 1050, 2850, 345},
     u"fraMascara",
     {},
     mask},
    {K::label, u"lblMascara", -1, u"&Máscara", {150, 1560, 1800, 225}, u"fraMascara", {}, mask},
    {K::textBox, u"txtMascara", -1, {}, {2040, 1515, 2850, 300}, u"fraMascara", {}, mask},
    {K::label, u"lblMaskRules", -1, u"&Regras", {150, 1935, 1800, 225}, u"fraMascara", {}, mask},
    {K::textBox, u"txtMaskRules", -1, {}, {2040, 1890, 2340, 300}, u"fraMascara", {}, mask},
    {K::button, u"CmdRegrasMascara", -1, u"?", {4560, 1890, 330, 300}, u"fraMascara", {}, mask},
    {K::label, u"lblPromptChar", -1, u"Prompt &Char", {150, 2310, 1800, 225}, u"fraMascara", {}, mask},
    {K::textBox, u"txtPromptChar", -1, {}, {2040, 2265, 600, 300}, u"fraMascara", {}, mask},
    {K::button, u"cmdHelpPromptChar", -1, u"?", {4560, 2265, 330, 300}, u"fraMascara", {}, mask},

    {K::frame, u"fraLetras", -1, u"Letras", {240, 960, 2490, 1140}, {}, {}, typing},
    {K::dropDownList, u"cboTipoLetra", -1, {}, {150, 300, 2190, 315}, u"fraLetras", letterCases, typing},
    {K::checkBox, u"chkTextoLivre", -1, u"&Digitação Livre", {150, 750, 2190, 255}, u"fraLetras", {}, typing},
    {K::frame, u"fraBotoes", -1, u"Botão do Campo", {240, 2190, 2490, 1110}, {}, {}, typing},
    {K::checkBox,
     u"chkShowButtonCalendario",
     -1,
     u"Abre o C&alendário",
     {150, 315, 2190, 255},
     u"fraBotoes",
     {},
     typing},
    {K::checkBox,
     u"chkShowButtonCalculadora",
     -1,
     u"Abre a Calc&uladora",
     {150, 690, 2190, 255},
     u"fraBotoes",
     {},
     typing},
    {K::label, u"lblLetrasPermitidas", -1, u"Caracteres &Permitidos", {2850, 990, 2510, 225}, {}, {}, typing},
    {K::listBox, u"lstLetrasPermitidas", -1, {}, {2850, 1245, 2510, 2055}, {}, {}, typing},
    {K::frame, u"fraProfiles", -1, u"Profiles", {240, 3390, 5120, 1200}, {}, {}, typing},
    {K::label, u"LBLProfile", -1, u"&Meus Profiles", {150, 345, 1380, 225}, u"fraProfiles", {}, typing},
    {K::dropDownList, u"cboProfile", -1, {}, {1560, 300, 3330, 315}, u"fraProfiles", {}, typing},
    {K::button, u"CmdSalvarProfile", -1, u"&Salvar Profile", {150, 735, 1530, 345}, u"fraProfiles", {}, typing},
    {K::button, u"CmdCarregaProfile", -1, u"&Carregar Profile", {1770, 735, 1530, 345}, u"fraProfiles", {}, typing},
    {K::button, u"CmdExcluirProfile", -1, u"&Excluir Profile", {3390, 735, 1530, 345}, u"fraProfiles", {}, typing},
});

constexpr platform::FormLayout table{u"ppPrincipal", u"Principal", pageWidth, pageHeight, rows};

} // namespace

const platform::FormLayout& principalLayout() noexcept
{
    return table;
}

} // namespace vela::pages
