#include "contract/frm_notes.h"

#include "base/text.h"
#include "program/windows.h"
#include "proposal/lifecycle.h"
#include "proposal/proposal_open.h"
#include "proposal/proposal_save.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

struct Noted : RunningProgram {
    Noted() {
        TypeJaneRoe(*this);
        surroundings.questions.Expect("File was saved as Jane Roe.hef");
        EXPECT_EQ(modFile::SaveEventFile(program), modFile::SaveResult::Saved);
        surroundings.questions.Done();
    }
    void File(const std::string& bytes) const { folder.Write("Proposals/Jane Roe.hxt", bytes); }
    [[nodiscard]] std::string File() const { return folder.Read("Proposals/Jane Roe.hxt"); }
    frmNotes& Open() {
        modNotes::mnuFileOpenFootnotes_Click(program);
        auto* window = dynamic_cast<frmNotes*>(modWindows::Find(program, "frmNotes"));
        EXPECT_NE(window, nullptr);
        return *window;
    }
    ScriptedQuestions& Boxes() { return surroundings.questions; }
};

const ScriptedQuestions::Box kChanged{"The Footnote File has been changed. Do you want to save it?",
                                      Buttons::YesNoCancel, "Footnotes have been Changed"};

TEST(Footnotes, AMissingFileIsAnEmptyNote) {
    Noted run;
    frmNotes& window = run.Open();
    EXPECT_EQ(window.txtNotes, "");
    EXPECT_EQ(window.lblCaption.Caption, "Footnotes for:");
    EXPECT_EQ(window.lblEventName.Caption, "Jane Roe");
    EXPECT_EQ(window.Caption, "Footnotes for Event - Jane Roe");
    EXPECT_TRUE(modNotes::FootnotesShown(run.program));
    window.Form_Cancel(run.program);
    EXPECT_FALSE(modNotes::FootnotesShown(run.program));
    EXPECT_FALSE(run.folder.Has("Proposals/Jane Roe.hxt"));
}

TEST(Footnotes, SavingAnEmptyTextLeavesAFileOfNothingAndThePictureOfOne) {
    Noted run;
    run.Open().Choose(run.program, "mnuFileSave");
    EXPECT_TRUE(run.folder.Has("Proposals/Jane Roe.hxt"));
    EXPECT_EQ(run.File(), "");
    EXPECT_EQ(run.Main().imgFootNotes.Picture, 1);
}

TEST(Footnotes, WhatWasTypedIsSavedWithCrLf) {
    Noted run;
    frmNotes& window = run.Open();
    window.txtNotes_Change(run.program, "Call \xC9lise\nTwice");
    window.Choose(run.program, "mnuFileSave");
    EXPECT_EQ(run.File(), "Call \xC9lise\r\nTwice");
    EXPECT_TRUE(run.program.main.Notice.starts_with("Footnotes saved: " + run.folder.Path()));
    window.Form_Cancel(run.program); // unchanged: no question
    EXPECT_TRUE(window.Closing);
}

TEST(Footnotes, NotesThatNobodyEditedAreNeverChanged) {
    const std::vector<std::string> files{"a\nb", "a\rb", "a\r\n\n\rb\r", std::string("a\0b\x01\xFF\x81", 6),
                                         "\n\n"};
    for (const std::string& bytes : files) {
        Noted run;
        run.File(bytes);
        frmNotes& window = run.Open();
        EXPECT_EQ(window.FootnoteText, bytes);
        window.txtNotes_Change(run.program, window.txtNotes);
        window.Choose(run.program, "mnuFileSave");
        EXPECT_EQ(run.File(), bytes);
        window.Form_Cancel(run.program);
        EXPECT_TRUE(window.Closing);
    }
}

TEST(Footnotes, LineEndsBecomeCrLfWithTheFirstEditAndAreThemselvesAgainWhenItIsTakenBack) {
    Noted run;
    run.File("a\nb\rc");
    frmNotes& window = run.Open();
    EXPECT_EQ(window.txtNotes, "a\nb\nc");
    window.txtNotes_Change(run.program, "a\nb\ncd");
    EXPECT_EQ(window.FootnoteText, "a\r\nb\r\ncd");
    window.txtNotes_Change(run.program, "a\nb\nc");
    EXPECT_EQ(window.FootnoteText, "a\nb\rc");
}

