#pragma once

#include <string>

struct Program;

/// The one answer to where the program's data lie. Folders end in a separator.
namespace modFolders {

/// Where they lie in the program's own folder, unless a shared one is set.
[[nodiscard]] std::string OwnFolder(const Program& program);

/// The folder of the proposals and shared data, also when the settings could not be read.
[[nodiscard]] std::string DataFolder(const Program& program);
[[nodiscard]] std::string BackupFolder(const Program& program);

} // namespace modFolders
