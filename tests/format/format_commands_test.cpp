#include "format/format_commands.h"

#include "format/format_changes.h"
#include "format/format_save.h"
#include "format/frm_text_props.h"
#include "format/label_designer.h"
#include "format/logo.h"
#include "pages/row_fields.h"
#include "program/keys.h"
#include "program/windows.h"
#include "proposal/frm_file.h"
#include "proposal/lifecycle.h"
#include "support/failing_disk.h"
#include "support/formats.h"
#include "support/person.h"
#include "support/typist.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>

namespace {

const ScriptedQuestions::Box kClearQuestion{
    "This action will clear all current data if\r\nthe data hasn't already been saved. Continue?",
    Buttons::YesNo, "Beginning New File Format"};
const ScriptedQuestions::Box kEndQuestion{
    "Proceeding with this action will end the editing session of your file format. Continue?", Buttons::YesNo,
    "Ending Format Editing"};

TEST(FormatOpen, LaysTheChosenOneAndShowsItsName) {
    Formats run;
    run.program.settings.LoadDefaultFormat = true;
    modFormat::mnuFileFormatOpen_Click(run.program);
    EXPECT_EQ(run.Chooser().Caption, "Opening Format File");
    ASSERT_EQ(run.Chooser().FileList1.Items, std::vector<std::string>{"House.fmt"});
    run.Choose("House.fmt");
    EXPECT_TRUE(run.program.format.FormatOpen);
    EXPECT_EQ(run.program.format.FormatName, "House.fmt");
    EXPECT_EQ(run.program.format.FormatFolder, run.folder / "Proposals/");
    EXPECT_FALSE(run.program.settings.LoadDefaultFormat);
    EXPECT_EQ(run.program.document.FileFilter, "*.hef");
    EXPECT_EQ(run.Main().Caption, "Quillbrook - Format File = House.fmt");
    const PageLabel& label = run.Label(PageId::frmP1, 9);
    EXPECT_EQ(label.Caption, "Day");
    EXPECT_EQ(label.Left, 1200);
    EXPECT_EQ(label.FontName, "Arial");
    EXPECT_EQ(label.ForeColor, 255U);
    EXPECT_EQ(modWindows::Find(run.program, "frmFile"), nullptr);
}

TEST(FormatOpen, UnsavedTextIsAskedForFirst) {
    Formats run;
    run.Type();
    run.Questions().Expect("Some text has been changed.", Answer::Cancel);
    modFormat::mnuFileFormatOpen_Click(run.program);
    EXPECT_EQ(modWindows::Find(run.program, "frmFile"), nullptr);
    EXPECT_EQ(run.program.document.FileFilter, "*.hef");
}

TEST(FormatOpen, RefusingTheResetKeepsTheFormatThatStands) {
    Formats run;
    run.Open();
    run.program.format.EditingFormat = true;
    run.folder.Write("Proposals/Barn.fmt", "lines");
    modFormat::mnuFileFormatOpen_Click(run.program);
    run.Questions().ExpectBox(kEndQuestion, Answer::No);
    run.Questions().Expect("Resume Editing.");
    run.Choose("Barn.fmt");
    EXPECT_EQ(run.program.format.FormatName, "House.fmt");
    EXPECT_EQ(run.Label(PageId::frmP1, 9).Caption, "Day");
}

TEST(FormatOpen, AnEmptyOneChangesNothingNotEvenTheCaption) {
    Formats run;
    run.folder.Write("Proposals/Empty.fmt", "");
    run.Open("Empty.fmt");
    EXPECT_TRUE(run.program.format.FormatOpen);
    EXPECT_EQ(run.Main().Caption, "Quillbrook");
    EXPECT_EQ(run.Label(PageId::frmP1, 9).Caption, "Event Date");
}

TEST(FormatOpen, OneThatCannotBeReadIsToldOnceAndIsNotOpen) {
    Formats run;
    run.Open();
    std::filesystem::remove(run.folder / "Proposals/House.fmt");
    run.Questions().Expect("The format House.fmt in " + (run.folder / "Proposals/") +
                           " could not be read; new proposals start without it.");
    modProposal::mnuFileNew_Click(run.program);
    EXPECT_FALSE(run.program.format.FormatOpen);
    EXPECT_EQ(run.program.format.FormatName, "");
    EXPECT_EQ(run.Label(PageId::frmP1, 9).Caption, "Event Date");
    run.program.settings.DefaultFormatPath = run.folder / "Proposals/House.fmt";
    run.program.settings.LoadDefaultFormat = true;
    modProposal::mnuFileNew_Click(run.program);
    EXPECT_FALSE(run.program.format.FormatOpen);
    EXPECT_TRUE(run.program.settings.LoadDefaultFormat) << "the settings are the person's";
}

TEST(FormatNew, UnsavedTextAsksAndAnythingButYesStops) {
    Formats run;
    run.Open();
    run.Type();
    run.Questions().ExpectBox(kClearQuestion, Answer::No);
    modFormat::mnuFileFormatNew_Click(run.program);
    EXPECT_TRUE(run.program.format.FormatOpen);
    EXPECT_EQ(run.TextOf(PageId::frmP1, 8), "Hall");
    run.Questions().ExpectBox(kClearQuestion, Answer::Yes);
    modFormat::mnuFileFormatNew_Click(run.program);
    run.ExpectNoFormat();
    EXPECT_EQ(run.TextOf(PageId::frmP1, 8), "");
}

TEST(FormatNew, BeginsWithoutTheDefaultFormatToo) {
    Formats run;
    run.program.settings.DefaultFormatPath = run.folder / "Proposals/House.fmt";
    run.program.settings.LoadDefaultFormat = true;
    modProposal::mnuFileNew_Click(run.program);
    ASSERT_TRUE(run.program.format.FormatOpen);
    run.Questions().ExpectBox(kClearQuestion, Answer::Yes);
    modFormat::mnuFileFormatNew_Click(run.program);
    run.ExpectNoFormat();
}

TEST(FormatNew, WithNothingToLoseAsksNothing) {
    Formats run;
    modFormat::mnuFileFormatNew_Click(run.program);
    run.ExpectNoFormat();
}

TEST(FormatNew, GoingOnWithTheEditingOfAFormatKeepsIt) {
    Formats run;
    run.Open();
    run.program.format.EditingFormat = true;
    run.Questions().ExpectBox(kClearQuestion, Answer::Yes);
    run.Questions().ExpectBox(kEndQuestion, Answer::No);
    run.Questions().Expect("Resume Editing.");
    modFormat::mnuFileFormatNew_Click(run.program);
    EXPECT_TRUE(run.program.format.FormatOpen);
    EXPECT_EQ(run.program.format.FormatName, "House.fmt");
}

TEST(FormatChanges, ThatAreNotSavedAreAskedForByNameBeforeTheyGo) {
    Formats run;
    run.Open();
    run.Drag(9);
    run.Questions().Expect("Some text has been changed.", Answer::No);
    run.Questions().ExpectBox(
        {"The format House.fmt has changes that are not saved.", Buttons::YesNoCancel, ""}, Answer::Cancel);
    modProposal::mnuFileNew_Click(run.program);
    EXPECT_EQ(run.Label(PageId::frmP1, 9).Left, 1380);
    EXPECT_EQ(run.Questions().Manners.back().Words, (std::vector<std::string>{"Save", "Discard", "Cancel"}));
    EXPECT_EQ(run.Questions().Manners.back().Default, Answer::Cancel);
    run.Questions().Expect("Some text has been changed.", Answer::No);
    run.Questions().Expect("The format House.fmt has changes", Answer::Yes);
    run.program.totals.Deposit = 7;
    modProposal::mnuFileNew_Click(run.program);
    EXPECT_EQ(run.program.totals.Deposit, 0) << "saved, so the new proposal comes";
    EXPECT_NE(run.folder.Read("Proposals/House.fmt").find("frmP1.lbl(9).Left=1380 "), std::string::npos);
    EXPECT_EQ(run.Label(PageId::frmP1, 9).Left, 1380);
}

TEST(FormatChanges, ALoadedFormatHasNoneToAskFor) {
    Formats run;
    run.Open();
    modProposal::mnuFileNew_Click(run.program);
    EXPECT_TRUE(run.program.format.FormatOpen);
    EXPECT_EQ(run.Label(PageId::frmP1, 9).Caption, "Day");
}

TEST(FormatSave, WithoutANameAsksForOneAndAnEmptyAnswerStops) {
    Formats run;
    run.Drag(9);
    run.Questions().ExpectInput("Saving File As...", "  ");
    run.Questions().Expect("No name entered. File not saved.");
    modFormat::mnuFileFormatSave_Click(run.program);
    EXPECT_EQ(run.Questions().Prompts.back(), "Please input the File Name below.");
    EXPECT_EQ(run.program.format.FormatName, "");
    run.Questions().ExpectInput("Saving File As...", "Barn.fmt");
    modFormat::mnuFileFormatSave_Click(run.program);
    EXPECT_TRUE(run.folder.Has("Proposals/Barn.fmt"));
    EXPECT_EQ(run.program.main.Notice, "Format saved: " + run.folder / "Proposals/Barn.fmt");
    EXPECT_EQ(run.program.format.FormatName, "Barn.fmt");
    EXPECT_EQ(run.Main().Caption, "Quillbrook - Format File = Barn.fmt");
}

TEST(FormatSave, WhenOnlyTextWasTypedIsRefused) {
    Formats run;
    run.Type();
    run.Questions().ExpectInput("Saving File As...", "Barn");
    run.Questions().Expect("No properties have been changed. File Format not saved.");
    modFormat::mnuFileFormatSave_Click(run.program);
    EXPECT_FALSE(run.folder.Has("Proposals/Barn.fmt"));
    EXPECT_EQ(run.program.format.FormatName, "");
}

TEST(FormatSave, AnIllegalNameLeavesTheOldOneAndTheNextSaveDoesNotAsk) {
    Formats run;
    run.Open();
    run.Questions().ExpectInput("Saving File As...", "a/b");
    run.Questions().Expect("Action Cancelled. File Name cannot include any of ");
    modFormat::mnuFileFormatSaveAs_Click(run.program);
    EXPECT_EQ(run.program.format.FormatName, "House.fmt");
    EXPECT_FALSE(run.program.format.FormatSaveAs);
    modFormat::mnuFileFormatSave_Click(run.program);
}

/// Before a format has a name its labels ride with the proposal, which is asked about.
TEST(FormatSave, LabelsMovedWithoutAnyFormatAreNotLostByNew) {
    Formats run;
    run.Drag(9);
    const float left = run.Label(PageId::frmP1, 9).Left;
    run.Questions().Expect("Some text has been changed.", Answer::Cancel);
    modProposal::mnuFileNew_Click(run.program);
    EXPECT_EQ(run.Label(PageId::frmP1, 9).Left, left);
    run.Questions().Expect("This action will clear all current data if", Answer::No);
    modFormat::mnuFileFormatNew_Click(run.program);
    EXPECT_EQ(run.Label(PageId::frmP1, 9).Left, left);
}

TEST(FormatSave, UnderATakenNameAsksAndOverwritesOneThatMayOnlyBeRead) {
    Formats run;
    run.folder.Write("Proposals/Barn.fmt", "old");
    std::filesystem::permissions(run.folder / "Proposals/Barn.fmt", std::filesystem::perms::owner_read);
    run.Open();
    run.Questions().ExpectInput("Saving File As...", "Barn");
    run.Questions().ExpectBox({"File already exists. Overwrite?", Buttons::YesNo, ""}, Answer::No);
    modFormat::mnuFileFormatSaveAs_Click(run.program);
    EXPECT_EQ(run.folder.Read("Proposals/Barn.fmt"), "old");
    EXPECT_EQ(run.Questions().Manners.back().Default, Answer::No);
    run.Questions().ExpectInput("Saving File As...", "Barn");
    run.Questions().Expect("File already exists. Overwrite?", Answer::Yes);
    modFormat::mnuFileFormatSaveAs_Click(run.program);
    EXPECT_EQ(run.folder.Read("Proposals/Barn.fmt"), kHouse);
}

TEST(FormatSave, AFileThatAnotherProgramHasChangedIsAskedFor) {
    Formats run;
    run.Open();
    run.folder.Write("Proposals/House.fmt", "theirs");
    run.Questions().Expect("This format was changed by another program", Answer::No);
    modFormat::mnuFileFormatSave_Click(run.program);
    EXPECT_EQ(run.folder.Read("Proposals/House.fmt"), "theirs");
    run.Questions().Expect("This format was changed by another program", Answer::Yes);
    modFormat::mnuFileFormatSave_Click(run.program);
    EXPECT_EQ(run.folder.Read("Proposals/House.fmt"), kHouse);
}

TEST(FormatSave, AClientsDataAreAskedForAndLayoutOnlyWritesNoneOfThem) {
    Formats run;
    run.Open();
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 2);
    typist.Type("Jane Roe");
    typist.Click(PageId::frmP1, 10);
    typist.Type("Arch");
    run.Questions().ExpectBox(
        {"Shall the texts of this proposal become part of the format? New proposals will "
         "start with them.",
         Buttons::YesNoCancel, ""},
        Answer::Cancel);
    modFormat::mnuFileFormatSave_Click(run.program);
    EXPECT_EQ(run.Questions().Manners.back().Words,
              (std::vector<std::string>{"Layout Only", "Layout and Texts", "Cancel"}));
    EXPECT_EQ(run.Questions().Manners.back().Default, Answer::Yes);
    run.Questions().Expect("Shall the texts", Answer::Yes);
    modFormat::mnuFileFormatSave_Click(run.program);
    EXPECT_EQ(run.folder.Read("Proposals/House.fmt"), kHouse);
    run.Questions().Expect("No properties have been changed.");
    modFormat::mnuFileFormatSave_Click(run.program);
    run.program.format.LogoChanged = true;
    run.Questions().Expect("Shall the texts", Answer::No);
    modFormat::mnuFileFormatSave_Click(run.program);
    EXPECT_EQ(run.folder.Read("Proposals/House.fmt"),
              "frmP1.txt(2).Text=Jane Roe\r\nfrmP1.txt(10).Text=Arch\r\n" + std::string(kHouse));
}

