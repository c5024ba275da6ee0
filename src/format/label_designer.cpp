#include "format/label_designer.h"

#include "base/numbers.h"
#include "format/frm_label_props.h"
#include "format/label_commit.h"
#include "format/label_looks.h"
#include "format/label_selection.h"
#include "format/snap_step.h"
#include "pages/page_geometry.h"
#include "program/program.h"
#include "program/windows.h"

#include <memory>
#include <string>

namespace modDesigner {

namespace {

bool HasDesigner(PageId page) {
    return page != PageId::frmP6_1;
}

DragState& DragOf(Program& program, PageId page) {
    return program.designer.Drags[page];
}

/// The label's whole look goes to the tables of proposal and format, and to the saved state.
void StoreMovedLabel(Program& program, PageId page, int index) {
    FormatRecords& format = program.format;
    const LabelLook look = LookOf(LabelAt(program, page, index));
    for (LabelChangeTable* table : {&format.PropLabelChanges, &format.FormatLabelChanges}) {
        LabelChangeRecord& record = RecordOf(*table, page, index);
        PutLook(record, look);
        record.Changed = true;
        record.Saved = false;
        record.FromFormat = false;
    }
    LabelChangeRecord& saved = RecordOf(format.LabelSavedState, page, index);
    PutLook(saved, look);
    saved.Changed = true;
}

void ShowPlace(PageLabel& label) {
    constexpr float kTwipsPerInch = 1440;
    label.ToolTipText = "Left = " + numbers::PlainNumber(label.Left / kTwipsPerInch) +
                        ", Top = " + numbers::PlainNumber(label.Top / kTwipsPerInch);
}

/// A new proposal or another command may have laid the label anew since it was pressed.
void TakeLabelAsItStands(Program& program) {
    DesignerRecords& designer = program.designer;
    const PageId page = *designer.LabelPage;
    designer.LabelEdit = LookOf(LabelAt(program, page, designer.CurrentLabel));
    PutLook(RecordOf(program.format.LabelSavedState, page, designer.CurrentLabel), designer.LabelEdit);
    if (!RecordOf(program.format.PropLabelChanges, page, designer.CurrentLabel).Changed) {
        designer.ChangedAtPress[page][static_cast<std::size_t>(designer.CurrentLabel)] = false;
    }
}

/// Notes where the labels of a page differ from the first of them.
struct Agreement {
    bool FontName = true;
    bool FontSize = true;
    bool FontBold = true;
    bool FontItalic = true;
    bool FontUnderline = true;

