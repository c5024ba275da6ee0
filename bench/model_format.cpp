#include "base/files.h"
#include "format/format_file.h"
#include "format/format_lines.h"
#include "format/format_save.h"
#include "format/label_commit.h"
#include "format/label_designer.h"
#include "format/label_looks.h"
#include "full_proposal.h"
#include "pages/page_geometry.h"

#include <benchmark/benchmark.h>
#include <filesystem>
#include <string>
#include <system_error>

#include <unistd.h>

namespace {

/// Every label of every page changed, 150 texts, a logo and a font.
struct Letterhead : FullProposal {
    Letterhead() {
        agreeing.ToThreeAnswers = Answer::No; // layout and texts
        KeepTexts(150);
        for (const PageId page : kEditedPages) {
            for (int index = 0; index <= geometry::LastLabel(page); ++index) {
                LabelChangeRecord& record =
                    modDesigner::RecordOf(program.format.FormatLabelChanges, page, index);
                modDesigner::PutLook(record, modDesigner::LookOf(modDesigner::LabelAt(program, page, index)));
                record.Changed = true;
            }
        }
        program.format.LogoPath = "/srv/logo.png";
        // A logo without a font ends a save behind its last line, in a report.
        program.run.DefaultFontName = "Times New Roman";
        program.run.DefaultFontSize = 10;
        program.format.FormatFolder = folder / "Proposals/";
        program.format.FormatName = "House.fmt";
    }

    /// So many texts of those that a format can hold; the others go.
    void KeepTexts(int count) {
        for (const PageId page : kLinePages) {
            for (TextArea& area : program.pages[page].txt) {
                if (area.Tag != "Amount.020" && --count < 0) {
                    area.Text.clear();
                }
            }
        }
    }
    /// Saved once, the same format has nothing to save: something of it has to count as changed again.
    [[nodiscard]] bool Save() {
        program.format.LogoChanged = true;
        return modFormat::SaveFileFormat(program) == modFormat::FormatSave::Saved;
    }
};

void LayAFormat(benchmark::State& state) {
    Letterhead run;
    run.program.format.FormatLines =
        modFormat::LinesOf(run.program, modFormat::TablesNow(run.program, modFormat::Texts::LayoutAndTexts))
            .Lines;
    for (auto _ : state) {
        modFormat::ParseFormatFile(run.program);
    }
    state.counters["lines"] = static_cast<double>(run.program.format.FormatLines.size());
}
BENCHMARK(LayAFormat)->Unit(benchmark::kMillisecond);

/// Where the build lies is a disk, wherever the other benchmarks have their files.
class FolderOnADisk {
public:
    FolderOnADisk() { std::filesystem::create_directories(path_); }
    ~FolderOnADisk() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    FolderOnADisk(const FolderOnADisk&) = delete;
    FolderOnADisk& operator=(const FolderOnADisk&) = delete;
    [[nodiscard]] std::string Path() const { return path_.string() + "/"; }

private:
    std::filesystem::path path_ =
        std::filesystem::path(QUILLBROOK_BUILD_FOLDER) / ("bench-formats-" + std::to_string(::getpid()));
};

/// From the command to the file.
void Write(benchmark::State& state, Letterhead& run) {
    for (auto _ : state) {
        if (!run.Save()) {
            state.SkipWithError("the format was not saved");
            break;
        }
    }
    state.counters["lines"] = static_cast<double>(run.program.format.FormatLines.size());
}

void WriteRaw(benchmark::State& state, Letterhead& run) {
    if (!run.Save()) {
        state.SkipWithError("the format was not saved");
        return;
    }
    const std::string& folder = run.program.format.FormatFolder;
    const std::string bytes = files::ReadAll(folder + "House.fmt");
    for (auto _ : state) {
        files::WriteWhole(folder + "Raw.fmt", bytes);
    }
}

void WriteAFormat(benchmark::State& state) {
    Letterhead run;
    Write(state, run);
}
BENCHMARK(WriteAFormat)->Unit(benchmark::kMillisecond);

void WriteTheSameBytes(benchmark::State& state) {
    Letterhead run;
    WriteRaw(state, run);
}
BENCHMARK(WriteTheSameBytes)->Unit(benchmark::kMillisecond);

void WriteAFormatOnADisk(benchmark::State& state) {
    const FolderOnADisk disk;
    Letterhead run;
    run.program.format.FormatFolder = disk.Path();
    Write(state, run);
}
BENCHMARK(WriteAFormatOnADisk)->Unit(benchmark::kMillisecond)->UseRealTime();

void WriteTheSameBytesOnADisk(benchmark::State& state) {
    const FolderOnADisk disk;
    Letterhead run;
    run.program.format.FormatFolder = disk.Path();
    WriteRaw(state, run);
}
BENCHMARK(WriteTheSameBytesOnADisk)->Unit(benchmark::kMillisecond)->UseRealTime();

void GroupChangeOnTheFinalPage(benchmark::State& state) {
    FullProposal run;
    run.program.main.CurrentPage = IndexOf(PageId::frmP6);
    modDesigner::LoadSelectedLabels(run.program);
    float size = 10;
    for (auto _ : state) {
        size = size == 10 ? 12 : 10;
        modDesigner::ApplyToLabels(run.program, &GroupChanges::FontSize,
                                   [&](LabelLook& look) { look.FontSize = size; });
    }
}
BENCHMARK(GroupChangeOnTheFinalPage)->Unit(benchmark::kMillisecond);

} // namespace
