#include "deposits/frm_deposits.h"

#include "program/windows.h"
#include "proposal/lifecycle.h"
#include "proposal/proposal_open.h"
#include "proposal/proposal_save.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <memory>

namespace {

namespace fs = std::filesystem;

/// A saved proposal of Jane Roe with a deposit of 500.
struct Deposited : RunningProgram {
    Deposited() {
        TypeJaneRoe(*this);
        Save();
    }
    void Save() {
        surroundings.questions.Expect("File was saved as Jane Roe.hef");
        EXPECT_EQ(modFile::SaveEventFile(program), modFile::SaveResult::Saved);
        surroundings.questions.Done();
    }
    void File(const std::string& bytes) const { folder.Write("Proposals/Jane Roe.dep", bytes); }
    [[nodiscard]] std::string File() const { return folder.Read("Proposals/Jane Roe.dep"); }
    frmDeposits& Open() {
        modDeposits::mnuManageDeposits_Click(program);
        auto* window = dynamic_cast<frmDeposits*>(modWindows::Find(program, "frmDeposits"));
        EXPECT_NE(window, nullptr);
        return *window;
    }
    void Add(frmDeposits& window, const std::string& date, const std::string& amount) {
        window.txtDate_Change(program, date);
        window.txtAmount_Change(program, amount);
        window.cmdSave_Click(program);
    }
    [[nodiscard]] std::string Deposit() { return TextOf(PageId::frmP6, 4); }
    ScriptedQuestions& Boxes() { return surroundings.questions; }
    using Items = std::vector<std::string>;
};

const ScriptedQuestions::Box kMismatch{"This deposit does not match with the one in the proposal.",
                                       Buttons::Ok, ""};

TEST(Deposits, WithoutAFileTheListIsEmptyAndNothingIsSaid) {
    Deposited run;
    frmDeposits& window = run.Open();
    EXPECT_EQ(window.lblTotal.Caption, "Deposit Total =");
    EXPECT_EQ(window.DepositRows, -1);
    EXPECT_EQ(window.txtDate.Text, "Jan 21, 2008");
    EXPECT_EQ(window.txtDate.SelLength, 12);
    EXPECT_EQ(window.txtName.Text, "Jane Roe");
    EXPECT_EQ(window.txtName.SelLength, 8);
    EXPECT_EQ(window.Caption, "Deposits Received - Jane Roe");
    EXPECT_FALSE(window.Entry("mnuFileOpen").Visible);
}

TEST(Deposits, AFileOfRowsIsListedAndAdded) {
    Deposited run;
    run.File("J. Roe\r\nJan 21, 2008\t\t$ 300.00\r\nJan 22, 2008\t\t$ 200.00");
    frmDeposits& window = run.Open();
    EXPECT_EQ(window.txtName.Text, "J. Roe");
    EXPECT_EQ(window.DepositRows, 1);
    EXPECT_EQ(window.DepositTotal, 500);
    EXPECT_EQ(window.lblTotal.Caption, "Total Deposit = $ 500");
    EXPECT_EQ(window.DepositAmounts, (std::vector<float>{300, 200}));
}

TEST(Deposits, ATotalThatIsNotTheProposalsIsToldWhenItIsLoadedAndOnlyThen) {
    Deposited run;
    run.File("Jane Roe\r\nJan 21, 2008\t\t$ 300.00");
    run.Boxes().ExpectBox(kMismatch, Answer::Ok);
    frmDeposits& window = run.Open();
    run.Add(window, "1/22/2008", "1");
    EXPECT_EQ(window.DepositTotal, 301);
}

TEST(Deposits, TheTotalIsPlainAndTheRowIsUnderItsPattern) {
    Deposited run;
    frmDeposits& window = run.Open();
    run.Add(window, "Jan 21, 2008", "1500.5");
    EXPECT_EQ(window.lst.Items, (Deposited::Items{"Jan 21, 2008\t\t$ 1,500.50"}));
    EXPECT_EQ(window.lblTotal.Caption, "Total Deposit = $ 1500.5");
    EXPECT_TRUE(window.DepositChanged);
    EXPECT_EQ(window.txtAmount.Text, "1500.5"); // the fields keep their text
}

TEST(Deposits, SavingWritesTheListAndTheProposalsDeposit) {
    Deposited run;
    frmDeposits& window = run.Open();
    run.Add(window, "Jan 21, 2008", "1000");
    run.Add(window, "Jan 22, 2008", "500.5");
    run.Boxes().ExpectBox(
        {"The deposit in the proposal is 500.00. Replace it with the list's total, 1,500.50?", Buttons::YesNo,
         ""},
        Answer::Yes);
    window.Choose(run.program, "mnuFileSave");
    EXPECT_EQ(run.File(), "Jane Roe\r\nJan 21, 2008\t\t$ 1,000.00\r\nJan 22, 2008\t\t$ 500.50");
    EXPECT_TRUE(run.program.main.Notice.starts_with("Deposit list saved: " + run.folder.Path()));
    EXPECT_FALSE(window.DepositChanged);
    EXPECT_EQ(run.Deposit(), "1500.5");
    EXPECT_EQ(run.program.totals.Deposit, 1500.5F);
    // 1 250.00 + 75.50 exempt + 59.97 + 10.00, tax by the file's rate: the balance follows at once.
    EXPECT_EQ(run.program.totals.Balance, run.program.totals.Total - 1500.5F);
    EXPECT_EQ(run.program.pages[PageId::frmP6_1].txt[4].Text, "1500.5");
    // A further deposit replaces what this window has put there, unasked.
    run.Add(window, "Jan 23, 2008", "1");
    window.Choose(run.program, "mnuFileSave");
    EXPECT_EQ(run.Deposit(), "1501.5");
}

TEST(Deposits, WhatTheProposalSavesAndReadsIsTheListsTotalToTheLastBit) {
    Deposited run;
    frmDeposits& window = run.Open();
    run.Add(window, "Jan 21, 2008", "100000.55");
    run.Boxes().Expect("Replace it with", Answer::Yes);
    window.Choose(run.program, "mnuFileSave");
    EXPECT_EQ(run.Deposit(), "100000.55");
    window.Form_Cancel(run.program);
    modWindows::Sweep(run.program);
    run.Save();
    static_cast<void>(modFile::OpenEventFile(run.program, "Jane Roe.hef"));
    run.Open(); // no mismatch is told
}

TEST(Deposits, ADepositThatAPersonHasTypedIsReplacedOnlyWhenTheyAgree) {
    Deposited run;
    frmDeposits& window = run.Open();
    run.Add(window, "Jan 21, 2008", "300");
    run.Boxes().Expect("Replace it with the list's total, 300.00?", Answer::No);
    window.Choose(run.program, "mnuFileSave");
    EXPECT_EQ(run.File(), "Jane Roe\r\nJan 21, 2008\t\t$ 300.00");
    EXPECT_EQ(run.program.totals.Deposit, 500);
    EXPECT_FALSE(window.DepositChanged);
}

TEST(Deposits, WithNoRowsSavingSaysSoAndLeavesTheFile) {
    Deposited run;
    frmDeposits& window = run.Open();
    run.Boxes().ExpectBox({"There are no Deposits to save.", Buttons::Ok, ""}, Answer::Ok);
    run.Boxes().Expect("Replace it with the list's total, 0.00?", Answer::Yes);
    window.Choose(run.program, "mnuFileSave");
    EXPECT_FALSE(run.folder.Has("Proposals/Jane Roe.dep"));
    EXPECT_EQ(run.program.totals.Deposit, 0);
    EXPECT_EQ(run.Deposit(), "0");
}

TEST(Deposits, TheLastRowThatWasRemovedDoesNotComeBack) {
    Deposited run;
    run.File("Jane Roe\r\nJan 21, 2008\t\t$ 500.00");
    frmDeposits& window = run.Open();
    window.lst_Click({0}, 0);
    window.Choose(run.program, "mnuEditDelete");
    EXPECT_EQ(window.lblTotal.Caption, "Total Deposit = $ 0");
    run.Boxes().ExpectBox({"There are no Deposits to save.", Buttons::Ok, ""}, Answer::Ok);
    window.Choose(run.program, "mnuFileSave");
    EXPECT_EQ(run.File(), "Jane Roe");
    EXPECT_EQ(run.program.totals.Deposit, 0);
}

TEST(Deposits, EditingTakesTheBareFigureAndPutsTheRowBackInItsPlace) {
    Deposited run;
    run.File("Jane Roe\r\nJan 21, 2008\t\t$ 1,500.00\r\nJan 22, 2008\t\t$ 2.00");
    run.Boxes().ExpectBox(kMismatch, Answer::Ok);
    frmDeposits& window = run.Open();
    window.lst_Click({0}, 0);
    run.Boxes().ExpectBox(
        {"The selected item has been placed in the Date Received and Amount boxes. Edit in these "
         "areas and click \"Save to List\".",
         Buttons::Ok, ""},
        Answer::Ok);
    window.Choose(run.program, "mnuEditItem");
    EXPECT_EQ(window.txtDate.Text, "Jan 21, 2008");
    EXPECT_EQ(window.txtDate.SelLength, 12);
    EXPECT_EQ(window.txtAmount.Text, "1,500.00");
    EXPECT_EQ(window.ActiveControl, "txtDate");
    window.lst_Click({1}, 1); // wherever the selection is meanwhile
    window.cmdSave_Click(run.program);
    EXPECT_EQ(window.lst.Items, (Deposited::Items{"Jan 21, 2008\t\t$ 1,500.00", "Jan 22, 2008\t\t$ 2.00"}));
    EXPECT_FALSE(window.DepositEditing());
    EXPECT_EQ(window.lst.SelCount(), 0);
}

TEST(Deposits, TheTotalFollowsAnEditedRow) {
    Deposited run;
    run.File("Jane Roe\r\na\t\t$ 100.00\r\nb\t\t$ 400.00");
    frmDeposits& window = run.Open();
    window.lst_Click({0}, 0);
    run.Boxes().Expect("has been placed");
    window.Choose(run.program, "mnuEditItem");
    run.Add(window, "1/1/2008", "25.50");
    EXPECT_EQ(window.DepositTotal, 425.5F);
    EXPECT_EQ(window.lblTotal.Caption, "Total Deposit = $ 425.5");
}

TEST(Deposits, TheTakenRowIsFollowedWhenOthersGoAndForgottenWhenItGoes) {
    Deposited run;
    run.File("Jane Roe\r\na\t\t$ 100.00\r\nb\t\t$ 150.00\r\nc\t\t$ 250.00");
    frmDeposits& window = run.Open();
    window.lst_Click({2}, 2);
    run.Boxes().Expect("has been placed");
    window.Choose(run.program, "mnuEditItem");
    window.lst_Click({0}, 0);
    window.Choose(run.program, "mnuEditDelete");
    EXPECT_TRUE(window.DepositEditing());
    run.Add(window, "1/1/2008", "9");
    EXPECT_EQ(window.lst.Items, (Deposited::Items{"b\t\t$ 150.00", "1/1/2008\t\t$ 9.00"}));
    window.lst_Click({1}, 1);
    run.Boxes().Expect("has been placed");
    window.Choose(run.program, "mnuEditItem");
    window.lst_Click({1}, 1);
    window.Choose(run.program, "mnuEditDelete");
    EXPECT_FALSE(window.DepositEditing());
    run.Add(window, "1/2/2008", "8");
    EXPECT_EQ(window.lst.Items, (Deposited::Items{"b\t\t$ 150.00", "1/2/2008\t\t$ 8.00"}));
}

TEST(Deposits, EditingAndRemovingWantExactlyOneRow) {
    Deposited run;
    run.File("Jane Roe\r\na\t\t$ 250.00\r\nb\t\t$ 250.00");
    frmDeposits& window = run.Open();
    run.Boxes().ExpectBox({"Nothing selected to edit.", Buttons::Ok, ""}, Answer::Ok);
    window.Choose(run.program, "mnuEditItem");
    run.Boxes().ExpectBox({"Nothing selected to remove.", Buttons::Ok, ""}, Answer::Ok);
    window.Choose(run.program, "mnuEditDelete");
    window.lst_Click({0, 1}, 1);
    for (const char* command : {"mnuEditItem", "mnuEditDelete"}) {
        run.Boxes().ExpectBox({"Cannot edit multiple selected items.", Buttons::Ok, ""}, Answer::Ok);
        window.Choose(run.program, command);
    }
    EXPECT_EQ(window.lst.Items.size(), 2U);
    EXPECT_FALSE(window.DepositEditing());
    EXPECT_FALSE(window.DepositChanged);
}

TEST(Deposits, WhatIsNoDateOrNoAmountAddsNothingAndTurnsRed) {
    Deposited run;
    frmDeposits& window = run.Open();
    run.Add(window, "sometime", "5");
    EXPECT_EQ(window.txtDate.BackColor, colors::kOverLimit);
    EXPECT_EQ(window.ActiveControl, "txtDate");
    EXPECT_NE(window.txtDate.ToolTipText, "");
    run.Add(window, "1/1/2008", "1.2.3");
    EXPECT_EQ(window.txtDate.BackColor, colors::kWhite);
    EXPECT_EQ(window.txtDate.ToolTipText.find("no date"), std::string::npos);
    EXPECT_EQ(window.txtAmount.BackColor, colors::kOverLimit);
    EXPECT_EQ(window.ActiveControl, "txtAmount");
    EXPECT_NE(window.txtAmount.ToolTipText, "");
    run.Add(window, "1/1/2008", "");
    EXPECT_EQ(window.txtAmount.BackColor, colors::kWhite);
    EXPECT_EQ(window.txtAmount.ToolTipText, "");
    EXPECT_TRUE(window.lst.Items.empty());
    EXPECT_FALSE(window.DepositChanged);
}

TEST(Deposits, ASecondEnterDoesNotAddTheDepositTwice) {
    Deposited run;
    frmDeposits& window = run.Open();
    window.txtAmount_Change(run.program, "75");
    EXPECT_TRUE(window.SaveIsDefault);
    window.txtAmount_Enter(run.program);
    EXPECT_FALSE(window.SaveIsDefault);
    window.txtAmount_Enter(run.program);
    EXPECT_EQ(window.lst.Items.size(), 1U);
    window.txtAmount_Change(run.program, "7");
    window.txtAmount_Change(run.program, "75");
    window.txtAmount_Enter(run.program);
    EXPECT_EQ(window.lst.Items.size(), 2U); // typed anew, it is another deposit
}

TEST(Deposits, AnAmountThatWasNotAddedIsAskedForBeforeSavingPrintingAndClosing) {
    Deposited run;
    const ScriptedQuestions::Box pending{"The amount has not been added to the list. Add it?",
                                         Buttons::YesNoCancel, ""};
    frmDeposits& window = run.Open();
    window.txtAmount_Change(run.program, "75");
    for (const char* command : {"mnuFileSave", "mnuFilePrint", "mnuFileExit"}) {
        run.Boxes().ExpectBox(pending, Answer::Cancel);
        window.Choose(run.program, command);
    }
    EXPECT_FALSE(window.Closing);
    EXPECT_TRUE(run.surroundings.printers.Commands.empty());
    run.Boxes().ExpectBox(pending, Answer::Yes);
    window.Choose(run.program, "mnuFilePrint");
    EXPECT_EQ(window.lst.Items.size(), 1U);
    window.txtAmount_Change(run.program, "80");
    run.Boxes().ExpectBox(pending, Answer::No);
    run.Boxes().ExpectBox(
        {"The deposit list has changed. Save changes?", Buttons::YesNoCancel, "Deposit List Modified"},
        Answer::No);
    window.Choose(run.program, "mnuFileExit");
    EXPECT_TRUE(window.Closing);
    EXPECT_FALSE(run.folder.Has("Proposals/Jane Roe.dep"));
}

TEST(Deposits, UnreadableRowsStayAndAreToldOnce) {
    Deposited run;
    const std::string bytes = "Jane Roe\r\nJan 1, 2008\t\t$ 500.00\r\nlost\r\n\x01\xFF\t\t$ ten";
    run.File(bytes);
    run.Boxes().ExpectBox(
        {"The amounts of 2 deposits in the list cannot be read. They stay in the list and count as "
         "0.00.",
         Buttons::Ok, ""},
        Answer::Ok);
    frmDeposits& window = run.Open();
    EXPECT_EQ(window.lst.Items.size(), 3U);
    EXPECT_EQ(window.DepositTotal, 500);
    window.Choose(run.program, "mnuFileSave");
    EXPECT_EQ(run.File(), bytes);
}

TEST(Deposits, TheDateIsRewrittenOnLeavingUnlessThatIsSwitchedOff) {
    Deposited run;
    frmDeposits& window = run.Open();
    window.MoveFocus(run.program, "txtDate");
    window.txtDate_Change(run.program, "1/5/08");
    window.txtDate_Enter(run.program);
    EXPECT_EQ(window.txtDate.Text, "Jan 05, 2008");
    EXPECT_EQ(window.ActiveControl, "txtAmount");
    window.Choose(run.program, "mnuOptFormat");
    EXPECT_EQ(window.Entry("mnuOptFormat").Caption, "Apply Date Formatting");
    window.MoveFocus(run.program, "txtDate");
    window.txtDate_Change(run.program, "1/6/08");
    window.MoveFocus(run.program, "lst");
    EXPECT_EQ(window.txtDate.Text, "1/6/08");
    window.Choose(run.program, "mnuOptFormat");
    EXPECT_EQ(window.Entry("mnuOptFormat").Caption, "Do Not Apply Date Formatting");
    EXPECT_TRUE(window.DepositFormatDates);
}

TEST(Deposits, ADateThatIsNotRecognisedStaysAndIsTold) {
    Deposited run;
    frmDeposits& window = run.Open();
    window.MoveFocus(run.program, "txtDate");
    window.txtDate_Change(run.program, "1rst of May");
    run.Boxes().ExpectBox(
        {"Text entered cannot be recognized as a valid date.\r\n\r\nProper date format examples "
         "follow:\r\nJanuary 15, 2008.\r\nJan 15, 2008\r\n1/15/2008\r\n1/15/08\r\n1-15-08\r\nDo not "
         "include date extentions such as \"1rst\", \"2nd\", etc.",
         Buttons::Ok, "Date Format not Recognized"},
        Answer::Ok);
    window.txtDate_Enter(run.program);
    EXPECT_EQ(window.txtDate.Text, "1rst of May");
}

TEST(Deposits, TheAmountTakesDigitsPointAndComma) {
    // 0 9 . , backspace tab return; then - a blank $
    for (const int passes : {48, 57, 46, 44, 8, 9, 13}) {
        EXPECT_EQ(frmDeposits::txtAmount_KeyPress(passes), passes);
    }
    for (const int dropped : {45, 97, 32, 36}) {
        EXPECT_EQ(frmDeposits::txtAmount_KeyPress(dropped), 0);
    }
}

TEST(Deposits, ADecimalCommaAndAThirdDecimalAreToldAndAddNothing) {
    Deposited run;
    frmDeposits& window = run.Open();
    for (const char* typed : {"100,50", "1,00", "100.505", "0.001"}) {
        window.txtAmount_Change(run.program, typed);
        window.cmdSave_Click(run.program);
        EXPECT_TRUE(window.lst.Items.empty()) << typed;
        EXPECT_EQ(window.txtAmount.BackColor, colors::kOverLimit) << typed;
        EXPECT_FALSE(window.txtAmount.ToolTipText.empty()) << typed;
    }
    window.txtAmount_Change(run.program, "1,100.500");
    window.cmdSave_Click(run.program);
    ASSERT_EQ(window.lst.Items.size(), 1U);
    EXPECT_TRUE(window.lst.Items[0].ends_with(" 1,100.50"));
    EXPECT_EQ(window.txtAmount.BackColor, colors::kWhite);
    EXPECT_EQ(window.txtAmount.SelLength, 9) << "what is typed next replaces it";
}

TEST(Deposits, AFolderInTheirPlaceIsToldAndTheWindowIsLocked) {
    Deposited run;
    run.folder.MakeFolder("Proposals/Jane Roe.dep");
    run.Boxes().Expect("An error occurred in SaveDepositInfo.");
    frmDeposits& window = run.Open();
    EXPECT_TRUE(window.Locked);
    run.Add(window, "1/5/2008", "100");
    EXPECT_TRUE(window.lst.Items.empty());
    EXPECT_TRUE(fs::is_directory(run.folder / "Proposals/Jane Roe.dep"));
}

TEST(Deposits, WhatALeftWindowCostsIsAWholeSentence) {
    Deposited run;
    frmDeposits& window = run.Open();
    window.txtAmount_Change(run.program, "75");
    run.Boxes().Expect("Add it?", Answer::Yes);
    run.Boxes().Expect("Save changes?", Answer::Cancel);
    EXPECT_FALSE(window.MayLeave(run.program, Leaving::Proposal));
    const auto& manners = run.Boxes().Manners;
    ASSERT_GE(manners.size(), 2U);
    EXPECT_EQ(manners[manners.size() - 2].Lost, "The amount 75 will be lost unless it is added.");
    EXPECT_EQ(manners.back().Lost, "The changes to the deposit list will be lost unless they are saved.");
}

TEST(Deposits, PrintsTheNameTheRowsAndTheTotalUnderTheRowsPattern) {
    Deposited run;
    run.File("Jane Roe\r\nJan 21, 2008\t\t$ 500.00");
    frmDeposits& window = run.Open();
    window.Choose(run.program, "mnuFilePrint");
    EXPECT_EQ(run.surroundings.printers.Commands.at(0).SuggestedFile,
              run.folder / "Proposals/Jane Roe, Deposits Received.pdf");
    std::vector<std::pair<float, std::string>> printed;
    for (const DrawCall& call : run.surroundings.printers.Paper.Documents.at(0)) {
        if (call.Op == DrawCall::What::Print) {
            printed.emplace_back(call.X, call.Text);
        }
    }
    const std::vector<std::pair<float, std::string>> expected{
        {720, "Rec'd From:"},    {3600, "Jane Roe"}, {720, "Jan 21, 2008"}, {3600, "$ 500.00"}, {720, ""},
        {720, "Total Deposit:"}, {3600, "$ 500.00"}};
    EXPECT_EQ(printed, expected);
    run.surroundings.printers.Paper.OnEndDoc = [] { throw std::runtime_error("jam"); };
    run.Boxes().ExpectBox({"Could not find Printer.", Buttons::Ok, ""}, Answer::Ok);
    window.Choose(run.program, "mnuFilePrint");
}

TEST(Deposits, ClosingAChangedListAsks) {
    Deposited run;
    frmDeposits& window = run.Open();
    window.txtName_Change(run.program, "J. Roe");
    EXPECT_TRUE(window.DepositChanged);
    run.Add(window, "1/1/2008", "500");
    run.Boxes().Expect("Save changes?", Answer::Cancel);
    window.Choose(run.program, "mnuFileExit");
    EXPECT_FALSE(window.Closing);
    run.Boxes().Expect("Save changes?", Answer::Yes);
    window.Choose(run.program, "mnuFileExit");
    EXPECT_TRUE(window.Closing);
    EXPECT_EQ(run.File(), "J. Roe\r\n1/1/2008\t\t$ 500.00");
}

TEST(Deposits, ASaveThatFailsKeepsTheListChanged) {
    Deposited run;
    frmDeposits& window = run.Open();
    run.Add(window, "1/1/2008", "500");
    run.folder.MakeFolder("Proposals/Jane Roe.dep");
    run.Boxes().Expect("SaveDepositInfo");
    window.Choose(run.program, "mnuFileSave");
    EXPECT_TRUE(window.DepositChanged);
    EXPECT_EQ(run.program.totals.Deposit, 500);
    run.Boxes().Expect("Save changes?", Answer::Yes);
    run.Boxes().Expect("SaveDepositInfo");
    window.Choose(run.program, "mnuFileExit");
    EXPECT_FALSE(window.Closing);
}

TEST(Deposits, AFileThatAnotherProgramHasChangedIsAskedAbout) {
    Deposited run;
    run.File("Jane Roe\r\na\t\t$ 500.00");
    frmDeposits& window = run.Open();
    run.Add(window, "1/1/2008", "5");
    run.File("Jane Roe\r\ntheirs\t\t$ 1.00");
    run.Boxes().Expect("changed by another program since you opened it. Overwrite it?", Answer::No);
    window.Choose(run.program, "mnuFileSave");
    EXPECT_EQ(run.File(), "Jane Roe\r\ntheirs\t\t$ 1.00");
    EXPECT_TRUE(window.DepositChanged);
}

TEST(Deposits, AFileThatCannotBeReadLocksTheWindow) {
    Deposited run;
    run.File("Jane Roe");
    fs::resize_file(run.folder / "Proposals/Jane Roe.dep", (64U << 20U) + 1); // more than is read of any text
    run.Boxes().Expect("The file is too large");
    frmDeposits& window = run.Open();
    EXPECT_TRUE(window.Locked);
    EXPECT_FALSE(window.Entry("mnuFileSave").Enabled);
    EXPECT_FALSE(window.cmdSave.Enabled);
    for (const EntryBox* box : {&window.txtName, &window.txtDate, &window.txtAmount}) {
        EXPECT_FALSE(box->Enabled);
    }
    run.Add(window, "1/1/2008", "5");
    window.Choose(run.program, "mnuFileSave");
    EXPECT_FALSE(window.SaveDepositInfo(run.program));
    EXPECT_TRUE(window.lst.Items.empty());
    EXPECT_EQ(fs::file_size(run.folder / "Proposals/Jane Roe.dep"), (64U << 20U) + 1);
    window.Choose(run.program, "mnuFileExit");
    EXPECT_TRUE(window.Closing);
}

TEST(Deposits, AProposalWithoutAFileStartsEmptyAndIsSavedFirst) {
    RunningProgram run;
    run.folder.Write("Proposals/.dep", "nobody\r\na\t\t$ 1.00");
    modDeposits::mnuManageDeposits_Click(run.program);
    auto& window = dynamic_cast<frmDeposits&>(*modWindows::Find(run.program, "frmDeposits"));
    EXPECT_TRUE(window.lst.Items.empty());
    window.txtAmount_Change(run.program, "5");
    window.cmdSave_Click(run.program);
    run.surroundings.questions.Expect("Please enter the client's name");
    window.Choose(run.program, "mnuFileSave");
    EXPECT_TRUE(window.DepositChanged);
    EXPECT_EQ(run.folder.Read("Proposals/.dep"), "nobody\r\na\t\t$ 1.00");
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 2);
    typist.Type("Ann");
    window.Form_Follow(run.program);
    EXPECT_EQ(window.Caption, "Deposits Received - Ann");
    run.surroundings.questions.Expect("File was saved as Ann.hef");
    window.Choose(run.program, "mnuFileSave");
    EXPECT_TRUE(run.folder.Has("Proposals/Ann.hef"));
    EXPECT_EQ(run.folder.Read("Proposals/Ann.dep"), "\r\nJan 21, 2008\t\t$ 5.00");
    EXPECT_EQ(run.TextOf(PageId::frmP6, 4), "5");
}

