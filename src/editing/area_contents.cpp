#include "editing/area_contents.h"

#include "base/guard.h"
#include "base/text.h"
#include "pages/fields.h"
#include "pages/page_geometry.h"
#include "pages/row_fields.h"
#include "program/program.h"

namespace modBlocks {

namespace {

std::size_t At(int index) {
    return static_cast<std::size_t>(index);
}

void Paint(TextArea& area, Color back, Color fore) {
    area.BackColor = back;
    area.ForeColor = fore;
}

void PaintBoxes(Program& program, PageId page, int row) {
    Page& record = program.pages[page];
    if (!geometry::IsDescription(page, row) || !record.RowFieldsMade) {
        return;
    }
    const bool selected = IsSelected(program, page, row) && modPages::ColumnsOn(program, page, row);
    for (auto* boxes : {&record.txtQty, &record.txtAmt}) {
        TextArea& box = (*boxes)[At(row)];
        if (selected) {
            Paint(box, colors::kBlockSelected, colors::kWhite);
        } else if (box.BackColor == colors::kBlockSelected) {
            Paint(box, colors::kRestingRowField, colors::kBlack);
        }
    }
}

/// A box that is about to go hands the keyboard to its description.
void KeepFocusInRow(Program& program, PageId page, int row) {
    const auto focus = program.main.Focus;
    if (focus && focus->Page == page && focus->Index == row && focus->Kind != FieldKind::txt) {
        modFields::GiveFocus(program, {page, FieldKind::txt, row});
        program.editing.CurrentArea = row;
    }
}

void PlaceRow(Program& program, PageId page, int row, const AreaContents& contents) {
    modPages::EnsureRowFields(program, page);
    if (contents.Columns || modPages::ColumnsOn(program, page, row)) {
        modPages::PlaceColumns(program, page, row,
                               contents.Columns ? modPages::Columns::On : modPages::Columns::Off);
        modFields::SetText(program, {page, FieldKind::txtQty, row}, contents.Quantity);
        modFields::SetText(program, {page, FieldKind::txtAmt, row}, contents.Price);
    }
    PaintBoxes(program, page, row);
    for (TextChangeTable* table : {&program.format.PropTextChanges, &program.format.FormatTextChanges}) {
        TextChangeRecord& record = (*table)[page][At(row)];
        record.QtyBox = contents.Columns;
        record.QtyValue = contents.Quantity;
        record.AmtValue = contents.Price;
    }
}

} // namespace

AreaContents ReadContents(const Program& program, PageId page, int index) {
    const Page& record = program.pages[page];
    const TextArea& area = record.txt[At(index)];
    AreaContents contents;
    contents.Text = area.Text;
    contents.FontBold = area.FontBold;
    const PageImage& mark = record.imgNoTax[At(index)];
    contents.TaxExempt = mark.Visible && mark.Tag != kHide;
    if (geometry::IsDescription(page, index) && modPages::ColumnsOn(program, page, index)) {
        contents.Columns = true;
        contents.Quantity = record.txtQty[At(index)].Text;
        contents.Price = record.txtAmt[At(index)].Text;
    }
    return contents;
}

void PlaceContents(Program& program, PageId page, int index, const AreaContents& contents) {
    if (!contents.Columns) {
        KeepFocusInRow(program, page, index);
    }
    // As in a move, nothing may run on the way: the products of half-placed rows would write over amounts.
    const ScopedFlag quiet(program.editing.MoveInProgress);
    const AreaContents before = ReadContents(program, page, index);
    if (geometry::IsDescription(page, index)) {
        PlaceRow(program, page, index, contents);
    }
    program.pages[page].txt[At(index)].FontBold = contents.FontBold;
    if (geometry::IsAmount(page, index)) {
        modPages::SetNoTaxMark(program, page, index,
                               contents.TaxExempt ? modPages::Mark::Shown : modPages::Mark::Hidden);
    }
    TextChangeRecord& props = program.format.PropTextChanges[page][At(index)];
    TextChangeRecord& baseline = program.format.FormatTextChanges[page][At(index)];
    for (TextChangeRecord* record : {&props, &baseline}) {
        record->FontBold = contents.FontBold;
        record->TaxExempt = contents.TaxExempt;
    }
    if (before.FontBold != contents.FontBold || before.TaxExempt != contents.TaxExempt) {
        props.Dirty = true;
    }
    modFields::SetText(program, {page, FieldKind::txt, index}, contents.Text);
}

void RunChange(Program& program, PageId page, int index) {
    if (program.hooks.Change) {
        program.hooks.Change(program, {page, FieldKind::txt, index});
    }
}

bool HoldsText(const Program& program, PageId page, int index) {
    return !text::Trim(program.pages[page].txt[At(index)].Text).empty();
}

void PaintArea(Program& program, PageId page, int index, Selected selected) {
    TextArea& area = program.pages[page].txt[At(index)];
    if (selected == Selected::Yes) {
        Paint(area, colors::kBlockSelected, colors::kWhite);
    } else {
        Paint(area, colors::kResting, colors::kBlack);
    }
    PaintBoxes(program, page, index);
}

bool IsSelected(const Program& program, PageId page, int index) {
    return program.pages[page].txt[At(index)].BackColor == colors::kBlockSelected;
}

} // namespace modBlocks
