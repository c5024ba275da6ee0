#include "money/totals.h"

#include "base/guard.h"
#include "base/numbers.h"
#include "base/text.h"
#include "money/shown_figures.h"
#include "pages/fields.h"
#include "pages/page_geometry.h"
#include "pages/row_fields.h"
#include "program/errors.h"
#include "program/program.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace modTotals {

namespace {

constexpr std::string_view kShown = "##,##0.00";
constexpr std::string_view kMessage = "##,###.00";
constexpr std::string_view kCompared = "#########.00";

/// The areas of the final page.
enum Figure : int { kSubTotal, kTaxable, kTax, kTotal, kDeposit, kBalance, kFigureCount };

std::string Shown(float value) {
    return numbers::FormatSingle(value, kShown);
}

void WriteFigure(Program& program, int figure, std::string_view value) {
    modFields::SetText(program, {PageId::frmP6, FieldKind::txt, figure}, value);
}

void MirrorFigures(Program& program) {
    const Page& ours = program.pages[PageId::frmP6];
    Page& copy = program.pages[PageId::frmP6_1];
    for (std::size_t figure = 0; figure < kFigureCount; ++figure) {
        copy.txt[figure].Text = ours.txt[figure].Text;
    }
}

/// A pass has ended with that subtotal.
void Settle(Program& program, float subTotal) {
    program.totals.RunningSubTotal = program.settings.CurrencySymbol + " " + Shown(subTotal);
    program.totals.TotalsStale = false;
}

/// What is too large for a single stays at the largest: a figure is always a number that can be shown.
float Single(double value) {
    constexpr double kMost = std::numeric_limits<float>::max();
    return static_cast<float>(std::clamp(value, -kMost, kMost));
}

/// The sum of two singles as a single; going over a double rounds no differently.
float Sum(float one, float other) {
    return Single(static_cast<double>(one) + static_cast<double>(other));
}

float TaxOn(float taxable, float rate) {
    return Single(static_cast<double>(taxable) * (static_cast<double>(rate) * 0.01));
}

bool MarkVisible(const Page& page, std::size_t index) {
    return page.imgNoTax[index].Visible;
}

std::optional<float> Numeric(const Program& program, std::string_view value) {
    return numbers::ToSingle(value, program.settings.CurrencySymbol);
}

/// The pass over all amount fields; the figures of `totals` that it owns follow.
void AddAllFields(Program& program) {
    TotalsRecords& totals = program.totals;
    float subTotal = 0;
    float taxable = 0;
    for (const PageId page : kLinePages) {
        const Page& record = program.pages[page];
        for (std::size_t index = 0; index < record.txt.size(); ++index) {
            if (geometry::KindOf(record.txt[index].Tag) != "Amou") {
                continue;
            }
            const std::optional<float> value = Numeric(program, record.txt[index].Text);
            if (!value) {
                continue;
            }
            subTotal = Sum(subTotal, *value);
            if (!MarkVisible(record, index)) {
                taxable = Sum(taxable, *value);
            }
        }
    }
    totals.FullSubTotal = subTotal;
    totals.FullTaxableTotal = taxable;
    totals.SalesTax = TaxOn(taxable, totals.TaxRate);
    totals.Total = Sum(subTotal, totals.SalesTax);
    totals.FullTotal = totals.Total;
}

/// The deposit under its pattern. What the person typed has more digits than the single that counts.
std::string ShownDeposit(const Program& program, std::string_view typed) {
    const float deposit = program.totals.Deposit;
    const std::optional<double> digits = numbers::ToDouble(typed, program.settings.CurrencySymbol);
    return digits && static_cast<float>(*digits) == deposit ? numbers::Format(*digits, kShown)
                                                            : Shown(deposit);
}

std::string ShownDeposit(const Program& program) {
    return ShownDeposit(program, program.pages[PageId::frmP6].txt[kDeposit].Text);
}

/// A deposit that is no number keeps its text, as an amount does: the person sees it red and mends it.
void WriteDeposit(Program& program) {
    if (!IsNoNumber(program, program.pages[PageId::frmP6].txt[kDeposit])) {
        WriteFigure(program, kDeposit, ShownDeposit(program));
    }
}

/// Tax, total and balance, built from the shown figures above them: a reader who adds what stands on the
/// sheet comes to what stands below. Singles alone can be a hundredth apart. Beyond what a single holds to
/// the hundredth it stands as it is, and whoever shows it to others is told.
struct ShownTotals {
    std::string Tax;
    std::string Total;
    std::string Balance;
};

bool HoldsHundredths(float single) {
    constexpr float kMost = 131072; // a digit more, and the last place of a single is a sixty-fourth
    return std::fabs(single) < kMost;
}

ShownTotals TotalsBelow(const Program& program, float subTotal) {
    const TotalsRecords& totals = program.totals;
    ShownTotals shown{Shown(totals.SalesTax), "", ""};
    shown.Total = Shown(totals.Total);
    if (HoldsHundredths(totals.Total)) {
        shown.Total = ShownSum(Shown(subTotal), shown.Tax).value_or(shown.Total);
    }
    shown.Balance = Shown(totals.Balance);
    if (HoldsHundredths(totals.Total) && HoldsHundredths(totals.Deposit)) {
        shown.Balance = ShownDifference(shown.Total, ShownDeposit(program)).value_or(shown.Balance);
    }
    return shown;
}

/// The five figures that are computed, as the running computation shows them.
void WriteRunningFigures(Program& program) {
    const TotalsRecords& totals = program.totals;
    const ShownTotals below = TotalsBelow(program, totals.SubTotal);
    WriteFigure(program, kSubTotal, Shown(totals.SubTotal));
    WriteFigure(program, kTaxable, Shown(totals.TaxableTotal));
    WriteFigure(program, kTax, below.Tax);
    WriteFigure(program, kTotal, below.Total);
    WriteFigure(program, kBalance, below.Balance);
}

void WriteFullFigures(Program& program) {
    TotalsRecords& totals = program.totals;
    totals.Balance = Sum(totals.Total, -totals.Deposit);
    if (totals.Total == 0) {
        for (const int figure : {kSubTotal, kTaxable, kTax, kTotal}) {
            WriteFigure(program, figure, "0.00");
        }
        // What a client has paid stands whatever is left of the proposal.
        WriteDeposit(program);
        WriteFigure(program, kBalance, TotalsBelow(program, totals.FullSubTotal).Balance);
        return;
    }
    WriteFigure(program, kSubTotal, Shown(totals.FullSubTotal));
    WriteFigure(program, kTaxable, Shown(totals.FullTaxableTotal));
    WriteFigure(program, kTax, Shown(totals.SalesTax));
    // No pattern here: after a recalculation the total stands bare until the next running update.
    WriteFigure(program, kTotal, numbers::PlainNumber(totals.Total));
    WriteDeposit(program);
    WriteFigure(program, kBalance, TotalsBelow(program, totals.FullSubTotal).Balance);
}

void ComputeRunning(TotalsRecords& totals) {
    totals.SubTotal = 0;
    totals.TaxableTotal = 0;
    for (const PageId page : kLinePages) {
        totals.SubTotal = Sum(totals.SubTotal, totals.PageSum[page]);
        totals.TaxableTotal = Sum(totals.TaxableTotal, totals.PageTaxable[page]);
    }
}

void TakeRunning(TotalsRecords& totals) {
    totals.SalesTax = TaxOn(totals.TaxableTotal, totals.TaxRate);
    totals.Total = Sum(totals.SubTotal, totals.SalesTax);
    totals.RunningTotal = totals.Total;
    totals.Balance = Sum(totals.Total, -totals.Deposit);
}

/// The person is typing the deposit, and what stands there is the figure already.
bool DepositIsBeingTyped(const Program& program) {
    if (program.main.Focus != FieldRef{PageId::frmP6, FieldKind::txt, kDeposit}) {
        return false;
    }
    const std::string_view value = text::Trim(program.pages[PageId::frmP6].txt[kDeposit].Text);
    return value.empty() ? program.totals.Deposit == 0 : Numeric(program, value) == program.totals.Deposit;
}

} // namespace

