#pragma once

#include <string>

struct Program;

/// The copy that is kept while a proposal is worked on.
namespace modFile {

/// The name of the proposal's copy in the folder of the backups. One of another folder than the proposals'
/// takes that folder's name in brackets: two proposals of one name do not share a backup.
[[nodiscard]] std::string BackupNameOf(const Program& program);

/// Writes the proposal, and its properties beside it, into Backup/. Asks nothing, shows no box, moves no
/// focus and leaves the proposal as it is: names, texts, figures, what counts as saved. When there is no name
/// to write under, and when a write fails, the status strip says so and Error.log takes one entry as
/// "BackupThisFile"; the backup that stood stays.
void BackupThisFile(Program& program);

/// Deletes a backup and the properties beside it. Throws files::FileError.
void DeleteBackup(const Program& program, const std::string& name);

} // namespace modFile
