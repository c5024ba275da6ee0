#pragma once

#include <cstdint>
#include <string_view>

namespace files {

/// What a file held when the program read or wrote it last. Kept beside what was made of the file, and
/// compared before that file is overwritten: another program may have changed it meanwhile.
///
///     seen = files::SeenIn(bytes);              after a read of the whole file, or a write
///     seen = files::LookAt(path);               where only a part of it was read
///     if (files::ChangedSince(path, seen)) ...  before a write
struct Seen {
    enum class What {
        Nothing, ///< never looked: any file there is somebody else's
        NoFile,  ///< there was none
        Bytes,   ///< these
        Unread   ///< there was one, and it could not be read whole
    };
    What Was = What::Nothing;
    std::uintmax_t Length = 0;
    std::uint64_t Sum = 0;
    bool operator==(const Seen&) const = default;
};

[[nodiscard]] Seen SeenIn(std::string_view bytes);
/// The file of exactly that name as it is now. Never fails.
[[nodiscard]] Seen LookAt(std::string_view path);
/// Whether a write would overwrite other bytes than were seen. A file that has gone meanwhile is none to ask
/// about; one that has come, or cannot be read, is.
[[nodiscard]] bool ChangedSince(std::string_view path, const Seen& seen);

} // namespace files
