#pragma once

#include "program/controls.h"
#include "program/window.h"

#include <array>
#include <string>
#include <string_view>

/// Heading and title of the pages. The box "Titled" is the running heading, "Sub-titled" the title in the
/// footers.
class frmTitle : public Window {
public:
    StripLabel lblMain{.Caption = "Your Current Proposal is Titled...", .ToolTipText = ""};
    TextBox txtTitle;
    StripLabel lblSubTitle{.Caption = "Your Current Proposal is Sub-titled...", .ToolTipText = ""};
    TextBox txtSubTitle;
    /// Beside the boxes, in their order.
    std::array<CommandButton, 2> cmdClear;
    CommandButton cmdDefault{.Caption = "Make This Title Default", .ToolTipText = ""};
    CommandButton cmdOK{.Caption = "Save and Exit", .ToolTipText = ""};
    bool TitleChanged = false; ///< since it was made the default
    /// The control that is to have the keyboard next; the front end takes it.
    std::string FocusNext;

    [[nodiscard]] std::string_view Name() const override { return "frmTitle"; }
    [[nodiscard]] Modality Mode() const override { return Modality::Modal; }
    void Form_Load(Program& program) override;
    void Form_Cancel(Program& program) override;

    void txtTitle_Change(std::string_view text);
    void txtSubTitle_Change(std::string_view text);
    void cmdClear_Click(int index);
    void cmdDefault_Click(Program& program);
    void cmdOK_Click(Program& program);
};

namespace modTitleCommands {

/// "Proposal Page Titles and Subtitles".
void mnuEditTitles_Click(Program& program);

} // namespace modTitleCommands
