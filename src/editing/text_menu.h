#pragma once

#include "program/command_ids.h"

#include <array>
#include <span>

struct Program;

namespace modTextMenu {

/// What the person has before them when the menu opens.
enum class MenuState { BoxesSelected, OnlyTextSelected, NothingSelected, EnablePaste };
inline constexpr int kMenuStateCount = 4;

/// When an entry is enabled.
enum class MenuRule {
    Off,
    On,
    Line,       ///< the area can carry columns; the client page's test begins one area early
    UnlessBold, ///< the area is not bold
    IfBold,
    Terms, ///< the frequent terms window is shown
    Amount ///< the area's kind is "Amou"
};

/// One entry of the text area's menu: its rule in each state, in the order of MenuState.
struct MenuRow {
    CommandId Id;
    std::array<MenuRule, kMenuStateCount> In;
};
[[nodiscard]] std::span<const MenuRow> TextMenuTable();

/// Sets the states of the text area's commands from what is selected, by the table. What can be undone
/// enables the undo in every state. Remembers the selected text for the case commands.
void UpdateTextMenu(Program& program);

} // namespace modTextMenu
