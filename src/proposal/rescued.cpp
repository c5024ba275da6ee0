#include "proposal/rescued.h"

#include "base/file_places.h"
#include "base/files.h"
#include "base/paths.h"
#include "base/text.h"
#include "program/errors.h"
#include "program/program.h"
#include "proposal/side_files.h"

#include <algorithm>
#include <cstddef>
#include <exception>
#include <string>
#include <utility>
#include <vector>

namespace modRescue {

namespace {

using Texts = std::vector<RescuedText>;

std::string ListOf(const Program& program) {
    return paths::Join(program.folders.InstallFolder, "Rescued.txt");
}

/// Two lines each: where it lies, and where it belongs.
Texts ReadList(const Program& program) {
    Texts rescued;
    const std::string path = ListOf(program);
    if (!files::ExistsExactly(path)) {
        return rescued;
    }
    const std::vector<std::string> lines = text::SplitLines(files::ReadAll(path));
    for (std::size_t at = 0; at + 1 < lines.size(); at += 2) {
        rescued.push_back({lines[at], lines[at + 1], ""});
    }
    return rescued;
}

void WriteList(const Program& program, const Texts& rescued) {
    const std::string path = ListOf(program);
    if (rescued.empty()) {
        if (files::ExistsExactly(path)) {
            files::Delete(path);
        }
        return;
    }
    std::string bytes;
    for (const RescuedText& entry : rescued) {
        bytes += text::Lines({entry.Kept, entry.Target, ""});
    }
    files::WriteWhole(path, bytes);
}

void KeepFor(Program& program, std::string_view name, std::string_view bytes, std::string_view target) {
    try {
        Texts& own = program.recovery.Rescued;
        const auto again = std::find_if(own.begin(), own.end(), [&](const RescuedText& text) {
            return text.Name == name && text.Target == target;
        });
        if (again != own.end()) {
            files::WriteWhole(again->Kept, bytes);
            return;
        }
        const std::string folder = modSideFile::MadeBackupFolder(program);
        const RescuedText rescued{paths::Join(folder, file_places::FreeName(folder, name)),
                                  std::string(target), std::string(name)};
        files::WriteWhole(rescued.Kept, bytes);
        own.push_back(rescued);
        Texts all = ReadList(program);
        all.push_back(rescued);
        WriteList(program, all);
    } catch (const std::exception& error) {
        WriteErrorLog(program, error.what() + std::string(text::kCrLf));
    }
}

std::string Told(const Texts& rescued) {
    constexpr std::size_t kMostTold = 10;
    std::string words = "The program was ended while these texts were not saved. They were kept as:";
    for (std::size_t at = 0; at < std::min(rescued.size(), kMostTold); ++at) {
        words += std::string(text::kCrLf) + rescued[at].Kept;
    }
    if (rescued.size() > kMostTold) {
        words += std::string(text::kCrLf) + "and " + std::to_string(rescued.size() - kMostTold) + " more.";
    }
    return words;
}

/// The kept text is deleted only when it stands in its place.
void PutBack(const Program& program, const RescuedText& rescued) {
    const std::string bytes = files::ReadAll(rescued.Kept);
    if (files::Exists(rescued.Target)) {
        modSideFile::MoveAside(program, rescued.Target, paths::Name(rescued.Target));
    }
    files::WriteWhole(rescued.Target, bytes);
    files::Delete(rescued.Kept);
}

void Tell(Program& program, const Texts& rescued) {
    Questions& questions = program.platform.questions;
    const bool belongs = std::any_of(rescued.begin(), rescued.end(),
                                     [](const RescuedText& text) { return !text.Target.empty(); });
    if (!belongs) {
        questions.MsgBox(Told(rescued), Buttons::Ok, "", {.How = Manner::Came::Unasked});
        return;
    }
    const std::string question =
        text::Lines({Told(rescued), "",
                     "Put the footnotes and deposits beside their proposals? What stands there now is kept "
                     "in Backup."});
    if (questions.MsgBox(question, Buttons::YesNo, "",
                         {.Default = Answer::Yes, .How = Manner::Came::Unasked}) != Answer::Yes) {
        return;
    }
    for (const RescuedText& text : rescued) {
        if (!text.Target.empty()) {
            Guarded(program, "OfferRescued", [&] { PutBack(program, text); });
        }
    }
}

} // namespace

void KeepOfProposal(Program& program, std::string_view extension, std::string_view bytes, Back back) {
    const DocumentState& document = program.document;
    if (document.BaseName.empty()) {
        KeepFor(program, "Unnamed" + std::string(extension), bytes, "");
        return;
    }
    const std::string name = document.BaseName + std::string(extension);
    // A proposal without a file reads none that lies under its name.
    const bool belongs = back == Back::Offered && document.FileExists;
    KeepFor(program, name, bytes,
            belongs ? paths::Join(modSideFile::FolderOf(program, document), name) : std::string());
}

void Keep(Program& program, std::string_view name, std::string_view bytes) {
    KeepFor(program, name, bytes, "");
}

void ForgetOwn(Program& program) {
    Texts own = std::exchange(program.recovery.Rescued, {});
    if (own.empty()) {
        return;
    }
    try {
        Texts left = ReadList(program);
        std::erase_if(left, [&](const RescuedText& text) {
            return std::any_of(own.begin(), own.end(),
                               [&](const RescuedText& mine) { return mine.Kept == text.Kept; });
        });
        WriteList(program, left);
        for (const RescuedText& text : own) {
            files::Delete(text.Kept);
        }
    } catch (const std::exception& error) {
        LogError(program, "OfferRescued", error);
    }
}

void OfferRescued(Program& program) {
    Guarded(program, "OfferRescued", [&] {
        Texts rescued = ReadList(program);
        std::erase_if(rescued, [](const RescuedText& text) { return !files::ExistsExactly(text.Kept); });
        if (!rescued.empty()) {
            Tell(program, rescued); // a run that is killed meanwhile leaves the list as it is
        }
        WriteList(program, {});
    });
}

} // namespace modRescue
