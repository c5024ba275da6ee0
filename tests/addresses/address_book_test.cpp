#include "addresses/address_book.h"
#include "addresses/address_run.h"
#include "support/small_disk.h"

#include <gtest/gtest.h>

#include <filesystem>

#include <sys/stat.h>

namespace {

using address_menu::Id;
using Rows = std::vector<std::string>;

constexpr std::string_view kAsk = "The current Record has been changed. Do you want to save the changes?";
constexpr std::string_view kChanged = "This record was changed by another program.";

const ScriptedQuestions::Box kAskToSave{std::string(kAsk), Buttons::YesNoCancel, "Record Has Changed"};

std::string Padded(std::string_view name) {
    std::string field(name);
    field.resize(40, ' ');
    return field;
}

TEST(AddressBook, OpensOnThePersonalBookWithANewRecord) {
    AddressRun run;
    frmAddress& window = run.Open();
    EXPECT_EQ(window.Caption, " Personal Address Book/Beginning New Record: 0 Records Exist");
    EXPECT_TRUE(run.program.addresses.AddressRecordNew);
    EXPECT_FALSE(window[Id::mnuFileOpenClientele].Enabled);
    EXPECT_TRUE(window[Id::mnuFileOpenBusiness].Enabled);
    EXPECT_FALSE(window[Id::mnuFileDelete].Enabled);
    EXPECT_EQ(window.FocusWanted, 0);
    EXPECT_EQ(run.ReadBook(), "");
    EXPECT_EQ(window.lblInfo[0].Caption, "Name (First Name First)");
    EXPECT_EQ(window.lblInfo[4].Caption, "Home Phone");
    EXPECT_EQ(window.lblInfo[11].Caption, "Click to Open Record");
}

TEST(AddressBook, CountsOneRecordInTheSingular) {
    AddressRun run;
    EXPECT_EQ(run.OpenWith(AddressRun::Book({"Ann"})).Caption,
              " Personal Address Book/Beginning New Record: 1 Record Exists");
}

TEST(AddressBook, TheOtherBookHasItsOwnFileCaptionsAndLabel) {
    AddressRun run;
    frmAddress& window = run.OpenBusinessWith(AddressRun::Book({"Acme Tents"}));
    EXPECT_EQ(window.Caption, " Company Address Book/Beginning New Record: 1 Record Exists");
    EXPECT_EQ(window.lblInfo[0].Caption, "Name");
    EXPECT_EQ(window.lblInfo[5].Caption, "Fax");
    EXPECT_EQ(window.lblInfo[8].Caption, "Contact");
    EXPECT_EQ(run.Rows(), Rows{Padded("Acme Tents")});
    EXPECT_TRUE(window[Id::mnuFileOpenClientele].Enabled);
    EXPECT_FALSE(window[Id::mnuFileOpenBusiness].Enabled);
    EXPECT_EQ(run.program.addresses.AddressBackupName, "ComAdd.bak");
    EXPECT_EQ(run.program.addresses.AddressWorkName, "ComAdd.tmp");
}

TEST(AddressBook, AMissingBookIsMadeEachTimeItIsOpened) {
    AddressRun run;
    run.Open();
    std::filesystem::remove(run.folder / run.DataName(AddressRun::kPersonal));
    run.Run(Id::mnuFileOpenBusiness);
    run.Run(Id::mnuFileOpenClientele);
    EXPECT_TRUE(run.folder.Has(run.DataName(AddressRun::kPersonal)));
    EXPECT_TRUE(run.folder.Has(run.DataName(AddressRun::kBusiness)));
}

TEST(AddressBook, SelectingARowShowsItsRecord) {
    AddressRun run;
    frmAddress& window = run.OpenWith(
        AddressRun::Book({"Zoe Young"}) +
        AddressRun::Record({"John Smith", "1 Elm St", "", "Springfield", "5550100", "5550101", "5550102",
                            "June 1, 2008", "Jane", "j@example.com", "Likes tulips"}));
    EXPECT_EQ(run.Rows(), (Rows{"Smith, John", "Young, Zoe"}));
    window.lstNames_Click(run.program, 0);
    EXPECT_EQ(window.Caption, " Personal Address Book/John Smith/Record 2 of 2 Displayed");
    EXPECT_EQ(run.Text(0), "John Smith");
    EXPECT_EQ(run.Text(1), "1 Elm St");
    EXPECT_EQ(run.Text(7), "June 1, 2008");
    EXPECT_EQ(run.Text(10), "Likes tulips");
    EXPECT_EQ(run.program.addresses.CurrentAddressRecord, 2);
    EXPECT_EQ(run.program.addresses.LastListIndex, 0);
    EXPECT_FALSE(run.program.addresses.AddressRecordNew);
    EXPECT_TRUE(window[Id::mnuFileDelete].Enabled);
    EXPECT_TRUE(window[Id::mnuOptMerge].Enabled);
}

TEST(AddressBook, OfTwoRecordsWithOneNameTheLowerRowShowsTheLater) {
    AddressRun run;
    frmAddress& window =
        run.OpenWith(AddressRun::Record({"John Smith", "first"}) + AddressRun::Book({"Ann Ash"}) +
                     AddressRun::Record({"John Smith", "second"}));
    EXPECT_EQ(run.Rows(), (Rows{"Ash, Ann", "Smith, John", "Smith, John"}));
    window.lstNames_Click(run.program, 2);
    EXPECT_EQ(run.Text(1), "second");
    window.lstNames_Click(run.program, 1);
    EXPECT_EQ(run.Text(1), "first");
}

TEST(AddressBook, ASaveAddsANewRecordBehindTheLastAndShowsIt) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Zoe Young"}));
    run.Type(0, "  Ann Ash ");
    run.Type(4, "5550100");
    EXPECT_TRUE(run.program.addresses.AddressRecordChanged);
    EXPECT_EQ(window.cmdSave.BackColor, colors::kFocused);
    window.cmdSave_Click(run.program);
    EXPECT_EQ(run.ReadBook(),
              AddressRun::Book({"Zoe Young"}) + AddressRun::Record({"Ann Ash", "", "", "", "5550100"}));
    EXPECT_EQ(window.Caption, " Personal Address Book/Ann Ash/Record 2 of 2 Displayed");
    EXPECT_TRUE(run.program.main.Notice.starts_with("Address saved: " + run.folder.Path()));
    EXPECT_EQ(run.Rows(), (Rows{"Ash, Ann", "Young, Zoe"}));
    EXPECT_EQ(window.lstNames.ListIndex, 0);
    EXPECT_FALSE(run.program.addresses.AddressRecordChanged);
    EXPECT_EQ(window.cmdSave.BackColor, colors::kButtonFace);
    EXPECT_EQ(window.txt[0].BackColor, colors::kWhite);
}

