#pragma once

class AddressWindow;
struct Program;

/// The address window as the place of the business's own name, address and telephone numbers.
namespace modAddress {

/// Captions and texts of the eight lines; the fields that are only a client's are hidden.
void LoadCompanyInfo(Program& program, AddressWindow& window);
/// Writes the eight lines of the settings and brings the pages' letterheads up to them, then closes. When the
/// settings cannot be written the window stays with what was typed. Line ends and NULs become blanks.
void SaveCompanyInfo(Program& program, AddressWindow& window);
/// Asks about unsaved changes; false when the window is to stay.
[[nodiscard]] bool MayCloseCompanyInfo(Program& program, AddressWindow& window);

} // namespace modAddress
