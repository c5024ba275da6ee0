#pragma once

#include "program/page_records.h"

#include <string>

struct Program;

namespace modTitles {

/// Lays the client's line on all pages, shows it in `lblEvent`, and writes the main window's title. An empty
/// ClientCaption becomes "Proposal for (Client's Name)".
void UpdateEventNameLabels(Program& program);

/// The lines alone, without the main window's title. A line keeps its height, and its place unless it stood
/// in the middle of the page or where pages are built with it.
void UpdateFooters(Program& program);

/// The same, all of them in the middle of the page: for pages just built.
void CentreFooters(Program& program);

/// The same lines as UpdateFooters, and their looks go to the proposal's label table as changed.
void LayTitles(Program& program);

/// Gives a title or a page's heading its words. It is centred anew when it stood centred, to a twip, or where
/// pages are built with it; otherwise somebody has put it where it is.
void SetTitleWords(const Program& program, PageId page, int index, PageLabel& label, std::string words);

/// The title on a page of a proposal that has no client yet.
[[nodiscard]] std::string NobodysTitle(PageId page);

/// Whether a title stands in the middle of the page, to a twip, or where pages are built with it.
[[nodiscard]] bool StandsCentred(const Program& program, PageId page, int index, const PageLabel& label);
/// Puts a label there.
void Centre(const Program& program, PageLabel& label);

/// The running heading for a document kind: the setting when there is one, else company name, " - ", what, "
/// - ".
void SetPageHeading(Program& program, const char* what);

/// The heading in force before the page numbers that stand, as it will be printed.
void LayHeading(Program& program);

} // namespace modTitles