    void Compare(const PageLabel& pattern, const PageLabel& label) {
        FontName = FontName && label.FontName == pattern.FontName;
        FontSize = FontSize && label.FontSize == pattern.FontSize;
        FontBold = FontBold && label.FontBold == pattern.FontBold;
        FontItalic = FontItalic && label.FontItalic == pattern.FontItalic;
        FontUnderline = FontUnderline && label.FontUnderline == pattern.FontUnderline;
    }
    void TakeOver(LabelLook& look, const PageLabel& pattern) const {
        if (FontName) {
            look.FontName = pattern.FontName;
        }
        if (FontSize) {
            look.FontSize = pattern.FontSize;
        }
        if (FontBold) {
            look.FontBold = pattern.FontBold;
        }
        if (FontItalic) {
            look.FontItalic = pattern.FontItalic;
        }
        if (FontUnderline) {
            look.FontUnderline = pattern.FontUnderline;
        }
    }
};

} // namespace

PageId DesignPage(const Program& program) {
    return PageAt(program.main.CurrentPage);
}

void SaveLabelState(Program& program) {
    DesignerRecords& designer = program.designer;
    const PageId page = *designer.LabelPage;
    const PageLabel& label = LabelAt(program, page, designer.CurrentLabel);
    if (label.BackColor == colors::kBlockSelected) {
        return;
    }
    designer.LabelEdit = LookOf(label);
    PutLook(RecordOf(program.format.LabelSavedState, page, designer.CurrentLabel), designer.LabelEdit);
    designer.ChangedAtPress[page][static_cast<std::size_t>(designer.CurrentLabel)] =
        RecordOf(program.format.PropLabelChanges, page, designer.CurrentLabel).Changed;
}

void lbl_MouseDown(Program& program, PageId page, int index, int button, float x, float y) {
    if (!HasDesigner(page)) {
        return;
    }
    DesignerRecords& designer = program.designer;
    const bool another = designer.LabelPage != page || designer.CurrentLabel != index;
    if (designer.LabelPropsOpen && another) {
        FinishLabelInWindow(program);
    }
    program.main.CurrentPage = IndexOf(page);
    program.main.ActivePage = page;
    designer.LabelPage = page;
    designer.CurrentLabel = index;
    const LabelLook inWindow = designer.LabelEdit;
    SaveLabelState(program);
    if (designer.LabelPropsOpen && MultipleLabelsSelected(program)) {
        // A press on any label takes nothing of what was chosen for the group.
        designer.LabelEdit = WithGroupFields(designer.LabelEdit, inWindow, designer.Changed);
    }
    DragState& drag = DragOf(program, page);
    drag.Moved = false;
    if (button != kRightButton) {
        drag.Dragging = true;
        drag.GrabX = x;
        drag.GrabY = y;
    }
    if (another) {
        ShowLabelInWindow(program);
    }
}

bool lbl_MouseMove(Program& program, PageId page, int index, float x, float y) {
    if (!HasDesigner(page)) {
        return false;
    }
    const DragState& drag = DragOf(program, page);
    if (!drag.Dragging || index != program.designer.CurrentLabel) {
        return false;
    }
    PageLabel& label = LabelAt(program, page, index);
    return SnapStep(drag, program.format.SnapTwips, x, y, label.Left, label.Top);
}

void lbl_MouseUp(Program& program, PageId page, int index) {
    if (!HasDesigner(page)) {
        return;
    }
    DragState& drag = DragOf(program, page);
    drag.Dragging = false;
    PageLabel& label = LabelAt(program, page, index);
    const LabelChangeRecord& known = RecordOf(program.format.PropLabelChanges, page, index);
    LabelLook& edit = program.designer.LabelEdit;
    if (label.Left != known.Left) {
        edit.Left = label.Left;
        drag.Moved = true;
    }
    if (label.Top != known.Top) {
        edit.Top = label.Top;
        drag.Moved = true;
    }
    if (drag.Moved) {
        StoreMovedLabel(program, page, index);
        if (page == PageId::frmP6) {
            CopyPlaceToClientsPage(program, index);
        }
    }
    ShowPlace(label);
}

void lbl_DblClick(Program& program, PageId page, int index) {
    if (!HasDesigner(page)) {
        return;
    }
    PageLabel& label = LabelAt(program, page, index);
    if (IsSelected(label)) {
        Deselect(label);
    } else {
        Select(label); // the press has noted its look
    }
    ShowLabelInWindow(program);
}

void LoadSelectedLabels(Program& program) {
    DesignerRecords& designer = program.designer;
    const PageId page = DesignPage(program);
    const int patternIndex = page == PageId::frmP1 ? 0 : 1;
    designer.LabelPage = page;
    designer.CurrentLabel = patternIndex;
    const PageLabel pattern = LabelAt(program, page, patternIndex);
    Agreement agreement;
    for (int index = 0; index <= geometry::LastLabel(page); ++index) {
        PageLabel& label = LabelAt(program, page, index);
        PutLook(RecordOf(program.format.LabelSavedState, page, index), LookOf(label));
        designer.ChangedAtPress[page][static_cast<std::size_t>(index)] =
            RecordOf(program.format.PropLabelChanges, page, index).Changed;
        agreement.Compare(pattern, label);
        if (label.Caption != program.settings.CurrencySymbol) {
            Select(label);
        }
    }
    agreement.TakeOver(designer.LabelEdit, pattern);
}

void mnuEditLabelSelectAll_Click(Program& program) {
    LoadSelectedLabels(program);
    if (program.designer.LabelPropsOpen) {
        ShowLabelInWindow(program);
        return;
    }
    program.designer.ColorOwner = "Label";
    modWindows::Show(program, std::make_unique<frmLabelProps>());
}

void mnuEditLabelDeselectAll_Click(Program& program) {
    for (PageLabel& label : program.pages[DesignPage(program)].lbl) {
        Deselect(label);
    }
    DesignerRecords& designer = program.designer;
    if (designer.LabelPropsOpen && designer.LabelPage) {
        // The window goes on with one label, as that one stands.
        designer.LabelEdit = LookOf(LabelAt(program, *designer.LabelPage, designer.CurrentLabel));
        designer.Changed = {};
        ShowLabelInWindow(program);
    }
}

void mnuEditLabelProps_Click(Program& program) {
    DesignerRecords& designer = program.designer;
    if (designer.LabelPropsOpen) {
        return;
    }
    if (designer.LabelPage != DesignPage(program)) {
        program.platform.questions.MsgBox("Please click the label first.", Buttons::Ok, "");
        return;
    }
    TakeLabelAsItStands(program);
    designer.ColorOwner = "Label";
    modWindows::Show(program, std::make_unique<frmLabelProps>());
}

} // namespace modDesigner
