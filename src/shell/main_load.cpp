#include "shell/main_load.h"

#include "base/files.h"
#include "base/guard.h"
#include "base/paths.h"
#include "pages/fields.h"
#include "pages/page_setup.h"
#include "pages/titles.h"
#include "program/data_folders.h"
#include "program/errors.h"
#include "program/program.h"
#include "proposal/file_names.h"
#include "proposal/reset.h"
#include "settings/settings.h"
#include "shell/command_table.h"
#include "shell/load_fonts.h"
#include "shell/tool_buttons.h"
#include "terms/list_files.h"
#include "terms/term_list.h"

#include <optional>

namespace modMain {

namespace {

void DisableAtStart(Program& program) {
    for (const CommandId id :
         {CommandId::mnuOptCopyToBusinessAddressBook, CommandId::mnuOptCopyToPersonalAddressBook,
          CommandId::mnuAdminConvert, CommandId::mnuAdminPrintAll, CommandId::mnuAdminRecalc,
          CommandId::mnuEditTextDeselect, CommandId::mnuEditTextMoveDown, CommandId::mnuEditTextMoveUp,
          CommandId::mnuEditTextPaste, CommandId::mnuEditTextUndo, CommandId::mnuFileRestoreFromBackup}) {
        program.main[id].Enabled = false;
    }
}

void OpenSideWindows(Program& program) {
    constexpr int kWideScreen = 1024;
    if (program.platform.screen.WidthInPixels() >= kWideScreen) {
        if (!program.settings.ShowFUT) {
            program.run.ACEnabled = false;
        } else if (program.hooks.ShowTermsWindow) {
            program.hooks.ShowTermsWindow(program);
        }
    }
    if (program.settings.ShowCalc && program.hooks.ShowCalculator) {
        program.hooks.ShowCalculator(program);
    }
}

void LoadSteps(Program& program) {
    if (!program.settings.PrefsRead) {
        modSettings::GetUserPreferences(program);
    }
    if (!program.run.FontsLoaded) {
        LoadTheFonts(program);
    }
    SettleDefaultFont(program);
    modSettings::GetTaxRate(program);
    program.document.FileFilter = "*.hef";
    program.document.DocumentKind = "Event";
    program.format.PropTextChanges = {};
    program.format.PropLabelChanges = {};
    program.format.FormatTextChanges = {};
    program.format.FormatLabelChanges = {};
    program.format.LabelSavedState = {};
    {
        const ScopedFlag silent(program.guards.ResetActive);
        DisableAtStart(program);
        program.run.ACEnabled = program.settings.AutoCompleteWord;
        program.run.ACStartLen = program.settings.AutoStartPosition;
        SetPageHeading(program, "Event Proposal");
        ConvertOldFiles(program);
        for (const PageId page : kAllPages) {
            modPages::SetUpPage(program, page);
        }
        modPages::ApplyPageFonts(program);
        static_cast<void>(StartNewFile(program));
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
    program.main.lblDir.Caption = "Current Folder = " + modFolders::DataFolder(program);
    for (const PageId page : {PageId::frmP2, PageId::frmP3, PageId::frmP4, PageId::frmP5, PageId::frmP1}) {
        modPages::EnsureRowFields(program, page);
    }
    modPages::ApplyPageFonts(program);
    modFields::GiveFocus(program, {PageId::frmP1, FieldKind::txt, 0});
    if (program.hooks.ReadEventDates) {
        program.hooks.ReadEventDates(program);
    }
}

} // namespace

void MDIForm_Load(Program& program) {
    const ScopedFlag keep(program.guards.KeepPageContent);
    const ScopedFlag starting(program.guards.StartingUp);
    commands::LoadDesignState(program);
    program.main.imgPage[0].Pointer = MousePointer::Hand;
    LoadPageButtonCursors(program);
    program.main.State = WindowState::Maximised;
    if (!Guarded(program, "MDIForm_Load", [&] { LoadSteps(program); })) {
        program.platform.questions.MsgBox("Error encountered during Load Process.", Buttons::Ok, "");
    }
    program.main.Loaded = true;
}

void ConvertOldFiles(Program& program) {
    Guarded(program, "ConvertOldFiles", [&] {
        const std::string folder = modFolders::DataFolder(program);
        if (!files::IsFolder(folder)) {
            return;
        }
        // One that stays as it is does not keep the others; the first failure is told at the end.
        std::optional<files::FileError> failure;
        for (const std::string& name : files::List(folder, "*.hwf")) {
            const std::string to = paths::Join(folder, std::string(paths::BaseOf(name)) + ".hef");
            try {
                if (files::Exists(to)) {
                    throw files::FileError(files::kAlreadyExists, "File already exists: " + to);
                }
                files::Rename(paths::Join(folder, name), to);
            } catch (const files::FileError& error) {
                failure = failure.value_or(error);
            }
        }
        if (failure) {
            throw files::FileError(*failure);
        }
    });
}

} // namespace modMain
