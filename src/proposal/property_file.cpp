#include "proposal/property_file.h"

#include "base/files.h"
#include "base/paths.h"
#include "base/text.h"
#include "program/data_folders.h"
#include "program/errors.h"
#include "program/program.h"

#include <string>

namespace modFile {

namespace {

void ClearLabelMarks(Program& program) {
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

SaveResult SavePropertyFile(Program& program) {
    const bool done = Guarded(program, "SavePropertyFile", [&] {
        std::string bytes;
        for (const std::string& line : program.format.PropertyLines) {
            bytes += line;
            bytes += text::kCrLf;
        }
        const std::string path = paths::Join(PropertyFolder(program), PropertyName(program));
        files::WriteWhole(path, bytes);
        ClearLabelMarks(program);
    });
    return done ? SaveResult::Saved : SaveResult::NotSaved;
}

void ReadFileProperties(Program& program) {
    Guarded(program, "ReadFileProperties", [&] {
        program.format.PropertyLines.clear();
        const std::string folder = PropertyFolder(program);
        if (!FileIsThere(folder, PropertyName(program))) {
            return;
        }
        program.format.PropertyLines =
            text::SplitLines(files::ReadAll(paths::Join(folder, PropertyName(program))));
        if (!program.format.PropertyLines.empty() && program.hooks.ParsePropertyFile) {
            program.hooks.ParsePropertyFile(program);
        }
    });
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
