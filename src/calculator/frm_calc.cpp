#include "calculator/frm_calc.h"

#include "base/numbers.h"
#include "calculator/equation.h"
#include "program/keys.h"
#include "program/program.h"
#include "program/windows.h"

#include <memory>

namespace {

/// The line takes no more; what a paste brings beyond it is left out.
constexpr std::size_t kLongest = 255;

} // namespace

void frmCalc::Form_Load(Program& program) {
    Caption = "  Calculator";
    for (std::size_t digit = 0; digit < cmd.size(); ++digit) {
        cmd[digit].Caption = std::to_string(digit);
    }
    program.run.CalcShown = true;
}

void frmCalc::Form_Unload(Program& program) {
    program.run.CalcShown = false;
}

void frmCalc::Form_Cancel(Program& program) {
    modWindows::Close(program, *this);
}

void frmCalc::Form_DblClick(Program& program) {
    program.platform.questions.MsgBox(
        "Left=" + numbers::PlainNumber(Left) + ":Top=" + numbers::PlainNumber(Top) +
            ":Width=" + numbers::PlainNumber(Width) + ":Height=" + numbers::PlainNumber(Height),
        Buttons::Ok, "");
}

void frmCalc::Form_Enter(Program& program) {
    cmdEquals_Click(program);
}

int frmCalc::txtE_KeyPress(int keyAscii) {
    if (NewEquation) {
        NewEquation = false;
        SetEquation("", 0);
    }
    if (keyAscii == 'x' || keyAscii == 'X') {
        return '*';
    }
    const bool taken = (keyAscii >= '0' && keyAscii <= '9') || keyAscii == '.' || keyAscii == '=' ||
                       keyAscii == keys::kBackspace || modCalculator::IsOperator(static_cast<char>(keyAscii));
    return taken ? keyAscii : 0;
}

int frmCalc::txtE_KeyPress(Program& program, int keyAscii) {
    if (keyAscii == ',') {
        program.main.Notice = "The calculator takes no comma: write 1.5 for one and a half.";
    }
    return txtE_KeyPress(keyAscii);
}

void frmCalc::SetEquation(std::string_view text, int selStart) {
    txtE.Text = text.substr(0, kLongest);
    txtE.SelStart = selStart;
    txtE.SelLength = 0;
    if (!txtE.Text.empty()) {
        lblE.Caption = txtE.Text;
        Echo(true);
    }
}

void frmCalc::Echo(bool calculated) {
    lblE.ForeColor = calculated ? colors::kBlack : colors::kOverLimit;
    lblE.ToolTipText = calculated ? "" : "Not calculated";
}

void frmCalc::Answered(bool calculated) {
    ResultStands = calculated;
    cmdCopy.Enabled = calculated;
    Echo(calculated);
}

void frmCalc::txtE_Change(std::string_view text, int selStart, By by) {
    const std::string answer = numbers::PlainNumber(Ans);
    const bool operatorFirst =
        by == By::Key && selStart == 1 && !text.empty() && modCalculator::IsOperator(text.front());
    if (operatorFirst && !text.starts_with(answer)) {
        SetEquation(answer + std::string(text), static_cast<int>(answer.size()) + 1);
    } else {
        SetEquation(text, selStart);
    }
}

void frmCalc::txtE_KeyUp(Program& program) {
    if (txtE.Text.ends_with('=')) {
        ParseEquation(program);
    }
}

void frmCalc::SeperateInputs() {
    LeftOperand.clear();
    RightOperand.clear();
    Operator.clear();
}

void frmCalc::txtR_GotFocus() {
    ResultHasKeyboard = true;
    NewEquation = true;
    SeperateInputs();
}

void frmCalc::txtR_KeyPress(Program& program, int keyAscii) {
    const int taken = txtE_KeyPress(program, keyAscii);
    ResultHasKeyboard = false;
    if (taken != 0 && taken != keys::kBackspace) {
        const char character = static_cast<char>(taken);
        Append(program, std::string_view(&character, 1), By::Key);
    }
}

