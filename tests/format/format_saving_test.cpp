#include "format/format_save.h"

#include "format/format_changes.h"
#include "format/format_commands.h"
#include "format/format_lines.h"
#include "format/frm_label_props.h"
#include "format/frm_text_props.h"
#include "format/logo.h"
#include "format/property_file.h"
#include "pages/row_fields.h"
#include "program/keys.h"
#include "program/windows.h"
#include "proposal/proposal_save.h"
#include "support/failing_disk.h"
#include "support/formats.h"
#include "support/person.h"
#include "support/typist.h"

#include <cerrno>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>

namespace {

constexpr const char* kClear = "This action will clear all current data if";
constexpr const char* kEnd = "Proceeding with this action will end the editing session";
constexpr const char* kShallTheTexts = "Shall the texts of this proposal become part of the format?";
constexpr const char* kNothingChanged = "No properties have been changed. File Format not saved.";

struct Saving : Formats {
    void PressAndLetGo(int label) {
        modDesigner::lbl_MouseDown(program, PageId::frmP1, label, modDesigner::kLeftButton, 0, 0);
        modDesigner::lbl_MouseUp(program, PageId::frmP1, label);
    }
    /// Rewords a label in its window, which stays open.
    void Reword(int label, std::string_view words) {
        PressAndLetGo(label);
        person::Choose(program, CommandId::mnuEditLabelProps);
        dynamic_cast<frmLabelProps&>(*modWindows::Find(program, "frmLabelProps"))
            .txtCaption_Change(program, words);
    }
    [[nodiscard]] bool LabelWindowIsOpen() const {
        return modWindows::Find(program, "frmLabelProps") != nullptr;
    }
    void Write(PageId page, int area, std::string_view text) {
        Typist typist(program);
        typist.Click(page, area);
        typist.Type(text);
    }
    void Save() { modFormat::mnuFileFormatSave_Click(program); }
    void ExpectNothingToSave() {
        Questions().Expect(kNothingChanged);
        Save();
    }
    [[nodiscard]] std::string File(std::string_view name = "House.fmt") const {
        return folder.Read("Proposals/" + std::string(name));
    }
    [[nodiscard]] bool FileHas(std::string_view words, std::string_view name = "House.fmt") const {
        return File(name).find(words) != std::string::npos;
    }
};

TEST(FormatSaving, WhatStandsInTheLabelWindowIsSavedAndTheWindowCloses) {
    Saving run;
    run.Open();
    run.PressAndLetGo(9);
    run.Save();
    run.Reword(9, "Noon");
    run.Save();
    EXPECT_TRUE(run.FileHas(".Caption=Noon .FontName="));
    EXPECT_FALSE(run.LabelWindowIsOpen());
}

TEST(FormatSaving, WhatStandsInTheLabelWindowIsInTheDefaultFormat) {
    Saving run;
    run.Open();
    run.PressAndLetGo(9);
    run.Save();
    run.Reword(9, "Noon");
    modFormat::mnuFileFormatDefault_Click(run.program);
    EXPECT_TRUE(run.FileHas(".Caption=Noon .FontName="));
    EXPECT_FALSE(run.LabelWindowIsOpen());
}

TEST(FormatSaving, WhatStandsInTheLabelWindowIsAskedAboutBeforeANewFormatClearsIt) {
    Saving run;
    run.Reword(9, "Noon");
    run.Questions().Expect(kClear, Answer::No);
    modFormat::mnuFileFormatNew_Click(run.program);
    EXPECT_EQ(run.Label(PageId::frmP1, 9).Caption, "Noon");
}

TEST(FormatSaving, AChangedFormatIsSavedBeforeItIsTheDefault) {
    Saving run;
    run.Open();
    run.Drag(9);
    modFormat::mnuFileFormatDefault_Click(run.program);
    EXPECT_TRUE(run.FileHas("frmP1.lbl(9).Left=1380 "));
    EXPECT_EQ(run.program.main.Notice, "Default format saved: " + (run.folder / "Proposals/House.fmt"));
}

TEST(FormatSaving, AFileThatIsNotThereBecomesNoDefault) {
    Saving run;
    run.Open();
    std::filesystem::remove(run.folder / "Proposals/House.fmt");
    EXPECT_FALSE(modFormat::MakeDefault(run.program));
    EXPECT_EQ(run.program.settings.DefaultFormatPath, "");
    EXPECT_FALSE(run.program.settings.LoadDefaultFormat);
}

TEST(FormatSaving, ASaveThatWasRefusedLeavesTheTextsToBeSavedWithTheDefault) {
    Saving run;
    run.Open();
    run.Type();
    {
        const FailingDisk disk{{FailingDisk::Call::Write, 1, ENOSPC, FailingDisk::kForever}};
        run.Questions().Expect("An error occurred in SaveFileFormat.");
        run.Save();
    }
    ASSERT_EQ(run.File(), kHouse);
    modFormat::mnuFileFormatDefault_Click(run.program);
    EXPECT_EQ(run.File(), "frmP1.txt(8).Text=Hall\r\n" + std::string(kHouse));
}

TEST(FormatSaving, ASecondSaveAsksNothingAboutTheFirst) {
    Saving run;
    run.Open();
    run.Drag(9);
    run.Save();
    run.Drag(9);
    run.Save();
    EXPECT_TRUE(run.FileHas("frmP1.lbl(9).Left=1560 "));
}

TEST(FormatSaving, AFontOrALogosPlaceThatWasSavedIsNoChangeAnyMore) {
    Saving run;
    run.Open();
    person::Choose(run.program, CommandId::mnuEditAllTextFonts);
    auto& window = dynamic_cast<frmTextProps&>(*modWindows::Find(run.program, "frmTextProps"));
    window.optFontSize_Click(run.program, 2);
    window.cmdOK_Click(run.program);
    run.Save();
    EXPECT_TRUE(run.FileHas("UDP.FontName=Times New Roman .FontSize=8 "));
    run.ExpectNothingToSave();
    run.program.format.LogoPath = "/srv/logo.png";
    modLogo::pic_MouseDown(run.program, 1, 0, 0);
    static_cast<void>(modLogo::pic_MouseMove(run.program, 180, 0));
    modLogo::pic_MouseUp(run.program);
    run.Save();
    EXPECT_TRUE(run.FileHas("frmP1.pic.Picture=/srv/logo.png .Left="));
    run.ExpectNothingToSave();
}

TEST(FormatSaving, ColumnsThatWereTurnedOnAreSomethingToSave) {
    Saving run;
    Typist typist(run.program);
    typist.Click(PageId::frmP2, 4);
    typist.Press(keys::kF8);
    run.Questions().ExpectInput("Saving File As...", "Barn");
    run.Save();
    EXPECT_TRUE(run.FileHas("frmP2.txq(4).QtyBox=True .QtyValue=Qty. .AmtValue=Amt.\r\n", "Barn.fmt"));
}

TEST(FormatSaving, TheBoldOfAnOpenedProposalIsSavedWithTheLayout) {
    Saving run;
    run.Write(PageId::frmP1, 2, "Ann Lee");
    run.Write(PageId::frmP1, 10, "Arch");
    person::Choose(run.program, CommandId::mnuEditTextBold);
    run.Questions().Expect("File was saved as Ann Lee.hef");
    ASSERT_EQ(modFile::SaveEventFile(run.program), modFile::SaveResult::Saved);
    modProposal::mnuFileNew_Click(run.program);
    run.OpenProposal("Ann Lee.hef");
    ASSERT_TRUE(run.Area(PageId::frmP1, 10).FontBold);
    run.Questions().ExpectInput("Saving File As...", "Barn");
    run.Questions().Expect(kShallTheTexts, Answer::Yes);
    run.Save();
    EXPECT_EQ(run.File("Barn.fmt").find("frmP1.txt(10).FontBold=True\r\n"), 0U);
}

TEST(FormatSaving, AnAreaThatAProposalsLayoutMakesBoldIsSomethingToSave) {
    Saving run;
    EXPECT_FALSE(modFormat::FormatHasChanges(run.program));
    run.program.format.PropertyLines = {"frmP5.txt(65).FontBold=True"};
    modProperties::ParsePropertyFile(run.program);
    EXPECT_TRUE(modFormat::FormatHasChanges(run.program));
}

TEST(FormatSaving, BlanksBeforeTheEndingOfANameAreNoPartOfIt) {
    Saving run;
    run.Drag(9);
    run.Questions().ExpectInput("Saving File As...", "Barn  .FMT ");
    run.Save();
    EXPECT_TRUE(run.folder.Has("Proposals/Barn.fmt"));
}

TEST(FormatSaving, AnyLineOfTheClientIsAskedAbout) {
    for (int line = 2; line <= 7; ++line) {
        Saving run;
        run.Open();
        run.Area(PageId::frmP1, line).Text = "Jane Roe";
        run.Questions().Expect(kShallTheTexts, Answer::Cancel);
        run.Save();
        run.Questions().Done();
        EXPECT_EQ(run.File(), kHouse);
    }
}

TEST(FormatSaving, TextsThatASaveHasTakenIntoTheFormatStayInItAtALayoutOnlySave) {
    Saving run;
    run.Open();
    run.Write(PageId::frmP1, 10, "Arch");
    run.Questions().Expect(kShallTheTexts, Answer::No);
    run.Save();
    const std::string both = "frmP1.txt(10).Text=Arch\r\n" + std::string(kHouse);
    ASSERT_EQ(run.File(), both);
    run.program.format.LogoChanged = true;
    run.Questions().Expect(kShallTheTexts, Answer::Yes);
    run.Save();
    EXPECT_EQ(run.File(), both);
}

TEST(FormatSaving, OneLineEndsABoldForAllTextsBehindIt) {
    Saving run;
    const std::string lines = "frmP1.txt(0).FontBold=True\r\nfrmP1.txt(0).Text=Wedding\r\n"
                              "frmP1.txt(1).FontBold=False\r\nfrmP1.txt(1).Text=Spring\r\n"
                              "frmP1.txt(8).Text=Hall\r\n" +
                              std::string(kHouse);
    run.folder.Write("Proposals/Bold.fmt", lines);
    run.Open("Bold.fmt");
    run.Save();
    EXPECT_EQ(run.File("Bold.fmt"), lines);
}

TEST(FormatSaving, ALabelIsSavedAsItStandsOnThePage) {
    Saving run;
    run.Open();
    run.Drag(33);
    run.Write(PageId::frmP1, 2, "Jane Roe");
    run.Questions().Expect(kShallTheTexts, Answer::No);
    run.Save();
    EXPECT_TRUE(run.FileHas(".Caption=Proposal for Jane Roe .FontName="));
    EXPECT_EQ(run.program.format.FormatLabelChanges[PageId::frmP1][33].Caption, "Proposal for Jane Roe");
}

TEST(FormatSaving, TheTablesAreMadeFromWhatStandsOnThePages) {
    Saving run;
    run.Open();
    run.Area(PageId::frmP5, 65).FontBold = true;
    modPages::PlaceColumns(run.program, PageId::frmP5, 32, modPages::Columns::On);
    run.program.pages[PageId::frmP5].txtQty[32].Text = "3";
    run.program.pages[PageId::frmP5].txtAmt[32].Text = "1.50";
    for (const modFormat::Texts texts : {modFormat::Texts::LayoutAndTexts, modFormat::Texts::LayoutOnly}) {
        const bool values = texts == modFormat::Texts::LayoutAndTexts;
        const modFormat::FormatTables tables = modFormat::TablesNow(run.program, texts);
        const auto& areas = tables.Areas[PageId::frmP5];
        EXPECT_TRUE(areas[65].FontBold);
        EXPECT_TRUE(areas[32].QtyBox);
        EXPECT_EQ(areas[32].QtyValue, values ? "3" : "");
        EXPECT_EQ(areas[32].AmtValue, values ? "1.50" : "");
    }
}

TEST(FormatSaving, ValuesThatItsLinesCannotHoldAreToldTheFirstFiveByName) {
    for (const bool logo : {false, true}) {
        Saving run;
        run.Open();
        run.Area(PageId::frmP1, 8).Text = "a .FontBold=b";
        Typist typist(run.program);
        typist.Click(PageId::frmP2, 4);
        typist.Press(keys::kF8);
        run.program.pages[PageId::frmP2].txtQty[4].Text = "1 .AmtValue=2";
        run.program.pages[PageId::frmP2].txtAmt[4].Text = "3\n4";
        run.Label(PageId::frmP1, 9).FontName = "St. Foo";
        run.program.run.DefaultFontName = "a .FontSize=b";
        std::string told = "The text \"a .FontBold=b\" cannot be kept in a format.\r\n"
                           "The text \"1 .AmtValue=2\" cannot be kept in a format.\r\n"
                           "The text \"3\n4\" cannot be kept in a format.\r\n"
                           "The font name \"St. Foo\" cannot be kept in a format.\r\n"
                           "The font name \"a .FontSize=b\" cannot be kept in a format.";
        if (logo) {
            run.program.format.LogoPath = "/srv/a .Left=b.png";
            told += "\r\nand 1 more.";
        }
        run.Questions().Expect(kShallTheTexts, Answer::No);
        run.Questions().ExpectBox({told, Buttons::Ok, ""}, Answer::Ok);
        run.Save();
    }
}

TEST(FormatNew, ChangesOfTheFormatThatAreKeptStopIt) {
    Saving run;
    run.Open();
    run.Drag(9);
    run.Questions().Expect(kClear, Answer::Yes);
    run.Questions().Expect("The format House.fmt has changes that are not saved.", Answer::Cancel);
    modFormat::mnuFileFormatNew_Click(run.program);
    EXPECT_TRUE(run.program.format.FormatOpen);
    EXPECT_EQ(run.Label(PageId::frmP1, 9).Left, 1380);
}

TEST(FormatNew, TheKeyboardGoesToTheFirstFieldOfTheFirstPage) {
    Saving run;
    run.Open();
    Typist(run.program).Click(PageId::frmP2, 4);
    run.Questions().Expect(kClear, Answer::Yes);
    modFormat::mnuFileFormatNew_Click(run.program);
    EXPECT_EQ(run.program.main.Focus, (FieldRef{PageId::frmP1, FieldKind::txt, 0}));
}

/// While a format is being edited the person can still choose to go on with it.
TEST(FormatEditing, GoingOnWithTheDefaultFormatLeavesItTheDefault) {
    Saving run;
    run.Open();
    modFormat::mnuFileFormatDefault_Click(run.program);
    run.program.format.EditingFormat = true;
    run.Questions().Expect(kClear, Answer::Yes);
    run.Questions().Expect(kEnd, Answer::No);
    run.Questions().Expect("Resume Editing.");
    modFormat::mnuFileFormatNew_Click(run.program);
    EXPECT_TRUE(run.program.settings.LoadDefaultFormat);
}

TEST(FormatEditing, ADefaultFormatWhoseFileWasDeletedIsNoneThoughItsEditingGoesOn) {
    Saving run;
    run.Open();
    modFormat::mnuFileFormatDefault_Click(run.program);
    run.program.format.EditingFormat = true;
    run.Questions().Expect("Are you sure", Answer::Yes);
    run.Questions().Expect("This was the default format.");
    run.Questions().Expect(kEnd, Answer::No);
    run.Questions().Expect("Resume Editing.");
    modFormat::mnuFileFormatDelete_Click(run.program);
    EXPECT_TRUE(run.program.format.FormatOpen);
    EXPECT_EQ(run.program.settings.DefaultFormatPath, "");
    EXPECT_FALSE(run.program.settings.LoadDefaultFormat);
}

} // namespace
