#include "format/format_file.h"
#include "format/format_lines.h"
#include "language_program.h"

/// Arbitrary bytes read as a format: onto the pages, and out again. What was written once is read and written
/// again to the same bytes.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static LanguageProgram machine; // one program for the whole run; every input starts from its reset
    Program& program = machine.program;
    const auto written = [&] {
        return modFormat::LinesOf(program, modFormat::TablesNow(program, modFormat::Texts::LayoutAndTexts))
            .Lines;
    };
    machine.Reset();
    program.format.FormatLines = text::SplitLines({reinterpret_cast<const char*>(data), size});
    modFormat::ParseFormatFile(program);
    const std::vector<std::string> first = written();
    if (machine.HoldsUnkeepable()) {
        return 0; // told to the person when it is saved
    }
    if (first.empty() || !first.back().starts_with("UDP")) {
        return 0; // a font without a name or a size is in no line, and the signs beside the amounts follow it
    }
    machine.Reset();
    program.format.FormatLines = first;
    modFormat::ParseFormatFile(program);
    Require(written() == first);
    return 0;
}
