#include "shell/frm_main.h"

#include "base/numbers.h"
#include "editing/navigation.h"
#include "editing/selection.h"
#include "money/totals.h"
#include "output/preview.h"
#include "pages/fields.h"
#include "program/program.h"
#include "program/windows.h"
#include "shell/command_run.h"
#include "shell/page_switch.h"
#include "shell/tool_buttons.h"

void frmMain::cmdClearMem_Click() {
    commands::Run(program_, CommandId::mnuEditTextDeselect);
}

void frmMain::cmdPreview_Click() {
    const bool stands = modPreview::PreviewStands(program_);
    commands::Run(program_, stands ? CommandId::mnuFileResume : CommandId::mnuFilePrintPreview);
}

void frmMain::cmdReCalc_Click() {
    // The button tells the figures, the menu does not; what stands against one stands against the other.
    if (commands::MayRun(program_, CommandId::mnuToolsRecalculate)) {
        modTotals::cmdReCalc_Click(program_);
    }
}

void frmMain::cmdTaxRate_Click() {
    commands::Run(program_, CommandId::mnuOptSalesTax);
}

void frmMain::lblDir_MouseMove() {
    program_.main.lblDir.ToolTipText = program_.main.lblDir.Caption;
}

void frmMain::lblTextNum_DblClick() {
    const Window* calculator = modWindows::Find(program_, "frmCalc");
    const float left = calculator == nullptr ? 0 : calculator->Left;
    const float top = calculator == nullptr ? 0 : calculator->Top;
    program_.main.lblTextNum.Caption =
        "X= " + numbers::PlainNumber(left) + " Y= " + numbers::PlainNumber(top);
}

// Wanted: this button shows its pressed look and starts nothing; a new proposal starts from the menu.
void frmMain::imgNew_MouseDown() {
    modToolButtons::PressToolButton(program_, program_.main.imgNew);
}

void frmMain::imgOpen_MouseDown() {
    modToolButtons::PressToolButton(program_, program_.main.imgOpen);
    commands::Run(program_, CommandId::mnuFileOpenEvent);
}

void frmMain::imgFootNotes_MouseDown() {
    modToolButtons::PressToolButton(program_, program_.main.imgFootNotes);
    commands::Run(program_, CommandId::mnuFileOpenFootnotes);
}

void frmMain::imgPrint_Click() {
    modToolButtons::PressToolButton(program_, program_.main.imgPrint);
    commands::Run(program_, CommandId::mnuFilePrintAll);
}

void frmMain::imgSave_Click() {
    commands::Run(program_, CommandId::mnuFileSaveEvent);
}

void frmMain::imgSaveAs_Click() {
    commands::Run(program_, CommandId::mnuFileSaveAs);
}

void frmMain::imgSearch_Click() {
    commands::Run(program_, CommandId::mnuEditFind);
}

void frmMain::imgSpellCheck_Click() {
    commands::Run(program_, CommandId::mnuEditSpellCheck);
}

void frmMain::imgPage_Click(int index) {
    modBlocks::FinishMove(program_); // the arrow is let go on another page
    modScroll::UpdatePageButtons(program_, index);
    if (index < 0 || index >= kPageCount) {
        return;
    }
    // The keyboard goes along to the page that was chosen: its first area, on the final page the deposit.
    const PageId page = PageAt(index);
    constexpr int kDeposit = 4;
    if (page == PageId::frmP6_1) {
        modFields::DropFocus(program_);
    } else {
        const FieldRef first{page, FieldKind::txt, page == PageId::frmP6 ? kDeposit : 0};
        modNavigate::Arrive(program_, first);
        modScroll::BringIntoView(program_, first);
    }
}
