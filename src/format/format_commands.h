#pragma once

struct Program;

namespace modFormat {

/// The commands of the format menu as far as the open proposal is concerned. What a format file holds, and
/// how it is read and written, is behind the hooks.

/// Asks when something would be lost; then an empty proposal without a format.
void mnuFileFormatNew_Click(Program& program);
/// The chooser on "*.fmt".
void mnuFileFormatOpen_Click(Program& program);
/// Deletes the open format's file, then as mnuFileFormatNew after its question.
void mnuFileFormatDelete_Click(Program& program);
/// Saves the format and makes it the one that new proposals begin with.
void mnuFileFormatDefault_Click(Program& program);

} // namespace modFormat
