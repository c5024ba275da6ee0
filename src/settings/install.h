#pragma once

#include <string>
#include <string_view>

/// Where the program's own files lie.
namespace install {

/// The folders that come into question, in the program's characters, with a separator at their end.
struct Places {
    std::string Executable; ///< where the program itself lies
    std::string
        UserData; ///< the user's data folder, "Quillbrook/" included; empty when its name cannot be kept
    std::string Shipped; ///< what an installation ships
};

/// The executable's own folder when it holds UserPreferences.txt and can be written: a portable installation.
/// Otherwise the user's data folder, which is filled from the shipped one when it is not there at all; an
/// existing one is taken as it is. Throws files::FileError when it cannot be
/// made or named.
[[nodiscard]] std::string Locate(const Places& places);

} // namespace install
