#pragma once

#include "platform/word_service.h"

#include <string>
#include <string_view>
#include <vector>

struct Program;

/// The proposal as lines of text: head, general information, line items, grand totals, contract, signatures.
namespace modExport {

/// From what stands on the pages. `CountPagesInUse` and the totals must be fresh.
[[nodiscard]] std::vector<DocumentLine> ProposalLines(const Program& program);

/// The same in its plain form at once.
[[nodiscard]] std::string ProposalText(const Program& program);

/// The plain form: every line with CR LF.
[[nodiscard]] std::string PlainText(const std::vector<DocumentLine>& lines);

/// The same as an HTML table for programs that take one, in the program's characters.
[[nodiscard]] std::string HtmlTable(const std::vector<DocumentLine>& lines);

/// The cells of a line: what stands between its tabs, however many tabs there are in a run.
[[nodiscard]] std::vector<std::string> Cells(std::string_view line);

} // namespace modExport
