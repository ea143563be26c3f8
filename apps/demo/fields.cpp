// What the demonstration form shows.
#include "apps/demo/fields.h"

namespace vela::demo {

namespace {

// Enumerated settings by their stored numbers.
constexpr long numerico = 1, data = 2, mascara = 3;
constexpr long maisculo = 1, properCase = 3;
constexpr long ponto = 1, virgula = 2;
constexpr long flat = 0;
constexpr long warning = 2;

Setting on(const wchar_t* key)
{
    return {key, OleValue(true)};
}
Setting off(const wchar_t* key)
{
    return {key, OleValue(false)};
}
Setting number(const wchar_t* key, long value)
{
    return {key, OleValue(value)};
}
Setting text(const wchar_t* key, const wchar_t* value)
{
    return {key, OleValue(std::wstring_view(value))};
}

std::vector<Setting> money(const wchar_t* symbol)
{
    return {number(L"TextType", numerico),
            number(L"SimbolDecExib", virgula),
            number(L"SimbolDecRet", virgula),
            number(L"SimbolAgrupMilhar", ponto),
            number(L"QtdCasasDec", 2),
            text(L"SimboloMonetario", symbol),
            on(L"AceitaNegativos"),
            number(L"CorValorNeg", 0x0000C0),
            number(L"CorValorPos", 0x800000),
            on(L"ShowButtonCalculadora"),
            on(L"AutoSelect"),
            number(L"Alignment", 1)};
}

std::vector<Setting> date(const wchar_t* pattern, const wchar_t* layout)
{
    return {number(L"TextType", data),
            text(L"DateFormat", pattern),
            text(L"FormatoExibData", layout),
            text(L"FormatoRetornoData", L"yyyy-mm-dd"),
            text(L"Delimitador", L"'"),
            text(L"FormatoRetornoData02", L"mm/dd/yyyy"),
            text(L"Delimitador02", L"#"),
            text(L"FormatoRetornoData03", L"d/m/yy"),
            text(L"FormatoRetornoData04", L"dd.mm.yyyy"),
            text(L"Delimitador04", L"\""),
            number(L"Alignment", 2)};
}

std::vector<Setting> mask(const wchar_t* layout, const wchar_t* rules)
{
    return {number(L"TextType", mascara), text(L"Mask", layout), text(L"MaskRules", rules), number(L"Alignment", 2)};
}

std::vector<Setting> border(long style, long colour)
{
    return {number(L"BorderStyle", style), number(L"Appearance", flat), number(L"BorderColorLostfocus", colour),
            number(L"BorderColorGotfocus", 0x00C07000), number(L"BorderColor_MouseMove", 0x0000C000)};
}

std::vector<Setting> with(std::vector<Setting> settings, std::initializer_list<Setting> more)
{
    settings.insert(settings.end(), more);
    return settings;
}

std::vector<Setting> cashRegister()
{
    return with(money(L""), {on(L"MaskToNumeric")});
}

std::vector<FieldRow> textRows()
{
    return {
        {L"Nome", L"&Nome", 0, 1, false, {number(L"tipoLetra", properCase), on(L"AutoSelect")}},
        {L"Codigo",
         L"&Código (A a F, 0 a 9)",
         0,
         1,
         false,
         {number(L"tipoLetra", maisculo), off(L"TextoLivre"), text(L"CaractLiberados", L"ABCDEF0123456789-")}},
        {L"Placa", L"&Placa", 0, 1, false, mask(L"___-____", L"@@@-####")},
        {L"CPF", L"CP&F", 0, 1, false, mask(L"___.___.___-__", L"###.###.###-##")},
        {L"Senha", L"&Senha", 0, 1, false, {text(L"PasswordChar", L"*")}},
        {L"Notas", L"&Observações", 0, 4, false, {on(L"MultLine")}},
        {L"Inativo", L"Desabilitado", 0, 1, false, {off(L"Enabled"), text(L"Text", L"sem edição")}},
        {L"Bloqueado", L"Somente leitura", 0, 1, false,
         with(mask(L"__.___-___", L"##.###-###"), {on(L"Locked"), text(L"ValorPadrao", L"01310100")})},
    };
}

std::vector<FieldRow> valueRows()
{
    return {
        {L"Preco", L"P&reço", 1, 1, true, money(L"R$ ")},
        {L"Percentual", L"Percen&tual (%)", 1, 1, true, money(L"")},
        {L"Caixa", L"&Valor do caixa", 1, 1, true, cashRegister()},
        {L"Data", L"&Data", 1, 1, true, with(date(L"dd/mm/yyyy", L"__/__/____"), {on(L"ShowButtonCalendario")})},
        {L"Hora", L"&Hora", 1, 1, true, date(L"hh:nn", L"__:__")},
        {L"Emissao", L"&Emissão (hoje)", 1, 1, true,
         with(date(L"dd/mm/yyyy", L"__/__/____"), {text(L"ValorPadrao", L"%date")})},
    };
}

std::vector<FieldRow> lookRows()
{
    constexpr long blue = 0x00C07000, grey = 0x00909090;
    return {
        {L"Dica",
         L"Com d&ica ao entrar",
         2,
         1,
         false,
         {text(L"ToolTipGotFocus", L"Informe o apelido do cliente"), number(L"ToolTipGotFocusTipo", warning),
          text(L"NomeCampo", L"Apelido")}},
        {L"Vencimento", L"Com alerta de erro", 2, 1, false,
         with(date(L"dd/mm/yyyy", L"__/__/____"), {on(L"ErrorAlert"), number(L"Error_ForeColor", 0x0000FF)})},
        {L"Cores",
         L"Cores de foco e mouse",
         2,
         1,
         false,
         {number(L"BackColorGotFocus", 0x00D0FFFF), number(L"BackColorLostFocus", 0x00FFFFFF),
          number(L"BackColor_MouseMove", 0x00F0E0D0), number(L"ForeColor_GotFocus", 0x00800000)}},
        {L"Solida", L"Borda sólida", 2, 1, false, border(0, blue)},
        {L"Tracos", L"Borda de traços", 2, 1, false, border(1, grey)},
        {L"Pontos", L"Borda de pontos", 2, 1, false, border(2, grey)},
        {L"TracosPontos", L"Borda de traços e pontos", 2, 1, false, border(3, grey)},
        {L"Relevo", L"Borda 3D", 2, 1, false, {number(L"BorderStyle", 4)}},
        {L"XP", L"Borda XP", 2, 1, false, border(5, blue)},
    };
}

} // namespace

const wchar_t* const columnTitles[columnCount] = {L"Texto e máscaras", L"Números, datas e horas",
                                                  L"Aparência e avisos"};

const std::vector<FieldRow>& fieldRows()
{
    static const std::vector<FieldRow> rows = [] {
        std::vector<FieldRow> all = textRows();
        for (auto& part : {valueRows(), lookRows()})
            all.insert(all.end(), part.begin(), part.end());
        return all;
    }();
    return rows;
}

} // namespace vela::demo
