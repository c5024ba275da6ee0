#include "format/grid.h"

#include "program/errors.h"
#include "program/program.h"

#include <cmath>

namespace modDesigner {

void DrawCenterLines(Program& program, PageId page) {
    Page& record = program.pages[page];
    const float x = record.Width / 2;
    const float y = record.Height / 2;
    record.CenterLines = {{x, 0, x, record.Height, true}, {0, y, record.Width, y, true}};
}

bool IsSnapStep(float twips) {
    constexpr float kLeast = 14.4F, kMost = 5760, kRounding = 0.001F;
    return std::isfinite(twips) && twips >= kLeast - kRounding && twips <= kMost + kRounding;
}

void DrawGrid(Program& program, PageId page) {
    Guarded(program, "DrawGrid", [&] {
        Page& record = program.pages[page];
        record.GridPoints.clear();
        const float snap = program.format.SnapTwips;
        if (!IsSnapStep(snap)) {
            return;
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
