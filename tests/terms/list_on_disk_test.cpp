#include "support/answered_by.h"
#include "support/failing_disk.h"
#include "terms/frm_add_fut.h"
#include "terms/frm_edit_fut.h"
#include "terms/list_files.h"
#include "terms/open_list.h"
#include "terms/term_list.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// The open list on a disk that fails, and beside another program that writes it too.

namespace {

using Call = FailingDisk::Call;
using modTerms::LetterCase;

constexpr std::string_view kBefore = "Arch\r\nTable";
constexpr std::string_view kLeftAsItIs = "This list could not be read and is left as it is.";

bool Told(const TermsRun& run) {
    const auto& shown = run.surroundings.questions.Shown;
    return std::any_of(shown.begin(), shown.end(),
                       [](const auto& box) { return box.Title == "Program Error"; });
}

TEST(ListOnAFullDisk, WhateverCallFailsTheOldOrTheNewLinesStandWholeAndAFailureIsTold) {
    constexpr std::array kErrors{ENOSPC, EIO, EACCES, EROFS, EDQUOT};
    const std::string after = std::string(kBefore) + "\r\nChair";
    int failures = 0;
    for (const Call call : {Call::Open, Call::Read, Call::Write, Call::SetLength, Call::GiveMode, Call::Flush,
                            Call::Close, Call::Rename}) {
        for (int nth = 1; nth <= 6; ++nth) {
            TermsRun run(kBefore);
            run.surroundings.questions.TakeAll(Answer::Yes);
            const int error =
                kErrors[static_cast<std::size_t>(nth + static_cast<int>(call)) % kErrors.size()];
            bool added = false;
            {
                const FailingDisk disk{{call, nth, error}};
                added = modTerms::AddTerm(run.program, "Chair");
                failures += disk.Failed();
            }
            const std::string now = run.OnDisk();
            EXPECT_TRUE(now == kBefore || now == after)
                << static_cast<int>(call) << " " << nth << ": " << now;
            EXPECT_TRUE(added || Told(run)) << static_cast<int>(call) << " " << nth;
            EXPECT_TRUE(!added || now == after) << static_cast<int>(call) << " " << nth;
            for (const auto& entry : std::filesystem::directory_iterator(run.folder / "Proposals")) {
                EXPECT_NE(entry.path().extension(), ".tmp") << static_cast<int>(call) << " " << nth;
            }
        }
    }
    EXPECT_GT(failures, 10);
}

TEST(ListOnAFullDisk, TheTermStaysInItsBoxAndIsAddedOnceThereIsRoom) {
    TermsRun run(kBefore);
    run.List().cmdOpt_Click(run.program, 1);
    auto& window = dynamic_cast<frmAddFUT&>(*modWindows::TopModal(run.program));
    window.txtAddFUT.Text = "Chair [3.50]";
    {
        const FailingDisk disk{{Call::Write, 1, ENOSPC, FailingDisk::kForever}};
        run.surroundings.questions.Expect("");
        window.cmdSave_Click(run.program);
    }
    EXPECT_EQ(window.txtAddFUT.Text, "Chair [3.50]");
    EXPECT_EQ(run.OnDisk(), kBefore);
    EXPECT_EQ(run.InMemory(), "Arch|Table|");
    EXPECT_TRUE(Told(run));
    window.cmdSave_Click(run.program);
    EXPECT_EQ(run.OnDisk(), "Arch\r\nTable\r\nChair [3.50]");
}

TEST(ListOnAFullDisk, AnEditStaysOpenAndTheCasesStayAsTheyAre) {
    TermsRun run(kBefore);
    run.List().lstFUT_Select(run.program, 0);
    run.List().cmdOpt_Click(run.program, 2);
    auto& window = dynamic_cast<frmEditFUT&>(*modWindows::TopModal(run.program));
    window.txtEditFUT.Text = "Arch with roses";
    const FailingDisk disk{{Call::Flush, 1, ENOSPC, FailingDisk::kForever}};
    run.surroundings.questions.Expect("");
    window.cmdSave_Click(run.program);
    EXPECT_FALSE(window.Closing);
    EXPECT_EQ(window.txtEditFUT.Text, "Arch with roses");
    run.surroundings.questions.Expect("Change all 2 terms", Answer::Yes);
    run.surroundings.questions.Expect("");
    modTerms::ChangeCase(run.program, LetterCase::Upper);
    EXPECT_EQ(run.InMemory(), "Arch|Table|");
    EXPECT_EQ(run.OnDisk(), kBefore);
}

TEST(ListOnAFullDisk, ANewListThatCouldNotBeMadeLeavesTheOldOneOpen) {
    TermsRun run(kBefore);
    const FailingDisk disk{{Call::Open, 1, ENOSPC, FailingDisk::kForever}};
    run.surroundings.questions.ExpectInput("Starting New Frequent Terms File", "Catering");
    run.surroundings.questions.Expect("");
    run.List().mnuFileNewFUT_Click(run.program);
    EXPECT_EQ(run.List().Caption, "Default Terms");
    EXPECT_EQ(run.InMemory(), "Arch|Table|");
    EXPECT_NE(modTerms::PathInUse(run.program).find("Default Terms.fut"), std::string::npos);
}

TEST(UnreadableList, IsNeverWrittenAndIsThereAgainWhenItIsOpenedAgain) {
    TermsRun run(kBefore);
    {
        const FailingDisk disk{{Call::Read, 1, EIO, FailingDisk::kForever}};
        run.surroundings.questions.Expect("");
        modTerms::OpenList(run.program, "Default Terms.fut");
    }
    EXPECT_EQ(run.program.terms.TermCount(), 0);
    EXPECT_EQ(run.program.terms.Bytes, "");
    const auto expect = [&] {
        run.surroundings.questions.ExpectBox({std::string(kLeftAsItIs), Buttons::Ok, ""}, Answer::Ok);
    };
    expect();
    EXPECT_FALSE(modTerms::AddTerm(run.program, "Chair"));
    expect();
    EXPECT_FALSE(modTerms::RemoveTerm(run.program, {"Arch"}));
    expect();
    EXPECT_FALSE(modTerms::ReplaceTerm(run.program, {"Arch"}, "Arches"));
    for (const LetterCase to : {LetterCase::Lower, LetterCase::Proper, LetterCase::Upper}) {
        expect();
        modTerms::ChangeCase(run.program, to);
    }
    EXPECT_EQ(run.OnDisk(), kBefore);
    modTerms::OpenList(run.program, "Default Terms.fut");
    EXPECT_EQ(run.InMemory(), "Arch|Table|");
    EXPECT_TRUE(modTerms::AddTerm(run.program, "Chair"));
}

TEST(UnreadableList, OfTheListOfListsIsNotDeleted) {
    TermsRun run(kBefore);
    const FailingDisk disk{{Call::Read, 1, EIO, FailingDisk::kForever}};
    run.surroundings.questions.Expect("");
    run.surroundings.questions.ExpectBox({std::string(kLeftAsItIs), Buttons::Ok, ""}, Answer::Ok);
    EXPECT_FALSE(modTerms::DeleteList(run.program, "Default Terms.fut"));
    EXPECT_TRUE(run.folder.Has("Proposals/Default Terms.fut"));
}

/// A person who agrees to every question, while a folder takes the place of the file that is asked about.
class FolderMeanwhile : public Questions {
public:
    explicit FolderMeanwhile(std::string path) : path_(std::move(path)) {}
    std::string InputBox(std::string_view, std::string_view, std::string_view) override { return {}; }
    std::vector<std::string> Shown;

protected:
    Answer Ask(std::string_view text, Buttons buttons, std::string_view, const Manner&) override {
        Shown.emplace_back(text);
        std::filesystem::remove(path_);
        std::filesystem::create_directory(path_);
        return buttons == Buttons::YesNo ? Answer::Yes : Answer::Ok;
    }

private:
    std::string path_;
};

TEST(DeletedList, ThatCannotBeDeletedIsNoneAndTheListInUseStays) {
    TermsRun run(kBefore);
    run.folder.Write("Proposals/Barn.fut", "Hay");
    FolderMeanwhile questions(run.folder / "Proposals/Barn.fut");
    Platform surroundings = AnsweredBy(questions, run.surroundings);
    Program program{surroundings};
    program.folders = run.program.folders;
    program.run.FUTFileName = "Default Terms.fut";
    EXPECT_FALSE(modTerms::DeleteList(program, "Barn.fut"));
    ASSERT_EQ(questions.Shown.size(), 2U);
    EXPECT_EQ(questions.Shown[0], "Delete the list Barn with 1 terms?");
    EXPECT_NE(questions.Shown[1].find("mnuFileDelete"), std::string::npos);
    EXPECT_EQ(program.run.FUTFileName, "Default Terms.fut");
}

TEST(ChangedList, OfWhichARemovalWouldLeaveNothingStays) {
    TermsRun run(kBefore);
    run.folder.Write("Proposals/Default Terms.fut", "Table");
    run.surroundings.questions.Expect("changed by another program", Answer::No);
    run.surroundings.questions.ExpectBox({"There are no Frequently Used Terms to save.", Buttons::Ok, ""},
                                         Answer::Ok);
    EXPECT_FALSE(modTerms::RemoveTerm(run.program, {"Table"}));
    EXPECT_EQ(run.OnDisk(), "Table");
}

TEST(ChangedList, ThatCannotBeReadAgainIsLeftAsTheOtherProgramWroteIt) {
    TermsRun run(kBefore);
    run.folder.Write("Proposals/Default Terms.fut", "Theirs");
    const FailingDisk disk{{Call::Read, 1, EIO, FailingDisk::kForever}};
    run.surroundings.questions.Expect("changed by another program", Answer::No);
    run.surroundings.questions.Expect("");
    EXPECT_FALSE(modTerms::AddTerm(run.program, "Chair"));
    EXPECT_EQ(run.OnDisk(), "Theirs");
    EXPECT_FALSE(run.program.terms.ReadWhole);
}

TEST(ChangedList, AnEditOfALineThatIsGoneMeanwhileIsAddedAtTheEnd) {
    TermsRun run(kBefore);
    run.folder.Write("Proposals/Default Terms.fut", "Arch\r\nTheirs");
    run.surroundings.questions.Expect("changed by another program", Answer::No);
    EXPECT_TRUE(modTerms::ReplaceTerm(run.program, {"Table"}, "Table, round [80]"));
    EXPECT_EQ(run.OnDisk(), "Arch\r\nTheirs\r\nTable, round [80]");
}

TEST(ChangedList, AllOfItGoesIntoTheOtherCase) {
    TermsRun run(kBefore);
    run.folder.Write("Proposals/Default Terms.fut", "Arch\r\nTheirs");
    run.surroundings.questions.Expect("Change all 2 terms", Answer::Yes);
    run.surroundings.questions.Expect("changed by another program", Answer::No);
    modTerms::ChangeCase(run.program, LetterCase::Upper);
    EXPECT_EQ(run.OnDisk(), "ARCH\r\nTHEIRS");
}

TEST(ChangedList, OfTheSameBytesIsNone) {
    TermsRun run(kBefore);
    run.folder.Write("Proposals/Default Terms.fut", kBefore);
    EXPECT_TRUE(modTerms::AddTerm(run.program, "Chair")) << "another time of change is no other list";
}

TEST(ChosenTerm, IsNoneWhenAnotherListComesIntoUse) {
    TermsRun run(kBefore);
    run.List().lstFUT_Select(run.program, 1);
    run.folder.Write("Proposals/Wedding Terms.fut", "Vows\r\nRings");
    run.program.run.FUTFileName = "Wedding Terms.fut";
    modTerms::ListInUseChanged(run.program);
    EXPECT_EQ(run.List().lstFUT.ListIndex, -1) << "a line of the other list is not about to be removed";
    EXPECT_EQ(run.List().Caption, "Wedding Terms");
}

} // namespace
