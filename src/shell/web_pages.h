#pragma once

#include <string_view>

struct Program;

/// Pages that another program shows; the system's own action opens them, and its result is ignored. The
/// floating windows step aside.
namespace modWeb {

/// A page of the maker's site.
void OpenWebPage(Program& program, std::string_view path);
/// A page of the help that came with the program.
void OpenHelpPage(Program& program, std::string_view page);

} // namespace modWeb
