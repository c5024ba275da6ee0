#include "format/label_designer.h"
#include "format/label_selection.h"

#include "format/format_commands.h"
#include "format/frm_label_props.h"
#include "format/frm_rgb.h"
#include "format/frm_snap.h"
#include "format/frm_text_props.h"
#include "format/frm_title.h"
#include "format/grid.h"
#include "format/label_commit.h"
#include "format/label_keys.h"
#include "format/logo.h"
#include "pages/page_geometry.h"
#include "program/keys.h"
#include "program/windows.h"
#include "proposal/lifecycle.h"
#include "proposal/property_file.h"
#include "proposal/proposal_open.h"
#include "proposal/proposal_save.h"
#include "proposal/reset.h"
#include "shell/closing.h"
#include "shell/input.h"
#include "shell/page_switch.h"
#include "support/person.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

namespace {

using namespace modDesigner;

/// A second document: in the very first one the tables know every label's place.
struct Designing : RunningProgram {
    Designing() { static_cast<void>(modReset::StartNewFile(program)); }
    void Press(int index, PageId page = PageId::frmP1, int button = kLeftButton) {
        lbl_MouseDown(program, page, index, button, 10, 10);
    }
    void Click(int index, PageId page = PageId::frmP1) {
        Press(index, page);
        lbl_MouseUp(program, page, index);
    }
    void Drag(int index, float across, float down, PageId page = PageId::frmP1) {
        Press(index, page);
        static_cast<void>(lbl_MouseMove(program, page, index, 10 + across, 10 + down));
        lbl_MouseUp(program, page, index);
    }
    void DoubleClick(int index, PageId page = PageId::frmP1) {
        Click(index, page);
        lbl_DblClick(program, page, index);
        lbl_MouseUp(program, page, index);
    }
    LabelChangeRecord& Prop(int index, PageId page = PageId::frmP1) {
        return program.format.PropLabelChanges
            .Each[static_cast<std::size_t>(IndexOf(page))][static_cast<std::size_t>(index)];
    }
    LabelChangeRecord& Format(int index, PageId page = PageId::frmP1) {
        return program.format.FormatLabelChanges
            .Each[static_cast<std::size_t>(IndexOf(page))][static_cast<std::size_t>(index)];
    }
    frmLabelProps& Props() {
        person::Choose(program, CommandId::mnuEditLabelProps);
        return dynamic_cast<frmLabelProps&>(*modWindows::Find(program, "frmLabelProps"));
    }
    template <typename Form> Form& Open(CommandId id, std::string_view name) {
        person::Choose(program, id);
        return dynamic_cast<Form&>(*modWindows::Find(program, name));
    }
};

TEST(LabelDrag, GoesByOneStepAnEventOrNotAtAll) {
    Designing run;
    run.program.format.SnapTwips = 360;
    run.Drag(9, 100, 359);
    EXPECT_EQ(run.Label(PageId::frmP1, 9).Left, 1080);
    EXPECT_EQ(run.Label(PageId::frmP1, 9).Top, 4140);
    run.Drag(9, 360, -5000);
    EXPECT_EQ(run.Label(PageId::frmP1, 9).Left, 1440);
    EXPECT_EQ(run.Label(PageId::frmP1, 9).Top, 3780) << "however far the pointer went";
    run.Drag(9, -360, 0);
    EXPECT_EQ(run.Label(PageId::frmP1, 9).Left, 1080);
}

TEST(LabelDrag, AMereClickBringsALabelIntoTheTables) {
    Designing run;
    run.Click(9);
    EXPECT_TRUE(run.Prop(9).Changed);
    EXPECT_TRUE(run.Format(9).Changed);
    EXPECT_EQ(run.Prop(9).Caption, "Event Date");
    EXPECT_EQ(run.Prop(9).FontName, "Times New Roman");
    EXPECT_TRUE(modFile::PropertiesChanged(run.program));
    EXPECT_EQ(run.Label(PageId::frmP1, 9).ToolTipText, "Left = 0.75, Top = 2.875");
}

TEST(LabelDrag, AClickOnTheTitleLeavesTheClientsOneCentred) {
    Designing run;
    const float left = run.Label(PageId::frmP6_1, 64).Left;
    EXPECT_LT(left, run.Label(PageId::frmP6, 64).Left) << "its words are longer";
    run.Click(64, PageId::frmP6);
    EXPECT_EQ(run.Label(PageId::frmP6_1, 64).Left, left);
    run.Drag(64, 180, 0, PageId::frmP6);
    EXPECT_EQ(run.Label(PageId::frmP6_1, 64).Left, run.Label(PageId::frmP6, 64).Left);
}

TEST(LabelDrag, InTheFirstDocumentAClickWithoutAMoveDoesNotCount) {
    RunningProgram run;
    lbl_MouseDown(run.program, PageId::frmP1, 9, kLeftButton, 0, 0);
    lbl_MouseUp(run.program, PageId::frmP1, 9);
    EXPECT_FALSE(run.program.format.PropLabelChanges[PageId::frmP1][9].Changed);
}

TEST(LabelDrag, OfOneOfAGroupMovesThatOneAlone) {
    Designing run;
    run.DoubleClick(9);
    run.DoubleClick(10);
    run.Drag(9, 180, 0);
    EXPECT_EQ(run.Label(PageId::frmP1, 9).Left, 1260);
    EXPECT_EQ(run.Label(PageId::frmP1, 10).Left, 10080);
}

TEST(LabelDrag, OnTheFinalPageTheCopyFollowsAtTheRelease) {
    Designing run;
    run.Press(49, PageId::frmP6);
    static_cast<void>(lbl_MouseMove(run.program, PageId::frmP6, 49, 190, 10));
    EXPECT_EQ(run.Label(PageId::frmP6_1, 49).Left, 720);
    lbl_MouseUp(run.program, PageId::frmP6, 49);
    EXPECT_EQ(run.Label(PageId::frmP6_1, 49).Left, 900);
    run.Drag(49, 180, 0, PageId::frmP6_1);
    EXPECT_EQ(run.Label(PageId::frmP6_1, 49).Left, 900) << "the copy has no designer";
}

TEST(LabelDrag, TheRightButtonHoldsNothingButEntersTheTables) {
    Designing run;
    run.Press(9, PageId::frmP1, kRightButton);
    EXPECT_FALSE(lbl_MouseMove(run.program, PageId::frmP1, 9, 900, 10));
    lbl_MouseUp(run.program, PageId::frmP1, 9);
    EXPECT_EQ(run.Label(PageId::frmP1, 9).Left, 1080);
    EXPECT_TRUE(run.Prop(9).Changed);
}

TEST(LabelSelection, ADoubleClickSelectsAndASecondOneTakesItBack) {
    Designing run;
    run.DoubleClick(9);
    EXPECT_EQ(run.Label(PageId::frmP1, 9).BackColor, 0xFFFF00U);
    EXPECT_EQ(run.Label(PageId::frmP1, 9).BackStyle, 1);
    EXPECT_FALSE(MultipleLabelsSelected(run.program));
    run.DoubleClick(10);
    EXPECT_TRUE(MultipleLabelsSelected(run.program));
    run.DoubleClick(10);
    EXPECT_FALSE(MultipleLabelsSelected(run.program));
    EXPECT_EQ(run.Label(PageId::frmP1, 10).BackColor, 0x8000000FU);
    EXPECT_EQ(modWindows::Find(run.program, "frmLabelProps"), nullptr);
}

TEST(LabelWindow, AsksForAClickFirst) {
    Designing run;
    run.surroundings.questions.Expect("Please click the label first.");
    person::Choose(run.program, CommandId::mnuEditLabelProps);
    run.Click(9);
    person::TurnTo(run.program, 1);
    run.surroundings.questions.Expect("Please click the label first.");
    person::Choose(run.program, CommandId::mnuEditLabelProps);
}

TEST(LabelWindow, ChangesTheLabelAtOnceAndOkMakesItLast) {
    Designing run;
    run.Click(9);
    frmLabelProps& window = run.Props();
    EXPECT_EQ(window.txtCaption.Text, "Event Date");
    EXPECT_EQ(window.lblFontName.Caption, "Font = Times New Roman");
    EXPECT_EQ(window.lblSize.Caption, "Label Font Size = 9.75");
    window.txtCaption_Change(run.program, "Day");
    window.cmdSize_Click(run.program, 4);
    window.cmdColor_Click(run.program, 1);
    window.chkUnderline_Click(run.program);
    window.lstFont_Click(run.program, 0);
    const PageLabel& label = run.Label(PageId::frmP1, 9);
    EXPECT_EQ(label.Caption, "Day");
    EXPECT_EQ(label.FontSize, 14);
    EXPECT_EQ(label.ForeColor, 0x0080FFU);
    EXPECT_TRUE(label.FontUnderline);
    EXPECT_EQ(label.FontName, "Arial");
    window.cmdOK_Click(run.program);
    EXPECT_EQ(run.Prop(9).Caption, "Day");
    EXPECT_EQ(run.Format(9).FontSize, 14);
    EXPECT_FALSE(run.program.designer.LabelPropsOpen);
}

TEST(LabelWindow, CancelBringsTheLookBackAndLeavesThePlace) {
    Designing run;
    run.Click(9);
    frmLabelProps& window = run.Props();
    window.txtCaption_Change(run.program, "Day");
    window.chkBold_Click(run.program);
    run.Label(PageId::frmP1, 9).Left = 5000;
    window.cmdCancel_Click(run.program);
    EXPECT_EQ(run.Label(PageId::frmP1, 9).Caption, "Event Date");
    EXPECT_TRUE(run.Label(PageId::frmP1, 9).FontBold);
    EXPECT_EQ(run.Label(PageId::frmP1, 9).Left, 5000);
}

TEST(LabelWindow, AGroupTakesTheFieldOnTheCurrentPageAloneAndSignsKeepTheirLooks) {
    Designing run;
    run.DoubleClick(3, PageId::frmP3);
    run.Label(PageId::frmP2, 5).FontName = "Times New Roman";
    run.DoubleClick(5, PageId::frmP2); // a currency sign
    run.DoubleClick(34, PageId::frmP2);
    frmLabelProps& window = run.Props();
    window.lstFont_Click(run.program, 0);
    EXPECT_EQ(run.Label(PageId::frmP2, 34).FontName, "Arial");
    EXPECT_EQ(run.Label(PageId::frmP2, 5).FontName, "Times New Roman");
    EXPECT_EQ(run.Label(PageId::frmP3, 3).FontName, "Times New Roman");
    window.txtCaption_Change(run.program, "all the same");
    EXPECT_EQ(run.Label(PageId::frmP2, 34).Caption, "Page 2 of 6");
    window.cmdOK_Click(run.program);
    EXPECT_EQ(run.Prop(34, PageId::frmP2).FontName, "Arial");
    EXPECT_EQ(run.Prop(34, PageId::frmP2).Caption, "Page 2 of 6");
    EXPECT_EQ(run.Prop(5, PageId::frmP2).FontName, "Times New Roman");
    EXPECT_FALSE(IsSelected(run.Label(PageId::frmP2, 5)));
    EXPECT_TRUE(IsSelected(run.Label(PageId::frmP3, 3)));
}

TEST(LabelWindow, CancelOfAGroupChangeKeepsTheChangesAndDropsTheFlags) {
    Designing run;
    run.DoubleClick(9);
    run.DoubleClick(10);
    frmLabelProps& window = run.Props();
    window.cmdSize_Click(run.program, 8);
    EXPECT_TRUE(run.program.designer.Changed.FontSize);
    window.cmdCancel_Click(run.program);
    EXPECT_EQ(run.Label(PageId::frmP1, 9).FontSize, 24);
    EXPECT_EQ(run.Label(PageId::frmP1, 10).FontSize, 24);
    EXPECT_TRUE(IsSelected(run.Label(PageId::frmP1, 9)));
    EXPECT_EQ(run.program.designer.Changed, GroupChanges{});
}

TEST(LabelWindow, SelectAllTakesEveryLabelButTheSignsAndOpens) {
    Designing run;
    person::Choose(run.program, CommandId::mnuEditLabelSelectAll);
    EXPECT_NE(modWindows::Find(run.program, "frmLabelProps"), nullptr);
    EXPECT_EQ(run.program.designer.ColorOwner, "Label");
    auto& window = dynamic_cast<frmLabelProps&>(*modWindows::Find(run.program, "frmLabelProps"));
    EXPECT_EQ(window.lblSize.Caption, "Label Font Size = (several)") << "no size that is none of theirs";
    EXPECT_EQ(window.lblFontName.Caption, "Font = Times New Roman");
    window.cmdSize_Click(run.program, 3);
    EXPECT_EQ(window.lblSize.Caption, "Label Font Size = 12");
    EXPECT_TRUE(IsSelected(run.Label(PageId::frmP1, 0)));
    EXPECT_FALSE(IsSelected(run.Label(PageId::frmP1, 21)));
    person::Choose(run.program, CommandId::mnuEditLabelDeselectAll);
    EXPECT_FALSE(IsSelected(run.Label(PageId::frmP1, 0)));
}

TEST(LabelWindow, APageSwitchMakesItsChangesLast) {
    Designing run;
    run.Click(9);
    run.Props().txtCaption_Change(run.program, "Day");
    person::TurnTo(run.program, 1);
    modWindows::Sweep(run.program);
    EXPECT_EQ(modWindows::Find(run.program, "frmLabelProps"), nullptr);
    EXPECT_EQ(run.Prop(9).Caption, "Day");
    EXPECT_EQ(run.Prop(9, PageId::frmP2).Caption, "");
}

TEST(LabelWindow, ANewProposalAsksForWhatWasTypedInIt) {
    Designing run;
    run.Click(9);
    run.Props().txtCaption_Change(run.program, "Day");
    run.surroundings.questions.Expect("Some text has been changed.", Answer::Cancel);
    person::Choose(run.program, CommandId::mnuFileNew);
    EXPECT_EQ(run.Prop(9).Caption, "Day");
    EXPECT_EQ(run.Label(PageId::frmP1, 9).Caption, "Day");
}

TEST(LabelWindow, TheEndOfTheRunAsksForWhatWasTypedInItAndClosesAnUntouchedOneAsCancel) {
    Designing run;
    run.Click(9);
    run.program.document.SavedStateStale = false;
    for (auto& page : run.program.format.LabelSavedState) {
        for (LabelChangeRecord& label : page) {
            label.Changed = false;
        }
    }
    run.Props();
    EXPECT_TRUE(modClosing::MDIForm_QueryUnload(run.program)) << "nothing was typed";
    EXPECT_TRUE(run.program.designer.LabelPropsOpen);
    dynamic_cast<frmLabelProps&>(*modWindows::Find(run.program, "frmLabelProps"))
        .txtCaption_Change(run.program, "Day");
    run.surroundings.questions.Expect("The file has been changed.", Answer::Cancel);
    EXPECT_FALSE(modClosing::MDIForm_QueryUnload(run.program));
    EXPECT_EQ(run.Prop(9).Caption, "Day");
    modWindows::Sweep(run.program);
    run.Click(10);
    run.Props();
    run.surroundings.questions.Expect("The file has been changed.", Answer::No);
    person::Choose(run.program, CommandId::mnuFileExit);
    EXPECT_TRUE(run.program.main.Closing);
    EXPECT_EQ(run.Label(PageId::frmP1, 10).Caption, "Event Time");
}

TEST(LabelWindow, AnotherLabelPressedMakesTheFirstOnesWordsLast) {
    Designing run;
    run.Click(9);
    frmLabelProps& window = run.Props();
    window.txtCaption_Change(run.program, "Day");
    run.Click(10);
    EXPECT_EQ(window.txtCaption.Text, "Event Time");
    window.cmdCancel_Click(run.program);
    EXPECT_EQ(run.Prop(9).Caption, "Day");
    EXPECT_EQ(run.Label(PageId::frmP1, 9).Caption, "Day");
}

TEST(LabelWindow, TheSameLabelOfAnotherPageIsAnotherOne) {
    Designing run;
    run.Click(34, PageId::frmP2);
    frmLabelProps& window = run.Props();
    window.txtCaption_Change(run.program, "Sheet Two");
    const std::string other = run.Label(PageId::frmP3, 34).Caption;
    run.Click(34, PageId::frmP3);
    EXPECT_EQ(window.txtCaption.Text, other);
    window.cmdCancel_Click(run.program);
    EXPECT_EQ(run.Label(PageId::frmP2, 34).Caption, "Sheet Two");
    EXPECT_EQ(run.Prop(34, PageId::frmP2).Caption, "Sheet Two");
    EXPECT_EQ(run.Label(PageId::frmP3, 34).Caption, other);
}

TEST(LabelWindow, WordsOfATitleAreChangedElsewhere) {
    Designing run;
    run.Click(33);
    frmLabelProps& window = run.Props();
    EXPECT_FALSE(window.txtCaption.Enabled);
    EXPECT_NE(window.lblNotHere.Caption, "");
}

TEST(LabelWindow, WhiteTellsItselfBlack) {
    Designing run;
    run.Click(9);
    frmLabelProps& window = run.Props();
    EXPECT_EQ(window.cmdColor[0].ToolTipText, "Make Label Red");
    EXPECT_EQ(window.cmdColor[7].ToolTipText, "Make Label Black");
    EXPECT_EQ(window.cmdColor[8].ToolTipText, "Make Label Black");
    EXPECT_EQ(window.cmdColor[8].BackColor, 0xFFFFFFU);
    window.txtCaption_Enter(run.program);
    EXPECT_EQ(window.FocusNext, "cmdSize(0)");
}

TEST(LabelKeys, DoWhatTheMouseDoes) {
    Designing keys;
    Designing mouse;
    person::Choose(keys.program, CommandId::mnuEditLabelMode);
    EXPECT_FALSE(keys.program.main.Focus);
    EXPECT_EQ(keys.program.designer.Framed, 0);
    for (int label = 0; label < 9; ++label) {
        modLabelKeys::KeyDown(keys.program, keys::kTab, 0);
    }
    EXPECT_EQ(keys.program.designer.Framed, 9);
    EXPECT_FALSE(keys.Prop(9).Changed) << "the frame alone presses nothing";
    for (const int key : {keys::kRight, keys::kDown, keys::kLeft, keys::kUp, keys::kRight, keys::kBlank}) {
        modLabelKeys::KeyDown(keys.program, key, 0);
    }
    const auto step = [&](float across, float down) {
        lbl_MouseDown(mouse.program, PageId::frmP1, 9, kLeftButton, 0, 0);
        static_cast<void>(lbl_MouseMove(mouse.program, PageId::frmP1, 9, across, down));
        lbl_MouseUp(mouse.program, PageId::frmP1, 9);
    };
    step(180, 0);
    step(0, 180);
    step(-180, 0);
    step(0, -180);
    step(180, 0);
    mouse.DoubleClick(9);
    EXPECT_EQ(keys.program.format.PropLabelChanges, mouse.program.format.PropLabelChanges);
    EXPECT_EQ(keys.program.format.FormatLabelChanges, mouse.program.format.FormatLabelChanges);
    EXPECT_EQ(keys.program.format.LabelSavedState, mouse.program.format.LabelSavedState);
    EXPECT_EQ(keys.program.pages[PageId::frmP1].lbl, mouse.program.pages[PageId::frmP1].lbl);
    EXPECT_EQ(modLabelKeys::KeyDown(keys.program, 93, 0), modLabelKeys::Menu::Label);
    modLabelKeys::KeyDown(keys.program, keys::kEnter, 0);
    EXPECT_NE(modWindows::Find(keys.program, "frmLabelProps"), nullptr);
    modLabelKeys::KeyDown(keys.program, keys::kTab, keys::kShiftState);
    EXPECT_EQ(keys.program.designer.Framed, 8);
    modLabelKeys::KeyDown(keys.program, 27, 0);
    EXPECT_FALSE(keys.program.designer.LabelMode);
    EXPECT_TRUE(keys.program.main.Focus);
}

TEST(LabelKeys, ThePageScrollsToTheFrame) {
    Designing run;
    constexpr float kWindow = 9750; // as high as on a small screen
    run.program.main.ClientHeight = kWindow;
    modScroll::UpdatePageButtons(run.program, 0);
    person::Choose(run.program, CommandId::mnuEditLabelMode);
    const auto& labels = run.program.pages[PageId::frmP1].lbl;
    bool scrolled = false;
    do {
        static_cast<void>(modInput::LabelKeyDown(run.program, keys::kTab, 0));
        const int framed = run.program.designer.Framed.value_or(0);
        const auto shown = static_cast<float>(run.program.main.VScroll1.Value);
        const float top = labels[static_cast<std::size_t>(framed)].Top;
        EXPECT_GE(top, shown) << framed;
        EXPECT_LT(top, shown + kWindow) << framed;
        scrolled = scrolled || shown > 0;
    } while (run.program.designer.Framed.value_or(0) != 0);
    EXPECT_TRUE(scrolled) << "the page is higher than the window";
    EXPECT_LT(run.program.main.VScroll1.Value, labels[0].Top) << "round, and back at its first label";
}

TEST(LabelKeys, TheLogoComesLastOnTheFirstPage) {
    Designing run;
    run.program.settings.LogoVisible = true;
    run.program.settings.LogoFile = "/srv/logo.png";
    run.program.pages[PageId::frmP1].pic.Picture = {PictureRef::Source::File, "/srv/logo.png"};
    run.program.pages[PageId::frmP1].pic.Visible = true;
    person::Choose(run.program, CommandId::mnuEditLabelMode);
    modLabelKeys::KeyDown(run.program, keys::kTab, keys::kShiftState);
    EXPECT_EQ(run.program.designer.Framed, kLogoInFrame);
    modLabelKeys::KeyDown(run.program, keys::kRight, 0);
    EXPECT_EQ(run.program.pages[PageId::frmP1].pic.Left, 1260) << "a step from the settings' place";
    EXPECT_EQ(run.program.format.LogoLeft, 1260);
    EXPECT_EQ(run.program.format.LogoPath, "/srv/logo.png") << "a logo that was dragged is the format's";
    EXPECT_EQ(run.program.main.Notice, "Kept only by a format or by Save this Logo as Default.");
}

TEST(LabelKeys, ThePageScrollsToALogoBelowTheWindow) {
    Designing run;
    run.program.main.ClientHeight = 5000;
    modScroll::UpdatePageButtons(run.program, 0);
    PagePicture& logo = run.program.pages[PageId::frmP1].pic;
    logo.Picture = {PictureRef::Source::File, "/srv/logo.png"};
    logo.Visible = true;
    logo.Top = 12000;
    logo.Size = {2000, 1000};
    person::Choose(run.program, CommandId::mnuEditLabelMode);
    static_cast<void>(modInput::LabelKeyDown(run.program, keys::kTab, keys::kShiftState));
    ASSERT_EQ(run.program.designer.Framed, kLogoInFrame);
    const int shown = run.program.main.VScroll1.Value;
    EXPECT_LE(shown, 12000);
    EXPECT_GE(shown + 5000, 13000);
}

TEST(Snap, QuickButtonsAndTypedValues) {
    Designing run;
    frmSnap& window = run.Open<frmSnap>(CommandId::mnuToolsSnap, "frmSnap");
    EXPECT_EQ(window.txtSnap.Text, "0.125");
    EXPECT_EQ(window.txtSnap.SelLength, 5);
    window.cmdSnap_MouseMove(0);
    window.cmdSnap_MouseMove(4);
    EXPECT_EQ(window.cmdSnap[0].ToolTipText, "360 Twips");
    EXPECT_EQ(window.cmdSnap[4].ToolTipText, "45 Twips");
    EXPECT_EQ(window.cmdSnap[4].Caption, ".03125");
    for (const std::string value : {"a", "", "0.009", "4.01", "1e30", "-1"}) {
        window.txtSnap.Text = value;
        run.surroundings.questions.ExpectBox({"Not a Number", Buttons::Ok, ""}, Answer::Ok);
        window.cmdOK_Click(run.program);
        EXPECT_EQ(run.program.format.SnapTwips, 180);
    }
    window.txtSnap.Text = "0.25";
    window.cmdOK_Click(run.program);
    EXPECT_EQ(run.program.format.SnapTwips, 360);
    EXPECT_TRUE(window.Closing);
}

TEST(Snap, AlignsTheHeightOfTheFirstPageAndHalfAStepGoesToTheEvenOne) {
    Designing run;
    Page& page = run.program.pages[PageId::frmP1];
    for (const auto& [from, to] : {std::pair{-270.0F, -360.0F}, {-450.0F, -360.0F}, {-100.0F, -180.0F}}) {
        page.Top = from;
        page.Left = 7;
        person::Choose(run.program, CommandId::mnuToolsAlignWithSnap);
        EXPECT_EQ(page.Top, to);
        EXPECT_EQ(page.Left, 7);
    }
}

TEST(TextProperties, CancelLeavesPagesAndFontAsTheyWere) {
    Designing run;
    frmTextProps& window = run.Open<frmTextProps>(CommandId::mnuEditAllTextFonts, "frmTextProps");
    EXPECT_EQ(window.lblFontName.Caption, "Current Font Name = Times New Roman");
    EXPECT_TRUE(window.optFontSize[0].Value);
    EXPECT_EQ(window.txtSample.Text, "Sampling Text with Times New Roman: 10");
    window.optFontSize_Click(run.program, 2);
    window.cmdColor_Click(run.program, 5);
    EXPECT_EQ(window.lblFontColor.Caption, "Current Font Color = Blue");
    EXPECT_EQ(run.Area(PageId::frmP1, 0).FontSize, 10);
    window.cmdCancel_Click(run.program);
    EXPECT_EQ(run.program.run.DefaultFontSize, 10);
    EXPECT_EQ(run.program.run.DefaultFontColor, 0U);
    EXPECT_FALSE(modFile::PropertiesChanged(run.program));
}

TEST(TextProperties, ApplyChangesLaysTheFontAndASizeOfNothingIsTen) {
    Designing run;
    run.program.run.DefaultFontSize = 0;
    frmTextProps& window = run.Open<frmTextProps>(CommandId::mnuEditAllTextFonts, "frmTextProps");
    window.lstFont_Click(run.program, 0);
    window.chkItalic_Click(run.program);
    run.program.format.PropTextChanges[PageId::frmP1][3].FontBold = true;
    window.cmdOK_Click(run.program);
    EXPECT_EQ(run.Area(PageId::frmP3, 7).FontName, "Arial");
    EXPECT_EQ(run.Area(PageId::frmP3, 7).FontSize, 10);
    EXPECT_TRUE(run.Area(PageId::frmP3, 7).FontItalic);
    EXPECT_TRUE(run.Area(PageId::frmP1, 3).FontBold) << "bold stays with its area";
    EXPECT_TRUE(modFile::PropertiesChanged(run.program));
}

TEST(TextProperties, ApplyChangesPaintsTheFinalPageAndTheBoxInHandToo) {
    Designing run;
    run.surroundings.measure.UnitSize = 10;
    Typist typist(run.program);
    typist.Click(PageId::frmP6, 4);
    typist.Type("1234567890123");
    ASSERT_EQ(run.Area(PageId::frmP6, 4).BackColor, colors::kOverLimit) << "1300 twips of 1260";
    person::TurnTo(run.program, 1);
    typist.Click(PageId::frmP2, 5);
    person::Choose(run.program, CommandId::mnuEditTextColumns);
    typist.Click({PageId::frmP2, FieldKind::txtQty, 5});
    const TextArea& box = run.program.pages[PageId::frmP2].txtQty[5];
    ASSERT_EQ(box.BackColor, colors::kFocused);
    frmTextProps& window = run.Open<frmTextProps>(CommandId::mnuEditAllTextFonts, "frmTextProps");
    window.optFontSize_Click(run.program, 4);
    window.cmdOK_Click(run.program);
    EXPECT_EQ(run.Area(PageId::frmP6, 4).BackColor, colors::kResting) << "in six points it has room";
    EXPECT_EQ(run.program.main.Focus, (FieldRef{PageId::frmP2, FieldKind::txtQty, 5}));
    EXPECT_EQ(box.BackColor, colors::kFocused);
}

TEST(TextProperties, ATriedFontIsNotInWhatIsKeptAtTheEndOfTheSession) {
    Designing run;
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 2);
    typist.Type("Ann");
    run.program.document.SavedStateStale = true;
    frmTextProps& window = run.Open<frmTextProps>(CommandId::mnuEditAllTextFonts, "frmTextProps");
    window.optFontSize_Click(run.program, 4);
    modClosing::KeepUnsaved(run.program);
    const std::string kept = run.folder.Read("Proposals/Backup/Ann.hpf");
    EXPECT_NE(kept.find(".FontSize=10 .FontColor=0"), std::string::npos) << kept;
    EXPECT_EQ(window.txtSample.Text, "Sampling Text with Times New Roman: 10");
}

