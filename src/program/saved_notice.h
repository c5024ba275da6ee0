#pragma once

#include <string_view>

struct Program;

/// Tells in the status strip what was saved, and where: "Proposal saved: /home/ann/Jane Roe.hef".
void TellSaved(Program& program, std::string_view what, std::string_view path);
