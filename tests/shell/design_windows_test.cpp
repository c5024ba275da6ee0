#include "format/frm_label_props.h"
#include "format/frm_rgb.h"
#include "format/frm_snap.h"
#include "format/frm_text_props.h"
#include "format/frm_title.h"
#include "format/label_commit.h"
#include "format/label_designer.h"
#include "format/label_selection.h"
#include "format/logo.h"
#include "program/windows.h"
#include "proposal/reset.h"
#include "support/person.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// What the windows of fonts, labels and titles show after each choice.

namespace {

using namespace modDesigner;

/// A second document: in the very first one the tables know every label's place.
struct Designed : RunningProgram {
    Designed() { static_cast<void>(modReset::StartNewFile(program)); }
    void Click(int index) {
        lbl_MouseDown(program, PageId::frmP1, index, kLeftButton, 10, 10);
        lbl_MouseUp(program, PageId::frmP1, index);
    }
    template <typename Form> Form& Open(CommandId id, std::string_view name) {
        person::Choose(program, id);
        return dynamic_cast<Form&>(*modWindows::Find(program, name));
    }
    frmTextProps& TextProps() { return Open<frmTextProps>(CommandId::mnuEditAllTextFonts, "frmTextProps"); }
    frmLabelProps& LabelProps() { return Open<frmLabelProps>(CommandId::mnuEditLabelProps, "frmLabelProps"); }
};

TEST(TextWindow, ShowsEveryChoiceInItsControlsAndInTheSample) {
    Designed run;
    frmTextProps& window = run.TextProps();
    ASSERT_EQ(window.lstFont.Items, (std::vector<std::string>{"Arial", "Times New Roman"}));
    EXPECT_EQ(window.lstFont.ListIndex, 1);
    window.lstFont_Click(run.program, 0);
    EXPECT_EQ(window.lstFont.ListIndex, 0);
    EXPECT_EQ(window.lblFontName.Caption, "Current Font Name = Arial");
    EXPECT_EQ(window.SampleFont.Name, "Arial");
    const std::array<float, 5> sizes{10, 9, 8, 7, 6};
    for (std::size_t chosen = 0; chosen < sizes.size(); ++chosen) {
        window.optFontSize_Click(run.program, static_cast<int>(chosen));
        EXPECT_EQ(window.SampleFont.Size, sizes[chosen]);
        EXPECT_EQ(window.txtSample.Text,
                  "Sampling Text with Arial: " + std::to_string(static_cast<int>(sizes[chosen])));
        for (std::size_t option = 0; option < sizes.size(); ++option) {
            EXPECT_EQ(window.optFontSize[option].Value, option == chosen) << option;
        }
    }
    const std::array<std::pair<const char*, Color>, 8> colours{{{"Red", 0x0000FF},
                                                                {"Orange", 0x0080FF},
                                                                {"Yellow", 0x00FFFF},
                                                                {"Green", 0x00FF00},
                                                                {"Cyan", 0xFFFF00},
                                                                {"Blue", 0xFF0000},
                                                                {"Magenta", 0xFF00FF},
                                                                {"Black", 0x000000}}};
    for (std::size_t chosen = 0; chosen < colours.size(); ++chosen) {
        EXPECT_EQ(window.cmdColor[chosen].ToolTipText, colours[chosen].first);
        window.cmdColor_Click(run.program, static_cast<int>(chosen));
        EXPECT_EQ(window.lblFontColor.Caption, "Current Font Color = " + std::string(colours[chosen].first));
        EXPECT_EQ(window.SampleFont.ForeColor, colours[chosen].second);
    }
    for (const bool italic : {true, false}) {
        window.chkItalic_Click(run.program);
        EXPECT_EQ(window.chkItalic.Value, italic);
        EXPECT_EQ(window.SampleFont.Italic, italic);
    }
    for (const int nothing : {-1, 2}) {
        window.lstFont_Click(run.program, nothing);
        EXPECT_EQ(run.program.run.DefaultFontName, "Arial");
    }
}

TEST(TextWindow, AsDefaultShowsWhatASizeOfNothingBecame) {
    Designed run;
    run.program.run.DefaultFontSize = 0;
    frmTextProps& window = run.TextProps();
    window.cmdDefault_Click(run.program);
    EXPECT_TRUE(window.optFontSize[0].Value);
    EXPECT_EQ(window.txtSample.Text, "Sampling Text with Times New Roman: 10");
}

TEST(TextWindow, ItsControlsReadAsTheyAlwaysDid) {
    Designed run;
    const frmTextProps& window = run.TextProps();
    EXPECT_EQ(window.Caption, "Common Text Properties");
    EXPECT_EQ(window.lblFont.Caption, "Choose Font Below");
    EXPECT_EQ(window.chkItalic.Caption, "Italic");
    EXPECT_EQ(window.cmdColors.Caption, "More Colors");
    EXPECT_EQ(window.cmdOK.Caption, "Apply Changes");
    EXPECT_EQ(window.cmdCancel.Caption, "Cancel");
    EXPECT_EQ(window.cmdDefault.Caption, "Set these Font Properties as Default");
    const std::array<const char*, 5> sizes{"Font Size = 10", "Font Size = 9", "Font Size = 8",
                                           "Font Size = 7", "Font Size = 6"};
    for (std::size_t size = 0; size < sizes.size(); ++size) {
        EXPECT_EQ(window.optFontSize[size].Caption, sizes[size]);
    }
}

TEST(TextWindow, EscapePutsBackAllFourAndWhatWasMadeTheDefaultStays) {
    Designed run;
    run.program.run.DefaultFontColor = 0x123456;
    frmTextProps& window = run.TextProps();
    EXPECT_EQ(window.lblFontColor.Caption, "Current Font Color = ") << "none of the eight";
    window.lstFont_Click(run.program, 0);
    window.optFontSize_Click(run.program, 1);
    window.cmdDefault_Click(run.program);
    window.lstFont_Click(run.program, 1);
    window.optFontSize_Click(run.program, 4);
    window.cmdColor_Click(run.program, 0);
    window.chkItalic_Click(run.program);
    window.Form_Cancel(run.program);
    const RunState& font = run.program.run;
    EXPECT_EQ(font.DefaultFontName, "Arial");
    EXPECT_EQ(font.DefaultFontSize, 9);
    EXPECT_EQ(font.DefaultFontColor, 0x123456U);
    EXPECT_FALSE(font.DefaultFontItalic);
    EXPECT_EQ(run.Area(PageId::frmP4, 3).FontName, "Arial");
    EXPECT_EQ(run.Area(PageId::frmP4, 3).ForeColor, 0x123456U);
    EXPECT_EQ(run.program.settings.SavedFontColor, 0x123456U);
}

TEST(TextWindow, TheCommandWithoutAWindowKeepsAllFourOfTheFontInForce) {
    Designed run;
    run.program.run.DefaultFontName = "Arial";
    run.program.run.DefaultFontSize = 7;
    run.program.run.DefaultFontColor = 255;
    run.program.run.DefaultFontItalic = true;
    person::Choose(run.program, CommandId::mnuOptSetDefaultFonts);
    const std::string settings = run.folder.Read("UserPreferences.txt");
    for (const char* line :
         {"Font Name:Arial\r\n", "Font Size:7\r\n", "Font Color:255\r\n", "Font Italic:True\r\n"}) {
        EXPECT_NE(settings.find(line), std::string::npos) << line;
    }
    static_cast<void>(modReset::StartNewFile(run.program));
    EXPECT_EQ(run.Area(PageId::frmP2, 0).FontSize, 7) << "new proposals start with it";
    EXPECT_TRUE(run.Area(PageId::frmP2, 0).FontItalic);
}

TEST(ColourWindow, StartsWithTheColourOfItsOpenerAndReadsAsItAlwaysDid) {
    Designed run;
    run.program.run.DefaultFontColor = 0x0C80FF;
    run.TextProps().cmdColors_Click(run.program);
    auto& window = dynamic_cast<frmRGB&>(*modWindows::Find(run.program, "frmRGB"));
    EXPECT_EQ(window.Caption, "More Colors");
    EXPECT_EQ(window.Red.Value, 255);
    EXPECT_EQ(window.Grn.Value, 128);
    EXPECT_EQ(window.Blu.Value, 12);
    EXPECT_EQ(window.lblR[0].Caption + window.lblR[1].Caption, "255FF");
    EXPECT_EQ(window.lblG[0].Caption + window.lblG[1].Caption, "12880");
    EXPECT_EQ(window.lblB[0].Caption + window.lblB[1].Caption, "120C");
    EXPECT_EQ(window.lblRGB.BackColor, 0x0C80FFU);
    EXPECT_EQ(window.txtHexValue.Text, "&H0C80FF&");
    EXPECT_EQ(window.txtIntValue.Text, "819455");
    EXPECT_EQ(window.txtHttpValue.Text, "#FF800C");
    EXPECT_EQ(window.lblRed.Caption + window.lblGrn.Caption + window.lblBlu.Caption, "REDGRNBLU");
    EXPECT_EQ(window.lblRGB.Caption, "RGB");
    EXPECT_EQ(window.lblHexValue.Caption, "HEX COLOR CODE =");
    EXPECT_EQ(window.lblIntValue.Caption, " INTEGER VALUE =");
    EXPECT_EQ(window.lblHttpValue.Caption, " HTTP VALUE =");
    EXPECT_EQ(window.cmdNormInc.Caption, "Norm Inc");
    EXPECT_EQ(window.cmdSmInc.Caption, "Small Inc");
    EXPECT_EQ(window.cmdOK.Caption, "Apply");
    EXPECT_EQ(window.cmdCancel.Caption, "Cancel");
    window.Red_Change(run.program, 0);
    EXPECT_EQ(window.lblR[1].Caption, "00");
    window.Form_Cancel(run.program);
    EXPECT_EQ(run.program.run.DefaultFontColor, 0x0C80FFU);
}

TEST(LabelWindow, ShowsEveryChoiceInItsControlsAndOnTheLabel) {
    Designed run;
    run.Click(9);
    frmLabelProps& window = run.LabelProps();
    const PageLabel& label = run.Label(PageId::frmP1, 9);
    window.lstFont_Click(run.program, 0);
    EXPECT_EQ(window.lstFont.ListIndex, 0);
    EXPECT_EQ(window.lblFontName.Caption, "Font = Arial");
    for (const int nothing : {-1, 2}) {
        window.lstFont_Click(run.program, nothing);
        EXPECT_EQ(label.FontName, "Arial");
        EXPECT_EQ(window.lstFont.ListIndex, 0);
    }
    for (std::size_t size = 0; size < window.cmdSize.size(); ++size) {
        window.cmdSize_Click(run.program, static_cast<int>(size));
        const std::string& points = window.cmdSize[size].Caption;
        EXPECT_EQ(window.lblSize.Caption, "Label Font Size = " + points);
        EXPECT_EQ(label.FontSize, std::stof(points));
    }
    for (std::size_t colour = 0; colour < window.cmdColor.size(); ++colour) {
        window.cmdColor_Click(run.program, static_cast<int>(colour));
        EXPECT_EQ(label.ForeColor, window.cmdColor[colour].BackColor);
    }
    const bool bold = label.FontBold;
    for (const bool turned : {true, false}) {
        window.chkBold_Click(run.program);
        window.chkItalic_Click(run.program);
        window.chkUnderline_Click(run.program);
        EXPECT_EQ(window.chkBold.Value, bold != turned);
        EXPECT_EQ(label.FontBold, bold != turned);
        EXPECT_EQ(window.chkItalic.Value, label.FontItalic);
        EXPECT_EQ(window.chkUnderline.Value, turned);
        EXPECT_EQ(label.FontUnderline, turned);
    }
}

TEST(LabelWindow, OkAfterACancelMakesItsChangesLast) {
    Designed run;
    run.Click(9);
    run.LabelProps().cmdCancel_Click(run.program);
    modWindows::Sweep(run.program);
    run.Click(9);
    frmLabelProps& window = run.LabelProps();
    window.txtCaption_Change(run.program, "Day");
    window.cmdOK_Click(run.program);
    EXPECT_EQ(run.Label(PageId::frmP1, 9).Caption, "Day");
    EXPECT_EQ(run.program.format.PropLabelChanges[PageId::frmP1][9].Caption, "Day");
}

TEST(LabelWindow, ALabelThatJoinsTheGroupLaterTakesEveryFieldThatWasChanged) {
    Designed run;
    for (const int index : {9, 10}) {
        run.Click(index);
        lbl_DblClick(run.program, PageId::frmP1, index);
    }
    PageLabel& late = run.Label(PageId::frmP1, 11);
    const bool bold = late.FontBold;
    const std::string caption = late.Caption;
    frmLabelProps& window = run.LabelProps();
    window.lstFont_Click(run.program, 0);
    window.cmdSize_Click(run.program, 4);
    window.cmdColor_Click(run.program, 1);
    window.chkBold_Click(run.program);
    window.chkItalic_Click(run.program);
    window.chkUnderline_Click(run.program);
    const PageLabel first = run.Label(PageId::frmP1, 9);
    Select(late);
    CloseLabelWindow(run.program);
    EXPECT_EQ(late.Caption, caption);
    EXPECT_EQ(late.FontName, "Arial");
    EXPECT_EQ(late.FontSize, 14);
    EXPECT_EQ(late.ForeColor, 0x0080FFU);
    EXPECT_EQ(late.FontBold, first.FontBold) << bold;
    EXPECT_EQ(late.FontItalic, first.FontItalic);
    EXPECT_TRUE(late.FontUnderline);
    EXPECT_EQ(run.program.format.PropLabelChanges[PageId::frmP1][11].ForeColor, 0x0080FFU);
    EXPECT_FALSE(IsSelected(late));
}

TEST(TitleWindow, OpensWithBothBoxesMarkedAndClearsOneByOne) {
    Designed run;
    frmTitle& window = run.Open<frmTitle>(CommandId::mnuEditTitles, "frmTitle");
    EXPECT_EQ(window.txtTitle.SelStart, 0);
    EXPECT_EQ(window.txtTitle.SelLength, static_cast<int>(window.txtTitle.Text.size()));
    EXPECT_EQ(window.txtSubTitle.SelStart, 0);
    EXPECT_EQ(window.txtSubTitle.SelLength, static_cast<int>(window.txtSubTitle.Text.size()));
    EXPECT_FALSE(window.TitleChanged);
    const std::string sub = window.txtSubTitle.Text;
    window.cmdClear_Click(0);
    EXPECT_EQ(window.txtTitle.Text, "");
    EXPECT_EQ(window.FocusNext, "txtTitle");
    EXPECT_TRUE(window.TitleChanged);
    EXPECT_EQ(window.txtSubTitle.Text, sub);
}

TEST(TitleWindow, OpensWithTheHeadingAndBothItsEndsCloseIt) {
    Designed run;
    frmTitle& window = run.Open<frmTitle>(CommandId::mnuEditTitles, "frmTitle");
    EXPECT_EQ(window.txtTitle.Text, run.program.document.PageHeading);
    EXPECT_NE(window.txtTitle.Text, "");
    window.cmdOK_Click(run.program);
    EXPECT_TRUE(window.Closing);
    modWindows::Sweep(run.program);
    frmTitle& again = run.Open<frmTitle>(CommandId::mnuEditTitles, "frmTitle");
    again.Form_Cancel(run.program);
    EXPECT_TRUE(again.Closing);
}

TEST(TitleWindow, ATitleThatSomebodyGaveStaysAndOneThatWasClearedFollowsTheClient) {
    Designed run;
    Typist typist(run.program);
    const auto give = [&](std::string_view words) {
        frmTitle& window = run.Open<frmTitle>(CommandId::mnuEditTitles, "frmTitle");
        window.txtSubTitle_Change(words);
        window.cmdOK_Click(run.program);
        modWindows::Sweep(run.program);
    };
    const std::string& title = run.Label(PageId::frmP1, 33).Caption;
    give("The Day");
    typist.Click(PageId::frmP1, 2);
    typist.Type("Ann");
    EXPECT_EQ(title, "The Day");
    give("");
    EXPECT_EQ(title, "Proposal for Ann");
    typist.Click(PageId::frmP1, 2);
    typist.PutCursor(3);
    typist.Type("a");
    EXPECT_EQ(title, "Proposal for Anna");
    give("The Day");
    give("Proposal for Anna");
    typist.Click(PageId::frmP1, 2);
    typist.PutCursor(4);
    typist.Type("x");
    EXPECT_EQ(title, "Proposal for Annax") << "the words that come by themselves are nobody's";
}

TEST(TitleWindow, AHeadingMadeTheDefaultIsThatOfTheNextProposal) {
    Designed run;
    frmTitle& window = run.Open<frmTitle>(CommandId::mnuEditTitles, "frmTitle");
    window.txtTitle_Change("Ours - ");
    window.cmdDefault_Click(run.program);
    window.Form_Cancel(run.program);
    modWindows::Sweep(run.program);
    static_cast<void>(modReset::StartNewFile(run.program));
    EXPECT_EQ(run.Label(PageId::frmP2, 0).Caption, "Ours - Page 2");
}

TEST(TitleWindow, AHeadingMadeTheDefaultGoesWithAProposalThatHadOneOfItsOwn) {
    Designed run;
    frmTitle& own = run.Open<frmTitle>(CommandId::mnuEditTitles, "frmTitle");
    own.txtTitle_Change("Ann's Day - ");
    own.cmdOK_Click(run.program);
    modWindows::Sweep(run.program);
    frmTitle& window = run.Open<frmTitle>(CommandId::mnuEditTitles, "frmTitle");
    window.txtTitle_Change("Ours - ");
    window.cmdDefault_Click(run.program);
    const LabelChangeTable& rides = run.program.format.PropLabelChanges;
    EXPECT_EQ(rides[PageId::frmP2][0].Caption, "Ours - Page 2");
    EXPECT_EQ(rides[PageId::frmP5][0].Caption, "Ours - Page 5");
}

TEST(DesignWindows, EveryButtonThatEndsOneClosesIt) {
    Designed run;
    frmTextProps& text = run.TextProps();
    text.cmdOK_Click(run.program);
    EXPECT_TRUE(text.Closing);
    modWindows::Sweep(run.program);
    const auto snapCloses = [&](const auto& end) {
        frmSnap& window = run.Open<frmSnap>(CommandId::mnuToolsSnap, "frmSnap");
        end(window);
        const bool closing = window.Closing;
        modWindows::Sweep(run.program);
        return closing;
    };
    EXPECT_TRUE(snapCloses([&](frmSnap& window) { window.cmdSnap_Click(run.program, 0); }));
    EXPECT_TRUE(snapCloses([&](frmSnap& window) { window.cmdCancel_Click(run.program); }));
    EXPECT_TRUE(snapCloses([&](frmSnap& window) { window.Form_Cancel(run.program); }));
    frmTextProps& opener = run.TextProps();
    const auto coloursClose = [&](const auto& end) {
        opener.cmdColors_Click(run.program);
        auto& window = dynamic_cast<frmRGB&>(*modWindows::Find(run.program, "frmRGB"));
        end(window);
        const bool closing = window.Closing;
        modWindows::Sweep(run.program);
        return closing;
    };
    EXPECT_TRUE(coloursClose([&](frmRGB& window) { window.cmdOK_Click(run.program); }));
    EXPECT_TRUE(coloursClose([&](frmRGB& window) { window.cmdCancel_Click(run.program); }));
    EXPECT_TRUE(coloursClose([&](frmRGB& window) { window.Form_Cancel(run.program); }));
}

TEST(ColourWindow, OfTheAreasLeavesTheLabelsAlone) {
    Designed run;
    run.Click(9);
    LabelChangeRecord& record = run.program.format.FormatLabelChanges[PageId::frmP1][9];
    record.Saved = true;
    run.TextProps().cmdColors_Click(run.program);
    dynamic_cast<frmRGB&>(*modWindows::Find(run.program, "frmRGB")).cmdOK_Click(run.program);
    EXPECT_TRUE(record.Saved) << "nothing to be saved again";
}

TEST(LabelDrag, ALabelThatWasLetGoStaysWhereItIs) {
    Designed run;
    run.program.format.SnapTwips = 180;
    const float left = run.Label(PageId::frmP1, 9).Left;
    lbl_MouseDown(run.program, PageId::frmP1, 9, kLeftButton, 10, 10);
    EXPECT_FALSE(lbl_MouseMove(run.program, PageId::frmP1, 10, 910, 10)) << "another one is held";
    EXPECT_TRUE(lbl_MouseMove(run.program, PageId::frmP1, 9, 910, 10));
    EXPECT_EQ(run.Label(PageId::frmP1, 9).Left, left + 180);
    lbl_MouseUp(run.program, PageId::frmP1, 9);
    EXPECT_FALSE(lbl_MouseMove(run.program, PageId::frmP1, 9, 910, 10));
    EXPECT_EQ(run.Label(PageId::frmP1, 9).Left, left + 180);
}

TEST(LogoDrag, GoesByTheSnapAndBelongsToTheFormatWhereItWasLetGo) {
    Designed run;
    run.program.format.SnapTwips = 180;
    run.program.settings.LogoFile = "/srv/logo.png";
    PagePicture& logo = run.program.pages[PageId::frmP1].pic;
    logo.Left = 720;
    logo.Top = 540;
    modLogo::pic_MouseDown(run.program, kRightButton, 10, 10);
    EXPECT_FALSE(modLogo::pic_MouseMove(run.program, 910, 910)) << "the right button holds nothing";
    modLogo::pic_MouseDown(run.program, kLeftButton, 10, 10);
    EXPECT_TRUE(modLogo::pic_MouseMove(run.program, 190, 190));
    EXPECT_EQ(logo.Left, 900);
    EXPECT_EQ(logo.Top, 720);
    EXPECT_FALSE(run.program.format.Touched);
    modLogo::pic_MouseUp(run.program);
    EXPECT_FALSE(modLogo::pic_MouseMove(run.program, 910, 910));
    EXPECT_EQ(logo.Left, 900);
    const FormatRecords& format = run.program.format;
    EXPECT_EQ(format.LogoLeft, 900);
    EXPECT_EQ(format.LogoTop, 720);
    EXPECT_EQ(format.LogoPath, "/srv/logo.png");
    EXPECT_TRUE(format.LogoChanged);
    EXPECT_TRUE(format.Touched);
    EXPECT_EQ(run.program.main.Notice, "Kept only by a format or by Save this Logo as Default.");
    modLogo::pic_DblClick(run.program);
    EXPECT_EQ(logo.ToolTipText, " Left = 900, Top = 720");
    run.program.settings.LogoFile = "/srv/other.png";
    modLogo::pic_MouseUp(run.program);
    EXPECT_EQ(format.LogoPath, "/srv/logo.png") << "the format has one already";
}

} // namespace