TEST(AddressBook, AChangedRecordIsWrittenInItsPlace) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash", "Ben Birch", "Cal Cedar"}));
    window.lstNames_Click(run.program, 1);
    run.Type(1, "5 Oak Road");
    window.cmdSave_Click(run.program);
    EXPECT_EQ(run.ReadBook(), AddressRun::Book({"Ann Ash"}) +
                                  AddressRun::Record({"Ben Birch", "5 Oak Road"}) +
                                  AddressRun::Book({"Cal Cedar"}));
    EXPECT_EQ(window.lstNames.ListIndex, 1);
}

TEST(AddressBook, RenamingLeavesTheOldRecord) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash", "Ben Birch"}));
    window.lstNames_Click(run.program, 0);
    run.Type(0, "Ann Elm");
    EXPECT_TRUE(run.program.addresses.AddressNameChanged);
    window.cmdSave_Click(run.program);
    EXPECT_EQ(run.ReadBook(), AddressRun::Book({"Ann Ash", "Ben Birch", "Ann Elm"}));
    EXPECT_EQ(run.Rows(), (Rows{"Ash, Ann", "Birch, Ben", "Elm, Ann"}));
    EXPECT_EQ(run.program.addresses.AddressRecordCount, 3);
    EXPECT_EQ(run.program.addresses.CurrentAddressRecord, 3);
}

TEST(AddressBook, ANameOfBlanksIsNotSaved) {
    AddressRun run;
    frmAddress& window = run.Open();
    run.Type(0, "   ");
    run.Type(1, "1 Elm St");
    run.Questions().ExpectBox({"Cannot save record... no name given.", Buttons::Ok, ""}, Answer::Ok);
    window.cmdSave_Click(run.program);
    EXPECT_EQ(run.ReadBook(), "");
    EXPECT_EQ(run.Text(1), "1 Elm St");
    EXPECT_TRUE(run.program.addresses.AddressSaveCancelled);
    EXPECT_TRUE(run.program.addresses.AddressRecordChanged);
}

