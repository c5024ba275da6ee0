#include "contract/frm_notes.h"
#include "deposits/frm_deposits.h"
#include "money/totals.h"
#include "program/windows.h"
#include "proposal/proposal_save.h"
#include "proposal/rescued.h"
#include "shell/closing.h"
#include "shell/command_run.h"
#include "shell/start_up.h"
#include "shell/wiring.h"
#include "support/person.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace {

/// A saved proposal of Jane Roe with footnotes and deposits open.
struct Leaving : RunningProgram {
    Leaving() {
        TypeJaneRoe(*this);
        surroundings.questions.Expect("File was saved as Jane Roe.hef");
        EXPECT_EQ(modFile::SaveEventFile(program), modFile::SaveResult::Saved);
        commands::Run(program, CommandId::mnuFileOpenFootnotes);
        commands::Run(program, CommandId::mnuManageDeposits);
    }
    [[nodiscard]] frmNotes& Notes() {
        return dynamic_cast<frmNotes&>(*modWindows::Find(program, "frmNotes"));
    }
    [[nodiscard]] frmDeposits& Deposits() {
        return dynamic_cast<frmDeposits&>(*modWindows::Find(program, "frmDeposits"));
    }
    void Change() {
        Notes().txtNotes_Change(program, "remember");
        Deposits().txtAmount_Change(program, "600");
        Deposits().cmdSave_Click(program);
    }
    ScriptedQuestions& Boxes() { return surroundings.questions; }
};

TEST(LeavingWindows, ExitAsksForThemFirstAndTheDepositReachesTheFile) {
    Leaving run;
    run.Change();
    run.Boxes().Expect("The deposit list has changed.", Answer::Yes);
    run.Boxes().Expect("Replace it with the list's total, 600.00?", Answer::Yes);
    run.Boxes().Expect("The Footnote File has been changed.", Answer::Yes);
    run.Boxes().Expect("The file has been changed. Do you want to save it?", Answer::Yes);
    run.Boxes().Expect("File was saved as Jane Roe.hef");
    EXPECT_FALSE(modClosing::MDIForm_QueryUnload(run.program)); // saving keeps the program open
    EXPECT_EQ(run.folder.Read("Proposals/Jane Roe.hxt"), "remember");
    EXPECT_NE(run.folder.Read("Proposals/Jane Roe.hef").find("600.00"), std::string::npos);
    EXPECT_TRUE(modClosing::MDIForm_QueryUnload(run.program));
}

TEST(LeavingWindows, CancelAnywhereEndsTheExitWithEverythingAsItWas) {
    Leaving run;
    run.Change();
    run.Boxes().Expect("The deposit list has changed.", Answer::No);
    run.Boxes().Expect("The Footnote File has been changed.", Answer::Cancel);
    EXPECT_FALSE(modClosing::MDIForm_QueryUnload(run.program));
    EXPECT_EQ(run.Notes().txtNotes, "remember");
    EXPECT_TRUE(run.Deposits().DepositChanged);
}

TEST(LeavingWindows, ASaveThatFailsEndsTheExit) {
    Leaving run;
    run.Change();
    run.folder.MakeFolder("Proposals/Jane Roe.hxt");
    run.Boxes().Expect("The deposit list has changed.", Answer::No);
    run.Boxes().Expect("The Footnote File has been changed.", Answer::Yes);
    run.Boxes().Expect("SaveFootnoteFile");
    EXPECT_FALSE(modClosing::MDIForm_QueryUnload(run.program));
    EXPECT_EQ(run.Notes().txtNotes, "remember");
}

TEST(LeavingWindows, ARunThatIsEndedFromOutsideKeepsThemBesideTheBackup) {
    Leaving run;
    run.Change();
    modClosing::KeepUnsaved(run.program);
    EXPECT_EQ(run.folder.Read("Proposals/Backup/Jane Roe.hxt"), "remember");
    EXPECT_EQ(run.folder.Read("Proposals/Backup/Jane Roe.dep"), "Jane Roe\r\nJan 21, 2008\t\t$ 600.00");
    EXPECT_FALSE(run.folder.Has("Proposals/Jane Roe.hxt"));
}

/// The next run in the folder of one that was ended from outside.
struct NextRun {
    explicit NextRun(const RunningProgram& ended) : folder(ended.folder) {
        program.folders.InstallFolder = folder.Path();
        program.folders.Drives.Home = folder / "Home/";
        Wire(program);
        surroundings.questions.Allow(kNoEvents);
    }
    void Start() {
        ASSERT_EQ(modStart::Main(program), modStart::StartResult::Running);
        PassSplash(program);
        surroundings.questions.Done();
    }
    const ScratchFolder& folder;
    RecordingPlatform surroundings;
    Program program{surroundings.platform};
};

