#include "money/amounts.h"
#include "money/totals.h"
#include "pages/fields.h"
#include "pages/row_fields.h"
#include "program/keys.h"
#include "support/person.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

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
    EXPECT_EQ(run.Main().lblTotal.Caption, "Running Sub-Total = $ 1,234.50");
    EXPECT_EQ(run.Main().cmdReCalc.BackColor, colors::kButtonFace);
    EXPECT_EQ(run.program.totals.PageSum[PageId::frmP3], 234.5F);
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

TEST(FullRecalculation, AZeroTotalLeavesTheDepositAlone) {
    RunningProgram run;
    run.program.totals.Deposit = 500;
    modTotals::RecalculateAll(run.program);
    EXPECT_EQ(Figures(run), (Texts{"0.00", "0.00", "0.00", "0.00", "500.00", "-500.00"}));
    EXPECT_EQ(run.program.totals.Deposit, 500);
    run.program.totals.Deposit = 0;
    modTotals::RecalculateAll(run.program);
    EXPECT_EQ(Figures(run), (Texts{"0.00", "0.00", "0.00", "0.00", "0.00", "0.00"}));
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
    EXPECT_EQ(run.Main().cmdReCalc.BackColor, colors::kButtonFace);
}

TEST(HiddenTotals, AreEmptiedBothWaysAndTheDepositStays) {
    RunningProgram run;
    Amount(run, PageId::frmP1, 20, "100");
    Amount(run, PageId::frmP6, 4, "30");
    modTotals::mnuOptHideTotals_Click(run.program);
    EXPECT_TRUE(run.program.totals.TotalsHidden);
    EXPECT_FALSE(run.Main().cmdReCalc.Visible);
    EXPECT_EQ(Figures(run), (Texts{"", "", "", "", "30.00", ""}));
    EXPECT_EQ(Figures(run, PageId::frmP6_1), Figures(run));
    modTotals::RecalculateAll(run.program);
    EXPECT_EQ(Figures(run)[0], "");
    Amount(run, PageId::frmP1, 21, "50");
    EXPECT_EQ(Figures(run), (Texts{"", "", "", "", "30.00", ""}));
    EXPECT_FALSE(modTotals::TotalsDiffer(run.program)) << "a save finds nothing apart while they are hidden";
    modTotals::mnuOptHideTotals_Click(run.program);
    EXPECT_TRUE(run.Main().cmdReCalc.Visible);
    EXPECT_EQ(Figures(run), (Texts{"", "", "", "", "30.00", ""}));
    modTotals::UpdateRunningTotals(run.program);
    EXPECT_EQ(Figures(run)[0], "150.00");
}

TEST(ClientsCopy, IsBroughtBackByEitherComputation) {
    RunningProgram run;
    Amount(run, PageId::frmP1, 20, "100");
    const auto spoil = [&] {
        for (TextArea& area : run.program.pages[PageId::frmP6_1].txt) {
            area.Text = "spoilt";
        }
    };
    modTotals::RecalculateAll(run.program);
    spoil();
    modTotals::RecalculateAll(run.program); // writes the same figures, so that no field fires
    EXPECT_EQ(Figures(run, PageId::frmP6_1), Figures(run));
    modTotals::UpdateRunningTotals(run.program);
    spoil();
    modTotals::UpdateRunningTotals(run.program);
    EXPECT_EQ(Figures(run, PageId::frmP6_1), Figures(run));
}

