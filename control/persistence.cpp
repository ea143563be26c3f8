// The stored keys as one table: key, default when missing, default passed when writing, and where the value lives.
#include "control/persistence.h"

#include "control/conversion.h"
#include "engine/error.h"

#include <algorithm>
#include <array>
#include <concepts>
#include <cstdint>
#include <limits>
#include <optional>
#include <type_traits>
#include <utility>

namespace vela::control {

namespace {

using Name = std::u16string_view;

// A default as the table writes it; its type is the row's.
struct Literal {
    std::int64_t number = 0; // also truth values and colours
    Name text;
    constexpr Literal() = default;
    template <std::integral T>
    constexpr Literal(T value) : number(value)
    {
    }
    constexpr Literal(const char16_t* value) : text(value) {}
};

struct Writing {
    enum class Default { asRead, number, emptyText, none } kind = Default::asRead;
    std::int32_t value = 0;
    static constexpr Writing number(std::int32_t value) { return {Default::number, value}; }
    static constexpr Writing emptyText() { return {Default::emptyText}; }
    static constexpr Writing always() { return {Default::none}; }
};

struct Row {
    Name key;
    PropertyType type = PropertyType::text;
    Literal missing;
    Writing writing;
    engine::Value (*get)(const StoredState&) = nullptr;
    void (*put)(StoredState&, const engine::Value&) = nullptr; // of the row's own type
    bool shared = false;                                       // lives in the process, not in the control
};

template <class Place>
constexpr Row row(Name key, Literal missing, Place, Writing writing = {})
{
    using T = std::remove_cvref_t<decltype(Place{}(std::declval<StoredState&>()))>;
    return {.key = key,
            .type = propertyTypeOf<T>(),
            .missing = missing,
            .writing = writing,
            .get = [](const StoredState& state) -> engine::Value { return toValue(Place{}(state)); },
            .put = [](StoredState& state, const engine::Value& value) { Place{}(state) = ownValue<T>(value); },
            .shared = key.starts_with(u"Calendar_")};
}

constexpr Row passwordRow(Name key)
{
    return {.key = key,
            .get = [](const StoredState& state) -> engine::Value {
                const char16_t shown = state.traits.passwordChar;
                return shown == 0 ? std::u16string() : std::u16string(1, shown);
            },
            .put =
                [](StoredState& state, const engine::Value& value) {
                    const auto& text = std::get<std::u16string>(value);
                    if (text.size() > 1)
                        engine::raise(engine::error_number::invalidPropertyValue);
                    state.traits.passwordChar = text.empty() ? u'\0' : text.front();
                }};
}

constexpr Row maxLengthRow(Name key)
{
    return {.key = key,
            .type = PropertyType::integer,
            .get = [](const StoredState& state) -> engine::Value { return std::int32_t{state.traits.maxLength}; },
            .put =
                [](StoredState& state, const engine::Value& value) {
                    const auto limit = std::get<std::int32_t>(value);
                    if (limit < 0)
                        engine::raise(engine::error_number::invalidPropertyValue);
                    state.traits.maxLength = limit;
                }};
}

// Whole points: the property is a byte.
constexpr Row fontSizeRow(Name key, std::int32_t missing)
{
    return {.key = key,
            .type = PropertyType::byte,
            .missing = missing,
            .writing = Writing::always(),
            .get = [](const StoredState& state) -> engine::Value {
                return std::int32_t{wholePoints(state.traits.font.size)};
            },
            .put = [](StoredState& state,
                      const engine::Value& value) { state.traits.font.size = std::get<std::int32_t>(value); }};
}

// In the order of reading.
// Oddity: the underline flag is saved as FontUnderLine, unlike the property; saved forms hold that key.
// Oddity: ToolTipGotFocusTipo = TTIconInfo reloads as TTNoIcon (what is left out when writing is not what is read for a
// missing key); files of both kinds are in use.
// Oddity: an empty FormatoExibData or DateFormat reloads as its default; forms without the key depend on it.
constexpr std::array<Row, 79> rows{{
    row(
        u"MultLine", 0, [](auto& s) -> auto& { return s.settings.multLine; }, Writing::number(11)),
    row(
        u"EsquemaRetornoAtual", 1, [](auto& s) -> auto& { return s.settings.esquemaRetornoAtual; }),
    row(
        u"ToolTipGotFocusTipo", 0, [](auto& s) -> auto& { return s.settings.toolTipGotFocusTipo; }, Writing::number(1)),
    row(
        u"BorderStyle", 0, [](auto& s) -> auto& { return s.settings.borderStyle; }),
    row(
        u"BorderColor_MouseMove", 0x0000C000, [](auto& s) -> auto& { return s.settings.borderColorMouseMove; }),
    row(
        u"BorderColorGotfocus", 0x00FFFFFF, [](auto& s) -> auto& { return s.settings.borderColorGotfocus; }),
    row(
        u"BorderColorLostfocus", 0x00FFFFFF, [](auto& s) -> auto& { return s.settings.borderColorLostfocus; }),
    row(
        u"ForeColor_GotFocus", 0, [](auto& s) -> auto& { return s.settings.foreColorGotFocus; }),
    row(
        u"ForeColor_LostFocus", 0, [](auto& s) -> auto& { return s.settings.foreColorLostFocus; }),
    row(
        u"BackColorGotFocus", 0x00FFFFFF, [](auto& s) -> auto& { return s.settings.backColorGotFocus; }),
    row(
        u"BackColorLostFocus", 0x00FFFFFF, [](auto& s) -> auto& { return s.settings.backColorLostFocus; }),
    row(
        u"BackColor_MouseMove", 0x00F7F7F7, [](auto& s) -> auto& { return s.settings.backColorMouseMove; }),
    row(
        u"TextType", 0, [](auto& s) -> auto& { return s.settings.textType; }),
    row(
        u"AutoSelect", 0, [](auto& s) -> auto& { return s.settings.autoSelect; }),
    row(
        u"EnterAsTab", 0, [](auto& s) -> auto& { return s.settings.enterAsTab; }),
    row(
        u"UpTAB", 1, [](auto& s) -> auto& { return s.settings.upTab; }),
    row(
        u"ErrorAlert", 0, [](auto& s) -> auto& { return s.settings.errorAlert; }),
    row(
        u"ErrorTextMessage", u"", [](auto& s) -> auto& { return s.settings.errorTextMessage; }),
    row(
        u"ErrorMsgCustom", 0, [](auto& s) -> auto& { return s.settings.errorMsgCustom; }),
    row(
        u"AceitaNegativos", 0, [](auto& s) -> auto& { return s.settings.aceitaNegativos; }),
    row(
        u"CaractLiberados", u"", [](auto& s) -> auto& { return s.settings.caractLiberados; }),
    row(
        u"IF_IsEmpty", u"", [](auto& s) -> auto& { return s.settings.ifIsEmpty; }),
    row(
        u"PromptChar", u"_", [](auto& s) -> auto& { return s.settings.promptChar; }),
    row(
        u"Mask", u"", [](auto& s) -> auto& { return s.settings.mask; }),
    row(
        u"MaskRules", u"", [](auto& s) -> auto& { return s.settings.maskRules; }),
    row(
        u"MaskSomenteNumeros", 0, [](auto& s) -> auto& { return s.settings.maskSomenteNumeros; }),
    row(
        u"MaskToNumeric", 0, [](auto& s) -> auto& { return s.settings.maskToNumeric; }),
    row(
        u"ShowButtonCalendario", 0, [](auto& s) -> auto& { return s.settings.showButtonCalendario; }),
    row(
        u"ShowButtonCalculadora", 0, [](auto& s) -> auto& { return s.settings.showButtonCalculadora; }),
    row(
        u"Error_ForeColor", 0x000000FF, [](auto& s) -> auto& { return s.settings.errorForeColor; }),
    row(
        u"AutoTAB", 0, [](auto& s) -> auto& { return s.settings.autoTab; }),
    row(
        u"Locked", 0, [](auto& s) -> auto& { return s.settings.locked; }),
    row(
        u"NomeCampo", u"", [](auto& s) -> auto& { return s.settings.nomeCampo; }),
    row(
        u"SimbolDecExib", 0, [](auto& s) -> auto& { return s.settings.simbolDecExib; }),
    row(
        u"SimbolDecRet", 0, [](auto& s) -> auto& { return s.settings.simbolDecRet; }),
    row(
        u"SimboloMonetario", u"", [](auto& s) -> auto& { return s.settings.simboloMonetario; }),
    row(
        u"SimbolAgrupMilhar", 0, [](auto& s) -> auto& { return s.settings.simbolAgrupMilhar; }),
    row(
        u"QtdCasasDec", 0, [](auto& s) -> auto& { return s.settings.qtdCasasDec; }),
    row(
        u"InserirZeros", 1, [](auto& s) -> auto& { return s.settings.inserirZeros; }),
    row(
        u"CorValorNeg", 0, [](auto& s) -> auto& { return s.settings.corValorNeg; }),
    row(
        u"CorValorPos", 0, [](auto& s) -> auto& { return s.settings.corValorPos; }),
    row(
        u"ErrorFocus", 0, [](auto& s) -> auto& { return s.settings.errorFocus; }),
    row(
        u"ErrorTextClear", 0, [](auto& s) -> auto& { return s.settings.errorTextClear; }),
    row(
        u"ValorPadrao", u"", [](auto& s) -> auto& { return s.settings.valorPadrao; }),
    row(
        u"FormatoExibData", u"__/__/____", [](auto& s) -> auto& { return s.settings.formatoExibData; },
        Writing::emptyText()),
    row(
        u"DateFormat", u"dd/mm/yyyy", [](auto& s) -> auto& { return s.settings.dateFormat; }, Writing::emptyText()),
    row(
        u"FormatoRetornoData", u"", [](auto& s) -> auto& { return s.settings.returnFormats[0]; }),
    row(
        u"FormatoRetornoData02", u"", [](auto& s) -> auto& { return s.settings.returnFormats[1]; }),
    row(
        u"FormatoRetornoData03", u"", [](auto& s) -> auto& { return s.settings.returnFormats[2]; }),
    row(
        u"FormatoRetornoData04", u"", [](auto& s) -> auto& { return s.settings.returnFormats[3]; }),
    row(
        u"TextoLivre", 1, [](auto& s) -> auto& { return s.settings.textoLivre; }),
    row(
        u"tipoLetra", 0, [](auto& s) -> auto& { return s.settings.tipoLetra; }),
    row(
        u"Delimitador", u"", [](auto& s) -> auto& { return s.settings.delimiters[0]; }),
    row(
        u"Delimitador02", u"", [](auto& s) -> auto& { return s.settings.delimiters[1]; }),
    row(
        u"Delimitador03", u"", [](auto& s) -> auto& { return s.settings.delimiters[2]; }),
    row(
        u"Delimitador04", u"", [](auto& s) -> auto& { return s.settings.delimiters[3]; }),
    row(
        u"Appearance", 1, [](auto& s) -> auto& { return s.settings.appearance; }),
    row(
        u"CampoRequerido", 0, [](auto& s) -> auto& { return s.settings.campoRequerido; }),
    row(
        u"MsgRequerido", u"", [](auto& s) -> auto& { return s.settings.msgRequerido; }),
    row(
        u"ToolTipGotFocus", u"", [](auto& s) -> auto& { return s.settings.toolTipGotFocus; }),
    row(
        u"Calendar_FormBackcolor", 0x00C0C0C0, [](auto& s) -> auto& { return s.colours.form; }),
    row(
        u"Calendar_BackColor", 0x80000005, [](auto& s) -> auto& { return s.colours.back; }),
    row(
        u"Calendar_ComboBackColor", 0x80000005, [](auto& s) -> auto& { return s.colours.combo; }),
    row(
        u"Calendar_ColorWeekDay", 0x00800000, [](auto& s) -> auto& { return s.colours.weekDay; }),
    row(
        u"Calendar_DayActive", 0x80000012, [](auto& s) -> auto& { return s.colours.dayActive; }),
    row(
        u"Calendar_DayInactive", 0x00808080, [](auto& s) -> auto& { return s.colours.dayInactive; }),
    row(
        u"Calendar_Selected", 0x00C0FFFF, [](auto& s) -> auto& { return s.colours.selected; }),
    row(
        u"BackColor", 0x00FFFFFF, [](auto& s) -> auto& { return s.back; }, Writing::always()),
    row(
        u"Text", u"", [](auto& s) -> auto& { return s.text; }),
    passwordRow(u"PasswordChar"),
    maxLengthRow(u"MaxLength"),
    row(
        u"Enabled", 1, [](auto& s) -> auto& { return s.traits.enabled; }),
    row(
        u"Alignment", 0, [](auto& s) -> auto& { return s.traits.alignment; }, Writing::always()),
    row(
        u"FontBold", 0, [](auto& s) -> auto& { return s.traits.font.bold; }, Writing::always()),
    fontSizeRow(u"FontSize", 8),
    row(
        u"FontName", u"MS Sans Serif", [](auto& s) -> auto& { return s.traits.font.name; }, Writing::always()),
    row(
        u"FontItalic", 0, [](auto& s) -> auto& { return s.traits.font.italic; }),
    row(
        u"FontUnderLine", 0, [](auto& s) -> auto& { return s.traits.font.underline; }),
    row(
        u"FontStrikethru", 0, [](auto& s) -> auto& { return s.traits.font.strikethrough; }),
}};

constexpr std::array<Name, rows.size()> writingOrder{u"EsquemaRetornoAtual",
                                                     u"ToolTipGotFocusTipo",
                                                     u"MultLine",
                                                     u"BorderStyle",
                                                     u"BorderColor_MouseMove",
                                                     u"BorderColorGotfocus",
                                                     u"BorderColorLostfocus",
                                                     u"Text",
                                                     u"BackColorGotFocus",
                                                     u"BackColorLostFocus",
                                                     u"BackColor_MouseMove",
                                                     u"PasswordChar",
                                                     u"MaxLength",
                                                     u"Enabled",
                                                     u"Appearance",
                                                     u"Alignment",
                                                     u"IF_IsEmpty",
                                                     u"Locked",
                                                     u"NomeCampo",
                                                     u"AceitaNegativos",
                                                     u"CaractLiberados",
                                                     u"ForeColor_LostFocus",
                                                     u"ForeColor_GotFocus",
                                                     u"FontBold",
                                                     u"FontSize",
                                                     u"FontName",
                                                     u"BackColor",
                                                     u"TextType",
                                                     u"AutoSelect",
                                                     u"EnterAsTab",
                                                     u"UpTAB",
                                                     u"AutoTAB",
                                                     u"ErrorFocus",
                                                     u"ErrorTextClear",
                                                     u"ValorPadrao",
                                                     u"ErrorAlert",
                                                     u"ErrorTextMessage",
                                                     u"ErrorMsgCustom",
                                                     u"Error_ForeColor",
                                                     u"PromptChar",
                                                     u"Mask",
                                                     u"MaskRules",
                                                     u"MaskSomenteNumeros",
                                                     u"MaskToNumeric",
                                                     u"ShowButtonCalendario",
                                                     u"ShowButtonCalculadora",
                                                     u"CampoRequerido",
                                                     u"MsgRequerido",
                                                     u"FontItalic",
                                                     u"FontUnderLine",
                                                     u"FontStrikethru",
                                                     u"SimboloMonetario",
                                                     u"SimbolDecExib",
                                                     u"SimbolDecRet",
                                                     u"SimbolAgrupMilhar",
                                                     u"QtdCasasDec",
                                                     u"InserirZeros",
                                                     u"CorValorNeg",
                                                     u"CorValorPos",
                                                     u"DateFormat",
                                                     u"FormatoExibData",
                                                     u"FormatoRetornoData",
                                                     u"FormatoRetornoData02",
                                                     u"FormatoRetornoData03",
                                                     u"FormatoRetornoData04",
                                                     u"tipoLetra",
                                                     u"TextoLivre",
                                                     u"Delimitador",
                                                     u"Delimitador02",
                                                     u"Delimitador03",
                                                     u"Delimitador04",
                                                     u"ToolTipGotFocus",
                                                     u"Calendar_FormBackcolor",
                                                     u"Calendar_ComboBackColor",
                                                     u"Calendar_BackColor",
                                                     u"Calendar_ColorWeekDay",
                                                     u"Calendar_DayActive",
                                                     u"Calendar_DayInactive",
                                                     u"Calendar_Selected"};

constexpr std::size_t rowOf(Name key)
{
    return static_cast<std::size_t>(std::ranges::find(rows, key, &Row::key) - rows.begin());
}

constexpr auto rowsInWritingOrder = [] {
    std::array<std::uint8_t, rows.size()> order{};
    std::ranges::transform(writingOrder, order.begin(), [](Name key) { return static_cast<std::uint8_t>(rowOf(key)); });
    return order;
}();
static_assert(std::ranges::max(rowsInWritingOrder) < rows.size(), "every key that is written is also read");

constexpr auto keys = [] {
    std::array<Name, rows.size()> names{};
    std::ranges::transform(rows, names.begin(), &Row::key);
    return names;
}();

engine::Value valueOf(PropertyType type, const Literal& literal)
{
    switch (type) {
    case PropertyType::boolean: return literal.number != 0;
    case PropertyType::text: return std::u16string(literal.text);
    default: return static_cast<std::int32_t>(static_cast<std::uint32_t>(literal.number));
    }
}

std::optional<engine::Value> writingDefault(const Row& row)
{
    switch (row.writing.kind) {
    case Writing::Default::asRead: return valueOf(row.type, row.missing);
    case Writing::Default::number: return row.writing.value;
    case Writing::Default::emptyText: return std::u16string();
    case Writing::Default::none: break;
    }
    return std::nullopt;
}

// True when the value has the property's own type already, as in most bags that a control has written.
bool isOwn(PropertyType type, const engine::Value& value) noexcept
{
    switch (type) {
    case PropertyType::boolean: return std::holds_alternative<bool>(value);
    case PropertyType::longInteger:
    case PropertyType::colour:
    case PropertyType::enumeration: return std::holds_alternative<std::int32_t>(value);
    case PropertyType::text: return std::holds_alternative<std::u16string>(value);
    default: return false;
    }
}

} // namespace

std::span<const std::u16string_view> storedKeys() noexcept
{
    return keys;
}

void readState(platform::PropertyBag& bag, const engine::Locale& locale, StoredState& state)
{
    std::size_t read = 0;
    try {
        for (; read < rows.size(); ++read) {
            const Row& row = rows[read];
            const engine::Value value = bag.read(row.key, valueOf(row.type, row.missing));
            if (isOwn(row.type, value))
                row.put(state, value);
            else
                row.put(state, convert(row.type, value, locale));
        }
    } catch (...) {
        for (; read < rows.size(); ++read)
            if (!rows[read].shared)
                rows[read].put(state, valueOf(rows[read].type, rows[read].missing));
        throw;
    }
}

void writeState(platform::PropertyBag& bag, const StoredState& state)
{
    for (const std::uint8_t index : rowsInWritingOrder)
        bag.write(rows[index].key, rows[index].get(state), writingDefault(rows[index]));
}

} // namespace vela::control
