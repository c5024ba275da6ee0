#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// One proposal of the calendar's list.
struct EventRow {
    std::int32_t Day = 0; ///< days since 30 December 1899
    std::string Date;     ///< "Jan/21/2008"
    std::string Weekday;  ///< "Mon"; on screen only
    std::string File;
    bool operator==(const EventRow&) const = default;
};

/// The calendar of events, as the last view command found the proposals' folder.
struct CalendarRecords {
    bool EventListExpired = false; ///< expired events only
    bool EventListNew = false;     ///< events within ten days only; at most one of the two is set
    /// Every proposal that was found: its name, then its row; empty without a date. One entry a file in all
    /// three.
    std::vector<std::string> EventFiles;
    std::vector<std::string> EventDateText; ///< the first 25 bytes of each file
    std::vector<std::int32_t> EventSerial;  ///< whole days; 0 without a date
    std::vector<EventRow> Rows;             ///< those that are listed, in the list's order
    int Undated = 0;                        ///< proposals without a date that can be read
    std::vector<std::string> UndatedNames;  ///< the first ten of them
    bool CanRestore = false;                ///< there are moved proposals in the backup folder
    int Running = 0;                        ///< rebuilds under way; one may start within another
    int Rebuilds = 0; ///< counts their starts: an older one ends when a newer has started
};
