#pragma once

#include <string>
#include <string_view>

struct Program;

/// Names of proposals: what they may hold, where they lie, and what happens when one is taken.
namespace modNames {

/// Whether the name holds one of / \ : * ? < > |.
[[nodiscard]] bool HasIllegalCharacter(std::string_view name);

/// Whether a file, and what stands beside it on the way to it, can bear the name: a client is named, with no
/// illegal character, and the name is not too long. Says nothing.
[[nodiscard]] bool CanBeAFile(std::string_view fileName);

/// True, with a message, when the name holds one of / \ : * ? < > | or is too long for a file's name.
[[nodiscard]] bool IllegalFileName(const Program& program, std::string_view name);

/// Asks whether the file of that name in `document.FilePath` may be replaced. Yes deletes nothing; No says
/// "File not saved." and sets `document.Cancelled`. Reports as "ShowDuplicateFileOptions".
void ShowDuplicateFileOptions(Program& program, std::string_view name);
/// The same for a file of another folder.
void ShowDuplicateFileOptions(Program& program, std::string_view folder, std::string_view name);

/// Tells what is lost when the changes of the proposal on show are not kept.
[[nodiscard]] std::string UnsavedChanges(const Program& program);

/// No name, no side files' names and no title, as of a proposal whose client is not known.
void ClearNames(Program& program);

/// The folder in which the proposal is saved: its own, but never that of the backups.
[[nodiscard]] std::string SavingFolder(const Program& program);

/// The side files' names after a new file name.
void SetBaseName(Program& program, std::string_view baseName);

/// An empty proposal is none from the backups, and must not be saved among them.
void LeaveBackup(Program& program);

/// A proposal without a file takes its names, and its title unless that was given, from the client's.
void NameAfterClient(Program& program, std::string_view client);

} // namespace modNames
