#pragma once

#include <string>
#include <vector>

struct Program;

/// Texts that their slots in the proposal file cut.
namespace modFile {

/// Page and area of every text that is longer than its slot, the mark of an exempt amount counted, in the
/// order of the file: "Page 2, Text Area 34".
[[nodiscard]] std::vector<std::string> LongTexts(const Program& program);

/// Asks whether texts that are too long may be cut; true without a question when there are none.
[[nodiscard]] bool MayCutLongTexts(const Program& program);

} // namespace modFile
