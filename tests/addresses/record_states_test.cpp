#include "addresses/address_book.h"
#include "addresses/address_fields.h"
#include "addresses/address_run.h"
#include "base/text.h"
#include "support/failing_disk.h"

#include <gtest/gtest.h>

#include <cerrno>

// What a record, a row and the commands are to each other while books, lists and records come and go.

namespace {

using address_menu::Id;
using Rows = std::vector<std::string>;

constexpr std::string_view kAsk = "The current Record has been changed. Do you want to save the changes?";
constexpr std::string_view kChanged = "This record was changed by another program.";

TEST(EmptyRow, BelongsToNoRecordAndWhatIsTypedThereIsANewOne) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash", "Ben Birch"}));
    window.lstNames_Click(run.program, 0);
    run.WriteBook(AddressRun::kPersonal, AddressRun::Book({"Ann Ash"}));
    window.lstNames_Click(run.program, 1);
    EXPECT_EQ(run.program.addresses.CurrentAddressRecord, 0);
    EXPECT_EQ(run.program.addresses.RecordAsRead, "");
    run.Type(0, "Ann Ash"); // the very name that stood there a moment ago
    EXPECT_TRUE(run.program.addresses.AddressRecordChanged);
    EXPECT_TRUE(window.cmdSave.Enabled);
    EXPECT_TRUE(window.IsAvailable(run.program, Id::mnuFileSave));
    run.Run(Id::mnuFileSave);
    EXPECT_EQ(run.ReadBook(), AddressRun::Book({"Ann Ash", "Ann Ash"}));
}

TEST(RecordChangedElsewhere, StandsInTheFieldsAsANewOneThatCannotBeDeleted) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash", "Ben Birch"}));
    window.lstNames_Click(run.program, 1);
    run.Type(1, "mine");
    run.WriteBook(AddressRun::kPersonal,
                  AddressRun::Book({"Ann Ash"}) + AddressRun::Record({"Ben Birch", "theirs"}));
    run.Questions().ExpectBox({std::string(kChanged), Buttons::Ok, ""}, Answer::Ok);
    window.cmdSave_Click(run.program);
    EXPECT_EQ(window.Caption, " Personal Address Book/Beginning New Record: 2 Records Exist");
    EXPECT_FALSE(window.IsAvailable(run.program, Id::mnuFileDelete));
    EXPECT_TRUE(run.program.addresses.AddressFieldChanged[1]);
    EXPECT_EQ(window.txt[1].BackColor, colors::kFocused);
    // A row chosen now and taken back leaves no row chosen: the fields hold none of the list.
    run.Questions().Expect(std::string(kAsk), Answer::Cancel);
    window.lstNames_Click(run.program, 0);
    EXPECT_EQ(window.lstNames.ListIndex, -1);
    EXPECT_EQ(run.Text(1), "mine");
}

TEST(RecordWithoutAName, GetsTheCursorIntoItsName) {
    AddressRun run;
    frmAddress& window = run.Open();
    run.Type(1, "1 Elm St");
    window.FocusWanted.reset();
    run.Questions().Expect("Cannot save record... no name given.");
    window.cmdSave_Click(run.program);
    EXPECT_EQ(window.FocusWanted, 0);
}

TEST(FieldThatTakesNoText, DoesNotGetTheCursor) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash"}));
    window.lstNames_Click(run.program, 0);
    window.txt_GotFocus(run.program, 2);
    window.FocusWanted.reset();
    window.txt[2].Enabled = false;
    run.Questions().Expect("Delete this record?", Answer::No);
    run.Run(Id::mnuFileDelete);
    EXPECT_EQ(window.FocusWanted, std::nullopt);
}

TEST(DeletedRecord, IsNotAskedAboutAlthoughSomethingWasTypedIntoIt) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash", "Ben Birch", "Cal Cedar"}));
    window.lstNames_Click(run.program, 0);
    run.Type(1, "typed");
    run.Questions().Expect("Delete this record?", Answer::Yes);
    run.Run(Id::mnuFileDelete);
    EXPECT_EQ(run.ReadBook(), AddressRun::Book({"Ben Birch", "Cal Cedar"}));
    EXPECT_EQ(run.Text(0), "Ben Birch");
    EXPECT_EQ(run.Text(1), "");
    EXPECT_FALSE(run.program.addresses.AddressRecordChanged);
}