TEST(AddressBook, TypingAndTakingItBackLeavesTheFieldWhite) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash"}));
    window.lstNames_Click(run.program, 0);
    run.Type(1, "x");
    EXPECT_EQ(window.txt[1].BackColor, colors::kFocused);
    EXPECT_EQ(window.txt[1].ToolTipText, "Text in this field has been Changed");
    run.Type(1, "");
    EXPECT_EQ(window.txt[1].BackColor, colors::kWhite);
    EXPECT_EQ(window.txt[1].ToolTipText, "Double-click to change format: i.e., john doe becomes John Doe");
    EXPECT_FALSE(run.program.addresses.AddressRecordChanged);
}

TEST(AddressBook, ATextOverItsLimitTurnsRedAndIsCutOnlyAfterAYes) {
    AddressRun run;
    frmAddress& window = run.Open();
    run.Type(0, "Ann Ash");
    run.Type(4, std::string(20, '1'));
    EXPECT_EQ(window.txt[4].BackColor, colors::kFocused);
    run.Type(4, std::string(20, '1') + "2");
    EXPECT_EQ(window.txt[4].BackColor, colors::kOverLimit);
    EXPECT_EQ(window.txt[4].ToolTipText, "Maximum characters for this field = 20. Please adjust.");
    const std::string words =
        "These texts are longer than their place in the file and will be cut:\r\nHome Phone";
    run.Questions().Expect(words, Answer::No);
    window.cmdSave_Click(run.program);
    EXPECT_EQ(run.Questions().Manners.back().Default, Answer::No);
    EXPECT_EQ(run.Questions().Manners.back().Words, (std::vector<std::string>{"Save Anyway", "Cancel"}));
    EXPECT_EQ(run.ReadBook(), "");
    EXPECT_EQ(run.Text(4).size(), 21U);
    run.Questions().Expect(words, Answer::Yes);
    window.cmdSave_Click(run.program);
    EXPECT_EQ(run.ReadBook(), AddressRun::Record({"Ann Ash", "", "", "", std::string(20, '1')}));
}

TEST(AddressBook, AStumpBehindTheLastRecordIsNoRecordAndIsWrittenOver) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash"}) + std::string(300, 'x'));
    EXPECT_EQ(run.program.addresses.AddressRecordCount, 1);
    run.Type(0, "Ben Birch");
    window.cmdSave_Click(run.program);
    EXPECT_EQ(run.ReadBook(), AddressRun::Book({"Ann Ash", "Ben Birch"}));
}

TEST(AddressBook, ANewRecordGoesBehindWhatAnotherProgramHasAddedMeanwhile) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash"}));
    run.WriteBook(AddressRun::kPersonal, AddressRun::Book({"Ann Ash", "Ben Birch"}));
    run.Type(0, "Cal Cedar");
    window.cmdSave_Click(run.program);
    EXPECT_EQ(run.ReadBook(), AddressRun::Book({"Ann Ash", "Ben Birch", "Cal Cedar"}));
    EXPECT_EQ(run.program.addresses.AddressRecordCount, 3);
}

TEST(AddressBook, ARecordThatHasMovedIsFoundAndWrittenWhereItStandsNow) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash", "Ben Birch", "Cal Cedar"}));
    window.lstNames_Click(run.program, 2);
    run.Type(1, "7 Fir Lane");
    run.WriteBook(AddressRun::kPersonal, AddressRun::Book({"Ben Birch", "Cal Cedar"}));
    window.cmdSave_Click(run.program);
    EXPECT_EQ(run.ReadBook(),
              AddressRun::Book({"Ben Birch"}) + AddressRun::Record({"Cal Cedar", "7 Fir Lane"}));
    EXPECT_EQ(run.program.addresses.CurrentAddressRecord, 2);
}

TEST(AddressBook, ARecordThatAnotherProgramHasChangedIsNotOverwritten) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash", "Ben Birch"}));
    window.lstNames_Click(run.program, 1);
    run.Type(1, "mine");
    const std::string theirs = AddressRun::Book({"Ann Ash"}) + AddressRun::Record({"Ben Birch", "theirs"});
    run.WriteBook(AddressRun::kPersonal, theirs);
    run.Questions().ExpectBox({std::string(kChanged), Buttons::Ok, ""}, Answer::Ok);
    window.cmdSave_Click(run.program);
    EXPECT_EQ(run.ReadBook(), theirs);
    EXPECT_TRUE(run.program.addresses.AddressRecordNew);
    EXPECT_TRUE(run.program.addresses.AddressSaveCancelled);
    EXPECT_TRUE(run.program.addresses.AddressRecordChanged);
    EXPECT_EQ(run.Text(1), "mine");
    EXPECT_EQ(window.lstNames.ListIndex, -1);
    EXPECT_EQ(run.program.addresses.CurrentAddressRecord, 0) << "what stands here is no record of the book";
    EXPECT_EQ(run.program.addresses.RecordAsRead, "");
    window.cmdSave_Click(run.program);
    EXPECT_EQ(run.ReadBook(), theirs + AddressRun::Record({"Ben Birch", "mine"}));
}

