// Dates: every day of the calendar, and locales whose own texts are read back.
#include "engine/error.h"
#include "engine/text/calendar_date.h"
#include "engine/text/conversions.h"

#include <gtest/gtest.h>

#include <string>

namespace vela::engine {
namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;

const Date today = makeDate({2026, 11, 21});

TEST(Calendar, EveryDayFollowsTheOneBefore)
{
    CivilDate expected{100, 1, 1};
    int day = weekday(expected);
    for (int serial = -657434; serial <= 2958465; ++serial) {
        const auto moment = momentOf({static_cast<double>(serial)});
        ASSERT_TRUE(moment.has_value());
        ASSERT_EQ(moment->date, expected) << serial;
        ASSERT_EQ(makeDate(expected).serial, serial);
        ASSERT_EQ(weekday(expected), day);
        day = day % 7 + 1;
        if (++expected.day > daysInMonth(expected.year, expected.month)) {
            expected = {expected.year + expected.month / 12, expected.month % 12 + 1, 1};
        }
    }
    EXPECT_FALSE(momentOf({-657435.0}).has_value());
    EXPECT_FALSE(momentOf({2958466.0}).has_value());
    EXPECT_FALSE(momentOf({std::numeric_limits<double>::quiet_NaN()}).has_value());
    EXPECT_EQ(weekday({2024, 2, 29}), 5);
    EXPECT_EQ(dayOfYear({2024, 12, 31}), 366);
    EXPECT_FALSE(isValid({2023, 2, 29}));
    EXPECT_FALSE(isValid({99, 1, 1}));
}

TEST(Calendar, EverySecondOfADay)
{
    for (const CivilDate date : {CivilDate{1899, 12, 29}, CivilDate{2024, 2, 29}, CivilDate{9999, 12, 31}}) {
        for (int second = 0; second < 86400; ++second) {
            const Moment moment{date, {second / 3600, second / 60 % 60, second % 60}};
            ASSERT_EQ(momentOf(makeDate(moment.date, moment.time)), moment);
        }
    }
    EXPECT_EQ(momentOf({-1.25}), (Moment{{1899, 12, 29}, {6, 0, 0}}));
    EXPECT_EQ(momentOf({1.9999999999}), (Moment{{1900, 1, 1}, {0, 0, 0}}));
    EXPECT_EQ(momentOf({2958465.9999999}), (Moment{{9999, 12, 31}, {23, 59, 59}}));
}

struct Row {
    std::u16string_view text;
    CivilDate date;
    TimeOfDay time = {};
};

constexpr CivilDate noDate{};

template <std::size_t count>
void expectRead(const Row (&rows)[count], const Locale& locale)
{
    for (const Row& row : rows) {
        SCOPED_TRACE(std::string(row.text.begin(), row.text.end()));
        const auto date = tryParseDate(row.text, locale, today);
        ASSERT_TRUE(date.has_value());
        EXPECT_EQ(momentOf(*date), (Moment{row.date, row.time}));
    }
}

// The pictures of a locale, its halves of the day, and texts in them.
struct Forms {
    std::u16string_view separator, shortDate, longTime, am, pm;
    std::u16string_view text; // of 1 February 2003 13:04:05
};

TEST(Dates, WrittenByALocaleAreReadByIt)
{
    const Forms rows[] = {
        {u".", u"dd.mm.yyyy", u"hh:nn:ss", u"", u"", u"01.02.2003 13:04:05"},
        {u".", u"dd.mm.yy", u"hh:nn:ss", u"", u"", u"01.02.03 13:04:05"},
        {u".", u"d.m.yyyy", u"h.nn.ss", u"", u"", u"1.2.2003 13.04.05"},
        {u". ", u"d. m. yyyy", u"h:nn:ss", u"", u"", u"1. 2. 2003 13:04:05"},
        {u". ", u"yyyy. mm. dd.", u"h:nn:ss", u"", u"", u"2003. 02. 01. 13:04:05"},
        {u".", u"d.mm.yyyy 'г.'", u"h:nn:ss 'ч.'", u"", u"", u"1.02.2003 г. 13:04:05 ч."},
        {u"-", u"yyyy-mm-dd", u"AM/PM h:nn:ss", u"오전", u"오후", u"2003-02-01 오후 1:04:05"},
        {u"/", u"dd/mm/yyyy", u"hh:nn:ss AM/PM", u"a. m.", u"p. m.", u"01/02/2003 01:04:05 p. m."},
        {u"-", u"yyyy-dd-mm", u"hh:nn:ss", u"", u"", u"2003-01-02 13:04:05"},
        {u"-", u"dd-mmm-yy", u"hh.nn.ss", u"", u"", u"01-fev-03 13.04.05"},
        {u" ", u"dddd d mmmm yyyy", u"h:nn:ss", u"", u"", u"sábado 1 fevereiro 2003 13:04:05"},
    };
    for (const Forms& row : rows) {
        Locale locale = ptBr();
        locale.dateSeparator = row.separator;
        locale.timeSeparator = row.longTime.find(u'.') < 4 ? u"." : u":";
        locale.shortDate = row.shortDate;
        locale.longTime = row.longTime;
        locale.am = row.am;
        locale.pm = row.pm;
        locale.dateOrder = row.shortDate[0] == u'y' ? DateOrder::yearMonthDay : DateOrder::dayMonthYear;
        EXPECT_EQ(dateToText(makeDate({2003, 2, 1}, {13, 4, 5}), locale), row.text);
        for (const double serial : {37653.0, 37653.5, 0.25, 0.75, 37653.54450231481, 46021.000011574074}) {
            const std::u16string text = dateToText({serial}, locale);
            SCOPED_TRACE(std::string(text.begin(), text.end()));
            const auto read = tryParseDate(text, locale, today);
            ASSERT_TRUE(read.has_value());
            EXPECT_EQ(momentOf(*read), momentOf({serial}));
        }
    }
    Locale german = ptBr();
    german.dateSeparator = u".";
    german.shortDate = u"dd.mm.yyyy";
    expectRead({{u"01.02.03", {2003, 2, 1}},
                {u"1.2.3 4:05", {2003, 2, 1}, {4, 5, 0}},
                {u"29.6", {2026, 6, 29}},
                {u"3:04 pm", noDate, {15, 4, 0}}},
               german);
    EXPECT_FALSE(isDate(u"0.0", german, today));
    german.months[9] = u"říjen";
    expectRead({{u"5 ŘÍJEN 2003", {2003, 10, 5}}}, german);
    EXPECT_FALSE(isDate(u"31.12.2024 14:05", enUs(), today)); // the month stands first
}

TEST(Dates, ThatAreNone)
{
    for (const std::u16string_view text :
         {u"",         u"12",      u"2024",         u"29/02/2023", u"1/0/2000",       u"15/2024/3", u"24:00",
          u"12:",      u"1/2/",    u"1/2/3/4",      u"-1/2/2024",  u"1/2/2024 3",     u"5 pm am",   u"1 2 3 4 5 6 7",
          u"1:2 3:4",  u"domingo", u"15 marx 2024", u"31.12",      u"01.02.03 10:00", u"0.0",       u"25.12.2024 pm",
          u"1/1/10000"})
        EXPECT_FALSE(isDate(text, ptBr(), today)) << testing::PrintToString(text);
}

TEST(Dates, InOtherFormsAndOfAnyLength)
{
    expectRead({{u"1/2/2024\0abc"sv, {2024, 2, 1}}}, ptBr());
    for (const std::u16string& text : {std::u16string(70000, u'1') + u"/1/1", std::u16string(70000, u' '), u"\xD800"s})
        EXPECT_FALSE(isDate(text, ptBr(), today));
    Locale yearFirst = enUs();
    yearFirst.dateOrder = DateOrder::yearMonthDay;
    expectRead({{u"01/02/03", {2001, 2, 3}}}, yearFirst);
    yearFirst.twoDigitYearMax = 2049;
    expectRead({{u"49/02/03", {2049, 2, 3}}}, yearFirst);
    expectRead({{u"50/02/03", {1950, 2, 3}}}, yearFirst);
    EXPECT_THROW(static_cast<void>(dateToText({3e6}, ptBr())), Error);
    Locale locale = ptBr();
    locale.shortDate = u"d 'o''d' MMM yy";
    locale.longTime = u"h:nn tt";
    EXPECT_EQ(dateToText(makeDate({2024, 2, 1}, {14, 5, 33}), locale), u"1 o'd fev 24 2:05 PM");
}

} // namespace
} // namespace vela::engine
