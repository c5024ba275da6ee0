#include "calendar/frm_dates.h"
#include "calendar/read_event_dates.h"
#include "program/windows.h"
#include "support/running_program.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

/// The calendar as a person opens it at a given moment.
struct Dated : RunningProgram {
    void Proposal(const std::string& date) {
        std::string bytes = date;
        bytes.resize(25, ' ');
        folder.Write("Proposals/" + std::to_string(++count_) + ".hef", bytes);
    }
    /// The dates that a view lists when the clock stands at an hour, minute and second of a day.
    std::vector<std::string> Listed(modCalendar::View view, int day, double hour, double minute = 0,
                                    double second = 0) {
        surroundings.clock.Serial = day + ((hour * 60 + minute) * 60 + second) / 86400;
        const auto command = view == modCalendar::View::Expired ? modCalendar::mnuViewExpiredEvents_Click
                             : view == modCalendar::View::New   ? modCalendar::mnuViewNewEvents_Click
                                                                : modCalendar::mnuViewEventDates_Click;
        command(program);
        auto& window = dynamic_cast<frmDates&>(*modWindows::Find(program, "frmDates"));
        std::vector<std::string> dates;
        for (const std::string& item : window.lstDates.Items) {
            dates.push_back(item.substr(0, item.find('\t')));
        }
        return dates;
    }

private:
    int count_ = 0;
};

using modCalendar::View;
using Dates = std::vector<std::string>;
constexpr int kToday = 39468; // 21 January 2008

struct AroundToday : Dated {
    AroundToday() {
        for (const char* date :
             {"1/19/2008", "1/20/2008", "1/21/2008", "1/30/2008", "1/31/2008", "2/1/2008"}) {
            Proposal(date);
        }
    }
};

// In a single, days of this century go in steps of 1/256 day, 5 minutes and 37.5 seconds.
TEST(CalendarEdges, AtMidnightTheDayHasNotBegun) {
    AroundToday run;
    EXPECT_EQ(run.Listed(View::Expired, kToday, 0), (Dates{"Jan/19/2008", "Jan/20/2008"}));
    // Yesterday is not greater than Today - 1, and the tenth day ahead not less than Today + 10.
    EXPECT_EQ(run.Listed(View::New, kToday, 0), (Dates{"Jan/21/2008", "Jan/30/2008"}));
}

TEST(CalendarEdges, ThreeMinutesAfterMidnightTheDayHasBegun) {
    AroundToday run;
    EXPECT_EQ(run.Listed(View::Expired, kToday, 0, 2, 48), (Dates{"Jan/19/2008", "Jan/20/2008"}));
    EXPECT_EQ(run.Listed(View::New, kToday, 0, 2, 48), (Dates{"Jan/21/2008", "Jan/30/2008"}));
    EXPECT_EQ(run.Listed(View::Expired, kToday, 0, 2, 49),
              (Dates{"Jan/19/2008", "Jan/20/2008", "Jan/21/2008"}));
    EXPECT_EQ(run.Listed(View::New, kToday, 0, 2, 49), (Dates{"Jan/21/2008", "Jan/30/2008", "Jan/31/2008"}));
}

TEST(CalendarEdges, AtNoonYesterdayIsOverAndTenDaysAheadIsListed) {
    AroundToday run;
    EXPECT_EQ(run.Listed(View::New, kToday, 12), (Dates{"Jan/21/2008", "Jan/30/2008", "Jan/31/2008"}));
    EXPECT_EQ(run.Listed(View::Expired, kToday, 12), (Dates{"Jan/19/2008", "Jan/20/2008", "Jan/21/2008"}));
    EXPECT_EQ(run.Listed(View::All, kToday, 12).size(), 6U);
}

TEST(CalendarEdges, InTheLastThreeMinutesItIsTheNextMidnight) {
    AroundToday run;
    EXPECT_EQ(run.Listed(View::New, kToday, 23, 57, 11),
              (Dates{"Jan/21/2008", "Jan/30/2008", "Jan/31/2008"}));
    EXPECT_EQ(run.Listed(View::New, kToday, 23, 57, 12), (Dates{"Jan/30/2008", "Jan/31/2008"}));
    EXPECT_EQ(run.Listed(View::Expired, kToday, 23, 57, 12),
              (Dates{"Jan/19/2008", "Jan/20/2008", "Jan/21/2008"}));
}

TEST(CalendarEdges, BeforeMay1927TheStepIsFinerAndTheOrderThatOfTheBrokenKey) {
    // Day 9999 is 17 May 1927; a single holds it in steps of 84.375 seconds.
    Dated run;
    for (const char* date : {"12/31/1926", "5/16/1927", "5/17/1927", "5/18/1927", "5/27/1927"}) {
        run.Proposal(date);
    }
    // 9862, 9998 and 9999 sort behind 10000 and 10009.
    EXPECT_EQ(run.Listed(View::All, 9999, 12),
              (Dates{"May/18/1927", "May/27/1927", "Dec/31/1926", "May/16/1927", "May/17/1927"}));
    EXPECT_EQ(run.Listed(View::Expired, 9999, 0, 0, 42), (Dates{"Dec/31/1926", "May/16/1927"}));
    EXPECT_EQ(run.Listed(View::Expired, 9999, 0, 0, 43),
              (Dates{"Dec/31/1926", "May/16/1927", "May/17/1927"}));
    EXPECT_EQ(run.Listed(View::New, 9999, 0, 0, 42), (Dates{"May/18/1927", "May/17/1927"}));
    EXPECT_EQ(run.Listed(View::New, 9999, 0, 0, 43), (Dates{"May/18/1927", "May/27/1927", "May/17/1927"}));
}

TEST(CalendarEdges, AtTheEndOfTheYear9999ADayBeginsAtThree) {
    // Day 2958465; a single holds it in steps of six hours, and its key is the first five digits of seven.
    Dated run;
    for (const char* date : {"12/31/9999", "12/30/9999", "1/1/100", "12/31/1899"}) {
        run.Proposal(date);
    }
    EXPECT_EQ(run.Listed(View::Expired, 2958465, 2, 59),
              (Dates{"Jan/01/0100", "Dec/31/1899", "Dec/30/9999"}));
    EXPECT_EQ(run.Listed(View::Expired, 2958465, 3, 1).size(), 4U);
    EXPECT_EQ(run.Listed(View::New, 2958465, 2, 59), (Dates{"Dec/31/9999"}));
}

TEST(CalendarEdges, ADayOfTheYear100IsInTheListsWhateverTheClock) {
    Dated run;
    run.Proposal("1/1/100");
    EXPECT_EQ(run.Listed(View::All, 0, 0), (Dates{"Jan/01/0100"}));
    EXPECT_EQ(run.Listed(View::Expired, 0, 0), (Dates{"Jan/01/0100"}));
    EXPECT_TRUE(run.Listed(View::New, 0, 0).empty());
}

} // namespace
