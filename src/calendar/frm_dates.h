#pragma once

#include "program/controls.h"
#include "program/window_parts.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// "Event Dates": the proposals of the data folder by their event dates, as the last view command found them.
class frmDates : public MenuWindow {
public:
    StripLabel lblHeading{.Caption = "Event Date and Filename", .ToolTipText = ""};
    SelectList lstDates;          ///< rows of date, tab and file name; as many as `program.calendar.Rows`
    StripLabel lblUndated;        ///< how many proposals have no date that can be read
    StripLabel lblNotice;         ///< what the last command has done
    std::optional<int> ShadedDay; ///< the day that was picked in the month beside the list
    int Picks = 0;                ///< counts the picks that have rows; the front end brings each into view

    frmDates();
    [[nodiscard]] std::string_view Name() const override { return "frmDates"; }
    [[nodiscard]] Modality Mode() const override { return Modality::Modeless; }
    void Form_Load(Program& program) override;
    void Form_Unload(Program& program) override;
    void Form_Cancel(Program& program) override;
    void Form_Follow(Program& program) override;

    /// The person has selected rows; `current` is the row with the keyboard.
    void lstDates_Click(Program& program, const std::vector<int>& selected, int current);
    void lstDates_DblClick(Program& program);
    /// A day of the month view: its rows are shaded and the first becomes the current one; none is selected
    /// by that.
    void PickDay(const Program& program, int day);
    /// Takes the rows over from the last rebuild.
    void TakeRows(Program& program);

protected:
    void Run(Program& program, std::string_view name) override;

private:
    [[nodiscard]] std::vector<std::string> SelectedFiles() const;
    void mnuFileOpen_Click(Program& program);
    void mnuFilePrint_Click(Program& program);
    void mnuOptDelete_Click(Program& program);
    void mnuOptUndoDelete_Click(Program& program);
};

namespace modCalendar {

/// The view commands, of the main window and of the calendar: set the flags, rebuild, show the window.
void mnuViewEventDates_Click(Program& program);
void mnuViewExpiredEvents_Click(Program& program);
void mnuViewNewEvents_Click(Program& program);

/// Opens a proposal of the data folder with its properties. One that cannot be read leaves the proposal on
/// show.
void OpenProposal(Program& program, const std::string& fileName);

} // namespace modCalendar
