#pragma once

#include <string_view>

struct Program;

/// Something new begins of which the strip may tell: what was told of the last key or command is over. What
/// is on show of it stays as long as it has to.
void BeginTelling(Program& program);

/// Tells in the status strip what was saved, and where: "Proposal saved: /home/ann/Jane Roe.hef".
void TellSaved(Program& program, std::string_view what, std::string_view path);
