#include "editing/block_actions.h"
#include "editing/block_moves.h"
#include "pages/row_fields.h"
#include "support/person.h"

namespace {

constexpr PageId kFirst = BlockRun::kFirst;
constexpr PageId kSecond = BlockRun::kSecond;
using Amounts = BlockRun::Amounts;
using Indices = std::vector<int>;

constexpr const char* kDownNoSpace = "Cannot move contents down. Out of space.";
constexpr const char* kDownText = "Cannot move contents down. Text exists in destination.";
constexpr const char* kUpNoSpace = "Cannot move contents up any higher.";
constexpr const char* kUpText = "Cannot move contents up. Text exists in destination.";
constexpr const char* kUnequal = "Cannot move text. The number of right-hand boxes\r\n"
                                 "must match the number of left-hand boxes.";

const AreaContents kCovers{"Chair covers", true, "3", "19.99", false, false};
const AreaContents kLinen{"Linen", false, "", "", true, false};
const AreaContents kCoversAmount{"59.97", false, "", "", false, true};
const AreaContents kLinenAmount{"40.00", false, "", "", false, false};

void PutTwoRows(BlockRun& run) {
    run.PutRow(kSecond, 3, "3", "Chair covers", "19.99");
    run.Put(kSecond, 4, "Linen");
    run.Put(kSecond, 37, "40.00");
    run.Area(kSecond, 4).FontBold = true;
    modPages::SetNoTaxMark(run.program, kSecond, 36, modPages::Mark::Shown);
}

void ExpectTwoRowsAt(BlockRun& run, int row) {
    EXPECT_EQ(run.Contents(kSecond, row), kCovers);
    EXPECT_EQ(run.Contents(kSecond, row + 1), kLinen);
    EXPECT_EQ(run.Contents(kSecond, row + 33), kCoversAmount);
    EXPECT_EQ(run.Contents(kSecond, row + 34), kLinenAmount);
    EXPECT_EQ(run.BlueAreas(kSecond), (Indices{row, row + 1, row + 33, row + 34}));
}

TEST(Move, DownTakesEverythingAlongAndTheSelectionToo) {
    BlockRun run;
    PutTwoRows(run);
    run.Band(kSecond, 3, 4, Amounts::With);
    run.Choose(CommandId::mnuEditTextMoveDown);
    ExpectTwoRowsAt(run, 4);
    EXPECT_EQ(run.Contents(kSecond, 3), AreaContents());
    EXPECT_EQ(run.Contents(kSecond, 36), AreaContents());
    EXPECT_EQ(run.Area(kSecond, 3).BackColor, colors::kResting);
    const Page& page = run.program.pages[kSecond];
    EXPECT_EQ(page.txtQty[4].BackColor, colors::kBlockSelected);
    EXPECT_EQ(page.txtQty[3].BackColor, colors::kRestingRowField);
    EXPECT_EQ(page.txt[3].Width, 8640);
    EXPECT_EQ(page.txt[4].Width, 6270);
    EXPECT_EQ(page.txt[4].Left, 1440);
    EXPECT_EQ(run.Block().RunStart, (std::array{4, 37}));
}

TEST(Move, UpMirrorsIt) {
    BlockRun run;
    PutTwoRows(run);
    run.Band(kSecond, 3, 4, Amounts::With);
    run.Choose(CommandId::mnuEditTextMoveUp);
    ExpectTwoRowsAt(run, 2);
    EXPECT_EQ(run.Contents(kSecond, 4), AreaContents());
    EXPECT_EQ(run.Contents(kSecond, 37), AreaContents());
    EXPECT_EQ(run.Block().RunStart, (std::array{2, 35}));
    EXPECT_EQ(run.Block().RunEnd, (std::array{3, 36}));
}

TEST(Move, ByMenuBringsStoreTablesAndTotalsAlongAtOnce) {
    BlockRun run;
    PutTwoRows(run);
    run.Band(kSecond, 3, 4, Amounts::With);
    run.Choose(CommandId::mnuEditTextMoveDown);
    EXPECT_FALSE(run.program.editing.MoveInProgress);
    EXPECT_FALSE(run.program.editing.RefireMode);
    EXPECT_EQ(run.Stored(kSecond, 3), "");
    EXPECT_EQ(run.Stored(kSecond, 4), "\xA5"
                                      "3\xA5"
                                      "Chair covers\xA7"
                                      "19.99");
    EXPECT_EQ(run.Stored(kSecond, 5), "Linen");
    EXPECT_EQ(run.program.totals.AmountTable[36][PageId::frmP2], 0.0F);
    EXPECT_EQ(run.program.totals.AmountTable[37][PageId::frmP2], 59.97F);
    EXPECT_EQ(run.program.totals.TaxableTable[37][PageId::frmP2], 0.0F);
    EXPECT_EQ(run.program.totals.PageSum[PageId::frmP2], 59.97F + 40.0F);
    EXPECT_EQ(run.program.totals.PageTaxable[PageId::frmP2], 40.0F);
    EXPECT_FALSE(run.Label(kSecond, 4).Visible) << "the currency sign of amount 36";
    EXPECT_TRUE(run.Label(kSecond, 6).Visible);
    const auto& props = run.program.format.PropTextChanges[PageId::frmP2];
    EXPECT_TRUE(props[37].TaxExempt);
    EXPECT_FALSE(props[36].TaxExempt);
    EXPECT_TRUE(props[5].FontBold);
    EXPECT_FALSE(props[4].FontBold);
    EXPECT_TRUE(props[4].QtyBox);
    EXPECT_FALSE(props[3].QtyBox);
    EXPECT_TRUE(props[5].Dirty);
}

TEST(Move, AFurtherOneGoesOn) {
    BlockRun run;
    PutTwoRows(run);
    run.Band(kSecond, 3, 4, Amounts::With);
    for (int step = 0; step < 3; ++step) {
        run.Choose(CommandId::mnuEditTextMoveUp);
    }
    ExpectTwoRowsAt(run, 0);
    run.ExpectTold(kUpNoSpace);
    run.Choose(CommandId::mnuEditTextMoveUp);
    ExpectTwoRowsAt(run, 0);
    EXPECT_FALSE(run.program.editing.MoveInProgress);
}

TEST(Move, WithoutAmountsLeavesThemInTheirRows) {
    BlockRun run;
    run.Put(kSecond, 3, "Linen");
    run.Put(kSecond, 36, "40.00");
    run.Put(kSecond, 37, "7.00");
    run.Band(kSecond, 3, 3);
    run.Choose(CommandId::mnuEditTextMoveDown);
    EXPECT_EQ(run.TextOf(kSecond, 4), "Linen");
    EXPECT_EQ(run.TextOf(kSecond, 36), "40.00");
    EXPECT_EQ(run.TextOf(kSecond, 37), "7.00");
}

struct Refused {
    const char* What; ///< for the reader of a failure
    CommandId Command;
    int First;
    int Last;
    bool WithAmounts;
    int TextAt; ///< an area that holds text, -1 none
    const char* Words;
};

class MoveRefusals : public testing::TestWithParam<Refused> {};

TEST_P(MoveRefusals, LeaveTheAreasAsTheyWere) {
    const Refused refused = GetParam();
    SCOPED_TRACE(refused.What);
    BlockRun run;
    run.Put(kSecond, refused.First, "Row");
    if (refused.TextAt >= 0) {
        run.Put(kSecond, refused.TextAt, "9");
    }
    run.Band(kSecond, refused.First, refused.Last, refused.WithAmounts ? Amounts::With : Amounts::Without);
    const Indices blue = run.BlueAreas(kSecond);
    run.ExpectTold(refused.Words);
    run.Choose(refused.Command);
    run.surroundings.questions.Done();
    EXPECT_EQ(run.TextOf(kSecond, refused.First), "Row");
    EXPECT_EQ(run.BlueAreas(kSecond), blue);
    EXPECT_FALSE(run.program.editing.MoveInProgress);
    EXPECT_TRUE(run.program.editing.BlockMode);
}

constexpr CommandId kDown = CommandId::mnuEditTextMoveDown;
constexpr CommandId kUp = CommandId::mnuEditTextMoveUp;

INSTANTIATE_TEST_SUITE_P(
    Table, MoveRefusals,
    testing::Values(Refused{"the last row selected", kDown, 31, 32, false, -1, kDownNoSpace},
                    Refused{"the last row selected, amounts too", kDown, 31, 32, true, -1, kDownNoSpace},
                    Refused{"text under the block", kDown, 3, 5, false, 6, kDownText},
                    Refused{"text under the amounts", kDown, 3, 5, true, 39, kDownText},
                    Refused{"the first row selected", kUp, 0, 1, false, -1, kUpNoSpace},
                    Refused{"text over the block", kUp, 3, 5, false, 2, kUpText},
                    Refused{"text over the amounts", kUp, 3, 5, true, 35, kUpText}));

TEST(Move, TextBesideTheBlockThatDoesNotTravelIsNoHindrance) {
    BlockRun run;
    run.Put(kSecond, 3, "Row");
    run.Put(kSecond, 37, "9"); // under the amount of row 3, which is not selected
    run.Band(kSecond, 3, 3);
    run.Choose(kDown);
    EXPECT_EQ(run.TextOf(kSecond, 4), "Row");
}

/// Rows 1 and 2 with columns, of the amounts those from 33 to `lastAmount`.
void BandUnequal(BlockRun& run, int firstRow, int rows, float bottom) {
    run.Front(kSecond);
    for (int row = firstRow; row < firstRow + rows; ++row) {
        run.PutRow(kSecond, row, "x", "Row", "x");
    }
    run.Drag(kSecond, 1000, run.Area(kSecond, firstRow).Top - 20, 11400, bottom);
}

TEST(Move, OfUnequalRunsIsRefused) {
    BlockRun run;
    BandUnequal(run, 1, 2, 3200); // rows 1 and 2, amounts 34 to 36
    ASSERT_EQ(run.BlueAreas(kSecond), (Indices{1, 2, 34, 35, 36}));
    run.ExpectTold(kUnequal);
    run.Choose(kDown);
    run.ExpectTold(kUnequal);
    run.Choose(kUp);
    EXPECT_EQ(run.TextOf(kSecond, 1), "Row");
}

TEST(Move, TellsOfTextBeforeItTellsOfUnequalRuns) {
    BlockRun run;
    run.Put(kSecond, 3, "There");
    BandUnequal(run, 1, 2, 3200);
    run.ExpectTold(kDownText);
    run.Choose(kDown);
}

TEST(Move, TellsOfSpaceBeforeItTellsOfText) {
    BlockRun run;
    BandUnequal(run, 0, 2, 3200); // rows 0 and 1, amounts 33 to 36
    run.Put(kSecond, 37, "9");
    run.ExpectTold(kUpNoSpace);
    run.Choose(kUp);
    run.ExpectTold(kDownText);
    run.Choose(kDown);
}

TEST(Move, OfAmountsThatReachTheEndWhereTheRowsDoNotIsOutOfSpace) {
    BlockRun run;
    BandUnequal(run, 30, 2, 13600); // rows 30 and 31, amounts 63 to 65
    ASSERT_EQ(run.BlueAreas(kSecond), (Indices{30, 31, 63, 64, 65}));
    run.ExpectTold(kDownNoSpace);
    run.Choose(kDown);
}

TEST(Move, OfAmountsThatReachTheTopWhereTheRowsDoNotGoesNoHigher) {
    BlockRun run;
    run.Front(kSecond);
    run.PutRow(kSecond, 1, "x", "Row", "x");
    run.Drag(kSecond, 1000, 1700, 11400, 2500); // row 1, amounts 33 and 34
    ASSERT_EQ(run.BlueAreas(kSecond), (Indices{1, 33, 34}));
    run.ExpectTold(kUpNoSpace);
    run.Choose(kUp);
}

TEST(Move, OntoARowWithColumnsAndNoTextWritesOverIt) {
    BlockRun run;
    run.Put(kSecond, 3, "Row");
    run.PutRow(kSecond, 4, "5", "", "x");
    run.Band(kSecond, 3, 3);
    run.Choose(kDown);
    EXPECT_EQ(run.Contents(kSecond, 4), (AreaContents{"Row", false, "", "", false, false}));
    EXPECT_EQ(run.Area(kSecond, 4).Left, 900);
}

TEST(Move, TakesOnlyTheFirstRun) {
    BlockRun run;
    run.Front(kSecond);
    for (const int row : {1, 2, 5}) {
        run.PutRow(kSecond, row, "x", "Row", "x");
    }
    run.Drag(kSecond, 1000, 1700, 9600, 4000);
    run.Choose(kDown);
    EXPECT_EQ(run.BlueAreas(kSecond), (Indices{2, 3, 5}));
    EXPECT_EQ(run.TextOf(kSecond, 5), "Row");
    EXPECT_EQ(run.TextOf(kSecond, 1), "");
}

TEST(Move, WorksOnTheClientsPageAndMakesNoFileName) {
    BlockRun run;
    run.Put(kFirst, 10, "Arch");
    run.program.document.FileName.clear();
    run.program.document.TextFileName.clear();
    run.Band(kFirst, 10, 10);
    run.Choose(kDown);
    EXPECT_EQ(run.TextOf(kFirst, 11), "Arch");
    EXPECT_EQ(run.program.document.FileName, "");
    EXPECT_EQ(run.program.document.TextFileName, "");
}

TEST(Move, MakesEveryPricedRowsAmountItsProductAgain) {
    BlockRun run;
    run.PutRow(kSecond, 10, "2", "Lamps", "5");
    run.Put(kSecond, 43, "9.00"); // changed by hand
    run.Put(kSecond, 3, "Row");
    run.Band(kSecond, 3, 3);
    run.Choose(kDown);
    EXPECT_EQ(run.TextOf(kSecond, 43), "10.00");
    EXPECT_EQ(run.program.totals.PageSum[PageId::frmP2], 10.0F);
}

TEST(Move, AnAreaThatReadsTestIsNotRunAgain) {
    BlockRun run;
    run.Put(kFirst, 3, "Test");
    run.Put(kFirst, 4, "Text");
    run.program.document.CurrentTextBuf[PageId::frmP1][3] = "stale";
    run.program.document.CurrentTextBuf[PageId::frmP1][4] = "stale";
    run.Put(kFirst, 12, "Row");
    run.Band(kFirst, 12, 12);
    run.Choose(kDown);
    EXPECT_EQ(run.Stored(kFirst, 3), "stale");
    EXPECT_EQ(run.Stored(kFirst, 4), "Text");
}

TEST(Move, ADescriptionThatReadsTestReachesTheStoreByItsRow) {
    BlockRun run;
    run.Put(kSecond, 3, "Test");
    run.Band(kSecond, 3, 3);
    run.Choose(kDown);
    EXPECT_EQ(run.Stored(kSecond, 3), "");
    EXPECT_EQ(run.Stored(kSecond, 4), "Test");
}

TEST(Move, PushesNoTextThatIsTooLong) {
    BlockRun run;
    const std::string words = std::string(60, 'x') + " " + std::string(26, 'y') + " "; // 8800 twips
    run.Put(kSecond, 10, words);
    run.Put(kSecond, 3, "Row");
    run.Band(kSecond, 3, 3);
    run.program.editing.LastKeyChar = " ";
    run.program.editing.CursorPos = 87;
    run.Choose(kDown);
    EXPECT_EQ(run.TextOf(kSecond, 10), words);
    EXPECT_EQ(run.TextOf(kSecond, 11), "");
}

TEST(Move, TellsOfAFailureInItsOwnWords) {
    BlockRun run;
    run.Put(kSecond, 3, "Row");
    run.Band(kSecond, 3, 3);
    run.program.hooks.Change = [](Program&, const FieldRef&) { throw std::runtime_error("lost"); };
    run.ExpectTold("Error encountered during Move Process.");
    run.Choose(kDown);
    EXPECT_FALSE(run.program.editing.MoveInProgress);
    EXPECT_FALSE(run.program.editing.RefireMode);
}

TEST(Move, AFailureThatComesWhenTheKeyIsLetGoIsToldToo) {
    BlockRun run;
    run.Put(kSecond, 3, "Row");
    Typist typist(run.program);
    typist.Click(kSecond, 20);
    run.Band(kSecond, 3, 3);
    typist.Hold(keys::kDown);
    run.program.hooks.Change = [](Program&, const FieldRef&) { throw std::runtime_error("lost"); };
    run.ExpectTold("Error encountered during Move Process.");
    run.Choose(CommandId::mnuEditTextDeselect);
    EXPECT_FALSE(run.program.editing.BlockMode) << "the command goes on";
    EXPECT_FALSE(run.program.editing.RefireMode);
}

TEST(MoveByKey, WaitsWithTheHandlersUntilTheKeyIsLetGo) {
    BlockRun run;
    run.Put(kSecond, 3, "Row");
    Typist typist(run.program);
    typist.Click(kSecond, 8);
    run.Band(kSecond, 3, 3);
    typist.Hold(keys::kDown);
    EXPECT_EQ(run.TextOf(kSecond, 4), "Row");
    EXPECT_TRUE(run.program.editing.MoveInProgress);
    EXPECT_EQ(run.Stored(kSecond, 3), "Row");
    EXPECT_EQ(run.program.main.Focus, BlockRun::Text(kSecond, 8)) << "the focus stays";
    person::KeyUp(run.program, keys::kDown, 0, 0, 0);
    EXPECT_FALSE(run.program.editing.MoveInProgress);
    EXPECT_EQ(run.Stored(kSecond, 3), "");
    EXPECT_EQ(run.Stored(kSecond, 4), "Row");
}

TEST(MoveByKey, GoesOnWhileTheKeyIsHeld) {
    BlockRun run;
    run.Put(kSecond, 3, "Row");
    Typist typist(run.program);
    typist.Click(kSecond, 20);
    run.Band(kSecond, 3, 3);
    for (int repeat = 0; repeat < 5; ++repeat) {
        typist.Hold(keys::kDown);
    }
    typist.Press(keys::kUp);
    EXPECT_EQ(run.BlueAreas(kSecond), Indices{7});
    EXPECT_EQ(run.Stored(kSecond, 7), "Row");
    EXPECT_EQ(run.Stored(kSecond, 8), "");
}

TEST(MoveByKey, WorksFromAQuantityBoxToo) {
    BlockRun run;
    run.PutRow(kSecond, 3, "x", "Row", "x");
    Typist typist(run.program);
    typist.Click({kSecond, FieldKind::txtQty, 3});
    run.Band(kSecond, 3, 3);
    typist.Press(keys::kDown);
    EXPECT_EQ(run.TextOf(kSecond, 4), "Row");
    EXPECT_EQ(run.program.main.Focus, BlockRun::Text(kSecond, 3)) << "its box is gone";
    EXPECT_EQ(run.program.editing.CurrentArea, 3);
}

TEST(MoveByKey, ARefusalEndsTheMoveAtOnce) {
    BlockRun run;
    run.Put(kSecond, 3, "Row");
    run.Put(kSecond, 5, "There");
    Typist typist(run.program);
    typist.Click(kSecond, 20);
    run.Band(kSecond, 3, 3);
    typist.Hold(keys::kDown);
    run.ExpectTold(kDownText);
    typist.Hold(keys::kDown); // the box takes the release of the key
    EXPECT_FALSE(run.program.editing.MoveInProgress);
    EXPECT_EQ(run.Stored(kSecond, 4), "Row");
    EXPECT_EQ(run.Stored(kSecond, 3), "");
}

TEST(MoveByKey, WithNothingSelectedAnyMoreDoesNothing) {
    BlockRun run;
    run.Put(kSecond, 3, "Row");
    Typist typist(run.program);
    typist.Click(kSecond, 20);
    run.Band(kSecond, 3, 3);
    run.Choose(CommandId::mnuEditTextCut);
    typist.Hold(keys::kDown);
    EXPECT_FALSE(run.program.editing.MoveInProgress);
    EXPECT_EQ(run.program.main.Focus, BlockRun::Text(kSecond, 20));
}

TEST(MoveByKey, IsFinishedByWhateverComesNext) {
    const auto held = [](BlockRun& run) {
        run.Put(kSecond, 3, "Row");
        Typist(run.program).Click(kSecond, 20);
        run.Band(kSecond, 3, 3);
        Typist(run.program).Hold(keys::kDown);
        EXPECT_EQ(run.Stored(kSecond, 3), "Row");
    };
    {
        BlockRun run;
        held(run);
        Typist(run.program).Hold(keys::kShift);
        EXPECT_EQ(run.Stored(kSecond, 4), "Row") << "another key";
    }
    {
        BlockRun run;
        held(run);
        Typist(run.program).Click(kSecond, 8);
        EXPECT_EQ(run.Stored(kSecond, 4), "Row") << "a click";
        EXPECT_EQ(run.program.editing.CurrentArea, 8);
    }
    {
        BlockRun run;
        held(run);
        person::ClickPageButton(run.program, 2);
        EXPECT_EQ(run.Stored(kSecond, 4), "Row") << "another page";
        EXPECT_EQ(run.program.editing.CurrentArea, 0) << "where a paste would go";
    }
    {
        BlockRun run;
        held(run);
        person::NoTaxMarkClick(run.program, kSecond, 40);
        EXPECT_EQ(run.Stored(kSecond, 4), "Row") << "a click on a mark";
    }
    {
        BlockRun run;
        held(run);
        run.program.document.SavedTextBuf = run.program.document.CurrentTextBuf;
        run.surroundings.questions.ExpectBox({"The file has been changed. Do you want to save it?",
                                              Buttons::YesNoCancel, "Text has been Changed"},
                                             Answer::Cancel);
        EXPECT_FALSE(person::MayClose(run.program)) << "closing the window";
        EXPECT_FALSE(run.program.editing.MoveInProgress) << "or amounts would be saved in their old rows";
    }
    for (const CommandId id : {CommandId::mnuEditTextCopy, CommandId::mnuEditTextCut,
                               CommandId::mnuEditTextDelete, CommandId::mnuEditTextDeselect}) {
        BlockRun run;
        held(run);
        run.Choose(id);
        EXPECT_FALSE(run.program.editing.MoveInProgress);
        EXPECT_EQ(run.Stored(kSecond, 3), "");
    }
}

TEST(MoveByKey, ScrollsWhenTheBlockComesNearTheFootOrTheTop) {
    BlockRun run; // 9000 twips of the page show
    run.Put(kSecond, 17, "Row");
    Typist typist(run.program);
    typist.Click(kSecond, 0);
    run.Band(kSecond, 17, 17);
    typist.Press(keys::kDown); // row 18 at 8280: 8790 is still above 9000
    EXPECT_EQ(run.program.main.VScroll1.Value, 0);
    typist.Press(keys::kDown); // row 19 at 8640: 9150 is below; 2 x 9000 reaches 15870
    EXPECT_EQ(run.program.main.VScroll1.Value, 6870);
    for (int row = 19; row > 15; --row) {
        typist.Press(keys::kUp); // row 15 at 7200: 6900 is still below the visible top
    }
    EXPECT_EQ(run.program.main.VScroll1.Value, 6870);
    typist.Press(keys::kUp); // row 14 at 6840: 6540 is over it
    EXPECT_EQ(run.program.main.VScroll1.Value, 0);
    EXPECT_EQ(run.BlueAreas(kSecond), Indices{14});
}

TEST(MoveByKey, TakesTheHeavyPrintAlongWhileTheKeyIsStillHeld) {
    BlockRun run;
    run.Put(kSecond, 3, "Row");
    Typist typist(run.program);
    typist.Click(kSecond, 3);
    run.Choose(CommandId::mnuEditTextBold);
    run.Band(kSecond, 3, 3);
    typist.Hold(keys::kDown);
    EXPECT_TRUE(run.Area(kSecond, 4).FontBold);
    for (const TextChangeTable* table :
         {&run.program.format.PropTextChanges, &run.program.format.FormatTextChanges}) {
        EXPECT_FALSE((*table)[kSecond][3].FontBold);
        EXPECT_TRUE((*table)[kSecond][4].FontBold);
    }
    person::KeyUp(run.program, keys::kDown, 0, 0, 0);
}

TEST(Move, ByTheMenuBringsTheMenuUpToDate) {
    BlockRun run;
    run.PutRow(kSecond, 3, "2", "Row", "5");
    Typist(run.program).Click(kSecond, 4);
    run.Band(kSecond, 3, 3);
    ASSERT_EQ(run.program.main[CommandId::mnuEditTextColumns].Caption, "Add Columns");
    run.Choose(CommandId::mnuEditTextMoveDown);
    EXPECT_EQ(run.program.main[CommandId::mnuEditTextColumns].Caption, "Remove Columns")
        << "they have come to the line of the cursor";
}

} // namespace
