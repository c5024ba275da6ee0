#pragma once

#include <string>
#include <string_view>
#include <vector>

struct Program;

/// The lists of the data folder.
namespace modTerms {

/// Every terms file of the data folder by name; none when the folder cannot be read, which is reported as
/// "ReadFrequentlyUsedTerms".
[[nodiscard]] std::vector<std::string> ListFiles(const Program& program);

/// The person opens a list; it stays the one in use for the run.
void OpenList(Program& program, std::string_view fileName);
/// The next list by name, from the last to the first again.
void OpenNextList(Program& program);

/// Asks a name and makes an empty list of it, which becomes the open one. Reports as "CreateNewFUTFile".
void CreateNewFUTFile(Program& program);

/// Asks, deletes the file and opens the first list that is left; false when nothing was deleted.
[[nodiscard]] bool DeleteList(Program& program, std::string_view fileName);

/// Lists that an installation lays down: made empty where they are missing.
void LayDownLists(const Program& program);

} // namespace modTerms
