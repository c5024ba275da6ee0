#include "proposal/property_file.h"

#include "base/files.h"
#include "base/paths.h"
#include "base/text.h"
#include "program/data_folders.h"
#include "program/errors.h"
#include "program/program.h"
#include "program/rewriting.h"

#include <string>

namespace modFile {

namespace {

/// Every property is in its file.
void ClearMarks(Program& program) {
    for (const PageId page : kLinePages) {
        for (TextChangeRecord& record : program.format.PropTextChanges[page]) {
            record.Dirty = false;
        }
    }
    for (auto& page : program.format.LabelSavedState) {
        for (LabelChangeRecord& label : page) {
            label.Changed = false;
        }
    }
}

std::string PropertyFolder(const Program& program) {
    return program.document.FromBackup ? modFolders::DataFolder(program) : program.document.FilePath;
}

std::string PropertyName(const Program& program) {
    return program.document.BaseName + ".hpf";
}

} // namespace

std::string BytesOfLines(const std::vector<std::string>& lines) {
    std::string bytes;
    for (const std::string& line : lines) {
        bytes += line;
        bytes += text::kCrLf;
    }
    return bytes;
}

SaveResult SavePropertyFile(Program& program) {
    bool written = false;
    Guarded(program, "SavePropertyFile", [&] {
        const std::string path = paths::Join(PropertyFolder(program), PropertyName(program));
        if (program.document.PropertiesIgnored && files::ExistsExactly(path)) {
            program.main.Notice =
                PropertyName(program) + " was left as it is: the proposal was opened without it.";
            written = true;
            return;
        }
        FormatRecords& format = program.format;
        const std::string bytes = BytesOfLines(format.PropertyLines);
        // Under another name, whoever chose that name has agreed to what it replaces.
        files::Seen seen = path == format.PropertyPath ? format.PropertySeen : files::LookAt(path);
        written = modRewrite::Rewrite(program, path, bytes, seen, "The layout of this proposal") ==
                  modRewrite::Rewriting::Done;
        if (written) {
            format.PropertyPath = path;
            format.PropertySeen = seen;
            format.PropertyLinesRead.reset();
            ClearMarks(program);
        }
    });
    return written ? SaveResult::Saved : SaveResult::NotSaved;
}

void TakeProperties(Program& program, const std::string& path) {
    FormatRecords& format = program.format;
    format.PropertyLines.clear();
    format.PropertyLinesRead.reset();
    format.PropertyPath = path;
    format.PropertySeen = files::LookAt(path);
    if (files::Exists(path)) {
        format.PropertyLines = text::SplitLines(files::ReadAll(path));
    }
    if (!format.PropertyLines.empty() && program.hooks.ParsePropertyFile) {
        program.hooks.ParsePropertyFile(program);
    }
    if (format.PropertyLinesRead) {
        format.PropertySeen.Was = files::Seen::What::Unread; // kept when it is replaced
    }
    if (program.hooks.TellOtherPages) {
        program.hooks.TellOtherPages(program);
    }
}

void ReadFileProperties(Program& program) {
    Guarded(program, "ReadFileProperties", [&] {
        // A backup may have its own layout beside it; what is saved goes to the data folder all the same.
        const bool own = program.document.FromBackup &&
                         files::FileIsThere(program.document.FilePath, PropertyName(program));
        TakeProperties(program, paths::Join(own ? program.document.FilePath : PropertyFolder(program),
                                            PropertyName(program)));
    });
}

bool PropertiesWanted(const Program& program) {
    return PropertiesChanged(program) || (program.format.FormatOpen && !program.document.FileExists);
}

bool PropertiesChanged(const Program& program) {
    for (const PageId page : kLinePages) {
        for (const TextChangeRecord& record : program.format.PropTextChanges[page]) {
            if (record.Dirty) {
                return true;
            }
        }
    }
    for (const auto& page : program.format.LabelSavedState) {
        for (const LabelChangeRecord& label : page) {
            if (label.Changed) {
                return true;
            }
        }
    }
    return program.document.SavedStateStale;
}

} // namespace modFile
