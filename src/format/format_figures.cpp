#include "format/format_figures.h"

#include "base/numbers.h"
#include "base/text.h"
#include "editing/columns.h"
#include "money/amounts.h"
#include "money/totals.h"
#include "pages/page_geometry.h"
#include "pages/row_fields.h"
#include "program/program.h"
#include "proposal/file_names.h"

namespace modFormat {

namespace {

constexpr std::size_t kClientName = 2;

/// Quantity times unit price of a row that has both.
void TakeProduct(Program& program, PageId page, int row) {
    if (!modPages::ColumnsOn(program, page, row)) {
        return;
    }
    Page& record = program.pages[page];
    const auto at = static_cast<std::size_t>(row);
    const std::string& currency = program.settings.CurrencySymbol;
    const auto quantity = numbers::ToSingle(record.txtQty[at].Text, currency);
    const auto price = numbers::ToSingle(record.txtAmt[at].Text, currency);
    if (quantity && price) {
        const double product = static_cast<double>(*quantity) * static_cast<double>(*price);
        record.txt[static_cast<std::size_t>(geometry::AmountOf(page, row))].Text =
            numbers::Format(product, "###,###.00");
    }
}

/// Whether the page has an amount now.
bool TakeAmounts(Program& program, PageId page) {
    bool any = false;
    for (int index = 0; index <= geometry::LastText(page); ++index) {
        if (!geometry::IsAmount(page, index)) {
            continue;
        }
        const std::string& value = program.pages[page].txt[static_cast<std::size_t>(index)].Text;
        if (!text::Trim(value).empty()) {
            modTotals::StoreAmount(program, page, index);
            any = true;
        }
    }
    if (any) {
        modTotals::CalculateMyTotals(program, page);
    }
    return any;
}

void TakeClientName(Program& program) {
    const std::string& name = program.pages[PageId::frmP1].txt[kClientName].Text;
    if (text::Trim(name).empty()) {
        return;
    }
    modNames::NameAfterClient(program, name);
    program.document.HasClient = true; // the reset lays the title as soon as the format is on the pages
}

} // namespace

void TakeFormatFigures(Program& program) {
    bool amounts = false;
    for (const PageId page : kLinePages) {
        for (int row = geometry::FirstRow(page); row <= geometry::LastRow(page); ++row) {
            TakeProduct(program, page, row);
        }
        amounts = TakeAmounts(program, page) || amounts;
    }
    if (amounts) {
        modTotals::UpdateRunningTotals(program);
    }
    modColumns::CollectQtyBoxes(program);
    DocumentState& document = program.document;
    for (const PageId page : kLinePages) {
        document.SavedTextBuf[page] = document.CurrentTextBuf[page];
    }
    if (amounts) {
        document.SavedTextBuf[PageId::frmP6] = document.CurrentTextBuf[PageId::frmP6];
    }
    TakeClientName(program);
}

} // namespace modFormat
