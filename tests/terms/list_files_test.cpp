#include "terms/list_files.h"

#include "program/keys.h"
#include "support/person.h"
#include "support/typist.h"
#include "terms/area_terms.h"
#include "terms/open_list.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

// Several lists: which one is in use, the window's list of lists, new and deleted ones.

namespace {

void WriteLists(const RunningProgram& run) {
    run.folder.Write("Proposals/Catering.fut", "Soup\r\nBread");
    run.folder.Write("Proposals/Wedding Terms.fut", "Arch");
}

std::string ListOfLists(const frmFUT& window) {
    std::string all;
    for (const std::string& name : window.lstMoreFUT.Items) {
        all += name + "|";
    }
    return all;
}

TEST(Lists, F5ShowsThemAndEnterOpensOne) {
    TermsRun run("Chair");
    WriteLists(run);
    Typist typist(run.program);
    typist.Click(PageId::frmP2, 3);
    const int keysBefore = run.program.editing.KeyCounter;
    typist.Press(keys::kF5);
    EXPECT_EQ(run.program.editing.KeyCounter, keysBefore + 1) << "it counts as a key of the area";
    frmFUT& window = run.List();
    EXPECT_EQ(ListOfLists(window), "Catering.fut|Default Terms.fut|Wedding Terms.fut|");
    EXPECT_TRUE(window.lstMoreFUT.Visible);
    EXPECT_FALSE(window.lstFUT.Visible);
    EXPECT_FALSE(window.cmdOpt[1].Enabled);
    EXPECT_FALSE(window.cmdCase[0].Enabled);
    EXPECT_FALSE(window.mnuFileDefaultFUT.Enabled);
    run.surroundings.questions.ExpectBox({"No list selected.", Buttons::Ok, ""}, Answer::Ok);
    window.lstMoreFUT_Click(run.program);
    window.lstMoreFUT_Move(0);
    EXPECT_EQ(window.Caption, "Default Terms") << "moving opens nothing";
    window.lstMoreFUT_Click(run.program);
    EXPECT_EQ(window.Caption, "Catering");
    EXPECT_EQ(run.InMemory(), "Soup|Bread|");
    EXPECT_TRUE(window.lstFUT.Visible);
    EXPECT_TRUE(window.cmdOpt[1].Enabled);
    EXPECT_EQ(run.program.main.Focus, (FieldRef{PageId::frmP2, FieldKind::txt, 3}));
    EXPECT_TRUE(run.program.main.BringUp);
}

TEST(Lists, F5ShowsTheClosedWindowFirst) {
    TermsRun run("Chair");
    Typist typist(run.program);
    typist.Click(PageId::frmP2, 3);
    run.List().Form_Cancel(run.program);
    modWindows::Sweep(run.program);
    typist.Press(keys::kF5);
    EXPECT_TRUE(run.List().lstMoreFUT.Visible);
    EXPECT_TRUE(run.program.run.FUTShown);
}

TEST(Lists, F6OpensTheNextOneAndWraps) {
    TermsRun run("Chair");
    WriteLists(run);
    Typist typist(run.program);
    typist.Click(PageId::frmP2, 3);
    typist.Press(keys::kF6);
    EXPECT_EQ(run.List().Caption, "Wedding Terms");
    EXPECT_EQ(run.InMemory(), "Arch|");
    EXPECT_EQ(run.program.main.Notice, "The frequent terms list is now \"Wedding Terms\".");
    typist.Press(keys::kF6);
    EXPECT_EQ(run.List().Caption, "Catering");
    run.List().Form_Cancel(run.program);
    modWindows::Sweep(run.program);
    typist.Press(keys::kF6);
    EXPECT_EQ(run.program.run.FUTFileName, "Default Terms.fut");
    EXPECT_EQ(run.InMemory(), "Chair|") << "words are completed, so it is read at once";
    run.program.run.ACEnabled = false;
    typist.Press(keys::kF6);
    EXPECT_EQ(run.InMemory(), "") << "nobody needs it yet";
    typist.Click(PageId::frmP6, 4);
    typist.Press(keys::kF6);
    EXPECT_EQ(run.program.run.FUTFileName, "Wedding Terms.fut") << "not a key of the final page";
}

TEST(Lists, F6ChoosesNoTermAndShowsTheTerms) {
    TermsRun run("Chair");
    WriteLists(run);
    run.folder.Write("Proposals/Wedding Terms.fut", "Arch\r\nVows");
    Typist typist(run.program);
    typist.Click(PageId::frmP2, 3);
    run.List().lstFUT_Select(run.program, 0);
    run.List().mnuFileShowAll_Click(run.program);
    typist.Press(keys::kF6);
    EXPECT_EQ(run.InMemory(), "Arch|Vows|");
    EXPECT_EQ(run.List().lstFUT.ListIndex, -1);
    EXPECT_TRUE(run.List().lstFUT.Visible);
    EXPECT_FALSE(run.List().lstMoreFUT.Visible);
}

TEST(Lists, F5BringsTheWindowUp) {
    TermsRun run("Chair");
    Typist typist(run.program);
    typist.Click(PageId::frmP2, 3);
    run.List().Minimised = true;
    const int before = run.List().FrontCalls;
    typist.Press(keys::kF5);
    EXPECT_FALSE(run.List().Minimised);
    EXPECT_EQ(run.List().FrontCalls, before + 1);
}

TEST(Lists, AnOpenedOneGivesTheKeyboardToTheLineThatWasTypedInLast) {
    TermsRun run("Chair");
    WriteLists(run);
    Typist typist(run.program);
    typist.Click(PageId::frmP2, 3);
    run.List().mnuFileShowAll_Click(run.program);
    run.List().lstMoreFUT_Move(0);
    run.program.main.Focus.reset();
    run.List().lstMoreFUT_Click(run.program);
    EXPECT_EQ(run.program.main.Focus, (FieldRef{PageId::frmP2, FieldKind::txt, 3}));
}

TEST(Lists, OpenedAgainWhileNobodyNeedsThemAreReadAtTheNextChange) {
    TermsRun run("Chair");
    run.List().Form_Cancel(run.program);
    run.program.run.ACEnabled = false;
    modTerms::OpenList(run.program, "Default Terms.fut");
    EXPECT_EQ(run.InMemory(), "");
    EXPECT_TRUE(modTerms::AddTerm(run.program, "Table"));
    EXPECT_EQ(run.OnDisk(), "Chair\r\nTable");
}

TEST(Lists, TwoWhoseNamesDifferInCaseAloneAreTwo) {
    TermsRun run("Chair");
    run.folder.Write("Proposals/Barn.fut", "Hay");
    run.folder.Write("Proposals/BARN.fut", "Straw");
    modTerms::OpenList(run.program, "Barn.fut");
    EXPECT_EQ(run.InMemory(), "Hay|");
    EXPECT_EQ(run.program.run.FUTFileName, "Barn.fut");
    modTerms::OpenList(run.program, "BARN.fut");
    EXPECT_EQ(run.InMemory(), "Straw|");
    EXPECT_EQ(run.program.run.FUTFileName, "BARN.fut");
}

TEST(Lists, ANameInAnotherCaseIsTheOneOnDisk) {
    TermsRun run("Chair");
    WriteLists(run);
    modTerms::OpenList(run.program, "CATERING.fut");
    EXPECT_EQ(run.program.terms.Path, modTerms::PathInUse(run.program));
    EXPECT_TRUE(modTerms::AddTerm(run.program, "Fish"));
    EXPECT_EQ(run.program.run.FUTFileName, "Catering.fut");
    EXPECT_EQ(run.OnDisk("Catering.fut"), "Soup\r\nBread\r\nFish");
    EXPECT_FALSE(run.folder.Has("Proposals/CATERING.fut"));
}

TEST(Lists, AnAddAfterOpeningWritesTheListThatWasOpened) {
    TermsRun run("Chair");
    WriteLists(run);
    modTerms::OpenList(run.program, "Catering.fut");
    EXPECT_TRUE(modTerms::AddTerm(run.program, "Fish"));
    EXPECT_EQ(run.OnDisk("Catering.fut"), "Soup\r\nBread\r\nFish");
    EXPECT_EQ(run.OnDisk(), "Chair");
    // The list in use changes while neither window nor completion needs it: memory holds none of another.
    run.List().Form_Cancel(run.program);
    run.program.run.ACEnabled = false;
    modTerms::OpenList(run.program, "Default Terms.fut");
    EXPECT_TRUE(modTerms::AddTerm(run.program, "Table"));
    EXPECT_EQ(run.OnDisk(), "Chair\r\nTable");
    EXPECT_EQ(run.OnDisk("Catering.fut"), "Soup\r\nBread\r\nFish");
}

TEST(Lists, OneThatThePersonOpenedStaysForTheRun) {
    TermsRun run("Chair");
    WriteLists(run);
    person::Choose(run.program, CommandId::mnuFileNew);
    EXPECT_EQ(run.program.run.FUTFileName, "Default Terms.fut");
    modTerms::OpenList(run.program, "Catering.fut");
    person::Choose(run.program, CommandId::mnuFileNew);
    EXPECT_EQ(run.program.run.FUTFileName, "Catering.fut");
    EXPECT_EQ(run.InMemory(), "Soup|Bread|");
    run.surroundings.questions.ExpectInput("Changing Currency Designator", "$");
    run.surroundings.questions.Expect("Changes will be applied");
    person::Choose(run.program, CommandId::mnuOptCurrencySymbol); // reads the settings again
    EXPECT_EQ(run.program.run.FUTFileName, "Catering.fut");
}

TEST(Lists, AProposalsKindChoosesUnlessOneIsPinned) {
    RunningProgram pinned(RunningProgram::Begin::NotStarted);
    pinned.Setting("Frequent Terms File:", "Catering.fut");
    pinned.Setting("Load FUT:", "True");
    pinned.folder.Write("Proposals/Catering.fut", "Soup");
    pinned.Start();
    EXPECT_EQ(pinned.program.run.FUTFileName, "Catering.fut");
    EXPECT_EQ(pinned.program.terms.TermCount(), 1);
    person::Choose(pinned.program, CommandId::mnuFileNew);
    EXPECT_EQ(pinned.program.run.FUTFileName, "Catering.fut");
}

TEST(Lists, TheShownOneBecomesTheDefault) {
    TermsRun run("Chair");
    WriteLists(run);
    modTerms::OpenList(run.program, "Catering.fut");
    run.List().mnuFileDefaultFUT_Click(run.program);
    EXPECT_EQ(run.program.settings.FrequentTermsFile, "Catering.fut");
    EXPECT_NE(run.folder.Read("UserPreferences.txt").find("Frequent Terms File:Catering.fut\r\n"),
              std::string::npos);
}

TEST(NewList, IsMadeEmptyAndOpened) {
    TermsRun run("Chair");
    run.surroundings.questions.ExpectInput("Starting New Frequent Terms File", " Catering ");
    run.List().mnuFileNewFUT_Click(run.program);
    EXPECT_EQ(run.surroundings.questions.Prompts.back(), "Please enter a name for the Frequent Terms File.");
    EXPECT_EQ(run.OnDisk("Catering.fut"), "");
    EXPECT_EQ(run.List().Caption, "Catering");
    EXPECT_EQ(run.program.terms.TermCount(), 0);
    EXPECT_EQ(run.OnDisk(), "Chair");
}

TEST(NewList, ABadNameOrNoneMakesNothing) {
    TermsRun run("Chair");
    run.surroundings.questions.ExpectInput("Starting New Frequent Terms File", "");
    run.List().mnuFileNewFUT_Click(run.program);
    run.surroundings.questions.ExpectInput("Starting New Frequent Terms File", "a/b");
    run.surroundings.questions.Expect("File Name cannot include any of");
    run.List().mnuFileNewFUT_Click(run.program);
    EXPECT_EQ(run.List().Caption, "Default Terms");
}

TEST(NewList, OverwritesAnExistingOneOnlyWhenAsked) {
    TermsRun run("Chair");
    const auto expect = [&](Answer answer) {
        run.surroundings.questions.ExpectInput("Starting New Frequent Terms File", "default terms");
        run.surroundings.questions.ExpectBox(
            {"File already exists. Overwrite?", Buttons::YesNo, "Duplicate Frequent Terms File Exists"},
            answer);
    };
    expect(Answer::No);
    run.List().mnuFileNewFUT_Click(run.program);
    EXPECT_EQ(run.OnDisk(), "Chair");
    EXPECT_EQ(run.surroundings.questions.Manners.back().Lost, "The terms of Default Terms.fut will be lost.");
    expect(Answer::Yes);
    run.List().mnuFileNewFUT_Click(run.program);
    EXPECT_EQ(run.OnDisk(), "");
    EXPECT_EQ(run.program.run.FUTFileName, "Default Terms.fut") << "one file, whatever the case";
}

TEST(DeletedList, NeedsTheListOfListsAndASelection) {
    TermsRun run("Chair");
    WriteLists(run);
    const auto nothing = [&] {
        run.surroundings.questions.ExpectBox({"No file to delete.", Buttons::Ok, ""}, Answer::Ok);
    };
    nothing();
    run.List().mnuFileDelete_Click(run.program);
    run.List().mnuFileShowAll_Click(run.program);
    nothing();
    run.List().mnuFileDelete_Click(run.program);
    EXPECT_TRUE(run.List().lstMoreFUT.Visible) << "nothing else happens";
    EXPECT_EQ(run.List().Caption, "Default Terms");
}

TEST(DeletedList, IsAskedForByNameAndTheFirstOneOpens) {
    TermsRun run("Chair");
    WriteLists(run);
    run.List().lstFUT.ListIndex = 0;
    run.List().mnuFileShowAll_Click(run.program);
    run.List().lstMoreFUT_Move(1);
    run.surroundings.questions.ExpectBox({"Delete the list Default Terms with 1 terms?", Buttons::YesNo, ""},
                                         Answer::No);
    run.List().mnuFileDelete_Click(run.program);
    EXPECT_EQ(run.OnDisk(), "Chair");
    EXPECT_EQ(run.List().Caption, "Default Terms");
    run.surroundings.questions.Expect("Delete the list Default Terms", Answer::Yes);
    run.List().mnuFileDelete_Click(run.program);
    EXPECT_FALSE(run.folder.Has("Proposals/Default Terms.fut"));
    EXPECT_EQ(run.List().Caption, "Catering");
    EXPECT_EQ(run.InMemory(), "Soup|Bread|");
    EXPECT_TRUE(run.List().lstFUT.Visible);
    EXPECT_EQ(run.List().lstFUT.ListIndex, -1) << "no term of the new list was chosen";
}

TEST(DeletedList, TheLastOneLeavesAnEmptyDefault) {
    TermsRun run("Chair");
    std::filesystem::remove(run.folder / "Proposals/Wedding Terms.fut");
    run.List().mnuFileShowAll_Click(run.program);
    run.List().lstMoreFUT_Move(0);
    run.surroundings.questions.Expect("Delete the list Default Terms with 1 terms?", Answer::Yes);
    run.List().mnuFileDelete_Click(run.program);
    EXPECT_EQ(run.OnDisk(), "");
    EXPECT_EQ(run.program.terms.TermCount(), 0);
}

TEST(TermsWindow, KeepsItsPlaceInTheSettings) {
    TermsRun run("Chair");
    frmFUT& window = run.List();
    EXPECT_EQ(window.Left, 100);
    EXPECT_EQ(window.Height, 4000);
    window.Left = 150;
    window.Top = 1234.5F;
    window.Width = 3300;
    window.Height = 4800;
    window.mnuWindowSavePosition_Click(run.program);
    EXPECT_NE(run.folder.Read("UserPreferences.txt")
                  .find("FUT Position:Left=150:Top=1234.5:Width=3300:Height=4800\r\n"),
              std::string::npos);
    run.surroundings.questions.Expect("Left=150:Top=1234.5:Width=3300:Height=4800");
    window.Form_DblClick(run.program);
    window.Form_Cancel(run.program);
    modWindows::Sweep(run.program);
    person::Choose(run.program, CommandId::mnuOptFUT);
    EXPECT_EQ(run.List().Left, 150);
    EXPECT_EQ(run.List().Top, 1234.5F);
    EXPECT_EQ(run.List().Width, 3300);
    EXPECT_EQ(run.List().Height, 4800);
}

TEST(TermsWindow, SwitchesCompletionAndShowsTheOtherCaption) {
    TermsRun run("Chair");
    EXPECT_EQ(run.List().cmdOpt[0].Caption, "Disable Auto Complete");
    run.List().cmdOpt_Click(run.program, 0);
    EXPECT_FALSE(run.program.run.ACEnabled);
    EXPECT_EQ(run.List().cmdOpt[0].Caption, "Enable Auto Complete");
}

TEST(TermsWindow, StaysClosedOnASmallScreenAndWordsAreCompletedAllTheSame) {
    RunningProgram run(RunningProgram::Begin::NotStarted);
    run.surroundings.screen.Pixels = 800;
    run.folder.Write("Proposals/Default Terms.fut", "Chair Covers");
    run.Start();
    EXPECT_EQ(modWindows::Find(run.program, "frmFUT"), nullptr);
    EXPECT_EQ(run.program.terms.TermCount(), 1);
    Typist typist(run.program);
    typist.Click(PageId::frmP2, 0);
    typist.Type("cha");
    EXPECT_EQ(run.TextOf(PageId::frmP2, 0), "chair covers");
}

TEST(TermsWindow, ThatIsNotShownAtStartSwitchesCompletionOff) {
    RunningProgram run(RunningProgram::Begin::NotStarted);
    run.Setting("Show FUT:", "False");
    run.Start();
    EXPECT_EQ(modWindows::Find(run.program, "frmFUT"), nullptr);
    EXPECT_FALSE(run.program.run.ACEnabled);
    person::Choose(run.program, CommandId::mnuOptFUT);
    EXPECT_NE(modWindows::Find(run.program, "frmFUT"), nullptr);
    EXPECT_EQ(modWindows::Find(run.program, "frmFUT")->FrontCalls, 1);
}

TEST(TermsWindow, StartsMinimisedWhereTheSettingsSaySo) {
    RunningProgram run(RunningProgram::Begin::NotStarted);
    run.Setting("Minimize FUT:", "True");
    run.Start();
    Window* window = modWindows::Find(run.program, "frmFUT");
    ASSERT_NE(window, nullptr);
    EXPECT_TRUE(window->Minimised);
    const auto mainWindowGets = [&](WindowState state) {
        run.program.main.State = state;
        person::ResizeWindow(run.program);
    };
    mainWindowGets(WindowState::Maximised);
    EXPECT_TRUE(window->Minimised) << "the main window is made large at the start";
    person::Choose(run.program, CommandId::mnuOptFUT);
    EXPECT_FALSE(window->Minimised);
    mainWindowGets(WindowState::Minimised);
    EXPECT_TRUE(window->Minimised);
    mainWindowGets(WindowState::Maximised);
    EXPECT_FALSE(window->Minimised) << "it went with the main window and comes back with it";
}

TEST(Lists, WhicheverWayAnotherOneComesNoRowOfItIsChosenAndItsTermsShow) {
    TermsRun run("Chair");
    WriteLists(run);
    frmFUT& window = run.List();
    const auto expectTerms = [&](const char* after) {
        EXPECT_EQ(window.lstFUT.ListIndex, -1) << after;
        EXPECT_TRUE(window.lstFUT.Visible) << after;
        EXPECT_FALSE(window.lstMoreFUT.Visible) << after;
        EXPECT_TRUE(window.mnuFileDefaultFUT.Enabled) << after;
        window.lstFUT.ListIndex = 0;
        window.mnuFileShowAll_Click(run.program);
        EXPECT_EQ(window.lstMoreFUT.ListIndex, -1);
    };
    window.lstFUT.ListIndex = 0;
    window.mnuFileShowAll_Click(run.program);
    run.surroundings.questions.ExpectInput("Starting New Frequent Terms File", "Tents");
    window.mnuFileNewFUT_Click(run.program);
    expectTerms("a new one");
    window.lstMoreFUT_Move(0);
    window.lstMoreFUT_Click(run.program);
    expectTerms("an opened one");
    window.lstMoreFUT_Move(2);
    run.surroundings.questions.Expect("Delete the list Tents", Answer::Yes);
    window.mnuFileDelete_Click(run.program);
    expectTerms("a deleted one");
    run.surroundings.questions.ExpectInput("Starting New Frequent Terms File", "");
    window.mnuFileNewFUT_Click(run.program);
    EXPECT_TRUE(window.lstMoreFUT.Visible) << "no name, no other list";
    EXPECT_EQ(window.lstFUT.ListIndex, 0);
    for (const int nothing : {-1, 3}) {
        window.lstMoreFUT_Move(nothing);
        EXPECT_EQ(window.lstMoreFUT.ListIndex, -1);
    }
}

TEST(Lists, ALineThatTheListDoesNotHoldIsReplacedByNothingThoughItWasNotReadYet) {
    TermsRun run("Chair");
    WriteLists(run);
    modTerms::OpenList(run.program, "Catering.fut");
    run.List().Form_Cancel(run.program);
    run.program.run.ACEnabled = false;
    modTerms::OpenList(run.program, "Default Terms.fut");
    EXPECT_TRUE(modTerms::ReplaceTerm(run.program, {"Soup"}, "Broth"));
    EXPECT_EQ(run.OnDisk(), "Chair");
}

TEST(Lists, EscapeLeavesTheListOfListsAndThenTheWindow) {
    TermsRun run("Chair");
    frmFUT& window = run.List();
    window.mnuFileShowAll_Click(run.program);
    run.program.main.BringUp = false;
    window.Form_Escape(run.program);
    EXPECT_FALSE(window.lstMoreFUT.Visible);
    EXPECT_TRUE(window.lstFUT.Visible);
    for (const CommandButton& button : window.cmdOpt) {
        EXPECT_TRUE(button.Enabled);
    }
    for (const CommandButton& button : window.cmdCase) {
        EXPECT_TRUE(button.Enabled);
    }
    EXPECT_FALSE(run.program.main.BringUp);
    window.Form_Escape(run.program);
    EXPECT_TRUE(run.program.main.BringUp);
}

TEST(TermsWindow, ShowsAtOnceWhatAnAreaAddsAndTakesAway) {
    TermsRun run("Chair");
    Typist typist(run.program);
    typist.Click(PageId::frmP2, 3);
    typist.Type("bench");
    typist.PutCursor(0, 5);
    modTerms::AddTermFromArea(run.program);
    EXPECT_EQ(run.InMemory(), "Chair|bench|");
    run.List().lstFUT.ListIndex = 1;
    modTerms::mnuEditTextDeleteFUT_Click(run.program);
    EXPECT_EQ(run.InMemory(), "Chair|");
    EXPECT_EQ(run.List().lstFUT.ListIndex, 0) << "the row that was chosen has gone";
}

TEST(TermsWindow, AChosenRowThatIsGoneAfterAChangeGivesWayToTheLast) {
    const std::string_view before = "Arch\r\nTable\r\nChair";
    TermsRun removed(before);
    removed.List().lstFUT_Select(removed.program, 2);
    removed.List().cmdOpt_Click(removed.program, 3);
    EXPECT_EQ(removed.InMemory(), "Arch|Table|");
    EXPECT_EQ(removed.List().lstFUT.ListIndex, 1);
    TermsRun cased(before);
    cased.List().lstFUT_Select(cased.program, 2);
    cased.folder.Write("Proposals/Default Terms.fut", "Theirs");
    cased.surroundings.questions.Expect("Change all 3 terms", Answer::Yes);
    cased.surroundings.questions.Expect("changed by another program", Answer::No);
    cased.List().cmdCase_Click(cased.program, 2);
    EXPECT_EQ(cased.InMemory(), "THEIRS|");
    EXPECT_EQ(cased.List().lstFUT.ListIndex, 0);
    TermsRun added(before);
    Typist typist(added.program);
    typist.Click(PageId::frmP2, 3);
    typist.Type("bench");
    typist.PutCursor(0, 5);
    added.List().lstFUT_Select(added.program, 2);
    added.folder.Write("Proposals/Default Terms.fut", "Theirs");
    added.surroundings.questions.Expect("changed by another program", Answer::No);
    modTerms::AddTermFromArea(added.program);
    EXPECT_EQ(added.InMemory(), "Theirs|bench|");
    EXPECT_EQ(added.List().lstFUT.ListIndex, 1);
}

TEST(TermsWindow, ARowBehindTheLastIsNone) {
    TermsRun run("Arch\r\nTable");
    run.List().lstFUT_Select(run.program, 1);
    EXPECT_EQ(run.List().lstFUT.ListIndex, 1);
    run.List().lstFUT_Select(run.program, 2);
    EXPECT_EQ(run.List().lstFUT.ListIndex, -1);
}

TEST(NewList, TheTermsAreShownAgainOnlyWhenThereIsANewOne) {
    TermsRun run("Chair\r\nTable");
    run.List().lstFUT.ListIndex = 1;
    run.List().mnuFileShowAll_Click(run.program);
    run.surroundings.questions.ExpectInput("Starting New Frequent Terms File", "");
    run.List().mnuFileNewFUT_Click(run.program);
    EXPECT_TRUE(run.List().lstMoreFUT.Visible);
    EXPECT_FALSE(run.List().lstFUT.Visible);
    EXPECT_EQ(run.List().lstFUT.ListIndex, 1);
    run.surroundings.questions.ExpectInput("Starting New Frequent Terms File", "Catering");
    run.List().mnuFileNewFUT_Click(run.program);
    EXPECT_FALSE(run.List().lstMoreFUT.Visible);
    EXPECT_TRUE(run.List().lstFUT.Visible);
    EXPECT_EQ(run.List().lstFUT.ListIndex, -1);
}

} // namespace
