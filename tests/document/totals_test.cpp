#include "document/fields.h"
#include "document/page_setup.h"
#include "document/proposal_file.h"
#include "document/totals.h"
#include "editing/keys.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

namespace {

void Amount(RunningProgram& run, PageId page, int index, std::string_view text) {
    Typist typist(run.program);
    typist.Click(page, index);
    typist.PutCursor(0, static_cast<int>(run.TextOf(page, index).size()));
    typist.Type(text);
    typist.Click(page, 0);
}

std::vector<std::string> Figures(RunningProgram& run, PageId page = PageId::frmP6) {
    std::vector<std::string> texts;
    for (const TextArea& area : run.program.pages[page].txt) {
        texts.push_back(area.Text);
    }
    return texts;
}

using Texts = std::vector<std::string>;

TEST(RunningTotals, FollowAnAmountThatIsLeft) {
    RunningProgram run;
    Amount(run, PageId::frmP1, 20, "1000");
    Amount(run, PageId::frmP3, 40, "234.5");
    // Tax on 1234.50 at 8.25 %: 101.84625.
    EXPECT_EQ(Figures(run), (Texts{"1,234.50", "1,234.50", "101.85", "1,336.35", "", "1,336.35"}));
    EXPECT_EQ(Figures(run, PageId::frmP6_1), Figures(run));
    EXPECT_EQ(run.program.main.lblTotal.Caption, "Running Sub-Total = $ 1,234.50");
    EXPECT_EQ(run.program.main.cmdReCalc.BackColor, colors::kButtonFace);
    EXPECT_EQ(run.program.totals.PageSum[2], 234.5F);
}

TEST(RunningTotals, AnExemptRowStillCountsInTheSubtotal) {
    RunningProgram run;
    Amount(run, PageId::frmP2, 33, "100");
    Amount(run, PageId::frmP2, 34, "50");
    modPages::SetNoTaxMark(run.program, PageId::frmP2, 34, modPages::Mark::Shown);
    modTotals::CalculateMyTotals(run.program, PageId::frmP2);
    modTotals::UpdateRunningTotals(run.program);
    EXPECT_EQ(Figures(run), (Texts{"150.00", "100.00", "8.25", "158.25", "", "158.25"}));
}

TEST(RunningTotals, TaxTiesRoundUpOnTheSinglesShortestText) {
    RunningProgram run;
    Amount(run, PageId::frmP2, 33, "10");
    EXPECT_EQ(Figures(run)[2], "0.83") << "10.00 at 8.25 % is 0.825";
}

TEST(RunningTotals, ANegativeTaxableAmountIsTaxedAsItStands) {
    RunningProgram run;
    Amount(run, PageId::frmP2, 33, "-100");
    EXPECT_EQ(Figures(run), (Texts{"-100.00", "-100.00", "-8.25", "-108.25", "", "-108.25"}));
}

TEST(FullRecalculation, AddsEveryFieldAgainAndShowsTheTotalBare) {
    RunningProgram run;
    Amount(run, PageId::frmP1, 20, "1250");
    Amount(run, PageId::frmP5, 65, "0.5");
    run.Area(PageId::frmP2, 33).Text = "abc"; // no number: adds nothing and stays
    modTotals::RecalculateAll(run.program);
    // 1250.50, tax 103.16625, total 1353.66625 as a single 1353.6663.
    EXPECT_EQ(Figures(run), (Texts{"1,250.50", "1,250.50", "103.17", "1353.666", "0.00", "1,353.67"}));
    EXPECT_EQ(run.TextOf(PageId::frmP2, 33), "abc");
    EXPECT_EQ(Figures(run, PageId::frmP6_1)[3], "1353.666");
    modTotals::UpdateRunningTotals(run.program);
    EXPECT_EQ(Figures(run)[3], "1,353.67");
}

TEST(FullRecalculation, AZeroTotalShowsSixTimesZeroAndTakesTheDepositAlong) {
    RunningProgram run;
    run.program.totals.Deposit = 500;
    modTotals::RecalculateAll(run.program);
    EXPECT_EQ(Figures(run), (Texts{"0.00", "0.00", "0.00", "0.00", "0.00", "0.00"}));
    EXPECT_EQ(run.program.totals.Deposit, 0);
}

TEST(FullRecalculation, KeepsTheDepositOfATotalThatIsNotZero) {
    RunningProgram run;
    Amount(run, PageId::frmP1, 20, "100");
    run.program.totals.Deposit = 30;
    modTotals::RecalculateAll(run.program);
    EXPECT_EQ(Figures(run)[4], "30.00");
    EXPECT_EQ(Figures(run)[5], "78.25");
}

TEST(FullRecalculation, ItsMessageTellsTheFiguresOfThePass) {
    RunningProgram run;
    Amount(run, PageId::frmP1, 20, "0.5");
    run.surroundings.questions.ExpectBox(
        {"All amounts have been recalculated.\r\nSubTotal = .50\r\nTaxable SubTotal = .50\r\n"
         "Sales Tax = .04\r\nTotal = .54\r\nDeposit = .00\r\nBalance = .54",
         Buttons::Ok, ""},
        Answer::Ok);
    modTotals::cmdReCalc_Click(run.program);
    EXPECT_EQ(run.program.main.cmdReCalc.BackColor, colors::kButtonFace);
}

TEST(HiddenTotals, AreEmptiedBothWaysAndTheDepositStays) {
    RunningProgram run;
    Amount(run, PageId::frmP1, 20, "100");
    Amount(run, PageId::frmP6, 4, "30");
    modTotals::mnuOptHideTotals_Click(run.program);
    EXPECT_TRUE(run.program.totals.TotalsHidden);
    EXPECT_FALSE(run.program.main.cmdReCalc.Visible);
    EXPECT_EQ(Figures(run), (Texts{"", "", "", "", "30.00", ""}));
    EXPECT_EQ(Figures(run, PageId::frmP6_1), Figures(run));
    modTotals::RecalculateAll(run.program);
    EXPECT_EQ(Figures(run)[0], "");
    Amount(run, PageId::frmP1, 21, "50");
    EXPECT_EQ(Figures(run), (Texts{"", "", "", "", "30.00", ""}));
    EXPECT_FALSE(modTotals::TotalsDiffer(run.program)) << "a save finds nothing apart while they are hidden";
    modTotals::mnuOptHideTotals_Click(run.program);
    EXPECT_TRUE(run.program.main.cmdReCalc.Visible);
    EXPECT_EQ(Figures(run), (Texts{"", "", "", "", "30.00", ""}));
    modTotals::UpdateRunningTotals(run.program);
    EXPECT_EQ(Figures(run)[0], "150.00");
}

TEST(Discrepancy, TwoWaysOfAddingSinglesThatReallyDifferAreTold) {
    RunningProgram run;
    // By field: 16777216 + 1 + 1 stays 16777216 in singles. By page: 16777216 + (1 + 1) is 16777218.
    for (const auto& [page, index, value] :
         {std::tuple{PageId::frmP1, 20, 16777216.0F}, {PageId::frmP2, 33, 1.0F}, {PageId::frmP2, 34, 1.0F}}) {
        run.Area(page, index).Text = value > 1 ? "16777216" : "1";
        run.program.totals
            .AmountTable[static_cast<std::size_t>(index)][static_cast<std::size_t>(IndexOf(page))] = value;
        modPages::SetNoTaxMark(run.program, page, index, modPages::Mark::Shown);
    }
    modTotals::CalculateMyTotals(run.program, PageId::frmP1);
    modTotals::CalculateMyTotals(run.program, PageId::frmP2);
    run.program.document.FileName = "X.hef";
    run.program.document.BaseName = "X";
    run.surroundings.questions.ExpectBox(
        {"A descrepancy has occurred in calculating the totals. Please verify\r\n"
         "the total amounts manually or press \"Recalculate\" to continue the\r\n"
         "calculation without true verification. We apologize for the inconvenience.",
         Buttons::Ok, ""},
        Answer::Ok);
    run.surroundings.questions.Expect("File was saved as X.hef");
    EXPECT_EQ(modFile::SaveEventFile(run.program), modFile::SaveResult::Saved);
    EXPECT_EQ(run.program.totals.FullTotal, 16777216.0F);
    EXPECT_EQ(run.program.totals.RunningTotal, 16777218.0F);
    EXPECT_EQ(run.program.main.cmdReCalc.BackColor, colors::kOverLimit);
}

TEST(ExemptMark, AClickTakesTheRowBackAtOnce) {
    RunningProgram run;
    Amount(run, PageId::frmP2, 33, "100");
    run.program.format.PropTextChanges[1][33].TaxExempt = true;
    run.program.format.FormatTextChanges[1][33].TaxExempt = true;
    modPages::SetNoTaxMark(run.program, PageId::frmP2, 33, modPages::Mark::Shown);
    modTotals::CalculateMyTotals(run.program, PageId::frmP2);
    modTotals::UpdateRunningTotals(run.program);
    EXPECT_EQ(Figures(run)[1], "0.00");
    modTotals::imgNoTax_Click(run.program, PageId::frmP2, 33);
    EXPECT_EQ(Figures(run)[1], "100.00");
    EXPECT_EQ(run.program.totals.TaxableTable[33][1], 100.0F);
    EXPECT_EQ(run.program.pages[PageId::frmP2].imgNoTax[33].Tag, "Hide");
    EXPECT_FALSE(run.program.format.PropTextChanges[1][33].TaxExempt);
    EXPECT_FALSE(run.program.format.FormatTextChanges[1][33].TaxExempt);
    EXPECT_TRUE(run.program.format.PropTextChanges[1][33].Dirty);
    EXPECT_EQ(run.program.main.cmdReCalc.BackColor, colors::kOverLimit);
    EXPECT_EQ(run.program.main.Focus, (FieldRef{PageId::frmP2, FieldKind::txt, 33}));
}

TEST(FinalPage, ATypedDepositIsTakenAndTheButtonEndsRed) {
    RunningProgram run;
    Amount(run, PageId::frmP1, 20, "100");
    Typist typist(run.program);
    typist.Click(PageId::frmP6, 4);
    typist.Type("40");
    EXPECT_EQ(run.program.totals.Deposit, 40);
    EXPECT_EQ(Figures(run)[5], "68.25");
    EXPECT_EQ(run.TextOf(PageId::frmP6_1, 4), "40");
    EXPECT_EQ(run.program.main.cmdReCalc.BackColor, colors::kOverLimit);
    typist.Click(PageId::frmP6, 1);
    EXPECT_EQ(Figures(run)[4], "40.00");
    EXPECT_EQ(run.program.main.cmdReCalc.BackColor, colors::kButtonFace);
}

TEST(FinalPage, AFigureTypedOverTaxOrTaxableIsReplacedAtOnce) {
    RunningProgram run;
    Amount(run, PageId::frmP1, 20, "100");
    Typist typist(run.program);
    typist.Click(PageId::frmP6, 2);
    typist.PutCursor(0, 4);
    typist.Type("5");
    EXPECT_EQ(Figures(run)[2], "8.25");
    typist.Click(PageId::frmP6, 1);
    typist.PutCursor(0, 6);
    typist.Type("7");
    EXPECT_EQ(Figures(run)[1], "100.00");
    EXPECT_EQ(run.program.main.cmdReCalc.BackColor, colors::kOverLimit);
}

TEST(FinalPage, TextThatIsNoNumberStaysAndChangesNothing) {
    RunningProgram run;
    Amount(run, PageId::frmP1, 20, "100");
    Amount(run, PageId::frmP6, 4, "40");
    modFields::TypeText(run.program, {PageId::frmP6, FieldKind::txt, 4}, "-", 1, 0);
    EXPECT_EQ(run.program.totals.Deposit, 40);
    EXPECT_EQ(run.TextOf(PageId::frmP6, 4), "-");
    modFields::TypeText(run.program, {PageId::frmP6, FieldKind::txt, 4}, "", 0, 0);
    EXPECT_EQ(run.program.totals.Deposit, 0) << "an emptied deposit is none";
}

TEST(FinalPage, LeavingItWithAllFiguresZeroDoesNothing) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP6, 4);
    typist.Type("0");
    typist.Click(PageId::frmP6, 1);
    EXPECT_EQ(run.TextOf(PageId::frmP6, 4), "0");
}

TEST(FinalPage, EnterInTheDepositWritesItUnderItsPattern) {
    RunningProgram run;
    Amount(run, PageId::frmP1, 20, "100");
    Typist typist(run.program);
    typist.Click(PageId::frmP6, 4);
    typist.Type("12");
    typist.Press(keys::kEnter);
    EXPECT_EQ(run.TextOf(PageId::frmP6, 4), "12.00");
    EXPECT_EQ(run.program.main.Focus, (FieldRef{PageId::frmP6, FieldKind::txt, 4}));
}

TEST(CheckOfAddition, PutsTheValueInEveryRowAndTellsTheSum) {
    RunningProgram run;
    run.surroundings.questions.ExpectInput("", "10");
    run.surroundings.questions.ExpectBox({"330", Buttons::Ok, ""}, Answer::Ok);
    modTotals::mnuAdminCheckAddition_Click(run.program);
    EXPECT_EQ(run.TextOf(PageId::frmP2, 33), "10");
    EXPECT_EQ(run.TextOf(PageId::frmP2, 65), "10");
    EXPECT_EQ(run.surroundings.questions.Prompts.back(), "Please enter value");
}

} // namespace
