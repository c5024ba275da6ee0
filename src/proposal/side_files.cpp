#include "proposal/side_files.h"

#include "base/file_places.h"
#include "base/files.h"
#include "base/folder_scan.h"
#include "base/paths.h"
#include "base/text.h"
#include "program/data_folders.h"
#include "program/errors.h"
#include "program/program.h"
#include "program/saved_notice.h"

#include <array>

namespace modSideFile {

namespace {

constexpr std::array<std::string_view, 2> kBeside{".hxt", ".dep"};

/// A free name in the backup folder: what was moved there before stays.
std::string FreeBackupName(const Program& program, std::string_view name) {
    const std::string first = paths::Join(MadeBackupFolder(program), std::string(name) + ".old");
    std::string free = first;
    for (int number = 2; file_places::Locate(free); ++number) {
        free = first + std::to_string(number);
    }
    return free;
}

void FollowOne(const Program& program, const DocumentState& before, std::string_view extension) {
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
        if (files::ExistsExactly(target) && files::LookAt(target) != files::SeenIn(bytes)) {
            MoveAside(program, target, is); // what was replaced is the proposal, not what lay beside it
        }
        files::WriteWhole(target, bytes);
    } else if (files::Exists(target)) {
        MoveAside(program, target, is);
    }
}

} // namespace

std::string MadeBackupFolder(const Program& program) {
    std::string folder = modFolders::BackupFolder(program);
    if (!files::IsFolder(folder)) {
        files::MakeFolder(folder);
    }
    return folder;
}

void MoveAside(const Program& program, const std::string& path, std::string_view name) {
    const std::string kept = FreeBackupName(program, name);
    try { // the backup folder may lie on another volume
        files::Rename(path, kept);
    } catch (const files::FileError&) {
        files::Copy(path, kept);
        files::Delete(path);
    }
}

std::string FolderOf(const Program& program, const DocumentState& document) {
    return document.FromBackup || !document.FileExists || document.FilePath.empty()
               ? modFolders::DataFolder(program)
               : document.FilePath;
}

Known Read(const Program& program, std::string_view name, std::string_view procedure) {
    Known known;
    if (!program.document.FileExists || program.document.BaseName.empty()) {
        return known;
    }
    const std::string path = paths::Join(FolderOf(program, program.document), name);
    const bool done = Guarded(program, procedure, [&] {
        known.There =
            files::Exists(path) || files::IsFolder(path); // a folder there cannot be read, and is told
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
            program.platform.questions.MsgBox(
                question, Buttons::YesNo, "",
                {.Default = Answer::No,
                 .Lost = "What the other program wrote into " + std::string(name) + " will be lost."}) !=
                Answer::Yes) {
            return;
        }
        files::WriteWhole(path, bytes);
        known.There = true;
        known.Seen = files::SeenIn(bytes);
        written = true;
        TellSaved(program, name.ends_with(".dep") ? "Deposit list" : "Footnotes", path);
    });
    return written;
}

void LeaveOthersBehind(Program& program, OwnLayout layout) {
    DocumentState& document = program.document;
    for (const std::string_view extension : {kBeside[0], kBeside[1], std::string_view(".hpf")}) {
        if (extension == ".hpf" && layout == OwnLayout::Written) {
            continue;
        }
        Guarded(program, "SaveEventFile", [&] {
            const std::string name = document.BaseName + std::string(extension);
            const std::string path = paths::Join(FolderOf(program, document), name);
            if (files::Exists(path)) {
                MoveAside(program, path, name);
            }
        });
    }
    document.HasNotes = files::FileIsThere(FolderOf(program, document), document.FootnoteFile);
}

void FollowSaveAs(const Program& program, const DocumentState& before) {
    for (const std::string_view extension : kBeside) {
        // The one goes along though the other cannot.
        Guarded(program, "SaveEventFileAs", [&] { FollowOne(program, before, extension); });
    }
}

} // namespace modSideFile
