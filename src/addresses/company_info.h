#pragma once

#include "addresses/address_book.h"

class AddressWindow;
struct Program;

/// The address window as the place of the business's own name, address and telephone numbers.
namespace modAddress {

/// Captions and texts of the eight lines; the fields that are only a client's are hidden.
void LoadCompanyInfo(Program& program, AddressWindow& window);
/// Writes the eight lines of the settings and brings the pages' letterheads up to them. Stopped when
/// the settings cannot be written; the fields and the settings are as they were. Line ends and NULs become
/// blanks.
[[nodiscard]] Outcome SaveCompanyInfo(Program& program, AddressWindow& window);
/// Asks about unsaved changes; Stopped when the window is to stay.
[[nodiscard]] Outcome MayLeaveCompanyInfo(Program& program, AddressWindow& window);

} // namespace modAddress