/// Everything that the client's file has in its amounts.
TEST(FormatSave, AmountsOfAnOpenedProposalAreNoPartOfAFormat) {
    Formats run;
    run.Open();
    run.Questions().Expect("The format House.fmt rewords 1 caption of Jane Roe.hef.");
    run.OpenProposal("Jane Roe.hef");
    run.program.format.LogoChanged = true;
    run.Questions().Expect("Shall the texts", Answer::No);
    modFormat::mnuFileFormatSave_Click(run.program);
    const std::string file = run.folder.Read("Proposals/House.fmt");
    EXPECT_NE(file.find("frmP1.txt(10).Text=Ceremony arch\r\n"), std::string::npos);
    for (const char* amount : {"frmP1.txt(20).Text", "frmP1.txt(21).Text", "1,250.00", "75.50", "59.97"}) {
        EXPECT_EQ(file.find(amount), std::string::npos) << amount;
    }
}

TEST(FormatSave, AnAmountThatSomebodyWroteIntoTheFileStays) {
    Formats run;
    run.folder.Write("Proposals/Fee.fmt", "frmP1.txt(20).Text=5.00\r\n" + std::string(kHouse));
    run.Open("Fee.fmt");
    run.program.format.LogoChanged = true;
    modFormat::mnuFileFormatSave_Click(run.program);
    EXPECT_EQ(run.folder.Read("Proposals/Fee.fmt"), "frmP1.txt(20).Text=5.00\r\n" + std::string(kHouse));
}

