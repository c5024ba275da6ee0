#pragma once

struct Program;

namespace modFormat {

/// Asks about what the open format has not saved, before it is lost, and saves it when told to. False when
/// the command is to stop.
[[nodiscard]] bool MayLeaveFormat(Program& program);

} // namespace modFormat
