#include "base/files.h"
#include "full_proposal.h"
#include "search/frm_search.h"
#include "terms/completion.h"
#include "terms/term_list.h"
#include "terms/term_match.h"

#include <benchmark/benchmark.h>

#include <string>
#include <string_view>
#include <vector>

// Completion over a list as long as lists may be, side by side with the plain walk over the same lines;
// search; reading a list.

namespace {

/// 32,000 lines, no two alike; words of three letters that hit early, late or not at all.
struct LongList {
    LongList() {
        for (int line = 0; line < modTerms::kMostTerms; ++line) {
            const char first = static_cast<char>('a' + line / 1400);
            const char second = static_cast<char>('a' + line / 60 % 23);
            texts.push_back(std::string{first, second, ' '} + std::to_string(line) + " chairs [3.50]");
        }
        for (const std::string& text : texts) {
            terms.Lines.push_back(text);
            bytes += (bytes.empty() ? "" : "\r\n") + text;
        }
    }
    std::vector<std::string> texts;
    std::string bytes;
    TermsRecords terms;
};

constexpr std::string_view kWords[] = {"aa ", "wu ", "zzz"};

std::string StepWith(const LongList& list, std::optional<std::size_t> line, std::string_view word) {
    return line ? modTerms::CompletionFor(word, list.terms.Lines[*line]).value_or("") : std::string();
}

void CompletionStepByIndex(benchmark::State& state) {
    LongList list;
    const std::string_view word = kWords[state.range(0)];
    list.terms.Index = modTerms::BuildIndex(list.terms.Lines);
    for (auto _ : state) {
        benchmark::DoNotOptimize(StepWith(list, modTerms::FindMatch(list.terms, word), word));
    }
}
BENCHMARK(CompletionStepByIndex)->DenseRange(0, 2)->Unit(benchmark::kMicrosecond);

void CompletionStepByWalk(benchmark::State& state) {
    LongList list;
    const std::string_view word = kWords[state.range(0)];
    for (auto _ : state) {
        benchmark::DoNotOptimize(StepWith(list, modTerms::FirstMatchByWalk(list.terms.Lines, word), word));
    }
}
BENCHMARK(CompletionStepByWalk)->DenseRange(0, 2)->Unit(benchmark::kMicrosecond);

void IndexOfALongList(benchmark::State& state) {
    LongList list;
    for (auto _ : state) {
        benchmark::DoNotOptimize(modTerms::BuildIndex(list.terms.Lines));
    }
}
BENCHMARK(IndexOfALongList)->Unit(benchmark::kMillisecond);

void ReadOfALongList(benchmark::State& state) {
    const LongList list;
    FullProposal proposal;
    files::WriteWhole(modTerms::PathInUse(proposal.program), list.bytes);
    for (auto _ : state) {
        modTerms::ReadFrequentlyUsedTerms(proposal.program);
    }
    if (proposal.program.terms.TermCount() != modTerms::kMostTerms) {
        state.SkipWithError("the list was not read");
    }
}
BENCHMARK(ReadOfALongList)->Unit(benchmark::kMicrosecond);

void RawReadOfALongList(benchmark::State& state) {
    const LongList list;
    FullProposal proposal;
    const std::string path = modTerms::PathInUse(proposal.program);
    files::WriteWhole(path, list.bytes);
    for (auto _ : state) {
        benchmark::DoNotOptimize(files::ReadAll(path));
    }
}
BENCHMARK(RawReadOfALongList)->Unit(benchmark::kMicrosecond);

void SearchOfAFullProposal(benchmark::State& state) {
    FullProposal proposal;
    frmSearch dialog;
    dialog.Form_Load(proposal.program);
    dialog.cmbSearch_Change(proposal.program, state.range(0) == 0 ? "nothing like it" : "COVERS");
    for (auto _ : state) {
        proposal.program.search.lstResults.clear();
        dialog.SearchPages(proposal.program);
    }
}
BENCHMARK(SearchOfAFullProposal)->DenseRange(0, 1)->Unit(benchmark::kMicrosecond);

} // namespace