TEST(AddressBook, ABookThatHasGoneKeepsWhatWasTyped) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash"}));
    window.lstNames_Click(run.program, 0);
    run.Type(1, "mine");
    std::filesystem::remove(run.folder / run.DataName(AddressRun::kPersonal));
    run.Questions().Expect(std::string(kChanged));
    window.cmdSave_Click(run.program);
    EXPECT_EQ(run.Text(1), "mine");
    window.cmdSave_Click(run.program);
    EXPECT_EQ(run.ReadBook(), AddressRun::Record({"Ann Ash", "mine"}));
}

TEST(AddressBook, AProtectedBookIsToldAndLeftAlone) {
    AddressRun run;
    const std::string bytes = AddressRun::Book({"Ann Ash", "Ben Birch"});
    frmAddress& window = run.OpenWith(bytes);
    window.lstNames_Click(run.program, 0);
    ::chmod((run.folder / run.DataName(AddressRun::kPersonal)).c_str(), 0444);
    run.Type(1, "mine");
    run.Questions().Expect("Permission denied");
    window.cmdSave_Click(run.program);
    EXPECT_TRUE(run.program.addresses.AddressSaveCancelled);
    EXPECT_EQ(run.Text(1), "mine");
    run.Questions().Expect("Delete this record?", Answer::Yes);
    run.Questions().Expect("Permission denied");
    run.Run(Id::mnuFileDelete);
    EXPECT_EQ(run.ReadBook(), bytes);
}

TEST(AddressBook, ARecordThatDoesNotFitOnTheDiskIsCutOffAgain) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash"}) + std::string(100, 'x'));
    run.Type(0, "Ben Birch");
    {
        const SmallDisk disk(520 + 200);
        run.Questions().Expect("Disk full");
        window.cmdSave_Click(run.program);
    }
    EXPECT_EQ(run.ReadBook(), AddressRun::Book({"Ann Ash"}) + std::string(100, 'x'));
    EXPECT_EQ(run.Text(0), "Ben Birch");
    window.cmdSave_Click(run.program);
    EXPECT_EQ(run.ReadBook(), AddressRun::Book({"Ann Ash", "Ben Birch"}));
}

TEST(AddressBook, ARecordThatCannotBeWrittenInItsPlaceStandsAsItWas) {
    AddressRun run;
    const std::string bytes = AddressRun::Book({"Ann Ash", "Ben Birch"});
    frmAddress& window = run.OpenWith(bytes);
    window.lstNames_Click(run.program, 1);
    run.Type(1, "5 Oak Road");
    {
        const SmallDisk disk(520 + 100);
        run.Questions().Expect("Disk full");
        window.cmdSave_Click(run.program);
    }
    EXPECT_EQ(run.ReadBook(), bytes);
    EXPECT_EQ(run.Text(1), "5 Oak Road");
}

TEST(AddressBook, ADeleteThatCannotWriteItsCopyLeavesTheBook) {
    AddressRun run;
    const std::string bytes = AddressRun::Book({"Ann Ash", "Ben Birch", "Cal Cedar"});
    frmAddress& window = run.OpenWith(bytes);
    window.lstNames_Click(run.program, 1);
    {
        const SmallDisk disk(700);
        run.Questions().Expect("Delete this record?", Answer::Yes);
        run.Questions().Expect("Disk full");
        run.Run(Id::mnuFileDelete);
    }
    EXPECT_EQ(run.ReadBook(), bytes);
    EXPECT_EQ(run.Text(0), "Ben Birch");
}

TEST(AddressBook, ADeleteMovesTheRecordsBehindItUp) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash", "Ben Birch", "Cal Cedar"}));
    window.lstNames_Click(run.program, 1);
    run.Questions().ExpectBox({"Delete this record?\r\nBen Birch", Buttons::YesNo, ""}, Answer::Yes);
    run.Run(Id::mnuFileDelete);
    EXPECT_EQ(run.ReadBook(), AddressRun::Book({"Ann Ash", "Cal Cedar"}));
    EXPECT_EQ(run.Rows(), (Rows{"Ash, Ann", "Cedar, Cal"}));
    // One row is left behind the place of the deleted one only when the list is longer than that.
    EXPECT_EQ(window.lstNames.ListIndex, 0);
    EXPECT_EQ(window.Caption, " Personal Address Book/Ann Ash/Record 1 of 2 Displayed");
    EXPECT_FALSE(run.folder.Has(run.DataName("PerAdd.tmp")));
    EXPECT_FALSE(run.folder.Has(run.DataName("PerAdd.bak")));
}

