#pragma once

#include "program/address_records.h"

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// The list with a heading row, as address books of other programs write it.
namespace modCSV {

/// One row by the names of the columns.
using Row = std::array<std::string, kCsvColumnCount>;
using Categories = std::array<std::string, kBatchCategoryCount>;

[[nodiscard]] std::span<const std::string_view, kCsvColumnCount> ColumnNames();

/// A row at the commas outside quotation marks. Enclosing marks go, doubled ones inside them become one, and
/// blanks around a field go.
[[nodiscard]] std::vector<std::string> CutRow(std::string_view row);

struct Columns {
    std::array<bool, kCsvColumnCount> CsvColumnPresent{};
    std::array<int, kCsvColumnCount> CsvColumnAt{};
    [[nodiscard]] bool Any() const;
};
/// Names are compared without regard to case; of two columns of one name the first counts.
[[nodiscard]] Columns ReadHeading(std::string_view heading);

/// The fields of a row at the places that the heading gives; missing ones are empty.
[[nodiscard]] Row ArrangeRow(const Columns& columns, const std::vector<std::string>& fields);
/// What a book takes of a row, by category.
[[nodiscard]] Categories CategoriesOf(AddressBook book, const Columns& columns, const Row& row);

} // namespace modCSV
