#include "program/program.h"
#include "program/windows.h"
#include "shell/frm_main.h"
#include "shell/tool_buttons.h"
#include "support/running_program.h"

#include <gtest/gtest.h>

namespace {

struct Strip : RunningProgram {
    Strip() {
        ImageButton& button = program.main.imgNew;
        button.Left = 1000;
        button.Top = 100;
        button.Width = 510;
        button.Height = 480;
    }
    MainWindow& Main() { return program.main; }
};

void ExpectFrame(const MainWindow& main, std::size_t frame, bool visible) {
    for (const auto* lines : {&main.lneLeft, &main.lneRight, &main.lneTop, &main.lneBottom}) {
        EXPECT_EQ((*lines)[frame].Visible, visible);
    }
}

TEST(ToolButtons, AHoveredOneHasARaisedFrameThirtyOutside) {
    Strip run;
    modToolButtons::HoverToolButton(run.program, run.Main().imgNew);
    EXPECT_EQ(run.Main().lneLeft[0], (FrameLine{970, 70, 970, 610, true}));
    EXPECT_EQ(run.Main().lneRight[0], (FrameLine{1540, 70, 1540, 610, true}));
    EXPECT_EQ(run.Main().lneTop[0], (FrameLine{970, 70, 1270, 70, true})) << "300 long, whatever the width";
    EXPECT_EQ(run.Main().lneBottom[0], (FrameLine{970, 610, 1270, 610, true}));
    ExpectFrame(run.Main(), 1, false);
}

TEST(ToolButtons, APressedOneHasASunkenFrameUntilItIsLetGo) {
    Strip run;
    modToolButtons::HoverToolButton(run.program, run.Main().imgNew);
    modToolButtons::PressToolButton(run.program, run.Main().imgNew);
    ExpectFrame(run.Main(), 0, false);
    ExpectFrame(run.Main(), 1, true);
    EXPECT_EQ(run.Main().lneTop[1], (FrameLine{970, 70, 1270, 70, true}));
    modToolButtons::HoverToolButton(run.program, run.Main().imgOpen);
    ExpectFrame(run.Main(), 0, false);
    ExpectFrame(run.Main(), 1, true);
    modToolButtons::ReleaseToolButton(run.program);
    ExpectFrame(run.Main(), 1, false);
    EXPECT_FALSE(run.Main().ToolButtonPressed);
}

TEST(ToolButtons, TheRaisedFrameGoesWithThePointer) {
    Strip run;
    modToolButtons::HoverToolButton(run.program, run.Main().imgNew);
    modToolButtons::LeaveToolButton(run.program);
    ExpectFrame(run.Main(), 0, false);
}

TEST(ToolButtons, NewShowsItsPressedLookAndStartsNothing) {
    Strip run;
    run.Area(PageId::frmP1, 2).Text = "Jane Roe";
    frmMain(run.program).imgNew_MouseDown();
    EXPECT_TRUE(run.Main().ToolButtonPressed);
    ExpectFrame(run.Main(), 1, true);
    EXPECT_TRUE(run.surroundings.questions.Shown.empty());
    EXPECT_EQ(run.TextOf(PageId::frmP1, 2), "Jane Roe");
}

TEST(ToolButtons, OnlyTheOneUnderThePointerHasTheFrame) {
    Strip run;
    using modToolButtons::ButtonFrame;
    const auto frame = [&](const ImageButton& button) {
        return modToolButtons::FrameOf(run.program, button);
    };
    EXPECT_EQ(frame(run.Main().imgNew), ButtonFrame::None);
    modToolButtons::HoverToolButton(run.program, run.Main().imgNew);
    EXPECT_EQ(frame(run.Main().imgNew), ButtonFrame::Raised);
    EXPECT_EQ(frame(run.Main().imgOpen), ButtonFrame::None);
    modToolButtons::PressToolButton(run.program, run.Main().imgNew);
    EXPECT_EQ(frame(run.Main().imgNew), ButtonFrame::Sunken);
    modToolButtons::ClearButtonBorders(run.program);
    EXPECT_EQ(frame(run.Main().imgNew), ButtonFrame::None);
}

TEST(ToolButtons, EveryImageHasThePointerOfTheFirstPageButton) {
    Strip run;
    MainWindow& main = run.Main();
    for (const ImageButton* image :
         {&main.imgNew, &main.imgOpen, &main.imgSave, &main.imgSaveAs, &main.imgPrint, &main.imgSearch,
          &main.imgSpellCheck, &main.imgFootNotes, &main.imgTime, &main.imgPage[6]}) {
        EXPECT_EQ(image->Pointer, MousePointer::Hand);
    }
    main.imgPage[0].Pointer = MousePointer::Arrow;
    modToolButtons::LoadPageButtonCursors(run.program);
    EXPECT_EQ(main.imgTime.Pointer, MousePointer::Arrow);
    EXPECT_EQ(main.imgPage[6].Pointer, MousePointer::Arrow);
}

struct StandingCalculator : Window {
    [[nodiscard]] std::string_view Name() const override { return "frmCalc"; }
    [[nodiscard]] Modality Mode() const override { return Modality::Modeless; }
    void Form_Cancel(Program& program) override { modWindows::Close(program, *this); }
};

TEST(TextAreaLine, ADoubleClickTellsWhereTheCalculatorStands) {
    Strip run;
    frmMain(run.program).lblTextNum_DblClick();
    EXPECT_EQ(run.Main().lblTextNum.Caption, "X= 0 Y= 0");
    Window& calculator = modWindows::Show(run.program, std::make_unique<StandingCalculator>());
    calculator.Left = 1530;
    calculator.Top = 262.5;
    frmMain(run.program).lblTextNum_DblClick();
    EXPECT_EQ(run.Main().lblTextNum.Caption, "X= 1530 Y= 262.5");
}

TEST(FolderLine, ShowsItselfInItsTip) {
    Strip run;
    run.Main().lblDir.Caption = "Current Folder = /home/acme/";
    frmMain(run.program).lblDir_MouseMove();
    EXPECT_EQ(run.Main().lblDir.ToolTipText, "Current Folder = /home/acme/");
}

TEST(ToolButtons, OpenWhatTheirCommandsOpen) {
    const auto opens = [](void (frmMain::*click)(), std::string_view window) {
        RunningProgram run;
        (frmMain(run.program).*click)();
        return modWindows::Find(run.program, window) != nullptr;
    };
    EXPECT_TRUE(opens(&frmMain::imgOpen_MouseDown, "frmFile"));
    EXPECT_TRUE(opens(&frmMain::imgSearch_Click, "frmSearch"));
    EXPECT_TRUE(opens(&frmMain::cmdTaxRate_Click, "frmTax"));
}

TEST(ToolButtons, SaveAndSaveAsSaveTheProposal) {
    RunningProgram run;
    TypeJaneRoe(run);
    run.surroundings.questions.Expect("File was saved as Jane Roe.hef");
    frmMain(run.program).imgSave_Click();
    EXPECT_TRUE(run.folder.Has("Proposals/Jane Roe.hef"));
    run.surroundings.questions.ExpectInput("Saving File As...", "Second");
    run.surroundings.questions.Expect("File was saved as Second.hef");
    frmMain(run.program).imgSaveAs_Click();
    EXPECT_TRUE(run.folder.Has("Proposals/Second.hef"));
    run.surroundings.questions.Expect("SpellCheck Complete");
    frmMain(run.program).imgSpellCheck_Click();
    EXPECT_FALSE(run.surroundings.words.Word.Verbs.empty());
}

TEST(ToolButtons, AfterAPressThatWasLeftTheNextOneIsRaisedAlone) {
    Strip run;
    modToolButtons::PressToolButton(run.program, run.Main().imgNew);
    modToolButtons::LeaveToolButton(run.program);
    modToolButtons::HoverToolButton(run.program, run.Main().imgOpen);
    ExpectFrame(run.Main(), 0, true);
    ExpectFrame(run.Main(), 1, false);
}

TEST(ToolButtons, ThoseThatStartSomethingLookPressedMeanwhile) {
    const auto looksPressed = [](void (frmMain::*click)(), ImageButton MainWindow::*button) {
        RunningProgram run;
        ImageButton& image = run.program.main.*button;
        image.Left = 2000;
        (frmMain(run.program).*click)();
        return modToolButtons::FrameOf(run.program, image) == modToolButtons::ButtonFrame::Sunken;
    };
    EXPECT_TRUE(looksPressed(&frmMain::imgOpen_MouseDown, &MainWindow::imgOpen));
    EXPECT_TRUE(looksPressed(&frmMain::imgFootNotes_MouseDown, &MainWindow::imgFootNotes));
    EXPECT_TRUE(looksPressed(&frmMain::imgPrint_Click, &MainWindow::imgPrint));
}

TEST(ToolButtons, FootnotesOpensThoseOfTheProposal) {
    RunningProgram run;
    TypeJaneRoe(run);
    run.surroundings.questions.Expect("File was saved as Jane Roe.hef");
    frmMain(run.program).imgSave_Click();
    frmMain(run.program).imgFootNotes_MouseDown();
    EXPECT_NE(modWindows::Find(run.program, "frmNotes"), nullptr);
}

TEST(PageButtons, TheClientsCopyTakesTheKeyboardFromTheAreas) {
    RunningProgram run;
    ASSERT_TRUE(run.program.main.Focus);
    frmMain(run.program).imgPage_Click(6);
    EXPECT_FALSE(run.program.main.Focus);
}

TEST(PageButtons, BehindTheLastOneThereIsNoPageToGoTo) {
    RunningProgram run;
    frmMain(run.program).imgPage_Click(1);
    const FieldRef first{PageId::frmP2, FieldKind::txt, 0};
    ASSERT_EQ(run.program.main.Focus, first);
    for (const int index : {-1, 7}) {
        frmMain(run.program).imgPage_Click(index);
        EXPECT_EQ(run.program.main.PageInFront, PageId::frmP2) << index;
        EXPECT_EQ(run.program.main.Focus, first) << index;
    }
}

TEST(ToolButtons, WithoutABorderNoneIsRaisedOrSunken) {
    Strip run;
    modToolButtons::HoverToolButton(run.program, run.Main().imgNew);
    modToolButtons::ClearButtonBorders(run.program);
    ExpectFrame(run.Main(), 0, false);
    modToolButtons::PressToolButton(run.program, run.Main().imgNew);
    modToolButtons::ClearButtonBorders(run.program);
    ExpectFrame(run.Main(), 1, false);
}

} // namespace
