#include "output/frm_dialog.h"

#include "program/errors.h"
#include "program/program.h"
#include "program/windows.h"

void frmDialog::Form_Load(Program&) {
    Caption = "Printing";
}

void frmDialog::cmdCancelPrint_Click(Program& program) {
    program.printing.PrintCancelled = true;
    Guarded(program, "PrintTheForm", [&] { program.platform.printers.Device().EndDoc(); });
    modWindows::Close(program, *this);
}

void frmDialog::Form_Cancel(Program& program) {
    cmdCancelPrint_Click(program);
}