TEST(TextProperties, AsDefaultWritesTheFourSettings) {
    Designing run;
    frmTextProps& window = run.Open<frmTextProps>(CommandId::mnuEditAllTextFonts, "frmTextProps");
    window.lstFont_Click(run.program, 0);
    window.optFontSize_Click(run.program, 4);
    window.cmdDefault_Click(run.program);
    const std::string settings = run.folder.Read("UserPreferences.txt");
    for (const char* line :
         {"Font Name:Arial\r\n", "Font Size:6\r\n", "Font Color:0\r\n", "Font Italic:False\r\n"}) {
        EXPECT_NE(settings.find(line), std::string::npos) << line;
    }
    EXPECT_EQ(run.Area(PageId::frmP1, 0).FontSize, 6);
}

TEST(TextProperties, AsDefaultShowsTheFontThatWasLaidForNone) {
    Designing run;
    frmTextProps& window = run.Open<frmTextProps>(CommandId::mnuEditAllTextFonts, "frmTextProps");
    run.program.run.DefaultFontName.clear();
    run.program.run.DefaultFontSize = 0;
    window.cmdDefault_Click(run.program);
    EXPECT_EQ(window.lblFontName.Caption, "Current Font Name = Arial");
    EXPECT_TRUE(window.optFontSize[0].Value);
    EXPECT_EQ(window.txtSample.Text, "Sampling Text with Arial: 10");
}

