#include "pages/row_fields.h"
#include "proposal/reset.h"
#include "support/running_program.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

TEST(ResetPages, TheAlternateLetterheadBringsTheContractWordingAndStaysForTheRun) {
    RunningProgram run(RunningProgram::Begin::NotStarted);
    run.folder.Write("Proposals/SNF Settings.txt", "");
    run.Start();
    const auto& lbl = run.program.pages[PageId::frmP1].lbl;
    const float tops[] = {1080, 1440, 1800, 2160, 2520, 2880, 2160, 2520, 2880};
    for (std::size_t index = 0; index < 9; ++index) {
        EXPECT_EQ(lbl[index].Caption, "");
        EXPECT_EQ(lbl[index].Left, index < 6 ? 1080 : 7560);
        EXPECT_EQ(lbl[index].Top, tops[index]);
        EXPECT_EQ(lbl[index].FontSize, 9.75F);
    }
    EXPECT_EQ(run.Label(PageId::frmP6, 13).Caption,
              "All creative ideas in this proposal are the sole property of Acme Events");
    EXPECT_EQ(run.Label(PageId::frmP6, 32).Caption, "Acme Events is not responsible for lighting candles at "
                                                    "the event except for those candles out of ordinary");
    EXPECT_EQ(run.Label(PageId::frmP6_1, 42).Caption,
              "** Please note that if this is not returned by ____________ there "
              "can not be any major changes made to this event.");
    EXPECT_EQ(run.Label(PageId::frmP6, 43).Caption, "");
    std::filesystem::remove(run.folder / "Proposals/SNF Settings.txt");
    static_cast<void>(modReset::StartNewFile(run.program));
    EXPECT_EQ(run.Label(PageId::frmP1, 0).Caption, "");
}

TEST(ResetPages, AResetHidesALabelThatReadsLikeTheSymbolWhoeverTypedIt) {
    RunningProgram run;
    run.Label(PageId::frmP1, 9).Caption = "$";
    modPages::HideOptionalFields(run.program);
    EXPECT_FALSE(run.Label(PageId::frmP1, 9).Visible);
    EXPECT_EQ(run.Label(PageId::frmP1, 9).Tag, "Hide");
    static_cast<void>(modReset::StartNewFile(run.program));
    EXPECT_EQ(run.Label(PageId::frmP1, 9).Caption, "Event Date");
    EXPECT_TRUE(run.Label(PageId::frmP1, 9).Visible);
}

TEST(ResetPages, AResetBringsBackWhatWasMovedAndReworded) {
    RunningProgram run;
    PageLabel& label = run.Label(PageId::frmP2, 0);
    label.Left = 1;
    label.Caption = "Other";
    label.ForeColor = 0xFF;
    static_cast<void>(modReset::StartNewFile(run.program));
    EXPECT_EQ(label.Left, 3130);
    EXPECT_EQ(label.Caption, "Acme Events - Event Proposal - Page 2");
    EXPECT_EQ(label.ForeColor, 0U);
    const LabelBase& base = run.program.pages[PageId::frmP2].LabelBaseState[0];
    EXPECT_EQ(base.Left, 3130);
    EXPECT_EQ(base.FontSize, 15.75F);
    EXPECT_EQ(run.program.pages[PageId::frmP6].LabelBaseState.size(), 65U);
}

TEST(ResetPages, StartUpKeepsTheLabelsPlacesAndAResetEmptiesThem) {
    RunningProgram run;
    EXPECT_EQ(run.program.format.PropLabelChanges[PageId::frmP1][9].Left, 1080);
    EXPECT_EQ(run.program.format.PropLabelChanges[PageId::frmP6][64].Top, 15030);
    static_cast<void>(modReset::StartNewFile(run.program));
    EXPECT_EQ(run.program.format.PropLabelChanges[PageId::frmP1][9].Left, 0);
}

} // namespace
