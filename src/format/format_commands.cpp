#include "format/format_commands.h"

#include "base/files.h"
#include "base/paths.h"
#include "base/text.h"
#include "pages/fields.h"
#include "program/errors.h"
#include "program/program.h"
#include "program/windows.h"
#include "proposal/frm_file.h"
#include "proposal/lifecycle.h"
#include "proposal/property_file.h"
#include "proposal/reset.h"
#include "settings/settings.h"

#include <memory>

namespace modFormat {

namespace {

void ClearFormat(Program& program) {
    const FormatRecords before = program.format;
    const bool loadDefault = program.settings.LoadDefaultFormat;
    program.settings.LoadDefaultFormat = false;
    program.format.FormatName.clear();
    program.format.FormatOpen = false;
    program.format.FormatTextChanges = {};
    program.format.FormatLabelChanges = {};
    program.format.FormatLines.clear();
    if (modReset::StartNewFile(program) == modReset::ResetResult::Refused) {
        program.format = before;
        program.settings.LoadDefaultFormat = loadDefault;
        return;
    }
    modFields::GiveFocus(program, {PageId::frmP1, FieldKind::txt, 0});
}

bool FormatHasChanges(Program& program) {
    return program.hooks.FormatHasChanges && program.hooks.FormatHasChanges(program);
}

} // namespace

void mnuFileFormatNew_Click(Program& program) {
    const bool asks = FormatHasChanges(program) || modProposal::SomethingChanged(program) ||
                      modFile::PropertiesChanged(program);
    if (asks &&
        program.platform.questions.MsgBox(text::Lines({"This action will clear all current data if",
                                                       "the data hasn't already been saved. Continue?"}),
                                          Buttons::YesNo, "Beginning New File Format") != Answer::Yes) {
        return;
    }
    ClearFormat(program);
}

void mnuFileFormatOpen_Click(Program& program) {
    if (!modProposal::MayGoOn(program)) {
        return;
    }
    program.document.FileFilter = "*.fmt";
    auto window = std::make_unique<frmFile>();
    window->Caption = "Opening Format File";
    modWindows::Show(program, std::move(window));
}

void mnuFileFormatDelete_Click(Program& program) {
    Questions& questions = program.platform.questions;
    if (!program.format.FormatOpen) {
        questions.MsgBox("There's no Format File open.", Buttons::Ok, "");
        return;
    }
    // People know the title by this spelling.
    if (questions.MsgBox("Are you sure you want to delete the shown Format?", Buttons::YesNo,
                         "Deleting Format FIle") != Answer::Yes) {
        return;
    }
    const bool deleted = Guarded(program, "mnuFileFormatDelete_Click", [&] {
        files::Delete(paths::Join(program.format.FormatFolder, program.format.FormatName));
    });
    if (deleted) {
        ClearFormat(program);
    }
}

void mnuFileFormatDefault_Click(Program& program) {
    if (program.hooks.SaveFileFormat) {
        program.hooks.SaveFileFormat(program);
    }
    // Wanted: also a format that was refused a moment ago is loaded by new proposals from now on.
    program.settings.LoadDefaultFormat = true;
    static_cast<void>(modSettings::Store(program, {{modSettings::Key::LoadDefaultFormat, "True"}}));
}

} // namespace modFormat