TEST(Colours, SlidersShowTheirValuesAndTheLargeStepEndsAt255) {
    Designing run;
    run.Open<frmTextProps>(CommandId::mnuEditAllTextFonts, "frmTextProps").cmdColors_Click(run.program);
    auto& window = dynamic_cast<frmRGB&>(*modWindows::Find(run.program, "frmRGB"));
    EXPECT_EQ(window.txtHexValue.Text, "&H00&");
    EXPECT_EQ(window.txtIntValue.Text, "0");
    window.Red_Change(run.program, 256);
    window.Grn_Change(run.program, 5);
    EXPECT_EQ(window.lblR[0].Caption, "255");
    EXPECT_EQ(window.lblR[1].Caption, "FF");
    EXPECT_EQ(window.lblG[1].Caption, "05");
    EXPECT_EQ(window.txtHexValue.Text, "&H0005FF&");
    EXPECT_EQ(window.txtIntValue.Text, "1535");
    EXPECT_EQ(window.txtHttpValue.Text, "#FF0500");
    window.cmdSmInc_Click(run.program);
    EXPECT_EQ(window.Blu.SmallChange, 1);
    window.cmdNormInc_Click(run.program);
    EXPECT_EQ(window.Blu.SmallChange, 16);
    window.cmdOK_Click(run.program);
    EXPECT_EQ(run.program.run.DefaultFontColor, 0x0005FFU);
}