void CalculateMyTotals(Program& program, PageId page) {
    TotalsRecords& totals = program.totals;
    const Page& record = program.pages[page];
    float sum = 0;
    float taxable = 0;
    for (std::size_t row = 0; row < record.txt.size(); ++row) {
        const float amount = totals.AmountTable[row][page];
        sum = Sum(sum, amount);
        if (!MarkVisible(record, row)) {
            taxable = Sum(taxable, amount);
        }
    }
    totals.PageSum[page] = sum;
    totals.PageTaxable[page] = taxable;
}

bool IsNoNumber(const Program& program, const TextArea& area) {
    const std::string_view kind = geometry::KindOf(area.Tag);
    if (kind != "Amou" && kind != "Depo") {
        return false;
    }
    return numbers::IsNoNumber(area.Text, program.settings.CurrencySymbol);
}

void TellNoNumber(const Program& program, TextArea& area) {
    if (IsNoNumber(program, area)) {
        area.ToolTipText = kNoNumberTip;
    } else if (area.ToolTipText == kNoNumberTip) {
        area.ToolTipText.clear();
    }
}

void SumAgain(Program& program) {
    for (const PageId page : kLinePages) {
        CalculateMyTotals(program, page);
    }
    RecalculateAll(program);
    UpdateRunningTotals(program);
}

