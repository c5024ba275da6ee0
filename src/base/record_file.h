#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

/// Files of records of one length, written in place. Failures are files::FileError; after one the old bytes
/// stand.
namespace files {

/// By what a file is known again: when it differs, the file was written or replaced meanwhile.
struct Stamp {
    std::uintmax_t Length = 0;
    std::int64_t Changed = 0; ///< nanoseconds
    std::uintmax_t Identity = 0;
    bool operator==(const Stamp&) const = default;
};
/// Nothing when there is no such file.
[[nodiscard]] std::optional<Stamp> StampOf(std::string_view path);

/// At most so many bytes from an offset on; fewer where the file ends.
[[nodiscard]] std::string ReadAt(std::string_view path, std::uintmax_t offset, std::size_t count);

/// A file that is read piece by piece through one opening.
class RecordReader {
public:
    explicit RecordReader(std::string_view path);
    ~RecordReader();
    RecordReader(const RecordReader&) = delete;
    RecordReader& operator=(const RecordReader&) = delete;
    [[nodiscard]] std::uintmax_t Length() const;
    /// At most so many bytes from an offset on, into `bytes`.
    void Read(std::uintmax_t offset, std::size_t count, std::string& bytes) const;

private:
    std::unique_ptr<class RecordFile> file_;
};

enum class InPlace { Written, Differs };
/// Puts bytes in the place of `expected`, which has as many; writes nothing when the file holds others there.
[[nodiscard]] InPlace WriteOver(std::string_view path, std::uintmax_t offset, std::string_view expected,
                                std::string_view bytes);

/// Adds a record behind the last whole one and gives its number, from 1. The stump of a record at the end of
/// the file is written over. A missing file is made.
[[nodiscard]] std::uintmax_t AppendRecord(std::string_view path, std::string_view record);

/// Puts a file into the place of another in one step; a link is followed to the file it stands for, whose
/// rights the new one takes. A file without the right to write is not replaced.
void Replace(std::string_view from, std::string_view over);

} // namespace files
