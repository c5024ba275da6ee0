#include "base/colors.h"
#include "base/seen.h"
#include "program/keys.h"
#include "program/windows.h"
#include "proposal/backup.h"
#include "proposal/file_names.h"
#include "proposal/frm_file.h"
#include "proposal/lifecycle.h"
#include "proposal/property_file.h"
#include "proposal/proposal_save.h"
#include "proposal/reset.h"
#include "support/failing_disk.h"
#include "support/person.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <memory>
#include <string>

namespace {

const ScriptedQuestions::Box kSaveQuestion{"Some text has been changed. Do you want to save the changes?",
                                           Buttons::YesNoCancel, "File Properties have been Changed"};
const ScriptedQuestions::Box kDeleteQuestion{"Are you sure you want to delete this file?", Buttons::YesNo,
                                             "Preparing to Delete File."};

struct Living : RunningProgram {
    void TypeClient(std::string_view name) {
        Typist typist(program);
        typist.Click(PageId::frmP1, 2);
        typist.Type(name);
    }
    /// A proposal with a client's name and a file.
    void SaveAs(const std::string& client) {
        TypeClient(client);
        surroundings.questions.Expect("File was saved as " + client + ".hef");
        modProposal::mnuFileSaveEvent_Click(program);
    }
    void Touch() {
        Typist typist(program);
        typist.Click(PageId::frmP1, 10);
        typist.Type("x");
    }
    [[nodiscard]] std::string Data() const { return folder / "Proposals/"; }
    [[nodiscard]] frmFile& Chooser() { return dynamic_cast<frmFile&>(*modWindows::Find(program, "frmFile")); }
    void Open(const std::string& name) {
        modProposal::mnuFileOpenEvent_Click(program);
        frmFile& chooser = Chooser();
        for (std::size_t index = 0; index < chooser.FileList1.Items.size(); ++index) {
            if (chooser.FileList1.Items[index] == name) {
                chooser.FileList1_Click(program, static_cast<int>(index));
            }
        }
        chooser.cmdOpenOK_Click(program);
        modWindows::Sweep(program);
    }
    void OpenBackup(const std::string& name) {
        modProposal::mnuFileOpenEvent_Click(program);
        frmFile& chooser = Chooser();
        for (std::size_t index = 0; index < chooser.Dir1.Items.size(); ++index) {
            if (chooser.Dir1.Items[index] == "Backup") {
                chooser.Dir1_Change(program, static_cast<int>(index));
                break;
            }
        }
        ASSERT_EQ(chooser.FileList1.Items, std::vector<std::string>{name});
        chooser.FileList1_Click(program, 0);
        chooser.cmdOpenOK_Click(program);
        modWindows::Sweep(program);
    }
    [[nodiscard]] bool RestoreEnabled() { return Main()[CommandId::mnuFileRestoreFromBackup].Enabled; }
};

TEST(Dirty, AnEmptyProposalIsClean) {
    Living run;
    EXPECT_FALSE(modProposal::SomethingChanged(run.program));
}

TEST(Dirty, EveryAreaOfTheEditedPagesCounts) {
    Living run;
    run.program.hooks.CollectQtyBoxes = nullptr; // it would bring the texts back to what the fields show
    for (const PageId page : kEditedPages) {
        auto& texts = run.program.document.CurrentTextBuf[page];
        ASSERT_EQ(texts.size(), page == PageId::frmP1 ? 30U : page == PageId::frmP6 ? 6U : 66U);
        for (std::string& text : texts) {
            const std::string before = text;
            text = "changed";
            EXPECT_TRUE(modProposal::SomethingChanged(run.program));
            text = before;
        }
    }
    EXPECT_FALSE(modProposal::SomethingChanged(run.program));
}

TEST(Dirty, BlanksAroundTheFiguresOfTheFinalPageDoNotCount) {
    Living run;
    run.program.hooks.CollectQtyBoxes = nullptr; // it would bring the texts back to what the fields show
    run.program.document.CurrentTextBuf[PageId::frmP6][3] = "  1.00";
    run.program.document.SavedTextBuf[PageId::frmP6][3] = "1.00 ";
    EXPECT_FALSE(modProposal::SomethingChanged(run.program));
    run.program.document.CurrentTextBuf[PageId::frmP2][3] = "a";
    run.program.document.SavedTextBuf[PageId::frmP2][3] = "a";
    EXPECT_FALSE(modProposal::SomethingChanged(run.program));
    run.program.document.CurrentTextBuf[PageId::frmP2][3] = "a ";
    EXPECT_TRUE(modProposal::SomethingChanged(run.program));
}

TEST(Dirty, TheRowFieldsAreCollectedBeforeTheComparison) {
    Living run;
    int collected = 0;
    run.program.hooks.CollectQtyBoxes = [&](Program& program) {
        ++collected;
        program.document.CurrentTextBuf[PageId::frmP2][0] = "\xA5"
                                                            "3\xA5"
                                                            "Chairs\xA7"
                                                            "1.00";
    };
    EXPECT_TRUE(modProposal::SomethingChanged(run.program));
    EXPECT_EQ(collected, 1);
}

TEST(AskingToSave, SaysNothingWhenNothingChanged) {
    Living run;
    EXPECT_TRUE(modProposal::MayGoOn(run.program));
}

TEST(AskingToSave, AChangedPropertyAsksToo) {
    Living run;
    run.program.format.PropTextChanges[PageId::frmP1][10].Dirty = true;
    run.surroundings.questions.ExpectBox(kSaveQuestion, Answer::No);
    EXPECT_TRUE(modProposal::MayGoOn(run.program));
}

TEST(AskingToSave, WhatWasTypedIntoTheLabelWindowCounts) {
    Living run;
    run.program.hooks.CloseLabelWindow = [](Program& program) {
        program.format.LabelSavedState[PageId::frmP1][9].Changed = true;
    };
    run.surroundings.questions.ExpectBox(kSaveQuestion, Answer::Cancel);
    EXPECT_FALSE(modProposal::MayGoOn(run.program));
}

TEST(AskingToSave, NewWithCancelChangesNothing) {
    Living run;
    run.SaveAs("Jane Roe");
    run.Touch();
    run.surroundings.questions.ExpectBox(kSaveQuestion, Answer::Cancel);
    modProposal::mnuFileNew_Click(run.program);
    EXPECT_EQ(run.TextOf(PageId::frmP1, 2), "Jane Roe");
    EXPECT_EQ(run.TextOf(PageId::frmP1, 10), "x");
    EXPECT_EQ(run.program.document.FileName, "Jane Roe.hef");
    EXPECT_FALSE(run.program.document.Cancelled);
}

TEST(AskingToSave, NewWithNoDropsTheText) {
    Living run;
    run.Touch();
    run.surroundings.questions.ExpectBox(kSaveQuestion, Answer::No);
    modProposal::mnuFileNew_Click(run.program);
    EXPECT_EQ(run.TextOf(PageId::frmP1, 10), "");
    EXPECT_FALSE(modProposal::SomethingChanged(run.program));
}

TEST(AskingToSave, NewWithYesSavesFirst) {
    Living run;
    run.TypeClient("Jane Roe");
    run.surroundings.questions.ExpectBox(kSaveQuestion, Answer::Yes);
    run.surroundings.questions.ExpectBox({"File was saved as Jane Roe.hef", Buttons::Ok, ""}, Answer::Ok);
    modProposal::mnuFileNew_Click(run.program);
    EXPECT_TRUE(run.folder.Has("Proposals/Jane Roe.hef"));
    EXPECT_EQ(run.program.document.FileName, "");
}

TEST(AskingToSave, YesWithoutAClientsNameKeepsTheTextAndStopsTheCommand) {
    Living run;
    run.Touch();
    for (const auto command : {modProposal::mnuFileNew_Click, modProposal::mnuFileOpenEvent_Click}) {
        run.surroundings.questions.ExpectBox(kSaveQuestion, Answer::Yes);
        run.surroundings.questions.Expect("Please enter the client's name in the appropriate area");
        command(run.program);
        EXPECT_EQ(run.TextOf(PageId::frmP1, 10), "x");
        EXPECT_EQ(modWindows::TopModal(run.program), nullptr);
        EXPECT_FALSE(run.program.document.Cancelled);
    }
}

TEST(AskingToSave, AWriteThatFailsKeepsTheTextAndStopsTheCommand) {
    Living run;
    run.TypeClient("Jane Roe");
    run.folder.MakeFolder("Proposals/Jane Roe.hef");
    run.surroundings.questions.ExpectBox(kSaveQuestion, Answer::Yes);
    run.surroundings.questions.Expect("An error occurred in SaveEventFile.");
    modProposal::mnuFileNew_Click(run.program);
    EXPECT_EQ(run.TextOf(PageId::frmP1, 2), "Jane Roe");
    EXPECT_FALSE(run.program.document.FileExists);
}

TEST(AskingToSave, NoAtTheDuplicateQuestionStopsTheCommand) {
    Living run;
    run.folder.Write("Proposals/Jane Roe.hef", "somebody's");
    run.TypeClient("Jane Roe");
    run.surroundings.questions.ExpectBox(kSaveQuestion, Answer::Yes);
    run.surroundings.questions.Expect("A file with this name (Jane Roe.hef)", Answer::No);
    run.surroundings.questions.ExpectBox({"File not saved.", Buttons::Ok, ""}, Answer::Ok);
    modProposal::mnuFileNew_Click(run.program);
    EXPECT_EQ(run.TextOf(PageId::frmP1, 2), "Jane Roe");
    EXPECT_EQ(run.folder.Read("Proposals/Jane Roe.hef"), "somebody's");
}

TEST(New, LaysTheContractsHeadingAndTheTwoLabels) {
    Living run;
    run.Label(PageId::frmP1, 9).Caption = "other";
    modProposal::mnuFileNew_Click(run.program);
    EXPECT_EQ(run.program.document.PageHeading, "Acme Events - Contract Proposal - ");
    // The screen shows what paper will.
    EXPECT_EQ(run.Label(PageId::frmP2, 0).Caption, "Acme Events - Contract Proposal - Page 2");
    EXPECT_EQ(run.Label(PageId::frmP6, 0).Caption, "Acme Events - Contract Proposal - Page 7");
    EXPECT_EQ(run.Label(PageId::frmP6_1, 0).Caption, "Acme Events - Contract Proposal - Page 7");
    EXPECT_EQ(run.Label(PageId::frmP1, 9).Caption, "Event Date");
    EXPECT_EQ(run.Label(PageId::frmP1, 10).Caption, "Event Time");
    EXPECT_EQ(run.Label(PageId::frmP1, 10).Left, 10080.0F);
    EXPECT_EQ(run.program.run.FUTFileName, "Default Terms.fut");
    EXPECT_EQ(run.program.document.DocumentKind, "Event");
}

TEST(New, TheSettingForPageTitlesStandsBeforeAnyHeading) {
    RunningProgram run(RunningProgram::Begin::NotStarted);
    run.Setting("Page Titles:", "Our own: ");
    run.Start();
    EXPECT_EQ(run.program.document.PageHeading, "Our own: ");
    EXPECT_EQ(run.Label(PageId::frmP2, 0).Caption, "Our own: Page 2");
    modProposal::mnuFileNew_Click(run.program);
    EXPECT_EQ(run.program.document.PageHeading, "Our own: ");
}

TEST(New, ReadsTheTermsUnlessAListIsPinnedAndShowsTheCalculatorWhenWanted) {
    Living run;
    int terms = 0;
    int calculators = 0;
    run.program.hooks.ReadFrequentlyUsedTerms = [&](Program&) { ++terms; };
    run.program.hooks.ShowCalculator = [&](Program&) { ++calculators; };
    modProposal::mnuFileNew_Click(run.program);
    EXPECT_EQ(terms, 1);
    EXPECT_EQ(calculators, 0);
    run.program.settings.ShowCalc = true;
    run.program.run.TermsPinned = true;
    run.program.run.FUTFileName = "Mine.fut";
    modProposal::mnuFileNew_Click(run.program);
    EXPECT_EQ(terms, 1);
    EXPECT_EQ(calculators, 1);
    EXPECT_EQ(run.program.run.FUTFileName, "Mine.fut");
}

TEST(Reset, EmptiesNamesTextsTotalsAndMarks) {
    Living run;
    run.SaveAs("Jane Roe");
    run.program.totals.AmountTable[20][PageId::frmP1] = 5;
    run.program.totals.Deposit = 7;
    run.program.document.PagesInUse = 2;
    run.program.format.PropTextChanges[PageId::frmP1][20].TaxExempt = true;
    run.program.format.PropertyLines = {"a"};
    run.program.document.HasNotes = true;
    run.program.document.SavedStateStale = true;
    run.program.totals.PageTaxable[PageId::frmP1] = 5;
    run.program.pages[PageId::frmP1].txt[20].SelStart = 3;
    run.program.pages[PageId::frmP6].txt[4].BackColor = colors::kOverLimit;
    ASSERT_EQ(modReset::StartNewFile(run.program), modReset::ResetResult::Done);
    EXPECT_EQ(run.program.pages[PageId::frmP1].txt[20].SelStart, 0);
    EXPECT_EQ(run.program.pages[PageId::frmP6].txt[4].BackColor, colors::kResting);
    const DocumentState& document = run.program.document;
    EXPECT_FALSE(document.SavedStateStale);
    EXPECT_EQ(run.program.totals.PageTaxable[PageId::frmP1], 0.0F);
    EXPECT_EQ(document.FileName, "");
    EXPECT_EQ(document.BaseName, "");
    EXPECT_EQ(document.FootnoteFile, "");
    EXPECT_EQ(document.DepositFile, "");
    EXPECT_FALSE(document.FileExists);
    EXPECT_EQ(document.PagesInUse, 6);
    EXPECT_EQ(document.ClientCaption, "Proposal for (Client's Name)");
    EXPECT_EQ(document.PageHeading, "Acme Events - Event Proposal - ");
    EXPECT_EQ(run.TextOf(PageId::frmP1, 2), "");
    EXPECT_EQ(run.program.totals.AmountTable[20][PageId::frmP1], 0.0F);
    EXPECT_EQ(run.program.totals.Deposit, 0.0F);
    EXPECT_EQ(run.program.totals.TaxRate, 8.25F);
    EXPECT_FALSE(run.program.format.PropTextChanges[PageId::frmP1][20].TaxExempt);
    EXPECT_TRUE(run.program.format.PropertyLines.empty());
    EXPECT_EQ(run.Main().Caption, "Quillbrook");
    EXPECT_EQ(run.Main().imgFootNotes.Picture, 0);
    EXPECT_EQ(run.Main().lblTotal.Caption, "Running Sub-Total = $ 0.00");
    EXPECT_EQ(run.Main().lblHighestPage.Caption, "Available Pages = 6");
    EXPECT_FALSE(run.Main()[CommandId::mnuFileDelete].Enabled);
    EXPECT_FALSE(run.Main()[CommandId::mnuOptCopyToBusinessAddressBook].Enabled);
    EXPECT_FALSE(run.program.guards.ResetActive);
    EXPECT_EQ(document.FilePath, run.Data());
}

TEST(Reset, GuardsAreNestedInTheOnesThatStand) {
    Living run;
    run.program.guards.ResetActive = true;
    static_cast<void>(modReset::StartNewFile(run.program));
    EXPECT_TRUE(run.program.guards.ResetActive);
}

/// A window about the proposal that keeps in mind under which name it closed.
class BesideWindow : public Window {
public:
    explicit BesideWindow(std::string& nameThen) : nameThen_(nameThen) {}
    [[nodiscard]] std::string_view Name() const override { return "frmBeside"; }
    [[nodiscard]] Modality Mode() const override { return Modality::Modeless; }
    [[nodiscard]] bool BelongsToProposal() const override { return true; }
    void Form_Cancel(Program&) override {}
    void Form_Unload(Program& program) override { nameThen_ = program.document.FileName; }

private:
    std::string& nameThen_;
};

/// A window with work about the proposal that its person does not want to leave.
class StayingWindow : public Window {
public:
    [[nodiscard]] std::string_view Name() const override { return "frmStaying"; }
    [[nodiscard]] Modality Mode() const override { return Modality::Modeless; }
    [[nodiscard]] bool BelongsToProposal() const override { return true; }
    [[nodiscard]] bool MayLeave(Program&, Leaving) override { return false; }
};

TEST(AskingToSave, IsNotEvenDoneWhileAWindowBesideTheProposalMustStay) {
    Living run;
    run.Touch();
    modWindows::Show(run.program, std::make_unique<StayingWindow>());
    EXPECT_FALSE(modProposal::MayGoOn(run.program));
    EXPECT_TRUE(run.surroundings.questions.Shown.empty());
    modProposal::mnuFileNew_Click(run.program);
    EXPECT_EQ(run.TextOf(PageId::frmP1, 10), "x");
}

TEST(Reset, WindowsAboutTheProposalCloseBeforeItsNameGoes) {
    Living run;
    std::string nameThen = "not closed";
    run.program.document.FileName = "Jane Roe.hef";
    modWindows::Show(run.program, std::make_unique<BesideWindow>(nameThen));
    static_cast<void>(modReset::StartNewFile(run.program));
    EXPECT_EQ(nameThen, "Jane Roe.hef");
}

TEST(Reset, WhatIsInHandIsSettledWhileTheProposalStillStands) {
    Living run;
    run.SaveAs("Jane Roe");
    run.Touch();
    std::vector<std::string> names;
    std::vector<std::string> texts;
    run.program.hooks.CloseLabelWindow = [&](Program& program) {
        names.push_back(program.document.FileName);
    };
    run.program.hooks.DeSelectAllControls = [&](Program&) { texts.push_back(run.TextOf(PageId::frmP1, 10)); };
    static_cast<void>(modReset::StartNewFile(run.program));
    ASSERT_FALSE(names.empty());
    EXPECT_EQ(names.front(), "Jane Roe.hef") << "what is typed of a label is that proposal's";
    ASSERT_FALSE(texts.empty());
    EXPECT_EQ(texts.front(), "x") << "a selection ends before its text goes";
}

TEST(Reset, AFormatFindsTheTitleInTheMiddleOfThePage) {
    Living run;
    run.SaveAs("Jane Roe");
    float left = 0;
    run.program.hooks.OpenFormatFile = [&](Program&) { left = run.Label(PageId::frmP1, 33).Left; };
    run.program.format.FormatOpen = true;
    static_cast<void>(modReset::StartNewFile(run.program));
    EXPECT_EQ(left, 6120 - 1400) << "28 characters of 100 twips";
}

const ScriptedQuestions::Box kFormatQuestion{
    "Proceeding with this action will end the editing session of your file format. Continue?", Buttons::YesNo,
    "Ending Format Editing"};

TEST(Reset, GoingOnWithAFormatStopsItAndLeavesNoGuardBehind) {
    Living run;
    run.SaveAs("Jane Roe");
    run.program.format.EditingFormat = true;
    std::string nameThen = "not closed";
    modWindows::Show(run.program, std::make_unique<BesideWindow>(nameThen));
    run.surroundings.questions.ExpectBox(kFormatQuestion, Answer::No);
    run.surroundings.questions.ExpectBox({"Resume Editing.", Buttons::Ok, ""}, Answer::Ok);
    EXPECT_EQ(modReset::StartNewFile(run.program), modReset::ResetResult::Refused);
    EXPECT_EQ(nameThen, "not closed"); // everything is as it was
    EXPECT_EQ(run.program.document.FileName, "Jane Roe.hef");
    EXPECT_TRUE(run.program.format.EditingFormat);
    EXPECT_FALSE(run.program.guards.ResetActive);
}

TEST(Reset, EndingTheFormatEmptiesTheProposal) {
    Living run;
    run.SaveAs("Jane Roe");
    run.program.format.EditingFormat = true;
    run.surroundings.questions.ExpectBox(kFormatQuestion, Answer::Yes);
    EXPECT_EQ(modReset::StartNewFile(run.program), modReset::ResetResult::Done);
    EXPECT_EQ(run.program.document.FileName, "");
    EXPECT_FALSE(run.program.format.EditingFormat);
}

TEST(SaveAs, AsksForANameAndSavesUnderIt) {
    Living run;
    run.SaveAs("Jane Roe");
    run.surroundings.questions.ExpectInput("Saving File As...", "  Second  ");
    run.surroundings.questions.ExpectBox({"File was saved as Second.hef", Buttons::Ok, ""}, Answer::Ok);
    modProposal::mnuFileSaveAs_Click(run.program);
    EXPECT_EQ(run.surroundings.questions.Prompts.back(), "Please input the File Name below.");
    EXPECT_EQ(run.surroundings.questions.Initials.back(), "Jane Roe");
    EXPECT_TRUE(run.folder.Has("Proposals/Jane Roe.hef"));
    EXPECT_EQ(run.folder.Read("Proposals/Second.hef").size(), 20630U);
    EXPECT_EQ(run.program.document.FileName, "Second.hef");
    EXPECT_EQ(run.program.document.BaseName, "Second");
    EXPECT_EQ(run.program.document.TextFileName, "Second.txt");
    EXPECT_EQ(run.Main().Caption, "Quillbrook - File Name = Second.hef");
    EXPECT_FALSE(run.program.document.SaveAsActive);
    EXPECT_FALSE(modFile::PropertiesChanged(run.program));
    // A proposal without properties of its own keeps the font it was written in.
    EXPECT_EQ(run.folder.Read("Proposals/Second.hpf"),
              "UDP.FontName=Times New Roman .FontSize=10 .FontColor=0 .FontItalic=False\r\n");
}

TEST(SaveAs, BringsTheFiguresUpToDateBeforeItAsks) {
    Living run;
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 20);
    typist.Type("100");
    typist.Click(PageId::frmP1, 2);
    run.Area(PageId::frmP6, 0).Text = "stale";
    run.surroundings.questions.ExpectInput("Saving File As...", "");
    run.surroundings.questions.Expect("No name entered.");
    modProposal::SaveEventFileAs(run.program);
    EXPECT_EQ(run.TextOf(PageId::frmP6, 0), "100.00");
}

