#include "money/totals.h"
#include "pages/row_fields.h"
#include "proposal/proposal_save.h"
#include "support/running_program.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

/// By field: 16777216 + 1 + 1 stays 16777216 in singles. By page: 16777216 + (1 + 1) is 16777218.
struct TwoTotals : RunningProgram {
    TwoTotals() {
        for (const auto& [page, index, value] : {std::tuple{PageId::frmP1, 20, 16777216.0F},
                                                 {PageId::frmP2, 33, 1.0F},
                                                 {PageId::frmP2, 34, 1.0F}}) {
            Area(page, index).Text = value > 1 ? "16777216" : "1";
            program.totals.AmountTable[static_cast<std::size_t>(index)]
                .Each[static_cast<std::size_t>(IndexOf(page))] = value;
            modPages::SetNoTaxMark(program, page, index, modPages::Mark::Shown);
        }
        modTotals::CalculateMyTotals(program, PageId::frmP1);
        modTotals::CalculateMyTotals(program, PageId::frmP2);
        program.document.FileName = "X.hef";
        program.document.BaseName = "X";
    }
};

TEST(Discrepancy, TwoWaysOfAddingSinglesThatReallyDifferAreTold) {
    TwoTotals run;
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
    EXPECT_EQ(run.Main().cmdReCalc.BackColor, colors::kOverLimit);
}

TEST(Discrepancy, OfTotalsThatAreHiddenIsNotTold) {
    TwoTotals run;
    modTotals::RecalculateAll(run.program);
    ASSERT_TRUE(modTotals::TotalsDiffer(run.program));
    modTotals::mnuOptHideTotals_Click(run.program);
    EXPECT_FALSE(modTotals::TotalsDiffer(run.program));
    run.surroundings.questions.Expect("File was saved as X.hef");
    EXPECT_EQ(modFile::SaveEventFile(run.program), modFile::SaveResult::Saved);
}

} // namespace
