#pragma once

#include "program/controls.h"
#include "program/window.h"

/// Adds terms to the open list, one after another.
class frmAddFUT : public Window {
public:
    TextBox txtAddFUT;
    CommandButton cmdSave{.Caption = "Save", .ToolTipText = ""};
    CommandButton cmdClear{.Caption = "Clear", .ToolTipText = ""};
    CommandButton cmdExit{.Caption = "Done", .ToolTipText = ""};

    [[nodiscard]] std::string_view Name() const override { return "frmAddFUT"; }
    [[nodiscard]] Modality Mode() const override { return Modality::Modal; }
    void Form_Load(Program& program) override;
    void Form_Cancel(Program& program) override;

    /// Also Enter in the box. Adds and empties the box for the next term; what was refused stays in it.
    void cmdSave_Click(Program& program);
    void cmdClear_Click();
    void cmdExit_Click(Program& program);
};
