#include "editing/final_page.h"
#include "editing/typing.h"
#include "pages/fields.h"
#include "program/keys.h"
#include "support/person.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

#include <string>

// Typing on the final page: subtotal 0, taxable amount 1, sales tax 2, total 3, deposit 4, balance 5.

namespace {

constexpr PageId kFinal = PageId::frmP6;

void TypeAmount(RunningProgram& run, const char* figure) {
    Typist typist(run.program);
    typist.Click(PageId::frmP2, 33);
    typist.Type(figure);
    typist.Click(PageId::frmP2, 0);
}

TEST(FinalPage, TakesADepositAsItIsTypedAndWritesItOnLeaving) {
    RunningProgram run;
    TypeAmount(run, "100");
    Typist typist(run.program);
    typist.Click(kFinal, 4);
    typist.Type("20.5");
    EXPECT_EQ(run.TextOf(kFinal, 4), "20.5");
    EXPECT_EQ(run.TextOf(PageId::frmP6_1, 4), "20.5");
    EXPECT_EQ(run.program.document.CurrentTextBuf[PageId::frmP6][4], "20.5");
    EXPECT_EQ(run.TextOf(kFinal, 5), "87.75") << "100 and 8.25 % tax, less 20.5";
    EXPECT_EQ(run.Main().cmdReCalc.BackColor, colors::kOverLimit);
    typist.Click(kFinal, 1);
    EXPECT_EQ(run.TextOf(kFinal, 4), "20.50");
    EXPECT_NE(run.Main().cmdReCalc.BackColor, colors::kOverLimit);
    EXPECT_EQ(run.program.editing.LastArea, 4);
}

TEST(FinalPage, CountsTheDepositThatItShows) {
    RunningProgram run;
    TypeAmount(run, "100");
    Typist typist(run.program);
    typist.Click(kFinal, 4);
    typist.Type("10.555");
    typist.Press(keys::kEnter);
    EXPECT_EQ(run.TextOf(kFinal, 4), "10.56");
    EXPECT_EQ(run.program.totals.Deposit, 10.56F);
    EXPECT_EQ(run.TextOf(kFinal, 5), "97.69");
    EXPECT_EQ(run.program.main.Focus, (FieldRef{kFinal, FieldKind::txt, 4})) << "Enter leads nowhere";
}

TEST(FinalPage, WithoutAnyFigureLeavesATypedZeroAlone) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kFinal, 4);
    typist.Press(35);
    while (!run.TextOf(kFinal, 4).empty()) {
        typist.Press(keys::kBackspace);
    }
    typist.Type("0");
    typist.Click(kFinal, 1);
    EXPECT_EQ(run.TextOf(kFinal, 4), "0");
}

TEST(FinalPage, LeavesTextThatIsNoNumberInTheFieldAndChangesNothing) {
    RunningProgram run;
    TypeAmount(run, "100");
    Typist typist(run.program);
    typist.Click(kFinal, 4);
    typist.Type("-");
    EXPECT_EQ(run.TextOf(kFinal, 4).find('-') != std::string::npos, true);
    EXPECT_EQ(run.program.totals.Deposit, 0.0F);
    EXPECT_EQ(run.TextOf(kFinal, 3), "108.25");
}

TEST(FinalPage, WorksOutTaxAndTaxableAmountOverWhatIsTyped) {
    RunningProgram run;
    TypeAmount(run, "100");
    for (const int index : {1, 2}) {
        Typist typist(run.program);
        typist.Click(kFinal, index);
        const std::string before = run.TextOf(kFinal, index);
        typist.Type("7");
        EXPECT_EQ(run.TextOf(kFinal, index), before);
        EXPECT_EQ(run.Main().cmdReCalc.BackColor, colors::kOverLimit);
    }
}

TEST(FinalPage, HearsTheCursorAndNoOtherKey) {
    RunningProgram run;
    TypeAmount(run, "100");
    Typist typist(run.program);
    typist.Click(kFinal, 4);
    const int counted = run.program.editing.KeyCounter;
    typist.Press(36);
    EXPECT_EQ(run.program.editing.CursorPos, 0);
    EXPECT_EQ(run.program.main.lblCurPos.Caption, "Cursor Location = 0");
    typist.Press(keys::kF8);
    typist.Press(keys::kShift, keys::kShiftState);
    EXPECT_EQ(run.program.editing.KeyCounter, counted);
    EXPECT_EQ(run.program.main.Focus, (FieldRef{kFinal, FieldKind::txt, 4}));
}

TEST(FinalPage, TakesANumberFromTheClipboardInItsOpenFieldsAlone) {
    RunningProgram run;
    TypeAmount(run, "100");
    Typist typist(run.program);
    typist.Click(kFinal, 4);
    typist.PutCursor(0, static_cast<int>(run.TextOf(kFinal, 4).size()));
    typist.PasteByKey("ten", run.surroundings.clipboard.Text);
    EXPECT_EQ(run.program.totals.Deposit, 0.0F);
    typist.PasteByKey("1,000\r\n", run.surroundings.clipboard.Text);
    EXPECT_EQ(run.TextOf(kFinal, 4), "1,000");
    EXPECT_EQ(run.program.totals.Deposit, 1000.0F);
    typist.Click(kFinal, 3);
    typist.PasteByKey("10", run.surroundings.clipboard.Text);
    EXPECT_EQ(run.TextOf(kFinal, 3), "108.25");
}