TEST(FormatSave, LayoutOnlyLaysARowsColumnsWithNothingThatPrints) {
    Formats run;
    run.Open();
    Typist typist(run.program);
    typist.Click(PageId::frmP2, 4);
    typist.Press(keys::kF8);
    typist.Type("3");
    typist.Click(PageId::frmP2, 4);
    typist.Type("Arch");
    run.Questions().Expect("Shall the texts", Answer::Yes);
    modFormat::mnuFileFormatSave_Click(run.program);
    EXPECT_NE(
        run.folder.Read("Proposals/House.fmt").find("frmP2.txq(4).QtyBox=True .QtyValue= .AmtValue=\r\n"),
        std::string::npos);
    run.Questions().Expect("Some text has been changed.", Answer::No);
    modProposal::mnuFileNew_Click(run.program);
    const Page& page = run.program.pages[PageId::frmP2];
    EXPECT_TRUE(page.txtQty[4].Visible) << "the columns are there to be typed in";
    EXPECT_TRUE(modPages::IsBlankRow(page, 4)) << "and no sign of them is on paper";
    typist.Click({PageId::frmP2, FieldKind::txtQty, 4});
    typist.Type("2");
    EXPECT_FALSE(modPages::IsBlankRow(page, 4));
}

TEST(FormatSave, LayoutOnlyDoesNotTellWhoseProposalItWasMadeWith) {
    Formats run;
    run.Open();
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 2);
    typist.Type("Jane Roe");
    run.Drag(33);
    modDesigner::lbl_MouseDown(run.program, PageId::frmP6, 64, modDesigner::kLeftButton, 0, 0);
    modDesigner::lbl_MouseUp(run.program, PageId::frmP6, 64);
    run.Questions().Expect("Shall the texts", Answer::Yes);
    modFormat::mnuFileFormatSave_Click(run.program);
    const std::string file = run.folder.Read("Proposals/House.fmt");
    EXPECT_EQ(file.find("Jane"), std::string::npos) << file;
    EXPECT_NE(file.find(".Caption=Proposal for (Client's Name) .FontName="), std::string::npos) << file;
    EXPECT_NE(file.find(".Caption=Proposal for (Client's Name) - Our Copy .FontName="), std::string::npos)
        << file;
    // The one that was moved stays where it is, the other stands in the middle with the next client's name.
    const float left = run.Label(PageId::frmP1, 33).Left;
    PageLabel before = run.Label(PageId::frmP6, 64);
    before.ToolTipText.clear(); // it told of the press
    run.Questions().Expect("Some text has been changed.", Answer::No);
    modProposal::mnuFileNew_Click(run.program);
    EXPECT_EQ(run.Label(PageId::frmP1, 33).Left, left);
    typist.Click(PageId::frmP1, 2);
    typist.Type("Jane Roe");
    EXPECT_EQ(run.Label(PageId::frmP6, 64), before);
}

