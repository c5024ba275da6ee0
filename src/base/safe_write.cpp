#include "base/safe_write.h"

#include "base/descriptor.h"
#include "base/file_error.h"
#include "base/guard.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <system_error>

#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace safe_write {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kFront = ".quillbrook.";
constexpr std::string_view kEnd = ".tmp";
constexpr int kMostAtOnce = 100;

/// This machine's name as part of a file's name: a folder may be shared by several.
std::string Host() {
    constexpr std::size_t kMost = 64;
    std::array<char, kMost + 1> name{};
    if (::gethostname(name.data(), kMost) != 0) {
        return "localhost";
    }
    std::string host(name.data());
    std::replace_if(
        host.begin(), host.end(), [](char character) { return character == '/' || character == '.'; }, '-');
    return host.empty() ? "localhost" : host;
}

std::string TemporaryName(const fs::path& folder, int number) {
    return (folder / (std::string(kFront) + Host() + "." + std::to_string(::getpid()) + "." +
                      std::to_string(number) + std::string(kEnd)))
        .native();
}

/// The file that is to hold the bytes: at the end of symbolic links, also of those that lead to no file yet.
std::string TargetOf(const std::string& native, std::string_view toldAs) {
    constexpr int kMostLinks = 40;
    fs::path at(native);
    std::error_code failed;
    for (int link = 0; fs::is_symlink(fs::symlink_status(at, failed)); ++link) {
        if (link == kMostLinks) {
            files::Fail(ELOOP, toldAs);
        }
        const fs::path next = fs::read_symlink(at, failed);
        if (failed) {
            files::Fail(failed.value(), toldAs);
        }
        at = at.parent_path() / next;
    }
    return at.native();
}

std::optional<struct stat> About(const std::string& native) {
    struct stat found {};
    return ::lstat(native.c_str(), &found) == 0 ? std::optional(found) : std::nullopt;
}

/// A temporary file that goes when it was not renamed.
class Temporary {
public:
    Temporary() = default;
    ~Temporary() {
        if (!name_.empty()) {
            // What cannot be deleted now goes at the next start.
            static_cast<void>(::unlink(name_.c_str()));
        }
    }
    Temporary(const Temporary&) = delete;
    Temporary& operator=(const Temporary&) = delete;

    [[nodiscard]] int Make(const fs::path& folder) {
        int failed = EEXIST;
        for (int number = 0; failed == EEXIST && number < kMostAtOnce; ++number) {
            std::string name = TemporaryName(folder, number);
            failed = file_.Open(name, O_WRONLY | O_CREAT | O_EXCL);
            if (failed == 0) {
                name_ = std::move(name);
            }
        }
        return failed;
    }
    [[nodiscard]] int Fill(std::string_view bytes) const {
        const int failed = file_.Write(bytes);
        return failed != 0 ? failed : file_.Flush();
    }
    /// The old one's rights, and its group where the system lets us: others of a shared folder read by it.
    [[nodiscard]] int TakeRights(const struct stat& old) const {
        constexpr unsigned kRights = 07777;
        static_cast<void>(::lchown(name_.c_str(), static_cast<uid_t>(-1), old.st_gid));
        return file_.GiveMode((static_cast<unsigned>(old.st_mode) & kRights) | S_IWUSR);
    }
    [[nodiscard]] int Close() { return file_.Close(); }
    [[nodiscard]] int RenameTo(const std::string& target) {
        if (::rename(name_.c_str(), target.c_str()) != 0) {
            return errno;
        }
        name_.clear();
        return 0;
    }
    /// EEXIST where something has the name.
    [[nodiscard]] int MoveToNew(const std::string& target) {
        if (::link(name_.c_str(), target.c_str()) == 0) {
            return 0; // the temporary name goes with this object
        }
        if (errno != EPERM && errno != EOPNOTSUPP && errno != ENOSYS) {
            return errno;
        }
        // A file system without second names: an empty file of our own takes the place first.
        Descriptor place;
        if (const int failed = place.Open(target, O_WRONLY | O_CREAT | O_EXCL); failed != 0) {
            return failed;
        }
        const int failed = RenameTo(target);
        if (failed != 0) {
            static_cast<void>(::unlink(target.c_str()));
        }
        return failed;
    }

private:
    Descriptor file_;
    std::string name_;
};

/// Whether the folder, not the disk, stands against a new file: the old one may still be written itself.
bool FolderRefuses(int error) {
    constexpr std::array<int, 8> kRefusals{EACCES, EPERM, EROFS, EBUSY, EXDEV, ENOTSUP, ENOSPC, EDQUOT};
    return std::find(kRefusals.begin(), kRefusals.end(), error) != kRefusals.end();
}

struct Outcome {
    int Failed = 0;
    bool TryInPlace = false;
};

Outcome ByTemporary(const std::string& target, std::string_view bytes,
                    const std::optional<struct stat>& old) {
    Temporary temporary;
    const fs::path folder = fs::path(target).parent_path();
    if (const int failed = temporary.Make(folder); failed != 0) {
        return {failed, FolderRefuses(failed)};
    }
    if (const int failed = temporary.Fill(bytes); failed != 0) {
        return {failed, false};
    }
    if (const int failed = old ? temporary.TakeRights(*old) : 0; failed != 0) {
        return {failed, FolderRefuses(failed)};
    }
    if (const int failed = temporary.Close(); failed != 0) {
        return {failed, false};
    }
    if (const int failed = temporary.RenameTo(target); failed != 0) {
        return {failed, FolderRefuses(failed)};
    }
    // The bytes are safe under one name or the other; flushing the folder makes it the new one even when the
    // power goes now. Not every file system can.
    const int place = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (place >= 0) {
        static_cast<void>(::fsync(place));
        static_cast<void>(::close(place));
    }
    return {};
}

