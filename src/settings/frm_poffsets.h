#pragma once

#include "program/controls.h"
#include "program/window.h"

/// "Printer Offsets": moves what is printed on the paper, in inches.
class frmPOffsets : public Window {
public:
    StripLabel lblX;
    StripLabel lblY;
    TextBox txtX;
    TextBox txtY;
    CommandButton cmdOK{.Caption = "Apply", .ToolTipText = ""};
    CommandButton cmdSavePrinterOffsets{.Caption = "Save Printer Offsets", .ToolTipText = ""};

    [[nodiscard]] std::string_view Name() const override { return "frmPOffsets"; }
    [[nodiscard]] Modality Mode() const override { return Modality::Modal; }
    void Form_Load(Program& program) override;

    /// Digits, comma, minus, point and backspace pass; 0 for anything else, enter and tab included. For both
    /// boxes.
    [[nodiscard]] static int txt_KeyPress(int keyAscii);
    /// What the boxes hold is in force from now on. The window stays open. What is no number is told, and
    /// nothing changes.
    void cmdOK_Click(Program& program);
    /// Puts the boxes in force, writes the file and closes; stays open over what is no number.
    void cmdSavePrinterOffsets_Click(Program& program);
    static void mnuHelpPrinterOffsets_Click(Program& program);

private:
    enum class Numbers { Taken, Refused };
    [[nodiscard]] Numbers Take(Program& program);
    void ShowValues(const Program& program);
};
