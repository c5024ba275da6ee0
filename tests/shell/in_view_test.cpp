#include "editing/navigation.h"
#include "pages/fields.h"
#include "pages/page_geometry.h"
#include "program/program.h"
#include "shell/frm_main.h"
#include "shell/input.h"
#include "shell/page_switch.h"
#include "support/person.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

#include <utility>

namespace {

/// A window in which about a third of a page shows.
struct LowWindow : RunningProgram {
    LowWindow() {
        program.main.ClientHeight = kHeight;
        person::ResizeWindow(program);
    }
    [[nodiscard]] bool Shows(const FieldRef& field) {
        const TextArea& area = modFields::Area(program, field);
        const auto from = static_cast<float>(program.main.VScroll1.Value);
        return area.Top >= from && area.Top + area.Height <= from + kHeight;
    }
    void ScrollTo(int value) { modScroll::SetScroll(program, value); }
    static constexpr float kHeight = 5000;
    Typist typist{program};
};

TEST(InView, TypingBringsTheFieldBackIntoView) {
    LowWindow run;
    const FieldRef name{PageId::frmP1, FieldKind::txt, 2};
    run.typist.Click(name);
    run.ScrollTo(9000);
    ASSERT_FALSE(run.Shows(name));
    run.typist.Type("A");
    EXPECT_TRUE(run.Shows(name));
    EXPECT_EQ(run.TextOf(PageId::frmP1, 2), "A");
}

TEST(InView, ArrowsWithinTheTextDoToo) {
    for (const int key : {keys::kLeft, keys::kRight, keys::kHome, keys::kEnd}) {
        LowWindow run;
        const FieldRef name{PageId::frmP1, FieldKind::txt, 2};
        run.typist.Click(name);
        run.typist.Type("Ann");
        run.ScrollTo(9000);
        run.typist.Press(key);
        EXPECT_TRUE(run.Shows(name)) << key;
    }
}

TEST(InView, AFieldGoesToTheLowerEdgeAndNearThePagesHeadToTheUpper) {
    LowWindow run;
    const auto places = [&](const FieldRef& field) {
        const TextArea& area = modFields::Area(run.program, field);
        modScroll::BringToEdge(run.program, field);
        const float above = area.Top - static_cast<float>(run.program.main.VScroll1.Value);
        return std::pair(above, run.program.main.ClientHeight - above - area.Height);
    };
    constexpr float kTwoRows = 900;
    const auto [farAbove, justBelow] = places({PageId::frmP1, FieldKind::txt, 19});
    EXPECT_GE(justBelow, 0);
    EXPECT_LT(justBelow, kTwoRows);
    EXPECT_GT(farAbove, kTwoRows);
    run.program.main.ClientHeight = 9000; // the field stands higher than a window's height from the head
    person::ResizeWindow(run.program);
    const auto [justAbove, farBelow] = places({PageId::frmP1, FieldKind::txt, 0});
    EXPECT_GE(justAbove, 0);
    EXPECT_LT(justAbove, kTwoRows);
    EXPECT_GT(farBelow, kTwoRows);
    run.ScrollTo(4000);
    modScroll::BringToEdge(run.program, {PageId::frmP2, FieldKind::txt, 0}); // not the page in front
    EXPECT_EQ(run.program.main.VScroll1.Value, 4000);
}

TEST(InView, AFieldWhoseLowerEdgeIsTheWindowsAtThePagesHeadLeavesThePageThere) {
    RunningProgram run;
    const FieldRef field{PageId::frmP1, FieldKind::txt, 19};
    const TextArea& area = modFields::Area(run.program, field);
    const float pitch = run.Area(PageId::frmP1, 11).Top - run.Area(PageId::frmP1, 10).Top;
    run.program.main.ClientHeight = area.Top + area.Height + pitch;
    person::ResizeWindow(run.program);
    modScroll::BringToEdge(run.program, field);
    EXPECT_EQ(run.program.main.VScroll1.Value, 0);
}

TEST(InView, AKeyThatOnlyHoldsOrScrollsLeavesThePageAlone) {
    LowWindow run;
    run.typist.Click(PageId::frmP1, 2);
    run.typist.Press(keys::kPageDown);
    const int scrolled = run.program.main.VScroll1.Value;
    EXPECT_GT(scrolled, 0);
    run.typist.Press(keys::kShift);
    run.typist.Press(keys::kCtrl);
    EXPECT_EQ(run.program.main.VScroll1.Value, scrolled);
}

TEST(InView, EveryStepOfEnterTabAndArrowsShowsWhereItLeads) {
    for (const int key : {keys::kEnter, keys::kTab, keys::kDown, keys::kUp}) {
        for (const PageId page : {PageId::frmP1, PageId::frmP2}) {
            LowWindow run;
            person::TurnTo(run.program, IndexOf(page));
            run.typist.Click(page, key == keys::kUp ? geometry::LastRow(page) : 0);
            for (int step = 0; step < 70; ++step) {
                run.typist.Press(key);
                ASSERT_TRUE(run.program.main.Focus);
                ASSERT_TRUE(run.Shows(*run.program.main.Focus)) << "key " << key << ", step " << step;
            }
        }
    }
}

TEST(InView, APageButtonShowsTheFieldItLeadsTo) {
    LowWindow run;
    person::ClickPageButton(run.program, 5);
    ASSERT_EQ(run.program.main.Focus, (FieldRef{PageId::frmP6, FieldKind::txt, 4}));
    EXPECT_TRUE(run.Shows(*run.program.main.Focus));
}

TEST(InView, ACommandThatMovesTheCursorShowsWhereItWent) {
    LowWindow run;
    run.typist.Click(PageId::frmP1, 19);
    run.ScrollTo(12000);
    run.surroundings.questions.Expect("Please enter the client's name");
    person::Choose(run.program, CommandId::mnuFileSaveEvent);
    ASSERT_EQ(run.program.main.Focus, (FieldRef{PageId::frmP1, FieldKind::txt, 2}));
    EXPECT_TRUE(run.Shows(*run.program.main.Focus));
}

TEST(InView, AFieldThatShowsMovesNothing) {
    LowWindow run;
    run.typist.Click(PageId::frmP1, 5);
    run.ScrollTo(static_cast<int>(run.Area(PageId::frmP1, 5).Top) - 20);
    const int before = run.program.main.VScroll1.Value;
    run.typist.Type("x");
    EXPECT_EQ(run.program.main.VScroll1.Value, before);
}

TEST(Wheel, ANotchIsThreeRowsOfThePage) {
    LowWindow run;
    person::TurnTo(run.program, 1);
    const float row = run.Area(PageId::frmP2, 1).Top - run.Area(PageId::frmP2, 0).Top;
    modScroll::Wheel(run.program, -120);
    EXPECT_EQ(run.program.main.VScroll1.Value, static_cast<int>(3 * row));
    EXPECT_EQ(run.program.pages[PageId::frmP2].Top, -3 * row);
    modScroll::Wheel(run.program, -40); // a wheel without notches
    EXPECT_EQ(run.program.main.VScroll1.Value, static_cast<int>(4 * row));
    modScroll::Wheel(run.program, 120);
    EXPECT_EQ(run.program.main.VScroll1.Value, static_cast<int>(row));
    modScroll::Wheel(run.program, 1200);
    EXPECT_EQ(run.program.main.VScroll1.Value, 0) << "no further than the page";
    person::TurnTo(run.program, 5);
    modScroll::Wheel(run.program, -120);
    EXPECT_EQ(run.program.main.VScroll1.Value, static_cast<int>(3 * row)) << "a page without rows";
}

TEST(Gate, PreviewAndRecalculateByButtonWaitForThePagesUnderWayAsByMenu) {
    LowWindow run;
    run.program.printing.CommandRunning = true;
    person::ClickPreviewButton(run.program);
    EXPECT_EQ(run.program.main.cmdPreview.Caption, "Print Preview");
    EXPECT_FALSE(run.program.pages[PageId::frmP1].InkShown);
    frmMain(run.program).cmdReCalc_Click(); // a message would be one too many
    run.program.printing.CommandRunning = false;
    person::ClickPreviewButton(run.program);
    EXPECT_TRUE(run.program.pages[PageId::frmP1].InkShown);
    person::ClickPreviewButton(run.program);
    EXPECT_FALSE(run.program.pages[PageId::frmP1].InkShown);
    run.surroundings.questions.Expect("");
    frmMain(run.program).cmdReCalc_Click();
}

TEST(InView, APageButtonScrollsToTheDepositInAWindowThatEndsAboveIt) {
    LowWindow run;
    run.program.main.ClientHeight = 1500;
    person::ResizeWindow(run.program);
    person::ClickPageButton(run.program, 5);
    const TextArea& deposit = run.Area(PageId::frmP6, 4);
    ASSERT_GT(deposit.Top, 1500);
    const auto from = static_cast<float>(run.program.main.VScroll1.Value);
    EXPECT_GE(deposit.Top, from);
    EXPECT_LE(deposit.Top + deposit.Height, from + 1500);
}

TEST(InView, ATextThatIsDroppedAndAFieldThatIsEnteredShowWhereTheyAre) {
    LowWindow run;
    const FieldRef name{PageId::frmP1, FieldKind::txt, 2};
    const FieldRef line{PageId::frmP1, FieldKind::txt, 19};
    run.typist.Click(name);
    run.ScrollTo(9000);
    run.typist.Insert("Ann");
    EXPECT_TRUE(run.Shows(name));
    ASSERT_FALSE(run.Shows(line));
    modInput::FieldEntered(run.program, line);
    EXPECT_EQ(run.program.main.Focus, line);
    EXPECT_TRUE(run.Shows(line));
}

TEST(InView, AFieldThatTouchesAnEdgeOfTheWindowShows) {
    LowWindow run;
    const FieldRef line{PageId::frmP1, FieldKind::txt, 10}; // from 10260 to 10515
    for (const int scrolled : {10260, 10515 - 5000}) {
        run.ScrollTo(scrolled);
        modScroll::BringIntoView(run.program, line);
        EXPECT_EQ(run.program.main.VScroll1.Value, scrolled);
    }
    run.ScrollTo(10261);
    modScroll::BringIntoView(run.program, line);
    EXPECT_EQ(run.program.main.VScroll1.Value, 10260 - 360) << "a row above it shows, too";
    run.ScrollTo(10514 - 5000);
    modScroll::BringIntoView(run.program, line);
    EXPECT_EQ(run.program.main.VScroll1.Value, 10515 - 5000 + 360) << "and a row below";
}

TEST(InView, AWindowTwiceAsHighAsAFieldShowsItInTheMiddleAndALowerOneDoesNotFollow) {
    LowWindow run;
    const FieldRef line{PageId::frmP1, FieldKind::txt, 15}; // from 12060 to 12315
    run.program.main.ClientHeight = 509;
    person::ResizeWindow(run.program);
    modScroll::BringIntoView(run.program, line);
    EXPECT_EQ(run.program.main.VScroll1.Value, 0);
    run.program.main.ClientHeight = 511;
    person::ResizeWindow(run.program);
    modScroll::BringIntoView(run.program, line);
    EXPECT_EQ(run.program.main.VScroll1.Value, 12315 + 128 - 511) << "128 above it and 128 below";
    run.ScrollTo(0);
    run.program.main.ClientHeight = 510;
    person::ResizeWindow(run.program);
    modScroll::BringIntoView(run.program, line);
    EXPECT_EQ(run.program.main.VScroll1.Value, 11932) << "12315 + 127.5 - 510";
}

} // namespace
