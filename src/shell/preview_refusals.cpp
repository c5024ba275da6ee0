#include "shell/preview_refusals.h"

#include "output/preview.h"
#include "program/program.h"
#include "shell/command_table.h"

#include <algorithm>
#include <array>

namespace commands {

namespace {

/// Menus with all their entries, and single entries.
constexpr std::array kEditing{CommandId::mnuEditTextBox,    CommandId::mnuEditLabel,
                              CommandId::mnuEditLogo,       CommandId::mnuEditAllTextFonts,
                              CommandId::mnuEditTitles,     CommandId::mnuEditCompInfo,
                              CommandId::mnuEditSpellCheck, CommandId::mnuManageEditor};

bool Edits(CommandId id) {
    for (; id != CommandId::Count; id = Find(id).Parent) {
        if (std::find(kEditing.begin(), kEditing.end(), id) != kEditing.end()) {
            return true;
        }
    }
    return false;
}

} // namespace

bool RefusedInPreview(const Program& program, CommandId id) {
    return modPreview::PreviewStands(program) && Edits(id);
}

bool RefuseInPreview(const Program& program, CommandId id) {
    if (!RefusedInPreview(program, id)) {
        return false;
    }
    program.platform.questions.MsgBox("Please click \"Resume Editing\" first.", Buttons::Ok, "");
    return true;
}

} // namespace commands
