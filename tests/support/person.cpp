#include "support/person.h"

#include "proposal/reset.h"
#include "shell/closing.h"
#include "shell/command_run.h"
#include "shell/frm_main.h"
#include "shell/input.h"
#include "shell/page_switch.h"

#include <stdexcept>

namespace person {

void Choose(Program& program, CommandId id) {
    commands::Run(program, id);
}

void StartAnew(Program& program) {
    if (modReset::StartNewFile(program) != modReset::ResetResult::Done) {
        throw std::runtime_error("the proposal was not put away");
    }
}

void TurnTo(Program& program, int pageIndex) {
    modScroll::UpdatePageButtons(program, pageIndex);
}

void ClickPageButton(Program& program, int index) {
    frmMain(program).imgPage_Click(index);
}

void ClickPreviewButton(Program& program) {
    frmMain(program).cmdPreview_Click();
}

void ClickPrintButton(Program& program) {
    frmMain(program).imgPrint_Click();
}

void ClickClearSelected(Program& program) {
    frmMain(program).cmdClearMem_Click();
}

void ResizeWindow(Program& program) {
    modScroll::MDIForm_Resize(program);
}

bool MayClose(Program& program) {
    return modClosing::MDIForm_QueryUnload(program);
}

Taken KeyDown(Program& program, int keyCode, int shift, int selStart, int selLength) {
    return modInput::KeyDown(program, keyCode, shift, selStart, selLength);
}

int KeyPress(Program& program, int keyAscii) {
    return modInput::KeyPress(program, keyAscii);
}

void KeyUp(Program& program, int keyCode, int shift, int selStart, int selLength) {
    modInput::KeyUp(program, keyCode, shift, selStart, selLength);
}

void Edited(Program& program, const FieldRef& field, std::string_view text, int selStart, int selLength) {
    modInput::Edited(program, field, text, selStart, selLength);
}

void EditedWithoutKey(Program& program, const FieldRef& field, std::string_view text, int selStart,
                      int selLength) {
    modInput::EditedWithoutKey(program, field, text, selStart, selLength);
}

void Insert(Program& program, const FieldRef& field, std::string_view text, int refused, By by) {
    modInput::Insert(program, field, text, refused, by == By::Key ? modInput::By::Key : modInput::By::Mouse);
}

void FieldMouseDown(Program& program, const FieldRef& field, int button, int selStart, int selLength) {
    modInput::FieldMouseDown(program, field, button, selStart, selLength);
}

void FieldMouseUp(Program& program, const FieldRef& field, int selStart, int selLength) {
    modInput::FieldMouseUp(program, field, selStart, selLength);
}

void FieldDblClick(Program& program, const FieldRef& field, int position) {
    modInput::FieldDblClick(program, field, position);
}

bool TextMenuOpens(const Program& program) {
    return modInput::TextMenuOpens(program);
}

void TextMenuClosed(Program& program) {
    modInput::TextMenuClosed(program);
}

void NoTaxMarkClick(Program& program, PageId page, int index) {
    modInput::NoTaxMarkClick(program, page, index);
}

} // namespace person
