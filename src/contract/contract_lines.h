#pragma once

#include "contract/contract_text.h"
#include "platform/text_measure.h"

#include <string>
#include <vector>

struct Program;

/// The wording of the contract between the editor's text and the labels of the final page.
namespace modContract {

inline constexpr int kFirstLabel = 13, kLastLabel = 47;
/// So many filled lines go into the labels; one more is refused.
inline constexpr int kMostLines = 34;

/// The captions of the labels, one a line.
[[nodiscard]] std::string TextOfLabels(const Program& program);
/// The font in which the labels stand.
[[nodiscard]] TextFont FontOfLabels(const Program& program);

/// Lines for the labels, on both final pages; the labels behind them become empty. All of them take the font
/// and count as changed, for the proposal and for a format.
void WriteLabels(Program& program, const std::vector<std::string>& lines, const TextFont& font);

/// The text's lines as an import joins them: a line end becomes a blank where there is none yet, empty lines
/// fold into the line before them as one CR LF CR LF, those at the front go.
[[nodiscard]] std::vector<std::string> JoinLines(const ContractText& text);

/// Every run of line ends as one.
[[nodiscard]] std::string WithoutDoubleLineFeeds(std::string_view text);

/// The lines with their numbers, from 1.
[[nodiscard]] std::string NumberedLines(const ContractText& text);

} // namespace modContract
