#include "base/dates.h"

#include <gtest/gtest.h>

namespace {

struct Known {
    const char* Text;
    double Serial;
};

class DateText : public testing::TestWithParam<Known> {};

TEST_P(DateText, IsRecognised) {
    const auto serial = dates::Recognise(GetParam().Text, 2026);
    ASSERT_TRUE(serial.has_value()) << GetParam().Text;
    EXPECT_NEAR(*serial, GetParam().Serial, 1e-9) << GetParam().Text;
}

// 1 January 1900 is day 2; 1 January 2008 is day 39448; 1 January 2026 is day 46023.
INSTANTIATE_TEST_SUITE_P(
    Table, DateText,
    testing::Values(Known{"January 15, 2008", 39462}, Known{"January 15, 2008.", 39462},
                    Known{"Jan 15, 2008", 39462}, Known{"jan. 15 2008", 39462},
                    Known{"15 January 2008", 39462}, Known{"15-Jan-2008", 39462}, Known{"1/15/2008", 39462},
                    Known{"1/15/08", 39462}, Known{"1-15-08", 39462}, Known{"2008-01-15", 39462},
                    Known{"15/1/2008", 39462}, Known{"Tuesday, January 15, 2008", 39462},
                    Known{"1/15", 46037}, Known{"January 15", 46037}, Known{"January 2008", 39448},
                    Known{"2/29/2008", 39507}, Known{"1/1/30", 10959}, Known{"1/1/29", 47119},
                    Known{"12/30/1899", 0}, Known{"1/1/1900", 2}, Known{"6:00 PM", 0.75}, Known{"6 PM", 0.75},
                    Known{"18:00", 0.75}, Known{"12:00 AM", 0}, Known{"12:00 PM", 0.5},
                    Known{"1/15/2008 6:00 PM", 39462.75}, Known{"January 15, 2008 6:00 PM", 39462.75},
                    Known{"  1/15/2008  ", 39462}, Known{"Sept 5, 2008", 39696}, Known{"May 5 2008", 39573},
                    Known{"5/2008", 39569}, Known{"1-2008", 39448}, Known{"January-2008", 39448},
                    Known{"15-Jan-08", 39462}, Known{"Jan-15-2008", 39462}, Known{"15 Jan. 2008", 39462},
                    Known{"15 January, 2008", 39462}, Known{"2008/01/15", 39462},
                    Known{"Tue Jan 15, 2008", 39462}, Known{"15 January", 46037},
                    Known{"6:30:15 PM", 66615.0 / 86400}, Known{"6a", 0.25}, Known{"12 pm", 0.5},
                    Known{"6:00 PM 1/15/2008", 39462.75}, Known{"1/15/2008, 18:00", 39462.75},
                    Known{"12/31/2008", 39813}, Known{"31/12/2008", 39813}, Known{"December 31, 2008", 39813},
                    Known{"13/5/2008", 39581}, Known{"13/12/2008", 39795}, Known{"150/3/4", -639110},
                    Known{"3/4/150", -639110}, Known{"3/150", -639113}, Known{"March 150", -639113}));

class NoDate : public testing::TestWithParam<const char*> {};

TEST_P(NoDate, IsRefused) {
    EXPECT_FALSE(dates::IsDate(GetParam(), 2026)) << GetParam();
}

INSTANTIATE_TEST_SUITE_P(Table, NoDate,
                         testing::Values("", " ", "abc", "January 1rst, 2008", "Jan 2nd, 2008", "2/30/2008",
                                         "2/29/2007", "13/13/2008", "0/1/2008", "1/0/2008", "January",
                                         "32 January 2008", "25:00", "13 PM", "6:75 PM", "1/15/2008 x",
                                         "1/2/3/4", "12345", "-1/2/2008", "1//2008", "January 15, 20080",
                                         "Smarch 5, 2008", "1.15.2008", "$5", "6:00 XM", "Smarch 1/15/2008",
                                         "1/15/2008 25:00", "January 15,", "1/15/", ", 6:00 PM", "2008-01",
                                         "2008-01-", "15", "15-", "2008-01 15", "2008-01/15"));

TEST(DateSerial, CountsFromTheThirtiethOfDecember1899) {
    EXPECT_EQ(dates::ToSerial({1899, 12, 30, 0, 0, 0}), 0.0);
    EXPECT_EQ(dates::ToSerial({1899, 12, 31, 0, 0, 0}), 1.0);
    EXPECT_EQ(dates::ToSerial({2000, 1, 1, 12, 0, 0}), 36526.5);
    EXPECT_FALSE(dates::ToSerial({2007, 2, 29, 0, 0, 0}).has_value());
    EXPECT_FALSE(dates::ToSerial({99, 1, 1, 0, 0, 0}).has_value());
}

TEST(DateSerial, GoesThereAndBackForEveryDayOfFourCenturies) {
    for (double serial = 0; serial < 146097; ++serial) {
        ASSERT_EQ(dates::ToSerial(dates::ToCalendar(serial)), serial);
    }
}

TEST(DatePattern, WritesTheLongForm) {
    EXPECT_EQ(dates::FormatDate(39448, "mmmm dd, yyyy"), "January 01, 2008");
    EXPECT_EQ(dates::FormatDate(39470, "mmmm dd, yyyy"), "January 23, 2008");
    EXPECT_EQ(dates::FormatDate(39470, "m/d/yy"), "1/23/08");
    EXPECT_EQ(dates::FormatDate(39470, "mmm d yyyy"), "Jan 23 2008");
    EXPECT_EQ(dates::FormatDate(39470, "mm-dd"), "01-23");
}

TEST(GeneralDate, LeavesOutWhatIsNotThere) {
    EXPECT_EQ(dates::GeneralDate(39468.75), "1/21/2008 6:00:00 PM");
    EXPECT_EQ(dates::GeneralDate(39468), "1/21/2008");
    EXPECT_EQ(dates::GeneralDate(0.5), "12:00:00 PM");
    EXPECT_EQ(dates::GeneralDate(0), "12:00:00 AM");
    EXPECT_EQ(dates::GeneralDate(39468 + 1.0 / 86400), "1/21/2008 12:00:01 AM");
    EXPECT_EQ(dates::GeneralDate(39468 + 66615.0 / 86400), "1/21/2008 6:30:15 PM");
}

TEST(GeneralDate, AMomentBeforeMidnightIsTheNextDay) {
    EXPECT_EQ(dates::GeneralDate(39468 + 86399.4 / 86400), "1/21/2008 11:59:59 PM");
    EXPECT_EQ(dates::GeneralDate(39468 + 86399.6 / 86400), "1/22/2008");
}

} // namespace
