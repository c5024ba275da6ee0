#include "settings/frm_acstart.h"

#include "base/numbers.h"
#include "base/text.h"
#include "program/keys.h"
#include "program/program.h"
#include "program/windows.h"

#include <algorithm>

void frmACStart::Form_Load(Program& program) {
    Caption = "Auto Complete Start Position";
    for (std::size_t index = 0; index < optACStart.size(); ++index) {
        optACStart[index].Caption = std::to_string(index);
    }
    const int position = program.run.ACStartLen;
    if (position >= 0 && static_cast<std::size_t>(position) < optACStart.size()) {
        optACStart_Click(program, position);
    } else {
        txtACStart.Text = std::to_string(position);
    }
}

void frmACStart::optACStart_Click(Program&, int index) {
    for (std::size_t option = 0; option < optACStart.size(); ++option) {
        optACStart[option].Value = static_cast<int>(option) == index;
    }
}

int frmACStart::txtACStart_KeyPress(int keyAscii) {
    const bool passes = (keyAscii >= '0' && keyAscii <= '9') || keyAscii == keys::kBackspace ||
                        keyAscii == keys::kTab || keyAscii == keys::kEnter;
    return passes ? keyAscii : 0;
}

void frmACStart::cmdOK_Click(Program& program) {
    constexpr double kMost = 1e9; // as far as the settings file is read
    if (!text::Trim(txtACStart.Text).empty()) {
        program.run.ACStartLen = static_cast<int>(std::clamp(numbers::Val(txtACStart.Text), 0.0, kMost));
    } else {
        const auto chosen = std::find_if(optACStart.begin(), optACStart.end(),
                                         [](const OptionButton& option) { return option.Value; });
        if (chosen != optACStart.end()) {
            program.run.ACStartLen = static_cast<int>(chosen - optACStart.begin());
        }
    }
    modWindows::Close(program, *this);
}

void frmACStart::cmdCancel_Click(Program& program) {
    modWindows::Close(program, *this);
}
