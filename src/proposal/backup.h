#pragma once

#include <string>

struct Program;

/// The copy that is kept while a proposal is worked on.
namespace modFile {

/// The name of the proposal's copy in the folder of the backups. One of another folder than the proposals'
/// takes that folder's name in brackets: two proposals of one name do not share a backup. Empty while a
/// proposal without a name has none.
[[nodiscard]] std::string BackupNameOf(const Program& program);

/// Writes the proposal, and its properties beside it, into Backup/. Asks nothing, shows no box, moves no
/// focus and leaves the proposal as it is: names, texts, figures, what counts as saved. While the client has
/// no name that a file can bear, changes are kept as "(no client's name).hef", with a number where that is
/// taken; the status strip says so and Error.log takes one entry as "BackupThisFile". When a write fails both
/// are told, and the backup that stood stays.
void BackupThisFile(Program& program);

/// The proposal is kept under its name since: the backup without one goes. Failures are logged.
void DropUnnamedBackup(Program& program);

/// Deletes a backup and the properties beside it. Throws files::FileError.
void DeleteBackup(const Program& program, const std::string& name);

} // namespace modFile
