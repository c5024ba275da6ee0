#pragma once

#include "shell/command_entry.h"

#include <span>
#include <string_view>

struct Program;

/// The menus as the model owns them; the front end builds its menus from this table.
namespace commands {

/// What is said of a pending command.
inline constexpr std::string_view kNotBuilt = "This command is not available in this version.";

[[nodiscard]] std::span<const Entry> Table();
[[nodiscard]] const Entry& Find(CommandId id);

/// Puts every entry's design state into the main window.
void LoadDesignState(Program& program);

/// Whether the entry can be chosen now: enabled, and its room is built.
[[nodiscard]] bool IsAvailable(const Program& program, CommandId id);

} // namespace commands