TEST(AddressBook, ADeleteHighInTheListSelectsTheRowThatMovesIn) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash", "Ben Birch", "Cal Cedar"}));
    window.lstNames_Click(run.program, 0);
    run.Questions().Expect("Delete this record?", Answer::Yes);
    run.Run(Id::mnuFileDelete);
    EXPECT_EQ(window.lstNames.ListIndex, 0);
    EXPECT_EQ(run.Text(0), "Ben Birch");
}

TEST(AddressBook, TheRecordThatIsLeftAfterADeleteIsShownAndMarked) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash", "Ben Birch"}));
    window.lstNames_Click(run.program, 0);
    run.Questions().Expect("Delete this record?", Answer::Yes);
    run.Run(Id::mnuFileDelete);
    EXPECT_EQ(run.Text(0), "Ben Birch");
    EXPECT_EQ(window.lstNames.ListIndex, 0);
}

TEST(AddressBook, ANoLeavesTheRecordAndReturnsToTheField) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash"}));
    window.lstNames_Click(run.program, 0);
    window.txt_GotFocus(run.program, 2);
    window.FocusWanted.reset();
    run.Questions().Expect("Delete this record?", Answer::No);
    run.Run(Id::mnuFileDelete);
    EXPECT_EQ(run.ReadBook(), AddressRun::Book({"Ann Ash"}));
    EXPECT_EQ(window.FocusWanted, 2);
}

TEST(AddressBook, DeletingTheLastRecordCountsOneUntilTheListIsMadeAgain) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash"}));
    window.lstNames_Click(run.program, 0);
    run.Questions().Expect("Delete this record?", Answer::Yes);
    run.Run(Id::mnuFileDelete);
    EXPECT_EQ(run.ReadBook(), "");
    EXPECT_EQ(run.program.addresses.AddressRecordCount, 1);
    EXPECT_EQ(window.Caption, " Personal Address Book//Record 1 of 1 Displayed");
    EXPECT_TRUE(run.Rows().empty());
    EXPECT_EQ(run.Text(0), "");
    run.Run(Id::mnuFileOpenBusiness);
    run.Run(Id::mnuFileOpenClientele);
    EXPECT_EQ(run.program.addresses.AddressRecordCount, 0);
}

TEST(AddressBook, ARecordTypedIntoAnEmptiedBookIsItsFirst) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash"}));
    window.lstNames_Click(run.program, 0);
    run.Questions().Expect("Delete this record?", Answer::Yes);
    run.Run(Id::mnuFileDelete);
    run.Type(0, "Ben Birch");
    window.cmdSave_Click(run.program);
    EXPECT_EQ(run.ReadBook(), AddressRun::Book({"Ben Birch"}));
    EXPECT_EQ(run.program.addresses.AddressRecordCount, 1);
}

TEST(AddressBook, ADeleteWithoutASelectedRowIsTold) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash"}));
    window.lstNames_Click(run.program, 0);
    window.lstNames.ListIndex = -1;
    run.Questions().ExpectBox({"No Record Selected", Buttons::Ok, ""}, Answer::Ok);
    run.Run(Id::mnuFileDelete);
    EXPECT_EQ(run.ReadBook(), AddressRun::Book({"Ann Ash"}));
}

TEST(AddressBook, ADeleteOfARecordThatAnotherProgramHasChangedDeletesNothing) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash", "Ben Birch"}));
    window.lstNames_Click(run.program, 0);
    const std::string theirs = AddressRun::Record({"Ann Ash", "new"}) + AddressRun::Book({"Ben Birch"});
    run.WriteBook(AddressRun::kPersonal, theirs);
    run.Questions().Expect("Delete this record?", Answer::Yes);
    run.Questions().Expect(std::string(kChanged));
    run.Run(Id::mnuFileDelete);
    EXPECT_EQ(run.ReadBook(), theirs);
    EXPECT_EQ(run.Text(0), "Ann Ash");
    EXPECT_TRUE(run.program.addresses.AddressRecordNew);
}

TEST(AddressBook, ADeleteFindsARecordThatHasMoved) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash", "Ben Birch", "Cal Cedar"}));
    window.lstNames_Click(run.program, 2);
    run.WriteBook(AddressRun::kPersonal, AddressRun::Book({"Cal Cedar", "Ann Ash"}));
    run.Questions().Expect("Delete this record?\r\nCal Cedar", Answer::Yes);
    run.Run(Id::mnuFileDelete);
    EXPECT_EQ(run.ReadBook(), AddressRun::Book({"Ann Ash"}));
}

