#pragma once

struct Program;

/// The properties beside a proposal.
namespace modFile {

enum class SaveResult { Saved, NotSaved };

/// Writes the property lines beside the proposal; for one that was opened from the backups, into the data
/// folder. Then no label counts as changed. Reports as "SavePropertyFile".
SaveResult SavePropertyFile(Program& program);

/// Reads the property lines and hands them to the language of formats. Reports as "ReadFileProperties".
void ReadFileProperties(Program& program);

/// Whether any property differs from what was last saved: a dirty text record, a changed label, a stale
/// state.
[[nodiscard]] bool PropertiesChanged(const Program& program);

} // namespace modFile
