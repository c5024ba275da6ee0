#include "format/frm_snap.h"

#include "base/numbers.h"
#include "format/grid.h"
#include "program/program.h"
#include "program/windows.h"

#include <cmath>
#include <memory>
#include <string>

namespace {

constexpr float kTwipsPerInch = 1440;
constexpr std::array<std::string_view, 5> kQuick{"0.25", "0.1875", "0.125", "0.0625", ".03125"};

} // namespace

void frmSnap::Form_Load(Program& program) {
    Caption = "Snap Value";
    txtSnap.Text = numbers::PlainNumber(program.format.SnapTwips / kTwipsPerInch);
    txtSnap.SelStart = 0;
    txtSnap.SelLength = static_cast<int>(txtSnap.Text.size());
    for (std::size_t index = 0; index < kQuick.size(); ++index) {
        cmdSnap[index].Caption = kQuick[index];
    }
}

void frmSnap::cmdSnap_MouseMove(int index) {
    CommandButton& button = cmdSnap[static_cast<std::size_t>(index)];
    button.ToolTipText = numbers::PlainNumber(numbers::ValSingle(button.Caption) * kTwipsPerInch) + " Twips";
}

void frmSnap::cmdSnap_Click(Program& program, int index) {
    txtSnap.Text = cmdSnap[static_cast<std::size_t>(index)].Caption;
    program.format.SnapTwips = numbers::ValSingle(txtSnap.Text) * kTwipsPerInch;
    modWindows::Close(program, *this);
}

void frmSnap::cmdOK_Click(Program& program) {
    const auto inches = numbers::ToDouble(txtSnap.Text, "");
    const float twips = inches ? static_cast<float>(*inches) * kTwipsPerInch : 0;
    if (!modDesigner::IsSnapStep(twips)) {
        program.platform.questions.MsgBox("Not a Number", Buttons::Ok, "");
        return;
    }
    program.format.SnapTwips = twips;
    modWindows::Close(program, *this);
}

void frmSnap::cmdCancel_Click(Program& program) {
    modWindows::Close(program, *this);
}

void frmSnap::Form_Cancel(Program& program) {
    modWindows::Close(program, *this);
}

namespace modDesigner {

void mnuToolsSnap_Click(Program& program) {
    modWindows::Show(program, std::make_unique<frmSnap>());
}

void mnuToolsAlignWithSnap_Click(Program& program) {
    const float snap = program.format.SnapTwips;
    if (IsSnapStep(snap)) {
        float& top = program.pages[PageId::frmP1].Top;
        top = std::nearbyint(top / snap) * snap;
    }
}

} // namespace modDesigner
