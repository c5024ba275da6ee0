#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// From the program's names to the system's: where something lies on the disk. Paths of the program are in
/// its own characters, those of the system ("native") in UTF-8.
namespace file_places {

/// Every name of a folder, in the program's characters; empty when it cannot be read. Names that the
/// program's characters cannot hold, and names with a backslash, which would read as a path, are left out.
[[nodiscard]] std::vector<std::string> NamesOf(const std::string& nativeFolder);

/// The native path of something on the disk, component by component without regard to case where there is no
/// exact match.
[[nodiscard]] std::optional<std::string> Locate(std::string_view path);
/// The same; what is not there is a FileError.
[[nodiscard]] std::string MustLocate(std::string_view path);

/// A name that nothing in the folder bears: "Jane Roe.hxt", then "Jane Roe (2).hxt".
[[nodiscard]] std::string FreeName(std::string_view folder, std::string_view name);

/// Where a file of exactly that name is or would be: its folder as it stands on the disk, the name as given.
[[nodiscard]] std::string PlaceFor(std::string_view path);

} // namespace file_places
