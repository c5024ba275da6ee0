#include "base/folder_scan.h"

#include "base/ansi.h"
#include "base/file_places.h"
#include "base/files.h"
#include "base/guard.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <deque>
#include <mutex>
#include <optional>
#include <stop_token>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace files {

namespace {

/// Names are bytes of UTF-8; the endings asked for are plain letters in lower case.
bool EndsLike(std::string_view name, std::string_view ending) {
    if (name.size() < ending.size()) {
        return false;
    }
    const std::string_view tail = name.substr(name.size() - ending.size());
    for (std::size_t at = 0; at < ending.size(); ++at) {
        const char character = tail[at];
        if ((character >= 'A' && character <= 'Z' ? static_cast<char>(character + ('a' - 'A')) : character) !=
            ending[at]) {
            return false;
        }
    }
    return true;
}

bool IsRegular(int folder, const dirent& entry) {
    if (entry.d_type == DT_REG) {
        return true;
    }
    if (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN) {
        return false;
    }
    struct stat about {};
    return ::fstatat(folder, entry.d_name, &about, 0) == 0 && S_ISREG(about.st_mode);
}

/// Fills `bytes`, or cuts it to what there is. False when it cannot be read.
bool ReadBeginning(int folder, const char* name, std::string& bytes) {
    const std::size_t most = bytes.size();
    std::size_t have = 0;
    // Should something else stand there by now, nothing waits for it.
    int file = -1;
    do { // a signal is no reason to do without the file
        file = ::openat(folder, name, O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    } while (file < 0 && errno == EINTR);
    if (file < 0) {
        bytes.clear();
        return false;
    }
    bool good = true;
    while (have < most) {
        const ssize_t count = ::read(file, bytes.data() + have, most - have);
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count <= 0) {
            good = count == 0;
            break;
        }
        have += static_cast<std::size_t>(count);
    }
    ::close(file);
    bytes.resize(have);
    return good;
}

struct Wanted {
    std::string Native;
    FileHead Head;
};

/// Reads the heads of files whose `Bytes` have the room for them. What runs between two of them may take its
/// time; the files of a large folder are read by a second thread meanwhile, already while the folder is
/// listed. It touches nothing but the files that it takes.
class HeadReader {
public:
    explicit HeadReader(int folder) : folder_(folder) {}

    /// A file that stays where it is until this is left.
    void Add(Wanted& file) {
        const std::scoped_lock lock(mutex_);
        waiting_.push_back(&file);
        if (waiting_.size() >= kWorthAThread && !second_.joinable() && mayStart_) {
            StartSecond();
        }
    }

    /// False when `goOn` has ended it.
    [[nodiscard]] bool ReadAll(const std::function<bool()>& goOn) {
        while (ReadSome() == Left::More) {
            if (goOn && !goOn()) {
                return false;
            }
        }
        if (second_.joinable()) {
            second_.request_stop();
            second_.join(); // with what it has taken
        }
        return true;
    }

private:
    enum class Left { None, More };
    static constexpr std::size_t kAtOnce = 8, kWorthAThread = 1000;

    Left ReadSome() {
        std::array<Wanted*, kAtOnce> taken{};
        std::size_t count = 0;
        {
            const std::scoped_lock lock(mutex_);
            count = std::min(kAtOnce, waiting_.size() - next_);
            std::copy_n(waiting_.begin() + static_cast<std::ptrdiff_t>(next_), count, taken.begin());
            next_ += count;
        }
        for (std::size_t at = 0; at < count; ++at) {
            Wanted& file = *taken[at];
            file.Head.Readable = ReadBeginning(folder_, file.Native.c_str(), file.Head.Bytes);
        }
        return count == 0 ? Left::None : Left::More;
    }

    void StartSecond() {
        try {
            second_ = std::jthread([this](const std::stop_token& stop) {
                while (!stop.stop_requested()) {
                    if (ReadSome() == Left::None) {
                        std::this_thread::yield(); // the listing goes on
                    }
                }
            });
        } catch (const std::system_error&) {
            mayStart_ = false; // no thread to be had: it takes longer
        }
    }

