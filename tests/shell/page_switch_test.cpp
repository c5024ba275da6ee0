#include "shell/page_switch.h"

#include "program/keys.h"
#include "program/program.h"
#include "program/windows.h"
#include "shell/frm_main.h"
#include "shell/input.h"
#include "support/person.h"
#include "support/running_program.h"

#include <gtest/gtest.h>

namespace {

struct Row {
    int Index;
    const char* Name;
    int LastText;
    int LastLabel;
};
constexpr Row kRows[] = {{0, "frmP1", 29, 33}, {1, "frmP2", 65, 36}, {2, "frmP3", 65, 36},
                         {3, "frmP4", 65, 36}, {4, "frmP5", 65, 36}, {5, "frmP6", 5, 64},
                         {6, "frmP6_1", 5, 64}};

TEST(PageSwitch, SetsWhatTheWindowKnowsOfThePage) {
    RunningProgram run;
    const MainWindow& main = run.program.main;
    for (const Row& row : kRows) {
        frmMain(run.program).imgPage_Click(row.Index);
        EXPECT_EQ(main.ActivePageName, row.Name);
        EXPECT_EQ(main.LastTextIndex, row.LastText);
        EXPECT_EQ(main.LastLabelIndex, row.LastLabel);
        EXPECT_EQ(IndexOf(main.ActivePageTyped), row.Index);
        EXPECT_EQ(IndexOf(main.PageInFront), row.Index);
        EXPECT_EQ(main.CurrentPage, std::min(row.Index, 5));
        for (int button = 0; button < kPageCount; ++button) {
            EXPECT_EQ(main.imgPage[static_cast<std::size_t>(button)].Picture, button == row.Index ? 1 : 0);
        }
    }
}

TEST(PageSwitch, AClickOnAPagesButtonPutsTheKeyboardIntoItsFirstAreaAndOnTheFinalPageIntoTheDeposit) {
    RunningProgram run;
    for (const Row& row : kRows) {
        frmMain(run.program).imgPage_Click(row.Index);
        if (row.Index == 6) {
            EXPECT_FALSE(run.program.main.Focus) << "nothing is typed on the copy";
        } else {
            EXPECT_EQ(run.program.main.Focus,
                      (FieldRef{PageAt(row.Index), FieldKind::txt, row.Index == 5 ? 4 : 0}))
                << row.Name;
        }
    }
    frmMain(run.program).imgPage_Click(0);
    EXPECT_EQ(run.program.main.Focus, (FieldRef{PageId::frmP1, FieldKind::txt, 0}));
}

TEST(PageSwitch, ToTheClientsCopyLeavesThePageThatCommandsActOn) {
    RunningProgram run;
    modScroll::UpdatePageButtons(run.program, 2);
    modScroll::UpdatePageButtons(run.program, 6);
    EXPECT_EQ(run.program.main.CurrentPage, 2);
    EXPECT_EQ(run.program.main.ActivePage, PageId::frmP3);
    EXPECT_EQ(run.program.main.ActivePageTyped, PageId::frmP6_1);
    EXPECT_EQ(run.program.main.PageInFront, PageId::frmP6_1);
}

TEST(PageSwitch, LeavesTheOtherPagesVisible) {
    RunningProgram run;
    for (int index = 0; index < kPageCount; ++index) {
        modScroll::UpdatePageButtons(run.program, index);
    }
    for (const PageId page : kAllPages) {
        EXPECT_TRUE(run.program.pages[page].Visible);
    }
}

TEST(PageSwitch, OffersTheLabelCommandsOnEditedPagesOnly) {
    RunningProgram run;
    for (int index = 0; index < kPageCount; ++index) {
        modScroll::UpdatePageButtons(run.program, index);
        for (const CommandId id : {CommandId::mnuEditLabelProps, CommandId::mnuEditLabelSelectAll,
                                   CommandId::mnuEditLabelDeselectAll}) {
            EXPECT_EQ(run.program.main[id].Enabled, index < 6);
        }
    }
}

TEST(PageSwitch, BeyondTheLastPageOnlyClearsTheButtons) {
    RunningProgram run;
    modScroll::UpdatePageButtons(run.program, 1);
    for (const int index : {-1, 7}) {
        modScroll::UpdatePageButtons(run.program, index);
        EXPECT_EQ(run.program.main.PageInFront, PageId::frmP2);
        for (const ImageButton& button : run.program.main.imgPage) {
            EXPECT_EQ(button.Picture, 0);
        }
    }
}

TEST(PageSwitch, BringsTheNewPageToItsTopAndScrollsItOnce) {
    RunningProgram run;
    modScroll::UpdatePageButtons(run.program, 1);
    modScroll::SetScroll(run.program, 3000);
    EXPECT_EQ(run.program.pages[PageId::frmP2].Top, -3000);
    modScroll::UpdatePageButtons(run.program, 2);
    EXPECT_EQ(run.program.main.VScroll1.Value, 0);
    EXPECT_EQ(run.program.pages[PageId::frmP3].Top, 0);
    EXPECT_EQ(run.program.pages[PageId::frmP2].Top, -3000) << "the change notice was taken for done";
    EXPECT_FALSE(run.program.main.ScrollChangeSuppressed);
}

TEST(PageSwitch, LocksFormatTextOnlyInAFormatSession) {
    RunningProgram run;
    run.program.format.FormatTextChanges[PageId::frmP2][4].FormatText = true;
    run.Area(PageId::frmP2, 4).Enabled = false;
    modScroll::UpdatePageButtons(run.program, 1);
    EXPECT_TRUE(run.Area(PageId::frmP2, 4).Enabled);
    EXPECT_FALSE(run.Area(PageId::frmP2, 4).Locked);
    run.program.format.FormatOpen = true;
    modScroll::UpdatePageButtons(run.program, 1);
    EXPECT_TRUE(run.Area(PageId::frmP2, 4).Locked);
    EXPECT_FALSE(run.Area(PageId::frmP2, 5).Locked);
}

struct Scrolling : RunningProgram {
    explicit Scrolling(float height) {
        program.main.ClientHeight = height;
        modScroll::UpdatePageButtons(program, 1);
    }
    int After(int position, int key) {
        modScroll::SetScroll(program, position);
        modScroll::PageKey(program, key);
        return program.main.VScroll1.Value;
    }
};

TEST(ScrollBar, OfAWindowWithoutHeightStillSteps) {
    Scrolling run(0);
    const ScrollBarRecord& bar = run.program.main.VScroll1;
    EXPECT_EQ(bar.LargeChange, 1);
    EXPECT_EQ(bar.SmallChange, 1);
    run.After(0, 34); // Page Down
    EXPECT_EQ(bar.LargeChange, 1);
}

TEST(ScrollBar, FitsThePageToTheWindow) {
    const Scrolling run(7001);
    const ScrollBarRecord& bar = run.program.main.VScroll1;
    EXPECT_EQ(run.program.main.ScrollClientHeight, 7001);
    EXPECT_EQ(bar.Min, 0);
    EXPECT_EQ(bar.Max, 8869) << "15840 - 7001 + 30";
    EXPECT_EQ(bar.LargeChange, 7001);
    EXPECT_EQ(bar.SmallChange, 3500) << "half of an odd height rounds down";
    EXPECT_EQ(bar.Width, 255);
    EXPECT_EQ(bar.Height, 7001);
    const Page& page = run.program.pages[PageId::frmP2];
    EXPECT_EQ(page.Width, 12240);
    EXPECT_EQ(page.Height, 15840);
    EXPECT_EQ(page.Top, 0);
}

TEST(ScrollBar, HasNoRangeInAWindowHigherThanThePage) {
    const Scrolling run(20000);
    EXPECT_EQ(run.program.main.VScroll1.Max, 0);
}

TEST(PageKeys, GoDownHalfAWindowAndUpAWholeOne) {
    constexpr int kUp = 33, kDown = 34;
    Scrolling run(7000);
    EXPECT_EQ(run.After(0, kDown), 3500);
    EXPECT_EQ(run.After(2000, kDown), 8870) << "2 x 7000 + 2000 reaches 15870";
    EXPECT_EQ(run.After(1869, kDown), 5369) << "one below the edge";
    EXPECT_EQ(run.After(1870, kDown), 8870);
    EXPECT_EQ(run.After(4000, kUp), 0);
    EXPECT_EQ(run.After(7000, kUp), 0);
    EXPECT_EQ(run.After(8000, kUp), 1000);
    EXPECT_EQ(run.program.pages[PageId::frmP2].Top, -1000);
    EXPECT_EQ(run.program.main.VScroll1.LargeChange, 7000);
}

TEST(PageKeys, GoByTheWindowsHeightAsItIsNow) {
    Scrolling run(7000);
    run.program.main.ClientHeight = 5000; // nothing has been fitted to it yet
    EXPECT_EQ(run.After(0, keys::kPageDown), 2500);
    EXPECT_EQ(run.program.main.VScroll1.LargeChange, 5000);
}

TEST(PageKeys, OthersLeaveThePositionAlone) {
    Scrolling run(7000);
    for (const int key : {13, 38, 40, 112}) {
        EXPECT_EQ(run.After(2000, key), 2000);
    }
}

TEST(Resize, FitsTheFirstPageWhicheverIsInFront) {
    Scrolling run(7000);
    modScroll::SetScroll(run.program, 2000);
    run.program.pages[PageId::frmP1].Width = 1;
    run.program.pages[PageId::frmP1].Height = 1;
    run.program.pages[PageId::frmP2].Width = 2;
    run.program.main.ClientHeight = 7920;
    modScroll::MDIForm_Resize(run.program);
    EXPECT_EQ(run.program.main.WindowHeightRatio, 0.5F);
    EXPECT_EQ(run.program.pages[PageId::frmP1].Width, 12240);
    EXPECT_EQ(run.program.pages[PageId::frmP1].Height, 15840);
    EXPECT_EQ(run.program.pages[PageId::frmP2].Width, 2);
    EXPECT_EQ(run.program.pages[PageId::frmP2].Top, -2000) << "the person stays where he was";
    EXPECT_EQ(run.program.main.VScroll1.Max, 7950);
}

TEST(Resize, AMinimisedWindowIsNotFitted) {
    Scrolling run(7000);
    run.program.main.State = WindowState::Minimised;
    run.program.main.ClientHeight = 100;
    modScroll::MDIForm_Resize(run.program);
    EXPECT_EQ(run.program.main.ScrollClientHeight, 7000);
}

TEST(Resize, AWindowOfItsOwnSizeIsCentredAndTheOthersAreNotMoved) {
    Scrolling run(7000);
    MainWindow& main = run.program.main;
    main.Width = 12000; // of a screen of 1280 by 1024 at 15 twips: 19200 by 15360
    main.Height = 9000;
    for (const WindowState state : {WindowState::Maximised, WindowState::Minimised}) {
        main.State = state;
        modScroll::MDIForm_Resize(run.program);
        EXPECT_EQ(main.Left, 0);
        EXPECT_EQ(main.Top, 0);
    }
    main.State = WindowState::Normal;
    modScroll::MDIForm_Resize(run.program);
    EXPECT_EQ(main.Left, 3600);
    EXPECT_EQ(main.Top, 3180);
}

TEST(Resize, TheInformationStripFollowsTheWidthAndRepaintsBeforeThePageMoves) {
    Scrolling run(7000);
    MainWindow& main = run.program.main;
    main.Width = 13000;
    main.ClientHeight = 7920;
    int yields = 0;
    run.surroundings.events.OnYield = [&] {
        ++yields;
        EXPECT_EQ(main.picInfoWidth, 13000);
        EXPECT_NE(main.WindowHeightRatio, 0.5F);
        if (yields == 1) {
            modScroll::MDIForm_Resize(run.program); // a further size comes meanwhile
            EXPECT_EQ(main.WindowHeightRatio, 0.5F);
            main.WindowHeightRatio = 0;
        }
    };
    modScroll::MDIForm_Resize(run.program);
    EXPECT_EQ(yields, 1);
    EXPECT_EQ(main.WindowHeightRatio, 0.5F);
    main.State = WindowState::Minimised;
    modScroll::MDIForm_Resize(run.program);
    EXPECT_EQ(yields, 1);
}

TEST(Resize, FloatingWindowsGoWithTheMainWindowOnWideScreens) {
    Scrolling run(7000);
    const Window& terms = *modWindows::Find(run.program, "frmFUT");
    const auto resize = [&](WindowState state) {
        run.program.main.State = state;
        modScroll::MDIForm_Resize(run.program);
    };
    resize(WindowState::Minimised);
    EXPECT_TRUE(terms.Minimised);
    resize(WindowState::Normal);
    EXPECT_TRUE(terms.Minimised);
    resize(WindowState::Maximised);
    EXPECT_FALSE(terms.Minimised);
    run.surroundings.screen.Pixels = 1023;
    resize(WindowState::Minimised);
    EXPECT_FALSE(terms.Minimised);
    run.surroundings.screen.Pixels = 1024;
    resize(WindowState::Minimised);
    EXPECT_TRUE(terms.Minimised);
}

TEST(Resize, AHigherWindowAtThePagesFootShowsItsFoot) {
    Scrolling run(7000);
    modScroll::SetScroll(run.program, 8870);
    ASSERT_EQ(run.program.pages[PageId::frmP2].Top, -8870);
    run.program.main.ClientHeight = 12000;
    modScroll::MDIForm_Resize(run.program);
    EXPECT_EQ(run.program.main.VScroll1.Value, 3870) << "15840 - 12000 + 30";
    EXPECT_EQ(run.program.pages[PageId::frmP2].Top, -3870);
}

TEST(PageSwitch, InTheLabelModeTheFrameGoesToTheNewPagesFirstLabelAndTheCopyEndsIt) {
    RunningProgram run;
    person::Choose(run.program, CommandId::mnuEditLabelMode);
    run.program.designer.Framed = 9;
    modScroll::UpdatePageButtons(run.program, 1);
    EXPECT_EQ(run.program.designer.Framed, 0);
    modScroll::UpdatePageButtons(run.program, 6);
    EXPECT_FALSE(run.program.designer.LabelMode);
}

TEST(PageSwitch, APageWithNothingToFrameStaysWhereItIsWhenTabIsPressedInTheLabelMode) {
    RunningProgram run;
    run.program.main.ClientHeight = 5000;
    person::ResizeWindow(run.program);
    person::Choose(run.program, CommandId::mnuEditLabelMode);
    Page& page = run.program.pages[PageId::frmP1];
    for (PageLabel& label : page.lbl) {
        label.Tag = kHide;
    }
    page.pic.Visible = false;
    modScroll::SetScroll(run.program, 9000);
    static_cast<void>(modInput::LabelKeyDown(run.program, keys::kTab, 0));
    EXPECT_FALSE(run.program.designer.Framed);
    EXPECT_EQ(run.program.main.VScroll1.Value, 9000);
}

} // namespace
