#include "editing/block_actions.h"
#include "editing/blocks.h"
#include "editing/columns.h"
#include "editing/text_menu.h"
#include "money/totals.h"
#include "pages/row_fields.h"
#include "proposal/reset.h"

namespace {

constexpr PageId kFirst = BlockRun::kFirst;
constexpr PageId kSecond = BlockRun::kSecond;
using Amounts = BlockRun::Amounts;
using Indices = std::vector<int>;

constexpr const char* kAskOver =
    "Text is present in destination areas. Over-write this text with that in memory?";
constexpr const char* kAskTitle = "Text areas are not all empty.";

/// Rows 3 (quantity 3 at 19.99, exempt) and 4 (a bold heading), amounts beside them.
void PutTwoRows(BlockRun& run) {
    run.PutRow(kSecond, 3, "3", "Chair covers", "19.99");
    run.Put(kSecond, 4, "Linen");
    run.Put(kSecond, 37, "40.00");
    run.Area(kSecond, 4).FontBold = true;
    run.program.format.PropTextChanges[PageId::frmP2][4].FontBold = true;
    modPages::SetNoTaxMark(run.program, kSecond, 36, modPages::Mark::Shown);
    run.program.format.PropTextChanges[PageId::frmP2][36].TaxExempt = true;
    run.program.format.FormatTextChanges[PageId::frmP2][36].TaxExempt = true;
    modTotals::CalculateMyTotals(run.program, kSecond); // as on leaving the amounts
}

const AreaContents kCovers{"Chair covers", true, "3", "19.99", false, false};
const AreaContents kLinen{"Linen", false, "", "", true, false};
const AreaContents kCoversAmount{"59.97", false, "", "", false, true};
const AreaContents kLinenAmount{"40.00", false, "", "", false, false};

TEST(Contents, ReachBothTablesAndRunNoHandler) {
    BlockRun run;
    run.Put(kSecond, 41, "7");
    run.program.totals.TotalsStale = false;
    modBlocks::PlaceContents(run.program, kSecond, 8, kCovers);
    modBlocks::PlaceContents(run.program, kSecond, 42, kCoversAmount);
    EXPECT_EQ(run.Contents(kSecond, 8), kCovers);
    EXPECT_EQ(run.Contents(kSecond, 42), kCoversAmount);
    EXPECT_EQ(run.Stored(kSecond, 8), "");
    EXPECT_EQ(run.Stored(kSecond, 42), "");
    EXPECT_EQ(run.TextOf(kSecond, 41), "7") << "no product";
    EXPECT_EQ(run.Main().cmdReCalc.BackColor, colors::kButtonFace);
    EXPECT_FALSE(run.program.editing.MoveInProgress);
    for (const auto* table : {&run.program.format.PropTextChanges, &run.program.format.FormatTextChanges}) {
        EXPECT_TRUE((*table).Each[1][8].QtyBox);
        EXPECT_EQ((*table).Each[1][8].QtyValue, "3");
        EXPECT_EQ((*table).Each[1][8].AmtValue, "19.99");
        EXPECT_TRUE((*table).Each[1][42].TaxExempt);
    }
}

TEST(Copy, HoldsTheMemoryForAPaste) {
    BlockRun run;
    PutTwoRows(run);
    run.Band(kSecond, 3, 4, Amounts::With);
    run.Choose(CommandId::mnuEditTextCopy);
    EXPECT_TRUE(run.program.editing.BlockCopyHeld);
    EXPECT_EQ(run.Block().MemoryLeft, (std::vector{kCovers, kLinen}));
    EXPECT_EQ(run.Block().MemoryRight, (std::vector{kCoversAmount, kLinenAmount}));
    EXPECT_EQ(run.BlueAreas(kSecond), (Indices{3, 4, 36, 37}));
    EXPECT_TRUE(run.Enabled(CommandId::mnuEditTextPaste));
    EXPECT_FALSE(run.Enabled(CommandId::mnuEditTextCopy));
}

TEST(Copy, OfNothingLeavesTheMemoryAsItWas) {
    BlockRun run;
    run.Put(kSecond, 3, "Chairs");
    run.Band(kSecond, 3, 3);
    run.Front(kFirst); // the selection is on another page
    run.Choose(CommandId::mnuEditTextCopy);
    ASSERT_EQ(run.Block().MemoryLeft.size(), 1U);
    EXPECT_EQ(run.Block().MemoryLeft[0].Text, "Chairs");
    EXPECT_FALSE(run.program.editing.BlockCopyHeld);
}

TEST(Delete, EmptiesTheSelectedAreasWithAllThatBelongsToThem) {
    BlockRun run;
    PutTwoRows(run);
    run.Band(kSecond, 3, 4, Amounts::With);
    run.Choose(CommandId::mnuEditTextDelete);
    for (const int index : {3, 4, 36, 37}) {
        EXPECT_EQ(run.Contents(kSecond, index), AreaContents()) << index;
        EXPECT_EQ(run.Stored(kSecond, index), "") << index;
        EXPECT_EQ(run.Area(kSecond, index).BackColor, colors::kResting);
        EXPECT_EQ(run.Area(kSecond, index).ForeColor, colors::kBlack);
        for (const auto* table :
             {&run.program.format.PropTextChanges, &run.program.format.FormatTextChanges}) {
            const TextChangeRecord& record = (*table).Each[1][static_cast<std::size_t>(index)];
            EXPECT_FALSE(record.FontBold || record.TaxExempt || record.QtyBox) << index;
            EXPECT_EQ(record.QtyValue + record.AmtValue, "") << index;
        }
    }
    const Page& page = run.program.pages[kSecond];
    EXPECT_EQ(page.imgNoTax[36].Tag, "Hide");
    EXPECT_EQ(page.txtQty[3].Tag, "Hide");
    EXPECT_EQ(page.txtQty[3].Text, "");
    EXPECT_EQ(page.txtQty[3].BackColor, colors::kRestingRowField);
    EXPECT_FALSE(page.lblAt[3].Visible);
    EXPECT_EQ(page.txt[3].Left, 900);
    EXPECT_EQ(page.txt[3].Width, 8640);
    EXPECT_FALSE(run.Label(kSecond, 4).Visible) << "the currency sign of amount 36";
    EXPECT_FALSE(run.program.editing.RefireMode);
}

TEST(Delete, EndsTheModeAndLeavesAnUndo) {
    BlockRun run;
    PutTwoRows(run);
    run.Band(kSecond, 3, 4);
    run.Choose(CommandId::mnuEditTextDelete);
    EXPECT_FALSE(run.program.editing.BlockMode);
    EXPECT_EQ(run.program.main.cmdClearMem.BackColor, colors::kButtonFace);
    EXPECT_TRUE(run.program.editing.UndoAvailable);
    EXPECT_TRUE(run.Enabled(CommandId::mnuEditTextUndo));
    EXPECT_EQ(run.Block().SelectedCount, 0);
    Typist typist(run.program);
    typist.Click(kSecond, 3);
    typist.Type("new");
    EXPECT_EQ(run.Stored(kSecond, 3), "new");
}

TEST(Delete, RunsTheTotals) {
    BlockRun run;
    PutTwoRows(run);
    run.Put(kSecond, 40, "100");
    run.Band(kSecond, 3, 4, Amounts::With);
    run.Choose(CommandId::mnuEditTextDelete);
    EXPECT_EQ(run.program.totals.AmountTable[36][PageId::frmP2], 0.0F);
    EXPECT_EQ(run.program.totals.PageSum[PageId::frmP2], 100.0F);
    EXPECT_EQ(run.TextOf(PageId::frmP6, 0), "100.00");
    EXPECT_EQ(run.Main().cmdReCalc.BackColor, colors::kButtonFace);
}

TEST(Delete, WithoutAmountsLeavesTheAmountsAndTheirMarks) {
    BlockRun run;
    PutTwoRows(run);
    run.Band(kSecond, 3, 4);
    run.Choose(CommandId::mnuEditTextDelete);
    EXPECT_EQ(run.Contents(kSecond, 36), kCoversAmount);
    EXPECT_EQ(run.Contents(kSecond, 37), kLinenAmount);
    EXPECT_EQ(run.program.totals.PageSum[PageId::frmP2], 59.97F + 40.0F);
}

TEST(Delete, TakesColumnsFromARowWithoutText) {
    BlockRun run;
    run.PutRow(kSecond, 3, "3", "", "x");
    EXPECT_EQ(run.Stored(kSecond, 3), "\xA5"
                                      "3\xA5\xA7x");
    run.Band(kSecond, 3, 3);
    run.Choose(CommandId::mnuEditTextDelete);
    EXPECT_EQ(run.Stored(kSecond, 3), "");
    EXPECT_FALSE(run.program.format.PropTextChanges[PageId::frmP2][3].QtyBox);
}

TEST(Delete, TakesAlsoWhatStandsBeyondAGap) {
    BlockRun run;
    run.Front(kSecond);
    for (const int row : {1, 2, 5}) {
        run.PutRow(kSecond, row, "1", "Row", "x");
    }
    run.Put(kSecond, 3, "Between");
    run.Drag(kSecond, 1000, 1700, 9600, 4000);
    run.Choose(CommandId::mnuEditTextCut);
    EXPECT_EQ(run.TextOf(kSecond, 5), "");
    EXPECT_EQ(run.TextOf(kSecond, 3), "Between");
    EXPECT_EQ(run.Block().MemoryLeft.size(), 2U) << "only the first run is remembered";
}

TEST(Delete, OfBoldOrExemptCountsAsAChangedProperty) {
    BlockRun run;
    PutTwoRows(run);
    run.Band(kSecond, 3, 5, Amounts::With);
    run.Choose(CommandId::mnuEditTextDelete);
    const auto& props = run.program.format.PropTextChanges[PageId::frmP2];
    EXPECT_TRUE(props[4].Dirty);
    EXPECT_TRUE(props[36].Dirty);
    EXPECT_FALSE(props[5].Dirty) << "nothing stood there";
}

TEST(Delete, OfARowWhoseQuantityHasTheKeyboardGivesItToTheDescription) {
    BlockRun run;
    run.PutRow(kSecond, 3, "3", "Chairs", "x");
    Typist(run.program).Click({kSecond, FieldKind::txtQty, 3});
    run.Band(kSecond, 3, 3);
    run.Choose(CommandId::mnuEditTextDelete);
    EXPECT_EQ(run.program.main.Focus, BlockRun::Text(kSecond, 3));
    EXPECT_EQ(run.program.editing.CurrentArea, 3);
}

TEST(Delete, OfNothingLeavesNoUndo) {
    BlockRun run;
    run.Band(kSecond, 3, 3);
    run.Front(kFirst);
    modBlocks::DeleteBlock(run.program);
    modBlocks::CutBlock(run.program);
    EXPECT_FALSE(run.program.editing.UndoAvailable);
    EXPECT_FALSE(run.program.editing.BlockCopyHeld);
}

TEST(Delete, ReportsItsFailure) {
    BlockRun run;
    run.Put(kSecond, 3, "Chairs");
    run.Band(kSecond, 3, 3);
    run.program.hooks.Change = [](Program&, const FieldRef&) { throw std::runtime_error("lost"); };
    run.surroundings.questions.Expect("An error occurred in DeleteTextContents.");
    run.Choose(CommandId::mnuEditTextDelete);
    EXPECT_FALSE(run.program.editing.RefireMode);
}

TEST(Cut, HoldsTheAreasForAPasteAndTheModeGoesOn) {
    BlockRun run;
    PutTwoRows(run);
    run.Band(kSecond, 3, 4, Amounts::With);
    run.Choose(CommandId::mnuEditTextCut);
    EXPECT_EQ(run.Contents(kSecond, 3), AreaContents());
    EXPECT_EQ(run.Contents(kSecond, 36), AreaContents());
    EXPECT_TRUE(run.BlueAreas(kSecond).empty());
    EXPECT_TRUE(run.program.editing.BlockMode);
    EXPECT_TRUE(run.program.editing.BlockCopyHeld);
    EXPECT_EQ(run.program.main.lblTotal.BackColor, colors::kBlockSelected);
    EXPECT_TRUE(run.Enabled(CommandId::mnuEditTextPaste));
    EXPECT_TRUE(run.Enabled(CommandId::mnuEditTextUndo));
    EXPECT_EQ(run.Block().MemoryLeft, (std::vector{kCovers, kLinen}));
    EXPECT_EQ(run.program.totals.PageSum[PageId::frmP2], 0.0F);
    Typist(run.program).Click(kFirst, 10);
    run.Choose(CommandId::mnuEditTextPaste);
    EXPECT_EQ(run.Contents(kFirst, 10), kCovers);
    EXPECT_EQ(run.Contents(kFirst, 11), kLinen);
    EXPECT_EQ(run.Contents(kFirst, 20), kCoversAmount);
    EXPECT_EQ(run.TextOf(PageId::frmP6, 0), "99.97");
}

TEST(Cut, WithoutAmountsLeavesTheAmounts) {
    BlockRun run;
    PutTwoRows(run);
    run.Band(kSecond, 3, 4);
    run.Choose(CommandId::mnuEditTextCut);
    EXPECT_TRUE(run.Block().MemoryRight.empty());
    EXPECT_EQ(run.Contents(kSecond, 36), kCoversAmount);
}

TEST(Cut, TellsOfAFailureInWordsOfItsOwnBesides) {
    BlockRun run;
    run.Put(kSecond, 3, "Chairs");
    run.Band(kSecond, 3, 3);
    run.program.hooks.Change = [](Program&, const FieldRef&) { throw std::runtime_error("lost"); };
    run.surroundings.questions.Expect("An error occurred in DeleteTextContents.");
    run.ExpectTold("An error occurred while cutting text.");
    run.Choose(CommandId::mnuEditTextCut);
}

TEST(Undo, PutsEverythingBackWhereItWas) {
    BlockRun run;
    PutTwoRows(run);
    run.Put(kSecond, 36, "25.00"); // changed by hand: no product any more
    run.Band(kSecond, 3, 4, Amounts::With);
    run.Choose(CommandId::mnuEditTextDelete);
    run.Front(PageId::frmP4);
    run.Choose(CommandId::mnuEditTextUndo);
    EXPECT_EQ(run.Contents(kSecond, 3), kCovers);
    EXPECT_EQ(run.Contents(kSecond, 4), kLinen);
    EXPECT_EQ(run.Contents(kSecond, 36), (AreaContents{"25.00", false, "", "", false, true}));
    EXPECT_EQ(run.Contents(kSecond, 37), kLinenAmount);
    EXPECT_EQ(run.program.pages[kSecond].txt[3].Width, 6270);
    EXPECT_EQ(run.program.pages[kSecond].txtQty[3].Tag, "");
    EXPECT_EQ(run.Stored(kSecond, 3), "\xA5"
                                      "3\xA5"
                                      "Chair covers\xA7"
                                      "19.99");
    EXPECT_TRUE(run.program.format.PropTextChanges[PageId::frmP2][36].TaxExempt);
    EXPECT_TRUE(run.program.format.PropTextChanges[PageId::frmP2][4].FontBold);
    EXPECT_EQ(run.program.totals.PageSum[PageId::frmP2], 65.0F);
    EXPECT_EQ(run.program.totals.PageTaxable[PageId::frmP2], 40.0F);
    EXPECT_EQ(run.TextOf(PageId::frmP6, 0), "65.00");
    EXPECT_EQ(run.TextOf(PageId::frmP6, 1), "40.00");
    EXPECT_FALSE(run.program.editing.RefireMode);
}

TEST(Undo, KeepsAnAmountThatWasNotDeleted) {
    BlockRun run;
    PutTwoRows(run);
    run.Band(kSecond, 3, 3);
    run.Choose(CommandId::mnuEditTextDelete);
    run.Put(kSecond, 36, "12");
    run.Choose(CommandId::mnuEditTextUndo);
    EXPECT_EQ(run.TextOf(kSecond, 36), "12") << "the quantity comes back without its product";
}

TEST(Undo, KeepsWhatWasTypedElsewhereAndAsksBeforeItOverwritesWhatWasTypedThere) {
    BlockRun run;
    PutTwoRows(run);
    run.Band(kSecond, 3, 4);
    run.Choose(CommandId::mnuEditTextDelete);
    Typist typist(run.program);
    typist.Click(kSecond, 8);
    typist.Type("Lamps");
    typist.Click(kSecond, 3);
    typist.Type("Other");
    const ScriptedQuestions::Box box{
        "Text is present where the deleted text goes back. Over-write this text with the deleted text?",
        Buttons::YesNo, "Text areas are not all empty."};
    auto& questions = run.surroundings.questions;
    questions.ExpectBox(box, Answer::No);
    questions.Expect("Action Cancelled.");
    run.Choose(CommandId::mnuEditTextUndo);
    EXPECT_EQ(run.TextOf(kSecond, 3), "Other");
    EXPECT_EQ(questions.Manners[questions.Manners.size() - 2].Default, Answer::No);
    EXPECT_EQ(questions.Manners[questions.Manners.size() - 2].Lost,
              "The texts of Page 2, line 4 will be replaced.");
    EXPECT_TRUE(run.Enabled(CommandId::mnuEditTextUndo)) << "it can still be undone";
    questions.ExpectBox(box, Answer::Yes);
    run.Choose(CommandId::mnuEditTextUndo);
    EXPECT_EQ(run.TextOf(kSecond, 8), "Lamps");
    EXPECT_EQ(run.Contents(kSecond, 3), kCovers);
}

TEST(Undo, AsksForAmountsAndBoxesToo) {
    BlockRun run;
    PutTwoRows(run);
    run.Band(kSecond, 3, 4, Amounts::With);
    run.Choose(CommandId::mnuEditTextCut);
    run.Choose(CommandId::mnuEditTextDeselect);
    Typist typist(run.program);
    typist.Click(kSecond, 37);
    typist.Type("8");
    typist.Click(kSecond, 3);
    typist.Press(keys::kF8);
    typist.Click({PageId::frmP2, FieldKind::txtQty, 3});
    typist.Type("2");
    run.surroundings.questions.Expect("Text is present where the deleted text goes back.", Answer::No);
    run.surroundings.questions.Expect("Action Cancelled.");
    run.Choose(CommandId::mnuEditTextUndo);
    const auto& manners = run.surroundings.questions.Manners;
    EXPECT_EQ(manners[manners.size() - 2].Lost, "The texts of Page 2, lines 4 to 5 will be replaced.");
    EXPECT_EQ(run.program.pages[kSecond].txtQty[3].Text, "2");
    EXPECT_EQ(run.TextOf(kSecond, 37), "8.00");
}

TEST(Undo, IsOneLevelAndStaysUntilUsed) {
    BlockRun run;
    run.Put(kSecond, 3, "First");
    run.Put(kSecond, 4, "Second");
    run.Band(kSecond, 3, 3);
    run.Choose(CommandId::mnuEditTextDelete);
    run.Band(kSecond, 4, 4);
    run.Choose(CommandId::mnuEditTextDelete);
    run.Band(kSecond, 10, 11);
    EXPECT_TRUE(run.Enabled(CommandId::mnuEditTextUndo)) << "areas selected";
    run.Choose(CommandId::mnuEditTextCopy);
    EXPECT_TRUE(run.Enabled(CommandId::mnuEditTextUndo)) << "a copy held";
    run.Choose(CommandId::mnuEditTextDeselect);
    EXPECT_TRUE(run.Enabled(CommandId::mnuEditTextUndo)) << "nothing selected";
    Typist typist(run.program);
    typist.Click(kSecond, 20);
    typist.Type("text");
    typist.PutCursor(0, 4);
    modTextMenu::UpdateTextMenu(run.program);
    EXPECT_TRUE(run.Enabled(CommandId::mnuEditTextSelUCase));
    EXPECT_TRUE(run.Enabled(CommandId::mnuEditTextUndo)) << "text selected";
    run.Choose(CommandId::mnuEditTextUndo);
    EXPECT_EQ(run.TextOf(kSecond, 4), "Second");
    EXPECT_EQ(run.TextOf(kSecond, 3), "");
    EXPECT_FALSE(run.Enabled(CommandId::mnuEditTextUndo));
    run.Put(kSecond, 4, "Third");
    modBlocks::UndoDeleteBlock(run.program);
    EXPECT_EQ(run.TextOf(kSecond, 4), "Third");
}

TEST(Undo, AfterACutKeepsTheModeAndTheMemory) {
    BlockRun run;
    PutTwoRows(run);
    run.Band(kSecond, 3, 4);
    run.Choose(CommandId::mnuEditTextCut);
    run.Choose(CommandId::mnuEditTextUndo);
    EXPECT_EQ(run.Contents(kSecond, 3), kCovers);
    EXPECT_EQ(run.Stored(kSecond, 4), "Linen");
    EXPECT_TRUE(run.program.editing.BlockMode);
    EXPECT_TRUE(run.Enabled(CommandId::mnuEditTextPaste));
}

TEST(Undo, ReachesTheStoreWhereACompletionStands) {
    BlockRun run;
    run.Put(kSecond, 3, "Chairs");
    run.Band(kSecond, 3, 3);
    run.Choose(CommandId::mnuEditTextDelete);
    Typist(run.program).Click(kSecond, 8);
    run.program.editing.ACActive[PageId::frmP2] = true;
    run.Put(kSecond, 8, "Lamps, small");
    run.Choose(CommandId::mnuEditTextUndo);
    EXPECT_EQ(run.Stored(kSecond, 3), "Chairs");
    EXPECT_EQ(run.Stored(kSecond, 8), "Lamps, small");
}

TEST(Undo, EndsWithTheProposal) {
    BlockRun run;
    run.Put(kSecond, 3, "Chairs");
    run.Band(kSecond, 3, 3);
    run.Choose(CommandId::mnuEditTextDelete);
    EXPECT_EQ(modReset::StartNewFile(run.program), modReset::ResetResult::Done);
    EXPECT_FALSE(run.program.editing.UndoAvailable);
    EXPECT_FALSE(run.Enabled(CommandId::mnuEditTextUndo));
    run.Choose(CommandId::mnuEditTextUndo);
    EXPECT_EQ(run.TextOf(kSecond, 3), "");
}

TEST(NewProposal, EndsTheSelection) {
    BlockRun run;
    run.Band(kSecond, 3, 3);
    EXPECT_EQ(modReset::StartNewFile(run.program), modReset::ResetResult::Done);
    EXPECT_FALSE(run.program.editing.BlockMode);
    EXPECT_TRUE(run.BlueAreas(kSecond).empty());
    EXPECT_EQ(run.program.main.lblDir.BackColor, colors::kButtonFace);
}

/// Two rows copied from page 2, the focus where a paste is asked for.
void CopyTwoRows(BlockRun& run, Amounts amounts = Amounts::With) {
    PutTwoRows(run);
    run.Band(kSecond, 3, 4, amounts);
    run.Choose(CommandId::mnuEditTextCopy);
}

void PasteAt(BlockRun& run, PageId page, int index) {
    Typist(run.program).Click(page, index);
    run.Choose(CommandId::mnuEditTextPaste);
}

TEST(Paste, WritesTheMemoryWithAllThatTravels) {
    BlockRun run;
    CopyTwoRows(run);
    PasteAt(run, kFirst, 12);
    EXPECT_EQ(run.Contents(kFirst, 12), kCovers);
    EXPECT_EQ(run.Contents(kFirst, 13), kLinen);
    EXPECT_EQ(run.Contents(kFirst, 22), kCoversAmount);
    EXPECT_EQ(run.Contents(kFirst, 23), kLinenAmount);
    EXPECT_EQ(run.Area(kFirst, 12).Left, 1440);
    EXPECT_EQ(run.Area(kFirst, 12).Width, 6270);
    EXPECT_EQ(run.Area(kFirst, 13).Width, 8640);
    EXPECT_EQ(run.Stored(kFirst, 12), "\xA5"
                                      "3\xA5"
                                      "Chair covers\xA7"
                                      "19.99");
    EXPECT_EQ(run.Stored(kFirst, 22), "59.97");
    EXPECT_TRUE(run.program.format.PropTextChanges[PageId::frmP1][22].TaxExempt);
    EXPECT_TRUE(run.program.format.FormatTextChanges[PageId::frmP1][22].TaxExempt);
    EXPECT_TRUE(run.program.format.PropTextChanges[PageId::frmP1][13].FontBold);
    EXPECT_EQ(run.program.format.PropTextChanges[PageId::frmP1][12].QtyValue, "3");
    EXPECT_EQ(run.program.format.FormatTextChanges[PageId::frmP1][12].AmtValue, "19.99");
    EXPECT_TRUE(run.Label(kFirst, 23).Visible) << "the currency sign of amount 22";
    EXPECT_EQ(run.Block().RunStart, (std::array{12, 22}));
    EXPECT_EQ(run.Block().RunEnd, (std::array{13, 23}));
}

TEST(Paste, RunsTheTotals) {
    BlockRun run;
    CopyTwoRows(run);
    PasteAt(run, kFirst, 12);
    EXPECT_EQ(run.program.totals.AmountTable[22][PageId::frmP1], 59.97F);
    EXPECT_EQ(run.program.totals.TaxableTable[22][PageId::frmP1], 0.0F);
    EXPECT_EQ(run.program.totals.PageSum[PageId::frmP1], 59.97F + 40.0F);
    EXPECT_EQ(run.TextOf(PageId::frmP6, 0), "199.94");
    EXPECT_EQ(run.TextOf(PageId::frmP6, 1), "80.00");
    EXPECT_EQ(run.Main().cmdReCalc.BackColor, colors::kButtonFace);
    EXPECT_FALSE(run.program.editing.RefireMode);
    EXPECT_TRUE(run.program.editing.BlockMode);
}

TEST(Paste, MayBeRepeatedAndLeavesTheSelectionWhereItWas) {
    BlockRun run;
    CopyTwoRows(run);
    PasteAt(run, kSecond, 10);
    PasteAt(run, kSecond, 20);
    EXPECT_EQ(run.TextOf(kSecond, 10), "Chair covers");
    EXPECT_EQ(run.TextOf(kSecond, 20), "Chair covers");
    EXPECT_EQ(run.BlueAreas(kSecond), (Indices{3, 4, 36, 37}));
    EXPECT_TRUE(run.Enabled(CommandId::mnuEditTextPaste));
    EXPECT_EQ(run.program.pages[kSecond].txtQty[10].BackColor, colors::kRestingRowField);
}

TEST(Paste, IsRefusedAboveTheDescriptionsOfTheClientsPage) {
    BlockRun run;
    CopyTwoRows(run);
    run.ExpectTold("Cannot paste here.");
    PasteAt(run, kFirst, 9);
    EXPECT_EQ(run.TextOf(kFirst, 9), "");
    run.surroundings.questions.Done();
    PasteAt(run, kFirst, 10);
    EXPECT_EQ(run.TextOf(kFirst, 10), "Chair covers");
}

TEST(Paste, IsRefusedOnTheFinalPageAndItsCopy) {
    BlockRun run;
    CopyTwoRows(run);
    run.ExpectTold("Cannot paste here.");
    PasteAt(run, PageId::frmP6, 4);
    run.Front(kSecond);
    run.Front(PageId::frmP6_1);
    run.ExpectTold("Cannot paste here.");
    run.Choose(CommandId::mnuEditTextPaste);
    EXPECT_EQ(run.TextOf(kSecond, 0), "");
}

TEST(Paste, OfFourLinesAtTheFootIsOutOfSpace) {
    BlockRun run;
    for (int row = 0; row < 4; ++row) {
        run.Put(kSecond, row, "Row");
    }
    run.Band(kSecond, 0, 3);
    run.Choose(CommandId::mnuEditTextCopy);
    run.ExpectTold("Cannot paste here. Out of space.");
    PasteAt(run, kFirst, 17);
    EXPECT_EQ(run.TextOf(kFirst, 17), "");
    run.surroundings.questions.Done();
    PasteAt(run, kFirst, 16);
    EXPECT_EQ(run.TextOf(kFirst, 19), "Row");
}

TEST(Paste, OnAmountsIsOutOfSpace) {
    BlockRun run;
    CopyTwoRows(run);
    run.ExpectTold("Cannot paste here. Out of space.");
    PasteAt(run, kFirst, 20);
    run.ExpectTold("Cannot paste here. Out of space.");
    PasteAt(run, kSecond, 50);
    EXPECT_EQ(run.TextOf(kSecond, 50), "");
}

TEST(Paste, OfMoreAmountsThanThePageHasIsOutOfSpace) {
    BlockRun run;
    run.Front(kSecond);
    run.PutRow(kSecond, 0, "1", "Row", "x");
    run.PutRow(kSecond, 1, "1", "Row", "x");
    run.Drag(kSecond, 1000, 1700, 11400, 3200); // rows 0 and 1, amounts 33 to 36
    ASSERT_EQ(run.BlueAreas(kSecond), (Indices{0, 1, 33, 34, 35, 36}));
    run.Choose(CommandId::mnuEditTextCopy);
    run.ExpectTold("Cannot paste here. Out of space.");
    PasteAt(run, kFirst, 17); // rows 17 and 18 are there, amounts 27 to 30 are not
    EXPECT_EQ(run.TextOf(kFirst, 17), "");
    run.surroundings.questions.Done();
    PasteAt(run, kFirst, 16);
    EXPECT_EQ(run.TextOf(kFirst, 16), "Row");
}

TEST(Paste, AsksBeforeItWritesOverText) {
    BlockRun run;
    CopyTwoRows(run);
    run.Put(kSecond, 11, "Lamps");
    run.surroundings.questions.ExpectBox({kAskOver, Buttons::YesNo, kAskTitle}, Answer::No);
    run.ExpectTold("Action Cancelled.");
    PasteAt(run, kSecond, 10);
    EXPECT_EQ(run.TextOf(kSecond, 10), "");
    EXPECT_EQ(run.TextOf(kSecond, 11), "Lamps");
    const auto& manners = run.surroundings.questions.Manners;
    EXPECT_TRUE(std::any_of(manners.begin(), manners.end(), [](const Manner& manner) {
        return manner.Lost == "The texts of Page 2, lines 11 to 12 will be replaced." &&
               manner.Default == Answer::No;
    }));
    run.surroundings.questions.ExpectBox({kAskOver, Buttons::YesNo, kAskTitle}, Answer::Yes);
    PasteAt(run, kSecond, 10);
    EXPECT_EQ(run.TextOf(kSecond, 11), "Linen");
}

TEST(Paste, AsksForTextInTheAmountsItWouldWrite) {
    BlockRun run;
    CopyTwoRows(run);
    run.Put(kSecond, 44, "7");
    run.surroundings.questions.ExpectBox({kAskOver, Buttons::YesNo, kAskTitle}, Answer::Yes);
    PasteAt(run, kSecond, 10); // amounts 43 and 44
    EXPECT_EQ(run.TextOf(kSecond, 44), "40.00");
}

TEST(Paste, DoesNotAskForBlanksOrForColumnsWithoutText) {
    BlockRun run;
    CopyTwoRows(run);
    run.Put(kSecond, 10, "  ");
    run.PutRow(kSecond, 11, "5", "", "x");
    PasteAt(run, kSecond, 10);
    EXPECT_EQ(run.Contents(kSecond, 11), kLinen) << "the columns that stood there are gone";
}

TEST(Paste, WithoutAmountsInMemoryLeavesTheAmountsAlone) {
    BlockRun run;
    run.Put(kSecond, 43, "7");
    CopyTwoRows(run, Amounts::Without);
    PasteAt(run, kSecond, 10);
    EXPECT_EQ(run.Contents(kSecond, 10), kCovers);
    EXPECT_EQ(run.TextOf(kSecond, 43), "7") << "no product, no question";
    EXPECT_EQ(run.program.totals.AmountTable[43][PageId::frmP2], 7.0F);
}

TEST(Paste, OverTheSelectionKeepsTheBlueInStepWithTheColumns) {
    BlockRun run;
    CopyTwoRows(run);
    run.surroundings.questions.ExpectBox({kAskOver, Buttons::YesNo, kAskTitle}, Answer::Yes);
    PasteAt(run, kSecond, 4); // row 4 is blue and takes the row with columns
    const Page& page = run.program.pages[kSecond];
    EXPECT_EQ(page.txtQty[4].BackColor, colors::kBlockSelected);
    EXPECT_EQ(page.txtQty[3].BackColor, colors::kBlockSelected);
    EXPECT_EQ(page.txtQty[5].BackColor, colors::kRestingRowField);
}

TEST(Paste, OfATextTooLongForItsNewPlacePushesNothing) {
    BlockRun run;
    const std::string words = std::string(60, 'x') + " " + std::string(26, 'y') + " "; // 8800 twips
    run.Put(kSecond, 0, words);
    run.Band(kSecond, 0, 0);
    run.Choose(CommandId::mnuEditTextCopy);
    run.program.editing.LastKeyChar = " ";
    run.program.editing.CursorPos = 87;
    PasteAt(run, kSecond, 5);
    EXPECT_EQ(run.TextOf(kSecond, 5), words);
    EXPECT_EQ(run.TextOf(kSecond, 6), "");
}

TEST(Columns, MayBeToggledBesideAHeldCopyButNotOnASelection) {
    BlockRun run;
    run.Band(kSecond, 0, 1);
    Typist(run.program).Click(kSecond, 6);
    run.Choose(CommandId::mnuEditTextColumns);
    EXPECT_FALSE(modPages::ColumnsOn(run.program, kSecond, 6));
    run.Choose(CommandId::mnuEditTextCopy);
    run.Choose(CommandId::mnuEditTextColumns);
    EXPECT_TRUE(modPages::ColumnsOn(run.program, kSecond, 6));
    EXPECT_EQ(run.Stored(kSecond, 6), "\xA5"
                                      "Qty.\xA5\xA7"
                                      "Amt.");
}

TEST(Columns, OfASelectedRowComeAndGoInTheColourOfTheSelection) {
    BlockRun run;
    Typist(run.program).Click(kSecond, 3);
    run.Band(kSecond, 3, 3);
    run.Choose(CommandId::mnuEditTextCopy);
    run.program.editing.CurrentArea = 3;
    modColumns::ToggleColumns(run.program);
    const Page& page = run.program.pages[kSecond];
    EXPECT_EQ(page.txtQty[3].BackColor, colors::kBlockSelected);
    EXPECT_EQ(page.txtAmt[3].BackColor, colors::kBlockSelected);
    EXPECT_EQ(run.Stored(kSecond, 3), "\xA5"
                                      "Qty.\xA5\xA7"
                                      "Amt.");
    modColumns::ToggleColumns(run.program);
    EXPECT_EQ(page.txtQty[3].BackColor, colors::kRestingRowField);
    EXPECT_EQ(page.txtAmt[3].BackColor, colors::kRestingRowField);
    EXPECT_EQ(run.Stored(kSecond, 3), "");
    EXPECT_TRUE(run.Blue(kSecond, 3));
}

TEST(Copy, TakesWhatStandsInTheSelectionNow) {
    for (const CommandId command : {CommandId::mnuEditTextCopy, CommandId::mnuEditTextCut}) {
        BlockRun run;
        run.Put(kSecond, 3, "Chairs");
        run.Band(kSecond, 3, 3);
        run.Area(kSecond, 3).Text = "Tables"; // put right by a command while it is selected
        run.Choose(command);
        PasteAt(run, kSecond, 8);
        EXPECT_EQ(run.TextOf(kSecond, 8), "Tables");
    }
}

TEST(Delete, EmptiesTheLastLineOfAPageToo) {
    BlockRun run;
    run.Put(kSecond, 32, "Row");
    run.Put(kSecond, 65, "5.00");
    run.Band(kSecond, 32, 32, Amounts::With);
    run.Choose(CommandId::mnuEditTextDelete);
    EXPECT_EQ(run.TextOf(kSecond, 32), "");
    EXPECT_EQ(run.TextOf(kSecond, 65), "");
    run.Choose(CommandId::mnuEditTextUndo);
    EXPECT_EQ(run.TextOf(kSecond, 65), "5.00");
    EXPECT_TRUE(run.Block().UndoMemory.empty()) << "what has been put back is held no longer";
}

TEST(Undo, OfATextThatIsTooLongPushesNothing) {
    BlockRun run;
    const std::string words = std::string(60, 'x') + " " + std::string(26, 'y') + " "; // 8800 twips
    run.Put(kSecond, 3, words);
    run.Band(kSecond, 3, 3);
    run.Choose(CommandId::mnuEditTextDelete);
    run.program.editing.LastKeyChar = " ";
    for (const int cursor : {20, 87}) { // in the text, and at its last blank
        run.program.editing.CursorPos = cursor;
        modBlocks::UndoDeleteBlock(run.program);
        EXPECT_EQ(run.TextOf(kSecond, 3), words);
        EXPECT_EQ(run.TextOf(kSecond, 4), "");
        run.Band(kSecond, 3, 3);
        run.Choose(CommandId::mnuEditTextDelete);
    }
}

TEST(Paste, OverTheFirstLineNamesIt) {
    BlockRun run;
    run.Put(kSecond, 0, "There");
    run.Put(kSecond, 3, "Row");
    run.Band(kSecond, 3, 3);
    run.Choose(CommandId::mnuEditTextCopy);
    run.surroundings.questions.ExpectBox({kAskOver, Buttons::YesNo, kAskTitle}, Answer::Yes);
    PasteAt(run, kSecond, 0);
    EXPECT_EQ(run.surroundings.questions.Manners.back().Lost,
              "The texts of Page 2, line 1 will be replaced.");
    EXPECT_EQ(run.TextOf(kSecond, 0), "Row");
}

TEST(Paste, BringsTheMenuUpToDate) {
    BlockRun run;
    run.PutRow(kSecond, 3, "2", "Chairs", "5");
    run.Band(kSecond, 3, 3);
    run.Choose(CommandId::mnuEditTextCopy);
    PasteAt(run, kSecond, 8);
    EXPECT_EQ(run.program.main[CommandId::mnuEditTextColumns].Caption, "Remove Columns")
        << "columns have come to the line of the cursor";
}

} // namespace
