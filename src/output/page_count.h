#pragma once

struct Program;

namespace modPageCount {

/// Sets `PagesInUse` from the current texts: the highest line page with a text, plus one. Unchanged when no
/// page has one.
void CountPagesInUse(Program& program);

/// Writes page numbers and headings into the labels and the proposal's label table, and the main window's
/// line.
void SetPageNumbers(Program& program);

/// Once numbers were laid they are those of the pages in use: laid anew when a text has made a page one in
/// use or the last text of one has gone. Before that the pages say what they were built with.
void FollowPagesInUse(Program& program);

} // namespace modPageCount