TEST(Deposits, AFileIsFoundWhateverTheCaseOfItsName) {
    Deposited run;
    run.folder.Write("Proposals/JANE ROE.DEP", "Jane Roe\r\na\t\t$ 500.00");
    frmDeposits& window = run.Open();
    EXPECT_EQ(window.lst.Items.size(), 1U);
    window.Choose(run.program, "mnuFileSave"); // its own name is the exact one
    EXPECT_EQ(run.File(), "Jane Roe\r\na\t\t$ 500.00");
    EXPECT_TRUE(run.folder.Has("Proposals/JANE ROE.DEP"));
}

TEST(Deposits, AFolderOrALinkToNowhereOfThatNameIsNoFile) {
    Deposited run;
    fs::create_symlink("nowhere", run.folder / "Proposals/Jane Roe.dep");
    frmDeposits& window = run.Open();
    EXPECT_TRUE(window.lst.Items.empty());
    EXPECT_FALSE(window.Locked);
}

TEST(Deposits, TheCommandBringsTheOpenWindowToTheFront) {
    Deposited run;
    frmDeposits& window = run.Open();
    run.Add(window, "1/1/2008", "5");
    run.File("Jane Roe\r\nother\t\t$ 1.00");
    EXPECT_EQ(&run.Open(), &window);
    EXPECT_EQ(window.FrontCalls, 1);
    EXPECT_EQ(window.lst.Items.size(), 1U);
    EXPECT_EQ(std::count_if(run.program.windows.Open.begin(), run.program.windows.Open.end(),
                            [](const auto& open) { return open->Name() == "frmDeposits"; }),
              1);
}

