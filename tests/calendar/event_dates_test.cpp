#include "calendar/event_dates.h"

#include <gtest/gtest.h>

namespace {

using modCalendar::DayOf;
using modCalendar::IsListed;
using modCalendar::SortKey;
using modCalendar::View;

TEST(EventDates, ADateIsItsWholeDay) {
    EXPECT_EQ(DayOf("January 21, 2008         "), 39468);
    EXPECT_EQ(DayOf("1/21/08"), 39468);
    EXPECT_EQ(DayOf("1/21/2008 11:59 PM"), 39468);
    EXPECT_EQ(DayOf("1/1/100"), -657434);
    EXPECT_EQ(DayOf("12/31/9999"), 2958465);
    EXPECT_EQ(DayOf("2/29/2000"), 36585);
}

TEST(EventDates, TheDayFromWhichDaysAreCountedIsADay) {
    EXPECT_EQ(DayOf("12/30/1899"), 0);
    EXPECT_EQ(DayOf("12/29/1899"), -1);
}

TEST(EventDates, WithoutAYearOrADayThereIsNone) {
    for (const char* text : {"", "                         ", "January 21", "1/21", "Feb 29", "6:00 PM",
                             "18:00", "Spring", "13/13/2008", "February 30, 2008", "2008"}) {
        EXPECT_EQ(DayOf(text), std::nullopt) << text;
    }
}

TEST(EventDates, AReaderGivesTheSameAnswerTwice) {
    modCalendar::DayReader reader;
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(reader.Read("1/21/2008"), 39468);
        EXPECT_EQ(reader.Read("none"), std::nullopt);
    }
}

TEST(EventDates, TheKeyIsTheFirstFiveCharactersOfTheNumber) {
    EXPECT_EQ(SortKey(39468), "39468");
    EXPECT_EQ(SortKey(9999), "9999"); // 17 May 1927
    EXPECT_EQ(SortKey(10000), "10000");
    EXPECT_EQ(SortKey(0), "0");
    EXPECT_EQ(SortKey(-1234), "-1234");
    EXPECT_EQ(SortKey(-657434), "-6574");
    EXPECT_EQ(SortKey(100000), "10000"); // 14 October 2173
}

float Clock(int hour, int minute, double second) {
    return static_cast<float>(39468 + (hour * 3600 + minute * 60 + second) / 86400);
}

TEST(EventDates, AnEventOfTodayIsExpiredFromJustAfterMidnight) {
    // A single holds steps of 1/256 day here: half of one is 2 minutes and 48.75 seconds.
    EXPECT_FALSE(IsListed(View::Expired, 39468, Clock(0, 0, 0)));
    EXPECT_FALSE(IsListed(View::Expired, 39468, Clock(0, 2, 48)));
    EXPECT_TRUE(IsListed(View::Expired, 39468, Clock(0, 2, 49.5)));
    EXPECT_TRUE(IsListed(View::Expired, 39467, Clock(0, 0, 0)));
}

TEST(EventDates, TheTenDaysBeginAfterYesterdayAndEndTenDaysAheadWhenTheDayHasBegun) {
    const float noon = Clock(12, 0, 0);
    EXPECT_FALSE(IsListed(View::New, 39467, noon));
    EXPECT_TRUE(IsListed(View::New, 39468, noon));
    EXPECT_TRUE(IsListed(View::New, 39478, noon));
    EXPECT_FALSE(IsListed(View::New, 39479, noon));
    EXPECT_FALSE(IsListed(View::New, 39478, Clock(0, 0, 0)));
    EXPECT_FALSE(IsListed(View::New, 39467, Clock(0, 0, 0)));
}

TEST(EventDates, InTheLastMinutesOfADayTheSingleIsTheNextMidnight) {
    EXPECT_TRUE(IsListed(View::New, 39468, Clock(23, 57, 11)));
    EXPECT_FALSE(IsListed(View::New, 39468, Clock(23, 57, 12)));
}

TEST(EventDates, WithoutAViewEverythingIsListed) {
    EXPECT_TRUE(IsListed(View::All, -657434, Clock(12, 0, 0)));
    EXPECT_TRUE(IsListed(View::All, 2958465, Clock(12, 0, 0)));
}

} // namespace
