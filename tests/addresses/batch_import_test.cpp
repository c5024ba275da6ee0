#include "addresses/address_run.h"

#include <gtest/gtest.h>

namespace {

using address_menu::Id;

constexpr int kLines = 0;
constexpr int kCommas = 1;
constexpr int kTabs = 2;
constexpr int kHeading = 3;

const ScriptedQuestions::Box kIntoPersonal{
    "This will save the Batch Records into the Personal Address Book. Continue?", Buttons::YesNoCancel,
    "Importing Batch Records"};

/// A program with a list on its clipboard.
struct ImportRun : AddressRun {
    explicit ImportRun(std::string list) { surroundings.clipboard.Text = std::move(list); }

    frmAddress& Choose(int type) {
        if (!IsOpen()) {
            Open();
        }
        Questions().ExpectBox(kIntoPersonal, Answer::Yes);
        Run(Id::mnuToolsImportBatch);
        Window().optList_Click(program, type);
        return Window();
    }
    frmAddress& Begin(int type) {
        frmAddress& window = Choose(type);
        window.cmdOK_Click(program);
        return window;
    }
    void Save() { Window().cmdSaveBatchRecord_Click(program); }
    void Skip() { Window().cmdSkipBatchRecord_Click(program); }
    void ExpectFinish() { Questions().ExpectBox({"Batch Process Finished.", Buttons::Ok, ""}, Answer::Ok); }
    void ExpectIdle() {
        EXPECT_FALSE(Window().picImport);
        EXPECT_FALSE(Window().picBatchProcess);
        EXPECT_FALSE(program.addresses.Batch.BatchRunning);
        EXPECT_EQ(program.addresses.Batch.BatchPosition, 0);
        EXPECT_TRUE(Window().lstNames.Enabled);
        EXPECT_TRUE(Window().txt[0].Enabled);
        EXPECT_TRUE(Window().IsAvailable(program, Id::mnuFileNew));
        EXPECT_EQ(Text(0), "");
        EXPECT_TRUE(program.addresses.AddressRecordNew);
        EXPECT_FALSE(program.addresses.AddressRecordChanged);
    }
};

TEST(BatchImport, BeginsWithAllCategoriesAndTheFirstKindOfList) {
    ImportRun run("Ann Ash");
    frmAddress& window = run.Choose(kLines);
    EXPECT_TRUE(window.picImport);
    EXPECT_EQ(window.Caption, "Beginning Batch Import/Personal Address Book");
    EXPECT_EQ(
        window.lblMain.Caption,
        "Select the appropriate categories from the list below on the left, then click the type of Batch "
        "Record List that was copied to memory (a sample of the list format types is displayed in the Sample "
        "List Area). Your Batch List must be in similar order as shown... Name first, Email last (if used). "
        "Finally, click Begin Batch Process Now to begin the process. You can quit at any time by pressing "
        "End "
        "Batch Process.");
    for (const StripLabel& category : window.lblFormat) {
        EXPECT_EQ(category.BackColor, colors::kFocused);
    }
    EXPECT_EQ(run.program.addresses.Batch.BatchSelectedLast, 8);
    EXPECT_TRUE(window.optList[0].Value);
    EXPECT_EQ(
        window.txtSample.Text,
        "Name\r\nAddress 1\r\nAddress 2\r\nCity, State Zip\r\nHome Phone\r\nWork Phone\r\nCell "
        "Phone\r\nOther "
        "Contact Person\r\nEmail Address\r\n\r\nName\r\nAddress 1\r\nAddress 2\r\nCity, State Zip\r\nHome "
        "Phone\r\nWork Phone\r\nCell Phone\r\nOther Contact Person\r\nEmail Address");
    EXPECT_FALSE(window.txt[0].Enabled);
    EXPECT_FALSE(window.cmdSave.Enabled);
    EXPECT_FALSE(window.cmdExit.Enabled);
    EXPECT_FALSE(window.lstNames.Enabled);
    EXPECT_FALSE(window.IsAvailable(run.program, Id::mnuFileNew));
    EXPECT_FALSE(window.IsAvailable(run.program, Id::mnuToolsImportBatch));
}

TEST(BatchImport, ShowsASampleOfEachKindOfList) {
    ImportRun run("x");
    frmAddress& window = run.Choose(kCommas);
    for (const int category : {2, 3, 4, 5, 6, 7}) {
        window.lblFormat_Click(run.program, category);
    }
    EXPECT_EQ(window.lblFormat[2].BackColor, colors::kResting);
    EXPECT_EQ(window.txtSample.Text, "Name,Address 1,Email Address\r\nName,Address 1,Email Address");
    window.optList_Click(run.program, kTabs);
    EXPECT_EQ(window.txtSample.Text, "Name\tAddress 1\tEmail Address\r\nName\tAddress 1\tEmail Address");
    EXPECT_TRUE(window.optList[2].Value);
    EXPECT_FALSE(window.optList[1].Value);
    window.optList_Click(run.program, kHeading);
    EXPECT_EQ(window.txtSample.Text, "First Name,Last Name,Middle Name,Name,Nickname,E-mail Address,etc.");
    EXPECT_TRUE(run.program.addresses.Batch.BatchImportCsv);
    window.lblFormat_Click(run.program, 2);
    EXPECT_EQ(window.lblFormat[2].BackColor, colors::kFocused);
    EXPECT_EQ(run.program.addresses.Batch.BatchSelectedLast, 3);
}

TEST(BatchImport, TheNameCannotBeTakenOut) {
    ImportRun run("x");
    frmAddress& window = run.Choose(kLines);
    run.Questions().ExpectBox({"Name cannot be de-selected.", Buttons::Ok, ""}, Answer::Ok);
    window.lblFormat_Click(run.program, 0);
    EXPECT_EQ(window.lblFormat[0].BackColor, colors::kFocused);
}

TEST(BatchImport, ANoOffersTheOtherBook) {
    ImportRun run("x");
    run.Open();
    run.Questions().ExpectBox(kIntoPersonal, Answer::No);
    run.Questions().ExpectBox(
        {"Import the Records into the Business Address Book instead? Click Cancel to exit.",
         Buttons::YesNoCancel, "Importing Batch Records"},
        Answer::Yes);
    run.Run(Id::mnuToolsImportBatch);
    EXPECT_EQ(run.program.addresses.Book, AddressBook::Business);
    EXPECT_EQ(run.Window().Caption, "Beginning Batch Import/Business Address Book");
    EXPECT_EQ(run.Window().lblFormat[0].Caption, "Company Name");
    EXPECT_EQ(run.Window().lblFormat[7].Caption, "Contact Person");
}

TEST(BatchImport, ACancelOrASecondNoStops) {
    ImportRun run("x");
    run.Open();
    run.Questions().ExpectBox(kIntoPersonal, Answer::Cancel);
    run.Run(Id::mnuToolsImportBatch);
    EXPECT_FALSE(run.Window().picImport);
    run.Questions().ExpectBox(kIntoPersonal, Answer::No);
    run.Questions().Expect("Import the Records into the Business", Answer::No);
    run.Run(Id::mnuToolsImportBatch);
    EXPECT_FALSE(run.Window().picImport);
    EXPECT_EQ(run.program.addresses.Book, AddressBook::Personal);
}

TEST(BatchImport, LeavingTheChoiceGivesTheWindowBack) {
    ImportRun run("x");
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash"}));
    window.lstNames_Click(run.program, 0);
    run.Choose(kHeading);
    window.imgExit_Click(run.program);
    EXPECT_FALSE(window.picImport);
    EXPECT_TRUE(window.txt[0].Enabled);
    EXPECT_TRUE(window.IsAvailable(run.program, Id::mnuFileNew));
    EXPECT_TRUE(window.optList[0].Value);
    EXPECT_FALSE(run.program.addresses.Batch.BatchImportCsv);
    EXPECT_EQ(window.Caption, " Personal Address Book/Ann Ash/Record 1 of 1 Displayed");
    EXPECT_EQ(run.Text(0), "Ann Ash");
}

TEST(BatchImport, SavesAndSkipsRecordByRecord) {
    ImportRun run("Ann Ash,1 Elm St\r\nBen Birch,2 Oak Rd\nCal Cedar,3 Fir Ln\r");
    frmAddress& window = run.Begin(kCommas);
    EXPECT_FALSE(window.picImport);
    EXPECT_TRUE(window.picBatchProcess);
    EXPECT_EQ(run.program.addresses.Batch.BatchRecordLast, 2);
    EXPECT_EQ(run.Text(0), "Ann Ash");
    EXPECT_EQ(window.lblBatch.Caption, "Record 1 of 3");
    run.Save();
    EXPECT_EQ(run.Text(0), "Ben Birch");
    run.Skip();
    EXPECT_EQ(run.Text(1), "3 Fir Ln");
    run.ExpectFinish();
    run.Save();
    EXPECT_EQ(run.ReadBook(),
              AddressRun::Record({"Ann Ash", "1 Elm St"}) + AddressRun::Record({"Cal Cedar", "3 Fir Ln"}));
    run.ExpectIdle();
}

TEST(BatchImport, SkippingTheLastRecordFinishes) {
    ImportRun run("Ann Ash");
    run.Begin(kCommas);
    run.ExpectFinish();
    run.Skip();
    run.ExpectIdle();
    EXPECT_EQ(run.ReadBook(), "");
}

TEST(BatchImport, EndingKeepsWhatWasSaved) {
    ImportRun run("Ann Ash\nBen Birch\nCal Cedar");
    frmAddress& window = run.Begin(kTabs);
    run.Save();
    run.Type(1, "typed");
    window.cmdEndBatch_Click(run.program);
    run.ExpectIdle();
    EXPECT_TRUE(run.program.addresses.Batch.BatchStopped);
    EXPECT_EQ(run.ReadBook(), AddressRun::Book({"Ann Ash"}));
}

TEST(BatchImport, ASaveThatDoesNotHappenStaysAtTheRecord) {
    ImportRun run(",1 Elm St\nBen Birch");
    frmAddress& window = run.Begin(kCommas);
    run.Questions().Expect("Cannot save record... no name given.");
    run.Save();
    EXPECT_EQ(run.program.addresses.Batch.BatchPosition, 0);
    EXPECT_EQ(run.Text(1), "1 Elm St");
    run.Type(0, "Ann Ash");
    // The Save button and its key are the panel's own.
    window.cmdSave_Click(run.program);
    EXPECT_EQ(run.Text(0), "Ben Birch");
    EXPECT_EQ(run.ReadBook(), AddressRun::Record({"Ann Ash", "1 Elm St"}));
}

TEST(BatchImport, WhileItRunsNothingTakesTheRecordAway) {
    ImportRun run("Ann Ash\nBen Birch");
    frmAddress& window = run.Choose(kCommas);
    window.cmdCancel_Click(run.program);
    run.Type(0, "Zoe Young");
    window.cmdSave_Click(run.program);
    run.Begin(kCommas);
    for (const Id id : {Id::mnuFileNew, Id::mnuFileDelete, Id::mnuEditFind, Id::mnuEditFindAgain,
                        Id::mnuFileOpenBusiness, Id::mnuFileOpenClientele, Id::mnuToolsImportBatch,
                        Id::mnuOptMerge, Id::mnuOptMergeExit, Id::mnuOptMergeCeremony}) {
        EXPECT_FALSE(window.IsAvailable(run.program, id)) << static_cast<int>(id);
    }
    EXPECT_TRUE(window.IsAvailable(run.program, Id::mnuFileSave));
    window.lstNames_Click(run.program, 0);
    EXPECT_EQ(run.Text(0), "Ann Ash");
    run.Run(Id::mnuFileSave);
    EXPECT_EQ(run.Text(0), "Ben Birch");
}

TEST(BatchImport, AnImportedTextOverItsLimitIsRedBeforeItIsCut) {
    ImportRun run("Ann Ash," + std::string(41, 'a'));
    frmAddress& window = run.Begin(kCommas);
    EXPECT_EQ(window.txt[1].BackColor, colors::kOverLimit);
    EXPECT_EQ(window.txt[0].BackColor, colors::kWhite);
    run.Questions().Expect("will be cut:\r\nAddress 1", Answer::No);
    run.Save();
    EXPECT_EQ(run.Text(1).size(), 41U);
    EXPECT_EQ(run.ReadBook(), "");
}

TEST(BatchImport, TurningACategoryOffMovesTheNextFieldThere) {
    ImportRun run("Ann Ash,1 Elm St,Springfield,5550100");
    frmAddress& window = run.Choose(kCommas);
    window.lblFormat_Click(run.program, 2);
    window.cmdOK_Click(run.program);
    EXPECT_EQ(run.Text(2), "");
    EXPECT_EQ(run.Text(3), "Springfield");
    EXPECT_EQ(run.Text(4), "5550100");
}

TEST(BatchImport, TheLastTwoCategoriesGoPastTheEventDate) {
    ImportRun run("n\ta\tb\tc\td\te\tf\tcontact\tmail\textra");
    run.Begin(kTabs);
    EXPECT_EQ(run.Text(6), "f");
    EXPECT_EQ(run.Text(7), "");
    EXPECT_EQ(run.Text(8), "contact");
    EXPECT_EQ(run.Text(9), "mail");
    EXPECT_EQ(run.Text(10), "");
}

TEST(BatchImport, ARunOfEmptyLinesIsOneSeparatorOfRecordsInLines) {
    ImportRun run("Ann Ash\r\n 1 Elm St \r\n\r\n\r\n\r\nBen Birch\n2 Oak Rd\r\rCal Cedar\r\n\r\n");
    run.Begin(kLines);
    EXPECT_EQ(run.program.addresses.Batch.BatchRecordLast, 2);
    EXPECT_EQ(run.Text(1), "1 Elm St");
    run.Skip();
    EXPECT_EQ(run.Text(0), "Ben Birch");
    EXPECT_EQ(run.Text(1), "2 Oak Rd");
    run.Skip();
    EXPECT_EQ(run.Text(0), "Cal Cedar");
    EXPECT_EQ(run.Text(1), "");
}

TEST(BatchImport, AnEmptyClipboardIsToldAndEnds) {
    ImportRun simple("");
    simple.Choose(kLines);
    simple.Questions().ExpectBox({"There's nothing in the Clipboard Memory.", Buttons::Ok, ""}, Answer::Ok);
    simple.Window().cmdOK_Click(simple.program);
    simple.ExpectIdle();
    ImportRun heading("");
    heading.Choose(kHeading);
    heading.Questions().ExpectBox({"There's nothing in memory to batch process.", Buttons::Ok, ""},
                                  Answer::Ok);
    heading.Window().cmdOK_Click(heading.program);
    heading.ExpectIdle();
}

TEST(BatchImport, CharactersThatNoBookCanKeepAreToldBeforeTheFirstRecord) {
    for (const int type : {kLines, kHeading}) {
        ImportRun run(type == kLines ? "ukasz" : "Name,Nickname\r\nukasz,");
        run.surroundings.clipboard.LeftOut = 2;
        run.Choose(type);
        run.Questions().ExpectBox(
            {"2 characters of this list cannot be kept in an address book and will be left "
             "out. Please look at each record.",
             Buttons::Ok, ""},
            Answer::Ok);
        run.Window().cmdOK_Click(run.program);
        EXPECT_EQ(run.Text(0), "ukasz");
    }
}

TEST(HeadingImport, AListOfOneLineIsRefused) {
    ImportRun run("First Name,Last Name");
    run.Choose(kHeading);
    run.Questions().ExpectBox({"Error. No carriage returns found.", Buttons::Ok, ""}, Answer::Ok);
    run.Window().cmdOK_Click(run.program);
    run.ExpectIdle();
}

TEST(HeadingImport, AHeadingWithoutAKnownNameIsRefused) {
    ImportRun run("Vorname,Nachname\r\nAnn,Ash");
    run.Choose(kHeading);
    run.Questions().Expect("none of the column names");
    run.Window().cmdOK_Click(run.program);
    run.ExpectIdle();
}

TEST(HeadingImport, AHeadingAloneHasNoRecords) {
    ImportRun run("First Name,Last Name\r\n");
    run.Choose(kHeading);
    run.Questions().ExpectBox({"No more records to save.", Buttons::Ok, ""}, Answer::Ok);
    run.Window().cmdOK_Click(run.program);
    run.ExpectIdle();
}

TEST(HeadingImport, FillsThePersonalBookByTheNamesOfTheColumns) {
    ImportRun run(
        "\"last name\",First Name,Home City,Home State,Home Postal Code,Home Street,E-mail Address,Mobile "
        "Phone,Business Phone,Home Phone,Company,Unknown\r\n"
        "Ash, Ann ,Springfield,IL,62701,\"1 Elm St, Rear\",ann@example.com,333,222,111,Acme,?\r\n"
        "Birch,\"Ben \"\"B\"\"\",Peoria,,61602\r\n");
    run.Begin(kHeading);
    EXPECT_EQ(run.program.addresses.Batch.BatchRecordLast, 1);
    EXPECT_EQ(run.Text(0), "Ann Ash");
    EXPECT_EQ(run.Text(1), "1 Elm St, Rear");
    EXPECT_EQ(run.Text(2), "");
    EXPECT_EQ(run.Text(3), "Springfield, IL 62701");
    EXPECT_EQ(run.Text(4), "111");
    EXPECT_EQ(run.Text(5), "222");
    EXPECT_EQ(run.Text(6), "333");
    EXPECT_EQ(run.Text(8), "");
    EXPECT_EQ(run.Text(9), "ann@example.com");
    run.Skip();
    EXPECT_EQ(run.Text(0), "Ben \"B\" Birch");
    EXPECT_EQ(run.Text(3), "Peoria, 61602");
    EXPECT_EQ(run.Text(9), "");
}

TEST(HeadingImport, TakesTheNameThatThereIs) {
    ImportRun first("First Name,Name\nAnn,Whole Name");
    first.Begin(kHeading);
    EXPECT_EQ(first.Text(0), "Ann");
    ImportRun last("Last Name,Name\nAsh,Whole Name");
    last.Begin(kHeading);
    EXPECT_EQ(last.Text(0), "Ash");
    ImportRun whole("Nickname,Name\nx,Whole Name");
    whole.Begin(kHeading);
    EXPECT_EQ(whole.Text(0), "Whole Name");
}

struct BusinessImportRun : ImportRun {
    explicit BusinessImportRun(std::string list) : ImportRun(std::move(list)) {
        OpenBusinessWith("");
        Questions().Expect("This will save the Batch Records into the Business Address Book.", Answer::Yes);
        Run(Id::mnuToolsImportBatch);
        Window().optList_Click(program, kHeading);
        Window().cmdOK_Click(program);
    }
};

TEST(HeadingImport, FillsTheBusinessBookFromTheBusinessColumns) {
    BusinessImportRun run(
        "Company,Name,Business Street,Business City,Business State,Business Phone,Business Fax,Mobile "
        "Phone,Home Phone\nAcme,Ann Ash,9 Mill Rd,,IL,1,2,3,4");
    EXPECT_EQ(run.Text(0), "Acme");
    EXPECT_EQ(run.Text(1), "9 Mill Rd");
    EXPECT_EQ(run.Text(3), "IL");
    EXPECT_EQ(run.Text(4), "1");
    EXPECT_EQ(run.Text(5), "2");
    EXPECT_EQ(run.Text(6), "3");
    EXPECT_EQ(run.Text(8), "Ann Ash");
}

TEST(HeadingImport, WithoutACompanyColumnSaysSoInEveryRecord) {
    BusinessImportRun run("Name,Business City\nAnn,Peoria\nBen,Joliet");
    EXPECT_EQ(run.Text(0), "No Company Name Given");
    EXPECT_EQ(run.Text(3), "Peoria");
    run.Skip();
    EXPECT_EQ(run.Text(0), "No Company Name Given");
}

TEST(HeadingImport, ARowWithAStrayQuotationMarkIsToldAndLeftOut) {
    ImportRun run("Name\r\nAnn\r\nBe\"n\r\n\"Cal\nDora\"\r\nEve");
    run.Choose(kHeading);
    run.Questions().ExpectBox(
        {"The following records cound not be parsed...\r\n2, 3, 4\r\nand will be excluded from the "
         "Batch Import Process for the\r\nfollowing reason: The record(s) contain an odd number of "
         "quotation\r\nsymbols. Do you wish to import the rest of the records anyway?",
         Buttons::YesNo, "Bad data in some records."},
        Answer::Yes);
    run.Window().cmdOK_Click(run.program);
    EXPECT_EQ(run.Text(0), "Ann");
    EXPECT_EQ(run.Window().Caption, "Importing Record 1 of 5/Personal Address Book");
    for (int bad = 0; bad < 3; ++bad) {
        run.Questions().ExpectBox({"Bad Record skipped over.", Buttons::Ok, ""}, Answer::Ok);
    }
    run.Save();
    EXPECT_EQ(run.Text(0), "Eve");
    EXPECT_EQ(run.Window().Caption, "Importing Record 5 of 5/Personal Address Book");
    run.ExpectFinish();
    run.Save();
    EXPECT_EQ(run.ReadBook(), AddressRun::Book({"Ann", "Eve"}));
}

TEST(HeadingImport, ThePanelSaysWhatWasFoundWhileItIsAskedAbout) {
    const std::string question =
        "The following records cound not be parsed...\r\n1\r\nand will be excluded from the Batch Import "
        "Process for the\r\nfollowing reason: The record(s) contain an odd number of quotation\r\nsymbols. "
        "Do "
        "you wish to import the rest of the records anyway?";
    ImportRun run("Name\nAn\"n\nBen");
    run.Choose(kHeading);
    std::string told;
    run.Questions().Allow(question, [&] { told = run.Window().lblBatch.Caption; });
    run.Window().cmdOK_Click(run.program);
    EXPECT_EQ(told, "1 of 2 can be read");
    run.ExpectIdle();
    EXPECT_EQ(run.Window().lblBatch.Caption, "");
}

TEST(HeadingImport, ABadRecordAtTheEndFinishes) {
    ImportRun run("Name\nAnn\nBe\"n");
    run.Choose(kHeading);
    run.Questions().Expect("cound not be parsed...\r\n2\r\n", Answer::Yes);
    run.Window().cmdOK_Click(run.program);
    run.Questions().ExpectBox({"Bad Record skipped over.", Buttons::Ok, ""}, Answer::Ok);
    run.ExpectFinish();
    run.Skip();
    run.ExpectIdle();
}

TEST(HeadingImport, ANoToBadRecordsEndsTheImport) {
    ImportRun run("Name\nAn\"n\nBen");
    run.Choose(kHeading);
    run.Questions().Expect("cound not be parsed...", Answer::No);
    run.Window().cmdOK_Click(run.program);
    run.ExpectIdle();
}

TEST(HeadingImport, OfManyBadRecordsTheFirstTwentyAreListed) {
    std::string list = "Name\n";
    for (int row = 0; row < 23; ++row) {
        list += "\"\n";
    }
    ImportRun run(list);
    run.Choose(kHeading);
    run.Questions().Expect(
        "1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20 and 3 more\r\n", Answer::No);
    run.Window().cmdOK_Click(run.program);
}

TEST(BatchImport, HelpOpensThePageOfTheImport) {
    ImportRun run("x");
    run.Choose(kLines).cmdHelp_Click(run.program);
    ASSERT_EQ(run.surroundings.shell.Opened.size(), 1U);
    EXPECT_TRUE(run.surroundings.shell.Opened.front().ends_with("Help/batch_address_processing.htm"));
}

TEST(BatchImport, HelpPutsTheWindowsThatFloatAboveItAway) {
    ImportRun run("x");
    Window* terms = modWindows::Find(run.program, "frmFUT");
    ASSERT_NE(terms, nullptr);
    terms->Minimised = false;
    run.Choose(kLines).cmdHelp_Click(run.program);
    EXPECT_TRUE(terms->Minimised);
}

TEST(BatchImport, NamesTheKindsOfListsAndBeginsWithASampleOfTheFirst) {
    ImportRun run("x");
    frmAddress& window = run.Open();
    ASSERT_NE(window.FocusWanted, std::nullopt);
    run.Questions().ExpectBox(kIntoPersonal, Answer::Yes);
    run.Run(Id::mnuToolsImportBatch);
    EXPECT_EQ(window.optList[0].Caption, "Fields Separated by Carriage Returns");
    EXPECT_EQ(window.optList[1].Caption, "Fields Separated by Commas");
    EXPECT_EQ(window.optList[2].Caption, "Fields Separated by Tabs");
    EXPECT_EQ(window.optListTip[0],
              "Fields separated by Carriage Returns, Records separated by Double Carriage Returns.");
    EXPECT_EQ(window.optListTip[1], "Fields separated by Commas, Records separated by Carriage Returns.");
    EXPECT_EQ(window.optListTip[3], "");
    EXPECT_TRUE(window.optList[0].Value);
    EXPECT_TRUE(window.txtSample.Text.starts_with("Name\r\nAddress 1\r\n"));
    EXPECT_EQ(window.FocusWanted, std::nullopt) << "the fields take no text while the list is chosen";
}

TEST(BatchImport, TheSampleIsMadeAnewFromTheCategoriesOnShow) {
    ImportRun run("x");
    frmAddress& window = run.Choose(kCommas);
    for (std::size_t category = 2; category < window.lblFormat.size(); ++category) {
        window.lblFormat[category].BackColor = colors::kResting;
    }
    window.cmdRefresh_Click(run.program);
    EXPECT_EQ(window.txtSample.Text, "Name,Address 1\r\nName,Address 1");
    EXPECT_EQ(run.program.addresses.Batch.BatchSelectedLast, 1);
}

TEST(BatchImport, AListOfNamesAloneHasItsSampleToo) {
    ImportRun run("Ann Ash");
    frmAddress& window = run.Choose(kCommas);
    for (int category = 1; category < 9; ++category) {
        window.lblFormat_Click(run.program, category);
    }
    EXPECT_EQ(window.txtSample.Text, "Name\r\nName");
    window.cmdOK_Click(run.program);
    EXPECT_EQ(run.Text(0), "Ann Ash");
}

TEST(BatchImport, EachRecordIsANewOneWithTheCursorInItsName) {
    ImportRun run("Ann Ash\nBen Birch");
    frmAddress& window = run.Begin(kCommas);
    EXPECT_FALSE(run.program.addresses.Batch.BatchStopped);
    run.Type(1, "1 Elm St");
    window.FocusWanted = 1;
    run.Save();
    EXPECT_EQ(run.Text(0), "Ben Birch");
    EXPECT_EQ(run.Text(1), "");
    EXPECT_TRUE(run.program.addresses.AddressRecordNew);
    EXPECT_EQ(run.program.addresses.RecordAsRead, "") << "that of the record saved before is not this one's";
    EXPECT_EQ(window.lstNames.ListIndex, -1);
    EXPECT_EQ(window.FocusWanted, 0);
}

TEST(BatchImport, WhatWasTypedIntoASkippedRecordIsNotAskedAbout) {
    ImportRun run("Ann Ash\nBen Birch");
    run.Begin(kCommas);
    run.Type(1, "typed");
    run.Skip();
    EXPECT_EQ(run.Text(0), "Ben Birch");
    EXPECT_EQ(run.Text(1), "");
    EXPECT_FALSE(run.program.addresses.AddressRecordChanged);
    run.Type(1, "typed");
    run.ExpectFinish();
    run.Skip();
    run.ExpectIdle();
    EXPECT_EQ(run.ReadBook(), "");
}

TEST(HeadingImport, TwentyBadRecordsAreListedAndNoMore) {
    std::string list = "Name\n";
    for (int row = 0; row < 20; ++row) {
        list += "\"\n";
    }
    ImportRun run(list);
    run.Choose(kHeading);
    run.Questions().Expect("18, 19, 20\r\nand will be excluded", Answer::No);
    run.Window().cmdOK_Click(run.program);
}

TEST(HeadingImport, WhileABadRecordIsToldTheFieldsHoldNoneOfTheOneBefore) {
    ImportRun run("Name\nAnn\nBe\"n\nCal");
    run.Choose(kHeading);
    run.Questions().Expect("cound not be parsed...\r\n2\r\n", Answer::Yes);
    run.Window().cmdOK_Click(run.program);
    ASSERT_EQ(run.Text(0), "Ann");
    std::string shown = "nothing was told";
    bool changed = true;
    run.Questions().Allow("Bad Record skipped over.", [&] {
        shown = run.Text(0);
        changed = run.program.addresses.AddressRecordChanged;
    });
    run.Skip();
    EXPECT_EQ(shown, "");
    EXPECT_FALSE(changed) << "nobody has typed: an end of the run keeps nothing";
    EXPECT_EQ(run.Text(0), "Cal");
}

TEST(BatchImport, EscapeEndsTheImportAndThenTheWindow) {
    ImportRun run("Ann Ash");
    frmAddress& window = run.Choose(0);
    ASSERT_TRUE(window.picImport);
    window.Escape_Pressed(run.program);
    modWindows::Sweep(run.program);
    ASSERT_TRUE(run.IsOpen());
    EXPECT_FALSE(window.picImport);
    window.Escape_Pressed(run.program);
    modWindows::Sweep(run.program);
    EXPECT_FALSE(run.IsOpen());
}

TEST(BatchImport, AddsWhatIsSavedAlsoWhenItWasSavedAtAnEndOfTheProgramThatWasPutOff) {
    ImportRun run("Ann Ash\nBen Birch");
    run.Begin(kCommas);
    run.Type(1, "1 Elm St");
    run.Questions().Expect("The current Record has been changed.", Answer::Yes);
    EXPECT_TRUE(run.Window().MayLeave(run.program, Leaving::Run));
    run.Type(1, "2 Oak St");
    run.Save();
    EXPECT_EQ(run.ReadBook(),
              AddressRun::Record({"Ann Ash", "1 Elm St"}) + AddressRun::Record({"Ann Ash", "2 Oak St"}))
        << "an import writes over no record of the book";
    EXPECT_EQ(run.Text(0), "Ben Birch");
}

TEST(BatchImport, WhatWasTypedIntoTheLastRecordIsGivenUpBeforeItsEndIsTold) {
    ImportRun run("Ann Ash");
    run.Begin(kCommas);
    run.Type(1, "typed");
    bool told = false;
    run.Questions().Allow("Batch Process Finished.", [&] {
        told = true;
        run.Window().KeepUnsaved(run.program);
    });
    run.Skip();
    EXPECT_TRUE(told);
    EXPECT_FALSE(run.folder.Has("Proposals/Backup/Unsaved Address.txt"));
}

} // namespace
