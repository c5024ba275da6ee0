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

namespace {

/// Every label of every page changed, 150 texts, a logo and a font.
struct Letterhead : FullProposal {
    Letterhead() {
        for (const PageId page : kEditedPages) {
            for (int index = 0; index <= geometry::LastLabel(page); ++index) {
                LabelChangeRecord& record =
                    modDesigner::RecordOf(program.format.FormatLabelChanges, page, index);
                modDesigner::PutLook(record, modDesigner::LookOf(modDesigner::LabelAt(program, page, index)));
                record.Changed = true;
            }
        }
        program.format.LogoPath = "/srv/logo.png";
        program.format.FormatFolder = folder / "Proposals/";
        program.format.FormatName = "House.fmt";
        program.format.LogoChanged = true;
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
}
BENCHMARK(LayAFormat)->Unit(benchmark::kMillisecond);

void WriteTheSameBytes(benchmark::State& state) {
    Letterhead run;
    static_cast<void>(modFormat::SaveFileFormat(run.program));
    const std::string bytes = files::ReadAll(run.folder / "Proposals/House.fmt");
    for (auto _ : state) {
        files::WriteWhole(run.folder / "Proposals/Raw.fmt", bytes);
    }
}
BENCHMARK(WriteTheSameBytes)->Unit(benchmark::kMillisecond);

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
