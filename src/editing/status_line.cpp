#include "editing/status_line.h"

#include "base/numbers.h"
#include "base/text.h"
#include "program/program.h"

#include <string>

namespace modStatus {

void ShowCursor(Program& program) {
    program.main.lblCurPos.Caption = "Cursor Location = " + std::to_string(program.editing.CursorPos);
}

void ShowCaret(Program& program, const TextArea& area) {
    program.main.lblCurPos.Caption = "Cursor Location = " + std::to_string(area.SelStart);
}

void ShowTextPosition(Program& program, const TextArea& area) {
    program.main.lblTextPos.Visible = !program.run.NoPrinter;
    if (program.run.NoPrinter) {
        return;
    }
    const float position = program.platform.measure.Width(
        text::Left(area.Text, area.SelStart), {area.FontName, area.FontSize, area.FontBold, area.FontItalic});
    program.main.lblTextPos.Caption = "Printer Text Position = " + numbers::FormatSingle(position, "##.##");
}

void ShowAreaNumber(Program& program, PageId page, int index) {
    if (program.editing.RightClickPending) {
        program.editing.RightClickPending = false;
        return;
    }
    program.main.lblTextNum.Caption =
        "Page " + std::to_string(IndexOf(page) + 1) + ", Text Area " + std::to_string(index + 1);
}

} // namespace modStatus