TEST(SaveAs, TheLayoutThatGoesAlongHasTheNewTitle) {
    Living run;
    run.SaveAs("Jane Roe");
    std::vector<std::string> titles;
    run.program.hooks.AssignPropChanges = [&](Program&) {
        titles.push_back(run.Label(PageId::frmP1, 33).Caption);
    };
    run.program.format.PropTextChanges[PageId::frmP1][10].Dirty = true;
    run.surroundings.questions.ExpectInput("Saving File As...", "Second");
    run.surroundings.questions.Expect("File was saved as Second.hef");
    modProposal::SaveEventFileAs(run.program);
    EXPECT_EQ(titles, (std::vector<std::string>{"Proposal for Second", "Proposal for Second"}));
}

TEST(SaveAs, OfAProposalWithoutANameThatCannotBeWrittenLeavesItWithoutOne) {
    Living run;
    run.Touch();
    run.folder.MakeFolder("Proposals/Second.hef");
    run.surroundings.questions.ExpectInput("Saving File As...", "Second");
    run.surroundings.questions.Expect("An error occurred in SaveEventFile.");
    modProposal::mnuFileSaveAs_Click(run.program);
    const DocumentState& document = run.program.document;
    EXPECT_EQ(document.BaseName, "");
    EXPECT_EQ(document.FileName, "");
    EXPECT_EQ(document.FootnoteFile, "");
    EXPECT_EQ(document.DepositFile, "");
    EXPECT_FALSE(document.FileExists);
}

