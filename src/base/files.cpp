#include "base/files.h"

#include "base/ansi.h"
#include "base/guard.h"
#include "base/paths.h"
#include "base/text.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <ctime>
#include <filesystem>
#include <optional>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

struct ErrorText {
    int System;
    int Number;
    const char* Description;
};

constexpr std::array<ErrorText, 12> kErrors{{{ENOENT, files::kNotFound, "File not found"},
                                             {ENOTDIR, files::kPathNotFound, "Path not found"},
                                             {EACCES, files::kPermissionDenied, "Permission denied"},
                                             {EPERM, files::kPermissionDenied, "Permission denied"},
                                             {EROFS, files::kPermissionDenied, "Permission denied"},
                                             {ENOSPC, files::kDiskFull, "Disk full"},
                                             {EDQUOT, files::kDiskFull, "Disk full"},
                                             {EFBIG, files::kDiskFull, "Disk full"},
                                             {EEXIST, files::kAlreadyExists, "File already exists"},
                                             {EISDIR, files::kPathAccess, "Path/File access error"},
                                             {ENAMETOOLONG, files::kBadName, "Bad file name or number"},
                                             {ELOOP, files::kPathAccess, "Path/File access error"}}};

[[noreturn]] void Fail(int systemError, std::string_view path) {
    for (const ErrorText& known : kErrors) {
        if (known.System == systemError) {
            throw files::FileError(known.Number, std::string(known.Description) + ": " + std::string(path));
        }
    }
    throw files::FileError(files::kDeviceError, "Device I/O error: " + std::string(path));
}

[[noreturn]] void FailWith(int number, const char* description, std::string_view path) {
    throw files::FileError(number, std::string(description) + ": " + std::string(path));
}

std::string Slashes(std::string_view path) {
    std::string result(path);
    std::replace(result.begin(), result.end(), '\\', '/');
    if (result.find('\0') != std::string::npos) {
        FailWith(files::kBadName, "Bad file name or number", "");
    }
    return result;
}

std::optional<struct stat> Stat(const std::string& native) {
    struct stat found {};
    return ::stat(native.c_str(), &found) == 0 ? std::optional(found) : std::nullopt;
}

/// Every name of a folder, in the program's characters; empty when it cannot be read.
std::vector<std::string> NamesOf(const std::string& nativeFolder) {
    std::vector<std::string> names;
    DIR* folder = ::opendir(nativeFolder.empty() ? "." : nativeFolder.c_str());
    if (folder == nullptr) {
        return names;
    }
    const OnLeaving close([folder] { ::closedir(folder); });
    while (const dirent* entry = ::readdir(folder)) {
        const std::string_view name(entry->d_name);
        if (name == "." || name == "..") {
            continue;
        }
        if (std::optional<std::string> known = ansi::FromUtf8(name)) {
            names.push_back(std::move(*known));
        }
    }
    std::sort(names.begin(), names.end(), [](const std::string& one, const std::string& other) {
        const int order = text::CompareNoCase(one, other);
        return order != 0 ? order < 0 : one < other;
    });
    return names;
}

