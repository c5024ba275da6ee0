#include "spelling/frm_spelling.h"

#include "program/program.h"
#include "spelling/spelling_service.h"

#include <algorithm>

void frmSpelling::Form_Load(Program& program) {
    Caption = "Check Spelling";
    cmbLanguage.Items = program.platform.dictionaries.Languages();
    const auto chosen =
        std::find(cmbLanguage.Items.begin(), cmbLanguage.Items.end(), program.spelling.Language);
    cmbLanguage.ListIndex = chosen == cmbLanguage.Items.end()
                                ? -1
                                : static_cast<int>(std::distance(cmbLanguage.Items.begin(), chosen));
}

void frmSpelling::Form_Cancel(Program&) {
    service_.Cancel();
}

void frmSpelling::lstSuggestions_Click(Program&, int index) {
    if (index >= 0 && static_cast<std::size_t>(index) < lstSuggestions.Items.size()) {
        lstSuggestions.ListIndex = index;
        txtChangeTo.Text = lstSuggestions.Items[static_cast<std::size_t>(index)];
    }
}

void frmSpelling::cmbLanguage_Click(Program&, int index) {
    if (index >= 0 && static_cast<std::size_t>(index) < cmbLanguage.Items.size()) {
        cmbLanguage.ListIndex = index;
        service_.UseLanguage(cmbLanguage.Items[static_cast<std::size_t>(index)]);
    }
}

void frmSpelling::cmdChange_Click(Program&) {
    service_.Change(txtChangeTo.Text, SpellingService::Extent::Once);
}

void frmSpelling::cmdChangeAll_Click(Program&) {
    service_.Change(txtChangeTo.Text, SpellingService::Extent::All);
}

void frmSpelling::cmdIgnore_Click(Program&) {
    service_.Ignore(SpellingService::Extent::Once);
}

void frmSpelling::cmdIgnoreAll_Click(Program&) {
    service_.Ignore(SpellingService::Extent::All);
}

void frmSpelling::cmdAdd_Click(Program&) {
    service_.AddWord();
}

void frmSpelling::cmdUndo_Click(Program&) {
    service_.UndoLast();
}

void frmSpelling::cmdCancel_Click(Program&) {
    service_.Cancel();
}
