#include "base/files.h"
#include "pages/fields.h"
#include "program/windows.h"
#include "proposal/backup.h"
#include "proposal/frm_file.h"
#include "proposal/lifecycle.h"
#include "proposal/property_file.h"
#include "proposal/proposal_save.h"
#include "proposal/side_files.h"
#include "settings/network_share.h"
#include "settings/printer_offsets.h"
#include "settings/settings.h"
#include "settings/tax_rate.h"
#include "shell/option_commands.h"
#include "support/failing_disk.h"
#include "support/person.h"
#include "support/running_program.h"
#include "support/typist.h"
#include "terms/term_list.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;
using modFile::SaveResult;
using Call = FailingDisk::Call;

struct Kept : RunningProgram {
    void Fill(int index, std::string_view text) {
        Typist typist(program);
        typist.Click(PageId::frmP1, index);
        typist.Type(text);
    }
    void SaveAnn() {
        Fill(2, "Ann");
        surroundings.questions.Expect("File was saved as Ann.hef");
        ASSERT_EQ(modFile::SaveEventFile(program), SaveResult::Saved);
    }
    enum class From { Proposals, Backups };
    enum class Layout { Read, Ignored };
    void Open(std::string_view name, From from = From::Proposals, Layout layout = Layout::Read) {
        modProposal::mnuFileOpenEvent_Click(program);
        auto& window = dynamic_cast<frmFile&>(*modWindows::Find(program, "frmFile"));
        if (from == From::Backups) {
            const auto backups = std::find(window.Dir1.Items.begin(), window.Dir1.Items.end(), "Backup");
            window.Dir1_Change(program, static_cast<int>(backups - window.Dir1.Items.begin()));
        }
        if (layout == Layout::Ignored) {
            window.chkProp_Click(program);
        }
        const auto found = std::find(window.FileList1.Items.begin(), window.FileList1.Items.end(), name);
        ASSERT_NE(found, window.FileList1.Items.end());
        window.FileList1_Click(program, static_cast<int>(found - window.FileList1.Items.begin()));
        window.cmdOpenOK_Click(program);
        modWindows::Sweep(program);
    }
    [[nodiscard]] const Manner& LastManner() const { return surroundings.questions.Manners.back(); }
};

TEST(KeptWork, AProposalThatAnotherProgramChangedIsAskedAboutAndKeptByNo) {
    Kept run;
    run.SaveAnn();
    run.Fill(3, "12 Elm Street");
    run.folder.Write("Proposals/Ann.hef", std::string(20630, 'x'));
    const std::string question =
        "This proposal was changed by another program since you opened it. Overwrite it?";
    run.surroundings.questions.ExpectBox({question, Buttons::YesNo, ""}, Answer::No);
    EXPECT_EQ(modFile::SaveEventFile(run.program), SaveResult::NotSaved);
    EXPECT_EQ(run.LastManner().Default, Answer::No);
    EXPECT_EQ(run.folder.Read("Proposals/Ann.hef"), std::string(20630, 'x'));
    EXPECT_TRUE(modProposal::SomethingChanged(run.program));
    run.surroundings.questions.ExpectBox({question, Buttons::YesNo, ""}, Answer::Yes);
    run.surroundings.questions.Expect("File was saved as Ann.hef");
    EXPECT_EQ(modFile::SaveEventFile(run.program), SaveResult::Saved);
    EXPECT_EQ(run.folder.Read("Proposals/Ann.hef").substr(50, 3), "Ann");
    // What the program wrote itself is nobody else's change.
    run.surroundings.questions.Expect("File was saved as Ann.hef");
    EXPECT_EQ(modFile::SaveEventFile(run.program), SaveResult::Saved);
}

