#pragma once

struct Program;

/// Commands of the menus that need no room of their own: about the program, its pages on the web, links on
/// the desktop, and two of the options.
namespace modMain {

void mnuHelpAbout_Click(Program& program);
/// Help pages open with the system's own action, whose result is ignored; the floating windows step aside.
void mnuHelpContents_Click(Program& program);
void mnuHelpTutorial_Click(Program& program);
void mnuHelpFAQ_Click(Program& program);
/// Shows title, version and comments, and writes exactly that text to "c:\QBPVersion.txt". Reports as
/// "mnuHelpVersion".
void mnuHelpVersion_Click(Program& program);

void mnuSupportUpdates_Click(Program& program);
void mnuSupportUpgrade_Click(Program& program);
void mnuSupportFree_Click(Program& program);
void mnuFeedbackReportBug_Click(Program& program);
void mnuFeedbackSuggestions_Click(Program& program);

/// Links to the program and to its upgrade tool, each placed on the desktop and among the program links.
void mnuToolsCreateShorcut_Click(Program& program);
void mnuToolsCreateShortcutUM_Click(Program& program);

/// Asks for the sign and keeps it in the settings; an empty answer changes nothing. Reports as
/// "mnuOptCurrencySymbol".
void mnuOptCurrencySymbol_Click(Program& program);
/// Writes the font in force into the settings.
void mnuOptSetDefaultFonts_Click(Program& program);
/// Asks, then deletes every proposal of the backup folder; other files stay. Reports as "mnuOptEmptyBackup".
void mnuOptEmptyBackup_Click(Program& program);

/// Says "ok" and does nothing else.
void mnuEditTextCenter_Click(Program& program);

} // namespace modMain
