#include "editing/text_commands.h"

#include "base/text.h"
#include "pages/fields.h"
#include "program/program.h"

#include <algorithm>
#include <string>

namespace modText {

namespace {

enum class Weight { Normal, Bold };

FieldRef Target(const Program& program) {
    return {program.main.ActivePage, FieldKind::txt, program.editing.CurrentArea};
}

void SetWeight(Program& program, Weight weight) {
    const FieldRef field = Target(program);
    if (!modFields::Exists(program, field)) {
        return;
    }
    const bool bold = weight == Weight::Bold;
    const auto index = static_cast<std::size_t>(field.Index);
    modFields::Area(program, field).FontBold = bold;
    if (field.Page == PageId::frmP6) {
        program.pages[PageId::frmP6_1].txt[index].FontBold = bold;
    }
    program.format.PropTextChanges[field.Page][index].FontBold = bold;
    program.format.PropTextChanges[field.Page][index].Dirty = true;
    program.format.FormatTextChanges[field.Page][index].FontBold = bold;
    program.format.Touched = true;
    modFields::GiveFocus(program, field);
}

using Converter = std::string (*)(std::string_view);

void ConvertSelection(Program& program, Converter convert) {
    const FieldRef field = Target(program);
    if (!modFields::Exists(program, field)) {
        return;
    }
    TextArea& area = modFields::Area(program, field);
    if (area.Locked || program.editing.BlockMode) {
        return;
    }
    EditingState& editing = program.editing;
    const int length = static_cast<int>(area.Text.size());
    const int start = std::clamp(editing.SavedSelStart, 0, length);
    const int count = std::clamp(editing.SavedSelLength, 0, length - start);
    const auto from = static_cast<std::size_t>(start);
    const auto many = static_cast<std::size_t>(count);
    std::string value = area.Text;
    value.replace(from, many, convert(value.substr(from, many)));
    // Nobody has pressed a key: a line that is too long already does not flow on.
    editing.CursorPos = start;
    editing.LastKeyChar.clear();
    modFields::SetText(program, field, value);
    modFields::SetCursor(area, start, count);
    modFields::GiveFocus(program, field);
}

} // namespace

void mnuEditTextBold_Click(Program& program) {
    SetWeight(program, Weight::Bold);
}

void mnuEditTextNormal_Click(Program& program) {
    SetWeight(program, Weight::Normal);
}

void mnuEditTextSelLCase_Click(Program& program) {
    ConvertSelection(program, text::Lower);
}

void mnuEditTextSelPCase_Click(Program& program) {
    ConvertSelection(program, text::Proper);
}

void mnuEditTextSelUCase_Click(Program& program) {
    ConvertSelection(program, text::Upper);
}

void mnuEditTextCenter_Click(Program& program) {
    program.platform.questions.MsgBox("ok", Buttons::Ok, "");
}

} // namespace modText
