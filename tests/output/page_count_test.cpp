#include "output/page_count.h"

#include "pages/page_geometry.h"
#include "program/program.h"
#include "support/running_program.h"

#include <gtest/gtest.h>

namespace {

void SetLine(RunningProgram& run, PageId page, int index, std::string text) {
    run.program.document.CurrentTextBuf
        .Each[static_cast<std::size_t>(IndexOf(page))][static_cast<std::size_t>(index)] = std::move(text);
}

TEST(PagesInUse, IsTheHighestPageWithALineAndTheFinalPage) {
    for (int page = 0; page < kLinePageCount; ++page) {
        RunningProgram run;
        SetLine(run, PageAt(page), 3, "Tent");
        modPageCount::CountPagesInUse(run.program);
        EXPECT_EQ(run.program.document.PagesInUse, page + 2);
    }
}

TEST(PagesInUse, CountsAnEmptyPageBetweenUsedOnes) {
    RunningProgram run;
    SetLine(run, PageId::frmP1, 2, "Jane");
    SetLine(run, PageId::frmP3, 65, "5.00");
    modPageCount::CountPagesInUse(run.program);
    EXPECT_EQ(run.program.document.PagesInUse, 4);
}

TEST(PagesInUse, StaysWhenNoPageHasALine) {
    RunningProgram run;
    run.program.document.PagesInUse = 4;
    modPageCount::CountPagesInUse(run.program);
    EXPECT_EQ(run.program.document.PagesInUse, 4);
}

TEST(PagesInUse, TakesBlanksForNoLine) {
    RunningProgram run;
    run.program.document.PagesInUse = 6;
    SetLine(run, PageId::frmP1, 0, "x");
    SetLine(run, PageId::frmP5, 0, "   ");
    modPageCount::CountPagesInUse(run.program);
    EXPECT_EQ(run.program.document.PagesInUse, 2);
}

TEST(PagesInUse, ARowWithColumnsAndNothingInThemIsNoLine) {
    RunningProgram run;
    SetLine(run, PageId::frmP1, 0, "x");
    SetLine(run, PageId::frmP5, 3, "\xA5\xA5\xA7");
    modPageCount::CountPagesInUse(run.program);
    EXPECT_EQ(run.program.document.PagesInUse, 2);
    SetLine(run, PageId::frmP5, 3,
            "\xA5Qty.\xA5\xA7"
            "Amt.");
    modPageCount::CountPagesInUse(run.program);
    EXPECT_EQ(run.program.document.PagesInUse, 6);
}

TEST(PagesInUse, GoesByTheTextsOnThePagesAndNotByThoseLastSaved) {
    RunningProgram run;
    run.program.document.SavedTextBuf[PageId::frmP5][0] = "saved long ago";
    SetLine(run, PageId::frmP2, 0, "now");
    modPageCount::CountPagesInUse(run.program);
    EXPECT_EQ(run.program.document.PagesInUse, 3);
}

TEST(PageNumbers, HaveWordsForSevenSheets) {
    for (int index = 0; index < 7; ++index) {
        EXPECT_EQ(geometry::PageOfText(index), "Page " + std::to_string(index + 1) + " of ");
    }
}

class NumberedPages : public testing::TestWithParam<int> {};

TEST_P(NumberedPages, StandOnEveryPage) {
    const int used = GetParam();
    const std::string of = " of " + std::to_string(used);
    RunningProgram run;
    run.program.document.PagesInUse = used;
    run.program.document.PageHeading = "Acme - ";
    const std::string continued = run.Label(PageId::frmP2, 35).Caption;
    modPageCount::SetPageNumbers(run.program);
    EXPECT_EQ(run.Label(PageId::frmP1, 31).Caption, "Page 1" + of);
    EXPECT_EQ(run.Label(PageId::frmP2, 34).Caption, "Page 2" + of);
    EXPECT_EQ(run.Label(PageId::frmP3, 34).Caption, "Page 3" + of);
    EXPECT_EQ(run.Label(PageId::frmP4, 34).Caption, "Page 4" + of);
    EXPECT_EQ(run.Label(PageId::frmP5, 34).Caption, "Page 5" + of) << "also beyond the last page in use";
    const std::string last = "Page " + std::to_string(used);
    for (const PageId page : {PageId::frmP6, PageId::frmP6_1}) {
        EXPECT_EQ(run.Label(page, 63).Caption, last + of);
        EXPECT_EQ(run.Label(page, 0).Caption, "Acme - " + last);
    }
    EXPECT_EQ(run.Label(PageId::frmP2, 0).Caption, "Acme - Page 2");
    EXPECT_EQ(run.Label(PageId::frmP5, 0).Caption, "Acme - Page 5");
    EXPECT_EQ(run.Label(PageId::frmP2, 35).Caption, continued);
    EXPECT_EQ(run.Main().lblHighestPage.Caption,
              "Utilizing " + std::to_string(used) + " of 6 Available Pages");
}

INSTANTIATE_TEST_SUITE_P(TwoToSix, NumberedPages, testing::Values(2, 3, 4, 5, 6));

/// "Acme - Page 2" has 13 characters of 100 twips: 6120 - 650.
TEST(Headings, AreCentredAndKeptWithTheProposal) {
    RunningProgram run;
    run.program.document.PageHeading = "Acme - ";
    modPageCount::SetPageNumbers(run.program);
    EXPECT_EQ(run.Label(PageId::frmP2, 0).Left, 5470);
    const LabelChangeRecord& kept = run.program.format.PropLabelChanges[PageId::frmP2][0];
    EXPECT_TRUE(kept.Changed);
    EXPECT_EQ(kept.Caption, "Acme - Page 2");
    EXPECT_EQ(kept.Left, 5470);
    EXPECT_EQ(kept.Top, run.Label(PageId::frmP2, 0).Top);
    EXPECT_EQ(kept.FontName, run.Label(PageId::frmP2, 0).FontName);
    // "Acme - Page 6": as long.
    EXPECT_EQ(run.Label(PageId::frmP6, 0).Left, 5470);
    EXPECT_EQ(run.Label(PageId::frmP6_1, 0).Left, 5470);
    EXPECT_EQ(run.program.format.PropLabelChanges[PageId::frmP6][0].Caption, "Acme - Page 6");
}

TEST(PageNumbers, HeadingsAreKeptWithTheProposalAsTheyLook) {
    RunningProgram run;
    run.program.document.PagesInUse = 3;
    PageLabel& heading = run.Label(PageId::frmP2, 0);
    heading.Left = 1000;
    heading.Top = 700;
    heading.FontName = "Arial";
    heading.FontSize = 8;
    heading.FontBold = true;
    heading.FontItalic = true;
    heading.FontUnderline = true;
    heading.ForeColor = 0x0000FF;
    modPageCount::SetPageNumbers(run.program);
    const LabelChangeRecord& kept = run.program.format.PropLabelChanges[PageId::frmP2][0];
    EXPECT_TRUE(kept.Changed);
    EXPECT_EQ(kept.Caption, heading.Caption);
    EXPECT_EQ(kept.Left, 1000) << "somebody has put it there";
    EXPECT_EQ(kept.Top, 700);
    EXPECT_EQ(kept.FontName, "Arial");
    EXPECT_EQ(kept.FontSize, 8);
    EXPECT_TRUE(kept.FontBold);
    EXPECT_TRUE(kept.FontItalic);
    EXPECT_TRUE(kept.FontUnderline);
    EXPECT_EQ(kept.ForeColor, 0x0000FFU);
    for (const std::size_t page : {1U, 2U, 3U, 4U, 5U}) {
        EXPECT_TRUE(run.program.format.PropLabelChanges.Each[page][0].Changed);
    }
    EXPECT_EQ(run.Label(PageId::frmP1, 31).Caption, "Page 1 of 3");
    EXPECT_FALSE(run.program.format.PropLabelChanges[PageId::frmP1][31].Changed)
        << "the number alone is no change";
    EXPECT_FALSE(run.program.format.PropLabelChanges[PageId::frmP1][0].Changed)
        << "page 1 has no running heading";
}

TEST(Footers, SayOfSixUntilAPrintCommandHasRun) {
    RunningProgram run;
    SetLine(run, PageId::frmP1, 2, "Jane");
    modPageCount::CountPagesInUse(run.program);
    EXPECT_EQ(run.Label(PageId::frmP1, 31).Caption, "Page 1 of 6");
    EXPECT_EQ(run.Label(PageId::frmP6, 63).Caption, "Page 6 of 6");
    modPageCount::SetPageNumbers(run.program);
    EXPECT_EQ(run.Label(PageId::frmP1, 31).Caption, "Page 1 of 2");
    EXPECT_EQ(run.Label(PageId::frmP6, 63).Caption, "Page 2 of 2");
}

} // namespace