TEST(Deposits, LeavingTheProposalAsksForThemFirstSoThatTheDepositReachesItsFile) {
    Deposited run;
    frmDeposits& window = run.Open();
    run.Add(window, "1/1/2008", "501");
    run.Boxes().Expect("The deposit list has changed.", Answer::Yes);
    run.Boxes().Expect("Replace it with", Answer::Yes);
    run.Boxes().Expect("Some text has been changed.", Answer::Yes);
    run.Boxes().Expect("File was saved as Jane Roe.hef");
    modProposal::mnuFileNew_Click(run.program);
    modWindows::Sweep(run.program);
    EXPECT_EQ(modWindows::Find(run.program, "frmDeposits"), nullptr);
    EXPECT_NE(run.folder.Read("Proposals/Jane Roe.hef").find("501"), std::string::npos);
}

TEST(Deposits, CancelOfTheProposalsQuestionLeavesEverythingAsItWas) {
    Deposited run;
    Typist(run.program).Click(PageId::frmP1, 3);
    Typist(run.program).Type("x");
    frmDeposits& window = run.Open();
    run.Add(window, "1/1/2008", "501");
    run.Boxes().Expect("The deposit list has changed.", Answer::No);
    run.Boxes().Expect("Some text has been changed.", Answer::Cancel);
    modProposal::mnuFileNew_Click(run.program);
    EXPECT_FALSE(window.Closing);
    EXPECT_TRUE(window.DepositChanged);
    EXPECT_EQ(window.lst.Items.size(), 1U);
    run.Boxes().Expect("The deposit list has changed.", Answer::Cancel);
    EXPECT_FALSE(modWindows::MayLeave(run.program, Leaving::Run));
}