TEST(AddressBook, ARowFindsItsRecordByNameWhenTheNumbersHaveMoved) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash", "John Smith, JR.", "Jane Doe III"}));
    EXPECT_EQ(run.Rows(), (Rows{"Ash, Ann", "Doe III, Jane", "Smith, JR., John"}));
    run.WriteBook(AddressRun::kPersonal,
                  AddressRun::Book({"New One", "Ann Ash", "John Smith, JR.", "Jane Doe III"}));
    window.lstNames_Click(run.program, 2);
    EXPECT_EQ(run.Text(0), "John Smith, JR.");
    EXPECT_EQ(run.program.addresses.CurrentAddressRecord, 3);
    window.lstNames_Click(run.program, 1);
    EXPECT_EQ(run.Text(0), "Jane Doe III");
}

TEST(AddressBook, ARowThatOpensNothingEmptiesTheFieldsAndTakesTheCommandsAway) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash", "Ben Birch"}));
    window.lstNames_Click(run.program, 0);
    run.WriteBook(AddressRun::kPersonal, AddressRun::Book({"Ann Ash"}));
    window.lstNames_Click(run.program, 1);
    EXPECT_EQ(run.Text(0), "");
    EXPECT_FALSE(window.cmdSave.Enabled);
    for (const Id id :
         {Id::mnuFileSave, Id::mnuFileDelete, Id::mnuFilePrint, Id::mnuOptMerge, Id::mnuOptMergeExit,
          Id::mnuOptMergeCeremony, Id::mnuOptCopyAll, Id::mnuOptCopyNameAddress}) {
        EXPECT_FALSE(window.IsAvailable(run.program, id)) << static_cast<int>(id);
    }
    window.lstNames_Click(run.program, 0);
    EXPECT_TRUE(window.cmdSave.Enabled);
    EXPECT_TRUE(window.IsAvailable(run.program, Id::mnuOptMerge));
}

TEST(AddressBook, ANewRecordCanBeSavedAfterARowThatOpenedNothing) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash", "Ben Birch"}));
    run.WriteBook(AddressRun::kPersonal, AddressRun::Book({"Ann Ash"}));
    window.lstNames_Click(run.program, 1);
    ASSERT_FALSE(window.cmdSave.Enabled);
    run.Run(Id::mnuFileNew);
    EXPECT_TRUE(window.cmdSave.Enabled);
    for (const Id id : {Id::mnuFileSave, Id::mnuFilePrint, Id::mnuOptMergeCeremony, Id::mnuOptCopyAll,
                        Id::mnuOptCopyNameAddress}) {
        EXPECT_TRUE(window.IsAvailable(run.program, id)) << static_cast<int>(id);
    }
    EXPECT_FALSE(window.IsAvailable(run.program, Id::mnuFileDelete)) << "there is nothing to delete yet";
}

TEST(AddressBook, ChoosingAnotherRowAsksAboutWhatWasTyped) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash", "Ben Birch"}));
    window.lstNames_Click(run.program, 0);
    run.Type(1, "mine");
    window.txt_GotFocus(run.program, 1);
    window.txt_KeyUp(run.program, 1, 3);
    run.Questions().ExpectBox(kAskToSave, Answer::Cancel);
    window.lstNames_Click(run.program, 1);
    EXPECT_EQ(window.lstNames.ListIndex, 0);
    EXPECT_EQ(run.Text(1), "mine");
    EXPECT_EQ(window.FocusWanted, 1);
    EXPECT_EQ(window.txt[1].SelStart, 3);
    EXPECT_FALSE(run.program.addresses.AddressSaveCancelled);
    run.Questions().ExpectBox(kAskToSave, Answer::No);
    window.lstNames_Click(run.program, 1);
    EXPECT_EQ(run.Text(0), "Ben Birch");
    EXPECT_EQ(run.ReadBook(), AddressRun::Book({"Ann Ash", "Ben Birch"}));
}

TEST(AddressBook, ANoLetsTheOtherRowComeAlsoAfterASaveThatWasRefused) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash"}));
    run.Type(1, "no name yet");
    run.Questions().Expect("Cannot save record... no name given.");
    window.cmdSave_Click(run.program);
    run.Questions().ExpectBox(kAskToSave, Answer::No);
    window.lstNames_Click(run.program, 0);
    EXPECT_EQ(run.Text(0), "Ann Ash");
    EXPECT_EQ(run.Text(1), "");
}

