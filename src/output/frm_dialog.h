#pragma once

#include "program/controls.h"
#include "program/window.h"

/// "Printing": says which page is being printed and lets the person cancel.
class frmDialog : public Window {
public:
    StripLabel lblMessage;
    CommandButton cmdCancelPrint{.Caption = "Cancel Print", .ToolTipText = ""};

    [[nodiscard]] std::string_view Name() const override { return "frmDialog"; }
    [[nodiscard]] Modality Mode() const override { return Modality::Modeless; }
    void Form_Load(Program& program) override;
    void Form_Cancel(Program& program) override;

    /// What was drawn is sent, not thrown away.
    void cmdCancelPrint_Click(Program& program);
};
