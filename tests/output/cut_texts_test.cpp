#include "output/cut_texts.h"

#include "output/print.h"
#include "pages/fields.h"
#include "pages/row_fields.h"
#include "support/running_program.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Texts = std::vector<std::string>;

/// Every character is 100 twips wide, the sheet 12,240.
struct Printing : RunningProgram {
    void Put(PageId page, int index, std::string_view text) {
        modFields::SetText(program, {page, FieldKind::txt, index}, text);
    }
    [[nodiscard]] Texts Lost(const std::vector<PageId>& pages) const {
        return modPrint::TextsLostOnPaper(program, pages);
    }
};

TEST(TextsLostOnPaper, AreThoseThatTheSheetsEdgeCuts) {
    Printing run;
    // A line begins at 900: 113 characters end at 12,200, one more does not.
    run.Put(PageId::frmP2, 0, std::string(113, 'x'));
    EXPECT_EQ(run.Lost({PageId::frmP2}), Texts{}) << "beyond its place, and to be read";
    run.Put(PageId::frmP2, 0, std::string(113, 'x') + "   ");
    EXPECT_EQ(run.Lost({PageId::frmP2}), Texts{}) << "blanks are no text";
    run.Put(PageId::frmP2, 0, std::string(114, 'x'));
    EXPECT_EQ(run.Lost({PageId::frmP2}), Texts{"Page 2, Line 1, description"});
    EXPECT_EQ(run.Lost({PageId::frmP1}), Texts{}) << "another page is printed";
}

TEST(TextsLostOnPaper, AreThoseThatRunIntoTheirNeighbours) {
    Printing run;
    run.Put(PageId::frmP2, 0, std::string(100, 'x'));
    run.Put(PageId::frmP2, 34, "75.50"); // the next line's
    EXPECT_EQ(run.Lost({PageId::frmP2}), Texts{});
    run.Put(PageId::frmP2, 33, "75.50");
    EXPECT_EQ(run.Lost({PageId::frmP2}), Texts{"Page 2, Line 1, description"});
    run.Put(PageId::frmP2, 0, "x");
    EXPECT_EQ(run.Lost({PageId::frmP2}), Texts{});
    // An amount ends at its right edge and grows to the left, over its sign.
    run.Put(PageId::frmP2, 33, "12,345,678,901.99");
    EXPECT_EQ(run.Lost({PageId::frmP2}), Texts{"Page 2, Line 1, amount"});
}

TEST(TextsLostOnPaper, AreThoseThatRunIntoTheSignsOfTheirRow) {
    Printing run;
    modPages::PlaceColumns(run.program, PageId::frmP2, 0, modPages::Columns::On);
    Page& page = run.program.pages[PageId::frmP2];
    page.txtQty[0].Text = "3";
    // A price begins at 8,145, its "ea." stands at 9,165.
    page.txtAmt[0].Text = "1234567.90";
    EXPECT_EQ(run.Lost({PageId::frmP2}), Texts{});
    page.txtAmt[0].Text = "12345678.90";
    EXPECT_EQ(run.Lost({PageId::frmP2}), Texts{"Page 2, Line 1, unit price"});
}

TEST(TextsLostOnPaper, AreNoneThatFillTheirPlaceOrTheSheetToTheLastTwip) {
    Printing run;
    run.surroundings.measure.Advance.fill(90);
    run.Put(PageId::frmP2, 0, std::string(126, 'x')); // 900 and 11,340 are the sheet's 12,240
    EXPECT_EQ(run.Lost({PageId::frmP2}), Texts{});
    // A line of 8,640 fills its place; the amount beside it grows over it.
    run.Put(PageId::frmP2, 0, std::string(96, 'x'));
    run.Put(PageId::frmP2, 33, "12,345,678,901,234.99");
    EXPECT_EQ(run.Lost({PageId::frmP2}), Texts{"Page 2, Line 1, amount"});
}