    int folder_;
    std::mutex mutex_;
    std::vector<Wanted*> waiting_;
    std::size_t next_ = 0;
    bool mayStart_ = true;
    std::jthread second_; ///< the last member: it ends before what it works on
};

/// Null at the end alone: half a folder must not look like a whole one.
const dirent* NextIn(DIR* listing, std::string_view folder) {
    errno = 0;
    const dirent* entry = ::readdir(listing);
    if (entry == nullptr && errno != 0) {
        throw FileError(kDeviceError, "Device I/O error: " + std::string(folder));
    }
    return entry;
}

[[noreturn]] void FailMove(int systemError, std::string_view from, std::string_view to) {
    switch (systemError) {
    case EEXIST:
    case EISDIR:
    case ENOTEMPTY:
        throw FileError(kAlreadyExists, "File already exists: " + std::string(to));
    case ENOENT:
        throw FileError(kNotFound, "File not found: " + std::string(from));
    case ENOSPC:
    case EDQUOT:
        throw FileError(kDiskFull, "Disk full: " + std::string(to));
    case EACCES:
    case EPERM:
    case EROFS:
        throw FileError(kPermissionDenied, "Permission denied: " + std::string(from));
    default:
        throw FileError(kDeviceError, "Device I/O error: " + std::string(from));
    }
}

/// A file has one name only here: an empty file of our own takes the place, which nobody else has then, and
/// is what the move replaces.
void MoveOntoOwnPlace(const std::string& source, const std::string& target, std::string_view from,
                      std::string_view to) {
    constexpr mode_t kOwners = 0600;
    const int place = ::open(target.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kOwners);
    if (place < 0) {
        FailMove(errno, from, to);
    }
    ::close(place);
    if (::rename(source.c_str(), target.c_str()) != 0) {
        const int failed = errno;
        ::unlink(target.c_str());
        FailMove(failed, from, to);
    }
}

} // namespace

void ScanHeads(std::string_view folder, std::string_view ending, std::size_t most,
               const std::function<bool(FileHead&&)>& visit, const std::function<bool()>& goOn) {
    const std::optional<std::string> native = file_places::Locate(folder);
    DIR* listing = native ? ::opendir(native->c_str()) : nullptr;
    if (listing == nullptr) {
        const bool denied = native && errno == EACCES;
        throw FileError(denied ? kPermissionDenied : kPathNotFound,
                        (denied ? "Permission denied: " : "Path not found: ") + std::string(folder));
    }
    const OnLeaving close([listing] { ::closedir(listing); });
    const int handle = ::dirfd(listing);
    std::deque<Wanted> wanted; // none of many is moved as it grows
    HeadReader reader(handle);
    while (const dirent* entry = NextIn(listing, folder)) {
        if (goOn && !goOn()) {
            return;
        }
        if (!EndsLike(entry->d_name, ending) || !IsRegular(handle, *entry)) {
            continue;
        }
        std::optional<std::string> name = ansi::FromUtf8(entry->d_name);
        if (!name || name->find('\\') != std::string::npos) {
            continue; // or it would read as a path
        }
        FileHead head{std::move(*name), std::string(most, '\0'), true};
        if (most > 0) {
            reader.Add(wanted.emplace_back(Wanted{entry->d_name, std::move(head)}));
        } else if (!visit(std::move(head))) {
            return;
        }
    }
    if (!reader.ReadAll(goOn)) {
        return;
    }
    for (Wanted& file : wanted) {
        if (!visit(std::move(file.Head))) {
            return;
        }
    }
}

void MoveNew(std::string_view from, std::string_view to) {
    const std::string source = ansi::ToUtf8(from);
    const std::string target = ansi::ToUtf8(to);
    if (::renameat2(AT_FDCWD, source.c_str(), AT_FDCWD, target.c_str(), RENAME_NOREPLACE) == 0) {
        return;
    }
    if (errno != EINVAL && errno != ENOSYS) {
        FailMove(errno, from, to);
    }
    // A file system that knows no such move: a second name is only made where there is none.
    if (::link(source.c_str(), target.c_str()) != 0) {
        if (errno == EPERM || errno == EOPNOTSUPP || errno == ENOSYS) {
            MoveOntoOwnPlace(source, target, from, to);
            return;
        }
        FailMove(errno, from, to);
    }
    if (::unlink(source.c_str()) != 0) {
        const int failed = errno;
        ::unlink(target.c_str()); // the file stays where it was, under one name
        FailMove(failed, from, to);
    }
}

} // namespace files
