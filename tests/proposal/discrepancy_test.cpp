#include "money/totals.h"
#include "pages/row_fields.h"
#include "proposal/proposal_save.h"
#include "support/running_program.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

TEST(Discrepancy, TwoWaysOfAddingSinglesThatReallyDifferAreTold) {
    RunningProgram run;
    // By field: 16777216 + 1 + 1 stays 16777216 in singles. By page: 16777216 + (1 + 1) is 16777218.
    for (const auto& [page, index, value] :
         {std::tuple{PageId::frmP1, 20, 16777216.0F}, {PageId::frmP2, 33, 1.0F}, {PageId::frmP2, 34, 1.0F}}) {
        run.Area(page, index).Text = value > 1 ? "16777216" : "1";
        run.program.totals.AmountTable[static_cast<std::size_t>(index)]
            .Each[static_cast<std::size_t>(IndexOf(page))] = value;
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
    EXPECT_EQ(run.Main().cmdReCalc.BackColor, colors::kOverLimit);
}

} // namespace
