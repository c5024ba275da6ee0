#pragma once

class AddressWindow;
struct Program;

namespace modAddress {

enum class Search { New, Again };

/// Asks for a text, or goes on with the last one, and shows the next record that holds it anywhere, without
/// regard to case; the first field that holds it has it selected. One hit a record. Reports as
/// "FindInAddressBook".
void FindInAddressBook(Program& program, AddressWindow& window, Search search);

} // namespace modAddress
