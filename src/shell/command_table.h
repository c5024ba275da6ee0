#pragma once

#include "program/command_ids.h"

#include <span>
#include <string_view>

struct Program;

/// The menus as the model owns them; the front end builds its menus from this table.
namespace commands {

enum class Kind { Menu, Item, Separator };
using Handler = void (*)(Program&);

/// An entry that can be chosen and has no handler is pending: its room is not built yet. Its state is kept
/// like any other's, but it is never available, and its status tip says so.
struct Entry {
    CommandId Id = CommandId::Count;
    std::string_view Name = {};
    std::string_view Caption = {};
    CommandId Parent = CommandId::Count; ///< Count for a top-level menu
    Kind What = Kind::Item;
    Handler Run = nullptr;
    std::string_view Shortcut = {}; ///< "Ctrl+N", empty for none
    bool Visible = true;
    bool Enabled = true;
    bool Checked = false;
    bool Checkable = false;

    [[nodiscard]] constexpr bool Pending() const { return What == Kind::Item && Run == nullptr; }
};

/// What is said of a pending command.
inline constexpr std::string_view kNotBuilt = "This command is not available in this version.";

[[nodiscard]] std::span<const Entry> Table();
[[nodiscard]] const Entry& Find(CommandId id);

/// Puts every entry's design state into the main window.
void LoadDesignState(Program& program);

/// Whether the entry can be chosen now: enabled, and its room is built.
[[nodiscard]] bool IsAvailable(const Program& program, CommandId id);

} // namespace commands
