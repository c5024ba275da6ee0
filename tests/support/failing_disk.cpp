#include "support/failing_disk.h"

#include <cerrno>
#include <cstdarg>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <stdexcept>

#include <dirent.h>
#include <fcntl.h>
#include <sys/types.h>

namespace {

constexpr std::size_t kCalls = 14;
FailingDisk* disk = nullptr; // the calls come without an object of ours

bool Fails(FailingDisk::Call call) {
    int error = 0;
    if (disk == nullptr || !disk->Meets(call, error)) {
        return false;
    }
    errno = error;
    return true;
}

} // namespace

FailingDisk::FailingDisk(std::initializer_list<Failure> failures) : failures_(failures), counts_(kCalls) {
    if (disk != nullptr) {
        throw std::logic_error("one failing disk at a time");
    }
    disk = this;
}

FailingDisk::~FailingDisk() {
    disk = nullptr;
}

int FailingDisk::CallsOf(Call call) const {
    return counts_[static_cast<std::size_t>(call)];
}

bool FailingDisk::Meets(Call call, int& error) {
    const int count = ++counts_[static_cast<std::size_t>(call)];
    for (const Failure& failure : failures_) {
        if (failure.What == call && count >= failure.Nth && count - failure.Nth < failure.Times) {
            ++failed_;
            error = failure.Error;
            return true;
        }
    }
    return false;
}

extern "C" {

int __real_open(const char* path, int flags, ...);
ssize_t __real_read(int file, void* bytes, size_t count);
ssize_t __real_pread(int file, void* bytes, size_t count, off_t place);
ssize_t __real_write(int file, const void* bytes, size_t count);
ssize_t __real_pwrite(int file, const void* bytes, size_t count, off_t place);
int __real_ftruncate(int file, off_t length);
int __real_fchmod(int file, mode_t mode);
int __real_close(int file);
int __real_rename(const char* from, const char* to);
int __real_renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags);
int __real_link(const char* from, const char* to);
int __real_unlink(const char* path);
int __real_openat(int folder, const char* path, int flags, ...);
DIR* __real_opendir(const char* path);
dirent* __real_readdir(DIR* listing);

int __wrap_open(const char* path, int flags, ...) {
    mode_t mode = 0;
    if ((flags & O_CREAT) != 0) {
        va_list rest;
        va_start(rest, flags);
        mode = va_arg(rest, mode_t);
        va_end(rest);
    }
    return Fails(FailingDisk::Call::Open) ? -1 : __real_open(path, flags, mode);
}

ssize_t __wrap_read(int file, void* bytes, size_t count) {
    return Fails(FailingDisk::Call::Read) ? -1 : __real_read(file, bytes, count);
}

ssize_t __wrap_pread(int file, void* bytes, size_t count, off_t place) {
    return Fails(FailingDisk::Call::Read) ? -1 : __real_pread(file, bytes, count, place);
}

/// A disk that gets full takes some bytes before it says so.
ssize_t __wrap_write(int file, const void* bytes, size_t count) {
    if (!Fails(FailingDisk::Call::Write)) {
        return __real_write(file, bytes, count);
    }
    const int error = errno;
    if (error != EINTR && count > 1) {
        static_cast<void>(__real_write(file, bytes, count / 2));
    }
    errno = error;
    return error == 0 ? 0 : -1;
}

ssize_t __wrap_pwrite(int file, const void* bytes, size_t count, off_t place) {
    if (!Fails(FailingDisk::Call::Write)) {
        return __real_pwrite(file, bytes, count, place);
    }
    const int error = errno;
    if (error != EINTR && count > 1) {
        static_cast<void>(__real_pwrite(file, bytes, count / 2, place));
    }
    errno = error;
    return error == 0 ? 0 : -1;
}

int __wrap_ftruncate(int file, off_t length) {
    return Fails(FailingDisk::Call::SetLength) ? -1 : __real_ftruncate(file, length);
}

int __wrap_fchmod(int file, mode_t mode) {
    return Fails(FailingDisk::Call::GiveMode) ? -1 : __real_fchmod(file, mode);
}

/// No test waits for a device: what it reads back need not have come through a power cut.
int __wrap_fsync(int) {
    return Fails(FailingDisk::Call::Flush) ? -1 : 0;
}

int __wrap_fdatasync(int) {
    return Fails(FailingDisk::Call::Flush) ? -1 : 0;
}

/// A close that fails has closed all the same.
int __wrap_close(int file) {
    if (!Fails(FailingDisk::Call::Close)) {
        return __real_close(file);
    }
    const int error = errno;
    static_cast<void>(__real_close(file));
    errno = error;
    return -1;
}

int __wrap_rename(const char* from, const char* to) {
    return Fails(FailingDisk::Call::Rename) ? -1 : __real_rename(from, to);
}

int __wrap_renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags) {
    return Fails(FailingDisk::Call::Move) ? -1 : __real_renameat2(fromFolder, from, toFolder, to, flags);
}

int __wrap_link(const char* from, const char* to) {
    return Fails(FailingDisk::Call::Link) ? -1 : __real_link(from, to);
}

int __wrap_unlink(const char* path) {
    return Fails(FailingDisk::Call::Unlink) ? -1 : __real_unlink(path);
}

/// Nothing is made in this way.
int __wrap_openat(int folder, const char* path, int flags, ...) {
    return Fails(FailingDisk::Call::OpenIn) ? -1 : __real_openat(folder, path, flags);
}

DIR* __wrap_opendir(const char* path) {
    return Fails(FailingDisk::Call::OpenFolder) ? nullptr : __real_opendir(path);
}

dirent* __wrap_readdir(DIR* listing) {
    return Fails(FailingDisk::Call::ListFolder) ? nullptr : __real_readdir(listing);
}

} // extern "C"
