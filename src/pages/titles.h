#pragma once

struct Program;

namespace modTitles {

/// Lays the client's line on all pages, centred, shows it in `lblEvent`, and writes the main window's title.
/// An empty ClientCaption becomes "Proposal for (Client's Name)".
void UpdateEventNameLabels(Program& program);

/// The lines alone, without the main window's title.
void UpdateFooters(Program& program);

/// The same lines, and their new place and wording go to the proposal's label table.
void LayTitles(Program& program);

/// The running heading for a document kind: the setting when there is one, else company name, " - ", what, "
/// - ".
void SetPageHeading(Program& program, const char* what);

} // namespace modTitles
