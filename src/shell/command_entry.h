#pragma once

#include "program/command_ids.h"

#include <string_view>

struct Program;

/// One entry of the menus, with the handler that it runs.
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

} // namespace commands
