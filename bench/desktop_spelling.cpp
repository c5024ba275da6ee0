#include "desktop/hunspell_dictionaries.h"
#include "desktop/odt_document.h"
#include "full_proposal.h"
#include "output/page_count.h"
#include "output/proposal_text.h"
#include "spelling/spelling_service.h"
#include "spelling/spelling_walk.h"

#include <benchmark/benchmark.h>

namespace {

/// From the command to its end, the machine's English loaded and every word right.
void SpellingWalkOverAFullProposal(benchmark::State& state) {
    FullProposal full;
    HunspellDictionaries english;
    if (!english.Use("en_US")) {
        state.SkipWithError("no English dictionary");
        return;
    }
    full.recording.dictionaries.Real = &english;
    full.recording.words.MakeSpelling = [&full] { return modSpelling::MakeService(full.program); };
    for (auto _ : state) {
        modSpelling::mnuEditSpellCheck_Click(full.program);
        if (full.program.spelling.Service != nullptr) {
            state.SkipWithError("a word was not known");
            return;
        }
    }
    full.recording.dictionaries.Real = nullptr;
}
BENCHMARK(SpellingWalkOverAFullProposal)->Unit(benchmark::kMillisecond);

/// Happens at the first check of a run, not at the start of the program.
void LoadingOfTheDictionary(benchmark::State& state) {
    for (auto _ : state) {
        HunspellDictionaries english;
        benchmark::DoNotOptimize(english.Use("en_US"));
    }
}
BENCHMARK(LoadingOfTheDictionary)->Unit(benchmark::kMillisecond);

void DocumentOfAFullProposal(benchmark::State& state) {
    FullProposal full;
    modPageCount::CountPagesInUse(full.program);
    const std::vector<DocumentLine> lines = modExport::ProposalLines(full.program);
    for (auto _ : state) {
        benchmark::DoNotOptimize(odt::Make(lines));
    }
}
BENCHMARK(DocumentOfAFullProposal)->Unit(benchmark::kMillisecond);

} // namespace
