#include "pages/row_fields.h"

#include "base/guard.h"
#include "base/text.h"
#include "pages/page_geometry.h"
#include "program/program.h"

#include <string>

namespace modPages {

namespace {

/// The arrays of a line page's row fields, as one set.
struct RowFields {
    TextArea& Quantity;
    TextArea& Amount;
    PageLabel& At;
    PageLabel& Each;
};

RowFields RowOf(Page& page, int row) {
    const auto at = static_cast<std::size_t>(row);
    return {page.txtQty[at], page.txtAmt[at], page.lblAt[at], page.lblEach[at]};
}

/// Places and texts of one row's fields as designed.
void PlaceRowFields(Page& page, int row) {
    constexpr float kQuantityLeft = 900, kAtLeft = 7710, kAmountLeft = 8145, kEachLeft = 9165;
    constexpr float kQuantityWidth = 540, kAmountWidth = 1020;
    const RowFields fields = RowOf(page, row);
    const float top = page.txt[static_cast<std::size_t>(row)].Top;
    fields.Quantity.Left = kQuantityLeft;
    fields.Quantity.Width = kQuantityWidth;
    fields.Amount.Left = kAmountLeft;
    fields.Amount.Width = kAmountWidth;
    fields.At.Left = kAtLeft;
    fields.Each.Left = kEachLeft;
    fields.Each.Caption = "ea.";
    for (TextArea* box : {&fields.Quantity, &fields.Amount}) {
        box->Top = top;
        box->Tag = kHide;
        box->BackColor = colors::kRestingRowField;
        box->Visible = false;
    }
    fields.Quantity.Text = "Qty.";
    fields.Amount.Text = "Amt.";
    for (PageLabel* label : {&fields.At, &fields.Each}) {
        label->Top = top;
        label->Tag = kHide;
        label->Visible = false;
    }
}

/// How many elements the row arrays have on a line page.
int RowCount(PageId page) {
    return geometry::LastRow(page) + 1;
}

/// A row with columns as the stores and the file hold it.
std::string WithMarks(std::string_view quantity, std::string_view description, std::string_view price) {
    std::string line(1, kQuantityMark);
    line += quantity;
    line += kQuantityMark;
    line += description;
    line += kPriceMark;
    line += price;
    return line;
}

} // namespace

void PlaceColumns(Program& program, PageId page, int row, Columns columns) {
    Page& record = program.pages[page];
    TextArea& area = record.txt[static_cast<std::size_t>(row)];
    const bool on = columns == Columns::On;
    area.Left = on ? geometry::kColumnsLeft : geometry::kPlainLeft;
    area.Width = on ? geometry::kColumnsWidth : geometry::kPlainWidth;
    const RowFields fields = RowOf(record, row);
    for (TextArea* box : {&fields.Quantity, &fields.Amount}) {
        box->Visible = on;
        box->Tag = on ? "" : kHide;
    }
    for (PageLabel* label : {&fields.At, &fields.Each}) {
        label->Visible = on;
        label->Tag = on ? "" : kHide;
    }
}

bool ColumnsOn(const Program& program, PageId page, int row) {
    const Page& record = program.pages[page];
    return row >= 0 && static_cast<std::size_t>(row) < record.txtQty.size() &&
           record.txtQty[static_cast<std::size_t>(row)].Visible;
}

bool IsBlankRow(const Page& page, int row) {
    const auto at = static_cast<std::size_t>(row);
    const auto amount = static_cast<std::size_t>(geometry::AmountOf(page.Id, row));
    if (!geometry::IsDescription(page.Id, row) || at >= page.txtQty.size() || at >= page.txtAmt.size() ||
        amount >= page.txt.size() || page.txtQty[at].Tag == kHide) {
        return false;
    }
    const auto empty = [](const TextArea& area) { return text::Trim(area.Text).empty(); };
    return empty(page.txtQty[at]) && empty(page.txt[at]) && empty(page.txtAmt[at]) && empty(page.txt[amount]);
}

bool IsBlankRow(std::string_view line) {
    const QuantityRow row = SplitLine(line);
    return row.IsRow && text::Trim(row.Quantity).empty() && text::Trim(row.Description).empty() &&
           text::Trim(row.Amount).empty();
}

void EnsureRowFields(Program& program, PageId page) {
    Page& record = program.pages[page];
    if (record.RowFieldsMade || !IsLinePage(page)) {
        return;
    }
    const ScopedFlag silent(program.guards.ResetActive);
    if (page == PageId::frmP1) {
        record.txtQty[0].Text.clear();
        record.txtAmt[0].Text.clear();
    }
    const auto count = static_cast<std::size_t>(RowCount(page));
    record.txtQty.resize(count, record.txtQty[0]);
    record.txtAmt.resize(count, record.txtAmt[0]);
    record.lblAt.resize(count, record.lblAt[0]);
    record.lblEach.resize(count, record.lblEach[0]);
    for (int row = 0; row < RowCount(page); ++row) {
        const std::string quantity = record.txtQty[static_cast<std::size_t>(row)].Text;
        const std::string amount = record.txtAmt[static_cast<std::size_t>(row)].Text;
        PlaceRowFields(record, row);
        record.txtQty[static_cast<std::size_t>(row)].Text = quantity;
        record.txtAmt[static_cast<std::size_t>(row)].Text = amount;
    }
    record.RowFieldsMade = true;
}

void ShowCurrency(Program& program) {
    for (const PageId page : kLinePages) {
        for (PageLabel& label : program.pages[page].lblAt) {
            label.Caption = "@ " + program.settings.CurrencySymbol;
        }
    }
}

void ComposeInto(std::string& line, const Program& program, PageId page, int index) {
    const Page& record = program.pages[page];
    const std::string& value = record.txt[static_cast<std::size_t>(index)].Text;
    if (!IsLinePage(page)) {
        line = value;
        return;
    }
    const std::string_view trimmed = text::Trim(value);
    if (!geometry::IsDescription(page, index) || !ColumnsOn(program, page, index)) {
        line = trimmed;
        return;
    }
    const auto row = static_cast<std::size_t>(index);
    line = WithMarks(record.txtQty[row].Text, trimmed, record.txtAmt[row].Text);
}

std::string ComposeLine(const Program& program, PageId page, int index) {
    std::string line;
    ComposeInto(line, program, page, index);
    return line;
}

QuantityRow SplitLine(std::string_view text) {
    QuantityRow row;
    if (text.empty() || text.front() != kQuantityMark) {
        return row;
    }
    const std::size_t second = text.find(kQuantityMark, 1);
    if (second == std::string_view::npos) {
        return row;
    }
    const std::size_t price = text.find(kPriceMark, second + 1);
    if (price == std::string_view::npos) {
        return row;
    }
    row.IsRow = true;
    row.Quantity = text.substr(1, second - 1);
    row.Description = text.substr(second + 1, price - second - 1);
    row.Amount = text.substr(price + 1);
    return row;
}

void SetCurrencySign(Program& program, PageId page, int amount, Mark mark) {
    // An area can be an amount by its Tag alone; only those of the amount column have a sign beside them.
    if (!geometry::IsAmount(page, amount)) {
        return;
    }
    PageLabel& sign =
        program.pages[page].lbl[static_cast<std::size_t>(geometry::CurrencyLabelIndex(page, amount))];
    sign.Visible = mark == Mark::Shown;
    sign.Tag = mark == Mark::Shown ? "" : kHide;
}

void SetNoTaxMark(Program& program, PageId page, int index, Mark mark) {
    PageImage& image = program.pages[page].imgNoTax[static_cast<std::size_t>(index)];
    image.Visible = mark == Mark::Shown;
    image.Tag = mark == Mark::Shown ? "" : kHide;
}

void HideOptionalFields(Program& program) {
    for (const PageId page : kLinePages) {
        for (PageLabel& label : program.pages[page].lbl) {
            if (label.Caption == program.settings.CurrencySymbol) {
                label.Visible = false;
                label.Tag = kHide;
            }
        }
    }
    for (const PageId page : kAllPages) {
        for (PageImage& image : program.pages[page].imgNoTax) {
            image.Visible = false;
            image.Tag = kHide;
        }
    }
}

} // namespace modPages
