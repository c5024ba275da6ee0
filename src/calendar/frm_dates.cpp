#include "calendar/frm_dates.h"

#include "base/dates.h"
#include "base/guard.h"
#include "base/rows.h"
#include "calendar/move_proposals.h"
#include "calendar/read_event_dates.h"
#include "pages/fields.h"
#include "program/data_folders.h"
#include "program/errors.h"
#include "program/line_printing.h"
#include "program/program.h"
#include "program/windows.h"
#include "proposal/lifecycle.h"
#include "proposal/property_file.h"
#include "proposal/proposal_open.h"
#include "proposal/reset.h"

#include <algorithm>
#include <utility>

namespace modCalendar {

namespace {

frmDates* Shown(Program& program) {
    return static_cast<frmDates*>(modWindows::Find(program, "frmDates"));
}

void RebuildShown(Program& program) {
    {
        // The window shows already what it will show while the files are read.
        ++program.calendar.Running;
        const OnLeaving settle([&] { --program.calendar.Running; });
        if (frmDates* window = Shown(program)) {
            window->lstDates.Clear();
            window->Form_Follow(program);
        }
        static_cast<void>(ReadEventDates(program)); // what was read in time is shown
    }
    // Events have run: the window that stood there may have closed.
    if (frmDates* window = Shown(program)) {
        window->TakeRows(program);
    }
}

void ViewEvents(Program& program, View view) {
    SetView(program, view);
    if (frmDates* window = Shown(program)) {
        modWindows::BringToFront(*window);
        window->lblNotice.Caption.clear();
        RebuildShown(program);
        return;
    }
    const bool whole = ReadEventDates(program);
    if (frmDates* window = Shown(program)) {
        window->TakeRows(program); // a newer command has shown it meanwhile
    } else if (whole && !program.run.ProgramClosing) {
        modWindows::Show(program, std::make_unique<frmDates>());
    }
}

std::string Proposals(int count) {
    return count == 1 ? "1 proposal" : std::to_string(count) + " proposals";
}

std::string Heading(const Program& program) {
    if (program.calendar.EventListNew) {
        return "Events occuring within 10 days of " +
               dates::FormatDate(program.platform.clock.Now(), "mmmm dd, yyyy") + " are displayed below.";
    }
    return program.calendar.EventListExpired ? "Expired Events are displayed below."
                                             : "All Events are displayed below.";
}

} // namespace

void mnuViewEventDates_Click(Program& program) {
    ViewEvents(program, View::All);
}

void mnuViewExpiredEvents_Click(Program& program) {
    ViewEvents(program, View::Expired);
}

void mnuViewNewEvents_Click(Program& program) {
    ViewEvents(program, View::New);
}

void OpenProposal(Program& program, const std::string& fileName) {
    DocumentState& document = program.document;
    const std::string before = document.FilePath;
    document.FilePath = modFolders::DataFolder(program);
    const std::optional<modFile::RawProposal> raw = modFile::LoadProposal(program, fileName);
    const bool existed = document.FileExists;
    document.FileExists = true;
    if (!raw || modReset::StartNewFile(program) == modReset::ResetResult::Refused) {
        document.FilePath = before;
        document.FileExists = existed;
        return;
    }
    document.FromBackup = false;
    modFile::ShowProposal(program, fileName, *raw);
    document.PropertiesIgnored = false;
    modFile::ReadFileProperties(program);
    modFields::GiveFocus(program, {PageId::frmP1, FieldKind::txt, 0});
}

} // namespace modCalendar

frmDates::frmDates() {
    Caption = "Event Dates";
    Menu = {{"mnuFile", "", "&File", ""},
            {"mnuFileOpen", "mnuFile", "&Open Selected Proposal", "Ctrl+O", false},
            {"mnuFilePrint", "mnuFile", "Print Events as Shown in List", "Ctrl+P"},
            {"mnuOpt", "", "&Options", ""},
            {"mnuOptDelete", "mnuOpt", "&Delete Selected Files", "Ctrl+D", false},
            {"mnuOptUndoDelete", "mnuOpt", "&Restore Deleted Files", "Ctrl+R", false},
            {"mnuView", "", "&View", ""},
            {"mnuViewEventDates", "mnuView", "View &All Events", ""},
            {"mnuViewExpiredEvents", "mnuView", "View E&xpired Events", ""},
            {"mnuViewNewEvents", "mnuView", "View All Events within 10 Days of &Today", ""}};
}

void frmDates::Form_Load(Program& program) {
    TakeRows(program);
}

void frmDates::Form_Unload(Program& program) {
    modCalendar::EndRebuild(program);
}

void frmDates::Form_Cancel(Program& program) {
    modWindows::Close(program, *this);
}

