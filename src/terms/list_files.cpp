#include "terms/list_files.h"

#include "base/files.h"
#include "base/paths.h"
#include "base/text.h"
#include "program/data_folders.h"
#include "program/errors.h"
#include "program/program.h"
#include "program/saved_notice.h"
#include "proposal/file_names.h"
#include "terms/term_list.h"

#include <algorithm>
#include <optional>

namespace modTerms {

namespace {

const Manner kKeepsByDefault{.Default = Answer::No};
constexpr std::string_view kDefaultList = "Default Terms.fut";
constexpr std::string_view kWeddingList = "Wedding Terms.fut";
constexpr std::string_view kExtension = ".fut";

/// The name that a list of the folder has on disk, whatever the case it was given in.
std::optional<std::string> NameOnDisk(const Program& program, std::string_view name) {
    const std::vector<std::string> names = ListFiles(program);
    const auto exact = std::find(names.begin(), names.end(), name);
    if (exact != names.end()) {
        return *exact;
    }
    const auto same = std::find_if(names.begin(), names.end(),
                                   [&](const std::string& each) { return text::EqualNoCase(each, name); });
    return same == names.end() ? std::nullopt : std::optional(*same);
}

std::string PathOf(const Program& program, std::string_view name) {
    return paths::Join(modFolders::DataFolder(program), name);
}

} // namespace

std::vector<std::string> ListFiles(const Program& program) {
    std::vector<std::string> names;
    Guarded(program, "ReadFrequentlyUsedTerms",
            [&] { names = files::List(modFolders::DataFolder(program), "*.fut"); });
    return names;
}

void OpenList(Program& program, std::string_view fileName) {
    RunState& run = program.run;
    run.FUTFileName = fileName;
    run.TermsPinned = true;
    TakeListInUse(program);
}

void OpenNextList(Program& program) {
    const std::vector<std::string> names = ListFiles(program);
    if (names.empty()) {
        return;
    }
    const auto here = std::find_if(names.begin(), names.end(), [&](const std::string& name) {
        return text::EqualNoCase(name, program.run.FUTFileName);
    });
    const bool last = here == names.end() || here + 1 == names.end();
    const std::string next = last ? names.front() : *(here + 1);
    OpenList(program, next);
    program.main.Notice = "The frequent terms list is now \"" + std::string(ListName(next)) + "\".";
}

void CreateNewFUTFile(Program& program) {
    const std::string answer = program.platform.questions.InputBox(
        "Please enter a name for the Frequent Terms File.", "Starting New Frequent Terms File", "");
    const std::string_view wanted = text::Trim(answer);
    if (wanted.empty() || modNames::IllegalFileName(program, wanted)) {
        return;
    }
    std::string name = std::string(wanted) + std::string(kExtension);
    if (const std::optional<std::string> taken = NameOnDisk(program, name)) {
        name = *taken;
        if (program.platform.questions.MsgBox(
                "File already exists. Overwrite?", Buttons::YesNo, "Duplicate Frequent Terms File Exists",
                {.Default = Answer::No, .Lost = "The terms of " + name + " will be lost."}) != Answer::Yes) {
            return;
        }
    }
    const bool made =
        Guarded(program, "CreateNewFUTFile", [&] { files::WriteWhole(PathOf(program, name), ""); });
    if (made) {
        OpenList(program, name);
        TellSaved(program, "Terms list", PathOf(program, name));
    }
}

bool DeleteList(Program& program, std::string_view fileName) {
    const std::string path = PathOf(program, fileName);
    std::optional<std::size_t> count;
    Guarded(program, "ReadFrequentlyUsedTerms",
            [&] { count = text::SplitLines(files::ReadAll(path)).size(); });
    if (!count) {
        program.platform.questions.MsgBox("This list could not be read and is left as it is.", Buttons::Ok,
                                          "");
        return false;
    }
    const std::string question =
        "Delete the list " + std::string(ListName(fileName)) + " with " + std::to_string(*count) + " terms?";
    if (program.platform.questions.MsgBox(question, Buttons::YesNo, "", kKeepsByDefault) != Answer::Yes) {
        return false;
    }
    if (!Guarded(program, "mnuFileDelete", [&] { files::Delete(path); })) {
        return false;
    }
    const std::vector<std::string> left = ListFiles(program);
    if (left.empty()) {
        Guarded(program, "CreateNewFUTFile", [&] { files::WriteWhole(PathOf(program, kDefaultList), ""); });
    }
    OpenList(program, left.empty() ? std::string(kDefaultList) : left.front());
    return true;
}

void LayDownLists(const Program& program) {
    Guarded(program, "ReadFrequentlyUsedTerms", [&] {
        const std::string folder = modFolders::DataFolder(program);
        if (!files::IsFolder(folder)) {
            return;
        }
        for (const std::string_view name : {kDefaultList, kWeddingList}) {
            const std::string path = paths::Join(folder, name);
            if (!files::Exists(path)) {
                files::WriteWhole(path, "");
            }
        }
    });
}

} // namespace modTerms