TEST(Deposits, OfADeletedProposalCloseWithoutAQuestionAndWriteNothing) {
    Deposited run;
    run.Add(run.Open(), "1/1/2008", "501");
    run.Boxes().Expect("Are you sure you want to delete this file?", Answer::Yes);
    modProposal::mnuFileDelete_Click(run.program);
    modWindows::Sweep(run.program);
    EXPECT_EQ(modWindows::Find(run.program, "frmDeposits"), nullptr);
    EXPECT_FALSE(run.folder.Has("Proposals/Jane Roe.dep"));
}

TEST(Deposits, WhenTheRunIsEndedFromOutsideTheyAreKeptBesideTheBackup) {
    Deposited run;
    frmDeposits& window = run.Open();
    run.Add(window, "1/1/2008", "501");
    window.txtAmount_Change(run.program, "7");
    modWindows::KeepUnsaved(run.program);
    EXPECT_EQ(run.folder.Read("Proposals/Backup/Jane Roe.dep"),
              "Jane Roe\r\n1/1/2008\t\t$ 501.00\r\n1/1/2008\t\t$ 7.00");
    EXPECT_FALSE(run.folder.Has("Proposals/Jane Roe.dep"));
}

TEST(Deposits, SaveAsTakesThemAlong) {
    Deposited run;
    run.File("Jane Roe\r\na\t\t$ 500.00");
    run.Boxes().ExpectInput("Saving File As...", "Second");
    run.Boxes().Expect("File was saved as Second.hef");
    modProposal::SaveEventFileAs(run.program);
    EXPECT_EQ(run.folder.Read("Proposals/Second.dep"), "Jane Roe\r\na\t\t$ 500.00");
}

