#include "addresses/address_run.h"

#include "addresses/address_fields.h"

#include "proposal/property_file.h"
#include "support/failing_disk.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace {

struct CompanyRun : AddressRun {
    CompanyRun() { modAddress::mnuEditCompInfo_Click(program); }
    [[nodiscard]] std::string Settings() const { return folder.Read("UserPreferences.txt"); }
    [[nodiscard]] const std::string& Caption(PageId page, int label) { return Label(page, label).Caption; }
};

TEST(CompanyInfo, ShowsTheEightLinesOfTheSettings) {
    CompanyRun run;
    const frmAddress& window = run.Window();
    EXPECT_EQ(window.Caption, "Company Information");
    EXPECT_FALSE(window.lstNames.Visible);
    EXPECT_EQ(run.Text(0), "Acme Events");
    EXPECT_EQ(window.lblInfo[6].Caption, "Website");
    EXPECT_EQ(window.lblInfo[9].Caption, "Email");
    for (const std::size_t hidden : {7U, 8U, 10U, 11U}) {
        EXPECT_FALSE(window.lblInfo[hidden].Visible) << hidden;
        EXPECT_TRUE(hidden == 11U || !window.txt[hidden].Visible) << hidden;
    }
    EXPECT_EQ(modAddress::NextField(window, 6, modAddress::FieldKey::Enter), 9);
    for (const std::size_t shown : {0U, 1U, 2U, 3U, 4U, 5U, 6U, 9U}) {
        EXPECT_TRUE(window.lblInfo[shown].Visible) << shown;
        EXPECT_TRUE(window.txt[shown].Visible) << shown;
    }
    EXPECT_EQ(window.FocusWanted, 0);
}

TEST(CompanyInfo, ALineTypedAndTakenBackIsNoChange) {
    CompanyRun run;
    run.Type(0, "x");
    EXPECT_TRUE(run.program.addresses.AddressRecordChanged);
    run.Type(0, "Acme Events");
    EXPECT_FALSE(run.program.addresses.AddressRecordChanged);
    run.Window().Form_Cancel(run.program);
    EXPECT_FALSE(run.IsOpen());
}

TEST(CompanyInfo, LinesThatCannotBeSavedStayTypedAndTheBusinessKeepsItsOwn) {
    CompanyRun run;
    run.Type(0, "Birch & Sons");
    {
        const FailingDisk disk{{FailingDisk::Call::Write, 1, ENOSPC, FailingDisk::kForever}};
        run.Questions().Expect("");
        run.Window().cmdSave_Click(run.program);
    }
    EXPECT_TRUE(run.IsOpen());
    EXPECT_EQ(run.Text(0), "Birch & Sons");
    EXPECT_TRUE(run.program.addresses.AddressRecordChanged);
    EXPECT_EQ(run.program.settings.CompanyName, "Acme Events");
    EXPECT_EQ(run.Caption(PageId::frmP1, 0), "Acme Events");
}

TEST(CompanyInfo, SavedAtTheEndOfTheProgramIsNotAskedAboutAgainWhenTheEndIsPutOff) {
    CompanyRun run;
    run.Type(0, "Birch & Sons");
    run.Questions().Expect("The current Record has been changed.", Answer::Yes);
    EXPECT_TRUE(run.Window().MayLeave(run.program, Leaving::Run));
    EXPECT_EQ(run.program.settings.CompanyName, "Birch & Sons");
    EXPECT_TRUE(run.Window().MayLeave(run.program, Leaving::Run));
}

TEST(CompanyInfo, HasNoCommandsButTheSave) {
    CompanyRun run;
    const frmAddress& window = run.Window();
    using address_menu::Id;
    for (const Id id : {Id::mnuFileNew, Id::mnuFileOpenBusiness, Id::mnuFilePrint, Id::mnuEdit,
                        Id::mnuEditFind, Id::mnuOptions, Id::mnuOptCopyAll, Id::mnuToolsImportBatch}) {
        EXPECT_FALSE(window.IsAvailable(run.program, id)) << static_cast<int>(id);
    }
    EXPECT_TRUE(window.IsAvailable(run.program, Id::mnuFile));
    EXPECT_TRUE(window.IsAvailable(run.program, Id::mnuFileSave));
}

TEST(CompanyInfo, ClosedMakesRoomForTheAddressBook) {
    CompanyRun run;
    run.Window().cmdExit_Click(run.program);
    modWindows::Sweep(run.program);
    EXPECT_EQ(run.Open().Caption, " Personal Address Book/Beginning New Record: 0 Records Exist");
    EXPECT_TRUE(run.Window().lstNames.Visible);
}

