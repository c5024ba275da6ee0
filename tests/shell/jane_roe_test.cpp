#include "shell/command_run.h"
#include "support/running_program.h"

#include <gtest/gtest.h>

namespace {

TEST(JaneRoe, IsTypedSavedAndReadBackToTheByte) {
    RunningProgram run;
    run.surroundings.questions.Expect("File was saved as Jane Roe.hef");
    TypeJaneRoe(run);
    EXPECT_EQ(run.TextOf(PageId::frmP6, 0), "1,395.47");
    EXPECT_EQ(run.TextOf(PageId::frmP6, 1), "1,319.97");
    EXPECT_EQ(run.TextOf(PageId::frmP6, 2), "108.90");
    EXPECT_EQ(run.TextOf(PageId::frmP6, 3), "1,504.37");
    EXPECT_EQ(run.TextOf(PageId::frmP6, 4), "500.00");
    EXPECT_EQ(run.TextOf(PageId::frmP6, 5), "1,004.37");
    EXPECT_EQ(run.program.totals.SubTotal, 1395.469970703125F);
    EXPECT_EQ(run.program.totals.TaxableTotal, 1319.969970703125F);
    EXPECT_EQ(run.program.totals.SalesTax, 108.89752197265625F);
    EXPECT_EQ(run.program.totals.Total, 1504.367431640625F);
    commands::Run(run.program, CommandId::mnuFileSaveEvent);
    run.surroundings.questions.Done();
    const std::string expected = ReadTestData("jane_roe/Jane Roe.hef");
    ASSERT_EQ(expected.size(), 20630U);
    EXPECT_EQ(run.folder.Read("Proposals/Jane Roe.hef"), expected);
}

} // namespace
