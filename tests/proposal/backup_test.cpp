#include "proposal/backup.h"

#include "base/colors.h"
#include "pages/fields.h"
#include "program/keys.h"
#include "proposal/lifecycle.h"
#include "proposal/proposal_open.h"
#include "proposal/proposal_save.h"
#include "proposal/reset.h"
#include "support/failing_disk.h"
#include "support/interruption.h"
#include "support/person.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>

#include <sys/stat.h>

namespace {

namespace fs = std::filesystem;

/// Twenty keys: the automatic backup comes with the last of them.
constexpr const char* kTwentyKeys = "twelve sandwiches no";

struct Working : RunningProgram {
    Working() : typist(program) {}
    void Fill(PageId page, int index, std::string_view text) {
        typist.Click(page, index);
        typist.Type(text);
    }
    void SaveAnn() {
        Fill(PageId::frmP1, 2, "Ann");
        Fill(PageId::frmP1, 3, "12 Elm Street");
        surroundings.questions.Expect("File was saved as Ann.hef");
        ASSERT_EQ(modFile::SaveEventFile(program), modFile::SaveResult::Saved);
    }
    /// Every file below the program's folder, by name.
    [[nodiscard]] std::map<std::string, std::string> Files() const {
        std::map<std::string, std::string> files;
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder.Path())) {
            if (entry.is_regular_file()) {
                const std::string name = fs::relative(entry.path(), folder.Path()).string();
                files[name] = folder.Read(name);
            }
        }
        return files;
    }
    [[nodiscard]] std::string Log() const {
        return folder.Has("Error.log") ? folder.Read("Error.log") : std::string();
    }
    [[nodiscard]] static std::size_t Count(const std::string& text, std::string_view part) {
        std::size_t count = 0;
        for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
            ++count;
        }
        return count;
    }
    Typist typist;
};

TEST(Backup, InTheMiddleOfTypingAsksNothingAndLeavesAnotherClientsProposalAlone) {
    Working run;
    run.folder.Write("Proposals/Ann.hef", "another Ann's");
    run.Fill(PageId::frmP1, 2, "Ann");
    run.Fill(PageId::frmP1, 10, kTwentyKeys);
    EXPECT_TRUE(run.surroundings.questions.Shown.empty());
    EXPECT_EQ(run.folder.Read("Proposals/Ann.hef"), "another Ann's");
    const std::string backup = run.folder.Read("Proposals/Backup/Ann (new).hef");
    ASSERT_EQ(backup.size(), 20630U);
    EXPECT_EQ(backup.substr(530, 16), "twelve sandwiche")
        << "it comes with a key, before the key takes effect";
}

TEST(Backup, OfANewProposalReplacesNoneOfAnEarlierOne) {
    Working run;
    run.folder.Write("Proposals/Ann.hef", "another Ann's");
    run.folder.Write("Proposals/Backup/Ann.hef", "what that Ann's proposal has not");
    run.folder.Write("Proposals/Backup/Bob.hef", "left unsaved");
    run.Fill(PageId::frmP1, 2, "Ann");
    run.Fill(PageId::frmP1, 10, kTwentyKeys);
    run.typist.Type(kTwentyKeys);
    EXPECT_EQ(run.folder.Read("Proposals/Backup/Ann.hef"), "what that Ann's proposal has not");
    EXPECT_FALSE(run.folder.Has("Proposals/Backup/Ann (new) (2).hef")) << "its own is replaced";
    modFields::SetText(run.program, {PageId::frmP1, FieldKind::txt, 2}, "Bob");
    run.typist.Type(kTwentyKeys);
    EXPECT_EQ(run.folder.Read("Proposals/Backup/Bob.hef"), "left unsaved");
    EXPECT_EQ(run.folder.Read("Proposals/Backup/Bob (2).hef").size(), 20630U);
    EXPECT_FALSE(run.folder.Has("Proposals/Backup/Ann (new).hef")) << "the client has another name since";
    run.surroundings.questions.Expect("File was saved as Bob.hef");
    ASSERT_EQ(modFile::SaveEventFile(run.program), modFile::SaveResult::Saved);
    EXPECT_FALSE(run.folder.Has("Proposals/Backup/Bob (2).hef"));
    EXPECT_EQ(run.folder.Read("Proposals/Backup/Bob.hef"), "left unsaved");
}

