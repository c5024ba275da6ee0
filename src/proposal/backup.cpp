#include "proposal/backup.h"

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

#include <string_view>

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

void Write(Program& program) {
    const std::string folder = modFolders::BackupFolder(program);
    const std::string name = BackupNameOf(program);
    const std::string properties = paths::Join(folder, PropertiesOf(name));
    const std::string lines = PropertyBytes(program);
    modRecovery::TellOfBackup(program, name);
    if (!lines.empty()) {
        files::WriteWhole(properties, lines);
    } else if (files::ExistsExactly(properties)) {
        files::Delete(properties); // of an earlier proposal of the name
    }
    files::WriteWhole(paths::Join(folder, name), ProposalBytes(program));
}

void Tell(Program& program, const std::exception& trouble) {
    program.main.Notice = std::string("No backup was written. ") + trouble.what();
    if (program.document.BackupTrouble != trouble.what()) {
        program.document.BackupTrouble = trouble.what();
        LogError(program, "BackupThisFile", trouble);
    }
}

} // namespace

std::string BackupNameOf(const Program& program) {
    const DocumentState& document = program.document;
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

void BackupThisFile(Program& program) {
    try {
        if (!program.document.HasName()) {
            throw files::FileError(files::kBadName, "The proposal has no client's name yet.");
        }
        if (modNames::HasIllegalCharacter(program.document.FileName)) {
            throw files::FileError(files::kBadName,
                                   "The client's name cannot be a file's name: " + program.document.FileName);
        }
        Write(program);
        program.document.BackupTrouble.clear();
    } catch (const std::exception& trouble) {
        Tell(program, trouble);
    }
}

} // namespace modFile