TEST(FinalPage, HasNoTextMenuAndUsesUpNoneOfItsOwnStatus) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP2, 3);
    run.program.editing.RightClickPending = true; // a menu is up elsewhere
    typist.Click(kFinal, 4);
    EXPECT_EQ(run.program.main.lblTextNum.Caption, "Page 2, Text Area 4")
        << "one change of the label is swallowed";
    typist.Click(kFinal, 1);
    EXPECT_EQ(run.program.main.lblTextNum.Caption, "Page 6, Text Area 2");
}

// ---- what is left of the line pages
// -------------------------------------------------------------------------

TEST(EventDate, TakesEveryFormThatItsWarningNames) {
    for (const char* text :
         {"January 15, 2008", "January 15, 2008.", "Jan 15, 2008", "1/15/2008", "1/15/08", "1-15-08"}) {
        RunningProgram run;
        Typist typist(run.program);
        typist.Click(PageId::frmP1, 0);
        typist.Type(text);
        typist.Press(keys::kEnter);
        EXPECT_FALSE(run.program.pages[PageId::frmP1].DateWarningShown) << text;
    }
}

TEST(EventDate, WarnsBeforeTheNextFieldIsEntered) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 0);
    typist.Type("1rst of May");
    run.surroundings.questions.Expect("Text cannot be recognized as a date");
    typist.Press(keys::kEnter);
    run.surroundings.questions.Done();
    EXPECT_EQ(run.program.main.Focus, (FieldRef{PageId::frmP1, FieldKind::txt, 1}));
    EXPECT_EQ(run.TextOf(PageId::frmP1, 0), "1rst of May");
}

TEST(Keys, CountTowardsTheBackupWithTheirModifiers) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP2, 3);
    run.program.editing.KeyCounter = 0;
    typist.Press(keys::kShift, keys::kShiftState);
    typist.Press(keys::kLeft);
    typist.Press(keys::kDown);
    typist.Press(keys::kEnter);
    EXPECT_EQ(run.program.editing.KeyCounter, 4);
    typist.Press(keys::kPageDown);
    EXPECT_EQ(run.program.editing.KeyCounter, 4) << "page keys do not reach the field";
}

TEST(BlockSelection, LetsNoEditReachAField) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP2, 33);
    typist.Type("12");
    run.program.editing.BlockMode = true;
    typist.Press(keys::kDelete);
    typist.Press(keys::kBackspace);
    typist.Type("3");
    typist.PasteByKey("4", run.surroundings.clipboard.Text);
    person::Insert(run.program, {PageId::frmP2, FieldKind::txt, 33}, "5", 0, person::By::Mouse);
    EXPECT_EQ(run.TextOf(PageId::frmP2, 33), "12");
}

TEST(BlockSelection, HasItsArrowsBeforeTheFields) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP2, 3);
    run.program.editing.BlockMode = true;
    typist.Press(keys::kDown);
    EXPECT_EQ(run.program.main.Focus, (FieldRef{PageId::frmP2, FieldKind::txt, 3}));
    typist.Press(keys::kEnter);
    EXPECT_EQ(run.program.main.Focus, (FieldRef{PageId::frmP2, FieldKind::txt, 36})) << "Enter still walks";
}

TEST(Refire, MovesNoLineOnWhateverKeyCameLast) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP2, 0);
    std::string line;
    while (line.size() < 90) {
        line += "abcdefghi ";
    }
    run.Area(PageId::frmP2, 5).Text = line;
    typist.Type("ab ");
    run.program.editing.CursorPos = 89; // as if the last blank had just been typed there
    modText::RefireTextChanges(run.program, PageId::frmP2);
    EXPECT_EQ(run.TextOf(PageId::frmP2, 5), line);
    EXPECT_EQ(run.TextOf(PageId::frmP2, 6), "");
    EXPECT_EQ(run.Area(PageId::frmP2, 5).BackColor, colors::kOverLimit);
    EXPECT_EQ(run.program.editing.CursorPos, 89);
}

TEST(FinalPage, AKeyThatIsLetGoTellsWhereTheCursorStands) {
    RunningProgram run;
    run.Area(kFinal, 4).Text = "1,000.00";
    run.Area(kFinal, 4).SelStart = 5;
    modFinalPage::txt_KeyUp(run.program, 4);
    EXPECT_EQ(run.program.editing.CursorPos, 5);
    EXPECT_EQ(run.program.main.lblCurPos.Caption, "Cursor Location = 5");
}

TEST(FinalPage, EnterInTheDepositCountsAlsoWhenItIsWrittenAlready) {
    RunningProgram run;
    TypeAmount(run, "100");
    Typist typist(run.program);
    typist.Click(kFinal, 4);
    typist.PutCursor(0, static_cast<int>(run.TextOf(kFinal, 4).size()));
    typist.Type("12.00");
    ASSERT_EQ(run.Main().cmdReCalc.BackColor, colors::kOverLimit);
    typist.Press(keys::kEnter);
    EXPECT_EQ(run.TextOf(kFinal, 4), "12.00");
    EXPECT_EQ(run.Main().cmdReCalc.BackColor, colors::kButtonFace);
}

} // namespace
