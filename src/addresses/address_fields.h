#pragma once

#include "addresses/address_record.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

class AddressWindow;
struct Program;

/// The eleven fields: what typing marks, colours and tips.
namespace modAddress {

/// Limits into the tags, captions of the current book, no focus yet.
void SetUpFields(const Program& program, AddressWindow& window);
void SetCaptions(const Program& program, AddressWindow& window);

/// The fields' texts as they stand.
[[nodiscard]] AddressFields TextsOf(const AddressWindow& window);

/// Changes a field as typing does.
void PutText(Program& program, AddressWindow& window, int field, std::string_view value);
/// Puts texts into all fields without their counting as typed.
void FillFields(Program& program, AddressWindow& window, const AddressFields& texts);

/// After a change of a field's text.
void txt_Change(Program& program, AddressWindow& window, int field);
/// Change flags, colours and tips after a change.
void CheckAddressField(Program& program, AddressWindow& window);
/// Every field counts as it stands; nothing is changed.
void ForgetChanges(Program& program, AddressWindow& window);
/// Captions of the fields that are longer than their place.
[[nodiscard]] std::vector<std::string> TooLong(const AddressWindow& window);

/// Where a key leads: Enter and the down arrow to the next field, the up arrow to the one before; nothing
/// when the key is the field's own.
enum class FieldKey { Enter, Down, Up };
[[nodiscard]] std::optional<int> NextField(const AddressWindow& window, int field, FieldKey key);

/// What a double-click makes of a field: proper case, a telephone number, a date. Nothing where the text
/// stays.
[[nodiscard]] std::optional<std::string> Converted(const Program& program, int field, std::string_view value);
/// Tells the conversion while the pointer is over the field; empty where there is none.
[[nodiscard]] std::string_view ConversionTip(int field);

} // namespace modAddress
