#include "base/record_file.h"

#include "base/file_error.h"
#include "base/file_places.h"
#include "base/files.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <memory>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace files {

namespace {

enum class Missing { Fails, IsMade };

} // namespace

class RecordFile {
public:
    RecordFile(std::string_view path, int flags, Missing missing) : path_(path) {
        const std::string native = missing == Missing::IsMade && !Exists(path)
                                       ? file_places::PlaceFor(path)
                                       : file_places::MustLocate(path);
        const int making = missing == Missing::IsMade ? O_CREAT : 0;
        file_ = ::open(native.c_str(), flags | making | O_CLOEXEC | O_NONBLOCK, 0666);
        if (file_ < 0) {
            Fail(errno, path);
        }
        if (::fstat(file_, &about_) != 0 || !S_ISREG(about_.st_mode)) {
            ::close(file_);
            Fail(EISDIR, path);
        }
        if ((flags & O_RDWR) != 0 && (about_.st_mode & 0222U) == 0) {
            ::close(file_);
            Fail(EACCES, path); // protected from writing, whoever asks
        }
    }
    ~RecordFile() {
        // What was written has been flushed: a close has nothing left to lose.
        ::close(file_);
    }
    RecordFile(const RecordFile&) = delete;
    RecordFile& operator=(const RecordFile&) = delete;

    [[nodiscard]] std::uintmax_t Length() const { return static_cast<std::uintmax_t>(about_.st_size); }

    void Read(std::uintmax_t offset, std::size_t count, std::string& bytes) const {
        const std::uintmax_t length = Length();
        const std::uintmax_t there = offset < length ? length - offset : 0;
        bytes.resize(static_cast<std::size_t>(std::min<std::uintmax_t>(count, there)));
        std::size_t done = 0;
        while (done < bytes.size()) {
            const ssize_t got =
                ::pread(file_, bytes.data() + done, bytes.size() - done, static_cast<off_t>(offset + done));
            if (got < 0 && errno == EINTR) {
                continue;
            }
            if (got < 0) {
                Fail(errno, path_);
            }
            if (got == 0) {
                break; // cut short meanwhile
            }
            done += static_cast<std::size_t>(got);
        }
        bytes.resize(done);
    }

    [[nodiscard]] std::string Read(std::uintmax_t offset, std::size_t count) const {
        std::string bytes;
        Read(offset, count, bytes);
        return bytes;
    }

    /// The error of the system, 0 when the bytes stand on the disk. After a failure any of them may.
    [[nodiscard]] int Write(std::uintmax_t offset, std::string_view bytes) const {
        std::size_t done = 0;
        while (done < bytes.size()) {
            const ssize_t put =
                ::pwrite(file_, bytes.data() + done, bytes.size() - done, static_cast<off_t>(offset + done));
            if (put < 0 && errno == EINTR) {
                continue;
            }
            if (put <= 0) {
                return put < 0 ? errno : ENOSPC;
            }
            done += static_cast<std::size_t>(put);
        }
        return Flush();
    }

    void PutBack(std::uintmax_t offset, std::string_view old) const {
        // What was not reached need not be written again, on a disk that takes nothing any more.
        if (Write(offset, old) != 0 && Read(offset, old.size()) != old) {
            throw FileError(kDeviceError,
                            "The record could neither be written nor put back as it was: " + path_);
        }
    }

    void CutOff(std::uintmax_t length) const {
        if (::ftruncate(file_, static_cast<off_t>(length)) != 0) {
            throw FileError(kDeviceError, "The record could neither be written nor taken back: " + path_);
        }
    }

private:
    [[nodiscard]] int Flush() const {
        return ::fdatasync(file_) != 0 && errno != EINVAL && errno != EROFS ? errno : 0;
    }

    std::string path_;
    int file_ = -1;
    struct stat about_ {};
};

RecordReader::RecordReader(std::string_view path)
    : file_(std::make_unique<RecordFile>(path, O_RDONLY, Missing::Fails)) {}
RecordReader::~RecordReader() = default;

std::uintmax_t RecordReader::Length() const {
    return file_->Length();
}

void RecordReader::Read(std::uintmax_t offset, std::size_t count, std::string& bytes) const {
    file_->Read(offset, count, bytes);
}

std::optional<Stamp> StampOf(std::string_view path) {
    struct stat about {};
    if (!Exists(path) || ::stat(file_places::MustLocate(path).c_str(), &about) != 0) {
        return std::nullopt;
    }
    constexpr std::int64_t kNanoseconds = 1000000000;
    return Stamp{static_cast<std::uintmax_t>(about.st_size),
                 about.st_mtim.tv_sec * kNanoseconds + about.st_mtim.tv_nsec,
                 static_cast<std::uintmax_t>(about.st_ino)};
}

std::string ReadAt(std::string_view path, std::uintmax_t offset, std::size_t count) {
    return RecordFile(path, O_RDONLY, Missing::Fails).Read(offset, count);
}

InPlace WriteOver(std::string_view path, std::uintmax_t offset, std::string_view expected,
                  std::string_view bytes) {
    RecordFile file(path, O_RDWR, Missing::Fails);
    if (file.Read(offset, expected.size()) != expected || bytes.size() != expected.size()) {
        return InPlace::Differs;
    }
    if (const int error = file.Write(offset, bytes); error != 0) {
        file.PutBack(offset, expected);
        Fail(error, path);
    }
    return InPlace::Written;
}

std::uintmax_t AppendRecord(std::string_view path, std::string_view record) {
    RecordFile file(path, O_RDWR, Missing::IsMade);
    const std::uintmax_t number = file.Length() / record.size();
    const std::uintmax_t offset = number * record.size();
    const std::string stump = file.Read(offset, record.size());
    if (const int error = file.Write(offset, record); error != 0) {
        file.CutOff(offset + stump.size());
        if (!stump.empty()) {
            file.PutBack(offset, stump);
        }
        Fail(error, path);
    }
    return number + 1;
}

void Replace(std::string_view from, std::string_view over) {
    const std::string source = file_places::MustLocate(from);
    std::string target = file_places::MustLocate(over);
    if (const std::unique_ptr<char, decltype(&std::free)> real(::realpath(target.c_str(), nullptr),
                                                               &std::free);
        real) {
        target = real.get();
    }
    struct stat about {};
    if (::stat(target.c_str(), &about) != 0) {
        Fail(errno, over);
    }
    if ((about.st_mode & 0222U) == 0) {
        Fail(EACCES, over);
    }
    static_cast<void>(::chmod(source.c_str(), about.st_mode & 07777U));
    if (::rename(source.c_str(), target.c_str()) != 0) {
        Fail(errno, from);
    }
}

} // namespace files
