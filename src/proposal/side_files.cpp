#include "proposal/side_files.h"

#include "base/file_places.h"
#include "base/files.h"
#include "base/folder_scan.h"
#include "base/paths.h"
#include "base/text.h"
#include "program/data_folders.h"
#include "program/errors.h"
#include "program/program.h"
#include "proposal/proposal_save.h"

namespace modSideFile {

namespace {

std::string MadeBackupFolder(const Program& program) {
    std::string folder = modFolders::BackupFolder(program);
    if (!files::IsFolder(folder)) {
        files::MakeFolder(folder);
    }
    return folder;
}

/// A free name in the backup folder: what was moved there before stays.
std::string FreeBackupName(const Program& program, std::string_view name) {
    const std::string first = paths::Join(MadeBackupFolder(program), std::string(name) + ".old");
    std::string free = first;
    for (int number = 2; file_places::Locate(free); ++number) {
        free = first + std::to_string(number);
    }
    return free;
}

void FollowOne(Program& program, const DocumentState& before, std::string_view extension) {
    const std::string was = before.BaseName + std::string(extension);
    const std::string is = program.document.BaseName + std::string(extension);
    const std::string from = FolderOf(program, before);
    const std::string to = FolderOf(program, program.document);
    if (text::EqualNoCase(was, is) && paths::SameFolder(from, to)) {
        return;
    }
    const std::string target = paths::Join(to, is);
    if (before.FileExists && !before.BaseName.empty() && files::FileIsThere(from, was)) {
        const std::string bytes = files::ReadAll(paths::Join(from, was));
        files::WriteWhole(target, bytes);
    } else if (files::Exists(target)) {
        files::Rename(target, FreeBackupName(program, is));
    }
}

} // namespace

std::string FolderOf(const Program& program, const DocumentState& document) {
    return document.FromBackup || !document.FileExists || document.FilePath.empty()
               ? modFolders::DataFolder(program)
               : document.FilePath;
}

Known Read(Program& program, std::string_view name, std::string_view procedure) {
    Known known;
    if (!program.document.FileExists || program.document.BaseName.empty()) {
        return known;
    }
    const std::string path = paths::Join(FolderOf(program, program.document), name);
    const bool done = Guarded(program, procedure, [&] {
        known.There = files::Exists(path);
        if (known.There) {
            known.Bytes = files::ReadAll(path);
            known.Seen = files::SeenIn(known.Bytes);
        }
    });
    known.Locked = !done;
    return known;
}

bool Write(Program& program, Known& known, std::string_view name, std::string_view bytes,
           std::string_view question, std::string_view procedure) {
    if (known.Locked || program.document.BaseName.empty()) {
        return false;
    }
    bool written = false;
    Guarded(program, procedure, [&] {
        const std::string path = paths::Join(FolderOf(program, program.document), name);
        if (files::ChangedSince(path, known.Seen) &&
            program.platform.questions.MsgBox(question, Buttons::YesNo, "",
                                              {.Default = Answer::No, .Lost = std::string(name)}) !=
                Answer::Yes) {
            return;
        }
        files::WriteWhole(path, bytes);
        known.There = true;
        known.Seen = files::SeenIn(bytes);
        written = true;
    });
    return written;
}

bool ProposalHasFile(Program& program) {
    return program.document.FileExists || modFile::SaveEventFile(program) == modFile::SaveResult::Saved;
}

void KeepInBackup(Program& program, std::string_view name, std::string_view bytes) {
    try {
        const bool unnamed = program.document.BaseName.empty();
        const std::string file = unnamed ? "Unnamed" + std::string(name) : std::string(name);
        files::WriteWhole(paths::Join(MadeBackupFolder(program), file), bytes);
    } catch (const std::exception& error) {
        WriteErrorLog(program, error.what() + std::string(text::kCrLf));
    }
}

void FollowSaveAs(Program& program, const DocumentState& before) {
    for (const std::string_view extension : {".hxt", ".dep"}) {
        FollowOne(program, before, extension);
    }
}

} // namespace modSideFile
