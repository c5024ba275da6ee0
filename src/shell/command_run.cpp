#include "shell/command_run.h"

#include "editing/area_mouse.h"
#include "editing/selection.h"
#include "editing/text_menu.h"
#include "format/frm_label_props.h"
#include "program/program.h"
#include "program/saved_notice.h"
#include "shell/command_table.h"
#include "shell/main_controls.h"
#include "shell/page_switch.h"
#include "shell/preview_refusals.h"

#include <optional>

namespace commands {

namespace {

bool IsUnder(const Entry& entry, CommandId menu) {
    for (CommandId at = entry.Parent; at != CommandId::Count; at = Find(at).Parent) {
        if (at == menu) {
            return true;
        }
    }
    return false;
}

} // namespace

bool MayRun(Program& program, CommandId id) {
    BeginTelling(program);
    modMain::WorkOutControls(program);
    const Entry& entry = Find(id);
    modBlocks::FinishMove(program); // an arrow still held: what moved must be stored before anything else
    modText::TextMenuClosed(program);
    // A shortcut must not act on the state of a field that has been left meanwhile.
    if (entry.Parent == CommandId::mnuEditTextBox) {
        modTextMenu::UpdateTextMenu(program);
    }
    if (entry.Pending()) {
        program.main.Notice = kNotBuilt; // a tool button leads here, too
        return false;
    }
    if (!IsAvailable(program, id) || !program.main[id].Visible) {
        return false;
    }
    if (program.printing.CommandRunning) {
        return false; // the pages under way are the proposal's as it stands
    }
    return !RefuseInPreview(program, id);
}

void Run(Program& program, CommandId id) {
    if (!MayRun(program, id)) {
        return;
    }
    const Entry& entry = Find(id);
    const bool leaves = id == CommandId::mnuFileExit; // the end of the run settles the label window itself
    if (!leaves && (IsUnder(entry, CommandId::mnuFile) || IsUnder(entry, CommandId::mnuFileFormat))) {
        // What is saved, printed or left behind holds what was typed in the label window.
        modDesigner::CloseLabelWindow(program);
    }
    if (entry.Run == nullptr) {
        return;
    }
    const std::optional<FieldRef> before = program.main.Focus;
    entry.Run(program);
    if (program.main.Focus && program.main.Focus != before) {
        modScroll::BringIntoView(program, *program.main.Focus);
    }
}

} // namespace commands
