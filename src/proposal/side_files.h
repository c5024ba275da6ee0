#pragma once

#include "base/seen.h"

#include <string>
#include <string_view>

struct Program;
struct DocumentState;

/// The files that lie beside a proposal under its base name: footnotes and deposits. They lie in the
/// proposal's folder; of a proposal from the backups, and of one without a file, in the data folder.
namespace modSideFile {

[[nodiscard]] std::string FolderOf(const Program& program, const DocumentState& document);

/// What is known of a side file since it was last read or written here.
struct Known {
    files::Seen Seen;
    bool There = false;
    std::string Bytes;   ///< of the read
    bool Locked = false; ///< it is there and could not be read; it is not to be written
};

/// Reads the file of the proposal on show; empty while the proposal has no file. One that cannot be read is
/// reported under the procedure's name and comes back locked.
[[nodiscard]] Known Read(Program& program, std::string_view name, std::string_view procedure);

/// Replaces the file of the proposal on show. One that holds other bytes than are known is replaced only when
/// the person agrees to `question`. False when nothing was written; failures are reported under the
/// procedure's name.
[[nodiscard]] bool Write(Program& program, Known& known, std::string_view name, std::string_view bytes,
                         std::string_view question, std::string_view procedure);

/// The folder of the backups, made when it is missing.
[[nodiscard]] std::string MadeBackupFolder(const Program& program);
/// Moves a file of that bare name into the backup folder, under a name that is free there.
void MoveAside(const Program& program, const std::string& path, std::string_view name);

/// After the first save of a new proposal that has replaced another one's file: what lay beside that one goes
/// into the backup folder, so that the new proposal has neither its notes nor its deposits, nor its layout
/// unless it has just written its own. Reports as "SaveEventFile".
enum class OwnLayout { Written, None };
void LeaveOthersBehind(Program& program, OwnLayout layout);

/// After Save As: the files of the proposal as it was go with it. Another proposal's that lie under the new
/// name go into the backup folder. Reports as "SaveEventFileAs".
void FollowSaveAs(Program& program, const DocumentState& before);

} // namespace modSideFile
