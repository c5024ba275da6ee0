#include "editing/blocks.h"

#include "base/guard.h"
#include "base/text.h"
#include "editing/area_contents.h"
#include "editing/push.h"
#include "editing/selection.h"
#include "editing/standing_completion.h"
#include "editing/text_menu.h"
#include "money/totals.h"
#include "pages/page_geometry.h"
#include "pages/row_fields.h"
#include "program/errors.h"
#include "program/program.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace modBlocks {

namespace {

void Tell(const Program& program, std::string_view words) {
    program.platform.questions.MsgBox(words, Buttons::Ok, "");
}

/// Final contents first, then one change: the line is stored as it will stand.
void WriteArea(Program& program, PageId page, int index, const AreaContents& contents) {
    PlaceContents(program, page, index, contents);
    RunChange(program, page, index);
}

void CountPage(Program& program, PageId page) {
    modTotals::CalculateMyTotals(program, page);
    modTotals::UpdateRunningTotals(program);
}

/// Empties the selected areas of the active page into the undo memory.
void ClearSelectedAreas(Program& program) {
    const PageId page = program.main.ActivePage;
    BlockState& block = program.editing.Block;
    const ScopedFlag refiring(program.editing.RefireMode);
    block.UndoMemory.clear();
    block.UndoPage = page;
    for (int index = 0; index <= geometry::LastText(page); ++index) {
        if (IsSelected(program, page, index)) {
            block.UndoMemory.push_back({index, ReadContents(program, page, index)});
            WriteArea(program, page, index, {});
        }
    }
    program.editing.UndoAvailable = true;
    ClearSelectionColors(program);
    CountPage(program, page);
}

void EndMode(Program& program) {
    program.editing.BlockMode = false;
    ShowModeSign(program, ModeSign::Hidden);
}

/// Where a paste would write: first and last description, first and last amount (none when Last < First).
struct PasteTarget {
    PageId Page = PageId::frmP1;
    int First = 0;
    int Last = 0;
    int FirstAmount = 0;
    int LastAmount = -1;
};

PasteTarget TargetOfPaste(Program& program) {
    BlockState& block = program.editing.Block;
    PasteTarget target;
    target.Page = program.main.ActivePage;
    target.First = program.editing.CurrentArea;
    target.Last = target.First + block.MemoryLeftCount();
    block.RunStart = {target.First, -1};
    block.RunEnd = {target.Last, -1};
    if (!block.MemoryRight.empty()) {
        target.FirstAmount = geometry::AmountOf(target.Page, target.First);
        target.LastAmount = target.FirstAmount + block.MemoryRightCount();
        block.RunStart[1] = target.FirstAmount;
        block.RunEnd[1] = target.LastAmount;
    }
    return target;
}

bool PageTakesPaste(const Program& program) {
    const PageId page = program.main.ActivePage;
    return IsLinePage(page) && program.main.PageInFront != PageId::frmP6_1 &&
           program.editing.CurrentArea >= RowsOf(page).First;
}

bool AnyText(const Program& program, const PasteTarget& target) {
    for (int index = target.First; index <= target.Last; ++index) {
        if (HoldsText(program, target.Page, index)) {
            return true;
        }
    }
    for (int index = target.FirstAmount; index <= target.LastAmount; ++index) {
        if (HoldsText(program, target.Page, index)) {
            return true;
        }
    }
    return false;
}

/// "Page 2, lines 3 to 6"
std::string PlaceOf(const PasteTarget& target) {
    const int first = target.First - RowsOf(target.Page).First + 1;
    const int last = target.Last - RowsOf(target.Page).First + 1;
    if (first < 1) {
        return std::string(geometry::PageCaption(target.Page)); // an address or a date goes along
    }
    const std::string lines = first == last
                                  ? ", line " + std::to_string(first)
                                  : ", lines " + std::to_string(first) + " to " + std::to_string(last);
    return std::string(geometry::PageCaption(target.Page)) + lines;
}

bool MayWrite(const Program& program, const PasteTarget& target) {
    if (target.Last > RowsOf(target.Page).Last || target.LastAmount > geometry::LastText(target.Page)) {
        Tell(program, "Cannot paste here. Out of space.");
        return false;
    }
    if (!AnyText(program, target)) {
        return true;
    }
    const Answer answer = program.platform.questions.MsgBox(
        "Text is present in destination areas. Over-write this text with that in memory?", Buttons::YesNo,
        "Text areas are not all empty.",
        {.Default = Answer::No, .Lost = "The texts of " + PlaceOf(target) + " will be replaced."});
    if (answer != Answer::Yes) {
        Tell(program, "Action Cancelled.");
        return false;
    }
    return true;
}

void WriteMemory(Program& program, const PasteTarget& target) {
    const ScopedFlag refiring(program.editing.RefireMode);
    modText::ForgetKey(program);
    const BlockState& block = program.editing.Block;
    int index = target.First;
    for (const AreaContents& contents : block.MemoryLeft) {
        WriteArea(program, target.Page, index++, contents);
    }
    index = target.FirstAmount;
    for (const AreaContents& contents : block.MemoryRight) {
        WriteArea(program, target.Page, index++, contents);
    }
    CountPage(program, target.Page);
}

/// What stands now where a delete has emptied, and would be gone with the undo.
bool WouldBeLost(const Program& program, PageId page, const ClearedArea& cleared) {
    const AreaContents now = ReadContents(program, page, cleared.Index);
    const auto lost = [](std::string_view stands, std::string_view comes) {
        return !text::Trim(stands).empty() && stands != comes;
    };
    return lost(now.Text, cleared.Contents.Text) ||
           (now.Quantity != modPages::kQuantityPlaceholder &&
            lost(now.Quantity, cleared.Contents.Quantity)) ||
           (now.Price != modPages::kPricePlaceholder && lost(now.Price, cleared.Contents.Price));
}

/// The line of a description or amount; what stands above the lines is before the first.
int RowOf(PageId page, int index) {
    const int first = geometry::FirstRow(page);
    return geometry::IsAmount(page, index) ? index - geometry::AmountOf(page, first) + first : index;
}

bool MayUndo(const Program& program) {
    const BlockState& block = program.editing.Block;
    const PageId page = block.UndoPage;
    const RowRange rows = RowsOf(page);
    PasteTarget lost{page, rows.Last + 1, rows.First - 1};
    for (const ClearedArea& cleared : block.UndoMemory) {
        if (WouldBeLost(program, page, cleared)) {
            const int row = RowOf(page, cleared.Index);
            lost.First = std::min(lost.First, row);
            lost.Last = std::max(lost.Last, row);
        }
    }
    if (lost.Last < lost.First) {
        return true;
    }
    const Answer answer = program.platform.questions.MsgBox(
        "Text is present where the deleted text goes back. Over-write this text with the deleted text?",
        Buttons::YesNo, "Text areas are not all empty.",
        {.Default = Answer::No, .Lost = "The texts of " + PlaceOf(lost) + " will be replaced."});
    if (answer != Answer::Yes) {
        Tell(program, "Action Cancelled.");
    }
    return answer == Answer::Yes;
}

} // namespace

