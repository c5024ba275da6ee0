#pragma once

struct Program;

namespace modPageCount {

/// Sets `PagesInUse` from the current texts: the highest line page with a text, plus one. Unchanged when no
/// page has one.
void CountPagesInUse(Program& program);

/// Writes page numbers and headings into the labels and the proposal's label table, and the main window's
/// line.
void SetPageNumbers(Program& program);

} // namespace modPageCount
