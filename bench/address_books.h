#pragma once

#include "addresses/address_record.h"

#include <string>
#include <string_view>

/// Books for the measures: names in no order, so that the list has to be sorted.
namespace address_books {

inline std::string NameOf(int index) {
    const auto mixed = static_cast<unsigned>(index) * 2654435761U;
    return "Guest" + std::to_string(mixed % 9973U) + " Family" + std::to_string(mixed / 7U % 99991U);
}

/// `needle` stands in the notes of every tenth record.
inline std::string BookOf(int records, std::string_view needle) {
    std::string book;
    book.reserve(static_cast<std::size_t>(records) * modAddress::kRecordLength);
    for (int index = 0; index < records; ++index) {
        modAddress::AddressFields fields;
        fields[0] = NameOf(index);
        fields[1] = std::to_string(index) + " Elm Street";
        fields[3] = "Springfield, IL 62701";
        fields[4] = "(217) 555-0100";
        fields[10] = index % 10 == 3 ? std::string(needle) : "Prefers tulips";
        book += modAddress::RecordOf(fields);
    }
    return book;
}

} // namespace address_books
