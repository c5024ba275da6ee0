#pragma once

#include "platform/drawing_surface.h"
#include "program/page_records.h"

struct Program;

namespace modPrint {

/// Draws the fields of one page in their order, each at its Left and Top. Fields with the Tag "Hide" are left
/// out, hidden fields without it are drawn. Text areas take the default text colour, not their own.
void DrawPage(const Program& program, DrawingSurface& surface, PageId page);

/// The same of a page's copy.
void DrawSheet(const Program& program, DrawingSurface& surface, const Page& record);

/// What comes before a page is drawn, on paper or on itself: the figures are taken fresh; what was drawn on
/// the active page goes, and is drawn anew when a preview is up.
void PrepareDrawing(Program& program);

/// One page onto the current printer as a document of its own: fresh figures, the
/// printer's offsets, the page, EndDoc, and the printer's font put back. Reports as "PrintTheForm".
void PrintTheForm(Program& program, PageId page);
/// The same of a page's copy that was made after `PrepareDrawing`: what is typed while pages are under way is
/// not on some of them.
void PrintSheet(Program& program, const Page& sheet);

} // namespace modPrint
