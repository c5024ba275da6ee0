#include "editing/block_moves.h"
#include "editing/selection.h"
#include "editing/typing.h"
#include "full_proposal.h"
#include "pages/row_fields.h"
#include "shell/input.h"
#include "shell/page_switch.h"

#include <benchmark/benchmark.h>

#include <string>

namespace {

constexpr PageId kPage = PageId::frmP2;
constexpr int kRows = 30;

FieldRef Text(int index) {
    return {kPage, FieldKind::txt, index};
}

/// Page 2 in front: thirty rows with columns, the last three rows and their amounts empty.
struct PricedPage : FullProposal {
    PricedPage() {
        modScroll::UpdatePageButtons(program, IndexOf(kPage));
        for (int row = 0; row < kRows; ++row) {
            modPages::PlaceColumns(program, kPage, row, modPages::Columns::On);
            modFields::SetText(program, {kPage, FieldKind::txtQty, row}, "12");
            modFields::SetText(program, {kPage, FieldKind::txtAmt, row}, "19.99");
        }
        for (int row = kRows; row <= 32; ++row) {
            modFields::SetText(program, Text(row), "");
            modFields::SetText(program, Text(row + 33), "");
        }
    }
};

void MoveOfThirtyRowsWithColumns(benchmark::State& state) {
    PricedPage page;
    Program& program = page.program;
    modBlocks::Form_MouseDown(program, 1, 800, 1700);
    modBlocks::Form_MouseMove(program, kPage, 1, 11400, 1800 + 360 * kRows - 20);
    modBlocks::Form_MouseUp(program, kPage, 1, 11400, 1800 + 360 * kRows - 20);
    if (program.editing.Block.SelectedCount != 2 * kRows) {
        state.SkipWithError("the band did not take the rows");
        return;
    }
    bool down = false;
    for (auto _ : state) {
        down = !down;
        down ? modBlocks::MoveBlockDown(program) : modBlocks::MoveBlockUp(program);
        if (program.editing.Block.RunStart[0] != (down ? 1 : 0)) {
            state.SkipWithError("the rows did not move");
        }
    }
}
BENCHMARK(MoveOfThirtyRowsWithColumns)->Unit(benchmark::kMicrosecond);

void RefireOfAPageWithColumns(benchmark::State& state) {
    PricedPage page;
    for (auto _ : state) {
        modText::RefireTextChanges(page.program, kPage);
    }
}
BENCHMARK(RefireOfAPageWithColumns)->Unit(benchmark::kMicrosecond);

/// Eight words and six letters fill a row to 8600 of its 8640 twips.
std::string FullLine() {
    std::string line;
    for (int word = 0; word < 8; ++word) {
        line += "abcdefghi ";
    }
    return line + "yyyyyy";
}

void ABlankThatPushesThroughThirtyRows(benchmark::State& state) {
    FullProposal full;
    Program& program = full.program;
    modScroll::UpdatePageButtons(program, IndexOf(kPage));
    const std::string line = FullLine();
    std::string typed = line;
    typed.insert(3, " ");
    for (auto _ : state) {
        state.PauseTiming();
        program.editing.LastKeyChar.clear();
        for (int row = 0; row <= kRows; ++row) {
            modFields::SetText(program, Text(row), row < kRows ? line : "");
        }
        modInput::FieldMouseDown(program, Text(0), 1, 3, 0);
        program.editing.KeyCounter = 0;
        state.ResumeTiming();
        benchmark::DoNotOptimize(modInput::KeyDown(program, ' ', 0, 3, 0));
        benchmark::DoNotOptimize(modInput::KeyPress(program, ' '));
        modInput::Edited(program, Text(0), typed, 4, 0);
        modInput::KeyUp(program, ' ', 0, 4, 0);
        if (program.pages[kPage].txt[kRows].Text.empty()) {
            state.SkipWithError("the push did not reach the last row");
        }
    }
}
BENCHMARK(ABlankThatPushesThroughThirtyRows)->Unit(benchmark::kMicrosecond);

} // namespace
