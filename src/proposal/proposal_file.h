#pragma once

#include "proposal/proposal_layout.h"

#include <optional>
#include <string>
#include <string_view>

struct Program;

namespace modFile {

/// Saves the proposal under its name, with all questions and messages. Reports as "SaveEventFile". When it
/// was not saved, `document.FileExists` and the saved texts are as before and the text stays on screen.
enum class SaveResult { Saved, NotSaved };
SaveResult SaveEventFile(Program& program);

/// The bytes of a proposal file, at most what the layout needs, and the file's whole length.
struct RawProposal {
    std::string Bytes;
    std::uintmax_t Length = 0;
};
/// Reads a file of `document.FilePath`. Nothing, after a report as "OpenEventFile", when it cannot be read.
/// Changes nothing.
[[nodiscard]] std::optional<RawProposal> LoadProposal(Program& program, std::string_view fileName);
/// Fills the empty pages and the totals from what was read. Shows the message for a deposit that is no
/// number.
void ShowProposal(Program& program, std::string_view fileName, const RawProposal& raw);

/// Both in one. A file that cannot be read leaves the proposal that stands.
enum class OpenResult { Opened, NotOpened };
OpenResult OpenEventFile(Program& program, std::string_view fileName);

/// Saves a copy into Backup/, by the steps of SaveEventFile and with its questions, but without the message
/// of success. Does nothing for a proposal without a name. When the steps stop, the backup that stood stays.
/// Reports as "BackupThisFile", the steps themselves as "SaveEventFile".
void BackupThisFile(Program& program);

/// Writes the property lines beside the proposal; for one that was opened from the backups, into the data
/// folder. Then no label counts as changed. Reports as "SavePropertyFile".
SaveResult SavePropertyFile(Program& program);

/// Reads the property lines and hands them to the language of formats. Reports as "ReadFileProperties".
void ReadFileProperties(Program& program);

/// Whether any property differs from what was last saved: a dirty text record, a changed label, a stale
/// state.
[[nodiscard]] bool PropertiesChanged(const Program& program);

/// Whether the client's name differs from its saved text.
[[nodiscard]] bool ClientNameChanged(const Program& program);

/// The slots' widths as the fields' Tags have them now.
[[nodiscard]] proposal::Widths SlotWidths(const Program& program);

} // namespace modFile