TEST(Footnotes, ClosingChangedNotesAsks) {
    Noted run;
    frmNotes& window = run.Open();
    window.txtNotes_Change(run.program, "x");
    run.Boxes().ExpectBox(kChanged, Answer::Cancel);
    window.Form_Cancel(run.program);
    EXPECT_FALSE(window.Closing);
    run.Boxes().ExpectBox(kChanged, Answer::Yes);
    window.Form_Cancel(run.program);
    EXPECT_TRUE(window.Closing);
    EXPECT_EQ(run.File(), "x");
    modWindows::Sweep(run.program);
    frmNotes& again = run.Open();
    again.txtNotes_Change(run.program, "y");
    run.Boxes().ExpectBox(kChanged, Answer::No);
    again.Form_Cancel(run.program);
    EXPECT_TRUE(again.Closing);
    EXPECT_EQ(run.File(), "x");
}

TEST(Footnotes, ASaveThatFailsKeepsTheTextAndTheChange) {
    Noted run;
    frmNotes& window = run.Open();
    window.txtNotes_Change(run.program, "x");
    run.folder.MakeFolder("Proposals/Jane Roe.hxt");
    run.Boxes().Expect("An error occurred in SaveFootnoteFile.");
    window.Choose(run.program, "mnuFileSave");
    run.Boxes().ExpectBox(kChanged, Answer::Yes);
    run.Boxes().Expect("An error occurred in SaveFootnoteFile.");
    window.Form_Cancel(run.program);
    EXPECT_FALSE(window.Closing);
    EXPECT_EQ(window.txtNotes, "x");
    EXPECT_EQ(run.Main().imgFootNotes.Picture, 0);
}

TEST(Footnotes, AFileThatAnotherProgramHasChangedIsAskedAbout) {
    Noted run;
    run.File("mine");
    frmNotes& window = run.Open();
    window.txtNotes_Change(run.program, "mine too");
    run.File("theirs");
    run.Boxes().Expect("changed by another program since you opened them. Overwrite them?", Answer::No);
    window.Choose(run.program, "mnuFileSave");
    EXPECT_EQ(run.File(), "theirs");
    run.Boxes().Expect("Overwrite them?", Answer::Yes);
    window.Choose(run.program, "mnuFileSave");
    EXPECT_EQ(run.File(), "mine too");
}

TEST(Footnotes, AFileThatCameMeanwhileIsAskedAbout) {
    Noted run;
    frmNotes& window = run.Open();
    window.txtNotes_Change(run.program, "mine");
    run.File("theirs");
    run.Boxes().Expect("Overwrite them?", Answer::No);
    window.Choose(run.program, "mnuFileSave");
    EXPECT_EQ(run.File(), "theirs");
}

TEST(Footnotes, AFileThatCannotBeReadLocksTheWindow) {
    Noted run;
    run.File("");
    fs::resize_file(run.folder / "Proposals/Jane Roe.hxt", (64U << 20U) + 1); // more than is read of any text
    run.Boxes().Expect("An error occurred in OpenFootnoteFile.");
    frmNotes& window = run.Open();
    EXPECT_TRUE(window.Locked);
    EXPECT_FALSE(window.Entry("mnuFileSave").Enabled);
    window.txtNotes_Change(run.program, "x");
    EXPECT_EQ(window.txtNotes, "");
    EXPECT_FALSE(window.SaveFootnoteFile(run.program));
    window.Form_Cancel(run.program);
    EXPECT_TRUE(window.Closing);
}

TEST(Footnotes, OfAnUnsavedProposalHaveItsNameOfThatMomentAndSaveItFirst) {
    RunningProgram run;
    run.folder.Write("Proposals/.hxt", "nobody's");
    modNotes::mnuFileOpenFootnotes_Click(run.program);
    auto& window = dynamic_cast<frmNotes&>(*modWindows::Find(run.program, "frmNotes"));
    EXPECT_EQ(window.txtNotes, "");
    window.txtNotes_Change(run.program, "x");
    run.surroundings.questions.Expect("Please enter the client's name");
    window.Choose(run.program, "mnuFileSave");
    EXPECT_EQ(run.folder.Read("Proposals/.hxt"), "nobody's");
    EXPECT_NE(window.FootnoteText, window.FootnoteSavedText);
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 2);
    typist.Type("Ann");
    modWindows::Sweep(run.program);
    EXPECT_EQ(window.lblEventName.Caption, "Ann");
    run.surroundings.questions.Expect("File was saved as Ann.hef");
    window.Choose(run.program, "mnuFileSave");
    EXPECT_EQ(run.folder.Read("Proposals/Ann.hxt"), "x");
}