TEST(ExemptMark, AClickTakesTheRowBackAtOnce) {
    RunningProgram run;
    Amount(run, PageId::frmP2, 33, "100");
    run.program.format.PropTextChanges[PageId::frmP2][33].TaxExempt = true;
    run.program.format.FormatTextChanges[PageId::frmP2][33].TaxExempt = true;
    modPages::SetNoTaxMark(run.program, PageId::frmP2, 33, modPages::Mark::Shown);
    modTotals::CalculateMyTotals(run.program, PageId::frmP2);
    modTotals::UpdateRunningTotals(run.program);
    EXPECT_EQ(Figures(run)[1], "0.00");
    modTotals::imgNoTax_Click(run.program, PageId::frmP2, 33);
    EXPECT_EQ(Figures(run)[1], "100.00");
    EXPECT_EQ(run.program.totals.TaxableTable[33][PageId::frmP2], 100.0F);
    EXPECT_EQ(run.program.pages[PageId::frmP2].imgNoTax[33].Tag, "Hide");
    EXPECT_FALSE(run.program.format.PropTextChanges[PageId::frmP2][33].TaxExempt);
    EXPECT_FALSE(run.program.format.FormatTextChanges[PageId::frmP2][33].TaxExempt);
    EXPECT_TRUE(run.program.format.PropTextChanges[PageId::frmP2][33].Dirty);
    EXPECT_EQ(run.Main().cmdReCalc.BackColor, colors::kOverLimit);
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
    EXPECT_EQ(run.Main().cmdReCalc.BackColor, colors::kOverLimit);
    typist.Click(PageId::frmP6, 1);
    EXPECT_EQ(Figures(run)[4], "40.00");
    EXPECT_EQ(run.Main().cmdReCalc.BackColor, colors::kButtonFace);
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
    EXPECT_EQ(run.Main().cmdReCalc.BackColor, colors::kOverLimit);
}