TEST(Backup, UnderItsOwnNameStaysWhenTheProposalIsSaved) {
    Working run;
    run.Fill(PageId::frmP1, 2, "Ann");
    run.Fill(PageId::frmP1, 10, kTwentyKeys);
    run.surroundings.questions.Expect("File was saved as Ann.hef");
    ASSERT_EQ(modFile::SaveEventFile(run.program), modFile::SaveResult::Saved);
    EXPECT_TRUE(run.folder.Has("Proposals/Backup/Ann.hef"));
}

TEST(Backup, MakesItsFolderAnewWhenThatHasGone) {
    Working run;
    run.SaveAnn();
    fs::remove_all(run.folder / "Proposals/Backup");
    run.Fill(PageId::frmP1, 10, kTwentyKeys);
    EXPECT_EQ(run.folder.Read("Proposals/Backup/Ann.hef").size(), 20630U);
}

TEST(Backup, OfAProposalOpenedFromTheBackupsLeavesWhatWasOpenedAlone) {
    Working run;
    run.SaveAnn();
    run.Fill(PageId::frmP1, 10, kTwentyKeys);
    const std::string opened = run.folder.Read("Proposals/Backup/Ann.hef");
    static_cast<void>(modReset::StartNewFile(run.program));
    run.program.document.FilePath = run.folder / "Proposals/Backup/";
    ASSERT_EQ(modFile::OpenEventFile(run.program, "Ann.hef"), modFile::OpenResult::Opened);
    run.program.document.FromBackup = true;
    run.Fill(PageId::frmP1, 11, kTwentyKeys);
    EXPECT_EQ(run.folder.Read("Proposals/Backup/Ann.hef"), opened);
    EXPECT_NE(run.folder.Read("Proposals/Backup/Ann (2).hef"), opened);
}

TEST(Backup, ThatCannotBeWrittenLeavesNothingToOffer) {
    Working run;
    run.Fill(PageId::frmP1, 2, "Ann");
    run.Fill(PageId::frmP1, 10, kTwentyKeys);
    run.surroundings.questions.Expect("File was saved as Ann.hef");
    ASSERT_EQ(modFile::SaveEventFile(run.program), modFile::SaveResult::Saved);
    ASSERT_EQ(run.folder.Read("Running.txt"), "");
    const FailingDisk disk{{FailingDisk::Call::Flush, 1, ENOSPC, 2}};
    run.Fill(PageId::frmP1, 11, kTwentyKeys);
    EXPECT_GT(disk.Failed(), 0);
    EXPECT_EQ(run.folder.Read("Running.txt"), "") << "the copy that stands is older than the proposal";
}

TEST(Backup, OfAnIllegalNameMovesNoFocusAndIsLoggedOnce) {
    Working run;
    run.Fill(PageId::frmP1, 2, "Tom / Lee");
    run.Fill(PageId::frmP1, 3, "12 Elm Street, behind the mill");
    run.typist.Type(", second floor, left hand side");
    EXPECT_EQ(run.program.main.Focus, (FieldRef{PageId::frmP1, FieldKind::txt, 3}));
    EXPECT_EQ(run.TextOf(PageId::frmP1, 2), "Tom / Lee");
    EXPECT_EQ(run.TextOf(PageId::frmP1, 3), "12 Elm Street, behind the mill, second floor, left hand side");
    EXPECT_TRUE(run.surroundings.questions.Shown.empty());
    EXPECT_EQ(Working::Count(run.Log(), "An error occurred in BackupThisFile."), 1U);
    EXPECT_FALSE(run.folder.Has("Proposals/Backup/Tom "));
    EXPECT_EQ(
        run.program.document.BackupTrouble,
        "The client's name cannot be a file's name: Tom / Lee. Its backup is called (no client's name).hef");
    EXPECT_EQ(run.folder.Read("Proposals/Backup/(no client's name).hef").size(), 20630U);
}

TEST(Backup, OfAClientsNameTooLongForAFileIsKeptWithoutIt) {
    Working run;
    run.Fill(PageId::frmP1, 2, std::string(300, 'x'));
    run.Fill(PageId::frmP1, 10, kTwentyKeys);
    EXPECT_EQ(run.folder.Read("Proposals/Backup/(no client's name).hef").size(), 20630U);
    EXPECT_TRUE(run.surroundings.questions.Shown.empty());
}

