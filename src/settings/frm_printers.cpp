#include "settings/frm_printers.h"

#include "base/rows.h"
#include "program/program.h"
#include "program/windows.h"
#include "settings/settings.h"

#include <algorithm>

void frmPrinters::Form_Load(Program& program) {
    Caption = "Available Printers";
    ListPrinters(program);
}

void frmPrinters::ListPrinters(const Program& program) {
    const Printers& printers = program.platform.printers;
    cmbPrinters.Items = printers.Names();
    const auto current = std::find(cmbPrinters.Items.begin(), cmbPrinters.Items.end(), printers.Current());
    const bool found = current != cmbPrinters.Items.end();
    cmbPrinters.ListIndex = found ? static_cast<int>(current - cmbPrinters.Items.begin()) : -1;
    cmbPrinters.Placeholder = found ? "" : "No Default Printer Found";
}

void frmPrinters::cmbPrinters_Click(Program&, int index) {
    if (HasRow(cmbPrinters.Items, index)) {
        cmbPrinters.ListIndex = index;
    }
}

void frmPrinters::cmdPrinter_Click(Program& program) {
    if (cmbPrinters.ListIndex < 0) {
        return;
    }
    const std::string name = cmbPrinters.Items[static_cast<std::size_t>(cmbPrinters.ListIndex)];
    if (program.platform.printers.MakeCurrent(name) &&
        modSettings::Store(program, {{modSettings::Key::DefaultPrinter, name}})) {
        modSettings::GetUserPreferences(program);
    }
    ListPrinters(program);
}

namespace modPrinters {

void mnuOptPrinter_Click(Program& program) {
    if (program.printing.CommandRunning) {
        return; // the pages under way belong to the printer they were given to
    }
    if (program.platform.printers.Names().empty()) {
        program.platform.questions.MsgBox("Printer Error 482. No printers found.", Buttons::Ok, "");
        return;
    }
    modWindows::Show(program, std::make_unique<frmPrinters>());
}

} // namespace modPrinters