int ReadOld(const Descriptor& file, std::string& old) {
    constexpr std::size_t kPiece = 1U << 16U;
    std::string piece;
    while (old.size() < file.Length()) {
        if (const int failed = file.Read(piece, kPiece); failed != 0) {
            return failed;
        }
        if (piece.empty()) {
            break;
        }
        old += piece;
    }
    return 0;
}

int WriteOver(const Descriptor& file, std::string_view bytes, std::string_view old) {
    // A disk that is full says so here, before one old byte is touched.
    const std::size_t both = std::min(bytes.size(), old.size());
    int failed = file.WriteAt(both, bytes.substr(both));
    failed = failed != 0 ? failed : file.Flush();
    if (failed == 0) {
        failed = file.WriteAt(0, bytes.substr(0, both));
        failed = failed != 0 ? failed : file.SetLength(bytes.size());
        failed = failed != 0 ? failed : file.Flush();
    }
    if (failed == 0) {
        return 0;
    }
    // Back to what stood there; when that fails as well, the first failure is the one to tell.
    static_cast<void>(file.WriteAt(0, old));
    static_cast<void>(file.SetLength(old.size()));
    static_cast<void>(file.Flush());
    return failed;
}

int InPlace(const std::string& target, std::string_view bytes) {
    Descriptor file;
    int failed = file.Open(target, O_RDWR);
    std::string old;
    failed = failed != 0 ? failed : ReadOld(file, old);
    failed = failed != 0 ? failed : WriteOver(file, bytes, old);
    const int closed = file.Close();
    return failed != 0 ? failed : closed;
}

/// The owner's right to write; a file of somebody else keeps its rights, and writing then tells.
void GiveRightToWrite(const std::string& native, const struct stat& about) {
    if ((about.st_mode & S_IWUSR) == 0) {
        static_cast<void>(::chmod(native.c_str(), about.st_mode | S_IWUSR));
    }
}

/// Whether the run that made a temporary file of that name is over.
bool IsLeftOver(const fs::directory_entry& entry) {
    const std::string whole = entry.path().filename().native();
    std::string_view name = whole;
    if (!name.starts_with(kFront) || !name.ends_with(kEnd) || name.size() < kFront.size() + kEnd.size()) {
        return false;
    }
    name.remove_prefix(kFront.size());
    name.remove_suffix(kEnd.size());
    const std::size_t host = name.find('.');
    if (host == std::string_view::npos) {
        return false;
    }
    if (name.substr(0, host) != Host()) {
        // Another machine's: nobody writes one file for a day.
        std::error_code failed;
        const fs::file_time_type written = fs::last_write_time(entry.path(), failed);
        return !failed && fs::file_time_type::clock::now() - written > std::chrono::hours(24);
    }
    const std::string_view number = name.substr(host + 1);
    pid_t process = 0;
    const std::from_chars_result read =
        std::from_chars(number.data(), number.data() + number.size(), process);
    if (read.ec != std::errc() || process <= 0) {
        return false;
    }
    // One of this very number was left by an earlier process: this one makes and removes in one breath.
    return process == ::getpid() || (::kill(process, 0) != 0 && errno == ESRCH);
}

} // namespace

void Replace(const std::string& native, std::string_view bytes, ReadOnly readOnly, std::string_view toldAs) {
    const std::string target = TargetOf(native, toldAs);
    const std::optional<struct stat> old = About(target);
    if (old && !S_ISREG(old->st_mode)) {
        files::Fail(EISDIR, toldAs);
    }
    if (old && readOnly == ReadOnly::Refuse && (old->st_mode & S_IWUSR) == 0) {
        files::Fail(EACCES, toldAs);
    }
    Outcome outcome = ByTemporary(target, bytes, old);
    if (old && outcome.TryInPlace) {
        GiveRightToWrite(target, *old);
        outcome.Failed = InPlace(target, bytes);
    }
    if (outcome.Failed != 0) {
        files::Fail(outcome.Failed, toldAs);
    }
}

Made MakeNew(const std::string& native, std::string_view bytes, std::string_view toldAs) {
    Temporary temporary;
    int failed = temporary.Make(fs::path(native).parent_path());
    failed = failed != 0 ? failed : temporary.Fill(bytes);
    failed = failed != 0 ? failed : temporary.Close();
    if (failed != 0) {
        files::Fail(failed, toldAs);
    }
    failed = temporary.MoveToNew(native);
    if (failed == EEXIST) {
        return Made::NameTaken;
    }
    if (failed != 0) {
        files::Fail(failed, toldAs);
    }
    return Made::Yes;
}

void Append(const std::string& native, std::string_view bytes, std::string_view toldAs) {
    Descriptor file;
    int failed = file.Open(native, O_WRONLY | O_CREAT | O_APPEND);
    if (failed == 0) {
        failed = file.Write(bytes);
        failed = failed != 0 ? failed : file.Flush();
        if (failed != 0) {
            static_cast<void>(file.SetLength(file.Length()));
        }
    }
    const int closed = file.Close();
    failed = failed != 0 ? failed : closed;
    if (failed != 0) {
        files::Fail(failed, toldAs);
    }
}

void RemoveLeftOvers(const std::string& nativeFolder) {
    std::error_code failed;
    fs::directory_iterator entry(nativeFolder, failed);
    for (; !failed && entry != fs::directory_iterator(); entry.increment(failed)) {
        std::error_code ignored;
        if (entry->is_regular_file(ignored) && !entry->is_symlink(ignored) && IsLeftOver(*entry)) {
            fs::remove(entry->path(), ignored);
        }
    }
}

} // namespace safe_write
