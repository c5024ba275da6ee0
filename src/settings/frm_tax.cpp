#include "settings/frm_tax.h"

#include "base/numbers.h"
#include "base/text.h"
#include "program/keys.h"
#include "program/program.h"
#include "program/windows.h"
#include "settings/tax_rate.h"

#include <optional>
#include <string_view>

void frmTax::Form_Load(Program& program) {
    Caption = "Sales Tax Rate";
    // The rate as it is, not as two decimals show it: a look and OK must not round it.
    txtTaxRate.Text = numbers::PlainNumber(program.totals.TaxRate);
    txtTaxRate.SelLength = static_cast<int>(txtTaxRate.Text.size());
    inForce_ = txtTaxRate.Text;
    lblTaxRate.Caption = "The Current Tax Rate is " + numbers::FormatSingle(program.totals.TaxRate, "##.00") +
                         "%. You can change it by entering a new value in the text area below.";
}

int frmTax::txtTaxRate_KeyPress(int keyAscii) {
    const bool passes = (keyAscii >= '0' && keyAscii <= '9') || keyAscii == '.' || keyAscii == ',' ||
                        keyAscii == keys::kBackspace || keyAscii == keys::kTab;
    return passes ? keyAscii : 0;
}

void frmTax::cmdOK_Click(Program& program) {
    const std::string_view typed = text::Trim(txtTaxRate.Text);
    if (typed.empty() || typed == inForce_) {
        modWindows::Close(program, *this);
        return;
    }
    const std::optional<double> rate = numbers::ToDouble(typed);
    if (!rate) {
        program.platform.questions.MsgBox(numbers::NoNumberMessage(typed), Buttons::Ok, "");
        return;
    }
    modTax::SaveTaxRate(program, numbers::Format(*rate, "##.00"));
    modWindows::Close(program, *this);
}

void frmTax::cmdCancel_Click(Program& program) {
    modWindows::Close(program, *this);
}

namespace modTax {

void GetTaxRate(Program& program) {
    ReadTaxRate(program);
    if (program.totals.TaxRate == 0 &&
        program.platform.questions.MsgBox("The current sales tax rate is 0%. Do you want to change it now?",
                                          Buttons::YesNo, "Sales Tax Rate is 0.0%",
                                          {.How = Manner::Came::Unasked}) == Answer::Yes) {
        modWindows::Show(program, std::make_unique<frmTax>());
    }
}

} // namespace modTax
