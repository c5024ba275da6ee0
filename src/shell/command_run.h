#pragma once

#include "program/command_ids.h"

struct Program;

namespace commands {

/// Runs a command as its menu entry does. A disabled or invisible one does nothing, nor does one whose room
/// is not built. While a preview is up, commands that edit the page refuse with a message.
void Run(Program& program, CommandId id);

/// Whether the command may run now, whoever asks for it; says what there is to say when it may not.
[[nodiscard]] bool MayRun(Program& program, CommandId id);

} // namespace commands
