#include "proposal/file_names.h"

#include "base/ansi.h"
#include "base/dates.h"
#include "base/files.h"
#include "base/paths.h"
#include "base/text.h"
#include "program/data_folders.h"
#include "program/errors.h"
#include "program/program.h"

namespace modNames {

namespace {

/// A file system takes names of 255 bytes; a file's other names, beside it and on the way to it, need some.
constexpr std::size_t kLongestName = 230;

bool IsTooLong(std::string_view name) {
    return ansi::ToUtf8(name).size() > kLongestName;
}

bool ToldTooLong(const Program& program, std::string_view name) {
    if (!IsTooLong(name)) {
        return false;
    }
    program.platform.questions.MsgBox(
        text::Lines({"Action Cancelled. The name is too long for a file.",
                     "Please shorten the client's name or save under another."}),
        Buttons::Ok, "");
    return true;
}

} // namespace

bool HasIllegalCharacter(std::string_view name) {
    constexpr std::string_view kIllegal = "/\\:*?<>|";
    return name.find_first_of(kIllegal) != std::string_view::npos;
}

bool CanBeAFile(std::string_view fileName) {
    return !fileName.empty() && fileName != ".hef" && !HasIllegalCharacter(fileName) && !IsTooLong(fileName);
}

bool IllegalFileName(const Program& program, std::string_view name) {
    if (!HasIllegalCharacter(name)) {
        return ToldTooLong(program, name);
    }
    program.platform.questions.MsgBox(text::Lines({"Action Cancelled. File Name cannot include any of ",
                                                   "the following characters: / \\ : * ? < > |"}),
                                      Buttons::Ok, "");
    return true;
}

void ShowDuplicateFileOptions(Program& program, std::string_view name) {
    ShowDuplicateFileOptions(program, program.document.FilePath, name);
}

void ShowDuplicateFileOptions(Program& program, std::string_view folder, std::string_view name) {
    const bool done = Guarded(program, "ShowDuplicateFileOptions", [&] {
        const std::string path = paths::Join(folder, name);
        const std::string question =
            text::Lines({"A file with this name (" + std::string(name) + ")",
                         "already exists. Do you want to replace the", "existing file, created on:",
                         dates::GeneralDate(files::ModifiedSerial(path)), "", "with this one?"});
        if (program.platform.questions.MsgBox(
                question, Buttons::YesNo, "Duplicate File Name on Record",
                {.Default = Answer::No, .Lost = "The file " + path + " will be replaced."}) == Answer::Yes) {
            return; // the new bytes replace the file in one step
        }
        program.platform.questions.MsgBox("File not saved.", Buttons::Ok, "");
        program.document.Cancelled = true;
    });
    if (!done) {
        program.document.Cancelled = true; // the file stands; nothing may be written over it unasked
    }
}

std::string UnsavedChanges(const Program& program) {
    return program.document.HasName()
               ? "The changes to " + program.document.BaseName + " will be lost unless they are saved."
               : "The new proposal will be lost unless it is saved.";
}

void ClearNames(Program& program) {
    DocumentState& document = program.document;
    document.ClientCaption.clear();
    document.TitleGiven = false;
    document.BaseName.clear();
    document.FileName.clear();
    document.TextFileName.clear();
    document.FootnoteFile.clear();
    document.DepositFile.clear();
}

std::string SavingFolder(const Program& program) {
    const std::string& folder = program.document.FilePath;
    return folder.empty() || paths::SameFolder(folder, modFolders::BackupFolder(program))
               ? modFolders::DataFolder(program)
               : folder;
}

void SetBaseName(Program& program, std::string_view baseName) {
    program.document.BaseName = baseName;
    program.document.TextFileName = program.document.BaseName + ".txt";
    program.document.FootnoteFile = program.document.BaseName + ".hxt";
    program.document.DepositFile = program.document.BaseName + ".dep";
}

void LeaveBackup(Program& program) {
    program.document.FromBackup = false;
    if (paths::SameFolder(program.document.FilePath, modFolders::BackupFolder(program))) {
        program.document.FilePath = modFolders::DataFolder(program);
    }
}

void NameAfterClient(Program& program, std::string_view client) {
    // Blanks around a name cannot be seen in a list of files.
    const std::string name(text::Trim(client));
    DocumentState& document = program.document;
    const std::string textFile = document.TextFileName;
    SetBaseName(program, name);
    document.FileName = name + ".hef";
    if (name.empty()) {
        document.TextFileName = textFile;
    }
    if (!document.TitleGiven) {
        document.ClientCaption = "Proposal for " + name;
    }
}

} // namespace modNames