TEST(Deposits, SaveAsInheritsNobodyElses) {
    Deposited run;
    run.folder.Write("Proposals/Second.hef", "other");
    run.folder.Write("Proposals/Second.dep", "Other\r\na\t\t$ 1.00");
    run.folder.Write("Proposals/Backup/Second.dep.old", "older");
    run.Boxes().ExpectInput("Saving File As...", "Second");
    run.Boxes().Expect("already exists. Overwrite?", Answer::Yes);
    run.Boxes().Expect("File was saved as Second.hef");
    modProposal::SaveEventFileAs(run.program);
    EXPECT_FALSE(run.folder.Has("Proposals/Second.dep"));
    EXPECT_EQ(run.folder.Read("Proposals/Backup/Second.dep.old2"), "Other\r\na\t\t$ 1.00");
    EXPECT_EQ(run.folder.Read("Proposals/Backup/Second.dep.old"), "older");
}

TEST(Deposits, WhatIsTypedLeavesNothingMarked) {
    Deposited run;
    frmDeposits& window = run.Open();
    for (EntryBox* box : {&window.txtName, &window.txtDate, &window.txtAmount}) {
        box->SelLength = 3;
    }
    window.txtName_Change(run.program, "J. Roe");
    window.txtDate_Change(run.program, "1/1/2008");
    window.txtAmount_Change(run.program, "5");
    for (const EntryBox* box : {&window.txtName, &window.txtDate, &window.txtAmount}) {
        EXPECT_EQ(box->SelLength, 0) << box->Text;
        EXPECT_EQ(box->BackColor, colors::kWhite) << box->Text;
    }
    EXPECT_TRUE(window.SaveIsDefault);
}

