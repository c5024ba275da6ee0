#pragma once

#include "program/page_records.h"

struct Program;

/// What stands beside an amount: its currency sign and its exempt mark.
namespace modPages {

/// Shows or hides the currency sign beside an area of the amount column, with its Tag.
enum class Mark { Hidden, Shown };
void SetCurrencySign(Program& program, PageId page, int amount, Mark mark);
/// Shows or hides the exempt mark of an area, with its Tag. The tables are not touched.
void SetNoTaxMark(Program& program, PageId page, int index, Mark mark);

/// After the defaults: hides the currency signs of frmP1 to frmP5 and the exempt marks of all pages.
void HideOptionalFields(Program& program);

} // namespace modPages
