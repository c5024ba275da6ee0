#include "proposal/run_marker.h"

#include "base/files.h"
#include "base/paths.h"
#include "base/text.h"
#include "program/errors.h"
#include "program/program.h"
#include "proposal/file_names.h"

#include <exception>
#include <optional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace modRecovery {

namespace {

std::string MarkerOf(const Program& program) {
    return paths::Join(program.folders.InstallFolder, "Running.txt");
}

/// One line for what was seen of a file; one that holds no bytes to compare stands as a hyphen.
std::string LineOf(const files::Seen& seen) {
    return seen.Was == files::Seen::What::Bytes ? std::to_string(seen.Length) + " " + std::to_string(seen.Sum)
                                                : "-";
}

files::Seen SeenOf(const std::vector<std::string>& lines, std::size_t at) {
    if (at < lines.size()) {
        std::istringstream line(lines[at]);
        files::Seen seen{files::Seen::What::Bytes, 0, 0};
        if (line >> seen.Length >> seen.Sum) {
            return seen;
        }
    }
    return {};
}

std::optional<UnsavedWork> Parse(std::string_view bytes) {
    const std::vector<std::string> lines = text::SplitLines(bytes);
    constexpr std::size_t kLines = 3;
    if (lines.size() < kLines || lines[2].size() <= 4) {
        return std::nullopt;
    }
    return UnsavedWork{lines[0], lines[1], lines[2], SeenOf(lines, kLines), SeenOf(lines, kLines + 1)};
}

void WriteMarker(const Program& program) {
    if (!program.recovery.Marked) {
        return;
    }
    std::string bytes;
    if (const auto& told = program.recovery.Told) {
        for (const std::string& line :
             {told->Folder, told->FileName, told->Backup, LineOf(told->Saving), LineOf(told->Known)}) {
            bytes += line;
            bytes += text::kCrLf;
        }
    }
    files::WriteWhole(MarkerOf(program), bytes);
}

void Tell(Program& program, std::optional<UnsavedWork> work) {
    if (program.recovery.Told == work) {
        return;
    }
    program.recovery.Told = std::move(work);
    WriteMarker(program);
}

} // namespace

void SetMarker(Program& program) {
    try {
        const std::string path = MarkerOf(program);
        if (files::ExistsExactly(path)) {
            program.recovery.Found = Parse(files::ReadAll(path));
        }
        // What was found is told on until the person has answered: this run may be killed as well.
        program.recovery.Told = program.recovery.Found;
        program.recovery.Marked = true;
        WriteMarker(program);
    } catch (const std::exception& error) {
        program.recovery.Marked = false;
        LogError(program, "Main", error);
    }
}

void TakeMarkerAway(Program& program) {
    if (!program.recovery.Marked) {
        return;
    }
    try {
        if (program.recovery.Found) { // nobody could be asked in this run
            Tell(program, program.recovery.Found);
            program.recovery.Marked = false;
            return;
        }
        program.recovery.Marked = false;
        program.recovery.Told.reset();
        files::Delete(MarkerOf(program));
    } catch (const std::exception& error) {
        LogError(program, "Main", error);
    }
}

void TellOfBackup(Program& program, std::string_view backupName) {
    const DocumentState& document = program.document;
    Tell(program, UnsavedWork{document.FilePath,
                              document.FileName,
                              std::string(backupName),
                              {},
                              document.FileExists ? document.SavedFile : files::Seen{}});
}

void TellOfSave(Program& program, std::string_view bytes) {
    if (std::optional<UnsavedWork> work = program.recovery.Told) {
        work->Saving = files::SeenIn(bytes);
        if (!modNames::CanBeAFile(work->FileName)) { // it has a name since the backup
            work->Folder = program.document.FilePath;
            work->FileName = program.document.FileName;
        }
        Tell(program, std::move(work));
    }
}

void NothingUnsaved(Program& program) {
    try {
        Tell(program, program.recovery.Found); // nothing of this run
    } catch (const std::exception& error) {
        LogError(program, "Main", error); // a backup that equals its proposal is not mentioned anyway
    }
}

void Restate(Program& program, const UnsavedWork& work) {
    Tell(program, work);
}

} // namespace modRecovery