void frmDates::Form_Follow(Program& program) {
    const bool running = program.calendar.Running > 0;
    const int selected = running ? 0 : lstDates.SelCount();
    Entry("mnuFileOpen").Enabled = selected == 1;
    Entry("mnuFilePrint").Enabled = !running;
    Entry("mnuOptDelete").Enabled = selected > 0;
    Entry("mnuOptUndoDelete").Enabled = !running && program.calendar.CanRestore;
    const int undated = program.calendar.Undated;
    lblUndated.Caption = undated == 0 ? ""
                                      : modCalendar::Proposals(undated) + (undated == 1 ? " has" : " have") +
                                            " no date that can be read.";
    lblUndated.ToolTipText.clear();
    for (const std::string& name : program.calendar.UndatedNames) {
        lblUndated.ToolTipText += (lblUndated.ToolTipText.empty() ? "" : "\r\n") + name;
    }
    if (static_cast<std::size_t>(undated) > program.calendar.UndatedNames.size()) {
        lblUndated.ToolTipText += "\r\n...";
    }
}

void frmDates::TakeRows(Program& program) {
    const std::vector<EventRow>& rows = program.calendar.Rows;
    lstDates.Clear();
    lstDates.Items.reserve(rows.size());
    lstDates.Selected.reserve(rows.size());
    for (const EventRow& row : rows) {
        std::string words;
        words.reserve(row.Date.size() + 1 + row.File.size());
        words += row.Date;
        words += '\t';
        words += row.File;
        lstDates.Add(std::move(words));
    }
    ShadedDay.reset();
    Form_Follow(program);
}

void frmDates::lstDates_Click(Program& program, const std::vector<int>& selected, int current) {
    lstDates.Selected.assign(lstDates.Items.size(), false);
    for (const int row : selected) {
        if (HasRow(lstDates.Selected, row)) {
            lstDates.Selected[static_cast<std::size_t>(row)] = true;
        }
    }
    lstDates.ListIndex = current;
    Form_Follow(program);
}

void frmDates::lstDates_DblClick(Program& program) {
    Choose(program, "mnuFileOpen");
}

void frmDates::PickDay(const Program& program, int day) {
    ShadedDay = day;
    const std::vector<EventRow>& rows = program.calendar.Rows;
    const auto found =
        std::find_if(rows.begin(), rows.end(), [day](const EventRow& row) { return row.Day == day; });
    if (found != rows.end()) {
        lstDates.ListIndex = static_cast<int>(found - rows.begin());
        ++Picks;
    }
}

std::vector<std::string> frmDates::SelectedFiles() const {
    std::vector<std::string> files;
    for (std::size_t row = 0; row < lstDates.Items.size(); ++row) {
        if (lstDates.Selected[row]) {
            const std::string& item = lstDates.Items[row];
            files.push_back(item.substr(item.find('\t') + 1));
        }
    }
    return files;
}

void frmDates::Run(Program& program, std::string_view name) {
    lblNotice.Caption.clear();
    if (name == "mnuFileOpen") {
        mnuFileOpen_Click(program);
    } else if (name == "mnuFilePrint") {
        mnuFilePrint_Click(program);
    } else if (name == "mnuOptDelete") {
        mnuOptDelete_Click(program);
    } else if (name == "mnuOptUndoDelete") {
        mnuOptUndoDelete_Click(program);
    } else if (name == "mnuViewEventDates") {
        modCalendar::mnuViewEventDates_Click(program);
    } else if (name == "mnuViewExpiredEvents") {
        modCalendar::mnuViewExpiredEvents_Click(program);
    } else if (name == "mnuViewNewEvents") {
        modCalendar::mnuViewNewEvents_Click(program);
    }
}

void frmDates::mnuFileOpen_Click(Program& program) {
    const std::vector<std::string> chosen = SelectedFiles();
    if (chosen.size() == 1 && modProposal::MayGoOn(program)) {
        modCalendar::OpenProposal(program, chosen.front());
    }
}

void frmDates::mnuFilePrint_Click(Program& program) {
    Questions& questions = program.platform.questions;
    if (lstDates.Items.empty()) {
        questions.MsgBox("No Events to Print.", Buttons::Ok, "");
        return;
    }
    std::vector<std::string> lines{modCalendar::Heading(program)};
    lines.insert(lines.end(), lstDates.Items.begin(), lstDates.Items.end());
    Guarded(program, "PrintTheForm", [&] {
        if (modLines::PrintLines(program, {"Event Dates"}, lines, {}) == modLines::Printed::NoPrinter) {
            questions.MsgBox("Could not find Printer.", Buttons::Ok, "");
        }
    });
}

void frmDates::mnuOptDelete_Click(Program& program) {
    const int moved = modCalendar::MoveToBackup(program, SelectedFiles());
    // The notice stands although the list is made anew meanwhile, and nothing of this window is used behind
    // that.
    lblNotice.Caption = modCalendar::Proposals(moved) + " moved to Backup";
    modCalendar::RebuildShown(program);
}

void frmDates::mnuOptUndoDelete_Click(Program& program) {
    if (const std::optional<int> restored = modCalendar::RestoreFromBackup(program)) {
        lblNotice.Caption = modCalendar::Proposals(*restored) + " restored";
        modCalendar::RebuildShown(program);
        return;
    }
    program.calendar.CanRestore = false;
    Form_Follow(program);
}
