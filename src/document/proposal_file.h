#pragma once

#include <string_view>

struct Program;

namespace modFile {

/// Saves the proposal under its name, with all questions and messages. Reports as "SaveEventFile". When it
/// was not saved, `document.FileExists` and the saved texts are as before and the text stays on screen.
enum class SaveResult { Saved, NotSaved };
SaveResult SaveEventFile(Program& program);

/// Fills pages and totals from a file of `document.FilePath`. Reports as "OpenEventFile"; a file that cannot
/// be read leaves the proposal that stands. Without a full read nothing of the file is applied.
enum class OpenResult { Opened, NotOpened };
OpenResult OpenEventFile(Program& program, std::string_view fileName);

/// Saves a copy into Backup/. Does nothing for a proposal without a name. Reports as "BackupThisFile".
void BackupThisFile(Program& program);

/// Writes the property lines beside the proposal. Reports as "SavePropertyFile".
void SavePropertyFile(Program& program);

/// Reads the property lines and hands them to the language of formats. Reports as "ReadFileProperties".
void ReadFileProperties(Program& program);

/// Whether any property differs from what was last saved: a dirty text record, a changed label, a stale
/// state.
[[nodiscard]] bool PropertiesChanged(const Program& program);

/// Whether the client's name differs from its saved text.
[[nodiscard]] bool ClientNameChanged(const Program& program);

} // namespace modFile
