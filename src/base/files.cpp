#include "base/files.h"

#include "base/ansi.h"
#include "base/descriptor.h"
#include "base/file_places.h"
#include "base/paths.h"
#include "base/text.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <optional>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

fs::file_status StatusOf(std::string_view path) {
    const std::optional<std::string> native = file_places::Locate(path);
    std::error_code ignored;
    return native ? fs::status(*native, ignored) : fs::file_status(fs::file_type::not_found);
}

[[noreturn]] void Fail(const std::error_code& failed, std::string_view path) {
    files::Fail(failed.value(), path);
}

/// The file of exactly that name.
std::string Exact(std::string_view path) {
    std::string native = file_places::PlaceFor(path);
    std::error_code ignored;
    if (!fs::exists(fs::symlink_status(native, ignored))) {
        files::FailWith(files::kNotFound, "File not found", path);
    }
    return native;
}

bool IsOfType(const std::string& nativeFolder, const std::string& name, fs::file_type type) {
    std::error_code ignored;
    return fs::status(nativeFolder + "/" + ansi::ToUtf8(name), ignored).type() == type;
}

} // namespace

namespace files {

bool Exists(std::string_view path) {
    return fs::is_regular_file(StatusOf(path));
}

bool ExistsExactly(std::string_view path) {
    try {
        std::error_code ignored;
        return fs::is_regular_file(fs::status(file_places::PlaceFor(path), ignored));
    } catch (const FileError&) {
        return false; // a folder that is not there, a name that cannot be
    }
}

bool IsFolder(std::string_view path) {
    return fs::is_directory(StatusOf(path));
}

std::uintmax_t Length(std::string_view path) {
    std::error_code failed;
    const std::uintmax_t length = fs::file_size(file_places::MustLocate(path), failed);
    if (failed) {
        ::Fail(failed, path);
    }
    return length;
}

Head ReadHead(std::string_view path, std::uintmax_t most) {
    Descriptor file;
    if (const int failed = file.Open(file_places::MustLocate(path), O_RDONLY); failed != 0) {
        Fail(failed, path);
    }
    Head head;
    head.Length = file.Length();
    constexpr std::size_t kPiece = 1U << 16U;
    std::string piece;
    do {
        const auto wanted =
            static_cast<std::size_t>(std::min<std::uintmax_t>(kPiece, most - head.Bytes.size()));
        if (const int failed = file.Read(piece, wanted); failed != 0) {
            Fail(failed, path);
        }
        head.Bytes += piece;
    } while (!piece.empty());
    return head;
}

std::string ReadUpTo(std::string_view path, std::uintmax_t most) {
    return ReadHead(path, most).Bytes;
}

std::string ReadAll(std::string_view path, std::uintmax_t limit) {
    std::string bytes = ReadUpTo(path, limit + 1);
    if (bytes.size() > limit) {
        FailWith(kPathAccess, "The file is too large", path);
    }
    return bytes;
}

void WriteWhole(std::string_view path, std::string_view bytes, ReadOnly readOnly) {
    safe_write::Replace(file_places::PlaceFor(path), bytes, readOnly, path);
}

void Append(std::string_view path, std::string_view bytes) {
    safe_write::Append(Exists(path) ? file_places::MustLocate(path) : file_places::PlaceFor(path), bytes,
                       path);
}

void ClearAttributes(std::string_view path) {
    std::error_code failed;
    const fs::path native = Exact(path);
    if ((fs::status(native, failed).permissions() & fs::perms::owner_write) == fs::perms::none && !failed) {
        // A file of somebody else keeps its rights; deleting or writing then tells.
        fs::permissions(native, fs::perms::owner_write, fs::perm_options::add, failed);
    }
}

void Delete(std::string_view path) {
    const std::string native = Exact(path);
    std::error_code failed;
    const fs::file_status status = fs::symlink_status(native, failed);
    if (fs::is_directory(status)) {
        FailWith(kPathAccess, "Path/File access error", path);
    }
    if (!fs::is_symlink(status)) {
        ClearAttributes(path);
    }
    if (::unlink(native.c_str()) != 0) {
        Fail(errno, path);
    }
}

void Copy(std::string_view from, std::string_view to) {
    WriteWhole(to, ReadAll(from));
}

void Rename(std::string_view from, std::string_view to) {
    if (file_places::Locate(to)) {
        FailWith(kAlreadyExists, "File already exists", to);
    }
    const std::string native = file_places::MustLocate(from);
    const std::string place = file_places::PlaceFor(to);
    if (::rename(native.c_str(), place.c_str()) != 0) {
        Fail(errno, from);
    }
}

std::string KeepUnread(std::string_view path) {
    const std::string first = std::string(path) + ".unread";
    std::string kept = first;
    for (int number = 2; file_places::Locate(kept); ++number) {
        kept = first + std::to_string(number);
    }
    Rename(path, kept);
    return kept;
}

void RemoveLeftOvers(std::string_view folder) {
    if (const std::optional<std::string> native = file_places::Locate(folder)) {
        safe_write::RemoveLeftOvers(*native);
    }
}

void MakeFolder(std::string_view path) {
    std::string_view bare = path;
    while (!bare.empty() && paths::IsSeparator(bare.back())) {
        bare.remove_suffix(1);
    }
    const std::string native = file_places::PlaceFor(bare);
    std::error_code failed;
    if (!fs::create_directory(native, failed)) {
        // A folder that is there already was made by somebody else, and is told of.
        files::Fail(!failed ? EEXIST : failed.value() == ENOENT ? ENOTDIR : failed.value(), path);
    }
}

double ModifiedSerial(std::string_view path) {
    struct stat about {};
    if (::stat(file_places::MustLocate(path).c_str(), &about) != 0) {
        Fail(errno, path);
    }
    std::tm local{};
    ::localtime_r(&about.st_mtime, &local);
    constexpr double kEpochSerial = 25569; // 1 January 1970
    constexpr double kSecondsADay = 86400;
    return kEpochSerial + static_cast<double>(about.st_mtime + local.tm_gmtoff) / kSecondsADay;
}

bool Matches(std::string_view name, std::string_view patterns) {
    std::size_t at = 0;
    while (at <= patterns.size()) {
        const std::size_t end = std::min(patterns.find(';', at), patterns.size());
        const std::string pattern = text::Upper(text::Trim(patterns.substr(at, end - at)));
        at = end + 1;
        if (pattern.empty()) {
            continue;
        }
        // Only leading stars occur: "*.hef".
        const std::string upper = text::Upper(name);
        const std::size_t star = pattern.rfind('*');
        if (star == std::string::npos
                ? upper == pattern
                : upper.size() >= pattern.size() - star - 1 && upper.ends_with(pattern.substr(star + 1))) {
            return true;
        }
    }
    return false;
}

std::vector<std::string> List(std::string_view folder, std::string_view patterns) {
    const std::optional<std::string> native = file_places::Locate(folder);
    if (!native) {
        FailWith(kPathNotFound, "Path not found", folder);
    }
    std::error_code failed;
    const fs::directory_iterator readable(*native, failed);
    if (failed) {
        ::Fail(failed, folder);
    }
    std::vector<std::string> names = file_places::NamesOf(*native);
    std::erase_if(names, [&](const std::string& name) {
        return !Matches(name, patterns) || !IsOfType(*native, name, fs::file_type::regular);
    });
    return names;
}

std::vector<std::string> Subfolders(std::string_view folder) {
    const std::optional<std::string> native = file_places::Locate(folder);
    if (!native) {
        return {};
    }
    std::vector<std::string> names = file_places::NamesOf(*native);
    std::erase_if(
        names, [&](const std::string& name) { return !IsOfType(*native, name, fs::file_type::directory); });
    return names;
}

bool FileIsThere(std::string_view folder, std::string_view name) {
    return !name.empty() && Exists(paths::Join(folder, name));
}

bool FolderExists(std::string_view parent, std::string_view name) {
    const std::vector<std::string> names = Subfolders(parent);
    return std::any_of(names.begin(), names.end(),
                       [&](const std::string& found) { return text::EqualNoCase(found, name); });
}

} // namespace files
