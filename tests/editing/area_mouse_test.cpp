#include "editing/area_mouse.h"

#include "pages/fields.h"
#include "pages/page_fonts.h"
#include "support/person.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

#include <string>

// What the mouse does in an area of text.

namespace {

constexpr int kLeft = 1;
constexpr int kRight = 2;
constexpr PageId kFirst = PageId::frmP1;
constexpr PageId kSecond = PageId::frmP2;

FieldRef Text(PageId page, int index) {
    return {page, FieldKind::txt, index};
}

TEST(PressInACompletion, TakesItAndLeavesCursorAndMarkAsTheMousePutThem) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 0);
    typist.Type("flow");
    run.program.editing.ACActive[kSecond] = true;
    modFields::TypeText(run.program, Text(kSecond, 0), "flowers", 4, 3);
    person::FieldMouseDown(run.program, Text(kSecond, 0), kLeft, 1, 3);
    EXPECT_EQ(run.program.document.CurrentTextBuf[kSecond][0], "flowers");
    EXPECT_EQ(run.Area(kSecond, 0).SelStart, 1);
    EXPECT_EQ(run.Area(kSecond, 0).SelLength, 3);
    EXPECT_EQ(run.program.editing.CursorPos, 1);
}

TEST(RightPress, IsForTheAreaUnderTheMouse) {
    RunningProgram run;
    Typist(run.program).Click(kSecond, 4);
    modText::txt_MouseDown(run.program, kSecond, 9, kRight);
    EXPECT_EQ(run.program.editing.CurrentArea, 9);
    EXPECT_EQ(run.program.editing.RightClickArea, 9);
}

TEST(RightPress, LetsTheAreaThatWasLeftBePaintedBeforeTheMenuOpens) {
    RunningProgram run;
    Typist(run.program).Click(kSecond, 4);
    bool painted = false;
    run.surroundings.events.OnYield = [&] {
        painted = !run.program.main.Focus && run.Area(kSecond, 4).BackColor == colors::kResting;
    };
    person::FieldMouseDown(run.program, Text(kSecond, 4), kRight, 0, 0);
    EXPECT_TRUE(painted);
}

TEST(RightPress, PaintsWhatIsTooLongBlackOnRedWhateverColourTheFontHas) {
    constexpr Color kDarkBlue = 0x800000;
    RunningProgram run;
    run.program.run.DefaultFontColor = kDarkBlue;
    modPages::ApplyPageFonts(run.program);
    run.Area(kFirst, 12).Text = std::string(87, 'x'); // 8700 of 8640 twips
    person::FieldMouseDown(run.program, Text(kSecond, 4), kRight, 0, 0);
    EXPECT_EQ(run.Area(kFirst, 12).BackColor, colors::kOverLimit);
    EXPECT_EQ(run.Area(kFirst, 12).ForeColor, colors::kBlack);
    EXPECT_EQ(run.Area(kFirst, 13).ForeColor, kDarkBlue);
}

TEST(Release, LeavesTheCursorWhereTheMouseHasPutIt) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 4);
    typist.Type("Arch");
    modFields::SetCursor(run.Area(kSecond, 4), 2);
    modText::txt_MouseUp(run.program, kSecond, 4);
    EXPECT_EQ(run.program.editing.CursorPos, 2);
}

TEST(ClosedMenu, GivesTheKeyboardBackOnlyWhenItWasTheAreasMenu) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 4);
    modFields::DropFocus(run.program);
    person::TextMenuClosed(run.program);
    EXPECT_FALSE(run.program.main.Focus);
    typist.Click(kSecond, 4);
    person::FieldMouseDown(run.program, Text(kSecond, 4), kRight, 0, 0);
    typist.Click(kSecond, 7); // the person is elsewhere already
    person::TextMenuClosed(run.program);
    EXPECT_EQ(run.program.main.Focus, Text(kSecond, 7));
}

} // namespace
