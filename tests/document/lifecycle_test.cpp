#include "core/windows.h"
#include "document/fields.h"
#include "document/frm_file.h"
#include "document/lifecycle.h"
#include "document/proposal_file.h"
#include "document/reset.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

constexpr const char* kAsk = "Some text has been changed. Do you want to save the changes?";

void TypeClient(RunningProgram& run, const char* name) {
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 2);
    typist.Type(name);
}

std::string Blank(std::string_view client) {
    std::string bytes(20630, ' ');
    bytes.replace(50, client.size(), client);
    return bytes;
}

frmFile& Chooser(RunningProgram& run) {
    modMain::mnuFileOpenEvent_Click(run.program);
    auto* chooser = dynamic_cast<frmFile*>(modWindows::Find(run.program, "frmFile"));
    EXPECT_NE(chooser, nullptr);
    return *chooser;
}

TEST(NewProposal, WithUnsavedTextAndCancelChangesNothing) {
    RunningProgram run;
    TypeClient(run, "Ann");
    run.surroundings.questions.ExpectBox({kAsk, Buttons::YesNoCancel, "File Properties have been Changed"},
                                         Answer::Cancel);
    modMain::mnuFileNew_Click(run.program);
    EXPECT_EQ(run.TextOf(PageId::frmP1, 2), "Ann");
    EXPECT_FALSE(run.program.document.Cancelled);
}

TEST(NewProposal, WithNoStartsEmpty) {
    RunningProgram run;
    TypeClient(run, "Ann");
    run.program.totals.Deposit = 5;
    run.surroundings.questions.Expect(kAsk, Answer::No);
    modMain::mnuFileNew_Click(run.program);
    EXPECT_EQ(run.TextOf(PageId::frmP1, 2), "");
    EXPECT_EQ(run.program.document.FileName, "");
    EXPECT_EQ(run.program.totals.Deposit, 0);
    EXPECT_EQ(run.program.main.Caption, "Quillbrook");
    EXPECT_EQ(run.Label(PageId::frmP1, 33).Caption, "Proposal for (Client's Name)");
    EXPECT_EQ(run.program.document.PageHeading, "Acme Events - Contract Proposal - ");
    EXPECT_EQ(run.Label(PageId::frmP2, 0).Caption, "Acme Events - Event Proposal - Page 2");
    EXPECT_EQ(run.program.main.lblHighestPage.Caption, "Available Pages = 6");
    EXPECT_EQ(run.program.main.lblTotal.Caption, "Running Sub-Total = $ 0.00");
    EXPECT_FALSE(modMain::SomethingChanged(run.program));
}

TEST(NewProposal, WithYesSavesFirst) {
    RunningProgram run;
    TypeClient(run, "Ann");
    run.surroundings.questions.Expect(kAsk, Answer::Yes);
    run.surroundings.questions.Expect("File was saved as Ann.hef");
    modMain::mnuFileNew_Click(run.program);
    EXPECT_TRUE(run.folder.Has("Proposals/Ann.hef"));
    EXPECT_EQ(run.TextOf(PageId::frmP1, 2), "");
}

TEST(NewProposal, AYesThatCouldNotSaveKeepsTheText) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 3);
    typist.Type("12 Elm Street");
    run.surroundings.questions.Expect(kAsk, Answer::Yes);
    run.surroundings.questions.Expect(
        "Please enter the client's name in the appropriate area and save again.");
    modMain::mnuFileNew_Click(run.program);
    EXPECT_EQ(run.TextOf(PageId::frmP1, 3), "12 Elm Street");
}

TEST(NewProposal, TakesTheHeadingOfTheSettings) {
    RunningProgram run(RunningProgram::Begin::NotStarted);
    run.Setting("Page Titles:", "My Heading ");
    run.Start();
    EXPECT_EQ(run.Label(PageId::frmP2, 0).Caption, "My Heading Page 2");
    modMain::mnuFileNew_Click(run.program);
    EXPECT_EQ(run.program.document.PageHeading, "My Heading ");
}

TEST(DirtyTest, ComparesEveryTextAndTheFiguresTrimmed) {
    RunningProgram run;
    EXPECT_FALSE(modMain::SomethingChanged(run.program));
    run.program.document.CurrentTextBuf[5][3] = "  ";
    EXPECT_FALSE(modMain::SomethingChanged(run.program));
    run.program.document.CurrentTextBuf[4][65] = "x";
    EXPECT_TRUE(modMain::SomethingChanged(run.program));
    run.program.document.CurrentTextBuf[4][65].clear();
    run.program.document.CurrentTextBuf[0][0] = "x";
    EXPECT_TRUE(modMain::SomethingChanged(run.program));
}

