#pragma once

#include "program/page_records.h"

struct Program;

/// The designer's grid on a page: a point at every step of the snap, and two lines through the centre. It is
/// drawn, not printed, and goes with the next clearing of what is drawn on the page.
namespace modDesigner {

/// Two lines through the centre of the page, from edge to edge.
void DrawCenterLines(Program& program, PageId page);

/// A step between 0.01 and 4 inches.
[[nodiscard]] bool IsSnapStep(float twips);

/// A point at every step of the snap, row by row, and a note of each; nothing for a step out of bounds.
/// Reports as "DrawGrid".
void DrawGrid(Program& program, PageId page);

/// "Draw Grid": both, on the active page.
void mnuToolsDrawCenterLines_Click(Program& program);
/// "Clear Grid": clears what is drawn on the active page.
void mnuToolsClearCenterLines_Click(Program& program);

} // namespace modDesigner
