#include "pages/fields.h"

#include "program/program.h"

#include <algorithm>

namespace modFields {

namespace {

/// Of a page that is read or of one that is written.
template <typename PageRecord> auto& ArrayOf(PageRecord& page, FieldKind kind) {
    switch (kind) {
    case FieldKind::txtQty:
        return page.txtQty;
    case FieldKind::txtAmt:
        return page.txtAmt;
    default:
        return page.txt;
    }
}

bool TakesFocus(const Program& program, const FieldRef& field) {
    // The client's copy is there to be printed; nobody types on it.
    if (!Exists(program, field) || field.Page == PageId::frmP6_1) {
        return false;
    }
    const TextArea& area = Area(program, field);
    return area.Visible && area.Enabled;
}

} // namespace

TextArea& Area(Program& program, const FieldRef& field) {
    return ArrayOf(program.pages[field.Page], field.Kind)[static_cast<std::size_t>(field.Index)];
}

const TextArea& Area(const Program& program, const FieldRef& field) {
    return ArrayOf(program.pages[field.Page], field.Kind)[static_cast<std::size_t>(field.Index)];
}

bool Exists(const Program& program, const FieldRef& field) {
    const Page& page = program.pages[field.Page];
    const std::vector<TextArea>* areas = field.Kind == FieldKind::txt      ? &page.txt
                                         : field.Kind == FieldKind::txtQty ? &page.txtQty
                                         : field.Kind == FieldKind::txtAmt ? &page.txtAmt
                                                                           : nullptr;
    return areas != nullptr && field.Index >= 0 && static_cast<std::size_t>(field.Index) < areas->size();
}

void SetCursor(TextArea& area, int selStart, int selLength) {
    const int length = static_cast<int>(area.Text.size());
    area.SelStart = std::clamp(selStart, 0, length);
    area.SelLength = std::clamp(selLength, 0, length - area.SelStart);
}

void SetText(Program& program, const FieldRef& field, std::string_view value) {
    TextArea& area = Area(program, field);
    if (area.Text == value) {
        return;
    }
    area.Text = value;
    area.SelStart = 0;
    area.SelLength = 0;
    if (program.hooks.Change) {
        program.hooks.Change(program, field);
    }
}

void TypeText(Program& program, const FieldRef& field, std::string_view value, int selStart, int selLength) {
    TextArea& area = Area(program, field);
    const bool differs = area.Text != value;
    area.Text = value;
    SetCursor(area, selStart, selLength);
    if (differs && program.hooks.Change) {
        program.hooks.Change(program, field);
    }
}

void GiveFocus(Program& program, const FieldRef& field) {
    if (program.main.Focus == field || !TakesFocus(program, field)) {
        return;
    }
    DropFocus(program);
    // Leaving may have shown a message or moved things; the field must still be there to be entered.
    if (!TakesFocus(program, field)) {
        return;
    }
    program.main.Focus = field;
    if (program.hooks.GotFocus) {
        program.hooks.GotFocus(program, field);
    }
}

void DropFocus(Program& program) {
    if (!program.main.Focus) {
        return;
    }
    const FieldRef left = *program.main.Focus;
    program.main.Focus.reset();
    if (program.hooks.LostFocus && Exists(program, left)) {
        program.hooks.LostFocus(program, left);
    }
}

} // namespace modFields
