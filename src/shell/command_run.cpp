#include "shell/command_run.h"

#include "editing/area_mouse.h"
#include "editing/selection.h"
#include "program/program.h"
#include "shell/command_table.h"
#include "shell/main_controls.h"
#include "shell/preview_refusals.h"

namespace commands {

void Run(Program& program, CommandId id) {
    modMain::WorkOutControls(program);
    const Entry& entry = Find(id);
    modBlocks::FinishMove(program); // an arrow still held: what moved must be stored before anything else
    modText::TextMenuClosed(program);
    // A shortcut must not act on the state of a field that has been left meanwhile.
    if (entry.Parent == CommandId::mnuEditTextBox && program.hooks.UpdateTextMenu) {
        program.hooks.UpdateTextMenu(program);
    }
    if (entry.Pending()) {
        program.main.Notice = kNotBuilt; // a tool button leads here, too
        return;
    }
    if (!IsAvailable(program, id) || !program.main[id].Visible) {
        return;
    }
    if (program.printing.CommandRunning) {
        return; // the pages under way are the proposal's as it stands
    }
    if (RefuseInPreview(program, id)) {
        return;
    }
    if (entry.Run != nullptr) {
        entry.Run(program);
    }
}

} // namespace commands
