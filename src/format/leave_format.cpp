#include "format/leave_format.h"

#include "format/format_changes.h"
#include "format/format_save.h"
#include "program/program.h"

namespace modFormat {

bool MayLeaveFormat(Program& program) {
    if (!FormatIsUnsaved(program)) {
        return true;
    }
    const Answer answer = program.platform.questions.MsgBox(
        "The format " + program.format.FormatName + " has changes that are not saved.", Buttons::YesNoCancel,
        "", {.Default = Answer::Cancel, .Words = {"Save", "Discard", "Cancel"}});
    if (answer == Answer::Yes) {
        return SaveFileFormat(program) == FormatSave::Saved;
    }
    return answer == Answer::No;
}

} // namespace modFormat
