#include "shell/closing.h"

#include "editing/selection.h"
#include "format/format_save.h"
#include "format/frm_label_props.h"
#include "program/program.h"
#include "program/windows.h"
#include "proposal/backup.h"
#include "proposal/file_names.h"
#include "proposal/lifecycle.h"
#include "proposal/property_file.h"
#include "proposal/proposal_save.h"
#include "proposal/rescued.h"
#include "proposal/run_marker.h"

namespace modClosing {

void mnuFileExit_Click(Program& program) {
    if (MDIForm_QueryUnload(program)) {
        MDIForm_Unload(program);
    }
}

bool MDIForm_QueryUnload(Program& program) {
    if (program.printing.CommandRunning) {
        return false; // the window closes when the pages are on their way
    }
    // The window may be closed with an arrow still held; what it has moved counts as changed text.
    modBlocks::FinishMove(program);
    if (program.main.Closing) {
        return true;
    }
    // Words typed on to a label must not go without a question.
    modDesigner::CloseChangedLabelWindow(program);
    // The windows beside the proposal first: a deposit that is saved there still reaches the proposal's file.
    if (!modWindows::MayLeave(program, Leaving::Run)) {
        return false;
    }
    if (!modProposal::SomethingChanged(program) && !modFile::PropertiesChanged(program)) {
        return modFormat::MayLeaveFormat(program);
    }
    const Answer answer = program.platform.questions.MsgBox(
        "The file has been changed. Do you want to save it?", Buttons::YesNoCancel, "Text has been Changed",
        {.Default = Answer::Yes, .Lost = modNames::UnsavedChanges(program)});
    if (answer == Answer::Yes) {
        // Saving keeps the program open; the person closes a second time.
        static_cast<void>(modFile::SaveEventFile(program));
        return false;
    }
    return answer == Answer::No && modFormat::MayLeaveFormat(program);
}

void EndRun(Program& program) {
    program.main.Closing = true;
    program.run.ProgramClosing = true;
    modWindows::UnloadAll(program);
    program.platform.events.Quit();
}

void MDIForm_Unload(Program& program) {
    if (program.main.Closing) {
        return;
    }
    modRescue::ForgetOwn(program);
    modRecovery::TakeMarkerAway(program);
    EndRun(program);
}

void KeepUnsaved(Program& program) {
    if (program.main.Closing || !program.main.Loaded) {
        return;
    }
    modDesigner::CloseChangedLabelWindow(program);
    modWindows::KeepUnsaved(program);
    if (modProposal::SomethingChanged(program) || modFile::PropertiesChanged(program)) {
        modFile::BackupThisFile(program); // the marker stays: the next start offers it
    } else if (!program.recovery.Found) { // what an earlier run has left is not settled yet
        modRecovery::NothingUnsaved(program);
    }
}

void Interrupted(Program& program) {
    if (program.main.Closing) {
        return;
    }
    KeepUnsaved(program);
    if (program.main.Loaded && !program.recovery.Told) {
        modRecovery::TakeMarkerAway(program);
    }
    program.main.Closing = true;
    program.platform.events.Quit();
}

} // namespace modClosing