TEST(Footnotes, LieInTheProposalsOwnFolder) {
    Noted run;
    run.folder.MakeFolder("Elsewhere");
    fs::copy(run.folder / "Proposals/Jane Roe.hef", run.folder / "Elsewhere/Jane Roe.hef");
    run.folder.Write("Elsewhere/Jane Roe.hxt", "elsewhere");
    run.program.document.FilePath = run.folder / "Elsewhere/";
    static_cast<void>(modFile::OpenEventFile(run.program, "Jane Roe.hef"));
    EXPECT_EQ(run.Main().imgFootNotes.Picture, 1);
    frmNotes& window = run.Open();
    EXPECT_EQ(window.txtNotes, "elsewhere");
    window.txtNotes_Change(run.program, "still there");
    window.Choose(run.program, "mnuFileSave");
    EXPECT_EQ(run.folder.Read("Elsewhere/Jane Roe.hxt"), "still there");
    EXPECT_FALSE(run.folder.Has("Proposals/Jane Roe.hxt"));
}

TEST(Footnotes, OfABackupAreThoseOfTheProposal) {
    Noted run;
    run.File("the proposal's");
    run.program.document.FromBackup = true;
    run.program.document.FilePath = run.folder / "Proposals/Backup/";
    EXPECT_EQ(run.Open().txtNotes, "the proposal's");
}

TEST(Footnotes, TheCommandBringsTheOpenWindowToTheFront) {
    Noted run;
    frmNotes& window = run.Open();
    window.txtNotes_Change(run.program, "typed");
    window.Minimised = true;
    EXPECT_EQ(&run.Open(), &window);
    EXPECT_EQ(window.FrontCalls, 1);
    EXPECT_FALSE(window.Minimised);
    EXPECT_EQ(window.txtNotes, "typed");
}

TEST(Footnotes, SaveAsCopiesThemAndFollowsTheName) {
    Noted run;
    run.File("saved");
    frmNotes& window = run.Open();
    window.txtNotes_Change(run.program, "not saved yet");
    run.Boxes().ExpectInput("Saving File As...", "Second");
    run.Boxes().Expect("File was saved as Second.hef");
    modProposal::SaveEventFileAs(run.program);
    modWindows::Sweep(run.program);
    EXPECT_EQ(window.lblEventName.Caption, "Second");
    EXPECT_EQ(run.folder.Read("Proposals/Second.hxt"), "saved");
    window.Choose(run.program, "mnuFileSave"); // what lies there is what was read
    EXPECT_EQ(run.folder.Read("Proposals/Second.hxt"), "not saved yet");
    EXPECT_EQ(run.File(), "saved");
}

TEST(Footnotes, AreKeptBesideTheBackupWhenTheRunIsEndedFromOutside) {
    Noted run;
    run.Open().txtNotes_Change(run.program, "x\ny");
    modWindows::KeepUnsaved(run.program);
    EXPECT_EQ(run.folder.Read("Proposals/Backup/Jane Roe.hxt"), "x\r\ny");
    EXPECT_FALSE(run.folder.Has("Proposals/Jane Roe.hxt"));
}

std::vector<DrawCall> Printed(Noted& run) {
    std::vector<DrawCall> prints;
    for (const DrawCall& call : run.surroundings.printers.Paper.Documents.at(0)) {
        if (call.Op == DrawCall::What::Print) {
            prints.push_back(call);
        }
    }
    return prints;
}

TEST(Footnotes, AFolderInTheirPlaceIsToldAndTheWindowIsLocked) {
    Noted run;
    run.folder.MakeFolder("Proposals/Jane Roe.hxt");
    run.Boxes().Expect("An error occurred in OpenFootnoteFile.");
    frmNotes& window = run.Open();
    EXPECT_TRUE(window.Locked);
    window.txtNotes_Change(run.program, "typed");
    EXPECT_EQ(window.txtNotes, "");
    window.Choose(run.program, "mnuFileSave");
    EXPECT_TRUE(fs::is_directory(run.folder / "Proposals/Jane Roe.hxt"));
}

