#include "core/files.h"
#include "document/fields.h"
#include "document/proposal_file.h"
#include "document/proposal_layout.h"
#include "document/reset.h"
#include "document/totals.h"
#include "editing/text_areas.h"
#include "shell/input.h"
#include "shell/page_switch.h"
#include "shell/start_up.h"
#include "shell/wiring.h"
#include "support/recording_platform.h"
#include "support/scratch_folder.h"
#include "support/typist.h"

#include <benchmark/benchmark.h>

#include <string>

namespace {

/// Says yes to everything, so that only the program's own work is measured.
class Agreeing : public Questions {
public:
    Answer MsgBox(std::string_view, Buttons buttons, std::string_view) override {
        return buttons == Buttons::Ok ? Answer::Ok : Answer::Yes;
    }
    std::string InputBox(std::string_view, std::string_view, std::string_view) override { return {}; }
};

/// A program with every row of every page filled, a third of them with columns.
struct FullProposal {
    ScratchFolder folder;
    Agreeing agreeing;
    RecordingPlatform recording;
    Platform platform{.questions = agreeing,
                      .measure = recording.measure,
                      .printers = recording.printers,
                      .screen = recording.screen,
                      .clipboard = recording.clipboard,
                      .shell = recording.shell,
                      .clock = recording.clock,
                      .instance = recording.instance,
                      .pictures = recording.pictures,
                      .events = recording.events};
    Program program{platform};

    FullProposal() {
        folder.MakeFolder("Proposals/Backup");
        program.folders.InstallFolder = folder.Path();
        program.folders.ProposalsFolder = folder / "Proposals/";
        program.settings.CurrencySymbol = "$";
        program.settings.PrefsRead = true;
        program.main.ClientHeight = 9000;
        Wire(program);
        modMain::MDIForm_Load(program);
        program.document.FilePath = program.folders.ProposalsFolder;
        Fill();
    }

    void Fill() {
        for (const PageId page : kLinePages) {
            for (std::size_t index = 0; index < program.pages[page].txt.size(); ++index) {
                const bool amount = program.pages[page].txt[index].Tag == "Amount.020";
                modFields::SetText(program, {page, FieldKind::txt, static_cast<int>(index)},
                                   amount ? "1,234.50" : "Chairs with covers, set up in the hall");
            }
            modTotals::CalculateMyTotals(program, page);
        }
        modTotals::UpdateRunningTotals(program);
        // Filling the client's area has named the proposal already.
        program.document.FileName = "Full.hef";
        program.document.BaseName = "Full";
    }
};

void KeyThroughTheChangePipeline(benchmark::State& state) {
    FullProposal full;
    const FieldRef field{PageId::frmP1, FieldKind::txt, 12};
    modInput::FieldMouseDown(full.program, field, 1, 0, 0, 0);
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

/// A blank in the middle of the first row of a page whose rows are all full: every row passes words on.
void BlankThatPushesThroughThirtyRows(benchmark::State& state) {
    FullProposal full;
    const FieldRef field{PageId::frmP2, FieldKind::txt, 0};
    const std::string line =
        "abcdefghi abcdefghi abcdefghi abcdefghi abcdefghi abcdefghi abcdefghi abcdefghi jklmno";
    const std::string typed = "abc" + (" " + line.substr(3));
    auto& rows = full.program.pages[PageId::frmP2].txt;
    modScroll::UpdatePageButtons(full.program, 1);
    modInput::FieldMouseDown(full.program, field, 1, 0, 3, 0);
    for (auto _ : state) {
        state.PauseTiming();
        for (std::size_t row = 0; row <= 32; ++row) {
            rows[row].Text = line;
        }
        full.program.editing.KeyCounter = 0;
        state.ResumeTiming();
        benchmark::DoNotOptimize(modInput::KeyDown(full.program, ' ', 0, 3, 0));
        benchmark::DoNotOptimize(modInput::KeyPress(full.program, ' '));
        modInput::Edited(full.program, field, typed, 4, 0);
        modInput::KeyUp(full.program, ' ', 0, 4, 0);
    }
    if (rows[31].Text == line) {
        state.SkipWithError("the words did not reach the last row");
    }
}
BENCHMARK(BlankThatPushesThroughThirtyRows)->Unit(benchmark::kMicrosecond);

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
    modFile::SaveEventFile(full.program);
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
    modFile::SaveEventFile(full.program);
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
        benchmark::DoNotOptimize(modMain::StartNewFile(full.program));
    }
}
BENCHMARK(ResetOfAllPages)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
