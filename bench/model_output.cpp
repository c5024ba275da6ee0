#include "base/files.h"
#include "full_proposal.h"
#include "output/page_count.h"
#include "output/proposal_text.h"
#include "output/text_export.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <optional>
#include <string>

namespace {

/// Where the proposal's folder lies: where temporary files do, which may be memory, or on the disk of the
/// build.
enum class Place { Temporary, Disk };

class In {
public:
    explicit In(Place place) {
        if (const char* before = std::getenv("TMPDIR")) {
            before_ = before;
        }
        if (place == Place::Disk) {
            ::setenv("TMPDIR", QUILLBROOK_BUILD_FOLDER, 1);
        }
    }
    ~In() {
        if (before_) {
            ::setenv("TMPDIR", before_->c_str(), 1);
        } else {
            ::unsetenv("TMPDIR");
        }
    }
    In(const In&) = delete;
    In& operator=(const In&) = delete;

private:
    std::optional<std::string> before_;
};

/// Figures and text of a full proposal into its file, under a name that is taken already.
void ExportOfAFullProposalToText(benchmark::State& state, Place place) {
    const In in(place);
    FullProposal full;
    for (auto _ : state) {
        modExport::SaveFileAsText(full.program);
    }
}
BENCHMARK_CAPTURE(ExportOfAFullProposalToText, temporary, Place::Temporary)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(ExportOfAFullProposalToText, disk, Place::Disk)->Unit(benchmark::kMicrosecond);

/// What it may take three times: the same bytes written the same safe way.
void RawWriteOfTheSameText(benchmark::State& state, Place place) {
    const In in(place);
    FullProposal full;
    modPrint::CountPagesInUse(full.program);
    const std::string text = modExport::ProposalText(full.program);
    const std::string path = full.folder / "Proposals/Raw.txt";
    for (auto _ : state) {
        files::WriteWhole(path, text);
    }
    state.counters["bytes"] = static_cast<double>(text.size());
}
BENCHMARK_CAPTURE(RawWriteOfTheSameText, temporary, Place::Temporary)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(RawWriteOfTheSameText, disk, Place::Disk)->Unit(benchmark::kMicrosecond);

} // namespace
