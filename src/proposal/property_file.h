#pragma once

#include <string>
#include <vector>

struct Program;

/// The properties beside a proposal.
namespace modFile {

enum class SaveResult { Saved, NotSaved };

/// Writes the property lines beside the proposal; for one that was opened from the backups, into the data
/// folder. Then no label counts as changed. The person is asked about one that another program has changed; a
/// file that could not be read is kept as ".unread", and one that the person did not want read stays as it
/// is. Reports as "SavePropertyFile".
[[nodiscard]] SaveResult SavePropertyFile(Program& program);

/// The bytes of a file of lines.
[[nodiscard]] std::string BytesOfLines(const std::vector<std::string>& lines);

/// Reads the property lines from a file, when it is there, and hands them to the language of formats. Throws
/// files::FileError.
void TakeProperties(Program& program, const std::string& path);

/// Reads the property lines and hands them to the language of formats. Reports as "ReadFileProperties".
void ReadFileProperties(Program& program);

/// Whether a save writes the property file: when a property has changed, and with the first save under a
/// format. What a client was sent must look the same when the format is another one.
[[nodiscard]] bool PropertiesWanted(const Program& program);

/// Whether any property differs from what was last saved: a dirty text record, a changed label, a stale
/// state.
[[nodiscard]] bool PropertiesChanged(const Program& program);

} // namespace modFile