TEST(DeletedRecord, OfAnEmptiedBookLeavesNothingToDelete) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash"}));
    window.lstNames_Click(run.program, 0);
    EXPECT_TRUE(window[Id::mnuFileDelete].Enabled);
    run.Questions().Expect("Delete this record?", Answer::Yes);
    run.Run(Id::mnuFileDelete);
    EXPECT_FALSE(window[Id::mnuFileDelete].Enabled);
}

TEST(DeletedRecord, LeavesTheOneThatTookItsPlaceWhenOthersHaveGoneToo) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash", "Ben Birch", "Cal Cedar", "Dora Dill"}));
    window.lstNames_Click(run.program, 3);
    run.WriteBook(AddressRun::kPersonal, AddressRun::Book({"Dora Dill", "Ann Ash", "Ben Birch"}));
    run.Questions().Expect("Delete this record?\r\nDora Dill", Answer::Yes);
    run.Run(Id::mnuFileDelete);
    EXPECT_EQ(run.Text(0), "Ann Ash");
    EXPECT_EQ(window.lstNames.ListIndex, 0);
    EXPECT_EQ(window.Caption, " Personal Address Book/Ann Ash/Record 1 of 2 Displayed");
}

TEST(BookReadAnew, HasNoNewRecord) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash"}));
    run.Run(Id::mnuFileNew);
    ASSERT_TRUE(run.program.addresses.AddressRecordNew);
    modAddress::ReadAddressList(run.program, window);
    EXPECT_FALSE(run.program.addresses.AddressRecordNew);
}

TEST(BookThatCannotBeRead, ShowsNoneOfTheNamesOfTheOther) {
    AddressRun run;
    run.WriteBook(AddressRun::kBusiness, AddressRun::Book({"Acme Tents", "Best Bands"}));
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash", "Ben Birch"}));
    {
        const FailingDisk disk{{FailingDisk::Call::Read, 1, EIO, FailingDisk::kForever}};
        run.Questions().Expect("ReadAddressList");
        run.Run(Id::mnuFileOpenBusiness);
    }
    EXPECT_EQ(run.Rows(), Rows{});
    EXPECT_EQ(run.program.addresses.NamesInFile, "");
    EXPECT_EQ(run.program.addresses.AddressRecordCount, 0);
    EXPECT_EQ(window.Caption, " Company Address Book/Beginning New Record: 0 Records Exist");
}

TEST(RecordThatCannotBeRead, LeavesNothingOfTheOneBeforeInTheFields) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash", "Ben Birch"}));
    window.lstNames_Click(run.program, 0);
    {
        const FailingDisk disk{{FailingDisk::Call::Read, 2, EIO, FailingDisk::kForever}};
        run.Questions().Expect("ShowAddressRecord");
        window.lstNames_Click(run.program, 1);
    }
    EXPECT_EQ(run.program.addresses.RecordAsRead, "");
    EXPECT_EQ(run.Text(0), "");
    EXPECT_FALSE(window.IsAvailable(run.program, Id::mnuFileDelete));
}

TEST(Search, IsOverWhenARecordIsSaved) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash", "Ben Ash"}));
    run.Questions().ExpectInput("Search", "ash");
    run.Run(Id::mnuEditFind);
    EXPECT_TRUE(window.IsAvailable(run.program, Id::mnuEditFindAgain));
    run.Type(1, "typed");
    window.cmdSave_Click(run.program);
    EXPECT_FALSE(window.IsAvailable(run.program, Id::mnuEditFindAgain));
    EXPECT_EQ(run.program.addresses.Search.Text, "");
}

TEST(Search, ARecordThatItLedToIsTheRowToComeBackTo) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash", "Ben Birch"}));
    window.lstNames_Click(run.program, 1);
    run.Questions().ExpectInput("Search", "ash");
    run.Run(Id::mnuEditFind);
    EXPECT_EQ(window.lstNames.ListIndex, 0);
    run.Type(1, "typed");
    run.Questions().Expect(std::string(kAsk), Answer::Cancel);
    window.lstNames_Click(run.program, 1);
    EXPECT_EQ(window.lstNames.ListIndex, 0);
}

