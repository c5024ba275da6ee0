#include "base/file_places.h"

#include "base/ansi.h"
#include "base/file_error.h"
#include "base/paths.h"
#include "base/text.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

namespace file_places {

namespace {

namespace fs = std::filesystem;

std::string Slashes(std::string_view path) {
    std::string result(path);
    std::replace(result.begin(), result.end(), '\\', '/');
    if (result.find('\0') != std::string::npos) {
        files::FailWith(files::kBadName, "Bad file name or number", "");
    }
    return result;
}

bool IsThere(const std::string& native) {
    std::error_code ignored;
    return fs::exists(fs::status(native, ignored));
}

/// Every name of a folder, in the folder's own order.
std::vector<std::string> Unsorted(const std::string& nativeFolder) {
    std::vector<std::string> names;
    std::error_code failed;
    fs::directory_iterator entry(nativeFolder.empty() ? "." : nativeFolder, failed);
    for (; !failed && entry != fs::directory_iterator(); entry.increment(failed)) {
        std::optional<std::string> known = ansi::FromUtf8(entry->path().filename().native());
        if (known && known->find('\\') == std::string::npos) {
            names.push_back(std::move(*known));
        }
    }
    return names;
}

} // namespace

std::vector<std::string> NamesOf(const std::string& nativeFolder) {
    std::vector<std::string> names = Unsorted(nativeFolder);
    std::sort(names.begin(), names.end(), [](const std::string& one, const std::string& other) {
        const int order = text::CompareNoCase(one, other);
        return order != 0 ? order < 0 : one < other;
    });
    return names;
}

std::optional<std::string> Locate(std::string_view path) {
    if (path.empty() || path.find('\0') != std::string_view::npos) {
        return std::nullopt; // no file has such a name
    }
    const std::string wanted = Slashes(path);
    const std::string exact = ansi::ToUtf8(wanted);
    if (IsThere(exact)) {
        return exact;
    }
    std::string native = wanted.front() == '/' ? "/" : "";
    std::size_t at = 0;
    // Mostly the folder stands as it is named, and only the last name may differ.
    const std::string_view folder = paths::Folder(wanted);
    if (std::string nativeFolder = ansi::ToUtf8(folder); IsThere(nativeFolder)) {
        native = std::move(nativeFolder);
        at = folder.size();
    }
    while (at < wanted.size()) {
        const std::size_t end = std::min(wanted.find('/', at), wanted.size());
        const std::string part = wanted.substr(at, end - at);
        at = end + 1;
        if (part.empty()) {
            continue;
        }
        std::string next = native + ansi::ToUtf8(part);
        if (!IsThere(next)) {
            // The first in order of those that differ in nothing but their case; a large folder is not sorted
            // for it.
            std::optional<std::string> same;
            for (std::string& name : Unsorted(native)) {
                if (name.size() == part.size() && text::EqualNoCase(name, part) && (!same || name < *same)) {
                    same = std::move(name);
                }
            }
            if (!same) {
                return std::nullopt;
            }
            next = native + ansi::ToUtf8(*same);
        }
        native = next + "/";
    }
    native.pop_back();
    return native;
}

std::string MustLocate(std::string_view path) {
    const std::optional<std::string> native = Locate(path);
    if (!native) {
        files::FailWith(files::kNotFound, "File not found", path);
    }
    return *native;
}

std::string FreeName(std::string_view folder, std::string_view name) {
    const std::string_view base = paths::BaseOf(name);
    std::string free(name);
    for (int number = 2; Locate(paths::Join(folder, free)); ++number) {
        free =
            std::string(base) + " (" + std::to_string(number) + ")" + std::string(name.substr(base.size()));
    }
    return free;
}

std::string PlaceFor(std::string_view path) {
    const std::string_view folder = paths::Folder(path);
    const std::string_view name = paths::Name(path);
    if (name.empty()) {
        files::FailWith(files::kBadName, "Bad file name or number", path);
    }
    if (folder.empty()) {
        return ansi::ToUtf8(Slashes(name));
    }
    const std::optional<std::string> native = Locate(folder);
    if (!native) {
        files::FailWith(files::kPathNotFound, "Path not found", folder);
    }
    return *native + "/" + ansi::ToUtf8(Slashes(name));
}

} // namespace file_places