void CopyBlock(Program& program) {
    FinishMove(program);
    if (ReadOrRefuseSelection(program) == Selection::Runs) {
        CopyBlockToMemory(program);
        program.editing.BlockCopyHeld = true;
    }
    modTextMenu::UpdateTextMenu(program);
}

void DeleteBlock(Program& program) {
    Guarded(program, "DeleteTextContents", [&] {
        FinishMove(program);
        if (ReadOrRefuseSelection(program) == Selection::Runs) {
            ClearSelectedAreas(program);
            EndMode(program);
        }
        modTextMenu::UpdateTextMenu(program);
    });
}

void CutBlock(Program& program) {
    const bool done = Guarded(program, "DeleteTextContents", [&] {
        FinishMove(program);
        if (ReadOrRefuseSelection(program) == Selection::Runs) {
            CopyBlockToMemory(program);
            program.editing.BlockCopyHeld = true;
            ClearSelectedAreas(program);
        }
        modTextMenu::UpdateTextMenu(program);
    });
    if (!done) {
        Tell(program, "An error occurred while cutting text.");
    }
}

void UndoDeleteBlock(Program& program) {
    if (!program.editing.UndoAvailable) {
        return;
    }
    FinishMove(program);
    BlockState& block = program.editing.Block;
    modText::SettleCompletion(program, block.UndoPage);
    if (!MayUndo(program)) {
        return; // it stays for another time
    }
    {
        const ScopedFlag refiring(program.editing.RefireMode);
        modText::ForgetKey(program);
        for (const ClearedArea& cleared : block.UndoMemory) {
            WriteArea(program, block.UndoPage, cleared.Index, cleared.Contents);
        }
    }
    CountPage(program, block.UndoPage);
    block.UndoMemory.clear();
    program.editing.UndoAvailable = false;
    modTextMenu::UpdateTextMenu(program);
}

void PasteBlock(Program& program) {
    FinishMove(program);
    if (!PageTakesPaste(program)) {
        Tell(program, "Cannot paste here.");
        return;
    }
    if (program.editing.Block.MemoryLeft.empty()) {
        return;
    }
    const PasteTarget target = TargetOfPaste(program);
    if (MayWrite(program, target)) {
        WriteMemory(program, target);
    }
    modTextMenu::UpdateTextMenu(program);
}

} // namespace modBlocks
