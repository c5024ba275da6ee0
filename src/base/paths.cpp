#include "base/paths.h"

#include "base/ansi.h"
#include "base/text.h"

#include <algorithm>
#include <filesystem>

namespace paths {

bool IsSeparator(char character) {
    return character == '/' || character == '\\';
}

std::string_view Folder(std::string_view path) {
    return path.substr(0, path.find_last_of("/\\") + 1);
}

std::string_view Name(std::string_view path) {
    return path.substr(path.find_last_of("/\\") + 1);
}

std::string WithSeparator(std::string_view folder) {
    std::string result(folder);
    if (!result.empty() && !IsSeparator(result.back())) {
        result += '/';
    }
    return result;
}

std::string Join(std::string_view folder, std::string_view name) {
    return WithSeparator(folder).append(name);
}

std::string_view BaseOf(std::string_view fileName) {
    return fileName.substr(0, fileName.size() < 4 ? 0 : fileName.size() - 4);
}

std::string_view ExtensionOf(std::string_view fileName) {
    return text::Right(fileName, 3);
}

bool SameFolder(std::string_view one, std::string_view other) {
    const auto plain = [](std::string_view folder) {
        std::string result = WithSeparator(folder);
        std::replace(result.begin(), result.end(), '\\', '/');
        return result;
    };
    return text::EqualNoCase(plain(one), plain(other));
}

bool HasDrive(std::string_view path) {
    const auto within = [&](char from, char to) { return path[0] >= from && path[0] <= to; };
    return path.size() >= 2 && path[1] == ':' && (within('a', 'z') || within('A', 'Z'));
}

bool IsAbsolute(std::string_view path) {
    return HasDrive(path) || (!path.empty() && IsSeparator(path.front()));
}

std::string ResolveDrive(std::string_view path, const DriveRoots& roots) {
    std::string rest(path);
    std::replace(rest.begin(), rest.end(), '\\', '/');
    if (!HasDrive(path)) {
        return rest;
    }
    const char letter = ansi::Lower(path[0]);
    rest.erase(0, 2);
    while (!rest.empty() && rest.front() == '/') {
        rest.erase(0, 1);
    }
    if (letter == 'c') {
        return Join(roots.Home, rest);
    }
    std::string place = std::string("/media/") + letter; // never the process's own folder
    for (const std::string& mount : roots.MountPlaces) {
        place = Join(mount, std::string(1, letter));
        std::error_code ignored;
        if (std::filesystem::is_directory(ansi::ToUtf8(place), ignored)) {
            break;
        }
    }
    return Join(place, rest);
}

} // namespace paths