TEST(Rescue, TheNextStartPutsNotesAndDepositsBackAndMovesAsideWhatStandsThere) {
    Leaving run;
    run.Change();
    modClosing::Interrupted(run.program);
    run.folder.Write("Proposals/Jane Roe.hxt", "another's notes");
    NextRun next(run);
    next.surroundings.questions.Expect("Put the footnotes and deposits beside their proposals?", Answer::Yes);
    next.Start();
    const ScriptedQuestions::Box& box = next.surroundings.questions.Shown.back();
    EXPECT_NE(box.Text.find("Proposals/Backup/Jane Roe.hxt"), std::string::npos) << box.Text;
    EXPECT_NE(box.Text.find("Proposals/Backup/Jane Roe.dep"), std::string::npos) << box.Text;
    EXPECT_EQ(next.surroundings.questions.Manners.back().How, Manner::Came::Unasked);
    EXPECT_EQ(run.folder.Read("Proposals/Jane Roe.hxt"), "remember");
    EXPECT_EQ(run.folder.Read("Proposals/Backup/Jane Roe.hxt.old"), "another's notes");
    EXPECT_EQ(run.folder.Read("Proposals/Jane Roe.dep"), "Jane Roe\r\nJan 21, 2008\t\t$ 600.00");
    EXPECT_FALSE(run.folder.Has("Proposals/Backup/Jane Roe.hxt"));
    NextRun third(run);
    third.Start(); // it is told once
}

TEST(Rescue, ANoLeavesThemWhereTheyLieAndALaterRescueReplacesNone) {
    Leaving run;
    run.Change();
    modClosing::Interrupted(run.program);
    NextRun next(run);
    next.surroundings.questions.Expect("Put the footnotes and deposits beside their proposals?", Answer::No);
    next.Start();
    EXPECT_FALSE(run.folder.Has("Proposals/Jane Roe.hxt"));
    NextRun third(run);
    third.Start(); // who has said no is not asked again
    next.program.document = run.program.document;
    modRescue::KeepOfProposal(next.program, ".hxt", "later", modRescue::Back::Offered);
    modRescue::KeepOfProposal(next.program, ".hxt", "later still", modRescue::Back::Offered);
    EXPECT_EQ(run.folder.Read("Proposals/Backup/Jane Roe.hxt"), "remember");
    EXPECT_EQ(run.folder.Read("Proposals/Backup/Jane Roe (2).hxt"), "later still") << "one of a run";
    EXPECT_FALSE(run.folder.Has("Proposals/Backup/Jane Roe (3).hxt"));
}

TEST(Rescue, WhatBelongsToNoProposalIsToldWithItsPath) {
    RunningProgram run;
    modRescue::KeepOfProposal(run.program, ".contract.txt", "wording", modRescue::Back::Told);
    modRescue::Keep(run.program, "Unsaved Address.txt", "Name: Ann");
    NextRun next(run);
    next.surroundings.questions.Expect("Unsaved Address.txt");
    next.Start();
    const ScriptedQuestions::Box& box = next.surroundings.questions.Shown.back();
    EXPECT_EQ(box.With, Buttons::Ok);
    EXPECT_NE(box.Text.find("Backup/Unnamed.contract.txt"), std::string::npos) << box.Text;
    EXPECT_EQ(run.folder.Read("Proposals/Backup/Unnamed.contract.txt"), "wording");
}

TEST(Rescue, WhatNoProposalReadsBackIsToldWithoutAnOfferToPutItThere) {
    const auto told = [](const RunningProgram& run, std::string_view path) {
        NextRun next(run);
        next.surroundings.questions.Expect(std::string(path));
        next.Start();
        const ScriptedQuestions::Box& box = next.surroundings.questions.Shown.back();
        EXPECT_EQ(box.With, Buttons::Ok) << path;
    };
    Leaving saved;
    modRescue::KeepOfProposal(saved.program, ".contract.txt", "wording", modRescue::Back::Told);
    told(saved, "Backup/Jane Roe.contract.txt");
    RunningProgram unsaved;
    Typist typist(unsaved.program);
    typist.Click(PageId::frmP1, 2);
    typist.Type("Jane Roe");
    modRescue::KeepOfProposal(unsaved.program, ".hxt", "remember", modRescue::Back::Offered);
    told(unsaved, "Backup/Jane Roe.hxt");
}

