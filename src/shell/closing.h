#pragma once

struct Program;

/// The end of a run.
namespace modClosing {

/// The close box or Exit: asks about unsaved changes. True when the window may close. Yes saves and keeps the
/// program open.
[[nodiscard]] bool MDIForm_QueryUnload(Program& program);

/// Closes all windows and ends the run. A second call does nothing.
void MDIForm_Unload(Program& program);

/// Starts the closing, with its question.
void mnuFileExit_Click(Program& program);

} // namespace modClosing
