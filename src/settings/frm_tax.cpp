#include "settings/frm_tax.h"

#include "base/numbers.h"
#include "program/keys.h"
#include "program/program.h"
#include "program/windows.h"
#include "settings/tax_rate.h"

void frmTax::Form_Load(Program& program) {
    Caption = "Sales Tax Rate";
    lblTaxRate.Caption = "The Current Tax Rate is " + numbers::FormatSingle(program.totals.TaxRate, "##.00") +
                         "%. You can change it by entering a new value in the text area below.";
}

int frmTax::txtTaxRate_KeyPress(int keyAscii) {
    const bool passes = (keyAscii >= '0' && keyAscii <= '9') || keyAscii == '.' ||
                        keyAscii == keys::kBackspace || keyAscii == keys::kTab;
    return passes ? keyAscii : 0;
}

void frmTax::cmdOK_Click(Program& program) {
    modTax::SaveTaxRate(program, numbers::Format(numbers::Val(txtTaxRate.Text), "##.00"));
    program.run.SplashShown = false;
    modWindows::Close(program, *this);
}

void frmTax::cmdCancel_Click(Program& program) {
    modWindows::Close(program, *this);
}

void frmTax::Form_Cancel(Program& program) {
    modWindows::Close(program, *this);
}

namespace modTax {

void GetTaxRate(Program& program) {
    ReadTaxRate(program);
    if (program.totals.TaxRate == 0 &&
        program.platform.questions.MsgBox("The current sales tax rate is 0%. Do you want to change it now?",
                                          Buttons::YesNo, "Sales Tax Rate is 0.0%") == Answer::Yes) {
        modWindows::Show(program, std::make_unique<frmTax>());
    }
}

} // namespace modTax