TEST(AddressBook, AYesSavesAndThenOpensTheRowThatWasChosen) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ben Birch", "Cal Cedar"}));
    run.Type(0, "Ann Ash");
    run.Questions().ExpectBox(kAskToSave, Answer::Yes);
    window.lstNames_Click(run.program, 0); // Birch, one row lower once Ash is in the book
    EXPECT_EQ(run.Text(0), "Ben Birch");
    EXPECT_EQ(window.lstNames.ListIndex, 1);
    EXPECT_EQ(run.ReadBook(), AddressRun::Book({"Ben Birch", "Cal Cedar", "Ann Ash"}));
}

TEST(AddressBook, ASaveThatDoesNotHappenStopsWhatAskedForIt) {
    for (const Id id : {Id::mnuFileNew, Id::mnuFileOpenBusiness, Id::mnuEditFind, Id::mnuToolsImportBatch}) {
        AddressRun run;
        frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash"}));
        run.Type(1, "no name yet");
        run.Questions().ExpectBox(kAskToSave, Answer::Yes);
        run.Questions().Expect("Cannot save record... no name given.");
        run.Run(id);
        EXPECT_EQ(run.Text(1), "no name yet");
        EXPECT_EQ(run.program.addresses.Book, AddressBook::Personal);
        EXPECT_FALSE(window.picImport);
    }
}

TEST(AddressBook, ClosingAsksAboutWhatWasTypedAndTheExitButtonDoesNot) {
    AddressRun run;
    run.Open();
    run.Type(0, "Ann Ash");
    run.Questions().ExpectBox(kAskToSave, Answer::Cancel);
    run.Window().Form_Cancel(run.program);
    ASSERT_TRUE(run.IsOpen());
    run.Questions().ExpectBox(kAskToSave, Answer::Yes);
    run.Window().Form_Cancel(run.program);
    EXPECT_FALSE(run.IsOpen());
    EXPECT_EQ(run.ReadBook(), AddressRun::Book({"Ann Ash"}));
    modWindows::Sweep(run.program);
    run.Open();
    run.Type(0, "Ben Birch");
    run.Window().cmdExit_Click(run.program);
    EXPECT_FALSE(run.IsOpen());
    EXPECT_EQ(run.ReadBook(), AddressRun::Book({"Ann Ash"}));
}

TEST(AddressBook, AnOpenWindowKeepsItsRecordWhenItsCommandComesAgain) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash"}));
    window.lstNames_Click(run.program, 0);
    run.Type(1, "typed");
    window.Minimised = true;
    modAddress::mnuFileOpenAddressBook_Click(run.program);
    EXPECT_EQ(&run.Window(), &window);
    EXPECT_EQ(run.Text(1), "typed");
    EXPECT_EQ(window.FrontCalls, 1);
    EXPECT_FALSE(window.Minimised);
}

TEST(AddressBook, LettersLeadToTheFirstRowThatBeginsWithThem) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash", "Ben Birch", "Bea Brown"}));
    window.lstNames_Typed(run.program, "b");
    EXPECT_EQ(run.Text(0), "Ben Birch");
    window.lstNames_Typed(run.program, "bR");
    EXPECT_EQ(run.Text(0), "Bea Brown");
    window.lstNames_Typed(run.program, "bx");
    EXPECT_EQ(run.Text(0), "Bea Brown");
}

TEST(AddressBook, ABookOfAnyBytesIsReadWithinItsBounds) {
    AddressRun run;
    std::string bytes;
    for (int at = 0; at < 520 * 7 + 13; ++at) {
        bytes += static_cast<char>(at * 37 % 256);
    }
    frmAddress& window = run.OpenWith(bytes);
    EXPECT_EQ(run.program.addresses.AddressRecordCount, 7);
    for (int row = 0; row < 7; ++row) {
        window.lstNames_Click(run.program, row);
        EXPECT_FALSE(run.program.addresses.AddressRecordChanged);
    }
    EXPECT_EQ(run.ReadBook(), bytes);
}

TEST(AddressBook, ALineOfNotesThatTheScreenWritesItsOwnWayIsNoChange) {
    AddressRun run;
    frmAddress& window =
        run.OpenWith(AddressRun::Record({"Ann Ash", "", "", "", "", "", "", "", "", "", "one\ntwo"}));
    window.lstNames_Click(run.program, 0);
    run.Type(10, "one\r\ntwo");
    EXPECT_FALSE(run.program.addresses.AddressRecordChanged);
}

