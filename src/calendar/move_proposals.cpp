#include "calendar/move_proposals.h"

#include "base/ansi.h"
#include "base/file_places.h"
#include "base/files.h"
#include "base/folder_scan.h"
#include "base/paths.h"
#include "base/text.h"
#include "program/data_folders.h"
#include "program/errors.h"
#include "program/program.h"

#include <optional>
#include <string_view>
#include <unordered_set>

namespace modCalendar {

namespace {

constexpr std::string_view kMoved = ".old";

/// The names of a folder, for names that differ in nothing but their case are one name here.
std::unordered_set<std::string> NamesIn(std::string_view folder) {
    std::unordered_set<std::string> names;
    files::ScanHeads(folder, "", 0, [&](files::FileHead&& head) {
        names.insert(text::Upper(head.Name));
        return true;
    });
    return names;
}

/// A setting may spell the folder in other letters than the system does.
std::string AsOnDisk(std::string_view folder) {
    const std::optional<std::string> native = file_places::Locate(folder);
    const std::optional<std::string> known = native ? ansi::FromUtf8(*native) : std::nullopt;
    return paths::WithSeparator(known.value_or(std::string(folder)));
}

/// Gathers what could not be moved.
class Failures {
public:
    void Add(std::string_view name, const files::FileError& error) {
        if (!first_) {
            first_ = error.Number();
        }
        constexpr std::size_t kTold = 10;
        if (++count_ <= kTold) {
            words_ += std::string(text::kCrLf) + std::string(name) + " - " + error.what();
        } else {
            ++rest_;
        }
    }
    /// One report for all of them.
    void Tell(const Program& program, std::string_view procedure) const {
        if (!first_) {
            return;
        }
        std::string all = "These files could not be moved:" + words_;
        if (rest_ > 0) {
            all += std::string(text::kCrLf) + "and " + std::to_string(rest_) + " more.";
        }
        ReportError(program, procedure, files::FileError(*first_, all));
    }

private:
    std::optional<int> first_;
    std::string words_;
    std::size_t count_ = 0;
    std::size_t rest_ = 0;
};

struct Move {
    std::string From; ///< bare names
    std::string To;
};

int MoveAll(const Program& program, std::string_view fromFolder, std::string_view toFolder,
            const std::vector<Move>& moves, std::string_view procedure, std::vector<std::string>& moved) {
    const std::string from = AsOnDisk(fromFolder);
    const std::string to = AsOnDisk(toFolder);
    std::unordered_set<std::string> taken = NamesIn(to);
    Failures failures;
    for (const Move& move : moves) {
        try {
            if (taken.contains(text::Upper(move.To))) {
                throw files::FileError(files::kAlreadyExists, "File already exists: " + to + move.To);
            }
            files::MoveNew(from + move.From, to + move.To);
            taken.insert(text::Upper(move.To));
            moved.push_back(move.From);
        } catch (const files::FileError& error) {
            failures.Add(move.From, error);
        }
    }
    failures.Tell(program, procedure);
    return static_cast<int>(moved.size());
}

/// The proposal stays on the screen with all its text, and wants to be saved again.
void LoseFile(Program& program) {
    program.document.FileExists = false;
    program.document.SavedStateStale = true;
}

} // namespace

int MoveToBackup(Program& program, const std::vector<std::string>& fileNames) {
    int count = 0;
    Guarded(program, "mnuOptDelete_Click", [&] {
        const std::string folder = modFolders::DataFolder(program);
        const std::string backup = modFolders::BackupFolder(program);
        if (!files::IsFolder(backup)) {
            files::MakeFolder(backup);
        }
        std::vector<Move> moves;
        moves.reserve(fileNames.size());
        for (const std::string& name : fileNames) {
            moves.push_back({name, name + std::string(kMoved)});
        }
        std::vector<std::string> moved;
        count = MoveAll(program, folder, backup, moves, "mnuOptDelete_Click", moved);
        const DocumentState& document = program.document;
        if (document.FileExists && paths::SameFolder(document.FilePath, folder)) {
            for (const std::string& name : moved) {
                if (name == document.FileName) {
                    LoseFile(program);
                }
            }
        }
    });
    return count;
}

std::optional<int> RestoreFromBackup(const Program& program) {
    std::optional<int> restored;
    Guarded(program, "mnuOptUndoDelete_Click", [&] {
        const std::string backup = modFolders::BackupFolder(program);
        std::vector<Move> moves;
        if (files::IsFolder(backup)) {
            files::ScanHeads(backup, ".hef.old", 0, [&](files::FileHead&& head) {
                std::string bare = head.Name.substr(0, head.Name.size() - kMoved.size());
                moves.push_back({std::move(head.Name), std::move(bare)});
                return true;
            });
        }
        if (moves.empty()) {
            program.platform.questions.MsgBox("Nothing to restore.", Buttons::Ok, "");
            return;
        }
        std::vector<std::string> moved;
        restored =
            MoveAll(program, backup, modFolders::DataFolder(program), moves, "mnuOptUndoDelete_Click", moved);
    });
    return restored;
}

} // namespace modCalendar
