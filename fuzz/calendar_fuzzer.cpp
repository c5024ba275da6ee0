#include "calendar/read_event_dates.h"
#include "quiet_program.h"

#include <cstdint>
#include <string>

/// Arbitrary bytes as the beginning of a proposal: a row with a whole date, or none.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static QuietProgram machine;
    Program& program = machine.program;
    machine.Write("Fuzz.hef", std::string(reinterpret_cast<const char*>(data), size));
    static_cast<void>(modCalendar::ReadEventDates(program));
    const CalendarRecords& calendar = program.calendar;
    Require(calendar.EventFiles.size() == 1 && calendar.EventSerial.size() == 1);
    Require(calendar.Rows.size() + static_cast<std::size_t>(calendar.Undated) == 1);
    if (!calendar.Rows.empty()) {
        Require(calendar.Rows[0].Date.size() == std::string("Jan/21/2008").size());
        Require(calendar.Rows[0].File == "Fuzz.hef");
        Require(calendar.Rows[0].Weekday.size() == 3);
    }
    return 0;
}