TEST(KeptWork, AProposalIsAskedAboutSinceItWasOpened) {
    Kept run;
    run.folder.Write("Proposals/Jane Roe.hef", ReadTestData("jane_roe/Jane Roe.hef"));
    run.Open("Jane Roe.hef");
    run.surroundings.questions.Expect("File was saved as Jane Roe.hef");
    EXPECT_EQ(modFile::SaveEventFile(run.program), SaveResult::Saved);
    std::string other = run.folder.Read("Proposals/Jane Roe.hef");
    other.back() = '!'; // the very last byte counts
    run.folder.Write("Proposals/Jane Roe.hef", other);
    run.surroundings.questions.Expect("This proposal was changed by another program", Answer::No);
    EXPECT_EQ(modFile::SaveEventFile(run.program), SaveResult::NotSaved);
}

TEST(KeptWork, ANewProposalThatFindsAFileOfItsNameOnlyNowAsksTheDuplicateQuestion) {
    Kept run;
    run.Fill(2, "Ann");
    run.folder.Write("Proposals/Ann.hef", "somebody's");
    run.surroundings.questions.Expect("A file with this name (Ann.hef)", Answer::No);
    run.surroundings.questions.Expect("File not saved.");
    EXPECT_EQ(modFile::SaveEventFile(run.program), SaveResult::NotSaved);
    EXPECT_EQ(run.surroundings.questions.Manners.front().Default, Answer::No);
    EXPECT_EQ(run.folder.Read("Proposals/Ann.hef"), "somebody's");
}

TEST(KeptWork, TheYesOfTheDuplicateQuestionDeletesNothingWhenTheSaveThenFails) {
    Kept run;
    run.Fill(2, "Ann");
    run.folder.Write("Proposals/Ann.hef", "somebody's");
    run.surroundings.questions.Expect("A file with this name (Ann.hef)", Answer::Yes);
    run.surroundings.questions.Expect("An error occurred in SaveEventFile.");
    {
        const FailingDisk disk{{Call::Write, 1, ENOSPC, FailingDisk::kForever}};
        EXPECT_EQ(modFile::SaveEventFile(run.program), SaveResult::NotSaved);
    }
    EXPECT_EQ(run.folder.Read("Proposals/Ann.hef"), "somebody's");
    EXPECT_FALSE(run.program.document.FileExists);
}

TEST(KeptWork, AfterTheSharePathChangesTheProposalHasNoFile) {
    Kept run;
    run.SaveAnn();
    run.folder.Write("Share/Proposals/Ann.hef", "the other office's Ann");
    run.surroundings.questions.ExpectInput("Proposal Directory Setup", run.folder / "Share/");
    modShare::RequestNetworkSharePath(run.program);
    const DocumentState& document = run.program.document;
    EXPECT_FALSE(document.FileExists);
    EXPECT_FALSE(run.Main()[CommandId::mnuFileDelete].Enabled);
    EXPECT_EQ(run.Main().lblDir.Caption, "Current Folder = " + (run.folder / "Share/Proposals/"));
    run.surroundings.questions.Expect("A file with this name (Ann.hef)", Answer::No);
    run.surroundings.questions.Expect("File not saved.");
    EXPECT_EQ(modFile::SaveEventFile(run.program), SaveResult::NotSaved);
    run.surroundings.questions.Expect("No such file exists.");
    modProposal::mnuFileDelete_Click(run.program);
    EXPECT_EQ(run.folder.Read("Share/Proposals/Ann.hef"), "the other office's Ann");
    EXPECT_TRUE(run.folder.Has("Proposals/Ann.hef"));
}

TEST(KeptWork, ASharePathThatCannotBeStoredChangesNothing) {
    Kept run;
    run.SaveAnn();
    run.folder.MakeFolder("Share/Proposals");
    const std::string settings = run.folder.Read("UserPreferences.txt");
    const std::string company = run.program.settings.CompanyName;
    run.surroundings.questions.ExpectInput("Proposal Directory Setup", run.folder / "Share/");
    run.surroundings.questions.Expect("An error occurred in RequestNetworkSharePath.");
    {
        const FailingDisk disk{{Call::Flush, 1, EIO, FailingDisk::kForever}};
        modShare::RequestNetworkSharePath(run.program);
    }
    EXPECT_EQ(run.folder.Read("UserPreferences.txt"), settings);
    EXPECT_EQ(run.program.settings.CompanyName, company);
    EXPECT_TRUE(run.program.document.FileExists);
    EXPECT_EQ(run.program.document.FilePath, run.folder / "Proposals/");
}