TEST(Search, ARecordThatTheListDoesNotHaveHasNoRowToComeBackTo) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash", "Ben Birch"}));
    window.lstNames_Click(run.program, 1);
    run.WriteBook(AddressRun::kPersonal, AddressRun::Book({"Ann Ash", "Ben Birch", "Cal Cedar"}));
    run.Questions().ExpectInput("Search", "cedar");
    run.Run(Id::mnuEditFind);
    EXPECT_EQ(run.Text(0), "Cal Cedar");
    run.Type(1, "typed");
    run.Questions().Expect(std::string(kAsk), Answer::Cancel);
    window.lstNames_Click(run.program, 0);
    EXPECT_EQ(run.Text(0), "Cal Cedar");
    EXPECT_EQ(window.lstNames.ListIndex, -1) << "Birch's row is not that of what stands in the fields";
}

TEST(ChosenRow, IsTheOneToComeBackToWhenTheNextIsTakenBack) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash", "Ben Birch", "Cal Cedar"}));
    window.lstNames_Click(run.program, 1);
    run.Type(1, "typed");
    run.Questions().Expect(std::string(kAsk), Answer::Cancel);
    window.lstNames_Click(run.program, 2);
    EXPECT_EQ(window.lstNames.ListIndex, 1);
    EXPECT_EQ(run.Text(1), "typed");
}

TEST(NewRecord, HasNothingOfTheOneThatWasOnShow) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Record({"Ann Ash", "1 Elm St"}));
    window.lstNames_Click(run.program, 0);
    run.Run(Id::mnuFileNew);
    EXPECT_EQ(run.program.addresses.CurrentAddressRecord, 0);
    EXPECT_EQ(run.program.addresses.RecordAsRead, "");
    EXPECT_EQ(window.lstNames.ListIndex, -1);
    EXPECT_EQ(run.Text(0), "");
    EXPECT_EQ(run.Text(1), "");
    run.Type(0, "Ann Ash");
    EXPECT_TRUE(run.program.addresses.AddressRecordChanged) << "the name that stood there is typed anew";
}

TEST(OtherBook, ChosenForAnImportThatIsGivenUpNamesItsBookAndHasNoRowChosen) {
    AddressRun run;
    run.WriteBook(AddressRun::kBusiness, AddressRun::Book({"Acme Tents", "Best Bands"}));
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash", "Ben Birch", "Cal Cedar"}));
    window.lstNames_Click(run.program, 2);
    run.Questions().Expect("into the Personal Address Book. Continue?", Answer::No);
    run.Questions().Expect("into the Business Address Book instead?", Answer::Yes);
    run.Run(Id::mnuToolsImportBatch);
    window.cmdCancel_Click(run.program);
    EXPECT_EQ(window.Caption, " Company Address Book/Cal Cedar");
    run.Type(1, "typed");
    run.Questions().Expect(std::string(kAsk), Answer::Cancel);
    window.lstNames_Click(run.program, 0);
    EXPECT_EQ(window.lstNames.ListIndex, -1);
    EXPECT_EQ(run.Text(0), "Cal Cedar");
}

TEST(NameList, AWholeNameTypedLeadsToItsRow) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Cher", "Cherry"}));
    window.lstNames_Typed(run.program, "cher");
    EXPECT_EQ(run.Text(0), "Cher");
}

TEST(NameList, HasEveryNameOfALongBook) {
    AddressRun run;
    constexpr std::size_t kBefore = 2048;
    frmAddress& window =
        run.OpenWith(std::string(kBefore * modAddress::kRecordLength, ' ') + AddressRun::Book({"Ann Ash"}));
    EXPECT_EQ(run.program.addresses.AddressRecordCount, 2049);
    window.lstNames_Typed(run.program, "ash");
    EXPECT_EQ(run.Text(0), "Ann Ash");
    EXPECT_EQ(run.program.addresses.CurrentAddressRecord, 2049);
}