TEST(Rescue, OfMoreThanTenTheOthersAreCounted) {
    for (const std::size_t count : {std::size_t{10}, std::size_t{12}}) {
        RunningProgram run;
        for (std::size_t text = 1; text <= count; ++text) {
            modRescue::Keep(run.program, "Address " + std::to_string(text) + ".txt", "Name: Ann");
        }
        NextRun next(run);
        next.surroundings.questions.Expect("They were kept as:");
        next.Start();
        const std::string& words = next.surroundings.questions.Shown.back().Text;
        const std::string last = "Proposals/Backup/Address 10.txt";
        EXPECT_TRUE(words.ends_with(count == 10 ? last : last + "\r\nand 2 more.")) << words;
        EXPECT_EQ(words.find("Address 11.txt"), std::string::npos);
    }
}

TEST(Rescue, AListThatBreaksOffInAnEntryTellsOfTheWholeOnes) {
    RunningProgram run;
    run.folder.Write("kept one.txt", "1");
    run.folder.Write("kept two.txt", "2");
    run.folder.Write("kept three.txt", "3");
    const auto entry = [&](const char* name) { return run.folder / name + "\r\n\r\n"; };
    run.folder.Write("Rescued.txt",
                     entry("kept one.txt") + entry("kept two.txt") + (run.folder / "kept three.txt"));
    NextRun next(run);
    next.surroundings.questions.Expect("They were kept as:");
    next.Start();
    EXPECT_TRUE(next.surroundings.questions.Shown.back().Text.ends_with(
        "kept as:\r\n" + (run.folder / "kept one.txt") + "\r\n" + (run.folder / "kept two.txt")));
}

TEST(Rescue, ATextThatCannotBeKeptIsToldInTheLog) {
    RunningProgram run;
    std::filesystem::remove_all(run.folder / "Proposals/Backup");
    run.folder.Write("Proposals/Backup", "no folder can be made here");
    modRescue::Keep(run.program, "Unsaved Address.txt", "Name: Ann");
    EXPECT_NE(run.folder.Read("Error.log").find("Proposals/Backup"), std::string::npos);
    EXPECT_TRUE(run.surroundings.questions.Shown.empty()) << "nobody is there to read it";
}

TEST(Rescue, ARunThatGoesOnAndEndsWellLeavesNothingToBeTold) {
    Leaving run;
    run.Change();
    modClosing::KeepUnsaved(run.program); // the desktop's session was to end, and did not
    modClosing::MDIForm_Unload(run.program);
    EXPECT_FALSE(run.folder.Has("Proposals/Backup/Jane Roe.hxt"));
    EXPECT_FALSE(run.folder.Has("Rescued.txt"));
    NextRun next(run);
    next.Start();
}

TEST(LeavingWindows, WhatWasDiscardedAtTheExitIsNotKeptWhenTheSessionEndsMeanwhile) {
    Leaving run;
    run.Change();
    run.program.main.Closing = true;
    modClosing::KeepUnsaved(run.program);
    EXPECT_FALSE(run.folder.Has("Proposals/Backup/Jane Roe.hxt"));
}

TEST(LeavingWindows, ADepositWithoutAmountsSurvivesSavingAndRecalculation) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 2);
    typist.Type("Ann");
    commands::Run(run.program, CommandId::mnuManageDeposits);
    auto& deposits = dynamic_cast<frmDeposits&>(*modWindows::Find(run.program, "frmDeposits"));
    deposits.txtAmount_Change(run.program, "250");
    deposits.cmdSave_Click(run.program);
    run.surroundings.questions.Expect("File was saved as Ann.hef");
    deposits.Choose(run.program, "mnuFileSave");
    commands::Run(run.program, CommandId::mnuToolsRecalculate);
    EXPECT_EQ(run.program.totals.Deposit, 250);
    EXPECT_EQ(run.TextOf(PageId::frmP6, 3), "0.00");
    EXPECT_EQ(run.TextOf(PageId::frmP6, 4), "250.00");
    EXPECT_EQ(run.TextOf(PageId::frmP6, 5), "-250.00");
    run.surroundings.questions.Expect("File was saved as Ann.hef");
    commands::Run(run.program, CommandId::mnuFileSaveEvent);
    EXPECT_EQ(run.program.totals.Deposit, 250);
}

} // namespace
