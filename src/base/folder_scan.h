#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

/// Looking at many files of one folder, and moving some of them, at no more than the system's own cost.
namespace files {

/// The beginning of one file.
struct FileHead {
    std::string Name;
    std::string Bytes;    ///< fewer when the file is shorter
    bool Readable = true; ///< false: it is there, and cannot be read
};

/// Visits the regular files whose names end so (given in lower case, meant without regard to it), in the
/// folder's own order: one open, one read and one close each, done when the first is visited; nothing is
/// opened for `most` 0. The visitor ends the scan with false, and so does `goOn`, which is asked at every
/// name of the folder and every few files that are read. Names that the
/// program's characters cannot hold are passed over. Throws FileError when the folder cannot be listed to its
/// end.
void ScanHeads(std::string_view folder, std::string_view ending, std::size_t most,
               const std::function<bool(FileHead&&)>& visit, const std::function<bool()>& goOn = {});

/// Moves a file to another name on the same volume and never over anything that is there. Both names are
/// taken to the letter. Throws FileError.
void MoveNew(std::string_view from, std::string_view to);

} // namespace files
