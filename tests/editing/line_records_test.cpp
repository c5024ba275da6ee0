#include "editing/area_contents.h"
#include "editing/columns.h"
#include "editing/leaving.h"
#include "editing/text_commands.h"
#include "pages/fields.h"
#include "pages/page_defaults.h"
#include "pages/row_fields.h"
#include "program/keys.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

// What the records of a line say while it is edited: both text tables and the stored line.

namespace {

constexpr PageId kSecond = PageId::frmP2;

FieldRef Text(int index) {
    return {kSecond, FieldKind::txt, index};
}

struct LineRun : RunningProgram {
    /// The line's records of what belongs to the proposal and of what belongs to the format.
    [[nodiscard]] std::array<const TextChangeRecord*, 2> Records(std::size_t row) const {
        return {&program.format.PropTextChanges[kSecond][row],
                &program.format.FormatTextChanges[kSecond][row]};
    }
    /// Columns and their texts, as a file brings them: no handler has run.
    void PlaceRow(int row, const std::string& quantity, const std::string& price) {
        modPages::PlaceColumns(program, kSecond, row, modPages::Columns::On);
        program.pages[kSecond].txtQty[static_cast<std::size_t>(row)].Text = quantity;
        program.pages[kSecond].txtAmt[static_cast<std::size_t>(row)].Text = price;
    }
    Typist typist{program};
};

TEST(LineRecords, TakeTheColumnsWithTheDescriptionThatIsTyped) {
    LineRun run;
    run.PlaceRow(3, "2", "5.00");
    modFields::SetText(run.program, Text(3), "Chairs");
    for (const TextChangeRecord* record : run.Records(3)) {
        EXPECT_TRUE(record->QtyBox);
    }
    EXPECT_EQ(run.Records(3)[1]->QtyValue, "2");
    EXPECT_EQ(run.Records(3)[1]->AmtValue, "5.00");
    modPages::PlaceColumns(run.program, kSecond, 3, modPages::Columns::Off);
    modFields::SetText(run.program, Text(3), "Tables");
    for (const TextChangeRecord* record : run.Records(3)) {
        EXPECT_FALSE(record->QtyBox);
    }
    EXPECT_EQ(run.Records(3)[1]->QtyValue, "");
    EXPECT_EQ(run.Records(3)[1]->AmtValue, "");
}

TEST(LineRecords, TakeTheWeightInWhichALineStands) {
    LineRun run;
    run.Area(kSecond, 3).FontBold = true;
    modFields::SetText(run.program, Text(3), "Chairs");
    for (const TextChangeRecord* record : run.Records(3)) {
        EXPECT_TRUE(record->FontBold);
    }
}

TEST(LineRecords, LoseTheFormatsTextWithTheLastCharacterOfTheArea) {
    LineRun run;
    run.typist.Click(Text(3));
    run.typist.Type("ab");
    TextChangeRecord& kept = run.program.format.FormatTextChanges[kSecond][3];
    kept.Text = "ab";
    run.typist.Press(keys::kBackspace);
    EXPECT_EQ(kept.Text, "ab") << "the format's text is taken when the format is saved";
    run.typist.Press(keys::kBackspace);
    EXPECT_EQ(kept.Text, "");
}

TEST(LineRecords, AreCollectedFromEveryRowThatHasColumnsUpToTheLast) {
    LineRun run;
    for (const int row : {0, 32}) {
        run.PlaceRow(row, "2", "5.00");
        run.Area(kSecond, row).Text = "Chairs";
    }
    run.Area(kSecond, 65).Text = "10.00";
    run.program.format.PropTextChanges[kSecond][7].QtyBox = true; // its columns are gone
    modColumns::CollectQtyBoxes(run.program);
    for (const std::size_t row : {0U, 32U}) {
        for (const TextChangeRecord* record : run.Records(row)) {
            EXPECT_TRUE(record->QtyChanged);
            EXPECT_TRUE(record->QtyBox);
            EXPECT_EQ(record->QtyValue, "2");
            EXPECT_EQ(record->AmtValue, "5.00");
        }
        EXPECT_EQ(run.program.document.CurrentTextBuf[kSecond][row], "\xA5"
                                                                     "2\xA5"
                                                                     "Chairs\xA7"
                                                                     "5.00");
    }
    EXPECT_FALSE(run.Records(7)[0]->QtyBox);
    EXPECT_FALSE(run.Records(7)[0]->QtyChanged);
    EXPECT_EQ(run.program.document.CurrentTextBuf[kSecond][65], "10.00");
}

TEST(TextCommands, GiveTheKeyboardBackToTheAreaThatTheyChanged) {
    LineRun run;
    run.typist.Click(Text(3));
    run.typist.Type("chairs");
    run.program.editing.SavedSelStart = 0;
    run.program.editing.SavedSelLength = 1;
    for (void (*command)(Program&) : {modText::mnuEditTextBold_Click, modText::mnuEditTextSelUCase_Click}) {
        modFields::DropFocus(run.program);
        command(run.program);
        EXPECT_EQ(run.program.main.Focus, Text(3));
    }
    EXPECT_EQ(run.TextOf(kSecond, 3), "Chairs");
    run.typist.Click(Text(33));
    modFields::DropFocus(run.program);
    modColumns::mnuEditTextTaxExempt_Click(run.program);
    EXPECT_EQ(run.program.main.Focus, Text(33));
}

TEST(TextCommands, MoveNothingOnWhereverTheCursorStood) {
    LineRun run;
    const std::string line = "one two " + std::string(81, 'x') + " "; // 9000 of 8640 twips
    run.typist.Click(Text(3));
    run.typist.Insert(line);
    ASSERT_EQ(run.TextOf(kSecond, 3), line);
    run.program.editing.SavedSelStart = 0;
    run.program.editing.SavedSelLength = 3;
    run.program.editing.CursorPos = static_cast<int>(line.size()) - 1; // as after a blank at its end
    modText::mnuEditTextSelUCase_Click(run.program);
    EXPECT_EQ(run.TextOf(kSecond, 3), "ONE" + line.substr(3));
    EXPECT_EQ(run.TextOf(kSecond, 4), "");
}

TEST(FirstEntering, OfAPageMakesTheBoxesOfItsRows) {
    RunningProgram run(RunningProgram::Begin::NotStarted);
    for (const PageId page : kAllPages) {
        modPages::BuildPage(run.program, page);
    }
    ASSERT_FALSE(run.program.pages[kSecond].RowFieldsMade);
    modText::txt_GotFocus(run.program, kSecond, 0);
    EXPECT_TRUE(run.program.pages[kSecond].RowFieldsMade);
    EXPECT_EQ(run.program.pages[kSecond].txtQty.size(), 33U);
}

TEST(ColumnsOfARow, FindTheBoxesMadeAlsoOnAPageThatNobodyHasEntered) {
    RunningProgram run;
    modPages::BuildPage(run.program, kSecond);
    modPages::BuildPage(run.program, PageId::frmP3);
    modBlocks::PlaceContents(run.program, kSecond, 5, {});
    EXPECT_EQ(run.program.pages[kSecond].txtQty.size(), 33U);
    run.program.main.CurrentPage = IndexOf(PageId::frmP3);
    run.program.editing.CurrentArea = 32;
    modColumns::ToggleColumns(run.program);
    EXPECT_EQ(run.program.pages[PageId::frmP3].txtQty.size(), 33U);
    EXPECT_TRUE(modPages::ColumnsOn(run.program, PageId::frmP3, 32));
}

} // namespace
