#include "editing/columns.h"
#include "editing/text_menu.h"
#include "pages/fields.h"
#include "pages/row_fields.h"
#include "program/keys.h"
#include "support/person.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

#include <string>

namespace {

constexpr PageId kFirst = PageId::frmP1;
constexpr PageId kSecond = PageId::frmP2;

FieldRef Text(PageId page, int index) {
    return {page, FieldKind::txt, index};
}
FieldRef Quantity(int row) {
    return {kSecond, FieldKind::txtQty, row};
}
FieldRef Price(int row) {
    return {kSecond, FieldKind::txtAmt, row};
}

TEST(ColumnsKey, WorksOnDescriptionsAlone) {
    for (const PageId page : kLinePages) {
        const bool client = page == kFirst;
        RunningProgram run;
        Typist typist(run.program);
        for (int index = 0; index <= (client ? 29 : 65); ++index) {
            typist.Click(page, index);
            typist.Press(keys::kF8);
            const bool line = client ? index >= 10 && index <= 19 : index <= 32;
            const FieldRef expected = line ? FieldRef{page, FieldKind::txtQty, index} : Text(page, index);
            EXPECT_EQ(run.program.main.Focus, expected) << index;
            EXPECT_EQ(run.Area(page, index).Width == 6270, line) << index;
        }
    }
}

TEST(ColumnsKey, TwiceLeavesTheRowAsItWasAndTheAmountAlone) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 37);
    typist.Type("25");
    typist.Click(kSecond, 4);
    typist.Press(keys::kF8);
    typist.Press(keys::kF8); // the focus stands in the quantity now
    EXPECT_EQ(run.Area(kSecond, 4).Left, 900);
    EXPECT_EQ(run.Area(kSecond, 4).Width, 8640);
    EXPECT_EQ(run.program.main.Focus, Text(kSecond, 4));
    const Page& page = run.program.pages[kSecond];
    for (const std::string& tag :
         {page.txtQty[4].Tag, page.txtAmt[4].Tag, page.lblAt[4].Tag, page.lblEach[4].Tag}) {
        EXPECT_EQ(tag, "Hide");
    }
    EXPECT_EQ(page.txtQty[4].Text, "");
    EXPECT_EQ(page.txtAmt[4].Text, "");
    EXPECT_EQ(run.TextOf(kSecond, 37), "25.00");
}

TEST(ColumnsKey, CountsAsAKeyButLeavesCursorAndLastKeyAlone) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 4);
    typist.Type("ab");
    const int counted = run.program.editing.KeyCounter;
    typist.Hold(keys::kF8);
    EXPECT_EQ(run.program.editing.KeyCounter, counted + 1);
    EXPECT_EQ(run.program.editing.LastKeyChar, "B");
    typist.Press(keys::kDelete);
    EXPECT_EQ(run.program.editing.KeyCounter, counted + 2) << "keys in the boxes count";
}

TEST(ColumnsCommand, OnTheAreaBeforeTheLinesOfTheClientPageIsOfferedAndDoesNothing) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kFirst, 9);
    modTextMenu::UpdateTextMenu(run.program);
    EXPECT_TRUE(run.program.main[CommandId::mnuEditTextColumns].Enabled);
    const TextArea before = run.Area(kFirst, 9);
    person::Choose(run.program, CommandId::mnuEditTextColumns);
    EXPECT_EQ(run.Area(kFirst, 9), before);
    typist.Click(kFirst, 8);
    modTextMenu::UpdateTextMenu(run.program);
    EXPECT_FALSE(run.program.main[CommandId::mnuEditTextColumns].Enabled);
}

TEST(ColumnsCommand, SaysWhatItWillDo) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 4);
    modTextMenu::UpdateTextMenu(run.program);
    EXPECT_EQ(run.program.main[CommandId::mnuEditTextColumns].Caption, "Add Columns");
    person::Choose(run.program, CommandId::mnuEditTextColumns);
    typist.Click(kSecond, 4);
    modTextMenu::UpdateTextMenu(run.program);
    EXPECT_EQ(run.program.main[CommandId::mnuEditTextColumns].Caption, "Remove Columns");
}