TEST(SaveAs, TakesTheNewNameAndSaysSo) {
    RunningProgram run;
    TypeClient(run, "Ann");
    run.surroundings.questions.ExpectInput("Saving File As...", "  Spring Fair ");
    run.surroundings.questions.Expect("File was saved as Spring Fair.hef");
    modMain::SaveEventFileAs(run.program);
    EXPECT_EQ(run.surroundings.questions.Prompts.back(), "Please input the File Name below.");
    EXPECT_EQ(run.surroundings.questions.Initials.back(), "Ann");
    EXPECT_EQ(run.folder.Read("Proposals/Spring Fair.hef").substr(50, 3), "Ann");
    EXPECT_EQ(run.program.document.BaseName, "Spring Fair");
    EXPECT_EQ(run.folder.Read("Proposals/Spring Fair.hpf"), "")
        << "properties are written, also when there are none";
    EXPECT_FALSE(run.program.document.SaveAsActive);
}

TEST(SaveAs, RefusesNoNameAnIllegalNameAndAFileThatIsToStay) {
    RunningProgram run;
    TypeClient(run, "Ann");
    run.surroundings.questions.ExpectInput("Saving File As...", "  ");
    run.surroundings.questions.Expect("No name entered. File not saved.");
    modMain::SaveEventFileAs(run.program);
    for (const char* name : {"a/b", "a\\b", "a:b", "a*b", "a?b", "a<b", "a>b", "a|b"}) {
        run.surroundings.questions.ExpectInput("Saving File As...", name);
        run.surroundings.questions.Expect("the following characters: / \\ : * ? < > |");
        modMain::SaveEventFileAs(run.program);
    }
    run.folder.Write("Proposals/Taken.hef", "old");
    for (const Answer answer : {Answer::No, Answer::Cancel}) {
        run.surroundings.questions.ExpectInput("Saving File As...", "Taken");
        run.surroundings.questions.ExpectBox({"A file with the name Taken.hef already exists. Overwrite?",
                                              Buttons::YesNoCancel,
                                              "Preparing to Overwrite Existing Event File"},
                                             answer);
        run.surroundings.questions.Expect("Action Cancelled. File not saved.");
        modMain::SaveEventFileAs(run.program);
    }
    EXPECT_EQ(run.folder.Read("Proposals/Taken.hef"), "old");
    EXPECT_EQ(run.program.document.FileName, "Ann.hef");
    EXPECT_FALSE(run.program.document.FileExists);
}

TEST(SaveAs, TakesFootnotesAndDepositsAlong) {
    RunningProgram run;
    run.folder.Write("Proposals/Ann.hef", Blank("Ann"));
    run.folder.Write("Proposals/Ann.hxt", "notes");
    run.folder.Write("Proposals/Ann.dep", "deposits");
    modFile::OpenEventFile(run.program, "Ann.hef");
    run.surroundings.questions.ExpectInput("Saving File As...", "Bea");
    run.surroundings.questions.Expect("File was saved as Bea.hef");
    modMain::SaveEventFileAs(run.program);
    EXPECT_EQ(run.folder.Read("Proposals/Bea.hxt"), "notes");
    EXPECT_EQ(run.folder.Read("Proposals/Bea.dep"), "deposits");
    EXPECT_TRUE(run.folder.Has("Proposals/Ann.hef"));
}

TEST(Deleting, RemovesTheProposalAndItsSideFiles) {
    RunningProgram run;
    for (const char* extension : {"hef", "hpf", "txt", "hxt", "dep"}) {
        run.folder.Write(std::string("Proposals/Ann.") + extension, Blank("Ann"));
    }
    modFile::OpenEventFile(run.program, "Ann.hef");
    run.surroundings.questions.ExpectBox(
        {"Are you sure you want to delete this file?", Buttons::YesNo, "Preparing to Delete File."},
        Answer::No);
    modMain::mnuFileDelete_Click(run.program);
    EXPECT_TRUE(run.folder.Has("Proposals/Ann.hef"));
    run.surroundings.questions.Expect("Are you sure", Answer::Yes);
    modMain::mnuFileDelete_Click(run.program);
    EXPECT_FALSE(run.folder.Has("Proposals/Ann.hef") || run.folder.Has("Proposals/Ann.dep") ||
                 run.folder.Has("Proposals/Ann.hpf"));
    EXPECT_EQ(run.TextOf(PageId::frmP1, 2), "");
    EXPECT_FALSE(run.program.main[CommandId::mnuFileDelete].Enabled);
    run.surroundings.questions.Expect("No such file exists. Select New to start a new proposal (Ctrl + N).");
    modMain::mnuFileDelete_Click(run.program);
}