TEST(FinalPage, ADepositThatIsNoNumberStaysAndCountsAsNothing) {
    RunningProgram run;
    Amount(run, PageId::frmP1, 20, "100");
    Amount(run, PageId::frmP6, 4, "40");
    modFields::TypeText(run.program, {PageId::frmP6, FieldKind::txt, 4}, "-", 1, 0);
    EXPECT_EQ(run.program.totals.Deposit, 0);
    EXPECT_EQ(run.TextOf(PageId::frmP6, 5), "108.25");
    EXPECT_EQ(run.Area(PageId::frmP6, 4).BackColor, colors::kOverLimit);
    EXPECT_EQ(run.Area(PageId::frmP6, 4).ToolTipText, "This is not a number and counts as nothing.");
    Typist(run.program).Click(PageId::frmP6, 1);
    modTotals::SumAgain(run.program);
    EXPECT_EQ(run.TextOf(PageId::frmP6, 4), "-") << "the text stays for the person to mend";
    EXPECT_EQ(run.Area(PageId::frmP6, 4).BackColor, colors::kOverLimit);
    person::StartAnew(run.program);
    EXPECT_EQ(run.Area(PageId::frmP6, 4).ToolTipText, "") << "it goes with its proposal";
    modFields::TypeText(run.program, {PageId::frmP6, FieldKind::txt, 4}, "-", 1, 0);
    modFields::TypeText(run.program, {PageId::frmP6, FieldKind::txt, 4}, "40", 2, 0);
    EXPECT_EQ(run.program.totals.Deposit, 40);
    EXPECT_EQ(run.Area(PageId::frmP6, 4).ToolTipText, "");
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

/// Amounts put on the pages and into the tables; `Times` rows from `First` on.
struct Rows {
    PageId Page;
    int First;
    int Times;
    const char* Text;
    bool Exempt;
};

/// A proposal and what must stand on its final page. Worked out apart from this program: every sum and
/// product carried out exactly and rounded to 24 binary digits, shown on the shortest decimal that leads back
/// to it.
struct WorkedOut {
    const char* Name;
    float Rate;
    float Deposit;
    std::vector<Rows> Amounts;
    Texts Running;
    Texts Full;
    bool Differ;
};

void PrintTo(const WorkedOut& example, std::ostream* out) {
    *out << example.Name;
}

class WorkedOutTotals : public testing::TestWithParam<WorkedOut> {};

TEST_P(WorkedOutTotals, AgreeToTheCent) {
    const WorkedOut& example = GetParam();
    RunningProgram run;
    run.program.totals.TaxRate = example.Rate;
    for (const Rows& rows : example.Amounts) {
        for (int index = rows.First; index < rows.First + rows.Times; ++index) {
            run.Area(rows.Page, index).Text = rows.Text;
            modPages::SetNoTaxMark(run.program, rows.Page, index,
                                   rows.Exempt ? modPages::Mark::Shown : modPages::Mark::Hidden);
            modTotals::StoreAmount(run.program, rows.Page, index);
        }
        modTotals::CalculateMyTotals(run.program, rows.Page);
    }
    run.program.totals.Deposit = example.Deposit;
    modTotals::RecalculateAll(run.program);
    EXPECT_EQ(Figures(run), example.Full);
    EXPECT_EQ(Figures(run, PageId::frmP6_1), example.Full);
    modTotals::UpdateRunningTotals(run.program);
    Texts running = Figures(run);
    EXPECT_EQ(running, example.Running);
    EXPECT_EQ(Figures(run, PageId::frmP6_1), running);
    EXPECT_EQ(modTotals::TotalsDiffer(run.program), example.Differ);
}

INSTANTIATE_TEST_SUITE_P(
    Table, WorkedOutTotals,
    testing::Values(
        // 262144.01 is no single: the nearest is 262144.
        WorkedOut{"a quarter of a million",
                  8.25F,
                  0,
                  {{PageId::frmP1, 20, 1, "262144.01", false}},
                  {"262,144.00", "262,144.00", "21,626.88", "283,770.88", "0.00", "283,770.88"},
                  {"262,144.00", "262,144.00", "21,626.88", "283770.9", "0.00", "283,770.88"},
                  false},
        // Ten tenths make 1.0000001 in singles.
        WorkedOut{"ten tenths",
                  8.25F,
                  0,
                  {{PageId::frmP2, 33, 10, "0.1", false}},
                  {"1.00", "1.00", "0.08", "1.08", "0.00", "1.08"},
                  {"1.00", "1.00", "0.08", "1.0825", "0.00", "1.08"},
                  false},
        WorkedOut{"four full pages",
                  8.25F,
                  0,
                  {{PageId::frmP2, 33, 33, "19.99", false},
                   {PageId::frmP3, 33, 33, "19.99", false},
                   {PageId::frmP4, 33, 33, "19.99", false},
                   {PageId::frmP5, 33, 33, "19.99", false}},
                  {"2,638.68", "2,638.68", "217.69", "2,856.37", "0.00", "2,856.37"},
                  {"2,638.68", "2,638.68", "217.69", "2856.37", "0.00", "2,856.37"},
                  false},
        WorkedOut{"small, exempt and negative",
                  7.125F,
                  0.5F,
                  {{PageId::frmP1, 20, 1, "1.005", false},
                   {PageId::frmP2, 33, 1, "2.675", true},
                   {PageId::frmP3, 33, 1, "0.825", false},
                   {PageId::frmP5, 33, 1, "-0.825", false},
                   {PageId::frmP5, 34, 1, "-3", true}},
                  {"0.68", "1.00", "0.07", "0.75", "0.50", "0.25"},
                  {"0.68", "1.00", "0.07", "0.7516058", "0.50", "0.25"},
                  false},
        // Fifty amounts by page and by field: 1784999.5 against 1785000.25.
        WorkedOut{"thirds by the fifty",
                  8.875F,
                  12345.67F,
                  {{PageId::frmP1, 20, 10, "33333.33", false},
                   {PageId::frmP2, 33, 10, "33333.33", false},
                   {PageId::frmP3, 33, 10, "33333.33", true},
                   {PageId::frmP4, 33, 10, "33333.33", false},
                   {PageId::frmP5, 33, 10, "33333.33", false}},
                  {"1,666,666.20", "1,333,333.00", "118,333.31", "1,784,999.50", "12,345.67", "1,772,653.90"},
                  {"1,666,666.90", "1,333,333.10", "118,333.31", "1785000", "12,345.67", "1,772,654.60"},
                  true},
        WorkedOut{"no tax at all",
                  0,
                  0,
                  {{PageId::frmP4, 65, 1, "103.125", false}},
                  {"103.13", "103.13", "0.00", "103.13", "0.00", "103.13"},
                  {"103.13", "103.13", "0.00", "103.125", "0.00", "103.13"},
                  false},
        WorkedOut{"beyond a single's whole numbers",
                  8.25F,
                  0,
                  {{PageId::frmP1, 20, 1, "16777216", true}, {PageId::frmP2, 33, 2, "1", true}},
                  {"16,777,218.00", "0.00", "0.00", "16,777,218.00", "0.00", "16,777,218.00"},
                  {"16,777,216.00", "0.00", "0.00", "1.677722E+07", "0.00", "16,777,216.00"},
                  true}));

TEST(RunningTotals, StayNumbersWhenASumIsTooLargeForASingle) {
    RunningProgram run;
    for (const int index : {33, 34}) {
        run.Area(PageId::frmP2, index).Text = "3e38";
        modTotals::StoreAmount(run.program, PageId::frmP2, index);
    }
    run.program.totals.Deposit = -3e38F;
    modTotals::CalculateMyTotals(run.program, PageId::frmP2);
    modTotals::RecalculateAll(run.program);
    modTotals::UpdateRunningTotals(run.program);
    // The largest single is 34028235 and 31 more places.
    const std::string largest = "340,282,350,000,000,000,000,000,000,000,000,000,000.00";
    EXPECT_EQ(Figures(run)[0], largest);
    EXPECT_EQ(Figures(run)[3], largest);
    EXPECT_EQ(Figures(run)[5], largest);
    EXPECT_FALSE(modTotals::TotalsDiffer(run.program));
}

TEST(RunningTotals, AnAmountThatNoSingleHoldsIsNone) {
    RunningProgram run;
    run.Area(PageId::frmP2, 33).Text = "1e39";
    modTotals::StoreAmount(run.program, PageId::frmP2, 33);
    EXPECT_TRUE(modTotals::IsNoNumber(run.program, run.Area(PageId::frmP2, 33)));
    EXPECT_EQ(run.program.totals.AmountTable[33][PageId::frmP2], 0);
    EXPECT_FALSE(run.Label(PageId::frmP2, 1).Visible);
}

TEST(FullRecalculation, ThatFailsIsReportedAndLeavesItsFlagDown) {
    RunningProgram run;
    run.Area(PageId::frmP1, 20).Text = "5";
    run.program.hooks.Change = [](Program&, const FieldRef&) { throw std::runtime_error("out of order"); };
    run.surroundings.questions.Expect(
        "An error occurred in RecalculateAll.\r\nError Number: 51\r\nError Description: out of order");
    run.surroundings.questions.ExpectBox({"Error encountered while recalculating totals.", Buttons::Ok, ""},
                                         Answer::Ok);
    modTotals::RecalculateAll(run.program);
    EXPECT_FALSE(run.program.totals.InRecalculation);
}

TEST(HiddenTotals, ADepositCanBeTypedWhileTheyAreHidden) {
    RunningProgram run;
    Amount(run, PageId::frmP1, 20, "100");
    modTotals::mnuOptHideTotals_Click(run.program);
    Typist typist(run.program);
    typist.Click(PageId::frmP6, 4);
    typist.Type("1500.5");
    EXPECT_EQ(run.TextOf(PageId::frmP6, 4), "1500.5");
    EXPECT_EQ(run.TextOf(PageId::frmP6_1, 4), "1500.5");
    EXPECT_EQ(run.program.totals.Deposit, 1500.5F);
    typist.Click(PageId::frmP6, 1);
    EXPECT_EQ(run.TextOf(PageId::frmP6, 4), "1,500.50");
    EXPECT_EQ(run.TextOf(PageId::frmP6_1, 4), "1,500.50");
}

TEST(HiddenTotals, ADepositThatIsTakenOutWhileTheyAreHiddenStaysOut) {
    RunningProgram run;
    modTotals::mnuOptHideTotals_Click(run.program);
    Typist typist(run.program);
    typist.Click(PageId::frmP6, 4);
    typist.Type("5");
    typist.Press(keys::kBackspace);
    EXPECT_EQ(run.TextOf(PageId::frmP6, 4), "") << "zeros there would be typed beside";
    typist.Type("7");
    EXPECT_EQ(run.TextOf(PageId::frmP6, 4), "7");
}

TEST(HiddenTotals, BringTheDepositBackToTheClientsCopy) {
    RunningProgram run;
    Amount(run, PageId::frmP6, 4, "30");
    modTotals::mnuOptHideTotals_Click(run.program);
    run.Area(PageId::frmP6_1, 4).Text = "spoilt";
    modTotals::UpdateRunningTotals(run.program);
    EXPECT_EQ(run.TextOf(PageId::frmP6_1, 4), run.TextOf(PageId::frmP6, 4));
}

TEST(FullRecalculation, TakesInWhatIsBeingTypedAndTheButtonEndsPlain) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 20);
    typist.Type("100");
    ASSERT_EQ(run.Main().cmdReCalc.BackColor, colors::kOverLimit);
    modTotals::mnuToolsRecalculate_Click(run.program);
    EXPECT_EQ(run.Main().cmdReCalc.BackColor, colors::kButtonFace);
    EXPECT_EQ(run.Main().lblTotal.Caption, "Running Sub-Total = $ 100.00");
}