TEST(Colours, OfALabelAreKeptByAnyWayOfClosing) {
    Designing run;
    run.Click(9);
    run.Props().cmdColors_Click(run.program);
    auto& window = dynamic_cast<frmRGB&>(*modWindows::Find(run.program, "frmRGB"));
    window.Red_Change(run.program, 128);
    window.cmdCancel_Click(run.program);
    EXPECT_EQ(run.Label(PageId::frmP1, 9).ForeColor, 0U);
    EXPECT_TRUE(run.Prop(9).Changed) << "the label is committed all the same";
    modWindows::Sweep(run.program);
    dynamic_cast<frmLabelProps&>(*modWindows::Find(run.program, "frmLabelProps"))
        .cmdColors_Click(run.program);
    auto& again = dynamic_cast<frmRGB&>(*modWindows::Find(run.program, "frmRGB"));
    again.Red_Change(run.program, 128);
    again.cmdOK_Click(run.program);
    EXPECT_EQ(run.Prop(9).ForeColor, 128U);
}

TEST(Colours, OfAGroupLeaveTheWindowWithTheLabelPressedLast) {
    Designing run;
    run.DoubleClick(36, PageId::frmP2);
    run.DoubleClick(34, PageId::frmP2);
    const std::string caption = run.Label(PageId::frmP2, 34).Caption;
    const float left = run.Label(PageId::frmP2, 34).Left;
    ASSERT_NE(run.Label(PageId::frmP2, 36).Caption, caption);
    frmLabelProps& window = run.Props();
    window.cmdColors_Click(run.program);
    auto& colours = dynamic_cast<frmRGB&>(*modWindows::Find(run.program, "frmRGB"));
    colours.Blu_Change(run.program, 200);
    colours.cmdOK_Click(run.program);
    EXPECT_FALSE(IsSelected(run.Label(PageId::frmP2, 34)));
    EXPECT_EQ(window.txtCaption.Text, caption);
    EXPECT_TRUE(window.txtCaption.Enabled);
    window.cmdOK_Click(run.program);
    for (const auto* record : {&run.Prop(34, PageId::frmP2), &run.Format(34, PageId::frmP2)}) {
        EXPECT_EQ(record->Caption, caption);
        EXPECT_EQ(record->Left, left);
        EXPECT_EQ(record->ForeColor, 200U << 16U);
    }
}

