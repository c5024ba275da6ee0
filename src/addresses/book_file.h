#pragma once

#include "program/address_records.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

struct Program;

/// The file of the current book: records of 520 bytes and nothing else. What follows the last whole record is
/// no record. Failures are files::FileError, but where it is said otherwise.
namespace modAddress {

/// Full path of the current book.
[[nodiscard]] std::string BookPath(const Program& program);
/// Makes the book when there is none.
void MakeBook(const Program& program);
/// Whole records at this moment; none when there is no file.
[[nodiscard]] std::int32_t RecordsInFile(const Program& program);
/// The name fields in file order, one behind the other.
[[nodiscard]] std::string ReadNames(const Program& program);
/// All whole records.
[[nodiscard]] std::string ReadRecords(const Program& program);
/// A record by its number; empty when there is none.
[[nodiscard]] std::string ReadRecord(const Program& program, std::int32_t number);
/// The number of the first record with exactly these bytes.
[[nodiscard]] std::optional<std::int32_t> NumberOf(const Program& program, std::string_view record);

/// Where a record that was read now stands: its own number, another when records before it have gone, nothing
/// when somebody has changed or deleted it.
[[nodiscard]] std::optional<std::int32_t> Locate(const Program& program, std::int32_t number,
                                                 std::string_view asRead);
/// Puts a record in the place of the one that was read, wherever that stands now; nothing, and nothing is
/// written, when it is no more.
[[nodiscard]] std::optional<std::int32_t> ReplaceRecord(const Program& program, std::int32_t number,
                                                        std::string_view asRead, std::string_view record);
/// Adds a record behind the last whole one and gives its number.
[[nodiscard]] std::int32_t AddRecord(const Program& program, std::string_view record);
/// Takes a record out. The book without it is written to the work file, read back and compared, and only then
/// takes the book's place. Gives the number that the record had; nothing when it is no more.
[[nodiscard]] std::optional<std::int32_t> RemoveRecord(const Program& program, std::int32_t number,
                                                       std::string_view asRead);

} // namespace modAddress
