#include "money/shown_figures.h"

#include "base/numbers.h"
#include "base/text.h"
#include "pages/page_geometry.h"
#include "pages/row_fields.h"
#include "program/program.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>

namespace modTotals {

namespace {

/// Amounts are added in millionths: an amount of a file may have more than two decimals.
constexpr std::int64_t kUnit = 1000000;
constexpr std::int64_t kHundredth = kUnit / 100;
/// What is larger cannot be added in millionths.
constexpr double kMost = 9.0e12;

/// The place of the deposit among the final page's figures.
constexpr std::size_t kDepositField = 4;

bool LooksLikeAFigure(std::string_view value) {
    return value.find_first_of("0123456789") != std::string_view::npos;
}

using Exact = std::optional<std::int64_t>;

Exact ExactOf(double value) {
    if (std::fabs(value) > kMost) {
        return std::nullopt;
    }
    std::string digits = numbers::Format(value, "0.000000");
    std::erase(digits, '.');
    std::int64_t millionths = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), millionths);
    return millionths;
}

Exact ExactOf(std::string_view shown) {
    const std::optional<double> value = numbers::ToDouble(shown);
    return value ? ExactOf(*value) : std::nullopt;
}

Exact Sum(Exact one, Exact other) {
    constexpr auto kLimit = static_cast<std::int64_t>(kMost) * kUnit;
    if (!one || !other || std::llabs(*one) > kLimit - std::llabs(*other)) {
        return std::nullopt;
    }
    return *one + *other;
}

Exact Negative(Exact value) {
    return value ? Exact(-*value) : value;
}

std::string Shown(std::int64_t millionths) {
    return numbers::Format(static_cast<double>(millionths) / static_cast<double>(kUnit), "##,##0.00");
}

std::optional<std::string> ShownOf(Exact value) {
    return value ? std::optional(Shown(*value)) : std::nullopt;
}

struct Rows {
    Exact Sum = 0;
    Exact Taxable = 0;
};

Rows AddRows(const Program& program) {
    Rows rows;
    for (const PageId page : kLinePages) {
        const Page& record = program.pages[page];
        for (int index = 0; index <= geometry::LastText(page); ++index) {
            if (!geometry::IsAmount(page, index)) {
                continue;
            }
            const auto at = static_cast<std::size_t>(index);
            const std::optional<double> value =
                numbers::ToDouble(record.txt[at].Text, program.settings.CurrencySymbol);
            const Exact amount = value ? ExactOf(*value) : Exact(0);
            rows.Sum = Sum(rows.Sum, amount);
            if (!record.imgNoTax[at].Visible) {
                rows.Taxable = Sum(rows.Taxable, amount);
            }
        }
    }
    return rows;
}

Exact TaxOn(Exact taxable, float rate) {
    if (!taxable) {
        return std::nullopt;
    }
    // The rate as it was typed: a single is nearest to it.
    const double typed = numbers::ToDouble(numbers::FormatSingle(rate, "0.000000")).value_or(0.0);
    return ExactOf(static_cast<double>(*taxable) / static_cast<double>(kUnit) * typed / 100);
}

/// Compares what stands on the final page with what should, figure by figure.
class Comparison {
public:
    explicit Comparison(const Program& program) : program_(program) {}

    /// What counts for the figures built on this one: it as shown when it is right.
    Exact Take(std::size_t area, std::string_view figure, Exact rowsGive, std::int64_t tolerance) {
        const std::string& text = program_.pages[PageId::frmP6].txt[area].Text;
        const Exact shown = ExactOf(text);
        if (shown && rowsGive && std::llabs(*shown - *rowsGive) <= tolerance) {
            return shown;
        }
        Found.push_back({figure, text, ShownOf(rowsGive).value_or("")});
        return rowsGive;
    }
    std::vector<Strayed> Found;

private:
    const Program& program_;
};

} // namespace

std::optional<std::string> ShownSum(std::string_view one, std::string_view other) {
    return ShownOf(Sum(ExactOf(one), ExactOf(other)));
}

std::optional<std::string> ShownDifference(std::string_view one, std::string_view other) {
    return ShownOf(Sum(ExactOf(one), Negative(ExactOf(other))));
}

