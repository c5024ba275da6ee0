#include "pages/label_mode.h"

#include "program/program.h"

namespace modLabelMode {

void End(Program& program) {
    program.designer.LabelMode = false;
    program.designer.Framed.reset();
    program.designer.FocusBefore.reset();
    program.main[CommandId::mnuEditLabelMode].Checked = false;
}

} // namespace modLabelMode
