#include "settings/frm_poffsets.h"

#include "base/numbers.h"
#include "base/text.h"
#include "program/keys.h"
#include "program/program.h"
#include "program/windows.h"
#include "settings/printer_offsets.h"

#include <cmath>
#include <string_view>

namespace {

float TwipsTyped(const TextBox& box) {
    const float twips = numbers::ToSingle(text::Trim(box.Text)).value_or(0) * modOffsets::kTwipsPerInch;
    return std::isfinite(twips) ? twips : 0;
}

} // namespace

void frmPOffsets::Form_Load(Program& program) {
    Caption = "Printer Offsets";
    // The boxes begin with what is in force, so that one of them can be changed alone.
    txtX.Text = modOffsets::InchesOf(program.printing.PrinterOffsetX);
    txtY.Text = modOffsets::InchesOf(program.printing.PrinterOffsetY);
    ShowValues(program);
}

void frmPOffsets::ShowValues(const Program& program) {
    const auto inches = [](float twips) {
        return numbers::FormatSingle(twips / modOffsets::kTwipsPerInch, "#0.00") + "\"";
    };
    lblX.Caption =
        "Printer X Offset (Horizontal) - Current Value = " + inches(program.printing.PrinterOffsetX);
    // Wanted: the second label says "Horizontal" too; what its box moves is told by "Y".
    lblY.Caption =
        "Printer Y Offset (Horizontal) - Current Value = " + inches(program.printing.PrinterOffsetY);
}

int frmPOffsets::txt_KeyPress(int keyAscii) {
    const bool passes = (keyAscii >= '0' && keyAscii <= '9') || keyAscii == ',' || keyAscii == '-' ||
                        keyAscii == '.' || keyAscii == keys::kBackspace;
    return passes ? keyAscii : 0;
}

frmPOffsets::Numbers frmPOffsets::Take(Program& program) {
    for (const TextBox* box : {&txtX, &txtY}) {
        const std::string_view typed = text::Trim(box->Text);
        if (!typed.empty() && !numbers::IsNumeric(typed)) {
            program.platform.questions.MsgBox(numbers::NoNumberMessage(typed), Buttons::Ok, "");
            return Numbers::Refused;
        }
    }
    program.printing.PrinterOffsetX = TwipsTyped(txtX);
    program.printing.PrinterOffsetY = TwipsTyped(txtY);
    ShowValues(program);
    return Numbers::Taken;
}

void frmPOffsets::cmdOK_Click(Program& program) {
    static_cast<void>(Take(program)); // a refusal has been told
}

void frmPOffsets::cmdSavePrinterOffsets_Click(Program& program) {
    if (Take(program) == Numbers::Refused) {
        return;
    }
    modOffsets::SavePrinterOffsets(program);
    modWindows::Close(program, *this);
}

void frmPOffsets::mnuHelpPrinterOffsets_Click(Program& program) {
    program.platform.questions.MsgBox(
        text::Lines(
            {"If your documents are not printing on center, you need to adjust your offsets.",
             "The X offset controls the left to right centering and the Y offset controls",
             "the up and down centering. Enter all values in inches. Negative values are permitted."}),
        Buttons::Ok, "");
}
