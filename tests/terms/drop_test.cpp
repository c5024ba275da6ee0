#include "pages/fields.h"
#include "program/keys.h"
#include "support/person.h"
#include "support/typist.h"
#include "terms/open_list.h"
#include "terms/placing.h"

#include <gtest/gtest.h>

#include <string>

// A term or a figure let go over a field, by mouse or from the keyboard.

namespace {

constexpr PageId kPage = PageId::frmP2;

FieldRef Text(PageId page, int index) {
    return {page, FieldKind::txt, index};
}

struct DropRun : TermsRun {
    DropRun() : TermsRun("Chair Covers [3.50]\r\nTable") { person::TurnTo(program, 1); }
    bool Drop(const FieldRef& field, std::string_view dragged) {
        return modTerms::txt_DragDrop(program, field, dragged);
    }
    [[nodiscard]] const std::string& Of(const FieldRef& field) {
        return modFields::Area(program, field).Text;
    }
};

TEST(Drop, OnADescriptionGivesTextPriceFocusAndCursor) {
    DropRun run;
    EXPECT_TRUE(run.Drop(Text(kPage, 4), "Chair Covers[3.50] and more"));
    EXPECT_EQ(run.TextOf(kPage, 4), "Chair Covers");
    EXPECT_EQ(run.program.document.CurrentTextBuf[PageId::frmP2][4], "Chair Covers");
    EXPECT_EQ(run.TextOf(kPage, 37), "3.50");
    EXPECT_EQ(run.program.totals.SubTotal, 3.5F);
    EXPECT_EQ(run.program.main.Focus, Text(kPage, 4));
    EXPECT_EQ(run.Area(kPage, 4).SelStart, 12);
    EXPECT_EQ(run.program.editing.CursorPos, 12);
}

TEST(Drop, GoesBehindWhatStandsAndKeepsAFigureThatStands) {
    DropRun run;
    run.Drop(Text(kPage, 4), "Chair Covers[3.50]");
    run.Drop(Text(kPage, 4), "Table [9]");
    EXPECT_EQ(run.TextOf(kPage, 4), "Chair Covers Table ");
    EXPECT_EQ(run.TextOf(kPage, 37), "3.50");
    EXPECT_EQ(run.program.main.Notice, "The amount 3.50 was kept; the list says 9.");
}

TEST(Drop, OnAStandingCompletionTakesItFirst) {
    DropRun run;
    Typist hand(run.program);
    hand.Click(kPage, 0);
    hand.Type("cha");
    run.Drop(Text(kPage, 0), "Table");
    EXPECT_EQ(run.TextOf(kPage, 0), "chair covers  Table");
    EXPECT_EQ(run.program.document.CurrentTextBuf[PageId::frmP2][0], "chair covers  Table");
    EXPECT_EQ(run.TextOf(kPage, 33), "");
    EXPECT_FALSE(run.program.editing.ACActive[PageId::frmP2]);
}

TEST(Drop, OnALineWithColumnsPricesTheUnit) {
    DropRun run;
    Typist hand(run.program);
    hand.Click(kPage, 0);
    hand.Press(keys::kF8);
    hand.Type("3");
    run.Drop(Text(kPage, 0), "Chair Covers[3.50]");
    EXPECT_EQ(run.Of({kPage, FieldKind::txtAmt, 0}), "3.50");
    EXPECT_EQ(run.TextOf(kPage, 33), "10.50");
    EXPECT_EQ(run.program.totals.SubTotal, 10.5F);
}

TEST(Drop, FieldsOfFiguresTakeNumbersAloneInPlaceOfWhatStands) {
    DropRun run;
    EXPECT_FALSE(modTerms::TakesDrop(run.program, Text(kPage, 33), "Chair Covers [3.50]"));
    EXPECT_FALSE(run.Drop(Text(kPage, 33), "ten"));
    EXPECT_TRUE(run.Drop(Text(kPage, 33), "1234.5"));
    EXPECT_EQ(run.TextOf(kPage, 33), "1,234.50");
    EXPECT_TRUE(run.Drop(Text(kPage, 33), " 37.5 "));
    EXPECT_EQ(run.TextOf(kPage, 33), "37.50");
    EXPECT_EQ(run.program.totals.SubTotal, 37.5F);
    EXPECT_EQ(run.program.main.Focus, Text(kPage, 33));
    EXPECT_EQ(run.Area(kPage, 33).SelStart, 5);
    EXPECT_EQ(run.program.editing.CursorPos, 5);
}

TEST(Drop, QuantityAndUnitPriceTakeNumbersAndMakeTheProduct) {
    DropRun run;
    Typist hand(run.program);
    hand.Click(kPage, 2);
    hand.Press(keys::kF8);
    const FieldRef quantity{kPage, FieldKind::txtQty, 2};
    const FieldRef price{kPage, FieldKind::txtAmt, 2};
    EXPECT_FALSE(run.Drop(quantity, "two"));
    EXPECT_TRUE(run.Drop(price, "2.5"));
    EXPECT_EQ(run.Of(price), "2.50");
    EXPECT_TRUE(run.Drop(quantity, "4"));
    EXPECT_EQ(run.Of(quantity), "4");
    EXPECT_EQ(run.TextOf(kPage, 35), "10.00");
    EXPECT_EQ(run.program.totals.SubTotal, 10.0F);
    EXPECT_EQ(run.program.totals.AmountTable[35][kPage], 10.0F);
    EXPECT_EQ(run.Main().cmdReCalc.BackColor, colors::kButtonFace) << "nothing is left to be summed";
    EXPECT_EQ(run.TextOf(PageId::frmP6, 0), "10.00");
    EXPECT_FALSE(run.Drop({kPage, FieldKind::txtQty, 3}, "4")) << "a hidden box is no place";
}

TEST(Drop, TheDepositTakesANumberAndTheOtherFiguresOfItsPageNothing) {
    DropRun run;
    run.Drop(Text(kPage, 33), "1000");
    person::TurnTo(run.program, 5);
    EXPECT_TRUE(run.Drop(Text(PageId::frmP6, 4), "250"));
    EXPECT_EQ(run.TextOf(PageId::frmP6, 4), "250.00");
    EXPECT_EQ(run.program.totals.Deposit, 250.0F);
    EXPECT_EQ(run.Main().cmdReCalc.BackColor, colors::kButtonFace);
    EXPECT_EQ(run.TextOf(PageId::frmP6, 5), "832.50") << "1000 and 8.25 % of tax";
    EXPECT_FALSE(run.Drop(Text(PageId::frmP6, 4), "Table"));
    for (const int index : {0, 1, 2, 3, 5}) {
        EXPECT_FALSE(modTerms::TakesDrop(run.program, Text(PageId::frmP6, index), "5")) << index;
        EXPECT_FALSE(modTerms::TakesDrop(run.program, Text(PageId::frmP6_1, index), "5")) << index;
    }
}

TEST(Drop, TheClientsAreasTakeTheTextAndNoAmount) {
    DropRun run;
    person::TurnTo(run.program, 0);
    EXPECT_TRUE(run.Drop(Text(PageId::frmP1, 8), "Garden Hall [500]"));
    EXPECT_EQ(run.TextOf(PageId::frmP1, 8), "Garden Hall ");
    for (int amount = 20; amount < 30; ++amount) {
        EXPECT_EQ(run.TextOf(PageId::frmP1, amount), "");
    }
}

TEST(Drop, IsRefusedInSelectedLockedAndPreviewedAreas) {
    DropRun run;
    run.Area(kPage, 4).Locked = true;
    EXPECT_FALSE(run.Drop(Text(kPage, 4), "Table"));
    run.Area(kPage, 4).Locked = false;
    run.program.editing.BlockMode = true;
    EXPECT_FALSE(run.Drop(Text(kPage, 4), "Table"));
    run.program.editing.BlockMode = false;
    person::Choose(run.program, CommandId::mnuFilePrintPreview);
    EXPECT_FALSE(run.Drop(Text(kPage, 4), "Table"));
    person::Choose(run.program, CommandId::mnuFileResume);
    EXPECT_FALSE(run.Drop(Text(kPage, 4), "[5]")) << "no text at all";
    EXPECT_EQ(run.TextOf(kPage, 4), "");
    EXPECT_TRUE(run.Drop(Text(kPage, 4), "Table"));
}

TEST(Drop, ALineThatBecomesTooLongGoesRedAndStays) {
    DropRun run;
    run.Drop(Text(kPage, 4), std::string(50, 'a'));
    run.Drop(Text(kPage, 4), std::string(50, 'b') + " ");
    EXPECT_EQ(run.TextOf(kPage, 4).size(), 102U);
    EXPECT_EQ(run.TextOf(kPage, 5), "");
    EXPECT_EQ(run.Area(kPage, 4).BackColor, colors::kOverLimit);
    run.Drop(Text(kPage, 6), std::string(1U << 20U, 'x'));
    EXPECT_EQ(run.TextOf(kPage, 6).size(), 4096U);
    EXPECT_EQ(run.program.main.Notice, "The text was too long for one line; its end was not taken.");
    run.program.main.Notice.clear();
    run.Drop(Text(kPage, 8), std::string(4096, 'x'));
    EXPECT_EQ(run.TextOf(kPage, 8).size(), 4096U);
    EXPECT_EQ(run.program.main.Notice, "") << "all of it was taken";
}

TEST(Drop, DoesNotMoveTheLineOnWhereverTheCursorStoodLast) {
    DropRun run;
    Typist hand(run.program);
    run.surroundings.measure.Advance.fill(10);
    hand.Click(kPage, 6);
    hand.Type(std::string(120, 'x'));
    ASSERT_EQ(run.program.editing.CursorPos, 120);
    run.surroundings.measure.Advance.fill(100);
    // Typed, a blank at the end of a line that is too long would move its last word on.
    const std::string line = std::string(60, 'a') + " " + std::string(59, 'b') + " ";
    run.Drop(Text(kPage, 4), line);
    EXPECT_EQ(run.TextOf(kPage, 4), line);
    EXPECT_EQ(run.TextOf(kPage, 5), "");
}

TEST(Drop, EnterOnATermPutsItWhereTheCursorWasLast) {
    DropRun run;
    Typist hand(run.program);
    hand.Click(kPage, 7);
    run.List().lstFUT_Select(run.program, 0);
    run.List().lstFUT_Enter(run.program);
    EXPECT_EQ(run.TextOf(kPage, 7), "Chair Covers ");
    EXPECT_EQ(run.TextOf(kPage, 40), "3.50");
    EXPECT_TRUE(run.program.main.BringUp) << "the keyboard goes to the page";
    hand.Click(kPage, 33);
    run.program.main.BringUp = false;
    run.List().lstFUT_Enter(run.program);
    EXPECT_EQ(run.TextOf(kPage, 33), "");
    EXPECT_EQ(run.program.main.Notice, "This area does not take it.");
    EXPECT_FALSE(run.program.main.BringUp);
    hand.Click(kPage, 8);
    run.List().lstFUT_Enter(run.program);
    EXPECT_EQ(run.program.main.Notice, "") << "this one does";
}

TEST(Drop, ADragCarriesTheChosenLine) {
    DropRun run;
    run.List().lstFUT_MouseMove(run.program);
    EXPECT_EQ(run.program.terms.DraggedTerm, "");
    run.List().lstFUT_Select(run.program, 1);
    run.List().lstFUT_MouseMove(run.program);
    EXPECT_EQ(run.program.terms.DraggedTerm, "Table");
}

} // namespace
