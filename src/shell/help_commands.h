#pragma once

struct Program;

/// What the program says of itself, and where its help is.
namespace modHelp {

void mnuHelpAbout_Click(Program& program);
/// Help pages open with the system's own action, whose result is ignored; the floating windows step aside.
void mnuHelpContents_Click(Program& program);
void mnuHelpTutorial_Click(Program& program);
void mnuHelpFAQ_Click(Program& program);
/// Shows title, version and comments, and writes exactly that text to "c:\QBPVersion.txt". Reports as
/// "mnuHelpVersion".
void mnuHelpVersion_Click(Program& program);

} // namespace modHelp
