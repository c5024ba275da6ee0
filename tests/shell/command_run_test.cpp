#include "base/version.h"
#include "editing/text_commands.h"
#include "program/program.h"
#include "program/windows.h"
#include "proposal/frm_file.h"
#include "shell/closing.h"
#include "shell/command_run.h"
#include "shell/command_table.h"
#include "support/person.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

struct FloatingWindow : Window {
    explicit FloatingWindow(std::string name) : name_(std::move(name)) {}
    [[nodiscard]] std::string_view Name() const override { return name_; }
    [[nodiscard]] Modality Mode() const override { return Modality::Modeless; }
    void Form_Cancel(Program& program) override { modWindows::Close(program, *this); }

private:
    std::string name_;
};

Window& Float(RunningProgram& run, std::string name) {
    return modWindows::Show(run.program, std::make_unique<FloatingWindow>(std::move(name)));
}

void Choose(RunningProgram& run, CommandId id) {
    commands::Run(run.program, id);
}

/// Shows a message of the program's own, without a title.
void ExpectTold(RunningProgram& run, std::string text) {
    run.surroundings.questions.ExpectBox({std::move(text), Buttons::Ok, ""}, Answer::Ok);
}

TEST(Commands, ADisabledOneDoesNothing) {
    RunningProgram run;
    run.program.main[CommandId::mnuHelpAbout].Enabled = false;
    Choose(run, CommandId::mnuHelpAbout);
    EXPECT_TRUE(run.surroundings.questions.Shown.empty());
}

TEST(Commands, AHiddenOneDoesNothing) {
    RunningProgram run;
    Choose(run, CommandId::mnuSupportUpgrade);
    EXPECT_TRUE(run.surroundings.questions.Shown.empty());
    EXPECT_TRUE(run.surroundings.shell.Links.empty());
}

TEST(Commands, MenusSeparatorsAndIdleEntriesDoNothing) {
    RunningProgram run;
    for (const CommandId id :
         {CommandId::mnuFile, CommandId::mnuFilePrint, CommandId::mnuFileSep1, CommandId::mnuHelpShortCuts,
          CommandId::mnuOptPrinterOffset, CommandId::mnuFileConvertRTF, CommandId::mnuAdminRecalc}) {
        run.program.main[id].Visible = true;
        run.program.main[id].Enabled = true;
        Choose(run, id);
    }
    EXPECT_TRUE(run.surroundings.questions.Shown.empty());
    EXPECT_EQ(modWindows::TopModal(run.program), nullptr);
}

TEST(Commands, AnEntryWhoseRoomIsNotBuiltDoesNothing) {
    RunningProgram run;
    for (const commands::Entry& entry : commands::Table()) {
        if (entry.Pending()) {
            run.program.main[entry.Id].Enabled = true;
            Choose(run, entry.Id);
        }
    }
    EXPECT_TRUE(run.surroundings.questions.Shown.empty());
    EXPECT_EQ(modWindows::TopModal(run.program), nullptr);
}

TEST(Toggles, CopyTheirCheckMarkToTheirFlag) {
    RunningProgram run;
    Choose(run, CommandId::mnuOptUnderline);
    EXPECT_TRUE(run.program.main[CommandId::mnuOptUnderline].Checked);
    EXPECT_TRUE(run.program.printing.UnderlineCategories);
    Choose(run, CommandId::mnuOptUnderline);
    EXPECT_FALSE(run.program.printing.UnderlineCategories);
    Choose(run, CommandId::mnuOptEnableOverwriteFmtTextBoxes);
    EXPECT_FALSE(run.program.main[CommandId::mnuOptEnableOverwriteFmtTextBoxes].Checked);
    EXPECT_FALSE(run.program.format.OverwriteFormatText);
}

TEST(Help, AboutTellsTitleVersionMakerAndWebAddress) {
    RunningProgram run;
    ExpectTold(run, "Quillbrook Version 1.0.0\r\nMade by Quillbrook Software\r\nwww.quillbrook.example");
    Choose(run, CommandId::mnuHelpAbout);
}

TEST(Help, PagesOpenAndBothFloatingWindowsStepAside) {
    RunningProgram run;
    Window& terms = *modWindows::Find(run.program, "frmFUT");
    Window& calculator = Float(run, "frmCalc");
    Choose(run, CommandId::mnuHelpContents);
    EXPECT_TRUE(terms.Minimised);
    EXPECT_TRUE(calculator.Minimised);
    Choose(run, CommandId::mnuHelpTutorial);
    EXPECT_EQ(run.surroundings.shell.Opened,
              (std::vector<std::string>{run.folder.Path() + "Help/index.htm",
                                        run.folder.Path() + "Help/tutorial.htm"}));
}

