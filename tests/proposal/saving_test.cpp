#include "base/files.h"
#include "money/amounts.h"
#include "money/totals.h"
#include "pages/fields.h"
#include "pages/row_fields.h"
#include "proposal/property_file.h"
#include "proposal/proposal_save.h"
#include "proposal/reset.h"
#include "support/running_program.h"
#include "support/small_disk.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>
#include <string>
#include <tuple>
#include <vector>

#include <sys/stat.h>

namespace {

using modFile::SaveResult;

/// A proposal with a client and a street, on the disk under the client's name.
void SaveAnn(RunningProgram& run) {
    modFields::SetText(run.program, {PageId::frmP1, FieldKind::txt, 2}, "Ann");
    modFields::SetText(run.program, {PageId::frmP1, FieldKind::txt, 3}, "12 Elm Street");
    run.surroundings.questions.Expect("File was saved as Ann.hef");
    ASSERT_EQ(modFile::SaveEventFile(run.program), SaveResult::Saved);
}

void ChangeStreet(RunningProgram& run) {
    modFields::SetText(run.program, {PageId::frmP1, FieldKind::txt, 3}, "14 Oak Street");
}

/// Sets a field's text with nobody listening, as an older session could have left it.
void Put(RunningProgram& run, PageId page, int index, const char* text) {
    run.Area(page, index).Text = text;
}

std::string Slot(const std::string& bytes, std::size_t offset, std::size_t width) {
    return bytes.substr(offset, width);
}

/// Amounts that add differently in singles. By field 16777216 + 1 + 1 stays 16777216, by page 16777216 +
/// (1 + 1) is 16777218; all exempt.
void PutWhatAddsDifferently(RunningProgram& run) {
    for (const auto& [page, index, text] :
         {std::tuple{PageId::frmP1, 20, "16777216"}, {PageId::frmP2, 33, "1"}, {PageId::frmP2, 34, "1"}}) {
        modFields::SetText(run.program, {page, FieldKind::txt, index}, text);
        modTotals::SetTax(run.program, page, index, modTotals::Tax::Exempt);
    }
}

TEST(Saving, TellsOfTheTotalsBeforeItAsksForTheName) {
    RunningProgram run;
    PutWhatAddsDifferently(run);
    run.surroundings.questions.Expect("A descrepancy has occurred in calculating the totals.");
    run.surroundings.questions.Expect(
        "Please enter the client's name in the appropriate area and save again.");
    EXPECT_EQ(modFile::SaveEventFile(run.program), SaveResult::NotSaved);
    EXPECT_EQ(run.Main().cmdReCalc.BackColor, colors::kOverLimit);
}

TEST(Saving, TheTotalsAreWrittenUnderTheirPatterns) {
    RunningProgram run;
    modFields::SetText(run.program, {PageId::frmP1, FieldKind::txt, 20}, "1250");
    modTotals::CalculateMyTotals(run.program, PageId::frmP1);
    SaveAnn(run);
    const std::string bytes = run.folder.Read("Proposals/Ann.hef");
    // 1250 at 8.25 %: tax 103.125, total 1353.125.
    EXPECT_EQ(Slot(bytes, 20410 + 40, 20), "103.13              ");
    EXPECT_EQ(Slot(bytes, 20410 + 60, 20), "1,353.13            ");
}

TEST(Saving, SumsAnewWhereNobodyElseTakesTheFigures) {
    RunningProgram run;
    run.program.hooks.TakeFreshFigures = nullptr;
    Put(run, PageId::frmP1, 20, "100");
    run.program.totals.AmountTable[20][PageId::frmP1] = 100;
    run.program.totals.TaxableTable[20][PageId::frmP1] = 100;
    SaveAnn(run);
    // 100 at 8.25 %.
    EXPECT_EQ(Slot(run.folder.Read("Proposals/Ann.hef"), 20410 + 60, 20), "108.25              ");
}

TEST(Saving, TheTextOfAProposalIsNamedAsItsFile) {
    RunningProgram run;
    run.program.document.TextFileName = "another.txt";
    run.program.document.FileName = "Ann.hef";
    run.surroundings.questions.Expect("File was saved as Ann.hef");
    ASSERT_EQ(modFile::SaveEventFile(run.program), SaveResult::Saved);
    EXPECT_EQ(run.program.document.TextFileName, "Ann.txt");
}

TEST(Saving, EndsTheEditingOfAFormatSoThatTheNextProposalAsksNothingOfIt) {
    RunningProgram run;
    run.program.format.EditingFormat = true;
    SaveAnn(run);
    EXPECT_FALSE(run.program.format.EditingFormat);
    EXPECT_EQ(modReset::StartNewFile(run.program), modReset::ResetResult::Done);
}

TEST(Saving, AnEmptyFolderMeansTheProposals) {
    RunningProgram run;
    run.program.document.FilePath.clear();
    SaveAnn(run);
    EXPECT_EQ(run.program.document.FilePath, run.program.folders.ProposalsFolder);
    EXPECT_TRUE(run.folder.Has("Proposals/Ann.hef"));
}

TEST(Saving, AFileThatWasDeletedMeanwhileIsWrittenAgainWithoutAQuestion) {
    RunningProgram run;
    SaveAnn(run);
    std::filesystem::remove(run.folder / "Proposals/Ann.hef");
    ChangeStreet(run);
    run.surroundings.questions.Expect("File was saved as Ann.hef");
    EXPECT_EQ(modFile::SaveEventFile(run.program), SaveResult::Saved);
    EXPECT_EQ(Slot(run.folder.Read("Proposals/Ann.hef"), 110, 13), "14 Oak Street");
}

TEST(Saving, ANewProposalThatReplacesAnotherTakesNothingOfWhatLayBesideIt) {
    RunningProgram run;
    SaveAnn(run);
    run.folder.Write("Proposals/Ann.hxt", "the old Ann's notes");
    run.folder.Write("Proposals/Ann.dep", "Ann\r\nJan 1, 2008\t\t$ 600.00");
    run.folder.Write("Proposals/Ann.hpf", "frmP1.lbl(9).Left=1");
    static_cast<void>(modReset::StartNewFile(run.program));
    modFields::SetText(run.program, {PageId::frmP1, FieldKind::txt, 2}, "Ann");
    run.surroundings.questions.Expect("A file with this name (Ann.hef)", Answer::Yes);
    run.surroundings.questions.Expect("File was saved as Ann.hef");
    ASSERT_EQ(modFile::SaveEventFile(run.program), SaveResult::Saved);
    for (const char* extension : {".hxt", ".dep", ".hpf"}) {
        EXPECT_FALSE(run.folder.Has(std::string("Proposals/Ann") + extension)) << extension;
        EXPECT_TRUE(run.folder.Has(std::string("Proposals/Backup/Ann") + extension + ".old")) << extension;
    }
    EXPECT_FALSE(run.program.document.HasNotes);
    // What lies beside the proposal from now on is its own.
    run.folder.Write("Proposals/Ann.hxt", "the new Ann's notes");
    run.surroundings.questions.Expect("File was saved as Ann.hef");
    ASSERT_EQ(modFile::SaveEventFile(run.program), SaveResult::Saved);
    EXPECT_EQ(run.folder.Read("Proposals/Ann.hxt"), "the new Ann's notes");
}

TEST(Saving, AReadOnlyFileIsReplaced) {
    RunningProgram run;
    SaveAnn(run);
    ASSERT_EQ(::chmod((run.folder / "Proposals/Ann.hef").c_str(), 0444), 0);
    ChangeStreet(run);
    run.surroundings.questions.Expect("File was saved as Ann.hef");
    EXPECT_EQ(modFile::SaveEventFile(run.program), SaveResult::Saved);
    EXPECT_EQ(Slot(run.folder.Read("Proposals/Ann.hef"), 110, 13), "14 Oak Street");
}

TEST(Saving, AFileWhoseNameDiffersInCaseAloneIsAnotherFile) {
    RunningProgram run;
    SaveAnn(run);
    std::filesystem::rename(run.folder / "Proposals/Ann.hef", run.folder / "Proposals/ANN.HEF");
    const std::string other = run.folder.Read("Proposals/ANN.HEF");
    ChangeStreet(run);
    run.surroundings.questions.Expect("File was saved as Ann.hef");
    EXPECT_EQ(modFile::SaveEventFile(run.program), SaveResult::Saved);
    EXPECT_EQ(run.folder.Read("Proposals/ANN.HEF"), other);
    EXPECT_EQ(Slot(run.folder.Read("Proposals/Ann.hef"), 110, 13), "14 Oak Street");
}

TEST(Saving, AChangedClientAsksAboutTheProposalsOwnFile) {
    RunningProgram run;
    SaveAnn(run);
    modFields::SetText(run.program, {PageId::frmP1, FieldKind::txt, 2}, "Ann Roe");
    EXPECT_TRUE(modFile::ClientNameChanged(run.program));
    EXPECT_EQ(run.program.document.FileName, "Ann.hef") << "a saved proposal keeps its name";
    run.surroundings.questions.Expect("A file with this name (Ann.hef)", Answer::No);
    run.surroundings.questions.Expect("File not saved.");
    EXPECT_EQ(modFile::SaveEventFile(run.program), SaveResult::NotSaved);
    EXPECT_EQ(Slot(run.folder.Read("Proposals/Ann.hef"), 50, 8), "Ann     ");
    run.surroundings.questions.Expect("A file with this name (Ann.hef)", Answer::Yes);
    run.surroundings.questions.Expect("File was saved as Ann.hef");
    EXPECT_EQ(modFile::SaveEventFile(run.program), SaveResult::Saved);
    EXPECT_EQ(Slot(run.folder.Read("Proposals/Ann.hef"), 50, 8), "Ann Roe ");
}

TEST(Saving, AFullDiskLeavesASavedProposalUnsavedAgainAndTheNextSaveMendsIt) {
    RunningProgram run;
    SaveAnn(run);
    ChangeStreet(run);
    {
        const SmallDisk disk(8192);
        run.surroundings.questions.Expect("An error occurred in SaveEventFile.");
        EXPECT_EQ(modFile::SaveEventFile(run.program), SaveResult::NotSaved);
        run.surroundings.questions.Done();
    }
    EXPECT_TRUE(run.program.document.FileExists);
    EXPECT_EQ(run.program.document.SavedTextBuf[PageId::frmP1][3], "12 Elm Street");
    EXPECT_EQ(run.TextOf(PageId::frmP1, 3), "14 Oak Street");
    run.surroundings.questions.Expect("File was saved as Ann.hef");
    EXPECT_EQ(modFile::SaveEventFile(run.program), SaveResult::Saved);
    EXPECT_EQ(run.folder.Read("Proposals/Ann.hef").size(), 20630U);
}

TEST(Saving, AFolderWhereTheFileShouldBeIsReportedAndStays) {
    RunningProgram run;
    run.folder.MakeFolder("Proposals/Ann.hef");
    modFields::SetText(run.program, {PageId::frmP1, FieldKind::txt, 2}, "Ann");
    run.surroundings.questions.Expect("An error occurred in SaveEventFile.\r\nError Number: 75");
    EXPECT_EQ(modFile::SaveEventFile(run.program), SaveResult::NotSaved);
    EXPECT_FALSE(run.program.document.FileExists);
    EXPECT_TRUE(std::filesystem::is_directory(run.folder / "Proposals/Ann.hef"));
}

TEST(Saving, ATextLongerThanItsSlotIsCutInTheFileAlone) {
    RunningProgram run;
    const std::string street(70, 's');
    modFields::SetText(run.program, {PageId::frmP1, FieldKind::txt, 4}, street);
    run.surroundings.questions.ExpectBox(
        {"These texts are longer than their place in the file and will be cut:\r\nPage 1, Text Area 5",
         Buttons::YesNo, ""},
        Answer::Yes);
    SaveAnn(run);
    const std::string bytes = run.folder.Read("Proposals/Ann.hef");
    EXPECT_EQ(Slot(bytes, 170, 60), std::string(60, 's'));
    EXPECT_EQ(Slot(bytes, 230, 60), std::string(60, ' '));
    EXPECT_EQ(run.TextOf(PageId::frmP1, 4), street);
}

TEST(Saving, TenTextsThatAreTooLongAreAllNamed) {
    RunningProgram run;
    modFields::SetText(run.program, {PageId::frmP1, FieldKind::txt, 2}, "Ann");
    for (int row = 0; row < 10; ++row) {
        modFields::SetText(run.program, {PageId::frmP2, FieldKind::txt, row}, std::string(121, 'x'));
    }
    run.surroundings.questions.Expect("These texts are longer than their place in the file", Answer::No);
    EXPECT_EQ(modFile::SaveEventFile(run.program), SaveResult::NotSaved);
    EXPECT_TRUE(run.surroundings.questions.Shown.back().Text.ends_with("\r\nPage 2, Text Area 10"));
}

TEST(Saving, TheSlotsFollowTheTagsAsTheyAreNow) {
    RunningProgram run;
    run.Area(PageId::frmP1, 2).Tag = "Name.050";
    SaveAnn(run);
    const std::string bytes = run.folder.Read("Proposals/Ann.hef");
    EXPECT_EQ(bytes.size(), 20620U);
    EXPECT_EQ(Slot(bytes, 100, 13), "12 Elm Street");
}

TEST(Saving, QuantityRowsAreGatheredBeforePropertiesAndBytes) {
    RunningProgram run;
    std::vector<std::string> calls;
    const auto gather = run.program.hooks.CollectQtyBoxes;
    run.program.hooks.CollectQtyBoxes = [&](Program& program) {
        calls.push_back("rows");
        gather(program);
    };
    run.program.hooks.AssignPropChanges = [&](Program&) { calls.push_back("properties"); };
    run.program.format.LabelSavedState[PageId::frmP1][3].Changed = true;
    modPages::EnsureRowFields(run.program, PageId::frmP3);
    modPages::PlaceColumns(run.program, PageId::frmP3, 4, modPages::Columns::On);
    run.program.pages[PageId::frmP3].txtQty[4].Text = "7";
    run.program.pages[PageId::frmP3].txtAmt[4].Text = "2.50";
    Put(run, PageId::frmP3, 4, "Vases");
    SaveAnn(run);
    EXPECT_EQ(calls, (std::vector<std::string>{"rows", "properties"}));
    EXPECT_EQ(Slot(run.folder.Read("Proposals/Ann.hef"), 6550 + 4 * 120, 13), "\xA5"
                                                                              "7\xA5Vases\xA7"
                                                                              "2.50");
}

TEST(Saving, ADiscrepancyIsToldAndTheFileIsWrittenAllTheSame) {
    RunningProgram run;
    modFields::SetText(run.program, {PageId::frmP1, FieldKind::txt, 2}, "Ann");
    PutWhatAddsDifferently(run);
    run.surroundings.questions.Expect("A descrepancy has occurred in calculating the totals.");
    run.surroundings.questions.Expect("File was saved as Ann.hef");
    EXPECT_EQ(modFile::SaveEventFile(run.program), SaveResult::Saved);
    EXPECT_EQ(run.Main().cmdReCalc.BackColor, colors::kOverLimit);
}

TEST(Saving, HiddenTotalsRaiseNoDiscrepancy) {
    RunningProgram run;
    modTotals::mnuOptHideTotals_Click(run.program);
    Put(run, PageId::frmP2, 33, "10");
    SaveAnn(run);
    const std::string bytes = run.folder.Read("Proposals/Ann.hef");
    EXPECT_EQ(Slot(bytes, 20410, 80), std::string(80, ' '));
    EXPECT_EQ(Slot(bytes, 20410 + 80, 20), "0.00                ");
}

TEST(PropertyFile, IsNotMadeByASaveWithoutChangedProperties) {
    RunningProgram run;
    SaveAnn(run);
    run.surroundings.questions.Expect("File was saved as Ann.hef");
    EXPECT_EQ(modFile::SaveEventFile(run.program), SaveResult::Saved);
    EXPECT_FALSE(run.folder.Has("Proposals/Ann.hpf"));
    run.program.format.PropTextChanges[PageId::frmP2][3].Dirty = true;
    run.program.format.LabelSavedState[PageId::frmP1][3].Changed = true;
    run.surroundings.questions.Expect("File was saved as Ann.hef");
    EXPECT_EQ(modFile::SaveEventFile(run.program), SaveResult::Saved);
    EXPECT_TRUE(run.folder.Has("Proposals/Ann.hpf"));
    EXPECT_FALSE(modFile::PropertiesChanged(run.program));
}

TEST(PropertyFile, HoldsTheLinesThatWereAssignedAndClearsTheLabelsMarks) {
    RunningProgram run;
    run.program.hooks.AssignPropChanges = [](Program& program) {
        program.format.PropertyLines = {"frmP1.lbl(3).Left=900", "frmP1.lbl(3).Top=1200"};
    };
    run.program.format.LabelSavedState[PageId::frmP1][3].Changed = true;
    run.program.format.PropLabelChanges[PageId::frmP1][3].Changed = true;
    EXPECT_TRUE(modFile::PropertiesChanged(run.program));
    SaveAnn(run);
    EXPECT_EQ(run.folder.Read("Proposals/Ann.hpf"), "frmP1.lbl(3).Left=900\r\nfrmP1.lbl(3).Top=1200\r\n");
    EXPECT_FALSE(run.program.format.LabelSavedState[PageId::frmP1][3].Changed);
    EXPECT_TRUE(run.program.format.PropLabelChanges[PageId::frmP1][3].Changed)
        << "or the next file would leave the label out";
    EXPECT_FALSE(modFile::PropertiesChanged(run.program));
}

TEST(PropertyFile, ThatCouldNotBeWrittenStillCountsAsChanged) {
    RunningProgram run;
    run.program.hooks.AssignPropChanges = [](Program& program) {
        program.format.PropTextChanges[PageId::frmP1][10].Dirty = false;
        program.format.PropertyLines = {"frmP1.txt(10).FontBold=True"};
    };
    run.program.format.PropTextChanges[PageId::frmP1][10].Dirty = true;
    run.folder.MakeFolder("Proposals/Ann.hpf");
    modFields::SetText(run.program, {PageId::frmP1, FieldKind::txt, 2}, "Ann");
    run.surroundings.questions.Expect("An error occurred in SavePropertyFile.");
    run.surroundings.questions.Expect("File was saved as Ann.hef");
    EXPECT_EQ(modFile::SaveEventFile(run.program), SaveResult::Saved);
    EXPECT_TRUE(modFile::PropertiesChanged(run.program));
    std::filesystem::remove(run.folder / "Proposals/Ann.hpf");
    run.surroundings.questions.Expect("File was saved as Ann.hef");
    EXPECT_EQ(modFile::SaveEventFile(run.program), SaveResult::Saved);
    EXPECT_EQ(run.folder.Read("Proposals/Ann.hpf"), "frmP1.txt(10).FontBold=True\r\n");
    EXPECT_FALSE(modFile::PropertiesChanged(run.program));
}

TEST(PropertyFile, ThatWasWrittenAndChangedByAnotherProgramIsAskedAbout) {
    RunningProgram run;
    run.program.hooks.AssignPropChanges = [](Program& program) {
        program.format.PropertyLines = {"frmP1.txt(10).FontBold=True"};
    };
    run.program.format.PropTextChanges[PageId::frmP1][10].Dirty = true;
    SaveAnn(run);
    ASSERT_EQ(run.folder.Read("Proposals/Ann.hpf"), "frmP1.txt(10).FontBold=True\r\n");
    run.folder.Write("Proposals/Ann.hpf", "another program's\r\n");
    run.program.format.PropTextChanges[PageId::frmP1][10].Dirty = true;
    run.surroundings.questions.Expect("The layout of this proposal was changed by another program",
                                      Answer::No);
    EXPECT_EQ(modFile::SavePropertyFile(run.program), SaveResult::NotSaved);
    EXPECT_EQ(run.folder.Read("Proposals/Ann.hpf"), "another program's\r\n");
}

TEST(PropertyFile, OfAProposalThatCouldNotBeWrittenStillCountsAsChanged) {
    RunningProgram run;
    modFields::SetText(run.program, {PageId::frmP1, FieldKind::txt, 2}, "Ann");
    run.program.format.PropTextChanges[PageId::frmP1][10].Dirty = true;
    run.folder.MakeFolder("Proposals/Ann.hef");
    run.surroundings.questions.Expect("An error occurred in SaveEventFile.");
    EXPECT_EQ(modFile::SaveEventFile(run.program), SaveResult::NotSaved);
    EXPECT_TRUE(run.folder.Has("Proposals/Ann.hpf"));
    EXPECT_TRUE(modFile::PropertiesChanged(run.program));
}

TEST(PropertyFile, ThatCannotBeWrittenIsNotSaved) {
    RunningProgram run;
    SaveAnn(run);
    run.folder.MakeFolder("Proposals/Ann.hpf");
    run.surroundings.questions.Expect("An error occurred in SavePropertyFile.");
    EXPECT_EQ(modFile::SavePropertyFile(run.program), SaveResult::NotSaved);
}

TEST(PropertyFile, ThatIsToBeLeftAloneCountsAsSaved) {
    RunningProgram run;
    SaveAnn(run);
    run.folder.Write("Proposals/Ann.hpf", "the person's own\r\n");
    run.program.document.PropertiesIgnored = true;
    EXPECT_EQ(modFile::SavePropertyFile(run.program), SaveResult::Saved);
    EXPECT_EQ(run.program.main.Notice, "Ann.hpf was left as it is: the proposal was opened without it.");
    EXPECT_EQ(run.folder.Read("Proposals/Ann.hpf"), "the person's own\r\n");
}

TEST(PropertyFile, OfAProposalFromTheBackupsIsReadBesideItAndWrittenAmongTheProposals) {
    RunningProgram run;
    run.program.document.FilePath = run.folder / "Proposals/Backup/";
    run.program.document.FromBackup = true;
    run.program.document.BaseName = "Ann";
    run.folder.Write("Proposals/Ann.hpf", "frmP1.txt(10).FontBold=True\r\n");
    run.folder.Write("Proposals/Backup/Ann.hpf", "frmP1.txt(11).FontBold=True\r\n");
    modFile::ReadFileProperties(run.program);
    EXPECT_EQ(run.program.format.PropertyLines, std::vector<std::string>{"frmP1.txt(11).FontBold=True"});
    EXPECT_TRUE(run.Area(PageId::frmP1, 11).FontBold);
    std::filesystem::remove(run.folder / "Proposals/Backup/Ann.hpf");
    modFile::ReadFileProperties(run.program);
    EXPECT_EQ(run.program.format.PropertyLines, std::vector<std::string>{"frmP1.txt(10).FontBold=True"});
    EXPECT_TRUE(run.Area(PageId::frmP1, 10).FontBold);
    run.folder.Write("Proposals/Backup/Ann.hpf", "not this one\r\n");
    run.program.format.PropertyLines = {"a", "b"};
    EXPECT_EQ(modFile::SavePropertyFile(run.program), SaveResult::Saved);
    EXPECT_EQ(run.folder.Read("Proposals/Ann.hpf"), "a\r\nb\r\n");
    EXPECT_EQ(run.folder.Read("Proposals/Backup/Ann.hpf"), "not this one\r\n");
}

TEST(PropertyFile, ThatIsMissingOrEmptyIsNotParsed) {
    RunningProgram run;
    int parsed = 0;
    run.program.hooks.ParsePropertyFile = [&](Program&) { ++parsed; };
    run.program.document.BaseName = "Ann";
    run.program.format.PropertyLines = {"of the proposal before"};
    modFile::ReadFileProperties(run.program);
    EXPECT_TRUE(run.program.format.PropertyLines.empty());
    run.folder.Write("Proposals/Ann.hpf", "");
    modFile::ReadFileProperties(run.program);
    EXPECT_TRUE(run.program.format.PropertyLines.empty());
    EXPECT_EQ(parsed, 0);
}

} // namespace