TEST(FormatSave, ALogoWithoutAFontWritesAllLinesAndThenReports) {
    Formats run;
    run.program.run.DefaultFontName = "";
    run.program.format.LogoPath = "/srv/logo.png";
    run.program.format.LogoChanged = true;
    run.Questions().ExpectInput("Saving File As...", "Logo");
    run.Questions().Expect("An error occurred in SaveFileFormat.");
    modFormat::mnuFileFormatSave_Click(run.program);
    EXPECT_EQ(run.folder.Read("Proposals/Logo.fmt"), "frmP1.pic.Picture=/srv/logo.png .Left=0 .Top=0\r\n");
    EXPECT_FALSE(run.program.format.FormatOpen);
}

TEST(FormatSave, AFontWithoutASizeEndsInTheReportWithAndWithoutALogo) {
    for (const char* logo : {"", "/srv/logo.png"}) {
        Formats run;
        run.program.run.DefaultFontSize = 0;
        run.program.format.LogoPath = logo;
        run.Drag(9);
        run.Questions().ExpectInput("Saving File As...", "Barn");
        run.Questions().Expect("An error occurred in SaveFileFormat.");
        modFormat::mnuFileFormatSave_Click(run.program);
        const std::string file = run.folder.Read("Proposals/Barn.fmt");
        EXPECT_EQ(file.find("frmP1.lbl(9).Left="), 0U) << "all lines are there";
        EXPECT_EQ(file.find("UDP"), std::string::npos);
        EXPECT_FALSE(run.program.format.FormatOpen);
    }
}

TEST(FormatSave, WithNeitherFontNorLogoIsWrittenWithoutAWord) {
    Formats run;
    run.program.run.DefaultFontName = "";
    run.program.run.DefaultFontSize = 0;
    run.Drag(9);
    run.Questions().ExpectInput("Saving File As...", "Barn");
    modFormat::mnuFileFormatSave_Click(run.program);
    EXPECT_EQ(run.folder.Read("Proposals/Barn.fmt").find("frmP1.lbl(9).Left="), 0U);
    EXPECT_TRUE(run.program.format.FormatOpen);
}

TEST(FormatChanges, AFormatWithALogoHasSomethingToSaveAtOnceAndNothingToAskAbout) {
    Formats run;
    run.folder.Write("Proposals/logo.png", "x");
    const std::string picture = run.folder / "Proposals/logo.png";
    run.surroundings.pictures.Known[picture] = {1500, 900};
    run.folder.Write("Proposals/Logo.fmt", "frmP1.pic.Picture=" + picture + " .Left=360 .Top=540\r\n");
    run.Open("Logo.fmt");
    EXPECT_TRUE(modFormat::FormatHasChanges(run.program));
    EXPECT_FALSE(modFormat::FormatIsUnsaved(run.program));
}

TEST(FormatSave, CaptionsThatHoldTheNameOfAFieldAreTold) {
    Formats run;
    run.Drag(9);
    run.Label(PageId::frmP1, 9).Caption = "a .FontSize=b";
    run.Questions().ExpectInput("Saving File As...", "Barn");
    run.Questions().Expect("The caption \"a .FontSize=b\" cannot be kept in a format.");
    modFormat::mnuFileFormatSave_Click(run.program);
}

