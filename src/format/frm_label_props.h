#pragma once

#include "program/controls.h"
#include "program/window.h"

#include <array>
#include <string>
#include <string_view>

/// The label window: words, font and colour of the current label or of the selected group. Every control acts
/// at once on the page; OK makes it last.
class frmLabelProps : public Window {
public:
    static constexpr std::array<int, 9> kSizes{6, 8, 10, 12, 14, 16, 18, 20, 24};

    StripLabel lblCaption{.Caption = "Label Caption", .ToolTipText = ""};
    TextBox txtCaption;
    StripLabel lblFont{.Caption = "Choose Font Below", .ToolTipText = ""};
    ListBox lstFont;
    StripLabel lblFontName;
    StripLabel lblSize;
    CheckBox chkBold{.Caption = "Bold"};
    CheckBox chkItalic{.Caption = "Italic"};
    CheckBox chkUnderline{.Caption = "Underline"};
    std::array<CommandButton, 9> cmdSize;
    /// Eight colours and white, whose tip is that of the colour before it.
    std::array<CommandButton, 9> cmdColor;
    CommandButton cmdColors{.Caption = "More Colors", .ToolTipText = ""};
    CommandButton cmdOK{.Caption = "OK", .ToolTipText = ""};
    CommandButton cmdCancel{.Caption = "Cancel", .ToolTipText = ""};
    /// Why the words cannot be changed here; empty where they can.
    StripLabel lblNotHere;
    /// The control that is to have the keyboard next; the front end takes it.
    std::string FocusNext;

    [[nodiscard]] std::string_view Name() const override { return "frmLabelProps"; }
    [[nodiscard]] Modality Mode() const override { return Modality::Modeless; }
    /// Reports as "LoadLabelProps".
    void Form_Load(Program& program) override;
    void Form_Unload(Program& program) override;
    void Form_Cancel(Program& program) override;

    void txtCaption_Change(Program& program, std::string_view text);
    /// Enter goes on to the first size button.
    void txtCaption_Enter(Program& program);
    void lstFont_Click(Program& program, int index);
    void chkBold_Click(Program& program);
    void chkItalic_Click(Program& program);
    void chkUnderline_Click(Program& program);
    void cmdSize_Click(Program& program, int index);
    void cmdColor_Click(Program& program, int index);
    void cmdColors_Click(Program& program);
    void cmdOK_Click(Program& program);
    void cmdCancel_Click(Program& program);

    /// The controls show what `LabelEdit` says.
    void ShowLabel(const Program& program);
};

namespace modDesigner {

/// The label window closes as if OK had been pressed, on the page of its label. Does nothing without one.
void CloseLabelWindow(Program& program);
/// The same when something was changed in it; otherwise it stays.
void CloseChangedLabelWindow(Program& program);
/// The label in the window counts as finished, since another one is pressed; the window stays.
void FinishLabelInWindow(Program& program);
/// The window, where it is open, shows the label just pressed.
void ShowLabelInWindow(Program& program);

} // namespace modDesigner