TEST(TheChooser, OpensAProposalAfterItWasConfirmed) {
    RunningProgram run;
    run.folder.Write("Proposals/Ann.hef", Blank("Ann"));
    run.folder.Write("Proposals/notes.txt", "");
    frmFile& chooser = Chooser(run);
    EXPECT_EQ(chooser.Caption, "Opening Proposal File");
    EXPECT_EQ(chooser.lblHelp.Caption,
              "Double-Click on the Drive or Folder category to find the file you wish to open.");
    EXPECT_EQ(chooser.FileList1.Items, std::vector<std::string>{"Ann.hef"});
    EXPECT_EQ(chooser.Dir1.Items, (std::vector<std::string>{"..", "Backup"}));
    EXPECT_FALSE(chooser.picFileOpen);
    chooser.FileList1_Click(run.program, 0);
    EXPECT_TRUE(chooser.picFileOpen);
    EXPECT_EQ(chooser.lblOpenFileName.Caption, "Ann.hef - Event File");
    chooser.cmdOpenBack_Click(run.program);
    EXPECT_FALSE(chooser.picFileOpen);
    chooser.FileList1_Click(run.program, 0);
    chooser.cmdOpenOK_Click(run.program);
    EXPECT_EQ(run.TextOf(PageId::frmP1, 2), "Ann");
    EXPECT_EQ(modWindows::Find(run.program, "frmFile"), nullptr);
    EXPECT_FALSE(modMain::SomethingChanged(run.program));
    modWindows::Sweep(run.program);
    EXPECT_TRUE(run.program.windows.Open.empty());
}

TEST(TheChooser, CancelLeavesTheFolderOfTheOpenProposal) {
    RunningProgram run;
    frmFile& chooser = Chooser(run);
    chooser.Dir1_Change(run.program, 1);
    EXPECT_EQ(run.program.document.FilePath, run.folder / "Proposals/Backup/");
    chooser.cmdOpenCancel_Click(run.program);
    EXPECT_EQ(run.program.document.FilePath, run.folder / "Proposals/");
}

TEST(TheChooser, AFolderOrFileThatVanishedIsToldAndNothingIsLost) {
    RunningProgram run;
    TypeClient(run, "Bea");
    run.program.document.SavedTextBuf = run.program.document.CurrentTextBuf;
    run.folder.Write("Proposals/Ann.hef", Blank("Ann"));
    frmFile& chooser = Chooser(run);
    chooser.FileList1_Click(run.program, 0);
    std::filesystem::remove(run.folder / "Proposals/Ann.hef");
    run.surroundings.questions.Expect("An error occurred in OpenEventFile.");
    chooser.cmdOpenOK_Click(run.program);
    EXPECT_EQ(run.TextOf(PageId::frmP1, 2), "Bea");
    EXPECT_TRUE(chooser.FileList1.Items.empty());
    std::filesystem::remove_all(run.folder / "Proposals/Backup");
    run.surroundings.questions.Expect("Path not found");
    chooser.Dir1_Change(run.program, 1);
    EXPECT_EQ(chooser.Folder, run.folder / "Proposals/");
    chooser.cmdOpenCancel_Click(run.program);
}

TEST(ABackup, IsOpenedRestoredAndLeft) {
    RunningProgram run;
    run.folder.Write("Proposals/Ann.hef", Blank("Old"));
    run.folder.Write("Proposals/Backup/Ann.hef", Blank("Ann"));
    frmFile& chooser = Chooser(run);
    chooser.Dir1_Change(run.program, 1);
    chooser.FileList1_Click(run.program, 0);
    chooser.cmdOpenOK_Click(run.program);
    EXPECT_TRUE(run.program.document.FromBackup);
    EXPECT_TRUE(run.program.main[CommandId::mnuFileRestoreFromBackup].Enabled);
    EXPECT_EQ(run.program.main.lblDir.Caption, "Current Folder = " + (run.folder / "Proposals/Backup/"));
    modMain::mnuFileRestoreFromBackup_Click(run.program);
    EXPECT_EQ(run.folder.Read("Proposals/Ann.hef").substr(50, 3), "Ann");
    EXPECT_EQ(run.program.document.FilePath, run.folder / "Proposals/");
    EXPECT_FALSE(run.program.document.FromBackup);
}

TEST(ABackup, LeftByNewDoesNotDrawTheNextProposalIntoItsFolder) {
    RunningProgram run;
    run.folder.Write("Proposals/Backup/Ann.hef", Blank("Ann"));
    frmFile& chooser = Chooser(run);
    chooser.Dir1_Change(run.program, 1);
    chooser.FileList1_Click(run.program, 0);
    chooser.cmdOpenOK_Click(run.program);
    modMain::mnuFileNew_Click(run.program);
    EXPECT_EQ(run.program.document.FilePath, run.folder / "Proposals/");
    EXPECT_FALSE(run.program.document.FromBackup);
    EXPECT_FALSE(run.program.main[CommandId::mnuFileRestoreFromBackup].Enabled);
}

TEST(FormatEditing, IsNotEndedWithoutAQuestion) {
    RunningProgram run;
    run.program.format.EditingFormat = true;
    run.surroundings.questions.ExpectBox(
        {"Proceeding with this action will end the editing session of your file format. Continue?",
         Buttons::YesNo, "Ending Format Editing"},
        Answer::No);
    run.surroundings.questions.Expect("Resume Editing.");
    EXPECT_EQ(modMain::StartNewFile(run.program), modMain::ResetResult::Refused);
    EXPECT_FALSE(run.program.guards.ResetActive);
}

} // namespace