TEST(WebPages, OpenBelowTheMakersHostAndOnlyTheTermsStepAside) {
    RunningProgram run;
    Window& terms = *modWindows::Find(run.program, "frmFUT");
    Window& calculator = Float(run, "frmCalc");
    ExpectTold(run, "Quillbrook\r\nCurrent Version: 1.0.0");
    for (const CommandId id : {CommandId::mnuHelpFAQ, CommandId::mnuSupportUpdates,
                               CommandId::mnuFeedbackReportBug, CommandId::mnuFeedbackSuggestions}) {
        Choose(run, id);
    }
    const std::string host = "https://www.quillbrook.example/quillbrook/";
    EXPECT_EQ(run.surroundings.shell.Opened,
              (std::vector<std::string>{host + "faq.htm", host + "updates.htm", host + "bug_report.htm",
                                        host + "product_suggestions.htm"}));
    EXPECT_TRUE(terms.Minimised);
    EXPECT_FALSE(calculator.Minimised);
}

TEST(VersionFile, HoldsTheMessageWithoutALineBreakAtItsEnd) {
    RunningProgram run;
    const std::string words = "Quillbrook\r\nVersion: 1.0.0\r\nComments: Proposals for events and catering. "
                              "Build Date: 11/21/2026";
    ExpectTold(run, words);
    Choose(run, CommandId::mnuHelpVersion);
    EXPECT_EQ(run.folder.Read("Home/QBPVersion.txt"), words);
}

TEST(VersionFile, ReplacesOneThatMayOnlyBeRead) {
    RunningProgram run;
    run.folder.Write("Home/QBPVersion.txt", std::string(500, 'x'));
    std::filesystem::permissions(run.folder / "Home/QBPVersion.txt", std::filesystem::perms::owner_read);
    run.surroundings.questions.Expect("Version: 1.0.0");
    Choose(run, CommandId::mnuHelpVersion);
    EXPECT_EQ(run.folder.Read("Home/QBPVersion.txt"), run.surroundings.questions.Shown.back().Text);
}

TEST(VersionFile, ThatCannotBeWrittenIsReported) {
    RunningProgram run;
    run.folder.MakeFolder("Home/QBPVersion.txt");
    run.surroundings.questions.Expect("Version: 1.0.0");
    run.surroundings.questions.Expect("mnuHelpVersion");
    Choose(run, CommandId::mnuHelpVersion);
}

TEST(Version, IsTheOneThatIsBuilt) {
    const std::string expected = "project(Quillbrook VERSION " + std::string(version::Number()) + " ";
    EXPECT_NE(ReadTestData("../../CMakeLists.txt").find(expected), std::string::npos);
}

TEST(Support, TellsHowToReachIt) {
    RunningProgram run;
    ExpectTold(run, "Telephone: (555) 010-0140\r\nMonday to Friday, 9:00 AM to 5:00 PM\r\n"
                    "support@quillbrook.example");
    Choose(run, CommandId::mnuSupportFree);
}

void ExpectLinks(const RunningProgram& run, const std::string& name, const std::string& file) {
    const auto& links = run.surroundings.shell.Links;
    ASSERT_EQ(links.size(), 2U) << "a link is placed twice";
    EXPECT_EQ(links[0].Folder, "..\\..\\Desktop");
    EXPECT_EQ(links[1].Folder, "");
    for (const auto& link : links) {
        EXPECT_EQ(link.Name, name);
        EXPECT_EQ(link.Target, run.folder.Path() + file);
    }
}

TEST(Links, ToTheProgramArePlacedTwice) {
    RunningProgram run;
    ExpectTold(run, "A Shortcut has been successfully added to your Desktop.");
    Choose(run, CommandId::mnuToolsCreateShorcut);
    ExpectLinks(run, "Quillbrook", "Quillbrook.exe");
}

TEST(Links, ToTheUpgradeToolHaveANameOfTheirOwnInEachMenu) {
    RunningProgram tools;
    ExpectTold(tools, "A Shortcut has been successfully added to your Desktop named QLBK Upgrade Manager.");
    Choose(tools, CommandId::mnuToolsCreateShortcutUM);
    ExpectLinks(tools, "QLBK Upgrade Manager", "Upgrade Manager.exe");
    RunningProgram support;
    ExpectTold(support, "A Shortcut has been successfully added to your Desktop.");
    support.program.main[CommandId::mnuSupportUpgrade].Visible = true;
    Choose(support, CommandId::mnuSupportUpgrade);
    ExpectLinks(support, "Quillbrook Upgrade Manager", "Upgrade Manager.exe");
}

