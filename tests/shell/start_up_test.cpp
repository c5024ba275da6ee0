#include "core/errors.h"
#include "core/files.h"
#include "core/frm_tax.h"
#include "core/install.h"
#include "core/settings.h"
#include "core/windows.h"
#include "shell/closing.h"
#include "shell/start_up.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>

namespace {

using Begin = RunningProgram::Begin;

TEST(StartUp, ASecondInstanceSaysSoAndReadsNothing) {
    RunningProgram run(Begin::NotStarted);
    run.surroundings.instance.Free = false;
    run.surroundings.questions.ExpectBox(
        {"Another instance of this application is already running.", Buttons::Ok, ""}, Answer::Ok);
    EXPECT_EQ(modMain::Main(run.program), modMain::StartResult::Ended);
    EXPECT_TRUE(run.program.settings.Lines.empty());
    EXPECT_FALSE(run.folder.Has("Proposals/Backup"));
}

TEST(StartUp, TheFirstStartRecommendsTheTutorialOnce) {
    RunningProgram run(Begin::NotStarted);
    run.Setting("App First Instance:", "True");
    run.surroundings.questions.ExpectBox(
        {"Although the program is easy to use, some of the features which will\r\n"
         "help you the most can be confusing to understand. For this reason, it\r\n\r\n"
         "is HIGHLY RECOMMENDED you explore the Quick Start Tutorial under Help.",
         Buttons::Ok, ""},
        Answer::Ok);
    run.Start();
    EXPECT_TRUE(run.folder.Read("UserPreferences.txt").starts_with("App First Instance:False\r\n"));
}

TEST(StartUp, NoAtTheFontQuestionEndsTheProgram) {
    RunningProgram run(Begin::NotStarted);
    run.surroundings.screen.FontNames = {"Arial"};
    run.surroundings.questions.ExpectBox(
        {"The font \"Times New Roman\" is not installed on this computer.\r\n"
         "Some features of this software may not work correctly\r\n"
         "without it. Would you like to try the software anyway?\r\n\r\n"
         "Please contact us for instructions to install the font.",
         Buttons::YesNo, "Times New Roman font not found."},
        Answer::No);
    EXPECT_EQ(modMain::Main(run.program), modMain::StartResult::Ended);
    EXPECT_FALSE(run.program.main.Loaded);
}

TEST(StartUp, StandsBeforeAnEmptyProposal) {
    RunningProgram run;
    EXPECT_TRUE(run.program.main.Loaded);
    EXPECT_EQ(run.program.main.PageInFront, PageId::frmP1);
    EXPECT_EQ(run.program.main.Focus, (FieldRef{PageId::frmP1, FieldKind::txt, 0}));
    EXPECT_EQ(run.program.main.lblDir.Caption, "Current Folder = " + (run.folder / "Proposals/"));
    EXPECT_EQ(run.program.document.PagesInUse, 6);
    EXPECT_EQ(run.program.totals.TaxRate, 8.25F);
    EXPECT_TRUE(run.program.main.cmdReCalc.Enabled);
    EXPECT_TRUE(run.folder.Has("Proposals/Backup"));
    EXPECT_FALSE(run.program.guards.HandlersSilent());
    EXPECT_FALSE(run.program.guards.KeepPageContent);
}

TEST(StartUp, OldProposalsTakeTheNewExtension) {
    RunningProgram run(Begin::NotStarted);
    run.folder.Write("Proposals/Ann.HWF", "a");
    run.folder.Write("Proposals/Bea.hwf", "b");
    run.folder.Write("Proposals/Bea.hef", "taken");
    run.folder.Write("Proposals/Cid.hwf", "c");
    run.surroundings.questions.Expect("An error occurred in ConvertOldFiles.");
    run.Start();
    EXPECT_EQ(run.folder.Read("Proposals/Ann.hef"), "a");
    EXPECT_EQ(run.folder.Read("Proposals/Bea.hef"), "taken");
    EXPECT_EQ(run.folder.Read("Proposals/Bea.hwf"), "b");
    EXPECT_EQ(run.folder.Read("Proposals/Cid.hef"), "c");
}

TEST(StartUp, WithoutItsSettingsReportsAndGoesOn) {
    RunningProgram run(Begin::NotStarted);
    std::filesystem::remove(run.folder / "UserPreferences.txt");
    run.surroundings.questions.Expect("An error occurred in GetUserPreferences.\r\nError Number: 53");
    run.Start();
    EXPECT_TRUE(run.program.main.Loaded);
    EXPECT_EQ(run.Label(PageId::frmP1, 0).Caption, "");
    EXPECT_EQ(run.program.folders.ProposalsFolder, "");
    EXPECT_NE(run.folder.Read("Error.log").find("GetUserPreferences."), std::string::npos);
}

class HostileSettings : public testing::TestWithParam<std::string> {};

TEST_P(HostileSettings, NeverStopTheProgram) {
    RunningProgram run(Begin::NotStarted);
    run.folder.Write("UserPreferences.txt", GetParam());
    run.surroundings.questions.Expect("An error occurred in GetUserPreferences.");
    run.Start();
    EXPECT_TRUE(run.program.main.Loaded);
}

// Every one of these has a line too short for its key, which is told once.
INSTANTIATE_TEST_SUITE_P(Table, HostileSettings,
                         testing::Values(std::string("x"), std::string(1 << 20, 'x') + "\r\ny",
                                         std::string("\r\n\r\n\r\n"),
                                         std::string("App First Instance:False\r\nShared"),
                                         std::string("\xFF\xFE\x00 garbage\r\n", 12)));

TEST(Settings, AnEmptyFileOrOneOfNulsLeavesEverythingEmpty) {
    for (const std::string& bytes : {std::string(), std::string(1000, '\0')}) {
        RunningProgram run(Begin::NotStarted);
        run.folder.Write("UserPreferences.txt", bytes);
        run.Start();
        EXPECT_EQ(run.program.settings.CompanyName, "");
        EXPECT_FALSE(run.program.settings.ShowFUT);
        EXPECT_EQ(run.program.folders.ProposalsFolder, run.folder / "Proposals/");
    }
}

TEST(Settings, AreCountedOffByTheirPlaceAndMayHoldAColon) {
    RunningProgram run;
    const SettingsRecords& settings = run.program.settings;
    EXPECT_EQ(settings.CompanyWebsite, "http://example.test:8080/a");
    EXPECT_EQ(settings.CompanyCityStateZip, "Springfield, IL 62701");
    EXPECT_EQ(settings.LogoLeft, 1080);
    EXPECT_EQ(settings.AutoStartPosition, 2);
    EXPECT_TRUE(settings.ShowFUT);
    EXPECT_EQ(settings.FUTPosition, (FutPosition{100, 200, 3000, 4000}));
    EXPECT_EQ(settings.SavedFontName, "Times New Roman");
    EXPECT_EQ(settings.Lines.size(), 32U);
    EXPECT_EQ(modSettings::KeyText(modSettings::Key::CompanyCityStateZip), "Company City, State Zip:");
    EXPECT_EQ(modSettings::KeyText(modSettings::Key::LogoVisible), "Logo Visible:");
}

TEST(Settings, AreWrittenBackLineByLine) {
    RunningProgram run;
    modSettings::SetLine(run.program, modSettings::Key::CurrencySymbol, "\x80");
    modSettings::SaveUserPreferences(run.program);
    std::string expected = ReadTestData("jane_roe/UserPreferences.txt");
    const std::size_t at = expected.find("Currency Symbol:$");
    expected.replace(at, 17, "Currency Symbol:\x80");
    EXPECT_EQ(run.folder.Read("UserPreferences.txt"), expected);
    run.program.settings.Lines.resize(3);
    modSettings::SetLine(run.program, modSettings::Key::CompanyAddress2, "Suite 7");
    EXPECT_EQ(run.program.settings.Lines.at(3), "Company Address 1:");
    EXPECT_EQ(run.program.settings.Lines.at(4), "Company Address 2:Suite 7");
}

TEST(Settings, ASharedFolderIsUsedMadeOrLeft) {
    {
        RunningProgram run(Begin::NotStarted);
        run.folder.MakeFolder("Share/proposals");
        run.folder.Write("Share/proposals/SalesTax.txt", "5.00 ");
        run.Setting("Shared Directory:", run.folder / "Share");
        run.Start();
        EXPECT_EQ(run.program.folders.ProposalsFolder, run.folder / "Share/Proposals/");
        EXPECT_EQ(run.program.totals.TaxRate, 5);
    }
    {
        RunningProgram run(Begin::NotStarted);
        run.folder.MakeFolder("Share");
        run.folder.Write("Proposals/Default Terms.fut", "Chair [3.50]");
        run.Setting("Shared Directory:", run.folder / "Share/");
        run.surroundings.questions.ExpectBox(
            {"Could not find the folder \"Proposals\" on the shared\r\n"
             "network drive. This is the network folder where all the Proposal\r\n"
             "files normally reside. Would you like to create the folder now?",
             Buttons::YesNo, "Proposals Folder Not Found"},
            Answer::Yes);
        run.surroundings.questions.Expect("Proposals Folder Successfully Created.");
        run.surroundings.questions.Expect("The current sales tax rate is 0%. Do you want to change it now?",
                                          Answer::No);
        run.Start();
        EXPECT_EQ(run.folder.Read("Share/Proposals/Default Terms.fut"), "Chair [3.50]");
        EXPECT_EQ(run.folder.Read("Share/Proposals/SaleTax.txt"), "8.25 ") << "the misspelt name is wanted";
        EXPECT_EQ(run.folder.Read("Share/Proposals/SalesTax.txt"), "");
    }
    {
        RunningProgram run(Begin::NotStarted);
        run.Setting("Shared Directory:", "q:\\");
        run.surroundings.questions.Expect("Would you like to create the folder now?", Answer::No);
        run.Start();
        EXPECT_EQ(run.program.folders.ProposalsFolder, run.folder / "Proposals/");
    }
}

TEST(Settings, TheShareIsAskedForByALetterOrAPath) {
    RunningProgram run;
    for (const char* reply : {"cc", "1", "[", "relative/path"}) {
        run.surroundings.questions.ExpectInput("Proposal Directory Setup", reply);
        run.surroundings.questions.ExpectBox({"You have not entered a valid Drive Letter. Please\r\n"
                                              "contact the Help File for assistance in setting up\r\n"
                                              "a network share path.",
                                              Buttons::Ok, ""},
                                             Answer::Ok);
        modSettings::RequestNetworkSharePath(run.program);
    }
    run.surroundings.questions.ExpectInput("Proposal Directory Setup", "");
    modSettings::RequestNetworkSharePath(run.program);
    run.folder.MakeFolder("Home/Proposals");
    run.surroundings.questions.ExpectInput("Proposal Directory Setup", "c");
    modSettings::RequestNetworkSharePath(run.program);
    EXPECT_NE(run.folder.Read("UserPreferences.txt").find("Shared Directory:c:\\\r\n"), std::string::npos);
    EXPECT_EQ(run.program.folders.ProposalsFolder, run.folder / "Home/Proposals/");
    EXPECT_EQ(run.program.document.FilePath, run.folder / "Home/Proposals/");
}

TEST(TaxRate, OfZeroAsksAndTheWindowTakesANewOne) {
    RunningProgram run(Begin::NotStarted);
    std::filesystem::remove(run.folder / "Proposals/SalesTax.txt");
    run.surroundings.questions.ExpectBox({"The current sales tax rate is 0%. Do you want to change it now?",
                                          Buttons::YesNo, "Sales Tax Rate is 0.0%"},
                                         Answer::Yes);
    run.Start();
    auto* window = dynamic_cast<frmTax*>(modWindows::Find(run.program, "frmTax"));
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(
        window->lblTaxRate.Caption,
        "The Current Tax Rate is .00%. You can change it by entering a new value in the text area below.");
    for (int key = 1; key < 256; ++key) {
        const bool passes = (key >= '0' && key <= '9') || key == '.' || key == 8 || key == 9;
        EXPECT_EQ(frmTax::txtTaxRate_KeyPress(key), passes ? key : 0);
    }
    window->txtTaxRate.Text = "7.125";
    run.surroundings.questions.Expect("New Sales Tax Rate is 7.13 %");
    window->cmdOK_Click(run.program);
    EXPECT_EQ(run.folder.Read("Proposals/SalesTax.txt"), "7.13 ");
    EXPECT_EQ(run.program.totals.TaxRate, 7.13F);
    EXPECT_EQ(modWindows::Find(run.program, "frmTax"), nullptr);
}

TEST(TaxRate, WithAmountsAsksForARecalculation) {
    RunningProgram run;
    run.program.totals.AmountTable[20][0] = 5;
    run.surroundings.questions.Expect("New Sales Tax Rate is 100.00 %");
    run.surroundings.questions.Expect("Please click Recalculate to update the totals.");
    modSettings::SaveTaxRate(run.program, "100.00");
    EXPECT_EQ(run.folder.Read("Proposals/SalesTax.txt"), "100.0");
    EXPECT_EQ(run.program.main.cmdReCalc.BackColor, colors::kOverLimit);
}

TEST(PrinterOffsets, AreInchesInTheFileAndTwipsInTheProgram) {
    RunningProgram run;
    run.program.printing.PrinterOffsetX = -360;
    run.program.printing.PrinterOffsetY = 180;
    modSettings::SavePrinterOffsets(run.program);
    EXPECT_EQ(run.folder.Read("Proposals/PrinterOffsets.txt"),
              "Printer X Offset:-0.25Printer Y Offset:0.125");
    run.program.printing = {};
    modSettings::ReadPrinterOffsets(run.program);
    EXPECT_EQ(run.program.printing.PrinterOffsetX, -360);
    EXPECT_EQ(run.program.printing.PrinterOffsetY, 180);
    run.folder.Write("Proposals/PrinterOffsets.txt", "garbage");
    modSettings::ReadPrinterOffsets(run.program);
    EXPECT_EQ(run.program.printing.PrinterOffsetX, 0);
}

TEST(TheLog, GrowsByOneRecordAReport) {
    RunningProgram run;
    run.surroundings.questions.Expect("An error occurred in First.");
    run.surroundings.questions.Expect("An error occurred in Second.");
    ReportError(run.program, "First", files::FileError(53, "File not found"));
    ReportError(run.program, "Second", std::runtime_error("odd"));
    EXPECT_EQ(run.folder.Read("Error.log"), "1/21/2008 6:00:00 PM\r\nAn error occurred in First.\r\nError "
                                            "Number: 53\r\nError Description: File not found\r\n\r\n"
                                            "1/21/2008 6:00:00 PM\r\nAn error occurred in Second.\r\nError "
                                            "Number: 51\r\nError Description: odd\r\n\r\n");
    EXPECT_EQ(run.surroundings.questions.Shown.back().Title, "Program Error");
    std::filesystem::remove(run.folder / "Error.log");
    run.folder.MakeFolder("Error.log");
    run.surroundings.questions.Expect("An error occurred in Third.");
    ReportError(run.program, "Third",
                std::runtime_error("odd")); // a log that cannot be written raises nothing
}

TEST(Closing, WithoutChangesEndsTheRun) {
    RunningProgram run;
    modMain::mnuFileExit_Click(run.program);
    EXPECT_TRUE(run.surroundings.events.QuitAsked);
    EXPECT_TRUE(run.program.run.ProgramClosing);
}

TEST(Closing, WithChangesAsksAndYesStaysOpen) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 2);
    typist.Type("Ann");
    run.surroundings.questions.Expect("The file has been changed.", Answer::Cancel);
    modMain::mnuFileExit_Click(run.program);
    EXPECT_FALSE(run.surroundings.events.QuitAsked);
    run.surroundings.questions.Expect("The file has been changed.", Answer::Yes);
    run.surroundings.questions.Expect("File was saved as Ann.hef");
    modMain::mnuFileExit_Click(run.program);
    EXPECT_FALSE(run.surroundings.events.QuitAsked);
    modMain::mnuFileExit_Click(run.program);
    EXPECT_TRUE(run.surroundings.events.QuitAsked);
}

TEST(ProgramFolder, IsItsOwnWhenItHoldsTheSettingsElseTheUsersFilledOnce) {
    const ScratchFolder folder;
    folder.Write("bin/UserPreferences.txt", "");
    folder.Write("shipped/UserPreferences.txt", "shipped");
    folder.Write("shipped/Proposals/SalesTax.txt", "8.25 ");
    EXPECT_EQ(install::Locate({folder / "bin/", folder / "user/", folder / "shipped/"}), folder / "bin/");
    EXPECT_FALSE(folder.Has("user"));
    folder.MakeFolder("plain");
    EXPECT_EQ(install::Locate({folder / "plain/", folder / "user/", folder / "shipped/"}), folder / "user/");
    EXPECT_EQ(folder.Read("user/UserPreferences.txt"), "shipped");
    EXPECT_EQ(folder.Read("user/Proposals/SalesTax.txt"), "8.25 ");
    std::filesystem::remove(folder / "user/UserPreferences.txt");
    EXPECT_EQ(install::Locate({folder / "plain/", folder / "user/", folder / "shipped/"}), folder / "user/");
    EXPECT_FALSE(folder.Has("user/UserPreferences.txt")) << "what the user lacks is told, not healed";
}

} // namespace
