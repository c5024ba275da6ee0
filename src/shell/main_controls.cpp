#include "shell/main_controls.h"

#include "output/page_count.h"
#include "program/program.h"

#include <string>

namespace modMain {

namespace {

std::string PagesLine(const DocumentState& document) {
    return document.PagesNumbered == 0
               ? "Available Pages = " + std::to_string(kEditedPageCount)
               : "Utilizing " + std::to_string(document.PagesNumbered) + " of 6 Available Pages";
}

void WorkOutStrips(Program& program) {
    MainWindow& main = program.main;
    const DocumentState& document = program.document;
    main.Caption = document.WindowTitle;
    main.lblEvent.Caption = document.ClientCaption;
    main.lblDir.Caption = "Current Folder = " + document.FolderOnShow;
    main.lblTotal.Caption = "Running Sub-Total = " + program.totals.RunningSubTotal;
    main.lblHighestPage.Caption = PagesLine(document);
    main.cmdReCalc.BackColor = program.totals.TotalsStale ? colors::kOverLimit : colors::kButtonFace;
    main.cmdReCalc.Visible = !program.totals.TotalsHidden;
    main.imgFootNotes.Picture = document.HasNotes ? 1 : 0;
}

void WorkOutCommands(Program& program) {
    MainWindow& main = program.main;
    const DocumentState& document = program.document;
    main[CommandId::mnuFileDelete].Enabled = document.FileExists;
    main[CommandId::mnuFileRestoreFromBackup].Enabled = document.FromBackup;
    main[CommandId::mnuOptCopyToBusinessAddressBook].Enabled = document.HasClient;
    main[CommandId::mnuOptCopyToPersonalAddressBook].Enabled = document.HasClient;
    main[CommandId::mnuOptHideTotals].Checked = program.totals.TotalsHidden;
    main[CommandId::mnuEditLogoVisible].Checked = program.run.LogoChecked;
}

} // namespace

void WorkOutControls(Program& program) {
    if (program.pages[PageId::frmP1].lbl.empty()) {
        return;
    }
    modPageCount::FollowPagesInUse(program);
    WorkOutStrips(program);
    WorkOutCommands(program);
}

} // namespace modMain
