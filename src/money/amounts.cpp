#include "money/amounts.h"

#include "base/guard.h"
#include "base/numbers.h"
#include "base/text.h"
#include "money/totals.h"
#include "pages/fields.h"
#include "pages/page_geometry.h"
#include "pages/row_fields.h"
#include "program/program.h"

#include <optional>
#include <string>

namespace modTotals {

namespace {

std::size_t At(int index) {
    return static_cast<std::size_t>(index);
}

const TextArea& AreaOf(const Program& program, PageId page, int index) {
    return program.pages[page].txt[At(index)];
}

/// What a text counts: a number as it is, anything else as nothing.
float ValueOf(const Program& program, std::string_view value) {
    return numbers::ToSingle(value, program.settings.CurrencySymbol).value_or(0.0F);
}

bool MarkVisible(const Program& program, PageId page, int index) {
    return program.pages[page].imgNoTax[At(index)].Visible;
}

void PutMark(Program& program, PageId page, int row, Tax tax) {
    const bool exempt = tax == Tax::Exempt;
    modPages::SetNoTaxMark(program, page, row, exempt ? modPages::Mark::Shown : modPages::Mark::Hidden);
    TextChangeRecord& props = program.format.PropTextChanges[page][At(row)];
    props.TaxExempt = exempt;
    props.Dirty = true;
    program.format.FormatTextChanges[page][At(row)].TaxExempt = exempt;
    program.totals.TaxableTable[At(row)][page] = exempt ? 0 : program.totals.AmountTable[At(row)][page];
}

void DropMarkOfEmpty(Program& program, PageId page, int index) {
    if (text::Trim(AreaOf(program, page, index).Text).empty() && MarkVisible(program, page, index)) {
        PutMark(program, page, index, Tax::Taxable);
    }
}

} // namespace

void StoreAmount(Program& program, PageId page, int index) {
    TextArea& area = program.pages[page].txt[At(index)];
    const float amount = ValueOf(program, area.Text);
    program.totals.AmountTable[At(index)][page] = amount;
    program.totals.TaxableTable[At(index)][page] = MarkVisible(program, page, index) ? 0 : amount;
    const bool counts = !IsNoNumber(program, area) && !text::Trim(area.Text).empty();
    modPages::SetCurrencySign(program, page, index, counts ? modPages::Mark::Shown : modPages::Mark::Hidden);
    TellNoNumber(program, area);
}

void LeaveAmount(Program& program, PageId page, int index) {
    StoreAmount(program, page, index);
    const std::string value = AreaOf(program, page, index).Text;
    if (const auto number = numbers::ToDouble(value, program.settings.CurrencySymbol)) {
        const ScopedFlag refiring(program.editing.RefireMode,
                                  program.editing.RefireMode || program.editing.BlockMode);
        modFields::SetText(program, {page, FieldKind::txt, index}, numbers::Format(*number, "###,##0.00"));
    }
    if (program.editing.EmptiedAmount == FieldRef{page, FieldKind::txt, index}) {
        program.editing.EmptiedAmount.reset();
        DropMarkOfEmpty(program, page, index);
    }
    CalculateMyTotals(program, page);
    UpdateRunningTotals(program);
}

void NoteEmptied(Program& program, PageId page, int index) {
    const FieldRef field{page, FieldKind::txt, index};
    auto& emptied = program.editing.EmptiedAmount;
    if (!text::Trim(AreaOf(program, page, index).Text).empty()) {
        if (emptied == field) {
            emptied.reset();
        }
    } else if (program.main.Focus == field) {
        emptied = field;
    } else {
        DropMarkOfEmpty(program, page, index);
    }
}

void SetTax(Program& program, PageId page, int row, Tax tax) {
    PutMark(program, page, row, tax);
    CalculateMyTotals(program, page);
    UpdateRunningTotals(program);
    program.totals.TotalsStale = true;
}

void MatchTables(Program& program) {
    for (const PageId page : kLinePages) {
        for (int index = 0; index <= geometry::LastText(page); ++index) {
            if (!geometry::IsAmount(page, index)) {
                continue;
            }
            const float amount = ValueOf(program, AreaOf(program, page, index).Text);
            const float taxable = MarkVisible(program, page, index) ? 0 : amount;
            if (program.totals.AmountTable[At(index)][page] != amount ||
                program.totals.TaxableTable[At(index)][page] != taxable) {
                StoreAmount(program, page, index);
                TextArea& area = program.pages[page].txt[At(index)];
                if (IsNoNumber(program, area) && area.BackColor != colors::kBlockSelected) {
                    area.BackColor = colors::kOverLimit;
                }
            }
        }
    }
}

void imgNoTax_Click(Program& program, PageId page, int row) {
    SetTax(program, page, row, Tax::Taxable);
    modFields::GiveFocus(program, {page, FieldKind::txt, row});
}

} // namespace modTotals
