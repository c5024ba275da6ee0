#pragma once

#include <string>

struct Program;

/// The copy that is kept while a proposal is worked on.
namespace modFile {

/// The name of the proposal's copy in the folder of the backups. A stored proposal of another folder than the
/// proposals' takes that folder's name in brackets: two proposals of one name do not share a backup. For one
/// that is not stored, or was opened from the backups, the name of the copy it has; empty before the first.
[[nodiscard]] std::string BackupNameOf(const Program& program);

/// Writes the proposal, and its properties beside it, into Backup/, which is made when it is missing. Asks
/// nothing, shows no box, moves no focus and leaves the proposal as it is: names, texts, figures, what counts
/// as saved. One that is not stored replaces no copy but its own: it takes " (new)" behind its name where a
/// proposal of the name is stored, and a number where a copy lies; "(no client's name)" is its name while the
/// client has none that a file can bear, of which the strip and one entry in Error.log tell. When a write
/// fails both tell it as "BackupThisFile", and the copy that stood stays.
void BackupThisFile(Program& program);

/// Where a copy without the client's name was opened from Backup/: it stands as a proposal that is not
/// stored, with unsaved changes, and is named after its client as typing would.
void TakeUpUnnamed(Program& program, const std::string& name);

/// The proposal is stored since: a copy that it had under another name goes. Failures are logged.
void DropOwnBackup(Program& program);

/// Deletes a backup and the properties beside it. Throws files::FileError.
void DeleteBackup(const Program& program, const std::string& name);

} // namespace modFile
