// Drawing a month into 42 cells, and what clicks and combo choices do to it.
#include "popups/calendar_grid.h"

#include "engine/error.h"
#include "engine/text/decimal_text.h"
#include "popups/grid_dates.h"

#include <algorithm>

namespace vela::popups {

namespace {

constexpr int december = 11; // list indexes
constexpr int january = 0;

} // namespace

std::u16string caption(const DayCell& cell)
{
    return cell.day == 0 ? std::u16string() : engine::decimalText(cell.day, 2);
}

std::u16string tagText(const DayCell& cell)
{
    return cell.tag ? engine::decimalText(*cell.tag) : std::u16string();
}

CalendarGrid::CalendarGrid(int highlightLimit) noexcept : highlightLimit_(static_cast<short>(highlightLimit)) {}

void CalendarGrid::initialise(engine::CivilDate today)
{
    if (selected_.empty())
        select(today);
    for (int year = firstYear; year <= lastYear; ++year)
        years_.push_back(year);
    drawMonth(selected_);
}

void CalendarGrid::show()
{
    const auto date = tryReadDayFirst(selected_);
    if (!date)
        engine::raise(engine::error_number::typeMismatch);
    const auto match = std::find(years_.begin(), years_.end(), date->year);
    if (match != years_.end())
        putYearIndex(static_cast<int>(match - years_.begin()));
    putMonthIndex(date->month - 1);
}

void CalendarGrid::select(std::u16string text)
{
    selected_ = std::move(text);
}

void CalendarGrid::select(engine::CivilDate date)
{
    selected_ = dayFirstText(date);
}

void CalendarGrid::putMonthIndex(int index)
{
    if (index < 0 || index >= static_cast<int>(monthNames().size()))
        engine::raise(engine::error_number::invalidPropertyValue);
    monthIndex_ = index;
    drawChosenMonth();
}

void CalendarGrid::putYearIndex(int index)
{
    if (index < 0 || index >= static_cast<int>(years_.size()))
        engine::raise(engine::error_number::invalidPropertyValue);
    yearIndex_ = index;
    drawChosenMonth();
}

std::u16string CalendarGrid::yearText() const
{
    return yearIndex_ < 0 ? std::u16string() : engine::decimalText(years_[static_cast<std::size_t>(yearIndex_)]);
}

void CalendarGrid::drawChosenMonth()
{
    if (monthIndex_ >= 0 && yearIndex_ >= 0)
        drawMonth(u"01/" + engine::decimalText(monthIndex_ + 1, 2) + u"/" + yearText());
}

// The order of the steps matters: a later one overwrites the cell that an earlier one filled beyond its month.
void CalendarGrid::drawMonth(std::u16string_view anyDateOfIt)
{
    cells_.fill({});
    if (anyDateOfIt.empty())
        return;
    const auto date = tryReadDayFirst(anyDateOfIt);
    if (!date)
        engine::raise(engine::error_number::typeMismatch);
    drawnYear_ = date->year;
    drawnMonth_ = date->month;
    const int start = engine::weekday({drawnYear_, drawnMonth_, 1}) - 1;
    const int tooMany = fillMonth(start);
    fillPreviousMonth(start);
    fillNextMonth(tooMany);
}

// Writes one cell too many: the day after the last of the month, which answers where the next month begins.
int CalendarGrid::fillMonth(int start)
{
    const auto selected = tryReadDayFirst(selected_);
    int cell = start;
    for (; cell < cellCount; ++cell) {
        const engine::CivilDate date{drawnYear_, drawnMonth_, cell - start + 1};
        cells_[static_cast<std::size_t>(cell)] = {date.day, DayRole::active, std::nullopt};
        if (date == selected)
            frameCell_ = cell;
        if (!engine::isValid(date))
            break;
    }
    return cell;
}

void CalendarGrid::fillPreviousMonth(int start)
{
    const int year = drawnMonth_ == 1 ? drawnYear_ - 1 : drawnYear_;
    const int month = drawnMonth_ == 1 ? 12 : drawnMonth_ - 1;
    const int index = drawnMonth_ - 1;
    const int tag = index == december ? -1 : index - 1;
    int day = engine::daysInMonth(year, month);
    for (int cell = start - 1; cell >= 0; --cell)
        cells_[static_cast<std::size_t>(cell)] = {day--, DayRole::inactive, tag};
}

void CalendarGrid::fillNextMonth(int from)
{
    int day = 1;
    for (int cell = from; cell < cellCount; ++cell)
        cells_[static_cast<std::size_t>(cell)] = {day++, DayRole::inactive, drawnMonth_};
}

void CalendarGrid::clickDay(int cell)
{
    if (cell < 0 || cell >= cellCount)
        engine::raise(engine::error_number::subscriptOutOfRange);
    const DayCell clicked = cells_[static_cast<std::size_t>(cell)];
    if (clicked.day == 0)
        return; // nothing has been drawn: no day to pick
    if (yearIndex_ < 0)
        return selectShown(*dateOf(cell));
    frameCell_ = cell;
    if (clicked.tag) {
        followTag(*clicked.tag);
        const auto sameDay = [&](const DayCell& other) { return other.day == clicked.day && !other.tag; };
        const auto found = std::find_if(cells_.begin(), cells_.end(), sameDay);
        if (found != cells_.end())
            frameCell_ = static_cast<int>(found - cells_.begin());
    }
    selected_ = caption(clicked) + u"/" + engine::decimalText(monthIndex_ + 1, 2) + u"/" + yearText();
}

// The month shown is outside the list's years, so the date is the one that the clicked cell stands for.
void CalendarGrid::selectShown(engine::CivilDate date)
{
    if (!engine::isValid(date))
        return;
    select(date);
    monthIndex_ = date.month - 1;
    drawMonth(selected_);
}

void CalendarGrid::followTag(int tag)
{
    if (tag == -1) {
        putMonthIndex(december);
        tryPutYearIndex(yearIndex_ - 1);
    } else if (tag == 12) {
        putMonthIndex(january);
        tryPutYearIndex(yearIndex_ + 1);
    } else {
        putMonthIndex(tag);
    }
}

// Outside the list the year stays as it is.
void CalendarGrid::tryPutYearIndex(int index)
{
    if (index >= 0 && index < static_cast<int>(years_.size()))
        putYearIndex(index);
}

std::optional<engine::CivilDate> CalendarGrid::dateOf(int cell) const noexcept
{
    if (cell < 0 || cell >= cellCount)
        return std::nullopt;
    const DayCell& at = cells_[static_cast<std::size_t>(cell)];
    if (at.day == 0)
        return std::nullopt;
    const engine::CivilDate first{drawnYear_, drawnMonth_, 1};
    engine::CivilDate date = first;
    if (at.role == DayRole::inactive)
        date = addMonths(first, cell < 7 ? -1 : 1);
    date.day = at.day;
    return date;
}

bool CalendarGrid::countHighlight() noexcept
{
    if (highlightCount_ >= highlightLimit_)
        return false;
    ++highlightCount_;
    return true;
}

const std::array<std::u16string_view, 12>& monthNames() noexcept
{
    static constexpr std::array<std::u16string_view, 12> names = {u"Janeiro",  u"Fevereiro", u"Março",    u"Abril",
                                                                  u"Maio",     u"Junho",     u"Julho",    u"Agosto",
                                                                  u"Setembro", u"Outubro",   u"Novembro", u"Dezembro"};
    return names;
}

const std::array<std::u16string_view, 7>& weekdayNames() noexcept
{
    static constexpr std::array<std::u16string_view, 7> names = {u"Dom", u"Seg", u"Ter", u"Qua",
                                                                 u"Qui", u"Sex", u"Sáb"};
    return names;
}

} // namespace vela::popups
