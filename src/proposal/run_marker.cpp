#include "proposal/run_marker.h"

#include "base/files.h"
#include "base/paths.h"
#include "base/text.h"
#include "program/errors.h"
#include "program/program.h"

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

std::optional<UnsavedWork> Parse(std::string_view bytes) {
    const std::vector<std::string> lines = text::SplitLines(bytes);
    constexpr std::size_t kLines = 3;
    if (lines.size() < kLines || lines[1].size() <= 4 || lines[2].size() <= 4) {
        return std::nullopt;
    }
    UnsavedWork work{lines[0], lines[1], lines[2]};
    if (lines.size() > kLines) {
        std::istringstream saving(lines[kLines]);
        if (saving >> work.Saving.Length >> work.Saving.Sum) {
            work.Saving.Was = files::Seen::What::Bytes;
        }
    }
    return work;
}

void WriteMarker(Program& program) {
    if (!program.recovery.Marked) {
        return;
    }
    std::string bytes;
    if (const auto& told = program.recovery.Told) {
        for (const std::string& line : {told->Folder, told->FileName, told->Backup}) {
            bytes += line;
            bytes += text::kCrLf;
        }
        if (told->Saving.Was == files::Seen::What::Bytes) {
            bytes += std::to_string(told->Saving.Length) + " " + std::to_string(told->Saving.Sum);
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
    program.recovery.Marked = false;
    try {
        program.recovery.Told.reset();
        files::Delete(MarkerOf(program));
    } catch (const std::exception& error) {
        LogError(program, "Main", error);
    }
}

void TellOfBackup(Program& program, std::string_view backupName) {
    const DocumentState& document = program.document;
    Tell(program, UnsavedWork{document.FilePath, document.FileName, std::string(backupName)});
}

void TellOfSave(Program& program, std::string_view bytes) {
    if (std::optional<UnsavedWork> work = program.recovery.Told) {
        work->Saving = files::SeenIn(bytes);
        Tell(program, std::move(work));
    }
}

void NothingUnsaved(Program& program) {
    try {
        Tell(program, std::nullopt);
    } catch (const std::exception& error) {
        LogError(program, "Main", error); // a backup that equals its proposal is not mentioned anyway
    }
}

void Restate(Program& program, const UnsavedWork& work) {
    Tell(program, work);
}

} // namespace modRecovery
