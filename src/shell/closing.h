#pragma once

struct Program;

/// The end of a run.
namespace modClosing {

/// The close box or Exit: asks about unsaved changes. True when the window may close. Yes saves and keeps the
/// program open.
[[nodiscard]] bool MDIForm_QueryUnload(Program& program);

/// Closes all windows and ends the run. A second call does nothing.
void MDIForm_Unload(Program& program);

/// Closes all windows and ends the run that did not get as far as a window, or that has been asked.
void EndRun(Program& program);

/// The desktop session ends and the program with it. Asks nothing; unsaved changes are written into the
/// backup, and the next start offers them.
void KeepUnsaved(Program& program);

/// The system ends the program: the same, and the run is over.
void Interrupted(Program& program);

/// Starts the closing, with its question.
void mnuFileExit_Click(Program& program);

} // namespace modClosing
