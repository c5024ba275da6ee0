#pragma once

#include <string>

#include "program/page_records.h"

struct Program;

namespace modPages {

/// Builds one page at start-up: arrays, places, Tags, tool tips, defaults. frmP1 takes its logo from the
/// settings.
void SetUpPage(Program& program, PageId page);

/// Lays the built-in content over a page, as at every reset. Fires nothing.
void ApplyPageDefaults(Program& program, PageId page);

/// After the defaults: hides the currency signs of frmP1 to frmP5 and the exempt marks of all pages.
void HideOptionalFields(Program& program);

/// What a page shows: all text areas, all labels and marks whose Tag is not "Hide", its lines, the logo when
/// it is to be seen. Areas whose text a format protects are locked, the others of the line pages are not.
void ShowPage(Program& program, PageId page);

/// Puts the font in force on all text areas, row labels and currency signs of all pages; bold comes back from
/// the text tables. Fires nothing.
void ApplyPageFonts(Program& program);

/// Creates the row fields of a line page when that has not been done.
void EnsureRowFields(Program& program, PageId page);

/// Columns on or off for one row: place and width of the description, visibility and Tag of the four row
/// fields. Texts are left alone, nothing is fired.
enum class Columns { Off, On };
void PlaceColumns(Program& program, PageId page, int row, Columns columns);
[[nodiscard]] bool ColumnsOn(const Program& program, PageId page, int row);

/// Shows or hides the currency sign beside an area of the amount column, with its Tag.
enum class Mark { Hidden, Shown };
void SetCurrencySign(Program& program, PageId page, int amount, Mark mark);
/// Shows or hides the exempt mark of an area, with its Tag. The tables are not touched.
void SetNoTaxMark(Program& program, PageId page, int index, Mark mark);

/// A label's width in twips: it sizes itself to its caption.
[[nodiscard]] float LabelWidth(const Program& program, const PageLabel& label);

/// Width in twips of a text in the page's own font, never bold.
[[nodiscard]] float MeasureTextWidth(const Program& program, PageId page, std::string_view text);

/// Copies Left and Top of all labels of the six edited pages into the proposal's label table.
void SnapshotLabels(Program& program);

/// Copies a page's labels into its LabelBaseState.
void LoadBaseLabels(Program& program, PageId page);

/// Resizes the remittance box of the final page and its copy to the company's address.
void SizeRemittanceBox(Program& program);

} // namespace modPages