TEST(SaveAs, WithoutANameNothingIsSaved) {
    for (const std::string reply : {"", "   "}) {
        Living run;
        run.surroundings.questions.ExpectInput("Saving File As...", reply);
        run.surroundings.questions.ExpectBox({"No name entered. File not saved.", Buttons::Ok, ""},
                                             Answer::Ok);
        modProposal::SaveEventFileAs(run.program);
        EXPECT_FALSE(run.program.document.FileExists);
    }
}

TEST(SaveAs, AnIllegalNameIsRefused) {
    Living run;
    run.surroundings.questions.ExpectInput("Saving File As...", "a/b");
    run.surroundings.questions.Expect("Action Cancelled. File Name cannot include any of ");
    modProposal::SaveEventFileAs(run.program);
    EXPECT_FALSE(run.program.document.SaveAsActive);
    EXPECT_EQ(run.program.document.FileName, "");
}

const ScriptedQuestions::Box kOverwrite{"A file with the name Jane Roe.hef already exists. Overwrite?",
                                        Buttons::YesNoCancel, "Preparing to Overwrite Existing Event File"};

TEST(SaveAs, OverTheOpenFileItselfAsksToo) {
    for (const Answer answer : {Answer::No, Answer::Cancel}) {
        Living run;
        run.SaveAs("Jane Roe");
        run.Touch();
        run.surroundings.questions.ExpectInput("Saving File As...", "Jane Roe");
        run.surroundings.questions.ExpectBox(kOverwrite, answer);
        run.surroundings.questions.ExpectBox({"Action Cancelled. File not saved.", Buttons::Ok, ""},
                                             Answer::Ok);
        modProposal::SaveEventFileAs(run.program);
        EXPECT_TRUE(modProposal::SomethingChanged(run.program));
    }
    Living run;
    run.SaveAs("Jane Roe");
    run.Touch();
    run.surroundings.questions.ExpectInput("Saving File As...", "Jane Roe");
    run.surroundings.questions.ExpectBox(kOverwrite, Answer::Yes);
    run.surroundings.questions.Expect("File was saved as Jane Roe.hef");
    modProposal::SaveEventFileAs(run.program);
    EXPECT_FALSE(modProposal::SomethingChanged(run.program));
}