TEST(FormatDelete, WithoutAFormatSaysSo) {
    Formats run;
    run.Questions().ExpectBox({"There's no Format File open.", Buttons::Ok, ""}, Answer::Ok);
    modFormat::mnuFileFormatDelete_Click(run.program);
    EXPECT_TRUE(run.folder.Has("Proposals/House.fmt"));
}

TEST(FormatDelete, AsksDeletesTheFileAndStartsWithoutAFormat) {
    Formats run;
    run.Open();
    const ScriptedQuestions::Box question{
        "Are you sure you want to delete the shown Format?\r\nHouse.fmt in " + (run.folder / "Proposals/"),
        Buttons::YesNo, "Deleting Format FIle"};
    run.Questions().ExpectBox(question, Answer::No);
    modFormat::mnuFileFormatDelete_Click(run.program);
    EXPECT_TRUE(run.folder.Has("Proposals/House.fmt"));
    EXPECT_EQ(run.Questions().Manners.back().Default, Answer::No);
    run.Questions().ExpectBox(question, Answer::Yes);
    modFormat::mnuFileFormatDelete_Click(run.program);
    EXPECT_FALSE(run.folder.Has("Proposals/House.fmt"));
    run.ExpectNoFormat();
}

TEST(FormatDelete, UnsavedTextIsAskedForAndCancelStops) {
    Formats run;
    run.Open();
    run.Type();
    run.Questions().Expect("Some text has been changed.", Answer::Cancel);
    modFormat::mnuFileFormatDelete_Click(run.program);
    EXPECT_TRUE(run.folder.Has("Proposals/House.fmt"));
}

TEST(FormatDelete, UnsavedChangesOfTheFormatAreAskedForByName) {
    Formats run;
    run.Open();
    run.Drag(9);
    run.Questions().Expect("Some text has been changed.", Answer::No);
    run.Questions().ExpectBox(
        {"The format House.fmt has changes that are not saved.", Buttons::YesNoCancel, ""}, Answer::Cancel);
    modFormat::mnuFileFormatDelete_Click(run.program);
    EXPECT_TRUE(run.folder.Has("Proposals/House.fmt"));
    run.Questions().Expect("Some text has been changed.", Answer::No);
    run.Questions().Expect("The format House.fmt has changes", Answer::No);
    run.Questions().Expect("Are you sure", Answer::Yes);
    modFormat::mnuFileFormatDelete_Click(run.program);
    EXPECT_FALSE(run.folder.Has("Proposals/House.fmt"));
    run.ExpectNoFormat();
}

TEST(FormatDelete, TheDefaultFormatIsForgottenInTheSettings) {
    Formats run;
    run.Open();
    modFormat::mnuFileFormatDefault_Click(run.program);
    run.Questions().Expect("Are you sure", Answer::Yes);
    run.Questions().Expect("This was the default format.");
    modFormat::mnuFileFormatDelete_Click(run.program);
    EXPECT_TRUE(run.HasSetting("Default File Format:"));
    EXPECT_TRUE(run.HasSetting("Load Default Format:False"));
}

TEST(FormatDelete, TheDefaultFormatIsKnownByAPathWithADriveToo) {
    Formats run;
    run.program.folders.Drives.Home = run.folder.Path();
    run.program.settings.DefaultFormatPath = "c:\\Proposals\\House.fmt";
    run.program.settings.LoadDefaultFormat = true;
    modProposal::mnuFileNew_Click(run.program);
    ASSERT_TRUE(run.program.format.FormatOpen);
    run.Questions().Expect("Are you sure", Answer::Yes);
    run.Questions().Expect("This was the default format.");
    modFormat::mnuFileFormatDelete_Click(run.program);
    EXPECT_EQ(run.program.settings.DefaultFormatPath, "");
}

TEST(FormatCommands, LeaveTheBackupsWithTheProposalThatWasOpenedThere) {
    for (const bool clear : {true, false}) {
        Formats run;
        run.folder.Write("Proposals/Backup/Jane Roe.hef", ReadTestData("jane_roe/Jane Roe.hef"));
        modProposal::mnuFileOpenEvent_Click(run.program);
        const auto& folders = run.Chooser().Dir1.Items;
        const auto backup = std::find(folders.begin(), folders.end(), "Backup");
        run.Chooser().Dir1_Change(run.program, static_cast<int>(backup - folders.begin()));
        run.Choose("Jane Roe.hef");
        ASSERT_TRUE(run.program.document.FromBackup);
        if (clear) {
            run.Questions().ExpectBox(kClearQuestion, Answer::Yes);
            modFormat::mnuFileFormatNew_Click(run.program);
        } else {
            run.Open();
        }
        EXPECT_FALSE(run.program.document.FromBackup);
        EXPECT_EQ(run.program.document.FilePath, run.folder / "Proposals/");
    }
}

TEST(FormatDelete, AFileThatHasGoneMeanwhileIsToldAndTheFormatStays) {
    Formats run;
    run.Open();
    std::filesystem::remove(run.folder / "Proposals/House.fmt");
    run.Questions().Expect("Are you sure", Answer::Yes);
    run.Questions().Expect("An error occurred in mnuFileFormatDelete_Click.");
    modFormat::mnuFileFormatDelete_Click(run.program);
    EXPECT_TRUE(run.program.format.FormatOpen);
}

