#pragma once

#include "program/command_ids.h"

struct Program;

namespace commands {

/// Whether the command has to wait until the preview has ended, because it edits what stands on a page. Page
/// buttons, saving, printing and leaving go on during a preview.
[[nodiscard]] bool RefusedInPreview(const Program& program, CommandId id);

/// Refuses the command with a message when it has to wait. True when it was refused.
[[nodiscard]] bool RefuseInPreview(const Program& program, CommandId id);

} // namespace commands