/// The path of something on the disk, component by component without regard to case where there is no exact
/// match.
std::optional<std::string> Locate(std::string_view path) {
    const std::string wanted = Slashes(path);
    if (wanted.empty()) {
        return std::nullopt;
    }
    const std::string exact = ansi::ToUtf8(wanted);
    if (Stat(exact)) {
        return exact;
    }
    std::string native = wanted.front() == '/' ? "/" : "";
    std::size_t at = 0;
    // Mostly the folder stands as it is named, and only the last name may differ.
    const std::string folder(paths::Folder(wanted));
    if (folder.size() < wanted.size() && folder.size() > 1) {
        const std::string nativeFolder = ansi::ToUtf8(folder);
        if (Stat(nativeFolder)) {
            native = nativeFolder;
            at = folder.size();
        }
    }
    while (at < wanted.size()) {
        const std::size_t end = std::min(wanted.find('/', at), wanted.size());
        const std::string part = wanted.substr(at, end - at);
        at = end + 1;
        if (part.empty()) {
            continue;
        }
        std::string next = native + ansi::ToUtf8(part);
        if (!Stat(next)) {
            const std::vector<std::string> names = NamesOf(native);
            const auto same = std::find_if(names.begin(), names.end(), [&](const std::string& name) {
                return text::EqualNoCase(name, part);
            });
            if (same == names.end()) {
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
        FailWith(files::kNotFound, "File not found", path);
    }
    return *native;
}

/// Where a new file goes: its folder as it stands on the disk, the name as given.
std::string PlaceFor(std::string_view path) {
    const std::string_view folder = paths::Folder(path);
    const std::string_view name = paths::Name(path);
    if (name.empty()) {
        FailWith(files::kBadName, "Bad file name or number", path);
    }
    if (folder.empty()) {
        return ansi::ToUtf8(Slashes(name));
    }
    const std::optional<std::string> native = Locate(folder);
    if (!native) {
        FailWith(files::kPathNotFound, "Path not found", folder);
    }
    return *native + "/" + ansi::ToUtf8(Slashes(name));
}

int Open(const std::string& native, int flags, std::string_view path) {
    const int file = ::open(native.c_str(), flags | O_CLOEXEC | O_NONBLOCK, 0666);
    if (file < 0) {
        Fail(errno, path);
    }
    struct stat about {};
    if (::fstat(file, &about) != 0 || !S_ISREG(about.st_mode)) {
        ::close(file);
        FailWith(files::kPathAccess, "Path/File access error", path);
    }
    return file;
}

void WriteBytes(const std::string& native, int flags, std::string_view bytes, std::string_view path) {
    const int file = Open(native, O_WRONLY | O_CREAT | flags, path);
    int failed = 0;
    std::string_view rest = bytes;
    while (!rest.empty() && failed == 0) {
        const ssize_t count = ::write(file, rest.data(), rest.size());
        if (count < 0) {
            failed = errno == EINTR ? 0 : errno;
        } else {
            rest.remove_prefix(static_cast<std::size_t>(count));
        }
    }
    if (failed == 0 && ::fdatasync(file) != 0 && errno != EINVAL && errno != EROFS) {
        failed = errno;
    }
    if (::close(file) != 0 && failed == 0) {
        failed = errno;
    }
    if (failed != 0) {
        Fail(failed, path);
    }
}

} // namespace

namespace files {

bool Exists(std::string_view path) {
    const std::optional<std::string> native = Locate(path);
    const auto about = native ? Stat(*native) : std::nullopt;
    return about && S_ISREG(about->st_mode);
}

bool IsFolder(std::string_view path) {
    const std::optional<std::string> native = Locate(path);
    const auto about = native ? Stat(*native) : std::nullopt;
    return about && S_ISDIR(about->st_mode);
}

std::uintmax_t Length(std::string_view path) {
    const auto about = Stat(MustLocate(path));
    return about ? static_cast<std::uintmax_t>(about->st_size) : 0;
}

Head ReadHead(std::string_view path, std::uintmax_t most) {
    const int file = Open(MustLocate(path), O_RDONLY, path);
    const OnLeaving close([file] { ::close(file); });
    struct stat about {};
    if (::fstat(file, &about) != 0) {
        Fail(errno, path);
    }
    Head head;
    head.Length = static_cast<std::uintmax_t>(about.st_size);
    std::string& bytes = head.Bytes;
    constexpr std::size_t kPiece = 1U << 16U;
    while (bytes.size() < most) {
        const std::size_t before = bytes.size();
        bytes.resize(before + static_cast<std::size_t>(std::min<std::uintmax_t>(kPiece, most - before)));
        const ssize_t count = ::read(file, bytes.data() + before, bytes.size() - before);
        if (count < 0 && errno == EINTR) {
            bytes.resize(before);
            continue;
        }
        if (count < 0) {
            Fail(errno, path);
        }
        bytes.resize(before + static_cast<std::size_t>(count));
        if (count == 0) {
            break;
        }
    }
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

void WriteWhole(std::string_view path, std::string_view bytes) {
    WriteBytes(PlaceFor(path), O_TRUNC, bytes, path);
}

void Append(std::string_view path, std::string_view bytes) {
    WriteBytes(Exists(path) ? MustLocate(path) : PlaceFor(path), O_APPEND, bytes, path);
}

void ClearAttributes(std::string_view path) {
    const std::string native = MustLocate(path);
    const auto about = Stat(native);
    if (about && (about->st_mode & S_IWUSR) == 0) {
        // A file of somebody else keeps its rights; deleting or writing then tells.
        static_cast<void>(::chmod(native.c_str(), about->st_mode | S_IWUSR));
    }
}

void Delete(std::string_view path) {
    const std::string native = MustLocate(path);
    struct stat about {};
    if (::lstat(native.c_str(), &about) == 0 && S_ISDIR(about.st_mode)) {
        FailWith(kPathAccess, "Path/File access error", path);
    }
    ClearAttributes(path);
    if (::unlink(native.c_str()) != 0) {
        Fail(errno, path);
    }
}

void Copy(std::string_view from, std::string_view to) {
    WriteWhole(to, ReadAll(from));
}

void Rename(std::string_view from, std::string_view to) {
    if (Locate(to)) {
        FailWith(kAlreadyExists, "File already exists", to);
    }
    const std::string source = MustLocate(from);
    if (::rename(source.c_str(), PlaceFor(to).c_str()) != 0) {
        Fail(errno, from);
    }
}

void MakeFolder(std::string_view path) {
    std::string bare = Slashes(path);
    while (bare.size() > 1 && bare.back() == '/') {
        bare.pop_back();
    }
    if (::mkdir(PlaceFor(bare).c_str(), 0777) != 0) {
        Fail(errno == ENOENT ? ENOTDIR : errno, path);
    }
}

double ModifiedSerial(std::string_view path) {
    const auto about = Stat(MustLocate(path));
    const std::time_t moment = about ? about->st_mtime : 0;
    std::tm local{};
    ::localtime_r(&moment, &local);
    constexpr double kEpochSerial = 25569; // 1 January 1970
    constexpr double kSecondsADay = 86400;
    return kEpochSerial + static_cast<double>(moment + local.tm_gmtoff) / kSecondsADay;
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
    const std::optional<std::string> native = Locate(folder);
    if (!native || !IsFolder(folder)) {
        FailWith(kPathNotFound, "Path not found", folder);
    }
    if (::access(native->c_str(), R_OK | X_OK) != 0) {
        Fail(errno, folder);
    }
    std::vector<std::string> names;
    for (std::string& name : NamesOf(*native)) {
        const auto about = Matches(name, patterns) ? Stat(*native + "/" + ansi::ToUtf8(name)) : std::nullopt;
        if (about && S_ISREG(about->st_mode)) {
            names.push_back(std::move(name));
        }
    }
    return names;
}

std::vector<std::string> Subfolders(std::string_view folder) {
    const std::optional<std::string> native = Locate(folder);
    std::vector<std::string> names;
    if (!native) {
        return names;
    }
    for (std::string& name : NamesOf(*native)) {
        const auto about = Stat(*native + "/" + ansi::ToUtf8(name));
        if (about && S_ISDIR(about->st_mode)) {
            names.push_back(std::move(name));
        }
    }
    return names;
}

std::string Native(std::string_view path) {
    return MustLocate(path);
}

std::string NativePlace(std::string_view path) {
    return PlaceFor(path);
}

void FailBySystem(int systemError, std::string_view path) {
    Fail(systemError, path);
}

} // namespace files

namespace modFile {

bool FileIsThere(std::string_view folder, std::string_view name) {
    return !name.empty() && files::Exists(paths::Join(folder, name));
}

bool FolderExists(std::string_view parent, std::string_view name) {
    const std::vector<std::string> names = files::Subfolders(parent);
    return std::any_of(names.begin(), names.end(),
                       [&](const std::string& found) { return text::EqualNoCase(found, name); });
}

} // namespace modFile