TEST(FormatDefault, AnUnchangedFormatBecomesTheDefaultWithoutAWord) {
    Formats run;
    run.Open();
    modFormat::mnuFileFormatDefault_Click(run.program);
    EXPECT_TRUE(run.HasSetting("Default File Format:" + (run.folder / "Proposals/House.fmt")));
    EXPECT_TRUE(run.HasSetting("Load Default Format:True"));
    EXPECT_EQ(run.folder.Read("Proposals/House.fmt"), kHouse);
    EXPECT_TRUE(run.program.settings.LoadDefaultFormat);
}

TEST(FormatDefault, ARefusedSaveLeavesTheSettings) {
    Formats run;
    run.Questions().ExpectInput("Saving File As...", "");
    run.Questions().Expect("No name entered. File not saved.");
    modFormat::mnuFileFormatDefault_Click(run.program);
    EXPECT_TRUE(run.HasSetting("Load Default Format:False"));
    EXPECT_FALSE(run.program.settings.LoadDefaultFormat);
    EXPECT_FALSE(run.program.format.FormatMakeDefault);
}

TEST(FormatDefault, NewProposalsBeginWithItAfterARestart) {
    Formats run;
    run.Drag(9);
    run.Questions().ExpectInput("Saving File As...", "Barn");
    modFormat::mnuFileFormatDefault_Click(run.program);
    RunningProgram later(RunningProgram::Begin::NotStarted);
    later.folder.Write("UserPreferences.txt", run.Settings());
    later.Start();
    EXPECT_TRUE(later.program.format.FormatOpen);
    EXPECT_EQ(later.program.format.FormatName, "Barn.fmt");
    EXPECT_EQ(later.Label(PageId::frmP1, 9).Left, 1260);
    EXPECT_EQ(later.Main().Caption, "Quillbrook - Format File = Barn.fmt");
}

TEST(ChooserKinds, ATermsListBecomesTheListInUseAndTheWorkingFolderStays) {
    Formats run;
    run.folder.Write("Proposals/Garden.fut", "Tent");
    run.folder.Write("Elsewhere/Jane Roe.hef", ReadTestData("jane_roe/Jane Roe.hef"));
    run.program.document.FilePath = run.folder / "Elsewhere/";
    run.program.document.FileFilter = "*.fut";
    int read = 0;
    run.program.hooks.ReadFrequentlyUsedTerms = [&](Program&) { ++read; };
    modWindows::Show(run.program, std::make_unique<frmFile>());
    ASSERT_EQ(run.Chooser().FileList1.Items,
              (std::vector<std::string>{"Default Terms.fut", "Garden.fut", "Wedding Terms.fut"}));
    run.Chooser().FileList1_Click(run.program, 1);
    run.Chooser().cmdOpenOK_Click(run.program);
    EXPECT_EQ(read, 1);
    EXPECT_EQ(run.program.run.FUTFileName, "Garden.fut");
    EXPECT_EQ(run.program.document.FilePath, run.folder / "Elsewhere/");
}

TEST(ChooserKinds, ATextFileIsShownAndTheProposalIsLeftAlone) {
    Formats run;
    run.folder.Write("Proposals/notes.txt", "words");
    run.Type();
    run.program.document.FileFilter = "*.txt";
    std::string shown;
    run.program.hooks.ReadTextFile = [&](Program&, const std::string& file) { shown = file; };
    modWindows::Show(run.program, std::make_unique<frmFile>());
    run.Chooser().FileList1_Click(run.program, 0);
    run.Chooser().cmdOpenOK_Click(run.program);
    EXPECT_EQ(shown, run.folder / "Proposals/notes.txt");
    EXPECT_EQ(run.program.document.FilePath, run.folder / "Proposals/");
    EXPECT_EQ(run.TextOf(PageId::frmP1, 8), "Hall");
}

TEST(ChooserKinds, APictureBecomesTheLogoAndAnythingElseIsRefused) {
    Formats run;
    for (const char* name : {"a.jpg", "b.BMP", "c.gif", "d.png"}) {
        run.folder.Write("Proposals/" + std::string(name), "x");
    }
    const std::string picture = run.folder / "Proposals/b.BMP";
    run.surroundings.pictures.Known[picture] = {1500, 900};
    run.program.document.FileFilter = std::string(kPictureFiles);
    run.program.pages[PageId::frmP1].pic.Left = 720;
    run.program.pages[PageId::frmP1].pic.Top = 540;
    modWindows::Show(run.program, std::make_unique<frmFile>());
    ASSERT_EQ(run.Chooser().FileList1.Items, (std::vector<std::string>{"a.jpg", "b.BMP", "c.gif", "d.png"}));
    run.Chooser().FileList1_Click(run.program, 0);
    run.surroundings.questions.ExpectBox(
        {"The file a.jpg is not a picture that can be shown.", Buttons::Ok, ""}, Answer::Ok);
    run.Chooser().cmdOpenOK_Click(run.program);
    EXPECT_FALSE(run.program.pages[PageId::frmP1].pic.Visible);
    run.Chooser().FileList1_Click(run.program, 1);
    run.Chooser().cmdOpenOK_Click(run.program);
    const PagePicture& logo = run.program.pages[PageId::frmP1].pic;
    EXPECT_TRUE(logo.Visible);
    EXPECT_EQ(logo.Tag, "");
    EXPECT_EQ(logo.Picture.Path, picture);
    EXPECT_EQ(logo.Size.Width, 1500);
    EXPECT_EQ(run.program.settings.LogoFile, "") << "the settings keep theirs until it is made the default";
    EXPECT_EQ(run.program.format.LogoPath, picture);
    EXPECT_EQ(run.program.format.LogoLeft, 720);
    EXPECT_EQ(run.program.format.LogoTop, 540);
    EXPECT_TRUE(run.program.format.LogoChanged);
    EXPECT_EQ(run.program.main.Notice, "Kept only by a format or by Save this Logo as Default.");
    EXPECT_EQ(run.program.document.FileFilter, "*.hef");
}

