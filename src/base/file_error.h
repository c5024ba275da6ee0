#pragma once

#include <exception>
#include <string>
#include <string_view>
#include <utility>

namespace files {

/// What went wrong with a file, with the number that the log has for it.
class FileError : public std::exception {
public:
    FileError(int number, std::string description) : number_(number), description_(std::move(description)) {}
    [[nodiscard]] int Number() const { return number_; }
    [[nodiscard]] const char* what() const noexcept override { return description_.c_str(); }

private:
    int number_;
    std::string description_;
};

/// Numbers as the log has them.
inline constexpr int kBadName = 52, kNotFound = 53, kDeviceError = 57, kAlreadyExists = 58, kDiskFull = 61,
                     kPermissionDenied = 70, kPathAccess = 75, kPathNotFound = 76;

/// Throws the FileError for an error number of the system.
[[noreturn]] void Fail(int systemError, std::string_view path);
[[noreturn]] void FailWith(int number, const char* description, std::string_view path);

} // namespace files