TEST(LabelProps, AGroupThatWasCommittedLeavesTheLabelPressedLastForTheNextTime) {
    Designing run;
    run.DoubleClick(10);
    run.DoubleClick(9);
    run.Props().cmdOK_Click(run.program);
    modWindows::Sweep(run.program);
    frmLabelProps& window = run.Props();
    EXPECT_EQ(window.txtCaption.Text, "Event Date");
    window.cmdOK_Click(run.program);
    EXPECT_EQ(run.Prop(9).Caption, "Event Date");
}

TEST(LabelProps, OpensWithTheLabelAsItStandsInTheProposalOnShow) {
    Designing run;
    run.Click(9);
    frmLabelProps& former = run.Props();
    former.txtCaption_Change(run.program, "Day");
    former.cmdOK_Click(run.program);
    modWindows::Sweep(run.program);
    run.Click(9);
    static_cast<void>(modReset::StartNewFile(run.program));
    const PageLabel before = run.Label(PageId::frmP1, 9);
    ASSERT_EQ(before.Caption, "Event Date");
    frmLabelProps& window = run.Props();
    EXPECT_EQ(window.txtCaption.Text, "Event Date");
    window.cmdCancel_Click(run.program);
    EXPECT_EQ(run.Label(PageId::frmP1, 9).Caption, "Event Date");
    EXPECT_EQ(run.Label(PageId::frmP1, 9).FontName, before.FontName);
    EXPECT_EQ(run.Label(PageId::frmP1, 9).FontSize, before.FontSize);
    EXPECT_FALSE(run.Prop(9).Changed) << "nothing of the former proposal is left";
}

TEST(Colours, OfTheAreasShowAtOnceInTheWindowThatAskedForThem) {
    Designing run;
    frmTextProps& window = run.Open<frmTextProps>(CommandId::mnuEditAllTextFonts, "frmTextProps");
    EXPECT_EQ(window.lblFontColor.Caption, "Current Font Color = Black");
    window.cmdColors_Click(run.program);
    auto& colours = dynamic_cast<frmRGB&>(*modWindows::Find(run.program, "frmRGB"));
    colours.Blu_Change(run.program, 255);
    colours.cmdOK_Click(run.program);
    EXPECT_EQ(window.lblFontColor.Caption, "Current Font Color = Blue");
}

TEST(LabelProps, TheFontOfTheLabelIsTheOneMarked) {
    Designing run;
    run.Click(9);
    const frmLabelProps& props = run.Props();
    ASSERT_GE(props.lstFont.ListIndex, 0);
    EXPECT_EQ(props.lstFont.Items[static_cast<std::size_t>(props.lstFont.ListIndex)], "Times New Roman");
}