/// A program whose settings have a logo of their own, and a second picture to choose.
struct Logos : Formats {
    Logos() {
        for (const char* name : {"ours.png", "theirs.png"}) {
            folder.Write("Proposals/" + std::string(name), "x");
            surroundings.pictures.Known[folder / ("Proposals/" + std::string(name))] = {1500, 900};
        }
        program.settings.LogoFile = Ours();
        program.settings.LogoVisible = true;
    }
    [[nodiscard]] std::string Ours() const { return folder / "Proposals/ours.png"; }
    [[nodiscard]] std::string Theirs() const { return folder / "Proposals/theirs.png"; }
    void ChooseTheirs() {
        modLogo::mnuEditLogoOpen_Click(program);
        Choose("theirs.png");
        ASSERT_EQ(OnShow(), Theirs());
    }
    [[nodiscard]] std::string OnShow() {
        const PagePicture& logo = program.pages[PageId::frmP1].pic;
        return logo.Visible ? logo.Picture.Path : "";
    }
};

TEST(ALogoThatWasChosen, AndDiscardedWithTheFormatsChangesIsGoneFromTheNextProposal) {
    Logos run;
    run.Open();
    EXPECT_EQ(run.OnShow(), run.Ours()) << "the format has none of its own";
    run.ChooseTheirs();
    run.surroundings.questions.Expect("The format House.fmt has changes that are not saved.", Answer::No);
    modProposal::mnuFileNew_Click(run.program);
    EXPECT_EQ(run.OnShow(), run.Ours());
    EXPECT_EQ(run.program.format.LogoPath, "");
}

TEST(ALogoThatWasChosen, IsKeptByTheFormatOrByTheSettings) {
    Logos run;
    run.Open();
    run.ChooseTheirs();
    modFormat::mnuFileFormatSave_Click(run.program);
    modProposal::mnuFileNew_Click(run.program);
    EXPECT_EQ(run.OnShow(), run.Theirs());
    run.Questions().ExpectBox(kClearQuestion, Answer::Yes);
    modFormat::mnuFileFormatNew_Click(run.program);
    EXPECT_EQ(run.OnShow(), run.Ours());
    run.ChooseTheirs();
    modLogo::mnuEditLogoSave_Click(run.program);
    modProposal::mnuFileNew_Click(run.program);
    EXPECT_EQ(run.OnShow(), run.Theirs());
    EXPECT_NE(run.folder.Read("UserPreferences.txt").find("Logo File:" + run.Theirs()), std::string::npos);
}

TEST(ALogoThatWasChosen, WithoutAFormatGoesWithItsDocument) {
    Logos run;
    run.ChooseTheirs();
    modProposal::mnuFileNew_Click(run.program);
    EXPECT_EQ(run.OnShow(), run.Ours());
    EXPECT_EQ(run.program.format.LogoPath, "") << "a format saved now has the logo that is on show";
}

TEST(ALogoThatWasChosen, ShowsWhereLogosWereHiddenAndGoesOnShowingOnceItIsKept) {
    Logos run;
    run.program.settings.LogoVisible = false;
    run.Open();
    EXPECT_EQ(run.OnShow(), "");
    run.ChooseTheirs();
    EXPECT_FALSE(run.program.settings.LogoVisible) << "that is for those who keep it";
    modFormat::mnuFileFormatSave_Click(run.program);
    EXPECT_EQ(run.program.main.Notice, "Format saved: " + (run.folder / "Proposals/House.fmt"));
    EXPECT_NE(run.folder.Read("UserPreferences.txt").find("Logo Visible:True\r\n"), std::string::npos);
    modProposal::mnuFileNew_Click(run.program);
    EXPECT_EQ(run.OnShow(), run.Theirs());
}

TEST(ALogoMadeTheDefault, StandsWhereItStoodInTheNextProposal) {
    Logos run;
    run.ChooseTheirs();
    run.program.pages[PageId::frmP1].pic.Left = 900;
    run.program.pages[PageId::frmP1].pic.Top = 1080;
    modLogo::mnuEditLogoSave_Click(run.program);
    modProposal::mnuFileNew_Click(run.program);
    EXPECT_EQ(run.OnShow(), run.Theirs());
    EXPECT_EQ(run.program.pages[PageId::frmP1].pic.Left, 900);
    EXPECT_EQ(run.program.pages[PageId::frmP1].pic.Top, 1080);
}

TEST(ALogoMadeTheDefault, ShowsFromNowOnIfItShowsAtAll) {
    for (const bool shows : {true, false}) {
        Logos run;
        run.program.settings.LogoVisible = false;
        modProposal::mnuFileNew_Click(run.program);
        ASSERT_EQ(run.OnShow(), "");
        if (shows) {
            run.ChooseTheirs();
        }
        modLogo::mnuEditLogoSave_Click(run.program);
        EXPECT_EQ(run.program.settings.LogoVisible, shows);
    }
}

