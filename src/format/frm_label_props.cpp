#include "format/frm_label_props.h"

#include "base/numbers.h"
#include "base/rows.h"
#include "format/colour_table.h"
#include "format/frm_rgb.h"
#include "format/label_commit.h"
#include "format/label_looks.h"
#include "format/label_selection.h"
#include "pages/page_geometry.h"
#include "program/errors.h"
#include "program/program.h"
#include "program/windows.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace {

constexpr Color kWhiteButton = colors::kWhite;

/// Whether the selected labels of the page, but for the currency signs, are all alike in a field.
template <typename Field> bool SelectedAgree(const Program& program, PageId page, Field PageLabel::*field) {
    const PageLabel* first = nullptr;
    for (const PageLabel& label : program.pages[page].lbl) {
        if (!modDesigner::IsSelected(label) || label.Caption == program.settings.CurrencySymbol) {
            continue;
        }
        if (first != nullptr && first->*field != label.*field) {
            return false;
        }
        first = &label;
    }
    return true;
}

bool IsTitle(PageId page, int index) {
    return index == geometry::TitleLabel(page) || (index == 0 && page != PageId::frmP1);
}

} // namespace

void frmLabelProps::Form_Load(Program& program) {
    Guarded(program, "LoadLabelProps", [&] {
        constexpr float kFromTop = 1500;
        Caption = "Label Properties";
        Top = program.main.Top + kFromTop;
        lstFont.Items = program.run.FontList;
        for (std::size_t index = 0; index < kSizes.size(); ++index) {
            cmdSize[index].Caption = std::to_string(kSizes[index]);
            cmdSize[index].ToolTipText = "Label Font Size = " + cmdSize[index].Caption;
        }
        for (std::size_t index = 0; index < cmdColor.size(); ++index) {
            const auto& named = colour_table::kColours[std::min(index, colour_table::kColours.size() - 1)];
            cmdColor[index].ToolTipText = "Make Label " + std::string(named.Name);
            cmdColor[index].BackColor = index < colour_table::kColours.size() ? named.Value : kWhiteButton;
        }
        program.designer.LabelPropsOpen = true;
        program.designer.LabelPropsCancelled = false;
        ShowLabel(program);
    });
}

void frmLabelProps::ShowLabel(const Program& program) {
    const DesignerRecords& designer = program.designer;
    const LabelLook& edit = designer.LabelEdit;
    const bool group = modDesigner::MultipleLabelsSelected(program);
    const bool title = !group && designer.LabelPage && IsTitle(*designer.LabelPage, designer.CurrentLabel);
    txtCaption.Text = group ? std::string() : edit.Caption;
    txtCaption.Enabled = !title && !group;
    lblNotHere.Caption = title ? "Change these words with Proposal Page Titles and Subtitles." : "";
    const auto found = std::find(lstFont.Items.begin(), lstFont.Items.end(), edit.FontName);
    lstFont.ListIndex = found == lstFont.Items.end() ? -1 : static_cast<int>(found - lstFont.Items.begin());
    const auto agree = [&](auto PageLabel::*field) {
        return !group || !designer.LabelPage || SelectedAgree(program, *designer.LabelPage, field);
    };
    constexpr const char* kSeveral = "(several)";
    lblFontName.Caption = "Font = " + (agree(&PageLabel::FontName) ? edit.FontName : kSeveral);
    lblSize.Caption =
        "Label Font Size = " + (agree(&PageLabel::FontSize) ? numbers::PlainNumber(edit.FontSize) : kSeveral);
    chkBold.Value = edit.FontBold;
    chkItalic.Value = edit.FontItalic;
    chkUnderline.Value = edit.FontUnderline;
}

void frmLabelProps::txtCaption_Change(Program& program, std::string_view text) {
    DesignerRecords& designer = program.designer;
    txtCaption.Text = text;
    designer.LabelEdit.Caption = text;
    if (designer.LabelPage && !modDesigner::MultipleLabelsSelected(program)) {
        modDesigner::LabelAt(program, *designer.LabelPage, designer.CurrentLabel).Caption = text;
    }
}

void frmLabelProps::txtCaption_Enter(Program&) {
    FocusNext = "cmdSize(0)";
}