TEST(CurrencySymbol, IsAskedForAndKeptInTheSettings) {
    RunningProgram run;
    run.surroundings.questions.ExpectInput("Changing Currency Designator", "\x80");
    ExpectTold(run, "Changes will be applied in the next \"New\" or \"Open\" session.");
    Choose(run, CommandId::mnuOptCurrencySymbol);
    EXPECT_EQ(run.surroundings.questions.Prompts.back(),
              "The current Currency Symbol is $. Please enter the new Currency Symbol in the text area "
              "provided and click OK or Cancel to exit.");
    EXPECT_EQ(run.program.settings.CurrencySymbol, "\x80");
    EXPECT_NE(run.folder.Read("UserPreferences.txt").find("Currency Symbol:\x80\r\n"), std::string::npos);
}

TEST(CurrencySymbol, StaysOnCancel) {
    RunningProgram run;
    const std::string before = run.folder.Read("UserPreferences.txt");
    run.surroundings.questions.ExpectInput("Changing Currency Designator", "");
    Choose(run, CommandId::mnuOptCurrencySymbol);
    EXPECT_EQ(run.program.settings.CurrencySymbol, "$");
    EXPECT_EQ(run.folder.Read("UserPreferences.txt"), before);
}

TEST(DefaultFonts, AreWrittenFromTheFontInForce) {
    RunningProgram run;
    run.program.run.DefaultFontName = "Arial";
    run.program.run.DefaultFontSize = 10.5F;
    run.program.run.DefaultFontColor = 255;
    run.program.run.DefaultFontItalic = true;
    Choose(run, CommandId::mnuOptSetDefaultFonts);
    const std::string lines = run.folder.Read("UserPreferences.txt");
    for (const char* line :
         {"Font Name:Arial\r\n", "Font Size:10.5\r\n", "Font Color:255\r\n", "Font Italic:True\r\n"}) {
        EXPECT_NE(lines.find(line), std::string::npos) << line;
    }
    EXPECT_EQ(run.program.settings.SavedFontName, "Arial");
}

struct WithBackups : RunningProgram {
    void Ask(Answer answer) {
        surroundings.questions.ExpectBox({"Are you sure you want to delete all the Backup files?",
                                          Buttons::YesNo, "Preparing to Delete Backup Files"},
                                         answer);
    }
};

TEST(EmptyBackup, DeletesProposalsAndNothingElse) {
    WithBackups run;
    for (const char* name : {"A.hef", "b.HEF", "c.old", "d.hpf"}) {
        run.folder.Write(std::string("Proposals/Backup/") + name, "x");
    }
    run.Ask(Answer::Yes);
    ExpectTold(run, "All files have been deleted from Backup");
    Choose(run, CommandId::mnuOptEmptyBackup);
    EXPECT_FALSE(run.folder.Has("Proposals/Backup/A.hef"));
    EXPECT_FALSE(run.folder.Has("Proposals/Backup/b.HEF"));
    EXPECT_TRUE(run.folder.Has("Proposals/Backup/c.old"));
    EXPECT_TRUE(run.folder.Has("Proposals/Backup/d.hpf"));
}

TEST(EmptyBackup, SaysSoWhenThereIsNothingToDelete) {
    WithBackups run;
    run.Ask(Answer::Yes);
    ExpectTold(run, "No Backup Files Found");
    Choose(run, CommandId::mnuOptEmptyBackup);
}

TEST(EmptyBackup, LeavesTheFilesOnNo) {
    WithBackups run;
    run.folder.Write("Proposals/Backup/A.hef", "x");
    run.Ask(Answer::No);
    Choose(run, CommandId::mnuOptEmptyBackup);
    EXPECT_TRUE(run.folder.Has("Proposals/Backup/A.hef"));
}

TEST(Centre, SaysOkAndIsOutOfReach) {
    RunningProgram run;
    Choose(run, CommandId::mnuEditTextCenter);
    EXPECT_TRUE(run.surroundings.questions.Shown.empty());
    ExpectTold(run, "ok");
    modText::mnuEditTextCenter_Click(run.program);
}

