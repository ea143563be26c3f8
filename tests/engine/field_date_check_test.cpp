// The verdicts of the date check and the time check, their messages and the prompts they put back.
#include "engine/field/date_check.h"

#include <gtest/gtest.h>

namespace vela::engine {
namespace {

constexpr std::u16string_view incomplete = u"Data não foi totalmente preenchida.";
constexpr std::u16string_view wrongMonth = u"Mês informado incorretamente";
constexpr std::u16string_view wrongDay = u"Dia informado incorretamente";
constexpr std::u16string_view leapFebruary = u"Mês de fevereiro não pode ter mais de 29 dias";
constexpr std::u16string_view february = u"Mês de fevereiro neste ano não pode ter mais de 28 dias";

struct Row {
    const char* rule;
    std::u16string_view text;
    std::u16string_view message;   // empty: accepted
    std::u16string_view corrected; // empty: not corrected
    std::u16string_view format = u"dd/mm/yyyy";
    std::u16string_view mask = u"__/__/____";
    std::u16string_view prompt = u"_";
    int failure = 0;
};

TEST(DateCheck, Verdicts)
{
    const Row rows[] = {
        {"untouched", u"__/__/____", u"", u""},
        {"good", u"31/12/2024", u"", u""},
        {"a prompt inside", u"12/0_/2024", incomplete, u""},
        {"zeros", u"00/00/2024", u"", u""},
        {"leap", u"29/02/2024", u"", u""},
        {"every fourth year leaps", u"29/02/1900", u"", u""},
        {"leap, one too many", u"30/02/2024", leapFebruary, u"__/02/2024"},
        {"no leap year", u"29/02/2023", february, u"__/02/2023"},
        {"month", u"15/13/2024", wrongMonth, u"15/__/2024"},
        {"day", u"32/01/2024", wrongDay, u"__/01/2024"},
        {"month before day", u"99/99/2024", wrongMonth, u"99/__/2024"},
        {"day before February", u"32/02/2023", wrongDay, u"__/02/2023"},
        {"April: one digit goes", u"31/04/2024", u"Mês de abril só tem 30 dias", u"31/_4/2024"},
        {"June", u"31/06/2023", u"Mês de junho só tem 30 dias", u"31/_6/2023"},
        {"September", u"31/09/2024", u"Mês de setembro só tem 30 dias", u"31/_9/2024"},
        {"November: both digits go", u"31/11/2024", u"Mês de novembro só tem 30 dias", u"31/__/2024"},
        {"month first, capitals", u"13/01/2024", wrongMonth, u"__/01/2024", u"MM/DD/YYYY"},
        {"three digits of a month", u"100/01", wrongMonth, u"___/01", u"mmm/dd", u"___/__"},
        {"scattered digits", u"3-1-1-3", wrongMonth, u"3-__1-3", u"d-m-d-m"},
        {"no format, nothing to check", u"99/99/9999", u"", u"", u""},
        {"a text shorter than the format", u"31", u"", u""},
        {"a prompt in the first place only", u"_1/02/2024", incomplete, u"", u"dd/mm/yyyy", u"__/__/____", u"_", 13},
        {"a prompt in the first place, unread", u"_31/12", u"", u"", u"xdd/mm", u"___/__"},
        {"letters", u"ab/02/2024", incomplete, u"", u"dd/mm/yyyy", u"__/__/____", u"_", 13},
        {"a surrogate", u"\xD800\xD800/02/2024", incomplete, u"", u"dd/mm/yyyy", u"__/__/____", u"_", 13},
        {"beyond sixteen bits", u"01/01/32768", incomplete, u"", u"dd/mm/yyyyy", u"__/__/_____", u"_", 6},
        {"the sixteen bits used up", u"01/01/32767", u"", u"", u"dd/mm/yyyyy", u"__/__/_____", u"_"},
        {"a blank behind a digit", u"1 /02/2024", u"", u""},
        {"an empty prompt", u"32/01/2024", wrongDay, u"/01/2024", u"dd/mm/yyyy", u"__/__/____", u""},
    };
    for (const auto& row : rows) {
        std::u16string corrected;
        const auto verdict = checkDate(row.text, {row.mask, row.format, row.prompt, ptBr()}, corrected);
        EXPECT_EQ(verdict.accepted, row.message.empty()) << row.rule;
        EXPECT_EQ(verdict.message, row.message) << row.rule;
        EXPECT_EQ(verdict.corrected, !row.corrected.empty()) << row.rule;
        EXPECT_EQ(corrected, row.corrected) << row.rule;
        EXPECT_EQ(verdict.failure ? verdict.failure->number : 0, row.failure) << row.rule;
    }
}

TEST(DateCheck, Times)
{
    struct TimeRow {
        std::u16string_view text;
        bool accepted;
        std::u16string_view format = u"hh:nn";
        int failure = 0;
    };
    const TimeRow rows[] = {
        {u"__:__", false},
        {u"23:59", true},
        {u"24:00", false},
        {u"12:60", false},
        {u"1_:00", false},
        {u"23:59", true, u"HH:NN"},
        {u"10:20:60", false, u"hh:nn:ss"},
        {u"_1:00", false, u"hh:nn", 13},
        {u"99999:00", false, u"hhhhh:nn", 6},
    };
    for (const auto& row : rows) {
        const auto verdict = checkTime(row.text, {u"__:__", row.format, u"_", ptBr()});
        EXPECT_EQ(verdict.accepted, row.accepted) << testing::PrintToString(row.text);
        EXPECT_EQ(verdict.failure ? verdict.failure->number : 0, row.failure) << testing::PrintToString(row.text);
        EXPECT_TRUE(verdict.message.empty());
        EXPECT_FALSE(verdict.corrected);
    }
    EXPECT_TRUE(isTimeFormat(u"dd hh"));
    EXPECT_FALSE(isTimeFormat(u"HH:nn"));
}

} // namespace
} // namespace vela::engine
