#pragma once

struct Program;

/// The administrator's commands. Their menu never shows.
namespace modAdmin {

/// The file chooser, for deleting.
void mnuAdminDelete_Click(Program& program);
/// One message with the fonts of the first page, its first text area and its first label.
void mnuAdminDebug_Click(Program& program);
/// Asks for the password; it is empty, so that Cancel matches too. No message when it does not match.
void mnuAdminLogon_Click(Program& program);
/// Shows every label of frmP1 to frmP6, whatever its Tag says.
void mnuToolsAdminShowAllLabels_Click(Program& program);
void mnuAdminConvert_Click(Program& program);

} // namespace modAdmin
