#pragma once

#include "program/address_records.h"

#include <array>
#include <string>
#include <string_view>

/// The record of both address books: eleven texts of fixed width, padded with blanks.
namespace modAddress {

inline constexpr std::size_t kRecordLength = 520;
inline constexpr std::size_t kNameWidth = 40;
inline constexpr int kNameField = 0;
inline constexpr int kDateField = 7;
inline constexpr int kNotesField = 10;

using AddressFields = std::array<std::string, kAddressFieldCount>;

struct FieldPlace {
    std::size_t Offset;
    std::size_t Width;
    std::string_view BusinessCaption;
    std::string_view PersonalCaption;
};
[[nodiscard]] const FieldPlace& PlaceOf(int field);
[[nodiscard]] std::string_view CaptionOf(AddressBook book, int field);

/// The fields of a record, without the blanks around them; all empty where there is none.
[[nodiscard]] AddressFields FieldsOf(std::string_view record);
/// The name as it stands in the record, padding included.
[[nodiscard]] std::string_view NameIn(std::string_view record);
/// 520 bytes; each text is cut to its width. The name loses the blanks around it first.
[[nodiscard]] std::string RecordOf(const AddressFields& fields);
/// Padded with blanks or cut to that width.
[[nodiscard]] std::string ToWidth(std::string_view value, std::size_t width);

/// The files and names of a book.
struct BookNames {
    std::string_view File;
    std::string_view Backup;
    std::string_view Work;
    std::string_view Label;  ///< begins the window's title
    std::string_view Target; ///< "Personal" or "Business"
    std::string_view OnPaper;
    std::string_view Opening; ///< the routine that opens it, as the log has it
};
[[nodiscard]] const BookNames& NamesOf(AddressBook book);
[[nodiscard]] AddressBook OtherBook(AddressBook book);

} // namespace modAddress
