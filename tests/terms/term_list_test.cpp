#include "terms/term_list.h"

#include "support/person.h"
#include "support/typist.h"
#include "terms/frm_add_fut.h"
#include "terms/frm_edit_fut.h"
#include "terms/list_files.h"
#include "terms/open_list.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include <sys/stat.h>
#include <unistd.h>

// Reading, changing and writing the open list.

namespace {

TEST(TermList, IsReadAtTheStartAndShowsItsNameAsCaption) {
    TermsRun run("Arch [50]\r\nTable");
    EXPECT_EQ(run.InMemory(), "Arch [50]|Table|");
    EXPECT_EQ(run.List().Caption, "Default Terms");
    EXPECT_TRUE(run.program.run.FUTShown);
    EXPECT_TRUE(run.folder.Has("Proposals/Wedding Terms.fut")) << "both lists are laid down";
}

TEST(TermList, TakesAnyLineEndsAndAnyBytes) {
    TermsRun run(std::string("a\rb\nc\r\n\r\nd\r\r\ne\0f\xFF\n", 18));
    EXPECT_EQ(run.InMemory(), std::string("a|b|c||d||e\0f\xFF|", 15));
    EXPECT_EQ(run.program.terms.TermCount(), 7);
}

TEST(TermList, ALineOfAMegabyteIsKept) {
    const std::string longest(1U << 20U, 'x');
    TermsRun run("Arch\r\n" + longest);
    ASSERT_TRUE(modTerms::AddTerm(run.program, "Table"));
    EXPECT_EQ(run.OnDisk(), "Arch\r\n" + longest + "\r\nTable");
}

TEST(TermList, AMissingOneIsMadeEmpty) {
    TermsRun run("Arch");
    std::filesystem::remove(run.folder / "Proposals/Default Terms.fut");
    modTerms::ReadFrequentlyUsedTerms(run.program);
    EXPECT_EQ(run.program.terms.TermCount(), 0);
    EXPECT_EQ(run.OnDisk(), "");
}

TEST(TermList, NewTermsGoToTheEndAndNothingFollowsTheLastLine) {
    TermsRun run("Table\r\nArch\r\n");
    EXPECT_TRUE(modTerms::AddTerm(run.program, "  Aisle runner [75] "));
    EXPECT_EQ(run.OnDisk(), "Table\r\nArch\r\nAisle runner [75]");
    EXPECT_EQ(run.InMemory(), "Table|Arch|Aisle runner [75]|");
}

TEST(TermList, AnEmptyTermIsNotAdded) {
    TermsRun run("Arch");
    run.surroundings.questions.ExpectBox({"No term has been added to save.", Buttons::Ok, ""}, Answer::Ok);
    EXPECT_FALSE(modTerms::AddTerm(run.program, "   "));
}

TEST(TermList, ATermThatDiffersInCaseAndBlanksAloneIsThereAlready) {
    TermsRun run("TABLE\r\nArch [50]");
    run.surroundings.questions.ExpectBox({"Term already in the list.", Buttons::Ok, ""}, Answer::Ok);
    EXPECT_FALSE(modTerms::AddTerm(run.program, "table "));
    run.surroundings.questions.ExpectBox({"Term already in the list.", Buttons::Ok, ""}, Answer::Ok);
    EXPECT_FALSE(modTerms::AddTerm(run.program, "arch [50]"));
    EXPECT_TRUE(modTerms::AddTerm(run.program, "Arch")) << "the bracket is part of the comparison";
    EXPECT_EQ(run.OnDisk(), "TABLE\r\nArch [50]\r\nArch");
}

std::string ManyTerms(int count) {
    std::string bytes;
    for (int line = 0; line < count; ++line) {
        bytes += (line == 0 ? "" : "\r\n") + std::string("term ") + std::to_string(line);
    }
    return bytes;
}

TEST(TermList, IsFullAt32000AndStillReadAndRewrittenBeyond) {
    TermsRun run(ManyTerms(32000));
    EXPECT_EQ(run.program.terms.TermCount(), 32000);
    run.surroundings.questions.ExpectBox({"List is full, term cannot be added.", Buttons::Ok, ""},
                                         Answer::Ok);
    EXPECT_FALSE(modTerms::AddTerm(run.program, "one more"));
    run.folder.Write("Proposals/Default Terms.fut", ManyTerms(40000));
    modTerms::ReadFrequentlyUsedTerms(run.program);
    EXPECT_EQ(run.program.terms.TermCount(), 40000);
    EXPECT_TRUE(modTerms::RemoveTerm(run.program, {"term 39999"}));
    EXPECT_EQ(run.OnDisk(), ManyTerms(39999));
    EXPECT_TRUE(modTerms::RemoveTerm(run.program, {"term 39998"}));
}

TEST(TermList, The32000thTermIsTaken) {
    TermsRun run(ManyTerms(31999));
    EXPECT_TRUE(modTerms::AddTerm(run.program, "the last one"));
    EXPECT_EQ(run.program.terms.TermCount(), 32000);
}

TEST(TermList, TheLastTermCannotBeRemoved) {
    TermsRun run("Arch");
    run.List().lstFUT_Select(run.program, 0);
    run.surroundings.questions.ExpectBox({"There are no Frequently Used Terms to save.", Buttons::Ok, ""},
                                         Answer::Ok);
    run.List().cmdOpt_Click(run.program, 3);
    EXPECT_EQ(run.InMemory(), "Arch|");
    EXPECT_EQ(run.OnDisk(), "Arch");
}

TEST(TermList, RemovingAndEditingNeedASelection) {
    TermsRun run("Arch\r\nTable");
    run.surroundings.questions.ExpectBox({"Nothing selected to remove.", Buttons::Ok, ""}, Answer::Ok);
    run.List().cmdOpt_Click(run.program, 3);
    run.surroundings.questions.ExpectBox({"Nothing selected to edit.", Buttons::Ok, ""}, Answer::Ok);
    run.List().cmdOpt_Click(run.program, 2);
    run.List().lstFUT_Select(run.program, 0);
    run.List().cmdOpt_Click(run.program, 3);
    EXPECT_EQ(run.OnDisk(), "Table");
}

TEST(TermList, OfEqualLinesTheChosenOneIsEditedAndRemoved) {
    TermsRun run("Arch\r\nTable\r\nArch\r\nArch");
    run.List().lstFUT_Select(run.program, 2);
    run.List().cmdOpt_Click(run.program, 2);
    auto& window = static_cast<frmEditFUT&>(*modWindows::Find(run.program, "frmEditFUT"));
    window.txtEditFUT.Text = "Aisle";
    window.cmdSave_Click(run.program);
    EXPECT_EQ(run.OnDisk(), "Arch\r\nTable\r\nAisle\r\nArch");
    run.List().lstFUT_Select(run.program, 3);
    run.List().cmdOpt_Click(run.program, 3);
    EXPECT_EQ(run.OnDisk(), "Arch\r\nTable\r\nAisle");
}

TEST(TermList, AChosenLineThatAnotherProgramHasMovedIsFoundByItsText) {
    TermsRun run("Arch\r\nTable");
    run.folder.Write("Proposals/Default Terms.fut", "Theirs\r\nArch\r\nTable");
    run.surroundings.questions.ExpectBox(
        {"This list was changed by another program. Overwrite it?", Buttons::YesNo, ""}, Answer::No);
    EXPECT_TRUE(modTerms::ReplaceTerm(run.program, {"Table", 1}, "Tables"));
    EXPECT_EQ(run.OnDisk(), "Theirs\r\nArch\r\nTables");
}

TEST(TermList, AChangeByAnotherProgramIsNotOverwrittenUnasked) {
    TermsRun run("Arch\r\nTable");
    run.folder.Write("Proposals/Default Terms.fut", "Arch\r\nTable\r\nTheirs");
    run.surroundings.questions.ExpectBox(
        {"This list was changed by another program. Overwrite it?", Buttons::YesNo, ""}, Answer::No);
    EXPECT_TRUE(modTerms::AddTerm(run.program, "Ours"));
    EXPECT_EQ(run.OnDisk(), "Arch\r\nTable\r\nTheirs\r\nOurs") << "No keeps both changes";
    EXPECT_EQ(run.InMemory(), "Arch|Table|Theirs|Ours|");

    run.folder.Write("Proposals/Default Terms.fut", "Theirs");
    run.surroundings.questions.ExpectBox(
        {"This list was changed by another program. Overwrite it?", Buttons::YesNo, ""}, Answer::Yes);
    EXPECT_TRUE(modTerms::RemoveTerm(run.program, {"Theirs"}));
    EXPECT_EQ(run.OnDisk(), "Arch\r\nTable\r\nOurs");
}

TEST(TermList, ATermThatAnotherProgramAddedMeanwhileIsNotThereTwice) {
    TermsRun run("Arch");
    run.folder.Write("Proposals/Default Terms.fut", "Arch\r\nTABLE");
    run.surroundings.questions.Expect("changed by another program", Answer::No);
    EXPECT_TRUE(modTerms::AddTerm(run.program, "Table"));
    EXPECT_EQ(run.OnDisk(), "Arch\r\nTABLE");
}

TEST(TermList, OneThatCouldNotBeReadIsNeverWritten) {
    TermsRun run("Arch");
    const std::string path = run.folder / "Proposals/Default Terms.fut";
    std::filesystem::remove(path);
    std::filesystem::create_directory(path); // something is there that is no list
    run.surroundings.questions.Expect("");
    modTerms::ReadFrequentlyUsedTerms(run.program);
    EXPECT_EQ(run.program.terms.TermCount(), 0);
    const std::string words = "This list could not be read and is left as it is.";
    run.surroundings.questions.ExpectBox({words, Buttons::Ok, ""}, Answer::Ok);
    EXPECT_FALSE(modTerms::AddTerm(run.program, "Table"));
    run.surroundings.questions.ExpectBox({words, Buttons::Ok, ""}, Answer::Ok);
    EXPECT_FALSE(modTerms::RemoveTerm(run.program, {"Table"}));
    run.surroundings.questions.ExpectBox({words, Buttons::Ok, ""}, Answer::Ok);
    modTerms::ChangeCase(run.program, modTerms::LetterCase::Lower);
    EXPECT_TRUE(std::filesystem::is_directory(path));
}

TEST(TermList, AReadOnlyFileIsRewritten) {
    TermsRun run("Arch");
    ::chmod((run.folder / "Proposals/Default Terms.fut").c_str(), 0444);
    EXPECT_TRUE(modTerms::AddTerm(run.program, "Table"));
    EXPECT_EQ(run.OnDisk(), "Arch\r\nTable");
}

TEST(TermList, AFolderThatIsGoneIsToldAndMemoryStays) {
    TermsRun run("Arch\r\nTable");
    std::filesystem::rename(run.folder / "Proposals", run.folder / "Elsewhere");
    run.surroundings.questions.Expect("");
    run.surroundings.questions.Expect("Error encountered trying to remove term from list.");
    EXPECT_FALSE(modTerms::RemoveTerm(run.program, {"Table"}));
    EXPECT_EQ(run.InMemory(), "Arch|Table|");
    EXPECT_NE(run.folder.Read("Error.log").find("SaveFrequentlyUsedTerms"), std::string::npos);
    std::filesystem::rename(run.folder / "Elsewhere", run.folder / "Proposals");
    EXPECT_EQ(run.OnDisk(), "Arch\r\nTable");
}

TEST(TermCases, RewriteEveryTermWhenThePersonAgrees) {
    TermsRun run("Arch, WOOD [50]\r\nround TABLE");
    const auto change = [&](int button, const char* name, Answer answer) {
        run.surroundings.questions.ExpectBox(
            {std::string("Change all 2 terms of this list to ") + name + " case?", Buttons::YesNo, ""},
            answer);
        run.List().cmdCase_Click(run.program, button);
    };
    change(0, "lower", Answer::No);
    EXPECT_EQ(run.OnDisk(), "Arch, WOOD [50]\r\nround TABLE");
    change(0, "lower", Answer::Yes);
    EXPECT_EQ(run.OnDisk(), "arch, wood [50]\r\nround table");
    change(1, "proper", Answer::Yes);
    EXPECT_EQ(run.OnDisk(), "Arch, Wood [50]\r\nRound Table");
    change(2, "upper", Answer::Yes);
    EXPECT_EQ(run.OnDisk(), "ARCH, WOOD [50]\r\nROUND TABLE");
    EXPECT_EQ(run.InMemory(), "ARCH, WOOD [50]|ROUND TABLE|");
}

TEST(TermCases, OfAnEmptyListAreTold) {
    TermsRun run("");
    run.surroundings.questions.ExpectBox({"There are no Frequently Used Terms to save.", Buttons::Ok, ""},
                                         Answer::Ok);
    run.List().cmdCase_Click(run.program, 0);
    EXPECT_EQ(run.OnDisk(), "");
}

TEST(AddTermWindow, ItsCloseBoxClosesIt) {
    TermsRun run("Arch");
    run.List().cmdOpt_Click(run.program, 1);
    Window* window = modWindows::TopModal(run.program);
    ASSERT_NE(window, nullptr);
    window->Form_Cancel(run.program);
    EXPECT_TRUE(window->Closing);
}

TEST(EditTermWindow, BeginsWithTheWholeTermSelectedAndClosesWithoutAChange) {
    TermsRun run("Arch\r\nTable");
    run.List().lstFUT_Select(run.program, 1);
    for (const bool byButton : {false, true}) {
        run.List().cmdOpt_Click(run.program, 2);
        auto* window = dynamic_cast<frmEditFUT*>(modWindows::TopModal(run.program));
        ASSERT_NE(window, nullptr);
        EXPECT_EQ(window->txtEditFUT.SelLength, 5);
        window->txtEditFUT.Text = "Tables";
        if (byButton) {
            window->cmdExit_Click(run.program);
        } else {
            window->Form_Cancel(run.program);
        }
        EXPECT_TRUE(window->Closing);
        modWindows::Sweep(run.program);
    }
    EXPECT_EQ(run.OnDisk(), "Arch\r\nTable");
}

TEST(AddTermWindow, AddsSeveralAndKeepsWhatWasRefused) {
    TermsRun run("Arch");
    run.List().cmdOpt_Click(run.program, 1);
    auto* window = dynamic_cast<frmAddFUT*>(modWindows::TopModal(run.program));
    ASSERT_NE(window, nullptr);
    window->txtAddFUT.Text = "Table";
    window->cmdSave_Click(run.program);
    EXPECT_EQ(window->txtAddFUT.Text, "");
    window->txtAddFUT.Text = "ARCH";
    run.surroundings.questions.Expect("Term already in the list.");
    window->cmdSave_Click(run.program);
    EXPECT_EQ(window->txtAddFUT.Text, "ARCH");
    window->cmdClear_Click();
    EXPECT_EQ(window->txtAddFUT.Text, "");
    window->cmdExit_Click(run.program);
    modWindows::Sweep(run.program);
    EXPECT_EQ(modWindows::TopModal(run.program), nullptr);
    EXPECT_EQ(run.OnDisk(), "Arch\r\nTable");
}

TEST(EditTermWindow, ReplacesTheLineAndCloses) {
    TermsRun run("Arch\r\nTable");
    run.List().lstFUT_Select(run.program, 0);
    run.List().cmdOpt_Click(run.program, 2);
    auto* window = dynamic_cast<frmEditFUT*>(modWindows::TopModal(run.program));
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->txtEditFUT.Text, "Arch");
    window->txtEditFUT.Text = " ";
    run.surroundings.questions.Expect("No term has been added to save.");
    window->cmdSave_Click(run.program);
    EXPECT_FALSE(window->Closing);
    window->txtEditFUT.Text = " Arch [50] ";
    window->cmdSave_Click(run.program);
    EXPECT_TRUE(window->Closing);
    EXPECT_EQ(run.OnDisk(), "Arch [50]\r\nTable");
}