TEST(Footnotes, WhatALeftWindowCostsIsAWholeSentence) {
    Noted run;
    frmNotes& window = run.Open();
    window.txtNotes_Change(run.program, "typed");
    run.Boxes().ExpectBox(kChanged, Answer::Cancel);
    EXPECT_FALSE(window.MayLeave(run.program, Leaving::Proposal));
    EXPECT_EQ(run.Boxes().Manners.back().Lost,
              "The changes to the footnotes will be lost unless they are saved.");
}

TEST(Footnotes, ArePrintedIntoAFileOfTheClientsName) {
    Noted run;
    frmNotes& window = run.Open();
    window.Choose(run.program, "mnuFilePrint");
    ASSERT_EQ(run.surroundings.printers.Commands.size(), 1U);
    EXPECT_EQ(run.surroundings.printers.Commands[0].SuggestedFile,
              run.folder / "Proposals/Jane Roe, Footnotes.pdf");
}

TEST(Footnotes, PrintUnderTheNameWithLongLinesWrappedAtABlank) {
    Noted run;
    frmNotes& window = run.Open();
    // 111 characters of 100 twips fit between the margins of 540.
    const std::string word(60, 'a');
    window.txtNotes_Change(run.program, word + " " + word + "\n\nlast");
    window.Choose(run.program, "mnuFilePrint");
    const std::vector<DrawCall> prints = Printed(run);
    ASSERT_EQ(prints.size(), 5U);
    EXPECT_EQ(prints[0].Text, "Notes for Jane Roe");
    EXPECT_EQ(prints[0].Y, 720);
    EXPECT_EQ(prints[1].Text, word + " ");
    EXPECT_EQ(prints[2].Text, word);
    EXPECT_EQ(prints[3].Text, "");
    EXPECT_EQ(prints[4].Text, "last");
    EXPECT_EQ(prints[4].Y, 720 + 4 * 200);
    for (const DrawCall& call : prints) {
        EXPECT_EQ(call.X, 540);
    }
}

TEST(Footnotes, GoOnOverTheNextPageAndNeverPassItsBottom) {
    Noted run;
    frmNotes& window = run.Open();
    std::string text;
    for (int line = 0; line < 100; ++line) {
        text += "line\n";
    }
    window.txtNotes_Change(run.program, text);
    window.Choose(run.program, "mnuFilePrint");
    int pages = 1;
    for (const DrawCall& call : run.surroundings.printers.Paper.Documents.at(0)) {
        pages += call.Op == DrawCall::What::NewPage ? 1 : 0;
        EXPECT_LE(call.Y, 15840 - 720);
    }
    EXPECT_EQ(pages, 2);
    EXPECT_EQ(Printed(run).size(), 101U);
}

TEST(Footnotes, WithoutAPrinterItIsSaid) {
    Noted run;
    run.program.run.NoPrinter = true;
    run.Boxes().ExpectBox({"Could not find Printer.", Buttons::Ok, ""}, Answer::Ok);
    run.Open().Choose(run.program, "mnuFilePrint");
}

TEST(Footnotes, LongLinesWithTabsArePrintedWithinTheMarginsToTheLastWord) {
    Noted run;
    frmNotes& window = run.Open();
    std::string words;
    for (int word = 100; word < 150; ++word) {
        words += "word" + std::to_string(word) + " "; // 800 twips each: 40 000 of 11 160
    }
    window.txtNotes_Change(run.program,
                           words + "\tbehind\t" + words + "\nMenu\t" + words + "\na\t\t\t\t\t\t\t\t\tz");
    window.Choose(run.program, "mnuFilePrint");
    std::string printed;
    float y = 0;
    for (const DrawCall& call : Printed(run)) {
        EXPECT_GE(call.X, 540);
        EXPECT_LE(call.X + 100 * static_cast<float>(text::RTrim(call.Text).size()), 12240 - 540) << call.Text;
        EXPECT_GE(call.Y, y);
        y = call.Y;
        printed += call.Text;
    }
    EXPECT_EQ(printed, "Notes for Jane Roe" + words + "behind" + words + "Menu" + words + "az");
}

