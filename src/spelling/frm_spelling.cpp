#include "spelling/frm_spelling.h"

#include "base/rows.h"
#include "program/program.h"

#include <algorithm>

void frmSpelling::Form_Load(Program& program) {
    Caption = "Check Spelling";
    cmbLanguage.Items = program.platform.dictionaries.Languages();
    ShowLanguage(program);
}

void frmSpelling::ShowLanguage(const Program& program) {
    const auto chosen =
        std::find(cmbLanguage.Items.begin(), cmbLanguage.Items.end(), program.spelling.Language);
    cmbLanguage.ListIndex = chosen == cmbLanguage.Items.end()
                                ? -1
                                : static_cast<int>(std::distance(cmbLanguage.Items.begin(), chosen));
}

void frmSpelling::Form_Cancel(Program&) {
    decisions_.Cancel();
}

void frmSpelling::lstSuggestions_Click(Program&, int index) {
    if (HasRow(lstSuggestions.Items, index)) {
        lstSuggestions.ListIndex = index;
        txtChangeTo.Text = lstSuggestions.Items[static_cast<std::size_t>(index)];
    }
}

void frmSpelling::cmbLanguage_Click(Program&, int index) {
    if (HasRow(cmbLanguage.Items, index)) {
        cmbLanguage.ListIndex = index;
        decisions_.UseLanguage(cmbLanguage.Items[static_cast<std::size_t>(index)]);
    }
}

void frmSpelling::cmdChange_Click(Program&) {
    decisions_.Change(txtChangeTo.Text, WordDecisions::Extent::Once);
}

void frmSpelling::cmdChangeAll_Click(Program&) {
    decisions_.Change(txtChangeTo.Text, WordDecisions::Extent::All);
}

void frmSpelling::cmdIgnore_Click(Program&) {
    decisions_.Ignore(WordDecisions::Extent::Once);
}

void frmSpelling::cmdIgnoreAll_Click(Program&) {
    decisions_.Ignore(WordDecisions::Extent::All);
}

void frmSpelling::cmdAdd_Click(Program&) {
    decisions_.AddWord();
}

void frmSpelling::cmdUndo_Click(Program&) {
    decisions_.UndoLast();
}

void frmSpelling::cmdCancel_Click(Program&) {
    decisions_.Cancel();
}