TEST(Backup, WithoutANameIsKeptLoggedOnceAndToldInTheStripOnce) {
    Working run;
    run.Fill(PageId::frmP1, 10, kTwentyKeys);
    EXPECT_EQ(run.program.main.Notice,
              "The proposal has no client's name yet. Its backup is called (no client's name).hef");
    run.program.main.Notice.clear();
    run.typist.Type(kTwentyKeys);
    EXPECT_EQ(run.program.main.Notice, "");
    EXPECT_EQ(Working::Count(run.Log(), "An error occurred in BackupThisFile."), 1U);
    EXPECT_TRUE(run.surroundings.questions.Shown.empty());
    // Forty keys, the last of which has not taken effect yet.
    EXPECT_EQ(run.folder.Read("Proposals/Backup/(no client's name).hef").substr(530, 39),
              "twelve sandwiches notwelve sandwiches n");
    EXPECT_EQ(run.program.document.FileName, "");
    EXPECT_EQ(run.Main().Caption, "Quillbrook");
}

TEST(Backup, WithoutANameIsToldAgainWhenTheNameHasGoneAgain) {
    Working run;
    run.Fill(PageId::frmP1, 10, kTwentyKeys);
    run.Fill(PageId::frmP1, 2, "Ann");
    modFile::BackupThisFile(run.program);
    ASSERT_TRUE(run.folder.Has("Proposals/Backup/Ann.hef"));
    EXPECT_EQ(run.program.document.BackupTrouble, "") << "all is well";
    modFields::SetText(run.program, {PageId::frmP1, FieldKind::txt, 2}, "");
    run.program.main.Notice.clear();
    modFile::BackupThisFile(run.program);
    EXPECT_EQ(run.program.main.Notice,
              "The proposal has no client's name yet. Its backup is called (no client's name).hef");
}

TEST(Backup, OfANewProposalThatNobodyHasTypedInIsNotKept) {
    Working run;
    modFile::BackupThisFile(run.program);
    EXPECT_TRUE(fs::is_empty(run.folder / "Proposals/Backup"));
    EXPECT_EQ(run.program.main.Notice, "");
    EXPECT_EQ(run.Log(), "");
}

TEST(Backup, WithoutANameReplacesNoEarlierOne) {
    Working run;
    run.folder.Write("Proposals/Backup/(no client's name).hef", "of an earlier run");
    run.Fill(PageId::frmP1, 10, kTwentyKeys);
    EXPECT_EQ(run.folder.Read("Proposals/Backup/(no client's name).hef"), "of an earlier run");
    EXPECT_EQ(run.folder.Read("Proposals/Backup/(no client's name) (2).hef").size(), 20630U);
}

TEST(Backup, UnderTheClientsNameTakesTheOneWithoutANameAway) {
    Working run;
    run.Fill(PageId::frmP1, 10, kTwentyKeys);
    ASSERT_TRUE(run.folder.Has("Proposals/Backup/(no client's name).hef"));
    run.Fill(PageId::frmP1, 2, "Ann");
    run.Fill(PageId::frmP1, 11, kTwentyKeys);
    EXPECT_TRUE(run.folder.Has("Proposals/Backup/Ann.hef"));
    EXPECT_FALSE(run.folder.Has("Proposals/Backup/(no client's name).hef"));
}

TEST(Backup, WithoutANameStaysWhileTheOneUnderTheNameCannotBeWritten) {
    Working run;
    run.Fill(PageId::frmP1, 10, kTwentyKeys);
    run.Fill(PageId::frmP1, 2, "Ann");
    const std::string marker = run.folder.Read("Running.txt");
    {
        const FailingDisk disk{{FailingDisk::Call::Flush, 1, ENOSPC, FailingDisk::kForever}};
        run.Fill(PageId::frmP1, 11, kTwentyKeys);
    }
    EXPECT_TRUE(run.folder.Has("Proposals/Backup/(no client's name).hef"));
    EXPECT_EQ(run.folder.Read("Running.txt"), marker) << "the next start offers what stands";
    EXPECT_FALSE(run.program.document.BackupTrouble.starts_with("The proposal has no client's name"))
        << "another trouble since";
    EXPECT_FALSE(run.folder.Has("Proposals/Backup/Ann.hef"));
}

TEST(Backup, WithoutANameGoesWhenTheProposalIsSaved) {
    Working run;
    run.Fill(PageId::frmP1, 10, kTwentyKeys);
    run.Fill(PageId::frmP1, 2, "Ann");
    run.surroundings.questions.Expect("File was saved as Ann.hef");
    ASSERT_EQ(modFile::SaveEventFile(run.program), modFile::SaveResult::Saved);
    EXPECT_TRUE(fs::is_empty(run.folder / "Proposals/Backup"));
}