TEST(Boxes, TakeDigitsPointAndCommaAlone) {
    RunningProgram run;
    Typist typist(run.program);
    modPages::PlaceColumns(run.program, kSecond, 0, modPages::Columns::On);
    typist.Click(kSecond, 0);
    for (const FieldRef& box : {Quantity(0), Price(0)}) {
        typist.Click(box);
        for (int byte = 1; byte < 256; ++byte) {
            const bool passes = byte == 8 || byte == '.' || byte == ',' || (byte >= '0' && byte <= '9');
            EXPECT_EQ(person::KeyPress(run.program, byte), passes ? byte : 0) << byte;
        }
        run.program.editing.BlockMode = true;
        EXPECT_EQ(person::KeyPress(run.program, '1'), 0);
        run.program.editing.BlockMode = false;
    }
}

TEST(Boxes, LoseTheirPlaceholderToTheFirstCharacterEvenIfThatIsCancelled) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 0);
    typist.Press(keys::kF8);
    typist.Type("x");
    EXPECT_EQ(run.program.pages[kSecond].txtQty[0].Text, "");
}

TEST(Boxes, LoseALetterOfThePlaceholderToBackspaceAndKeepTheRest) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 0);
    typist.Press(keys::kF8);
    typist.Press(keys::kBackspace);
    EXPECT_EQ(run.program.pages[kSecond].txtQty[0].Text, "Qty");
    typist.Type("3");
    EXPECT_EQ(run.program.pages[kSecond].txtQty[0].Text, "Qty3");
}

TEST(Boxes, TakeAPasteWholeAndNumericInPlaceOfThePlaceholder) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 0);
    typist.Press(keys::kF8);
    typist.PasteByKey("ten", run.surroundings.clipboard.Text);
    EXPECT_EQ(run.program.pages[kSecond].txtQty[0].Text, "Qty.");
    typist.PasteByKey(" 12 ", run.surroundings.clipboard.Text);
    EXPECT_EQ(run.program.pages[kSecond].txtQty[0].Text, "12");
    typist.PasteByMouse(Price(0), 4, "1,000");
    EXPECT_EQ(run.program.pages[kSecond].txtAmt[0].Text, "1,000");
    EXPECT_EQ(run.TextOf(kSecond, 33), "12,000.00");
}

TEST(Boxes, WriteAPriceUnderItsPatternAndLeaveTheQuantityAlone) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 0);
    typist.Press(keys::kF8);
    typist.Type("007");
    typist.Click(Price(0));
    EXPECT_EQ(run.program.pages[kSecond].txtQty[0].Text, "007");
    typist.Type("1500");
    typist.Click(kSecond, 5);
    EXPECT_EQ(run.program.pages[kSecond].txtAmt[0].Text, "1,500.00");
    EXPECT_EQ(run.TextOf(kSecond, 33), "10,500.00") << "a price with its comma still counts";
    typist.Click(Price(0));
    typist.PutCursor(0, 8);
    typist.Press(keys::kDelete);
    typist.Type(".5");
    typist.Click(kSecond, 5);
    EXPECT_EQ(run.program.pages[kSecond].txtAmt[0].Text, "0.50");
    EXPECT_EQ(run.TextOf(kSecond, 33), "3.50");
}

TEST(Product, OfAHalfTypedPriceGoesWhenThePriceIsNoNumberInTheEnd) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 0);
    typist.Press(keys::kF8);
    typist.Type("3");
    typist.Click(Price(0));
    typist.Type("19.99");
    typist.Click(kSecond, 5);
    EXPECT_EQ(run.TextOf(kSecond, 33), "59.97");
    typist.Click(Price(0));
    typist.PutCursor(0, 5);
    typist.Type("20,50");
    EXPECT_EQ(run.TextOf(kSecond, 33), "59.97") << "not 3 times the 20 that stood there for a moment";
    typist.Click(kSecond, 5);
    EXPECT_EQ(run.program.pages[kSecond].txtAmt[0].Text, "20,50");
    EXPECT_EQ(run.TextOf(kSecond, 33), "59.97");
    typist.Click(Price(0));
    typist.PutCursor(2, 1);
    typist.Type(".");
    EXPECT_EQ(run.TextOf(kSecond, 33), "61.50");
}

TEST(Product, IsWrittenWithoutADigitBeforeThePointUntilTheAmountIsLeft) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 0);
    typist.Press(keys::kF8);
    typist.Type("1");
    typist.Click(Price(0));
    typist.Type(".5");
    EXPECT_EQ(run.TextOf(kSecond, 33), ".50");
    typist.Press(keys::kEnter);
    EXPECT_EQ(run.TextOf(kSecond, 33), ".50");
    typist.Press(keys::kEnter);
    EXPECT_EQ(run.TextOf(kSecond, 33), "0.50");
}

