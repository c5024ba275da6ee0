#include "shell/input.h"

#include "core/program.h"
#include "document/fields.h"
#include "document/totals.h"
#include "editing/columns.h"
#include "shell/page_switch.h"

namespace modInput {

namespace {

bool IsText(const FieldRef& field) {
    return field.Kind == FieldKind::txt;
}

/// The page's own keys come before the field's.
Taken Form_KeyDown(Program& program, int keyCode) {
    if (keyCode == keys::kPageUp || keyCode == keys::kPageDown) {
        modScroll::PageKey(program, keyCode);
        return Taken::Yes;
    }
    return Taken::No;
}

void PutCursor(Program& program, const FieldRef& field, int selStart, int selLength) {
    modFields::SetCursor(modFields::Area(program, field), selStart, selLength);
}

} // namespace

Taken KeyDown(Program& program, int keyCode, int shift, int selStart, int selLength) {
    program.main.Notice.clear();
    if (program.main.Focus) {
        PutCursor(program, *program.main.Focus, selStart, selLength);
    }
    if (Form_KeyDown(program, keyCode) == Taken::Yes) {
        return Taken::Yes;
    }
    if (!program.main.Focus) {
        return Taken::No;
    }
    const FieldRef field = *program.main.Focus;
    return IsText(field) ? modText::txt_KeyDown(program, field.Page, field.Index, keyCode, shift)
                         : modColumns::Box_KeyDown(program, field, keyCode, shift);
}

int KeyPress(Program& program, int keyAscii) {
    if (!program.main.Focus) {
        return 0;
    }
    const FieldRef field = *program.main.Focus;
    int kept = keyAscii;
    if (IsText(field)) {
        modText::txt_KeyPress(program, field.Page, field.Index, kept);
    } else {
        modColumns::Box_KeyPress(program, field, kept);
    }
    return kept;
}

void Edited(Program& program, const FieldRef& field, std::string_view text, int selStart, int selLength) {
    modFields::TypeText(program, field, text, selStart, selLength);
}

void EditedWithoutKey(Program& program, const FieldRef& field, std::string_view text, int selStart,
                      int selLength) {
    program.editing.CursorPos = modFields::Area(program, field).SelStart;
    program.editing.LastKeyChar.clear();
    modFields::TypeText(program, field, text, selStart, selLength);
}

void CursorMoved(Program& program, const FieldRef& field, int selStart, int selLength) {
    PutCursor(program, field, selStart, selLength);
}

void KeyUp(Program& program, int keyCode, int shift, int selStart, int selLength) {
    if (!program.main.Focus) {
        return;
    }
    const FieldRef field = *program.main.Focus;
    PutCursor(program, field, selStart, selLength);
    if (IsText(field)) {
        modText::txt_KeyUp(program, field.Page, field.Index, keyCode, shift);
    }
}

void FieldMouseDown(Program& program, const FieldRef& field, int button, int shift, int selStart,
                    int selLength) {
    PutCursor(program, field, selStart, selLength);
    modFields::GiveFocus(program, field);
    PutCursor(program, field, selStart, selLength);
    if (IsText(field)) {
        modText::txt_MouseDown(program, field.Page, field.Index, button, shift);
    }
}

void FieldMouseUp(Program& program, const FieldRef& field, int selStart, int selLength) {
    PutCursor(program, field, selStart, selLength);
    if (IsText(field)) {
        modText::txt_MouseUp(program, field.Page, field.Index);
    }
}

void FieldDblClick(Program& program, const FieldRef& field) {
    if (IsText(field)) {
        modText::txt_DblClick(program, field.Page, field.Index);
    }
}

void NoTaxMarkClick(Program& program, PageId page, int index) {
    modTotals::imgNoTax_Click(program, page, index);
}

} // namespace modInput
