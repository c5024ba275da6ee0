#pragma once

#include "proposal/property_file.h"

struct Program;

/// Writing a proposal.
namespace modFile {

/// Saves the proposal under its name, with all questions and messages. Reports as "SaveEventFile". When it
/// was not saved, `document.FileExists` and the saved texts are as before and the text stays on screen.
SaveResult SaveEventFile(Program& program);

/// Saves a copy into Backup/, by the steps of SaveEventFile and with its questions, but without the message
/// of success. Does nothing for a proposal without a name. When the steps stop, the backup that stood stays.
/// Reports as "BackupThisFile", the steps themselves as "SaveEventFile".
void BackupThisFile(Program& program);

/// Whether the client's name differs from its saved text.
[[nodiscard]] bool ClientNameChanged(const Program& program);

} // namespace modFile
