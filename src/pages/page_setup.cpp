#include "pages/page_setup.h"

#include "base/guard.h"
#include "pages/logo.h"
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

TextFont FontOf(const PageLabel& label) {
    return {label.FontName, label.FontSize, label.FontBold, label.FontItalic};
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

float LabelWidth(const Program& program, const PageLabel& label) {
    return program.platform.measure.Width(label.Caption, FontOf(label));
}

float MeasureTextWidth(const Program& program, PageId page, std::string_view value) {
    const Page& record = program.pages[page];
    return program.platform.measure.Width(value,
                                          {record.FontName, record.FontSize, false, record.FontItalic});
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

void ShowPage(Program& program, PageId page) {
    Page& record = program.pages[page];
    const bool edited = IndexOf(page) < kEditedPageCount;
    for (std::size_t index = 0; index < record.txt.size(); ++index) {
        TextArea& area = record.txt[index];
        area.Visible = true;
        area.Enabled = true;
        const auto at = static_cast<std::size_t>(IndexOf(page));
        if (IsLinePage(page)) {
            area.Locked = program.format.FormatOpen && program.format.FormatTextChanges[at][index].FormatText;
        }
        if (edited && program.format.FormatOpen) {
            if (program.format.PropTextChanges[at][index].FontBold) {
                area.FontBold = true;
            }
        }
    }
    for (PageLabel& label : record.lbl) {
        label.Visible = label.Tag != kHide;
    }
    for (PageLine& line : record.lne) {
        line.Visible = true;
    }
    if (record.HasLogo) {
        SettleLogoVisibility(program);
    }
}

void ApplyPageFonts(Program& program) {
    const ScopedFlag silent(program.guards.ApplyingFonts);
    const RunState& run = program.run;
    const float size = run.DefaultFontSize == 0 ? 10 : run.DefaultFontSize;
    // Laying "Arial" first makes a font of the same name take hold afresh.
    const auto layFont = [&](auto& field) {
        field.FontName = "Arial";
        field.FontBold = false;
        field.FontItalic = false;
        field.FontName = run.DefaultFontName;
        field.FontSize = size;
        field.FontItalic = run.DefaultFontItalic;
    };
    const auto layField = [&](auto& field) {
        layFont(field);
        field.ForeColor = run.DefaultFontColor;
    };
    for (const PageId page : kAllPages) {
        Page& record = program.pages[page];
        layFont(record);
        for (auto* areas : {&record.txt, &record.txtQty, &record.txtAmt}) {
            for (TextArea& area : *areas) {
                layField(area);
            }
        }
        for (auto* labels : {&record.lblAt, &record.lblEach}) {
            for (PageLabel& label : *labels) {
                layField(label);
            }
        }
        for (PageLabel& label : record.lbl) {
            if (label.Caption == program.settings.CurrencySymbol) {
                layField(label);
            }
        }
    }
    for (const PageId page : kEditedPages) {
        Page& record = program.pages[page];
        const auto at = static_cast<std::size_t>(IndexOf(page));
        for (std::size_t index = 0; index < record.txt.size(); ++index) {
            if (program.format.PropTextChanges[at][index].FontBold) {
                record.txt[index].FontBold = true;
                if (page == PageId::frmP6) {
                    program.pages[PageId::frmP6_1].txt[index].FontBold = true;
                }
            }
        }
    }
}

void SnapshotLabels(Program& program) {
    for (const PageId page : kEditedPages) {
        const Page& record = program.pages[page];
        for (std::size_t index = 0; index < record.lbl.size(); ++index) {
            LabelChangeRecord& kept =
                program.format.PropLabelChanges[static_cast<std::size_t>(IndexOf(page))][index];
            kept.Left = record.lbl[index].Left;
            kept.Top = record.lbl[index].Top;
        }
    }
}

void LoadBaseLabels(Program& program, PageId page) {
    Page& record = program.pages[page];
    record.LabelBaseState.clear();
    for (const PageLabel& label : record.lbl) {
        record.LabelBaseState.push_back({label.Left, label.Top, label.Caption, label.FontName, label.FontSize,
                                         label.FontBold, label.ForeColor, label.FontItalic,
                                         label.FontUnderline});
    }
}

} // namespace modPages
