#include "addresses/address_run.h"

#include "addresses/address_fields.h"
#include "pages/fields.h"
#include "proposal/proposal_save.h"

#include <gtest/gtest.h>

namespace {

using address_menu::Id;

const std::string kAnn =
    AddressRun::Record({"Ann Ash", "1 Elm St", "Rear", "Springfield, IL 62701", "home", "work", "cell",
                        "June 1, 2008", "Ben", "ann@example.com", "tulips\r\nroses"});

struct MergeRun : AddressRun {
    frmAddress& Show(std::string_view record, AddressBook book = AddressBook::Personal) {
        frmAddress& window = book == AddressBook::Personal ? OpenWith(record) : OpenBusinessWith(record);
        window.lstNames_Click(program, 0);
        return window;
    }
    void Put(int area, std::string_view text) {
        modFields::SetText(program, {PageId::frmP1, FieldKind::txt, area}, text);
    }
    [[nodiscard]] const std::string& Client(int area) { return TextOf(PageId::frmP1, area); }
};

TEST(Merge, PutsAPersonIntoTheClientsLines) {
    MergeRun run;
    run.Show(kAnn);
    run.Run(Id::mnuOptMerge);
    EXPECT_EQ(run.Client(2), "Ann Ash");
    EXPECT_EQ(run.Client(3), "1 Elm St - Rear");
    EXPECT_EQ(run.Client(4), "Springfield, IL 62701");
    EXPECT_EQ(run.Client(5), "home");
    EXPECT_EQ(run.Client(6), "work");
    EXPECT_EQ(run.Client(7), "cell");
    EXPECT_EQ(run.Client(0), "June 1, 2008");
    EXPECT_TRUE(run.IsOpen());
}

TEST(Merge, SelectedAreasAreSelectedNoLonger) {
    MergeRun run;
    run.Show(kAnn);
    run.program.editing.BlockMode = true;
    run.Run(Id::mnuOptMerge);
    EXPECT_FALSE(run.program.editing.BlockMode);
    EXPECT_EQ(run.Client(2), "Ann Ash");
}

TEST(Merge, NamesAnUnsavedProposalAsTypingDoes) {
    MergeRun run;
    run.Show(kAnn);
    run.program.editing.LastKeyChar = "x";
    run.Run(Id::mnuOptMerge);
    EXPECT_EQ(run.program.document.FileName, "Ann Ash.hef");
    EXPECT_EQ(run.program.document.ClientCaption, "Proposal for Ann Ash");
    EXPECT_EQ(run.program.editing.LastKeyChar, "");
    EXPECT_EQ(run.program.document.CurrentTextBuf[PageId::frmP1][2], "Ann Ash");
}

TEST(Merge, ASavedProposalKeepsItsFileAndThatIsTold) {
    MergeRun run;
    run.Show(kAnn);
    run.Put(2, "Jane Roe");
    run.surroundings.questions.Expect("File was saved as Jane Roe.hef");
    ASSERT_EQ(modFile::SaveEventFile(run.program), modFile::SaveResult::Saved);
    run.surroundings.questions.Expect("Replace what stands on page 1?", Answer::Yes);
    run.Run(Id::mnuOptMerge);
    EXPECT_EQ(run.Client(2), "Ann Ash");
    EXPECT_EQ(run.program.document.FileName, "Jane Roe.hef");
    EXPECT_EQ(
        run.program.main.Notice,
        "The client is now Ann Ash; the file is still Jane Roe.hef. Save As gives the proposal another.");
    run.program.main.Notice.clear();
    run.Run(Id::mnuOptMerge); // the same once more
    EXPECT_EQ(run.program.main.Notice, "");
}

TEST(Merge, WithoutASecondAddressLineHasNoDash) {
    MergeRun run;
    run.Show(AddressRun::Record({"Ann Ash", "1 Elm St"}));
    run.Run(Id::mnuOptMerge);
    EXPECT_EQ(run.Client(3), "1 Elm St");
}

TEST(Merge, PutsACompanysTelephoneIntoTheSecondPlaceAndEmptiesTheFirst) {
    MergeRun run;
    run.Show(AddressRun::Record({"Acme", "9 Mill Rd", "", "Peoria", "phone", "fax", "cell"}),
             AddressBook::Business);
    run.Put(5, "old");
    run.Questions().ExpectBox({"Replace what stands on page 1?\r\nold", Buttons::YesNo, ""}, Answer::Yes);
    run.Run(Id::mnuOptMerge);
    EXPECT_EQ(run.Questions().Manners.back().Default, Answer::No);
    EXPECT_EQ(run.Client(5), "");
    EXPECT_EQ(run.Client(6), "phone");
    EXPECT_EQ(run.Client(7), "cell");
}

TEST(Merge, AsksOnceBeforeItReplacesAndANoChangesNothing) {
    MergeRun run;
    run.Show(kAnn);
    run.Put(2, "Jane Roe");
    run.Put(4, "Springfield, IL 62701");
    run.Put(7, "555");
    run.Questions().Expect("Replace what stands on page 1?\r\nJane Roe\r\n555", Answer::No);
    run.Run(Id::mnuOptMerge);
    EXPECT_EQ(run.Client(2), "Jane Roe");
    EXPECT_EQ(run.Client(3), "");
    EXPECT_EQ(run.Client(0), "");
    run.Questions().Expect("Replace what stands on page 1?", Answer::No);
    run.Run(Id::mnuOptMergeExit);
    EXPECT_TRUE(run.IsOpen());
}

TEST(Merge, AsksAboutTheEventDateOnItsOwn) {
    MergeRun run;
    run.Show(kAnn);
    run.Put(0, "May 1, 2008");
    const ScriptedQuestions::Box ask{"Overwrite Event Date with this one?", Buttons::YesNo,
                                     "Event Date Already Exists"};
    run.Questions().ExpectBox(ask, Answer::No);
    run.Run(Id::mnuOptMerge);
    EXPECT_EQ(run.Client(0), "May 1, 2008");
    run.Questions().ExpectBox(ask, Answer::Yes);
    run.Run(Id::mnuOptMerge);
    EXPECT_EQ(run.Client(0), "June 1, 2008");
    run.Run(Id::mnuOptMerge); // an equal date asks nothing
}

TEST(Merge, AnEmptyDateLeavesTheEventDate) {
    MergeRun run;
    run.Show(AddressRun::Book({"Ann Ash"}));
    run.Put(0, "May 1, 2008");
    run.Run(Id::mnuOptMerge);
    EXPECT_EQ(run.Client(0), "May 1, 2008");
}

TEST(Merge, KeepsATextThatIsTooLongForItsAreaAndMarksIt) {
    MergeRun run;
    run.Show(AddressRun::Record({std::string(40, 'w')}));
    run.surroundings.measure.Advance.fill(1000);
    run.Run(Id::mnuOptMerge);
    EXPECT_EQ(run.Client(2), std::string(40, 'w'));
    EXPECT_EQ(run.Area(PageId::frmP1, 2).BackColor, colors::kOverLimit);
}

TEST(Merge, WithoutANameChangesNothing) {
    for (const Id id : {Id::mnuOptMerge, Id::mnuOptMergeExit, Id::mnuOptMergeCeremony}) {
        MergeRun run;
        run.Show(kAnn);
        run.Type(0, " ");
        run.Questions().ExpectBox({"No Record Selected", Buttons::Ok, ""}, Answer::Ok);
        run.Run(id);
        EXPECT_EQ(run.Client(3), "");
        EXPECT_EQ(run.Client(9), "");
        EXPECT_TRUE(run.IsOpen());
    }
}

TEST(Merge, TheMergeCommandsWaitForARecordWithAName) {
    MergeRun run;
    frmAddress& window = run.OpenWith(kAnn);
    for (const Id id :
         {Id::mnuOptMerge, Id::mnuOptMergeExit, Id::mnuOptMergeGroom, Id::mnuOptMergeGroomExit}) {
        EXPECT_FALSE(window[id].Enabled);
    }
    EXPECT_TRUE(window.IsAvailable(run.program, Id::mnuOptMergeCeremony));
    window.lstNames_Click(run.program, 0);
    for (const Id id :
         {Id::mnuOptMerge, Id::mnuOptMergeExit, Id::mnuOptMergeGroom, Id::mnuOptMergeGroomExit}) {
        EXPECT_TRUE(window[id].Enabled);
    }
    for (const Id id : {Id::mnuOptMergeGroom, Id::mnuOptMergeGroomExit, Id::mnuOptMergeReception}) {
        EXPECT_FALSE(window.IsAvailable(run.program, id));
    }
}

TEST(Merge, WithExitClosesTheWindow) {
    MergeRun run;
    run.Show(kAnn);
    run.Run(Id::mnuOptMergeExit);
    EXPECT_EQ(run.Client(2), "Ann Ash");
    EXPECT_FALSE(run.IsOpen());
}

TEST(Merge, PutsNameAndFirstAddressLineIntoTheVenue) {
    MergeRun run;
    run.Show(kAnn);
    run.Put(8, "Garden Hall");
    run.Questions().Expect("Replace what stands on page 1?\r\nGarden Hall", Answer::Yes);
    run.Run(Id::mnuOptMergeCeremony);
    EXPECT_EQ(run.Client(8), "Ann Ash");
    EXPECT_EQ(run.Client(9), "1 Elm St");
    EXPECT_EQ(run.Client(2), "");
}

TEST(Merge, WaitsForTheEndOfThePreview) {
    MergeRun run;
    run.Show(kAnn);
    run.program.main.cmdPreview.Caption = "Resume Editing";
    run.Questions().Expect("Please click \"Resume Editing\" first.");
    run.Run(Id::mnuOptMerge);
    EXPECT_EQ(run.Client(2), "");
}

TEST(Merge, WaitsForTheEndOfAPrint) {
    MergeRun run;
    run.Show(kAnn);
    run.program.printing.CommandRunning = true;
    run.Run(Id::mnuOptMergeExit);
    EXPECT_EQ(run.Client(2), "");
    EXPECT_TRUE(run.IsOpen());
}

TEST(Merge, ColoursTheLinesAsIfTheyHadBeenTypedThere) {
    MergeRun run;
    run.surroundings.measure.Advance.fill(1000);
    run.Show(AddressRun::Record({"Ann", "1"}));
    run.Put(2, std::string(40, 'w'));
    run.Area(PageId::frmP1, 2).BackColor = colors::kOverLimit;
    run.Area(PageId::frmP1, 3).BackColor = colors::kOverLimit;
    run.program.main.Focus = FieldRef{PageId::frmP1, FieldKind::txt, 3};
    run.Questions().Expect("Replace what stands on page 1?", Answer::Yes);
    run.Run(Id::mnuOptMerge);
    EXPECT_EQ(run.Area(PageId::frmP1, 2).BackColor, colors::kResting);
    EXPECT_EQ(run.Area(PageId::frmP1, 3).BackColor, colors::kFocused) << "the cursor stands in it";
}

TEST(FromProposal, FillsANewRecordThatTheSaveAdds) {
    MergeRun run;
    run.WriteBook(AddressRun::kPersonal, AddressRun::Book({"Zoe Young"}));
    for (int area = 0; area < 10; ++area) {
        run.Put(area, "area " + std::to_string(area));
    }
    modAddress::mnuOptCopyToPersonalAddressBook_Click(run.program);
    frmAddress& window = run.Window();
    const std::vector<std::string> wanted{"area 2", "area 3", "", "area 4", "area 5", "area 6",
                                          "area 7", "area 0", "", "",       ""};
    for (int field = 0; field < 11; ++field) {
        EXPECT_EQ(run.Text(field), wanted[static_cast<std::size_t>(field)]) << field;
    }
    EXPECT_TRUE(run.program.addresses.AddressRecordNew);
    EXPECT_TRUE(run.program.addresses.AddressFieldChanged[0]);
    EXPECT_FALSE(run.program.addresses.AddressFieldChanged[2]);
    EXPECT_EQ(window.cmdSave.BackColor, colors::kFocused);
    window.cmdSave_Click(run.program);
    EXPECT_EQ(run.ReadBook(),
              AddressRun::Book({"Zoe Young"}) + AddressRun::Record({"area 2", "area 3", "", "area 4",
                                                                    "area 5", "area 6", "area 7", "area 0"}));
}

TEST(FromProposal, FillsTheBusinessBookTheSameWay) {
    MergeRun run;
    run.Put(2, "Acme");
    run.Put(5, "1");
    modAddress::mnuOptCopyToBusinessAddressBook_Click(run.program);
    EXPECT_EQ(run.program.addresses.Book, AddressBook::Business);
    EXPECT_EQ(run.Text(0), "Acme");
    EXPECT_EQ(run.Text(4), "1");
}

TEST(FromProposal, AsksOnceAboutWhatWasTypedAndACancelFillsNothing) {
    MergeRun run;
    run.Put(2, "Jane Roe");
    run.Open();
    run.Type(0, "Ann Ash");
    run.Window().Minimised = true;
    run.Questions().Expect("The current Record has been changed.", Answer::Cancel);
    modAddress::mnuOptCopyToBusinessAddressBook_Click(run.program);
    EXPECT_FALSE(run.Window().Minimised) << "the window that is asked about comes to the front";
    EXPECT_EQ(run.Text(0), "Ann Ash");
    EXPECT_EQ(run.program.addresses.Book, AddressBook::Personal);
    run.Questions().Expect("The current Record has been changed.", Answer::No);
    modAddress::mnuOptCopyToBusinessAddressBook_Click(run.program);
    EXPECT_EQ(run.Text(0), "Jane Roe");
}

TEST(FromProposal, AnAreaLongerThanItsFieldIsRed) {
    MergeRun run;
    run.Put(2, std::string(41, 'a'));
    modAddress::mnuOptCopyToPersonalAddressBook_Click(run.program);
    EXPECT_EQ(run.Window().txt[0].BackColor, colors::kOverLimit);
    EXPECT_EQ(run.Text(0).size(), 41U);
}

TEST(Copying, PutsTheFieldsOnTheClipboard) {
    MergeRun run;
    run.Show(kAnn);
    run.Run(Id::mnuOptCopyNameAddress);
    EXPECT_EQ(run.surroundings.clipboard.Text, "Ann Ash\r\n1 Elm St\r\nRear\r\nSpringfield, IL 62701");
    run.Run(Id::mnuOptCopyAll);
    EXPECT_EQ(run.surroundings.clipboard.Text,
              "Ann Ash\r\n1 Elm St\r\nRear\r\nSpringfield, IL 62701\r\nhome\r\nwork\r\ncell\r\nJune 1, "
              "2008\r\nBen\r\nann@example.com\r\ntulips\r\nroses");
}

TEST(AddressPrint, ANameThatNoFileCanHaveIsSuggestedWithoutItsCharacters) {
    MergeRun run;
    run.Show(AddressRun::Record({"Ash/Birch: Florists", "1 Elm St"}));
    run.Run(Id::mnuFilePrint);
    EXPECT_EQ(run.surroundings.printers.Commands.back().SuggestedFile,
              run.folder / "Proposals/Ash-Birch- Florists, Address.pdf");
    run.Type(0, "");
    run.Run(Id::mnuFilePrint);
    EXPECT_EQ(run.surroundings.printers.Commands.back().SuggestedFile, run.folder / "Proposals/Address.pdf");
}

TEST(AddressPrint, PrintsALineAFieldInStepsOf300) {
    MergeRun run;
    run.Show(kAnn);
    run.Run(Id::mnuFilePrint);
    ASSERT_EQ(run.surroundings.printers.Paper.Documents.size(), 1U);
    EXPECT_EQ(run.surroundings.printers.Commands.at(0).SuggestedFile,
              run.folder / "Proposals/Ann Ash, Address.pdf");
    std::vector<DrawCall> lines;
    for (const DrawCall& call : run.surroundings.printers.Paper.Documents.front()) {
        if (call.Op == DrawCall::What::Print) {
            lines.push_back(call);
        }
    }
    // Two for the heading, two a field, none for an empty text, one more for the second line of the notes.
    ASSERT_EQ(lines.size(), 2U + 22U + 1U);
    const auto expect = [&](std::size_t at, const char* text, float x, float y) {
        EXPECT_EQ(lines[at].Text, text);
        EXPECT_FLOAT_EQ(lines[at].X, x);
        EXPECT_FLOAT_EQ(lines[at].Y, y);
    };
    expect(0, "Printing From:", 720, 720);
    expect(1, "Personal Address Book", 2700, 720);
    expect(2, "Name:", 720, 1020);
    expect(3, "Ann Ash", 2700, 1020);
    expect(8, "City, State Zip:", 720, 1920);
    expect(22, "Notes:", 720, 4020);
    expect(23, "tulips", 2700, 4020);
    EXPECT_EQ(lines[24].Text, "roses");
    EXPECT_FLOAT_EQ(lines[24].X, 2700);
    EXPECT_FLOAT_EQ(lines[24].Y, 4020 + 20 * lines[23].FontSize) << "a line of text below the first";
    EXPECT_EQ(run.surroundings.printers.Ended, 1);
}

TEST(AddressPrint, ABusinessRecordComesFromTheCompanyBook) {
    MergeRun run;
    run.Show(AddressRun::Book({"Acme"}), AddressBook::Business);
    run.Run(Id::mnuFilePrint);
    EXPECT_EQ(run.surroundings.printers.Paper.Documents.front()[1].Text, "Company Address Book");
    EXPECT_EQ(run.surroundings.printers.Paper.Documents.front()[2].Text, "Name:");
}

TEST(AddressPrint, WithoutAPrinterIsTold) {
    MergeRun run;
    run.Show(kAnn);
    run.surroundings.printers.CurrentDevice.clear();
    run.Questions().ExpectBox({"Could not find Printer.", Buttons::Ok, ""}, Answer::Ok);
    run.Run(Id::mnuFilePrint);
    EXPECT_TRUE(run.surroundings.printers.Paper.Calls.empty());
}

TEST(DoubleClick, GivesNamesAndAddressesProperCase) {
    AddressRun run;
    frmAddress& window = run.Open();
    run.Type(0, "JOHN O'BRIEN-SMITH");
    window.txt_DblClick(run.program, 0);
    EXPECT_EQ(run.Text(0), "John O'brien-smith");
    EXPECT_TRUE(run.program.addresses.AddressRecordChanged);
    run.Type(3, "springfield, il 62701");
    window.txt_DblClick(run.program, 3);
    EXPECT_EQ(run.Text(3), "Springfield, Il 62701");
}

TEST(DoubleClick, FormatsATelephoneOfDigitsAlone) {
    AddressRun run;
    frmAddress& window = run.Open();
    const std::vector<std::pair<std::string, std::string>> cases{
        {"1234567890", "(123) 456-7890"}, {"0123456789", "(012) 345-6789"},
        {"15550100", "(1) 555-0100"},     {"5550100", "555-0100"},
        {"0000000", "000-0000"},          {"0100", "0100"},
        {"12345678901", "12345678901"},   {"217 5550100", "217 5550100"},
        {"555-0100", "555-0100"},         {"", ""}};
    for (const auto& [typed, shown] : cases) {
        for (const int field : {4, 5, 6}) {
            run.Type(field, typed);
            window.txt_DblClick(run.program, field);
            EXPECT_EQ(run.Text(field), shown) << typed;
        }
    }
}

TEST(DoubleClick, FormatsADateWithoutABlankBehindTheComma) {
    AddressRun run;
    frmAddress& window = run.Open();
    run.Type(7, "12/17/08");
    window.txt_DblClick(run.program, 7);
    EXPECT_EQ(run.Text(7), "Dec 17,2008");
    run.Type(7, "some day");
    window.txt_DblClick(run.program, 7);
    EXPECT_EQ(run.Text(7), "some day");
    run.Type(7, "6:00 PM");
    window.txt_DblClick(run.program, 7);
    EXPECT_EQ(run.Text(7), "6:00 PM");
    run.Type(7, "12/31/1899"); // the first day of the count
    window.txt_DblClick(run.program, 7);
    EXPECT_EQ(run.Text(7), "Dec 31,1899");
}

TEST(DoubleClick, LeavesContactMailAndNotes) {
    AddressRun run;
    frmAddress& window = run.Open();
    for (const int field : {8, 9, 10}) {
        run.Type(field, "jane roe");
        window.txt_DblClick(run.program, field);
        EXPECT_EQ(run.Text(field), "jane roe");
        EXPECT_FALSE(window.Converts(run.program, field));
    }
    EXPECT_TRUE(window.Converts(run.program, 4));
}

TEST(AddressKeys, LeadFromFieldToFieldAndStayWithTheNotes) {
    AddressRun run;
    const frmAddress& window = run.Open();
    using modAddress::FieldKey;
    EXPECT_EQ(modAddress::NextField(window, 0, FieldKey::Enter), 1);
    EXPECT_EQ(modAddress::NextField(window, 9, FieldKey::Down), 10);
    EXPECT_EQ(modAddress::NextField(window, 3, FieldKey::Up), 2);
    EXPECT_EQ(modAddress::NextField(window, 0, FieldKey::Up), 0);
    EXPECT_EQ(modAddress::NextField(window, 10, FieldKey::Enter), std::nullopt);
}

} // namespace
