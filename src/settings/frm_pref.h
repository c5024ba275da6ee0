#pragma once

#include "program/controls.h"
#include "program/window.h"

/// "User Preferences": what the program does at its next start.
class frmPref : public Window {
public:
    CheckBox chkShowFUT{.Caption = "Do Not Show Frequently Used Terms List at Start Up"};
    CheckBox chkShowCalc{.Caption = "Do Not Show Calculator at Start Up"};
    CheckBox chkMinimizeFUT{.Caption = "Load Frequently Used Terms at Minimized State"};
    CheckBox chkACStart{.Caption = "Remember Current Auto Word Complete Start Position"};
    CheckBox chkACEnable{.Caption = "Disable Automatic Word Complete at Start Up"};
    CheckBox chkLoadDefaultFormat{.Caption = "Do Not Load Default File Format for New Proposals"};
    CheckBox chkLoadFUT{.Caption = "Always Load the Default Frequent Terms List at Start Up"};
    CommandButton cmdSave{.Caption = "Save and Exit", .ToolTipText = ""};
    CommandButton cmdExit{.Caption = "Exit without Saving", .ToolTipText = ""};

    [[nodiscard]] std::string_view Name() const override { return "frmPref"; }
    [[nodiscard]] Modality Mode() const override { return Modality::Modal; }
    void Form_Load(Program& program) override;

    /// Keeps the seven settings and says when they take effect. Stays open when the file cannot be written.
    void cmdSave_Click(Program& program);
    void cmdExit_Click(Program& program);
};
