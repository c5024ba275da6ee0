#include "format/grid.h"

#include "program/errors.h"
#include "program/program.h"

namespace modDesigner {

void DrawCenterLines(Program& program, PageId page) {
    Page& record = program.pages[page];
    const float x = record.Width / 2;
    const float y = record.Height / 2;
    record.CenterLines = {{x, 0, x, record.Height, true}, {0, y, record.Width, y, true}};
}

void DrawGrid(Program& program, PageId page) {
    Guarded(program, "DrawGrid", [&] {
        Page& record = program.pages[page];
        record.GridPoints.clear();
        const float snap = program.format.SnapTwips;
        if (!(snap > 0)) {
            return; // a step of nothing would never cross the page
        }
        for (float y = snap; y < record.Height - snap; y += snap) {
            for (float x = snap; x < record.Width - snap; x += snap) {
                record.GridPoints.push_back({x, y});
            }
        }
    });
}

void mnuToolsDrawCenterLines_Click(Program& program) {
    DrawCenterLines(program, program.main.ActivePage);
    DrawGrid(program, program.main.ActivePage);
}

void mnuToolsClearCenterLines_Click(Program& program) {
    ClearDrawing(program.pages[program.main.ActivePage]);
}

} // namespace modDesigner
