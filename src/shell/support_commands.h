#pragma once

struct Program;

/// Where a person finds the maker.
namespace modSupport {

void mnuSupportUpdates_Click(Program& program);
void mnuSupportFree_Click(Program& program);
void mnuFeedbackReportBug_Click(Program& program);
void mnuFeedbackSuggestions_Click(Program& program);

} // namespace modSupport
