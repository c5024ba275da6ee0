#pragma once

struct Program;

/// Copy, cut, delete, undo and paste of the selected areas. Each reads the selection first; without one they
/// do nothing. Refusals are message boxes and leave the areas as they were.
namespace modBlocks {

/// The memory is held for pasting: the mode now offers the paste.
void CopyBlock(Program& program);

/// Empties every selected area, also those beyond a gap, with columns, bold and exempt marks, and remembers
/// them for one undo. Ends the selection. Runs the page's totals. Reports as "DeleteTextContents".
void DeleteBlock(Program& program);

/// Copies the runs and empties the selected areas. The mode stays, so that the memory can be pasted. A
/// failure shows a message of its own besides the report.
void CutBlock(Program& program);

/// Puts back what the last delete or cut took, into the areas it took it from. All other areas keep what was
/// typed meanwhile. Asks before it writes over text that has come there since; refused, it can be undone
/// later.
void UndoDeleteBlock(Program& program);

/// Writes the memory from the current area of the active page on; the right run goes to the amounts beginning
/// with the current area's own. Asks before it writes over text.
void PasteBlock(Program& program);

} // namespace modBlocks