TEST(CompanyInfo, UnsavedLinesOfARunThatIsEndedAreKeptWithTheirCaptions) {
    CompanyRun run;
    run.Window().KeepUnsaved(run.program);
    EXPECT_FALSE(run.folder.Has("Proposals/Backup/Unsaved Address.txt")) << "nothing was typed";
    run.Type(0, "Birch & Sons");
    run.Type(9, "birch@example.com");
    run.Window().KeepUnsaved(run.program);
    const std::string kept = run.folder.Read("Proposals/Backup/Unsaved Address.txt");
    EXPECT_TRUE(kept.starts_with("Company Name: Birch & Sons\r\nAddress 1: ")) << kept;
    EXPECT_TRUE(kept.ends_with("Email: birch@example.com\r\n")) << kept;
    EXPECT_EQ(kept.find("Notes"), std::string::npos) << "only what is on show";
}

TEST(CompanyInfo, SavingWritesTheSettingsAndThePages) {
    CompanyRun run;
    run.Type(0, "Birch & Sons");
    run.Type(1, "9 Mill Rd");
    run.Type(6, "birch.example\r\nx");
    run.Window().cmdSave_Click(run.program);
    EXPECT_EQ(run.program.main.Notice, "Settings saved: " + (run.folder / "UserPreferences.txt"));
    EXPECT_FALSE(run.IsOpen());
    EXPECT_NE(run.Settings().find("Company Name:Birch & Sons\r\n"), std::string::npos);
    EXPECT_NE(run.Settings().find("Company Address 1:9 Mill Rd\r\n"), std::string::npos);
    EXPECT_NE(run.Settings().find("birch.example  x\r\n"), std::string::npos);
    EXPECT_EQ(run.Caption(PageId::frmP1, 0), "Birch & Sons");
    EXPECT_EQ(run.Caption(PageId::frmP1, 1), "9 Mill Rd");
    EXPECT_EQ(run.Caption(PageId::frmP6, 57), "Birch & Sons");
    EXPECT_EQ(run.Caption(PageId::frmP6_1, 58), "9 Mill Rd");
    EXPECT_EQ(run.Caption(PageId::frmP6, 51), "Representative for Birch & Sons");
    EXPECT_EQ(run.program.document.PageHeading, "Birch & Sons - Contract Proposal - ");
}

TEST(CompanyInfo, LeavesALabelThatHasOtherWords) {
    CompanyRun run;
    run.Label(PageId::frmP1, 0).Caption = "By hand";
    run.Type(0, "Birch & Sons");
    run.Window().cmdSave_Click(run.program);
    EXPECT_EQ(run.Caption(PageId::frmP1, 0), "By hand");
    EXPECT_EQ(run.Caption(PageId::frmP6, 57), "Birch & Sons");
}

TEST(CompanyInfo, RewordsTheOpenFormatAndSaysThatItsFileIsBehind) {
    CompanyRun run;
    FormatRecords& format = run.program.format;
    format.FormatOpen = true;
    LabelChangeRecord& name = format.FormatLabelChanges[PageId::frmP1][0];
    name.Changed = true;
    name.Saved = true;
    name.FromFormat = true;
    name.Caption = "Acme Events";
    LabelChangeRecord& other = format.FormatLabelChanges[PageId::frmP1][1];
    other.Changed = true;
    other.Saved = true;
    other.Caption = "By hand";
    run.Type(0, "Birch & Sons");
    run.Questions().ExpectBox(
        {"The open format still carries the old lines on disk; save it.", Buttons::Ok, ""}, Answer::Ok);
    run.Window().cmdSave_Click(run.program);
    EXPECT_EQ(name.Caption, "Birch & Sons");
    EXPECT_FALSE(name.Saved);
    EXPECT_FALSE(name.FromFormat) << "a change of the person's own, asked about when the format is left";
    EXPECT_TRUE(other.Saved);
    EXPECT_TRUE(format.Touched);
}

TEST(CompanyInfo, MovesTheLinesThatTheOpenFormatHasPlaced) {
    CompanyRun run;
    FormatRecords& format = run.program.format;
    format.FormatOpen = true;
    LabelChangeRecord& placed = format.FormatLabelChanges[PageId::frmP6][60];
    placed.Changed = true;
    placed.Saved = true;
    placed.FromFormat = true;
    placed.Top = 9000;
    const LabelChangeRecord& other = format.FormatLabelChanges[PageId::frmP6][61];
    const std::string told = "The open format still carries the old lines on disk; save it.";
    run.Type(2, "Suite 2");
    run.Questions().ExpectBox({told, Buttons::Ok, ""}, Answer::Ok);
    run.Window().cmdSave_Click(run.program);
    EXPECT_EQ(placed.Top, 9270);
    EXPECT_FALSE(placed.Saved);
    EXPECT_FALSE(placed.FromFormat);
    EXPECT_EQ(other.Top, 0) << "the format says nothing of it";
    EXPECT_TRUE(format.Touched);
    modWindows::Sweep(run.program);
    modAddress::mnuEditCompInfo_Click(run.program);
    run.Type(2, "Suite 3");
    run.Window().cmdSave_Click(run.program);
    EXPECT_EQ(placed.Top, 9270);
    modWindows::Sweep(run.program);
    modAddress::mnuEditCompInfo_Click(run.program);
    run.Type(2, "");
    run.Questions().ExpectBox({told, Buttons::Ok, ""}, Answer::Ok);
    run.Window().cmdSave_Click(run.program);
    EXPECT_EQ(placed.Top, 9000);
}

