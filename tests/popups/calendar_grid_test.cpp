// The month view against an independent calendar, and the table of its clicks.
#include "popups/calendar_grid.h"

#include "popups/grid_dates.h"

#include <gtest/gtest.h>

#include <string>

namespace vela::popups {
namespace {

constexpr int limit = 1000;

// Zeller's congruence, 0 Sunday .. 6 Saturday: shares nothing with the engine's dates.
int firstWeekday(int year, int month)
{
    const int m = month < 3 ? month + 12 : month;
    const int y = month < 3 ? year - 1 : year;
    const int h = (1 + 13 * (m + 1) / 5 + y % 100 + y % 100 / 4 + y / 100 / 4 + 5 * (y / 100)) % 7; // 0 Saturday
    return (h + 6) % 7;
}

int lengthOf(int year, int month)
{
    if (month == 2)
        return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0 ? 29 : 28;
    constexpr int lengths[] = {31, 0, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return lengths[month - 1];
}

CalendarGrid shown(engine::CivilDate date)
{
    CalendarGrid grid(limit);
    grid.initialise(date);
    grid.show();
    return grid;
}

// "29/3" is 29 with tag 3, "01" is 1 of the displayed month.
std::string text(const DayCell& cell)
{
    const std::u16string day = caption(cell);
    const std::u16string tag = tagText(cell);
    return std::string(day.begin(), day.end()) + (tag.empty() ? "" : "/" + std::string(tag.begin(), tag.end()));
}

std::string narrow(const std::u16string& wide)
{
    return {wide.begin(), wide.end()};
}

std::string expectedCell(int year, int month, int cell)
{
    const int start = firstWeekday(year, month);
    const int length = lengthOf(year, month);
    const auto two = [](int day) { return std::string(day < 10 ? "0" : "") + std::to_string(day); };
    if (cell < start) {
        const int before = month == 1 ? lengthOf(year - 1, 12) : lengthOf(year, month - 1);
        const std::string tag = month == 1 || month == 12 ? "-1" : std::to_string(month - 2);
        return two(before - (start - 1 - cell)) + "/" + tag;
    }
    if (cell < start + length)
        return two(cell - start + 1);
    return two(cell - start - length + 1) + "/" + std::to_string(month);
}

TEST(CalendarGrid, EveryMonthOfTheListAgainstAnIndependentCalendar)
{
    CalendarGrid grid = shown({2000, 1, 1});
    int cellsCompared = 0;
    for (int year = firstYear; year <= lastYear; ++year) {
        grid.putYearIndex(year - firstYear);
        for (int month = 1; month <= 12; ++month) {
            grid.putMonthIndex(month - 1);
            for (int cell = 0; cell < cellCount; ++cell, ++cellsCompared) {
                const DayCell& drawn = grid.cells()[static_cast<std::size_t>(cell)];
                ASSERT_EQ(text(drawn), expectedCell(year, month, cell)) << year << "-" << month << " cell " << cell;
                ASSERT_EQ(drawn.role == DayRole::inactive, drawn.tag.has_value());
                ASSERT_EQ(grid.dateOf(cell), addDays({year, month, 1}, cell - firstWeekday(year, month)));
            }
        }
    }
    EXPECT_EQ(cellsCompared, 101 * 12 * 42);
}

TEST(CalendarGrid, EveryDayOfTheListIsFramedWhenItIsSelected)
{
    CalendarGrid grid = shown({1950, 1, 1});
    for (engine::CivilDate date{1950, 1, 1}; date.year <= lastYear; date = addDays(date, 1)) {
        grid.select(date);
        grid.show();
        ASSERT_EQ(grid.frameCell(), firstWeekday(date.year, date.month) + date.day - 1) << narrow(grid.selectedText());
        ASSERT_EQ(grid.dateOf(grid.frameCell()), date);
    }
}

struct Click {
    const char* name;
    engine::CivilDate shown;
    int cell;
    const char* selected;
    int month; // CboMes.ListIndex afterwards
    int year;  // shown afterwards
    int frame;
};

TEST(CalendarGrid, AClickSelectsAndSwitches)
{
    const Click rows[] = {
        {"day of the month", {2024, 3, 15}, 5, "01/03/2024", 2, 2024, 5},
        {"leading cell of March", {2024, 3, 15}, 4, "29/02/2024", 1, 2024, 32},
        {"trailing cell of February", {2024, 2, 10}, 33, "01/03/2024", 2, 2024, 5},
        {"leading cell of January", {2024, 1, 10}, 0, "31/12/2023", 11, 2023, 35},
        {"trailing cell of December", {2023, 12, 10}, 36, "01/01/2024", 0, 2024, 1},
        {"leading cell of December goes a year back", {2023, 12, 10}, 0, "26/12/2022", 11, 2022, 29},
        {"January 1950 begins with its Sunday", {1950, 1, 10}, 0, "01/01/1950", 0, 1950, 0},
        {"November 1950 from December", {1950, 12, 10}, 0, "26/12/1950", 11, 1950, 30},
        {"December 2050: the month switches, the year stays", {2050, 12, 10}, 41, "07/01/2050", 0, 2050, 12}};
    for (const Click& row : rows) {
        SCOPED_TRACE(row.name);
        CalendarGrid grid = shown(row.shown);
        grid.clickDay(row.cell);
        EXPECT_EQ(narrow(grid.selectedText()), row.selected);
        EXPECT_EQ(grid.monthIndex(), row.month);
        EXPECT_EQ(narrow(grid.yearText()), std::to_string(row.year));
        EXPECT_EQ(grid.frameCell(), row.frame);
    }
}

TEST(CalendarGrid, LeadingCellOfJanuary1951LeavesToTheListsFirstYearAndNoFurther)
{
    CalendarGrid grid = shown({1951, 1, 10}); // Monday: cell 0 is 31 December 1950
    grid.clickDay(0);
    EXPECT_EQ(narrow(grid.selectedText()), "31/12/1950");
    grid.clickDay(0); // 26 November, by its tag December of the year before: 1949 is not in the list
    EXPECT_EQ(narrow(grid.selectedText()), "26/12/1950");
}

TEST(CalendarGrid, ASecondRunOfYearsLiesBeyondTheFirst)
{
    CalendarGrid grid = shown({2050, 12, 10});
    grid.initialise({2050, 12, 10});
    grid.show();
    ASSERT_EQ(grid.years().size(), 202U);
    ASSERT_EQ(grid.yearIndex(), 100) << "the first matching year is chosen";
    grid.clickDay(41);
    EXPECT_EQ(narrow(grid.selectedText()), "07/01/1950") << "the list goes on with 1950";
    EXPECT_EQ(grid.yearIndex(), 101);
}

TEST(CalendarGrid, WithoutAChosenYearTheFirstDrawingStands)
{
    CalendarGrid grid = shown({2060, 5, 20});
    EXPECT_EQ(grid.yearIndex(), -1);
    EXPECT_EQ(grid.monthIndex(), 4);
    EXPECT_EQ(text(grid.cells()[6]), "01") << "May 2060 begins on a Saturday";
    EXPECT_EQ(grid.frameCell(), 25);
    grid.putMonthIndex(0); // draws nothing
    EXPECT_EQ(text(grid.cells()[6]), "01");
    grid.clickDay(6);
    EXPECT_EQ(narrow(grid.selectedText()), "01/05/2060") << "the date of the cell, no half one";
    grid.clickDay(41);
    EXPECT_EQ(narrow(grid.selectedText()), "05/06/2060");
    EXPECT_EQ(grid.monthIndex(), 5);
    EXPECT_EQ(grid.frameCell(), 6) << "June 2060 begins on a Tuesday";
    grid.putYearIndex(74);
    EXPECT_EQ(text(grid.cells()[6]), "01") << "June 2024 begins on a Saturday";
}

} // namespace
} // namespace vela::popups
