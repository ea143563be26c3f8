// The check of a date format, and what a reader calls the controls.
#include "pages/layouts.h"
#include "pages/principal_rules.h"
#include "pages/spoken_names.h"

#include <gtest/gtest.h>

#include <string>

namespace vela::pages {
namespace {

TEST(DateFormat, Check)
{
    struct Row {
        std::u16string_view format;
        DateFormatFault fault;
    };
    const Row rows[] = {
        {u"dd/MM/yyyy", DateFormatFault::none},    {u"hh:nn:ss", DateFormatFault::none},
        {u"D,m.y-h;n=s*:", DateFormatFault::none}, {u"d", DateFormatFault::none},
        {u"", DateFormatFault::noPlaceholder},     {u"//", DateFormatFault::noPlaceholder},
        {u"dd/mx/yy", DateFormatFault::character}, {u"dd mm", DateFormatFault::character}, // a blank is no separator
        {u"d\\m", DateFormatFault::character},     {u"w", DateFormatFault::character},
    };
    for (const Row& row : rows)
        EXPECT_EQ(checkDateFormat(row.format), row.fault) << std::string(row.format.begin(), row.format.end());
}

TEST(SpokenNames, ComeFromTheWordsBefore)
{
    struct Row {
        const platform::FormLayout& layout;
        std::u16string_view control;
        int index;
        std::u16string_view name;
    };
    const Row rows[] = {
        {principalLayout(), u"PicCorNegativa", -1, u"Cor do Valor Negativo"},
        {principalLayout(), u"cmdHelpSeparadorMilhar", -1, u"Ajuda: Separador de Milhar"},
        {principalLayout(), u"txtMascara", -1, u"Máscara"},
        {principalLayout(), u"cboTipoLetra", -1, u"Letras"}, // its group's
        {principalLayout(), u"lstLetrasPermitidas", -1, u"Caracteres Permitidos"},
        {principalLayout(), u"chkTextoLivre", -1, u""},
        {geralLayout(), u"PicCorFundoLost", -1, u"Cor de fundo"},
        {errosLayout(), u"CmdHelpErroAlert", -1, u"Ajuda: Exibir Mensagens ao ocorrer erro de digitação"},
        {calendarioLayout(), u"PicCorCalendario", 5, u"Cor das Bordas"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(spokenName(row.layout, platform::findWidget(row.layout, row.control, row.index)), row.name);
}

} // namespace
} // namespace vela::pages