TEST(KeptWork, BlanksAroundTheClientsNameAreNoPartOfTheFiles) {
    Kept run;
    run.Fill(2, "  Ann ");
    run.surroundings.questions.Expect("File was saved as Ann.hef");
    EXPECT_EQ(modFile::SaveEventFile(run.program), SaveResult::Saved);
    EXPECT_TRUE(run.folder.Has("Proposals/Ann.hef"));
}

TEST(KeptWork, AnExactNameWinsAndTheOtherIsNotTouched) {
    Kept run;
    run.folder.Write("Proposals/ANN.hef", "another");
    run.SaveAnn();
    EXPECT_EQ(run.folder.Read("Proposals/ANN.hef"), "another");
    run.surroundings.questions.Expect("Are you sure you want to delete this file?", Answer::Yes);
    modProposal::mnuFileDelete_Click(run.program);
    EXPECT_EQ(run.LastManner().Default, Answer::No);
    EXPECT_EQ(run.LastManner().Lost, "Ann.hef will be deleted.");
    EXPECT_FALSE(run.folder.Has("Proposals/Ann.hef"));
    EXPECT_EQ(run.folder.Read("Proposals/ANN.hef"), "another");
}

TEST(KeptWork, DeletingNamesEveryFileThatGoes) {
    Kept run;
    run.SaveAnn();
    run.folder.Write("Proposals/Ann.dep", "deposits");
    run.folder.Write("Proposals/Ann.hxt", "notes");
    run.surroundings.questions.Expect("Are you sure you want to delete this file?", Answer::No);
    modProposal::mnuFileDelete_Click(run.program);
    EXPECT_EQ(run.LastManner().Lost, "Ann.hef, Ann.hxt and Ann.dep will be deleted.");
}

TEST(KeptWork, EmptyingTheBackupsKeepsTheOneOfUnsavedChanges) {
    Kept run;
    run.SaveAnn();
    run.Fill(3, "12 Elm Street");
    modFile::BackupThisFile(run.program);
    run.folder.Write("Proposals/Backup/Bob.hef", "bob");
    run.folder.Write("Proposals/Backup/Bob.hpf", "bob");
    run.surroundings.questions.Expect("Are you sure you want to delete all the Backup files?", Answer::Yes);
    run.surroundings.questions.Expect("The backup of the proposal on show was kept: it has unsaved changes.");
    modOptions::mnuOptEmptyBackup_Click(run.program);
    EXPECT_TRUE(run.folder.Has("Proposals/Backup/Ann.hef"));
    EXPECT_FALSE(run.folder.Has("Proposals/Backup/Bob.hef"));
    EXPECT_FALSE(run.folder.Has("Proposals/Backup/Bob.hpf"));
    run.surroundings.questions.Expect("File was saved as Ann.hef");
    EXPECT_EQ(modFile::SaveEventFile(run.program), SaveResult::Saved);
    run.surroundings.questions.Expect("Are you sure you want to delete all the Backup files?", Answer::Yes);
    run.surroundings.questions.ExpectBox({"All files have been deleted from Backup", Buttons::Ok, ""},
                                         Answer::Ok);
    modOptions::mnuOptEmptyBackup_Click(run.program);
    EXPECT_FALSE(run.folder.Has("Proposals/Backup/Ann.hef"));
}

