// The neutral model of the month view: two combos, 42 day cells, the frame on the selected day, a counter of
// highlights. No window and no locale in here: texts are day first, "05/03/2024". Cell k stands in row k / 7 and column
// k % 7, column 0 is Sunday.
#pragma once

#include "engine/text/calendar_date.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vela::popups {

inline constexpr int cellCount = 42;
inline constexpr int firstYear = 1950;
inline constexpr int lastYear = 2050;

enum class DayRole { active, inactive }; // of the displayed month, of an adjacent one

struct DayCell {
    int day = 0; // 0: the caption is empty
    DayRole role = DayRole::active;
    // Index of the adjacent month the day belongs to: -1 December of the year before, 12 January of the next year.
    // Nothing for a day of the displayed month.
    // Oddity: leading days of a December view lead to December of the year before, because their tag is -1 too; scripts
    // and people find the date that this click gives.
    std::optional<int> tag;
    friend bool operator==(const DayCell&, const DayCell&) = default;
};

[[nodiscard]] std::u16string caption(const DayCell& cell); // "01".."31" or empty
[[nodiscard]] std::u16string tagText(const DayCell& cell); // "", "-1".."12"

class CalendarGrid {
public:
    explicit CalendarGrid(int highlightLimit) noexcept;

    // Today is selected unless a date is; draws the month of the selected date. Raises 13 for a selected text that is
    // no date.
    // Oddity: each IniciaCalendario appends the years 1950 to 2050 again; indexes that hosts hold stay right because
    // the list is never emptied.
    void initialise(engine::CivilDate today);
    // Puts the first year of the list that matches (none: the year stays), then the month; each put draws.
    void show();
    void select(std::u16string text); // draws nothing
    void select(engine::CivilDate date);
    [[nodiscard]] const std::u16string& selectedText() const noexcept { return selected_; }

    // The list indexes of CboMes and CboAno, -1 where nothing is selected. Every put draws, also of the index that
    // stands, unless the other combo has no selection. 380 outside the list.
    [[nodiscard]] int monthIndex() const noexcept { return monthIndex_; }
    [[nodiscard]] int yearIndex() const noexcept { return yearIndex_; }
    void putMonthIndex(int index);
    void putYearIndex(int index);
    [[nodiscard]] const std::vector<int>& years() const noexcept { return years_; }
    [[nodiscard]] std::u16string yearText() const; // empty where nothing is selected

    // The frame moves there, a tagged cell switches the month, the day is selected. 9 outside 0..41. While no year of
    // the list is chosen the date is the one that the cell stands for.
    void clickDay(int cell);

    [[nodiscard]] const std::array<DayCell, cellCount>& cells() const noexcept { return cells_; }
    [[nodiscard]] std::optional<engine::CivilDate> dateOf(int cell) const noexcept; // the day a cell stands for
    [[nodiscard]] int frameCell() const noexcept { return frameCell_; }             // -1: not placed yet

    // Oddity: highlighted dates are counted, not marked; hosts handle the refusal at the limit. False at the limit.
    [[nodiscard]] bool countHighlight() noexcept;
    [[nodiscard]] int highlightCount() const noexcept { return highlightCount_; }

private:
    void drawMonth(std::u16string_view anyDateOfIt);
    void drawChosenMonth();
    int fillMonth(int start);
    void fillPreviousMonth(int start);
    void fillNextMonth(int from);
    void tryPutYearIndex(int index);
    void followTag(int tag);
    void selectShown(engine::CivilDate date);

    std::array<DayCell, cellCount> cells_{};
    std::vector<int> years_;
    std::u16string selected_; // "dd/mm/yyyy", empty until initialised
    int monthIndex_ = -1;
    int yearIndex_ = -1;
    int drawnYear_ = 0; // of the month on show; 0: none
    int drawnMonth_ = 0;
    int frameCell_ = -1;
    short highlightCount_ = 0;
    short highlightLimit_ = 0;
};

// "Janeiro" .. "Dezembro", and "Dom" .. "Sáb".
[[nodiscard]] const std::array<std::u16string_view, 12>& monthNames() noexcept;
[[nodiscard]] const std::array<std::u16string_view, 7>& weekdayNames() noexcept;

} // namespace vela::popups
