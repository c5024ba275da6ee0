#include "format/frm_title.h"

#include "format/label_looks.h"
#include "pages/page_geometry.h"
#include "pages/titles.h"
#include "program/program.h"
#include "program/windows.h"
#include "settings/settings.h"

#include <memory>

namespace {

void MarkAll(TextBox& box) {
    box.SelStart = 0;
    box.SelLength = static_cast<int>(box.Text.size());
}

/// Titles and headings ride with the proposal's properties: they have to be saved.
void MarkLaidLabels(Program& program) {
    for (const PageId page : kEditedPages) {
        for (const int index : {geometry::TitleLabel(page), 0}) {
            if (index == 0 && page == PageId::frmP1) {
                continue;
            }
            LabelChangeRecord& saved = modDesigner::RecordOf(program.format.LabelSavedState, page, index);
            modDesigner::PutLook(saved, modDesigner::LookOf(modDesigner::LabelAt(program, page, index)));
            saved.Changed = true;
        }
    }
}

} // namespace

void frmTitle::Form_Load(Program& program) {
    Caption = "Proposal Page Titles";
    txtTitle.Text = program.document.PageHeading;
    txtSubTitle.Text =
        modDesigner::LabelAt(program, PageId::frmP1, geometry::TitleLabel(PageId::frmP1)).Caption;
    MarkAll(txtTitle);
    MarkAll(txtSubTitle);
    for (CommandButton& button : cmdClear) {
        button.Caption = "Clear";
    }
}

void frmTitle::Form_Cancel(Program& program) {
    modWindows::Close(program, *this);
}

void frmTitle::txtTitle_Change(std::string_view text) {
    txtTitle.Text = text;
    TitleChanged = true;
}

void frmTitle::txtSubTitle_Change(std::string_view text) {
    txtSubTitle.Text = text;
}

void frmTitle::cmdClear_Click(int index) {
    if (index == 0) {
        txtTitle_Change("");
        FocusNext = "txtTitle";
    } else {
        txtSubTitle_Change("");
        FocusNext = "txtSubTitle";
    }
}

void frmTitle::cmdDefault_Click(Program& program) {
    const std::string headingBefore = modDesigner::LabelAt(program, PageId::frmP2, 0).Caption;
    program.document.PageHeading = txtTitle.Text;
    modTitles::LayHeading(program);
    program.settings.PageTitles = txtTitle.Text;
    const bool stored = modSettings::Store(program, {{modSettings::Key::PageTitles, txtTitle.Text}});
    if (stored) {
        TitleChanged = false;
    }
    // A proposal without a heading of its own takes it from the settings again.
    const bool rides = !stored || program.format.PropLabelChanges[PageId::frmP2][0].Changed;
    if (rides && modDesigner::LabelAt(program, PageId::frmP2, 0).Caption != headingBefore) {
        if (program.hooks.SetPageNumbers) {
            program.hooks.SetPageNumbers(program);
        }
        MarkLaidLabels(program);
    }
}

void frmTitle::cmdOK_Click(Program& program) {
    DocumentState& document = program.document;
    const std::string headingBefore = modDesigner::LabelAt(program, PageId::frmP2, 0).Caption;
    const std::string titleBefore = document.ClientCaption;
    document.PageHeading = txtTitle.Text;
    const std::string automatic = "Proposal for " + document.BaseName;
    if (txtSubTitle.Text.empty()) {
        document.ClientCaption = automatic;
        document.TitleGiven = false;
    } else if (txtSubTitle.Text != titleBefore) {
        document.ClientCaption = txtSubTitle.Text;
        document.TitleGiven = txtSubTitle.Text != automatic;
    }
    modTitles::LayTitles(program);
    if (program.hooks.SetPageNumbers) {
        program.hooks.SetPageNumbers(program);
    }
    if (document.ClientCaption != titleBefore ||
        modDesigner::LabelAt(program, PageId::frmP2, 0).Caption != headingBefore) {
        MarkLaidLabels(program);
    }
    modWindows::Close(program, *this);
}

namespace modTitleCommands {

void mnuEditTitles_Click(Program& program) {
    modWindows::Show(program, std::make_unique<frmTitle>());
}

} // namespace modTitleCommands
