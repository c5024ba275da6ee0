#pragma once

#include "program/controls.h"
#include "program/window.h"

#include <array>
#include <string_view>

/// The step by which labels move, in inches.
class frmSnap : public Window {
public:
    StripLabel lblSnapValue{.Caption = "Current Snap Value is", .ToolTipText = ""};
    TextBox txtSnap;
    StripLabel lblSnap{.Caption = "Change to...", .ToolTipText = ""};
    std::array<CommandButton, 5> cmdSnap;
    CommandButton cmdOK{.Caption = "OK", .ToolTipText = ""};
    CommandButton cmdCancel{.Caption = "Cancel", .ToolTipText = ""};

    [[nodiscard]] std::string_view Name() const override { return "frmSnap"; }
    [[nodiscard]] Modality Mode() const override { return Modality::Modal; }
    void Form_Load(Program& program) override;
    void Form_Cancel(Program& program) override;

    void cmdSnap_Click(Program& program, int index);
    /// The pointer over a button: its tip says the step in twips.
    void cmdSnap_MouseMove(int index);
    /// A step below 0.01 or above 4 inches is none.
    void cmdOK_Click(Program& program);
    void cmdCancel_Click(Program& program);
};

namespace modDesigner {

/// "Change Snap".
void mnuToolsSnap_Click(Program& program);
/// "Align Form to Snap": the height at which frmP1 stands goes to the nearest whole step, whichever page is
/// in front; half a step goes to the even one.
void mnuToolsAlignWithSnap_Click(Program& program);

} // namespace modDesigner
