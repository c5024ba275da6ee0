#include "format/label_commit.h"

#include "format/label_looks.h"
#include "format/label_selection.h"
#include "pages/page_geometry.h"
#include "program/program.h"

namespace modDesigner {

namespace {

bool IsCurrencySign(const Program& program, const PageLabel& label) {
    return label.Caption == program.settings.CurrencySymbol;
}

void Record(LabelChangeTable& table, PageId page, int index, const LabelLook& look) {
    LabelChangeRecord& record = RecordOf(table, page, index);
    PutLook(record, look);
    record.Changed = true;
    record.Saved = false;
    record.FromFormat = false;
}

/// A label's present look into the tables of proposal and format; it counts as changed for the next save.
void RecordEverywhere(Program& program, PageId page, int index, const LabelLook& look) {
    Record(program.format.PropLabelChanges, page, index, look);
    Record(program.format.FormatLabelChanges, page, index, look);
    LabelChangeRecord& saved = RecordOf(program.format.LabelSavedState, page, index);
    PutLook(saved, look);
    saved.Changed = true;
}

} // namespace

LabelLook WithGroupFields(const LabelLook& own, const LabelLook& edit, const GroupChanges& changed) {
    LabelLook look = own;
    if (changed.FontName) {
        look.FontName = edit.FontName;
    }
    if (changed.FontSize) {
        look.FontSize = edit.FontSize;
    }
    if (changed.FontBold) {
        look.FontBold = edit.FontBold;
    }
    if (changed.ForeColor) {
        look.ForeColor = edit.ForeColor;
    }
    if (changed.FontItalic) {
        look.FontItalic = edit.FontItalic;
    }
    if (changed.FontUnderline) {
        look.FontUnderline = edit.FontUnderline;
    }
    return look;
}

void ApplyToLabels(Program& program, bool GroupChanges::*changed, const LookChange& change) {
    DesignerRecords& designer = program.designer;
    if (!designer.LabelPage) {
        return;
    }
    change(designer.LabelEdit);
    const PageId page = *designer.LabelPage;
    const auto apply = [&](PageLabel& label) {
        LabelLook look = LookOf(label);
        change(look);
        PutLook(label, look);
    };
    if (!MultipleLabelsSelected(program)) {
        apply(LabelAt(program, page, designer.CurrentLabel));
        return;
    }
    designer.Changed.*changed = true;
    for (PageLabel& label : program.pages[page].lbl) {
        if (label.BackColor == colors::kFocused && !IsCurrencySign(program, label)) {
            apply(label);
        }
    }
}

void CommitLabelProps(Program& program, int index) {
    DesignerRecords& designer = program.designer;
    if (!designer.LabelPage) {
        return;
    }
    const PageId page = *designer.LabelPage;
    RecordEverywhere(program, page, index, designer.LabelEdit);
    designer.LabelEditPrevious = designer.LabelEdit;
    PageLabel& label = LabelAt(program, page, index);
    Deselect(label);
    label.ForeColor = RecordOf(program.format.LabelSavedState, page, index).ForeColor;
    if (page == PageId::frmP6) {
        CopyToClientsPage(program, index);
    }
}

void CommitSelectedLabels(Program& program) {
    DesignerRecords& designer = program.designer;
    if (!designer.LabelPage) {
        return;
    }
    const PageId page = *designer.LabelPage;
    const LabelLook edit = designer.LabelEdit;
    for (int index = 0; index <= geometry::LastLabel(page); ++index) {
        PageLabel& label = LabelAt(program, page, index);
        if (label.BackColor != colors::kFocused) {
            continue;
        }
        const GroupChanges changed = IsCurrencySign(program, label) ? GroupChanges{} : designer.Changed;
        const LabelLook look = WithGroupFields(LookOf(label), edit, changed);
        PutLook(label, look);
        RecordEverywhere(program, page, index, look);
        designer.LabelEditPrevious = look;
        Deselect(label);
    }
    if (page == PageId::frmP6) {
        for (int index = 0; index <= geometry::LastLabel(page); ++index) {
            CopyToClientsPage(program, index);
        }
    }
    designer.Changed = {};
    // A window that stays, or opens again, goes on with the label pressed last and not with the group's last.
    designer.LabelEdit = LookOf(LabelAt(program, page, designer.CurrentLabel));
}

void RestoreLabel(Program& program) {
    const DesignerRecords& designer = program.designer;
    if (!designer.LabelPage || MultipleLabelsSelected(program)) {
        return;
    }
    const PageId page = *designer.LabelPage;
    const int index = designer.CurrentLabel;
    PageLabel& label = LabelAt(program, page, index);
    LabelLook look = static_cast<const LabelLook&>(RecordOf(program.format.LabelSavedState, page, index));
    look.Left = label.Left; // where it was dragged to meanwhile stays
    look.Top = label.Top;
    PutLook(label, look);
    Deselect(label);
    RecordOf(program.format.PropLabelChanges, page, index).Changed =
        designer.ChangedAtPress[page][static_cast<std::size_t>(index)];
}

void Commit(Program& program) {
    if (MultipleLabelsSelected(program)) {
        CommitSelectedLabels(program);
    } else {
        CommitLabelProps(program, program.designer.CurrentLabel);
    }
}

} // namespace modDesigner
