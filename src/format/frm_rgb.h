#pragma once

#include "program/controls.h"
#include "program/window.h"

#include <array>
#include <functional>
#include <string_view>

/// A slider of one part of a colour. By its large step it reaches 256, which shows as 255.
struct ColourSlider {
    int Value = 0;
    int Min = 0;
    int Max = 256;
    int SmallChange = 16;
    bool operator==(const ColourSlider&) const = default;
};

/// The fine colour chooser of label and text windows.
class frmRGB : public Window {
public:
    ColourSlider Red;
    ColourSlider Grn;
    ColourSlider Blu;
    StripLabel lblRed{.Caption = "RED", .ToolTipText = ""};
    StripLabel lblGrn{.Caption = "GRN", .ToolTipText = ""};
    StripLabel lblBlu{.Caption = "BLU", .ToolTipText = ""};
    /// Index 0 decimal, index 1 two hexadecimal digits.
    std::array<StripLabel, 2> lblR;
    std::array<StripLabel, 2> lblG;
    std::array<StripLabel, 2> lblB;
    StripLabel lblRGB{.Caption = "RGB", .ToolTipText = "", .BackColor = colors::kBlack};
    StripLabel lblHexValue{.Caption = "HEX COLOR CODE =", .ToolTipText = ""};
    StripLabel lblIntValue{.Caption = " INTEGER VALUE =", .ToolTipText = ""};
    StripLabel lblHttpValue{.Caption = " HTTP VALUE =", .ToolTipText = ""};
    TextBox txtHexValue{.Text = "&H00&"};
    TextBox txtIntValue{.Text = "0"};
    TextBox txtHttpValue{.Text = "0"};
    CommandButton cmdNormInc{.Caption = "Norm Inc", .ToolTipText = ""};
    CommandButton cmdSmInc{.Caption = "Small Inc", .ToolTipText = ""};
    CommandButton cmdOK{.Caption = "Apply", .ToolTipText = ""};
    CommandButton cmdCancel{.Caption = "Cancel", .ToolTipText = ""};

    /// What the opener does when a colour was applied.
    std::function<void(Program&)> Applied;
    /// What the label window does when its labels were made last: where it had a group it goes on with one.
    std::function<void(Program&)> Committed;

    [[nodiscard]] std::string_view Name() const override { return "frmRGB"; }
    [[nodiscard]] Modality Mode() const override { return Modality::Modal; }
    void Form_Load(Program& program) override;
    /// Opened by the label window, closing by any way makes the label's look last.
    void Form_Unload(Program& program) override;
    void Form_Cancel(Program& program) override;

    void Red_Change(Program& program, int value);
    void Grn_Change(Program& program, int value);
    void Blu_Change(Program& program, int value);
    void cmdNormInc_Click(Program& program);
    void cmdSmInc_Click(Program& program);
    /// Reports as "RGB_OK".
    void cmdOK_Click(Program& program);
    void cmdCancel_Click(Program& program);

private:
    void ChangeRedValue();
    void ChangeGreenValue();
    void ChangeBlueValue();
    void ShowColour();
    void SetSmallChange(int step);
};