TEST(Footnotes, SaveAsOverAProposalWithFootnotesPutsThoseAsideAndBringsItsOwn) {
    Noted run;
    run.File("mine");
    run.folder.Write("Proposals/Second.hef", "another's");
    run.folder.Write("Proposals/Second.hxt", "another's notes");
    run.folder.Write("Proposals/Second.dep", "Another\r\na\t\t$ 1.00");
    run.Boxes().ExpectInput("Saving File As...", "Second");
    run.Boxes().Expect("already exists. Overwrite?", Answer::Yes);
    run.Boxes().Expect("File was saved as Second.hef");
    modProposal::SaveEventFileAs(run.program);
    EXPECT_EQ(run.folder.Read("Proposals/Second.hxt"), "mine");
    EXPECT_EQ(run.folder.Read("Proposals/Backup/Second.hxt.old"), "another's notes");
    EXPECT_FALSE(run.folder.Has("Proposals/Second.dep"));
    EXPECT_EQ(run.folder.Read("Proposals/Backup/Second.dep.old"), "Another\r\na\t\t$ 1.00");
    EXPECT_EQ(run.File(), "mine");
    EXPECT_EQ(run.Main().imgFootNotes.Picture, 1);
}

TEST(Footnotes, SaveAsTellsOfFootnotesThatCannotGoAlongAndTheDepositsGoAllTheSame) {
    Noted run;
    run.File("mine");
    run.folder.Write("Proposals/Jane Roe.dep", "Jane Roe\r\na\t\t$ 500.00");
    run.folder.MakeFolder("Proposals/Second.hxt");
    run.Boxes().ExpectInput("Saving File As...", "Second");
    run.Boxes().Expect("File was saved as Second.hef");
    run.Boxes().Expect("An error occurred in SaveEventFileAs.");
    modProposal::SaveEventFileAs(run.program);
    EXPECT_EQ(run.folder.Read("Proposals/Second.dep"), "Jane Roe\r\na\t\t$ 500.00");
    EXPECT_EQ(run.File(), "mine");
    EXPECT_EQ(run.Main().imgFootNotes.Picture, 0);
}

TEST(Footnotes, EveryKindOfLineEndIsOneOnTheScreen) {
    Noted run;
    run.File("a\r\nb\rc\nd\r\n\r\ne");
    frmNotes& window = run.Open();
    EXPECT_EQ(window.txtNotes, "a\nb\nc\nd\n\ne");
    window.txtNotes_Change(run.program, "a\nb\nc\nd\n\nef");
    EXPECT_EQ(window.FootnoteText, "a\r\nb\r\nc\r\nd\r\n\r\nef");
}

TEST(Footnotes, ThatNobodyEditedAreNotKeptBesideTheBackup) {
    Noted run;
    run.File("saved");
    run.Open();
    modWindows::KeepUnsaved(run.program);
    EXPECT_FALSE(run.folder.Has("Proposals/Backup/Jane Roe.hxt"));
}

TEST(Footnotes, WordsBetweenTabsStandOnOneLineWhileThereIsRoom) {
    Noted run;
    frmNotes& window = run.Open();
    window.txtNotes_Change(run.program, "one\ttwo\tthree\nnext");
    window.Choose(run.program, "mnuFilePrint");
    const std::vector<DrawCall> prints = Printed(run);
    ASSERT_EQ(prints.size(), 5U);
    for (const std::size_t at : {1U, 2U, 3U}) {
        EXPECT_EQ(prints[at].Y, 720 + 200) << prints[at].Text;
        EXPECT_EQ(prints[at].X, 540 + 1440 * static_cast<float>(at - 1)) << prints[at].Text;
    }
    EXPECT_EQ(prints[4].Y, 720 + 400);
}

TEST(Footnotes, KeepTheRightMarginAsWellAsTheLeft) {
    for (const std::size_t second : {50U, 51U}) { // with the blank 111 and 112 characters of 100 twips
        Noted run;
        frmNotes& window = run.Open();
        window.txtNotes_Change(run.program, std::string(60, 'a') + " " + std::string(second, 'b'));
        window.Choose(run.program, "mnuFilePrint");
        EXPECT_EQ(Printed(run).size(), second == 50U ? 2U : 3U);
    }
}

} // namespace