void UpdateRunningTotals(Program& program) {
    TotalsRecords& totals = program.totals;
    const ScopedFlag writing(totals.InRunningUpdate);
    if (totals.TotalsHidden) {
        // Written over after each digit, a deposit could not be typed at all; leaving the field writes it.
        if (!DepositIsBeingTyped(program)) {
            WriteDeposit(program);
        }
        program.pages[PageId::frmP6_1].txt[kDeposit].Text = program.pages[PageId::frmP6].txt[kDeposit].Text;
        return;
    }
    ComputeRunning(totals);
    TakeRunning(totals);
    WriteRunningFigures(program);
    Settle(program, totals.SubTotal);
    MirrorFigures(program);
}

void RecalculateAll(Program& program) {
    if (program.totals.TotalsHidden) {
        return;
    }
    const bool done = Guarded(program, "RecalculateAll", [&] {
        const ScopedFlag recalculating(program.totals.InRecalculation);
        AddAllFields(program);
        WriteFullFigures(program);
        MirrorFigures(program);
        Settle(program, program.totals.FullSubTotal);
    });
    if (!done) {
        program.platform.questions.MsgBox("Error encountered while recalculating totals.", Buttons::Ok, "");
    }
}

std::string RecalculationMessage(const Program& program) {
    const TotalsRecords& totals = program.totals;
    const auto shown = [](float value) { return numbers::FormatSingle(value, kMessage); };
    return text::Lines({"All amounts have been recalculated.", "SubTotal = " + shown(totals.FullSubTotal),
                        "Taxable SubTotal = " + shown(totals.FullTaxableTotal),
                        "Sales Tax = " + shown(totals.SalesTax), "Total = " + shown(totals.Total),
                        "Deposit = " + shown(totals.Deposit), "Balance = " + shown(totals.Balance)});
}

bool TotalsDiffer(const Program& program) {
    return numbers::FormatSingle(program.totals.FullTotal, kCompared) !=
           numbers::FormatSingle(program.totals.RunningTotal, kCompared);
}

std::string DiscrepancyMessage() {
    return text::Lines({"A descrepancy has occurred in calculating the totals. Please verify",
                        "the total amounts manually or press \"Recalculate\" to continue the",
                        "calculation without true verification. We apologize for the inconvenience."});
}

namespace {

/// A recalculation leaves the total bare, but not on a page that shows as it will be printed.
void Recalculate(Program& program) {
    RecalculateAll(program);
    if (program.pages[PageId::frmP6].InkShown || program.pages[PageId::frmP6_1].InkShown) {
        UpdateRunningTotals(program);
    }
}

} // namespace

void cmdReCalc_Click(Program& program) {
    Recalculate(program);
    program.platform.questions.MsgBox(RecalculationMessage(program), Buttons::Ok, "");
}

void mnuToolsRecalculate_Click(Program& program) {
    Recalculate(program);
}

void mnuOptHideTotals_Click(Program& program) {
    TotalsRecords& totals = program.totals;
    totals.TotalsHidden = !totals.TotalsHidden;
    if (totals.TotalsHidden) {
        // Nothing keeps the two up to date while hidden; a save must not find them apart.
        totals.FullTotal = totals.Total;
        totals.RunningTotal = totals.Total;
    }
    const ScopedFlag writing(totals.InRunningUpdate);
    for (const int figure : {kSubTotal, kTaxable, kTax, kTotal, kBalance}) {
        WriteFigure(program, figure, "");
        program.pages[PageId::frmP6_1].txt[static_cast<std::size_t>(figure)].Text.clear();
    }
}