TEST(Product, ComesBackOverAnAmountWrittenByHand) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 0);
    typist.Press(keys::kF8);
    typist.Type("3");
    typist.Click(Price(0));
    typist.Type("10");
    typist.Click(kSecond, 33);
    typist.PutCursor(0, 5);
    typist.Type("99");
    typist.Click(Quantity(0));
    EXPECT_EQ(run.TextOf(kSecond, 33), "99.00");
    typist.Click(kSecond, 5);
    EXPECT_EQ(run.TextOf(kSecond, 33), "30.00");
}

TEST(Product, SumsItsPageAtOnceAndTheFinalPageOnLeaving) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 40);
    typist.Type("1");
    typist.Click(kSecond, 0);
    EXPECT_EQ(run.TextOf(PageId::frmP6, 0), "1.00");
    typist.Press(keys::kF8);
    typist.Type("3");
    typist.Click(Price(0));
    typist.Type("19.99");
    EXPECT_EQ(run.TextOf(kSecond, 33), "59.97");
    EXPECT_EQ(run.program.totals.PageSum[PageId::frmP2], 59.97F + 1.0F);
    EXPECT_EQ(run.TextOf(PageId::frmP6, 0), "1.00");
    EXPECT_EQ(run.Main().cmdReCalc.BackColor, colors::kOverLimit);
    typist.Press(keys::kEnter);
    typist.Press(keys::kEnter);
    EXPECT_EQ(run.TextOf(PageId::frmP6, 0), "60.97");
}

TEST(Product, KeepsTheRefireOfItsCaller) {
    RunningProgram run;
    modPages::PlaceColumns(run.program, kSecond, 0, modPages::Columns::On);
    modFields::SetText(run.program, Quantity(0), "2");
    run.program.editing.RefireMode = true;
    modFields::SetText(run.program, Price(0), "4");
    EXPECT_TRUE(run.program.editing.RefireMode);
    EXPECT_EQ(run.TextOf(kSecond, 33), "8.00");
}

TEST(Product, IsNotTakenInABlockSelectionOrWhileAFileIsRead) {
    RunningProgram run;
    modPages::PlaceColumns(run.program, kSecond, 0, modPages::Columns::On);
    run.program.editing.BlockMode = true;
    modFields::SetText(run.program, Quantity(0), "2");
    modFields::SetText(run.program, Price(0), "4");
    EXPECT_EQ(run.TextOf(kSecond, 33), "");
    run.program.editing.BlockMode = false;
    run.program.guards.Loading = true;
    modFields::SetText(run.program, Price(0), "5");
    EXPECT_EQ(run.TextOf(kSecond, 33), "");
}

TEST(PricedLine, IsStoredWithItsBoxesAsSoonAsAnyOfThemChanges) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 2);
    typist.Type(" Chairs ");
    typist.Press(keys::kF8);
    const auto& stored = run.program.document.CurrentTextBuf[PageId::frmP2][2];
    EXPECT_EQ(stored, "\xA5Qty.\xA5"
                      "Chairs\xA7"
                      "Amt.");
    typist.Type("3");
    EXPECT_EQ(stored, "\xA5"
                      "3\xA5"
                      "Chairs\xA7"
                      "Amt.");
    EXPECT_TRUE(run.program.format.PropTextChanges[PageId::frmP2][2].QtyBox);
    EXPECT_EQ(run.program.format.FormatTextChanges[PageId::frmP2][2].QtyValue, "3");
    EXPECT_EQ(run.program.format.FormatTextChanges[PageId::frmP2][2].AmtValue, "Amt.");
    typist.Click(Price(2));
    typist.Type("5");
    typist.Press(keys::kEnter);
    EXPECT_EQ(stored, "\xA5"
                      "3\xA5"
                      "Chairs\xA7"
                      "5.00");
    typist.Click(kSecond, 2);
    typist.Press(keys::kF8);
    EXPECT_EQ(stored, "Chairs");
    EXPECT_FALSE(run.program.format.PropTextChanges[PageId::frmP2][2].QtyBox);
    EXPECT_EQ(run.program.format.FormatTextChanges[PageId::frmP2][2].QtyValue, "");
    EXPECT_EQ(run.TextOf(kSecond, 2), " Chairs ") << "the area keeps its blanks";
}

