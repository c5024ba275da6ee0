#include "program/program.h"
#include "proposal/proposal_layout.h"
#include "proposal/proposal_open.h"
#include "proposal/reset.h"
#include "proposal/slot_widths.h"
#include "quiet_program.h"

#include <cmath>
#include <cstdint>
#include <string>

/// Arbitrary bytes read as a proposal: into the pages and their totals, and out again.

namespace {

proposal::Fields FieldsOf(const proposal::Decoded& decoded) {
    proposal::Fields fields;
    for (std::size_t page = 0; page < decoded.Slots.size(); ++page) {
        for (const std::string_view slot : decoded.Slots.Each[page]) {
            fields.Each[page].push_back({std::string(slot), false});
        }
    }
    return fields;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static QuietProgram machine; // one program for the whole run; every input starts from its reset
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

    Require(modReset::StartNewFile(program) == modReset::ResetResult::Done);
    program.document.FilePath = "/nonexistent/";
    modFile::ShowProposal(program, "Fuzz.hef", {bytes, size, {}});
    for (const auto& row : program.totals.AmountTable) {
        for (const float amount : row) {
            Require(std::isfinite(amount));
        }
    }
    return 0;
}
