#include "addresses/batch_text.h"
#include "addresses/csv_list.h"

#include <cstdint>
#include <cstdlib>
#include <string_view>
#include <vector>

/// Arbitrary bytes as a copied list: its records lie in it in order and hold no line end, and every row is
/// taken apart.

namespace {

void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

void Walk(std::string_view list, std::size_t from, batch_text::Between between) {
    const batch_text::Records records = batch_text::FindRecords(list, from, between);
    const auto count = static_cast<std::int32_t>(records.At.size()) - 1;
    Require(count >= 0 && records.At.back() == list.size());
    for (std::int32_t index = 0; index < count; ++index) {
        const auto at = static_cast<std::size_t>(index);
        Require(records.At[at] < records.At[at + 1]);
        const std::string_view record = batch_text::RecordAt(list, records.At, index, between);
        Require(between == batch_text::Between::EmptyLines ||
                record.find_first_of("\r\n") == std::string_view::npos);
        for (const char separator : {'\n', ',', '\t'}) {
            Require(batch_text::Cut(record, separator, 9).size() <= 9);
        }
    }
    for (const std::int32_t odd : records.OddQuotes) {
        Require(odd >= 0 && odd < count);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view list(reinterpret_cast<const char*>(data), size);
    Walk(list, 0, batch_text::Between::Lines);
    Walk(list, 0, batch_text::Between::EmptyLines);
    const batch_text::FirstLine heading = batch_text::FirstLineOf(list);
    Walk(list, heading.Next, batch_text::Between::Lines);
    const modCSV::Columns columns = modCSV::ReadHeading(heading.Line);
    const batch_text::Records records =
        batch_text::FindRecords(list, heading.Next, batch_text::Between::Lines);
    for (std::size_t index = 0; index + 1 < records.At.size(); ++index) {
        const std::string_view row = batch_text::RecordAt(list, records.At, static_cast<std::int32_t>(index),
                                                          batch_text::Between::Lines);
        const modCSV::Row values = modCSV::ArrangeRow(columns, modCSV::CutRow(row));
        for (const AddressBook book : {AddressBook::Personal, AddressBook::Business}) {
            static_cast<void>(modCSV::CategoriesOf(book, columns, values));
        }
    }
    return 0;
}
