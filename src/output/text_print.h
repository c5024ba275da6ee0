#pragma once

#include <string_view>

struct Program;

namespace modPrint {

/// Prints a text as one command, with margins of half an inch, in the pages' standard font, wrapped at blanks
/// and cut where a word is wider than the page; lines end in LF. `name` is the text's, for a printer that
/// makes a file. Reports as "PrintTextFile".
void PrintText(Program& program, std::string_view name, std::string_view text);

} // namespace modPrint