TEST(SaveAs, WithAChangedClientAsksTwice) {
    Living run;
    run.folder.Write("Proposals/Jane Roe.hef", "older");
    run.TypeClient("Ann");
    run.surroundings.questions.ExpectInput("Saving File As...", "Jane Roe");
    run.surroundings.questions.ExpectBox(kOverwrite, Answer::Yes);
    run.surroundings.questions.Expect("A file with this name (Jane Roe.hef)", Answer::No);
    run.surroundings.questions.Expect("File not saved.");
    modProposal::SaveEventFileAs(run.program);
    EXPECT_EQ(run.folder.Read("Proposals/Jane Roe.hef"), "older");
    // The names are those of before.
    EXPECT_EQ(run.program.document.FileName, "Ann.hef");
    EXPECT_FALSE(run.program.document.FileExists);
}

TEST(SaveAs, OfANewProposalWithoutAClientAsksOnce) {
    Living run;
    run.folder.Write("Proposals/Jane Roe.hef", "older");
    run.Touch();
    run.surroundings.questions.ExpectInput("Saving File As...", "Jane Roe");
    run.surroundings.questions.ExpectBox(kOverwrite, Answer::Yes);
    run.surroundings.questions.Expect("File was saved as Jane Roe.hef");
    modProposal::SaveEventFileAs(run.program);
    EXPECT_NE(run.folder.Read("Proposals/Jane Roe.hef"), "older");
    EXPECT_TRUE(run.program.document.FileExists);
}

