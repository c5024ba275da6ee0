#pragma once

#include "program/address_records.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// From the names of a book to the rows of its list, and back.
namespace modAddress {

/// One row of the list; it knows the record that it stands for.
struct AddressRow {
    std::string Text;
    std::int32_t Record = 0;
    bool operator==(const AddressRow&) const = default;
};

/// Makes the rows of one filling, record by record in file order. In the personal book a suffix that a name
/// of one word ends in passes to the next name that has a first one: wanted.
class RowMaker {
public:
    explicit RowMaker(AddressBook book) : book_(book) {}
    /// `name` is the field as it stands in the file.
    [[nodiscard]] std::string RowOf(std::string_view name);

private:
    [[nodiscard]] std::string PersonalRow(std::string name);
    void TakeSuffix(std::string& name);

    AddressBook book_;
    bool HasSuffix = false;
    std::string Suffix;
};

/// The rows of all names, sorted by text without regard to case; equal rows stand in file order. `names` are
/// fields of 40 characters one behind the other.
[[nodiscard]] std::vector<AddressRow> FillNameList(AddressBook book, std::string_view names);

/// The name field, of 40 characters, that a row stands for.
[[nodiscard]] std::string StoredName(AddressBook book, std::string_view row);

/// How many rows above, the row itself included, have exactly its text.
[[nodiscard]] int DuplicateNumber(const std::vector<AddressRow>& rows, int row);

/// The first row that begins with what was typed, without regard to case; -1 for none.
[[nodiscard]] int RowBeginningWith(const std::vector<AddressRow>& rows, std::string_view typed);
/// The row of a record; -1 for none.
[[nodiscard]] int RowOfRecord(const std::vector<AddressRow>& rows, std::int32_t record);

} // namespace modAddress
