#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>
#include <vector>

/// The small file layer: every file operation of the model. Paths are in the program's characters. Names of
/// existing files and folders are found without regard to case, an exact match first. Failures are FileError.
namespace files {

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

inline constexpr std::uintmax_t kTextLimit = 64U << 20U;

/// A regular file of that name. Folders, devices and pipes are none.
[[nodiscard]] bool Exists(std::string_view path);
[[nodiscard]] bool IsFolder(std::string_view path);
[[nodiscard]] std::uintmax_t Length(std::string_view path);
/// The first bytes of a file, at most so many. Only regular files; never waits.
[[nodiscard]] std::string ReadUpTo(std::string_view path, std::uintmax_t most);
/// The same, and the whole length of the file that was read.
struct Head {
    std::string Bytes;
    std::uintmax_t Length = 0;
};
[[nodiscard]] Head ReadHead(std::string_view path, std::uintmax_t most);
/// A whole file; one above the limit is refused.
[[nodiscard]] std::string ReadAll(std::string_view path, std::uintmax_t limit = kTextLimit);
/// Makes or overwrites a file. Every write, the flush to the device and the close are checked.
void WriteWhole(std::string_view path, std::string_view bytes);
/// Puts bytes at the end of a file, made when it is not there.
void Append(std::string_view path, std::string_view bytes);
/// Gives the owner the right to write.
void ClearAttributes(std::string_view path);
/// Clears the attributes, then deletes.
void Delete(std::string_view path);
void Copy(std::string_view from, std::string_view to);
void Rename(std::string_view from, std::string_view to);
void MakeFolder(std::string_view path);
/// Time of the last change, local, as a day serial.
[[nodiscard]] double ModifiedSerial(std::string_view path);

/// Names of the regular files that match one of the patterns ("*.jpg;*.bmp"), by text without regard to case.
/// Names that the program's characters cannot hold are left out.
[[nodiscard]] std::vector<std::string> List(std::string_view folder, std::string_view patterns);
[[nodiscard]] std::vector<std::string> Subfolders(std::string_view folder);
[[nodiscard]] bool Matches(std::string_view name, std::string_view patterns);

/// The path of an existing file as the system has it, and the path at which a new one would be made.
[[nodiscard]] std::string Native(std::string_view path);
[[nodiscard]] std::string NativePlace(std::string_view path);
/// Throws the FileError that the log has for a number of the system.
[[noreturn]] void FailBySystem(int systemError, std::string_view path);

} // namespace files

namespace modFile {

/// A name lookup in the folder.
[[nodiscard]] bool FileIsThere(std::string_view folder, std::string_view name);
/// Whether the parent has a subfolder of that name.
[[nodiscard]] bool FolderExists(std::string_view parent, std::string_view name);

} // namespace modFile
