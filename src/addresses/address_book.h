#pragma once

#include "program/address_records.h"

#include <cstdint>
#include <string>

class AddressWindow;
struct Program;

/// The current book and its current record, as the address window shows them. Nothing that was typed is
/// replaced before the person was asked. Each routine tells its own failures and leaves the fields as they
/// are.
namespace modAddress {

enum class Outcome { Done, Stopped };

/// Asks about unsaved changes, makes the book's file when there is none, and lists its names. Reports as
/// "OpenPersonalBook" and "OpenBusinessBook".
[[nodiscard]] Outcome OpenBook(Program& program, AddressWindow& window, AddressBook book);
/// The number of records and the list, from the file. No record is a new one; ends a search. Reports as
/// "ReadAddressList".
void ReadAddressList(Program& program, AddressWindow& window);

/// Selects a row, which activates it.
void SelectRow(Program& program, AddressWindow& window, int row);
/// Marks the row of the current record without activating it.
void MarkCurrentRow(Program& program, AddressWindow& window);
/// Makes the record of the selected row the current one and shows it.
void ActivateCurrentRecord(Program& program, AddressWindow& window);
/// Reads the current record into the fields. Reports as "ShowAddressRecord".
void ShowAddressRecord(Program& program, AddressWindow& window);

/// Writes the fields into the book: over the record that was read, or behind the last one when the record is
/// new or has another name. Stopped with `AddressSaveCancelled` set when nothing was written. Reports as
/// "SaveAddressRecord".
[[nodiscard]] Outcome SaveAddressRecord(Program& program, AddressWindow& window);
/// Empties the fields for a new record.
[[nodiscard]] Outcome NewAddressRecord(Program& program, AddressWindow& window);
/// Asks, then takes the current record out of the book. Reports as "DeleteAddressRecord".
void DeleteAddressRecord(Program& program, AddressWindow& window);

/// Asks about unsaved changes; Stopped when the person cancelled, or a save did not happen.
[[nodiscard]] Outcome ConfirmAddressChange(Program& program, AddressWindow& window);
/// The same, when there are any; what a caller does before it replaces the fields.
[[nodiscard]] Outcome MayReplaceFields(Program& program, AddressWindow& window);

/// Ends a search; Find Again has nothing to go on from.
void ClearSearch(Program& program, AddressWindow& window);

} // namespace modAddress