TEST(TaxMark, ByAClickRecalculatesAtOnceAndTurnsTheButtonRed) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 33);
    typist.Type("100");
    person::FieldMouseDown(run.program, Text(kSecond, 33), 2, 3, 0);
    person::Choose(run.program, CommandId::mnuEditTextTaxExempt);
    typist.Click(kSecond, 5);
    EXPECT_EQ(run.TextOf(PageId::frmP6, 1), "0.00");
    EXPECT_EQ(run.program.totals.TaxableTable[33][PageId::frmP2], 0.0F);
    person::NoTaxMarkClick(run.program, kSecond, 33);
    EXPECT_FALSE(run.program.pages[kSecond].imgNoTax[33].Visible);
    EXPECT_EQ(run.program.pages[kSecond].imgNoTax[33].Tag, "Hide");
    EXPECT_FALSE(run.program.format.PropTextChanges[PageId::frmP2][33].TaxExempt);
    EXPECT_FALSE(run.program.format.FormatTextChanges[PageId::frmP2][33].TaxExempt);
    EXPECT_TRUE(run.program.format.PropTextChanges[PageId::frmP2][33].Dirty);
    EXPECT_EQ(run.program.totals.TaxableTable[33][PageId::frmP2], 100.0F);
    EXPECT_EQ(run.TextOf(PageId::frmP6, 1), "100.00");
    EXPECT_EQ(run.Main().cmdReCalc.BackColor, colors::kOverLimit);
    EXPECT_EQ(run.program.main.Focus, Text(kSecond, 33));
}

// ---- the right button
// ---------------------------------------------------------------------------------------

TEST(RightPress, FormatsTheAmountItLeavesAndComesBackToIt) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 33);
    typist.Type("12.5");
    person::FieldMouseDown(run.program, Text(kSecond, 33), 2, 4, 0);
    EXPECT_TRUE(person::TextMenuOpens(run.program));
    EXPECT_EQ(run.TextOf(kSecond, 33), "12.50");
    EXPECT_EQ(run.TextOf(PageId::frmP6, 0), "12.50");
    EXPECT_FALSE(run.program.main.Focus) << "the menu has the keyboard";
    person::TextMenuClosed(run.program);
    EXPECT_EQ(run.program.main.Focus, Text(kSecond, 33));
    EXPECT_EQ(run.Area(kSecond, 33).BackColor, colors::kFocused);
    EXPECT_FALSE(run.program.editing.RightClickPending);
    person::TextMenuClosed(run.program);
    EXPECT_EQ(run.program.main.Focus, Text(kSecond, 33));
}

TEST(RightPress, GivesAnotherAreaTheFocusFirst) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 3);
    person::FieldMouseDown(run.program, Text(kSecond, 40), 2, 0, 0);
    EXPECT_EQ(run.program.main.lblTextNum.Caption, "Page 2, Text Area 41");
    EXPECT_EQ(run.program.editing.CurrentArea, 40);
    EXPECT_EQ(run.program.editing.RightClickArea, 40);
    EXPECT_TRUE(run.program.main[CommandId::mnuEditTextTaxExempt].Enabled);
    person::TextMenuClosed(run.program);
    EXPECT_EQ(run.program.main.Focus, Text(kSecond, 40));
}

TEST(RightPress, RepaintsEveryPage) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kFirst, 3);
    typist.Type(std::string(62, 'x'));
    modPages::PlaceColumns(run.program, kSecond, 0, modPages::Columns::On);
    modFields::SetText(run.program, Quantity(0), "123456"); // 600 of 540 twips
    typist.Click(kSecond, 3);
    EXPECT_EQ(run.Area(kFirst, 3).BackColor, colors::kResting);
    person::FieldMouseDown(run.program, Text(kSecond, 3), 2, 0, 0);
    EXPECT_EQ(run.Area(kFirst, 3).BackColor, colors::kOverLimit);
    EXPECT_EQ(run.program.pages[kSecond].txtQty[0].BackColor, colors::kOverLimit);
    EXPECT_EQ(run.program.pages[kSecond].txtAmt[0].BackColor, colors::kRestingRowField);
    EXPECT_EQ(run.Area(kSecond, 4).BackColor, colors::kResting);
}

TEST(RightPress, OpensNothingOnTheFinalPageAndInTheBoxes) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP6, 1);
    person::FieldMouseDown(run.program, Text(PageId::frmP6, 4), 2, 0, 0);
    EXPECT_FALSE(person::TextMenuOpens(run.program));
    EXPECT_EQ(run.program.main.Focus, Text(PageId::frmP6, 4));
    typist.Click(kSecond, 0);
    typist.Press(keys::kF8);
    person::FieldMouseDown(run.program, Quantity(0), 2, 0, 0);
    EXPECT_FALSE(person::TextMenuOpens(run.program));
    EXPECT_EQ(run.program.main.Focus, Quantity(0));
}

