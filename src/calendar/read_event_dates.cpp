#include "calendar/read_event_dates.h"

#include "base/dates.h"
#include "base/files.h"
#include "base/folder_scan.h"
#include "base/guard.h"
#include "base/text.h"
#include "program/data_folders.h"
#include "program/errors.h"
#include "program/program.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <unordered_map>
#include <utility>

namespace modCalendar {

namespace {

constexpr std::string_view kProposals = ".hef";
constexpr std::size_t kNamesTold = 10;

std::string WeekdayOf(int day) {
    constexpr std::array<const char*, 7> kDays{"Sat", "Sun", "Mon", "Tue", "Wed", "Thu", "Fri"};
    const int within = ((day % 7) + 7) % 7; // day 0 was a Saturday
    return kDays[static_cast<std::size_t>(within)];
}

/// Lets events run now and then, so that the windows answer while many files are read.
class Breather {
public:
    explicit Breather(const Program& program) : program_(program) { Breathe(); }
    /// False when the rebuild is to end: a newer one has started, the window or the program has closed.
    [[nodiscard]] bool GoOn(int rebuild) {
        constexpr std::chrono::milliseconds kLongest(40);
        if (std::chrono::steady_clock::now() - last_ >= kLongest) {
            Breathe();
        }
        return program_.calendar.Rebuilds == rebuild && !program_.run.ProgramClosing;
    }

private:
    void Breathe() {
        program_.platform.events.LetEventsRun();
        last_ = std::chrono::steady_clock::now();
    }
    const Program& program_;
    std::chrono::steady_clock::time_point last_;
};

/// What one rebuild gathers; the records take it when it is whole.
struct Gathered {
    std::vector<std::string> Files;
    std::vector<std::string> Texts;
    std::vector<std::int32_t> Days;
    std::vector<bool> Dated;
};

bool Gather(const Program& program, Breather& breather, int rebuild, Gathered& found) {
    DayReader reader;
    const std::string folder = modFolders::DataFolder(program);
    if (!files::IsFolder(folder)) {
        return breather.GoOn(rebuild); // no folder, no proposal
    }
    const auto take = [&](files::FileHead&& head) {
        // A file too short for a date field has none.
        const bool full = head.Readable && head.Bytes.size() == kDateBytes;
        const std::optional<int> day = full ? reader.Read(head.Bytes) : std::nullopt;
        found.Files.push_back(std::move(head.Name));
        found.Texts.push_back(std::move(head.Bytes));
        found.Days.push_back(day.value_or(0));
        found.Dated.push_back(day.has_value());
        return true;
    };
    // Many other files may lie between the proposals.
    files::ScanHeads(folder, kProposals, kDateBytes, take, [&] { return breather.GoOn(rebuild); });
    return breather.GoOn(rebuild);
}

/// How a day is written. Events of the same day are many; each day is written out once.
struct WrittenDay {
    std::string Date;
    std::string Weekday;
    std::string Key; ///< what is sorted by: the day's key, then the date, in capitals
};

class WrittenDays {
public:
    const WrittenDay& Of(int day) {
        WrittenDay& written = known_[day];
        if (written.Date.empty()) {
            written.Date = dates::FormatDate(day, "mmm/dd/yyyy");
            written.Weekday = WeekdayOf(day);
            written.Key = text::Upper(SortKey(day) + written.Date + '\t');
        }
        return written;
    }

private:
    std::unordered_map<int, WrittenDay> known_;
};

/// The listed entries of one day.
struct DayOfEntries {
    int Day = 0;
    const WrittenDay* Written = nullptr;
    std::vector<std::size_t> Entries;
};

/// By the day's key. Days are few beside proposals: the names are compared among those of one day alone.
std::vector<DayOfEntries> ListedDays(const Gathered& found, View view, float today, WrittenDays& days) {
    std::vector<DayOfEntries> listed;
    std::unordered_map<int, std::size_t> places;
    for (std::size_t at = 0; at < found.Files.size(); ++at) {
        if (!found.Dated[at] || !IsListed(view, found.Days[at], today)) {
            continue;
        }
        const auto [place, isNew] = places.try_emplace(found.Days[at], listed.size());
        if (isNew) {
            listed.push_back({found.Days[at], &days.Of(found.Days[at]), {}});
        }
        listed[place->second].Entries.push_back(at);
    }
    std::sort(listed.begin(), listed.end(), [](const DayOfEntries& one, const DayOfEntries& other) {
        return one.Written->Key < other.Written->Key;
    });
    return listed;
}

std::vector<EventRow> Listed(const Gathered& found, View view, float today, WrittenDays& days) {
    std::vector<EventRow> rows;
    rows.reserve(found.Files.size());
    for (DayOfEntries& day : ListedDays(found, view, today, days)) {
        std::sort(day.Entries.begin(), day.Entries.end(), [&](std::size_t one, std::size_t other) {
            const int compared = text::CompareNoCase(found.Files[one], found.Files[other]);
            return compared != 0 ? compared < 0 : found.Files[one] < found.Files[other];
        });
        for (const std::size_t at : day.Entries) {
            rows.push_back({day.Day, day.Written->Date, day.Written->Weekday, found.Files[at]});
        }
    }
    return rows;
}

void TakeUndated(CalendarRecords& calendar, const Gathered& found) {
    for (std::size_t at = 0; at < found.Files.size(); ++at) {
        if (!found.Dated[at]) {
            calendar.UndatedNames.push_back(found.Files[at]);
        }
    }
    calendar.Undated = static_cast<int>(calendar.UndatedNames.size());
    std::sort(
        calendar.UndatedNames.begin(), calendar.UndatedNames.end(),
        [](const std::string& one, const std::string& other) { return text::CompareNoCase(one, other) < 0; });
    calendar.UndatedNames.resize(std::min(calendar.UndatedNames.size(), kNamesTold));
}

void Take(Program& program, Gathered&& found) {
    CalendarRecords& calendar = program.calendar;
    WrittenDays days;
    calendar.Rows = Listed(found, ViewOf(program), static_cast<float>(program.platform.clock.Now()), days);
    TakeUndated(calendar, found);
    for (std::size_t at = 0; at < found.Files.size(); ++at) {
        // The entry that held the bare name holds the row from now on.
        if (found.Dated[at]) {
            const std::string& date = days.Of(found.Days[at]).Date;
            std::string row;
            row.reserve(date.size() + 1 + found.Files[at].size());
            row += date;
            row += '\t';
            row += found.Files[at];
            found.Files[at] = std::move(row);
        } else {
            found.Files[at].clear();
        }
    }
    calendar.EventFiles = std::move(found.Files);
    calendar.EventDateText = std::move(found.Texts);
    calendar.EventSerial = std::move(found.Days);
}

void Forget(CalendarRecords& calendar) {
    calendar.EventFiles.clear();
    calendar.EventDateText.clear();
    calendar.EventSerial.clear();
    calendar.Rows.clear();
    calendar.Undated = 0;
    calendar.UndatedNames.clear();
}

/// True when the folder was read to its end.
bool Rebuild(Program& program) {
    CalendarRecords& calendar = program.calendar;
    const int rebuild = ++calendar.Rebuilds;
    Forget(calendar);
    ++calendar.Running;
    const ScopedFlag busy(program.main.Busy);
    const OnLeaving settle([&] { --calendar.Running; });
    Breather breather(program);
    Gathered found;
    if (!Gather(program, breather, rebuild, found)) {
        return false;
    }
    Take(program, std::move(found));
    return true;
}

void SayNothingFound(Program& program, Manner::Came how) {
    SetView(program, View::All);
    program.platform.questions.MsgBox("No Events Found", Buttons::Ok, "", {.How = how});
}

} // namespace

void SetView(Program& program, View view) {
    program.calendar.EventListExpired = view == View::Expired;
    program.calendar.EventListNew = view == View::New;
}

View ViewOf(const Program& program) {
    return program.calendar.EventListExpired ? View::Expired
           : program.calendar.EventListNew   ? View::New
                                             : View::All;
}

void EndRebuild(Program& program) {
    ++program.calendar.Rebuilds;
}

bool CanRestore(const Program& program) {
    const std::string backup = modFolders::BackupFolder(program);
    if (!files::IsFolder(backup)) {
        return false;
    }
    bool any = false;
    try {
        files::ScanHeads(backup, ".hef.old", 0, [&](files::FileHead&&) {
            any = true;
            return false;
        });
    } catch (const files::FileError&) {
        return true; // the command tells what is wrong with the folder
    }
    return any;
}

bool ReadEventDates(Program& program) {
    bool whole = true;
    const bool done = Guarded(program, "ReadEventDates", [&] { whole = Rebuild(program); });
    program.calendar.CanRestore = CanRestore(program);
    if (done && whole && program.calendar.EventFiles.empty()) {
        SayNothingFound(program, Manner::Came::OnRequest); // with the normal pointer, for the person is asked
    }
    return whole;
}

void ReadEventDatesAtStart(Program& program) {
    SetView(program, View::All);
    Guarded(program, "ReadEventDates", [&] {
        bool any = false;
        const std::string folder = modFolders::DataFolder(program);
        if (files::IsFolder(folder)) {
            files::ScanHeads(folder, kProposals, 0, [&](files::FileHead&&) {
                any = true;
                return false;
            });
        }
        if (!any) {
            SayNothingFound(program, Manner::Came::Unasked);
        }
    });
}

} // namespace modCalendar
