#include "editing/area_mouse.h"
#include "editing/block_actions.h"
#include "pages/row_fields.h"
#include "program/keys.h"
#include "support/person.h"

namespace {

constexpr PageId kFirst = BlockRun::kFirst;
constexpr PageId kSecond = BlockRun::kSecond;
using Amounts = BlockRun::Amounts;
using Indices = std::vector<int>;

TEST(Band, SelectsTheAreasItContains) {
    BlockRun run;
    run.Band(kSecond, 3, 5);
    EXPECT_EQ(run.BlueAreas(kSecond), (Indices{3, 4, 5}));
    EXPECT_TRUE(run.program.editing.BlockMode);
    EXPECT_EQ(run.Block().SelectedCount, 3);
    EXPECT_TRUE(run.Block().ManySelected);
    EXPECT_FALSE(run.program.pages[kSecond].shpSelect.Visible);
    EXPECT_FALSE(run.Block().BandDragging);
}

TEST(Band, OfOneAreaIsNotMany) {
    BlockRun run;
    run.Band(kSecond, 0, 0);
    EXPECT_EQ(run.Block().SelectedCount, 1);
    EXPECT_FALSE(run.Block().ManySelected);
}

TEST(Band, OfTwoAreasIsMany) {
    BlockRun run;
    run.Band(kSecond, 3, 4);
    EXPECT_EQ(run.Block().SelectedCount, 2);
    EXPECT_TRUE(run.Block().ManySelected);
}

struct Corner {
    float X1, Y1, X2, Y2;
};

class BandCorners : public testing::TestWithParam<Corner> {};

TEST_P(BandCorners, StartAnywhere) {
    BlockRun run;
    run.Front(kSecond);
    const Corner corner = GetParam();
    run.Drag(kSecond, corner.X1, corner.Y1, corner.X2, corner.Y2);
    EXPECT_EQ(run.BlueAreas(kSecond), (Indices{0, 1}));
}

// Areas 0 and 1 stand at 1800 and 2160, the latter down to 2415; area 2 at 2520.
INSTANTIATE_TEST_SUITE_P(Table, BandCorners,
                         testing::Values(Corner{800, 1700, 9600, 2500}, Corner{9600, 1700, 800, 2500},
                                         Corner{800, 2500, 9600, 1700}, Corner{9600, 2500, 800, 1700},
                                         Corner{-500, -900, 9600, 2500}, Corner{9600, 2500, -500, -900}));

TEST(Band, ReachesBeyondThePagesFarEdge) {
    BlockRun run;
    run.Front(kSecond);
    run.Drag(kSecond, 800, 12900, 13000, 17000);
    EXPECT_EQ(run.BlueAreas(kSecond), (Indices{31, 32, 64, 65})) << "rows from 12960 down";
}

struct Edge {
    float X1, Y1, X2, Y2;
    bool Takes;
};

class BandEdges : public testing::TestWithParam<Edge> {};

TEST_P(BandEdges, CountAsInside) {
    BlockRun run;
    run.Front(kSecond);
    const Edge edge = GetParam();
    run.Drag(kSecond, edge.X1, edge.Y1, edge.X2, edge.Y2);
    EXPECT_EQ(run.Blue(kSecond, 0), edge.Takes);
    EXPECT_EQ(run.program.editing.BlockMode, edge.Takes);
}

INSTANTIATE_TEST_SUITE_P(Table, BandEdges,
                         testing::Values(Edge{900, 1800, 9540, 2055, true},
                                         Edge{901, 1800, 9540, 2055, false},
                                         Edge{900, 1801, 9540, 2055, false},
                                         Edge{900, 1800, 9539, 2055, false},
                                         Edge{900, 1800, 9540, 2054, false}));

TEST(Band, IsARectangleOnThePageWhileItIsDrawn) {
    BlockRun run;
    run.Front(kSecond);
    modBlocks::Form_MouseDown(run.program, 1, 5000, 4000);
    EXPECT_FALSE(run.program.pages[kSecond].shpSelect.Visible);
    modBlocks::Form_MouseMove(run.program, kSecond, 1, 4000, 6500);
    const PageShape band = run.program.pages[kSecond].shpSelect;
    EXPECT_EQ(band, (PageShape{4000, 4000, 1000, 2500, true}));
    EXPECT_TRUE(run.Block().BandDragging);
    modBlocks::Form_MouseUp(run.program, kSecond, 1, 4000, 6500);
    EXPECT_EQ(run.Block().BandEndX, 4000);
    EXPECT_EQ(run.Block().BandEndY, 6500);
    EXPECT_FALSE(run.program.pages[kSecond].shpSelect.Visible);
}

TEST(Band, NeedsTheLeftButton) {
    BlockRun run;
    run.Front(kSecond);
    for (const int button : {0, 2}) {
        modBlocks::Form_MouseDown(run.program, button, 800, 1700);
        modBlocks::Form_MouseMove(run.program, kSecond, button, 9600, 2500);
        EXPECT_FALSE(run.program.pages[kSecond].shpSelect.Visible);
        modBlocks::Form_MouseUp(run.program, kSecond, button, 9600, 2500);
    }
    EXPECT_TRUE(run.BlueAreas(kSecond).empty());
}

TEST(Band, TakesDescriptionsAndAmountsAndNoOtherKind) {
    BlockRun run;
    run.Drag(kFirst, 0, 0, 12240, 15840);
    Indices expected;
    for (int index = 10; index <= 29; ++index) {
        expected.push_back(index);
    }
    EXPECT_EQ(run.BlueAreas(kFirst), expected);
    EXPECT_EQ(run.Block().SelectedCount, 20);
    EXPECT_EQ(run.Block().RunStart, (std::array{10, 20})) << "descriptions end where amounts begin";
    EXPECT_EQ(run.Block().RunEnd, (std::array{19, 29}));
}

TEST(Band, AWholeLinePageEndsItsRunsAtTheFootOfEachColumn) {
    BlockRun run;
    run.Band(kSecond, 0, 32, Amounts::With);
    EXPECT_EQ(run.Block().RunStart, (std::array{0, 33}));
    EXPECT_EQ(run.Block().RunEnd, (std::array{32, 65}));
    EXPECT_EQ(run.Block().MemoryLeftCount(), 32);
    EXPECT_EQ(run.Block().MemoryRightCount(), 32);
}

TEST(Band, TakesNothingOnTheFinalPage) {
    BlockRun run;
    run.Front(PageId::frmP6);
    run.Drag(PageId::frmP6, 0, 0, 12240, 15840);
    EXPECT_FALSE(run.program.editing.BlockMode);
    EXPECT_TRUE(run.BlueAreas(PageId::frmP6).empty());
}

TEST(Band, IsNotDrawnOnTheClientsCopyOrOnInk) {
    BlockRun run;
    run.Front(PageId::frmP6_1);
    modBlocks::Form_MouseDown(run.program, 1, 0, 0);
    modBlocks::Form_MouseMove(run.program, PageId::frmP6_1, 1, 9000, 9000);
    EXPECT_FALSE(run.program.pages[PageId::frmP6_1].shpSelect.Visible);
    run.Front(kSecond);
    run.program.pages[kSecond].InkShown = true;
    modBlocks::Form_MouseDown(run.program, 1, 0, 0);
    modBlocks::Form_MouseMove(run.program, kSecond, 1, 12000, 9000);
    modBlocks::Form_MouseUp(run.program, kSecond, 1, 12000, 9000);
    EXPECT_FALSE(run.program.pages[kSecond].shpSelect.Visible);
    EXPECT_TRUE(run.BlueAreas(kSecond).empty());
    run.program.pages[kSecond].InkShown = false;
}

TEST(Band, TakesTheBoxesOfRowsWithColumnsAndDoesNotCountThem) {
    BlockRun run;
    run.PutRow(kSecond, 1, "2", "Chairs", "5");
    run.Band(kSecond, 0, 1);
    const Page& page = run.program.pages[kSecond];
    EXPECT_EQ(page.txtQty[1].BackColor, colors::kBlockSelected);
    EXPECT_EQ(page.txtQty[1].ForeColor, colors::kWhite);
    EXPECT_EQ(page.txtAmt[1].BackColor, colors::kBlockSelected);
    EXPECT_EQ(page.txtAmt[1].ForeColor, colors::kWhite);
    EXPECT_EQ(page.txtQty[0].BackColor, colors::kRestingRowField);
    EXPECT_EQ(run.Block().SelectedCount, 2);
    run.Choose(CommandId::mnuEditTextDeselect);
    EXPECT_EQ(page.txtQty[1].BackColor, colors::kRestingRowField);
    EXPECT_EQ(page.txtAmt[1].BackColor, colors::kRestingRowField);
    EXPECT_EQ(page.txtQty[1].ForeColor, colors::kBlack);
    EXPECT_EQ(run.Block().SelectedCount, 0);
}

TEST(Band, PaintsTheSignsOfItsMode) {
    BlockRun run;
    run.Band(kSecond, 0, 1);
    const MainWindow& main = run.program.main;
    const auto signs = [&] {
        return std::vector<Color>{main.lblEvent.BackColor,   main.lblCurPos.BackColor,
                                  main.lblTextNum.BackColor, main.lblDir.BackColor,
                                  main.lblTotal.BackColor,   main.cmdClearMem.BackColor};
    };
    EXPECT_EQ(signs(), std::vector<Color>(6, 0xFF0000));
    EXPECT_EQ(main.lblTextPos.BackColor, colors::kButtonFace);
    person::ClickClearSelected(run.program);
    EXPECT_EQ(signs(), std::vector<Color>(6, colors::kButtonFace));
    EXPECT_FALSE(run.program.editing.BlockMode);
}

TEST(Band, FillsTheMemoryAndHoldsNothingForPastingYet) {
    BlockRun run;
    run.Put(kSecond, 3, "Tables");
    run.Put(kSecond, 36, "12");
    run.Band(kSecond, 3, 4, Amounts::With);
    ASSERT_EQ(run.Block().MemoryLeft.size(), 2U);
    ASSERT_EQ(run.Block().MemoryRight.size(), 2U);
    EXPECT_EQ(run.Block().MemoryLeft[0].Text, "Tables");
    EXPECT_EQ(run.Block().MemoryRight[0].Text, "12");
    EXPECT_EQ(run.Block().MemoryLeftCount(), 1) << "last index from 0";
    EXPECT_FALSE(run.program.editing.BlockCopyHeld);
    EXPECT_TRUE(run.Enabled(CommandId::mnuEditTextCopy));
    EXPECT_FALSE(run.Enabled(CommandId::mnuEditTextPaste));
}

TEST(Band, AroundAmountsAloneIsRefusedAndTheSelectionIsGone) {
    BlockRun run;
    run.Front(kSecond);
    run.ExpectTold("Cannot select Amount Areas only. Please copy Description Areas also.");
    run.Drag(kSecond, 10000, 1700, 11400, 2500);
    EXPECT_TRUE(run.BlueAreas(kSecond).empty());
    EXPECT_FALSE(run.program.editing.BlockMode);
    EXPECT_FALSE(run.Block().HasRightRun);
    EXPECT_TRUE(run.Block().MemoryRight.empty());
    EXPECT_EQ(run.Block().SelectedCount, 0);
}

TEST(Band, ThatOnlyGrazesAreasSelectsNothing) {
    BlockRun run;
    run.Front(kSecond);
    run.Drag(kSecond, 1000, 1700, 9600, 5000);
    EXPECT_TRUE(run.BlueAreas(kSecond).empty());
    EXPECT_FALSE(run.program.editing.BlockMode);
}

TEST(Band, ASecondOneReplacesTheFirst) {
    BlockRun run;
    run.Put(kSecond, 8, "Lamps");
    run.Band(kSecond, 0, 4);
    run.Band(kSecond, 8, 8);
    EXPECT_EQ(run.BlueAreas(kSecond), Indices{8});
    EXPECT_EQ(run.Block().SelectedCount, 1);
    EXPECT_FALSE(run.Block().ManySelected);
    ASSERT_EQ(run.Block().MemoryLeft.size(), 1U);
    EXPECT_EQ(run.Block().MemoryLeft[0].Text, "Lamps");
}

TEST(Band, ASecondOneOnAnotherPageLeavesNoBlueBehind) {
    BlockRun run;
    run.Band(kFirst, 10, 12);
    run.Band(kSecond, 2, 3);
    EXPECT_TRUE(run.BlueAreas(kFirst).empty());
    EXPECT_EQ(run.BlueAreas(kSecond), (Indices{2, 3}));
}

TEST(Band, ThatTakesNothingEndsTheModeAndEmptiesTheMemory) {
    BlockRun run;
    run.Band(kSecond, 0, 1);
    run.Choose(CommandId::mnuEditTextCopy);
    run.Drag(kSecond, 0, 0, 500, 500);
    EXPECT_FALSE(run.program.editing.BlockMode);
    EXPECT_FALSE(run.program.editing.BlockCopyHeld);
    EXPECT_TRUE(run.Block().MemoryLeft.empty());
}

TEST(Band, AfterACopyTheNextOneIsWhatAPasteWrites) {
    BlockRun run;
    run.Put(kSecond, 0, "Chairs");
    run.Put(kSecond, 5, "Lamps");
    run.Band(kSecond, 0, 0);
    run.Choose(CommandId::mnuEditTextCopy);
    run.Band(kSecond, 5, 5);
    EXPECT_TRUE(run.Enabled(CommandId::mnuEditTextPaste)) << "held until it is cleared";
    Typist(run.program).Click(kSecond, 9);
    run.Choose(CommandId::mnuEditTextPaste);
    EXPECT_EQ(run.TextOf(kSecond, 9), "Lamps");
}

TEST(Band, AClickOnThePageChangesNothing) {
    BlockRun run;
    run.Front(kSecond);
    modBlocks::Form_MouseDown(run.program, 1, 300, 300);
    modBlocks::Form_MouseUp(run.program, kSecond, 1, 300, 300);
    EXPECT_FALSE(run.program.editing.BlockMode);
    run.Band(kSecond, 0, 1);
    modBlocks::Form_MouseDown(run.program, 1, 300, 300);
    modBlocks::Form_MouseMove(run.program, kSecond, 1, 330, 315); // a hand is never quite still
    modBlocks::Form_MouseUp(run.program, kSecond, 1, 330, 315);
    EXPECT_EQ(run.BlueAreas(kSecond), (Indices{0, 1}));
    EXPECT_TRUE(run.program.editing.BlockMode);
}

TEST(Band, LetGoOnAPageThatHasNoneLeavesWhatIsSelected) {
    BlockRun run;
    run.Band(kSecond, 0, 1);
    modBlocks::Form_MouseDown(run.program, 1, 800, 2500);
    modBlocks::Form_MouseMove(run.program, kSecond, 1, 9600, 4000);
    modBlocks::Form_MouseUp(run.program, PageId::frmP3, 1, 9600, 4000); // the page was turned meanwhile
    EXPECT_EQ(run.BlueAreas(kSecond), (Indices{0, 1}));
    EXPECT_TRUE(run.program.editing.BlockMode);
}

TEST(Band, TakesWhatACompletionShowsForWhatTheAreaHolds) {
    BlockRun run;
    Typist(run.program).Click(kSecond, 2);
    run.program.editing.ACActive[PageId::frmP2] = true;
    run.Put(kSecond, 2, "Chair covers");
    EXPECT_EQ(run.Stored(kSecond, 2), "");
    run.Band(kSecond, 2, 2);
    EXPECT_FALSE(run.program.editing.ACActive[PageId::frmP2]);
    EXPECT_EQ(run.Stored(kSecond, 2), "Chair covers");
}

TEST(Runs, OfPagesReachFromTheirFirstToTheirLastDescription) {
    const auto range = [](PageId page) {
        const modBlocks::RowRange rows = modBlocks::RowsOf(page);
        return std::pair(rows.First, rows.Last);
    };
    EXPECT_EQ(range(kFirst), std::pair(10, 19));
    for (const PageId page : {kSecond, PageId::frmP3, PageId::frmP4, PageId::frmP5}) {
        EXPECT_EQ(range(page), std::pair(0, 32));
    }
    EXPECT_EQ(range(PageId::frmP6), std::pair(0, 7));
}

TEST(Runs, AreNoneAndSayNothingWhereNothingIsBlue) {
    BlockRun run;
    for (const PageId page : kEditedPages) {
        run.Front(page);
        EXPECT_EQ(modBlocks::ReadOrRefuseSelection(run.program), modBlocks::Selection::None);
        EXPECT_EQ(run.Block().RunStart, (std::array{-1, -1}));
        EXPECT_EQ(run.Block().RunEnd, (std::array{-1, -1}));
        EXPECT_FALSE(run.Block().HasRightRun);
        EXPECT_EQ(run.Block().FirstRow, modBlocks::RowsOf(page).First);
        EXPECT_EQ(run.Block().LastRow, modBlocks::RowsOf(page).Last);
    }
    EXPECT_TRUE(run.surroundings.questions.Shown.empty());
}

TEST(Runs, EndAtAGap) {
    BlockRun run;
    run.Front(kSecond);
    for (const int row : {1, 2, 5}) {
        run.PutRow(kSecond, row, "1", "Row", "2");
    }
    // From 1000 on the band contains rows with columns only: plain rows begin at 900.
    run.Drag(kSecond, 1000, 1700, 11400, 4000);
    EXPECT_EQ(run.BlueAreas(kSecond), (Indices{1, 2, 5, 33, 34, 35, 36, 37, 38}));
    EXPECT_EQ(run.Block().RunStart, (std::array{1, 33}));
    EXPECT_EQ(run.Block().RunEnd, (std::array{2, 38}));
    EXPECT_EQ(run.Block().MemoryLeft.size(), 2U);
    EXPECT_TRUE(run.Block().HasRightRun);
    EXPECT_FALSE(run.Block().AtTop);
}

TEST(Runs, KnowWhenTheyTouchTheEndsOfThePage) {
    BlockRun run;
    run.Band(kSecond, 0, 3);
    EXPECT_TRUE(run.Block().AtTop);
    EXPECT_FALSE(run.Block().AtBottom);
    run.Band(kSecond, 30, 32);
    EXPECT_FALSE(run.Block().AtTop);
    EXPECT_TRUE(run.Block().AtBottom);
    run.Band(kFirst, 10, 19);
    EXPECT_TRUE(run.Block().AtTop);
    EXPECT_TRUE(run.Block().AtBottom);
    run.Band(kFirst, 11, 18);
    EXPECT_FALSE(run.Block().AtTop);
    EXPECT_FALSE(run.Block().AtBottom);
}

TEST(Deselect, EndsTheModeOnAllPagesAndEmptiesTheMemory) {
    BlockRun run;
    run.Band(kFirst, 10, 12, Amounts::With);
    run.Choose(CommandId::mnuEditTextCopy);
    run.Front(kSecond);
    run.program.editing.RefireMode = true;
    run.Choose(CommandId::mnuEditTextDeselect);
    EXPECT_TRUE(run.BlueAreas(kFirst).empty());
    EXPECT_EQ(run.Area(kFirst, 11).BackColor, colors::kResting);
    const BlockState& block = run.Block();
    EXPECT_EQ(block.RunStart, (std::array{-1, -1}));
    EXPECT_EQ(block.MemoryLeftCount(), 0);
    EXPECT_EQ(block.MemoryRightCount(), 0);
    EXPECT_TRUE(block.MemoryLeft.empty());
    EXPECT_TRUE(block.MemoryRight.empty());
    EXPECT_EQ(block.SelectedCount, 0);
    EXPECT_FALSE(block.ManySelected);
    EXPECT_FALSE(block.HasRightRun);
    EXPECT_FALSE(run.program.editing.BlockMode);
    EXPECT_FALSE(run.program.editing.BlockCopyHeld);
    EXPECT_FALSE(run.program.editing.RefireMode);
}

TEST(Band, WhoseButtonWasLetGoElsewhereIsGoneWithTheNextPress) {
    BlockRun run;
    run.Front(kSecond);
    modBlocks::Form_MouseDown(run.program, 1, 800, 1700);
    modBlocks::Form_MouseMove(run.program, kSecond, 1, 11400, 2500);
    run.Front(PageId::frmP3); // the page goes in mid-drag
    run.Front(kSecond);
    modBlocks::Form_MouseDown(run.program, 1, 300, 300);
    EXPECT_FALSE(run.program.pages[kSecond].shpSelect.Visible);
    modBlocks::Form_MouseUp(run.program, kSecond, 1, 300, 300);
    EXPECT_TRUE(run.BlueAreas(kSecond).empty());
}

TEST(BlockMode, LetsNoEditReachAField) {
    BlockRun run;
    run.Put(kSecond, 20, "Lamps");
    run.Put(kFirst, 1, "noon");
    run.Band(kSecond, 0, 1);
    Typist typist(run.program);
    typist.Click(kSecond, 20);
    typist.Type("x");
    typist.Press(keys::kBackspace);
    run.surroundings.clipboard.Text = "12";
    typist.Click(kSecond, 40);
    typist.Press(keys::kV, keys::kCtrlState);
    EXPECT_EQ(run.TextOf(kSecond, 20), "Lamps");
    EXPECT_EQ(run.TextOf(kSecond, 40), "");
    modText::txt_DblClick(run.program, kSecond, 20);
    EXPECT_FALSE(modPages::ColumnsOn(run.program, kSecond, 20));
    modText::txt_DblClick(run.program, kFirst, 1);
    EXPECT_EQ(run.TextOf(kFirst, 1), "noon");
    run.Choose(CommandId::mnuEditTextDeselect);
    typist.Click(kSecond, 20);
    typist.Type("x");
    EXPECT_EQ(run.TextOf(kSecond, 20), "Lampsx");
}

TEST(BlockMode, KeepsBlueAreasBlueWhenTheFocusComesAndGoes) {
    BlockRun run;
    run.Band(kSecond, 0, 1);
    Typist typist(run.program);
    typist.Click(kSecond, 1);
    EXPECT_TRUE(run.Blue(kSecond, 1));
    typist.Click(kSecond, 5);
    EXPECT_TRUE(run.Blue(kSecond, 1));
    EXPECT_EQ(run.Area(kSecond, 5).BackColor, colors::kFocused);
    typist.Press(keys::kEnter);
    EXPECT_EQ(run.program.main.Focus, BlockRun::Text(kSecond, 38)) << "Enter still walks";
    EXPECT_EQ(run.Area(kSecond, 5).BackColor, colors::kResting);
}

TEST(RightClick, RepaintsWhatIsOverItsLimitOutsideTheModeOnly) {
    BlockRun run;
    run.PutRow(kSecond, 4, std::string(40, '1'), "Row", "2");
    run.Area(kFirst, 12).Text = std::string(87, 'x'); // 8700 of 8640 twips
    run.Front(kSecond);
    modText::txt_MouseDown(run.program, kSecond, 8, 2);
    EXPECT_EQ(run.Area(kFirst, 12).BackColor, colors::kOverLimit);
    EXPECT_EQ(run.program.pages[kSecond].txtQty[4].BackColor, colors::kOverLimit);
    EXPECT_EQ(run.program.pages[kSecond].txtAmt[4].BackColor, colors::kRestingRowField);
    run.Area(kFirst, 12).BackColor = colors::kResting;
    run.Band(kSecond, 0, 1);
    modText::txt_MouseDown(run.program, kSecond, 8, 2);
    EXPECT_EQ(run.Area(kFirst, 12).BackColor, colors::kResting);
    EXPECT_TRUE(run.Blue(kSecond, 0));
}

TEST(RightClick, ABoxThatItsNumberFillsIsOverItsLimit) {
    BlockRun run;
    run.PutRow(kSecond, 4, "123", "Row", "2");
    TextArea& quantity = run.program.pages[kSecond].txtQty[4];
    for (const float room : {301.0F, 300.0F}) { // three figures of 100 twips
        quantity.Width = room;
        modText::txt_MouseDown(run.program, kSecond, 8, 2);
        EXPECT_EQ(quantity.BackColor, room > 300 ? colors::kRestingRowField : colors::kOverLimit);
    }
}

TEST(Band, TheRightButtonLetGoMeanwhileDoesNotEndIt) {
    BlockRun run;
    run.Front(kSecond);
    modBlocks::Form_MouseDown(run.program, 1, 800, 1700);
    modBlocks::Form_MouseMove(run.program, kSecond, 1, 9600, 2500);
    modBlocks::Form_MouseUp(run.program, kSecond, 2, 9600, 2500);
    EXPECT_TRUE(run.program.pages[kSecond].shpSelect.Visible);
    EXPECT_TRUE(run.Block().BandDragging);
    EXPECT_TRUE(run.BlueAreas(kSecond).empty());
    modBlocks::Form_MouseUp(run.program, kSecond, 1, 9600, 2500);
    EXPECT_FALSE(run.BlueAreas(kSecond).empty());
}

TEST(Runs, OfASelectionThatIsGoneAreForgotten) {
    BlockRun run;
    run.Band(kSecond, 0, 32, BlockRun::Amounts::With);
    ASSERT_TRUE(run.Block().AtTop && run.Block().AtBottom && run.Block().HasRightRun);
    modBlocks::ClearSelectionColors(run.program);
    EXPECT_EQ(modBlocks::ReadOrRefuseSelection(run.program), modBlocks::Selection::None);
    EXPECT_EQ(run.Block().RunStart, (std::array{-1, -1}));
    EXPECT_EQ(run.Block().RunEnd, (std::array{-1, -1}));
    EXPECT_FALSE(run.Block().HasRightRun);
    EXPECT_FALSE(run.Block().AtTop);
    EXPECT_FALSE(run.Block().AtBottom);
}

TEST(Runs, MayBeTheLastLineAlone) {
    BlockRun run;
    run.Band(kSecond, 32, 32, BlockRun::Amounts::With);
    EXPECT_EQ(modBlocks::ReadOrRefuseSelection(run.program), modBlocks::Selection::Runs);
    EXPECT_EQ(run.Block().RunStart, (std::array{32, 65}));
    EXPECT_EQ(run.Block().RunEnd, (std::array{32, 65}));
}

TEST(Band, BeginsWithTheSixtiethTwipInEitherDirection) {
    for (const auto& [right, down] : {std::pair(60.0F, 0.0F), std::pair(0.0F, 60.0F)}) {
        BlockRun run;
        run.Front(kSecond);
        modBlocks::Form_MouseDown(run.program, 1, 1000, 2000);
        modBlocks::Form_MouseMove(run.program, kSecond, 1, 1000 + right - 1, 2000 + down - 1);
        EXPECT_FALSE(run.program.pages[kSecond].shpSelect.Visible) << "a hand is never quite still";
        modBlocks::Form_MouseMove(run.program, kSecond, 1, 1000 + right, 2000 + down);
        EXPECT_TRUE(run.program.pages[kSecond].shpSelect.Visible);
    }
}

TEST(SelectionByKey, GrowsFromTheTopOfABandWhateverWasSelectedByKeyBefore) {
    BlockRun run;
    Typist typist(run.program);
    typist.Click(kSecond, 5);
    typist.Press(keys::kUp, keys::kShiftState); // from the sixth line up
    run.Band(kSecond, 2, 5);
    typist.Press(keys::kDown, keys::kShiftState);
    EXPECT_EQ(run.Block().RunStart[0], 2);
    EXPECT_EQ(run.Block().RunEnd[0], 6);
}

TEST(SelectionByKey, TakesWhatACompletionShowsForWhatTheAreaHolds) {
    BlockRun run;
    Typist typist(run.program);
    typist.Click(kSecond, 0);
    typist.Type("flow");
    run.program.editing.ACActive[kSecond] = true;
    modFields::TypeText(run.program, BlockRun::Text(kSecond, 0), "flowers", 4, 3);
    EXPECT_EQ(modBlocks::ExtendByKey(run.program, BlockRun::Text(kSecond, 0), modBlocks::Toward::Down),
              Taken::Yes);
    EXPECT_EQ(run.Stored(kSecond, 0), "flowers");
    EXPECT_FALSE(run.program.editing.ACActive[kSecond]);
}

} // namespace
