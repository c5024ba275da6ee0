#include "base/files.h"
#include "money/totals.h"
#include "pages/fields.h"
#include "pages/row_fields.h"
#include "proposal/lifecycle.h"
#include "proposal/property_file.h"
#include "proposal/proposal_layout.h"
#include "proposal/proposal_open.h"
#include "proposal/proposal_save.h"
#include "proposal/reset.h"
#include "proposal/slot_widths.h"
#include "support/person.h"
#include "support/running_program.h"
#include "support/small_disk.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>

#include <sys/stat.h>

namespace {

constexpr std::size_t kFirstAmountOffset = 1730;

/// A file of blanks with texts at offsets.
std::string FileWith(std::initializer_list<std::pair<std::size_t, std::string>> texts,
                     std::size_t length = 20630) {
    std::string bytes(length, ' ');
    for (const auto& [offset, text] : texts) {
        bytes.replace(offset, text.size(), text);
    }
    return bytes;
}

modFile::OpenResult Open(RunningProgram& run, const std::string& bytes, const char* name = "A.hef") {
    run.folder.Write(std::string("Proposals/") + name, bytes);
    static_cast<void>(modReset::StartNewFile(run.program));
    return modFile::OpenEventFile(run.program, name);
}

const std::string& Current(RunningProgram& run, int page, int index) {
    return run.program.document.CurrentTextBuf
        .Each[static_cast<std::size_t>(page)][static_cast<std::size_t>(index)];
}

const std::string& Saved(RunningProgram& run, int page, int index) {
    return run.program.document.SavedTextBuf
        .Each[static_cast<std::size_t>(page)][static_cast<std::size_t>(index)];
}

TEST(ProposalLayout, HasItsSlotsAtTheirOffsets) {
    RunningProgram run;
    const proposal::Widths widths = modFile::SlotWidths(run.program);
    const std::pair<int, std::size_t> pages[] = {{0, 0},     {1, 1930},  {2, 6550},
                                                 {3, 11170}, {4, 15790}, {5, 20410}};
    std::size_t position = 0;
    for (const auto& [page, offset] : pages) {
        EXPECT_EQ(position, offset);
        for (const int width : widths.Each[static_cast<std::size_t>(page)]) {
            position += static_cast<std::size_t>(width);
        }
    }
    EXPECT_EQ(position, 20530U);
}

TEST(ProposalLayout, AFullWidthMarkedAmountLosesItsLastCharacter) {
    RunningProgram run;
    const proposal::Widths widths = modFile::SlotWidths(run.program);
    proposal::Fields fields;
    for (std::size_t page = 0; page < widths.size(); ++page) {
        fields.Each[page].resize(widths.Each[page].size());
    }
    fields.Each[0][20] = {"12345678901234567890", true};
    fields.Each[0][21] = {"7", false};
    const std::string bytes = proposal::Encode(fields, widths);
    EXPECT_EQ(bytes.size(), 20630U);
    EXPECT_EQ(bytes.substr(kFirstAmountOffset, 21), "\xD8"
                                                    "12345678901234567897");
    EXPECT_EQ(bytes.substr(20530), std::string(100, ' '));
}

TEST(ProposalLayout, SplitsQuantityRowsOnlyWithAllThreeMarks) {
    const auto row = modPages::SplitLine("\xA5"
                                         "3\xA5"
                                         "Chair covers\xA7"
                                         "19.99");
    EXPECT_TRUE(row.IsRow);
    EXPECT_EQ(row.Quantity, "3");
    EXPECT_EQ(row.Description, "Chair covers");
    EXPECT_EQ(row.Amount, "19.99");
    EXPECT_TRUE(modPages::SplitLine("\xA5\xA5\xA7").IsRow);
    for (const char* text : {"", "\xA5",
                             "\xA5"
                             "3",
                             "\xA5"
                             "3\xA5"
                             "x",
                             "x\xA5"
                             "3\xA5"
                             "y\xA7",
                             "\xA5\xA7\xA5"}) {
        EXPECT_FALSE(modPages::SplitLine(text).IsRow) << text;
    }
}

TEST(OpeningAProposal, ReadsBackWhatWasTyped) {
    RunningProgram run;
    run.folder.Write("Proposals/Jane Roe.hef", ReadTestData("jane_roe/Jane Roe.hef"));
    ASSERT_EQ(modFile::OpenEventFile(run.program, "Jane Roe.hef"), modFile::OpenResult::Opened);
    EXPECT_EQ(run.TextOf(PageId::frmP1, 2), "Jane Roe");
    EXPECT_EQ(run.TextOf(PageId::frmP1, 21), "75.50");
    EXPECT_TRUE(run.program.pages[PageId::frmP1].imgNoTax[21].Visible);
    EXPECT_TRUE(run.program.format.PropTextChanges[PageId::frmP1][21].TaxExempt);
    EXPECT_EQ(run.program.totals.TaxableTable[21][PageId::frmP1], 0);
    EXPECT_EQ(run.TextOf(PageId::frmP2, 0), "Chair covers");
    EXPECT_EQ(run.program.pages[PageId::frmP2].txtQty[0].Text, "3");
    EXPECT_EQ(run.program.pages[PageId::frmP2].txtAmt[0].Text, "19.99");
    EXPECT_TRUE(modPages::ColumnsOn(run.program, PageId::frmP2, 0));
    EXPECT_EQ(run.Area(PageId::frmP2, 0).Left, 1440);
    EXPECT_EQ(run.Area(PageId::frmP2, 0).Width, 6270);
    EXPECT_EQ(run.Label(PageId::frmP1, 21).Tag, "");
    EXPECT_EQ(run.Label(PageId::frmP1, 23).Tag, "Hide");
    EXPECT_EQ(run.Label(PageId::frmP5, 33).Tag, "");
    EXPECT_EQ(run.TextOf(PageId::frmP6, 3), "1,504.37");
    EXPECT_EQ(run.TextOf(PageId::frmP6_1, 5), "1,004.37");
    EXPECT_EQ(run.Main().lblTotal.Caption, "Running Sub-Total = $ 1,395.47");
    EXPECT_EQ(run.Main().Caption, "Quillbrook - File Name = Jane Roe.hef");
    EXPECT_EQ(run.program.document.TextFileName, "Jane Roe.txt");
    EXPECT_EQ(run.program.document.ClientCaption, "Proposal for Jane Roe");
    EXPECT_TRUE(run.Main()[CommandId::mnuFileDelete].Enabled);
    EXPECT_FALSE(modFile::PropertiesChanged(run.program));
    run.surroundings.questions.Expect("File was saved as Jane Roe.hef");
    EXPECT_EQ(modFile::SaveEventFile(run.program), modFile::SaveResult::Saved);
    EXPECT_EQ(run.folder.Read("Proposals/Jane Roe.hef"), ReadTestData("jane_roe/Jane Roe.hef"));
}

TEST(OpeningAProposal, TrailingBlanksAndNulsNeverComeBack) {
    RunningProgram run;
    std::string bytes = FileWith({{50, "Ann   "}});
    bytes.replace(110, 60, std::string(60, '\0'));
    bytes.replace(170, 3, std::string("A\0B", 3));
    ASSERT_EQ(Open(run, bytes), modFile::OpenResult::Opened);
    EXPECT_EQ(run.TextOf(PageId::frmP1, 2), "Ann");
    EXPECT_EQ(run.TextOf(PageId::frmP1, 3), "");
    EXPECT_EQ(run.TextOf(PageId::frmP1, 4), std::string("A\0B", 3));
}

TEST(OpeningAProposal, AmountsThatAreNoNumbersAddNothingAndHideTheirSign) {
    RunningProgram run;
    ASSERT_EQ(Open(run, FileWith({{1730, "abc"}, {1750, "10"}, {1770, "1e39"}})),
              modFile::OpenResult::Opened);
    EXPECT_EQ(run.TextOf(PageId::frmP1, 20), "abc");
    EXPECT_EQ(run.TextOf(PageId::frmP1, 22), "1e39");
    EXPECT_EQ(run.program.totals.SubTotal, 10);
    EXPECT_EQ(run.Label(PageId::frmP1, 21).Tag, "Hide");
    EXPECT_EQ(run.Label(PageId::frmP1, 22).Tag, "");
}

TEST(OpeningAProposal, AMarkedTextThatIsNoNumberShowsItsMarkUntilEdited) {
    RunningProgram run;
    ASSERT_EQ(Open(run, FileWith({{1730, "\xD8"
                                         "abc"}})),
              modFile::OpenResult::Opened);
    EXPECT_EQ(run.TextOf(PageId::frmP1, 20), "\xD8"
                                             "abc");
    EXPECT_EQ(Current(run, 0, 20), "abc");
    EXPECT_EQ(Saved(run, 0, 20), "\xD8"
                                 "abc");
    EXPECT_FALSE(run.program.format.PropTextChanges[PageId::frmP1][20].TaxExempt);
}

TEST(OpeningAProposal, AQuantityRowWithAMarkMissingIsPlainText) {
    RunningProgram run;
    ASSERT_EQ(Open(run, FileWith({{1930, "\xA5"
                                         "3\xA5 no price"}})),
              modFile::OpenResult::Opened);
    EXPECT_EQ(run.TextOf(PageId::frmP2, 0), "\xA5"
                                            "3\xA5 no price");
    EXPECT_FALSE(modPages::ColumnsOn(run.program, PageId::frmP2, 0));
}

struct Legacy {
    std::size_t Length;
    std::size_t SecondPage; ///< where frmP2 begins
    std::size_t SecondPageAmounts;
};

class LegacySizes : public testing::TestWithParam<Legacy> {};

TEST_P(LegacySizes, AreReadAtTheirOwnWidths) {
    RunningProgram run;
    const Legacy legacy = GetParam();
    if (legacy.Length == 17881) {
        run.surroundings.questions.Expect("is cut short: it has 17881 of 20630 bytes."); // of no layout
    }
    ASSERT_EQ(
        Open(run, FileWith({{50, "Ann"}, {legacy.SecondPage, "First line"}, {legacy.SecondPageAmounts, "25"}},
                           legacy.Length)),
        modFile::OpenResult::Opened);
    EXPECT_EQ(run.TextOf(PageId::frmP1, 2), "Ann");
    EXPECT_EQ(run.TextOf(PageId::frmP2, 0), "First line");
    EXPECT_EQ(run.TextOf(PageId::frmP2, 33), "25");
    EXPECT_EQ(run.program.totals.SubTotal, 25);
}

// frmP1 takes 530 bytes, ten descriptions and ten amounts; frmP2 33 descriptions before its amounts.
INSTANTIATE_TEST_SUITE_P(Table, LegacySizes,
                         testing::Values(Legacy{17880, 530 + 1200 + 100, 530 + 1300 + 33 * 120},
                                         Legacy{17770, 530 + 1000 + 200, 530 + 1200 + 33 * 100},
                                         Legacy{17170, 530 + 1000 + 100, 530 + 1100 + 33 * 100},
                                         Legacy{20630, 1930, 5890}, Legacy{17881, 1930, 5890}));

TEST(OpeningAProposal, AWeddingIsReadAndSavedAsAnEvent) {
    RunningProgram run;
    ASSERT_EQ(Open(run, FileWith({{20628, "1"}, {50, "Ann"}})), modFile::OpenResult::Opened);
    EXPECT_EQ(run.program.document.DocumentKind, "Wedding");
    EXPECT_EQ(run.program.document.PageHeading, "Acme Events - Wedding Proposal - ");
    EXPECT_EQ(run.program.run.FUTFileName, "Wedding Terms.fut");
    run.surroundings.questions.Expect("File was saved as A.hef");
    EXPECT_EQ(modFile::SaveEventFile(run.program), modFile::SaveResult::Saved);
    EXPECT_EQ(run.folder.Read("Proposals/A.hef")[20628], ' ');
}

TEST(OpeningAProposal, ADepositThatIsNoNumberIsToldAndTakenAsZero) {
    RunningProgram run;
    run.surroundings.questions.ExpectBox({"Deposit is not numeric. Zero will be entered. Please\r\n"
                                          "double-check the Deposit amount from previous records.",
                                          Buttons::Ok, ""},
                                         Answer::Ok);
    ASSERT_EQ(Open(run, FileWith({{1730, "100"}, {20490, "abc"}})), modFile::OpenResult::Opened);
    EXPECT_EQ(run.TextOf(PageId::frmP6, 4), "0.00");
    EXPECT_EQ(run.TextOf(PageId::frmP6, 5), "108.25");
    run.surroundings.questions.Done();
    ASSERT_EQ(Open(run, FileWith({{1730, "100"}})), modFile::OpenResult::Opened)
        << "an empty deposit says nothing";
}

TEST(OpeningAProposal, ANegativeTaxableSubtotalEarnsNoTaxBack) {
    RunningProgram run;
    ASSERT_EQ(Open(run, FileWith({{1730, "-100"}})), modFile::OpenResult::Opened);
    EXPECT_EQ(run.TextOf(PageId::frmP6, 1), "0.00");
    EXPECT_EQ(run.TextOf(PageId::frmP6, 2), "0.00");
    EXPECT_EQ(run.TextOf(PageId::frmP6, 3), "-100.00");
}

TEST(OpeningAProposal, TheSampleNeverShowsTheLogo) {
    RunningProgram run;
    run.program.settings.LogoVisible = true;
    ASSERT_EQ(Open(run, FileWith({}), "John Doe.hef"), modFile::OpenResult::Opened);
    EXPECT_EQ(run.program.pages[PageId::frmP1].pic.Tag, "Hide");
    EXPECT_FALSE(run.Main()[CommandId::mnuEditLogoVisible].Checked);
}

TEST(OpeningAProposal, AfterTheSampleTheLogoIsBackWithTheNextProposal) {
    RunningProgram run;
    const std::string picture = run.folder / "logo.png";
    run.folder.Write("logo.png", "x");
    run.surroundings.pictures.Known[picture] = {1500, 900};
    run.program.settings.LogoFile = picture;
    run.program.settings.LogoVisible = true;
    const PagePicture& logo = run.program.pages[PageId::frmP1].pic;
    ASSERT_EQ(Open(run, FileWith({}), "John Doe.hef"), modFile::OpenResult::Opened);
    EXPECT_EQ(logo.Tag, "Hide");
    person::TurnTo(run.program, 1);
    person::TurnTo(run.program, 0);
    EXPECT_EQ(logo.Tag, "Hide") << "while the sample stands";
    EXPECT_FALSE(logo.Visible);
    person::StartAnew(run.program);
    EXPECT_EQ(logo.Tag, "");
    EXPECT_TRUE(logo.Visible);
    EXPECT_TRUE(run.Main()[CommandId::mnuEditLogoVisible].Checked);
}

TEST(OpeningAProposal, OfAnyShortLengthIsReadAsFarAsItGoes) {
    RunningProgram run;
    const std::string whole = ReadTestData("jane_roe/Jane Roe.hef");
    for (const std::size_t length :
         {0UL, 1UL, 24UL, 25UL, 52UL, 1731UL, 1750UL, 1931UL, 5891UL, 20409UL, 20490UL, 20628UL, 20629UL}) {
        run.surroundings.questions.Expect("is cut short");
        ASSERT_EQ(Open(run, whole.substr(0, length)), modFile::OpenResult::Opened) << length;
        EXPECT_EQ(run.TextOf(PageId::frmP1, 2), length < 52    ? ""
                                                : length == 52 ? "Ja"
                                                               : "Jane Roe")
            << length;
    }
}

TEST(OpeningAProposal, WhatCannotBeReadLeavesEverythingAsItWas) {
    RunningProgram run;
    run.Area(PageId::frmP1, 3).Text = "kept";
    run.folder.MakeFolder("Proposals/Folder.hef");
    ASSERT_EQ(::mkfifo((run.folder / "Proposals/Pipe.hef").c_str(), 0600), 0);
    for (const char* name : {"Folder.hef", "Pipe.hef", "None.hef"}) {
        run.surroundings.questions.Expect("An error occurred in OpenEventFile.");
        EXPECT_EQ(modFile::OpenEventFile(run.program, name), modFile::OpenResult::NotOpened);
        EXPECT_EQ(run.TextOf(PageId::frmP1, 3), "kept");
    }
    EXPECT_NE(run.folder.Read("Error.log").find("Error Number: 53"), std::string::npos);
}

TEST(OpeningAProposal, ThatIsCutShortIsToldAndItsFileIsKeptByTheSaveThatReplacesIt) {
    RunningProgram run;
    const std::string cut =
        FileWith({{50, "Ann"}, {1730, "100"}, {20490, "30.00"}}).substr(0, 20489); // just before the deposit
    run.surroundings.questions.ExpectBox(
        {"The file A.hef is cut short: it has 20489 of 20630 bytes.\r\n"
         "What is missing shows as blank, and amounts and the deposit among it as 0.00.\r\n"
         "The first save keeps the file as it is now under the name A.hef.unread.",
         Buttons::Ok, ""},
        Answer::Ok);
    ASSERT_EQ(Open(run, cut), modFile::OpenResult::Opened);
    EXPECT_EQ(run.TextOf(PageId::frmP1, 2), "Ann");
    EXPECT_EQ(run.TextOf(PageId::frmP6, 4), "0.00");
    for (int save = 0; save < 2; ++save) {
        run.surroundings.questions.Expect("File was saved as A.hef");
        EXPECT_EQ(modFile::SaveEventFile(run.program), modFile::SaveResult::Saved);
        EXPECT_EQ(run.folder.Read("Proposals/A.hef.unread"), cut);
        EXPECT_FALSE(run.folder.Has("Proposals/A.hef.unread2"));
        EXPECT_EQ(run.folder.Read("Proposals/A.hef").size(), 20630U);
    }
}

TEST(OpeningAProposal, OfAWholeOrAnOlderLengthSaysNothing) {
    for (const std::size_t length : {20630U, 20631U, 17880U, 17770U, 17170U}) {
        RunningProgram run;
        ASSERT_EQ(Open(run, FileWith({{50, "Ann"}}, length)), modFile::OpenResult::Opened) << length;
        EXPECT_TRUE(run.surroundings.questions.Shown.empty()) << length;
    }
}

TEST(OpeningAProposal, ReadsAsFarAsTheFieldsGo) {
    RunningProgram run;
    run.Area(PageId::frmP1, 2).Tag = "Name.960"; // 900 more than it has
    run.folder.Write("Proposals/A.hef", FileWith({{20490 + 900, "30.00"}}, 20630 + 900));
    ASSERT_EQ(modFile::OpenEventFile(run.program, "A.hef"), modFile::OpenResult::Opened);
    EXPECT_EQ(run.TextOf(PageId::frmP6, 4), "30.00");
}

TEST(OpeningAProposal, OfMoreThanItsFieldsHoldIsKnownByAllOfIt) {
    RunningProgram run;
    const std::string bytes = FileWith({{50, "Ann"}, {20650, "more"}}, 20700);
    ASSERT_EQ(Open(run, bytes), modFile::OpenResult::Opened);
    EXPECT_EQ(run.program.document.SavedFile, files::SeenIn(bytes));
    run.surroundings.questions.Expect("File was saved as A.hef"); // nobody has changed it meanwhile
    EXPECT_EQ(modFile::SaveEventFile(run.program), modFile::SaveResult::Saved);
}

TEST(OpeningAProposal, RowsWithoutColumnsHaveThePlaceholdersOfTheirPage) {
    RunningProgram run;
    ASSERT_EQ(Open(run, FileWith({{530, "\xA5"
                                        "3\xA5"
                                        "Arch\xA7"
                                        "7"},
                                  {1930, "\xA5"
                                         "4\xA5"
                                         "Chairs\xA7"
                                         "8"}})),
              modFile::OpenResult::Opened);
    EXPECT_EQ(run.program.pages[PageId::frmP1].txtQty[10].Text, "3");
    EXPECT_EQ(run.program.pages[PageId::frmP2].txtAmt[0].Text, "8");
    run.folder.Write("Proposals/B.hef", FileWith({{530, "Arch"}, {1930, "Chairs"}}));
    ASSERT_EQ(modFile::OpenEventFile(run.program, "B.hef"), modFile::OpenResult::Opened);
    EXPECT_EQ(run.program.pages[PageId::frmP1].txtQty[10].Text, "");
    EXPECT_EQ(run.program.pages[PageId::frmP1].txtAmt[10].Text, "");
    EXPECT_EQ(run.program.pages[PageId::frmP2].txtQty[0].Text, "Qty.");
    EXPECT_EQ(run.program.pages[PageId::frmP2].txtAmt[0].Text, "Amt.");
}

TEST(OpeningAProposal, CountsNothingOfWhatStoodBefore) {
    RunningProgram run;
    modFields::SetText(run.program, {PageId::frmP1, FieldKind::txt, 20}, "100");
    run.folder.Write("Proposals/A.hef", FileWith({{1750, "7"}}));
    ASSERT_EQ(modFile::OpenEventFile(run.program, "A.hef"), modFile::OpenResult::Opened);
    EXPECT_EQ(run.TextOf(PageId::frmP6, 0), "7.00");
    EXPECT_EQ(run.TextOf(PageId::frmP6, 1), "7.00");
}

TEST(OpeningAProposal, BringsTheTermsOfItsKind) {
    RunningProgram run;
    std::vector<std::string> read;
    run.program.hooks.ReadFrequentlyUsedTerms = [&](Program& program) {
        read.push_back(program.run.FUTFileName);
    };
    ASSERT_EQ(Open(run, FileWith({{20628, "1"}})), modFile::OpenResult::Opened);
    EXPECT_EQ(read, std::vector<std::string>{"Wedding Terms.fut"});
}

TEST(OpeningAProposal, OfTheSampleHidesTheLogoBeforeItsPageShows) {
    RunningProgram run;
    const std::string picture = run.folder / "logo.png";
    run.folder.Write("logo.png", "x");
    run.surroundings.pictures.Known[picture] = {1500, 900};
    run.program.settings.LogoFile = picture;
    run.program.settings.LogoVisible = true;
    static_cast<void>(modReset::StartNewFile(run.program));
    ASSERT_EQ(run.program.pages[PageId::frmP1].pic.Tag, "");
    std::string tag = "no page was shown";
    run.program.hooks.UpdatePageButtons = [&](Program& program, int) {
        tag = program.pages[PageId::frmP1].pic.Tag;
    };
    run.folder.Write("Proposals/John Doe.hef", FileWith({}));
    ASSERT_EQ(modFile::OpenEventFile(run.program, "John Doe.hef"), modFile::OpenResult::Opened);
    EXPECT_EQ(tag, "Hide");
}

TEST(OpeningAProposal, AGigabyteOfNulsCostsOnlyWhatTheLayoutNeeds) {
    RunningProgram run;
    run.folder.Write("Proposals/Big.hef", "");
    std::filesystem::resize_file(run.folder / "Proposals/Big.hef", 1U << 30U);
    EXPECT_EQ(modFile::OpenEventFile(run.program, "Big.hef"), modFile::OpenResult::Opened);
    EXPECT_EQ(run.TextOf(PageId::frmP1, 2), "");
}

TEST(SavingAProposal, WithoutAClientAsksForTheName) {
    for (const char* name : {"", ".hef"}) {
        RunningProgram run;
        run.program.document.FileName = name;
        person::TurnTo(run.program, 2);
        run.surroundings.questions.Expect(
            "Please enter the client's name in the appropriate area and save again.");
        EXPECT_EQ(modFile::SaveEventFile(run.program), modFile::SaveResult::NotSaved);
        EXPECT_EQ(run.program.main.PageInFront, PageId::frmP1);
        EXPECT_EQ(run.program.main.Focus, (FieldRef{PageId::frmP1, FieldKind::txt, 2}));
    }
}

TEST(SavingAProposal, UnderAnIllegalNameStops) {
    RunningProgram run;
    run.program.document.FileName = "A/B.hef";
    run.surroundings.questions.ExpectBox({"Action Cancelled. File Name cannot include any of \r\n"
                                          "the following characters: / \\ : * ? < > |",
                                          Buttons::Ok, ""},
                                         Answer::Ok);
    EXPECT_EQ(modFile::SaveEventFile(run.program), modFile::SaveResult::NotSaved);
    EXPECT_FALSE(run.folder.Has("Proposals/A"));
}

TEST(SavingAProposal, UnderATakenNameAsksFirst) {
    RunningProgram run;
    run.folder.Write("Proposals/Ann.hef", "old");
    run.program.document.FileName = "Ann.hef";
    run.surroundings.questions.Expect(
        "A file with this name (Ann.hef)\r\nalready exists. Do you want to replace the\r\n"
        "existing file, created on:\r\n",
        Answer::No);
    run.surroundings.questions.Expect("File not saved.");
    EXPECT_EQ(modFile::SaveEventFile(run.program), modFile::SaveResult::NotSaved);
    EXPECT_EQ(run.folder.Read("Proposals/Ann.hef"), "old");
    EXPECT_FALSE(run.program.document.Cancelled);
    run.surroundings.questions.Expect("with this one?", Answer::Yes);
    run.surroundings.questions.Expect("File was saved as Ann.hef");
    EXPECT_EQ(modFile::SaveEventFile(run.program), modFile::SaveResult::Saved);
    EXPECT_EQ(run.folder.Read("Proposals/Ann.hef").size(), 20630U);
}

TEST(SavingAProposal, OnAFullDiskIsToldAndTheTextStaysUnsaved) {
    RunningProgram run;
    run.program.document.FileName = "Ann.hef";
    run.Area(PageId::frmP1, 3).Text = "12 Elm Street";
    run.surroundings.questions.Expect(
        "An error occurred in SaveEventFile.\r\nError Number: 61\r\nError Description: Disk full");
    {
        const SmallDisk disk(4096);
        EXPECT_EQ(modFile::SaveEventFile(run.program), modFile::SaveResult::NotSaved);
    }
    EXPECT_FALSE(run.program.document.FileExists);
    EXPECT_NE(Saved(run, 0, 3), "12 Elm Street");
    EXPECT_EQ(Current(run, 0, 3), "12 Elm Street");
}

TEST(SavingAProposal, IntoAFolderThatIsGoneIsReported) {
    RunningProgram run;
    run.program.document.FileName = "Ann.hef";
    run.program.document.FilePath = run.folder / "gone/";
    run.surroundings.questions.Expect("An error occurred in SaveEventFile.");
    EXPECT_EQ(modFile::SaveEventFile(run.program), modFile::SaveResult::NotSaved);
}

TEST(Properties, AreKeptAndWrittenBackUnchangedWhileNobodyReadsThem) {
    RunningProgram run;
    const std::string lines =
        "frmP1.txt(10).FontBold=True\r\nUDP.FontName=Arial .FontSize=10 .FontColor=0 .FontItalic=False\r\n";
    run.folder.Write("Proposals/A.hpf", lines);
    ASSERT_EQ(Open(run, FileWith({{50, "A"}})), modFile::OpenResult::Opened);
    modFile::ReadFileProperties(run.program);
    EXPECT_EQ(run.program.format.PropertyLines.size(), 2U);
    EXPECT_FALSE(modFile::PropertiesChanged(run.program));
    run.program.format.PropTextChanges[PageId::frmP1][20].Dirty = true;
    run.surroundings.questions.Expect("File was saved as A.hef");
    EXPECT_EQ(modFile::SaveEventFile(run.program), modFile::SaveResult::Saved);
    EXPECT_EQ(run.folder.Read("Proposals/A.hpf"), lines);
    EXPECT_FALSE(modFile::PropertiesChanged(run.program));
}

/// Slots cut from a file by hand: what the layout must give for any length of it.
TEST(ProposalLayout, AFileCutAtAnyLengthIsBlankBeyondItsEnd) {
    RunningProgram run;
    const proposal::Widths widths = modFile::SlotWidths(run.program);
    std::string whole(20630, 'x');
    for (std::size_t length = 0; length <= whole.size(); length += 7) {
        const proposal::Decoded decoded =
            proposal::Decode(std::string_view(whole).substr(0, length), length, widths);
        std::size_t position = 0;
        for (const auto& page : decoded.Slots) {
            for (const std::string_view slot : page) {
                const std::size_t there =
                    std::min(slot.size(), length > position ? length - position : std::size_t{0});
                ASSERT_EQ(slot, std::string(there, 'x') + std::string(slot.size() - there, ' ')) << length;
                position += slot.size();
            }
        }
        ASSERT_EQ(position, 20530U);
    }
}

TEST(ProposalLayout, TheKindByteIsAOneAndNothingElse) {
    RunningProgram run;
    const proposal::Widths widths = modFile::SlotWidths(run.program);
    for (int byte = 0; byte < 256; ++byte) {
        std::string bytes(20630, ' ');
        bytes[20628] = static_cast<char>(byte);
        EXPECT_EQ(proposal::Decode(bytes, bytes.size(), widths).Wedding, byte == '1') << byte;
    }
    EXPECT_FALSE(proposal::Decode(std::string(20628, '1'), 20628, widths).Wedding);
}

TEST(ProposalLayout, ASlotOfNulsThatTheFilesEndCutsIsBlank) {
    RunningProgram run;
    const proposal::Widths widths = modFile::SlotWidths(run.program);
    const proposal::Decoded decoded = proposal::Decode(std::string(60, '\0'), 60, widths);
    EXPECT_EQ(decoded.Slots[PageId::frmP1][0], std::string(25, ' '));
    EXPECT_EQ(decoded.Slots[PageId::frmP1][2], std::string(60, ' '));
}

TEST(ProposalLayout, AnOldSizeReadAsTwentyRunsThroughTheFileAtOtherOffsets) {
    RunningProgram run;
    // 17770 bytes: amounts at 20, descriptions at 100. The final page then begins at 17570.
    ASSERT_EQ(Open(run, FileWith({{530 + 100, "Second row"}, {1530, "12"}, {17570 + 80, "7"}}, 17770)),
              modFile::OpenResult::Opened);
    EXPECT_EQ(run.TextOf(PageId::frmP1, 11), "Second row");
    EXPECT_EQ(run.TextOf(PageId::frmP1, 20), "12");
    EXPECT_EQ(run.TextOf(PageId::frmP6, 4), "7.00");
}

TEST(ProposalLayout, TheFinalPageOfTheSmallestOldSizeIsTenBytesAFigure) {
    RunningProgram run;
    // 17170 bytes, 10 and 100: frmP1 takes 1630, the four pages 3630 each; the deposit is the fifth figure.
    ASSERT_EQ(Open(run, FileWith({{1630 + 4 * 3630 + 40, "25"}}, 17170)), modFile::OpenResult::Opened);
    EXPECT_EQ(run.TextOf(PageId::frmP6, 4), "25.00");
}

TEST(OpeningAProposal, BlanksBeforeATextStayAndThoseOfTheFinalPageGo) {
    RunningProgram run;
    ASSERT_EQ(Open(run, FileWith({{50, "  Ann"}, {1730, "   5"}, {20490, "  30 "}})),
              modFile::OpenResult::Opened);
    EXPECT_EQ(run.TextOf(PageId::frmP1, 2), "  Ann");
    EXPECT_EQ(run.TextOf(PageId::frmP1, 20), "   5");
    EXPECT_EQ(run.program.totals.AmountTable[20][PageId::frmP1], 5);
    EXPECT_EQ(run.TextOf(PageId::frmP6, 4), "30.00");
}

TEST(OpeningAProposal, AMarkBehindABlankIsNoMark) {
    RunningProgram run;
    ASSERT_EQ(Open(run, FileWith({{1730, " \xD8"
                                         "5"}})),
              modFile::OpenResult::Opened);
    EXPECT_FALSE(run.program.pages[PageId::frmP1].imgNoTax[20].Visible);
    EXPECT_EQ(run.program.totals.AmountTable[20][PageId::frmP1], 0);
}

TEST(OpeningAProposal, AMarkedAmountLosesTheBlanksAroundItAndIsNotTaxed) {
    RunningProgram run;
    ASSERT_EQ(Open(run, FileWith({{5890, "\xD8  50"}, {5910, "100"}})), modFile::OpenResult::Opened);
    EXPECT_EQ(run.TextOf(PageId::frmP2, 33), "50");
    EXPECT_EQ(Current(run, 1, 33), "  50");
    EXPECT_EQ(Saved(run, 1, 33), "  50");
    EXPECT_TRUE(run.program.pages[PageId::frmP2].imgNoTax[33].Visible);
    EXPECT_EQ(run.program.pages[PageId::frmP2].imgNoTax[33].Tag, "");
    EXPECT_EQ(run.Label(PageId::frmP2, 1).Tag, "");
    EXPECT_EQ(run.TextOf(PageId::frmP6, 0), "150.00");
    EXPECT_EQ(run.TextOf(PageId::frmP6, 1), "100.00");
}

TEST(OpeningAProposal, AQuantityRowCutByItsSlotIsPlainText) {
    RunningProgram run;
    // The composed line was longer than 120 and has lost its price with the mark.
    const std::string cut = "\xA5"
                            "3\xA5" +
                            std::string(117, 'd');
    ASSERT_EQ(Open(run, FileWith({{1930, cut}})), modFile::OpenResult::Opened);
    EXPECT_EQ(run.TextOf(PageId::frmP2, 0), cut);
    EXPECT_FALSE(modPages::ColumnsOn(run.program, PageId::frmP2, 0));
}

TEST(OpeningAProposal, OtherProposalsShowTheLogoAsTheSettingSays) {
    RunningProgram run;
    const std::string picture = run.folder / "logo.png";
    run.folder.Write("logo.png", "x");
    run.surroundings.pictures.Known[picture] = {1500, 900};
    run.program.settings.LogoFile = picture;
    run.program.settings.LogoVisible = true;
    ASSERT_EQ(Open(run, FileWith({}), "Jane Doe.hef"), modFile::OpenResult::Opened);
    EXPECT_TRUE(run.program.settings.LogoVisible);
    EXPECT_EQ(run.program.pages[PageId::frmP1].pic.Tag, "");
}

TEST(OpeningAProposal, WithHiddenTotalsWritesTheDepositAloneAndIsUnchanged) {
    RunningProgram run;
    modTotals::mnuOptHideTotals_Click(run.program);
    ASSERT_EQ(Open(run, FileWith({{1730, "100"}, {20410, "999"}, {20490, "30"}})),
              modFile::OpenResult::Opened);
    EXPECT_EQ(run.TextOf(PageId::frmP6, 0), "");
    EXPECT_EQ(run.TextOf(PageId::frmP6, 4), "30.00");
    EXPECT_EQ(run.TextOf(PageId::frmP6_1, 4), "30.00");
    EXPECT_FALSE(modTotals::TotalsDiffer(run.program));
    EXPECT_FALSE(modProposal::SomethingChanged(run.program));
}

TEST(OpeningAProposal, FiresNoHandlerOfAPageAndPutsItsFlagDown) {
    RunningProgram run;
    run.program.document.HasClient = false;
    const auto answer = run.program.hooks.Change;
    int loud = 0;
    run.program.hooks.Change = [&](Program& program, const FieldRef& field) {
        loud += program.guards.Loading ? 0 : 1;
        answer(program, field);
    };
    ASSERT_EQ(Open(run, FileWith({{50, "Ann"}, {1730, "100"}})), modFile::OpenResult::Opened);
    EXPECT_EQ(loud, 0);
    EXPECT_FALSE(run.program.guards.Loading);
    EXPECT_EQ(run.program.document.FileName, "A.hef") << "the client read from a file names no file";
    EXPECT_TRUE(run.Main()[CommandId::mnuOptCopyToPersonalAddressBook].Enabled);
    EXPECT_EQ(run.Main().lblDir.Caption, "Current Folder = " + run.program.document.FilePath);
}

} // namespace
