// The calendar's date texts, dates from outside, and its keys.
#include "popups/calendar_keys.h"
#include "popups/grid_dates.h"

#include "engine/text/locale.h"

#include <gtest/gtest.h>

namespace vela::popups {
namespace {

using engine::CivilDate;

TEST(GridDates, DayFirstTexts)
{
    EXPECT_EQ(dayFirstText({2024, 3, 5}), u"05/03/2024");
    EXPECT_EQ(dayFirstText({100, 12, 31}), u"31/12/0100");
    EXPECT_EQ(tryReadDayFirst(u"29/02/2024"), (CivilDate{2024, 2, 29}));
    for (const char16_t* wrong : {u"", u"29/02/2023", u"00/01/2024", u"1/01/2024", u"01-01-2024", u"01/01/2024 ",
                                  u"01/13/2024", u"01/01/0099", u"٠١/01/2024"})
        EXPECT_FALSE(tryReadDayFirst(wrong).has_value());
}

TEST(GridDates, ValuesFromOutside)
{
    const engine::Date today = engine::makeDate({2024, 3, 15});
    struct Row {
        const char* name;
        engine::Value value;
        std::optional<CivilDate> portuguese;
        std::optional<CivilDate> english;
    };
    const Row rows[] = {
        {"text in the order of the locale", std::u16string(u"02/01/2024"), CivilDate{2024, 1, 2},
         CivilDate{2024, 2, 1}},
        {"time of day dropped", engine::Date{engine::makeDate({2020, 2, 29}).serial + 0.75}, CivilDate{2020, 2, 29},
         CivilDate{2020, 2, 29}},
        {"only a time", std::u16string(u"14:05"), CivilDate{1899, 12, 30}, CivilDate{1899, 12, 30}},
        {"number", std::int32_t{45000}, std::nullopt, std::nullopt},
        {"fraction", 45000.5, std::nullopt, std::nullopt},
        {"truth value", true, std::nullopt, std::nullopt},
        {"nothing", engine::Empty{}, std::nullopt, std::nullopt},
        {"a text that is a number", std::u16string(u"45000"), std::nullopt, std::nullopt},
        {"no such day", std::u16string(u"31/04/2024"), std::nullopt, std::nullopt},
        {"beyond the calendar", engine::Date{3e9}, std::nullopt, std::nullopt},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(tryReadDate(row.value, engine::ptBr(), today), row.portuguese) << row.name;
        EXPECT_EQ(tryReadDate(row.value, engine::enUs(), today), row.english) << row.name;
    }
}

TEST(CalendarKeys, MoveTheDay)
{
    struct Row {
        const char* name;
        int code;
        int shift;
        CivilDate from;
        std::optional<CivilDate> to;
    };
    const Row rows[] = {
        {"left over a month", 37, 0, {2024, 3, 1}, CivilDate{2024, 2, 29}},
        {"right over a year", 39, 0, {2023, 12, 31}, CivilDate{2024, 1, 1}},
        {"up a week", 38, 0, {2024, 3, 5}, CivilDate{2024, 2, 27}},
        {"down a week", 40, 0, {2024, 3, 27}, CivilDate{2024, 4, 3}},
        {"page up from the 31st", 33, 0, {2024, 3, 31}, CivilDate{2024, 2, 29}},
        {"page down over a year", 34, 0, {2024, 12, 15}, CivilDate{2025, 1, 15}},
        {"page up over a year", 33, 0, {2024, 1, 15}, CivilDate{2023, 12, 15}},
        {"control page down from a leap day", 34, 2, {2024, 2, 29}, CivilDate{2025, 2, 28}},
        {"home", 36, 0, {2024, 2, 17}, CivilDate{2024, 2, 1}},
        {"end", 35, 0, {2024, 2, 17}, CivilDate{2024, 2, 29}},
        {"alt down opens the list", 40, 4, {2024, 2, 17}, std::nullopt},
        {"control right is no key of its", 39, 2, {2024, 2, 17}, std::nullopt},
        {"a letter", 65, 0, {2024, 2, 17}, std::nullopt},
    };
    for (const Row& row : rows)
        EXPECT_EQ(movedByKey(row.from, row.code, row.shift), row.to) << row.name;
}

} // namespace
} // namespace vela::popups
