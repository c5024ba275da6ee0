#include "proposal/backup.h"

#include "base/file_places.h"
#include "base/files.h"
#include "base/guard.h"
#include "base/paths.h"
#include "base/text.h"
#include "pages/titles.h"
#include "program/data_folders.h"
#include "program/errors.h"
#include "program/program.h"
#include "proposal/file_names.h"
#include "proposal/property_file.h"
#include "proposal/proposal_bytes.h"
#include "proposal/run_marker.h"
#include "proposal/side_files.h"

#include <cstddef>
#include <exception>
#include <string>
#include <string_view>
#include <utility>

namespace modFile {

namespace {

constexpr std::string_view kUnnamed = "(no client's name).hef";

std::string_view LastFolderOf(std::string_view folder) {
    while (!folder.empty() && paths::IsSeparator(folder.back())) {
        folder.remove_suffix(1);
    }
    return paths::Name(folder);
}

std::string PropertiesOf(std::string_view name) {
    return std::string(paths::BaseOf(name)) + ".hpf";
}

/// The property lines as a save would write them now.
std::string PropertyBytes(Program& program) {
    const FormatRecords before = program.format;
    const OnLeaving restore([&] { program.format = before; });
    const ScopedFlag silent(program.document.BackingUp);
    if (PropertiesWanted(program) && program.hooks.AssignPropChanges) {
        program.hooks.AssignPropChanges(program);
    }
    return BytesOfLines(program.format.PropertyLines);
}

/// Whether the proposal is a stored one; only then does the backup of its name belong to it.
bool IsStored(const Program& program) {
    return program.document.FileExists &&
           !paths::SameFolder(program.document.FilePath, modFolders::BackupFolder(program));
}

/// The name of a stored proposal's backup, in whichever run.
std::string NameOfStored(const Program& program) {
    const DocumentState& document = program.document;
    if (document.FilePath.empty() || paths::SameFolder(document.FilePath, modFolders::DataFolder(program)) ||
        paths::SameFolder(document.FilePath, modFolders::BackupFolder(program))) {
        return document.FileName;
    }
    return std::string(paths::BaseOf(document.FileName)) + " (" +
           std::string(LastFolderOf(document.FilePath)) + ")" +
           std::string(text::Right(document.FileName, 4));
}

/// The name that a proposal which is not stored would have for its backup, were it free.
std::string WantedName(const Program& program) {
    const DocumentState& document = program.document;
    if (!modNames::CanBeAFile(document.FileName)) {
        return std::string(kUnnamed);
    }
    const std::string name = NameOfStored(program);
    const bool another =
        !document.FileExists &&
        files::ExistsExactly(paths::Join(modNames::SavingFolder(program), document.FileName));
    return another ? std::string(paths::BaseOf(name)) + " (new).hef" : name;
}

/// Whether it is the wanted name, or that with a number.
bool IsOf(std::string_view name, std::string_view wanted) {
    const std::string_view base = paths::BaseOf(wanted);
    if (!name.starts_with(base)) {
        return false;
    }
    const std::string_view number = paths::BaseOf(name).substr(base.size());
    return number.empty() || (number.starts_with(" (") && number.ends_with(")") &&
                              number.find_first_not_of("0123456789", 2) == number.size() - 1);
}

/// A proposal that is not stored replaces no backup but its own.
std::string NameForNext(const Program& program, const std::string& folder) {
    if (IsStored(program)) {
        return NameOfStored(program);
    }
    const std::string wanted = WantedName(program);
    const std::string& own = program.document.OwnBackup;
    return !own.empty() && IsOf(own, wanted) ? own : file_places::FreeName(folder, wanted);
}

/// The text first, then the marker that names it: an end between the two must not have an older one offered.
/// Properties that cannot be written leave the text kept.
void WriteAs(Program& program, const std::string& folder, const std::string& name) {
    const std::string properties = paths::Join(folder, PropertiesOf(name));
    const std::string lines = PropertyBytes(program);
    files::WriteWhole(paths::Join(folder, name), ProposalBytes(program));
    modRecovery::TellOfBackup(program, name);
    if (!lines.empty()) {
        files::WriteWhole(properties, lines);
    } else if (files::ExistsExactly(properties)) {
        files::Delete(properties); // of an earlier proposal of the name
    }
}

void Tell(Program& program, const std::exception& trouble) {
    program.main.Notice = std::string("No backup was written. ") + trouble.what();
    if (program.document.BackupTrouble != trouble.what()) {
        program.document.BackupTrouble = trouble.what();
        LogError(program, "BackupThisFile", trouble);
    }
}

/// Its client has no name yet, or one that no file can bear.
void TellUnnamed(Program& program) {
    DocumentState& document = program.document;
    const std::string trouble = (document.HasName() ? "The client's name cannot be a file's name: " +
                                                          std::string(paths::BaseOf(document.FileName)) + "."
                                                    : "The proposal has no client's name yet.") +
                                " Its backup is called " + document.OwnBackup;
    if (document.BackupTrouble != trouble) {
        document.BackupTrouble = trouble;
        program.main.Notice = trouble;
        LogError(program, "BackupThisFile", files::FileError(files::kBadName, trouble));
    }
}

void Drop(const Program& program, const std::string& name) {
    try {
        DeleteBackup(program, name);
    } catch (const std::exception& error) {
        LogError(program, "BackupThisFile", error); // it stays, older than what has been kept since
    }
}

void Write(Program& program) {
    if (!IsStored(program) && !TextsChanged(program) && !PropertiesChanged(program)) {
        return; // nobody has written anything
    }
    DocumentState& document = program.document;
    const std::string folder = modSideFile::MadeBackupFolder(program);
    const std::string name = NameForNext(program, folder);
    WriteAs(program, folder, name);
    const std::string before = std::exchange(document.OwnBackup, IsStored(program) ? "" : name);
    if (!before.empty() && before != name) {
        Drop(program, before);
    }
    if (modNames::CanBeAFile(document.FileName)) {
        document.BackupTrouble.clear();
    } else {
        TellUnnamed(program);
    }
}

} // namespace

std::string BackupNameOf(const Program& program) {
    return IsStored(program) ? NameOfStored(program) : program.document.OwnBackup;
}

void DeleteBackup(const Program& program, const std::string& name) {
    const std::string folder = modFolders::BackupFolder(program);
    files::Delete(paths::Join(folder, name));
    const std::string properties = paths::Join(folder, PropertiesOf(name));
    if (files::ExistsExactly(properties)) {
        files::Delete(properties);
    }
}

void DropOwnBackup(Program& program) {
    const std::string name = std::exchange(program.document.OwnBackup, {});
    if (!name.empty() && name != NameOfStored(program)) {
        Drop(program, name);
    }
}

void TakeUpUnnamed(Program& program, const std::string& name) {
    DocumentState& document = program.document;
    if (!paths::SameFolder(document.FilePath, modFolders::BackupFolder(program)) || !IsOf(name, kUnnamed)) {
        return;
    }
    modNames::ClearNames(program);
    document.FileExists = false;
    document.SavedFile = {};
    modNames::LeaveBackup(program);
    document.FolderOnShow = document.FilePath;
    document.HasNotes = false;
    document.OwnBackup = name;
    for (const PageId page : kEditedPages) {
        for (std::string& text : document.SavedTextBuf[page]) {
            text.clear();
        }
    }
    document.SavedStateStale = !program.format.PropertyLines.empty();
    program.format.PropertyPath.clear();
    constexpr std::size_t kClientName = 2;
    const std::string client = document.CurrentTextBuf[PageId::frmP1][kClientName];
    if (!text::Trim(client).empty()) {
        modNames::NameAfterClient(program, client);
    }
    modTitles::UpdateEventNameLabels(program);
}

void BackupThisFile(Program& program) {
    try {
        Write(program);
    } catch (const std::exception& trouble) {
        Tell(program, trouble);
    }
}

} // namespace modFile