TEST(SaveAs, FootnotesAndDepositsGoWithTheProposal) {
    Living run;
    run.SaveAs("Jane Roe");
    run.folder.Write("Proposals/Jane Roe.hxt", "notes");
    run.folder.Write("Proposals/Jane Roe.dep", "deposits");
    run.surroundings.questions.ExpectInput("Saving File As...", "Second");
    run.surroundings.questions.Expect("File was saved as Second.hef");
    modProposal::SaveEventFileAs(run.program);
    EXPECT_EQ(run.folder.Read("Proposals/Second.hxt"), "notes");
    EXPECT_EQ(run.folder.Read("Proposals/Second.dep"), "deposits");
    EXPECT_EQ(run.folder.Read("Proposals/Jane Roe.hxt"), "notes");
    EXPECT_EQ(run.program.document.FootnoteFile, "Second.hxt");
}

TEST(SaveAs, ADoubleQuoteIsLegalInAName) {
    Living run;
    run.surroundings.questions.ExpectInput("Saving File As...", "The \"Roe\" party");
    run.surroundings.questions.Expect("File was saved as The \"Roe\" party.hef");
    modProposal::SaveEventFileAs(run.program);
    EXPECT_TRUE(run.folder.Has("Proposals/The \"Roe\" party.hef"));
}

TEST(FileNames, EightCharactersAreRefusedWithOneMessage) {
    Living run;
    const ScriptedQuestions::Box refusal{"Action Cancelled. File Name cannot include any of \r\n"
                                         "the following characters: / \\ : * ? < > |",
                                         Buttons::Ok, ""};
    for (const char character : std::string("/\\:*?<>|")) {
        run.surroundings.questions.ExpectBox(refusal, Answer::Ok);
        EXPECT_TRUE(modNames::IllegalFileName(run.program, std::string("a") + character + "b"));
    }
    EXPECT_FALSE(modNames::IllegalFileName(run.program, "a\"b"));
    EXPECT_FALSE(modNames::IllegalFileName(run.program, ""));
}

TEST(FileNames, OfTwoHundredAndThirtyBytesOnTheDiskAreTheLongest) {
    const Living run;
    EXPECT_TRUE(modNames::CanBeAFile(std::string(226, 'x') + ".hef"));
    EXPECT_FALSE(modNames::CanBeAFile(std::string(227, 'x') + ".hef"));
    // An e with an acute accent takes two there.
    EXPECT_TRUE(modNames::CanBeAFile(std::string(113, '\xE9') + ".hef"));
    EXPECT_FALSE(modNames::CanBeAFile(std::string(114, '\xE9') + ".hef"));
}

TEST(FileNames, AnEmptiedClientLeavesTheTextItsName) {
    Living run;
    run.TypeClient("J");
    EXPECT_EQ(run.program.document.TextFileName, "J.txt");
    Typist(run.program).Press(keys::kBackspace);
    EXPECT_EQ(run.program.document.FileName, ".hef");
    EXPECT_EQ(run.program.document.TextFileName, "J.txt");
}

TEST(FileNames, TheDuplicateQuestionTellsTheFilesTimeAndYesDeletesNothing) {
    Living run;
    run.folder.Write("Proposals/Jane Roe.hef", "older");
    run.surroundings.questions.Expect("A file with this name (Jane Roe.hef)\r\n"
                                      "already exists. Do you want to replace the\r\n"
                                      "existing file, created on:\r\n",
                                      Answer::Yes);
    modNames::ShowDuplicateFileOptions(run.program, "Jane Roe.hef");
    const ScriptedQuestions::Box& box = run.surroundings.questions.Shown.back();
    EXPECT_EQ(box.Title, "Duplicate File Name on Record");
    EXPECT_TRUE(box.Text.ends_with("\r\n\r\nwith this one?"));
    EXPECT_EQ(run.folder.Read("Proposals/Jane Roe.hef"), "older");
    EXPECT_FALSE(run.program.document.Cancelled);
}

