#pragma once

#include "program/controls.h"
#include "program/window.h"
#include "spelling/word_decisions.h"

/// "Check Spelling": the text of an area with a word marked that no dictionary knows, and what to do about
/// it.
class frmSpelling : public Window {
public:
    explicit frmSpelling(WordDecisions& decisions) : decisions_(decisions) {}

    StripLabel lblArea; ///< page and number of the area
    TextBox txtText;    ///< the text; the word is its selection. Read only.
    StripLabel lblWord{.Caption = "Not in the dictionary:", .ToolTipText = ""};
    StripLabel lblSuggestions{.Caption = "Su&ggestions", .ToolTipText = ""};
    ListBox lstSuggestions;
    StripLabel lblChangeTo{.Caption = "Change &to", .ToolTipText = ""};
    TextBox txtChangeTo;
    StripLabel lblLanguage{.Caption = "Languag&e", .ToolTipText = ""};
    ListBox cmbLanguage;
    StripLabel lblTooLong; ///< tells of the area before, when it became longer than its place
    CommandButton cmdChange{.Caption = "&Change", .ToolTipText = ""};
    CommandButton cmdChangeAll{.Caption = "Change A&ll", .ToolTipText = "Also wherever the word comes again"};
    CommandButton cmdIgnore{.Caption = "&Ignore", .ToolTipText = ""};
    CommandButton cmdIgnoreAll{.Caption = "Ig&nore All", .ToolTipText = "Also wherever the word comes again"};
    CommandButton cmdAdd{.Caption = "&Add to Dictionary", .ToolTipText = ""};
    CommandButton cmdUndo{.Caption = "&Undo Last", .ToolTipText = "", .Enabled = false};
    CommandButton cmdCancel{.Caption = "Cancel", .ToolTipText = "Ends the check; what was changed stays"};

    [[nodiscard]] std::string_view Name() const override { return "frmSpelling"; }
    [[nodiscard]] Modality Mode() const override { return Modality::Modal; }
    void Form_Load(Program& program) override;
    void Form_Cancel(Program& program) override;
    /// Selects the language in use.
    void ShowLanguage(const Program& program);

    void lstSuggestions_Click(Program& program, int index);
    void cmbLanguage_Click(Program& program, int index);
    void cmdChange_Click(Program& program);
    void cmdChangeAll_Click(Program& program);
    void cmdIgnore_Click(Program& program);
    void cmdIgnoreAll_Click(Program& program);
    void cmdAdd_Click(Program& program);
    void cmdUndo_Click(Program& program);
    void cmdCancel_Click(Program& program);

private:
    WordDecisions& decisions_;
};
