#include "format/property_file.h"
#include "language_program.h"

/// Arbitrary bytes read as the property file of a proposal, and the lines that it would be saved with.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static LanguageProgram machine;
    Program& program = machine.program;
    machine.Reset();
    program.format.PropertyLines = text::SplitLines({reinterpret_cast<const char*>(data), size});
    modProperties::ParsePropertyFile(program);
    const std::vector<std::string> first = modProperties::PropertyLinesNow(program);
    if (machine.HoldsUnkeepable()) {
        return 0;
    }
    machine.Reset();
    program.format.PropertyLines = first;
    modProperties::ParsePropertyFile(program);
    Require(!program.format.PropertyLinesRead.has_value()); // the program reads all that it writes
    return 0;
}
