#pragma once

struct Program;

/// Writing a format file.
namespace modFormat {

enum class FormatSave { Saved, NotSaved };

/// Saves what stands on the pages as a format, with all questions: for a name when there is none or
/// `FormatSaveAs` is set, about a file of that name, about the texts of the open proposal. With
/// `FormatMakeDefault` new proposals begin with it. Both marks are cleared in every case. When it was not
/// saved, the file, the name and the settings are as before. Reports as "SaveFileFormat".
[[nodiscard]] FormatSave SaveFileFormat(Program& program);

/// Makes a format file the one that new proposals begin with: both settings lines, when the file is there.
/// False when they could not be written; then nothing has changed.
[[nodiscard]] bool MakeDefault(Program& program);

/// Asks about unsaved changes of the open format before they are lost, and saves them when told to. False
/// when the command is to stop.
[[nodiscard]] bool MayLeaveFormat(Program& program);

} // namespace modFormat
