#pragma once

#include "program/controls.h"
#include "program/window.h"

#include <array>
#include <string>
#include <string_view>

/// The calculator: an equation line whose result can go into the next equation, a memory, the clipboard or a
/// field.
class frmCalc : public Window {
public:
    TextBox txtE;
    TextBox txtR;
    StripLabel lblE{.Caption = "Equation", .ToolTipText = ""};
    StripLabel lblResults{.Caption = "Results", .ToolTipText = ""};
    std::array<CommandButton, 10> cmd;
    CommandButton cmdDec{.Caption = ".", .ToolTipText = ""};
    std::array<CommandButton, 4> cmdOp{
        CommandButton{.Caption = "x", .ToolTipText = ""}, CommandButton{.Caption = "/", .ToolTipText = ""},
        CommandButton{.Caption = "+", .ToolTipText = ""}, CommandButton{.Caption = "-", .ToolTipText = ""}};
    CommandButton cmdEquals{.Caption = "=", .ToolTipText = ""};
    CommandButton cmdAns{.Caption = "ANS", .ToolTipText = ""};
    CommandButton cmdClear{.Caption = "C",
                           .ToolTipText = "Clear (Click to clear rightmost entry, Right-Click to clear all)"};
    std::array<CommandButton, 3> cmdMem{CommandButton{.Caption = "MC", .ToolTipText = ""},
                                        CommandButton{.Caption = "M+", .ToolTipText = ""},
                                        CommandButton{.Caption = "MR", .ToolTipText = ""}};
    CommandButton cmdCopy{.Caption = "Copy Results to Clipboard", .ToolTipText = "", .Enabled = false};

    double Ans = 0;
    std::string Memory;
    std::string LeftOperand;
    std::string RightOperand;
    std::string Operator;
    bool NewEquation = false;  ///< the next character typed starts a fresh line
    bool ResultStands = false; ///< `txtR` answers the line above it; it may be dragged and copied
    bool ResultHasKeyboard = false;

    [[nodiscard]] std::string_view Name() const override { return "frmCalc"; }
    [[nodiscard]] Modality Mode() const override { return Modality::Modeless; }
    void Form_Load(Program& program) override;
    void Form_Unload(Program& program) override;
    void Form_Cancel(Program& program) override;
    /// The window's background: its place and size.
    void Form_DblClick(Program& program);
    /// Enter, also on a button: an "=" and the evaluation.
    void Form_Enter(Program& program);

    /// 0 for a character that is not taken. The first one after a result empties the line, taken or not.
    [[nodiscard]] int txtE_KeyPress(int keyAscii);
    /// The same, and a comma is told: dropped without a word it would make 15 of 1,5.
    [[nodiscard]] int txtE_KeyPress(Program& program, int keyAscii);
    enum class By { Key, Other };
    /// What the line holds after an edit. An operator typed as its first character goes on from the last
    /// result.
    void txtE_Change(std::string_view text, int selStart, By by);
    void txtE_KeyUp(Program& program);
    void txtE_GotFocus() { ResultHasKeyboard = false; }
    void txtR_GotFocus();
    /// A character typed on the result goes to the equation.
    void txtR_KeyPress(Program& program, int keyAscii);
    /// A drag begins: the result is under the pointer. False when there is none to drag.
    [[nodiscard]] bool txtR_MouseMove(Program& program) const;

    void cmd_Click(Program& program, int digit);
    void cmdDec_Click(Program& program);
    void cmdOp_Click(Program& program, int index);
    void cmdEquals_Click(Program& program);
    void cmdAns_Click(Program& program);
    void cmdClear_Click();
    /// The right button (2) empties line and result; answer and memory stay.
    void cmdClear_MouseDown(int button);
    void cmdMem_Click(Program& program, int index);
    void cmdCopy_Click(Program& program);

    void ParseEquation(const Program& program);

private:
    void Append(const Program& program, std::string_view text, By by);
    void SetEquation(std::string_view text, int selStart);
    void SeperateInputs();
    void Echo(bool calculated);
    /// Whether `txtR` is the answer to the line above it.
    void Answered(bool calculated);
};

namespace modCalculator {

/// Shows the window, or brings it up when it is open.
void mnuOptCalc_Click(Program& program);
/// The same without taking the keyboard.
void ShowCalculator(Program& program);

} // namespace modCalculator