TEST(Administrator, LogonMatchesWithAnEmptyAnswer) {
    RunningProgram run;
    run.surroundings.questions.ExpectInput("Password Required", "");
    Choose(run, CommandId::mnuAdminLogon);
    EXPECT_EQ(run.surroundings.questions.Prompts.back(), "Please enter password.");
    for (const CommandId id :
         {CommandId::mnuAdminConvert, CommandId::mnuAdminPrintAll, CommandId::mnuAdminRecalc}) {
        EXPECT_TRUE(run.program.main[id].Enabled);
    }
    EXPECT_FALSE(run.program.main[CommandId::mnuToolsAdmin].Visible);
}

TEST(Administrator, LogonIsSilentOnAMismatchAndLooksAtCase) {
    RunningProgram run;
    run.program.main.AdminPassword = "Quill";
    run.surroundings.questions.ExpectInput("Password Required", "quill");
    Choose(run, CommandId::mnuAdminLogon);
    EXPECT_FALSE(run.program.main[CommandId::mnuAdminConvert].Enabled);
    run.surroundings.questions.ExpectInput("Password Required", "Quill");
    Choose(run, CommandId::mnuAdminLogon);
    EXPECT_TRUE(run.program.main[CommandId::mnuAdminConvert].Enabled);
}

TEST(Administrator, FontCheckNamesThreeFonts) {
    RunningProgram run;
    Page& page = run.program.pages[PageId::frmP1];
    page.FontName = "Arial";
    page.FontSize = 8.5F;
    page.lbl[0].FontName = "Courier";
    page.lbl[0].FontSize = 12;
    ExpectTold(run, "Please inform the software manufacturer as to the message that follows.");
    ExpectTold(run, "Form Font = Arial: Fontsize = 8.5 | Text Font = Times New Roman: Fontsize = 10 | "
                    "Label Font = Courier: Fontsize = 12");
    Choose(run, CommandId::mnuAdminDebug);
}

TEST(Administrator, ShowsLabelsWhateverTheirTagsSay) {
    RunningProgram run;
    run.Label(PageId::frmP1, 33).Tag = kHide;
    run.Label(PageId::frmP1, 33).Visible = false;
    run.Label(PageId::frmP6, 64).Tag = kHide;
    run.Label(PageId::frmP6, 64).Visible = false;
    Choose(run, CommandId::mnuToolsAdminShowAllLabels);
    EXPECT_TRUE(run.Label(PageId::frmP1, 33).Visible);
    EXPECT_TRUE(run.Label(PageId::frmP6, 64).Visible);
    EXPECT_EQ(run.Label(PageId::frmP6, 64).Tag, kHide);
}

TEST(Administrator, DeletingFilesOpensTheChooser) {
    RunningProgram run;
    Choose(run, CommandId::mnuAdminDelete);
    Window* window = modWindows::Find(run.program, "frmFile");
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->Caption, "Selecting Files to Delete");
    EXPECT_TRUE(run.program.document.DeleteMode);
    EXPECT_EQ(dynamic_cast<frmFile&>(*window).lblPointOpen.Caption, "Delete");
}

TEST(TextCommands, LookAtTheFieldThatHasTheFocusNow) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 2);
    run.program.main[CommandId::mnuEditTextColumns].Enabled = true; // as it stood for another field
    Choose(run, CommandId::mnuEditTextColumns);
    EXPECT_FALSE(run.program.main[CommandId::mnuEditTextColumns].Enabled);
    EXPECT_EQ(run.Area(PageId::frmP1, 2).Width, 6120);
}

TEST(CurrencySymbol, OneThatCannotBeStoredIsToldAndStandsForTheRun) {
    RunningProgram run;
    std::filesystem::remove(run.folder / "UserPreferences.txt");
    run.folder.MakeFolder("UserPreferences.txt");
    run.folder.Write("UserPreferences.txt/inside", "x"); // a folder that is not empty cannot be deleted
    run.surroundings.questions.ExpectInput("Changing Currency Designator", "EUR");
    run.surroundings.questions.Expect("An error occurred in RequestNetworkSharePath.");
    run.surroundings.questions.ExpectBox(
        {"Error encountered while creating new Currency Symbol.", Buttons::Ok, ""}, Answer::Ok);
    commands::Run(run.program, CommandId::mnuOptCurrencySymbol);
    EXPECT_EQ(run.program.settings.CurrencySymbol, "EUR");
}

TEST(Commands, OneThatIsNotBuiltSaysSoInTheStrip) {
    RunningProgram run;
    commands::Run(run.program, CommandId::mnuAdminTestCode);
    EXPECT_EQ(run.program.main.Notice, "This command is not available in this version.");
}

