#include "editing/standing_completion.h"

#include "pages/fields.h"
#include "program/program.h"

namespace modText {

void SettleCompletion(Program& program, PageId page) {
    if (!IsLinePage(page)) {
        return;
    }
    bool& completing = program.editing.ACActive[page];
    if (!completing) {
        return;
    }
    completing = false;
    const auto& focus = program.main.Focus;
    if (!focus || focus->Page != page || focus->Kind != FieldKind::txt) {
        return;
    }
    TextArea& area = modFields::Area(program, *focus);
    const int end = static_cast<int>(area.Text.size());
    program.editing.CursorPos = end;
    if (area.SelLength > 0) {
        modFields::SetCursor(area, end);
    }
    if (program.hooks.Change) {
        program.hooks.Change(program, *focus);
    }
}

void TakeCompletion(Program& program) {
    for (const PageId page : kLinePages) {
        SettleCompletion(program, page);
    }
}

} // namespace modText