// ---- the boxes and the keyboard ---------------------------------------------------------------------------

TEST(Boxes, BringTheirPlaceholdersEveryTimeTheyCome) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 2);
    typist.Press(keys::kF8);
    typist.Press(keys::kF8);
    EXPECT_EQ(run.program.pages[kSecond].txtQty[2].Text, "");
    EXPECT_EQ(run.program.pages[kSecond].txtAmt[2].Text, "");
    typist.Press(keys::kF8);
    EXPECT_EQ(run.program.pages[kSecond].txtQty[2].Text, "Qty.");
    EXPECT_EQ(run.program.pages[kSecond].txtAmt[2].Text, "Amt.");
}

TEST(Boxes, KeepTheirPlaceholderBeforeEnterAndLoseItToABlank) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 2);
    typist.Press(keys::kF8);
    int enter = keys::kEnter;
    modColumns::Box_KeyPress(run.program, Quantity(2), enter);
    EXPECT_EQ(run.program.pages[kSecond].txtQty[2].Text, "Qty.");
    int blank = keys::kBlank;
    modColumns::Box_KeyPress(run.program, Quantity(2), blank);
    EXPECT_EQ(run.program.pages[kSecond].txtQty[2].Text, "");
}

TEST(Boxes, MakeTheirPageTheOneThatIsEdited) {
    RunningProgram run;
    modPages::PlaceColumns(run.program, kSecond, 2, modPages::Columns::On);
    run.program.main.ActivePage = PageId::frmP4;
    run.program.main.CurrentPage = 3;
    modColumns::Box_GotFocus(run.program, Quantity(2));
    EXPECT_EQ(run.program.main.ActivePage, kSecond);
    EXPECT_EQ(run.program.main.CurrentPage, 1);
}

TEST(Boxes, StandRedWhenTheyAreEnteredWithWhatIsNoNumber) {
    RunningProgram run;
    modPages::PlaceColumns(run.program, kSecond, 2, modPages::Columns::On);
    TextArea& box = run.program.pages[kSecond].txtQty[2];
    box.Text = "1,5";
    modFields::GiveFocus(run.program, Quantity(2));
    EXPECT_EQ(box.BackColor, colors::kOverLimit);
    box.Text = "15";
    modFields::DropFocus(run.program);
    modFields::GiveFocus(run.program, Quantity(2));
    EXPECT_EQ(box.BackColor, colors::kFocused);
}

TEST(Boxes, OfPricesStayAsTheyAreWhileAFileIsRead) {
    RunningProgram run;
    modPages::PlaceColumns(run.program, kSecond, 2, modPages::Columns::On);
    run.program.guards.Loading = true;
    modColumns::Box_GotFocus(run.program, {kSecond, FieldKind::txtAmt, 2});
    EXPECT_EQ(run.program.pages[kSecond].txtAmt[2].BackColor, colors::kRestingRowField);
    modColumns::Box_GotFocus(run.program, Quantity(2));
    EXPECT_EQ(run.program.pages[kSecond].txtQty[2].BackColor, colors::kFocused);
}

TEST(Boxes, LeaveTheKeysToTheSelectionAndTheReader) {
    RunningProgram run;
    modPages::PlaceColumns(run.program, kSecond, 2, modPages::Columns::On);
    modFields::GiveFocus(run.program, Quantity(2));
    for (bool* silent : {&run.program.editing.BlockMode, &run.program.guards.Loading}) {
        *silent = true;
        EXPECT_EQ(modColumns::Box_KeyDown(run.program, Quantity(2), keys::kEnter, 0), Taken::No);
        EXPECT_EQ(run.program.main.Focus, Quantity(2));
        *silent = false;
    }
    EXPECT_EQ(modColumns::Box_KeyDown(run.program, Quantity(2), keys::kEnter, 0), Taken::Yes);
}

TEST(ColumnsKey, InABoxTakesTheColumnsOfItsOwnRow) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 2);
    typist.Press(keys::kF8);
    typist.Click(kSecond, 5);
    typist.Click(Quantity(2));
    typist.Press(keys::kF8);
    EXPECT_FALSE(modPages::ColumnsOn(run.program, kSecond, 2));
    EXPECT_FALSE(modPages::ColumnsOn(run.program, kSecond, 5));
}

} // namespace