TEST(Deposits, AfterARowHasGoneNoneIsMarked) {
    Deposited run;
    run.File("Jane Roe\r\na\t\t$ 100.00\r\nb\t\t$ 150.00\r\nc\t\t$ 250.00");
    frmDeposits& window = run.Open();
    window.lst_Click({1}, 1);
    window.Choose(run.program, "mnuEditDelete");
    EXPECT_EQ(window.lst.SelCount(), 0);
    EXPECT_EQ(window.lst.Selected, std::vector<bool>(2, false));
    EXPECT_EQ(window.lst.ListIndex, -1);
    EXPECT_TRUE(window.DepositChanged) << "closing asks";
    run.Boxes().ExpectBox({"Nothing selected to remove.", Buttons::Ok, ""}, Answer::Ok);
    window.Choose(run.program, "mnuEditDelete");
    EXPECT_EQ(window.lst.Items, (Deposited::Items{"a\t\t$ 100.00", "c\t\t$ 250.00"}));
}

TEST(Deposits, TheNameOfTheFileIsMarkedWholeUntilARowIsTakenForEditing) {
    Deposited run;
    run.File("J. Roe\r\nJan 21, 2008\t\t$ 500.00");
    frmDeposits& window = run.Open();
    EXPECT_EQ(window.txtName.SelLength, 6);
    window.lst_Click({0}, 0);
    EXPECT_EQ(window.lst.ListIndex, 0);
    run.Boxes().Expect("The selected item has been placed");
    window.Choose(run.program, "mnuEditItem");
    EXPECT_EQ(window.txtName.SelLength, 0);
    EXPECT_EQ(window.txtAmount.SelLength, 0);
    EXPECT_EQ(window.txtDate.SelLength, 12);
    window.cmdSave_Click(run.program);
    EXPECT_EQ(window.txtDate.SelLength, 0);
}

