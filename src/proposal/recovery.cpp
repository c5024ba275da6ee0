#include "proposal/recovery.h"

#include "base/dates.h"
#include "base/files.h"
#include "base/paths.h"
#include "pages/fields.h"
#include "pages/titles.h"
#include "program/data_folders.h"
#include "program/errors.h"
#include "program/program.h"
#include "proposal/backup.h"
#include "proposal/file_names.h"
#include "proposal/property_file.h"
#include "proposal/proposal_open.h"
#include "proposal/reset.h"
#include "proposal/run_marker.h"

#include <exception>
#include <optional>
#include <string>

namespace modRecovery {

namespace {

std::string PropertiesBeside(std::string_view name) {
    return std::string(paths::BaseOf(name)) + ".hpf";
}

/// The bytes of a file of exactly that name, when it is there and can be read.
std::optional<std::string> BytesOf(const std::string& path) {
    try {
        return files::ExistsExactly(path) ? std::optional(files::ReadAll(path)) : std::nullopt;
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

/// Whether the backup has nothing that the proposal has not.
bool SayTheSame(const Program& program, const UnsavedWork& work) {
    if (!modNames::CanBeAFile(work.FileName)) {
        return false; // it has no file
    }
    if (work.Saving.Was == files::Seen::What::Bytes &&
        files::LookAt(paths::Join(work.Folder, work.FileName)) == work.Saving) {
        return true; // saved after the backup
    }
    const std::string backups = modFolders::BackupFolder(program);
    const std::optional<std::string> properties =
        BytesOf(paths::Join(backups, PropertiesBeside(work.Backup)));
    return BytesOf(paths::Join(work.Folder, work.FileName)) == BytesOf(paths::Join(backups, work.Backup)) &&
           (!properties || properties == BytesOf(paths::Join(work.Folder, PropertiesBeside(work.FileName))));
}

/// Whatever stands in a field counts as unsaved where it differs from the proposal's own file.
struct SavedState {
    bool Exists = false;
    files::Seen File;
    decltype(DocumentState::SavedTextBuf) Texts;
};

SavedState ShowSaved(Program& program, const UnsavedWork& work) {
    DocumentState& document = program.document;
    SavedState saved;
    document.FilePath = work.Folder;
    // A file of the name that the proposal had not read is another's.
    if (work.Known.Was == files::Seen::What::Bytes && modNames::CanBeAFile(work.FileName) &&
        files::ExistsExactly(paths::Join(work.Folder, work.FileName))) {
        saved.Exists = modFile::OpenEventFile(program, work.FileName) == modFile::OpenResult::Opened;
    }
    saved.File = document.SavedFile;
    saved.Texts = document.SavedTextBuf;
    return saved;
}

void ShowBackup(Program& program, const UnsavedWork& work, const modFile::RawProposal& backup) {
    DocumentState& document = program.document;
    const SavedState saved = ShowSaved(program, work);
    document.FileExists = saved.Exists;
    if (modReset::StartNewFile(program) == modReset::ResetResult::Refused) {
        return;
    }
    document.FilePath = work.Folder;
    modFile::ShowProposal(program, work.FileName, backup);
    const bool named = modNames::CanBeAFile(work.FileName);
    if (paths::BaseOf(work.FileName).empty()) {
        modNames::ClearNames(program);
        modTitles::UpdateEventNameLabels(program);
    }
    modFile::TakeProperties(program,
                            paths::Join(modFolders::BackupFolder(program), PropertiesBeside(work.Backup)));
    document.FileExists = saved.Exists;
    document.HasNotes = document.HasNotes && saved.Exists;
    document.OwnBackup = modFile::BackupNameOf(program).empty() ? work.Backup : "";
    const bool savedWhole = saved.File.Was != files::Seen::What::Unread; // or it is kept when it is replaced
    document.SavedFile = saved.Exists && savedWhole ? work.Known : saved.File;
    program.format.PropertyPath =
        named ? paths::Join(work.Folder, PropertiesBeside(work.FileName)) : std::string();
    program.format.PropertySeen = files::LookAt(program.format.PropertyPath);
    document.SavedTextBuf = saved.Texts;
    document.SavedStateStale = !program.format.PropertyLines.empty();
    modFields::GiveFocus(program, {PageId::frmP1, FieldKind::txt, 0});
}

void Settle(Program& program) {
    program.recovery.Found.reset();
    NothingUnsaved(program);
}

} // namespace

void OfferWhatWasFound(Program& program) {
    const std::optional<UnsavedWork> work = program.recovery.Found;
    if (!work) {
        return;
    }
    const std::string backup = paths::Join(modFolders::BackupFolder(program), work->Backup);
    const bool there = files::ExistsExactly(backup);
    if (!there && !files::IsFolder(work->Folder)) {
        return; // a share that is away: a later start asks
    }
    if (!there || SayTheSame(program, *work)) {
        Settle(program);
        return;
    }
    Guarded(program, "OpenEventFile", [&] {
        const std::string_view client = paths::BaseOf(work->FileName);
        const std::string question =
            "The program did not close properly. The proposal " +
            std::string(client.empty() ? "without a client's name" : client) + " has changes from " +
            dates::GeneralDate(files::ModifiedSerial(backup)) + " that were not saved. Bring them back?";
        const Answer answer = program.platform.questions.MsgBox(
            question, Buttons::YesNo, "", {.Default = Answer::Yes, .How = Manner::Came::Unasked});
        if (program.main.Closing) {
            return; // the run was ended over the question; the next start asks it again
        }
        if (answer != Answer::Yes) {
            Settle(program);
            return;
        }
        program.recovery.Found.reset();
        ShowBackup(program, *work, modFile::ReadProposal(program, backup));
        Restate(program, *work);
    });
}

} // namespace modRecovery