TEST(SaveAs, PropertiesThatCannotBeWrittenStayUnsaved) {
    Living run;
    run.SaveAs("Jane Roe");
    run.folder.MakeFolder("Proposals/Second.hpf");
    run.surroundings.questions.ExpectInput("Saving File As...", "Second");
    run.surroundings.questions.Expect("File was saved as Second.hef");
    run.surroundings.questions.Expect("An error occurred in SavePropertyFile.");
    modProposal::mnuFileSaveAs_Click(run.program);
    EXPECT_TRUE(modFile::PropertiesChanged(run.program));
    run.surroundings.questions.ExpectBox(kSaveQuestion, Answer::Cancel);
    EXPECT_FALSE(modProposal::MayGoOn(run.program)) << "they are asked about when the proposal is left";
}

TEST(Delete, AsksAndLeavesEverythingOnNo) {
    Living run;
    run.SaveAs("Jane Roe");
    run.surroundings.questions.ExpectBox(kDeleteQuestion, Answer::No);
    modProposal::mnuFileDelete_Click(run.program);
    EXPECT_TRUE(run.folder.Has("Proposals/Jane Roe.hef"));
    EXPECT_EQ(run.TextOf(PageId::frmP1, 2), "Jane Roe");
}

TEST(Delete, TakesTheFilesOfItsNameAndStartsAnew) {
    Living run;
    run.SaveAs("Jane Roe");
    for (const std::string extension : {".hpf", ".txt", ".hxt", ".dep", ".old"}) {
        run.folder.Write("Proposals/Jane Roe" + extension, "x");
    }
    run.folder.Write("Proposals/Jane Roes.hpf", "x");
    run.surroundings.questions.ExpectBox(kDeleteQuestion, Answer::Yes);
    modProposal::mnuFileDelete_Click(run.program);
    for (const std::string extension : {".hef", ".hpf", ".txt", ".hxt", ".dep"}) {
        EXPECT_FALSE(run.folder.Has("Proposals/Jane Roe" + extension)) << extension;
    }
    EXPECT_TRUE(run.folder.Has("Proposals/Jane Roe.old"));
    EXPECT_TRUE(run.folder.Has("Proposals/Jane Roes.hpf"));
    EXPECT_EQ(run.program.main.Focus, (FieldRef{PageId::frmP1, FieldKind::txt, 0}));
    EXPECT_EQ(run.TextOf(PageId::frmP1, 2), "");
    EXPECT_FALSE(run.program.document.FileExists);
}

TEST(Delete, WithoutAFileSaysSoAndNothingElse) {
    Living run;
    run.TypeClient("Jane Roe");
    run.surroundings.questions.ExpectBox(
        {"No such file exists. Select New to start a new proposal (Ctrl + N).", Buttons::Ok, ""}, Answer::Ok);
    modProposal::mnuFileDelete_Click(run.program);
    EXPECT_EQ(run.TextOf(PageId::frmP1, 2), "Jane Roe");
}

TEST(Delete, AFileThatHasGoneMeanwhileIsToldAndTheTextStays) {
    Living run;
    run.SaveAs("Jane Roe");
    std::filesystem::remove(run.folder / "Proposals/Jane Roe.hef");
    run.surroundings.questions.ExpectBox(kDeleteQuestion, Answer::Yes);
    run.surroundings.questions.ExpectBox({"An Error occurred trying to delete the file.", Buttons::Ok, ""},
                                         Answer::Ok);
    run.surroundings.questions.Expect("An error occurred in mnuFileDelete_Click.");
    modProposal::mnuFileDelete_Click(run.program);
    EXPECT_EQ(run.TextOf(PageId::frmP1, 2), "Jane Roe");
}

TEST(Delete, OfABackupLeavesTheBackupsBehind) {
    Living run;
    run.SaveAs("Jane Roe");
    modFile::BackupThisFile(run.program);
    run.OpenBackup("Jane Roe.hef");
    ASSERT_TRUE(run.program.document.FromBackup);
    run.surroundings.questions.ExpectBox(kDeleteQuestion, Answer::Yes);
    modProposal::mnuFileDelete_Click(run.program);
    EXPECT_FALSE(run.folder.Has("Proposals/Backup/Jane Roe.hef"));
    EXPECT_TRUE(run.folder.Has("Proposals/Jane Roe.hef"));
    EXPECT_FALSE(run.program.document.FromBackup);
    EXPECT_FALSE(run.RestoreEnabled());
    EXPECT_EQ(run.program.document.FilePath, run.Data());
}

TEST(Backup, OpeningOneAllowsRestoringAndOpeningAnotherEndsThat) {
    Living run;
    run.SaveAs("Jane Roe");
    modFile::BackupThisFile(run.program);
    EXPECT_FALSE(run.RestoreEnabled());
    run.OpenBackup("Jane Roe.hef");
    EXPECT_TRUE(run.program.document.FromBackup);
    EXPECT_TRUE(run.RestoreEnabled());
    EXPECT_EQ(run.program.document.FilePath, run.folder / "Proposals/Backup/");
    run.Open("Jane Roe.hef");
    EXPECT_FALSE(run.program.document.FromBackup);
    EXPECT_FALSE(run.RestoreEnabled());
    EXPECT_EQ(run.program.document.FilePath, run.Data());
}

TEST(Backup, NewAfterOneWorksInTheDataFolderAgain) {
    Living run;
    run.SaveAs("Jane Roe");
    modFile::BackupThisFile(run.program);
    run.OpenBackup("Jane Roe.hef");
    modProposal::mnuFileNew_Click(run.program);
    EXPECT_FALSE(run.program.document.FromBackup);
    EXPECT_FALSE(run.RestoreEnabled());
    EXPECT_EQ(run.program.document.FilePath, run.Data());
}

