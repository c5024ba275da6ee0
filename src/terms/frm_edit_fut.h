#pragma once

#include "program/controls.h"
#include "program/window.h"
#include "terms/term_list.h"

#include <utility>

/// Changes one term of the open list.
class frmEditFUT : public Window {
public:
    explicit frmEditFUT(modTerms::TermLine term) : term_(std::move(term)) {}

    TextBox txtEditFUT;
    CommandButton cmdSave{.Caption = "Save Changes and Exit", .ToolTipText = ""};
    CommandButton cmdExit{.Caption = "Cancel", .ToolTipText = ""};

    [[nodiscard]] std::string_view Name() const override { return "frmEditFUT"; }
    [[nodiscard]] Modality Mode() const override { return Modality::Modal; }
    void Form_Load(Program& program) override;
    void Form_Cancel(Program& program) override;

    /// A term that is no line of the list changes nothing. Stays open, with what was typed, when the list
    /// could not be written.
    void cmdSave_Click(Program& program);
    void cmdExit_Click(Program& program);

private:
    modTerms::TermLine term_; ///< as it stands in the list
};
