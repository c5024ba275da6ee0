#include "settings/install.h"

#include "base/ansi.h"
#include "base/files.h"
#include "base/paths.h"

#include <filesystem>

#include <unistd.h>

namespace install {

namespace {

void CopyTree(const std::string& from, const std::string& to) {
    for (const std::string& name : files::List(from, "*")) {
        files::Copy(paths::Join(from, name), paths::Join(to, name));
    }
    for (const std::string& name : files::Subfolders(from)) {
        const std::string target = paths::Join(to, name);
        files::MakeFolder(target);
        CopyTree(paths::Join(from, name), target);
    }
}

/// Makes a folder and those above it.
void MakeAll(const std::string& folder) {
    std::error_code failed;
    std::filesystem::create_directories(ansi::ToUtf8(folder), failed);
    if (failed) {
        throw files::FileError(files::kPathAccess, "Path/File access error: " + folder);
    }
}

/// The folder is filled under another name first: a copy that broke off must not pass for an installation at
/// the next start.
void Fill(const Places& places) {
    std::string folder = places.UserData;
    while (!folder.empty() && paths::IsSeparator(folder.back())) {
        folder.pop_back();
    }
    const std::string unfinished = folder + ".unfinished";
    std::error_code ignored;
    std::filesystem::remove_all(ansi::ToUtf8(unfinished), ignored);
    MakeAll(unfinished);
    if (files::IsFolder(places.Shipped)) {
        CopyTree(places.Shipped, unfinished);
    }
    std::error_code failed;
    std::filesystem::rename(ansi::ToUtf8(unfinished), ansi::ToUtf8(folder), failed);
    if (failed) {
        throw files::FileError(files::kPathAccess, "Path/File access error: " + folder);
    }
}

} // namespace

std::string Locate(const Places& places) {
    if (files::FileIsThere(places.Executable, "UserPreferences.txt") &&
        ::access(ansi::ToUtf8(places.Executable).c_str(), W_OK) == 0) {
        return places.Executable;
    }
    if (places.UserData.empty()) {
        throw files::FileError(files::kBadName,
                               "The name of your data folder has characters that cannot be kept");
    }
    if (!files::IsFolder(places.UserData)) {
        Fill(places);
    }
    return places.UserData;
}

} // namespace install
