#pragma once

#include <string>
#include <string_view>

struct Program;

/// Names of proposals: what they may hold, where they lie, and what happens when one is taken.
namespace modNames {

/// True, with a message, when the name holds one of / \ : * ? < > | or is too long for a file's name.
[[nodiscard]] bool IllegalFileName(Program& program, std::string_view name);

/// Asks whether the file of that name in `document.FilePath` may be replaced. Yes deletes nothing; No says
/// "File not saved." and sets `document.Cancelled`. Reports as "ShowDuplicateFileOptions".
void ShowDuplicateFileOptions(Program& program, std::string_view name);

/// The side files' names after a new file name.
void SetBaseName(Program& program, std::string_view baseName);

} // namespace modNames
