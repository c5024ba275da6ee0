#include "proposal/reset.h"

#include "base/files.h"
#include "base/guard.h"
#include "base/paths.h"
#include "money/totals.h"
#include "pages/label_mode.h"
#include "pages/logo.h"
#include "pages/page_defaults.h"
#include "pages/page_fonts.h"
#include "pages/page_geometry.h"
#include "pages/row_fields.h"
#include "pages/titles.h"
#include "program/errors.h"
#include "program/program.h"
#include "program/windows.h"
#include "proposal/file_names.h"
#include "proposal/run_marker.h"

#include <array>

namespace modReset {

namespace {

bool FormatEditingGoesOn(Program& program) {
    if (!program.format.EditingFormat) {
        return false;
    }
    const Answer answer = program.platform.questions.MsgBox(
        "Proceeding with this action will end the editing session of your file format. Continue?",
        Buttons::YesNo, "Ending Format Editing",
        {.Default = Answer::No,
         .Lost = "The changes to " + program.format.FormatName + " will be lost unless they are saved."});
    if (answer == Answer::Yes) {
        program.format.EditingFormat = false;
        return false;
    }
    program.platform.questions.MsgBox("Resume Editing.", Buttons::Ok, "");
    return true;
}

void ClearNames(Program& program) {
    DocumentState& document = program.document;
    if (!document.FileExists) {
        document.FromBackup = false;
    }
    modNames::ClearNames(program);
    document.FileExists = false;
    document.SavedStateStale = false;
    document.SavedFile = {};
    document.PropertiesIgnored = false;
    document.BackupTrouble.clear();
    document.OwnBackup.clear();
    if (!program.guards.StartingUp) {
        modRecovery::NothingUnsaved(program); // what an earlier run has left is not settled yet
    }
}

void ResetPages(Program& program) {
    if (program.hooks.DeSelectAllControls) {
        program.hooks.DeSelectAllControls(program);
    }
    modLabelMode::End(program); // the keyboard goes to the new proposal's fields
    program.main.Focus.reset();
    program.editing.ACActive = {};
    if (Window* results = modWindows::Find(program, "frmSR")) {
        modWindows::Close(program, *results); // its hits are those of the proposal that goes
    }
    // What was deleted from one proposal is not put back into another.
    program.editing.Block.UndoMemory.clear();
    program.editing.UndoAvailable = false;
    for (const PageId page : kAllPages) {
        program.pages[page].Visible = false;
        if (!program.guards.KeepPageContent) {
            modPages::ApplyPageDefaults(program, page);
        }
    }
    program.document.PagesInUse = 6;
    program.document.PagesNumbered = 0;
    program.document.HasNotes = false;
    program.document.HasClient = false;
    program.format.PropTextChanges = {};
    program.format.PropLabelChanges = {};
    program.format.LabelSavedState = {};
    program.format.PropertyLines.clear();
    modPages::HideOptionalFields(program);
}

void ResetFont(Program& program) {
    RunState& run = program.run;
    const SettingsRecords& settings = program.settings;
    run.DefaultFontName = run.DefaultFontFound ? settings.SavedFontName : "Times New Roman";
    run.DefaultFontSize = settings.SavedFontSize;
    run.DefaultFontColor = settings.SavedFontColor;
    run.DefaultFontItalic = settings.SavedFontItalic;
    modPages::ApplyPageFonts(program);
}

void EmptyTexts(Program& program) {
    DocumentState& document = program.document;
    for (const PageId page : {PageId::frmP6, PageId::frmP6_1}) {
        for (TextArea& area : program.pages[page].txt) {
            area.Text.clear();
            area.BackColor = colors::kResting;
            area.ToolTipText.clear();
        }
    }
    const std::size_t figures = program.pages[PageId::frmP6].txt.size();
    document.CurrentTextBuf[PageId::frmP6].assign(figures, " ");
    document.SavedTextBuf[PageId::frmP6].assign(figures, " ");
    for (const PageId id : kLinePages) {
        Page& page = program.pages[id];
        for (auto* boxes : {&page.txtQty, &page.txtAmt}) {
            for (TextArea& box : *boxes) {
                box.ToolTipText.clear();
            }
        }
        document.CurrentTextBuf[id].resize(page.txt.size());
        document.SavedTextBuf[id].resize(page.txt.size());
        for (std::size_t area = 0; area < page.txt.size(); ++area) {
            page.txt[area].BackColor = colors::kResting;
            if (page.txt[area].ToolTipText == modTotals::kNoNumberTip) {
                page.txt[area].ToolTipText.clear();
            }
            if (program.format.FormatTextChanges[id][area].FormatText) {
                continue;
            }
            page.txt[area].Text.clear();
            page.txt[area].SelStart = 0;
            page.txt[area].SelLength = 0;
            document.CurrentTextBuf[id][area].clear();
            document.SavedTextBuf[id][area].clear();
        }
    }
}

void ZeroTotals(Program& program) {
    TotalsRecords& totals = program.totals;
    const float rate = totals.TaxRate;
    const bool hidden = totals.TotalsHidden;
    totals = TotalsRecords{};
    totals.TaxRate = rate;
    totals.TotalsHidden = hidden;
    totals.RunningSubTotal = program.settings.CurrencySymbol + " 0.00";
}

void TakeFormat(Program& program, bool loadDefault) {
    FormatRecords& format = program.format;
    format.FormatTextChanges = {};
    format.FormatLabelChanges = {};
    format.FormatLines.clear();
    format.InFile = {};
    format.BuiltIn = {};
    format.LogoPath.clear();
    format.LogoChanged = false;
    format.LogoPending = false;
    format.Touched = false;
    if (loadDefault) {
        const std::string path =
            paths::ResolveDrive(program.settings.DefaultFormatPath, program.folders.Drives);
        format.FormatFolder = paths::Folder(path);
        format.FormatName = paths::Name(path);
        format.FormatOpen = true;
    }
    // One that was chosen for the document before is kept by a format or by the settings, or goes with it. A
    // format without a logo of its own leaves this one.
    modLogo::LoadLogo(program);
    const RunState& run = program.run;
    format.FontOfFile = {run.DefaultFontName, run.DefaultFontSize, run.DefaultFontColor,
                         run.DefaultFontItalic};
    if (format.FormatOpen && program.hooks.OpenFormatFile) {
        program.hooks.OpenFormatFile(program);
    }
}

void ResetSteps(Program& program) {
    // A format is loaded by default only where somebody can read it.
    const bool loadDefault = !program.settings.DefaultFormatPath.empty() &&
                             program.settings.LoadDefaultFormat &&
                             static_cast<bool>(program.hooks.OpenFormatFile);
    ClearNames(program);
    modTitles::SetPageHeading(program, "Event Proposal");
    program.document.WindowTitle = "Quillbrook";
    ResetPages(program);
    ResetFont(program);
    modTitles::CentreFooters(program);
    EmptyTexts(program);
    ZeroTotals(program);
    TakeFormat(program, loadDefault);
}

} // namespace

ResetResult StartNewFile(Program& program) {
    ResetResult result = ResetResult::Done;
    if (program.hooks.CloseLabelWindow) {
        program.hooks.CloseLabelWindow(program);
    }
    Guarded(program, "StartNewFile", [&] {
        {
            const ScopedFlag active(program.guards.ResetActive);
            if (FormatEditingGoesOn(program)) {
                result = ResetResult::Refused;
                return;
            }
            // Whoever leaves the proposal has been asked about them already.
            modWindows::CloseProposalWindows(program);
            ResetSteps(program);
        }
        if (program.hooks.UpdatePageButtons) {
            program.hooks.UpdatePageButtons(program, IndexOf(PageId::frmP1));
        }
        modTitles::UpdateFooters(program);
        if (program.hooks.DeSelectAllControls) {
            program.hooks.DeSelectAllControls(program);
        }
    });
    return result;
}

} // namespace modReset
