#include "addresses/book_file.h"

#include "addresses/address_record.h"
#include "base/files.h"
#include "base/paths.h"
#include "base/record_file.h"
#include "program/data_folders.h"
#include "program/program.h"

#include <algorithm>
#include <limits>

namespace modAddress {

namespace {

/// A book is read into memory as a whole.
constexpr std::uintmax_t kBookLimit = 1U << 30U;

std::uintmax_t OffsetOf(std::int32_t number) {
    return static_cast<std::uintmax_t>(number - 1) * kRecordLength;
}

std::string WorkPath(const Program& program) {
    return paths::Join(modFolders::DataFolder(program), program.addresses.AddressWorkName);
}

/// The book as bytes, with what follows the last whole record.
std::string ReadBook(const Program& program) {
    const std::string path = BookPath(program);
    return files::Exists(path) ? files::ReadAll(path, kBookLimit) : std::string();
}

std::int32_t Whole(std::uintmax_t length) {
    constexpr auto kMost = static_cast<std::uintmax_t>(std::numeric_limits<std::int32_t>::max() - 1);
    return static_cast<std::int32_t>(std::min(length / kRecordLength, kMost));
}

} // namespace

std::string BookPath(const Program& program) {
    return paths::Join(modFolders::DataFolder(program), program.addresses.AddressFileName);
}

void MakeBook(const Program& program) {
    const std::string path = BookPath(program);
    if (!files::Exists(path)) {
        files::Append(path, "");
    }
}

std::int32_t RecordsInFile(const Program& program) {
    const std::string path = BookPath(program);
    return files::Exists(path) ? Whole(files::Length(path)) : 0;
}

std::string ReadRecords(const Program& program) {
    std::string bytes = ReadBook(program);
    bytes.resize(bytes.size() / kRecordLength * kRecordLength);
    return bytes;
}

std::string ReadNames(const Program& program) {
    const std::string path = BookPath(program);
    std::string names;
    if (!files::Exists(path)) {
        return names;
    }
    if (files::Length(path) > kBookLimit) {
        throw files::FileError(files::kPathAccess, "The file is too large: " + path);
    }
    // In pieces, so that a large book is not held as a whole for its names' sake.
    constexpr std::size_t kRecordsAPiece = 2048;
    constexpr std::size_t kPiece = kRecordsAPiece * kRecordLength;
    const files::RecordReader reader(path);
    names.reserve(static_cast<std::size_t>(reader.Length() / kRecordLength) * kNameWidth);
    std::string piece;
    for (std::uintmax_t offset = 0;; offset += kPiece) {
        reader.Read(offset, kPiece, piece);
        const std::size_t whole = piece.size() / kRecordLength;
        for (std::size_t record = 0; record < whole; ++record) {
            names.append(piece, record * kRecordLength, kNameWidth);
        }
        if (piece.size() < kPiece) {
            return names;
        }
    }
}

std::string ReadRecord(const Program& program, std::int32_t number) {
    const std::string path = BookPath(program);
    if (number < 1 || !files::Exists(path)) {
        return {};
    }
    std::string record = files::ReadAt(path, OffsetOf(number), kRecordLength);
    return record.size() == kRecordLength ? record : std::string();
}

std::optional<std::int32_t> NumberOf(const Program& program, std::string_view record) {
    const std::string book = ReadRecords(program);
    for (std::size_t at = book.find(record); at != std::string::npos; at = book.find(record, at + 1)) {
        if (at % kRecordLength == 0) {
            return static_cast<std::int32_t>(at / kRecordLength) + 1;
        }
    }
    return std::nullopt;
}

std::optional<std::int32_t> Locate(const Program& program, std::int32_t number, std::string_view asRead) {
    if (asRead.size() != kRecordLength) {
        return std::nullopt;
    }
    return ReadRecord(program, number) == asRead ? std::optional(number) : NumberOf(program, asRead);
}

std::optional<std::int32_t> ReplaceRecord(const Program& program, std::int32_t number,
                                          std::string_view asRead, std::string_view record) {
    const std::optional<std::int32_t> at = Locate(program, number, asRead);
    if (!at ||
        files::WriteOver(BookPath(program), OffsetOf(*at), asRead, record) == files::InPlace::Differs) {
        return std::nullopt;
    }
    return at;
}

std::int32_t AddRecord(const Program& program, std::string_view record) {
    return Whole(files::AppendRecord(BookPath(program), record) * kRecordLength);
}

namespace {

/// Goes when it did not take the book's place.
class WorkFile {
public:
    explicit WorkFile(std::string path) : path_(std::move(path)) {}
    ~WorkFile() {
        try {
            Drop();
        } catch (const files::FileError&) { // it goes before the next delete
        }
    }
    WorkFile(const WorkFile&) = delete;
    WorkFile& operator=(const WorkFile&) = delete;
    void Drop() const {
        if (files::ExistsExactly(path_)) {
            files::Delete(path_);
        }
    }
    [[nodiscard]] const std::string& Path() const { return path_; }

private:
    std::string path_;
};

} // namespace

std::optional<std::int32_t> RemoveRecord(const Program& program, std::int32_t number,
                                         std::string_view asRead) {
    const std::string path = BookPath(program);
    const WorkFile work(WorkPath(program));
    while (true) {
        const std::optional<files::Stamp> before = files::StampOf(path);
        const std::optional<std::int32_t> at = Locate(program, number, asRead);
        if (!before || !at) {
            return std::nullopt;
        }
        std::string bytes = ReadBook(program);
        bytes.erase(static_cast<std::size_t>(OffsetOf(*at)), kRecordLength);
        work.Drop();
        files::WriteWhole(work.Path(), bytes);
        if (files::ReadAll(work.Path(), kBookLimit) != bytes) {
            throw files::FileError(files::kDeviceError,
                                   "The work file does not hold what was written: " + work.Path());
        }
        // Another program may have written a record while this one was busy with the copy.
        if (files::StampOf(path) == before) {
            files::Replace(work.Path(), path);
            return at;
        }
    }
}

} // namespace modAddress
