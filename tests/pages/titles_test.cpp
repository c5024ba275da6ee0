#include "pages/titles.h"

#include "pages/page_defaults.h"
#include "program/program.h"
#include "support/running_program.h"

#include <gtest/gtest.h>

namespace {

TEST(Titles, StandCentredWhereThePagesAreBuiltWithThemEachAtItsOwnPlace) {
    RunningProgram run;
    struct Built {
        PageId Page;
        int Title;
        float HeadingLeft;
        float TitleLeft;
    };
    for (const Built& built : {Built{PageId::frmP2, 36, 3130, 4860}, Built{PageId::frmP6, 64, 3060, 5310}}) {
        const auto stands = [&](int index, float left) {
            PageLabel label;
            label.Caption = "1234567890"; // 1000 twips wide, in the middle at 5620
            label.Left = left;
            return modTitles::StandsCentred(run.program, built.Page, index, label);
        };
        EXPECT_TRUE(stands(0, built.HeadingLeft));
        EXPECT_FALSE(stands(0, built.TitleLeft));
        EXPECT_TRUE(stands(built.Title, built.TitleLeft));
        EXPECT_FALSE(stands(built.Title, built.HeadingLeft));
        EXPECT_TRUE(stands(0, 5621));
        EXPECT_FALSE(stands(0, 5622));
    }
}

TEST(Titles, OfPagesJustBuiltAllComeIntoTheMiddle) {
    RunningProgram run;
    run.program.document.ClientCaption = "Proposal for Jane Roe"; // 21 characters of 100 twips
    run.Label(PageId::frmP3, 36).Left = 720;                      // put there by somebody
    modTitles::UpdateFooters(run.program);
    EXPECT_EQ(run.Label(PageId::frmP3, 36).Left, 720);
    modTitles::CentreFooters(run.program);
    EXPECT_EQ(run.Label(PageId::frmP3, 36).Left, 6120 - 1050);
    EXPECT_EQ(run.Label(PageId::frmP3, 36).Caption, "Proposal for Jane Roe");
    EXPECT_EQ(run.Label(PageId::frmP6, 64).Left, 6120 - 1600) << "with \" - Our Copy\", 32 characters";
}

TEST(Titles, WaitUntilAllPagesAreBuilt) {
    RunningProgram run(RunningProgram::Begin::NotStarted);
    modPages::BuildPage(run.program, PageId::frmP1);
    run.program.document.ClientCaption = "Proposal for Jane Roe";
    modTitles::CentreFooters(run.program);
    modTitles::SetPageHeading(run.program, "Event Proposal");
    EXPECT_EQ(run.Label(PageId::frmP1, 33).Caption, "");
}

TEST(Titles, ANewKindOfDocumentIsInEveryHeadingAtOnce) {
    RunningProgram run;
    modTitles::SetPageHeading(run.program, "Contract Proposal");
    EXPECT_EQ(run.Label(PageId::frmP2, 0).Caption, "Acme Events - Contract Proposal - Page 2");
    EXPECT_EQ(run.Label(PageId::frmP5, 0).Caption, "Acme Events - Contract Proposal - Page 5");
    run.program.settings.PageTitles = "Spring Fair, ";
    modTitles::SetPageHeading(run.program, "Contract Proposal");
    EXPECT_EQ(run.Label(PageId::frmP2, 0).Caption, "Spring Fair, Page 2");
}

} // namespace
