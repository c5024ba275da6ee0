#include "shell/find_command.h"

#include "program/program.h"
#include "program/windows.h"
#include "search/frm_search.h"
#include "shell/tool_buttons.h"

#include <memory>

namespace modMain {

void mnuEditFind_Click(Program& program) {
    if (!modSearch::MayStart(program)) {
        return;
    }
    modToolButtons::PressToolButton(program, program.main.imgSearch);
    auto window = std::make_unique<frmSearch>();
    window->Closed = modToolButtons::ReleaseToolButton;
    modWindows::Show(program, std::move(window));
}

} // namespace modMain
