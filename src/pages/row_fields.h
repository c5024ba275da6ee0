#pragma once

#include "program/page_records.h"

#include <string>
#include <string_view>

struct Program;

/// What stands in a row of a page beside its description: quantity and unit price, the currency sign and the
/// exempt mark of its amount; and the one line that the stores and the file have of it.
namespace modPages {

inline constexpr char kQuantityMark = '\xA5';
inline constexpr char kPriceMark = '\xA7';

/// What the two boxes hold before a person fills them.
inline constexpr std::string_view kQuantityPlaceholder = "Qty.", kPricePlaceholder = "Amt.";

/// Creates the row fields of a line page when that has not been done.
void EnsureRowFields(Program& program, PageId page);

/// The labels between description and unit price show the currency in force, on every page.
void ShowCurrency(Program& program);

/// Columns on or off for one row: place and width of the description, visibility and Tag of the four row
/// fields. Texts are left alone, nothing is fired.
enum class Columns { Off, On };
void PlaceColumns(Program& program, PageId page, int row, Columns columns);
[[nodiscard]] bool ColumnsOn(const Program& program, PageId page, int row);

/// Whether a row has columns and nothing stands in it: no quantity, description, price or amount. A format
/// can lay such rows for what is to come.
[[nodiscard]] bool IsBlankRow(const Page& page, int row);
/// The same of a line of the stores; of its amount it knows nothing.
[[nodiscard]] bool IsBlankRow(std::string_view line);

/// The line that the stores and the file hold for a text area of pages 1 to 5: the trimmed text, or for a row
/// with columns on: quantity, trimmed text and unit price between their marks. Areas of the final page: the
/// text as it stands.
[[nodiscard]] std::string ComposeLine(const Program& program, PageId page, int index);
/// The same into a line that is there.
void ComposeInto(std::string& line, const Program& program, PageId page, int index);

/// A description that is a quantity row, taken apart; nothing when one of the marks is missing.
struct QuantityRow {
    bool IsRow = false;
    std::string Quantity;
    std::string Description;
    std::string Amount;
};
[[nodiscard]] QuantityRow SplitLine(std::string_view text);

/// Shows or hides the currency sign beside an area of the amount column, with its Tag.
enum class Mark { Hidden, Shown };
void SetCurrencySign(Program& program, PageId page, int amount, Mark mark);
/// Shows or hides the exempt mark of an area, with its Tag. The tables are not touched.
void SetNoTaxMark(Program& program, PageId page, int index, Mark mark);

/// After the defaults: hides the currency signs of frmP1 to frmP5 and the exempt marks of all pages.
void HideOptionalFields(Program& program);

} // namespace modPages
