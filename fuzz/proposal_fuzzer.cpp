#include "program/program.h"
#include "proposal/proposal_layout.h"
#include "proposal/proposal_open.h"
#include "proposal/reset.h"
#include "proposal/slot_widths.h"
#include "shell/main_load.h"
#include "shell/wiring.h"
#include "support/recording_platform.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>

/// Arbitrary bytes read as a proposal: into the pages and their totals, and out again.

namespace {

/// Answers every box and never complains: a fuzzer has no script.
class QuietQuestions : public Questions {
public:
    Answer Ask(std::string_view, Buttons, std::string_view, const Manner&) override { return Answer::Ok; }
    std::string InputBox(std::string_view, std::string_view, std::string_view) override { return {}; }
};

struct Machine {
    QuietQuestions quiet;
    RecordingPlatform recording;
    Platform platform{.questions = quiet,
                      .measure = recording.measure,
                      .printers = recording.printers,
                      .screen = recording.screen,
                      .clipboard = recording.clipboard,
                      .shell = recording.shell,
                      .clock = recording.clock,
                      .instance = recording.instance,
                      .pictures = recording.pictures,
                      .events = recording.events,
                      .words = recording.words,
                      .dictionaries = recording.dictionaries};
    Program program{platform};
    Machine() {
        program.folders.InstallFolder = "/nonexistent/quillbrook/";
        program.settings.CurrencySymbol = "$";
        Wire(program);
        modMain::MDIForm_Load(program);
    }
};

void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

proposal::Fields FieldsOf(const proposal::Decoded& decoded) {
    proposal::Fields fields;
    for (std::size_t page = 0; page < decoded.Slots.size(); ++page) {
        for (const std::string_view slot : decoded.Slots[page]) {
            fields[page].push_back({std::string(slot), false});
        }
    }
    return fields;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static Machine machine; // one program for the whole run; every input starts from its reset
    Program& program = machine.program;
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const proposal::Widths widths = modFile::SlotWidths(program);

    // What was read once is written and read again without a change.
    const proposal::Decoded first = proposal::Decode(bytes, size, widths);
    const std::string written = proposal::Encode(FieldsOf(first), widths);
    Require(written.size() == proposal::kFileLength);
    const proposal::Decoded second = proposal::Decode(written, written.size(), widths);
    if (proposal::WidthsForLength(size).Amount == 20 && proposal::WidthsForLength(size).Description == 120) {
        Require(second.Slots == first.Slots);
    }

    static_cast<void>(modReset::StartNewFile(program));
    program.document.FilePath = "/nonexistent/";
    modFile::ShowProposal(program, "Fuzz.hef", {bytes, size, {}});
    for (const auto& row : program.totals.AmountTable) {
        for (const float amount : row) {
            Require(std::isfinite(amount));
        }
    }
    return 0;
}