void mnuAdminCheckAddition_Click(Program& program) {
    const std::string value = program.platform.questions.InputBox("Please enter value", "", "");
    const float number = Numeric(program, value).value_or(0.0F);
    constexpr int kFirst = 33, kLast = 65;
    const auto field = [](int index) { return FieldRef{PageId::frmP2, FieldKind::txt, index}; };
    for (int index = kFirst + 1; index <= kLast; ++index) {
        modFields::SetText(program, field(index), "");
    }
    // Wanted: the same value in each row, and the sum of them all beside it.
    std::array<float, 34> sums{};
    for (int index = kFirst; index <= kLast; ++index) {
        modFields::SetText(program, field(index), value);
        const auto at = static_cast<std::size_t>(index - kFirst);
        sums[at + 1] = Sum(sums[at], number);
    }
    program.platform.questions.MsgBox(numbers::PlainNumber(sums.back()), Buttons::Ok, "");
}

void FinalPageChange(Program& program, int index) {
    const Page& page = program.pages[PageId::frmP6];
    const TextArea& area = page.txt[static_cast<std::size_t>(index)];
    TotalsRecords& totals = program.totals;
    TellNoNumber(program, program.pages[PageId::frmP6].txt[static_cast<std::size_t>(index)]);
    program.document.CurrentTextBuf[PageId::frmP6][static_cast<std::size_t>(index)] = area.Text;
    program.pages[PageId::frmP6_1].txt[static_cast<std::size_t>(index)].Text = area.Text;
    if (program.guards.HandlersSilent() || totals.InRecalculation || totals.InRunningUpdate) {
        return;
    }
    const std::string_view kind = geometry::KindOf(area.Tag);
    float* figure = kind == "Tax."   ? &totals.SalesTax
                    : kind == "AllT" ? &totals.TaxableTotal
                    : kind == "Depo" ? &totals.Deposit
                                     : nullptr;
    if (figure == nullptr) {
        return;
    }
    const std::string_view value = text::Trim(area.Text);
    const std::optional<float> number =
        value.empty() || IsNoNumber(program, area) ? std::optional(0.0F) : Numeric(program, value);
    if (!number) {
        return;
    }
    *figure = *number;
    UpdateRunningTotals(program);
    program.totals.TotalsStale = true;
}

void RewriteDeposit(Program& program) {
    // As typed: the figure that stands there from now on is the one that counts.
    WriteDeposit(program);
}

void FinalPageLostFocus(Program& program) {
    const TotalsRecords& totals = program.totals;
    if (totals.Deposit + totals.SubTotal + totals.SalesTax + totals.TaxableTotal == 0) {
        return;
    }
    RewriteDeposit(program);
    UpdateRunningTotals(program);
}

void TotalsAfterReading(Program& program) {
    TotalsRecords& totals = program.totals;
    for (const PageId page : kLinePages) {
        totals.PageSum[page] = 0;
        totals.PageTaxable[page] = 0;
        for (std::size_t row = 0; row < kRowCount; ++row) {
            totals.PageSum[page] = Sum(totals.PageSum[page], totals.AmountTable[row][page]);
            totals.PageTaxable[page] = Sum(totals.PageTaxable[page], totals.TaxableTable[row][page]);
        }
    }
    ComputeRunning(totals);
    // Only here: a file's negative taxable amount earns no tax back.
    totals.TaxableTotal = std::max(totals.TaxableTotal, 0.0F);
    auto& current = program.document.CurrentTextBuf[PageId::frmP6];
    const std::string stored(text::Trim(current[kDeposit]));
    const std::optional<float> deposit = stored.empty() ? std::optional(0.0F) : Numeric(program, stored);
    if (!deposit) {
        program.platform.questions.MsgBox(
            text::Lines({"Deposit is not numeric. Zero will be entered. Please",
                         "double-check the Deposit amount from previous records."}),
            Buttons::Ok, "");
    }
    totals.Deposit = deposit.value_or(0.0F);
    TakeRunning(totals);
    totals.FullTotal = totals.RunningTotal;
    totals.FullSubTotal = totals.SubTotal;
    totals.FullTaxableTotal = totals.TaxableTotal;
    const ScopedFlag writing(totals.InRunningUpdate);
    WriteFigure(program, kDeposit, ShownDeposit(program, stored));
    if (!totals.TotalsHidden) {
        WriteRunningFigures(program);
        Settle(program, totals.SubTotal);
    }
    MirrorFigures(program);
    // What shows is what the proposal is compared with, also while the totals are hidden.
    const Page& page = program.pages[PageId::frmP6];
    for (std::size_t figure = 0; figure < kFigureCount; ++figure) {
        current[figure] = page.txt[figure].Text;
        program.document.SavedTextBuf[PageId::frmP6][figure] = page.txt[figure].Text;
    }
}

} // namespace modTotals