struct AreaRun : TermsRun {
    explicit AreaRun(std::string_view lines) : TermsRun(lines) {
        program.run.ACEnabled = false;
        typist.Click(PageId::frmP2, 0);
    }
    void Choose(CommandId id) { person::Choose(program, id); }
    Typist typist{program};
};

TEST(AreaTerms, TheSelectionIsAddedInLowerCase) {
    AreaRun run("Arch");
    run.typist.Type("Two Round TABLES here");
    run.typist.PutCursor(3, 14);
    run.Choose(CommandId::mnuEditTextAddFUT);
    EXPECT_EQ(run.OnDisk(), "Arch\r\nround tables");
    run.surroundings.questions.Expect("Term already in the list.");
    run.Choose(CommandId::mnuEditTextAddFUT);
}

TEST(AreaTerms, NothingSelectedOrTheWindowClosedLeavesTheCommandsOff) {
    AreaRun run("Arch\r\nTable");
    run.typist.Type("Arch");
    run.Choose(CommandId::mnuEditTextAddFUT);
    run.Choose(CommandId::mnuEditTextDeleteFUT);
    run.typist.PutCursor(0, 4);
    run.List().Form_Cancel(run.program);
    modWindows::Sweep(run.program);
    EXPECT_FALSE(run.program.run.FUTShown);
    run.Choose(CommandId::mnuEditTextDeleteFUT);
    EXPECT_EQ(run.OnDisk(), "Arch\r\nTable");
}

