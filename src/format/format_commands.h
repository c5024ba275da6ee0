#pragma once

struct Program;

namespace modFormat {

/// The commands of the format menu.

/// Asks when something would be lost; then an empty proposal without a format.
void mnuFileFormatNew_Click(Program& program);
/// The chooser on "*.fmt".
void mnuFileFormatOpen_Click(Program& program);
void mnuFileFormatSave_Click(Program& program);
void mnuFileFormatSaveAs_Click(Program& program);
/// Deletes the open format's file, then as mnuFileFormatNew after its question.
void mnuFileFormatDelete_Click(Program& program);
/// Makes the open format the one that new proposals begin with; saves it first when it has changes or no
/// file.
void mnuFileFormatDefault_Click(Program& program);

} // namespace modFormat
