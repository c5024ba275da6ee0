#pragma once

#include "base/file_error.h"
#include "base/safe_write.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// The small file layer: every file operation of the model. Paths are in the program's characters. Names of
/// existing files and folders are found without regard to case, an exact match first; what writes or deletes
/// takes the exact one only. Failures are FileError.
namespace files {

inline constexpr std::uintmax_t kTextLimit = 64U << 20U;

/// A regular file of that name. Folders, devices and pipes are none.
[[nodiscard]] bool Exists(std::string_view path);
/// The same, of exactly that name: the file that a write or a delete would meet. Never throws.
[[nodiscard]] bool ExistsExactly(std::string_view path);
[[nodiscard]] bool IsFolder(std::string_view path);
[[nodiscard]] std::uintmax_t Length(std::string_view path);
/// The first bytes of a file, at most so many. Only regular files; never waits.
[[nodiscard]] std::string ReadUpTo(std::string_view path, std::uintmax_t most);
/// The same, and the whole length of the file that was read.
struct Head {
    std::string Bytes;
    std::uintmax_t Length = 0;
};
[[nodiscard]] Head ReadHead(std::string_view path, std::uintmax_t most);
/// A whole file; one above the limit is refused.
[[nodiscard]] std::string ReadAll(std::string_view path, std::uintmax_t limit = kTextLimit);
using safe_write::ReadOnly;
/// Makes or overwrites a file. Whatever fails, the old bytes or the new ones stand whole.
void WriteWhole(std::string_view path, std::string_view bytes, ReadOnly readOnly = ReadOnly::Overwrite);
/// Puts bytes at the end of a file, made when it is not there.
void Append(std::string_view path, std::string_view bytes);
/// Gives the owner the right to write.
void ClearAttributes(std::string_view path);
/// Clears the attributes, then deletes; a symbolic link itself.
void Delete(std::string_view path);
void Copy(std::string_view from, std::string_view to);
void Rename(std::string_view from, std::string_view to);
/// Gives a file the name with ".unread" at its end (and a number, when there is one already): what it holds
/// is nowhere else. Returns the new path.
[[nodiscard]] std::string KeepUnread(std::string_view path);
/// Deletes what runs that broke off have left in a folder in the middle of writing. Never fails.
void RemoveLeftOvers(std::string_view folder);
void MakeFolder(std::string_view path);
/// Time of the last change, local, as a day serial.
[[nodiscard]] double ModifiedSerial(std::string_view path);

/// Names of the regular files that match one of the patterns ("*.jpg;*.bmp"), by text without regard to case.
/// Names that the program's characters cannot hold, and names with a backslash, are left out.
[[nodiscard]] std::vector<std::string> List(std::string_view folder, std::string_view patterns);
[[nodiscard]] std::vector<std::string> Subfolders(std::string_view folder);
[[nodiscard]] bool Matches(std::string_view name, std::string_view patterns);

/// A name lookup in the folder.
[[nodiscard]] bool FileIsThere(std::string_view folder, std::string_view name);
/// Whether the parent has a subfolder of that name.
[[nodiscard]] bool FolderExists(std::string_view parent, std::string_view name);

} // namespace files
