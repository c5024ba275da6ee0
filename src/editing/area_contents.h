#pragma once

#include "program/editing_records.h"
#include "program/page_records.h"

struct Program;

/// What travels from area to area in block work, and the colours of a selected area.
namespace modBlocks {

[[nodiscard]] AreaContents ReadContents(const Program& program, PageId page, int index);

/// Puts contents into an area: text, columns with their geometry, quantity, unit price, bold, exempt mark,
/// and both text tables. Runs no change handler; the store and the totals follow by `RunChange` or
/// `RefireTextChanges`. A change of what a property file holds counts as unsaved.
void PlaceContents(Program& program, PageId page, int index, const AreaContents& contents);

/// Runs an area's change handler on its text as it stands.
void RunChange(Program& program, PageId page, int index);

/// An area holds text when there is more in it than blanks.
[[nodiscard]] bool HoldsText(const Program& program, PageId page, int index);

/// Selected areas are blue with white letters, the boxes of a description's columns with them.
enum class Selected { No, Yes };
void PaintArea(Program& program, PageId page, int index, Selected selected);
[[nodiscard]] bool IsSelected(const Program& program, PageId page, int index);

} // namespace modBlocks
