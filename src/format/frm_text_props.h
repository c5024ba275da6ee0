#pragma once

#include "program/change_records.h"
#include "program/controls.h"
#include "program/window.h"

#include <array>
#include <string_view>

/// The one font of all text areas. Controls change the font in force at once, but the pages take it only with
/// "Apply Changes"; every closing but that puts the font back.
class frmTextProps : public Window {
public:
    StripLabel lblFont{.Caption = "Choose Font Below", .ToolTipText = ""};
    ListBox lstFont;
    StripLabel lblFontName;
    std::array<OptionButton, 5> optFontSize;
    std::array<CommandButton, 8> cmdColor;
    StripLabel lblFontColor{.Caption = "Current Font Color = ", .ToolTipText = ""};
    CommandButton cmdColors{.Caption = "More Colors", .ToolTipText = ""};
    CheckBox chkItalic{.Caption = "Italic"};
    TextBox txtSample;
    AreaFont SampleFont; ///< of `txtSample`
    CommandButton cmdOK{.Caption = "Apply Changes", .ToolTipText = ""};
    CommandButton cmdCancel{.Caption = "Cancel", .ToolTipText = ""};
    CommandButton cmdDefault{.Caption = "Set these Font Properties as Default", .ToolTipText = ""};

    [[nodiscard]] std::string_view Name() const override { return "frmTextProps"; }
    [[nodiscard]] Modality Mode() const override { return Modality::Modal; }
    void Form_Load(Program& program) override;
    void Form_Unload(Program& program) override;
    void Form_Cancel(Program& program) override;
    /// A font that is only tried is none of the proposal's.
    void KeepUnsaved(Program& program) override;

    void lstFont_Click(Program& program, int index);
    void optFontSize_Click(Program& program, int index);
    void cmdColor_Click(Program& program, int index);
    void cmdColors_Click(Program& program);
    void chkItalic_Click(Program& program);
    void cmdOK_Click(Program& program);
    void cmdCancel_Click(Program& program);
    void cmdDefault_Click(Program& program);

    /// The controls and the sample show the font in force.
    void ShowFont(const Program& program);

private:
    void CheckDefaultFontSize(const Program& program);
    void CheckDefaultFontColor(const Program& program);
    /// The pages take the font in force.
    void Apply(Program& program);
    /// What the pages have taken stays in force; everything since goes.
    void PutBack(Program& program);
    void ShowSample(const Program& program);
    AreaFont before_;
};

namespace modAreaFont {

/// "Edit All Text Area Fonts".
void mnuEditAllTextFonts_Click(Program& program);

} // namespace modAreaFont
