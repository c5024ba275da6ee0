#pragma once

#include "program/controls.h"
#include "program/window.h"

#include <string>

/// "Sales Tax Rate": shows the rate in force and takes a new one.
class frmTax : public Window {
public:
    StripLabel lblTaxRate;
    TextBox txtTaxRate;
    CommandButton cmdOK{.Caption = "OK", .ToolTipText = ""};
    CommandButton cmdCancel{.Caption = "Cancel", .ToolTipText = ""};

    [[nodiscard]] std::string_view Name() const override { return "frmTax"; }
    [[nodiscard]] Modality Mode() const override { return Modality::Modal; }
    void Form_Load(Program& program) override;

    /// Digits, point, comma, backspace and tab pass; 0 for anything else.
    [[nodiscard]] static int txtTaxRate_KeyPress(int keyAscii);
    /// Saves what was typed. An empty box and the rate that is in force change nothing; what is no number is
    /// told, and the window stays.
    void cmdOK_Click(Program& program);
    void cmdCancel_Click(Program& program);

private:
    std::string inForce_;
};

namespace modTax {

/// Reads the tax rate; a rate of zero asks whether to change it.
void GetTaxRate(Program& program);

} // namespace modTax