TEST(TextsLostOnPaper, AreNoneThatBeginAtTheSheetsVeryEdge) {
    Printing run;
    TextArea& line = run.Area(PageId::frmP2, 0);
    run.Put(PageId::frmP2, 0, std::string(90, 'x')); // longer than its place, with nothing beside it
    line.Left = 0;
    EXPECT_EQ(run.Lost({PageId::frmP2}), Texts{});
    line.Left = -1;
    EXPECT_EQ(run.Lost({PageId::frmP2}), Texts{"Page 2, Line 1, description"});
}

TEST(TextsLostOnPaper, GoByTheFontInWhichTheyArePrinted) {
    Printing run;
    run.surroundings.measure.BoldFactor = 1.5F;
    run.Put(PageId::frmP2, 0, std::string(80, 'x'));
    EXPECT_EQ(run.Lost({PageId::frmP2}), Texts{});
    run.Area(PageId::frmP2, 0).FontBold = true;
    EXPECT_EQ(run.Lost({PageId::frmP2}), Texts{"Page 2, Line 1, description"});
}

TEST(TextsLostOnPaper, OfTheCopyAreThoseOfTheFinalPage) {
    Printing run;
    for (const PageId page : {PageId::frmP6, PageId::frmP6_1}) {
        run.Area(page, 4).Text = "999,999,999,999.00";
    }
    EXPECT_EQ(run.Lost({PageId::frmP6_1, PageId::frmP6}), Texts{"Page 6, Deposit Received"});
    EXPECT_EQ(run.Lost({PageId::frmP6_1}), Texts{"Page 6 Copy, Deposit Received"});
}

TEST(TextsLostOnPaper, AreAllNamedWhenTheyAreTen) {
    Printing run;
    for (int row = 0; row < 10; ++row) {
        run.Put(PageId::frmP2, row, std::string(120, 'x'));
    }
    run.surroundings.questions.Expect("cannot be read as a whole on paper", Answer::No);
    modPrint::mnuFilePrintAll_Click(run.program);
    EXPECT_TRUE(run.surroundings.questions.Shown.back().Text.ends_with("\r\nPage 2, Line 10, description"));
}

TEST(TextsLostOnPaper, AreNamedBeforePrintingAndNothingIsPrintedUnlessThePersonSaysSo) {
    Printing run;
    for (int row = 0; row < 12; ++row) {
        run.Put(PageId::frmP2, row, std::string(120, 'x'));
    }
    const ScriptedQuestions::Box box{
        "These texts are longer than their place and cannot be read as a whole on paper:\r\n"
        "Page 2, Line 1, description\r\nPage 2, Line 2, description\r\nPage 2, Line 3, description\r\n"
        "Page 2, Line 4, description\r\nPage 2, Line 5, description\r\nPage 2, Line 6, description\r\n"
        "Page 2, Line 7, description\r\nPage 2, Line 8, description\r\nPage 2, Line 9, description\r\n"
        "Page 2, Line 10, description\r\nand 2 more",
        Buttons::YesNo, ""};
    run.surroundings.questions.ExpectBox(box, Answer::No);
    modPrint::mnuFilePrintAll_Click(run.program);
    EXPECT_TRUE(run.surroundings.printers.Commands.empty()) << "no name is asked for";
    const Manner& manner = run.surroundings.questions.Manners.back();
    EXPECT_EQ(manner.Default, Answer::No);
    EXPECT_EQ(manner.Words, (Texts{"Print Anyway", "Cancel"}));
    modPrint::mnuFilePrintPage_Click(run.program, PageId::frmP1);
    EXPECT_EQ(run.surroundings.printers.Paper.Documents.size(), 1U);
    run.surroundings.questions.ExpectBox(box, Answer::Yes);
    modPrint::mnuFilePrintAll_Click(run.program);
    EXPECT_EQ(run.surroundings.printers.Paper.Documents.size(), 5U);
}

} // namespace