TEST(FullRecalculation, LeavesTheTotalUnderItsPatternOnAPageThatShowsAsPrinted) {
    for (const PageId page : {PageId::frmP6, PageId::frmP6_1}) {
        RunningProgram run;
        Amount(run, PageId::frmP1, 20, "1234.5");
        person::TurnTo(run.program, IndexOf(page));
        person::Choose(run.program, CommandId::mnuFilePrintPreview);
        modTotals::mnuToolsRecalculate_Click(run.program);
        EXPECT_EQ(run.TextOf(page, 3), "1,336.35");
        person::Choose(run.program, CommandId::mnuFileResume);
        modTotals::mnuToolsRecalculate_Click(run.program);
        // The tax is 101.84625; a single holds 1336.34625 as 1336.3463.
        EXPECT_EQ(run.TextOf(page, 3), "1336.346");
    }
}

TEST(RunningTotals, From131072OnStandAsTheSingleHoldsThem) {
    RunningProgram run;
    const auto put = [&](int row, const char* text) {
        run.Area(PageId::frmP2, row).Text = text;
        modTotals::StoreAmount(run.program, PageId::frmP2, row);
    };
    // Tax on 10.00 at 8.25 %: 0.825, shown as 0.83. The single next to 131,071.18 and 0.825 is 131,072.
    put(33, "10");
    put(34, "131061.18");
    modTotals::SetTax(run.program, PageId::frmP2, 34, modTotals::Tax::Exempt);
    EXPECT_EQ(Figures(run), (Texts{"131,071.18", "10.00", "0.83", "131,072.00", "", "131,072.00"}));
    // Below it the total is the sum of what stands above it; the single alone would show 131,071.98.
    put(34, "131061.16");
    modTotals::SumAgain(run.program);
    EXPECT_EQ(Figures(run), (Texts{"131,071.16", "10.00", "0.83", "131,071.99", "0.00", "131,071.99"}));
}

