#include "base/file_error.h"

#include <array>
#include <cerrno>

namespace files {

namespace {

struct ErrorText {
    int System;
    int Number;
    const char* Description;
};

constexpr std::array<ErrorText, 12> kErrors{{{ENOENT, kNotFound, "File not found"},
                                             {ENOTDIR, kPathNotFound, "Path not found"},
                                             {EACCES, kPermissionDenied, "Permission denied"},
                                             {EPERM, kPermissionDenied, "Permission denied"},
                                             {EROFS, kPermissionDenied, "Permission denied"},
                                             {ENOSPC, kDiskFull, "Disk full"},
                                             {EDQUOT, kDiskFull, "Disk full"},
                                             {EFBIG, kDiskFull, "Disk full"},
                                             {EEXIST, kAlreadyExists, "File already exists"},
                                             {EISDIR, kPathAccess, "Path/File access error"},
                                             {ENAMETOOLONG, kBadName, "Bad file name or number"},
                                             {ELOOP, kPathAccess, "Path/File access error"}}};

} // namespace

void Fail(int systemError, std::string_view path) {
    for (const ErrorText& known : kErrors) {
        if (known.System == systemError) {
            FailWith(known.Number, known.Description, path);
        }
    }
    FailWith(kDeviceError, "Device I/O error", path);
}

void FailWith(int number, const char* description, std::string_view path) {
    throw FileError(number, std::string(description) + ": " + std::string(path));
}

} // namespace files