TEST(LabelProps, AColourOfTheGroupIsRecordedForEachLabelTheLastIncluded) {
    Designing run;
    person::TurnTo(run.program, 5);
    person::Choose(run.program, CommandId::mnuEditLabelSelectAll);
    auto& window = dynamic_cast<frmLabelProps&>(*modWindows::Find(run.program, "frmLabelProps"));
    window.cmdColor_Click(run.program, 0);
    modDesigner::CloseLabelWindow(run.program);
    const auto chosen = run.Label(PageId::frmP6, 1).ForeColor;
    EXPECT_NE(chosen, 0U);
    for (const int index : {1, 20, 64}) {
        EXPECT_EQ(run.Label(PageId::frmP6, index).ForeColor, chosen) << index;
        EXPECT_EQ(run.Prop(index, PageId::frmP6).ForeColor, chosen) << index;
        EXPECT_TRUE(run.Prop(index, PageId::frmP6).Changed) << index;
    }
}

TEST(Titles, AnEmptySubTitleIsTheNameWithoutItsExtension) {
    Designing run;
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 2);
    typist.Type("Jane Roe");
    frmTitle& window = run.Open<frmTitle>(CommandId::mnuEditTitles, "frmTitle");
    EXPECT_EQ(window.txtSubTitle.Text, "Proposal for Jane Roe");
    EXPECT_EQ(window.txtSubTitle.SelLength, 21) << "typing takes its place";
    window.txtTitle_Change("Ours - ");
    window.txtSubTitle_Change("The Roe Wedding");
    window.cmdOK_Click(run.program);
    EXPECT_EQ(run.Label(PageId::frmP3, 36).Caption, "The Roe Wedding");
    EXPECT_EQ(run.Label(PageId::frmP6, 64).Caption, "The Roe Wedding - Our Copy");
    EXPECT_EQ(run.Label(PageId::frmP2, 0).Caption, "Ours - Page 2");
    EXPECT_TRUE(modFile::PropertiesChanged(run.program));
    modWindows::Sweep(run.program);
    frmTitle& again = run.Open<frmTitle>(CommandId::mnuEditTitles, "frmTitle");
    again.cmdClear_Click(1);
    EXPECT_EQ(again.FocusNext, "txtSubTitle");
    again.cmdOK_Click(run.program);
    EXPECT_EQ(run.Label(PageId::frmP1, 33).Caption, "Proposal for Jane Roe");
}

TEST(Titles, ALongOneIsCentredAndBeginsBeforeThePage) {
    Designing run;
    frmTitle& window = run.Open<frmTitle>(CommandId::mnuEditTitles, "frmTitle");
    window.txtSubTitle_Change(std::string(200, 'x'));
    window.cmdOK_Click(run.program);
    EXPECT_EQ(run.Label(PageId::frmP1, 33).Left, 6120 - 10000);
    EXPECT_EQ(run.Label(PageId::frmP1, 33).Top, 15030);
}

TEST(Titles, OneThatWasMovedStaysWhereItIs) {
    Designing run;
    run.Drag(33, 180, 0);
    const float left = run.Label(PageId::frmP1, 33).Left;
    frmTitle& window = run.Open<frmTitle>(CommandId::mnuEditTitles, "frmTitle");
    window.txtSubTitle_Change("Other words");
    window.cmdOK_Click(run.program);
    EXPECT_EQ(run.Label(PageId::frmP1, 33).Left, left);
}

TEST(Titles, AsDefaultWritesTheSetting) {
    Designing run;
    frmTitle& window = run.Open<frmTitle>(CommandId::mnuEditTitles, "frmTitle");
    window.txtTitle_Change("Ours\r\n - ");
    window.cmdDefault_Click(run.program);
    EXPECT_FALSE(window.TitleChanged);
    EXPECT_NE(run.folder.Read("UserPreferences.txt").find("Page Titles:Ours - \r\n"), std::string::npos);
}

TEST(Titles, AsDefaultIsAskedForWhereTheProposalHasAHeadingOfItsOwn) {
    Designing run;
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 2);
    typist.Type("Ann");
    run.Open<frmTitle>(CommandId::mnuEditTitles, "frmTitle").txtTitle_Change("Ann's Day - ");
    dynamic_cast<frmTitle&>(*modWindows::Find(run.program, "frmTitle")).cmdOK_Click(run.program);
    modWindows::Sweep(run.program);
    run.surroundings.questions.Expect("File was saved as Ann.hef");
    ASSERT_EQ(modFile::SaveEventFile(run.program), modFile::SaveResult::Saved);
    ASSERT_FALSE(modFile::PropertiesChanged(run.program));
    frmTitle& window = run.Open<frmTitle>(CommandId::mnuEditTitles, "frmTitle");
    window.txtTitle_Change("Ours - ");
    window.cmdDefault_Click(run.program);
    window.Form_Cancel(run.program);
    modWindows::Sweep(run.program);
    EXPECT_EQ(run.Label(PageId::frmP2, 0).Caption, "Ours - Page 2");
    EXPECT_TRUE(modFile::PropertiesChanged(run.program));
    run.surroundings.questions.Expect("File was saved as Ann.hef");
    ASSERT_EQ(modFile::SaveEventFile(run.program), modFile::SaveResult::Saved);
    static_cast<void>(modReset::StartNewFile(run.program));
    ASSERT_EQ(modFile::OpenEventFile(run.program, "Ann.hef"), modFile::OpenResult::Opened);
    modFile::ReadFileProperties(run.program);
    EXPECT_EQ(run.Label(PageId::frmP2, 0).Caption, "Ours - Page 2");
}

TEST(LabelWindow, AfterDeselectAllGoesOnWithTheOneLabelAsItStands) {
    Designing run;
    run.Click(9);
    run.Props().cmdColor_Click(run.program, 0);
    modDesigner::CloseLabelWindow(run.program);
    modWindows::Sweep(run.program);
    const PageLabel before = run.Label(PageId::frmP1, 0);
    person::Choose(run.program, CommandId::mnuEditLabelSelectAll);
    auto& window = dynamic_cast<frmLabelProps&>(*modWindows::Find(run.program, "frmLabelProps"));
    person::Choose(run.program, CommandId::mnuEditLabelDeselectAll);
    EXPECT_EQ(window.txtCaption.Text, before.Caption);
    window.cmdOK_Click(run.program);
    EXPECT_EQ(run.Label(PageId::frmP1, 0).ForeColor, before.ForeColor);
    EXPECT_EQ(run.program.format.PropLabelChanges[PageId::frmP1][0].Left, before.Left);
    EXPECT_EQ(run.program.format.PropLabelChanges[PageId::frmP1][0].Caption, before.Caption);
}

TEST(Logo, HidingItKeepsItOutOfPrint) {
    Designing run;
    PagePicture& logo = run.program.pages[PageId::frmP1].pic;
    logo.Picture = {PictureRef::Source::File, "/srv/logo.png"};
    run.program.settings.LogoVisible = true;
    run.program.run.LogoChecked = true;
    person::Choose(run.program, CommandId::mnuEditLogoVisible);
    EXPECT_FALSE(logo.Visible);
    EXPECT_EQ(logo.Tag, kHide);
    EXPECT_NE(run.folder.Read("UserPreferences.txt").find("Logo Visible:False\r\n"), std::string::npos);
    person::Choose(run.program, CommandId::mnuEditLogoBorder);
    EXPECT_EQ(logo.BorderStyle, 1) << "turning the border on shows the logo";
    EXPECT_TRUE(logo.Visible);
    EXPECT_NE(run.folder.Read("UserPreferences.txt").find("Logo Visible:True\r\n"), std::string::npos);
    person::Choose(run.program, CommandId::mnuEditLogoBorder);
    EXPECT_EQ(logo.BorderStyle, 0);
    EXPECT_TRUE(logo.Visible);
}

