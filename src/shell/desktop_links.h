#pragma once

struct Program;

/// Links to the program and to its upgrade tool, each placed on the desktop and among the program links.
namespace modLinks {

void mnuToolsCreateShorcut_Click(Program& program);
void mnuToolsCreateShortcutUM_Click(Program& program);
void mnuSupportUpgrade_Click(Program& program);

} // namespace modLinks
