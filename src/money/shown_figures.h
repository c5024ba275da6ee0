#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct Program;

/// The figures as people see them: in hundredths. Singles hold seven digits, so a large sum can stand on
/// paper as something else than its rows add up to. That is never shown to others without a word.
namespace modTotals {

/// The sum of two figures as they are shown, so that what stands on one sheet agrees to the hundredth.
/// Nothing when one of them is no figure or too large to be added exactly.
[[nodiscard]] std::optional<std::string> ShownSum(std::string_view one, std::string_view other);
[[nodiscard]] std::optional<std::string> ShownDifference(std::string_view one, std::string_view other);

/// A figure of the final page that is not what the rows give.
struct Strayed {
    std::string_view Figure; ///< "Subtotal" ...
    std::string Shown;
    std::string RowsGive; ///< empty when the rows are too large to be added exactly
};
/// What strays now, by exact addition of the texts in the rows. A tax near the middle between two hundredths
/// may stand as either. Nothing strays while the totals are hidden.
[[nodiscard]] std::vector<Strayed> StrayedFigures(const Program& program);

/// Amounts, quantities, unit prices and the deposit that look like figures and are no numbers, each with its
/// place, in the order of the pages. On paper nothing tells that they count as nothing; a mere dash or word
/// tells it itself. None while the totals are hidden.
[[nodiscard]] std::vector<std::string> UncountedTexts(const Program& program);

/// Whether the figures may be shown to others: yes when none strays and every text in the rows counts,
/// otherwise the person is asked.
[[nodiscard]] bool MayShowFigures(Program& program);

} // namespace modTotals
