#include "text/dates.h"

#include <gtest/gtest.h>

namespace {

using text::LocalTime;

constexpr LocalTime afternoon{
    .year = 2026, .month = 11, .day = 15, .hour = 15, .minute = 18, .second = 2};
constexpr LocalTime early{.year = 2007, .month = 3, .day = 4, .hour = 5, .minute = 6, .second = 7};

TEST(Dates, TheHeadOfALogRowHasSixteenCharacters)
{
    EXPECT_EQ(text::log_stamp(afternoon), "11-15-26:03:18p:");
    EXPECT_EQ(text::log_stamp(early), "03-04-07:05:06a:");
    EXPECT_EQ(text::log_stamp(early).size(), 16U);
}

TEST(Dates, AFileStampSortsByTimeWithinACentury)
{
    EXPECT_EQ(text::file_stamp(afternoon), "261115151802");
    EXPECT_EQ(text::file_stamp(early), "070304050607");
}

TEST(Dates, AHistoryStampHasTheWholeYear)
{
    EXPECT_EQ(text::history_stamp(afternoon), "20261115151802");
    EXPECT_EQ(text::history_stamp(early), "20070304050607");
}

TEST(Dates, AHistoryDateIsForPeople)
{
    EXPECT_EQ(text::history_date(afternoon), "11/15/26 03:18 pm");
    EXPECT_EQ(text::history_date(early), "03/04/07 05:06 am");
}

TEST(Dates, TheTimeInACaption)
{
    EXPECT_EQ(text::caption_time(afternoon), "03:18 pm");
    EXPECT_EQ(text::caption_time(early), "05:06 am");
}

TEST(Dates, ALongDateNamesTheDay)
{
    EXPECT_EQ(text::long_date(afternoon), "Sun Nov 15, 2026");
    EXPECT_EQ(text::long_date(early), "Sun Mar 4, 2007");
    EXPECT_EQ(text::long_date({.year = 2024, .month = 2, .day = 29}), "Thu Feb 29, 2024");
    EXPECT_EQ(text::long_date({.year = 2026, .month = 1, .day = 5}), "Mon Jan 5, 2026");
}

TEST(Dates, AShortTimeHasNoLeadingZero)
{
    EXPECT_EQ(text::short_time(afternoon), "3:18 pm");
    EXPECT_EQ(text::short_time({.hour = 0, .minute = 5}), "12:05 am");
    EXPECT_EQ(text::short_time({.hour = 22, .minute = 0}), "10:00 pm");
}

TEST(Dates, MidnightAndNoonAreTwelve)
{
    EXPECT_EQ(text::caption_time({.hour = 0, .minute = 0}), "12:00 am");
    EXPECT_EQ(text::caption_time({.hour = 0, .minute = 59}), "12:59 am");
    EXPECT_EQ(text::caption_time({.hour = 12, .minute = 0}), "12:00 pm");
    EXPECT_EQ(text::caption_time({.hour = 11, .minute = 59}), "11:59 am");
    EXPECT_EQ(text::caption_time({.hour = 23, .minute = 59}), "11:59 pm");
    EXPECT_EQ(text::log_stamp({.hour = 0, .minute = 5}), "01-01-26:12:05a:");
}

TEST(Dates, StampsCountTwentyFourHours)
{
    EXPECT_EQ(text::file_stamp({.hour = 0, .minute = 0, .second = 9}), "260101000009");
    EXPECT_EQ(text::file_stamp({.hour = 23, .minute = 59, .second = 59}), "260101235959");
}

TEST(Dates, TheTurnOfACenturyIsYearZero)
{
    EXPECT_EQ(text::file_stamp({.year = 2100}), "000101000000");
    EXPECT_EQ(text::history_stamp({.year = 987}), "09870101000000");
}

} // namespace
