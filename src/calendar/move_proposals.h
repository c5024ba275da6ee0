#pragma once

#include <optional>
#include <string>
#include <vector>

struct Program;

/// Proposals out of the data folder into the backup folder, and back. Nothing is ever written over: what
/// cannot be moved stays and is told, all of it in one message, and the others go on.
namespace modCalendar {

/// Moves each file to its name with ".old" behind it. The number of those moved. The proposal on show has no
/// file any more when it is among them, and counts as changed. Reports as "mnuOptDelete_Click".
[[nodiscard]] int MoveToBackup(Program& program, const std::vector<std::string>& fileNames);

/// Moves every proposal that was moved away back to its name. The number of those moved; nothing when there
/// is none to be moved, which it says. Reports as "mnuOptUndoDelete_Click".
[[nodiscard]] std::optional<int> RestoreFromBackup(Program& program);

} // namespace modCalendar