TEST(AreaTerms, RemovingComparesWithTheWholeLine) {
    AreaRun run("Arch [50]\r\nTable\r\nChair");
    run.typist.Type("Arch Table ");
    run.typist.PutCursor(0, 4);
    run.Choose(CommandId::mnuEditTextDeleteFUT);
    EXPECT_EQ(run.OnDisk(), "Arch [50]\r\nTable\r\nChair");
    EXPECT_EQ(run.program.main.Notice, "") << "nothing was written";
    run.typist.PutCursor(4, 7);
    run.Choose(CommandId::mnuEditTextDeleteFUT);
    EXPECT_EQ(run.OnDisk(), "Arch [50]\r\nChair");
}

TEST(AreaTerms, RemovingTakesTheLineOutOfTheListThatIsInUseNow) {
    AreaRun run("Arch");
    run.folder.Write("Proposals/Barn.fut", "Hay\r\nTable");
    run.program.run.FUTFileName = "Barn.fut";
    run.typist.Type("Table");
    run.typist.PutCursor(0, 5);
    run.Choose(CommandId::mnuEditTextDeleteFUT);
    EXPECT_EQ(run.OnDisk("Barn.fut"), "Hay");
    EXPECT_EQ(run.OnDisk(), "Arch");
}

TEST(AreaTerms, BlanksAreNoTermThatCouldBeRemoved) {
    AreaRun run("Arch\r\n\r\nTable");
    run.typist.Type("Arch  Table");
    run.typist.PutCursor(4, 2);
    run.Choose(CommandId::mnuEditTextDeleteFUT);
    EXPECT_EQ(run.OnDisk(), "Arch\r\n\r\nTable");
}

TEST(AreaTerms, EditingASelectionThatIsNoLineChangesNothing) {
    AreaRun run("Arch\r\nTable");
    run.typist.Type("Chair Table");
    run.typist.PutCursor(0, 5);
    run.Choose(CommandId::mnuEditTextEditFUT);
    auto* window = dynamic_cast<frmEditFUT*>(modWindows::TopModal(run.program));
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->txtEditFUT.Text, "Chair");
    window->txtEditFUT.Text = "Stool";
    window->cmdSave_Click(run.program);
    EXPECT_TRUE(window->Closing);
    modWindows::Sweep(run.program);
    EXPECT_EQ(run.OnDisk(), "Arch\r\nTable");
    run.typist.PutCursor(6, 5);
    run.Choose(CommandId::mnuEditTextEditFUT);
    window = dynamic_cast<frmEditFUT*>(modWindows::TopModal(run.program));
    ASSERT_NE(window, nullptr);
    window->txtEditFUT.Text = "Round Table";
    window->cmdSave_Click(run.program);
    EXPECT_EQ(run.OnDisk(), "Arch\r\nRound Table");
}

} // namespace