TEST(CompanyInfo, ChangesASavedProposalOnlyWhereItsOwnLayoutHasTheLine) {
    CompanyRun run;
    run.program.document.FileExists = true;
    run.Type(0, "Birch & Sons");
    run.Window().cmdSave_Click(run.program);
    EXPECT_FALSE(modFile::PropertiesChanged(run.program));
    LabelChangeRecord& own = run.program.format.PropLabelChanges[PageId::frmP1][0];
    own.Changed = true;
    modWindows::Sweep(run.program);
    modAddress::mnuEditCompInfo_Click(run.program);
    run.Type(0, "Cedar & Sons");
    run.Window().cmdSave_Click(run.program);
    EXPECT_TRUE(modFile::PropertiesChanged(run.program));
    EXPECT_EQ(own.Caption, "Cedar & Sons");
}

TEST(CompanyInfo, WithTheAlternateLetterheadLeavesItEmpty) {
    CompanyRun run;
    run.program.run.AltLetterhead = true;
    run.Label(PageId::frmP1, 1).Caption.clear();
    run.Type(1, "9 Mill Rd");
    run.Type(0, "Birch & Sons");
    run.Window().cmdSave_Click(run.program);
    EXPECT_EQ(run.Caption(PageId::frmP1, 1), "");
    EXPECT_EQ(run.Caption(PageId::frmP6, 57), "Birch & Sons");
}

TEST(CompanyInfo, MovesTheRemittanceLinesOnlyWithTheSecondAddress) {
    CompanyRun run;
    const float top = run.Label(PageId::frmP6, 60).Top;
    run.Type(2, "Suite 2");
    run.Window().cmdSave_Click(run.program);
    EXPECT_FLOAT_EQ(run.Label(PageId::frmP6, 60).Top, top + 270);
    EXPECT_FLOAT_EQ(run.Label(PageId::frmP6_1, 62).Top, top + 270 + 540);
    modWindows::Sweep(run.program);
    modAddress::mnuEditCompInfo_Click(run.program);
    run.Type(2, "Suite 3");
    run.Window().cmdSave_Click(run.program);
    EXPECT_FLOAT_EQ(run.Label(PageId::frmP6, 60).Top, top + 270);
    modWindows::Sweep(run.program);
    modAddress::mnuEditCompInfo_Click(run.program);
    run.Type(2, "");
    run.Window().cmdSave_Click(run.program);
    EXPECT_FLOAT_EQ(run.Label(PageId::frmP6, 60).Top, top);
}

TEST(CompanyInfo, AndTheAddressBookExcludeEachOther) {
    CompanyRun run;
    const std::string refusal =
        "The Company Information Window must be closed before you open the Address Book.";
    run.Questions().ExpectBox({refusal, Buttons::Ok, ""}, Answer::Ok);
    modAddress::mnuFileOpenAddressBook_Click(run.program);
    run.Questions().ExpectBox({refusal, Buttons::Ok, ""}, Answer::Ok);
    modAddress::mnuOptCopyToPersonalAddressBook_Click(run.program);
    run.Questions().ExpectBox({refusal, Buttons::Ok, ""}, Answer::Ok);
    modAddress::mnuOptCopyToBusinessAddressBook_Click(run.program);
    EXPECT_TRUE(run.program.addresses.CompanyInfoMode);
    EXPECT_EQ(run.Window().Caption, "Company Information");
    EXPECT_EQ(run.Text(0), "Acme Events");
    EXPECT_EQ(run.Window().FrontCalls, 0);
    run.Window().Minimised = true;
    modAddress::mnuEditCompInfo_Click(run.program);
    EXPECT_FALSE(run.Window().Minimised) << "the window that is open comes to the front";
    AddressRun book;
    book.Open();
    book.Questions().ExpectBox(
        {"Address Book must be closed before you can edit Company Info.", Buttons::Ok, ""}, Answer::Ok);
    modAddress::mnuEditCompInfo_Click(book.program);
    EXPECT_FALSE(book.program.addresses.CompanyInfoMode);
}

TEST(CompanyInfo, ClosingAsksAboutWhatWasTyped) {
    CompanyRun run;
    run.Type(5, "555-0199");
    run.Questions().Expect("The current Record has been changed.", Answer::Cancel);
    run.Window().Form_Cancel(run.program);
    ASSERT_TRUE(run.IsOpen());
    EXPECT_EQ(run.Text(5), "555-0199");
    run.Questions().Expect("The current Record has been changed.", Answer::Yes);
    run.Window().Form_Cancel(run.program);
    EXPECT_FALSE(run.IsOpen());
    EXPECT_EQ(run.program.settings.CompanyFax, "555-0199");
}

TEST(CompanyInfo, ALongLineIsNotOverAnyLimit) {
    CompanyRun run;
    run.Type(6, std::string(300, 'w'));
    EXPECT_EQ(run.Window().txt[6].BackColor, colors::kFocused);
    EXPECT_FALSE(run.Window().Converts(run.program, 0));
}

} // namespace
