#pragma once

#include "program/keys.h"
#include "program/page_records.h"

struct Program;

/// Quantity and unit price columns of a description row, and the exempt mark.
namespace modColumns {

/// Turns the columns of the current area of the current page on or off; on gives the quantity the focus.
void ToggleColumns(Program& program);

void txtQty_Change(Program& program, PageId page, int row);
void txtAmt_Change(Program& program, PageId page, int row);
/// Key, character, focus of either box; `field.Kind` tells which.
[[nodiscard]] Taken Box_KeyDown(Program& program, const FieldRef& field, int keyCode, int shift);
/// Empties a box that still holds its "Qty." or "Amt.".
void ClearPlaceholder(Program& program, const FieldRef& field);
void Box_KeyPress(Program& program, const FieldRef& field, int& keyAscii);
void Box_GotFocus(Program& program, const FieldRef& field);
void Box_LostFocus(Program& program, const FieldRef& field);

/// Whether a box holds a text that is no number and not its "Qty." or "Amt.". It leaves the amount as it was,
/// stands red and says so in its tool tip.
[[nodiscard]] bool IsNoNumber(const Program& program, FieldKind kind, const TextArea& box);

/// What leaving a box does to its figures: the price under its pattern, and the row's amount.
void SettleBox(Program& program, const FieldRef& field);

void mnuEditTextTaxExempt_Click(Program& program);
void mnuEditTextTaxable_Click(Program& program);

/// Walks all areas of frmP1 to frmP5: a width of exactly 6270 is a row with columns. Brings both text tables
/// and the current texts up to what stands on the pages. Reports as "SaveTextBoxFeatures".
void CollectQtyBoxes(Program& program);
/// The current texts alone.
void CollectLines(Program& program);

} // namespace modColumns
