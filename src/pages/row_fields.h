#pragma once

#include "program/page_records.h"

struct Program;

/// The quantity and unit price fields of a page's rows.
namespace modPages {

/// Creates the row fields of a line page when that has not been done.
void EnsureRowFields(Program& program, PageId page);

/// The labels between description and unit price show the currency in force, on every page.
void ShowCurrency(Program& program);

/// Columns on or off for one row: place and width of the description, visibility and Tag of the four row
/// fields. Texts are left alone, nothing is fired.
enum class Columns { Off, On };
void PlaceColumns(Program& program, PageId page, int row, Columns columns);
[[nodiscard]] bool ColumnsOn(const Program& program, PageId page, int row);

} // namespace modPages
