#include "format/label_keys.h"

#include "format/frm_label_props.h"
#include "format/label_designer.h"
#include "format/label_selection.h"
#include "program/keys.h"
#include "program/windows.h"
#include "proposal/reset.h"
#include "support/person.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

// Labels by the keyboard alone.

namespace {

constexpr int kMenuKey = 93;
constexpr int kEscape = 27;

/// A second document, with the keyboard on the labels.
struct Keyboard : RunningProgram {
    Keyboard() {
        static_cast<void>(modReset::StartNewFile(program));
        person::Choose(program, CommandId::mnuEditLabelMode);
    }
    modLabelKeys::Menu Press(int key, int shift = 0) { return modLabelKeys::KeyDown(program, key, shift); }
    /// Tab brings the frame to a label of the first page.
    void Frame(int label) {
        for (int tab = 0; tab < label; ++tab) {
            Press(keys::kTab);
        }
        ASSERT_EQ(program.designer.Framed, label);
    }
    void ShowALogo() {
        program.settings.LogoVisible = true;
        program.settings.LogoFile = "/srv/logo.png";
        program.pages[PageId::frmP1].pic.Picture = {PictureRef::Source::File, "/srv/logo.png"};
        program.pages[PageId::frmP1].pic.Visible = true;
    }
    frmLabelProps* Window() {
        return dynamic_cast<frmLabelProps*>(modWindows::Find(program, "frmLabelProps"));
    }
};

TEST(LabelKeys, AnArrowMovesTheFramedLabelByOneStep) {
    Keyboard run;
    run.Frame(9);
    const PageLabel before = run.Label(PageId::frmP1, 9);
    run.Press(keys::kDown);
    EXPECT_EQ(run.Label(PageId::frmP1, 9).Top, before.Top + 180);
    EXPECT_EQ(run.Label(PageId::frmP1, 9).Left, before.Left);
    run.Press(keys::kLeft);
    EXPECT_EQ(run.Label(PageId::frmP1, 9).Left, before.Left - 180);
}

TEST(LabelKeys, EnterOpensTheWindowOfTheFramedLabel) {
    Keyboard run;
    run.Frame(9);
    run.Press(keys::kEnter);
    ASSERT_NE(run.Window(), nullptr);
    EXPECT_EQ(run.Window()->txtCaption.Text, "Event Date");
}

TEST(LabelKeys, TheMenuKeyAndTheBlankTakeTheFramedLabelForTheCommands) {
    for (const int key : {kMenuKey, keys::kBlank}) {
        Keyboard run;
        run.Frame(9);
        run.Press(key);
        EXPECT_EQ(modDesigner::IsSelected(run.Label(PageId::frmP1, 9)), key == keys::kBlank);
        person::Choose(run.program, CommandId::mnuEditLabelProps);
        ASSERT_NE(run.Window(), nullptr);
        EXPECT_EQ(run.Window()->txtCaption.Text, "Event Date");
    }
}

TEST(LabelKeys, AnotherPageBeginsWithItsFirstLabel) {
    for (const int label : {0, 9}) {
        Keyboard run;
        run.Frame(label);
        person::TurnTo(run.program, 1);
        EXPECT_EQ(run.program.designer.Framed, 0);
    }
}

TEST(LabelKeys, TheClientsCopyHasNoLabelsToFrame) {
    Keyboard run;
    person::TurnTo(run.program, 6);
    EXPECT_FALSE(run.program.designer.LabelMode);
    EXPECT_FALSE(run.program.designer.Framed);
}

TEST(LabelKeys, APageOnWhichNoLabelShowsHasNoFrame) {
    Keyboard run;
    for (PageLabel& label : run.program.pages[PageId::frmP1].lbl) {
        label.Tag = kHide;
    }
    run.Press(keys::kTab);
    EXPECT_FALSE(run.program.designer.Framed);
    EXPECT_EQ(run.Press(kMenuKey), modLabelKeys::Menu::None);
}

TEST(LabelKeys, TheCommandIsCheckedWhileTheyHoldAndTheFieldGetsTheKeyboardBack) {
    RunningProgram run;
    const FieldRef field{PageId::frmP1, FieldKind::txt, 8};
    Typist(run.program).Click(field);
    person::Choose(run.program, CommandId::mnuEditLabelMode);
    EXPECT_TRUE(run.Main()[CommandId::mnuEditLabelMode].Checked);
    EXPECT_FALSE(run.program.main.Focus);
    modLabelKeys::KeyDown(run.program, kEscape, 0);
    EXPECT_FALSE(run.Main()[CommandId::mnuEditLabelMode].Checked);
    EXPECT_EQ(run.program.main.Focus, field);
}

TEST(LabelKeys, TheCommandChosenAgainEndsThem) {
    Keyboard run;
    ASSERT_TRUE(run.program.designer.LabelMode);
    person::Choose(run.program, CommandId::mnuEditLabelMode);
    EXPECT_FALSE(run.program.designer.LabelMode);
    EXPECT_EQ(run.program.main.Focus, (FieldRef{PageId::frmP1, FieldKind::txt, 0}));
}

TEST(LabelKeys, ALogoThatDoesNotShowIsPassedOver) {
    Keyboard run;
    ASSERT_FALSE(run.program.pages[PageId::frmP1].pic.Visible);
    run.Press(keys::kTab, keys::kShiftState);
    EXPECT_EQ(run.program.designer.Framed, 33) << "the title is the last label";
}

TEST(LabelKeys, TheLogoMovesByOneStepAndTellsItsPlace) {
    Keyboard run;
    run.ShowALogo();
    run.Press(keys::kTab, keys::kShiftState);
    ASSERT_EQ(run.program.designer.Framed, kLogoInFrame);
    PagePicture& logo = run.program.pages[PageId::frmP1].pic;
    logo.Left = 720;
    logo.Top = 540;
    run.Press(keys::kDown);
    EXPECT_EQ(logo.Left, 720);
    EXPECT_EQ(logo.Top, 720);
    run.Press(keys::kRight);
    run.Press(keys::kLeft);
    EXPECT_EQ(logo.Left, 720);
    run.Press(keys::kBlank);
    EXPECT_EQ(logo.ToolTipText, " Left = 720, Top = 720");
    EXPECT_EQ(run.Press(kMenuKey), modLabelKeys::Menu::Logo);
}

} // namespace