TEST(Logo, SavingItAsDefaultWithoutAFormatTouchesOnlyTheSettings) {
    Designing run;
    PagePicture& logo = run.program.pages[PageId::frmP1].pic;
    logo.Picture = {PictureRef::Source::File, "/srv/logo.png"};
    logo.Left = 180;
    logo.Top = 90.5F;
    person::Choose(run.program, CommandId::mnuEditLogoSave);
    const std::string settings = run.folder.Read("UserPreferences.txt");
    for (const char* line : {"Logo File:/srv/logo.png\r\n", "Logo Left:180\r\n", "Logo Top:90.5\r\n"}) {
        EXPECT_NE(settings.find(line), std::string::npos) << line;
    }
    EXPECT_EQ(run.program.format.LogoPath, "");
    EXPECT_FALSE(run.program.format.LogoChanged);
}

TEST(Logo, SavingItAsDefaultMakesItTheOpenFormatsToo) {
    Designing run;
    run.program.format.FormatOpen = true;
    PagePicture& logo = run.program.pages[PageId::frmP1].pic;
    logo.Picture = {PictureRef::Source::File, "/srv/logo.png"};
    logo.Left = 180;
    logo.Top = 90.5F;
    person::Choose(run.program, CommandId::mnuEditLogoSave);
    EXPECT_EQ(run.program.format.LogoPath, "/srv/logo.png");
    EXPECT_EQ(run.program.format.LogoLeft, 180);
    EXPECT_EQ(run.program.format.LogoTop, 90.5F);
    EXPECT_TRUE(run.program.format.LogoChanged);
}

TEST(Designer, EveryChangeThatRidesWithAProposalIsSavedAndComesBack) {
    using Change = std::function<void(Designing&)>;
    const std::vector<Change> changes{
        [](Designing& run) { run.Drag(9, 180, 180); },
        [](Designing& run) {
            run.Click(9, PageId::frmP6);
            run.Props().cmdColor_Click(run.program, 0);
            modDesigner::CloseLabelWindow(run.program);
        },
        [](Designing& run) {
            person::Choose(run.program, CommandId::mnuEditLabelSelectAll);
            auto& window = dynamic_cast<frmLabelProps&>(*modWindows::Find(run.program, "frmLabelProps"));
            window.cmdSize_Click(run.program, 2);
            window.cmdOK_Click(run.program);
        },
        [](Designing& run) {
            frmTitle& window = run.Open<frmTitle>(CommandId::mnuEditTitles, "frmTitle");
            window.txtTitle_Change("Ours - ");
            window.txtSubTitle_Change("The Day");
            window.cmdOK_Click(run.program);
        },
        [](Designing& run) {
            frmTextProps& window = run.Open<frmTextProps>(CommandId::mnuEditAllTextFonts, "frmTextProps");
            window.optFontSize_Click(run.program, 3);
            window.cmdOK_Click(run.program);
        },
        [](Designing& run) {
            run.program.editing.CurrentArea = 10;
            person::Choose(run.program, CommandId::mnuEditTextBold);
        },
        [](Designing& run) {
            run.program.editing.CurrentArea = 10;
            person::Choose(run.program, CommandId::mnuEditTextBold);
            person::Choose(run.program, CommandId::mnuEditTextNormal);
        },
        [](Designing& run) {
            frmTextProps& window = run.Open<frmTextProps>(CommandId::mnuEditAllTextFonts, "frmTextProps");
            window.lstFont_Click(run.program, 0);
            window.cmdDefault_Click(run.program);
            window.cmdCancel_Click(run.program);
        },
        [](Designing& run) {
            frmTextProps& window = run.Open<frmTextProps>(CommandId::mnuEditAllTextFonts, "frmTextProps");
            window.cmdColors_Click(run.program);
            auto& colours = dynamic_cast<frmRGB&>(*modWindows::Find(run.program, "frmRGB"));
            colours.Grn_Change(run.program, 128);
            colours.cmdOK_Click(run.program);
            window.cmdOK_Click(run.program);
        },
        [](Designing& run) {
            person::Choose(run.program, CommandId::mnuEditLabelMode);
            modLabelKeys::KeyDown(run.program, keys::kTab, 0);
            modLabelKeys::KeyDown(run.program, keys::kRight, 0);
            modLabelKeys::Leave(run.program);
        },
        [](Designing& run) { run.Drag(33, 180, 0); },
        [](Designing& run) { run.Drag(64, -180, 180, PageId::frmP6); },
        [](Designing& run) {
            run.DoubleClick(34, PageId::frmP2);
            run.DoubleClick(35, PageId::frmP2);
            frmLabelProps& window = run.Props();
            window.chkUnderline_Click(run.program);
            window.cmdColors_Click(run.program);
            auto& colours = dynamic_cast<frmRGB&>(*modWindows::Find(run.program, "frmRGB"));
            colours.Blu_Change(run.program, 200);
            colours.cmdOK_Click(run.program);
            window.cmdOK_Click(run.program);
        },
    };
    for (std::size_t at = 0; at < changes.size(); ++at) {
        Designing run;
        Typist typist(run.program);
        typist.Click(PageId::frmP1, 2);
        typist.Type("Ann");
        run.surroundings.questions.Expect("File was saved as Ann.hef");
        ASSERT_EQ(modFile::SaveEventFile(run.program), modFile::SaveResult::Saved);
        changes[at](run);
        modWindows::Sweep(run.program);
        EXPECT_TRUE(modFile::PropertiesChanged(run.program)) << at;
        run.surroundings.questions.Expect("File was saved as Ann.hef");
        ASSERT_EQ(modFile::SaveEventFile(run.program), modFile::SaveResult::Saved);
        EXPECT_FALSE(modFile::PropertiesChanged(run.program)) << at;
        run.program.hooks.SetPageNumbers(run.program);
        const PageSet before = run.program.pages;
        static_cast<void>(modReset::StartNewFile(run.program));
        ASSERT_EQ(modFile::OpenEventFile(run.program, "Ann.hef"), modFile::OpenResult::Opened);
        modFile::ReadFileProperties(run.program);
        run.program.hooks.SetPageNumbers(run.program);
        for (const PageId page : kAllPages) {
            for (std::size_t index = 0; index < before[page].lbl.size(); ++index) {
                PageLabel was = before[page].lbl[index];
                const PageLabel& is = run.program.pages[page].lbl[index];
                was.ToolTipText = is.ToolTipText;
                was.Visible = is.Visible;
                EXPECT_EQ(was, is) << "change " << at << ", page " << IndexOf(page) << ", label " << index
                                   << ": " << was.Caption << " / " << is.Caption << ", " << was.Left << " / "
                                   << is.Left;
            }
            for (std::size_t index = 0; index < before[page].txt.size(); ++index) {
                EXPECT_EQ(before[page].txt[index].FontBold, run.program.pages[page].txt[index].FontBold);
                EXPECT_EQ(before[page].txt[index].FontSize, run.program.pages[page].txt[index].FontSize);
                EXPECT_EQ(before[page].txt[index].FontName, run.program.pages[page].txt[index].FontName);
                EXPECT_EQ(before[page].txt[index].ForeColor, run.program.pages[page].txt[index].ForeColor);
            }
        }
    }
}

