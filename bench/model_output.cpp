#include "base/files.h"
#include "full_proposal.h"
#include "output/page_count.h"
#include "output/proposal_text.h"
#include "output/text_export.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace {

/// Figures and text of a full proposal into its file, under a name that is taken already.
void ExportOfAFullProposalToText(benchmark::State& state) {
    FullProposal full;
    for (auto _ : state) {
        modExport::SaveFileAsText(full.program);
    }
}
BENCHMARK(ExportOfAFullProposalToText)->Unit(benchmark::kMicrosecond);

/// What it may take three times: the same bytes written the same safe way.
void RawWriteOfTheSameText(benchmark::State& state) {
    FullProposal full;
    modPageCount::CountPagesInUse(full.program);
    const std::string text = modExport::ProposalText(full.program);
    const std::string path = full.folder / "Proposals/Raw.txt";
    for (auto _ : state) {
        files::WriteWhole(path, text);
    }
    state.counters["bytes"] = static_cast<double>(text.size());
}
BENCHMARK(RawWriteOfTheSameText)->Unit(benchmark::kMicrosecond);

} // namespace
