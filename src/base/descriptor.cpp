#include "base/descriptor.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// Makes the call until no signal breaks it off.
template <typename Call> auto Unbroken(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR) {
        result = call();
    }
    return result;
}

/// Hands all bytes to `put`, which takes some of them a call.
template <typename Put> int WriteAll(std::string_view bytes, Put put) {
    while (!bytes.empty()) {
        const ssize_t count = Unbroken([&] { return put(bytes); });
        if (count < 0) {
            return errno;
        }
        if (count == 0) {
            return EIO;
        }
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return 0;
}

} // namespace

Descriptor::~Descriptor() {
    static_cast<void>(Close()); // whoever wrote has closed, and looked at the result
}

int Descriptor::Open(const std::string& native, int flags) {
    constexpr mode_t kNewFile = 0666;
    file_ = Unbroken([&] { return ::open(native.c_str(), flags | O_CLOEXEC | O_NONBLOCK, kNewFile); });
    if (file_ < 0) {
        return errno;
    }
    struct stat about {};
    if (::fstat(file_, &about) != 0) {
        return errno;
    }
    if (!S_ISREG(about.st_mode)) {
        return EISDIR;
    }
    length_ = static_cast<std::uintmax_t>(about.st_size);
    return 0;
}

int Descriptor::Read(std::string& bytes, std::size_t most) const {
    bytes.resize(most);
    const ssize_t count = Unbroken([&] { return ::read(file_, bytes.data(), bytes.size()); });
    bytes.resize(count < 0 ? 0 : static_cast<std::size_t>(count));
    return count < 0 ? errno : 0;
}

int Descriptor::WriteAt(std::uintmax_t place, std::string_view bytes) const {
    return WriteAll(bytes, [&](std::string_view rest) {
        const std::uintmax_t at = place + (bytes.size() - rest.size());
        return ::pwrite(file_, rest.data(), rest.size(), static_cast<off_t>(at));
    });
}

int Descriptor::Write(std::string_view bytes) const {
    return WriteAll(bytes, [&](std::string_view rest) { return ::write(file_, rest.data(), rest.size()); });
}

int Descriptor::SetLength(std::uintmax_t length) const {
    return Unbroken([&] { return ::ftruncate(file_, static_cast<off_t>(length)); }) == 0 ? 0 : errno;
}

int Descriptor::GiveMode(unsigned mode) const {
    return Unbroken([&] { return ::fchmod(file_, static_cast<mode_t>(mode)); }) == 0 ? 0 : errno;
}

int Descriptor::Flush() const {
    const int result = Unbroken([&] { return ::fsync(file_); });
    // There are file systems that know no flush.
    return result == 0 || errno == EINVAL ? 0 : errno;
}

int Descriptor::Close() {
    if (file_ < 0) {
        return 0;
    }
    const int file = file_;
    file_ = -1;
    // A close that a signal breaks off has closed all the same, and what was flushed is on the disk.
    return ::close(file) == 0 || errno == EINTR ? 0 : errno;
}
