#include "format/format_commands.h"
#include "program/windows.h"
#include "proposal/frm_file.h"
#include "proposal/lifecycle.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

namespace {

const ScriptedQuestions::Box kClearQuestion{
    "This action will clear all current data if\r\nthe data hasn't already been saved. Continue?",
    Buttons::YesNo, "Beginning New File Format"};
const ScriptedQuestions::Box kEndQuestion{
    "Proceeding with this action will end the editing session of your file format. Continue?", Buttons::YesNo,
    "Ending Format Editing"};
const ScriptedQuestions::Box kDeleteQuestion{"Are you sure you want to delete the shown Format?",
                                             Buttons::YesNo, "Deleting Format FIle"};

struct Formats : RunningProgram {
    Formats() {
        folder.Write("Proposals/House.fmt", "lines");
        folder.Write("Proposals/Jane Roe.hef", ReadTestData("jane_roe/Jane Roe.hef"));
    }
    void OpenHouse() {
        program.format.FormatOpen = true;
        program.format.FormatName = "House.fmt";
        program.format.FormatFolder = folder / "Proposals/";
        program.format.FormatLines = {"one"};
        program.format.FormatTextChanges[PageId::frmP1][3].FormatText = true;
        program.format.FormatLabelChanges[PageId::frmP1][3].Changed = true;
        program.settings.LoadDefaultFormat = true;
    }
    void ExpectNoFormat() {
        EXPECT_FALSE(program.format.FormatOpen);
        EXPECT_EQ(program.format.FormatName, "");
        EXPECT_TRUE(program.format.FormatLines.empty());
        EXPECT_FALSE(program.format.FormatTextChanges[PageId::frmP1][3].FormatText);
        EXPECT_FALSE(program.format.FormatLabelChanges[PageId::frmP1][3].Changed);
        EXPECT_FALSE(program.settings.LoadDefaultFormat);
        EXPECT_EQ(Main().Caption, "Quillbrook");
    }
    void Type() {
        Typist typist(program);
        typist.Click(PageId::frmP1, 8);
        typist.Type("Hall");
    }
    frmFile& Chooser() { return dynamic_cast<frmFile&>(*modWindows::Find(program, "frmFile")); }
};

TEST(FormatNew, WithNothingToLoseAsksNothing) {
    Formats run;
    run.OpenHouse();
    modFormat::mnuFileFormatNew_Click(run.program);
    run.ExpectNoFormat();
}

TEST(FormatNew, UnsavedTextAsksAndAnythingButYesStops) {
    Formats run;
    run.OpenHouse();
    run.Type();
    run.surroundings.questions.ExpectBox(kClearQuestion, Answer::No);
    modFormat::mnuFileFormatNew_Click(run.program);
    EXPECT_TRUE(run.program.format.FormatOpen);
    EXPECT_EQ(run.TextOf(PageId::frmP1, 8), "Hall");
    run.surroundings.questions.ExpectBox(kClearQuestion, Answer::Yes);
    modFormat::mnuFileFormatNew_Click(run.program);
    run.ExpectNoFormat();
    EXPECT_EQ(run.TextOf(PageId::frmP1, 8), "");
}

TEST(FormatNew, AChangedFormatOrPropertyAsksToo) {
    Formats run;
    run.program.hooks.FormatHasChanges = [](Program&) { return true; };
    run.surroundings.questions.ExpectBox(kClearQuestion, Answer::No);
    modFormat::mnuFileFormatNew_Click(run.program);
    run.program.hooks.FormatHasChanges = [](Program&) { return false; };
    run.program.format.LabelSavedState[PageId::frmP1][3].Changed = true;
    run.surroundings.questions.ExpectBox(kClearQuestion, Answer::No);
    modFormat::mnuFileFormatNew_Click(run.program);
}

TEST(FormatNew, GoingOnWithTheEditingOfAFormatKeepsIt) {
    Formats run;
    run.OpenHouse();
    run.program.format.EditingFormat = true;
    run.surroundings.questions.ExpectBox(kEndQuestion, Answer::No);
    run.surroundings.questions.Expect("Resume Editing.");
    modFormat::mnuFileFormatNew_Click(run.program);
    EXPECT_TRUE(run.program.format.FormatOpen);
    EXPECT_EQ(run.program.format.FormatName, "House.fmt");
    EXPECT_TRUE(run.program.settings.LoadDefaultFormat);
}

TEST(FormatOpen, ListsFormatsAndTakesTheChosenOne) {
    Formats run;
    run.program.settings.LoadDefaultFormat = true;
    modFormat::mnuFileFormatOpen_Click(run.program);
    EXPECT_EQ(run.Chooser().Caption, "Opening Format File");
    ASSERT_EQ(run.Chooser().FileList1.Items, std::vector<std::string>{"House.fmt"});
    int opened = 0;
    run.program.hooks.OpenFormatFile = [&](Program&) { ++opened; };
    run.Chooser().FileList1_Click(run.program, 0);
    run.Chooser().cmdOpenOK_Click(run.program);
    EXPECT_EQ(opened, 1);
    EXPECT_TRUE(run.program.format.FormatOpen);
    EXPECT_EQ(run.program.format.FormatName, "House.fmt");
    EXPECT_EQ(run.program.format.FormatFolder, run.folder / "Proposals/");
    EXPECT_FALSE(run.program.settings.LoadDefaultFormat);
    EXPECT_EQ(run.program.document.FileFilter, "*.hef");
    EXPECT_EQ(modWindows::Find(run.program, "frmFile"), nullptr);
}

TEST(FormatOpen, UnsavedTextIsAskedForFirst) {
    Formats run;
    run.Type();
    run.surroundings.questions.Expect("Some text has been changed.", Answer::Cancel);
    modFormat::mnuFileFormatOpen_Click(run.program);
    EXPECT_EQ(modWindows::Find(run.program, "frmFile"), nullptr);
    EXPECT_EQ(run.program.document.FileFilter, "*.hef");
}

TEST(FormatOpen, RefusingTheResetKeepsTheFormatThatStands) {
    Formats run;
    run.OpenHouse();
    run.program.format.EditingFormat = true;
    run.folder.Write("Proposals/Barn.fmt", "lines");
    modFormat::mnuFileFormatOpen_Click(run.program);
    run.Chooser().FileList1_Click(run.program, 0);
    run.surroundings.questions.ExpectBox(kEndQuestion, Answer::No);
    run.surroundings.questions.Expect("Resume Editing.");
    run.Chooser().cmdOpenOK_Click(run.program);
    EXPECT_EQ(run.program.format.FormatName, "House.fmt");
    EXPECT_EQ(run.program.format.FormatLines, std::vector<std::string>{"one"});
    EXPECT_TRUE(run.program.settings.LoadDefaultFormat);
    EXPECT_FALSE(run.Chooser().Closing);
}

TEST(FormatDelete, WithoutAFormatSaysSo) {
    Formats run;
    run.surroundings.questions.ExpectBox({"There's no Format File open.", Buttons::Ok, ""}, Answer::Ok);
    modFormat::mnuFileFormatDelete_Click(run.program);
    EXPECT_TRUE(run.folder.Has("Proposals/House.fmt"));
}

TEST(FormatDelete, AsksDeletesTheFileAndStartsWithoutAFormat) {
    Formats run;
    run.OpenHouse();
    run.surroundings.questions.ExpectBox(kDeleteQuestion, Answer::No);
    modFormat::mnuFileFormatDelete_Click(run.program);
    EXPECT_TRUE(run.folder.Has("Proposals/House.fmt"));
    EXPECT_TRUE(run.program.format.FormatOpen);
    run.surroundings.questions.ExpectBox(kDeleteQuestion, Answer::Yes);
    modFormat::mnuFileFormatDelete_Click(run.program);
    EXPECT_FALSE(run.folder.Has("Proposals/House.fmt"));
    run.ExpectNoFormat();
}

TEST(FormatDelete, AFileThatHasGoneMeanwhileIsToldAndTheFormatStays) {
    Formats run;
    run.OpenHouse();
    run.program.format.FormatName = "Gone.fmt";
    run.surroundings.questions.ExpectBox(kDeleteQuestion, Answer::Yes);
    run.surroundings.questions.Expect("An error occurred in mnuFileFormatDelete_Click.");
    modFormat::mnuFileFormatDelete_Click(run.program);
    EXPECT_TRUE(run.program.format.FormatOpen);
}

TEST(FormatDefault, SavesTheFormatAndTheSetting) {
    Formats run;
    int saved = 0;
    run.program.hooks.SaveFileFormat = [&](Program&) { ++saved; };
    modFormat::mnuFileFormatDefault_Click(run.program);
    EXPECT_EQ(saved, 1);
    EXPECT_TRUE(run.program.settings.LoadDefaultFormat);
    EXPECT_NE(run.folder.Read("UserPreferences.txt").find("Load Default Format:True\r\n"), std::string::npos);
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
    ASSERT_EQ(run.Chooser().FileList1.Items, std::vector<std::string>{"Garden.fut"});
    run.Chooser().FileList1_Click(run.program, 0);
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
    EXPECT_EQ(run.program.document.TextFileName, "notes.txt");
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
    run.program.document.FileFilter = "*.jpg;*.bmp;*.gif";
    modWindows::Show(run.program, std::make_unique<frmFile>());
    ASSERT_EQ(run.Chooser().FileList1.Items, (std::vector<std::string>{"a.jpg", "b.BMP", "c.gif"}));
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
    EXPECT_EQ(run.program.settings.LogoFile, picture);
    EXPECT_EQ(run.program.run.LogoPath, picture);
    EXPECT_TRUE(run.program.format.LogoChanged);
    EXPECT_EQ(run.program.document.FileFilter, "*.hef");
}

} // namespace
