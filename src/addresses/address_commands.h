#pragma once

struct Program;

/// The main window's commands that lead to the address window.
namespace modAddress {

void mnuFileOpenAddressBook_Click(Program& program);
void mnuEditCompInfo_Click(Program& program);
/// The proposal's client as a new record of a book; the person saves it.
void mnuOptCopyToPersonalAddressBook_Click(Program& program);
void mnuOptCopyToBusinessAddressBook_Click(Program& program);

} // namespace modAddress
