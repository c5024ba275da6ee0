#pragma once

#include "program/controls.h"
#include "program/window.h"

/// "Available Printers": chooses the printer that is current now and at every start.
class frmPrinters : public Window {
public:
    ListBox cmbPrinters;
    CommandButton cmdPrinter{.Caption = "Make This My Default Printer", .ToolTipText = ""};

    [[nodiscard]] std::string_view Name() const override { return "frmPrinters"; }
    [[nodiscard]] Modality Mode() const override { return Modality::Modal; }
    void Form_Load(Program& program) override;

    void cmbPrinters_Click(Program& program, int index);
    /// Makes the chosen printer current, keeps it in the settings and reads them again. A printer that has
    /// gone meanwhile only leaves the list.
    void cmdPrinter_Click(Program& program);

private:
    void ListPrinters(const Program& program);
};

namespace modPrinters {

/// Shows the window, or says that there is no printer. Nothing while pages are being printed.
void mnuOptPrinter_Click(Program& program);

} // namespace modPrinters
