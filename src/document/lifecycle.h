#pragma once

#include <string_view>

struct Program;

namespace modMain {

/// Whether any text differs from its saved form.
[[nodiscard]] bool SomethingChanged(Program& program);

/// Asks about unsaved changes; sets `document.Cancelled` on Cancel and when Yes could not save.
void AskToSave(Program& program);
/// AskToSave, and true when the command may go on; clears `Cancelled`.
[[nodiscard]] bool MayGoOn(Program& program);

/// The reset: an empty proposal on all pages. Reports as "StartNewFile".
void StartNewFile(Program& program);

void SaveEventFileAs(Program& program);

/// Asks whether the file of that name may be replaced. Yes deletes it; No says "File not saved." and sets
/// `document.Cancelled`. Reports as "ShowDuplicateFileOptions".
void ShowDuplicateFileOptions(Program& program, std::string_view name);

/// True, with a message, when the name holds one of / \ : * ? < > |.
[[nodiscard]] bool IllegalFileName(Program& program, std::string_view name);

void mnuFileNew_Click(Program& program);
void mnuFileOpenEvent_Click(Program& program);
void mnuFileSaveEvent_Click(Program& program);
void mnuFileSaveAs_Click(Program& program);
void mnuFileDelete_Click(Program& program);
void mnuFileRestoreFromBackup_Click(Program& program);

/// The folder of the proposals and shared data, also when the settings could not be read.
[[nodiscard]] std::string_view DataFolder(Program& program);

} // namespace modMain