TEST(Commands, WaitWhilePagesAreBeingPrinted) {
    RunningProgram run;
    run.Area(PageId::frmP1, 8).Text = "Hall";
    run.program.printing.CommandRunning = true;
    commands::Run(run.program, CommandId::mnuFileNew);
    commands::Run(run.program, CommandId::mnuFileOpenEvent);
    EXPECT_EQ(run.TextOf(PageId::frmP1, 8), "Hall");
    EXPECT_EQ(modWindows::TopModal(run.program), nullptr);
    EXPECT_FALSE(modClosing::MDIForm_QueryUnload(run.program));
    run.program.printing.CommandRunning = false;
    run.Area(PageId::frmP1, 8).Text.clear();
    EXPECT_TRUE(modClosing::MDIForm_QueryUnload(run.program));
}

TEST(Commands, OneThatIsNotBuiltMayNotRun) {
    RunningProgram run;
    EXPECT_FALSE(commands::MayRun(run.program, CommandId::mnuAdminTestCode));
    EXPECT_TRUE(commands::MayRun(run.program, CommandId::mnuHelpAbout));
}

TEST(Commands, WhatWasToldOfTheLastOneIsOverWithTheNext) {
    RunningProgram run;
    Choose(run, CommandId::mnuAdminTestCode);
    ASSERT_NE(run.program.main.Notice, "");
    Choose(run, CommandId::mnuOptUnderline);
    EXPECT_EQ(run.program.main.Notice, "");
}

TEST(Commands, OneThatTheLastCommandMadePossibleRunsAtOnce) {
    RunningProgram run;
    TypeJaneRoe(run);
    run.surroundings.questions.Expect("File was saved as Jane Roe.hef");
    Choose(run, CommandId::mnuFileSaveEvent);
    run.surroundings.questions.Expect("Are you sure you want to delete this file?", Answer::Yes);
    Choose(run, CommandId::mnuFileDelete);
    EXPECT_FALSE(run.folder.Has("Proposals/Jane Roe.hef"));
}

TEST(Commands, OneChosenWhileAnAreasMenuIsUpFindsTheAreaInUseAgain) {
    RunningProgram run;
    const FieldRef line{PageId::frmP2, FieldKind::txt, 3};
    Typist typist(run.program);
    typist.Click(line);
    constexpr int kRightButton = 2;
    person::FieldMouseDown(run.program, line, kRightButton, 0, 0);
    ASSERT_FALSE(run.program.main.Focus);
    Choose(run, CommandId::mnuOptUnderline);
    EXPECT_EQ(run.program.main.Focus, line);
}

TEST(Administrator, ConvertingIsNotedOnceTheLogonAllowsIt) {
    RunningProgram run;
    run.program.main[CommandId::mnuAdminConvert].Visible = true;
    Choose(run, CommandId::mnuAdminConvert);
    EXPECT_FALSE(run.program.main.ConversionAsked);
    run.surroundings.questions.ExpectInput("Password Required", "");
    Choose(run, CommandId::mnuAdminLogon);
    Choose(run, CommandId::mnuAdminConvert);
    EXPECT_TRUE(run.program.main.ConversionAsked);
}

TEST(Toggles, HideTotalsIsCheckedAsLongAsTheyAreHidden) {
    RunningProgram run;
    EXPECT_FALSE(run.Main()[CommandId::mnuOptHideTotals].Checked);
    Choose(run, CommandId::mnuOptHideTotals);
    EXPECT_TRUE(run.Main()[CommandId::mnuOptHideTotals].Checked);
    EXPECT_FALSE(run.Main().cmdReCalc.Visible);
    Choose(run, CommandId::mnuOptHideTotals);
    EXPECT_FALSE(run.Main()[CommandId::mnuOptHideTotals].Checked);
    EXPECT_TRUE(run.Main().cmdReCalc.Visible);
}

TEST(CurrencySymbol, WithItTheSettingsAreReadAndInForceAgain) {
    RunningProgram run(RunningProgram::Begin::NotStarted);
    run.Setting("Default Printer:", "Print to PDF");
    run.Start();
    RecordingPrinters& printers = run.surroundings.printers;
    ASSERT_EQ(printers.CurrentDevice, "Print to PDF");
    printers.CurrentDevice = "Office Laser"; // the system's own has changed meanwhile
    run.surroundings.questions.ExpectInput("Changing Currency Designator", "EUR");
    ExpectTold(run, "Changes will be applied in the next \"New\" or \"Open\" session.");
    Choose(run, CommandId::mnuOptCurrencySymbol);
    EXPECT_EQ(printers.CurrentDevice, "Print to PDF");
    EXPECT_EQ(run.program.settings.CurrencySymbol, "EUR");
}

} // namespace
