#include "pages/fields.h"

#include "pages/page_defaults.h"
#include "program/program.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

namespace {

constexpr FieldRef kName{PageId::frmP1, FieldKind::txt, 2};

TEST(Focus, StaysWhereItIsWhenTheFieldCannotTakeIt) {
    RunningProgram run;
    Typist(run.program).Click(kName);
    run.Area(PageId::frmP1, 3).Enabled = false;
    run.Area(PageId::frmP1, 4).Visible = false;
    for (const FieldRef& field :
         {FieldRef{PageId::frmP6_1, FieldKind::txt, 0}, FieldRef{PageId::frmP1, FieldKind::txt, 30},
          FieldRef{PageId::frmP1, FieldKind::txt, -1}, FieldRef{PageId::frmP6, FieldKind::txtQty, 0},
          FieldRef{PageId::frmP1, FieldKind::txt, 3}, FieldRef{PageId::frmP1, FieldKind::txt, 4}}) {
        modFields::GiveFocus(run.program, field);
        EXPECT_EQ(run.program.main.Focus, kName) << IndexOf(field.Page) << " " << field.Index;
    }
}

TEST(Focus, OfABoxThatHasGoneIsDroppedWithoutLeavingIt) {
    RunningProgram run;
    const FieldRef quantity{PageId::frmP2, FieldKind::txtQty, 3};
    run.program.main.Focus = quantity;
    int left = 0;
    run.program.hooks.LostFocus = [&](Program&, const FieldRef&) { ++left; };
    modPages::BuildPage(run.program, PageId::frmP2); // with the first row's boxes alone
    modFields::DropFocus(run.program);
    EXPECT_FALSE(run.program.main.Focus);
    EXPECT_EQ(left, 0);
}

TEST(Fields, ATextThatIsPutInLeavesTheCursorBeforeItAndNothingMarked) {
    RunningProgram run;
    TextArea& area = run.Area(kName.Page, kName.Index);
    area.Text = "Wedding";
    modFields::SetCursor(area, 3, 2);
    modFields::SetText(run.program, kName, "Anniversary");
    EXPECT_EQ(area.SelStart, 0);
    EXPECT_EQ(area.SelLength, 0);
}

TEST(Fields, TypingWhatStandsThereMovesTheCursorAndChangesNothing) {
    RunningProgram run;
    run.Area(kName.Page, kName.Index).Text = "Wedding";
    int changes = 0;
    run.program.hooks.Change = [&](Program&, const FieldRef&) { ++changes; };
    modFields::TypeText(run.program, kName, "Wedding", 7, 0);
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(run.Area(kName.Page, kName.Index).SelStart, 7);
    modFields::TypeText(run.program, kName, "Weddings", 8, 0);
    EXPECT_EQ(changes, 1);
}

} // namespace
