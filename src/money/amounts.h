#pragma once

#include "program/page_records.h"

struct Program;

/// The amounts of the lines: what their tables, their currency sign and their exempt mark say of a text.
namespace modTotals {

/// The tables' entries and the currency sign for an amount area. An empty text and one that is no number
/// count as nothing; the latter says so in its tool tip and keeps its text.
void StoreAmount(Program& program, PageId page, int index);

/// What leaving an amount does: tables, pattern, sign, page sum and running totals. A change handler that is
/// quiet during a block selection runs all the same, so that the store has what the page shows.
void LeaveAmount(Program& program, PageId page, int index);

/// The text of an amount has changed. An area that was emptied is exempt no longer; while the person is still
/// in it, another amount may follow, and leaving it decides.
void NoteEmptied(Program& program, PageId page, int index);

/// Makes a row exempt or taxable: mark, both text tables, unsaved properties, taxable table; the totals
/// follow at once and `cmdReCalc` turns red.
enum class Tax { Taxable, Exempt };
void SetTax(Program& program, PageId page, int row, Tax tax);

/// Brings the tables of every amount whose text says something else up to its text.
void MatchTables(Program& program);

/// The person clicks the exempt mark of a row: the row is taxable again, focus to the row's area.
void imgNoTax_Click(Program& program, PageId page, int row);

} // namespace modTotals