TEST(Deposits, AnotherNameReachesAFileThatHasNoRows) {
    Deposited run;
    run.File("Jane Roe");
    run.Boxes().ExpectBox(kMismatch, Answer::Ok);
    frmDeposits& window = run.Open();
    window.txtName_Change(run.program, "J. Roe");
    run.Boxes().TakeAll(Answer::No); // the proposal's deposit stays
    window.Choose(run.program, "mnuFileSave");
    EXPECT_EQ(run.File(), "J. Roe");
}

TEST(Deposits, TheSameAmountOfAnotherDayIsAnotherDeposit) {
    Deposited run;
    frmDeposits& window = run.Open();
    run.Add(window, "1/1/2008", "75");
    window.txtDate_Change(run.program, "1/2/2008");
    window.cmdSave_Click(run.program);
    EXPECT_EQ(window.lst.Items, (Deposited::Items{"1/1/2008\t\t$ 75.00", "1/2/2008\t\t$ 75.00"}));
}

TEST(Deposits, ADateThatIsOnlyWrittenAnewIsNoOtherDeposit) {
    Deposited run;
    frmDeposits& window = run.Open();
    window.MoveFocus(run.program, "txtDate");
    run.Add(window, "1/1/2008", "75");
    window.MoveFocus(run.program, "txtAmount");
    EXPECT_EQ(window.txtDate.Text, "Jan 01, 2008");
    window.cmdSave_Click(run.program);
    EXPECT_EQ(window.lst.Items, (Deposited::Items{"1/1/2008\t\t$ 75.00"}));
}

