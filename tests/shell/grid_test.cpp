#include "format/grid.h"

#include "support/person.h"
#include "support/running_program.h"

#include <gtest/gtest.h>

namespace {

TEST(Grid, PointsStandAtEveryStepOfTheSnapRowByRow) {
    RunningProgram run;
    run.program.format.SnapTwips = 4000;
    modDesigner::DrawGrid(run.program, PageId::frmP2);
    // Below 12240 - 4000 across, below 15840 - 4000 down.
    EXPECT_EQ(run.program.pages[PageId::frmP2].GridPoints,
              (std::vector<PagePoint>{{4000, 4000}, {8000, 4000}, {4000, 8000}, {8000, 8000}}));
}

TEST(Grid, BeginsWithAnEighthOfAnInch) {
    RunningProgram run;
    modDesigner::DrawGrid(run.program, PageId::frmP1);
    const std::vector<PagePoint>& points = run.program.pages[PageId::frmP1].GridPoints;
    // 180 to 11880 across are 66 steps, 180 to 15480 down are 86.
    EXPECT_EQ(points.size(), 66U * 86U);
    EXPECT_EQ(points.front(), (PagePoint{180, 180}));
    EXPECT_EQ(points.back(), (PagePoint{11880, 15480}));
}

TEST(Grid, AStepOfNothingDrawsNothing) {
    RunningProgram run;
    run.program.format.SnapTwips = 0;
    modDesigner::DrawGrid(run.program, PageId::frmP1);
    EXPECT_TRUE(run.program.pages[PageId::frmP1].GridPoints.empty());
}

TEST(Grid, TheCommandDrawsOnTheActivePageWithTwoLinesThroughItsCentre) {
    RunningProgram run;
    person::TurnTo(run.program, 2);
    person::TurnTo(run.program, 6); // the client's copy is no active page
    person::Choose(run.program, CommandId::mnuToolsDrawCenterLines);
    const Page& page = run.program.pages[PageId::frmP3];
    EXPECT_FALSE(page.GridPoints.empty());
    EXPECT_EQ(page.CenterLines,
              (std::vector<PageLine>{{6120, 0, 6120, 15840, true}, {0, 7920, 12240, 7920, true}}));
    EXPECT_TRUE(run.program.pages[PageId::frmP6_1].GridPoints.empty());
}

TEST(Grid, ClearsByItsCommandByAPageSwitchAndByAPreview) {
    RunningProgram run;
    const auto drawn = [&] {
        const Page& page = run.program.pages[PageId::frmP1];
        return !page.GridPoints.empty() || !page.CenterLines.empty();
    };
    const auto draw = [&] { person::Choose(run.program, CommandId::mnuToolsDrawCenterLines); };
    draw();
    EXPECT_TRUE(drawn());
    person::Choose(run.program, CommandId::mnuToolsClearCenterLines);
    EXPECT_FALSE(drawn());
    draw();
    person::TurnTo(run.program, 0);
    EXPECT_FALSE(drawn());
    draw();
    person::Choose(run.program, CommandId::mnuFilePrintPreview);
    EXPECT_FALSE(drawn());
    draw();
    person::Choose(run.program, CommandId::mnuFileResume);
    EXPECT_FALSE(drawn());
}

TEST(Grid, StaysWhenTheWindowChangesItsSize) {
    RunningProgram run;
    person::Choose(run.program, CommandId::mnuToolsDrawCenterLines);
    run.program.main.ClientHeight = 5000;
    person::ResizeWindow(run.program);
    EXPECT_FALSE(run.program.pages[PageId::frmP1].GridPoints.empty());
}

} // namespace
