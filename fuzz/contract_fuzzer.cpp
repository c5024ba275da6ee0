#include "contract/contract_lines.h"
#include "contract/contract_text.h"
#include "quiet_program.h"

#include <cstdint>
#include <string>

/// Arbitrary bytes as a contract: its lines hold every character but the line ends, through edits and back.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const FixedMeasure measure;
    ContractText text(1500);
    text.SetFont(measure, {});
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    text.SetText(bytes);
    const std::string first = text.Text();
    for (std::size_t at = 0; at + 2 < size && at < 40; at += 3) {
        text.Replace(data[at] * size / 256, data[at + 1] % 16U, bytes.substr(at, data[at + 2] % 8U),
                     ContractText::Kind::Typing);
    }
    std::string joined;
    for (int line = 0; line < text.LineCount(); ++line) {
        Require(text.LineText(line).find_first_of("\r\n") == std::string::npos);
        joined += text.LineText(line) + (text.EndsParagraph(line) ? "\r\n" : "");
    }
    Require(joined == text.Text());
    while (text.CanUndo()) {
        Require(text.Undo() >= 0);
    }
    Require(text.Text() == first);
    static_cast<void>(modContract::JoinLines(text));
    static_cast<void>(modContract::WithoutDoubleLineFeeds(bytes));
    return 0;
}
