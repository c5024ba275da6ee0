#include "editing/columns.h"

#include "base/guard.h"
#include "base/numbers.h"
#include "base/text.h"
#include "editing/area_contents.h"
#include "editing/backup_counter.h"
#include "editing/navigation.h"
#include "money/amounts.h"
#include "pages/fields.h"
#include "pages/page_geometry.h"
#include "pages/row_fields.h"
#include "program/errors.h"
#include "program/program.h"

namespace modColumns {

namespace {

constexpr std::string_view kNoNumberTip = "This is not a number. The amount stays as it is.";

FieldRef Quantity(PageId page, int row) {
    return {page, FieldKind::txtQty, row};
}
FieldRef Price(PageId page, int row) {
    return {page, FieldKind::txtAmt, row};
}
FieldRef Description(PageId page, int row) {
    return {page, FieldKind::txt, row};
}

/// The row as the file will have it, and both tables with it. A quantity typed after the description must not
/// wait for the description's next change to count as unsaved.
void StoreRow(Program& program, PageId page, int row) {
    const auto index = static_cast<std::size_t>(row);
    const bool on = modPages::ColumnsOn(program, page, row);
    program.document.CurrentTextBuf[page][index] = modPages::ComposeLine(program, page, row);
    for (TextChangeTable* table : {&program.format.PropTextChanges, &program.format.FormatTextChanges}) {
        TextChangeRecord& record = (*table)[page][index];
        record.QtyBox = on;
        record.QtyValue = program.pages[page].txtQty[index].Text;
        record.AmtValue = program.pages[page].txtAmt[index].Text;
    }
}

bool Silent(const Program& program) {
    return program.guards.HandlersSilent() || program.editing.MoveInProgress ||
           (program.editing.BlockMode && !program.editing.RefireMode);
}

/// The row's amount becomes quantity times unit price; each is a single, the product a double.
void TakeProduct(Program& program, PageId page, int row) {
    if (!geometry::IsDescription(page, row)) {
        return;
    }
    const Page& record = program.pages[page];
    const auto at = static_cast<std::size_t>(row);
    const std::string& currency = program.settings.CurrencySymbol;
    const auto quantity = numbers::ToSingle(record.txtQty[at].Text, currency);
    const auto price = numbers::ToSingle(record.txtAmt[at].Text, currency);
    if (!quantity || !price) {
        return;
    }
    const double product = static_cast<double>(*quantity) * static_cast<double>(*price);
    const ScopedFlag refiring(program.editing.RefireMode);
    modFields::SetText(program, Description(page, geometry::AmountOf(page, row)),
                       numbers::Format(product, "###,###.00"));
}

/// On the way to "20,50" stood 20, and made an amount: what is no number in the end has changed nothing.
void TakeBackProduct(Program& program, const FieldRef& field) {
    const std::optional<BoxVisit>& visit = program.editing.Visit;
    if (!visit || visit->Box != field) { // only boxes of rows are visited
        return;
    }
    const FieldRef amount = Description(field.Page, geometry::AmountOf(field.Page, field.Index));
    if (modFields::Area(program, amount).Text == visit->Amount) {
        return;
    }
    const ScopedFlag refiring(program.editing.RefireMode);
    modFields::SetText(program, amount, visit->Amount);
}

bool HoldsPlaceholder(FieldKind kind, std::string_view value) {
    return value ==
           (kind == FieldKind::txtQty ? modPages::kQuantityPlaceholder : modPages::kPricePlaceholder);
}

void TellNoNumber(Program& program, const FieldRef& field) {
    TextArea& box = modFields::Area(program, field);
    if (IsNoNumber(program, field.Kind, box)) {
        box.BackColor = colors::kOverLimit;
        box.ToolTipText = kNoNumberTip;
    } else if (box.ToolTipText == kNoNumberTip) {
        box.BackColor = program.main.Focus == field ? colors::kFocused : colors::kRestingRowField;
        box.ToolTipText.clear();
    }
}

void BoxChange(Program& program, const FieldRef& field) {
    if (Silent(program)) {
        return;
    }
    if (!program.editing.BlockMode) {
        TellNoNumber(program, field);
        if (IsNoNumber(program, field.Kind, modFields::Area(program, field))) {
            TakeBackProduct(program, field);
        }
    }
    const PageId page = field.Page;
    const int row = field.Index;
    TakeProduct(program, page, row);
    StoreRow(program, page, row);
}

/// The rows next to one, by arrow; the same box where the row has columns, else its description.
void MoveToRow(Program& program, const FieldRef& field, modNavigate::Direction direction) {
    const float top = modFields::Area(program, field).Top;
    const int row = field.Index + (direction == modNavigate::Direction::Down ? 1 : -1);
    const FieldRef target = modPages::ColumnsOn(program, field.Page, row)
                                ? FieldRef{field.Page, field.Kind, row}
                                : Description(field.Page, row);
    modNavigate::Arrive(program, target);
    modNavigate::ScrollTest(program, field.Page, top, direction);
}

/// The boxes of a selected row are selected with it, and those that go are not.
void FollowSelection(Program& program, PageId page, int row) {
    if (modBlocks::IsSelected(program, page, row)) {
        modBlocks::PaintArea(program, page, row, modBlocks::Selected::Yes);
    }
}

void SetTax(Program& program, modTotals::Tax tax) {
    const PageId page = program.main.ActivePage;
    const int area = program.editing.CurrentArea;
    if (!geometry::IsAmount(page, area)) {
        return;
    }
    modTotals::SetTax(program, page, area, tax);
    modFields::GiveFocus(program, Description(page, area));
}

} // namespace

void ToggleColumns(Program& program) {
    const PageId page = PageAt(program.main.CurrentPage);
    const int row = program.editing.CurrentArea;
    // While areas are selected the command stands open only beside the paste of copied ones.
    const bool closed = program.editing.BlockMode && !program.editing.BlockCopyHeld;
    if (!geometry::IsDescription(page, row) || closed) {
        return;
    }
    modPages::EnsureRowFields(program, page);
    const bool on = !modPages::ColumnsOn(program, page, row);
    if (on) {
        modPages::PlaceColumns(program, page, row, modPages::Columns::On);
        FollowSelection(program, page, row);
        modFields::SetText(program, Quantity(page, row), modPages::kQuantityPlaceholder);
        modFields::SetText(program, Price(page, row), modPages::kPricePlaceholder);
        StoreRow(program, page, row);
        modFields::GiveFocus(program, Quantity(page, row));
        TextArea& box = modFields::Area(program, Quantity(page, row));
        modFields::SetCursor(box, static_cast<int>(box.Text.size()));
        return;
    }
    const auto focus = program.main.Focus;
    const bool inRow = focus && focus->Page == page && focus->Index == row && focus->Kind != FieldKind::txt;
    modPages::PlaceColumns(program, page, row, modPages::Columns::Off);
    FollowSelection(program, page, row);
    modFields::SetText(program, Quantity(page, row), "");
    modFields::SetText(program, Price(page, row), "");
    StoreRow(program, page, row);
    if (inRow) {
        modFields::GiveFocus(program, Description(page, row));
    }
}

bool IsNoNumber(const Program& program, FieldKind kind, const TextArea& box) {
    return box.Visible && !HoldsPlaceholder(kind, text::Trim(box.Text)) &&
           numbers::IsNoNumber(box.Text, program.settings.CurrencySymbol);
}

void txtQty_Change(Program& program, PageId page, int row) {
    BoxChange(program, Quantity(page, row));
}

void txtAmt_Change(Program& program, PageId page, int row) {
    BoxChange(program, Price(page, row));
}

Taken Box_KeyDown(Program& program, const FieldRef& field, int keyCode, int shift) {
    if (program.editing.BlockMode || program.guards.HandlersSilent()) {
        return Taken::No;
    }
    modBackup::CountTowardsBackup(program, field.Page, field.Index);
    const int last = static_cast<int>(program.pages[field.Page].txtQty.size()) - 1;
    if (keyCode == keys::kTab && shift == keys::kShiftState) {
        modNavigate::MoveBack(program, field);
        return Taken::Yes;
    }
    if (keyCode == keys::kEnter || keyCode == keys::kTab) {
        if (field.Kind == FieldKind::txtQty) {
            modFields::SetCursor(modFields::Area(program, Description(field.Page, field.Index)), 0);
            modFields::GiveFocus(program, Description(field.Page, field.Index));
        } else {
            modNavigate::Arrive(program,
                                Description(field.Page, geometry::AmountOf(field.Page, field.Index)));
        }
        return Taken::Yes;
    }
    if (keyCode == keys::kUp) {
        if (field.Index != 0) {
            MoveToRow(program, field, modNavigate::Direction::Up);
        }
        return Taken::Yes;
    }
    if (keyCode == keys::kDown) {
        if (field.Index != last) {
            MoveToRow(program, field, modNavigate::Direction::Down);
        }
        return Taken::Yes;
    }
    if (keyCode == keys::kF8) {
        program.editing.CurrentArea = field.Index;
        ToggleColumns(program);
        return Taken::Yes;
    }
    return Taken::No;
}

void ClearPlaceholder(Program& program, const FieldRef& field) {
    if (HoldsPlaceholder(field.Kind, modFields::Area(program, field).Text)) {
        modFields::SetText(program, field, "");
    }
}

void Box_KeyPress(Program& program, const FieldRef& field, int& keyAscii) {
    if (program.editing.BlockMode) {
        keyAscii = 0;
        return;
    }
    if (program.guards.HandlersSilent()) {
        return;
    }
    if (keyAscii > keys::kEnter) {
        ClearPlaceholder(program, field);
    }
    // A comma passes: dropped, it would make 15 of 1,5. What is no number with it stands red.
    const bool figure = (keyAscii >= '0' && keyAscii <= '9') || keyAscii == '.' || keyAscii == ',';
    if (!figure && keyAscii != keys::kBackspace) {
        keyAscii = 0; // Enter and Tab pass the filter and are cancelled after it
    }
}

void Box_GotFocus(Program& program, const FieldRef& field) {
    if (program.editing.BlockMode || (field.Kind == FieldKind::txtAmt && program.guards.Loading)) {
        return;
    }
    modFields::Area(program, field).BackColor = colors::kFocused;
    TellNoNumber(program, field);
    if (geometry::IsDescription(field.Page, field.Index)) {
        const int amount = geometry::AmountOf(field.Page, field.Index);
        program.editing.Visit =
            BoxVisit{field, modFields::Area(program, Description(field.Page, amount)).Text};
    }
    program.main.ActivePage = field.Page;
    program.main.CurrentPage = IndexOf(field.Page);
}

void Box_LostFocus(Program& program, const FieldRef& field) {
    if (program.editing.BlockMode) {
        return;
    }
    modFields::Area(program, field).BackColor = colors::kRestingRowField;
    TellNoNumber(program, field);
    SettleBox(program, field);
}

void SettleBox(Program& program, const FieldRef& field) {
    const ScopedFlag refiring(program.editing.RefireMode,
                              program.editing.RefireMode || program.editing.BlockMode);
    if (field.Kind == FieldKind::txtAmt) {
        if (const auto price =
                numbers::ToDouble(modFields::Area(program, field).Text, program.settings.CurrencySymbol)) {
            modFields::SetText(program, field, numbers::Format(*price, "###,##0.00"));
        }
    }
    TakeProduct(program, field.Page, field.Index);
}

void mnuEditTextTaxExempt_Click(Program& program) {
    SetTax(program, modTotals::Tax::Exempt);
}

void mnuEditTextTaxable_Click(Program& program) {
    SetTax(program, modTotals::Tax::Taxable);
}

void CollectLines(Program& program) {
    for (const PageId page : kLinePages) {
        auto& lines = program.document.CurrentTextBuf[page];
        for (std::size_t index = 0; index < program.pages[page].txt.size(); ++index) {
            modPages::ComposeInto(lines[index], program, page, static_cast<int>(index));
        }
    }
}

void CollectQtyBoxes(Program& program) {
    Guarded(program, "SaveTextBoxFeatures", [&] {
        for (const PageId page : kLinePages) {
            const Page& record = program.pages[page];
            for (int row = geometry::FirstRow(page); record.RowFieldsMade && row <= geometry::LastRow(page);
                 ++row) {
                const auto index = static_cast<std::size_t>(row);
                const bool on = record.txt[index].Width == geometry::kColumnsWidth;
                for (TextChangeTable* table :
                     {&program.format.PropTextChanges, &program.format.FormatTextChanges}) {
                    TextChangeRecord& props = (*table)[page][index];
                    props.QtyChanged = on;
                    props.QtyBox = on;
                    props.QtyValue = record.txtQty[index].Text;
                    props.AmtValue = record.txtAmt[index].Text;
                }
            }
        }
        CollectLines(program);
    });
}

} // namespace modColumns
