#pragma once

#include <cstddef>
#include <string>

struct Program;

/// The walk of the spelling check through the text areas of frmP1 to frmP5.
namespace modSpelling {

/// Settles what is being typed, then hands every area with two characters or more to the service, one after
/// the other; locked areas are passed over. An area whose text came back changed takes it through its
/// ordinary change handler. Shows "SpellCheck Complete" when the walk came to its end. Without a dictionary:
/// one message, which names the package to install.
void mnuEditSpellCheck_Click(Program& program);

/// Puts every area from that place of the walk on back as it stood, with amounts and totals, and makes that
/// place the one that is being checked. The service is not told.
void GoBackTo(Program& program, std::size_t position);

/// "Page 2, text area 5", for the area that is being checked.
[[nodiscard]] std::string AreaInWords(const Program& program);

} // namespace modSpelling
