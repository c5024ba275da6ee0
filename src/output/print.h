#pragma once

#include "document/page_records.h"
#include "platform/drawing_surface.h"

struct Program;

namespace modPrint {

/// Sets `PagesInUse` from the current texts: the highest line page with a text, plus one. Unchanged when no
/// page has one.
void CountPagesInUse(Program& program);

/// Writes page numbers and headings into the labels and the proposal's label table, and the main window's
/// line.
void SetPageNumbers(Program& program);

enum class SurfaceKind { Printer, PageItself };

/// Draws one page, field by field, at each field's Left and Top. Fields with the Tag "Hide" are left out,
/// hidden fields without it are drawn. On a printer ends with EndDoc. Reports as "PrintTheForm".
void PrintTheForm(Program& program, DrawingSurface& surface, SurfaceKind kind, PageId page);

void mnuFilePrintAll_Click(Program& program);
void mnuFilePrintPage_Click(Program& program, PageId page);

} // namespace modPrint