void frmLabelProps::lstFont_Click(Program& program, int index) {
    if (!HasRow(lstFont.Items, index)) {
        return;
    }
    const std::string name = lstFont.Items[static_cast<std::size_t>(index)];
    modDesigner::ApplyToLabels(program, &GroupChanges::FontName,
                               [&](LabelLook& look) { look.FontName = name; });
    ShowLabel(program);
}

void frmLabelProps::chkBold_Click(Program& program) {
    const bool value = !chkBold.Value;
    modDesigner::ApplyToLabels(program, &GroupChanges::FontBold,
                               [&](LabelLook& look) { look.FontBold = value; });
    ShowLabel(program);
}

void frmLabelProps::chkItalic_Click(Program& program) {
    const bool value = !chkItalic.Value;
    modDesigner::ApplyToLabels(program, &GroupChanges::FontItalic,
                               [&](LabelLook& look) { look.FontItalic = value; });
    ShowLabel(program);
}

void frmLabelProps::chkUnderline_Click(Program& program) {
    const bool value = !chkUnderline.Value;
    modDesigner::ApplyToLabels(program, &GroupChanges::FontUnderline,
                               [&](LabelLook& look) { look.FontUnderline = value; });
    ShowLabel(program);
}

void frmLabelProps::cmdSize_Click(Program& program, int index) {
    const auto size = static_cast<float>(kSizes[static_cast<std::size_t>(index)]);
    modDesigner::ApplyToLabels(program, &GroupChanges::FontSize,
                               [&](LabelLook& look) { look.FontSize = size; });
    ShowLabel(program);
}

void frmLabelProps::cmdColor_Click(Program& program, int index) {
    const Color colour = cmdColor[static_cast<std::size_t>(index)].BackColor;
    modDesigner::ApplyToLabels(program, &GroupChanges::ForeColor,
                               [&](LabelLook& look) { look.ForeColor = colour; });
}

void frmLabelProps::cmdColors_Click(Program& program) {
    program.designer.ColorOwner = "Label";
    auto window = std::make_unique<frmRGB>();
    window->Committed = [](Program& later) { modDesigner::ShowLabelInWindow(later); };
    modWindows::Show(program, std::move(window));
}

void frmLabelProps::cmdOK_Click(Program& program) {
    modWindows::Close(program, *this);
}

void frmLabelProps::cmdCancel_Click(Program& program) {
    program.designer.LabelPropsCancelled = true;
    modWindows::Close(program, *this);
}

void frmLabelProps::Form_Cancel(Program& program) {
    cmdCancel_Click(program);
}

void frmLabelProps::Form_Unload(Program& program) {
    DesignerRecords& designer = program.designer;
    designer.LabelPropsOpen = false;
    if (designer.LabelPropsCancelled || program.run.ProgramClosing) {
        designer.Changed = {};
        modDesigner::RestoreLabel(program);
        return;
    }
    modDesigner::Commit(program);
}

namespace modDesigner {

namespace {

frmLabelProps* LabelWindow(Program& program) {
    return dynamic_cast<frmLabelProps*>(modWindows::Find(program, "frmLabelProps"));
}

} // namespace

void CloseLabelWindow(Program& program) {
    if (frmLabelProps* window = LabelWindow(program)) {
        window->cmdOK_Click(program);
    }
}

void CloseChangedLabelWindow(Program& program) {
    const DesignerRecords& designer = program.designer;
    if (!designer.LabelPropsOpen || !designer.LabelPage) {
        return;
    }
    const LabelLook& before =
        RecordOf(program.format.LabelSavedState, *designer.LabelPage, designer.CurrentLabel);
    if (designer.Changed != GroupChanges{} || designer.LabelEdit != before) {
        CloseLabelWindow(program);
    }
}

void FinishLabelInWindow(Program& program) {
    if (!MultipleLabelsSelected(program)) {
        CommitLabelProps(program, program.designer.CurrentLabel);
    }
}

void ShowLabelInWindow(Program& program) {
    if (frmLabelProps* window = LabelWindow(program)) {
        window->ShowLabel(program);
    }
}

} // namespace modDesigner
