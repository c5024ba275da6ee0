#include "addresses/address_record.h"

#include "base/text.h"

namespace modAddress {

namespace {

constexpr std::array<FieldPlace, kAddressFieldCount> kFields{{{0, 40, "Name", "Name (First Name First)"},
                                                              {40, 40, "Address 1", "Address 1"},
                                                              {80, 40, "Address 2", "Address 2"},
                                                              {120, 40, "City, State Zip", "City, State Zip"},
                                                              {160, 20, "Phone", "Home Phone"},
                                                              {180, 20, "Fax", "Work Phone"},
                                                              {200, 20, "Cell Phone", "Cell Phone"},
                                                              {220, 20, "Event Date", "Event Date"},
                                                              {240, 40, "Contact", "Other Contact"},
                                                              {280, 40, "Email", "Email"},
                                                              {320, 200, "Notes", "Notes"}}};

// The label on screen and the words on paper say "Company", the rest "Business".
constexpr BookNames kPersonal{"PerAdd.apx",      "PerAdd.bak",
                              "PerAdd.tmp",      " Personal Address Book/",
                              "Personal",        "Personal Address Book",
                              "OpenPersonalBook"};
constexpr BookNames kBusiness{
    "ComAdd.acx", "ComAdd.bak",           "ComAdd.tmp",      " Company Address Book/",
    "Business",   "Company Address Book", "OpenBusinessBook"};

} // namespace

const FieldPlace& PlaceOf(int field) {
    return kFields[static_cast<std::size_t>(field)];
}

std::string_view CaptionOf(AddressBook book, int field) {
    const FieldPlace& place = PlaceOf(field);
    return book == AddressBook::Personal ? place.PersonalCaption : place.BusinessCaption;
}

AddressFields FieldsOf(std::string_view record) {
    const std::string whole = ToWidth(record, kRecordLength);
    AddressFields fields;
    for (std::size_t index = 0; index < fields.size(); ++index) {
        const FieldPlace& place = kFields[index];
        fields[index] = text::Trim(std::string_view(whole).substr(place.Offset, place.Width));
    }
    return fields;
}

std::string_view NameIn(std::string_view record) {
    return record.substr(0, kNameWidth);
}

std::string ToWidth(std::string_view value, std::size_t width) {
    std::string padded(value.substr(0, width));
    padded.resize(width, ' ');
    return padded;
}

std::string RecordOf(const AddressFields& fields) {
    std::string record;
    record.reserve(kRecordLength);
    for (std::size_t index = 0; index < fields.size(); ++index) {
        const std::string_view value = index == kNameField ? text::Trim(fields[index]) : fields[index];
        record += ToWidth(value, kFields[index].Width);
    }
    return record;
}

const BookNames& NamesOf(AddressBook book) {
    return book == AddressBook::Personal ? kPersonal : kBusiness;
}

AddressBook OtherBook(AddressBook book) {
    return book == AddressBook::Personal ? AddressBook::Business : AddressBook::Personal;
}

} // namespace modAddress
