#include "base/files.h"
#include "editing/typing.h"
#include "full_proposal.h"
#include "money/totals.h"
#include "proposal/property_file.h"
#include "proposal/proposal_layout.h"
#include "proposal/proposal_open.h"
#include "proposal/proposal_save.h"
#include "proposal/reset.h"
#include "shell/input.h"
#include "support/scratch_folder.h"

#include <benchmark/benchmark.h>

#include <string>

namespace {

void KeyThroughTheChangePipeline(benchmark::State& state) {
    FullProposal full;
    const FieldRef field{PageId::frmP1, FieldKind::txt, 12};
    modInput::FieldMouseDown(full.program, field, 1, 0, 0);
    const std::string one = "Chairs with covers, set up in the hall";
    const std::string other = one + "s";
    bool longer = false;
    for (auto _ : state) {
        full.program.editing.KeyCounter = 0; // the automatic backup is measured with saving
        longer = !longer;
        benchmark::DoNotOptimize(modInput::KeyDown(full.program, 'S', 0, 3, 0));
        benchmark::DoNotOptimize(modInput::KeyPress(full.program, 's'));
        modInput::Edited(full.program, field, longer ? other : one, 4, 0);
        modInput::KeyUp(full.program, 'S', 0, 4, 0);
    }
}
BENCHMARK(KeyThroughTheChangePipeline);

void FullRecalculation(benchmark::State& state) {
    FullProposal full;
    for (auto _ : state) {
        modTotals::RecalculateAll(full.program);
        modTotals::UpdateRunningTotals(full.program);
    }
}
BENCHMARK(FullRecalculation);

void RefireOfAPage(benchmark::State& state) {
    FullProposal full;
    for (auto _ : state) {
        modText::RefireTextChanges(full.program, PageId::frmP2);
    }
}
BENCHMARK(RefireOfAPage);

void SaveAFullProposal(benchmark::State& state) {
    FullProposal full;
    static_cast<void>(modFile::SaveEventFile(full.program)); // the first one makes the file
    for (auto _ : state) {
        if (modFile::SaveEventFile(full.program) != modFile::SaveResult::Saved) {
            state.SkipWithError("the proposal was not saved");
        }
    }
}
BENCHMARK(SaveAFullProposal)->Unit(benchmark::kMicrosecond);

void WriteTheSameBytesRaw(benchmark::State& state) {
    const ScratchFolder folder;
    const std::string bytes(proposal::kFileLength, 'x');
    const std::string path = folder / "raw";
    for (auto _ : state) {
        if (files::Exists(path)) {
            files::Delete(path);
        }
        files::WriteWhole(path, bytes);
    }
}
BENCHMARK(WriteTheSameBytesRaw)->Unit(benchmark::kMicrosecond);

void OpenAFullProposal(benchmark::State& state) {
    FullProposal full;
    static_cast<void>(modFile::SaveEventFile(full.program)); // the first one makes the file
    for (auto _ : state) {
        if (modFile::OpenEventFile(full.program, "Full.hef") != modFile::OpenResult::Opened) {
            state.SkipWithError("the proposal was not opened");
        }
    }
}
BENCHMARK(OpenAFullProposal)->Unit(benchmark::kMicrosecond);

void ReadTheSameBytesRaw(benchmark::State& state) {
    const ScratchFolder folder;
    folder.Write("raw", std::string(proposal::kFileLength, 'x'));
    const std::string path = folder / "raw";
    for (auto _ : state) {
        benchmark::DoNotOptimize(files::ReadUpTo(path, proposal::kFileLength));
    }
}
BENCHMARK(ReadTheSameBytesRaw)->Unit(benchmark::kMicrosecond);

void ResetOfAllPages(benchmark::State& state) {
    FullProposal full;
    for (auto _ : state) {
        benchmark::DoNotOptimize(modReset::StartNewFile(full.program));
    }
}
BENCHMARK(ResetOfAllPages)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
