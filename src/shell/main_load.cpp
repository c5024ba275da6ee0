#include "shell/main_load.h"

#include "base/guard.h"
#include "calculator/frm_calc.h"
#include "calendar/read_event_dates.h"
#include "pages/fields.h"
#include "pages/label_records.h"
#include "pages/page_defaults.h"
#include "pages/row_fields.h"
#include "pages/titles.h"
#include "program/data_folders.h"
#include "program/errors.h"
#include "program/program.h"
#include "proposal/old_files.h"
#include "proposal/recovery.h"
#include "proposal/rescued.h"
#include "proposal/reset.h"
#include "settings/frm_tax.h"
#include "settings/settings.h"
#include "shell/closing.h"
#include "shell/command_table.h"
#include "shell/load_fonts.h"
#include "shell/main_controls.h"
#include "shell/tool_buttons.h"
#include "terms/frm_fut.h"
#include "terms/list_files.h"
#include "terms/term_list.h"

namespace modMain {

namespace {

void DisableAtStart(Program& program) {
    for (const CommandId id :
         {CommandId::mnuAdminConvert, CommandId::mnuAdminPrintAll, CommandId::mnuAdminRecalc,
          CommandId::mnuEditTextDeselect, CommandId::mnuEditTextMoveDown, CommandId::mnuEditTextMoveUp,
          CommandId::mnuEditTextPaste, CommandId::mnuEditTextUndo}) {
        program.main[id].Enabled = false;
    }
}

void OpenSideWindows(Program& program) {
    constexpr int kWideScreen = 1024;
    if (program.platform.screen.WidthInPixels() >= kWideScreen) {
        if (!program.settings.ShowFUT) {
            program.run.ACEnabled = false;
        } else {
            modTerms::ShowTermsWindow(program);
        }
    }
    if (program.settings.ShowCalc) {
        modCalculator::ShowCalculator(program);
    }
}

void LoadSteps(Program& program) {
    if (!program.settings.PrefsRead) {
        modSettings::GetUserPreferences(program);
    }
    if (!program.run.FontsLoaded) {
        modFonts::LoadTheFonts(program);
    }
    modTax::GetTaxRate(program);
    program.document.FileFilter = "*.hef";
    program.document.DocumentKind = "Event";
    {
        const ScopedFlag silent(program.guards.ResetActive);
        DisableAtStart(program);
        program.run.ACEnabled = program.settings.AutoCompleteWord;
        program.run.ACStartLen = program.settings.AutoStartPosition;
        modTitles::SetPageHeading(program, "Event Proposal");
        modFile::ConvertOldFiles(program);
        for (const PageId page : kAllPages) {
            modPages::SetUpPage(program, page);
        }
        static_cast<void>(modReset::StartNewFile(program)); // no format is open that could refuse it
        modPages::SnapshotLabels(program);
        if (!program.run.TermsPinned) {
            program.run.FUTFileName = "Default Terms.fut";
        }
        modTerms::LayDownLists(program);
        OpenSideWindows(program);
        if (!program.run.FUTShown) {
            modTerms::TakeListInUse(program); // words are completed with the window closed, too
        }
    }
    for (CommandButton* button :
         {&program.main.cmdPreview, &program.main.cmdReCalc, &program.main.cmdTaxRate}) {
        button->Enabled = true;
    }
    program.document.FolderOnShow = modFolders::DataFolder(program);
    for (const PageId page : {PageId::frmP2, PageId::frmP3, PageId::frmP4, PageId::frmP5, PageId::frmP1}) {
        modPages::EnsureRowFields(program, page);
    }
    modFields::GiveFocus(program, {PageId::frmP1, FieldKind::txt, 0});
    modCalendar::ReadEventDatesAtStart(program);
}

} // namespace

namespace {

bool Load(Program& program) {
    const ScopedFlag keep(program.guards.KeepPageContent);
    const ScopedFlag starting(program.guards.StartingUp);
    // Whatever fails below, nobody meets half a page.
    for (const PageId page : kAllPages) {
        modPages::BuildPage(program, page);
    }
    commands::LoadDesignState(program);
    program.main.imgPage[0].Pointer = MousePointer::Hand;
    modToolButtons::LoadPageButtonCursors(program);
    return Guarded(program, "MDIForm_Load", [&] { LoadSteps(program); });
}

} // namespace

void MDIForm_Load(Program& program) {
    if (!Load(program)) {
        program.platform.questions.MsgBox("Error encountered during Load Process.", Buttons::Ok, "",
                                          {.How = Manner::Came::Unasked});
        modClosing::EndRun(program);
        return;
    }
    WorkOutControls(program);
    program.main.Loaded = true;
    modRescue::OfferRescued(program); // first: what comes back lies there when its proposal is shown
    modRecovery::OfferWhatWasFound(program);
}

} // namespace modMain