TEST(AddressBook, TheOtherBookBeginsWithoutTheRecordOfTheFirst) {
    AddressRun run;
    run.WriteBook(AddressRun::kBusiness, AddressRun::Book({"Acme Tents"}));
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash", "Ben Birch"}));
    window.lstNames_Click(run.program, 1);
    ASSERT_EQ(run.program.addresses.CurrentAddressRecord, 2);
    ASSERT_EQ(modAddress::OpenBook(run.program, window, AddressBook::Business), modAddress::Outcome::Done);
    EXPECT_EQ(run.program.addresses.CurrentAddressRecord, 0);
    EXPECT_EQ(run.program.addresses.RecordAsRead, "");
    EXPECT_EQ(run.program.addresses.AddressRecordCount, 1);
    EXPECT_EQ(window.lstNames.ListIndex, -1);
}

TEST(AddressBook, ADeleteOfTheTopRowSelectsTheRowBelowItWhateverItsNumber) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ben Birch", "Ann Ash", "Cal Cedar"}));
    window.lstNames_Click(run.program, 0);
    run.Questions().Expect("Delete this record?\r\nAnn Ash", Answer::Yes);
    run.Run(Id::mnuFileDelete);
    EXPECT_EQ(window.lstNames.ListIndex, 0);
    EXPECT_EQ(run.Text(0), "Ben Birch");
    EXPECT_EQ(window.Caption, " Personal Address Book/Ben Birch/Record 1 of 2 Displayed");
}

TEST(AddressBook, ANoPutsTheCursorWhereItWasTypingLast) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Record({"Ann Ash", "Ash Ltd"}));
    window.lstNames_Click(run.program, 0);
    window.txt_GotFocus(run.program, 1);
    window.txt_KeyUp(run.program, 1, 3);
    AddressField& field = window.txt[1];
    field.SelStart = 0;
    field.SelLength = 7;
    run.Questions().Expect("Delete this record?", Answer::No);
    run.Run(Id::mnuFileDelete);
    EXPECT_EQ(field.SelStart, 3);
    EXPECT_EQ(field.SelLength, 0);
    window.txt_KeyUp(run.program, 1, 99);
    run.Questions().Expect("Delete this record?", Answer::No);
    run.Run(Id::mnuFileDelete);
    EXPECT_EQ(field.SelStart, 7) << "no further than the text goes";
}

TEST(AddressBook, ADeleteTakesAwayALinkThatLiesWhereItWorksAndLeavesWhatItLeadsTo) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash", "Ben Birch"}));
    run.folder.Write("others.txt", "not ours");
    std::filesystem::create_symlink(run.folder / "others.txt", run.folder / run.DataName("PerAdd.tmp"));
    window.lstNames_Click(run.program, 0);
    run.Questions().Expect("Delete this record?", Answer::Yes);
    run.Run(Id::mnuFileDelete);
    EXPECT_EQ(run.ReadBook(), AddressRun::Book({"Ben Birch"}));
    EXPECT_EQ(run.folder.Read("others.txt"), "not ours");
    EXPECT_FALSE(std::filesystem::is_symlink(run.folder / run.DataName("PerAdd.apx")));
}

TEST(AddressBook, LettersThatLeadToTheChosenRowOrToNoneAskNothing) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash", "Ben Birch"}));
    window.lstNames_Click(run.program, 0);
    run.Type(1, "changed");
    window.lstNames_Typed(run.program, "a");
    window.lstNames_Typed(run.program, "x");
    EXPECT_EQ(run.Text(1), "changed");
    EXPECT_EQ(window.lstNames.ListIndex, 0);
}

TEST(AddressBook, ADeleteOfTheTopRowOfTwoShowsTheOtherWhateverItsNumber) {
    for (const bool topIsLast : {false, true}) {
        AddressRun run;
        frmAddress& window = run.OpenWith(topIsLast ? AddressRun::Book({"Ben Birch", "Ann Ash"})
                                                    : AddressRun::Book({"Ann Ash", "Ben Birch"}));
        window.lstNames_Click(run.program, 0);
        run.Questions().Expect("Delete this record?\r\nAnn Ash", Answer::Yes);
        run.Run(Id::mnuFileDelete);
        EXPECT_EQ(run.Text(0), "Ben Birch") << topIsLast;
        EXPECT_EQ(window.lstNames.ListIndex, 0) << topIsLast;
        EXPECT_EQ(window.Caption, " Personal Address Book/Ben Birch/Record 1 of 1 Displayed");
    }
}

} // namespace
