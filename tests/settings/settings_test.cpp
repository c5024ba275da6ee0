#include "base/seen.h"
#include "settings/frm_tax.h"
#include "settings/network_share.h"
#include "settings/settings.h"
#include "settings/tax_rate.h"
#include "support/failing_disk.h"
#include "support/settled.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

namespace {

using modSettings::Key;

TEST(Settings, EveryLineReachesItsValue) {
    Settled run;
    run.folder.Write("UserPreferences.txt", SettingsFile({{0, "False"},
                                                          {2, "Acme Events"},
                                                          {3, "1 Main Street"},
                                                          {4, "Suite 2"},
                                                          {5, "Springfield, IL 62701"},
                                                          {6, "(217) 555-0199"},
                                                          {7, "(217) 555-0198"},
                                                          {8, "http://example.test:8080/a"},
                                                          {9, "office@example.test"},
                                                          {10, "Our Proposal"},
                                                          {11, "logo.jpg"},
                                                          {12, "1080.5"},
                                                          {13, "-540"},
                                                          {14, "True"},
                                                          {15, "3"},
                                                          {16, "True"},
                                                          {17, "True"},
                                                          {18, "True"},
                                                          {19, "formats\\mine.fmt"},
                                                          {20, "True"},
                                                          {21, "Print to PDF"},
                                                          {22, "\x80"},
                                                          {23, "Mine.fut"},
                                                          {24, "True"},
                                                          {25, "Titles: "},
                                                          {26, "Left=100:Top=200.5:Width=3000:Height=4000"},
                                                          {27, "Arial"},
                                                          {28, "9.75"},
                                                          {29, "255"},
                                                          {30, "True"},
                                                          {31, "True"}}));
    modSettings::GetUserPreferences(run.program);
    const SettingsRecords& read = run.program.settings;
    EXPECT_FALSE(read.AppFirstInstance);
    EXPECT_EQ(read.SharedDirectory, "");
    EXPECT_EQ(read.CompanyName, "Acme Events");
    EXPECT_EQ(read.CompanyAddress1, "1 Main Street");
    EXPECT_EQ(read.CompanyAddress2, "Suite 2");
    EXPECT_EQ(read.CompanyCityStateZip, "Springfield, IL 62701");
    EXPECT_EQ(read.CompanyPhone, "(217) 555-0199");
    EXPECT_EQ(read.CompanyFax, "(217) 555-0198");
    EXPECT_EQ(read.CompanyWebsite, "http://example.test:8080/a");
    EXPECT_EQ(read.CompanyEmail, "office@example.test");
    EXPECT_EQ(read.PageTitle, "Our Proposal");
    EXPECT_EQ(read.LogoFile, "logo.jpg");
    EXPECT_EQ(read.LogoLeft, 1080.5F);
    EXPECT_EQ(read.LogoTop, -540.0F);
    EXPECT_TRUE(read.AutoCompleteWord);
    EXPECT_EQ(read.AutoStartPosition, 3);
    EXPECT_TRUE(read.ShowFUT);
    EXPECT_TRUE(read.MinimizeFUT);
    EXPECT_TRUE(read.ShowCalc);
    EXPECT_EQ(read.DefaultFormatPath, "formats\\mine.fmt");
    EXPECT_TRUE(read.LoadDefaultFormat);
    EXPECT_EQ(read.DefaultPrinter, "Print to PDF");
    EXPECT_EQ(read.CurrencySymbol, "\x80");
    EXPECT_EQ(read.FrequentTermsFile, "Mine.fut");
    EXPECT_TRUE(read.LoadFUT);
    EXPECT_EQ(read.PageTitles, "Titles: ");
    EXPECT_EQ(read.FUTPosition, (FutPosition{100, 200.5F, 3000, 4000}));
    EXPECT_EQ(read.SavedFontName, "Arial");
    EXPECT_EQ(read.SavedFontSize, 9.75F);
    EXPECT_EQ(read.SavedFontColor, 255U);
    EXPECT_TRUE(read.SavedFontItalic);
    EXPECT_TRUE(read.LogoVisible);
    EXPECT_TRUE(read.PrefsRead);
    EXPECT_FALSE(read.ReadingPrefs);

    const RunState& inForce = run.program.run;
    EXPECT_EQ(inForce.DefaultFontName, "Arial");
    EXPECT_EQ(inForce.DefaultFontSize, 9.75F);
    EXPECT_EQ(inForce.DefaultFontColor, 255U);
    EXPECT_TRUE(inForce.DefaultFontItalic);
    EXPECT_TRUE(inForce.TermsPinned);
    EXPECT_EQ(inForce.FUTFileName, "Mine.fut");
    EXPECT_FALSE(inForce.NoPrinter);
    EXPECT_EQ(run.surroundings.printers.Current(), "Print to PDF");
    EXPECT_EQ(run.program.document.PageHeading, "Titles: ");
}

TEST(Settings, TheKeyTextsAreInTheOrderOfTheFile) {
    for (std::size_t line = 0; line < kSettingKeys.size(); ++line) {
        EXPECT_EQ(modSettings::KeyText(static_cast<Key>(line)), kSettingKeys[line]);
    }
    EXPECT_EQ(static_cast<std::size_t>(Key::Count), kSettingKeys.size());
}

TEST(Settings, KeysAreCountedOffByLengthAndNeverLookedFor) {
    Settled run;
    std::string bytes = SettingsFile({{2, "A: B: C"}, {6, "Company Fax:5"}});
    // "Company Name:" is 13 characters, whichever they are.
    bytes.replace(bytes.find("Company Name:"), 13, "Something er:");
    run.folder.Write("UserPreferences.txt", bytes);
    modSettings::GetUserPreferences(run.program);
    EXPECT_EQ(run.program.settings.CompanyName, "A: B: C");
    EXPECT_EQ(run.program.settings.CompanyPhone, "Company Fax:5");
}

TEST(Settings, TheFirstStartIsToldOnceAndTheFileRewrittenWithoutIt) {
    Settled run;
    run.folder.Write("UserPreferences.txt", SettingsFile({{0, "True"}, {2, "Acme Events"}}));
    modSettings::GetUserPreferences(run.program);
    EXPECT_TRUE(run.program.settings.AppFirstInstance);
    EXPECT_EQ(run.folder.Read("UserPreferences.txt"), SettingsFile({{0, "False"}, {2, "Acme Events"}}));
    modSettings::GetUserPreferences(run.program);
    EXPECT_FALSE(run.program.settings.AppFirstInstance);
}

TEST(Settings, AnyOtherStartLeavesTheFileAlone) {
    Settled run;
    const std::string bytes = "App First Instance:False\nShared Directory:\nCompany Name:Acme";
    run.folder.Write("UserPreferences.txt", bytes);
    modSettings::GetUserPreferences(run.program);
    EXPECT_EQ(run.folder.Read("UserPreferences.txt"), bytes);
    EXPECT_EQ(run.program.settings.CompanyName, "Acme");
}

TEST(Settings, AMissingFileIsToldAndMadeAsANewInstallationHasIt) {
    Settled run;
    std::filesystem::remove_all(run.folder / "Proposals");
    run.ExpectReport("GetUserPreferences");
    modSettings::GetUserPreferences(run.program);
    ASSERT_EQ(run.surroundings.questions.Shown.size(), 1U);
    EXPECT_EQ(run.surroundings.questions.Shown[0].Title, "Program Error");
    EXPECT_TRUE(run.program.settings.PrefsRead);
    EXPECT_FALSE(run.program.settings.ReadingPrefs);
    EXPECT_EQ(run.program.folders.ProposalsFolder, run.folder / "Proposals/");
    EXPECT_TRUE(run.folder.Has("Proposals/Backup"));
    std::ifstream shipped(std::string(QUILLBROOK_SHIPPED_DATA) + "/UserPreferences.txt", std::ios::binary);
    std::string expected{std::istreambuf_iterator<char>(shipped), std::istreambuf_iterator<char>()};
    expected.replace(expected.find("True"), 4, "False"); // the first start has passed
    EXPECT_EQ(run.folder.Read("UserPreferences.txt"), expected);
    EXPECT_NE(run.Log().find("Error Number: 53\r\n"), std::string::npos);
}

TEST(Settings, AnEmptyFileLeavesAllEmptyAndTheProgramUsable) {
    Settled run;
    run.folder.Write("UserPreferences.txt", "");
    modSettings::GetUserPreferences(run.program);
    EXPECT_TRUE(run.program.settings.PrefsRead);
    EXPECT_EQ(run.program.settings.CompanyName, "");
    EXPECT_FALSE(run.program.settings.ShowFUT);
    EXPECT_EQ(run.program.settings.AutoStartPosition, 0);
    EXPECT_EQ(run.program.folders.ProposalsFolder, run.folder / "Proposals/");
    EXPECT_EQ(run.Log(), "");
}

TEST(Settings, AShortFileLeavesTheLaterSettingsEmpty) {
    Settled run;
    run.folder.Write("UserPreferences.txt",
                     "App First Instance:False\r\nShared Directory:\r\nCompany Name:Acme\r\n");
    modSettings::GetUserPreferences(run.program);
    EXPECT_EQ(run.program.settings.CompanyName, "Acme");
    EXPECT_EQ(run.program.settings.CompanyPhone, "");
    EXPECT_EQ(run.program.settings.SavedFontSize, 0.0F);
    EXPECT_EQ(run.program.settings.Lines.size(), 3U);
    EXPECT_EQ(run.Log(), "");
}

TEST(Settings, LinesShorterThanTheirKeysAreEmptyAndToldOnce) {
    Settled run;
    run.folder.Write("UserPreferences.txt", "App\r\nSha\r\nCompany Name:Acme\r\nx\r\n");
    run.ExpectReport("GetUserPreferences");
    modSettings::GetUserPreferences(run.program);
    EXPECT_EQ(run.surroundings.questions.Shown.size(), 1U);
    EXPECT_EQ(run.program.settings.CompanyName, "Acme");
    EXPECT_EQ(run.program.settings.CompanyAddress1, "");
    EXPECT_TRUE(run.program.settings.PrefsRead);
}

TEST(Settings, FiguresOutOfAnyRangeCountAsZero) {
    Settled run;
    const std::string nines(60, '9');
    run.folder.Write("UserPreferences.txt", SettingsFile({{12, nines},
                                                          {13, "abc"},
                                                          {15, nines},
                                                          {26, "Left=:Top=x:Width=" + nines},
                                                          {28, "-"},
                                                          {29, nines}}));
    modSettings::GetUserPreferences(run.program);
    EXPECT_EQ(run.program.settings.LogoLeft, 0.0F);
    EXPECT_EQ(run.program.settings.LogoTop, 0.0F);
    EXPECT_EQ(run.program.settings.AutoStartPosition, 0);
    EXPECT_EQ(run.program.settings.FUTPosition, FutPosition{});
    EXPECT_EQ(run.program.settings.SavedFontSize, 0.0F);
    EXPECT_EQ(run.program.settings.SavedFontColor, 0U);
}

TEST(Settings, AWholeNumberIsTakenUpToAThousandMillions) {
    for (const auto& [written, taken] : {std::pair<std::string, int>{"1000000000", 1000000000},
                                         {"-1000000000", -1000000000},
                                         {"1000000001", 0}}) {
        Settled run;
        run.folder.Write("UserPreferences.txt", SettingsFile({{15, written}}));
        modSettings::GetUserPreferences(run.program);
        EXPECT_EQ(run.program.settings.AutoStartPosition, taken) << written;
    }
}

TEST(Settings, ReadAgainBringTheTermsOfTheFolderInForce) {
    Settled run;
    run.folder.Write("UserPreferences.txt", SettingsFile({}));
    int read = 0;
    run.program.hooks.ReadFrequentlyUsedTerms = [&](Program& program) {
        ++read;
        EXPECT_EQ(program.folders.ProposalsFolder, run.folder / "Proposals/");
    };
    modSettings::GetUserPreferences(run.program);
    modSettings::GetUserPreferences(run.program);
    EXPECT_EQ(read, 2);
}

TEST(Settings, AFileThatHasComeSinceNoneCouldBeMadeIsAskedAbout) {
    Settled run;
    {
        const FailingDisk disk{{FailingDisk::Call::Rename, 1, EIO, FailingDisk::kForever}};
        run.ExpectReport("GetUserPreferences"); // there is none
        run.ExpectReport("GetUserPreferences"); // and none can be made
        modSettings::GetUserPreferences(run.program);
    }
    const std::string others = SettingsFile({{2, "Acme"}});
    run.folder.Write("UserPreferences.txt", others);
    run.surroundings.questions.Expect("This settings file was changed by another program", Answer::No);
    EXPECT_FALSE(modSettings::Store(run.program, {{Key::CompanyName, "Other"}}));
    EXPECT_EQ(run.folder.Read("UserPreferences.txt"), others);
}

TEST(Settings, BytesOfAllKindsAreTakenAsTheyAre) {
    Settled run;
    std::string every;
    for (int byte = 0; byte < 256; ++byte) {
        if (byte != '\r' && byte != '\n') {
            every += static_cast<char>(byte);
        }
    }
    run.folder.Write("UserPreferences.txt", SettingsFile({{0, "True"}, {2, every}}));
    modSettings::GetUserPreferences(run.program);
    EXPECT_EQ(run.program.settings.CompanyName, every);
    EXPECT_EQ(run.folder.Read("UserPreferences.txt"), SettingsFile({{0, "False"}, {2, every}}));
}

TEST(Settings, AFileOfNothingButNulsIsRead) {
    Settled run;
    run.folder.Write("UserPreferences.txt", std::string(1U << 20U, '\0'));
    modSettings::GetUserPreferences(run.program);
    EXPECT_TRUE(run.program.settings.PrefsRead);
    EXPECT_FALSE(run.program.settings.AppFirstInstance);
}

TEST(Settings, AHugeFileIsRefusedWithAReport) {
    Settled run;
    run.folder.Write("UserPreferences.txt", "");
    std::filesystem::resize_file(run.folder / "UserPreferences.txt", std::uintmax_t{1} << 30U);
    run.ExpectReport("GetUserPreferences");
    modSettings::GetUserPreferences(run.program);
    EXPECT_FALSE(run.program.settings.PrefsRead);
}

TEST(Settings, AFileThatCouldNotBeReadIsKeptWhenItIsWrittenAnew) {
    Settled run;
    run.folder.Write("UserPreferences.txt", "Company Name:Acme");
    std::filesystem::resize_file(run.folder / "UserPreferences.txt", std::uintmax_t{1} << 30U);
    run.ExpectReport("GetUserPreferences");
    modSettings::GetUserPreferences(run.program);
    modSettings::SetLine(run.program, Key::CompanyName, "Blue Barn");
    EXPECT_TRUE(modSettings::SaveUserPreferences(run.program));
    EXPECT_EQ(std::filesystem::file_size(run.folder / "UserPreferences.txt.unread"),
              std::uintmax_t{1} << 30U);
    EXPECT_NE(run.folder.Read("UserPreferences.txt").find("Company Name:Blue Barn\r\n"), std::string::npos);
}

TEST(Settings, AFolderInTheFilesPlaceIsToldAndCannotBeWrittenOver) {
    Settled run;
    run.folder.MakeFolder("UserPreferences.txt");
    run.ExpectReport("GetUserPreferences");
    modSettings::GetUserPreferences(run.program);
    modSettings::SetLine(run.program, Key::CompanyName, "Acme");
    // The log has this routine under the other one's name.
    run.ExpectReport("RequestNetworkSharePath");
    EXPECT_FALSE(modSettings::SaveUserPreferences(run.program));
    EXPECT_TRUE(std::filesystem::is_directory(run.folder / "UserPreferences.txt"));
}

TEST(Settings, BooleansAreTheWordTrueInAnyCase) {
    Settled run;
    run.folder.Write(
        "UserPreferences.txt",
        SettingsFile(
            {{14, "true"}, {16, " TRUE "}, {17, "Yes"}, {18, "1"}, {20, "Truely"}, {24, "False"}, {30, ""}}));
    modSettings::GetUserPreferences(run.program);
    const SettingsRecords& read = run.program.settings;
    EXPECT_TRUE(read.AutoCompleteWord);
    EXPECT_TRUE(read.ShowFUT);
    EXPECT_FALSE(read.MinimizeFUT);
    EXPECT_FALSE(read.ShowCalc);
    EXPECT_FALSE(read.LoadDefaultFormat);
    EXPECT_FALSE(read.LoadFUT);
    EXPECT_FALSE(read.SavedFontItalic);
}

TEST(Settings, ATermsListIsPinnedOnlyWhenItIsNamedAndWanted) {
    Settled named;
    named.folder.Write("UserPreferences.txt", SettingsFile({{23, "Mine.fut"}, {24, "False"}}));
    modSettings::GetUserPreferences(named.program);
    EXPECT_FALSE(named.program.run.TermsPinned);
    EXPECT_EQ(named.program.run.FUTFileName, "");
    Settled wanted;
    wanted.folder.Write("UserPreferences.txt", SettingsFile({{24, "True"}}));
    modSettings::GetUserPreferences(wanted.program);
    EXPECT_FALSE(wanted.program.run.TermsPinned);
}

TEST(Settings, APrinterIsMatchedExactlyAndNoneIsNoted) {
    Settled run;
    run.folder.Write("UserPreferences.txt", SettingsFile({{21, "print to pdf"}}));
    modSettings::GetUserPreferences(run.program);
    EXPECT_EQ(run.surroundings.printers.Current(), "Office Laser");
    run.surroundings.printers.Devices.clear();
    modSettings::GetUserPreferences(run.program);
    EXPECT_TRUE(run.program.run.NoPrinter);
}

TEST(Settings, ReadAgainInMidRunLeaveAloneWhatIsInForce) {
    Settled run;
    run.folder.Write("UserPreferences.txt", SettingsFile({{11, "a.png"},
                                                          {19, "House.fmt"},
                                                          {20, "True"},
                                                          {23, "Mine.fut"},
                                                          {24, "True"},
                                                          {25, "Kept - "},
                                                          {27, "Nowhere Script"},
                                                          {28, "9"},
                                                          {31, "True"}}));
    modSettings::GetUserPreferences(run.program);
    EXPECT_EQ(run.program.run.DefaultFontName, "Nowhere Script");
    EXPECT_EQ(run.program.document.PageHeading, "Kept - ");
    run.program.run.DefaultFontName = "Times New Roman";
    run.program.run.DefaultFontSize = 8;
    run.program.run.FUTFileName = "Other.fut";
    run.program.run.ACEnabled = true;
    run.program.run.ACStartLen = 3;
    run.program.document.PageHeading = "Typed - ";
    run.program.settings.LoadDefaultFormat = false;
    run.program.settings.LogoFile = "chosen.png";
    run.program.settings.LogoVisible = false;
    modSettings::GetUserPreferences(run.program);
    EXPECT_EQ(run.program.run.DefaultFontName, "Times New Roman");
    EXPECT_EQ(run.program.run.DefaultFontSize, 8);
    EXPECT_EQ(run.program.run.FUTFileName, "Other.fut");
    EXPECT_TRUE(run.program.run.ACEnabled);
    EXPECT_EQ(run.program.run.ACStartLen, 3);
    EXPECT_EQ(run.program.document.PageHeading, "Typed - ");
    EXPECT_FALSE(run.program.settings.LoadDefaultFormat);
    EXPECT_EQ(run.program.settings.LogoFile, "chosen.png");
    EXPECT_FALSE(run.program.settings.LogoVisible);
    EXPECT_EQ(run.program.settings.SavedFontName, "Nowhere Script");
}

TEST(Settings, ProposalsAndBackupFoldersAreMadeBesideTheSettings) {
    Settled run;
    run.folder.Write("UserPreferences.txt", SettingsFile({}));
    modSettings::GetUserPreferences(run.program);
    EXPECT_TRUE(run.folder.Has("Proposals/Backup"));
    EXPECT_EQ(run.program.document.FilePath, run.folder / "Proposals/");
}

TEST(Settings, AFolderThatIsThereInOtherCaseIsTaken) {
    Settled run;
    run.folder.MakeFolder("proposals/BACKUP");
    run.folder.Write("UserPreferences.txt", SettingsFile({}));
    modSettings::GetUserPreferences(run.program);
    EXPECT_FALSE(run.folder.Has("Proposals"));
    EXPECT_FALSE(run.folder.Has("proposals/Backup"));
    EXPECT_EQ(run.Log(), "");
}

TEST(Settings, AProposalsFolderThatCannotBeMadeIsToldAndTheProgramGoesOn) {
    Settled run;
    run.folder.Write("Proposals", "a file stands here");
    run.folder.Write("UserPreferences.txt", SettingsFile({{2, "Acme"}}));
    run.surroundings.questions.ExpectBox({"Error encountered during Events Folder check.", Buttons::Ok, ""},
                                         Answer::Ok);
    run.ExpectReport("GetUserPreferences");
    modSettings::GetUserPreferences(run.program);
    EXPECT_TRUE(run.program.settings.PrefsRead);
    EXPECT_EQ(run.folder.Read("Proposals"), "a file stands here");
}

TEST(Settings, ABackupFolderThatCannotBeMadeIsTold) {
    Settled run;
    run.folder.Write("Proposals/Backup", "a file stands here");
    run.folder.Write("UserPreferences.txt", SettingsFile({}));
    run.surroundings.questions.Expect("Error encountered during Events Folder check.");
    run.ExpectReport("GetUserPreferences");
    modSettings::GetUserPreferences(run.program);
    EXPECT_TRUE(run.program.settings.PrefsRead);
}

const ScriptedQuestions::Box kShareQuestion{
    "Could not find the folder \"Proposals\" on the shared\r\n"
    "network drive. This is the network folder where all the Proposal\r\n"
    "files normally reside. Would you like to create the folder now?",
    Buttons::YesNo, "Proposals Folder Not Found"};

TEST(SharedFolder, IsUsedWithoutAQuestionWhenItHoldsProposals) {
    Settled run;
    run.folder.MakeFolder("share/proposals");
    run.folder.Write("UserPreferences.txt", SettingsFile({{1, run.folder / "share"}}));
    modSettings::GetUserPreferences(run.program);
    EXPECT_EQ(run.program.folders.SharedFolder, run.folder / "share/");
    EXPECT_EQ(run.program.folders.ProposalsFolder, run.folder / "share/Proposals/");
    EXPECT_TRUE(run.folder.Has("share/proposals/Backup"));
}

TEST(SharedFolder, IsMadeAndFilledOnYesWithTheTaxFileUnderItsOtherName) {
    Settled run;
    run.folder.MakeFolder("share");
    run.folder.Write("Proposals/Default Terms.fut", "Arch [1]");
    run.folder.Write("Proposals/Wedding Terms.fut", "Cake [2]");
    run.folder.Write("Proposals/SalesTax.txt", "8.25 ");
    run.folder.Write("UserPreferences.txt", SettingsFile({{1, run.folder / "share"}}));
    run.surroundings.questions.ExpectBox(kShareQuestion, Answer::Yes);
    run.surroundings.questions.ExpectBox({"Proposals Folder Successfully Created.", Buttons::Ok, ""},
                                         Answer::Ok);
    modSettings::GetUserPreferences(run.program);
    EXPECT_EQ(run.folder.Read("share/Proposals/Default Terms.fut"), "Arch [1]");
    EXPECT_EQ(run.folder.Read("share/Proposals/Wedding Terms.fut"), "Cake [2]");
    EXPECT_EQ(run.folder.Read("share/Proposals/SaleTax.txt"), "8.25 ");
    EXPECT_FALSE(run.folder.Has("share/Proposals/SalesTax.txt"));
    EXPECT_EQ(run.program.folders.ProposalsFolder, run.folder / "share/Proposals/");
    // The rate of the new folder is asked for afresh.
    run.surroundings.questions.Expect("The current sales tax rate is 0%.", Answer::No);
    modTax::GetTaxRate(run.program);
    EXPECT_EQ(run.folder.Read("share/Proposals/SalesTax.txt"), "");
}

TEST(SharedFolder, OnNoTheProgramsOwnFolderIsUsed) {
    Settled run;
    run.folder.MakeFolder("share");
    run.folder.Write("UserPreferences.txt", SettingsFile({{1, run.folder / "share"}}));
    run.surroundings.questions.ExpectBox(kShareQuestion, Answer::No);
    modSettings::GetUserPreferences(run.program);
    EXPECT_EQ(run.surroundings.questions.Manners.back().How, Manner::Came::Unasked);
    EXPECT_EQ(run.program.folders.ProposalsFolder, run.folder / "Proposals/");
    EXPECT_FALSE(run.folder.Has("share/Proposals"));
}

TEST(SharedFolder, OnAnAbsentDriveItAsksAndTellsThatItCannotBeMade) {
    Settled run;
    run.folder.Write("UserPreferences.txt", SettingsFile({{1, "q:\\"}}));
    run.surroundings.questions.ExpectBox(kShareQuestion, Answer::Yes);
    run.ExpectReport("GetUserPreferences");
    modSettings::GetUserPreferences(run.program);
    EXPECT_EQ(run.program.folders.ProposalsFolder, run.folder / "Proposals/");
    EXPECT_TRUE(run.program.settings.PrefsRead);
}

TEST(SharedFolder, AnAbsentDriveIsNeverTheProcesssOwnFolder) {
    Settled run;
    run.program.folders.Drives.MountPlaces.clear();
    run.folder.Write("UserPreferences.txt", SettingsFile({{1, "q:\\"}}));
    run.surroundings.questions.ExpectBox(kShareQuestion, Answer::No);
    modSettings::GetUserPreferences(run.program);
    EXPECT_EQ(run.program.folders.SharedFolder, "/media/q/");
}

TEST(SharedFolder, TheFolderInUseChangesOnlyWhenNoProposalIsOpen) {
    Settled run;
    run.folder.Write("UserPreferences.txt", SettingsFile({}));
    run.program.document.FileName = "Jane Roe.hef";
    run.program.document.FilePath = "/elsewhere/";
    modSettings::GetUserPreferences(run.program);
    EXPECT_EQ(run.program.document.FilePath, "/elsewhere/");
    run.program.document.FileName.clear();
    modSettings::GetUserPreferences(run.program);
    EXPECT_EQ(run.program.document.FilePath, run.folder / "Proposals/");
}

TEST(DrivePrompt, IsWordedAsPeopleKnowItAndCancelChangesNothing) {
    Settled run;
    run.folder.Write("UserPreferences.txt", SettingsFile({}));
    run.surroundings.questions.ExpectInput("Proposal Directory Setup", "");
    modShare::RequestNetworkSharePath(run.program);
    ASSERT_EQ(run.surroundings.questions.Prompts.size(), 1U);
    EXPECT_EQ(run.surroundings.questions.Prompts[0],
              "Please enter the network share DRIVE LETTER now, singularly without symbols... i.e., c, d, e, "
              "f, g, etc.\r\n\r\nThe network share drive is the drive where the Proposal Files will now "
              "reside to be shared within the network. If this install is on a stand alone system "
              "(non-network), the drive letter will likely be \"c\", otherwise it could be \"f\" or \"g\" or "
              "any other letter.\r\n\r\nIf you're unsure of the network share drive, press Cancel to resume "
              "the current Proposal Folder.");
    EXPECT_EQ(run.folder.Read("UserPreferences.txt"), SettingsFile({}));
    EXPECT_FALSE(run.program.settings.PrefsRead);
}

TEST(DrivePrompt, RefusesWhatIsNoSingleLetter) {
    for (const std::string reply : {"cc", "1", "[", "_", "`", "c:", " ", "\xC4", "relative/path"}) {
        Settled run;
        run.folder.Write("UserPreferences.txt", SettingsFile({}));
        run.surroundings.questions.ExpectInput("Proposal Directory Setup", reply);
        run.surroundings.questions.ExpectBox({"You have not entered a valid Drive Letter. Please\r\n"
                                              "contact the Help File for assistance in setting up\r\n"
                                              "a network share path.",
                                              Buttons::Ok, ""},
                                             Answer::Ok);
        modShare::RequestNetworkSharePath(run.program);
        EXPECT_EQ(run.folder.Read("UserPreferences.txt"), SettingsFile({})) << reply;
    }
}

TEST(DrivePrompt, ALetterIsKeptAsADriveAndTheHomeFolderStandsForC) {
    Settled run;
    run.folder.MakeFolder("Home/Proposals");
    run.folder.Write("UserPreferences.txt", SettingsFile({}));
    modSettings::GetUserPreferences(run.program);
    run.program.document.FileName = "Jane Roe.hef";
    run.surroundings.questions.ExpectInput("Proposal Directory Setup", "c");
    modShare::RequestNetworkSharePath(run.program);
    EXPECT_EQ(run.folder.Read("UserPreferences.txt"), SettingsFile({{1, "c:\\"}}));
    EXPECT_EQ(run.program.settings.SharedDirectory, "c:\\");
    EXPECT_EQ(run.program.folders.ProposalsFolder, run.folder / "Home/Proposals/");
    // Here the person has asked for it, whatever is open.
    EXPECT_EQ(run.program.document.FilePath, run.folder / "Home/Proposals/");
}

TEST(DrivePrompt, AProposalThatIsOpenComesToTheNewFolderWithoutAFile) {
    Settled run;
    run.folder.MakeFolder("Home/Proposals");
    run.folder.Write("UserPreferences.txt", SettingsFile({}));
    modSettings::GetUserPreferences(run.program);
    DocumentState& document = run.program.document;
    document.FileName = "Jane Roe.hef";
    document.FileExists = true;
    document.FromBackup = true;
    document.SavedFile = files::SeenIn("as it was saved");
    document.FolderOnShow = document.FilePath;
    run.surroundings.questions.ExpectInput("Proposal Directory Setup", "c");
    modShare::RequestNetworkSharePath(run.program);
    EXPECT_EQ(document.FileName, "Jane Roe.hef");
    EXPECT_FALSE(document.FileExists);
    EXPECT_FALSE(document.FromBackup);
    EXPECT_EQ(document.SavedFile, files::Seen{});
    EXPECT_EQ(document.FolderOnShow, run.folder / "Home/Proposals/");
}

TEST(DrivePrompt, AMountedVolumeStandsForItsLetter) {
    Settled run;
    run.folder.MakeFolder("mnt/f/Proposals");
    run.folder.Write("UserPreferences.txt", SettingsFile({}));
    modSettings::GetUserPreferences(run.program);
    run.surroundings.questions.ExpectInput("Proposal Directory Setup", "F");
    modShare::RequestNetworkSharePath(run.program);
    EXPECT_EQ(run.program.settings.SharedDirectory, "F:\\");
    EXPECT_EQ(run.program.folders.ProposalsFolder, run.folder / "mnt/f/Proposals/");
}

TEST(DrivePrompt, APathFromTheRootIsTakenWithASeparator) {
    Settled run;
    run.folder.MakeFolder("share/Proposals");
    run.folder.Write("UserPreferences.txt", SettingsFile({}));
    modSettings::GetUserPreferences(run.program);
    run.surroundings.questions.ExpectInput("Proposal Directory Setup", run.folder / "share");
    modShare::RequestNetworkSharePath(run.program);
    EXPECT_EQ(run.program.settings.SharedDirectory, run.folder / "share/");
    EXPECT_EQ(run.program.folders.ProposalsFolder, run.folder / "share/Proposals/");
}

TEST(Settings, ALineBeyondTheEndGrowsTheFileWithBareKeys) {
    Settled run;
    run.folder.Write("UserPreferences.txt", "App First Instance:False\r\n");
    modSettings::GetUserPreferences(run.program);
    modSettings::SetLine(run.program, Key::CompanyAddress1, "1 Main Street");
    EXPECT_TRUE(modSettings::SaveUserPreferences(run.program));
    EXPECT_EQ(run.folder.Read("UserPreferences.txt"), "App First Instance:False\r\n"
                                                      "Shared Directory:\r\n"
                                                      "Company Name:\r\n"
                                                      "Company Address 1:1 Main Street\r\n");
}

TEST(Settings, AReadOnlyFileIsRewritten) {
    Settled run;
    run.folder.Write("UserPreferences.txt", SettingsFile({}));
    modSettings::GetUserPreferences(run.program);
    std::filesystem::permissions(run.folder / "UserPreferences.txt", std::filesystem::perms::owner_read);
    modSettings::SetLine(run.program, Key::CompanyName, "Acme");
    EXPECT_TRUE(modSettings::SaveUserPreferences(run.program));
    EXPECT_EQ(run.folder.Read("UserPreferences.txt"), SettingsFile({{2, "Acme"}}));
}

TEST(Settings, AnotherProgramsChangeIsAskedAboutAndARefusalChangesNothing) {
    Settled run;
    run.folder.Write("UserPreferences.txt", SettingsFile({{2, "Acme"}}));
    modSettings::GetUserPreferences(run.program);
    const std::string other = SettingsFile({{2, "Acme and Sons"}});
    run.folder.Write("UserPreferences.txt", other);
    const std::vector<std::string> lines = run.program.settings.Lines;
    run.surroundings.questions.Expect("This settings file was changed by another program", Answer::No);
    EXPECT_FALSE(modSettings::Store(run.program, {{Key::CompanyName, "Other"}}));
    EXPECT_EQ(run.folder.Read("UserPreferences.txt"), other);
    EXPECT_EQ(run.program.settings.Lines, lines);
    run.surroundings.questions.Expect("This settings file was changed by another program", Answer::Yes);
    EXPECT_TRUE(modSettings::Store(run.program, {{Key::CompanyName, "Other"}}));
    EXPECT_NE(run.folder.Read("UserPreferences.txt").find("Company Name:Other"), std::string::npos);
}

TEST(Settings, AFailedWriteLeavesTheFileAndTheLines) {
    for (const FailingDisk::Call call :
         {FailingDisk::Call::Open, FailingDisk::Call::Write, FailingDisk::Call::Flush,
          FailingDisk::Call::Close, FailingDisk::Call::Rename}) {
        Settled run;
        const std::string bytes = SettingsFile({{2, "Acme"}});
        run.folder.Write("UserPreferences.txt", bytes);
        modSettings::GetUserPreferences(run.program);
        const std::vector<std::string> lines = run.program.settings.Lines;
        run.surroundings.questions.Expect("An error occurred in RequestNetworkSharePath.");
        {
            // The file is looked at once before the write.
            const bool alsoOfReading = call == FailingDisk::Call::Open || call == FailingDisk::Call::Close;
            const FailingDisk disk{{call, alsoOfReading ? 2 : 1, EIO, 1}};
            EXPECT_FALSE(modSettings::Store(run.program, {{Key::CompanyName, "Other"}}));
        }
        EXPECT_EQ(run.folder.Read("UserPreferences.txt"), bytes);
        EXPECT_EQ(run.program.settings.Lines, lines);
    }
}

TEST(Settings, TheStartTakesAwayWhatBrokenWritesLeftWhereverTheProgramWrites) {
    Settled run;
    // A machine's name that is none of ours, two days ago: nobody is still writing that.
    const std::string leftOver = ".quillbrook.another-machine.1.0.tmp";
    const std::vector<std::string> folders{"", "Proposals/", "Share/Proposals/", "Share/Proposals/Backup/",
                                           "Elsewhere/"};
    for (const std::string& folder : folders) {
        run.folder.Write(folder + leftOver, "half of it");
        std::filesystem::last_write_time(run.folder / (folder + leftOver),
                                         std::filesystem::file_time_type::clock::now() -
                                             std::chrono::hours(48));
    }
    run.folder.Write("UserPreferences.txt", SettingsFile({{1, run.folder / "Share/"}}));
    run.program.recovery.Found =
        UnsavedWork{run.folder / "Elsewhere/", "Ann.hef", "Ann (Elsewhere).hef", {}, {}};
    modSettings::GetUserPreferences(run.program);
    for (const std::string& folder : folders) {
        EXPECT_FALSE(run.folder.Has(folder + leftOver)) << folder;
    }
}

} // namespace
