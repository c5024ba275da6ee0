#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Dates as text under the rules of en-US. A day serial counts days from 30 December 1899; its fraction is
/// the time.
namespace dates {

struct Calendar {
    int Year = 1899;
    int Month = 12;
    int Day = 30;
    int Hour = 0;
    int Minute = 0;
    int Second = 0;
};

/// Nothing when there is no such day or time. Years 100 to 9999.
[[nodiscard]] std::optional<double> ToSerial(const Calendar& calendar);
[[nodiscard]] Calendar ToCalendar(double serial);

/// Recognises a date, a time, or both: "January 15, 2008", "Jan 15, 2008", "15 January 2008", "1/15/2008",
/// "1/15/08", "1-15-08", "2008-01-15", "6:00 PM", "18:00". A full stop at the end is passed over. Two-digit
/// years 00 to 29 are of this century, 30 to 99 of the last. A date without a year takes `currentYear`.
[[nodiscard]] std::optional<double> Recognise(std::string_view text, int currentYear);
[[nodiscard]] bool IsDate(std::string_view text, int currentYear);

/// Patterns of m, mm, mmm, mmmm, d, dd, yy, yyyy and literal characters, as "mmmm dd, yyyy".
[[nodiscard]] std::string FormatDate(double serial, std::string_view pattern);
/// "1/21/2008 6:00:00 PM"; no time at exactly midnight, no date for day 0.
[[nodiscard]] std::string GeneralDate(double serial);

} // namespace dates