TEST(ALogoMadeTheDefault, KeepsTheNameByWhichTheSettingsKnowIt) {
    Logos run;
    run.folder.Write("bare.png", "x");
    run.surroundings.pictures.Known[run.folder / "bare.png"] = {1500, 900};
    run.program.settings.LogoFile = "bare.png";
    modProposal::mnuFileNew_Click(run.program);
    ASSERT_EQ(run.OnShow(), run.folder / "bare.png");
    modLogo::mnuEditLogoSave_Click(run.program);
    EXPECT_EQ(run.program.settings.LogoFile, "bare.png");
    EXPECT_TRUE(run.HasSetting("Logo File:bare.png"));
}

TEST(TheLogosBorder, IsSaidToBeKeptByNoFile) {
    Logos run;
    run.Open();
    run.program.main[CommandId::mnuEditLogoBorder].Checked = true;
    modLogo::mnuEditLogoBorder_Click(run.program);
    EXPECT_EQ(run.program.main.Notice, "No file keeps the logo's border; it stays until Quillbrook ends.");
    run.program.main.Notice.clear();
    modLogo::mnuEditLogoSave_Click(run.program);
    EXPECT_EQ(run.program.main.Notice, "No file keeps the logo's border; it stays until Quillbrook ends.");
    modFormat::mnuFileFormatSave_Click(run.program);
    EXPECT_EQ(run.program.main.Notice,
              "Format without the logo's border saved: " + (run.folder / "Proposals/House.fmt"));
    modProposal::mnuFileNew_Click(run.program);
    EXPECT_EQ(run.program.pages[PageId::frmP1].pic.BorderStyle, 1);
    modLogo::mnuEditLogoBorder_Click(run.program);
    EXPECT_EQ(run.program.main.Notice, "Settings saved: " + (run.folder / "UserPreferences.txt"));
}

TEST(FormatSave, ATextOfTheFormatThatAPersonTakesOutIsNotInItAnyMore) {
    Formats run;
    run.folder.Write("Proposals/Hall.fmt",
                     "frmP1.txt(8).Text=Hall\r\nfrmP1.txt(9).Text=Noon\r\n" + std::string(kHouse));
    run.Open("Hall.fmt");
    ASSERT_EQ(run.TextOf(PageId::frmP1, 8), "Hall");
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 8);
    for (int letter = 0; letter < 4; ++letter) {
        typist.PutCursor(1);
        typist.Press(keys::kBackspace);
    }
    ASSERT_EQ(run.TextOf(PageId::frmP1, 8), "");
    typist.Click(PageId::frmP1, 10);
    typist.Type("Arch");
    run.Questions().Expect("Shall the texts", Answer::Yes);
    modFormat::mnuFileFormatSave_Click(run.program);
    EXPECT_EQ(run.folder.Read("Proposals/Hall.fmt"), "frmP1.txt(9).Text=Noon\r\n" + std::string(kHouse));
}

TEST(FormatEnd, WhatAPersonChangesInTheOpenFormatIsAskedAboutWhenItIsLeft) {
    const std::vector<std::pair<const char*, std::function<void(Formats&)>>> changes{
        {"an area made bold",
         [](Formats& run) {
             Typist(run.program).Click(PageId::frmP1, 8);
             person::Choose(run.program, CommandId::mnuEditTextBold);
         }},
        {"another font",
         [](Formats& run) {
             person::Choose(run.program, CommandId::mnuEditAllTextFonts);
             auto& window = dynamic_cast<frmTextProps&>(*modWindows::Find(run.program, "frmTextProps"));
             window.optFontSize_Click(run.program, 2);
             window.cmdOK_Click(run.program);
         }},
        {"the logo moved",
         [](Formats& run) {
             modLogo::pic_MouseDown(run.program, 1, 0, 0);
             static_cast<void>(modLogo::pic_MouseMove(run.program, 180, 0));
             modLogo::pic_MouseUp(run.program);
         }},
        {"another logo",
         [](Formats& run) {
             run.folder.Write("Proposals/b.png", "x");
             run.surroundings.pictures.Known[run.folder / "Proposals/b.png"] = {1500, 900};
             person::Choose(run.program, CommandId::mnuEditLogoOpen);
             run.Choose("b.png");
         }},
        {"the logo on show made the default", [](Formats& run) {
             run.program.pages[PageId::frmP1].pic.Picture = {PictureRef::Source::File, "/srv/logo.png"};
             person::Choose(run.program, CommandId::mnuEditLogoSave);
         }}};
    for (const auto& [what, change] : changes) {
        Formats run;
        run.Open();
        EXPECT_FALSE(modFormat::FormatIsUnsaved(run.program)) << what;
        change(run);
        EXPECT_TRUE(modFormat::FormatIsUnsaved(run.program)) << what;
    }
}

TEST(FormatDefault, OneThatCouldNotBeWrittenIsNotTheDefault) {
    Formats run;
    run.Open();
    {
        const FailingDisk disk{{FailingDisk::Call::Write, 1, ENOSPC, FailingDisk::kForever}};
        run.Questions().Expect("Disk full");
        EXPECT_FALSE(modFormat::MakeDefault(run.program));
    }
    EXPECT_EQ(run.program.settings.DefaultFormatPath, "");
    EXPECT_FALSE(run.program.settings.LoadDefaultFormat);
    EXPECT_TRUE(run.HasSetting("Default File Format:"));
}

TEST(FormatSave, LeavesAProposalWithTextToBeSavedWithItsLayout) {
    for (const bool text : {false, true}) {
        Formats run;
        run.Open();
        if (text) {
            run.Type();
        }
        run.program.format.LogoChanged = true;
        modFormat::mnuFileFormatSave_Click(run.program);
        EXPECT_EQ(run.program.document.SavedStateStale, text);
    }
}

} // namespace