std::vector<Strayed> StrayedFigures(const Program& program) {
    if (program.totals.TotalsHidden || program.pages[PageId::frmP6].txt.empty()) {
        return {};
    }
    constexpr std::size_t kSubTotal = 0, kTaxable = 1, kTax = 2, kTotal = 3, kBalance = 5;
    constexpr std::int64_t kRounding = kHundredth / 2;
    constexpr std::int64_t kNearTheMiddle = kRounding + kHundredth / 10;
    const Rows rows = AddRows(program);
    Comparison comparison(program);
    const Exact sum = comparison.Take(kSubTotal, "Subtotal", rows.Sum, kRounding);
    comparison.Take(kTaxable, "Taxable amount", rows.Taxable, kRounding);
    const Exact tax =
        comparison.Take(kTax, "Sales tax", TaxOn(rows.Taxable, program.totals.TaxRate), kNearTheMiddle);
    const Exact total = comparison.Take(kTotal, "Total", Sum(sum, tax), kRounding);
    const Exact deposit = ExactOf(
        program.pages[PageId::frmP6].txt[kDepositField].Text); // one that is no number counts as nothing
    comparison.Take(kBalance, "Balance", deposit ? Sum(total, -*deposit) : total, kRounding);
    return comparison.Found;
}

namespace {

std::string StrayedMessage(const std::vector<Strayed>& strayed) {
    std::string message = text::Lines({"The amounts are too large to be added to the last digit.",
                                       "These figures are not what the rows add up to:"});
    for (const Strayed& figure : strayed) {
        message += text::kCrLf;
        message += std::string(figure.Figure) + " = " + figure.Shown + ", the rows give " +
                   (figure.RowsGive.empty() ? "more than can be added" : figure.RowsGive);
    }
    return message;
}

} // namespace

std::vector<std::string> UncountedTexts(const Program& program) {
    std::vector<std::string> found;
    if (program.totals.TotalsHidden) {
        return found;
    }
    const std::string& currency = program.settings.CurrencySymbol;
    for (const PageId page : kLinePages) {
        const Page& record = program.pages[page];
        if (record.txt.empty()) {
            continue;
        }
        for (int row = geometry::FirstRow(page); row <= geometry::LastRow(page); ++row) {
            const auto look = [&](const TextArea& area, std::string_view placeholder, const char* what) {
                if (LooksLikeAFigure(area.Text) && text::Trim(area.Text) != placeholder &&
                    numbers::IsNoNumber(area.Text, currency)) {
                    found.push_back("Page " + std::to_string(IndexOf(page) + 1) + ", line " +
                                    std::to_string(row - geometry::FirstRow(page) + 1) + what + ": " +
                                    area.Text);
                }
            };
            const auto at = static_cast<std::size_t>(row);
            if (modPages::ColumnsOn(program, page, row)) {
                look(record.txtQty[at], modPages::kQuantityPlaceholder, ", quantity");
                look(record.txtAmt[at], modPages::kPricePlaceholder, ", unit price");
            }
            look(record.txt[static_cast<std::size_t>(geometry::AmountOf(page, row))], "", "");
        }
    }
    const auto& figures = program.pages[PageId::frmP6].txt;
    if (figures.size() > kDepositField && LooksLikeAFigure(figures[kDepositField].Text) &&
        numbers::IsNoNumber(figures[kDepositField].Text, currency)) {
        found.push_back("Page 6, Deposit Received: " + figures[kDepositField].Text);
    }
    return found;
}

bool MayShowFigures(Program& program) {
    const std::vector<std::string> uncounted = UncountedTexts(program);
    const std::vector<Strayed> strayed = StrayedFigures(program);
    if (uncounted.empty() && strayed.empty()) {
        return true;
    }
    std::string message =
        uncounted.empty() ? "" : text::FirstTen("These are no numbers and count as nothing:", uncounted);
    if (!strayed.empty()) {
        message += uncounted.empty() ? "" : text::Lines({"", "", ""});
        message += StrayedMessage(strayed);
    }
    return program.platform.questions.MsgBox(message, Buttons::YesNo, "",
                                             {.Default = Answer::No, .Words = {"Go On", "Cancel"}}) ==
           Answer::Yes;
}

} // namespace modTotals
