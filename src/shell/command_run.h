#pragma once

#include "shell/command_ids.h"

struct Program;

namespace commands {

/// Runs a command as its menu entry does. A disabled or invisible one does nothing.
void Run(Program& program, CommandId id);

} // namespace commands
