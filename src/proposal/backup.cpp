#include "proposal/backup.h"

#include "base/file_places.h"
#include "base/files.h"
#include "base/guard.h"
#include "base/paths.h"
#include "base/text.h"
#include "program/data_folders.h"
#include "program/errors.h"
#include "program/program.h"
#include "proposal/file_names.h"
#include "proposal/property_file.h"
#include "proposal/proposal_bytes.h"
#include "proposal/run_marker.h"

#include <exception>
#include <string>
#include <string_view>
#include <utility>

namespace modFile {

namespace {

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

void WriteAs(Program& program, const std::string& name) {
    const std::string folder = modFolders::BackupFolder(program);
    const std::string properties = paths::Join(folder, PropertiesOf(name));
    const std::string lines = PropertyBytes(program);
    if (program.document.UnnamedBackup.empty() || program.document.UnnamedBackup == name) {
        modRecovery::TellOfBackup(program, name); // else the one that stands is offered until this one does
    }
    if (!lines.empty()) {
        files::WriteWhole(properties, lines);
    } else if (files::ExistsExactly(properties)) {
        files::Delete(properties); // of an earlier proposal of the name
    }
    files::WriteWhole(paths::Join(folder, name), ProposalBytes(program));
    modRecovery::TellOfBackup(program, name);
}

void Tell(Program& program, const std::exception& trouble) {
    program.main.Notice = std::string("No backup was written. ") + trouble.what();
    if (program.document.BackupTrouble != trouble.what()) {
        program.document.BackupTrouble = trouble.what();
        LogError(program, "BackupThisFile", trouble);
    }
}

/// A proposal whose client has no name yet, or one that no file can bear, is kept all the same.
void WriteUnnamed(Program& program) {
    DocumentState& document = program.document;
    if (!TextsChanged(program) && !PropertiesChanged(program)) {
        return; // nobody has written anything
    }
    if (document.UnnamedBackup.empty()) {
        document.UnnamedBackup =
            file_places::FreeName(modFolders::BackupFolder(program), "(no client's name).hef");
    }
    WriteAs(program, document.UnnamedBackup);
    const std::string trouble = (document.HasName() ? "The client's name cannot be a file's name: " +
                                                          std::string(paths::BaseOf(document.FileName)) + "."
                                                    : "The proposal has no client's name yet.") +
                                " Its backup is called " + document.UnnamedBackup;
    if (document.BackupTrouble != trouble) {
        document.BackupTrouble = trouble;
        program.main.Notice = trouble;
        LogError(program, "BackupThisFile", files::FileError(files::kBadName, trouble));
    }
}

void WriteNamed(Program& program) {
    WriteAs(program, BackupNameOf(program));
    program.document.BackupTrouble.clear();
    DropUnnamedBackup(program);
}

} // namespace

std::string BackupNameOf(const Program& program) {
    const DocumentState& document = program.document;
    if (!modNames::CanBeAFile(document.FileName)) {
        return document.UnnamedBackup;
    }
    if (document.FilePath.empty() || paths::SameFolder(document.FilePath, modFolders::DataFolder(program)) ||
        paths::SameFolder(document.FilePath, modFolders::BackupFolder(program))) {
        return document.FileName;
    }
    return std::string(paths::BaseOf(document.FileName)) + " (" +
           std::string(LastFolderOf(document.FilePath)) + ")" +
           std::string(text::Right(document.FileName, 4));
}

void DeleteBackup(const Program& program, const std::string& name) {
    const std::string folder = modFolders::BackupFolder(program);
    files::Delete(paths::Join(folder, name));
    const std::string properties = paths::Join(folder, PropertiesOf(name));
    if (files::ExistsExactly(properties)) {
        files::Delete(properties);
    }
}

void DropUnnamedBackup(Program& program) {
    const std::string name = std::exchange(program.document.UnnamedBackup, {});
    if (name.empty()) {
        return;
    }
    try {
        DeleteBackup(program, name);
    } catch (const std::exception& error) {
        LogError(program, "BackupThisFile", error); // it stays, older than what has been kept since
    }
}

void BackupThisFile(Program& program) {
    try {
        if (modNames::CanBeAFile(program.document.FileName)) {
            WriteNamed(program);
        } else {
            WriteUnnamed(program);
        }
    } catch (const std::exception& trouble) {
        Tell(program, trouble);
    }
}

} // namespace modFile