TEST(Backup, LeavesTheProposalAsItWas) {
    Working run;
    run.SaveAnn();
    run.Fill(PageId::frmP1, 3, "x");
    run.Fill(PageId::frmP1, 20, "100");
    run.typist.Click(PageId::frmP2, 0);
    run.typist.Press(keys::kF8);
    run.typist.Type("3");
    const DocumentState before = run.program.document;
    const TotalsRecords totals = run.program.totals;
    const auto lines = run.program.format.PropertyLines;
    const std::map<std::string, std::string> files = run.Files();
    const std::string title = run.Main().Caption;
    const auto focus = run.program.main.Focus;
    const Color button = run.Main().cmdReCalc.BackColor;
    modFile::BackupThisFile(run.program);
    const DocumentState& after = run.program.document;
    EXPECT_EQ(after.FileName, before.FileName);
    EXPECT_EQ(after.BaseName, before.BaseName);
    EXPECT_EQ(after.TextFileName, before.TextFileName);
    EXPECT_EQ(after.FilePath, before.FilePath);
    EXPECT_EQ(after.FileExists, before.FileExists);
    EXPECT_EQ(after.CurrentTextBuf, before.CurrentTextBuf);
    EXPECT_EQ(after.SavedTextBuf, before.SavedTextBuf);
    EXPECT_EQ(after.SavedFile, before.SavedFile);
    EXPECT_EQ(run.program.totals.SubTotal, totals.SubTotal);
    EXPECT_EQ(run.program.totals.AmountTable, totals.AmountTable);
    EXPECT_EQ(run.program.format.PropertyLines, lines);
    EXPECT_EQ(run.Main().Caption, title);
    EXPECT_EQ(run.program.main.Focus, focus);
    EXPECT_EQ(run.Main().cmdReCalc.BackColor, button);
    EXPECT_TRUE(modProposal::SomethingChanged(run.program));
    std::map<std::string, std::string> now = run.Files();
    EXPECT_EQ(now.erase("Proposals/Backup/Ann.hef"), 1U);
    now.erase("Running.txt");
    std::map<std::string, std::string> then = files;
    then.erase("Proposals/Backup/Ann.hef");
    then.erase("Running.txt");
    EXPECT_EQ(now, then);
}

TEST(Backup, ClosingAfterOneStillAsks) {
    Working run;
    run.Fill(PageId::frmP1, 2, "Ann");
    run.Fill(PageId::frmP1, 10, kTwentyKeys);
    ASSERT_TRUE(run.folder.Has("Proposals/Backup/Ann.hef"));
    EXPECT_FALSE(run.program.document.FileExists);
    run.surroundings.questions.Expect("The file has been changed. Do you want to save it?", Answer::Cancel);
    EXPECT_FALSE(person::MayClose(run.program));
}

TEST(Backup, TheClientsNameGoesOnMakingTheProposalsAfterOne) {
    Working run;
    run.Fill(PageId::frmP1, 2, "Ann");
    run.Fill(PageId::frmP1, 10, kTwentyKeys);
    run.Fill(PageId::frmP1, 2, " Roe");
    run.typist.Click(PageId::frmP1, 3);
    const std::string client = run.TextOf(PageId::frmP1, 2);
    EXPECT_EQ(run.program.document.FileName, client + ".hef");
    EXPECT_EQ(run.program.document.ClientCaption, "Proposal for " + client);
    EXPECT_NE(run.Main().Caption.find(client + ".hef"), std::string::npos);
}

TEST(Backup, ReplacesAReadOnlyOne) {
    Working run;
    run.SaveAnn();
    run.folder.Write("Proposals/Backup/Ann.hef", "older backup");
    ASSERT_EQ(::chmod((run.folder / "Proposals/Backup/Ann.hef").c_str(), 0444), 0);
    modFile::BackupThisFile(run.program);
    EXPECT_EQ(run.folder.Read("Proposals/Backup/Ann.hef"), run.folder.Read("Proposals/Ann.hef"));
}

