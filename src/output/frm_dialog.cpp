#include "output/frm_dialog.h"

#include "core/errors.h"
#include "core/program.h"
#include "core/windows.h"

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