TEST(AddressKeys, TheUpArrowLeadsToTheNameToo) {
    AddressRun run;
    EXPECT_EQ(modAddress::NextField(run.Open(), 1, modAddress::FieldKey::Up), 0);
}

TEST(UnsavedRecord, OfARunThatIsEndedIsKeptLineByLine) {
    AddressRun run;
    run.Open();
    run.Type(0, "Ann Ash");
    run.Type(10, "tulips");
    run.Window().KeepUnsaved(run.program);
    EXPECT_EQ(run.folder.Read("Proposals/Backup/Unsaved Address.txt"),
              "Name (First Name First): Ann Ash\r\nAddress 1: \r\nAddress 2: \r\nCity, State Zip: \r\nHome "
              "Phone: \r\nWork Phone: \r\nCell Phone: \r\nEvent Date: \r\nOther Contact: \r\nEmail: "
              "\r\nNotes: tulips\r\n");
}

TEST(NameList, LettersLeadBackToTheTopRow) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash", "Ben Birch"}));
    window.lstNames_Click(run.program, 1);
    window.lstNames_Typed(run.program, "a");
    EXPECT_EQ(run.Text(0), "Ann Ash");
}

TEST(TypedText, TakesTheCursorAlongAndLeavesNothingSelected) {
    AddressRun run;
    frmAddress& window = run.Open();
    AddressField& field = window.txt[1];
    run.Type(1, "1 Elm St");
    EXPECT_EQ(field.SelStart, 8);
    field.SelLength = 3;
    window.txt_Change(run.program, 1, "12 Elm St", 2);
    EXPECT_EQ(field.SelStart, 2);
    EXPECT_EQ(field.SelLength, 0);
    window.txt_Change(run.program, 1, "12", 9);
    EXPECT_EQ(field.SelStart, 2) << "no further than the text goes";
}

TEST(DoubleClick, PutsTheCursorBehindWhatItMadeAndLeavesAFieldThatTakesNoText) {
    AddressRun run;
    frmAddress& window = run.Open();
    run.Type(4, "1234567890");
    window.txt_DblClick(run.program, 4);
    EXPECT_EQ(run.Text(4), "(123) 456-7890");
    EXPECT_EQ(window.txt[4].SelStart, 14);
    run.Type(5, "5550100");
    window.txt[5].Enabled = false;
    window.txt_DblClick(run.program, 5);
    EXPECT_EQ(run.Text(5), "5550100");
}

TEST(AddressWindow, NamesItsFieldsBehindTheMessageOfABookThatCannotBeMade) {
    AddressRun run;
    std::string caption;
    std::string tip;
    const std::string book = run.program.folders.ProposalsFolder + std::string(AddressRun::kPersonal);
    const std::string message =
        text::Lines({"1/21/2008 6:00:00 PM", "An error occurred in OpenPersonalBook.", "Error Number: 70",
                     "Error Description: Permission denied: " + book, "", ""});
    run.Questions().Allow(message, [&] {
        caption = run.Window().lblInfo[0].Caption;
        tip = run.Window().txt[0].ToolTipText;
    });
    const FailingDisk disk{{FailingDisk::Call::Open, 1, EACCES}};
    run.Open();
    EXPECT_EQ(caption, "Name (First Name First)");
    EXPECT_EQ(tip, "Double-click to change format: i.e., john doe becomes John Doe");
}

TEST(AddressWindow, WhatStillArrivesAtTheClosedOneIsNotTheNextOnes) {
    AddressRun run;
    frmAddress& closed = run.OpenWith(AddressRun::Book({"Ann Ash"}));
    closed.cmdExit_Click(run.program);
    closed.txt_GotFocus(run.program, 5);
    closed.txt_KeyUp(run.program, 5, 3);
    modWindows::Sweep(run.program);
    frmAddress& window = run.Open();
    window.lstNames_Click(run.program, 0);
    window.FocusWanted.reset();
    run.Questions().Expect("Delete this record?", Answer::No);
    run.Run(Id::mnuFileDelete);
    EXPECT_EQ(window.FocusWanted, 0) << "nothing has been typed in this window yet";
}

} // namespace
