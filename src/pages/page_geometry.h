#pragma once

#include "program/page_records.h"

#include <string_view>

/// The numbering of a page's fields. Files, totals, printing and formats address fields by it.
namespace geometry {

inline constexpr float kPageCenter = 6120;
inline constexpr float kPlainLeft = 900;
inline constexpr float kPlainWidth = 8640;
inline constexpr float kColumnsLeft = 1440;
inline constexpr float kColumnsWidth = 6270;

/// Highest index of `txt` and `lbl` on a page.
[[nodiscard]] int LastText(PageId page);
[[nodiscard]] int LastLabel(PageId page);
/// Description rows that can carry columns: 10 to 19 on frmP1, 0 to 32 on frmP2 to frmP5; none elsewhere
/// (-1).
[[nodiscard]] int FirstRow(PageId page);
[[nodiscard]] int LastRow(PageId page);
[[nodiscard]] bool IsDescription(PageId page, int index);
[[nodiscard]] bool IsAmount(PageId page, int index);
/// The amount area of a description row and back: 10 apart on frmP1, 33 on the line pages.
[[nodiscard]] int AmountOf(PageId page, int description);
[[nodiscard]] int DescriptionOf(PageId page, int amount);
/// The label with the currency sign beside an amount area.
[[nodiscard]] int CurrencyLabelIndex(PageId page, int amount);
/// The label "Page n of 6", the label with the client's line, and the label "Continued on" (-1 on the final
/// page).
[[nodiscard]] int PageNumberLabel(PageId page);
[[nodiscard]] int TitleLabel(PageId page);
[[nodiscard]] int ContinuedLabel(PageId page);
[[nodiscard]] std::string_view PageName(PageId page);
/// "Page 1" to "Page 6", "Page 6 Copy".
[[nodiscard]] std::string_view PageCaption(PageId page);
/// "Page 1 of " to "Page 7 of ", by page index.
[[nodiscard]] std::string_view PageOfText(int index);
/// "Page 1" to "Page 6".
[[nodiscard]] std::string_view PageTitle(int index);
/// Whether an area's text ends at its right edge, on screen as on paper.
[[nodiscard]] bool RightAligned(PageId page, int index);
/// First four characters of a Tag, its last three, and the number in them: the area's kind and limit.
[[nodiscard]] std::string_view KindOf(std::string_view tag);
[[nodiscard]] std::string_view LimitText(std::string_view tag);
[[nodiscard]] int LimitOf(std::string_view tag);

} // namespace geometry
