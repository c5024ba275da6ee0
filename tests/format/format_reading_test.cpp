#include "format/format_changes.h"
#include "format/format_commands.h"
#include "format/frm_text_props.h"
#include "program/windows.h"
#include "support/formats.h"
#include "support/person.h"
#include "support/typist.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

namespace {

struct Reading : Formats {
    /// Opens a format of these lines.
    void Lay(const std::string& lines) {
        folder.Write("Proposals/Laid.fmt", lines);
        Open("Laid.fmt");
    }
    [[nodiscard]] std::string Figure(int index) { return TextOf(PageId::frmP6, index); }
    /// Gives all areas another size, by the window.
    void ChangeTheFont() {
        person::Choose(program, CommandId::mnuEditAllTextFonts);
        auto& window = dynamic_cast<frmTextProps&>(*modWindows::Find(program, "frmTextProps"));
        window.optFontSize_Click(program, 2);
        window.cmdOK_Click(program);
        modWindows::Sweep(program);
    }
};

TEST(FormatReading, TheFontOfAFormatIsThatOfAllAreasAndNoChangeOfIt) {
    Reading run;
    run.Lay("UDP.FontName=Arial .FontSize=8 .FontColor=255 .FontItalic=True\r\n");
    for (const PageId page : kAllPages) {
        const TextArea& area = run.program.pages[page].txt.back();
        EXPECT_EQ(area.FontName, "Arial");
        EXPECT_EQ(area.FontSize, 8);
        EXPECT_EQ(area.ForeColor, 255U);
        EXPECT_TRUE(area.FontItalic);
    }
    EXPECT_FALSE(modFormat::FormatHasChanges(run.program));
    run.Questions().Expect("No properties have been changed. File Format not saved.");
    modFormat::mnuFileFormatSave_Click(run.program);
}

TEST(FormatReading, WithoutAnAmountTheFinalPageStaysEmpty) {
    Reading run;
    run.Lay("frmP2.txt(0).Text=Chairs\r\nfrmP2.txq(1).QtyBox=True .QtyValue=3 .AmtValue=\r\n");
    for (int figure = 0; figure <= 5; ++figure) {
        EXPECT_EQ(run.Figure(figure), "") << figure;
    }
}

TEST(FormatReading, TheLastRowOfEachPageIsReckonedAndCounts) {
    Reading run;
    run.Lay("frmP1.txq(19).QtyBox=True .QtyValue=2 .AmtValue=4.00\r\n"
            "frmP5.txq(32).QtyBox=True .QtyValue=3 .AmtValue=1.50\r\n");
    EXPECT_EQ(run.TextOf(PageId::frmP1, 29), "8.00");
    EXPECT_EQ(run.TextOf(PageId::frmP5, 65), "4.50");
    EXPECT_EQ(run.Figure(0), "12.50");
}

TEST(FormatReading, WhyOneCouldNotBeReadStandsInTheLog) {
    Reading run;
    run.Open();
    std::filesystem::remove(run.folder / "Proposals/House.fmt");
    const std::string told = "The format House.fmt in " + (run.folder / "Proposals/") +
                             " could not be read; new proposals start without it.";
    run.Questions().Expect(told);
    modProposal::mnuFileNew_Click(run.program);
    EXPECT_NE(run.folder.Read("Error.log").find(told + "\r\n"), std::string::npos);
}

TEST(FormatReading, ATextThatIsTooLongForItsAreaStandsRedAtOnce) {
    Reading run;
    run.Lay("frmP2.txt(3).Text=" + std::string(200, 'x') + "\r\nfrmP2.txt(4).Text=Tent\r\n");
    EXPECT_EQ(run.Area(PageId::frmP2, 3).BackColor, colors::kOverLimit);
    EXPECT_EQ(run.Area(PageId::frmP2, 4).BackColor, colors::kResting);
}

TEST(FormatReading, IsTheBaseOfTheLabelsAndSoIsASave) {
    Reading run;
    run.Open();
    EXPECT_EQ(run.program.pages[PageId::frmP1].LabelBaseState[9].Caption, "Day");
    EXPECT_EQ(run.program.pages[PageId::frmP1].LabelBaseState[9].Left, 1200);
    run.Drag(9);
    modFormat::mnuFileFormatSave_Click(run.program);
    EXPECT_EQ(run.program.pages[PageId::frmP1].LabelBaseState[9].Left, 1380);
}

TEST(FormatReading, AProtectedTextGoesWithItsFormat) {
    Reading run;
    run.program.format.OverwriteFormatText = false;
    run.Lay("frmP1.txt(8).Text=Hall\r\n");
    ASSERT_TRUE(run.Area(PageId::frmP1, 8).Locked);
    run.Questions().Expect("This action will clear all current data if", Answer::Yes);
    modFormat::mnuFileFormatNew_Click(run.program);
    EXPECT_EQ(run.TextOf(PageId::frmP1, 8), "");
    EXPECT_FALSE(run.Area(PageId::frmP1, 8).Locked);
}

TEST(AreaFont, AChangeLeavesTheFieldWithTheKeyboardInItsColour) {
    Reading run;
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 8);
    ASSERT_EQ(run.Area(PageId::frmP1, 8).BackColor, colors::kFocused);
    run.ChangeTheFont();
    EXPECT_EQ(run.Area(PageId::frmP1, 8).FontSize, 8);
    EXPECT_EQ(run.Area(PageId::frmP1, 8).BackColor, colors::kFocused);
    EXPECT_EQ(run.Area(PageId::frmP1, 9).BackColor, colors::kResting);
}

TEST(AreaFont, AChangeLeavesAQuantityThatIsNoNumberRed) {
    for (const bool number : {true, false}) {
        Reading run;
        Typist typist(run.program);
        typist.Click(PageId::frmP2, 4);
        typist.Press(keys::kF8);
        typist.Type(number ? "12" : "1.2.3");
        const TextArea& box = run.program.pages[PageId::frmP2].txtQty[4];
        const Color colour = number ? colors::kFocused : colors::kOverLimit;
        ASSERT_EQ(box.BackColor, colour);
        run.ChangeTheFont();
        EXPECT_EQ(box.BackColor, colour);
    }
}

} // namespace