TEST(Deposits, ATakenRowWhoseDateIsOnlyWrittenAnewIsNotAskedAbout) {
    Deposited run;
    run.File("Jane Roe\r\n1/5/2008\t\t$ 500.00");
    frmDeposits& window = run.Open();
    window.lst_Click({0}, 0);
    run.Boxes().Expect("has been placed");
    window.Choose(run.program, "mnuEditItem");
    window.MoveFocus(run.program, "txtAmount");
    EXPECT_EQ(window.txtDate.Text, "Jan 05, 2008");
    window.Choose(run.program, "mnuFileExit");
    EXPECT_TRUE(window.Closing);
}

TEST(Deposits, ARowThatWasAddedSavedAndRemovedDoesNotComeBack) {
    Deposited run;
    frmDeposits& window = run.Open();
    run.Add(window, "1/1/2008", "500");
    window.Choose(run.program, "mnuFileSave");
    ASSERT_EQ(run.File(), "Jane Roe\r\n1/1/2008\t\t$ 500.00");
    window.lst_Click({0}, 0);
    window.Choose(run.program, "mnuEditDelete");
    run.Boxes().Expect("There are no Deposits to save.");
    window.Choose(run.program, "mnuFileSave");
    EXPECT_EQ(run.File(), "Jane Roe");
    EXPECT_EQ(run.Deposit(), "0");
}

TEST(Deposits, AListThatIsAsItsFileIsNotKeptWhenTheRunIsEndedFromOutside) {
    Deposited run;
    run.File("Jane Roe\r\n1/1/2008\t\t$ 500.00");
    run.Open();
    modWindows::KeepUnsaved(run.program);
    EXPECT_FALSE(run.folder.Has("Proposals/Backup/Jane Roe.dep"));
}

TEST(Deposits, OneUnreadableRowIsToldOfAsOne) {
    Deposited run;
    run.File("Jane Roe\r\nJan 1, 2008\t\t$ 500.00\r\nlost");
    run.Boxes().ExpectBox(
        {"The amount of 1 deposit in the list cannot be read. It stays in the list and counts as 0.00.",
         Buttons::Ok, ""},
        Answer::Ok);
    EXPECT_EQ(run.Open().lst.Items.size(), 2U);
}

} // namespace
