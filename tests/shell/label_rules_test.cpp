#include "format/format_changes.h"
#include "format/format_lines.h"
#include "format/frm_label_props.h"
#include "format/frm_rgb.h"
#include "format/frm_snap.h"
#include "format/frm_text_props.h"
#include "format/frm_title.h"
#include "format/grid.h"
#include "format/label_designer.h"
#include "format/label_selection.h"
#include "format/logo.h"
#include "program/windows.h"
#include "proposal/property_file.h"
#include "proposal/reset.h"
#include "support/person.h"
#include "support/running_program.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// How labels, their groups and the logo answer to hands, where one could expect something else.

namespace {

using namespace modDesigner;

/// A second document: in the very first one the tables know every label's place.
struct Hands : RunningProgram {
    Hands() { static_cast<void>(modReset::StartNewFile(program)); }
    void Press(int index, PageId page = PageId::frmP1) {
        lbl_MouseDown(program, page, index, kLeftButton, 10, 10);
    }
    void Click(int index, PageId page = PageId::frmP1) {
        Press(index, page);
        lbl_MouseUp(program, page, index);
    }
    void Drag(int index, float across, float down) {
        Press(index);
        static_cast<void>(lbl_MouseMove(program, PageId::frmP1, index, 10 + across, 10 + down));
        lbl_MouseUp(program, PageId::frmP1, index);
    }
    void DoubleClick(int index, PageId page = PageId::frmP1) {
        Click(index, page);
        lbl_DblClick(program, page, index);
        lbl_MouseUp(program, page, index);
    }
    LabelChangeRecord& Prop(int index, PageId page = PageId::frmP1) {
        return program.format.PropLabelChanges[page][static_cast<std::size_t>(index)];
    }
    template <typename Form> Form& Open(CommandId id, std::string_view name) {
        person::Choose(program, id);
        return dynamic_cast<Form&>(*modWindows::Find(program, name));
    }
    frmLabelProps& Props() { return Open<frmLabelProps>(CommandId::mnuEditLabelProps, "frmLabelProps"); }
    frmRGB& Colours(frmLabelProps& opener) {
        opener.cmdColors_Click(program);
        return dynamic_cast<frmRGB&>(*modWindows::Find(program, "frmRGB"));
    }
};

TEST(LabelDrag, GoesOffThePageOnALatticeOfItsOwn) {
    Hands run;
    run.program.format.SnapTwips = 360;
    run.Label(PageId::frmP1, 9).Left = 1085;
    for (int step = 0; step < 5; ++step) {
        run.Drag(9, -360, 0);
    }
    EXPECT_EQ(run.Label(PageId::frmP1, 9).Left, 1085 - 5 * 360) << "no edge and no grid holds it";
}

TEST(LabelDrag, AClickOnALabelInTheCornerLeavesTheTables) {
    Hands run;
    run.Label(PageId::frmP1, 9).Left = 0;
    run.Label(PageId::frmP1, 9).Top = 0;
    run.Click(9);
    EXPECT_FALSE(run.Prop(9).Changed);
}

TEST(LabelDrag, AClickAfterADragIsNoMove) {
    Hands run;
    run.Drag(9, 180, 0);
    run.Prop(9).Saved = true;
    run.Click(9);
    EXPECT_TRUE(run.Prop(9).Saved);
}

TEST(LabelDrag, APressNotesTheLookOfASelectedLabelToo) {
    Hands run;
    run.DoubleClick(9);
    run.Label(PageId::frmP1, 9).FontSize = 20;
    run.Press(9);
    EXPECT_EQ(run.program.designer.LabelEdit.FontSize, 20);
    EXPECT_EQ(run.program.format.LabelSavedState[PageId::frmP1][9].FontSize, 20);
}

TEST(LabelDrag, OnlyAStepIsAMove) {
    Hands run;
    const PageLabel before = run.Label(PageId::frmP1, 9);
    run.Press(9);
    EXPECT_FALSE(lbl_MouseMove(run.program, PageId::frmP1, 9, 10 + 179, 10 - 179));
    EXPECT_EQ(run.Label(PageId::frmP1, 9), before);
    EXPECT_TRUE(lbl_MouseMove(run.program, PageId::frmP1, 9, 10, 10 + 180));
    EXPECT_EQ(run.Label(PageId::frmP1, 9).Top, before.Top + 180);
    run.Press(49, PageId::frmP6_1);
    EXPECT_FALSE(lbl_MouseMove(run.program, PageId::frmP6_1, 49, 910, 910));
    run.program.format.SnapTwips = -180;
    run.Press(10);
    EXPECT_FALSE(lbl_MouseMove(run.program, PageId::frmP1, 10, 910, 910)) << "no step is one";
    EXPECT_EQ(run.Label(PageId::frmP1, 10).Left, 10080);
}

TEST(LabelDrag, MakesItsPageTheActiveOne) {
    Hands run;
    run.Press(34, PageId::frmP3);
    EXPECT_EQ(run.program.main.ActivePage, PageId::frmP3);
    EXPECT_EQ(run.program.main.CurrentPage, 2);
}

TEST(LabelWindow, OkKeepsThePlaceToWhichTheLabelWasDraggedMeanwhile) {
    Hands run;
    run.Click(9);
    frmLabelProps& window = run.Props();
    run.Drag(9, 180, 180);
    window.cmdOK_Click(run.program);
    for (const LabelChangeRecord* record :
         {&run.Prop(9), &run.program.format.FormatLabelChanges[PageId::frmP1][9]}) {
        EXPECT_EQ(record->Left, 1080 + 180);
        EXPECT_EQ(record->Top, 4140 + 180);
    }
}

TEST(LabelWindow, CancelKeepsThePlaceAndTakesTheSelectionBack) {
    Hands run;
    run.DoubleClick(9);
    frmLabelProps& window = run.Props();
    window.txtCaption_Change(run.program, "Day");
    EXPECT_EQ(window.txtCaption.Text, "Day");
    run.Label(PageId::frmP1, 9).Left = 5000;
    run.Label(PageId::frmP1, 9).Top = 6000;
    window.Form_Cancel(run.program);
    EXPECT_EQ(run.Label(PageId::frmP1, 9).Caption, "Event Date");
    EXPECT_EQ(run.Label(PageId::frmP1, 9).Left, 5000);
    EXPECT_EQ(run.Label(PageId::frmP1, 9).Top, 6000);
    EXPECT_FALSE(IsSelected(run.Label(PageId::frmP1, 9)));
}

TEST(LabelWindow, OkTakesTheSelectionOfOneLabelBackAndRemembersItsLook) {
    Hands run;
    run.DoubleClick(9);
    frmLabelProps& window = run.Props();
    window.txtCaption_Change(run.program, "Day");
    window.cmdOK_Click(run.program);
    EXPECT_FALSE(IsSelected(run.Label(PageId::frmP1, 9)));
    EXPECT_EQ(run.program.designer.LabelEditPrevious.Caption, "Day");
}

TEST(LabelWindow, OkGivesASignTheColourThatIsKeptOfIt) {
    Hands run;
    run.Click(21);
    frmLabelProps& window = run.Props();
    window.cmdColor_Click(run.program, 0);
    frmTextProps& font = run.Open<frmTextProps>(CommandId::mnuEditAllTextFonts, "frmTextProps");
    font.cmdColor_Click(run.program, 5);
    font.cmdOK_Click(run.program);
    ASSERT_EQ(run.Label(PageId::frmP1, 21).ForeColor, 0xFF0000U) << "a sign has the areas' font";
    window.cmdOK_Click(run.program);
    EXPECT_EQ(run.Prop(21).ForeColor, 0x0000FFU);
    EXPECT_EQ(run.Label(PageId::frmP1, 21).ForeColor, 0x0000FFU);
}

TEST(LabelWindow, EachTickFollowsItsClick) {
    Hands run;
    run.Click(9);
    frmLabelProps& window = run.Props();
    const bool bold = window.chkBold.Value;
    const bool italic = window.chkItalic.Value;
    const bool underline = window.chkUnderline.Value;
    window.chkBold_Click(run.program);
    EXPECT_EQ(window.chkBold.Value, !bold);
    window.chkItalic_Click(run.program);
    EXPECT_EQ(window.chkItalic.Value, !italic);
    window.chkUnderline_Click(run.program);
    EXPECT_EQ(window.chkUnderline.Value, !underline);
}

TEST(LabelWindow, SelectAllLeavesTheFieldsInWhichTheLabelsDiffer) {
    Hands run;
    PageLabel& last = run.Label(PageId::frmP1, 9);
    last.FontName = "Times New Roman";
    last.FontSize = 11;
    last.FontBold = last.FontItalic = last.FontUnderline = false;
    run.Click(9);
    PageLabel& pattern = run.Label(PageId::frmP1, 0);
    pattern.FontName = "Arial";
    pattern.FontSize = 20;
    pattern.FontBold = pattern.FontItalic = pattern.FontUnderline = true;
    person::Choose(run.program, CommandId::mnuEditLabelSelectAll);
    const LabelLook& edit = run.program.designer.LabelEdit;
    EXPECT_EQ(edit.FontName, "Times New Roman");
    EXPECT_EQ(edit.FontSize, 11);
    EXPECT_FALSE(edit.FontBold);
    EXPECT_FALSE(edit.FontItalic);
    EXPECT_FALSE(edit.FontUnderline);
}

TEST(LabelWindow, CancelAfterAllWereSelectedAndLetGoChangesNothing) {
    Hands run;
    const std::vector<PageLabel> before = run.program.pages[PageId::frmP1].lbl;
    person::Choose(run.program, CommandId::mnuEditLabelSelectAll);
    person::Choose(run.program, CommandId::mnuEditLabelDeselectAll);
    dynamic_cast<frmLabelProps&>(*modWindows::Find(run.program, "frmLabelProps"))
        .cmdCancel_Click(run.program);
    const std::vector<PageLabel>& labels = run.program.pages[PageId::frmP1].lbl;
    for (std::size_t index = 0; index < labels.size(); ++index) {
        EXPECT_EQ(labels[index], before[index]) << index;
    }
}

TEST(LabelWindow, ALaterGroupTakesNothingOfAnEarlierOne) {
    Hands run;
    run.DoubleClick(9);
    run.DoubleClick(10);
    run.Props().cmdSize_Click(run.program, 8);
    CloseLabelWindow(run.program);
    modWindows::Sweep(run.program);
    const float size = run.Label(PageId::frmP1, 11).FontSize;
    run.Label(PageId::frmP1, 12).FontSize = 18;
    run.DoubleClick(11);
    run.DoubleClick(12);
    run.Props().cmdOK_Click(run.program);
    EXPECT_EQ(run.Label(PageId::frmP1, 11).FontSize, size);
    EXPECT_EQ(run.Prop(11).FontSize, size);
    EXPECT_EQ(run.Prop(12).FontSize, 18);
}

TEST(LabelWindow, AllLabelsSelectedAfterAGroupWasLetGoTakeNothingOfIt) {
    Hands run;
    run.DoubleClick(9);
    run.DoubleClick(10);
    frmLabelProps& window = run.Props();
    window.cmdSize_Click(run.program, 8);
    person::Choose(run.program, CommandId::mnuEditLabelDeselectAll);
    const float size = run.Label(PageId::frmP1, 11).FontSize;
    ASSERT_NE(size, 24);
    person::Choose(run.program, CommandId::mnuEditLabelSelectAll);
    window.cmdOK_Click(run.program);
    EXPECT_EQ(run.Label(PageId::frmP1, 11).FontSize, size);
}

TEST(LabelWindow, ALabelPressedAfterTheGroupIsNoneHasItsOwnLook) {
    Hands run;
    run.DoubleClick(9);
    run.DoubleClick(10);
    frmLabelProps& window = run.Props();
    window.cmdSize_Click(run.program, 8);
    run.DoubleClick(10);
    const float size = run.Label(PageId::frmP1, 11).FontSize;
    run.Click(11);
    window.cmdOK_Click(run.program);
    EXPECT_EQ(run.Prop(11).FontSize, size);
    EXPECT_EQ(run.Label(PageId::frmP1, 11).FontSize, size);
}

TEST(LabelWindow, AGroupOfTheFinalPageChangesOnTheClientsCopyToo) {
    Hands run;
    const std::string ours = run.Label(PageId::frmP6, 64).Caption;
    const std::string theirs = run.Label(PageId::frmP6_1, 64).Caption;
    ASSERT_NE(ours, theirs);
    run.DoubleClick(49, PageId::frmP6);
    run.DoubleClick(64, PageId::frmP6);
    frmLabelProps& window = run.Props();
    window.cmdColor_Click(run.program, 0);
    window.cmdOK_Click(run.program);
    for (const PageId page : {PageId::frmP6, PageId::frmP6_1}) {
        EXPECT_EQ(run.Label(page, 49).ForeColor, 255U);
        EXPECT_EQ(run.Label(page, 64).ForeColor, 255U);
    }
    EXPECT_EQ(run.Label(PageId::frmP6, 64).Caption, ours);
    EXPECT_EQ(run.Label(PageId::frmP6_1, 64).Caption, theirs) << "each copy says whose it is";
    EXPECT_EQ(run.program.designer.LabelEditPrevious.Caption, ours);
}

TEST(LabelSelection, CountsOnEveryPageAndChangesOnOne) {
    Hands run;
    run.DoubleClick(34, PageId::frmP3);
    EXPECT_FALSE(MultipleLabelsSelected(run.program));
    run.DoubleClick(34, PageId::frmP2);
    EXPECT_TRUE(MultipleLabelsSelected(run.program));
    const float before = run.Label(PageId::frmP3, 34).FontSize;
    run.Props().cmdSize_Click(run.program, 8);
    EXPECT_EQ(run.Label(PageId::frmP2, 34).FontSize, 24);
    EXPECT_EQ(run.Label(PageId::frmP3, 34).FontSize, before);
}

TEST(LabelSelection, AllTakesItsPatternFromTheSecondLabelAndOnTheFirstPageFromTheFirst) {
    for (const auto& [number, pattern] : {std::pair{0, 0}, {1, 1}, {5, 1}}) {
        Hands run;
        person::TurnTo(run.program, number);
        person::Choose(run.program, CommandId::mnuEditLabelSelectAll);
        EXPECT_EQ(run.program.designer.CurrentLabel, pattern) << number;
    }
}

TEST(LabelSelection, AllShowsTheGroupInAWindowThatIsOpenAlready) {
    Hands run;
    run.Click(9);
    frmLabelProps& window = run.Props();
    ASSERT_EQ(window.txtCaption.Text, "Event Date");
    person::Choose(run.program, CommandId::mnuEditLabelSelectAll);
    EXPECT_EQ(window.txtCaption.Text, "");
    EXPECT_FALSE(window.txtCaption.Enabled);
    EXPECT_EQ(window.lblSize.Caption, "Label Font Size = (several)");
}

TEST(LabelSelection, ALabelTakenOutOfAPairLeavesTheWindowWithOne) {
    Hands run;
    run.DoubleClick(9);
    run.DoubleClick(10);
    frmLabelProps& window = run.Props();
    EXPECT_FALSE(window.txtCaption.Enabled);
    run.DoubleClick(10);
    EXPECT_TRUE(window.txtCaption.Enabled);
    EXPECT_EQ(window.txtCaption.Text, "Event Time");
}

TEST(LabelWindow, AColourOfAGroupStaysOnTheLabelThatWasPressedLast) {
    Hands run;
    run.DoubleClick(33, PageId::frmP2); // a currency sign, which keeps its own
    run.DoubleClick(0, PageId::frmP2);
    frmLabelProps& window = run.Props();
    frmRGB& colours = run.Colours(window);
    colours.Red_Change(run.program, 128);
    colours.cmdOK_Click(run.program);
    modWindows::Sweep(run.program);
    EXPECT_EQ(window.txtCaption.Text, run.Label(PageId::frmP2, 0).Caption) << "the group is none any more";
    window.cmdOK_Click(run.program);
    EXPECT_EQ(run.Label(PageId::frmP2, 0).ForeColor, 128U);
    EXPECT_EQ(run.Prop(0, PageId::frmP2).Left, run.Label(PageId::frmP2, 0).Left);
    EXPECT_NE(run.Label(PageId::frmP2, 33).ForeColor, 128U);
}

TEST(LabelWindow, AColourOfAGroupPassesByASignThatWasPressedLast) {
    Hands run;
    run.DoubleClick(0, PageId::frmP2);
    run.DoubleClick(33, PageId::frmP2); // a currency sign, which keeps its own
    const Color own = run.Label(PageId::frmP2, 33).ForeColor;
    frmLabelProps& window = run.Props();
    frmRGB& colours = run.Colours(window);
    colours.Red_Change(run.program, 128);
    colours.cmdOK_Click(run.program);
    modWindows::Sweep(run.program);
    window.cmdOK_Click(run.program);
    EXPECT_EQ(run.Label(PageId::frmP2, 0).ForeColor, 128U);
    EXPECT_EQ(run.Label(PageId::frmP2, 33).ForeColor, own);
}

TEST(LabelWindow, AGroupKeepsItsChangeWhenAnotherLabelIsPressed) {
    for (const bool joins : {false, true}) {
        Hands run;
        run.DoubleClick(9);
        run.DoubleClick(10);
        frmLabelProps& window = run.Props();
        window.cmdSize_Click(run.program, 8);
        const PageLabel other = run.Label(PageId::frmP1, 11);
        if (joins) {
            run.DoubleClick(11);
        } else {
            run.Click(11);
        }
        EXPECT_EQ(run.Prop(11).FontSize, other.FontSize) << "no more than a press yet";
        EXPECT_EQ(run.program.format.LabelSavedState[PageId::frmP1][11].FontSize, other.FontSize);
        window.cmdOK_Click(run.program);
        EXPECT_EQ(run.Label(PageId::frmP1, 9).FontSize, 24) << joins;
        EXPECT_EQ(run.Label(PageId::frmP1, 10).FontSize, 24) << joins;
        EXPECT_EQ(run.Label(PageId::frmP1, 11).FontSize, joins ? 24 : other.FontSize);
        EXPECT_EQ(run.Label(PageId::frmP1, 11).Caption, other.Caption);
    }
}

TEST(LabelWindow, TheWordsOfEveryTitleAndHeadingAreChangedElsewhere) {
    for (const auto& [page, index] :
         {std::pair{PageId::frmP2, 0}, {PageId::frmP2, 36}, {PageId::frmP6, 64}}) {
        Hands run;
        person::TurnTo(run.program, IndexOf(page));
        run.Click(index, page);
        EXPECT_FALSE(run.Props().txtCaption.Enabled) << index;
    }
}

TEST(Snap, EveryQuickButtonReadsItsInchesAndTellsItsTwips) {
    Hands run;
    const std::array<std::pair<const char*, const char*>, 5> buttons{{{"0.25", "360 Twips"},
                                                                      {"0.1875", "270 Twips"},
                                                                      {"0.125", "180 Twips"},
                                                                      {"0.0625", "90 Twips"},
                                                                      {".03125", "45 Twips"}}};
    for (std::size_t index = 0; index < buttons.size(); ++index) {
        frmSnap& window = run.Open<frmSnap>(CommandId::mnuToolsSnap, "frmSnap");
        EXPECT_EQ(window.cmdSnap[index].Caption, buttons[index].first);
        window.cmdSnap_MouseMove(static_cast<int>(index));
        EXPECT_EQ(window.cmdSnap[index].ToolTipText, buttons[index].second);
        window.cmdSnap_Click(run.program, static_cast<int>(index));
        EXPECT_EQ(std::to_string(static_cast<int>(run.program.format.SnapTwips)) + " Twips",
                  buttons[index].second);
        modWindows::Sweep(run.program);
    }
}

TEST(Snap, AlignsTheFirstPageWhicheverIsInFront) {
    Hands run;
    person::TurnTo(run.program, 2);
    run.program.pages[PageId::frmP1].Top = -100;
    run.program.pages[PageId::frmP3].Top = -100;
    person::Choose(run.program, CommandId::mnuToolsAlignWithSnap);
    EXPECT_EQ(run.program.pages[PageId::frmP1].Top, -180);
    EXPECT_EQ(run.program.pages[PageId::frmP3].Top, -100);
}

TEST(Grid, AStepThatIsNoneDrawsNothing) {
    for (const float step : {14.0F, 5761.0F, -180.0F, std::numeric_limits<float>::infinity(),
                             std::numeric_limits<float>::quiet_NaN()}) {
        Hands run;
        run.program.format.SnapTwips = step;
        DrawGrid(run.program, PageId::frmP1);
        EXPECT_TRUE(run.program.pages[PageId::frmP1].GridPoints.empty()) << step;
    }
}

TEST(Grid, DrawnAgainStandsOnce) {
    Hands run;
    run.program.format.SnapTwips = 4000;
    DrawGrid(run.program, PageId::frmP2);
    const auto points = run.program.pages[PageId::frmP2].GridPoints;
    DrawGrid(run.program, PageId::frmP2);
    EXPECT_EQ(run.program.pages[PageId::frmP2].GridPoints, points);
}

TEST(LogoDrag, AMereClickCounts) {
    Hands run;
    const PagePicture before = run.program.pages[PageId::frmP1].pic;
    modLogo::pic_MouseDown(run.program, kLeftButton, 10, 10);
    modLogo::pic_MouseUp(run.program);
    EXPECT_EQ(run.program.pages[PageId::frmP1].pic.Left, before.Left);
    EXPECT_TRUE(run.program.format.LogoChanged);
    EXPECT_TRUE(modFormat::FormatHasChanges(run.program));
}

TEST(Logo, TheCommandShowsAndHidesItAndTheSettingsFollow) {
    Hands run;
    PagePicture& logo = run.program.pages[PageId::frmP1].pic;
    logo.Picture = {PictureRef::Source::File, "/srv/logo.png"};
    for (const bool shown : {true, false, true}) {
        person::Choose(run.program, CommandId::mnuEditLogoVisible);
        EXPECT_EQ(logo.Visible, shown);
        EXPECT_EQ(logo.Tag, shown ? "" : kHide);
        EXPECT_EQ(run.program.settings.LogoVisible, shown);
        EXPECT_EQ(run.Main()[CommandId::mnuEditLogoVisible].Checked, shown);
        const std::string line = std::string("Logo Visible:") + (shown ? "True" : "False") + "\r\n";
        EXPECT_NE(run.folder.Read("UserPreferences.txt").find(line), std::string::npos) << line;
    }
}

TEST(Logo, TheCommandTellsThatThereIsNoneOnlyWhereThereIsNone) {
    const std::string none = "There is no logo to show; choose one with Select Different Logo.";
    for (const bool hasLogo : {false, true}) {
        Hands run;
        if (hasLogo) {
            run.program.pages[PageId::frmP1].pic.Picture = {PictureRef::Source::File, "/srv/logo.png"};
        }
        for (const bool shown : {true, false}) {
            run.program.main.Notice.clear();
            person::Choose(run.program, CommandId::mnuEditLogoVisible);
            ASSERT_EQ(run.program.settings.LogoVisible, shown);
            EXPECT_EQ(run.program.main.Notice == none, shown && !hasLogo) << run.program.main.Notice;
        }
    }
}

TEST(TextWindow, AFontOfNoButtonMarksNoneAndLeavesTheColoursName) {
    Hands run;
    run.program.run.DefaultFontSize = 12;
    frmTextProps& window = run.Open<frmTextProps>(CommandId::mnuEditAllTextFonts, "frmTextProps");
    for (const OptionButton& option : window.optFontSize) {
        EXPECT_FALSE(option.Value) << option.Caption;
    }
    window.cmdColor_Click(run.program, 3);
    EXPECT_EQ(window.lblFontColor.Caption, "Current Font Color = Green");
    run.program.run.DefaultFontColor = 0x123456;
    window.chkItalic_Click(run.program);
    EXPECT_EQ(window.lblFontColor.Caption, "Current Font Color = Green");
}

TEST(Titles, WithoutANameEndBehindFor) {
    Hands run;
    frmTitle& window = run.Open<frmTitle>(CommandId::mnuEditTitles, "frmTitle");
    window.cmdClear_Click(1);
    window.cmdOK_Click(run.program);
    EXPECT_EQ(run.program.document.ClientCaption, "Proposal for ");
    EXPECT_EQ(run.Label(PageId::frmP1, 33).Caption, "Proposal for ");
    EXPECT_EQ(run.Label(PageId::frmP6_1, 64).Caption, "Proposal for  - Client's Copy");
}

TEST(Titles, ChangeByTheirButtonsAlone) {
    Hands run;
    const std::string heading = run.program.document.PageHeading;
    const std::string title = run.Label(PageId::frmP1, 33).Caption;
    frmTitle& window = run.Open<frmTitle>(CommandId::mnuEditTitles, "frmTitle");
    window.txtTitle_Change("Ours - ");
    window.txtSubTitle_Change("The Day");
    window.Form_Cancel(run.program);
    EXPECT_EQ(run.program.document.PageHeading, heading);
    EXPECT_EQ(run.Label(PageId::frmP1, 33).Caption, title);
    EXPECT_FALSE(modFile::PropertiesChanged(run.program));
}

TEST(Titles, AHeadingThatTheSettingsHoldNeedsNoSaveOfTheProposal) {
    Hands run;
    frmTitle& window = run.Open<frmTitle>(CommandId::mnuEditTitles, "frmTitle");
    window.txtTitle_Change("Ours - ");
    window.cmdDefault_Click(run.program);
    EXPECT_EQ(run.Label(PageId::frmP2, 0).Caption, "Ours - Page 2");
    EXPECT_FALSE(modFile::PropertiesChanged(run.program));
}

TEST(FinalPage, HasNoTextLinesInAnyFile) {
    Hands run;
    for (TextChangeTable* table :
         {&run.program.format.FormatTextChanges, &run.program.format.PropTextChanges}) {
        TextChangeRecord& record = (*table)[PageId::frmP6][0];
        record.FontBold = true;
        record.Text = "7";
        record.TaxExempt = true;
        record.QtyBox = true;
    }
    const auto written =
        modFormat::LinesOf(run.program, modFormat::TablesNow(run.program, modFormat::Texts::LayoutAndTexts));
    run.program.hooks.AssignPropChanges(run.program);
    for (const std::vector<std::string>& lines : {written.Lines, run.program.format.PropertyLines}) {
        EXPECT_FALSE(lines.empty());
        for (const std::string& line : lines) {
            EXPECT_EQ(line.find("frmP6.tx"), std::string::npos) << line;
        }
    }
}

} // namespace
