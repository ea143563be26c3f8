// What `Value` answers by type and scheme, its failures, and the texts that puts write.
#include "engine/field/field_value.h"

#include "engine/text/calendar_date.h"
#include "field_text.h"

#include <functional>
#include <gtest/gtest.h>

namespace vela::engine {
namespace {

FieldSettings base(TipoText type, const Locale& locale = ptBr())
{
    FieldSettings settings{.locale = locale};
    settings.textType = type;
    settings.promptChar = u"_";
    settings.today = makeDate({2024, 6, 15});
    return settings;
}

FieldSettings number(std::u16string_view returned = u",", std::u16string_view delimiter = u"")
{
    auto settings = base(TipoText::Numerico);
    settings.displayDecimal = u",";
    settings.grouping = u".";
    settings.returnDecimal = returned;
    settings.decimals = 2;
    settings.delimiter = delimiter;
    settings.currencySymbol = u"R$ ";
    return settings;
}

FieldSettings date(std::u16string_view format = u"dd/mm/yyyy", std::u16string_view delimiter = u"")
{
    auto settings = base(TipoText::Data);
    settings.dateFormat = format;
    settings.mask = u"__/__/____";
    settings.emptyDate = u"__/__/____";
    settings.returnDateFormat = u"yyyy-mm-dd";
    settings.delimiter = delimiter;
    return settings;
}

FieldSettings masked(std::u16string_view mask = u"(__) ____", std::u16string_view delimiter = u"")
{
    auto settings = base(TipoText::Mascara);
    settings.mask = mask;
    settings.delimiter = delimiter;
    return settings;
}

Value text(std::u16string_view content)
{
    return std::u16string(content);
}

TEST(FieldValue, Read)
{
    auto quoted = base(TipoText::TextoNormal);
    quoted.delimiter = u"#";
    auto other = base(static_cast<TipoText>(9));
    other.delimiter = u"#";
    auto deep = number();
    const std::u16string far = std::u16string(255, u'1') + u",5";
    const std::u16string near = std::u16string(254, u'1') + u",5";
    struct Row {
        const char* rule;
        FieldSettings settings;
        std::u16string_view text;
        Value value;
        int error = 0;
    };
    const Row rows[] = {
        {"free text between delimiters", quoted, u"abc", text(u"#abc#")},
        {"a type beyond the enumeration", other, u"abc", Empty{}},
        {"a number", number(), u"1.234,5", 1234.5},
        {"its symbol goes", number(), u"R$ 1.234,50", 1234.5},
        {"empty is zero", number(), u"", 0.0},
        {"no number is zero", number(), u"12x", 0.0},
        {"a point in pt-BR groups", number(u"."), u"1.234,5", 123450.0},
        {"too many decimals", number(), u"1,234", Empty{}, 5},
        {"a delimiter is no number", number(u",", u"#"), u"12,5", text(u"#12,50#"), 13},
        {"a symbol beyond eight bits", deep, far, Empty{}, 6},
        {"the last symbol within", deep, near, 1.1111111111111111e253},
        {"a date", date(), u"31/12/2024", text(u"2024-12-31")},
        {"a date between delimiters", date(u"dd/mm/yyyy", u"#"), u"31/12/2024", text(u"#2024-12-31#")},
        {"an untouched date", date(u"dd/mm/yyyy", u"#"), u"__/__/____", text(u"null")},
        {"an incomplete date", date(), u"31/12/202_", text(u"null")},
        {"a date that is none", date(), u"00/00/2024", Empty{}, 13},
        {"a time as typed", date(u"hh:nn", u"'"), u"23:59", text(u"'23:59'")},
        {"a wrong time", date(u"hh:nn", u"'"), u"24:59", text(u"null")},
        {"capital hours", date(u"HH:nn", u"'"), u"23:59", Empty{}},
        {"a mask", masked(u"(__) ____", u"'"), u"(11) 23__", text(u"'1123  '")},
        {"an untouched mask", masked(u"(__) ____", u"'"), u"(__) ____", text(u"null")},
    };
    for (const auto& row : rows) {
        std::u16string corrected;
        const auto reading = readValue(row.text, row.settings, corrected);
        EXPECT_EQ(reading.value, row.value) << row.rule;
        EXPECT_EQ(reading.error ? reading.error->number : 0, row.error) << row.rule;
        EXPECT_FALSE(reading.corrected) << row.rule;
    }
}

TEST(FieldValue, ReadingAWrongDateCorrectsIt)
{
    std::u16string corrected;
    auto reading = readValue(u"32/01/2024", date(), corrected);
    EXPECT_EQ(reading.value, text(u"null"));
    EXPECT_TRUE(reading.corrected);
    EXPECT_EQ(corrected, u"__/01/2024");
    EXPECT_FALSE(reading.checkFailure);

    reading = readValue(u"xx/01/2024", date(), corrected);
    EXPECT_EQ(reading.value, text(u"null"));
    EXPECT_FALSE(reading.corrected);
    ASSERT_TRUE(reading.checkFailure);
    EXPECT_EQ(reading.checkFailure->number, error_number::typeMismatch);
    EXPECT_FALSE(reading.error);
}

struct PutRow {
    const char* rule;
    FieldSettings settings;
    Value value;
    std::u16string_view text;
    int error = 0;
};

void check(const PutRow& row, const std::function<std::optional<std::u16string>()>& put)
{
    std::u16string written;
    int error = 0;
    try {
        written = put().value_or(u"(nothing)");
    } catch (const Error& raised) {
        error = raised.number;
    }
    EXPECT_EQ(written, row.text) << row.rule;
    EXPECT_EQ(error, row.error) << row.rule;
}

TEST(FieldValue, PutValue)
{
    auto withDefault = number();
    withDefault.defaultValue = u"7,125";
    auto open = date(u"");
    const std::u16string longMask(255, u'_');
    const PutRow rows[] = {
        {"free text", base(TipoText::TextoNormal), 12.5, u"12,5"},
        {"a number", number(), 1234.5, u"1234,50"},
        {"a number as text", number(), text(u"1.234,567"), u"1234,57"},
        {"true is minus one", number(), true, u"-1,00"},
        {"no number: the default", withDefault, text(u"abc"), u"7,13"},
        {"nothing: the default", withDefault, Empty{}, u"7,13"},
        {"a date is no number", withDefault, Date{45000}, u"7,13"},
        {"no number and no default", number(), text(u""), u"", 13},
        {"a date", date(), makeDate({2024, 2, 29}), u"29/02/2024"},
        {"a date as text", date(), text(u"1/2/24"), u"01/02/2024"},
        {"a serial", date(), std::int32_t{45000}, u"15/03/2023"},
        {"a serial as text", date(), text(u"45000"), u"15/03/2023"},
        {"a serial out of reach", date(), 1e300, u"", 6},
        {"a serial out of reach as text", date(), text(u"1E+300"), u"", 6},
        {"the template", date(), text(u"__/__/____"), u"__/__/____"},
        {"nothing: the template", date(), Empty{}, u"__/__/____"},
        {"the empty text: the template", date(), text(u""), u"__/__/____"},
        {"no date", date(), text(u"31/02/"), u"", 13},
        {"no format: a text as typed", open, text(u"1/2/24"), u"1/2/24"},
        {"no format: a date in general", open, makeDate({2024, 2, 1}), u"01/02/2024"},
        {"a mask", masked(), text(u"112345678"), u"(11) 2345"},
        {"nothing: the mask", masked(), Empty{}, u"(__) ____"},
        {"a mask too long to count", masked(longMask), text(u"1"), u"", 6},
        {"a type beyond the enumeration", base(static_cast<TipoText>(4)), text(u"1"), u"(nothing)"},
    };
    for (const auto& row : rows)
        check(row, [&] { return textForValue(row.value, row.settings); });
}

TEST(FieldValue, PutText)
{
    auto withDefault = number();
    withDefault.defaultValue = u"7,125";
    const PutRow rows[] = {
        {"a number stays unformatted", number(), text(u"1234,5"), u"1234,5"},
        {"no number: the default as it stands", withDefault, text(u"abc"), u"7,125"},
        {"no number and no default", number(), text(u"abc"), u""},
        {"a date", date(), text(u"1/2/24"), u"01/02/2024"},
        {"a mask", masked(), text(u"11"), u"(11) "},
        {"free text", base(TipoText::TextoNormal), text(u"a"), u"a"},
    };
    for (const auto& row : rows)
        check(row, [&] { return textForText(std::get<std::u16string>(row.value), row.settings); });
}

} // namespace
} // namespace vela::engine
