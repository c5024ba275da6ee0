#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Paths as text. "/" is written; "\" and "/" are both read as separators. Folders end in a separator.
namespace paths {

[[nodiscard]] bool IsSeparator(char character);
/// Everything up to and with the last separator; empty without one.
[[nodiscard]] std::string_view Folder(std::string_view path);
/// What follows the last separator.
[[nodiscard]] std::string_view Name(std::string_view path);
/// The folder with a separator at its end; an empty one stays empty.
[[nodiscard]] std::string WithSeparator(std::string_view folder);
/// Folder and name in one.
[[nodiscard]] std::string Join(std::string_view folder, std::string_view name);
/// A file name less its last four characters.
[[nodiscard]] std::string_view BaseOf(std::string_view fileName);
/// The last three characters of a file name.
[[nodiscard]] std::string_view ExtensionOf(std::string_view fileName);
/// Whether two folders are one, without regard to case and kind of separator.
[[nodiscard]] bool SameFolder(std::string_view one, std::string_view other);
/// Whether a path stands by itself: a drive, or a separator at its front.
[[nodiscard]] bool IsAbsolute(std::string_view path);
[[nodiscard]] bool HasDrive(std::string_view path);

/// What the drive letters of settings stand for where there are no drives: "c:\" is the home folder, another
/// letter the first folder of that name below the places where volumes are mounted.
struct DriveRoots {
    std::string Home;
    std::vector<std::string> MountPlaces;
};
/// A path without a drive letter; others come back with "/" only. A letter without a volume gives a path that
/// does not exist, below the last mount place.
[[nodiscard]] std::string ResolveDrive(std::string_view path, const DriveRoots& roots);

} // namespace paths