bool frmCalc::txtR_MouseMove(Program& program) const {
    if (ResultStands) {
        program.terms.DraggedTerm = txtR.Text;
    }
    return ResultStands;
}

void frmCalc::Append(const Program& program, std::string_view text, By by) {
    if (NewEquation) {
        NewEquation = false;
        SetEquation("", 0);
    }
    const std::string line = txtE.Text + std::string(text);
    txtE_Change(line, static_cast<int>(line.size()), by);
    ResultHasKeyboard = false;
    if (txtE.Text.ends_with('=')) {
        ParseEquation(program);
    }
}

void frmCalc::cmd_Click(Program& program, int digit) {
    Append(program, cmd[static_cast<std::size_t>(digit)].Caption, By::Key);
}

void frmCalc::cmdDec_Click(Program& program) {
    Append(program, cmdDec.Caption, By::Key);
}

void frmCalc::cmdOp_Click(Program& program, int index) {
    const std::string& caption = cmdOp[static_cast<std::size_t>(index)].Caption;
    Append(program, caption == "x" ? "*" : caption, By::Key);
}

void frmCalc::cmdEquals_Click(Program& program) {
    Append(program, cmdEquals.Caption, By::Key);
}

void frmCalc::cmdAns_Click(Program& program) {
    if (NewEquation || !txtE.Text.ends_with('=')) {
        Append(program, numbers::PlainNumber(Ans), By::Other);
    }
}

void frmCalc::cmdClear_Click() {
    if (txtE.Text.empty()) {
        return;
    }
    const std::string line = txtE.Text.substr(0, txtE.Text.size() - 1);
    txtE_Change(line, static_cast<int>(line.size()), By::Other);
}

void frmCalc::cmdClear_MouseDown(int button) {
    constexpr int kRightButton = 2;
    if (button != kRightButton) {
        return;
    }
    SetEquation("", 0);
    txtR.Text.clear();
    Answered(false);
    lblE.Caption = "Equation";
    Echo(true);
}

void frmCalc::cmdMem_Click(Program& program, int index) {
    enum { kClear, kStore, kRecall };
    if (index == kClear) {
        Memory.clear();
    } else if (index == kStore) {
        Memory = txtR.Text;
    } else if (index == kRecall && !Memory.empty()) {
        Append(program, Memory, By::Other);
    }
}

void frmCalc::cmdCopy_Click(Program& program) {
    if (ResultStands) {
        program.platform.clipboard.Clear();
        program.platform.clipboard.SetText(txtR.Text);
    }
}

void frmCalc::ParseEquation(const Program& program) {
    const std::string equation = txtE.Text;
    if (modCalculator::IsPercentage(equation)) {
        program.platform.questions.MsgBox("Percent not functional yet.", Buttons::Ok, "");
        return;
    }
    std::optional<modCalculator::Parts> parts;
    if (modCalculator::IsEquation(equation)) {
        parts = modCalculator::Split(std::string_view(equation).substr(0, equation.size() - 1));
    }
    if (parts) {
        LeftOperand = parts->Left;
        Operator = std::string(1, parts->Operator);
        RightOperand = parts->Right;
        const std::optional<double> value = modCalculator::Evaluate(*parts);
        if (!value) {
            // The line stays as it is, to be put right; the result before it is no answer to it.
            Answered(false);
            return;
        }
        Ans = *value;
        txtR.Text = numbers::PlainNumber(Ans);
        txtR.SelStart = 0;
        txtR.SelLength = static_cast<int>(txtR.Text.size());
        txtR_GotFocus();
    }
    lblE.Caption = equation + txtR.Text;
    Answered(parts.has_value());
    txtE.Text.clear();
    txtE.SelStart = 0;
}

namespace modCalculator {

void mnuOptCalc_Click(Program& program) {
    ShowCalculator(program);
    if (Window* window = modWindows::Find(program, "frmCalc")) {
        modWindows::BringToFront(*window);
    }
}

void ShowCalculator(Program& program) {
    if (modWindows::Find(program, "frmCalc") == nullptr) {
        modWindows::Show(program, std::make_unique<frmCalc>());
    }
}

} // namespace modCalculator