TEST(Backup, ThatCannotBeWrittenLeavesTheOldOneAndIsToldOnceInTheLog) {
    Working run;
    run.SaveAnn();
    run.folder.Write("Proposals/Backup/Ann.hef", "older backup");
    {
        const FailingDisk disk{{FailingDisk::Call::Flush, 1, ENOSPC, FailingDisk::kForever}};
        modFile::BackupThisFile(run.program);
        modFile::BackupThisFile(run.program);
    }
    EXPECT_EQ(run.folder.Read("Proposals/Backup/Ann.hef"), "older backup");
    EXPECT_NE(run.program.main.Notice.find("No backup was written. Disk full"), std::string::npos);
    modFile::BackupThisFile(run.program);
    EXPECT_EQ(run.folder.Read("Proposals/Backup/Ann.hef").size(), 20630U);
    {
        const FailingDisk disk{{FailingDisk::Call::Rename, 1, EIO, FailingDisk::kForever}};
        modFile::BackupThisFile(run.program);
    }
    EXPECT_EQ(Working::Count(run.Log(), "An error occurred in BackupThisFile."), 1U);
}

TEST(Backup, OfAnotherFoldersProposalTakesThatFoldersName) {
    Working run;
    run.folder.MakeFolder("Elsewhere/2008");
    run.folder.Write("Proposals/Backup/Ann.hef", "the backup of the Ann in the proposals folder");
    run.program.document.FilePath = run.folder / "Elsewhere/2008/";
    run.SaveAnn();
    modFile::BackupThisFile(run.program);
    EXPECT_EQ(run.folder.Read("Proposals/Backup/Ann.hef"), "the backup of the Ann in the proposals folder");
    EXPECT_EQ(run.folder.Read("Proposals/Backup/Ann (2008).hef").size(), 20630U);
}

TEST(Backup, TakesThePropertiesAlongAndLeavesThemUnsaved) {
    Working run;
    run.SaveAnn();
    run.program.hooks.AssignPropChanges = [](Program& program) {
        program.format.PropertyLines = {"frmP1.lbl(3).Left=900"};
        program.format.PropTextChanges[PageId::frmP1][20].Dirty = false;
    };
    run.program.format.PropTextChanges[PageId::frmP1][20].Dirty = true;
    modFile::BackupThisFile(run.program);
    EXPECT_EQ(run.folder.Read("Proposals/Backup/Ann.hpf"), "frmP1.lbl(3).Left=900\r\n");
    EXPECT_TRUE(run.program.format.PropertyLines.empty());
    EXPECT_TRUE(modFile::PropertiesChanged(run.program));
    EXPECT_FALSE(run.folder.Has("Proposals/Ann.hpf"));
    run.program.format.PropTextChanges[PageId::frmP1][20].Dirty = false;
    modFile::BackupThisFile(run.program);
    EXPECT_FALSE(run.folder.Has("Proposals/Backup/Ann.hpf")) << "the properties of an earlier state";
}

TEST(Backup, OfBlanksForANameIsNone) {
    Working run;
    run.Fill(PageId::frmP1, 2, "   ");
    run.typist.Click(PageId::frmP1, 3);
    EXPECT_FALSE(run.program.document.HasName());
    modFile::BackupThisFile(run.program);
    EXPECT_TRUE(fs::is_empty(run.folder / "Proposals/Backup"));
    run.surroundings.questions.Expect(
        "Please enter the client's name in the appropriate area and save again.");
    EXPECT_EQ(modFile::SaveEventFile(run.program), modFile::SaveResult::NotSaved);
}

TEST(Backup, AnInterruptionWritesItAndTheRunEndsWithoutAQuestion) {
    Working run;
    run.SaveAnn();
    run.Fill(PageId::frmP1, 3, "!");
    Interrupt(run.program);
    EXPECT_TRUE(run.surroundings.events.QuitAsked);
    EXPECT_EQ(run.folder.Read("Proposals/Backup/Ann.hef").size(), 20630U);
    EXPECT_NE(run.folder.Read("Proposals/Backup/Ann.hef"), run.folder.Read("Proposals/Ann.hef"));
    EXPECT_TRUE(run.folder.Has("Running.txt"));
}

TEST(Backup, AnInterruptionWithNothingUnsavedIsAnEndLikeOthers) {
    Working run;
    run.SaveAnn();
    Interrupt(run.program);
    EXPECT_FALSE(run.folder.Has("Running.txt"));
    EXPECT_FALSE(run.folder.Has("Proposals/Backup/Ann.hef"));
}

} // namespace
