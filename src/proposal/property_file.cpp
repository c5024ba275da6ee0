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

std::string BytesOfLines(const std::vector<std::string>& lines) {
    std::string bytes;
    for (const std::string& line : lines) {
        bytes += line;
        bytes += text::kCrLf;
    }
    return bytes;
}

SaveResult SavePropertyFile(Program& program) {
    DocumentState& document = program.document;
    bool written = false;
    const bool done = Guarded(program, "SavePropertyFile", [&] {
        const std::string path = paths::Join(PropertyFolder(program), PropertyName(program));
        if (document.PropertiesIgnored && files::ExistsExactly(path)) {
            program.main.Notice =
                PropertyName(program) + " was left as it is: the proposal was opened without it.";
            written = true;
            return;
        }
        written = Rewrite(program, path, BytesOfLines(program.format.PropertyLines), document.SavedProperties,
                          "property file") == Rewriting::Done;
        if (written) {
            ClearLabelMarks(program);
        }
    });
    return done && written ? SaveResult::Saved : SaveResult::NotSaved;
}

void TakeProperties(Program& program, const std::string& path) {
    program.format.PropertyLines.clear();
    if (!files::Exists(path)) {
        return;
    }
    program.format.PropertyLines = text::SplitLines(files::ReadAll(path));
    if (!program.format.PropertyLines.empty() && program.hooks.ParsePropertyFile) {
        program.hooks.ParsePropertyFile(program);
    }
}

void ReadFileProperties(Program& program) {
    Guarded(program, "ReadFileProperties", [&] {
        const std::string path = paths::Join(PropertyFolder(program), PropertyName(program));
        program.document.SavedProperties = files::LookAt(path);
        TakeProperties(program, path);
    });
}

bool PropertiesChanged(const Program& program) {
    for (std::size_t page = 0; page < kLinePageCount; ++page) {
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