TEST(FiguresOfAFile, AreCountedAnewOnBothCopiesHoweverOftenTheyAreRead) {
    RunningProgram run;
    Amount(run, PageId::frmP1, 20, "1234.5");
    Amount(run, PageId::frmP6, 4, "100");
    const Texts figures{"1,234.50", "1,234.50", "101.85", "1,336.35", "100.00", "1,236.35"};
    ASSERT_EQ(Figures(run), figures);
    for (TextArea& area : run.program.pages[PageId::frmP6_1].txt) {
        area.Text = "spoilt";
    }
    modTotals::TotalsAfterReading(run.program);
    EXPECT_EQ(Figures(run), figures);
    EXPECT_EQ(Figures(run, PageId::frmP6_1), figures);
}

TEST(FiguresOfAFile, CountAsAFullPassForTheMessage) {
    RunningProgram run;
    // 1000 taxed and 200 exempt, tax 82.50; nothing has been recalculated since.
    run.program.totals.AmountTable[33][PageId::frmP2] = 1000;
    run.program.totals.TaxableTable[33][PageId::frmP2] = 1000;
    run.program.totals.AmountTable[65][PageId::frmP5] = 200;
    modTotals::TotalsAfterReading(run.program);
    EXPECT_EQ(modTotals::RecalculationMessage(run.program),
              "All amounts have been recalculated.\r\nSubTotal = 1,200.00\r\nTaxable SubTotal = 1,000.00\r\n"
              "Sales Tax = 82.50\r\nTotal = 1,282.50\r\nDeposit = .00\r\nBalance = 1,282.50");
}

TEST(FinalPage, WhileAFileIsReadItsAreasAreMirroredAndTakenForNothing) {
    RunningProgram run;
    run.program.guards.Loading = true;
    modFields::SetText(run.program, {PageId::frmP6, FieldKind::txt, 4}, "75");
    EXPECT_EQ(run.TextOf(PageId::frmP6_1, 4), "75");
    EXPECT_EQ(run.program.totals.Deposit, 0);
    EXPECT_EQ(run.Main().cmdReCalc.BackColor, colors::kButtonFace);
}

} // namespace
