#pragma once

#include "program/controls.h"
#include "program/window.h"

#include <array>

/// "Auto Complete Start Position": how many characters are typed before a word is completed.
class frmACStart : public Window {
public:
    /// Positions 0 to 5, by index.
    std::array<OptionButton, 6> optACStart;
    StripLabel lblACStart{.Caption = "Enter other value", .ToolTipText = ""};
    TextBox txtACStart;
    CommandButton cmdOK{.Caption = "OK", .ToolTipText = ""};
    CommandButton cmdCancel{.Caption = "Cancel", .ToolTipText = ""};

    [[nodiscard]] std::string_view Name() const override { return "frmACStart"; }
    [[nodiscard]] Modality Mode() const override { return Modality::Modal; }
    void Form_Load(Program& program) override;

    void optACStart_Click(Program& program, int index);
    /// Digits, backspace, tab and enter pass; 0 for anything else.
    [[nodiscard]] static int txtACStart_KeyPress(int keyAscii);
    /// The chosen option is the position for this run; a text that is not empty overrides it.
    void cmdOK_Click(Program& program);
    void cmdCancel_Click(Program& program);
};
