#include "editing/block_actions.h"
#include "editing/blocks.h"
#include "editing/fresh_figures.h"
#include "editing/selection.h"
#include "editing/text_menu.h"
#include "program/keys.h"
#include "support/typist.h"

#include <gtest/gtest.h>

// Lines that an arrow has moved and whose key is still held: whatever comes next finds them stored.

namespace {

constexpr PageId kSecond = PageId::frmP2;

struct HeldRun : BlockRun {
    /// A line that has been moved from the fourth row to the fifth.
    HeldRun() {
        PutRow(kSecond, 3, "2", "Row", "5");
        typist.Click(kSecond, 20);
        Band(kSecond, 3, 3);
        typist.Hold(keys::kDown);
        EXPECT_TRUE(program.editing.MoveInProgress);
    }
    void ExpectFinished() {
        EXPECT_FALSE(program.editing.MoveInProgress);
        EXPECT_EQ(Stored(kSecond, 3), "");
    }
    Typist typist{program};
};

TEST(HeldMove, IsFinishedBeforeABlockCommandReadsTheSelection) {
    for (void (*command)(Program&) : {modBlocks::CopyBlock, modBlocks::DeleteBlock, modBlocks::CutBlock,
                                      modBlocks::PasteBlock, modBlocks::DeSelectAllControls}) {
        HeldRun run;
        command(run.program);
        run.ExpectFinished();
    }
}

TEST(HeldMove, IsFinishedBeforeAnUndo) {
    BlockRun run;
    run.Put(kSecond, 8, "Deleted");
    run.Put(kSecond, 3, "Row");
    Typist typist(run.program);
    typist.Click(kSecond, 20);
    run.Band(kSecond, 8, 8);
    run.Choose(CommandId::mnuEditTextDelete);
    run.Band(kSecond, 3, 3);
    typist.Hold(keys::kDown);
    modBlocks::UndoDeleteBlock(run.program);
    EXPECT_FALSE(run.program.editing.MoveInProgress);
    EXPECT_EQ(run.Stored(kSecond, 4), "Row");
    EXPECT_EQ(run.Stored(kSecond, 8), "Deleted");
}

TEST(HeldMove, IsFinishedBeforeTheFiguresAreTaken) {
    HeldRun run;
    modFigures::TakeFresh(run.program);
    run.ExpectFinished();
}

TEST(HeldMove, IsFinishedBeforeABandIsDrawn) {
    HeldRun run;
    run.Drag(kSecond, 800, 6000, 9600, 8000);
    run.ExpectFinished();
}

TEST(HeldMove, ThatEndsBringsTheMenuUpToDate) {
    HeldRun run;
    run.program.editing.CurrentArea = 4;
    modTextMenu::UpdateTextMenu(run.program);
    run.program.main[CommandId::mnuEditTextColumns].Caption = "of another row";
    person::KeyUp(run.program, keys::kDown, 0, 0, 0);
    EXPECT_EQ(run.program.main[CommandId::mnuEditTextColumns].Caption, "Remove Columns")
        << "a line with columns stands there now";
}

} // namespace
