#pragma once

#include <string>
#include <string_view>

/// Writing in such a way that the old bytes or the new ones stand whole, whatever fails. Paths are native;
/// `toldAs` is the path as the person knows it, for the FileError.
namespace safe_write {

enum class ReadOnly { Overwrite, Refuse };

/// Makes a file, or puts new bytes in the place of an old one's. They go to a temporary file in the same
/// folder, to the disk, get the old one's rights (with the owner's right to write) and are renamed over it; a
/// symbolic link stays, and its target is the file. Where the folder takes no new file, the file is written
/// in place: what is new behind the old end first, and what was there is put back when the rest fails.
void Replace(const std::string& native, std::string_view bytes, ReadOnly readOnly, std::string_view toldAs);

/// Makes a file of a name that nothing has yet, whole or not at all, in the same way.
enum class Made { Yes, NameTaken };
[[nodiscard]] Made MakeNew(const std::string& native, std::string_view bytes, std::string_view toldAs);

/// Puts bytes at the end of a file, made when it is not there. When they do not fit, none is left.
void Append(const std::string& native, std::string_view bytes, std::string_view toldAs);

/// Deletes the temporary files in a folder that runs which are no more have left there. What cannot be
/// deleted stays.
void RemoveLeftOvers(const std::string& nativeFolder);

} // namespace safe_write