TEST(KeptWork, AProposalFromTheBackupsIsSavedAmongTheProposals) {
    Kept run;
    run.SaveAnn();
    modFile::BackupThisFile(run.program);
    const std::string backup = run.folder.Read("Proposals/Backup/Ann.hef");
    run.Open("Ann.hef", Kept::From::Backups);
    ASSERT_TRUE(run.program.document.FromBackup);
    run.Fill(3, "12 Elm Street");
    run.surroundings.questions.Expect("A file with this name (Ann.hef)", Answer::No);
    run.surroundings.questions.Expect("File not saved.");
    EXPECT_EQ(modFile::SaveEventFile(run.program), SaveResult::NotSaved);
    EXPECT_TRUE(run.program.document.FromBackup);
    EXPECT_EQ(run.program.document.FilePath, run.folder / "Proposals/Backup/");
    run.surroundings.questions.Expect("A file with this name (Ann.hef)", Answer::Yes);
    run.surroundings.questions.Expect("File was saved as Ann.hef");
    EXPECT_EQ(modFile::SaveEventFile(run.program), SaveResult::Saved);
    EXPECT_EQ(run.folder.Read("Proposals/Backup/Ann.hef"), backup);
    EXPECT_EQ(run.folder.Read("Proposals/Ann.hef").substr(110, 13), "12 Elm Street");
    EXPECT_EQ(run.program.document.FilePath, run.folder / "Proposals/");
    EXPECT_FALSE(run.program.document.FromBackup);
    EXPECT_FALSE(run.Main()[CommandId::mnuFileRestoreFromBackup].Enabled);
}

TEST(KeptWork, SaveAsNeverWritesAmongTheBackups) {
    Kept run;
    run.SaveAnn();
    modFile::BackupThisFile(run.program);
    run.Open("Ann.hef", Kept::From::Backups);
    run.surroundings.questions.ExpectInput("Saving File As...", "Ann Roe");
    run.surroundings.questions.Expect("File was saved as Ann Roe.hef");
    modProposal::mnuFileSaveAs_Click(run.program);
    EXPECT_TRUE(run.folder.Has("Proposals/Ann Roe.hef"));
    EXPECT_FALSE(run.folder.Has("Proposals/Backup/Ann Roe.hef"));
    EXPECT_EQ(run.program.document.FilePath, run.folder / "Proposals/");
}

TEST(KeptWork, APropertyFileThatWasNotWantedStaysAsItIs) {
    Kept run;
    run.SaveAnn();
    run.folder.Write("Proposals/Ann.hpf", "frmP1.txt(10).FontBold=True\r\n");
    run.Open("Ann.hef", Kept::From::Proposals, Kept::Layout::Ignored);
    run.program.format.PropTextChanges[PageId::frmP1][10].Dirty = true;
    run.surroundings.questions.Expect("File was saved as Ann.hef");
    EXPECT_EQ(modFile::SaveEventFile(run.program), SaveResult::Saved);
    EXPECT_EQ(run.folder.Read("Proposals/Ann.hpf"), "frmP1.txt(10).FontBold=True\r\n");
    EXPECT_EQ(run.program.main.Notice,
              "Proposal saved: " + run.folder / "Proposals/Ann.hef" +
                  ". Ann.hpf was left as it is: the proposal was opened without it.");
}

TEST(KeptWork, APropertyFileThatCouldNotBeReadIsKept) {
    Kept run;
    run.SaveAnn();
    run.folder.Write("Proposals/Ann.hpf", "frmP1.txt(10).FontBold=True\r\n");
    {
        const FailingDisk disk{{Call::Read, 1, EIO, FailingDisk::kForever}};
        run.surroundings.questions.Expect("An error occurred in ReadFileProperties.");
        modFile::ReadFileProperties(run.program);
    }
    run.program.document.SavedStateStale = true;
    run.surroundings.questions.Expect("File was saved as Ann.hef");
    EXPECT_EQ(modFile::SaveEventFile(run.program), SaveResult::Saved);
    EXPECT_EQ(run.folder.Read("Proposals/Ann.hpf.unread"), "frmP1.txt(10).FontBold=True\r\n");
}

} // namespace
