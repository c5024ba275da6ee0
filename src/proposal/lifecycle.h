#pragma once

#include <string_view>

struct Program;

namespace modProposal {

/// Whether any text differs from its saved form.
[[nodiscard]] bool SomethingChanged(Program& program);

/// Asks about unsaved changes; sets `document.Cancelled` on Cancel and when Yes could not save.
void AskToSave(Program& program);
/// AskToSave, then the question about the open format, and true when the command may go on; clears
/// `Cancelled`.
[[nodiscard]] bool MayGoOn(Program& program);
/// The question about the open format alone.
[[nodiscard]] bool MayLeaveFormat(Program& program);

void SaveEventFileAs(Program& program);

void mnuFileNew_Click(Program& program);
void mnuFileOpenEvent_Click(Program& program);
/// The chooser for a text file, which is shown in a window of its own; the proposal stays as it is.
void mnuFileOpenTextFile_Click(Program& program);
void mnuFileSaveEvent_Click(Program& program);
void mnuFileSaveAs_Click(Program& program);
void mnuFileDelete_Click(Program& program);
void mnuFileRestoreFromBackup_Click(Program& program);

} // namespace modProposal
