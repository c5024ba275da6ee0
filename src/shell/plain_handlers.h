#pragma once

#include "program/windows.h"

#include <memory>

struct Program;

/// Handlers of entries that need no routine of a room.
namespace commands::menus {

template <typename Form> void ShowWindow(Program& program) {
    modWindows::Show(program, std::make_unique<Form>());
}

/// Wanted: the entry has its place in the menu, and nothing comes of it.
inline void DoNothing(Program&) {}

} // namespace commands::menus
