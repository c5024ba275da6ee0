#pragma once

struct Program;

namespace modBlocks {

/// Sets the states of the text area's commands from what is selected, by one table.
void UpdateTextMenu(Program& program);

} // namespace modBlocks