TEST(Backup, RestoringPutsTheFileBackInPlaceOfTheOther) {
    Living run;
    run.SaveAs("Jane Roe");
    modFile::BackupThisFile(run.program);
    const std::string backup = run.folder.Read("Proposals/Backup/Jane Roe.hef");
    run.folder.Write("Proposals/Jane Roe.hef", "spoilt");
    run.folder.Write("Proposals/Jane Roe.hxt", "notes");
    run.OpenBackup("Jane Roe.hef");
    const std::string question = "Replace the proposal Jane Roe.hef with this backup copy?";
    const ScriptedQuestions::Box box{question, Buttons::YesNo, "Replacing the Original Proposal"};
    run.surroundings.questions.ExpectBox(box, Answer::No);
    modProposal::mnuFileRestoreFromBackup_Click(run.program);
    EXPECT_EQ(run.folder.Read("Proposals/Jane Roe.hef"), "spoilt");
    EXPECT_TRUE(run.program.document.FromBackup);
    EXPECT_TRUE(run.RestoreEnabled());
    EXPECT_EQ(run.surroundings.questions.Manners.back().Default, Answer::No);
    EXPECT_EQ(run.surroundings.questions.Manners.back().Lost,
              "The file " + run.Data() + "Jane Roe.hef as saved last will be replaced.");
    run.surroundings.questions.ExpectBox(box, Answer::Yes);
    modProposal::mnuFileRestoreFromBackup_Click(run.program);
    EXPECT_EQ(run.folder.Read("Proposals/Jane Roe.hef"), backup);
    EXPECT_EQ(run.folder.Read("Proposals/Backup/Jane Roe.hef"), backup);
    EXPECT_EQ(run.program.main.Notice, "Backup put back, proposal saved: " + run.Data() + "Jane Roe.hef");
    EXPECT_EQ(run.program.document.FilePath, run.Data());
    EXPECT_EQ(run.Main().lblDir.Caption, "Current Folder = " + run.Data());
    EXPECT_EQ(run.program.document.ClientCaption, "Proposal for Jane Roe");
    EXPECT_EQ(run.Main().imgFootNotes.Picture, 1);
    EXPECT_FALSE(run.program.document.FromBackup);
    EXPECT_FALSE(run.RestoreEnabled());
}

TEST(Backup, RestoringAsksNothingWhereNothingIsLost) {
    Living run;
    run.SaveAs("Jane Roe");
    modFile::BackupThisFile(run.program);
    run.folder.Write("Proposals/Jane Roe.hef", run.folder.Read("Proposals/Backup/Jane Roe.hef"));
    run.OpenBackup("Jane Roe.hef");
    modProposal::mnuFileRestoreFromBackup_Click(run.program);
    EXPECT_FALSE(run.program.document.FromBackup) << "both are the same";
    run.folder.Write("Proposals/Backup/Jane Roe.hpf", "frmP1.txt(10).FontBold=True\r\n");
    run.folder.Write("Proposals/Jane Roe.hpf", "frmP1.txt(11).FontBold=True\r\n");
    run.OpenBackup("Jane Roe.hef");
    run.surroundings.questions.Expect("Replace the proposal Jane Roe.hef", Answer::No);
    modProposal::mnuFileRestoreFromBackup_Click(run.program);
    EXPECT_EQ(run.surroundings.questions.Manners.back().Lost,
              "The file " + run.Data() + "Jane Roe.hef and its layout as saved last will be replaced.");
    EXPECT_EQ(run.folder.Read("Proposals/Jane Roe.hpf"), "frmP1.txt(11).FontBold=True\r\n");
    std::filesystem::remove(run.folder / "Proposals/Jane Roe.hpf");
    std::filesystem::remove(run.folder / "Proposals/Jane Roe.hef");
    run.OpenBackup("Jane Roe.hef");
    modProposal::mnuFileRestoreFromBackup_Click(run.program);
    EXPECT_TRUE(run.folder.Has("Proposals/Jane Roe.hef"));
}

TEST(Backup, OneThatHasGoneMeanwhileLeavesTheOtherFile) {
    Living run;
    run.SaveAs("Jane Roe");
    modFile::BackupThisFile(run.program);
    run.OpenBackup("Jane Roe.hef");
    std::filesystem::remove(run.folder / "Proposals/Backup/Jane Roe.hef");
    run.surroundings.questions.Expect("An error occurred in mnuFileRestoreFromBackup_Click.");
    modProposal::mnuFileRestoreFromBackup_Click(run.program);
    EXPECT_TRUE(run.folder.Has("Proposals/Jane Roe.hef"));
    EXPECT_TRUE(run.program.document.FromBackup);
}

TEST(Titles, TheClientsLineStandsOnEveryPageAndInTheStrip) {
    Living run;
    run.SaveAs("Jane Roe");
    EXPECT_EQ(run.Label(PageId::frmP1, 33).Caption, "Proposal for Jane Roe");
    EXPECT_EQ(run.Label(PageId::frmP2, 36).Caption, "Proposal for Jane Roe");
    EXPECT_EQ(run.Label(PageId::frmP5, 36).Caption, "Proposal for Jane Roe");
    EXPECT_EQ(run.Label(PageId::frmP6, 64).Caption, "Proposal for Jane Roe - Our Copy");
    EXPECT_EQ(run.Label(PageId::frmP6_1, 64).Caption, "Proposal for Jane Roe - Client's Copy");
    // 21 characters of 100 twips each around the middle of the page.
    EXPECT_EQ(run.Label(PageId::frmP1, 33).Left, 6120.0F - 1050.0F);
    EXPECT_EQ(run.Main().lblEvent.Caption, "Proposal for Jane Roe");
    EXPECT_EQ(run.Main().Caption, "Quillbrook - File Name = Jane Roe.hef");
}

TEST(Titles, AFormatStandsBeforeTheFileName) {
    Living run;
    run.SaveAs("Jane Roe");
    run.program.format.FormatOpen = true;
    run.program.format.FormatName = "Mine.fmt";
    run.Touch();
    run.surroundings.questions.Expect("File was saved as Jane Roe.hef");
    modProposal::mnuFileSaveEvent_Click(run.program);
    EXPECT_EQ(run.Main().Caption, "Quillbrook: Format File = Mine.fmt - File Name = Jane Roe.hef");
}

TEST(FileNames, AQuestionThatCouldNotBePutLetsNothingBeWritten) {
    Living run;
    run.program.document.Cancelled = false;
    run.surroundings.questions.Expect("ShowDuplicateFileOptions"); // the file that was there has gone
    modNames::ShowDuplicateFileOptions(run.program, run.Data(), "Gone.hef");
    EXPECT_TRUE(run.program.document.Cancelled);
}

