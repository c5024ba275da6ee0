#include "shell/command_run.h"

#include "calculator/frm_calc.h"
#include "editing/block_moves.h"
#include "editing/blocks.h"
#include "editing/columns.h"
#include "editing/selection.h"
#include "editing/text_areas.h"
#include "editing/text_commands.h"
#include "format/grid.h"
#include "money/totals.h"
#include "output/preview.h"
#include "output/print.h"
#include "program/program.h"
#include "program/windows.h"
#include "proposal/lifecycle.h"
#include "settings/frm_acstart.h"
#include "settings/frm_poffsets.h"
#include "settings/frm_pref.h"
#include "settings/frm_printers.h"
#include "settings/frm_tax.h"
#include "settings/settings.h"
#include "shell/admin_commands.h"
#include "shell/closing.h"
#include "shell/command_table.h"
#include "shell/find_command.h"
#include "shell/preview_refusals.h"
#include "shell/small_commands.h"
#include "terms/area_terms.h"
#include "terms/frm_fut.h"

#include <algorithm>
#include <array>

namespace commands {

namespace {

using Handler = void (*)(Program&);

template <PageId page> void PrintPage(Program& program) {
    modPrint::mnuFilePrintPage_Click(program, page);
}

template <typename Form> void ShowWindow(Program& program) {
    modWindows::Show(program, std::make_unique<Form>());
}

template <CommandId id> void Toggle(Program& program) {
    program.main[id].Checked = !program.main[id].Checked;
}

void ToggleUnderline(Program& program) {
    Toggle<CommandId::mnuOptUnderline>(program);
    program.printing.UnderlineCategories = program.main[CommandId::mnuOptUnderline].Checked;
}

void ToggleOverwrite(Program& program) {
    constexpr CommandId kId = CommandId::mnuOptEnableOverwriteFmtTextBoxes;
    Toggle<kId>(program);
    program.format.OverwriteFormatText = program.main[kId].Checked;
}

struct Route {
    CommandId Id;
    Handler Run;
};

constexpr std::array kRoutes{
    Route{CommandId::mnuFileNew, modMain::mnuFileNew_Click},
    Route{CommandId::mnuFileOpenEvent, modMain::mnuFileOpenEvent_Click},
    Route{CommandId::mnuFileSaveEvent, modMain::mnuFileSaveEvent_Click},
    Route{CommandId::mnuFileSaveAs, modMain::mnuFileSaveAs_Click},
    Route{CommandId::mnuFileRestoreFromBackup, modMain::mnuFileRestoreFromBackup_Click},
    Route{CommandId::mnuFileDelete, modMain::mnuFileDelete_Click},
    Route{CommandId::mnuFilePrintPreview, modPrint::TogglePreview},
    Route{CommandId::mnuFileResume, modPrint::TogglePreview},
    Route{CommandId::mnuFilePrintAll, modPrint::mnuFilePrintAll_Click},
    Route{CommandId::mnuFilePrintPage1, PrintPage<PageId::frmP1>},
    Route{CommandId::mnuFilePrintPage2, PrintPage<PageId::frmP2>},
    Route{CommandId::mnuFilePrintPage3, PrintPage<PageId::frmP3>},
    Route{CommandId::mnuFilePrintPage4, PrintPage<PageId::frmP4>},
    Route{CommandId::mnuFilePrintPage5, PrintPage<PageId::frmP5>},
    Route{CommandId::mnuFilePrintPage6, PrintPage<PageId::frmP6>},
    Route{CommandId::mnuFilePrintPage6_1, PrintPage<PageId::frmP6_1>},
    Route{CommandId::mnuFileExit, modMain::mnuFileExit_Click},
    Route{CommandId::mnuEditTextColumns, modColumns::ToggleColumns},
    Route{CommandId::mnuEditTextBold, modText::mnuEditTextBold_Click},
    Route{CommandId::mnuEditTextNormal, modText::mnuEditTextNormal_Click},
    Route{CommandId::mnuEditTextSelLCase, modText::mnuEditTextSelLCase_Click},
    Route{CommandId::mnuEditTextSelPCase, modText::mnuEditTextSelPCase_Click},
    Route{CommandId::mnuEditTextSelUCase, modText::mnuEditTextSelUCase_Click},
    Route{CommandId::mnuEditTextDelete, modBlocks::DeleteBlock},
    Route{CommandId::mnuEditTextUndo, modBlocks::UndoDeleteBlock},
    Route{CommandId::mnuEditTextCopy, modBlocks::CopyBlock},
    Route{CommandId::mnuEditTextCut, modBlocks::CutBlock},
    Route{CommandId::mnuEditTextPaste, modBlocks::PasteBlock},
    Route{CommandId::mnuEditTextMoveDown, modBlocks::MoveBlockDown},
    Route{CommandId::mnuEditTextMoveUp, modBlocks::MoveBlockUp},
    Route{CommandId::mnuEditTextDeselect, modBlocks::DeSelectAllControls},
    Route{CommandId::mnuEditTextCenter, modMain::mnuEditTextCenter_Click},
    Route{CommandId::mnuEditTextTaxExempt, modColumns::mnuEditTextTaxExempt_Click},
    Route{CommandId::mnuEditTextTaxable, modColumns::mnuEditTextTaxable_Click},
    Route{CommandId::mnuEditFind, modMain::mnuEditFind_Click},
    Route{CommandId::mnuEditTextAddFUT, modTerms::AddTermFromArea},
    Route{CommandId::mnuEditTextEditFUT, modTerms::mnuEditTextEditFUT_Click},
    Route{CommandId::mnuEditTextDeleteFUT, modTerms::mnuEditTextDeleteFUT_Click},
    Route{CommandId::mnuOptFUT, modTerms::mnuOptFUT_Click},
    Route{CommandId::mnuOptCalc, modCalculator::mnuOptCalc_Click},
    Route{CommandId::mnuOptPrinter, modMain::mnuOptPrinter_Click},
    Route{CommandId::mnuOptACStart, ShowWindow<frmACStart>},
    Route{CommandId::mnuOptSalesTax, ShowWindow<frmTax>},
    Route{CommandId::mnuOptNetwork, modSettings::RequestNetworkSharePath},
    Route{CommandId::mnuOptEnableOverwriteFmtTextBoxes, ToggleOverwrite},
    Route{CommandId::mnuOptHideTotals, modTotals::mnuOptHideTotals_Click},
    Route{CommandId::mnuOptUserPref, ShowWindow<frmPref>},
    Route{CommandId::mnuOptUnderline, ToggleUnderline},
    Route{CommandId::mnuToolsPrinterOffsets, ShowWindow<frmPOffsets>},
    Route{CommandId::mnuToolsRecalculate, modTotals::mnuToolsRecalculate_Click},
    Route{CommandId::mnuAdminCheckAddition, modTotals::mnuAdminCheckAddition_Click},
    Route{CommandId::mnuOptCurrencySymbol, modMain::mnuOptCurrencySymbol_Click},
    Route{CommandId::mnuOptSetDefaultFonts, modMain::mnuOptSetDefaultFonts_Click},
    Route{CommandId::mnuOptEmptyBackup, modMain::mnuOptEmptyBackup_Click},
    Route{CommandId::mnuToolsDrawCenterLines, modDesigner::mnuToolsDrawCenterLines_Click},
    Route{CommandId::mnuToolsClearCenterLines, modDesigner::mnuToolsClearCenterLines_Click},
    Route{CommandId::mnuToolsCreateShorcut, modMain::mnuToolsCreateShorcut_Click},
    Route{CommandId::mnuToolsCreateShortcutUM, modMain::mnuToolsCreateShortcutUM_Click},
    Route{CommandId::mnuAdminDelete, modMain::mnuAdminDelete_Click},
    Route{CommandId::mnuAdminDebug, modMain::mnuAdminDebug_Click},
    Route{CommandId::mnuAdminLogon, modMain::mnuAdminLogon_Click},
    Route{CommandId::mnuToolsAdminShowAllLabels, modMain::mnuToolsAdminShowAllLabels_Click},
    Route{CommandId::mnuAdminConvert, modMain::mnuAdminConvert_Click},
    Route{CommandId::mnuSupportUpdates, modMain::mnuSupportUpdates_Click},
    Route{CommandId::mnuSupportUpgrade, modMain::mnuSupportUpgrade_Click},
    Route{CommandId::mnuSupportFree, modMain::mnuSupportFree_Click},
    Route{CommandId::mnuFeedbackReportBug, modMain::mnuFeedbackReportBug_Click},
    Route{CommandId::mnuFeedbackSuggestions, modMain::mnuFeedbackSuggestions_Click},
    Route{CommandId::mnuHelpAbout, modMain::mnuHelpAbout_Click},
    Route{CommandId::mnuHelpTutorial, modMain::mnuHelpTutorial_Click},
    Route{CommandId::mnuHelpContents, modMain::mnuHelpContents_Click},
    Route{CommandId::mnuHelpFAQ, modMain::mnuHelpFAQ_Click},
    Route{CommandId::mnuHelpVersion, modMain::mnuHelpVersion_Click},
};

} // namespace

void Run(Program& program, CommandId id) {
    modBlocks::FinishMove(program); // an arrow still held: what moved must be stored before anything else
    modText::TextMenuClosed(program);
    // A shortcut must not act on the state of a field that has been left meanwhile.
    if (Find(id).Parent == CommandId::mnuEditTextBox && program.hooks.UpdateTextMenu) {
        program.hooks.UpdateTextMenu(program);
    }
    if (Find(id).State == Built::Pending) {
        program.main.Notice = kNotBuilt; // a tool button leads here, too
        return;
    }
    if (!IsAvailable(program, id) || !program.main[id].Visible) {
        return;
    }
    if (program.printing.CommandRunning) {
        return; // the pages under way are the proposal's as it stands
    }
    if (RefuseInPreview(program, id)) {
        return;
    }
    const auto* const route =
        std::find_if(kRoutes.begin(), kRoutes.end(), [id](const Route& one) { return one.Id == id; });
    if (route != kRoutes.end()) {
        route->Run(program);
    }
}

} // namespace commands
