#include "editing/block_moves.h"

#include "base/guard.h"
#include "base/text.h"
#include "editing/area_contents.h"
#include "editing/navigation.h"
#include "editing/selection.h"
#include "editing/text_menu.h"
#include "pages/page_geometry.h"
#include "program/keys.h"
#include "program/program.h"

#include <exception>
#include <memory>
#include <string>
#include <string_view>

namespace modBlocks {

namespace {

/// The two directions in one table: the step, the words of their refusals.
struct Way {
    int Step;
    std::string_view OutOfSpace;
    std::string_view TextThere;
    modNavigate::Direction Scroll;
};

constexpr Way kUp{-1, "Cannot move contents up any higher.",
                  "Cannot move contents up. Text exists in destination.", modNavigate::Direction::Up};
constexpr Way kDown{1, "Cannot move contents down. Out of space.",
                    "Cannot move contents down. Text exists in destination.", modNavigate::Direction::Down};

bool LeadsDown(const Way& way) {
    return way.Scroll == modNavigate::Direction::Down;
}

/// The area into which a run would move.
int Ahead(const BlockState& block, std::size_t run, const Way& way) {
    return (LeadsDown(way) ? block.RunEnd[run] : block.RunStart[run]) + way.Step;
}

int LengthOf(const BlockState& block, std::size_t run) {
    return block.RunEnd[run] - block.RunStart[run];
}

std::string Refusal(const Program& program, const Way& way) {
    const PageId page = program.main.ActivePage;
    const BlockState& block = program.editing.Block;
    const bool leftAtEdge = LeadsDown(way) ? block.AtBottom : block.AtTop;
    const bool rightAtEdge = block.HasRightRun && !geometry::IsAmount(page, Ahead(block, 1, way));
    if (leftAtEdge || rightAtEdge) {
        return std::string(way.OutOfSpace);
    }
    if (HoldsText(program, page, Ahead(block, 0, way)) ||
        (block.HasRightRun && HoldsText(program, page, Ahead(block, 1, way)))) {
        return std::string(way.TextThere);
    }
    if (block.HasRightRun && LengthOf(block, 0) != LengthOf(block, 1)) {
        return text::Lines({"Cannot move text. The number of right-hand boxes",
                            "must match the number of left-hand boxes."});
    }
    return {};
}

/// The area that moves first is the one that stands ahead.
void MoveRun(Program& program, std::size_t run, const Way& way) {
    const PageId page = program.main.ActivePage;
    BlockState& block = program.editing.Block;
    const int ahead = Ahead(block, run, way);
    const int behind = LeadsDown(way) ? block.RunStart[run] : block.RunEnd[run];
    for (int index = ahead; index != behind; index -= way.Step) {
        PlaceContents(program, page, index, ReadContents(program, page, index - way.Step));
    }
    PlaceContents(program, page, behind, {});
    for (int index = ahead; index != behind; index -= way.Step) {
        PaintArea(program, page, index, Selected::Yes);
    }
    PaintArea(program, page, behind, Selected::No);
    block.RunStart[run] += way.Step;
    block.RunEnd[run] += way.Step;
}

enum class Moved { No, Yes };

/// Handlers are silent from here on; the caller ends that by `FinishMove`.
Moved MoveRuns(Program& program, const Way& way) {
    std::unique_ptr<ScopedFlag>& moving = program.editing.Block.Moving;
    if (!moving) { // a held key moves again and again
        moving = std::make_unique<ScopedFlag>(program.editing.MoveInProgress);
    }
    if (ReadOrRefuseSelection(program) != Selection::Runs) {
        FinishMove(program);
        return Moved::No;
    }
    const std::string refusal = Refusal(program, way);
    if (!refusal.empty()) {
        FinishMove(program); // the message takes the release of the key
        program.platform.questions.MsgBox(refusal, Buttons::Ok, "");
        return Moved::No;
    }
    // Known before the first text moves, so that a failure half way leaves nothing unstored.
    program.editing.Block.MovedPage = program.main.ActivePage;
    MoveRun(program, 0, way);
    if (program.editing.Block.HasRightRun) {
        MoveRun(program, 1, way);
    }
    return Moved::Yes;
}

template <typename Work> void TellingOfFailure(Program& program, Work&& work) {
    try {
        work();
    } catch (const std::exception&) {
        program.editing.Block.Moving.reset();
        TellMoveFailed(program);
    }
}

void MoveByMenu(Program& program, const Way& way) {
    TellingOfFailure(program, [&] {
        MoveRuns(program, way);
        FinishMove(program);
        modTextMenu::UpdateTextMenu(program);
    });
}

} // namespace

void MoveBlockUp(Program& program) {
    MoveByMenu(program, kUp);
}

void MoveBlockDown(Program& program) {
    MoveByMenu(program, kDown);
}

void MoveBlockByKey(Program& program, int keyCode) {
    const Way& way = keyCode == keys::kUp ? kUp : kDown;
    TellingOfFailure(program, [&] {
        if (MoveRuns(program, way) == Moved::No) {
            return;
        }
        const PageId page = program.main.ActivePage;
        const int edge = Ahead(program.editing.Block, 0, way) - way.Step;
        modNavigate::ScrollTest(program, page, program.pages[page].txt[static_cast<std::size_t>(edge)].Top,
                                way.Scroll);
    });
}

void Form_KeyUp(Program& program) {
    if (program.editing.MoveInProgress) {
        FinishMove(program);
        modTextMenu::UpdateTextMenu(program);
    }
}

} // namespace modBlocks