TEST(LabelWindow, ASaveThatNoCommandAskedForTakesWhatWasTypedInIt) {
    Designing run;
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 2);
    typist.Type("Ann");
    run.Click(9);
    run.Props().txtCaption_Change(run.program, "Day");
    run.surroundings.questions.Expect("File was saved as Ann.hef");
    ASSERT_EQ(modFile::SaveEventFile(run.program), modFile::SaveResult::Saved);
    EXPECT_FALSE(run.program.designer.LabelPropsOpen);
    EXPECT_EQ(run.Prop(9).Caption, "Day");
}

TEST(LabelWindow, SelectAllShowsTheFontFieldsInWhichTheLabelsAgree) {
    Designing run;
    for (PageLabel& label : run.program.pages[PageId::frmP1].lbl) {
        label.FontName = "Arial";
        label.FontSize = 14;
        label.FontBold = true;
        label.FontItalic = true;
        label.FontUnderline = true;
    }
    person::Choose(run.program, CommandId::mnuEditLabelSelectAll);
    auto& window = dynamic_cast<frmLabelProps&>(*modWindows::Find(run.program, "frmLabelProps"));
    EXPECT_EQ(window.lblFontName.Caption, "Font = Arial");
    EXPECT_EQ(window.lblSize.Caption, "Label Font Size = 14");
    EXPECT_TRUE(window.chkBold.Value);
    EXPECT_TRUE(window.chkItalic.Value);
    EXPECT_TRUE(window.chkUnderline.Value);
}

TEST(LabelWindow, ALabelThatJoinsTheGroupLateTakesItsColourToo) {
    Designing run;
    run.DoubleClick(9);
    run.DoubleClick(10);
    frmLabelProps& window = run.Props();
    window.cmdColor_Click(run.program, 2);
    const Color colour = window.cmdColor[2].BackColor;
    ASSERT_NE(run.Label(PageId::frmP1, 11).ForeColor, colour);
    Select(run.Label(PageId::frmP1, 11));
    window.cmdOK_Click(run.program);
    for (const int index : {9, 10, 11}) {
        EXPECT_EQ(run.Label(PageId::frmP1, index).ForeColor, colour) << index;
        EXPECT_EQ(run.Prop(index).ForeColor, colour) << index;
        EXPECT_EQ(run.Format(index).ForeColor, colour) << index;
    }
}

TEST(Logo, AnEmptyLogoLineOfTheSettingsTakesTheCheckMarkWithIt) {
    Designing run;
    const std::string picture = run.folder / "ours.png";
    run.folder.Write("ours.png", "x");
    run.surroundings.pictures.Known[picture] = {1500, 900};
    run.program.settings.LogoVisible = true;
    run.program.settings.LogoFile = "ours.png";
    person::StartAnew(run.program);
    EXPECT_TRUE(run.Main()[CommandId::mnuEditLogoVisible].Checked);
    EXPECT_TRUE(run.program.pages[PageId::frmP1].pic.Visible);
    run.program.settings.LogoFile.clear();
    person::StartAnew(run.program);
    EXPECT_FALSE(run.Main()[CommandId::mnuEditLogoVisible].Checked);
    EXPECT_FALSE(run.program.pages[PageId::frmP1].pic.Visible);
}

TEST(Logo, OneOfTheSettingsThatIsTooLargeIsScaledAndTold) {
    Designing run;
    const std::string picture = run.folder / "ours.png";
    run.folder.Write("ours.png", "x");
    run.surroundings.pictures.Known[picture] = {21600, 1440};
    run.program.settings.LogoFile = "ours.png";
    person::StartAnew(run.program);
    EXPECT_EQ(run.program.main.Notice.substr(0, 81),
              "The picture is 15.0 by 1.0 inches large. It is shown and printed scaled down to 7");
}

TEST(LabelWindow, PrintingTakesWhatWasTypedInIt) {
    Designing run;
    run.Click(9);
    run.Props().txtCaption_Change(run.program, "Day");
    person::Choose(run.program, CommandId::mnuFilePrintPage1);
    EXPECT_FALSE(run.program.designer.LabelPropsOpen);
    EXPECT_EQ(run.Prop(9).Caption, "Day");
}

TEST(Titles, AreToBeSavedOnEveryPageThatHasThem) {
    Designing run;
    frmTitle& window = run.Open<frmTitle>(CommandId::mnuEditTitles, "frmTitle");
    window.txtTitle_Change("Ours - ");
    window.txtSubTitle_Change("The Roe Wedding");
    window.cmdOK_Click(run.program);
    const auto& saved = run.program.format.LabelSavedState;
    EXPECT_FALSE(saved[PageId::frmP1][0].Changed) << "the company's name there";
    EXPECT_EQ(saved[PageId::frmP2][0].Caption, "Ours - Page 2");
    EXPECT_EQ(saved[PageId::frmP1][33].Caption, "The Roe Wedding");
    for (const PageId page : kEditedPages) {
        EXPECT_EQ(saved[page][0].Changed, page != PageId::frmP1) << IndexOf(page);
        EXPECT_TRUE(saved[page][static_cast<std::size_t>(geometry::TitleLabel(page))].Changed)
            << IndexOf(page);
    }
}

TEST(LabelDrag, MakesALabelOfTheFormatAChangeOfThePersonsInEveryTable) {
    Designing run;
    run.Format(9).FromFormat = true;
    run.Format(9).Saved = true;
    run.Prop(9).Saved = true;
    run.Drag(9, 180, 360);
    for (const LabelChangeRecord* record :
         {&run.Format(9), &run.Prop(9), &run.program.format.LabelSavedState[PageId::frmP1][9]}) {
        EXPECT_EQ(record->Left, 1080 + 180);
        EXPECT_EQ(record->Top, 4140 + 180);
        EXPECT_TRUE(record->Changed);
        EXPECT_FALSE(record->Saved);
        EXPECT_FALSE(record->FromFormat);
    }
}

TEST(LabelWindow, OkMakesALabelOfTheFormatAChangeOfThePersonsInEveryTable) {
    Designing run;
    run.Click(9);
    run.Format(9).FromFormat = true;
    run.Format(9).Saved = true;
    run.Prop(9).Saved = true;
    run.Prop(9).Changed = false;
    frmLabelProps& window = run.Props();
    window.txtCaption_Change(run.program, "Day");
    window.chkItalic_Click(run.program);
    window.chkUnderline_Click(run.program);
    window.cmdOK_Click(run.program);
    for (const LabelChangeRecord* record :
         {&run.Format(9), &run.Prop(9), &run.program.format.LabelSavedState[PageId::frmP1][9]}) {
        EXPECT_EQ(record->Caption, "Day");
        EXPECT_FALSE(record->FontItalic);
        EXPECT_TRUE(record->FontUnderline);
        EXPECT_TRUE(record->Changed);
        EXPECT_FALSE(record->Saved);
        EXPECT_FALSE(record->FromFormat);
    }
    EXPECT_FALSE(IsSelected(run.Label(PageId::frmP1, 9)));
}

TEST(Titles, MadeTheDefaultAreTheProposalsHeadingToo) {
    Designing run;
    frmTitle& window = run.Open<frmTitle>(CommandId::mnuEditTitles, "frmTitle");
    window.txtTitle_Change("Ours - ");
    window.cmdDefault_Click(run.program);
    EXPECT_EQ(run.program.document.PageHeading, "Ours - ");
    EXPECT_EQ(run.Label(PageId::frmP2, 0).Caption, "Ours - Page 2");
}

} // namespace