TEST(Backup, WhatWasPutBackIsTheProgramsOwnAndIsSavedOverWithoutAQuestion) {
    Living run;
    run.SaveAs("Jane Roe");
    modFile::BackupThisFile(run.program);
    run.OpenBackup("Jane Roe.hef");
    run.Touch();
    // The backup is newer than what is on show.
    std::string newer = run.folder.Read("Proposals/Backup/Jane Roe.hef");
    newer[200] = '7';
    run.folder.Write("Proposals/Backup/Jane Roe.hef", newer);
    run.surroundings.questions.Expect("Replace the proposal Jane Roe.hef", Answer::Yes);
    modProposal::mnuFileRestoreFromBackup_Click(run.program);
    EXPECT_EQ(run.folder.Read("Proposals/Jane Roe.hef"), newer);
    EXPECT_FALSE(files::ChangedSince(run.Data() + "Jane Roe.hef", run.program.document.SavedFile));
    EXPECT_EQ(run.program.main.Notice, "Backup put back, proposal saved: " + run.Data() + "Jane Roe.hef");
}

TEST(SaveAs, ThatCannotBeWrittenLeavesEveryNameAsItWas) {
    Living run;
    run.SaveAs("Jane Roe");
    run.surroundings.questions.ExpectInput("Saving File As...", "Second");
    {
        const FailingDisk disk{{FailingDisk::Call::Write, 1, ENOSPC, FailingDisk::kForever}};
        run.surroundings.questions.Expect("Disk full");
        modProposal::mnuFileSaveAs_Click(run.program);
    }
    const DocumentState& document = run.program.document;
    EXPECT_EQ(document.BaseName, "Jane Roe");
    EXPECT_EQ(document.FileName, "Jane Roe.hef");
    EXPECT_EQ(document.FootnoteFile, "Jane Roe.hxt");
    EXPECT_EQ(document.DepositFile, "Jane Roe.dep");
    EXPECT_TRUE(document.FileExists);
    EXPECT_EQ(document.ClientCaption, "Proposal for Jane Roe");
    EXPECT_EQ(run.Label(PageId::frmP1, 33).Caption, "Proposal for Jane Roe");
    EXPECT_FALSE(document.SaveAsActive);
    EXPECT_FALSE(run.folder.Has("Proposals/Second.hef"));
}

TEST(Backup, RestoringBringsTheLayoutAlongAndFollowsItsFile) {
    Living run;
    run.SaveAs("Jane Roe");
    modFile::BackupThisFile(run.program);
    run.folder.Write("Proposals/Backup/Jane Roe.hpf", "frmP1.txt(10).FontBold=True\r\n");
    run.OpenBackup("Jane Roe.hef");
    run.program.document.FolderOnShow = "elsewhere";
    run.folder.Write("Proposals/Backup/Jane Roe.hpf", "frmP1.txt(12).FontBold=True\r\n"); // a newer one
    modProposal::mnuFileRestoreFromBackup_Click(run.program);
    EXPECT_EQ(run.folder.Read("Proposals/Jane Roe.hpf"), "frmP1.txt(12).FontBold=True\r\n");
    EXPECT_EQ(run.program.format.PropertyPath, run.Data() + "Jane Roe.hpf");
    EXPECT_EQ(run.program.format.PropertySeen, files::SeenIn("frmP1.txt(12).FontBold=True\r\n"));
    EXPECT_EQ(run.program.document.FolderOnShow, run.Data());
    EXPECT_FALSE(run.program.document.HasNotes);
    EXPECT_EQ(run.Label(PageId::frmP1, 33).Caption, "Proposal for Jane Roe");
}

TEST(Backup, RestoringLooksForTheFootnotesOfTheMomentAndLaysTheTitle) {
    Living run;
    run.SaveAs("Jane Roe");
    modFile::BackupThisFile(run.program);
    run.folder.Write("Proposals/Jane Roe.hxt", "notes");
    run.OpenBackup("Jane Roe.hef");
    EXPECT_TRUE(run.program.document.HasNotes);
    std::filesystem::remove(run.folder / "Proposals/Jane Roe.hxt");
    run.Label(PageId::frmP1, 33).Caption = "spoilt";
    modProposal::mnuFileRestoreFromBackup_Click(run.program);
    EXPECT_FALSE(run.program.document.HasNotes);
    EXPECT_EQ(run.Label(PageId::frmP1, 33).Caption, "Proposal for Jane Roe");
}

TEST(Backup, SavingOneAmongTheProposalsMovesItThereAndANoLeavesItWhereItIs) {
    Living run;
    run.SaveAs("Jane Roe");
    modFile::BackupThisFile(run.program);
    run.OpenBackup("Jane Roe.hef");
    run.surroundings.questions.Expect("A file with this name (Jane Roe.hef)", Answer::No);
    run.surroundings.questions.Expect("File not saved.");
    modProposal::mnuFileSaveEvent_Click(run.program);
    EXPECT_TRUE(run.program.document.FileExists);
    EXPECT_TRUE(run.program.document.FromBackup);
    EXPECT_EQ(run.program.document.FilePath, run.folder / "Proposals/Backup/");
    EXPECT_EQ(run.Main().lblDir.Caption, "Current Folder = " + (run.folder / "Proposals/Backup/"));
    run.surroundings.questions.Expect("A file with this name (Jane Roe.hef)", Answer::Yes);
    run.surroundings.questions.Expect("File was saved as Jane Roe.hef");
    modProposal::mnuFileSaveEvent_Click(run.program);
    EXPECT_EQ(run.program.document.FilePath, run.Data());
    EXPECT_EQ(run.Main().lblDir.Caption, "Current Folder = " + run.Data());
    EXPECT_FALSE(run.program.document.FromBackup);
}

TEST(New, FromALaterPageBeginsInTheFirstFieldOfTheFirst) {
    Living run;
    run.SaveAs("Jane Roe");
    person::TurnTo(run.program, 3);
    modProposal::mnuFileNew_Click(run.program);
    EXPECT_EQ(run.program.main.PageInFront, PageId::frmP1);
    EXPECT_EQ(run.program.main.CurrentPage, 0);
    EXPECT_EQ(run.program.main.Focus, (FieldRef{PageId::frmP1, FieldKind::txt, 0}));
}

} // namespace
