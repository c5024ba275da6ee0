#pragma once

struct Program;

/// Options that are a question and an answer, or less.
namespace modOptions {

/// Asks for the sign and keeps it in the settings; an empty answer changes nothing. Reports as
/// "mnuOptCurrencySymbol".
void mnuOptCurrencySymbol_Click(Program& program);
/// Writes the font in force into the settings.
void mnuOptSetDefaultFonts_Click(Program& program);
/// Asks, then deletes every proposal of the backup folder; other files stay. Reports as "mnuOptEmptyBackup".
void mnuOptEmptyBackup_Click(Program& program);

/// Check marks whose flags follow them.
void mnuOptUnderline_Click(Program& program);
void mnuOptEnableOverwriteFmtTextBoxes_Click(Program& program);

} // namespace modOptions
