#pragma once

#include "program/command_ids.h"

#include <QAction>
#include <QMenuBar>

#include <array>
#include <functional>

struct Program;

/// The menus, built from the command table. Each action's object name is its command's name.
class Menus {
public:
    /// `run` is called with the command a person chose; `opening` before a menu shows.
    Menus(QMenuBar& bar, QWidget& window, const std::function<void(CommandId)>& run,
          const std::function<void()>& opening);

    /// Sets what differs from the records: captions, states, check marks.
    void Follow(const Program& program);

    [[nodiscard]] QAction* Action(CommandId id) const { return actions_[static_cast<std::size_t>(id)]; }
    /// The menu of a command that has entries of its own, null for others.
    [[nodiscard]] QMenu* Menu(CommandId id) const { return menus_[static_cast<std::size_t>(id)]; }

private:
    std::array<QAction*, kCommandCount> actions_{};
    std::array<QMenu*, kCommandCount> menus_{};
};
